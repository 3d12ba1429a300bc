// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/OutputFolder.h"

#include <QFileInfo>

namespace {

/// Two paths that some file systems take for one give the same key.
QString Key(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath()).toCaseFolded();
}

} // namespace

OutputFolder::OutputFolder(const QString& folder, const QStringList& mediaPaths) : m_folder(folder)
{
    for (const QString& path : mediaPaths)
        m_taken.insert(Key(path));
}

bool OutputFolder::Create() const
{
    return m_folder.mkpath(QStringLiteral("."));
}

QString OutputFolder::PictureFor(const QString& mediaPath)
{
    // File systems take names of 255 bytes, and a character may need four.
    constexpr int longest = 60;
    const QString base = QFileInfo(mediaPath).completeBaseName().left(longest);
    QString path = File(base + QStringLiteral(".png"));
    for (int number = 2; m_taken.contains(Key(path)); ++number)
        path = File(QStringLiteral("%1-%2.png").arg(base).arg(number));
    m_taken.insert(Key(path));
    return path;
}

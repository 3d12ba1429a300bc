// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/PictureSequence_p.h"

#include "NLECore/media/SavedFile_p.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace nle {

namespace {

QRegularExpression Place()
{
    return QRegularExpression(QStringLiteral("%(0?)([0-9]?)d"));
}

} // namespace

bool PictureSequence::IsName(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    return name.count(QLatin1Char('%')) == 1 && name.contains(Place());
}

QString PictureSequence::FileOf(const QString& path, int number)
{
    const QFileInfo file(path);
    QString name = file.fileName();
    const QRegularExpressionMatch place = Place().match(name);
    const QLatin1Char fill(place.captured(1).isEmpty() ? ' ' : '0');
    const QString digits = QStringLiteral("%1").arg(number, place.captured(2).toInt(), 10, fill);
    name.replace(place.capturedStart(), place.capturedLength(), digits);
    return QDir(file.path()).filePath(name);
}

PictureSequence::PictureSequence(const QString& path) : m_path(path) {}

bool PictureSequence::Fail(const QFileDevice& file)
{
    m_error = file.errorString();
    m_isDiskFull = ErrorOf(file) == QFileDevice::ResourceError;
    return false;
}

bool PictureSequence::Open()
{
    const QFileInfo file(m_path);
    m_folder = std::make_unique<SideFolder>(file);
    m_count = 0;
    m_error = m_folder->Error();
    m_inside = m_folder->FilePath(file.fileName());
    return m_folder->IsValid();
}

bool PictureSequence::Append(const char* data, int size)
{
    QFile file(FileOf(m_inside, m_count));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(data, size) != size)
        return Fail(file);
    ++m_count;
    return true;
}

bool PictureSequence::Commit()
{
    for (int number = 0; number < m_count; ++number) {
        if (!MoveOver(FileOf(m_inside, number), FileOf(m_path, number), &m_error))
            return false;
    }
    return true;
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Import/ImportTarget.h"

#include <QDir>
#include <QFileInfo>

namespace {

/// Whether the file system of Windows, the strictest, refuses \a character in a name.
bool IsReserved(QChar character)
{
    return character.unicode() < 0x20 || QStringLiteral("\\/:*?\"<>|").contains(character);
}

} // namespace

QString CleanFileName(const QString& name)
{
    QString clean = name;
    for (QChar& character : clean) {
        if (IsReserved(character))
            character = QLatin1Char('_');
    }
    // Windows drops dots and blanks at the end, which also leaves nothing of "." and "..".
    while (clean.endsWith(QLatin1Char('.')) || clean.endsWith(QLatin1Char(' ')))
        clean.chop(1);
    return clean.isEmpty() ? QStringLiteral("_") : clean;
}

QString FreePath(const QString& folder, const QString& name, QSet<QString>& taken)
{
    const QDir target(folder);
    const QFileInfo parts(CleanFileName(name));
    const QString suffix = parts.suffix().isEmpty() ? QString() : QLatin1Char('.') + parts.suffix();
    QString path = target.filePath(parts.fileName());
    // Names that differ in case only are one file on some systems.
    for (int number = 2; taken.contains(path.toLower()) || QFileInfo::exists(path); ++number)
        path = target.filePath(
            QStringLiteral("%1 (%2)%3").arg(parts.completeBaseName()).arg(number).arg(suffix));
    taken.insert(path.toLower());
    return path;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/MediaFinder.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QMultiHash>
#include <QSet>

namespace {

/// Files that are looked at; a whole disk would take too long.
constexpr int kMostFiles = 200000;

/// Folders and name at the end that two paths have in common.
int CommonTail(const QString& a, const QString& b)
{
    const QStringList left = a.split(QLatin1Char('/'));
    const QStringList right = b.split(QLatin1Char('/'));
    int count = 0;
    while (count < left.size() && count < right.size() &&
           left[left.size() - 1 - count] == right[right.size() - 1 - count])
        ++count;
    return count;
}

QMultiHash<QString, QString> FilesByName(const QString& folder, const QStringList& wanted)
{
    QSet<QString> names;
    for (const QString& path : wanted)
        names.insert(QFileInfo(path).fileName());
    QMultiHash<QString, QString> files;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    for (int count = 0; it.hasNext() && count < kMostFiles; ++count) {
        it.next();
        if (names.contains(it.fileName()))
            files.insert(it.fileName(), it.filePath());
    }
    return files;
}

QString Nearest(const QString& lost, const QStringList& candidates)
{
    QString nearest;
    for (const QString& path : candidates) {
        const int tail = CommonTail(lost, path);
        const int best = CommonTail(lost, nearest);
        // The order of a folder's files is nobody's choice.
        if (nearest.isEmpty() || tail > best || (tail == best && path < nearest))
            nearest = path;
    }
    return nearest;
}

} // namespace

QHash<QString, QString> FindMediaIn(const QString& folder, const QStringList& files)
{
    QHash<QString, QString> moved;
    if (files.isEmpty())
        return moved;
    const QMultiHash<QString, QString> there = FilesByName(folder, files);
    for (const QString& path : files) {
        const QString nearest = Nearest(path, there.values(QFileInfo(path).fileName()));
        if (!nearest.isEmpty())
            moved[path] = nearest;
    }
    return moved;
}

QHash<QString, QString> FindMovedMedia(const QString& lost, const QString& found,
                                       const QStringList& others)
{
    const QDir before = QFileInfo(lost).absoluteDir();
    const QDir now = QFileInfo(found).absoluteDir();
    QHash<QString, QString> beside;
    QStringList elsewhere;
    for (const QString& path : others) {
        const QString moved = QDir::cleanPath(now.filePath(before.relativeFilePath(path)));
        if (QFileInfo(moved).isFile())
            beside[path] = moved;
        else
            elsewhere << path;
    }
    QHash<QString, QString> result = FindMediaIn(now.absolutePath(), elsewhere);
    for (auto it = beside.cbegin(); it != beside.cend(); ++it)
        result[it.key()] = it.value();
    result[lost] = found;
    return result;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/PathOperation.h"

#include "CommonLib/StringOperation.h"
#include "CommonLib/system/FolderDialog_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace {

bool EndsInSeparator(const QString& path)
{
    return path.size() >= 2 && path.endsWith(QDir::separator());
}

} // namespace

QString PathOperation::Slash(const QString& path)
{
    return EndsInSeparator(path) ? path : path + QDir::separator();
}

QString PathOperation::ExcludeTrailingPathDelimiter(const QString& path)
{
    return EndsInSeparator(path) ? path.chopped(1) : path;
}

QString PathOperation::ExtractFilePath(const QString& path)
{
    const int delimiter = std::max(path.lastIndexOf(QDir::separator()), path.lastIndexOf('/'));
    return delimiter < 0 ? QString() : path.left(delimiter);
}

bool PathOperation::ForceDir(const QString& path)
{
    if (path.isEmpty())
        return false;
    const QString folder = ExcludeTrailingPathDelimiter(path);
    if (QDir(folder).exists())
        return true;
    const QString parent = ExtractFilePath(folder);
    if (StringOperation::SameText(parent, folder))
        return true;
    return ForceDir(parent) && QDir().mkdir(folder);
}

QString PathOperation::CheckDir(const QString& path)
{
    return ForceDir(path) ? path : QString();
}

QString PathOperation::MakeWorkPath(const QString& relativePath)
{
    return QCoreApplication::applicationDirPath() + '/' + relativePath;
}

QString PathOperation::GetDocumentPath()
{
    return QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation).value(0);
}

QString PathOperation::GetTempDir()
{
    return QStandardPaths::standardLocations(QStandardPaths::TempLocation).value(0);
}

QStringList PathOperation::GetFileList(const QString& folder, const QStringList& patterns,
                                       bool fullPath)
{
    QStringList names = QDir(folder).entryList(patterns);
    if (!fullPath)
        return names;
    for (QString& name : names)
        name.prepend(Slash(folder));
    return names;
}

QString PathOperation::GetUserSelectDir(const QString& title, quint64 owner)
{
    return ChooseFolder(title, owner);
}

bool PathOperation::RemoveDirectoryrecursive(const QString& path, bool removeSelf,
                                             const QStringList& patterns)
{
    // An empty QDir is the current folder, which nobody asked to be deleted.
    if (path.isEmpty())
        return false;
    bool result = true;
    const QFileInfoList entries = QDir(path).entryInfoList(
        patterns,
        QDir::Files | QDir::AllDirs | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot,
        QDir::Unsorted);
    for (const QFileInfo& entry : entries) {
        // A junction leads out of the folder just as a symbolic link does.
        if (entry.isJunction())
            continue;
        const bool removed =
            entry.isDir() ? RemoveDirectoryrecursive(entry.absoluteFilePath(), true, patterns)
                          : QFile::remove(entry.absoluteFilePath());
        result = result && removed;
    }
    if (removeSelf && !QDir().rmdir(path))
        result = false;
    return result;
}

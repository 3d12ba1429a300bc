// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/ModuleFolders.h"

#include "CommonLib/ModuleFolders_p.h"
#include "CommonLib/system/LibraryFile_p.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace {

QStringList& HostFolders()
{
    static QStringList s_folders;
    return s_folders;
}

/// A relative folder would depend on where the program was started.
QStringList EnvironmentFolders()
{
    QStringList folders =
        qEnvironmentVariable("COMMONLIB_PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    folders.erase(std::remove_if(folders.begin(), folders.end(), QDir::isRelativePath),
                  folders.end());
    return folders;
}

QStringList PackageFolders()
{
    const QString library = LibraryFile();
    if (library.isEmpty())
        return {};
    const QDir folder(QFileInfo(library).canonicalPath());
    return {QDir::cleanPath(folder.filePath(QStringLiteral(COMMONLIB_MODULES))),
            QDir::cleanPath(folder.filePath(QStringLiteral(COMMONLIB_DATA)))};
}

} // namespace

QStringList ModuleFolders()
{
    return QStringList(QCoreApplication::applicationDirPath()) + HostFolders() +
           EnvironmentFolders() + PackageFolders();
}

void SetModuleFolders(const QStringList& folders)
{
    HostFolders() = folders;
}

QString FindModule(const QString& module)
{
    const QStringList folders = ModuleFolders();
    const auto found = std::find_if(folders.begin(), folders.end(), [&](const QString& folder) {
        return QFileInfo(folder + '/' + module).isFile();
    });
    return (found == folders.end() ? folders.first() : *found) + '/' + module;
}

QString FindModuleFolder(const QString& name)
{
    const QStringList folders = ModuleFolders();
    const auto found = std::find_if(folders.begin(), folders.end(), [&](const QString& folder) {
        return QFileInfo(folder + '/' + name).isDir();
    });
    return (found == folders.end() ? folders.first() : *found) + '/' + name + '/';
}

QStringList FindModuleFiles(const QString& name)
{
    QStringList found;
    QSet<QString> known;
    for (const QString& folder : ModuleFolders()) {
        const QString path = folder + '/' + name + '/';
        QStringList added;
        for (const QString& file : QDir(path).entryList(QDir::Files, QDir::Unsorted)) {
            if (!known.contains(file))
                added.append(path + file);
            known.insert(file);
        }
        found = added + found;
    }
    return found;
}

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

QStringList FindPackageFolders()
{
    const QString library = LibraryFile();
    if (library.isEmpty())
        return {};
    const QDir folder(QFileInfo(library).canonicalPath());
    return {QDir::cleanPath(folder.filePath(QStringLiteral(COMMONLIB_MODULES))),
            QDir::cleanPath(folder.filePath(QStringLiteral(COMMONLIB_DATA)))};
}

/// The library stays where it is while it is loaded.
const QStringList& PackageFolders()
{
    static const QStringList folders = FindPackageFolders();
    return folders;
}

/// \a name in the first of the module folders in which it is what \a isIt tells; in that of the
/// executable when it is in none.
template <typename IsIt>
QString FindFirst(const QString& name, IsIt isIt)
{
    const QStringList folders = ModuleFolders();
    const auto found = std::find_if(folders.begin(), folders.end(), [&](const QString& folder) {
        return isIt(QFileInfo(folder + '/' + name));
    });
    return (found == folders.end() ? folders.first() : *found) + '/' + name;
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
    return FindFirst(module, [](const QFileInfo& found) { return found.isFile(); });
}

QString FindModuleFolder(const QString& name)
{
    return FindFirst(name, [](const QFileInfo& found) { return found.isDir(); }) + '/';
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

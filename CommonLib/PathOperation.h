// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QString>
#include <QStringList>

/// Operations on folders and on path texts.
///
/// The native separator is the system's: a backslash on Windows, "/" elsewhere.
class COMMONLIB_EXPORT PathOperation
{
public:
    /// The path with the native separator appended, unless it has two characters or more and ends
    /// in one. An empty path becomes the separator alone, a lone separator is doubled.
    static QString Slash(const QString& path);
    /// The path without the native separator at its end; a path of one character is kept.
    static QString ExcludeTrailingPathDelimiter(const QString& path);
    /// What stands before the last delimiter, the native separator or "/"; empty when there is
    /// none.
    static QString ExtractFilePath(const QString& path);

    /// Makes sure that a folder exists, creating the levels that miss. False when that fails, and
    /// always for a missing folder whose path has no delimiter or none but a leading or a last one.
    static bool ForceDir(const QString& path);
    /// The path when ForceDir() succeeds on it, else an empty text.
    static QString CheckDir(const QString& path);

    /// The folder of the running executable + "/" + \a relativePath.
    static QString MakeWorkPath(const QString& relativePath);
    /// The user's folder for documents; empty when the system names none.
    static QString GetDocumentPath();
    /// The folder for temporary files; empty when the system names none.
    static QString GetTempDir();

    /// Entries of \a folder (files and folders, "." and ".." included) that match one of the
    /// wildcard \a patterns, or all of them when there are none, sorted by name without regard to
    /// case. Hidden entries are left out. \a fullPath puts the folder in front of each name.
    static QStringList GetFileList(const QString& folder, const QStringList& patterns,
                                   bool fullPath);

    /// Lets the user choose a folder in a modal dialog.
    ///
    /// \param owner native handle of the window that the dialog belongs to; 0 for none
    /// \return the folder, or an empty text when the user cancels
    static QString GetUserSelectDir(const QString& title, quint64 owner);

    /// Deletes what a folder holds: files whose names match one of \a patterns (all files when
    /// there are none), hidden ones included, and sub-folders that become empty by that. Symbolic
    /// links are neither followed nor deleted.
    ///
    /// \param removeSelf whether the folder itself goes too
    /// \return false when \a path is empty, or when something that should go could not be deleted;
    ///         a folder that still holds files counts as that. The rest is deleted all the same
    static bool RemoveDirectoryrecursive(const QString& path, bool removeSelf,
                                         const QStringList& patterns);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QString>
#include <QStringList>

/// Operations on files and on the names in their paths. Paths may use "/" or the native separator.
///
/// Content is read, copied and replaced of regular files only. Anything else, a folder, a pipe or a
/// device, counts as a file that cannot be opened.
///
/// In a name, the base name is what stands before the first dot and the suffix what stands after
/// the last one: of "a.b.c" they are "a" and "c".
class COMMONLIB_EXPORT FileOperation
{
public:
    /// Whether a file or a folder exists at \a path.
    static bool IsFileExist(const QString& path);
    /// Whether all of them exist; true for an empty list.
    static bool IsFileExist(const QStringList& paths);

    /// Creates an empty file. A file that exists is left untouched.
    static void CreateNewFile(const QString& path);

    /// Removes a file. True when there is nothing at \a path in the end; a broken link counts as
    /// nothing and stays.
    static bool DeleteFileW(const QString& path);
    /// The same as DeleteFileW().
    static bool RemoveFile(const QString& path);

    /// Copies a file, replacing \a target. The old target is gone even when the copy fails. A file
    /// cannot be copied onto itself: that gives false and leaves it as it is.
    static bool CopyOneFile(const QString& source, const QString& target);
    /// Copies a file into \a folder under its own name; otherwise as CopyOneFile().
    static bool CopyFileW(const QString& source, const QString& folder);
    /// Copies one file after the other into \a folder; stops and gives false at the first failure.
    static bool CopyFiles(const QStringList& sources, const QString& folder);

    /// The name with its suffix, without the folder.
    static QString GetFileName(const QString& path);
    static QString GetFileBaseName(const QString& path);
    static QString GetFileSuffixName(const QString& path);
    /// The folder as \a path gives it ("." when it gives none), ended by "/".
    static QString GetFileDir(const QString& path);

    /// Base name + \a addition + "." + suffix, without folder; "a.b.c" and "_1" give "a_1.c". The
    /// dot stays even when there is no suffix.
    static QString MakeFileName(const QString& path, const QString& addition);
    /// The same behind the absolute folder of \a path.
    static QString AppendFileNameSuffix(const QString& path, const QString& addition);
    /// The path with \a suffix, which brings its own dot, in place of all that follows the base
    /// name. A path without a folder gets a separator in front.
    static QString RepalceSuffixName(const QString& path, const QString& suffix);

    /// The content as text, line ends kept, decoded as UTF-8 or else in the locale's character set;
    /// a byte order mark of UTF-16 or UTF-32 overrules both. Empty when the file cannot be opened.
    static QString ReadFile(const QString& path, bool utf8);
    /// The same, with CR LF read as LF.
    static QString ReadTextFile(const QString& path, bool utf8);
    /// Replaces the content by \a text, line ends kept. Nothing happens when the file cannot be
    /// opened.
    static void WriteFile(const QString& path, const QString& text, bool utf8);
    /// The same, with LF written as the system's line end: CR LF on Windows, LF elsewhere. Gives
    /// whether the file exists afterwards, even when it could not be written.
    static bool WriteTextFile(const QString& path, const QString& text, bool utf8);

    /// MD5 of the whole file in 32 lower-case hexadecimal digits; empty when it cannot be opened.
    static QString CalcFileMD5(const QString& path);
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QString>
#include <QStringList>

/// Packs a folder into a zip archive and unpacks one. Names in archives are UTF-8.
class COMMONLIB_EXPORT QuaZipOperate
{
public:
    /// Packs what \a folder holds, with all sub-folders but without hidden entries, into a new
    /// archive. An archive inside the folder does not pack itself; folders of the archive's path
    /// that miss are created. A link to a folder is packed as that folder, a link to a file as a
    /// link.
    ///
    /// \return false when the folder is missing, which leaves an older archive as it is, or when
    ///         something cannot be packed, which leaves no archive: a file or folder that cannot be
    ///         read or whose name is no valid text, a pipe or another special file, a link that is
    ///         broken, leads back to a folder that holds it or to a file outside of \a folder
    static bool CompressDir(const QString& archivePath, const QString& folder);

    /// Unpacks an archive below \a targetFolder, replacing files and creating folders as needed.
    ///
    /// Nothing is written outside the target: an entry is left out when its name leads out of it,
    /// when a symbolic link on its way or in its place already lies there, or when it is itself a
    /// link that leads out. Bytes of a name that are not UTF-8 become replacement characters.
    ///
    /// \return absolute paths of the entries unpacked, folders included; empty, and nothing
    /// written,
    ///         when the archive is missing, broken or encrypted or when its entries together state
    ///         more than 1 GiB and more than the target's volume has free; empty, too, when an
    ///         entry cannot be unpacked. In the latter case the files already unpacked are deleted
    ///         again
    static QStringList ExtractDir(const QString& archivePath, const QString& targetFolder);
};

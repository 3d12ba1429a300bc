// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/SideFolder_p.h"

#include <QString>

#include <memory>

namespace nle {

/// Files of pictures that belong together, with numbers from 0 on in their names. They are written
/// into a folder beside the first one, and moved to their places when all are there.
class PictureSequence
{
public:
    /// Whether the name of \a path holds one place for a number, as "%d" or "%04d".
    static bool IsName(const QString& path);
    /// The path of one picture.
    static QString FileOf(const QString& path, int number);

    explicit PictureSequence(const QString& path);
    PictureSequence(const PictureSequence&) = delete;
    PictureSequence& operator=(const PictureSequence&) = delete;

    /// Makes the folder. False, as with the functions below, when that fails.
    bool Open();
    /// Writes the file of the next picture.
    bool Append(const char* data, int size);
    /// Gives the files their names, in place of those that have them.
    bool Commit();
    /// What went wrong last.
    const QString& Error() const { return m_error; }
    bool IsDiskFull() const { return m_isDiskFull; }

private:
    bool Fail(const QFileDevice& file);

    const QString m_path;
    std::unique_ptr<SideFolder> m_folder;
    QString m_inside; ///< the path of the pictures until they are moved
    QString m_error;
    bool m_isDiskFull = false;
    int m_count = 0;
};

} // namespace nle

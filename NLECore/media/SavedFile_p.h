// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QFile>
#include <QSaveFile>

namespace nle {

/// Puts what was written in its place. False, with what stood there before, when not all of it
/// could be written: commit() alone overlooks that the last that was gathered cannot be.
inline bool CommitWhole(QSaveFile& file)
{
    return file.flush() && file.commit();
}

/// What went wrong with \a file: ResourceError for a full disk on every system.
QFileDevice::FileError ErrorOf(const QFileDevice& file);

/// Makes an empty file that nobody else opens so, or takes over one that is left. Its descriptor;
/// below 0 with errno, EWOULDBLOCK when somebody has it open.
int OpenAlone(const QString& path);

/// Lets the system write to the disk what it was given for an open \a file. False when it cannot.
bool WriteThrough(const QFile& file);

/// Renames \a file, in one step over what is at \a target. False, with what was there before and
/// the system's words in \a error, when that fails.
bool MoveOver(const QString& file, const QString& target, QString* error);

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QFile>

namespace nle {

/// What went wrong with \a file: ResourceError for a full disk on every system.
QFileDevice::FileError ErrorOf(const QFileDevice& file);

/// Makes an empty file that nobody else opens so, or takes over one that is left. Its descriptor;
/// below 0 with errno, EWOULDBLOCK when somebody has it open.
int OpenAlone(const QString& path);

/// Closes an open \a file of OpenAlone at \a path and removes it.
void RemoveAlone(QFile& file, const QString& path);

/// Removes a file of OpenAlone at \a path unless somebody has it open. Where the file system knows
/// no locks it stays. Whether it is gone.
bool RemoveLeft(const QString& path);

/// Lets the system write to the disk what it was given for an open \a file. False when it cannot.
bool WriteThrough(const QFile& file);

/// Whether a file may take the place of that at \a path, which is there. False, with the system's
/// words in \a error, where somebody has it open and the system then replaces none.
bool MayBeReplaced(const QString& path, QString* error);

/// Renames \a file, in one step over what is at \a target. False, with what was there before and
/// the system's words in \a error, when that fails.
bool MoveOver(const QString& file, const QString& target, QString* error);

/// The same with an open \a file of OpenAlone at \a path, which is closed.
bool MoveAlone(QFile& file, const QString& path, const QString& target, QString* error);

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <ctime>

/// What the log needs of the system.
///
/// No function reports an error beyond its result, and each accepts kInvalid.
namespace LogFile {

/// An open file of the system, opaque.
using Handle = std::intptr_t;
/// No file was ever opened.
constexpr Handle kNone = 0;
/// Opening failed. Counts as open for the log; everything done with it fails.
constexpr Handle kInvalid = -1;

/// Opens \a path for reading and writing, creating it when missing, and keeps other writers of this
/// kind away while it is open. kInvalid when that fails, at once and without touching the file.
Handle Open(const char* path);

void Close(Handle handle);

/// Moves to the end of the file. Gives its size in bytes, or -1 when that cannot be read.
std::int64_t SeekToEnd(Handle handle);

/// Writes in one unbuffered call at \a end, where SeekToEnd() has just moved to.
void Write(Handle handle, std::int64_t end, const char* text, std::size_t length);

/// Renames a file, never replacing another one.
void Rename(const char* from, const char* to);

/// Shows a line in the debugger, where the system has such a channel, and on standard output.
/// \a line ends in a zero at \a length.
void Echo(const char* line, std::size_t length);

/// Local calendar time of \a time.
std::tm LocalTime(std::time_t time);

} // namespace LogFile

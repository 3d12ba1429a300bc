// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <cstdint>
#include <vector>

namespace nle {

/// Byte positions in the transport stream (ISO/IEC 13818-1) at \a path where the times begin anew,
/// in ascending order: where recordings were joined byte by byte. Small files are read whole; of
/// large ones parts, so that a recording shorter than a thousandth of the file may go unseen. Takes
/// a few seconds at the most; empty when there is none or the file cannot be read.
std::vector<std::int64_t> FindJoins(const QString& path);

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"

#include <QStringList>

#include <optional>

class QMimeData;

/// Media files that are dragged, between the parts of a window or from a file manager.
namespace MediaMime {

/// Type of the frames that were chosen of a single file.
inline constexpr const char* kRangeType = "application/x-commonlib-range";

/// Local files only.
QStringList Files(const QMimeData& data);
/// Frames of the only file, at its own rate; nothing where all of it is meant.
std::optional<NLERange> Range(const QMimeData& data);
/// An empty \a range means all of the file. The caller owns the data.
QMimeData* Make(const QStringList& files, const NLERange& range);

} // namespace MediaMime

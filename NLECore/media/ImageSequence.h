// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/MediaInfo.h"

namespace nle {

/// Whether there is something at \a path: a file, a folder, or pictures that the path names by a
/// pattern.
bool IsThere(const QString& path);

/// Whether \a info describes an image sequence.
bool IsSequence(const MediaInfo& info);

/// The image sequence of \a info at \a rate, which is above 0.
MediaInfo AtSequenceRate(MediaInfo info, const NLERational& rate);

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/CueSheet.h"
#include "NLECore/media/MediaInfo.h"

#include <QString>

#include <vector>

namespace nle {

/// A place in a file that the file, or a cue sheet beside it, names.
struct FileMark
{
    std::int64_t timeUs = 0; ///< from MediaInfo::originUs, not below 0
    QString name;            ///< empty when there is none
};

/// Whether \a path is named as a cue sheet is.
bool IsCueSheet(const QString& path);
/// What the cue sheet at \a path says; empty when it cannot be read or is none.
std::vector<CueFile> ReadCueSheet(const QString& path);
/// The media file that \a file of the cue sheet at \a sheet means: the one of its name, else one of
/// the same base name, as sheets outlive conversions. Empty when there is none.
QString MediaOfCueSheet(const QString& sheet, const CueFile& file);
/// Where the tracks of a file begin, in order of time.
std::vector<FileMark> MarksOf(const CueFile& file);

/// The chapters of a media file; where it has none, the tracks of the cue sheet inside of it, then
/// of that beside it ("film.cue" or "film.flac.cue"). In order of time. Opens the file.
std::vector<FileMark> ReadMarks(const MediaInfo& media);

} // namespace nle

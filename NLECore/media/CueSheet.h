// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <vector>

namespace nle {

/// Where a track of a cue sheet begins.
struct CueTrack
{
    std::int64_t timeUs = 0; ///< of its INDEX 01, microseconds from the start of its file
    QString title;           ///< empty when there is none
};

/// A file that a cue sheet names, with its tracks in the order of the sheet.
struct CueFile
{
    QString name; ///< as it stands there
    std::vector<CueTrack> tracks;
};

/// The files of a cue sheet, as described in the CDRWIN user's guide: FILE, TRACK, TITLE and INDEX
/// in minutes, seconds and frames of 1/75 second; other commands are passed over. The text is
/// UTF-8, UTF-16 with a byte order mark, else Windows-1252. Empty for what is no cue sheet.
std::vector<CueFile> ParseCueSheet(const QByteArray& bytes);

} // namespace nle

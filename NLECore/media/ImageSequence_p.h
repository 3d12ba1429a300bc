// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/ImageSequence.h"

#include <QString>

#include <optional>

namespace nle {

/// Rate of an image sequence for which nobody chose another.
constexpr NLERational kSequenceRate = {25, 1};

/// Numbered pictures in one folder, which make a film.
///
/// A path names them by a pattern in its file name: one "%d", or "%04d" for numbers of at least
/// four digits with zeros in front. The sequence begins at the lowest number that is there and ends
/// before the first one that is not, or that is no regular file. Where a file of the pattern's own
/// name exists, the path is that file.
struct ImageSequence
{
    QString before; ///< path up to the number
    QString after;  ///< rest of the file name
    int digits = 1; ///< of a number, at least
    int firstNumber = 0;
    int count = 0; ///< at least 1

    /// The file of picture \a index, from 0.
    QString PathOf(int index) const;
};

/// The sequence that \a path names; none when it is no pattern or no file is of its kind.
std::optional<ImageSequence> FindSequence(const QString& path);
/// Stamp of all files of the sequence that \a path names: sum of sizes, latest times; any change of
/// any of them gives another one. Without a sequence that of no file.
FileStamp StampOfSequence(const QString& path);

/// Describes the film of \a sequence, which \a path names. Null when its first picture is no still.
std::shared_ptr<const MediaInfo> DescribeSequence(const QString& path,
                                                  const ImageSequence& sequence, QString* error);
/// The description of picture \a index alone, given that of the whole.
MediaInfo DescribePictureOf(const MediaInfo& whole, const ImageSequence& sequence, int index);

} // namespace nle

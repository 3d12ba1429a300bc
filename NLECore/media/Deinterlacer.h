// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"
#include "NLECore/media/MediaInfo.h"

#include <cstdint>
#include <memory>

struct AVFrame;

namespace nle {

/// Which pictures are deinterlaced, and which of their fields counts.
struct Deinterlacing
{
    NLEDeinterlacing mode = NLEDeinterlacing_Automatic;
    /// Top or bottom first in place of what the file says; else as the file says.
    NLEFieldOrder order = NLEField_Progressive;
};

/// A decoded picture. That after it in the order of display has the next number; the same number
/// is never another picture.
struct NumberedPicture
{
    const AVFrame* frame = nullptr;
    std::int64_t number = -1;
};

/// Makes one progressive picture of each interlaced one: its first field as it is, the lines
/// between from that field and from the pictures before and after (libavfilter's bwdif, one picture
/// for each). What comes out depends on these three pictures alone, and not on the order in which
/// pictures are asked for. One object serves one thread at a time.
class Deinterlacer
{
public:
    Deinterlacer();
    ~Deinterlacer();
    Deinterlacer(const Deinterlacer&) = delete;
    Deinterlacer& operator=(const Deinterlacer&) = delete;

    /// Whether \a frame, a picture of \a stream with the codec \a codecId (AVCodecID), is
    /// deinterlaced.
    static bool Concerns(const AVFrame& frame, const MediaStream& stream, int codecId,
                         const Deinterlacing& wanted);

    /// \a picture of \a stream made progressive, valid until the next call. \a previous and
    /// \a next stand beside it in the order of display; without a frame at the ends of the stream.
    /// \a threads is the number of threads to work with, 0 lets the library choose. Null when the
    /// library cannot deinterlace such a picture: one smaller than 3 x 4 pixels, or without memory.
    const AVFrame* Draw(const NumberedPicture& previous, const NumberedPicture& picture,
                        const NumberedPicture& next, const MediaStream& stream,
                        const Deinterlacing& wanted, int threads);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/Deinterlacer.h"
#include "NLECore/scene/FrameMath.h"
#include "NLECore/scene/Layer.h"

#include <vector>

namespace nle {

/// Whether \a media has the streams that \a settings name, each of the right type.
bool HasVideoStream(const MediaInfo& media, const SourceSettings& settings);
bool HasAudioStreams(const MediaInfo& media, const SourceSettings& settings);

/// Index of the video stream that shows; -1 when the file has none. Streams that the file has not,
/// after a relink perhaps, count as never chosen, here and below.
int VideoStreamOf(const MediaInfo& media, const SourceSettings& settings);
/// Indexes of the audio streams that sound.
std::vector<int> AudioStreamsOf(const MediaInfo& media, const SourceSettings& settings);
/// Size in square pixels of the stream that shows; empty when there is none.
NLESize PictureSizeOf(const MediaInfo& media, const SourceSettings& settings);

/// Length of the material in frames of the stream that shows. Sound that goes on for a quarter of a
/// second and more after the last picture counts; a shorter rest is what codecs and cuts leave.
FrameTime LengthOf(const MediaInfo& media, const SourceSettings& settings);

/// What shows of a layer without proxies; the layer itself when there are none in it.
Snapshot WithoutProxies(const Snapshot& layer);

/// The stream that a layer of media reads its pictures from, of the proxy where there is one.
struct ShownStream
{
    int index;                       ///< -1: none
    NLERational frameRate;           ///< of its frame numbers
    double delay;                    ///< frames from the beginning of the material to its first one
    std::optional<std::int64_t> end; ///< from this frame on nothing shows; none: as decoded
    Deinterlacing deinterlacing;

    /// Number of its frame that shows at a time of the material; below 0 before the first one.
    int FrameAt(const FrameTime& time) const;
    bool Shows(std::int64_t frame) const { return frame >= 0 && (!end || frame < *end); }
};
ShownStream ShownStreamOf(const Layer& layer);

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/scene/SourceChoice.h"

#include "NLECore/media/ImageSequence.h"

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

constexpr std::int64_t kShortestRestUs = 250000;
constexpr double kMicroseconds = 1e6;

bool IsOfType(const MediaInfo& media, int index, NLEStreamType type)
{
    const MediaStream* stream = media.Stream(index);
    return stream && stream->type == type;
}

NLERational RateOf(const MediaInfo& media, int index)
{
    const MediaStream* stream = media.Stream(index);
    if (stream && IsRate(stream->frameRate))
        return stream->frameRate;
    return IsRate(media.frameRate) ? media.frameRate : NLERational{25, 1};
}

std::int64_t PicturesOf(const MediaInfo& media, int index)
{
    const MediaStream* stream = media.Stream(index);
    return stream && stream->frameCount > 0 ? stream->frameCount : media.frameCount;
}

double FramesIn(std::int64_t us, const NLERational& rate)
{
    return double(us) / kMicroseconds * ToDouble(rate);
}

// Whole frames from the beginning of the material, which is that of the preferred stream.
double DelayOf(const MediaInfo& media, int index)
{
    if (index < 0 || index == media.videoStream)
        return 0;
    return std::round(
        FramesIn(media.streams[size_t(index)].startUs - media.originUs, RateOf(media, index)));
}

// A length in frames, drawn out to that of the sound where that is longer; which streams sound,
// isHeard tells by their index.
template <typename IsHeard>
double WithSound(const MediaInfo& media, IsHeard isHeard, double length, const NLERational& rate)
{
    // The sounds of joined recordings leave a rest at each of the joins.
    if (media.isLengthMeasured || !media.parts.empty())
        return length;
    double longest = length;
    for (int index = 0; index < int(media.streams.size()); ++index) {
        if (!isHeard(index))
            continue;
        const MediaStream& stream = media.streams[size_t(index)];
        const double end = FramesIn(stream.startUs + stream.durationUs - media.originUs, rate);
        if (end >= length + FramesIn(kShortestRestUs, rate))
            longest = std::max(longest, std::round(end));
    }
    return longest;
}

/// Whether the layer's proxy has a frame for each picture of an image sequence, which the clip may
/// play at another rate than the proxy was made with.
bool IsFrameForFrame(const Layer& layer)
{
    return layer.proxy && IsSequence(*layer.media) &&
           PicturesOf(*layer.proxy, layer.proxy->videoStream) ==
               PicturesOf(*layer.media, layer.media->videoStream);
}

} // namespace

bool HasVideoStream(const MediaInfo& media, const SourceSettings& settings)
{
    return settings.videoStream < 0 || IsOfType(media, settings.videoStream, NLEStream_Video);
}

bool HasAudioStreams(const MediaInfo& media, const SourceSettings& settings)
{
    return std::all_of(settings.audioStreams.begin(), settings.audioStreams.end(),
                       [&media](int index) { return IsOfType(media, index, NLEStream_Audio); });
}

int VideoStreamOf(const MediaInfo& media, const SourceSettings& settings)
{
    const bool isChosen = settings.videoStream >= 0 && HasVideoStream(media, settings);
    return isChosen ? settings.videoStream : media.videoStream;
}

std::vector<int> AudioStreamsOf(const MediaInfo& media, const SourceSettings& settings)
{
    std::vector<int> streams;
    for (const int index : settings.audioStreams) {
        if (IsOfType(media, index, NLEStream_Audio))
            streams.push_back(index);
    }
    if (streams.empty() && media.audioStream >= 0)
        streams.push_back(media.audioStream);
    return streams;
}

NLESize PictureSizeOf(const MediaInfo& media, const SourceSettings& settings)
{
    const MediaStream* stream = media.Stream(VideoStreamOf(media, settings));
    return stream ? DisplayedSize(*stream, settings.pixelAspect) : NLESize{0, 0};
}

FrameTime LengthOf(const MediaInfo& media, const SourceSettings& settings)
{
    const int index = VideoStreamOf(media, settings);
    const auto pictures = double(PicturesOf(media, index));
    const NLERational rate = RateOf(media, index);
    const double length = pictures > 0 ? std::max(0.0, DelayOf(media, index)) + pictures : 0;
    const std::vector<int> sounds = AudioStreamsOf(media, settings);
    const auto isHeard = [&sounds](int stream) {
        return std::find(sounds.begin(), sounds.end(), stream) != sounds.end();
    };
    return {WithSound(media, isHeard, length, rate), rate};
}

Snapshot WithoutProxies(const Snapshot& layer)
{
    std::vector<Snapshot> children;
    children.reserve(layer->children.size());
    for (const Snapshot& child : layer->children)
        children.push_back(WithoutProxies(child));
    if (!layer->proxy && children == layer->children)
        return layer;
    auto copy = std::make_shared<Layer>(*layer);
    copy->proxy.reset();
    copy->children = std::move(children);
    return copy;
}

int ShownStream::FrameAt(const FrameTime& time) const
{
    return ClampToInt(double(time.ShownAt(frameRate)) - delay);
}

ShownStream ShownStreamOf(const Layer& layer)
{
    const MediaInfo& media = *layer.ShownMedia();
    // What is chosen is of the clip's own file.
    const SourceSettings settings = layer.proxy ? SourceSettings() : layer.source;
    const int index = VideoStreamOf(media, settings);
    const NLERational rate = IsFrameForFrame(layer) ? RateOf(*layer.media, layer.media->videoStream)
                                                    : RateOf(media, index);
    const std::int64_t pictures = PicturesOf(media, index);
    ShownStream shown = {index,
                         rate,
                         DelayOf(media, index),
                         std::nullopt,
                         {settings.deinterlacing, settings.fieldOrder}};
    // A decoder holds the last picture a little, as some counts are estimates. Whichever streams
    // sound, the same pictures show.
    const auto isSound = [&media](int stream) { return IsOfType(media, stream, NLEStream_Audio); };
    if (media.kind == NLEMedia_Video &&
        WithSound(media, isSound, double(pictures), rate) > double(pictures))
        shown.end = pictures;
    return shown;
}

} // namespace nle

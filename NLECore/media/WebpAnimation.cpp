// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/ColourProfile_p.h"
#include "NLECore/media/EngineLog.h"
#include "NLECore/media/FrameGrid_p.h"
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/PictureFormats_p.h"
#include "NLECore/media/StillReader_p.h"

#include <algorithm>
#include <vector>

#include <webp/demux.h>

extern "C" {
#include <libavutil/mathematics.h>
}

namespace nle {
namespace {

const QLatin1String kContainer("webp_animation");

constexpr std::int64_t kLongestFile = std::int64_t(512) << 20;

// The decoder holds two pictures of the canvas.
constexpr std::int64_t kMostPixels = std::int64_t(1) << 26;

constexpr AVRational kMilliseconds{1, 1000};

// What browsers do with pictures that ask for no more than ten milliseconds.
constexpr int kShortest = 10;
constexpr int kInsteadOfShort = 100;

struct Freer
{
    void operator()(WebPDemuxer* p) const { WebPDemuxDelete(p); }
    void operator()(WebPAnimDecoder* p) const { WebPAnimDecoderDelete(p); }
    void operator()(AVFormatContext* p) const { avformat_free_context(p); }
};

/// An animation, and when its pictures come.
struct Animation
{
    QByteArray file;
    QSize size;
    bool hasAlpha = false;
    QByteArray profile;
    std::vector<std::int64_t> starts; ///< of the pictures, in milliseconds; at least one
    std::int64_t end = 0;             ///< of the last one
};

WebPData DataOf(const QByteArray& file)
{
    return {reinterpret_cast<const std::uint8_t*>(file.constData()), size_t(file.size())};
}

void ReadTimes(WebPDemuxer* demuxer, Animation* animation)
{
    WebPIterator picture;
    for (int more = WebPDemuxGetFrame(demuxer, 1, &picture); more != 0;
         more = WebPDemuxNextFrame(&picture)) {
        animation->starts.push_back(animation->end);
        animation->end += picture.duration > kShortest ? picture.duration : kInsteadOfShort;
    }
    WebPDemuxReleaseIterator(&picture);
}

void ReadProfile(WebPDemuxer* demuxer, Animation* animation)
{
    WebPChunkIterator chunk;
    if (WebPDemuxGetChunk(demuxer, "ICCP", 1, &chunk) != 0) {
        animation->profile =
            QByteArray(reinterpret_cast<const char*>(chunk.chunk.bytes), int(chunk.chunk.size));
        WebPDemuxReleaseChunkIterator(&chunk);
    }
}

std::optional<Animation> ReadAnimation(const QString& path, QString* error)
{
    Animation animation;
    animation.file = ReadWhole(path, kLongestFile, error);
    if (animation.file.isEmpty())
        return std::nullopt;
    const WebPData data = DataOf(animation.file);
    const std::unique_ptr<WebPDemuxer, Freer> demuxer(WebPDemux(&data));
    if (demuxer) {
        ReadTimes(demuxer.get(), &animation);
        ReadProfile(demuxer.get(), &animation);
        animation.size = QSize(int(WebPDemuxGetI(demuxer.get(), WEBP_FF_CANVAS_WIDTH)),
                               int(WebPDemuxGetI(demuxer.get(), WEBP_FF_CANVAS_HEIGHT)));
        animation.hasAlpha = (WebPDemuxGetI(demuxer.get(), WEBP_FF_FORMAT_FLAGS) & ALPHA_FLAG) != 0;
    }
    const std::int64_t pixels = std::int64_t(animation.size.width()) * animation.size.height();
    if (!animation.starts.empty() && pixels > 0 && pixels <= kMostPixels)
        return animation;
    SetError(error, path, QStringLiteral(": not an animation that can be shown"));
    return std::nullopt;
}

// The grid is found as for the films of libavformat.
FrameGrid GridOf(const Animation& animation)
{
    const std::unique_ptr<AVFormatContext, Freer> context(avformat_alloc_context());
    AVStream* const stream = context ? avformat_new_stream(context.get(), nullptr) : nullptr;
    if (stream == nullptr)
        return {};
    stream->time_base = kMilliseconds;
    av_reduce(&stream->avg_frame_rate.num, &stream->avg_frame_rate.den,
              std::int64_t(animation.starts.size()) * kMilliseconds.den, animation.end, INT32_MAX);
    return FindGrid(stream, animation.starts);
}

AVRational FrameTimeOf(const NLERational& rate)
{
    return {int(rate.den), int(rate.num)};
}

class AnimationSource final : public PictureSource
{
public:
    AnimationSource(Animation animation, const MediaInfo& info)
        : m_animation(std::move(animation)), m_path(info.path)
    {
        const AVRational frame = FrameTimeOf(info.frameRate);
        for (const std::int64_t start : m_animation.starts)
            m_firstFrames.push_back(av_rescale_q(start, kMilliseconds, frame));
        m_frameCount = info.kind == NLEMedia_Image ? INT32_MAX : std::int64_t(info.frameCount);
    }

    bool Start()
    {
        WebPAnimDecoderOptions options;
        const WebPData data = DataOf(m_animation.file);
        if (WebPAnimDecoderOptionsInit(&options) == 0)
            return false;
        options.color_mode = MODE_BGRA;
        m_decoder.reset(WebPAnimDecoderNew(&data, &options));
        return m_decoder != nullptr;
    }

    QImage Picture(int frame, const QSize& size, const Deinterlacing& /*deinterlacing*/,
                   PictureDepth /*depth*/) override
    {
        if (frame >= m_frameCount)
            return {};
        const auto after = std::upper_bound(m_firstFrames.begin(), m_firstFrames.end(), frame);
        if (!DecodeTo(int(after - m_firstFrames.begin()) - 1))
            return {};
        const QImage canvas(m_pixels, m_animation.size.width(), m_animation.size.height(),
                            QImage::Format_ARGB32);
        QImage picture = ScalePicture(canvas, size);
        ConvertToSrgb(&picture, m_animation.profile, m_path);
        return picture;
    }

private:
    // Each picture is painted over the one before.
    bool DecodeTo(int wanted)
    {
        if (wanted < m_current) {
            WebPAnimDecoderReset(m_decoder.get());
            m_current = -1;
        }
        int end = 0;
        while (m_current < wanted) {
            if (WebPAnimDecoderGetNext(m_decoder.get(), &m_pixels, &end) == 0)
                return m_current >= 0;
            ++m_current;
        }
        return m_current >= 0;
    }

    const Animation m_animation;
    const QString m_path;
    std::vector<std::int64_t> m_firstFrames; ///< of the pictures, at the grid's rate
    std::int64_t m_frameCount = 0;
    std::unique_ptr<WebPAnimDecoder, Freer> m_decoder;
    int m_current = -1;
    std::uint8_t* m_pixels = nullptr; ///< of the current picture; the decoder's
};

} // namespace

bool IsAnimation(const MediaInfo& info)
{
    return info.containerName == kContainer;
}

std::shared_ptr<const MediaInfo> DescribeAnimation(const QString& path, QString* error)
{
    auto info = std::make_shared<MediaInfo>();
    info->path = path;
    info->stamp = StampOf(path);
    info->containerName = kContainer;
    const std::optional<Animation> animation = ReadAnimation(path, error);
    if (!animation)
        return nullptr;
    MediaStream stream;
    stream.type = NLEStream_Video;
    stream.width = animation->size.width();
    stream.height = animation->size.height();
    stream.hasAlpha = animation->hasAlpha;
    stream.codecName = "webp";
    const FrameGrid grid = GridOf(*animation);
    stream.frameRate = {grid.rate.num, grid.rate.den};
    stream.meanRate = {std::int64_t(animation->starts.size()) * kMilliseconds.den, animation->end};
    stream.constantRate = grid.isConstant;
    stream.durationUs = animation->end * 1000;
    const AVRational frame = FrameTimeOf(stream.frameRate);
    const std::int64_t last = av_rescale_q(animation->starts.back(), kMilliseconds, frame);
    stream.frameCount = std::uint32_t(std::clamp(av_rescale_q(animation->end, kMilliseconds, frame),
                                                 last + 1, std::int64_t(INT32_MAX)));
    info->kind = NLEMedia_Video;
    info->videoStream = 0;
    info->frameRate = stream.frameRate;
    info->frameCount = stream.frameCount;
    info->durationUs = stream.durationUs;
    info->streams.push_back(stream);
    if (animation->starts.size() == 1)
        MakeStill(info.get());
    return info;
}

std::unique_ptr<PictureSource> OpenAnimation(const MediaInfo& info, QString* error)
{
    std::optional<Animation> animation = ReadAnimation(info.path, error);
    if (!animation)
        return nullptr;
    auto source = std::make_unique<AnimationSource>(std::move(*animation), info);
    if (source->Start())
        return source;
    SetError(error, info.path, QStringLiteral(": the animation cannot be decoded"));
    return nullptr;
}

} // namespace nle

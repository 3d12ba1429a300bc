// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/JoinedMedia_p.h"

#include "NLECore/media/FrameDecoder.h"
#include "NLECore/media/MediaFile_p.h"

#include <algorithm>

extern "C" {
#include <libavutil/mathematics.h>
}

namespace nle {
namespace {

constexpr std::int64_t kMicrosecond = 1000000;

/// The stream of \a part that goes on where \a stream of the whole was; -1 when there is none.
int StreamIn(const MediaInfo& part, int stream, NLEStreamType type)
{
    const MediaStream* const same = part.Stream(stream);
    if (same && same->type == type)
        return stream;
    return type == NLEStream_Video ? part.videoStream : part.audioStream;
}

AVRational FrameTime(const NLERational& rate)
{
    return {int(rate.den), int(rate.num)};
}

/// Frames of \a part at the rate of the whole.
std::int64_t FramesOf(const MediaInfo& part, const NLERational& rate)
{
    return av_rescale_q(part.frameCount, FrameTime(part.frameRate), FrameTime(rate));
}

/// Only the recording that shows is open.
class JoinedPictures final : public PictureSource
{
public:
    JoinedPictures(const std::shared_ptr<const MediaInfo>& info, int stream)
        : m_info(info), m_stream(stream)
    {
    }

    QImage Picture(int frame, const QSize& size, const Deinterlacing& deinterlacing,
                   PictureDepth depth) override
    {
        std::int64_t local = frame;
        for (int i = 0; i < int(m_info->parts.size()); ++i) {
            const std::int64_t count = FramesOf(*m_info->parts[size_t(i)], m_info->frameRate);
            const bool isLast = i + 1 == int(m_info->parts.size());
            if (local < count || isLast) {
                return OpenPart(i)
                           ? m_decoder->Picture(OwnFrame(i, local), size, deinterlacing, depth)
                           : QImage();
            }
            local -= count;
        }
        return {};
    }

    bool OpenPart(int index, QString* error = nullptr)
    {
        if (m_index == index)
            return m_decoder != nullptr;
        const std::shared_ptr<const MediaInfo>& part = m_info->parts[size_t(index)];
        m_index = index;
        m_decoder = FrameDecoder::Open(part, StreamIn(*part, m_stream, NLEStream_Video), error);
        return m_decoder != nullptr;
    }

private:
    /// The frame of a recording at its own rate that shows in frame \a local of the whole's.
    int OwnFrame(int index, std::int64_t local) const
    {
        const MediaInfo& part = *m_info->parts[size_t(index)];
        return int(
            std::min<std::int64_t>(av_rescale_q_rnd(local, FrameTime(m_info->frameRate),
                                                    FrameTime(part.frameRate), AV_ROUND_DOWN),
                                   INT32_MAX));
    }

    const std::shared_ptr<const MediaInfo> m_info;
    const int m_stream;
    int m_index = -1;
    std::unique_ptr<FrameDecoder> m_decoder;
};

} // namespace

std::shared_ptr<const MediaInfo> JoinMedia(std::vector<std::shared_ptr<const MediaInfo>> parts)
{
    auto whole = std::make_shared<MediaInfo>(*parts.front());
    whole->firstByte = 0;
    whole->endByte = 0;
    for (size_t i = 1; i < parts.size(); ++i) {
        const MediaInfo& part = *parts[i];
        whole->frameCount += std::uint32_t(FramesOf(part, whole->frameRate));
        whole->durationUs += part.durationUs;
        for (int stream = 0; stream < int(whole->streams.size()); ++stream) {
            MediaStream& sum = whole->streams[size_t(stream)];
            const MediaStream* const next = part.Stream(StreamIn(part, stream, sum.type));
            if (!next || next->type != sum.type)
                continue;
            sum.durationUs += next->durationUs;
            sum.frameCount = stream == whole->videoStream ? whole->frameCount
                                                          : sum.frameCount + next->frameCount;
        }
    }
    whole->parts = std::move(parts);
    return whole;
}

std::unique_ptr<PictureSource> OpenJoinedPictures(const std::shared_ptr<const MediaInfo>& info,
                                                  int stream, QString* error)
{
    auto source = std::make_unique<JoinedPictures>(info, stream);
    if (!source->OpenPart(0, error))
        return nullptr;
    return source;
}

JoinedSound::JoinedSound(const std::shared_ptr<const MediaInfo>& info, int stream)
    : m_stream(stream)
{
    std::int64_t startUs = 0;
    for (const std::shared_ptr<const MediaInfo>& part : info->parts) {
        m_parts.push_back({part, startUs, false, nullptr});
        startUs += part->durationUs;
    }
}

AudioDecoder* JoinedSound::DecoderOf(Part* part) const
{
    if (!part->isTried) {
        const int stream = StreamIn(*part->info, m_stream, NLEStream_Audio);
        part->isTried = true;
        if (stream >= 0)
            part->decoder = AudioDecoder::Open(part->info, stream, nullptr);
    }
    return part->decoder.get();
}

int JoinedSound::Read(std::int64_t firstSample, int count, int sampleRate, int channels,
                      float* interleaved)
{
    int filled = 0;
    for (size_t i = 0; i < m_parts.size(); ++i) {
        Part& part = m_parts[i];
        const auto sampleAt = [sampleRate](std::int64_t us) {
            return av_rescale(us, sampleRate, kMicrosecond);
        };
        const bool isLast = i + 1 == m_parts.size();
        const std::int64_t start = sampleAt(part.startUs);
        const std::int64_t begin = i == 0 ? firstSample : std::max(firstSample, start);
        std::int64_t end = firstSample + count;
        if (!isLast)
            end = std::min(end, sampleAt(m_parts[i + 1].startUs));
        AudioDecoder* const decoder = begin < end ? DecoderOf(&part) : nullptr;
        if (decoder == nullptr)
            continue;
        const std::int64_t offset = begin - firstSample;
        const int read = decoder->Read(begin - start, int(end - begin), sampleRate, channels,
                                       interleaved + offset * channels);
        if (read > 0)
            filled = int(offset) + read;
    }
    return filled;
}

} // namespace nle

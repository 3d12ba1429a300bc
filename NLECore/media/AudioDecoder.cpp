// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/AudioDecoder.h"
#include "NLECore/media/JoinedMedia_p.h"
#include "NLECore/media/MediaFile_p.h"

#include <algorithm>
#include <cstring>
#include <numeric>
#include <vector>

extern "C" {
#include <libavutil/channel_layout.h>
#include <libavutil/mathematics.h>
#include <libavutil/opt.h>
#include <libavutil/samplefmt.h>
}

namespace nle {
namespace {

constexpr int kMaxRate = 768000;
constexpr int kMaxChannels = 64;
constexpr int kMaxSeekAttempts = 16;
constexpr int kMaxErrorsInRow = 1000;
constexpr int kSilenceBlock = 4096;
constexpr std::int64_t kEndSlackUs = 10000000;

// Codecs need what was before a sample to decode it: overlapping windows, a bit reservoir.
constexpr int kPrerollMs = 250;

// Time stamps off by less than this are jitter; beyond it there is a real gap.
constexpr int kJitterMs = 10;

// Up to this distance decoding on is cheaper than a seek.
constexpr int kMaxForwardSeconds = 2;

// The resampler's filter reaches so many samples around each one, at the lower of the two rates.
constexpr int kFilterReach = 64;

std::int64_t FloorDivide(std::int64_t a, std::int64_t b)
{
    return a / b - (a % b < 0 ? 1 : 0);
}

std::int64_t CeilScale(std::int64_t value, std::int64_t numerator, std::int64_t denominator)
{
    return av_rescale_rnd(value, numerator, denominator, AV_ROUND_UP);
}

} // namespace

// Positions named native count samples at the stream's rate from the file's origin; the others
// count at the rate of the output.
struct AudioDecoder::Private
{
    std::shared_ptr<const MediaInfo> info;
    int streamIndex = -1;
    /// What reads where there are several recordings; then nothing else is open.
    std::unique_ptr<JoinedSound> joined;
    std::unique_ptr<MediaFile> file;
    AVStream* stream = nullptr;
    CodecPtr codec;
    PacketPtr packet{av_packet_alloc()};
    int nativeRate = 0;
    std::int64_t nativeStart = 0;
    /// End of the stream, once it was seen.
    std::int64_t nativeEnd = 0;
    bool isEndKnown = false;

    /// The frame decoded last, its position, and whether part of it is still to be used.
    FramePtr frame{av_frame_alloc()};
    std::int64_t framePosition = 0;
    std::int64_t previousCount = 0;
    bool hasFrame = false;
    bool hasPosition = false;
    bool isDrained = false;
    /// Position of the sample that goes to the resampler next.
    std::int64_t nativePosition = 0;

    ResamplerPtr resampler;
    /// What the resampler takes.
    int inputFormat = AV_SAMPLE_FMT_NONE;
    int inputChannels = 0;
    int rate = 0;
    int channels = 0;
    bool isFlushed = false;
    FramePtr silence;
    /// Output not yet read, and the position of its first group.
    std::vector<float> ready;
    std::int64_t readyPosition = 0;
    bool isPositioned = false;

    bool Start(QString* error);
    int Read(std::int64_t first, int count, int newRate, int newChannels, float* output);
    void SetOutput(int newRate, int newChannels);
    bool Position(std::int64_t first);
    bool Seek(std::int64_t native);
    bool SeekTicks(std::int64_t ticks, bool toStart);
    bool DecodeFrame();
    std::int64_t PlaceFrame() const;
    bool Produce();
    static std::vector<double> OwnMix(const AVChannelLayout& source, const AVChannelLayout& target);
    bool MatchResampler();
    bool Resample(const std::uint8_t** data, int count);
    bool FeedSilence(std::int64_t count);
    void DrainResampler(std::int64_t native);
    void Flush();

    int ReadyCount() const { return int(ready.size()) / channels; }
    std::int64_t NativeOf(std::int64_t ticks) const
    {
        return av_rescale_q(ticks, stream->time_base, {1, nativeRate}) -
               av_rescale(info->originUs, nativeRate, 1000000);
    }
    std::int64_t TicksOf(std::int64_t native) const
    {
        return av_rescale_q(native + av_rescale(info->originUs, nativeRate, 1000000),
                            {1, nativeRate}, stream->time_base);
    }
    /// Groups of output that the resampler's filter may reach before a position.
    std::int64_t Margin() const
    {
        return rate == nativeRate
                   ? 0
                   : kFilterReach * (1 + std::max<std::int64_t>(1, rate / nativeRate));
    }
};

// ---- decoding

bool AudioDecoder::Private::DecodeFrame()
{
    int errors = 0;
    while (!isDrained) {
        const int result = avcodec_receive_frame(codec.get(), frame.get());
        if (result == 0) {
            framePosition = PlaceFrame();
            previousCount = frame->nb_samples;
            hasPosition = true;
            hasFrame = true;
            return true;
        }
        if (result != AVERROR(EAGAIN)) {
            isDrained = result == AVERROR_EOF || ++errors > kMaxErrorsInRow;
            continue;
        }
        int read = 0;
        do {
            av_packet_unref(packet.get());
            read = av_read_frame(file->Context(), packet.get());
        } while (read >= 0 && packet->stream_index != streamIndex);
        // A damaged packet leaves a gap, which becomes silence.
        const int sent = avcodec_send_packet(codec.get(), read >= 0 ? packet.get() : nullptr);
        isDrained = read < 0 && sent < 0;
    }
    hasFrame = false;
    return false;
}

// Containers with coarse clocks round each time stamp; frames of constant length stand on a grid
// all the same, and frames that follow each other leave no gap.
std::int64_t AudioDecoder::Private::PlaceFrame() const
{
    const std::int64_t count = frame->nb_samples;
    const std::int64_t expected = framePosition + previousCount;
    const std::int64_t ticks =
        frame->pts != AV_NOPTS_VALUE ? frame->pts : frame->best_effort_timestamp;
    if (ticks == AV_NOPTS_VALUE)
        return hasPosition ? expected : nativeStart;
    const std::int64_t stamped = NativeOf(ticks);
    if (hasPosition && std::abs(stamped - expected) <= nativeRate * kJitterMs / 1000)
        return expected;
    const std::int64_t tick = av_rescale_q(1, stream->time_base, {1, nativeRate});
    const std::int64_t grid = info->Stream(streamIndex)->frameSamples;
    if (tick <= 1 || grid <= 0)
        return stamped;
    const std::int64_t end = stamped + count - nativeStart;
    const std::int64_t snapped = FloorDivide(end + grid / 2, grid) * grid;
    return std::abs(snapped - end) <= tick + 1 ? nativeStart + snapped - count : stamped;
}

bool AudioDecoder::Private::SeekTicks(std::int64_t ticks, bool toStart)
{
    avcodec_flush_buffers(codec.get());
    hasFrame = false;
    hasPosition = false;
    isDrained = false;
    if (toStart)
        return file->SeekToStart(streamIndex, ticks);
    AVFormatContext* const context = file->Context();
    // Matroska indexes the pictures only.
    const bool byPictures = info->videoStream >= 0 && file->IsFormat("matroska");
    const int index = byPictures ? info->videoStream : streamIndex;
    const std::int64_t time =
        av_rescale_q(ticks, stream->time_base, context->streams[index]->time_base);
    return av_seek_frame(context, index, time, AVSEEK_FLAG_BACKWARD) >= 0;
}

// Leaves the decoder with a frame at or before the native position, far enough before it for the
// codec to have settled.
bool AudioDecoder::Private::Seek(std::int64_t native)
{
    const std::int64_t preroll = std::int64_t(nativeRate) * kPrerollMs / 1000;
    const std::int64_t startTicks = TicksOf(nativeStart);
    std::int64_t target = native - preroll;
    std::int64_t back = preroll;
    for (int attempt = 1; attempt <= kMaxSeekAttempts; ++attempt) {
        const bool isLast = attempt == kMaxSeekAttempts || target <= nativeStart;
        const bool hasSeeked = SeekTicks(isLast ? startTicks : TicksOf(target), isLast);
        const bool hasLanded = hasSeeked && DecodeFrame();
        if (hasLanded && (isLast || framePosition <= native - preroll / 2))
            return true;
        if (isLast)
            return false;
        target -= back;
        back *= 2;
    }
    return false;
}

// ---- resampling

void AudioDecoder::Private::SetOutput(int newRate, int newChannels)
{
    if (rate == newRate && channels == newChannels)
        return;
    rate = newRate;
    channels = newChannels;
    isPositioned = false;
    resampler.reset();
}

// The resampler starts where the samples of both rates coincide, so a position is always computed
// from the same samples with the same phase, wherever reading began.
bool AudioDecoder::Private::Position(std::int64_t first)
{
    const std::int64_t divisor = std::gcd(nativeRate, rate);
    const std::int64_t nativeStep = nativeRate / divisor;
    const std::int64_t step = rate / divisor;
    const std::int64_t block = FloorDivide(first - Margin(), step);
    ready.clear();
    readyPosition = block * step;
    nativePosition = block * nativeStep;
    resampler.reset();
    isFlushed = false;
    isPositioned = Seek(nativePosition);
    return isPositioned;
}

// Gain of each source channel in each output channel, where the usual mix is not what is wanted;
// the usual one would lower a mono stream by 3 dB, and there is none for unnamed channels.
std::vector<double> AudioDecoder::Private::OwnMix(const AVChannelLayout& source,
                                                  const AVChannelLayout& target)
{
    const int from = source.nb_channels;
    const int to = target.nb_channels;
    if (from == 1)
        return std::vector<double>(size_t(to), 1.0);
    if (source.order == AV_CHANNEL_ORDER_NATIVE && target.order == AV_CHANNEL_ORDER_NATIVE)
        return {};
    std::vector<double> mix(size_t(from) * size_t(to), 0.0);
    for (int i = 0; i < std::min(from, to); ++i)
        mix[size_t(i) * size_t(from) + size_t(i)] = 1.0;
    return mix;
}

bool AudioDecoder::Private::MatchResampler()
{
    const int sourceChannels = frame->ch_layout.nb_channels;
    if (resampler && inputFormat == frame->format && inputChannels == sourceChannels)
        return true;
    // Recordings that were joined may go on with another number of channels.
    DrainResampler(nativePosition);
    inputFormat = frame->format;
    inputChannels = sourceChannels;
    silence.reset();
    AVChannelLayout target = {};
    av_channel_layout_default(&target, channels);
    AVChannelLayout source = {};
    if (frame->ch_layout.order == AV_CHANNEL_ORDER_UNSPEC)
        av_channel_layout_default(&source, sourceChannels);
    else
        av_channel_layout_copy(&source, &frame->ch_layout);
    const std::vector<double> mix = OwnMix(source, target);
    SwrContext* context = nullptr;
    swr_alloc_set_opts2(&context, &target, AV_SAMPLE_FMT_FLT, rate, &source,
                        AVSampleFormat(frame->format), nativeRate, 0, nullptr);
    av_channel_layout_uninit(&source);
    av_channel_layout_uninit(&target);
    resampler.reset(context);
    if (!resampler)
        return false;
    // Sums of channels stay within -1 to 1.
    av_opt_set_double(context, "rematrix_maxval", 1.0, 0);
    if (!mix.empty())
        swr_set_matrix(context, mix.data(), sourceChannels);
    if (swr_init(context) < 0)
        resampler.reset();
    return resampler != nullptr;
}

bool AudioDecoder::Private::Resample(const std::uint8_t** data, int count)
{
    const int capacity = swr_get_out_samples(resampler.get(), count);
    if (capacity < 0)
        return false;
    const size_t before = ready.size();
    ready.resize(before + size_t(capacity) * size_t(channels));
    auto* output = reinterpret_cast<std::uint8_t*>(ready.data() + before);
    const int written = swr_convert(resampler.get(), &output, capacity, data, count);
    ready.resize(before + size_t(std::max(0, written)) * size_t(channels));
    return written >= 0;
}

bool AudioDecoder::Private::FeedSilence(std::int64_t count)
{
    if (!silence) {
        silence.reset(av_frame_alloc());
        silence->format = frame->format;
        silence->nb_samples = kSilenceBlock;
        av_channel_layout_copy(&silence->ch_layout, &frame->ch_layout);
        if (av_frame_get_buffer(silence.get(), 0) < 0)
            return false;
        av_samples_set_silence(silence->extended_data, 0, kSilenceBlock,
                               silence->ch_layout.nb_channels, AVSampleFormat(silence->format));
    }
    const int now = int(std::min<std::int64_t>(count, kSilenceBlock));
    nativePosition += now;
    return Resample(const_cast<const std::uint8_t**>(silence->extended_data), now);
}

// Takes out what the resampler holds, as far as it belongs to the samples before a native position.
void AudioDecoder::Private::DrainResampler(std::int64_t native)
{
    if (resampler)
        Resample(nullptr, 0);
    resampler.reset();
    const std::int64_t end = CeilScale(native, rate, nativeRate);
    const std::int64_t count = std::clamp<std::int64_t>(end - readyPosition, 0, ReadyCount());
    ready.resize(size_t(count) * size_t(channels));
}

void AudioDecoder::Private::Flush()
{
    isFlushed = true;
    nativeEnd = framePosition + previousCount;
    isEndKnown = true;
    DrainResampler(nativeEnd);
}

// Adds what comes next to the output. False at the end of the stream.
bool AudioDecoder::Private::Produce()
{
    if (isFlushed)
        return false;
    if (!hasFrame && !DecodeFrame()) {
        Flush();
        return true;
    }
    const std::int64_t skip = nativePosition - framePosition;
    const std::int64_t count = frame->nb_samples - skip;
    if (count <= 0) {
        hasFrame = false;
        return true;
    }
    if (!MatchResampler())
        return false;
    if (skip < 0)
        return FeedSilence(-skip);
    const auto format = AVSampleFormat(frame->format);
    const int frameChannels = frame->ch_layout.nb_channels;
    const bool isPlanar = av_sample_fmt_is_planar(format) != 0;
    const std::int64_t offset =
        skip * av_get_bytes_per_sample(format) * (isPlanar ? 1 : frameChannels);
    std::vector<const std::uint8_t*> planes(size_t(isPlanar ? frameChannels : 1));
    for (size_t i = 0; i < planes.size(); ++i)
        planes[i] = frame->extended_data[i] + offset;
    nativePosition += count;
    hasFrame = false;
    return Resample(planes.data(), int(count));
}

// Writes the groups from first on that lie in the stream; leaves the others as they are.
int AudioDecoder::Private::Read(std::int64_t first, int count, int newRate, int newChannels,
                                float* output)
{
    SetOutput(newRate, newChannels);
    // Far outside there is no need to look; the end is only an estimate until it was seen.
    const std::int64_t start = av_rescale_rnd(nativeStart, rate, nativeRate, AV_ROUND_DOWN);
    const std::int64_t duration = info->Stream(streamIndex)->durationUs + kEndSlackUs;
    const std::int64_t length = av_rescale(duration, rate, 1000000);
    const bool isPastEnd = isEndKnown && first >= CeilScale(nativeEnd, rate, nativeRate);
    const bool isOutside = isPastEnd || first >= start + length || first < start - count;
    if (isOutside)
        return 0;
    const std::int64_t lead = std::clamp<std::int64_t>(start - first, 0, count);
    std::int64_t position = first + lead;
    float* target = output + lead * std::int64_t(channels);
    const std::int64_t end = first + count;

    const bool isNear =
        isPositioned && position >= readyPosition &&
        position <= readyPosition + ReadyCount() + std::int64_t(rate) * kMaxForwardSeconds;
    if (!isNear && !Position(position))
        return 0;
    while (position < end) {
        const std::int64_t skipped = std::min<std::int64_t>(position - readyPosition, ReadyCount());
        const std::int64_t taken = std::min<std::int64_t>(ReadyCount() - skipped, end - position);
        if (readyPosition + skipped == position && taken > 0) {
            const float* const from = ready.data() + skipped * channels;
            std::copy_n(from, taken * channels, target);
            target += taken * channels;
            position += taken;
        }
        const std::int64_t used = skipped + std::max<std::int64_t>(0, taken);
        ready.erase(ready.begin(), ready.begin() + used * channels);
        readyPosition += used;
        if (position < end && !Produce())
            break;
    }
    return position > first + lead ? int(position - first) : 0;
}

// ---- opening

bool AudioDecoder::Private::Start(QString* error)
{
    if (!info->parts.empty()) {
        const MediaStream* const known = info->Stream(streamIndex);
        if (known == nullptr || known->type != NLEStream_Audio) {
            SetError(error, info->path, QStringLiteral(": no sound in it"));
            return false;
        }
        joined = std::make_unique<JoinedSound>(info, streamIndex);
        return true;
    }
    file = MediaFile::OpenStream(*info, streamIndex, NLEStream_Audio, error);
    if (!file)
        return false;
    stream = file->Context()->streams[streamIndex];
    codec = OpenCodec(stream, 1, info->path, error);
    if (!codec)
        return false;
    const MediaStream& known = *info->Stream(streamIndex);
    nativeRate = known.sampleRate;
    nativeStart = NativeOf(known.startTicks);
    return true;
}

// ---- the public face

AudioDecoder::AudioDecoder(std::unique_ptr<Private> state) : d(std::move(state)) {}

AudioDecoder::~AudioDecoder() = default;

std::unique_ptr<AudioDecoder> AudioDecoder::Open(std::shared_ptr<const MediaInfo> info, int stream,
                                                 QString* error)
{
    if (!info) {
        SetError(error, QString(), QStringLiteral("no media"));
        return nullptr;
    }
    auto state = std::make_unique<Private>();
    state->info = std::move(info);
    state->streamIndex = stream;
    if (!state->Start(error))
        return nullptr;
    return std::unique_ptr<AudioDecoder>(new AudioDecoder(std::move(state)));
}

int AudioDecoder::Read(std::int64_t firstSample, int count, int sampleRate, int channels,
                       float* interleaved)
{
    const bool isSensible = count > 0 && sampleRate > 0 && sampleRate <= kMaxRate && channels > 0 &&
                            channels <= kMaxChannels && interleaved != nullptr;
    if (!isSensible)
        return -1;
    std::fill_n(interleaved, size_t(count) * size_t(channels), 0.0F);
    return d->joined ? d->joined->Read(firstSample, count, sampleRate, channels, interleaved)
                     : d->Read(firstSample, count, sampleRate, channels, interleaved);
}

const std::shared_ptr<const MediaInfo>& AudioDecoder::Info() const
{
    return d->info;
}

int AudioDecoder::StreamIndex() const
{
    return d->streamIndex;
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/FrameDecoder.h"
#include "NLECore/media/ColourConverter_p.h"
#include "NLECore/media/EngineLog.h"
#include "NLECore/media/HardwareDecoding_p.h"
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/PictureCache.h"
#include "NLECore/media/PictureScaler_p.h"
#include "NLECore/media/PictureSource_p.h"

#include <algorithm>
#include <deque>
#include <limits>
#include <optional>

extern "C" {
#include <libavutil/mathematics.h>
}

namespace nle {
namespace {

// Decoding on over so few frames is cheaper than emptying the decoder and starting anew.
constexpr std::int64_t kAlwaysForward = 8;

// Up to this distance packets are read ahead in search of a key frame; beyond it a seek is cheaper.
constexpr std::int64_t kMaxReadAhead = 300;

// Without any key frame within so many packets, decoding starts with what was read.
constexpr size_t kMaxQueuedPackets = 1024;

constexpr int kMaxSeekAttempts = 16;

// So many packets and errors without a picture mean that there is none to come.
constexpr int kMaxRoundsPerPicture = 20000;

constexpr std::int64_t kMinHoldFrames = 2;

// While the play head is dragged, going back over so many frames at the most is stepping back.
// Beyond it a picture is decoded for itself.
constexpr std::int64_t kScrubBack = 250;

// After a step back pictures are kept over so many frames forward as well, for going to and fro.
constexpr std::int64_t kToAndFro = 32;

// Kept pictures are given up when the decoder has moved on by so many frames.
constexpr std::int64_t kMovedOn = 256;

// A picture at hand that lies so near is shown for the wanted one where the container does not tell
// whether a key frame lies nearer.
constexpr std::int64_t kNearEnough = 12;

// Codecs that tell from the packet alone that no other picture needs it.
bool MarksUnreferenced(AVCodecID codec)
{
    return codec == AV_CODEC_ID_H264 || codec == AV_CODEC_ID_HEVC ||
           codec == AV_CODEC_ID_MPEG2VIDEO;
}

struct DecodedPicture
{
    FramePtr frame{av_frame_alloc()};
    bool isValid = false;
    std::int64_t index = -1;
    std::int64_t ticks = 0;
    /// Pictures that were decoded one after the other have numbers that do so.
    std::int64_t number = -1;

    NumberedPicture Numbered() const
    {
        return isValid ? NumberedPicture{frame.get(), number} : NumberedPicture{};
    }
};

} // namespace

struct FrameDecoder::Private
{
    std::shared_ptr<const MediaInfo> info;
    int streamIndex = -1;
    std::unique_ptr<MediaFile> file;
    AVStream* stream = nullptr;
    CodecPtr codec;
    PictureScaler scaler;
    MediaStream description;
    std::int64_t startTicks = 0;
    bool canSkip = false;
    /// What gives the pictures where they are no film, and the frame asked of it last.
    std::unique_ptr<PictureSource> source;
    FileStamp sourceStamp;
    int sourceFrame = -1;
    int threads = 0;
    bool wantsHardware = false;
    bool isHardware = false;
    bool hasHardwareFailed = false;

    /// The picture decoded last and the one after it, as far as they are decoded.
    DecodedPicture current;
    DecodedPicture next;
    /// The picture before the current one, kept for the deinterlacer once it was needed.
    DecodedPicture previous;
    Deinterlacer deinterlacer;
    bool keepsPrevious = false;
    /// Pictures are drawn from their neighbours, so that kept ones are of no use.
    bool isDrawing = false;
    std::int64_t nearNumber = -1; ///< below those of decoded pictures
    std::int64_t lastNumber = 0;
    /// Number of the first picture since decoding began anew.
    std::int64_t firstNumber = 1;
    /// The picture on show when it is another one: a kept one, or a key frame.
    PictureCache::Picture standIn;
    /// Frame that was shown last; -1 before the first one.
    std::int64_t shownFrame = -1;
    /// The key frame decoded last to stand in, and its frame.
    PictureCache::Picture keyPicture;
    std::int64_t keyFrame = -1;
    /// The play head was dragged since the last seek.
    bool isScrubbing = false;

    PictureCache::Shelf kept{KeptPictures()};
    bool hasKept = false;
    /// Decoded pictures of these frames are kept.
    std::int64_t keepFirst = 0;
    std::int64_t keepLast = -1;
    /// Last frame of which it is decided what it shows, since the last seek.
    std::int64_t decidedTo = std::numeric_limits<std::int64_t>::min();
    /// Ends decoding when it is set from another thread; null when nobody may.
    const std::atomic<bool>* stop = nullptr;

    /// Packets read ahead, not yet decoded.
    std::deque<PacketPtr> queue;
    bool isInputAtEnd = false;
    bool isDrained = false;
    /// Decoding began with the first packet of the file.
    bool isFromStart = true;
    /// Latest time among the packets read since the last seek.
    std::int64_t latestTicks = std::numeric_limits<std::int64_t>::min();
    /// Packets read since the last seek: those at whose beginning the container has a time, and
    /// whether there were others, whose times are counted on from those.
    int stampedPackets = 0;
    bool hasCountedTimes = false;
    /// Time of the picture decoded last, before the first one that of the packet.
    std::int64_t clockTicks = 0;
    /// Highest frame number among packets that the decoder was allowed to skip.
    std::int64_t skippedTo = -1;
    /// Frame of the first picture, where that is known to be after 0.
    std::int64_t firstFrame = 0;
    /// Last frame that shows a picture, once the end of the data was seen.
    std::int64_t endFrame = std::numeric_limits<std::int64_t>::max();

    bool Start(QString* error);
    void FindFirstPicture();
    bool Locate(std::int64_t frame);
    bool Decode(std::int64_t frame);
    bool SeekAndDecode(std::int64_t frame, std::int64_t keepFrom);
    bool IsStepBack(std::int64_t frame) const;
    void StartKeeping(std::int64_t frame);
    void KeepCurrent();
    void ForgetKept();
    bool FindKept(std::int64_t frame);
    bool LocateNear(std::int64_t frame, bool* isExact);
    bool ShowNearest(std::int64_t frame);
    PacketPtr ReadKey(std::int64_t frame);
    bool DecodeKey(std::int64_t frame);
    std::int64_t DistanceToKey(std::int64_t frame) const;
    bool Shows(std::int64_t frame) const;
    bool CanContinueTo(std::int64_t frame);
    bool Advance(std::int64_t frame, std::int64_t keepFrom);
    bool DecodeNext(std::int64_t keepFrom);
    bool Feed(std::int64_t keepFrom);
    PacketPtr ReadPacket();
    std::optional<std::int64_t> ReadToKeyFrame(std::int64_t frame, std::int64_t keyLimit);
    void Forget();
    void Reset();
    void NoteEnd();
    void ShiftPictures();
    const AVFrame* Shown(std::int64_t frame, const Deinterlacing& deinterlacing);
    const AVFrame* ShownNear(std::int64_t frame, const Deinterlacing& deinterlacing, bool* isExact);
    bool FindNeighbours(std::int64_t frame);
    bool DecodeThrough(std::int64_t first, std::int64_t frame, std::int64_t keepFrom);
    bool HasPrevious() const;

    bool UseSoftware();
    bool BringHome(AVFrame* picture);

    bool IsStopped() const
    {
        return hasHardwareFailed || (stop != nullptr && stop->load(std::memory_order_relaxed));
    }
    bool IsKeeping(std::int64_t frame) const { return frame >= keepFirst && frame <= keepLast; }
    const AVFrame* OnShow() const { return standIn ? standIn.get() : current.frame.get(); }
    bool IsConcerned(const Deinterlacing& deinterlacing) const
    {
        return Deinterlacer::Concerns(*OnShow(), description, stream->codecpar->codec_id,
                                      deinterlacing);
    }

    AVRational FrameDuration() const
    {
        return {int(description.frameRate.den), int(description.frameRate.num)};
    }
    std::int64_t IndexOf(std::int64_t ticks) const
    {
        return av_rescale_q(ticks - startTicks, stream->time_base, FrameDuration());
    }
    /// Time of the last tick that still rounds to \a frame.
    std::int64_t LastTickOf(std::int64_t frame) const
    {
        const AVRational half{FrameDuration().num, FrameDuration().den * 2};
        return startTicks + av_rescale_q_rnd(2 * frame + 1, half, stream->time_base, AV_ROUND_UP) -
               1;
    }
    std::int64_t TicksPerFrame() const
    {
        return std::max<std::int64_t>(1, av_rescale_q(1, FrameDuration(), stream->time_base));
    }
    static std::int64_t TicksOf(const AVPacket& packet)
    {
        return packet.pts != AV_NOPTS_VALUE ? packet.pts : packet.dts;
    }
    static std::int64_t DecodingTicksOf(const AVPacket& packet)
    {
        return packet.dts != AV_NOPTS_VALUE ? packet.dts : packet.pts;
    }
    /// A program stream puts several pictures behind one time. What a seek lands on may be the rest
    /// of a picture, which is counted as one, so the times are wrong until the next own one. Where
    /// no packet is marked, the container does not tell.
    bool AreTimesSure() const { return !hasCountedTimes || stampedPackets != 1; }
    std::int64_t TicksOf(const AVFrame& frame) const;
    bool IsLastOfItsFrame(const DecodedPicture& picture) const;
};

// ---- reading

PacketPtr FrameDecoder::Private::ReadPacket()
{
    PacketPtr packet(av_packet_alloc());
    while (packet && av_read_frame(file->Context(), packet.get()) >= 0) {
        const bool isOurs = packet->stream_index == streamIndex;
        // A packet that was cut off would decode into a damaged picture. Transport streams mark
        // packets after any small fault, which decoders conceal well.
        const bool isCut = (packet->flags & AV_PKT_FLAG_CORRUPT) != 0 && !file->IsFormat("mpegts");
        if (isOurs && !isCut) {
            // Pictures without a time are counted on from the one before, so none may be skipped.
            if (const std::int64_t ticks = TicksOf(*packet); ticks != AV_NOPTS_VALUE)
                latestTicks = std::max(latestTicks, ticks);
            else
                canSkip = false;
            const bool isStamped = packet->pos >= 0;
            stampedPackets += isStamped ? 1 : 0;
            hasCountedTimes = hasCountedTimes || !isStamped;
            return packet;
        }
        av_packet_unref(packet.get());
    }
    return nullptr;
}

// Fills the queue up to the wanted frame and drops what lies before the last key frame not after
// keyLimit. Gives the time of that key frame; without one the queue is whole.
std::optional<std::int64_t> FrameDecoder::Private::ReadToKeyFrame(std::int64_t frame,
                                                                  std::int64_t keyLimit)
{
    const std::int64_t lastTick = LastTickOf(frame);
    std::optional<std::int64_t> keyTicks;
    while (queue.size() < kMaxQueuedPackets) {
        PacketPtr packet = ReadPacket();
        if (!packet) {
            isInputAtEnd = true;
            break;
        }
        const std::int64_t decodingTicks = DecodingTicksOf(*packet);
        const bool isKey = (packet->flags & AV_PKT_FLAG_KEY) != 0;
        const std::int64_t packetTicks = TicksOf(*packet);
        if (isKey && packetTicks != AV_NOPTS_VALUE && packetTicks <= keyLimit && AreTimesSure()) {
            queue.clear();
            keyTicks = packetTicks;
        }
        queue.push_back(std::move(packet));
        if (decodingTicks != AV_NOPTS_VALUE && decodingTicks > lastTick)
            break;
    }
    return keyTicks;
}

// The next picture will not be the one after the last.
void FrameDecoder::Private::Forget()
{
    avcodec_flush_buffers(codec.get());
    previous.isValid = false;
    current.isValid = false;
    next.isValid = false;
    isFromStart = false;
    ++lastNumber;
    firstNumber = lastNumber + 1;
}

void FrameDecoder::Private::Reset()
{
    Forget();
    queue.clear();
    isInputAtEnd = false;
    isDrained = false;
    latestTicks = std::numeric_limits<std::int64_t>::min();
    stampedPackets = 0;
    hasCountedTimes = false;
    skippedTo = -1;
    decidedTo = std::numeric_limits<std::int64_t>::min();
}

// ---- decoding

std::int64_t FrameDecoder::Private::TicksOf(const AVFrame& frame) const
{
    if (frame.pts != AV_NOPTS_VALUE)
        return frame.pts;
    if (frame.best_effort_timestamp != AV_NOPTS_VALUE)
        return frame.best_effort_timestamp;
    // The last pictures of a file without times of display carry no time at all; they follow
    // the one before, or the packet that they waited for.
    return clockTicks + TicksPerFrame();
}

bool FrameDecoder::Private::Feed(std::int64_t keepFrom)
{
    PacketPtr packet;
    if (!queue.empty()) {
        packet = std::move(queue.front());
        queue.pop_front();
    } else if (!isInputAtEnd) {
        packet = ReadPacket();
    }
    if (!packet) {
        isInputAtEnd = true;
        return avcodec_send_packet(codec.get(), nullptr) >= 0;
    }
    const std::int64_t ticks = TicksOf(*packet);
    const std::int64_t index = ticks != AV_NOPTS_VALUE ? IndexOf(ticks) : keepFrom;
    const bool isSkippable = canSkip && index < keepFrom;
    codec->skip_frame = isSkippable ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
    if (isSkippable)
        skippedTo = std::max(skippedTo, index);
    if (!current.isValid && !next.isValid && ticks != AV_NOPTS_VALUE)
        clockTicks = ticks;
    // A damaged packet loses its picture; the one before it stays in its place. Hardware may fail
    // by itself.
    const int result = avcodec_send_packet(codec.get(), packet.get());
    hasHardwareFailed = isHardware && result < 0 && result != AVERROR(EAGAIN);
    return true;
}

bool FrameDecoder::Private::DecodeNext(std::int64_t keepFrom)
{
    int rounds = 0;
    while (!isDrained && !hasHardwareFailed) {
        av_frame_unref(next.frame.get());
        const int result = avcodec_receive_frame(codec.get(), next.frame.get());
        if (result == 0 && !BringHome(next.frame.get()))
            break;
        if (result == 0) {
            next.ticks = TicksOf(*next.frame);
            next.index = IndexOf(next.ticks);
            next.isValid = true;
            next.number = ++lastNumber;
            clockTicks = next.ticks;
            return true;
        }
        const bool isOver = result == AVERROR(EAGAIN) ? !Feed(keepFrom) : result == AVERROR_EOF;
        if (isHardware && result != AVERROR(EAGAIN) && !isOver)
            hasHardwareFailed = true;
        isDrained = isOver || ++rounds > kMaxRoundsPerPicture;
    }
    return false;
}

void FrameDecoder::Private::ShiftPictures()
{
    if (keepsPrevious)
        std::swap(previous, current);
    std::swap(current, next);
    next.isValid = false;
}

// At a constant rate the picture after this one belongs to a later frame, so it need not be decoded
// to know.
bool FrameDecoder::Private::IsLastOfItsFrame(const DecodedPicture& picture) const
{
    const std::int64_t duration = PictureDuration(*picture.frame);
    return description.constantRate && duration > 0 &&
           IndexOf(picture.ticks + duration) > picture.index;
}

bool FrameDecoder::Private::Shows(std::int64_t frame) const
{
    if (!current.isValid || current.index > frame)
        return false;
    if (next.isValid)
        return next.index > frame;
    return isDrained || (current.index == frame && IsLastOfItsFrame(current));
}

// Decodes on until the picture of the frame is the current one. False when decoding began too late
// for it or gave nothing.
bool FrameDecoder::Private::Advance(std::int64_t frame, std::int64_t keepFrom)
{
    while (!Shows(frame)) {
        if (IsStopped())
            return false;
        if (!next.isValid && !DecodeNext(keepFrom))
            return current.isValid;
        const bool isTooLate = !current.isValid && next.index > frame;
        if (isTooLate && !isFromStart)
            return false;
        if (current.isValid && next.index > frame)
            return true;
        KeepCurrent();
        ShiftPictures();
        if (isTooLate) {
            firstFrame = current.index;
            return true;
        }
    }
    return true;
}

// ---- positioning

// Demuxers may land after the wanted picture: they go by time of decoding, or guess where a time
// lies in the file, or land on a key frame whose first pictures cannot be decoded. So the landing
// is checked, and each further attempt starts earlier.
bool FrameDecoder::Private::SeekAndDecode(std::int64_t frame, std::int64_t keepFrom)
{
    const std::int64_t halfSecond =
        std::max<std::int64_t>(1, av_rescale_q(1, {1, 2}, stream->time_base));
    std::int64_t ticks = LastTickOf(frame);
    std::int64_t keyLimit = ticks;
    std::int64_t back = 0;
    for (int attempt = 1; attempt < kMaxSeekAttempts && ticks > startTicks; ++attempt) {
        if (IsStopped())
            return false;
        Reset();
        std::optional<std::int64_t> keyTicks;
        if (av_seek_frame(file->Context(), streamIndex, ticks, AVSEEK_FLAG_BACKWARD) >= 0)
            keyTicks = ReadToKeyFrame(frame, keyLimit);
        // What comes before the key frame may lack what it was predicted from.
        if (keyTicks && IsKeeping(frame))
            keepFirst = std::max(keepFirst, IndexOf(*keyTicks));
        if (keyTicks && Advance(frame, keepFrom))
            return true;
        if (keyTicks) {
            keyLimit = *keyTicks - 1;
            ticks = std::min(ticks, *keyTicks);
        }
        ticks -= 1 + back;
        back = back == 0 ? halfSecond : 2 * back;
    }
    if (IsStopped())
        return false;
    Reset();
    isFromStart = file->SeekToStart(streamIndex, startTicks);
    clockTicks = startTicks - TicksPerFrame();
    return isFromStart && Advance(frame, keepFrom);
}

// Whether decoding on is cheaper than a seek. May drop packets up to a later key frame.
bool FrameDecoder::Private::CanContinueTo(std::int64_t frame)
{
    const bool isUntouched = isFromStart && !next.isValid;
    if (!current.isValid && !isUntouched)
        return false;
    const std::int64_t distance = frame - (current.isValid ? current.index : 0);
    if (distance <= kAlwaysForward)
        return distance >= 0;

    const std::int64_t lastTick = LastTickOf(frame);
    const AVIndexEntry* const key =
        avformat_index_get_entry_from_timestamp(stream, lastTick, AVSEEK_FLAG_BACKWARD);
    if (key != nullptr && key->timestamp > latestTicks)
        return false;
    const int count = avformat_index_get_entries_count(stream);
    const AVIndexEntry* const last = avformat_index_get_entry(stream, count - 1);
    const bool isIndexWhole = (file->IsFormat("mp4") || file->IsFormat("avi")) && key != nullptr &&
                              last != nullptr && last->timestamp >= lastTick;
    if (isIndexWhole)
        return true;
    if (distance > kMaxReadAhead)
        return false;
    if (ReadToKeyFrame(frame, lastTick))
        Forget();
    return true;
}

bool FrameDecoder::Private::Locate(std::int64_t frame)
{
    standIn.reset();
    frame = std::max(frame, firstFrame);
    if (frame > endFrame)
        return false;
    bool isFound = Shows(frame) || FindKept(frame) || Decode(frame);
    if (hasHardwareFailed && UseSoftware()) {
        Reset();
        isFound = Decode(frame);
    }
    if (!isFound)
        return false;
    isScrubbing = false;
    shownFrame = frame;
    return frame <= endFrame;
}

bool FrameDecoder::Private::Decode(std::int64_t frame)
{
    const bool isBack = IsStepBack(frame) && !isDrawing;
    // Where the picture before is needed, decoding goes on from that one.
    const std::int64_t from = keepsPrevious ? std::max(firstFrame, frame - 1) : frame;
    const bool canContinue = CanContinueTo(from);
    if (isBack && !canContinue)
        StartKeeping(frame);
    else if (hasKept && (frame > keepLast + kMovedOn || frame < keepFirst - kMovedOn))
        ForgetKept();
    if (!isScrubbing)
        keyPicture.reset();
    const std::int64_t keepFrom = IsKeeping(frame) ? std::min(keepFirst, from) : from;
    bool isFound = canContinue && Advance(frame, keepFrom);
    if (!isFound)
        isFound = SeekAndDecode(from, keepFrom) && Advance(frame, keepFrom);
    // In a gap, or at the end, the picture to show is one that was skipped on the way.
    if (isFound && skippedTo > current.index)
        isFound = SeekAndDecode(frame, skippedTo);
    if (isFound && skippedTo > current.index)
        isFound = SeekAndDecode(frame, std::numeric_limits<std::int64_t>::min());
    if (IsStopped())
        return false;
    NoteEnd();
    return isFound;
}

void FrameDecoder::Private::NoteEnd()
{
    if (!isDrained || next.isValid || !current.isValid)
        return;
    const std::int64_t hold =
        av_rescale_q(PictureDuration(*current.frame), stream->time_base, FrameDuration());
    endFrame = current.index + std::max(kMinHoldFrames, hold);
    // Theora writes an empty packet for a picture that is the one before; the demuxer passes over
    // them. The length of the file counts them, also where the file was cut.
    if (codec->codec_id == AV_CODEC_ID_THEORA)
        endFrame = std::max(endFrame, std::int64_t(description.frameCount) - 1);
}

// ---- deinterlacing

bool FrameDecoder::Private::HasPrevious() const
{
    const bool isFirst = isFromStart && current.number == firstNumber;
    const bool isKept = previous.isValid && previous.number + 1 == current.number;
    return current.isValid && (isFirst || (isKept && skippedTo <= previous.index));
}

bool FrameDecoder::Private::DecodeThrough(std::int64_t first, std::int64_t frame,
                                          std::int64_t keepFrom)
{
    return SeekAndDecode(first, keepFrom) && Advance(frame, keepFrom) && HasPrevious();
}

// Decodes the pictures before and after the current one, which is that of the frame. Where there is
// none before that can be decoded, the current one may be lost.
bool FrameDecoder::Private::FindNeighbours(std::int64_t frame)
{
    keepsPrevious = true;
    const std::int64_t before = current.index - 1;
    const bool isFound = HasPrevious() || DecodeThrough(before, frame, before) ||
                         DecodeThrough(before, frame, std::numeric_limits<std::int64_t>::min());
    if (isFound && !next.isValid && !isDrained && !DecodeNext(frame))
        NoteEnd();
    return isFound;
}

const AVFrame* FrameDecoder::Private::Shown(std::int64_t frame, const Deinterlacing& deinterlacing)
{
    if (!Locate(frame))
        return nullptr;
    if (!IsConcerned(deinterlacing))
        return OnShow();
    if (!isDrawing) {
        isDrawing = true;
        ForgetKept();
        if (standIn && !Locate(frame))
            return nullptr;
    }
    if (!FindNeighbours(frame) && !Locate(frame))
        return nullptr;
    const AVFrame* const drawn =
        deinterlacer.Draw(previous.Numbered(), current.Numbered(), next.Numbered(), description,
                          deinterlacing, threads);
    return drawn != nullptr ? drawn : current.frame.get();
}

// A picture that stands in has no neighbours to be drawn from.
const AVFrame* FrameDecoder::Private::ShownNear(std::int64_t frame,
                                                const Deinterlacing& deinterlacing, bool* isExact)
{
    if (!LocateNear(frame, isExact))
        return nullptr;
    if (*isExact)
        return Shown(frame, deinterlacing);
    if (!IsConcerned(deinterlacing))
        return OnShow();
    const AVFrame* const drawn =
        deinterlacer.Draw({}, {OnShow(), --nearNumber}, {}, description, deinterlacing, threads);
    return drawn != nullptr ? drawn : OnShow();
}

// ---- keeping pictures

bool FrameDecoder::Private::IsStepBack(std::int64_t frame) const
{
    return frame < shownFrame && shownFrame - frame <= (isScrubbing ? kScrubBack : kStepBack);
}

// The group of the frame is decoded once, without leaving any picture out, and kept for the steps
// to come; of a group that has no room, the last pictures before the frame.
void FrameDecoder::Private::StartKeeping(std::int64_t frame)
{
    const AVFrame* const picture = current.isValid ? current.frame.get() : keyPicture.get();
    const std::int64_t capacity = picture != nullptr ? kept.CapacityFor(*picture) : 0;
    if (capacity < 2) {
        keepLast = -1;
        return;
    }
    keepFirst = frame - capacity + 1;
    keepLast = frame + kToAndFro;
    KeepCurrent();
}

// The current picture shows until the next one, as Advance() decides it. One that was passed over
// may be missing after it when packets were skipped.
void FrameDecoder::Private::KeepCurrent()
{
    if (!current.isValid)
        return;
    std::int64_t last = IsLastOfItsFrame(current) ? current.index : current.index - 1;
    if (next.isValid)
        last = std::max(last, next.index - 1);
    else if (isDrained)
        last = std::max(last, endFrame);
    const std::int64_t first = std::max(current.index, decidedTo + 1);
    decidedTo = std::max(decidedTo, last);
    if (!IsKeeping(current.index) || current.index <= skippedTo)
        return;
    kept.Keep(*current.frame, first, last);
    hasKept = true;
}

void FrameDecoder::Private::ForgetKept()
{
    kept.Clear();
    hasKept = false;
    keepLast = -1;
}

bool FrameDecoder::Private::FindKept(std::int64_t frame)
{
    if (hasKept)
        standIn = kept.Find(frame);
    return standIn != nullptr;
}

// ---- scrubbing

bool FrameDecoder::Private::LocateNear(std::int64_t frame, bool* isExact)
{
    standIn.reset();
    *isExact = true;
    frame = std::max(frame, firstFrame);
    if (frame > endFrame)
        return false;
    const bool isNext = current.isValid && frame == current.index + 1;
    const bool isAfterEnd =
        description.frameCount > 0 && frame >= std::int64_t(description.frameCount);
    if (isNext || isAfterEnd || Shows(frame) || FindKept(frame))
        return Locate(frame);
    isScrubbing = true;
    *isExact = false;
    if (ShowNearest(frame))
        return true;
    *isExact = true;
    return Locate(frame);
}

// Frames from the last key frame to the frame, where the container has an index that tells.
std::int64_t FrameDecoder::Private::DistanceToKey(std::int64_t frame) const
{
    const std::int64_t lastTick = LastTickOf(frame);
    const AVIndexEntry* const key =
        avformat_index_get_entry_from_timestamp(stream, lastTick, AVSEEK_FLAG_BACKWARD);
    const bool isListed = key != nullptr && (file->IsFormat("mp4") || file->IsFormat("avi") ||
                                             file->IsFormat("matroska"));
    return isListed ? std::max<std::int64_t>(0, frame - IndexOf(key->timestamp)) : kNearEnough;
}

bool FrameDecoder::Private::ShowNearest(std::int64_t frame)
{
    std::int64_t distance = std::numeric_limits<std::int64_t>::max();
    const auto offer = [&](const PictureCache::Picture& picture, std::int64_t shown) {
        if (picture == nullptr || std::abs(frame - shown) >= distance)
            return;
        distance = std::abs(frame - shown);
        standIn = picture;
    };
    if (hasKept) {
        std::int64_t shown = -1;
        const PictureCache::Picture nearest = kept.FindNearest(frame, &shown);
        offer(nearest, shown);
    }
    offer(keyPicture, keyFrame);
    if (current.isValid)
        offer({PictureCache::Picture(), current.frame.get()}, current.index);
    if (distance <= DistanceToKey(frame))
        return true;
    return DecodeKey(frame) || standIn;
}

// Gives the packet of the last key frame that is not after the frame, else the file's first one; as
// SeekAndDecode() finds them.
PacketPtr FrameDecoder::Private::ReadKey(std::int64_t frame)
{
    const std::int64_t lastTick = LastTickOf(frame);
    std::int64_t back = std::max<std::int64_t>(1, av_rescale_q(1, {1, 2}, stream->time_base));
    std::int64_t ticks = lastTick;
    bool isFound = false;
    for (int attempt = 1; !isFound && attempt < kMaxSeekAttempts && ticks > startTicks; ++attempt) {
        Reset();
        isFound = av_seek_frame(file->Context(), streamIndex, ticks, AVSEEK_FLAG_BACKWARD) >= 0 &&
                  ReadToKeyFrame(frame, lastTick);
        ticks -= back;
        back *= 2;
    }
    if (!isFound) {
        Reset();
        file->SeekToStart(streamIndex, startTicks);
        ReadToKeyFrame(frame, lastTick);
    }
    return queue.empty() ? nullptr : std::move(queue.front());
}

// One packet and an end behind it give one picture at once, without those that the decoder's
// threads and the order of display hold back.
bool FrameDecoder::Private::DecodeKey(std::int64_t frame)
{
    const PacketPtr packet = ReadKey(frame);
    FramePtr picture(av_frame_alloc());
    bool isDecoded = packet && picture;
    if (isDecoded) {
        codec->skip_frame = AVDISCARD_DEFAULT;
        avcodec_send_packet(codec.get(), packet.get());
        avcodec_send_packet(codec.get(), nullptr);
        isDecoded =
            avcodec_receive_frame(codec.get(), picture.get()) == 0 && BringHome(picture.get());
    }
    if (isDecoded) {
        const std::int64_t ticks = TicksOf(*packet);
        keyFrame = ticks != AV_NOPTS_VALUE ? IndexOf(ticks) : 0;
        keyPicture = std::move(picture);
        standIn = keyPicture;
    }
    Reset();
    return isDecoded;
}

// ---- opening

bool FrameDecoder::Private::Start(QString* error)
{
    if (PictureSource::Reads(*info)) {
        sourceStamp = StampOf(info->path);
        source = PictureSource::Open(info, streamIndex, error);
        return source != nullptr;
    }
    file = MediaFile::OpenStream(*info, streamIndex, NLEStream_Video, error);
    if (!file)
        return false;
    stream = file->Context()->streams[streamIndex];
    if (wantsHardware)
        codec = OpenHardwareCodec(stream, threads, info->path);
    isHardware = codec != nullptr;
    if (!codec)
        codec = OpenCodec(stream, threads, info->path, error);
    if (!codec)
        return false;
    description = *info->Stream(streamIndex);
    startTicks = description.startTicks;
    if (!file->Matches(*info) && stream->start_time != AV_NOPTS_VALUE)
        startTicks = stream->start_time;
    canSkip = MarksUnreferenced(stream->codecpar->codec_id);
    keepsPrevious = description.fieldOrder == NLEField_TopFirst ||
                    description.fieldOrder == NLEField_BottomFirst;
    FindFirstPicture();
    return true;
}

// Where the container has no times of display, the decoder's delay shifts all times by the same
// amount; the first picture tells how much.
void FrameDecoder::Private::FindFirstPicture()
{
    PacketPtr packet = ReadPacket();
    if (!packet)
        return;
    const bool hasDisplayTime = packet->pts != AV_NOPTS_VALUE;
    queue.push_back(std::move(packet));
    if (hasDisplayTime)
        return;
    canSkip = false;
    if ((isHardware && !UseSoftware()) || !DecodeNext(0))
        return;
    startTicks = next.ticks;
    next.index = 0;
    ShiftPictures();
}

// ---- hardware

// A picture that the hardware has decoded, in system memory.
bool FrameDecoder::Private::BringHome(AVFrame* picture)
{
    hasHardwareFailed = isHardware && FetchPicture(picture) < 0;
    return !hasHardwareFailed;
}

bool FrameDecoder::Private::UseSoftware()
{
    QString error;
    CodecPtr software = OpenCodec(stream, threads, info->path, &error);
    qCWarning(lcEngine, "%s: decoded in software from here on", qUtf8Printable(info->path));
    if (!software) {
        qCWarning(lcEngine, "%s", qUtf8Printable(error));
        return false;
    }
    codec = std::move(software);
    isHardware = false;
    hasHardwareFailed = false;
    return true;
}

// ---- the public face

FrameDecoder::FrameDecoder(std::unique_ptr<Private> state) : d(std::move(state)) {}

FrameDecoder::~FrameDecoder() = default;

std::unique_ptr<FrameDecoder> FrameDecoder::Open(std::shared_ptr<const MediaInfo> info, int stream,
                                                 QString* error, int threads, bool hardware)
{
    if (!info) {
        SetError(error, QString(), QStringLiteral("no media"));
        return nullptr;
    }
    auto state = std::make_unique<Private>();
    state->info = std::move(info);
    state->streamIndex = stream;
    state->threads = threads;
    state->wantsHardware = hardware;
    if (!state->Start(error))
        return nullptr;
    return std::unique_ptr<FrameDecoder>(new FrameDecoder(std::move(state)));
}

QImage FrameDecoder::Picture(int frame, const QSize& size, const Deinterlacing& deinterlacing,
                             PictureDepth depth, const std::atomic<bool>* stop)
{
    if (frame < 0 || size.isEmpty())
        return {};
    if (d->source) {
        d->sourceFrame = frame;
        const QImage picture = d->source->Picture(frame, size, deinterlacing, depth);
        return depth == PictureDepth::Deep ? picture.convertToFormat(QImage::Format_RGBA64)
                                           : picture;
    }
    d->stop = stop;
    const AVFrame* const picture = d->Shown(frame, deinterlacing);
    d->stop = nullptr;
    return picture != nullptr ? d->scaler.Convert(*picture, d->description, size, depth) : QImage();
}

QImage FrameDecoder::NearPicture(int frame, const QSize& size, bool* isExact,
                                 const Deinterlacing& deinterlacing, PictureDepth depth)
{
    *isExact = true;
    if (d->source)
        return Picture(frame, size, deinterlacing, depth);
    if (frame < 0 || size.isEmpty())
        return {};
    const AVFrame* const picture = d->ShownNear(frame, deinterlacing, isExact);
    return picture != nullptr ? d->scaler.Convert(*picture, d->description, size, depth) : QImage();
}

const AVFrame* FrameDecoder::Decoded(int frame, const Deinterlacing& deinterlacing)
{
    const bool isUpright = d->description.rotation == 0 && !d->description.mirrored;
    if (d->source || !isUpright || frame < 0)
        return nullptr;
    const AVFrame* const shown = d->Shown(frame, deinterlacing);
    return shown != nullptr && !ForeignColoursOf(*shown, d->description) ? shown : nullptr;
}

int FrameDecoder::Position() const
{
    if (d->source)
        return d->sourceFrame;
    const std::int64_t frame = d->standIn ? d->shownFrame : d->current.index;
    return d->standIn || d->current.isValid ? int(std::clamp<std::int64_t>(frame, 0, INT32_MAX))
                                            : -1;
}

bool FrameDecoder::Holds(int frame) const
{
    return d->Shows(frame) || (d->hasKept && d->kept.Has(frame));
}

bool FrameDecoder::IsForHardware() const
{
    return d->wantsHardware;
}

const std::shared_ptr<const MediaInfo>& FrameDecoder::Info() const
{
    return d->info;
}

int FrameDecoder::StreamIndex() const
{
    return d->streamIndex;
}

bool FrameDecoder::IsFileUnchanged() const
{
    return StampOf(d->info->path) == (d->source ? d->sourceStamp : d->file->Stamp());
}

} // namespace nle

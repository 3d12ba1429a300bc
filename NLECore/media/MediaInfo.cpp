// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/MediaInfo.h"

#include "NLECore/media/ColourConverter_p.h"
#include "NLECore/media/FieldOrder_p.h"
#include "NLECore/media/FrameGrid_p.h"
#include "NLECore/media/JoinedMedia_p.h"
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/PictureFormats_p.h"
#include "NLECore/media/TransportJoins_p.h"

#include <QImageReader>

#include <algorithm>
#include <cmath>
#include <cstdlib>

extern "C" {
#include <libavutil/dict.h>
#include <libavutil/display.h>
#include <libavutil/mathematics.h>
#include <libavutil/pixdesc.h>
}

namespace nle {
namespace {

constexpr AVRational kMicroseconds{1, 1000000};
constexpr NLERational kStillRate = {25, 1};

// More packets than this behind the last entries of an index: it is not that of the whole file.
constexpr int kMaxPacketsAtEnd = 64;

// Where there is no index, so many pictures tell the rate.
constexpr std::size_t kMaxPicturesRead = 2000;

// More are faults of a recorder rather than joined recordings.
constexpr std::size_t kMostJoins = 256;

struct Orientation
{
    int rotation = 0;
    bool mirrored = false;
};

// Quarter turns and mirrors of the matrix that maps coded to displayed positions.
Orientation OfMatrix(const std::uint8_t* data, size_t size)
{
    if (data == nullptr || size < 9 * sizeof(std::int32_t))
        return {};
    const auto* const matrix = reinterpret_cast<const std::int32_t*>(data);
    const std::int64_t a = matrix[0];
    const std::int64_t b = matrix[1];
    const std::int64_t c = matrix[3];
    const std::int64_t d = matrix[4];
    if (std::abs(a) + std::abs(d) >= std::abs(b) + std::abs(c)) {
        const bool isMirrored = (a < 0) != (d < 0);
        return {d < 0 ? 180 : 0, isMirrored};
    }
    const bool isMirrored = (b < 0) == (c < 0);
    const bool isClockwise = c < 0;
    return {isClockwise ? 90 : 270, isMirrored};
}

Orientation ReadDisplayMatrix(const AVStream* stream)
{
    size_t size = 0;
    const std::uint8_t* const data =
        av_stream_get_side_data(stream, AV_PKT_DATA_DISPLAYMATRIX, &size);
    return OfMatrix(data, size);
}

// By decoding the picture.
Orientation DecodeOrientation(const QString& path)
{
    const std::unique_ptr<MediaFile> file =
        MediaFile::Open(path, MediaFile::Streams::AsDeclared, nullptr);
    if (!file || file->Context()->nb_streams != 1)
        return {};
    const CodecPtr codec = OpenCodec(file->Context()->streams[0], 1, path, nullptr);
    const PacketPtr packet(av_packet_alloc());
    const FramePtr frame(av_frame_alloc());
    if (!codec || !packet || !frame || av_read_frame(file->Context(), packet.get()) < 0 ||
        avcodec_send_packet(codec.get(), packet.get()) < 0 ||
        avcodec_send_packet(codec.get(), nullptr) < 0 ||
        avcodec_receive_frame(codec.get(), frame.get()) < 0)
        return {};
    const AVFrameSideData* const matrix =
        av_frame_get_side_data(frame.get(), AV_FRAME_DATA_DISPLAYMATRIX);
    return matrix ? OfMatrix(matrix->data, matrix->size) : Orientation();
}

// Cameras write the orientation of a still picture into its EXIF block, which Qt reads faster where
// it knows the format.
Orientation ReadExifOrientation(const QString& path)
{
    static const bool isKnown = QImageReader::supportedImageFormats().contains("jpeg");
    if (!isKnown)
        return DecodeOrientation(path);
    const QImageIOHandler::Transformations turn = QImageReader(path, "jpeg").transformation();
    const bool isFlipped = turn.testFlag(QImageIOHandler::TransformationFlip);
    Orientation result;
    result.mirrored = turn.testFlag(QImageIOHandler::TransformationMirror) != isFlipped;
    result.rotation =
        (isFlipped ? 180 : 0) + (turn.testFlag(QImageIOHandler::TransformationRotate90) ? 90 : 0);
    result.rotation %= 360;
    return result;
}

bool IsStillFormat(const AVFormatContext* context)
{
    const QLatin1String name(context->iformat->name);
    if (name.endsWith(QLatin1String("_pipe")) || name == QLatin1String("image2"))
        return true;
    // The containers of films hold stills as well, under brands of their own.
    const AVDictionaryEntry* const brand =
        av_dict_get(context->metadata, "major_brand", nullptr, 0);
    return brand != nullptr &&
           QByteArrayList{"avif", "heic", "heix", "mif1"}.contains(brand->value);
}

// A moving-picture format for web pages that often holds a single picture.
bool HoldsOnePicture(MediaFile& file)
{
    if (!file.IsFormat("gif") && !file.IsFormat("apng"))
        return false;
    AVFormatContext* const context = file.Context();
    const PacketPtr packet(av_packet_alloc());
    int pictures = 0;
    while (pictures < 2 && av_read_frame(context, packet.get()) >= 0) {
        av_packet_unref(packet.get());
        ++pictures;
    }
    file.SeekToStart(0, 0);
    return pictures < 2;
}

NLEStreamType TypeOf(const AVStream* stream)
{
    const AVCodecParameters* const codec = stream->codecpar;
    const bool hasDecoder = FindDecoder(stream) != nullptr;
    switch (codec->codec_type) {
    case AVMEDIA_TYPE_UNKNOWN:
        return NLEStream_Unknown;
    case AVMEDIA_TYPE_VIDEO:
        if ((stream->disposition & AV_DISPOSITION_ATTACHED_PIC) != 0 || !hasDecoder)
            return NLEStream_Other;
        return codec->width > 0 && codec->height > 0 ? NLEStream_Video : NLEStream_Other;
    case AVMEDIA_TYPE_AUDIO:
        return hasDecoder && codec->sample_rate > 0 && codec->ch_layout.nb_channels > 0
                   ? NLEStream_Audio
                   : NLEStream_Other;
    default:
        return NLEStream_Other;
    }
}

// Matroska notes the end of each track as text: hours:minutes:seconds.nanoseconds.
std::int64_t ReadDurationTag(const AVStream* stream)
{
    const AVDictionaryEntry* const tag = av_dict_get(stream->metadata, "DURATION", nullptr, 0);
    const QStringList parts =
        tag != nullptr ? QString::fromUtf8(tag->value).split(QLatin1Char(':')) : QStringList();
    if (parts.size() != 3)
        return 0;
    const std::int64_t minutes = parts[0].toLongLong() * 60 + parts[1].toLongLong();
    return minutes * 60000000 + std::llround(parts[2].toDouble() * 1e6);
}

std::int64_t StartTicks(const AVStream* stream)
{
    return stream->start_time != AV_NOPTS_VALUE ? stream->start_time : 0;
}

std::int64_t StartUs(const AVStream* stream)
{
    return av_rescale_q(StartTicks(stream), stream->time_base, kMicroseconds);
}

std::int64_t DurationUs(const AVFormatContext* context, const AVStream* stream)
{
    if (stream->duration > 0)
        return av_rescale_q(stream->duration, stream->time_base, kMicroseconds);
    const std::int64_t start = StartUs(stream);
    if (const std::int64_t end = ReadDurationTag(stream); end > start)
        return end - start;
    if (context->duration <= 0)
        return 0;
    const std::int64_t first = context->start_time != AV_NOPTS_VALUE ? context->start_time : start;
    return std::max<std::int64_t>(0, context->duration - (start - first));
}

bool HasAlpha(const AVStream* stream)
{
    const AVDictionaryEntry* const mode = av_dict_get(stream->metadata, "alpha_mode", nullptr, 0);
    if (mode != nullptr && mode->value[0] == '1')
        return true;
    const AVPixFmtDescriptor* const format =
        av_pix_fmt_desc_get(AVPixelFormat(stream->codecpar->format));
    return format != nullptr && (format->flags & AV_PIX_FMT_FLAG_ALPHA) != 0;
}

void DescribeColours(const AVStream* stream, MediaStream* result)
{
    const AVCodecParameters* const codec = stream->codecpar;
    result->hasAlpha = HasAlpha(stream);
    result->colours = {codec->color_primaries, codec->color_trc, codec->color_space,
                       codec->color_range};
    if (const AVPixFmtDescriptor* format = av_pix_fmt_desc_get(AVPixelFormat(codec->format)))
        result->bitDepth = format->comp[0].depth;
    result->peakLuminance = PeakOf(stream);
}

void DescribePicture(const MediaFile& file, const AVStream* stream, const QString& path,
                     MediaStream* result)
{
    const AVCodecParameters* const codec = stream->codecpar;
    const bool isStill = IsStillFormat(file.Context());
    const Orientation orientation = isStill && codec->codec_id == AV_CODEC_ID_MJPEG
                                        ? ReadExifOrientation(path)
                                        : ReadDisplayMatrix(stream);
    result->rotation = orientation.rotation;
    result->mirrored = orientation.mirrored;
    result->width = codec->width;
    result->height = codec->height;
    AVRational aspect =
        av_guess_sample_aspect_ratio(file.Context(), const_cast<AVStream*>(stream), nullptr);
    if (!IsValid(aspect))
        aspect = {1, 1};
    if (orientation.rotation % 180 != 0) {
        std::swap(result->width, result->height);
        std::swap(aspect.num, aspect.den);
    }
    result->sampleAspect = {aspect.num, aspect.den};
    DescribeColours(stream, result);
    result->reorderDelay = codec->video_delay;
    const FrameGrid grid = DeclaredGrid(stream);
    result->frameRate = {grid.rate.num, grid.rate.den};
    result->constantRate = grid.isConstant;
    if (IsValid(stream->avg_frame_rate))
        result->meanRate = {stream->avg_frame_rate.num, stream->avg_frame_rate.den};
}

MediaStream Describe(const MediaFile& file, const AVStream* stream, const QString& path)
{
    const AVCodecParameters* const codec = stream->codecpar;
    MediaStream result;
    result.type = TypeOf(stream);
    result.bitRate = codec->bit_rate;
    result.fourcc = codec->codec_tag;
    result.codecName = avcodec_get_name(codec->codec_id);
    if (const char* profile = avcodec_profile_name(codec->codec_id, codec->profile))
        result.profileName = profile;
    result.durationUs = DurationUs(file.Context(), stream);
    result.startTicks = StartTicks(stream);
    result.startUs = StartUs(stream);
    if (result.type == NLEStream_Video)
        DescribePicture(file, stream, path, &result);
    if (result.type == NLEStream_Audio) {
        result.sampleRate = codec->sample_rate;
        result.channels = codec->ch_layout.nb_channels;
        // The shortest frame of Opus lasts 2.5 ms; it does not say more.
        const bool isOpus = codec->codec_id == AV_CODEC_ID_OPUS;
        result.frameSamples = isOpus ? codec->sample_rate / 400 : codec->frame_size;
        result.sampleFormat = codec->format;
    }
    return result;
}

// Time of the last tag of a Flash video (Adobe Flash Video File Format 10.1, annex E.4.1) in
// microseconds; -1 when it cannot be read. Its size stands behind it.
std::int64_t LastFlashTagUs(AVFormatContext* context)
{
    constexpr std::int64_t sizeBytes = 4;
    constexpr std::int64_t timeAt = 4;
    AVIOContext* const bytes = context->pb;
    const std::int64_t position = avio_tell(bytes);
    const std::int64_t end = avio_size(bytes) - sizeBytes;
    std::int64_t time = -1;
    if (end > 0 && avio_seek(bytes, end, SEEK_SET) >= 0) {
        const std::int64_t tag = end - std::int64_t(avio_rb32(bytes));
        if (tag > 0 && avio_seek(bytes, tag + timeAt, SEEK_SET) >= 0) {
            time = avio_rb24(bytes);
            time |= std::int64_t(avio_r8(bytes)) << 24;
            time *= 1000;
        }
    }
    avio_seek(bytes, position, SEEK_SET);
    return time;
}

// Recordings that were never finished say nothing about their length, or, as an AVI whose head
// could not be written anew, a placeholder that disagrees with itself. A Flash video that says
// nothing is taken to end where its last tag begins.
bool TellsLength(const MediaFile& file, int index, const MediaStream& description)
{
    const AVStream* const stream = file.Context()->streams[index];
    const bool isContradicted = file.IsFormat("avi") && description.type == NLEStream_Video &&
                                std::abs(stream->nb_frames - stream->duration) > 1;
    const bool isGuessed =
        file.IsFormat("flv") && file.Context()->duration == LastFlashTagUs(file.Context());
    return description.durationUs > 0 && !isContradicted && !isGuessed;
}

// Reads the file through. Where that takes too long, the rest is taken to be like what was read.
void MeasureStream(MediaFile& file, int index, MediaStream* stream)
{
    AVFormatContext* const context = file.Context();
    const AVStream* const source = context->streams[index];
    const PacketPtr packet(av_packet_alloc());
    std::int64_t end = stream->startTicks;
    std::int64_t steps = -1; // from one packet to the next
    bool hasDurations = false;
    int result = 0;
    file.LimitTime();
    while ((result = av_read_frame(context, packet.get())) >= 0) {
        // Without times in the file the pictures follow each other.
        const std::int64_t time = packet->pts != AV_NOPTS_VALUE ? packet->pts : end;
        if (packet->stream_index == index) {
            end = std::max(end, time + packet->duration);
            ++steps;
            hasDurations = hasDurations || packet->duration > 0;
        }
        av_packet_unref(packet.get());
    }
    std::int64_t length = end - stream->startTicks;
    // Where no packet says how long it lasts, the last one does as the others on average.
    if (!hasDurations && steps > 0)
        length += length / steps;
    const std::int64_t position = avio_tell(context->pb);
    const bool isCutShort = result == AVERROR_EXIT || context->pb->error == AVERROR_EXIT;
    if (isCutShort && position > 0)
        length = av_rescale(length, avio_size(context->pb), position);
    stream->durationUs = av_rescale_q(length, source->time_base, kMicroseconds);
}

// The stream that a player would choose: marked as default, then the largest, then the first.
int PreferredStream(const AVFormatContext* context, const MediaInfo& info, NLEStreamType type)
{
    int best = -1;
    std::int64_t bestRank = -1;
    for (int i = 0; i < int(info.streams.size()); ++i) {
        const MediaStream& stream = info.streams[size_t(i)];
        if (stream.type != type)
            continue;
        const bool isDefault = (context->streams[i]->disposition & AV_DISPOSITION_DEFAULT) != 0;
        const std::int64_t size =
            type == NLEStream_Video ? std::int64_t(stream.width) * stream.height : stream.channels;
        const std::int64_t rank = size + (isDefault ? std::int64_t(1) << 40 : 0);
        if (rank > bestRank) {
            best = i;
            bestRank = rank;
        }
    }
    return best;
}

std::uint32_t CountFrames(std::int64_t durationUs, const NLERational& rate)
{
    const std::int64_t count =
        av_rescale_q(durationUs, kMicroseconds, {int(rate.den), int(rate.num)});
    return std::uint32_t(std::clamp<std::int64_t>(count, 0, INT32_MAX));
}

// The frame after those of the last picture that the packets at the end of the index hold; 0 where
// there is no index of the whole file or its end cannot be read. Parts that an edit list cuts away
// do not count.
std::uint32_t FindEnd(MediaFile& file, const AVStream* stream, const MediaStream& description)
{
    AVFormatContext* const context = file.Context();
    auto* const source = const_cast<AVStream*>(stream);
    const int entries = avformat_index_get_entries_count(source);
    // So many packets can stand after that of the picture shown last.
    const int first = entries - 1 - stream->codecpar->video_delay;
    if (!file.IsFormat("mp4") || stream->nb_frames <= 0 || first < 0)
        return 0;
    const std::int64_t start = avformat_index_get_entry(source, first)->timestamp;
    if (av_seek_frame(context, stream->index, start, AVSEEK_FLAG_BACKWARD | AVSEEK_FLAG_ANY) < 0)
        return 0;
    for (unsigned i = 0; i < context->nb_streams; ++i)
        context->streams[i]->discard = int(i) == stream->index ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    const AVRational frame{int(description.frameRate.den), int(description.frameRate.num)};
    const bool hasHoles = HasHoles(stream, av_inv_q(frame));
    const PacketPtr packet(av_packet_alloc());
    std::int64_t end = 0;
    int packets = 0;
    file.LimitTime();
    while (av_read_frame(context, packet.get()) >= 0) {
        if (++packets > kMaxPacketsAtEnd)
            return 0;
        const bool isShown = packet->pts != AV_NOPTS_VALUE &&
                             (packet->flags & (AV_PKT_FLAG_DISCARD | AV_PKT_FLAG_CORRUPT)) == 0;
        if (isShown) {
            const std::int64_t ticks = packet->pts - description.startTicks;
            const std::int64_t hold = av_rescale_q(packet->duration, stream->time_base, frame);
            end = std::max(end, av_rescale_q(ticks, stream->time_base, frame) +
                                    (hasHoles ? std::max<std::int64_t>(1, hold) : 1));
        }
        av_packet_unref(packet.get());
    }
    return std::uint32_t(std::clamp<std::int64_t>(end, 0, INT32_MAX));
}

// The container's own count is exact, but counts pictures: at a variable rate, or with parts cut
// away by an edit list, it is not the number of frames.
std::uint32_t CountFrames(MediaFile& file, const AVStream* stream, const MediaStream& description)
{
    const std::uint32_t expected = CountFrames(description.durationUs, description.frameRate);
    const std::int64_t known = stream->nb_frames;
    const bool isUsable = known > 0 && std::abs(known - std::int64_t(expected)) <= 1;
    const std::uint32_t count = isUsable || expected == 0 ? std::uint32_t(known) : expected;
    const std::uint32_t end = FindEnd(file, stream, description);
    if (end == 0)
        return count;
    // A duration counts from the first time of decoding: where pictures come out of order, the last
    // ones stand behind it by what the decoder holds back. A copied part ends where the sound does,
    // maybe amid a frame that has no picture.
    const AVRational rate{int(description.frameRate.num), int(description.frameRate.den)};
    return HasHoles(stream, rate) ? end : std::min(count, end);
}

// The times of the pictures: of all of them where there is an index, else of the first ones. An
// index holds times of decoding, which lie on the same grid.
std::vector<std::int64_t> PictureTimes(MediaFile& file, AVStream* stream, bool* areAll)
{
    std::vector<std::int64_t> times;
    *areAll = true;
    const int entries = avformat_index_get_entries_count(stream);
    if (file.IsFormat("mp4") && entries > 0 && entries >= stream->nb_frames) {
        for (int entry = 0; entry < entries; ++entry)
            times.push_back(avformat_index_get_entry(stream, entry)->timestamp);
        return times;
    }
    file.SeekToStart(stream->index, StartTicks(stream));
    const PacketPtr packet(av_packet_alloc());
    file.LimitTime();
    while (times.size() < kMaxPicturesRead && av_read_frame(file.Context(), packet.get()) >= 0) {
        if (packet->stream_index == stream->index && packet->pts != AV_NOPTS_VALUE)
            times.push_back(packet->pts);
        av_packet_unref(packet.get());
    }
    *areAll = times.size() < kMaxPicturesRead;
    return times;
}

// A mean rate, or that of the first pictures, would lose pictures where they come closer together.
void ExamineRate(MediaFile& file, AVStream* stream, MediaStream* description)
{
    if (!HasDoubtfulGrid(stream))
        return;
    bool areAll = false;
    const std::vector<std::int64_t> times = PictureTimes(file, stream, &areAll);
    const FrameGrid grid = FindGrid(stream, times);
    description->frameRate = {grid.rate.num, grid.rate.den};
    description->constantRate = grid.isConstant && areAll;
}

void MakeVideo(MediaFile& file, MediaInfo* info)
{
    const AVFormatContext* const context = file.Context();
    for (unsigned i = 0; i < context->nb_streams; ++i) {
        MediaStream& stream = info->streams[i];
        if (stream.type != NLEStream_Video)
            continue;
        stream.fieldOrder = FindFieldOrder(file, context->streams[i], info->path);
        ExamineRate(file, context->streams[i], &stream);
        stream.frameCount = CountFrames(file, context->streams[i], stream);
    }
    const MediaStream& stream = info->streams[size_t(info->videoStream)];
    const AVStream* const source = context->streams[info->videoStream];
    info->kind = NLEMedia_Video;
    info->frameRate = stream.frameRate;
    info->frameCount = std::max(1U, stream.frameCount);
    info->originUs = StartUs(source);
    info->durationUs = av_rescale_q(
        info->frameCount, {int(stream.frameRate.den), int(stream.frameRate.num)}, kMicroseconds);
}

void MakeAudio(const AVFormatContext* context, MediaInfo* info)
{
    const MediaStream& stream = info->streams[size_t(info->audioStream)];
    info->kind = NLEMedia_Audio;
    info->frameRate = kStillRate;
    info->durationUs = stream.durationUs;
    // Before time 0 some containers keep what an encoder needs to settle; it is not played.
    info->originUs = std::max<std::int64_t>(0, StartUs(context->streams[info->audioStream]));
    info->frameCount = std::max(1U, CountFrames(info->durationUs, kStillRate));
}

} // namespace

NLESize DisplayedSize(const MediaStream& stream, const NLERational& aspect)
{
    const double wanted = NLECommon::ToDouble(aspect);
    const double pixel = wanted > 0 ? wanted : NLECommon::ToDouble(stream.sampleAspect);
    if (!(pixel >= 1.0 / kMostPixelAspect && pixel <= kMostPixelAspect))
        return {stream.width, stream.height};
    const double width = std::min(std::round(stream.width * pixel), double(INT32_MAX));
    return {std::max(1, int(width)), stream.height};
}

void MakeStill(MediaInfo* info)
{
    MediaStream& stream = info->streams[size_t(info->videoStream)];
    stream.frameRate = kStillRate;
    stream.durationUs = 1000000 * kStillRate.den / kStillRate.num;
    stream.frameCount = 1;
    info->kind = NLEMedia_Image;
    info->frameCount = 1;
    info->frameRate = kStillRate;
    info->durationUs = stream.durationUs;
}

namespace {

std::shared_ptr<const MediaInfo> ProbeFilm(const QString& path, std::int64_t firstByte,
                                           std::int64_t endByte, QString* error)
{
    const std::unique_ptr<MediaFile> file =
        MediaFile::Open(path, MediaFile::Streams::Examined, error, firstByte, endByte);
    if (!file)
        return nullptr;
    const AVFormatContext* const context = file->Context();
    auto info = std::make_shared<MediaInfo>();
    info->path = path;
    info->firstByte = firstByte;
    info->endByte = endByte;
    info->containerName = QString::fromUtf8(context->iformat->name);
    info->stamp = file->Stamp();
    for (unsigned i = 0; i < context->nb_streams; ++i)
        info->streams.push_back(Describe(*file, context->streams[i], path));
    info->videoStream = PreferredStream(context, *info, NLEStream_Video);
    info->audioStream = PreferredStream(context, *info, NLEStream_Audio);
    if (info->videoStream < 0 && info->audioStream < 0) {
        SetError(error, path, QStringLiteral(": no picture or sound in it"));
        return nullptr;
    }
    if (info->streams.size() == 1 && info->streams[0].bitRate == 0)
        info->streams[0].bitRate = context->bit_rate;

    const bool isMoving = !IsStillFormat(context) && !HoldsOnePicture(*file);
    const int main = info->videoStream >= 0 ? info->videoStream : info->audioStream;
    info->isLengthMeasured = isMoving && !TellsLength(*file, main, info->streams[size_t(main)]);
    if (info->isLengthMeasured)
        MeasureStream(*file, main, &info->streams[size_t(main)]);

    if (info->videoStream < 0)
        MakeAudio(context, info.get());
    else if (!isMoving)
        MakeStill(info.get());
    else
        MakeVideo(*file, info.get());
    return info;
}

// Null where there are no joins, and where hardly one recording can be read.
std::shared_ptr<const MediaInfo> ProbeJoined(const MediaInfo& whole)
{
    std::vector<std::int64_t> joins = FindJoins(whole.path);
    if (joins.empty() || joins.size() > kMostJoins)
        return nullptr;
    joins.push_back(whole.stamp.size);
    std::vector<std::shared_ptr<const MediaInfo>> parts;
    std::int64_t begin = 0;
    for (const std::int64_t end : joins) {
        if (auto part = ProbeFilm(whole.path, begin, end, nullptr))
            parts.push_back(std::move(part));
        begin = end;
    }
    return parts.size() > 1 ? JoinMedia(std::move(parts)) : nullptr;
}

} // namespace

std::shared_ptr<const MediaInfo> ProbeMedia(const QString& path, QString* error)
{
    if (const auto pictures = ProbePictures(path, error))
        return *pictures;
    std::shared_ptr<const MediaInfo> info = ProbeFilm(path, 0, 0, error);
    const bool isTransport = info && info->containerName == QLatin1String("mpegts");
    if (std::shared_ptr<const MediaInfo> joined = isTransport ? ProbeJoined(*info) : nullptr)
        return joined;
    return info;
}

} // namespace nle

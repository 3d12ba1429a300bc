// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/ImageSequence_p.h"
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/MediaLog_p.h"
#include "NLECore/media/WorkThreads.h"

#include <QFileInfo>

#include <algorithm>
#include <cstring>

extern "C" {
#include <libavutil/avstring.h>
#include <libavutil/dict.h>
#include <libavutil/error.h>
#include <libavutil/mathematics.h>
#include <libavutil/mem.h>
}

namespace nle {
namespace {

constexpr std::chrono::seconds kOpenTimeout{10};

// Two changes so close to each other may carry the same time.
constexpr std::chrono::milliseconds kClockStep{100};

constexpr int kMaxThreads = 4;

// A lower score means that nothing but chance speaks for the format.
constexpr int kMinProbeScore = 5;

// Formats that are lists of other files or addresses, that run scripts, or that paint any text.
constexpr const char* kRefusedFormats[] = {
    "applehttp", "avisynth", "concat", "dash", "ffmetadata",        "hls",    "imf",
    "lavfi",     "rtsp",     "sdp",    "tty",  "vapoursynth",       "vobsub", "rtp",
    "bin",       "xbin",     "adf",    "idf",  "webm_dash_manifest"};

bool IsRefused(const AVInputFormat* format)
{
    return std::any_of(std::begin(kRefusedFormats), std::end(kRefusedFormats),
                       [format](const char* name) { return av_match_name(name, format->name); });
}

const QByteArray& AllowedFormats()
{
    static const QByteArray list = [] {
        QByteArray names;
        void* state = nullptr;
        while (const AVInputFormat* format = av_demuxer_iterate(&state)) {
            if (!IsRefused(format))
                names.append(format->name).append(',');
        }
        names.chop(1);
        return names;
    }();
    return list;
}

bool CheckRegularFile(const QString& path, QString* error)
{
    const QFileInfo file(path);
    if (path.isEmpty() || !file.exists())
        SetError(error, path, QStringLiteral(": no such file"));
    else if (file.isDir())
        SetError(error, path, QStringLiteral(" is a folder"));
    else if (!file.isFile())
        SetError(error, path, QStringLiteral(" is not a regular file"));
    else if (file.size() == 0)
        SetError(error, path, QStringLiteral(" is empty"));
    else if (!file.isReadable())
        SetError(error, path, QStringLiteral(" cannot be read"));
    else
        return true;
    return false;
}

QString NotMedia(int result)
{
    return QStringLiteral(": not a media file: ") + AvErrorText(result);
}

// These formats declare codec, size and extra data of each stream in a header.
bool DeclaresStreams(const MediaFile& file)
{
    return file.IsFormat("mp4") || file.IsFormat("matroska");
}

// The protocol that shows a part of another one's bytes as a whole; nothing for all of them.
QByteArray PartPrefix(std::int64_t firstByte, std::int64_t endByte)
{
    return endByte > 0 ? "subfile,,start," + QByteArray::number(qint64(firstByte)) + ",end," +
                             QByteArray::number(qint64(endByte)) + ",,:"
                       : QByteArray();
}

} // namespace

FileStamp StampOf(const QString& path)
{
    const FileStamp stamp = StampOfFile(path);
    return stamp.size < 0 ? StampOfSequence(path) : stamp;
}

bool IsFresh(const FileStamp& stamp)
{
    using namespace std::chrono;
    const auto now = duration_cast<nanoseconds>(system_clock::now().time_since_epoch());
    const std::int64_t age = now.count() - std::max(stamp.modifiedNs, stamp.changedNs);
    return std::abs(age) < nanoseconds(kClockStep).count();
}

QString AvErrorText(int error)
{
    char text[AV_ERROR_MAX_STRING_SIZE] = {};
    av_strerror(error, text, sizeof text);
    return QString::fromUtf8(text);
}

void SetError(QString* error, const QString& path, const QString& what)
{
    if (error != nullptr)
        *error = path + what;
}

std::unique_ptr<MediaFile> MediaFile::Open(const QString& path, Streams streams, QString* error,
                                           std::int64_t firstByte, std::int64_t endByte)
{
    InstallMediaLog();
    if (!CheckRegularFile(path, error))
        return nullptr;

    std::unique_ptr<MediaFile> file(new MediaFile);
    file->m_stamp = StampOf(path);
    file->LimitTime();
    AVFormatContext*& context = file->m_context;
    context = avformat_alloc_context();
    if (context == nullptr)
        return nullptr;
    context->interrupt_callback = {&MediaFile::IsLate, file.get()};
    context->protocol_whitelist = av_strdup(endByte > 0 ? "file,subfile" : "file");
    context->format_whitelist = av_strdup(AllowedFormats().constData());

    // The protocol stands in front, so that no file name can be taken for another protocol.
    const QByteArray url = PartPrefix(firstByte, endByte) +
                           "file:" + EncodeMediaPath(QFileInfo(path).absoluteFilePath());
    // A file name with a number pattern in it means this one file.
    AVDictionary* options = nullptr;
    av_dict_set(&options, "pattern_type", "none", 0);
    int result = avformat_open_input(&context, url.constData(), nullptr, &options);
    av_dict_free(&options);
    if (result < 0) {
        // What the library says to a format that is not on the list.
        if (result == AVERROR(EINVAL))
            result = AVERROR_INVALIDDATA;
        SetError(error, path, NotMedia(result));
        return nullptr;
    }
    if (context->probe_score < kMinProbeScore) {
        SetError(error, path, NotMedia(AVERROR_INVALIDDATA));
        return nullptr;
    }
    if (streams == Streams::Examined)
        result = avformat_find_stream_info(context, nullptr);
    if (result < 0) {
        SetError(error, path, NotMedia(result));
        return nullptr;
    }
    file->m_deadline = {};
    return file;
}

std::unique_ptr<MediaFile> MediaFile::OpenStream(const MediaInfo& info, int stream,
                                                 NLEStreamType type, QString* error)
{
    std::unique_ptr<MediaFile> file =
        Open(info.path, Streams::AsDeclared, error, info.firstByte, info.endByte);
    if (!file)
        return nullptr;
    AVFormatContext* const context = file->Context();
    const bool isKnown =
        file->Matches(info) && (DeclaresStreams(*file) || info.kind == NLEMedia_Image);
    if (!isKnown) {
        file->LimitTime();
        const int result = avformat_find_stream_info(context, nullptr);
        file->m_deadline = {};
        if (result < 0) {
            SetError(error, info.path, NotMedia(result));
            return nullptr;
        }
    }
    if (stream < 0 || stream >= int(context->nb_streams)) {
        SetError(error, info.path, QStringLiteral(" has no stream %1").arg(stream));
        return nullptr;
    }
    const MediaStream* const known = info.Stream(stream);
    AVCodecParameters* const codec = context->streams[stream]->codecpar;
    const bool isPicture = type == NLEStream_Video;
    const AVMediaType wanted = isPicture ? AVMEDIA_TYPE_VIDEO : AVMEDIA_TYPE_AUDIO;
    if (known == nullptr || known->type != type || codec->codec_type != wanted) {
        SetError(error, info.path,
                 QStringLiteral(": stream %1 has no %2")
                     .arg(stream)
                     .arg(QLatin1String(isPicture ? "picture" : "sound")));
        return nullptr;
    }
    for (unsigned i = 0; i < context->nb_streams; ++i)
        context->streams[i]->discard = int(i) == stream ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
    if (isKnown)
        codec->video_delay = known->reorderDelay;
    return file;
}

MediaFile::~MediaFile()
{
    avformat_close_input(&m_context);
}

void MediaFile::LimitTime()
{
    m_deadline = std::chrono::steady_clock::now() + kOpenTimeout;
}

bool MediaFile::SeekToStart(int stream, std::int64_t startTicks)
{
    // Some demuxers search by time of decoding, which lies before the first time of display;
    // others refuse a time before their first packet.
    const std::int64_t margin = av_rescale_q(10, {1, 1}, m_context->streams[stream]->time_base);
    return av_seek_frame(m_context, stream, startTicks - margin, AVSEEK_FLAG_BACKWARD) >= 0 ||
           av_seek_frame(m_context, stream, startTicks, AVSEEK_FLAG_BACKWARD) >= 0 ||
           av_seek_frame(m_context, -1, 0, AVSEEK_FLAG_BYTE) >= 0;
}

bool MediaFile::IsFormat(const char* name) const
{
    return av_match_name(name, m_context->iformat->name) != 0;
}

int MediaFile::IsLate(void* self)
{
    const auto deadline = static_cast<const MediaFile*>(self)->m_deadline;
    const bool isBounded = deadline != std::chrono::steady_clock::time_point{};
    return isBounded && std::chrono::steady_clock::now() > deadline ? 1 : 0;
}

const AVCodec* FindDecoder(const AVStream* stream)
{
    const AVCodecID id = stream->codecpar->codec_id;
    // The built-in decoders of these two know nothing of the second layer that holds the alpha.
    const AVDictionaryEntry* alpha = av_dict_get(stream->metadata, "alpha_mode", nullptr, 0);
    if (alpha != nullptr && std::strcmp(alpha->value, "1") == 0) {
        const char* name = id == AV_CODEC_ID_VP8   ? "libvpx"
                           : id == AV_CODEC_ID_VP9 ? "libvpx-vp9"
                                                   : nullptr;
        if (const AVCodec* codec = name != nullptr ? avcodec_find_decoder_by_name(name) : nullptr)
            return codec;
    }
    return avcodec_find_decoder(id);
}

CodecPtr MakeCodec(const AVStream* stream, const AVCodec* decoder, int threads)
{
    CodecPtr codec(avcodec_alloc_context3(decoder));
    if (!codec || avcodec_parameters_to_context(codec.get(), stream->codecpar) < 0)
        return nullptr;
    codec->pkt_timebase = stream->time_base;
    codec->thread_count = threads > 0 ? threads : WorkThreads(kMaxThreads);
    return codec;
}

CodecPtr OpenCodec(const AVStream* stream, int threads, const QString& path, QString* error)
{
    const auto fail = [&](const QString& reason) {
        SetError(error, path, QStringLiteral(": ") + reason);
        return CodecPtr();
    };
    const AVCodec* const decoder = FindDecoder(stream);
    if (decoder == nullptr) {
        return fail(QStringLiteral("no decoder for ") +
                    QString::fromUtf8(avcodec_get_name(stream->codecpar->codec_id)));
    }
    CodecPtr codec = MakeCodec(stream, decoder, threads);
    if (!codec)
        return fail(QStringLiteral("out of memory"));
    const int result = avcodec_open2(codec.get(), decoder, nullptr);
    if (result < 0 && codec->thread_count > 1)
        return OpenCodec(stream, 1, path, error); // the system may be short of threads
    if (result < 0)
        return fail(QStringLiteral("decoder does not open: ") + AvErrorText(result));
    return codec;
}

} // namespace nle

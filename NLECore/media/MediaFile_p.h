// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/MediaInfo.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/frame.h>
#include <libswresample/swresample.h>
}

namespace nle {

/// Releases the library's objects.
struct AvDeleter
{
    void operator()(AVCodecContext* p) const { avcodec_free_context(&p); }
    void operator()(AVFrame* p) const { av_frame_free(&p); }
    void operator()(AVPacket* p) const { av_packet_free(&p); }
    void operator()(SwrContext* p) const { swr_free(&p); }
};
using CodecPtr = std::unique_ptr<AVCodecContext, AvDeleter>;
using FramePtr = std::unique_ptr<AVFrame, AvDeleter>;
using PacketPtr = std::unique_ptr<AVPacket, AvDeleter>;
using ResamplerPtr = std::unique_ptr<SwrContext, AvDeleter>;

/// That of the file at \a path as it is now; of none where there is no regular file.
FileStamp StampOfFile(const QString& path);
/// A file that was changed just now may be changed again without a trace in its stamp.
bool IsFresh(const FileStamp& stamp);
/// The path in the bytes that the libraries expect on this system.
QByteArray EncodeMediaPath(const QString& path);
/// The library's own words for one of its error numbers.
QString AvErrorText(int error);
/// \a path and what is wrong with it, as one sentence, into \a error unless that is null.
void SetError(QString* error, const QString& path, const QString& what);

/// An open container. Only regular local files, none that leads to other files or to the network.
class MediaFile
{
public:
    enum class Streams
    {
        AsDeclared,
        Examined
    };

    /// Opens the file at \a path. Examined reads into the data until each stream is known; it is
    /// needed for formats that do not declare their streams, and slow. Only the bytes from
    /// \a firstByte to before \a endByte are read, unless that is 0. Null on failure.
    static std::unique_ptr<MediaFile> Open(const QString& path, Streams streams, QString* error,
                                           std::int64_t firstByte = 0, std::int64_t endByte = 0);
    /// Opens the file of \a info for reading \a stream alone, which must be of \a type, Video or
    /// Audio; examined only where it must be. Null on failure.
    static std::unique_ptr<MediaFile> OpenStream(const MediaInfo& info, int stream,
                                                 NLEStreamType type, QString* error);
    ~MediaFile();
    MediaFile(const MediaFile&) = delete;
    MediaFile& operator=(const MediaFile&) = delete;

    AVFormatContext* Context() const { return m_context; }
    const FileStamp& Stamp() const { return m_stamp; }
    /// The content is the one that \a info describes.
    bool Matches(const MediaInfo& info) const { return m_stamp == info.stamp; }
    /// From now on reading fails after some seconds; opening has a limit of its own.
    void LimitTime();
    /// Goes on reading at or before the first packet of \a stream, whose time is \a startTicks.
    bool SeekToStart(int stream, std::int64_t startTicks);
    /// True when \a name is one of the short names of the container format.
    bool IsFormat(const char* name) const;

private:
    MediaFile() = default;
    static int IsLate(void* self);

    AVFormatContext* m_context = nullptr;
    FileStamp m_stamp;
    std::chrono::steady_clock::time_point m_deadline;
};

/// Time that a decoded picture is on show, in ticks of its stream; 0 when unknown.
inline std::int64_t PictureDuration(const AVFrame& frame)
{
#if LIBAVUTIL_VERSION_MAJOR >= 58
    return frame.duration;
#else
    return frame.pkt_duration;
#endif
}

/// Opens a decoder for \a stream with \a threads threads (0: chosen here). Null on failure; \a
/// error then names the file at \a path.
CodecPtr OpenCodec(const AVStream* stream, int threads, const QString& path, QString* error);
/// A \a decoder set up for \a stream, not open yet; null without memory for it.
CodecPtr MakeCodec(const AVStream* stream, const AVCodec* decoder, int threads);
/// The decoder for a stream; null when this build of the libraries has none.
const AVCodec* FindDecoder(const AVStream* stream);

} // namespace nle

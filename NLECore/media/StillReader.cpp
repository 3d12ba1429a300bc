// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/StillReader_p.h"

#include "NLECore/media/ColourProfile_p.h"
#include "NLECore/media/EngineLog.h"
#include "NLECore/media/InkPictures_p.h"
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/PictureFormats_p.h"
#include "NLECore/media/PictureScaler_p.h"

namespace nle {
namespace {

// The first picture of the stream that can be decoded.
FramePtr DecodeFirst(MediaFile& file, AVCodecContext* codec, int stream)
{
    const PacketPtr packet(av_packet_alloc());
    FramePtr frame(av_frame_alloc());
    if (!packet || !frame)
        return nullptr;
    bool isAtEnd = false;
    while (!isAtEnd) {
        isAtEnd = av_read_frame(file.Context(), packet.get()) < 0;
        const bool isCut = (packet->flags & AV_PKT_FLAG_CORRUPT) != 0;
        if (isAtEnd)
            avcodec_send_packet(codec, nullptr);
        else if (packet->stream_index == stream && !isCut)
            avcodec_send_packet(codec, packet.get());
        av_packet_unref(packet.get());
        if (avcodec_receive_frame(codec, frame.get()) == 0)
            return frame;
    }
    return nullptr;
}

QByteArray ProfileOf(const AVFrame& frame)
{
    const AVFrameSideData* const data = av_frame_get_side_data(&frame, AV_FRAME_DATA_ICC_PROFILE);
    return data != nullptr ? QByteArray(reinterpret_cast<const char*>(data->data), int(data->size))
                           : QByteArray();
}

std::optional<InkPicture> ReadInks([[maybe_unused]] const MediaInfo& info,
                                   [[maybe_unused]] const MediaStream& stream)
{
#ifdef NLECORE_WITH_TURBOJPEG
    if (stream.codecName == "mjpeg")
        return ReadInkJpeg(info.path);
#endif
#ifdef NLECORE_WITH_TIFF
    if (stream.codecName == "tiff")
        return ReadInkTiff(info.path);
#endif
    return std::nullopt;
}

/// The picture at its own size by the profile of its inks; null when it has none.
QImage ReadPrinted(const MediaInfo& info, const MediaStream& stream, const QByteArray& profile)
{
    if (!IsOfInks(profile))
        return {};
    const std::optional<InkPicture> inks = ReadInks(info, stream);
    return inks ? Upright(FromInks(*inks, profile), stream) : QImage();
}

QImage ReadCoded(const MediaInfo& info, int stream, const QSize& size, QString* error)
{
    const auto file = MediaFile::OpenStream(info, stream, NLEStream_Video, error);
    if (!file)
        return {};
    const CodecPtr codec = OpenCodec(file->Context()->streams[stream], 0, info.path, error);
    if (!codec)
        return {};
    const FramePtr frame = DecodeFirst(*file, codec.get(), stream);
    if (!frame) {
        SetError(error, info.path, QStringLiteral(": the picture cannot be decoded"));
        return {};
    }
    const MediaStream& description = *info.Stream(stream);
    const QByteArray profile = ProfileOf(*frame);
    const QImage printed = ReadPrinted(info, description, profile);
    if (!printed.isNull())
        return ScalePicture(printed, size);
    PictureScaler scaler;
    QImage picture = scaler.Convert(*frame, description, size);
    ConvertToSrgb(&picture, profile, info.path);
    return picture;
}

} // namespace

QImage ReadStill(const MediaInfo& info, int stream, const QSize& size)
{
    QString error;
    const StillFormat* const format = FormatOf(info);
    QImage picture = format != nullptr ? format->read(info.path, size, &error)
                                       : ReadCoded(info, stream, size, &error);
    if (picture.isNull())
        qCWarning(lcEngine, "%s", qUtf8Printable(error));
    return picture;
}

QImage ScalePicture(const QImage& picture, const QSize& size)
{
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32);
}

} // namespace nle

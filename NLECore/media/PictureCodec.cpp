// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/PictureCodec.h"

#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/PictureScaler_p.h"

#include <cstring>

extern "C" {
#include <libavutil/opt.h>
#include <libswscale/swscale.h>
}

namespace nle {

namespace {

struct FormatTraits
{
    AVCodecID codec;
    AVPixelFormat coded;  ///< as the codec names it
    AVPixelFormat scaled; ///< the same planes as the scaler names them
    QImage::Format image;
};

FormatTraits TraitsOf(PictureFormat format)
{
    switch (format) {
    case PictureFormat::Compact:
        return {AV_CODEC_ID_MJPEG, AV_PIX_FMT_YUVJ420P, AV_PIX_FMT_YUV420P, QImage::Format_RGB32};
    case PictureFormat::Fine:
        return {AV_CODEC_ID_MJPEG, AV_PIX_FMT_YUVJ444P, AV_PIX_FMT_YUV444P, QImage::Format_RGB32};
    case PictureFormat::Exact:
        break;
    }
    return {AV_CODEC_ID_QOI, AV_PIX_FMT_RGBA, AV_PIX_FMT_RGBA, QImage::Format_ARGB32};
}

/// Beside the number of the colours.
constexpr int kFullRange = 0x80;

struct ScalerFreer
{
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
};

} // namespace

struct PictureEncoder::Private
{
    FormatTraits traits;
    CodecPtr codec;
    FramePtr frame{av_frame_alloc()};
    PacketPtr packet{av_packet_alloc()};
    std::unique_ptr<SwsContext, ScalerFreer> scaler;
    std::unique_ptr<SwsContext, ScalerFreer> decodedScaler;

    QByteArray EncodeFrame(AVColorSpace colours, bool isFullRange);

    bool OpenCodec(const QSize& size, int quantizer)
    {
        const AVCodec* encoder = avcodec_find_encoder(traits.codec);
        codec.reset(encoder ? avcodec_alloc_context3(encoder) : nullptr);
        if (!codec)
            return false;
        codec->width = size.width();
        codec->height = size.height();
        codec->time_base = {1, 25};
        codec->pix_fmt = traits.coded;
        codec->thread_count = 1;
        if (traits.codec == AV_CODEC_ID_MJPEG) {
            codec->color_range = AVCOL_RANGE_JPEG;
            codec->flags |= AV_CODEC_FLAG_QSCALE;
            codec->global_quality = quantizer * FF_QP2LAMBDA;
            codec->qmin = std::min(codec->qmin, quantizer);
            // Tables of its own for each picture save little and cost a pass.
            av_opt_set(codec->priv_data, "huffman", "default", 0);
        }
        return avcodec_open2(codec.get(), encoder, nullptr) >= 0;
    }

    bool OpenScaler(const QSize& size)
    {
        frame->format = traits.coded;
        frame->width = size.width();
        frame->height = size.height();
        scaler.reset(sws_getContext(size.width(), size.height(), AV_PIX_FMT_BGRA, size.width(),
                                    size.height(), traits.scaled, SWS_BILINEAR, nullptr, nullptr,
                                    nullptr));
        if (!scaler || av_frame_get_buffer(frame.get(), 0) < 0)
            return false;
        const int* matrix = sws_getCoefficients(SWS_CS_ITU601);
        if (traits.codec == AV_CODEC_ID_MJPEG)
            sws_setColorspaceDetails(scaler.get(), matrix, 1, matrix, 1, 0, 1 << 16, 1 << 16);
        return true;
    }
};

PictureEncoder::PictureEncoder(std::unique_ptr<Private> state) : d(std::move(state)) {}

PictureEncoder::~PictureEncoder() = default;

std::unique_ptr<PictureEncoder> PictureEncoder::Open(const QSize& size, const PictureCoding& coding)
{
    auto d = std::make_unique<Private>();
    d->traits = TraitsOf(coding.format);
    if (!d->frame || !d->packet || !d->OpenCodec(size, coding.quantizer) || !d->OpenScaler(size))
        return nullptr;
    return std::unique_ptr<PictureEncoder>(new PictureEncoder(std::move(d)));
}

QByteArray PictureEncoder::Encode(const QImage& picture)
{
    AVFrame* frame = d->frame.get();
    QImage source = picture;
    // The scaler reads four bytes a pixel; without alpha the fourth one does not matter.
    if (d->traits.image == QImage::Format_ARGB32 || picture.depth() != 32)
        source = picture.convertToFormat(d->traits.image);
    if (source.width() != frame->width || source.height() != frame->height ||
        av_frame_make_writable(frame) < 0)
        return {};
    const std::uint8_t* const planes[] = {source.constBits()};
    const int strides[] = {int(source.bytesPerLine())};
    sws_scale(d->scaler.get(), planes, strides, 0, source.height(), frame->data, frame->linesize);
    return d->EncodeFrame(AVCOL_SPC_BT470BG, true);
}

QByteArray PictureEncoder::Encode(const AVFrame& decoded)
{
    AVFrame* frame = d->frame.get();
    bool isFullRange = decoded.color_range == AVCOL_RANGE_JPEG;
    const AVPixelFormat format = ModernFormat(AVPixelFormat(decoded.format), &isFullRange);
    if (!IsPlainYuv(decoded) || d->traits.codec != AV_CODEC_ID_MJPEG ||
        av_frame_make_writable(frame) < 0)
        return {};
    const bool isShrinking = frame->width <= decoded.width && frame->height <= decoded.height;
    d->decodedScaler.reset(
        sws_getCachedContext(d->decodedScaler.release(), decoded.width, decoded.height, format,
                             frame->width, frame->height, d->traits.scaled,
                             isShrinking ? SWS_BILINEAR : SWS_BICUBIC, nullptr, nullptr, nullptr));
    if (!d->decodedScaler || sws_scale(d->decodedScaler.get(), decoded.data, decoded.linesize, 0,
                                       decoded.height, frame->data, frame->linesize) <= 0)
        return {};
    return d->EncodeFrame(ColoursOf(decoded), isFullRange);
}

// A byte before the data names the colours.
QByteArray PictureEncoder::Private::EncodeFrame(AVColorSpace colours, bool isFullRange)
{
    frame->quality = codec->global_quality;
    frame->pts++;
    av_packet_unref(packet.get());
    if (avcodec_send_frame(codec.get(), frame.get()) < 0 ||
        avcodec_receive_packet(codec.get(), packet.get()) < 0)
        return {};
    QByteArray data(1 + packet->size, Qt::Uninitialized);
    data[0] = char(colours | (isFullRange ? kFullRange : 0));
    std::memcpy(data.data() + 1, packet->data, std::size_t(packet->size));
    return data;
}

struct PictureDecoder::Private
{
    FormatTraits traits;
    CodecPtr codec;
    FramePtr frame{av_frame_alloc()};
    PacketPtr packet{av_packet_alloc()};
    PictureScaler scaler;
};

PictureDecoder::PictureDecoder(std::unique_ptr<Private> state) : d(std::move(state)) {}

PictureDecoder::~PictureDecoder() = default;

std::unique_ptr<PictureDecoder> PictureDecoder::Open(PictureFormat format)
{
    auto d = std::make_unique<Private>();
    d->traits = TraitsOf(format);
    const AVCodec* decoder = avcodec_find_decoder(d->traits.codec);
    d->codec.reset(decoder ? avcodec_alloc_context3(decoder) : nullptr);
    if (!d->codec || !d->frame || !d->packet)
        return nullptr;
    d->codec->thread_count = 1;
    if (avcodec_open2(d->codec.get(), decoder, nullptr) < 0)
        return nullptr;
    return std::unique_ptr<PictureDecoder>(new PictureDecoder(std::move(d)));
}

QImage PictureDecoder::Decode(const QByteArray& data, const QSize& size)
{
    AVPacket* packet = d->packet.get();
    av_packet_unref(packet);
    if (data.size() < 2 || av_new_packet(packet, data.size() - 1) < 0)
        return {};
    std::memcpy(packet->data, data.constData() + 1, std::size_t(packet->size));
    packet->flags |= AV_PKT_FLAG_KEY;
    if (avcodec_send_packet(d->codec.get(), packet) < 0 ||
        avcodec_receive_frame(d->codec.get(), d->frame.get()) < 0) {
        avcodec_flush_buffers(d->codec.get());
        return {};
    }
    const int tag = std::uint8_t(data[0]);
    bool isNamedFull = false;
    d->frame->format = ModernFormat(AVPixelFormat(d->frame->format), &isNamedFull);
    d->frame->colorspace = AVColorSpace(tag & ~kFullRange);
    d->frame->color_range = (tag & kFullRange) != 0 ? AVCOL_RANGE_JPEG : AVCOL_RANGE_MPEG;
    QImage image = d->scaler.Convert(*d->frame, MediaStream(), size);
    if (!image.isNull() && d->traits.image == QImage::Format_RGB32)
        image.reinterpretAsFormat(QImage::Format_RGB32);
    return image;
}

} // namespace nle

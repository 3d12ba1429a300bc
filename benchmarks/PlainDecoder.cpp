// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PlainDecoder.h"

#include <QFile>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

struct PlainDecoder::Private
{
    AVFormatContext* format = nullptr;
    AVCodecContext* codec = nullptr;
    AVStream* stream = nullptr;
    AVPacket* packet = av_packet_alloc();
    AVFrame* frame = av_frame_alloc();
    SwsContext* scaler = nullptr;

    ~Private()
    {
        sws_freeContext(scaler);
        av_frame_free(&frame);
        av_packet_free(&packet);
        avcodec_free_context(&codec);
        avformat_close_input(&format);
    }

    bool Decode()
    {
        for (;;) {
            const int result = avcodec_receive_frame(codec, frame);
            if (result != AVERROR(EAGAIN))
                return result == 0;
            do
                av_packet_unref(packet);
            while (av_read_frame(format, packet) >= 0 && packet->stream_index != stream->index);
            avcodec_send_packet(codec, packet->data != nullptr ? packet : nullptr);
        }
    }

    QImage Scale(const QSize& size)
    {
        QImage image(size, QImage::Format_ARGB32);
        const bool isNew = scaler == nullptr;
        scaler = sws_getCachedContext(scaler, frame->width, frame->height,
                                      AVPixelFormat(frame->format), size.width(), size.height(),
                                      AV_PIX_FMT_BGRA, SWS_BILINEAR, nullptr, nullptr, nullptr);
        if (isNew) {
            const int* const matrix = sws_getCoefficients(SWS_CS_ITU709);
            // The brightness makes up for what the quick conversion cuts off.
            sws_setColorspaceDetails(scaler, matrix, 0, matrix, 1, 192, 1 << 16, 1 << 16);
        }
        std::uint8_t* const planes[4] = {image.bits()};
        const int strides[4] = {int(image.bytesPerLine())};
        sws_scale(scaler, frame->data, frame->linesize, 0, frame->height, planes, strides);
        return image;
    }
};

PlainDecoder::PlainDecoder(std::unique_ptr<Private> state) : d(std::move(state)) {}

PlainDecoder::~PlainDecoder() = default;

std::unique_ptr<PlainDecoder> PlainDecoder::Open(const QString& path, int threads)
{
    auto state = std::make_unique<Private>();
    if (avformat_open_input(&state->format, QFile::encodeName(path).constData(), nullptr, nullptr) <
        0)
        return nullptr;
    avformat_find_stream_info(state->format, nullptr);
    const AVCodec* decoder = nullptr;
    const int index = av_find_best_stream(state->format, AVMEDIA_TYPE_VIDEO, -1, -1, &decoder, 0);
    if (index < 0)
        return nullptr;
    state->stream = state->format->streams[index];
    state->codec = avcodec_alloc_context3(decoder);
    avcodec_parameters_to_context(state->codec, state->stream->codecpar);
    state->codec->pkt_timebase = state->stream->time_base;
    state->codec->thread_count = threads;
    if (avcodec_open2(state->codec, decoder, nullptr) < 0)
        return nullptr;
    return std::unique_ptr<PlainDecoder>(new PlainDecoder(std::move(state)));
}

QImage PlainDecoder::Next(const QSize& size)
{
    return d->Decode() ? d->Scale(size) : QImage();
}

QImage PlainDecoder::At(int frame, const QSize& size)
{
    const AVRational rate = d->stream->r_frame_rate;
    const std::int64_t ticks =
        d->stream->start_time + av_rescale_q(frame, {rate.den, rate.num}, d->stream->time_base);
    av_seek_frame(d->format, d->stream->index, ticks, AVSEEK_FLAG_BACKWARD);
    avcodec_flush_buffers(d->codec);
    while (d->Decode()) {
        if (d->frame->pts >= ticks)
            return d->Scale(size);
    }
    return {};
}

void PlainDecoder::Rewind()
{
    av_seek_frame(d->format, d->stream->index, d->stream->start_time, AVSEEK_FLAG_BACKWARD);
    avcodec_flush_buffers(d->codec);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/MediaWriter.h"

#include "NLECore/media/MediaFile_p.h"

#include <QFile>

#include <cstdio>

extern "C" {
#include <libavutil/audio_fifo.h>
#include <libavutil/opt.h>
#include <libswscale/swscale.h>
}

namespace nle {

namespace {

/// Samples in a packet of codecs that take any number.
constexpr int kFreeFrameSamples = 1024;

struct FormatFreer
{
    void operator()(AVFormatContext* format) const
    {
        avio_closep(&format->pb);
        avformat_free_context(format);
    }
};
struct FifoFreer
{
    void operator()(AVAudioFifo* fifo) const { av_audio_fifo_free(fifo); }
};
struct ScalerFreer
{
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
};

/// One stream being written.
struct Track
{
    CodecPtr codec;
    AVStream* stream = nullptr;
    FramePtr frame;
    int64_t next = 0; ///< time stamp of what comes next, in the codec's time base
};

} // namespace

struct MediaWriter::Private
{
    QString path;
    QString temporaryPath;
    QString error;
    std::unique_ptr<AVFormatContext, FormatFreer> format;
    PacketPtr packet{av_packet_alloc()};
    Track video;
    Track audio;
    std::unique_ptr<SwsContext, ScalerFreer> scaler;
    ResamplerPtr resampler;
    std::unique_ptr<AVAudioFifo, FifoFreer> fifo;
    bool finished = false;

    bool Check(int code)
    {
        if (code >= 0)
            return true;
        error = AvErrorText(code);
        return false;
    }

    bool Fail(const char* reason)
    {
        error = QString::fromLatin1(reason);
        return false;
    }

    bool OpenFormat()
    {
        AVFormatContext* context = nullptr;
        // The name with its suffix chooses the container; the bytes go to the temporary name.
        avformat_alloc_output_context2(&context, nullptr, nullptr,
                                       EncodeMediaPath(path).constData());
        if (!context)
            return Fail("no container goes by this suffix");
        format.reset(context);
        return true;
    }

    bool AddTrack(Track& track, AVCodecID id)
    {
        const AVCodec* codec = avcodec_find_encoder(id);
        if (!codec)
            return Fail("no encoder for this container");
        track.codec.reset(avcodec_alloc_context3(codec));
        track.frame.reset(av_frame_alloc());
        track.stream = avformat_new_stream(format.get(), nullptr);
        if (!track.codec || !track.frame || !track.stream)
            return Fail("out of memory");
        if (format->oformat->flags & AVFMT_GLOBALHEADER)
            track.codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
        return true;
    }

    bool StartTrack(Track& track)
    {
        if (!Check(avcodec_open2(track.codec.get(), nullptr, nullptr)))
            return false;
        track.stream->time_base = track.codec->time_base;
        return Check(avcodec_parameters_from_context(track.stream->codecpar, track.codec.get()));
    }

    bool AddVideo(const WriterSettings& settings)
    {
        if (!AddTrack(video, format->oformat->video_codec))
            return false;
        AVCodecContext* codec = video.codec.get();
        codec->width = settings.size.width();
        codec->height = settings.size.height();
        codec->framerate = {int(settings.frameRate.num), int(settings.frameRate.den)};
        av_reduce(&codec->framerate.num, &codec->framerate.den, settings.frameRate.num,
                  settings.frameRate.den, 1001000);
        codec->time_base = av_inv_q(codec->framerate);
        codec->pix_fmt = codec->codec->pix_fmts ? codec->codec->pix_fmts[0] : AV_PIX_FMT_YUV420P;
        codec->color_range = AVCOL_RANGE_MPEG;
        codec->colorspace = AVCOL_SPC_BT709;
        codec->color_primaries = AVCOL_PRI_BT709;
        codec->color_trc = AVCOL_TRC_BT709;
        if (av_opt_set_double(codec->priv_data, "crf", settings.quality, 0) < 0) {
            codec->flags |= AV_CODEC_FLAG_QSCALE;
            codec->global_quality = settings.quality * FF_QP2LAMBDA;
        }
        av_opt_set(codec->priv_data, "preset", "veryfast", 0);
        if (!StartTrack(video))
            return false;
        video.stream->avg_frame_rate = codec->framerate;
        AVFrame* frame = video.frame.get();
        frame->format = codec->pix_fmt;
        frame->width = codec->width;
        frame->height = codec->height;
        if (!Check(av_frame_get_buffer(frame, 0)))
            return false;
        scaler.reset(sws_getContext(codec->width, codec->height, AV_PIX_FMT_BGRA, codec->width,
                                    codec->height, codec->pix_fmt, SWS_BILINEAR, nullptr, nullptr,
                                    nullptr));
        if (!scaler)
            return Fail("no conversion to the codec's pixels");
        const int* matrix = sws_getCoefficients(SWS_CS_ITU709);
        sws_setColorspaceDetails(scaler.get(), matrix, 1, matrix, 0, 0, 1 << 16, 1 << 16);
        return true;
    }

    bool AddAudio(const WriterSettings& settings)
    {
        if (!AddTrack(audio, format->oformat->audio_codec))
            return false;
        AVCodecContext* codec = audio.codec.get();
        codec->sample_rate = settings.sampleRate;
        codec->sample_fmt =
            codec->codec->sample_fmts ? codec->codec->sample_fmts[0] : AV_SAMPLE_FMT_FLT;
        av_channel_layout_default(&codec->ch_layout, settings.channels);
        codec->bit_rate = settings.audioBitRate;
        codec->time_base = {1, settings.sampleRate};
        if (!StartTrack(audio))
            return false;
        SwrContext* context = nullptr;
        if (!Check(swr_alloc_set_opts2(&context, &codec->ch_layout, codec->sample_fmt,
                                       codec->sample_rate, &codec->ch_layout, AV_SAMPLE_FMT_FLT,
                                       codec->sample_rate, 0, nullptr)))
            return false;
        resampler.reset(context);
        fifo.reset(av_audio_fifo_alloc(codec->sample_fmt, settings.channels, kFreeFrameSamples));
        return Check(swr_init(context)) && (fifo || Fail("out of memory"));
    }

    bool Start()
    {
        if (!Check(avio_open(&format->pb, ("file:" + EncodeMediaPath(temporaryPath)).constData(),
                             AVIO_FLAG_WRITE)))
            return false;
        return Check(avformat_write_header(format.get(), nullptr));
    }

    /// Encodes the track's frame, or what the encoder holds back when \a frame is null.
    bool Encode(Track& track, const AVFrame* frame)
    {
        if (!Check(avcodec_send_frame(track.codec.get(), frame)))
            return false;
        for (;;) {
            const int code = avcodec_receive_packet(track.codec.get(), packet.get());
            if (code == AVERROR(EAGAIN) || code == AVERROR_EOF)
                return true;
            if (!Check(code))
                return false;
            av_packet_rescale_ts(packet.get(), track.codec->time_base, track.stream->time_base);
            packet->stream_index = track.stream->index;
            if (!Check(av_interleaved_write_frame(format.get(), packet.get())))
                return false;
        }
    }

    /// Encodes whole packets of sound; the rest too when \a all is set.
    bool DrainSound(bool all)
    {
        const int wanted =
            audio.codec->frame_size > 0 ? audio.codec->frame_size : kFreeFrameSamples;
        for (int left = av_audio_fifo_size(fifo.get()); left >= (all ? 1 : wanted);
             left = av_audio_fifo_size(fifo.get())) {
            AVFrame* frame = audio.frame.get();
            av_frame_unref(frame);
            frame->nb_samples = std::min(left, wanted);
            frame->format = audio.codec->sample_fmt;
            frame->sample_rate = audio.codec->sample_rate;
            if (!Check(av_channel_layout_copy(&frame->ch_layout, &audio.codec->ch_layout)) ||
                !Check(av_frame_get_buffer(frame, 0)))
                return false;
            av_audio_fifo_read(fifo.get(), reinterpret_cast<void**>(frame->extended_data),
                               frame->nb_samples);
            frame->pts = audio.next;
            audio.next += frame->nb_samples;
            if (!Encode(audio, frame))
                return false;
        }
        return true;
    }
};

MediaWriter::MediaWriter(std::unique_ptr<Private> state) : d(std::move(state)) {}

std::unique_ptr<MediaWriter> MediaWriter::Open(const QString& path, const WriterSettings& settings,
                                               QString* error)
{
    auto d = std::make_unique<Private>();
    d->path = path;
    d->temporaryPath = path + QStringLiteral(".part");
    bool open = d->OpenFormat();
    const AVOutputFormat* container = open ? d->format->oformat : nullptr;
    if (open && !settings.size.isEmpty() && container->video_codec != AV_CODEC_ID_NONE)
        open = d->AddVideo(settings);
    if (open && settings.hasSound && container->audio_codec != AV_CODEC_ID_NONE)
        open = d->AddAudio(settings);
    if (open && d->format->nb_streams == 0)
        open = d->Fail("nothing to write into this container");
    if (!open || !d->Start()) {
        *error = d->error;
        d->format.reset();
        QFile::remove(d->temporaryPath);
        return nullptr;
    }
    return std::unique_ptr<MediaWriter>(new MediaWriter(std::move(d)));
}

MediaWriter::~MediaWriter()
{
    if (d->finished)
        return;
    d->format.reset();
    QFile::remove(d->temporaryPath);
}

bool MediaWriter::HasPicture() const
{
    return d->video.codec != nullptr;
}

bool MediaWriter::WritePicture(const QImage& picture)
{
    const QImage source = picture.convertToFormat(QImage::Format_RGB32);
    AVFrame* frame = d->video.frame.get();
    if (source.width() != frame->width || source.height() != frame->height)
        return d->Fail("a picture of another size");
    if (!d->Check(av_frame_make_writable(frame)))
        return false;
    const uint8_t* const planes[] = {source.constBits()};
    const int strides[] = {source.bytesPerLine()};
    sws_scale(d->scaler.get(), planes, strides, 0, source.height(), frame->data, frame->linesize);
    frame->pts = d->video.next++;
    frame->quality = d->video.codec->global_quality;
    return d->Encode(d->video, frame);
}

bool MediaWriter::WriteSound(const float* samples, int count)
{
    if (!d->audio.codec || count < 1)
        return true;
    const AVCodecContext* codec = d->audio.codec.get();
    AVFrame* frame = d->audio.frame.get();
    av_frame_unref(frame);
    frame->nb_samples = count;
    frame->format = codec->sample_fmt;
    if (!d->Check(av_channel_layout_copy(&frame->ch_layout, &codec->ch_layout)) ||
        !d->Check(av_frame_get_buffer(frame, 0)))
        return false;
    const auto* source = reinterpret_cast<const uint8_t*>(samples);
    if (!d->Check(swr_convert(d->resampler.get(), frame->extended_data, count, &source, count)) ||
        !d->Check(av_audio_fifo_write(d->fifo.get(), reinterpret_cast<void**>(frame->extended_data),
                                      count)))
        return false;
    return d->DrainSound(false);
}

bool MediaWriter::Finish()
{
    if (d->audio.codec && !(d->DrainSound(true) && d->Encode(d->audio, nullptr)))
        return false;
    if (d->video.codec && !d->Encode(d->video, nullptr))
        return false;
    if (!d->Check(av_write_trailer(d->format.get())) || !d->Check(avio_closep(&d->format->pb)))
        return false;
    // Replaces an older file of that name in one step where the system can.
    const QByteArray from = QFile::encodeName(d->temporaryPath);
    const QByteArray to = QFile::encodeName(d->path);
    if (std::rename(from.constData(), to.constData()) != 0) {
        QFile::remove(d->path);
        if (!QFile::rename(d->temporaryPath, d->path))
            return d->Fail("the finished file could not be given its name");
    }
    d->finished = true;
    return true;
}

QString MediaWriter::Error() const
{
    return d->error;
}

} // namespace nle

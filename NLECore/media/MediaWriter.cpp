// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/MediaWriter.h"

#include "NLECore/media/DecoderPool.h"
#include "NLECore/media/EncoderSetup_p.h"
#include "NLECore/media/FilterGraph_p.h"
#include "NLECore/media/FrameDecoder.h"
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/PictureFeeder_p.h"
#include "NLECore/media/PictureSequence_p.h"
#include "NLECore/media/PlainThreads_p.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/media/SavedFile_p.h"
#include "NLECore/media/WholeFile.h"

#include <QColor>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <new>
#include <random>

extern "C" {
#include <libavutil/audio_fifo.h>
#include <libavutil/opt.h>
}

namespace nle {

namespace {

/// Samples in a packet of codecs that take any number.
constexpr int kFreeFrameSamples = 1024;

/// Bytes that a muxer gathers before they are written.
constexpr int kBufferBytes = 1 << 16;

/// Rates that sound is given where the one asked for is not taken, in samples a second.
constexpr std::array kUsualRates = {8000,  11025, 12000, 16000, 22050, 24000,
                                    32000, 44100, 48000, 88200, 96000, 192000};

/// All 256 colours go to what is opaque; the pattern of the dither stands still.
constexpr const char* kPaletteFilters =
    "split[colours][picture];[colours]palettegen=stats_mode=single:reserve_transparent=0[palette];"
    "[picture][palette]paletteuse=new=1:dither=bayer:bayer_scale=3";

struct FormatFreer
{
    void operator()(AVFormatContext* format) const { avformat_free_context(format); }
};
struct OutputFreer
{
    void operator()(AVIOContext* output) const
    {
        av_freep(&output->buffer);
        avio_context_free(&output);
    }
};
struct FifoFreer
{
    void operator()(AVAudioFifo* fifo) const { av_audio_fifo_free(fifo); }
};

/// A file that remembers why it could not be written first: seeking forgets it.
class WrittenFile final : public WholeFile
{
public:
    using WholeFile::WholeFile;

    /// Writes what was gathered, which may be what fails.
    bool SeekTo(std::int64_t place)
    {
        const bool isThere = FlushAll() && seek(place);
        Note(isThere);
        return isThere;
    }
    QFileDevice::FileError FirstError() const { return m_error; }
    QString FirstReason() const { return m_reason; }

protected:
    qint64 writeData(const char* data, qint64 size) override
    {
        const qint64 written = WholeFile::writeData(data, size);
        Note(written == size);
        return written;
    }

private:
    void Note(bool isDone)
    {
        if (isDone || m_error != NoError)
            return;
        m_error = ErrorOf(*this);
        m_reason = errorString();
    }

    QFileDevice::FileError m_error = NoError;
    QString m_reason;
};

// Without a prototype of its own: whether the data is constant depends on the library's version.
constexpr auto kWriteBytes = [](void* file, auto* data, int size) {
    const auto* bytes = reinterpret_cast<const char*>(data);
    try {
        return static_cast<WrittenFile*>(file)->write(bytes, size) == size ? size : AVERROR(EIO);
    } catch (const std::bad_alloc&) {
        return AVERROR(ENOMEM);
    }
};

std::int64_t SeekByte(void* opaque, std::int64_t offset, int whence)
{
    auto* file = static_cast<WrittenFile*>(opaque);
    if (whence == AVSEEK_SIZE)
        return file->size();
    if (whence == SEEK_CUR)
        offset += file->pos();
    else if (whence == SEEK_END)
        offset += file->size();
    try {
        return file->SeekTo(offset) ? offset : AVERROR(EIO);
    } catch (const std::bad_alloc&) {
        return AVERROR(ENOMEM);
    }
}

int RefuseFile(AVFormatContext* /*format*/, AVIOContext** /*file*/, const char* /*url*/,
               int /*flags*/, AVDictionary** /*options*/)
{
    return AVERROR(EPERM);
}

/// What a trial writes: enough for a reader to know the container by.
constexpr int kTrialPictures = 3;
constexpr double kTrialSeconds = 0.5;
/// Side of the noise in a trial's pictures, in pixels.
constexpr int kTrialNoise = 128;

/// Grey with a corner of noise. Equal pictures would make some containers a still picture, and
/// smooth ones a transport stream too short to be known for one.
QImage TrialPicture(const QSize& size, int number)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(QColor(number * 50, number * 50, number * 50));
    std::minstd_rand noise(unsigned(number) + 1);
    for (int y = 0; y < std::min(kTrialNoise, size.height()); ++y) {
        for (int x = 0; x < std::min(kTrialNoise, size.width()); ++x)
            picture.setPixelColor(x, y, noise() % 2 == 0 ? Qt::black : Qt::white);
    }
    return picture;
}

bool WriteTrial(MediaWriter& writer)
{
    const WriterSettings& settings = writer.Settings();
    if (writer.HasPicture()) {
        for (int i = 0; i < kTrialPictures; ++i) {
            if (!writer.WritePicture(TrialPicture(settings.size, i)))
                return false;
        }
    }
    const int samples = int(settings.sampleRate * kTrialSeconds);
    const std::vector<float> silence(size_t(samples) * size_t(settings.channels));
    return (!settings.hasSound || writer.WriteSound(silence.data(), samples)) && writer.Finish();
}

/// Whether \a media, null for none, is what \a writer has written.
bool Holds(const std::shared_ptr<const MediaInfo>& media, const MediaWriter& writer)
{
    if (!media || (media->audioStream >= 0) != writer.HasSound())
        return false;
    const MediaStream* stream = media->Stream(media->videoStream);
    if (!stream || !writer.HasPicture())
        return !stream && !writer.HasPicture();
    const QSize size(stream->width, stream->height);
    const auto decoder = FrameDecoder::Open(media, media->videoStream, nullptr, 1);
    return size == writer.Settings().size && decoder && !decoder->Picture(0, size).isNull();
}

struct SoundFormat
{
    int sampleRate;
    int channels;
};

/// The sound as it was asked for, and what comes nearest: fewer channels only when no rate helps.
std::vector<SoundFormat> SoundFormats(const WriterSettings& wanted)
{
    auto rates = kUsualRates;
    std::stable_sort(rates.begin(), rates.end(), [&](int a, int b) {
        return std::abs(a - wanted.sampleRate) < std::abs(b - wanted.sampleRate);
    });
    std::vector<SoundFormat> formats;
    for (const int channels : {wanted.channels, 2, 1}) {
        if (!formats.empty() && channels >= formats.back().channels)
            continue;
        formats.push_back({wanted.sampleRate, channels});
        for (const int rate : rates)
            formats.push_back({rate, channels});
    }
    return formats;
}

/// One stream being written.
struct Track
{
    CodecPtr codec;
    AVStream* stream = nullptr;
    FramePtr frame;
    std::int64_t next = 0; ///< time stamp of what comes next, in the codec's time base
};

} // namespace

struct MediaWriter::Private
{
    WriterSettings settings;
    WriterError error;
    EncodePlan plan;
    WrittenFile file;
    std::unique_ptr<PictureSequence> sequence; ///< in place of the file
    std::unique_ptr<AVIOContext, OutputFreer> output;
    std::unique_ptr<AVFormatContext, FormatFreer> format;
    PacketPtr packet{av_packet_alloc()};
    Track video;
    Track audio;
    int leadIn = 0; ///< samples at the beginning that are still to be left out
    std::unique_ptr<PictureFeeder> feeder;
    FilterGraph palettes; ///< chooses the colours of each picture, for a codec of few
    FramePtr paletted{av_frame_alloc()};
    ResamplerPtr resampler;
    std::unique_ptr<AVAudioFifo, FifoFreer> fifo;

    Private(const QString& path, const WriterSettings& wanted) : settings(wanted), file(path) {}

    bool Check(int code)
    {
        if (code >= 0)
            return true;
        if (file.FirstError() != QFileDevice::NoError)
            return FailFile(file.FirstReason(), code);
        if (IsFull(code))
            return Fail(NLEReason_DiskFull, AvErrorText(AVERROR(ENOSPC)));
        return Fail(code == AVERROR(ENOMEM) ? NLEReason_OutOfMemory : NLEReason_SettingsRefused,
                    AvErrorText(code));
    }

    /// Whether a call that gave \a code failed as there is no more room.
    bool IsFull(int code) const
    {
        return code == AVERROR(ENOSPC) || file.FirstError() == QFileDevice::ResourceError ||
               ErrorOf(file) == QFileDevice::ResourceError;
    }

    bool Fail(NLEReason reason, const QString& text)
    {
        error = {reason, text};
        return false;
    }
    bool FailFile(const QString& text, int code = 0)
    {
        return Fail(ReasonOfWriting(IsFull(code)), text);
    }
    bool FailSequence() { return Fail(ReasonOfWriting(sequence->IsDiskFull()), sequence->Error()); }
    bool FailSettings(const char* text)
    {
        return Fail(NLEReason_SettingsRefused, QString::fromLatin1(text));
    }

    bool OpenFile()
    {
        if (plan.isSequence) {
            sequence = std::make_unique<PictureSequence>(file.Target());
            return sequence->Open() || FailSequence();
        }
        Decoders().Drop(file.Target());
        return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ||
               FailFile(file.errorString());
    }

    bool OpenFormat()
    {
        AVFormatContext* context = nullptr;
        if (!Check(avformat_alloc_output_context2(&context, plan.muxer, nullptr, nullptr)))
            return false;
        format.reset(context);
        if (plan.isSequence)
            return true;
        auto* buffer = static_cast<unsigned char*>(av_malloc(kBufferBytes));
        output.reset(
            avio_alloc_context(buffer, kBufferBytes, 1, &file, nullptr, kWriteBytes, &SeekByte));
        if (!buffer || !output) {
            av_free(output ? nullptr : buffer);
            return Check(AVERROR(ENOMEM));
        }
        // The muxer writes there and makes no files by itself.
        context->pb = output.get();
        context->io_open = &RefuseFile;
        return true;
    }

    bool AddTrack(Track& track, const AVCodec* codec)
    {
        track.codec.reset(avcodec_alloc_context3(codec));
        track.frame.reset(av_frame_alloc());
        track.stream = avformat_new_stream(format.get(), nullptr);
        if (!track.codec || !track.frame || !track.stream)
            return Check(AVERROR(ENOMEM));
        if (format->oformat->flags & AVFMT_GLOBALHEADER)
            track.codec->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
        return true;
    }

    bool StartTrack(Track& track)
    {
        const PlainThreads plain;
        const int code = avcodec_open2(track.codec.get(), nullptr, nullptr);
        if (code < 0) {
            return Fail(NLEReason_SettingsRefused,
                        QStringLiteral("%1 does not take the settings: %2")
                            .arg(QLatin1String(avcodec_get_name(track.codec->codec_id)),
                                 AvErrorText(code)));
        }
        track.stream->time_base = track.codec->time_base;
        return Check(avcodec_parameters_from_context(track.stream->codecpar, track.codec.get()));
    }

    bool AddVideo()
    {
        if (!AddTrack(video, plan.video))
            return false;
        AVCodecContext* codec = video.codec.get();
        SetUpVideo(codec, plan, settings);
        if (!StartTrack(video))
            return false;
        video.stream->avg_frame_rate = codec->framerate;
        const bool isMovie =
            qstrcmp(plan.muxer->name, "mp4") == 0 || qstrcmp(plan.muxer->name, "mov") == 0;
        if (isMovie && codec->codec_id == AV_CODEC_ID_HEVC)
            video.stream->codecpar->codec_tag = MKTAG('h', 'v', 'c', '1'); // else Apple plays none
        const bool hasPalettes = codec->pix_fmt == AV_PIX_FMT_PAL8;
        feeder = std::make_unique<PictureFeeder>(PictureFeeder::Target{
            settings.size, hasPalettes ? AV_PIX_FMT_0RGB32 : codec->pix_fmt, codec->colorspace,
            codec->color_trc, codec->color_primaries, codec->color_range == AVCOL_RANGE_JPEG,
            NLEFieldOrder(settings.options.fieldOrder)});
        return !hasPalettes || BuildPalettes(*codec) || FailSettings("no filter for palettes");
    }

    /// Each picture has a palette of its own: that of a whole film would need all of its pictures
    /// before the first one can be written.
    bool BuildPalettes(const AVCodecContext& codec)
    {
        const QString options = QStringLiteral("video_size=%1x%2:pix_fmt=%3:time_base=%4/%5")
                                    .arg(codec.width)
                                    .arg(codec.height)
                                    .arg(AV_PIX_FMT_0RGB32)
                                    .arg(codec.time_base.num)
                                    .arg(codec.time_base.den);
        return palettes.BuildPictures(options.toLatin1(), kPaletteFilters, codec.thread_count);
    }

    bool WriteVideo(AVFrame* frame)
    {
        if (!frame)
            return FailSettings("a picture cannot be converted to the codec's pixels");
        frame->pts = video.next++;
        frame->quality = video.codec->global_quality;
        return palettes ? EncodePaletted(frame) : Encode(video, frame);
    }

    /// Encodes \a frame by a palette, or what the filter holds back when it is null.
    bool EncodePaletted(const AVFrame* frame)
    {
        const FramePtr shared(frame ? av_frame_clone(frame) : nullptr);
        if (!paletted || !palettes.Add(shared.get()))
            return FailSettings("a picture finds no palette");
        while (palettes.Take(*paletted)) {
            if (!Encode(video, paletted.get()))
                return false;
        }
        return true;
    }

    bool AddAudio()
    {
        if (!AddTrack(audio, plan.audio))
            return false;
        AVCodecContext* codec = audio.codec.get();
        SetUpAudio(codec, plan, settings);
        if (!StartTrack(audio))
            return false;
        // Without times the container would play what the encoder puts before the sound as well, or
        // move the pictures behind it; so the sound begins as much later.
        const bool hasTimes = qstrcmp(plan.muxer->name, "avi") != 0;
        leadIn = hasTimes ? 0 : codec->initial_padding;
        audio.next = leadIn;
        SwrContext* context = nullptr;
        if (!Check(swr_alloc_set_opts2(&context, &codec->ch_layout, codec->sample_fmt,
                                       codec->sample_rate, &codec->ch_layout, AV_SAMPLE_FMT_FLT,
                                       codec->sample_rate, 0, nullptr)))
            return false;
        resampler.reset(context);
        fifo.reset(av_audio_fifo_alloc(codec->sample_fmt, settings.channels, kFreeFrameSamples));
        return Check(swr_init(context)) && (fifo || Check(AVERROR(ENOMEM)));
    }

    /// Opens the tracks and writes what stands before the first frame.
    bool Start()
    {
        format.reset();
        video = {};
        audio = {};
        if (!plan.isSequence && (!file.resize(0) || !file.seek(0)))
            return FailFile(file.errorString());
        if (!OpenFormat())
            return false;
        if (!settings.size.isEmpty() && plan.video && !AddVideo())
            return false;
        if (settings.hasSound && plan.audio && !AddAudio())
            return false;
        if (format->nb_streams == 0)
            return FailSettings("nothing to write into this container");
        const int code = avformat_write_header(format.get(), nullptr);
        if (code < 0 && output && output->error < 0 && file.FirstError() == QFileDevice::NoError)
            return FailFile(AvErrorText(output->error), code);
        if (!Check(code))
            return false;
        settings.settled =
            SettledOptions(settings.options, plan, video.codec.get(), audio.codec.get());
        return true;
    }

    /// Only the codec, when it is opened, and the container, with its header, tell what they take;
    /// so each format is tried from the start.
    bool StartWithNearestSound()
    {
        if (Start())
            return true;
        const WriterError first = error;
        for (const SoundFormat& sound : SoundFormats(settings)) {
            if (!audio.codec || error.reason != NLEReason_SettingsRefused)
                break;
            settings.sampleRate = sound.sampleRate;
            settings.channels = sound.channels;
            if (Start())
                return true;
        }
        error = first;
        return false;
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
            if (plan.isSequence) {
                const auto* data = reinterpret_cast<const char*>(packet->data);
                if (!sequence->Append(data, packet->size))
                    return FailSequence();
                continue;
            }
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
                                               WriterError* error)
{
    auto d = std::make_unique<Private>(path, settings);
    if (MakePlan(path, settings, &d->plan, &d->error) && d->OpenFile() &&
        d->StartWithNearestSound())
        return std::unique_ptr<MediaWriter>(new MediaWriter(std::move(d)));
    *error = d->error;
    return nullptr;
}

bool MediaWriter::Try(const QString& path, WriterSettings& settings, WriterError* error)
{
    const auto fail = [error](NLEReason reason, const QString& text) {
        *error = {reason, text};
        return false;
    };
    WholeFile target(path);
    Decoders().Drop(target.Target());
    const QFileInfo file(path);
    SideFolder folder(file);
    if (!target.open(QIODevice::WriteOnly))
        return fail(NLEReason_NotWritable, target.errorString());
    if (!folder.IsValid())
        return fail(NLEReason_NotWritable, folder.Error());
    const bool isSequence = PictureSequence::IsName(path);
    const QString trial =
        folder.FilePath(isSequence ? file.fileName() : QStringLiteral("trial.") + file.suffix());
    const std::unique_ptr<MediaWriter> writer = Open(trial, settings, error);
    if (!writer)
        return false;
    if (!WriteTrial(*writer)) {
        *error = writer->Error();
        return false;
    }
    const QString first = writer->IsSequence() ? PictureSequence::FileOf(trial, 0) : trial;
    if (!Holds(ProbeMedia(first, nullptr), *writer))
        return fail(NLEReason_SettingsRefused, QStringLiteral("what is written so cannot be read"));
    settings = writer->Settings();
    return true;
}

MediaWriter::~MediaWriter() = default;

const WriterSettings& MediaWriter::Settings() const
{
    return d->settings;
}

bool MediaWriter::HasPicture() const
{
    return d->video.codec != nullptr;
}

bool MediaWriter::IsSequence() const
{
    return d->plan.isSequence;
}

bool MediaWriter::HasSound() const
{
    return d->audio.codec != nullptr;
}

bool MediaWriter::Takes(const AVFrame& decoded) const
{
    return d->feeder && d->feeder->Takes(decoded);
}

bool MediaWriter::WritePicture(const AVFrame& decoded)
{
    return d->WriteVideo(d->feeder->Feed(decoded));
}

bool MediaWriter::WritePicture(const QImage& picture)
{
    return d->WriteVideo(d->feeder->Feed(picture));
}

bool MediaWriter::WriteSound(const float* samples, int count)
{
    if (!d->audio.codec || count < 1)
        return true;
    const AVCodecContext* codec = d->audio.codec.get();
    const int left = std::min(d->leadIn, count);
    d->leadIn -= left;
    samples += std::ptrdiff_t(left) * codec->ch_layout.nb_channels;
    count -= left;
    if (count == 0)
        return true;
    AVFrame* frame = d->audio.frame.get();
    av_frame_unref(frame);
    frame->nb_samples = count;
    frame->format = codec->sample_fmt;
    if (!d->Check(av_channel_layout_copy(&frame->ch_layout, &codec->ch_layout)) ||
        !d->Check(av_frame_get_buffer(frame, 0)))
        return false;
    const auto* source = reinterpret_cast<const std::uint8_t*>(samples);
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
    if (d->palettes && !d->EncodePaletted(nullptr))
        return false;
    if (d->video.codec && !d->Encode(d->video, nullptr))
        return false;
    if (!d->Check(av_write_trailer(d->format.get())))
        return false;
    if (d->plan.isSequence)
        return d->sequence->Commit() || d->FailSequence();
    avio_flush(d->output.get());
    if (!d->Check(d->output->error))
        return false;
    // Windows replaces no file that is open.
    Decoders().Drop(d->file.Target());
    return d->file.Commit() || d->FailFile(d->file.errorString());
}

const WriterError& MediaWriter::Error() const
{
    return d->error;
}

HRESULT RefuseOpening(const QString& path, const WriterError& error, HRESULT others)
{
    switch (error.reason) {
    case NLEReason_NoContainer:
        return RefuseWriting(E_NOTIMPL, path, error);
    case NLEReason_NotWritable:
    case NLEReason_DiskFull:
        return RefuseWriting(E_ACCESSDENIED, path, error);
    case NLEReason_OutOfMemory:
        return RefuseWriting(E_OUTOFMEMORY, path, error);
    default:
        return RefuseWriting(others, path, error);
    }
}

HRESULT RefuseWriting(HRESULT result, const QString& path, const WriterError& error)
{
    if (error.reason == NLEReason_None) // what was to be written is not there
        return Refuse(result, NLEReason_Unknown, path);
    return Refuse(result, error.reason, path + QStringLiteral(": ") + error.text);
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/EncoderSetup_p.h"

#include "NLECore/media/PictureScaler_p.h"
#include "NLECore/media/PictureSequence_p.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

extern "C" {
#include <libavutil/opt.h>
#include <libavutil/pixdesc.h>
}

namespace nle {

namespace {

/// Lines from which on pictures are coded by ITU-R BT.709, as high definition is.
constexpr int kModernHeight = 720;

/// Worst factors of the scale that films ask for their quality on, and of that of VP9 and AV1.
constexpr int kWorstFactor = 51;
constexpr int kWorstWideFactor = 63;

bool Fail(WriterError* error, NLEReason reason, const QString& text)
{
    *error = {reason, text};
    return false;
}

/// Whether the codec's data says by which matrix its colours were coded.
bool TellsColours(AVCodecID id)
{
    switch (id) {
    case AV_CODEC_ID_AV1:
    case AV_CODEC_ID_H264:
    case AV_CODEC_ID_HEVC:
    case AV_CODEC_ID_MPEG2VIDEO:
    case AV_CODEC_ID_PRORES:
    case AV_CODEC_ID_VP9:
        return true;
    default:
        return false;
    }
}

void SetColours(AVCodecContext* codec)
{
    // Where nothing is told, players take small pictures for those of older television.
    const bool isModern = TellsColours(codec->codec_id) || codec->height >= kModernHeight;
    codec->color_range = AVCOL_RANGE_MPEG;
    codec->colorspace = isModern ? AVCOL_SPC_BT709 : AVCOL_SPC_SMPTE170M;
    codec->color_primaries = isModern ? AVCOL_PRI_BT709 : AVCOL_PRI_SMPTE170M;
    codec->color_trc = isModern ? AVCOL_TRC_BT709 : AVCOL_TRC_SMPTE170M;
    if (IsRgb(codec->pix_fmt)) {
        codec->color_range = AVCOL_RANGE_JPEG;
        codec->colorspace = AVCOL_SPC_RGB;
    } else if (codec->codec_id == AV_CODEC_ID_MJPEG) {
        // As the JPEG File Interchange Format has it.
        codec->color_range = AVCOL_RANGE_JPEG;
        codec->colorspace = AVCOL_SPC_BT470BG;
    }
}

void SetOption(AVCodecContext* codec, const char* name, const std::string& value)
{
    av_opt_set(codec->priv_data, name, value.c_str(), 0);
}

/// The quantiser of MPEG-1, MPEG-2 and their like that quantises as a constant rate factor does;
/// the scale of H.264 doubles with every six steps (ITU-T H.264, 8.5.9).
double QuantiserOf(int factor)
{
    return std::clamp(0.85 * std::exp2((factor - 12) / 6.0), 1.0, 31.0);
}

void SetFixedQuantiser(AVCodecContext* codec, int factor)
{
    codec->flags |= AV_CODEC_FLAG_QSCALE;
    const double quantiser = codec->codec_id == AV_CODEC_ID_THEORA
                                 ? 10.0 * (kWorstFactor - factor) / kWorstFactor // 10 is best
                                 : QuantiserOf(factor);
    codec->global_quality = int(std::lround(quantiser * FF_QP2LAMBDA));
}

void SetQuality(AVCodecContext* codec, int factor)
{
    switch (codec->codec_id) {
    case AV_CODEC_ID_VP9:
    case AV_CODEC_ID_AV1:
        codec->bit_rate = 0; // else it would be the highest one
        av_opt_set_int(codec->priv_data, "crf", factor * kWorstWideFactor / kWorstFactor, 0);
        break;
    case AV_CODEC_ID_VP8:
        // It needs a highest rate: one that the factor does not come near.
        codec->bit_rate =
            std::max<std::int64_t>(2000000, std::int64_t(codec->width) * codec->height * 10);
        av_opt_set_int(codec->priv_data, "crf", factor * kWorstWideFactor / kWorstFactor, 0);
        break;
    default:
        if (av_opt_set_double(codec->priv_data, "crf", factor, 0) < 0)
            SetFixedQuantiser(codec, factor);
    }
}

void SetLossless(AVCodecContext* codec)
{
    if (codec->codec_id == AV_CODEC_ID_H264)
        av_opt_set_int(codec->priv_data, "qp", 0, 0);
    else if (codec->codec_id == AV_CODEC_ID_HEVC)
        SetOption(codec, "x265-params", "lossless=1:log-level=error");
    else if (codec->codec_id == AV_CODEC_ID_VP9)
        av_opt_set_int(codec->priv_data, "lossless", 1, 0);
}

int RateControlOf(const EncodePlan& plan, const EncodeOptions& options)
{
    if (options.rateControl != 0)
        return options.rateControl;
    if (options.videoBitRate > 0)
        return NLERate_Bitrate;
    const int offered = plan.videoFormat ? plan.videoFormat->rateControls : NLERate_Quality;
    return (offered & NLERate_Quality) != 0 ? NLERate_Quality : offered;
}

void SetRate(AVCodecContext* codec, const EncodePlan& plan, const WriterSettings& settings)
{
    const EncodeOptions& options = settings.options;
    const int control = RateControlOf(plan, options);
    if (codec->codec_id == AV_CODEC_ID_HEVC)
        SetOption(codec, "x265-params", "log-level=error");
    if (control == NLERate_Quality)
        SetQuality(codec, settings.quality);
    else if (control == NLERate_Bitrate)
        codec->bit_rate = options.videoBitRate;
    else if (control == NLERate_Lossless)
        SetLossless(codec);
    if (options.maxBitRate > 0) {
        codec->rc_max_rate = options.maxBitRate;
        codec->rc_buffer_size = options.bufferSize > 0 ? options.bufferSize : options.maxBitRate;
    }
}

void SetSpeed(AVCodecContext* codec, const EncodePlan& plan, const EncodeOptions& options)
{
    const std::vector<std::string> speeds =
        plan.videoFormat ? SplitNames(plan.videoFormat->speeds) : std::vector<std::string>();
    if (speeds.empty())
        return;
    const std::string& speed = options.speed.empty() ? speeds.front() : options.speed;
    if (codec->codec_id != AV_CODEC_ID_VP8 && codec->codec_id != AV_CODEC_ID_VP9) {
        SetOption(codec, "preset", speed);
        return;
    }
    SetOption(codec, "deadline", speed);
    if (speed == "good") {
        // Nearly the quickest of this deadline; the slowest ones take many times as long.
        av_opt_set_int(codec->priv_data, "cpu-used", 4, 0);
    }
    if (codec->codec_id == AV_CODEC_ID_VP9)
        av_opt_set_int(codec->priv_data, "row-mt", 1, 0);
    // Pictures that are not shown have no alpha.
    if (HasAlpha(av_get_pix_fmt_name(codec->pix_fmt)))
        av_opt_set_int(codec->priv_data, "auto-alt-ref", 0, 0);
}

/// Profiles that the codec needs to be told, others it finds by itself.
bool NeedsProfile(AVCodecID id)
{
    return id == AV_CODEC_ID_PRORES || id == AV_CODEC_ID_DNXHD;
}

void SetPixels(AVCodecContext* codec, const EncodePlan& plan, const EncodeOptions& options)
{
    if (!plan.videoFormat) {
        codec->pix_fmt = codec->codec->pix_fmts ? codec->codec->pix_fmts[0] : AV_PIX_FMT_YUV420P;
        return;
    }
    const PixelChoice choice = ChoosePixels(*plan.videoFormat, options);
    codec->pix_fmt = av_get_pix_fmt(choice.pixelFormat.c_str());
    if (!choice.profile.empty() && (NeedsProfile(codec->codec_id) || !options.profile.empty()))
        SetOption(codec, "profile", choice.profile);
    if (codec->codec_id == AV_CODEC_ID_PRORES)
        SetOption(codec, "vendor", "apl0"); // some programs open no other
}

void SetStructure(AVCodecContext* codec, const EncodePlan& plan, const EncodeOptions& options)
{
    if (options.gop > 0)
        codec->gop_size = options.gop;
    if (options.bFrames >= 0)
        codec->max_b_frames = options.bFrames;
    else if (plan.container && qstrcmp(plan.container->muxer, "avi") == 0)
        codec->max_b_frames = 0; // the container has no times of display
    codec->field_order = AV_FIELD_PROGRESSIVE;
    if (options.fieldOrder == NLEField_Progressive)
        return;
    codec->flags |= AV_CODEC_FLAG_INTERLACED_DCT | AV_CODEC_FLAG_INTERLACED_ME;
    codec->field_order = options.fieldOrder == NLEField_TopFirst ? AV_FIELD_TT : AV_FIELD_BB;
}

/// The sample format of a codec that keeps samples as \a name says.
AVSampleFormat SampleFormatOf(const AVCodec& codec, const std::string& name)
{
    if (!codec.sample_fmts)
        return AV_SAMPLE_FMT_FLT;
    const AVSampleFormat wanted = name == "s16"                    ? AV_SAMPLE_FMT_S16
                                  : name == "s24" || name == "s32" ? AV_SAMPLE_FMT_S32
                                                                   : AV_SAMPLE_FMT_FLT;
    for (const AVSampleFormat* format = codec.sample_fmts; *format != AV_SAMPLE_FMT_NONE;
         ++format) {
        if (!name.empty() && av_get_packed_sample_fmt(*format) == wanted)
            return *format;
    }
    return codec.sample_fmts[0];
}

/// The name of the sample format that options choose; empty where the codec has one of its own.
std::string SampleFormatName(const EncodePlan& plan, const EncodeOptions& options)
{
    if (!options.sampleFormat.empty() || !plan.audioFormat || !plan.container)
        return options.sampleFormat;
    const std::vector<std::string> formats = plan.container->SampleFormats(*plan.audioFormat);
    return formats.empty() ? std::string() : formats.front();
}

/// What the library's own choice for a container is, for those that the list of formats lacks.
void PlanUnlisted(const AVOutputFormat& muxer, EncodePlan* plan)
{
    const bool isCover =
        muxer.video_codec == AV_CODEC_ID_PNG && muxer.audio_codec != AV_CODEC_ID_NONE;
    plan->video = isCover ? nullptr : avcodec_find_encoder(muxer.video_codec);
    plan->audio = avcodec_find_encoder(muxer.audio_codec);
}

bool PlanListed(const ContainerFormat& container, const EncodeOptions& options, EncodePlan* plan,
                WriterError* error)
{
    const QString complaint = ComplaintAbout(options, container);
    if (!complaint.isEmpty())
        return Fail(error, NLEReason_SettingsRefused, complaint);
    plan->container = &container;
    plan->isSequence = container.isSequence;
    if (options.videoCodec != kNoCodec)
        plan->videoFormat = container.Codec(NLEStream_Video, options.videoCodec);
    if (options.audioCodec != kNoCodec)
        plan->audioFormat = container.Codec(NLEStream_Audio, options.audioCodec);
    if (plan->videoFormat)
        plan->video = FindEncoder(*plan->videoFormat, container, {});
    if (plan->audioFormat)
        plan->audio = FindEncoder(*plan->audioFormat, container, options.sampleFormat);
    return true;
}

} // namespace

bool MakePlan(const QString& path, const WriterSettings& settings, EncodePlan* plan,
              WriterError* error)
{
    const EncodeOptions& options = settings.options;
    const ContainerFormat* container =
        options.container.empty() ? ContainerOfPath(path) : FindContainer(options.container);
    if (!container && !options.container.empty())
        return Fail(error, NLEReason_SettingsRefused, QStringLiteral("no such container"));
    if (container && !FindContainer(container->name))
        return Fail(error, NLEReason_NoContainer,
                    QStringLiteral("this build of the media libraries has no encoder for %1")
                        .arg(QLatin1String(container->title)));
    if (container && container->isSequence && !PictureSequence::IsName(path))
        return Fail(error, NLEReason_NoContainer,
                    QStringLiteral("the container is not a single file; a sequence of pictures "
                                   "needs a place for their numbers in its name, as %04d"));
    const QByteArray name = EncodeMediaPath(path);
    plan->muxer = container ? av_guess_format(container->muxer, nullptr, nullptr)
                            : av_guess_format(nullptr, name.constData(), nullptr);
    if (!plan->muxer)
        return Fail(error, NLEReason_NoContainer,
                    QStringLiteral("no container goes by this suffix"));
    if (!container && (plan->muxer->flags & AVFMT_NOFILE) != 0)
        return Fail(error, NLEReason_NoContainer,
                    QStringLiteral("the container is not a single file"));
    if (container)
        return PlanListed(*container, options, plan, error);
    PlanUnlisted(*plan->muxer, plan);
    return true;
}

void SetUpVideo(AVCodecContext* codec, const EncodePlan& plan, const WriterSettings& settings)
{
    codec->width = settings.size.width();
    codec->height = settings.size.height();
    av_reduce(&codec->framerate.num, &codec->framerate.den, settings.frameRate.num,
              settings.frameRate.den, 1001000);
    codec->time_base = av_inv_q(codec->framerate);
    codec->thread_count = settings.options.threads; // 0: as many as the codec thinks good
    SetPixels(codec, plan, settings.options);
    SetColours(codec);
    SetStructure(codec, plan, settings.options);
    SetSpeed(codec, plan, settings.options);
    SetRate(codec, plan, settings);
}

void SetUpAudio(AVCodecContext* codec, const EncodePlan& plan, const WriterSettings& settings)
{
    const std::string format = SampleFormatName(plan, settings.options);
    codec->sample_rate = settings.sampleRate;
    codec->sample_fmt = SampleFormatOf(*codec->codec, format);
    if (format == "s24")
        codec->bits_per_raw_sample = 24;
    av_channel_layout_default(&codec->ch_layout, settings.channels);
    codec->bit_rate = settings.audioBitRate;
    codec->time_base = {1, settings.sampleRate};
}

EncodeOptions SettledOptions(const EncodeOptions& options, const EncodePlan& plan,
                             const AVCodecContext* video, const AVCodecContext* audio)
{
    const auto name = [](const CodecFormat* format, const AVCodecContext* codec) {
        return format ? format->name : avcodec_get_name(codec->codec_id);
    };
    EncodeOptions settled = options;
    settled.container = plan.container ? plan.container->name : plan.muxer->name;
    settled.videoCodec = video ? name(plan.videoFormat, video) : kNoCodec;
    settled.audioCodec = audio ? name(plan.audioFormat, audio) : kNoCodec;
    settled.sampleFormat = audio ? SampleFormatName(plan, options) : std::string();
    settled.pixelFormat = video ? av_get_pix_fmt_name(video->pix_fmt) : "";
    settled.bitDepth = DepthOf(settled.pixelFormat);
    settled.alpha = HasAlpha(settled.pixelFormat) ? 1 : 0;
    settled.rateControl = video ? RateControlOf(plan, options) : 0;
    return settled;
}

} // namespace nle

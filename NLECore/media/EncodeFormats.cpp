// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/EncodeFormats.h"

#include <QFileInfo>

#include <algorithm>
#include <functional>
#include <iterator>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/pixdesc.h>
}

namespace nle {

namespace {

constexpr int kFree = NLERate_Quality | NLERate_Bitrate;

constexpr const char* kX264Speeds =
    "veryfast,ultrafast,superfast,faster,fast,medium,slow,slower,veryslow";

constexpr CodecFormat kCodecs[] = {
    {"h264", "H.264", NLEStream_Video, "libx264", kFree | NLERate_Lossless, true,
     "high,baseline,main,high10,high422,high444", kX264Speeds,
     "yuv420p,yuv422p,yuv444p,yuv420p10le,yuv422p10le,yuv444p10le", ""},
    {"hevc", "H.265", NLEStream_Video, "libx265", kFree | NLERate_Lossless, false, "main,main10",
     kX264Speeds, "yuv420p,yuv422p,yuv444p,yuv420p10le,yuv422p10le,yuv444p10le,yuv420p12le", ""},
    {"av1", "AV1", NLEStream_Video, "libsvtav1", kFree, false, "", "8,4,6,10,12",
     "yuv420p,yuv420p10le", ""},
    {"vp9", "VP9", NLEStream_Video, "libvpx-vp9", kFree | NLERate_Lossless, false, "",
     "good,best,realtime", "yuv420p,yuva420p,yuv422p,yuv444p,yuv420p10le,yuv422p10le,yuv444p10le",
     ""},
    {"vp8", "VP8", NLEStream_Video, "libvpx", kFree, false, "", "good,best,realtime",
     "yuv420p,yuva420p", ""},
    {"prores", "Apple ProRes", NLEStream_Video, "prores_ks", NLERate_Profile, true,
     "hq,proxy,lt,standard,4444,4444xq", "", "yuv422p10le,yuv444p10le,yuva444p10le", ""},
    {"dnxhr", "Avid DNxHR", NLEStream_Video, "dnxhd", NLERate_Profile, false,
     "dnxhr_hq,dnxhr_lb,dnxhr_sq,dnxhr_hqx,dnxhr_444", "", "yuv422p,yuv422p10le,yuv444p10le", ""},
    {"ffv1", "FFV1", NLEStream_Video, "ffv1", NLERate_Lossless, true, "", "",
     "yuv422p,yuv420p,yuv444p,yuva444p,bgra,yuv420p10le,yuv422p10le,yuv444p10le,yuva444p10le,"
     "yuv444p16le,yuva444p16le",
     ""},
    {"qtrle", "QuickTime Animation", NLEStream_Video, "qtrle", NLERate_Lossless, false, "", "",
     "rgb24,argb", ""},
    {"png", "PNG", NLEStream_Video, "png", NLERate_Lossless, false, "", "",
     "rgb24,rgba,rgb48be,rgba64be", ""},
    {"tiff", "TIFF", NLEStream_Video, "tiff", NLERate_Lossless, false, "", "",
     "rgb24,rgba,rgb48le,rgba64le", ""},
    {"v210", QT_TRANSLATE_NOOP("NLECore", "Uncompressed 4:2:2, 10 bits"), NLEStream_Video, "v210",
     NLERate_Lossless, false, "", "", "yuv422p10le", ""},
    {"mjpeg", "Motion JPEG", NLEStream_Video, "mjpeg", kFree, false, "", "",
     "yuvj420p,yuvj422p,yuvj444p", ""},
    {"mpeg2video", "MPEG-2", NLEStream_Video, "mpeg2video", kFree, true, "", "", "yuv420p,yuv422p",
     ""},
    {"mpeg4", "MPEG-4 Part 2", NLEStream_Video, "mpeg4", kFree, true, "", "", "yuv420p", ""},
    {"theora", "Theora", NLEStream_Video, "libtheora", kFree, false, "", "",
     "yuv420p,yuv422p,yuv444p", ""},
    {"wmv2", "Windows Media Video 8", NLEStream_Video, "wmv2", kFree, false, "", "", "yuv420p", ""},
    {"gif", "GIF", NLEStream_Video, "gif", NLERate_Profile, false, "", "", "pal8", ""},

    {"aac", "AAC", NLEStream_Audio, "aac", 0, false, "", "", "", ""},
    {"opus", "Opus", NLEStream_Audio, "libopus", 0, false, "", "", "", ""},
    {"vorbis", "Vorbis", NLEStream_Audio, "libvorbis", 0, false, "", "", "", ""},
    {"mp3", "MP3", NLEStream_Audio, "libmp3lame", 0, false, "", "", "", ""},
    {"mp2", "MPEG-1 Layer II", NLEStream_Audio, "mp2", 0, false, "", "", "", ""},
    {"ac3", "Dolby Digital", NLEStream_Audio, "ac3", 0, false, "", "", "", ""},
    {"wmav2", "Windows Media Audio 2", NLEStream_Audio, "wmav2", 0, false, "", "", "", ""},
    {"flac", "FLAC", NLEStream_Audio, "flac", 0, false, "", "", "", "s16,s24"},
    {"alac", "Apple Lossless", NLEStream_Audio, "alac", 0, false, "", "", "", "s16,s24"},
    {"pcm", "PCM", NLEStream_Audio, "", 0, false, "", "", "", "s16,s24,s32,flt"},
};

// H.264 stands in an AVI too: no other codec that AVI players of today know comes near it. Its
// pictures keep their order there, because AVI has no times of display.
constexpr ContainerFormat kContainers[] = {
    {"mp4", "MP4", "mp4,m4v", "mp4", "h264,hevc,av1,vp9,mpeg4,mpeg2video", "aac,mp3,ac3,alac,opus",
     false},
    {"mov", "QuickTime", "mov", "mov", "h264,hevc,prores,dnxhr,qtrle,png,v210,mjpeg,mpeg4",
     "aac,pcm,alac,ac3", false},
    {"mkv", "Matroska", "mkv", "matroska",
     "h264,hevc,av1,vp9,vp8,ffv1,prores,dnxhr,mpeg2video,mpeg4,mjpeg,theora",
     "aac,opus,flac,pcm,vorbis,mp3,ac3", false},
    {"webm", "WebM", "webm", "webm", "vp9,av1,vp8", "opus,vorbis", false},
    {"mxf", "MXF", "mxf", "mxf", "mpeg2video,dnxhr,h264", "pcm", false},
    {"ts", QT_TRANSLATE_NOOP("NLECore", "MPEG transport stream"), "ts,m2ts,mts,m2t", "mpegts",
     "h264,hevc,mpeg2video", "aac,ac3,mp2,mp3", false},
    {"mpg", QT_TRANSLATE_NOOP("NLECore", "MPEG program stream"), "mpg,mpeg", "mpeg", "mpeg2video",
     "mp2,ac3", false},
    {"avi", "AVI", "avi", "avi", "h264,mpeg4,mjpeg,ffv1", "mp3,pcm,ac3", false},
    {"wmv", "Windows Media", "wmv,asf", "asf", "wmv2", "wmav2", false},
    {"flv", "Flash Video", "flv", "flv", "h264", "aac,mp3", false},
    {"3gp", "3GPP", "3gp", "3gp", "h264", "aac", false},
    {"3g2", "3GPP2", "3g2", "3g2", "h264", "aac", false},
    {"ogv", "Ogg", "ogv", "ogv", "theora", "vorbis,opus,flac", false},
    {"gif", QT_TRANSLATE_NOOP("NLECore", "Animated GIF"), "gif", "gif", "gif", "", false},
    {"png", QT_TRANSLATE_NOOP("NLECore", "PNG sequence"), "png", "null", "png", "", true},
    {"tif", QT_TRANSLATE_NOOP("NLECore", "TIFF sequence"), "tif,tiff", "null", "tiff", "", true},
    {"jpg", QT_TRANSLATE_NOOP("NLECore", "JPEG sequence"), "jpg,jpeg", "null", "mjpeg", "", true},
    {"wav", "WAV", "wav", "wav", "", "pcm", false},
    {"aiff", "AIFF", "aiff,aif", "aiff", "", "pcm", false},
    {"mp3", "MP3", "mp3", "mp3", "", "mp3", false},
    {"m4a", QT_TRANSLATE_NOOP("NLECore", "MPEG-4 sound"), "m4a,m4b", "ipod", "", "aac,alac", false},
    {"aac", "AAC", "aac", "adts", "", "aac", false},
    {"flac", "FLAC", "flac", "flac", "", "flac", false},
    {"ogg", QT_TRANSLATE_NOOP("NLECore", "Ogg sound"), "ogg,oga", "ogg", "", "vorbis,opus,flac",
     false},
    {"opus", "Opus", "opus", "opus", "", "opus", false},
    {"wma", QT_TRANSLATE_NOOP("NLECore", "Windows Media sound"), "wma", "asf", "", "wmav2", false},
};

/// Profiles that stand for pixels of their own.
struct ProfilePixels
{
    const char* codec;
    const char* profile;
    const char* pixelFormat;
};
constexpr ProfilePixels kProfilePixels[] = {
    {"h264", "high10", "yuv420p10le"},     {"h264", "high422", "yuv422p10le"},
    {"h264", "high422", "yuv422p"},        {"h264", "high444", "yuv444p"},
    {"h264", "high444", "yuv444p10le"},    {"hevc", "main10", "yuv420p10le"},
    {"prores", "4444", "yuv444p10le"},     {"prores", "4444", "yuva444p10le"},
    {"prores", "4444xq", "yuv444p10le"},   {"prores", "4444xq", "yuva444p10le"},
    {"dnxhr", "dnxhr_hqx", "yuv422p10le"}, {"dnxhr", "dnxhr_444", "yuv444p10le"},
};

/// Films have pictures: without an encoder of any a container of films is none.
bool HasEncoders(const ContainerFormat& container)
{
    const NLEStreamType main = *container.video != '\0' ? NLEStream_Video : NLEStream_Audio;
    return av_guess_format(container.muxer, nullptr, nullptr) && container.Codec(main, {});
}

bool Lists(const char* names, const std::string& name)
{
    const std::vector<std::string> list = SplitNames(names);
    return std::find(list.begin(), list.end(), name) != list.end();
}

const CodecFormat* FindCodec(const std::string& name)
{
    const auto* found = std::find_if(std::begin(kCodecs), std::end(kCodecs),
                                     [&](const CodecFormat& codec) { return name == codec.name; });
    return found == std::end(kCodecs) ? nullptr : found;
}

AVPixelFormat PixelFormatOf(const std::string& name)
{
    return av_get_pix_fmt(name.c_str());
}

bool Matches(const std::string& pixelFormat, const EncodeOptions& options)
{
    return (options.bitDepth == 0 || DepthOf(pixelFormat) == options.bitDepth) &&
           HasAlpha(pixelFormat) == (options.alpha != 0);
}

bool IsOfProfile(const CodecFormat& codec, const std::string& profile,
                 const std::string& pixelFormat)
{
    bool isSpecial = false;
    for (const ProfilePixels& entry : kProfilePixels) {
        if (qstrcmp(entry.codec, codec.name) != 0)
            continue;
        if (entry.profile == profile && entry.pixelFormat == pixelFormat)
            return true;
        isSpecial = isSpecial || entry.profile == profile || entry.pixelFormat == pixelFormat;
    }
    return !isSpecial;
}

QString Unknown(const char* what, const std::string& name, const char* owner)
{
    return QStringLiteral("%1 has no %2 \"%3\"")
        .arg(QLatin1String(owner), QLatin1String(what), QString::fromStdString(name));
}

QString ComplaintAboutPixels(const EncodeOptions& options, const CodecFormat& codec)
{
    if (!options.pixelFormat.empty() && !Lists(codec.pixelFormats, options.pixelFormat))
        return Unknown("pixel format", options.pixelFormat, codec.title);
    if (!options.profile.empty() && !Lists(codec.profiles, options.profile))
        return Unknown("profile", options.profile, codec.title);
    const PixelChoice choice = ChoosePixels(codec, options);
    if (choice.pixelFormat.empty() ||
        (!choice.profile.empty() && !IsOfProfile(codec, choice.profile, choice.pixelFormat)))
        return QStringLiteral(
                   "%1 has no such combination of profile, pixel format, depth and alpha")
            .arg(QLatin1String(codec.title));
    return {};
}

QString ComplaintAboutVideo(const EncodeOptions& options, const CodecFormat& codec)
{
    if (!options.speed.empty() && !Lists(codec.speeds, options.speed))
        return Unknown("preset", options.speed, codec.title);
    if (options.rateControl != 0 && (codec.rateControls & options.rateControl) == 0)
        return QStringLiteral("%1 has no such rate control").arg(QLatin1String(codec.title));
    if (options.rateControl == NLERate_Bitrate && options.videoBitRate <= 0)
        return QStringLiteral("a mean rate without its bits a second");
    if (options.fieldOrder != NLEField_Progressive && !codec.hasFields)
        return QStringLiteral("%1 has no frames of two fields").arg(QLatin1String(codec.title));
    return ComplaintAboutPixels(options, codec);
}

QString ComplaintAboutAudio(const EncodeOptions& options, const CodecFormat& codec,
                            const ContainerFormat& container)
{
    const std::vector<std::string> formats = container.SampleFormats(codec);
    const bool isKnown =
        options.sampleFormat.empty() ||
        std::find(formats.begin(), formats.end(), options.sampleFormat) != formats.end();
    return isKnown ? QString() : Unknown("sample format", options.sampleFormat, codec.title);
}

EncodeOptions Film(const char* container, const char* video, const char* audio)
{
    EncodeOptions options;
    options.container = container;
    options.videoCodec = video;
    options.audioCodec = audio;
    return options;
}

EncodeOptions Changed(EncodeOptions options, const std::function<void(EncodeOptions&)>& change)
{
    change(options);
    return options;
}

} // namespace

std::vector<std::string> SplitNames(const char* names)
{
    std::vector<std::string> result;
    for (const QByteArray& name : QByteArray(names).split(',')) {
        if (!name.isEmpty())
            result.push_back(name.toStdString());
    }
    return result;
}

bool HasAlpha(const std::string& pixelFormat)
{
    const AVPixFmtDescriptor* kind = av_pix_fmt_desc_get(PixelFormatOf(pixelFormat));
    // Colours of a palette are there or not, which is no alpha of a film.
    constexpr std::uint64_t both = AV_PIX_FMT_FLAG_ALPHA | AV_PIX_FMT_FLAG_PAL;
    return kind && (kind->flags & both) == AV_PIX_FMT_FLAG_ALPHA;
}

int DepthOf(const std::string& pixelFormat)
{
    const AVPixFmtDescriptor* kind = av_pix_fmt_desc_get(PixelFormatOf(pixelFormat));
    return kind ? kind->comp[0].depth : 0;
}

std::vector<const CodecFormat*> ContainerFormat::Codecs(NLEStreamType type) const
{
    std::vector<const CodecFormat*> codecs;
    for (const std::string& codec : SplitNames(type == NLEStream_Video ? video : audio)) {
        const CodecFormat* format = FindCodec(codec);
        if (format && FindEncoder(*format, *this, {}))
            codecs.push_back(format);
    }
    return codecs;
}

const CodecFormat* ContainerFormat::Codec(NLEStreamType type, const std::string& wanted) const
{
    for (const CodecFormat* codec : Codecs(type)) {
        if (wanted.empty() || wanted == codec->name)
            return codec;
    }
    return nullptr;
}

std::vector<std::string> ContainerFormat::SampleFormats(const CodecFormat& codec) const
{
    std::vector<std::string> formats = SplitNames(codec.sampleFormats);
    // MXF maps whole numbers alone (SMPTE ST 382).
    if (qstrcmp(muxer, "mxf") == 0) {
        formats.erase(std::remove_if(formats.begin(), formats.end(),
                                     [](const std::string& format) {
                                         return format != "s16" && format != "s24";
                                     }),
                      formats.end());
    }
    return formats;
}

const std::vector<ContainerFormat>& Containers()
{
    static const std::vector<ContainerFormat> containers = [] {
        std::vector<ContainerFormat> found;
        std::copy_if(std::begin(kContainers), std::end(kContainers), std::back_inserter(found),
                     &HasEncoders);
        return found;
    }();
    return containers;
}

const ContainerFormat* FindContainer(const std::string& name)
{
    for (const ContainerFormat& container : Containers()) {
        if (name == container.name)
            return &container;
    }
    return nullptr;
}

const ContainerFormat* ContainerOfPath(const QString& path)
{
    const std::string suffix = QFileInfo(path).suffix().toLower().toStdString();
    for (const ContainerFormat& container : kContainers) {
        if (Lists(container.suffixes, suffix))
            return &container;
    }
    return nullptr;
}

const AVCodec* FindEncoder(const CodecFormat& codec, const ContainerFormat& container,
                           const std::string& sampleFormat)
{
    if (codec.name == std::string("pcm")) {
        const std::string bits = sampleFormat.empty()    ? "s16"
                                 : sampleFormat == "flt" ? "f32"
                                                         : sampleFormat;
        const char* order = qstrcmp(container.muxer, "aiff") == 0 ? "be" : "le";
        return avcodec_find_encoder_by_name(("pcm_" + bits + order).c_str());
    }
    for (const std::string& name : SplitNames(codec.encoders)) {
        if (const AVCodec* encoder = avcodec_find_encoder_by_name(name.c_str()))
            return encoder;
    }
    return nullptr;
}

PixelChoice ChoosePixels(const CodecFormat& codec, const EncodeOptions& options)
{
    PixelChoice choice{options.pixelFormat, options.profile};
    for (const std::string& format : SplitNames(codec.pixelFormats)) {
        const bool isFit = Matches(format, options) &&
                           (options.profile.empty() || IsOfProfile(codec, options.profile, format));
        if (choice.pixelFormat.empty() && isFit)
            choice.pixelFormat = format;
    }
    for (const std::string& profile : SplitNames(codec.profiles)) {
        if (choice.profile.empty() && IsOfProfile(codec, profile, choice.pixelFormat))
            choice.profile = profile;
    }
    return choice;
}

QString ComplaintAbout(const EncodeOptions& options, const ContainerFormat& container)
{
    const bool hasVideo = options.videoCodec != kNoCodec;
    const bool hasAudio = options.audioCodec != kNoCodec;
    const CodecFormat* video = container.Codec(NLEStream_Video, options.videoCodec);
    const CodecFormat* audio = container.Codec(NLEStream_Audio, options.audioCodec);
    if (hasVideo && !video && !options.videoCodec.empty())
        return Unknown("codec of pictures", options.videoCodec, container.title);
    if (hasAudio && !audio && !options.audioCodec.empty())
        return Unknown("codec of sound", options.audioCodec, container.title);
    QString complaint;
    if (hasVideo && video)
        complaint = ComplaintAboutVideo(options, *video);
    if (complaint.isEmpty() && hasAudio && audio)
        complaint = ComplaintAboutAudio(options, *audio, container);
    return complaint;
}

namespace {

std::vector<EncodePreset> MakePresets()
{
    const auto profiled = [](const char* container, const char* video, const char* audio,
                             const char* profile) {
        return Changed(Film(container, video, audio),
                       [profile](EncodeOptions& options) { options.profile = profile; });
    };
    const auto transparent = [](EncodeOptions options) {
        options.alpha = 1;
        return options;
    };
    const auto forArchives = [](EncodeOptions options) {
        options.speed = "slow";
        options.quality = 16;
        options.audioBitRate = 320000;
        return options;
    };
    const auto lossless = [](EncodeOptions options) {
        options.rateControl = NLERate_Lossless;
        options.pixelFormat = "yuv444p";
        return options;
    };
    const auto sound = [](const char* container, const char* audio, int bitRate,
                          const char* format) {
        return Changed(Film(container, kNoCodec, audio), [&](EncodeOptions& options) {
            options.audioBitRate = bitRate;
            options.sampleFormat = format;
        });
    };
    return {
        {"H.264", Film("mp4", "h264", "aac")},
        {QT_TRANSLATE_NOOP("NLECore", "H.264 for archives"),
         forArchives(Film("mp4", "h264", "aac"))},
        {QT_TRANSLATE_NOOP("NLECore", "H.264 for streaming"),
         Changed(Film("mp4", "h264", "aac"),
                 [](EncodeOptions& options) {
                     options.rateControl = NLERate_Bitrate;
                     options.videoBitRate = 8000000;
                     options.maxBitRate = 10000000;
                     options.bufferSize = 16000000;
                     options.gop = 50;
                 })},
        {QT_TRANSLATE_NOOP("NLECore", "H.264 lossless"), lossless(Film("mkv", "h264", "flac"))},
        {"H.265", Film("mp4", "hevc", "aac")},
        {QT_TRANSLATE_NOOP("NLECore", "H.265 10 bits"),
         Changed(Film("mp4", "hevc", "aac"),
                 [](EncodeOptions& options) { options.bitDepth = 10; })},
        {"AV1", Film("webm", "av1", "opus")},
        {"VP9", Film("webm", "vp9", "opus")},
        {QT_TRANSLATE_NOOP("NLECore", "VP9 with alpha"), transparent(Film("webm", "vp9", "opus"))},
        {"ProRes 422 Proxy", profiled("mov", "prores", "pcm", "proxy")},
        {"ProRes 422 LT", profiled("mov", "prores", "pcm", "lt")},
        {"ProRes 422", profiled("mov", "prores", "pcm", "standard")},
        {"ProRes 422 HQ", profiled("mov", "prores", "pcm", "hq")},
        {"ProRes 4444", transparent(profiled("mov", "prores", "pcm", "4444"))},
        {"DNxHR HQ", profiled("mxf", "dnxhr", "pcm", "dnxhr_hq")},
        {"DNxHR HQX", profiled("mxf", "dnxhr", "pcm", "dnxhr_hqx")},
        {"FFV1", Film("mkv", "ffv1", "flac")},
        {"QuickTime Animation", transparent(Film("mov", "qtrle", "pcm"))},
        {"QuickTime PNG", transparent(Film("mov", "png", "pcm"))},
        {QT_TRANSLATE_NOOP("NLECore", "PNG sequence"), transparent(Film("png", "png", kNoCodec))},
        {QT_TRANSLATE_NOOP("NLECore", "TIFF sequence 16 bits"),
         Changed(Film("tif", "tiff", kNoCodec),
                 [](EncodeOptions& options) { options.bitDepth = 16; })},
        {QT_TRANSLATE_NOOP("NLECore", "MPEG-2 interlaced"),
         Changed(Film("mpg", "mpeg2video", "mp2"),
                 [](EncodeOptions& options) {
                     options.rateControl = NLERate_Bitrate;
                     options.videoBitRate = 8000000;
                     options.maxBitRate = 9000000;
                     options.bufferSize = 1835008; // as players of discs have
                     options.fieldOrder = NLEField_TopFirst;
                     options.bFrames = 2;
                 })},
        {"MP3", sound("mp3", "mp3", 320000, "")},
        {"AAC", sound("m4a", "aac", 256000, "")},
        {"WAV", sound("wav", "pcm", 0, "s16")},
        {QT_TRANSLATE_NOOP("NLECore", "WAV 24 bits"), sound("wav", "pcm", 0, "s24")},
        {"FLAC", sound("flac", "flac", 0, "s24")},
    };
}

bool CanBeUsed(const EncodePreset& preset)
{
    const ContainerFormat* const container = FindContainer(preset.options.container);
    return container && ComplaintAbout(preset.options, *container).isEmpty();
}

} // namespace

const std::vector<EncodePreset>& EncodePresets()
{
    static const std::vector<EncodePreset> presets = [] {
        const std::vector<EncodePreset> all = MakePresets();
        std::vector<EncodePreset> usable;
        std::copy_if(all.begin(), all.end(), std::back_inserter(usable), &CanBeUsed);
        return usable;
    }();
    return presets;
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/MediaReport.h"

#include "CommonLib/GlobalUtils.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "EngineApi/INLEMedia.h"

namespace {

QString SizeText(double width, double height)
{
    return QStringLiteral("%1 × %2").arg(width).arg(height);
}

/// A rate with up to three decimals and no trailing zeros: "25", "29.97".
QString RateText(double framesPerSecond)
{
    constexpr int decimals = 1000;
    return QString::number(qRound64(framesPerSecond * decimals) / double(decimals));
}

QString CodecText(const NLEStreamInfo& stream)
{
    const QString name = QString::fromLatin1(
        stream.codecName, int(qstrnlen(stream.codecName, sizeof stream.codecName)));
    return name.isEmpty() ? MediaReport::tr("unknown codec") : name;
}

QString StreamText(const NLEStreamInfo& stream)
{
    QStringList parts;
    switch (stream.type) {
    case NLEStream_Video:
        parts << MediaReport::tr("video") << CodecText(stream)
              << SizeText(stream.width, stream.height);
        if (stream.rotation != 0)
            parts << MediaReport::tr("rotated by %1°").arg(stream.rotation);
        if (stream.frameRate.num > 0 && stream.frameRate.den > 0)
            parts << MediaReport::tr("%1 fps").arg(
                RateText(double(stream.frameRate.num) / double(stream.frameRate.den)));
        break;
    case NLEStream_Audio:
        parts << MediaReport::tr("audio") << CodecText(stream)
              << MediaReport::tr("%1 Hz").arg(stream.sampleRate)
              << MediaReport::tr("%n channel(s)", nullptr, int(stream.channels));
        break;
    default:
        parts << MediaReport::tr("other") << CodecText(stream);
    }
    return parts.join(QStringLiteral(", "));
}

QVector<NLEStreamInfo> ReadStreams(INLEMediaInfo* info)
{
    QVector<NLEStreamInfo> streams;
    std::uint32_t count = 0;
    if (!info || FAILED(info->GetStreamCount(&count)))
        return streams;
    for (std::uint32_t index = 0; index < count; ++index) {
        NLEStreamInfo stream{};
        info->GetStream(index, &stream);
        streams.append(stream);
    }
    return streams;
}

} // namespace

MediaReport::MediaReport(NLETimeline& timeline)
    : image(timeline.IsImage())
    , video(timeline.HaveVideo())
    , audio(timeline.HaveAudio())
    , size(timeline.GetSourceSize())
    , rate(0)
    , frames(0)
    , sampleRates(timeline.GetAudioSourceStreamsSampleRate())
    , streams(ReadStreams(timeline.GetTimelineMediaInfo().get()))
{
    timeline.GetMediaFrameCount(frames, rate);
}

std::uint32_t MediaReport::FirstStream(NLEStreamType type) const
{
    for (int index = 0; index < streams.size(); ++index) {
        if (streams[index].type == type)
            return std::uint32_t(index);
    }
    return NLENoStream;
}

double MediaReport::PictureShape() const
{
    if (size.isEmpty())
        return 0;
    double shape = size.width() / size.height();
    const std::uint32_t index = FirstStream(NLEStream_Video);
    if (index == NLENoStream)
        return shape;
    const NLERational pixel = streams[int(index)].pixelAspect;
    if (pixel.num > 0 && pixel.den > 0)
        shape *= double(pixel.num) / double(pixel.den);
    return shape;
}

double MediaReport::Seconds() const
{
    return rate > 0 ? frames / double(rate) : 0;
}

QString MediaReport::Summary() const
{
    if (image)
        return tr("Still picture, %1").arg(SizeText(size.width(), size.height()));
    QStringList parts;
    if (video)
        parts << tr("Video") << SizeText(size.width(), size.height());
    else
        parts << (audio ? tr("Sound") : tr("No picture and no sound"));
    parts << tr("%1 fps").arg(RateText(double(rate))) << tr("%n frame(s)", nullptr, int(frames))
          << gFrame2String(int(frames), rate);
    return parts.join(QStringLiteral(", "));
}

QStringList MediaReport::Lines() const
{
    QStringList result{Summary()};
    QStringList rates;
    for (const int sampleRate : sampleRates)
        rates << tr("%1 Hz").arg(sampleRate);
    if (!rates.isEmpty())
        result << tr("sample rates: %1").arg(rates.join(QStringLiteral(", ")));
    for (int index = 0; index < streams.size(); ++index)
        result << tr("stream %1: %2").arg(index).arg(StreamText(streams[index]));
    return result;
}

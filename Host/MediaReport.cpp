// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/MediaReport.h"

#include "CommonLib/GlobalUtils.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "EngineApi/INLEMedia.h"

namespace {

QString sizeText(double width, double height)
{
    return QStringLiteral("%1 × %2").arg(width).arg(height);
}

/// A rate with up to three decimals and no trailing zeros: "25", "29.97".
QString rateText(double framesPerSecond)
{
    constexpr int decimals = 1000;
    return QString::number(qRound64(framesPerSecond * decimals) / double(decimals));
}

/// "1 frame", "2 frames"
QString counted(qint64 number, const QString& noun)
{
    const QString text = QStringLiteral("%1 %2").arg(number).arg(noun);
    return number == 1 ? text : text + QLatin1Char('s');
}

QString codecText(const NLEStreamInfo& stream)
{
    const QString name = QString::fromLatin1(
        stream.codecName, int(qstrnlen(stream.codecName, sizeof stream.codecName)));
    return name.isEmpty() ? QStringLiteral("unknown codec") : name;
}

QString streamText(const NLEStreamInfo& stream)
{
    QStringList parts;
    switch (stream.type) {
    case NLEStream_Video:
        parts << QStringLiteral("video") << codecText(stream)
              << sizeText(stream.width, stream.height);
        if (stream.rotation != 0)
            parts << QStringLiteral("rotated by %1°").arg(stream.rotation);
        if (stream.frameRate.num > 0 && stream.frameRate.den > 0)
            parts << rateText(double(stream.frameRate.num) / double(stream.frameRate.den)) +
                         QStringLiteral(" fps");
        break;
    case NLEStream_Audio:
        parts << QStringLiteral("audio") << codecText(stream)
              << QStringLiteral("%1 Hz").arg(stream.sampleRate)
              << counted(stream.channels, QStringLiteral("channel"));
        break;
    default:
        parts << QStringLiteral("other") << codecText(stream);
    }
    return parts.join(QStringLiteral(", "));
}

QVector<NLEStreamInfo> readStreams(INLEMediaInfo* info)
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
    , streams(readStreams(timeline.GetTimelineMediaInfo().get()))
{
    timeline.GetMediaFrameCount(frames, rate);
}

std::uint32_t MediaReport::firstStream(NLEStreamType type) const
{
    for (int index = 0; index < streams.size(); ++index) {
        if (streams[index].type == type)
            return std::uint32_t(index);
    }
    return NLENoStream;
}

double MediaReport::pictureShape() const
{
    if (size.isEmpty())
        return 0;
    double shape = size.width() / size.height();
    const std::uint32_t index = firstStream(NLEStream_Video);
    if (index == NLENoStream)
        return shape;
    const NLERational pixel = streams[int(index)].pixelAspect;
    if (pixel.num > 0 && pixel.den > 0)
        shape *= double(pixel.num) / double(pixel.den);
    return shape;
}

double MediaReport::seconds() const
{
    return rate > 0 ? frames / double(rate) : 0;
}

QString MediaReport::summary() const
{
    if (image)
        return QStringLiteral("Still picture, ") + sizeText(size.width(), size.height());
    QStringList parts;
    if (video)
        parts << QStringLiteral("Video") << sizeText(size.width(), size.height());
    else
        parts << (audio ? QStringLiteral("Sound") : QStringLiteral("No picture and no sound"));
    parts << rateText(double(rate)) + QStringLiteral(" fps")
          << counted(frames, QStringLiteral("frame")) << gFrame2String(int(frames), rate);
    return parts.join(QStringLiteral(", "));
}

QStringList MediaReport::lines() const
{
    QStringList result{summary()};
    for (int index = 0; index < streams.size(); ++index)
        result << QStringLiteral("stream %1: %2").arg(index).arg(streamText(streams[index]));
    return result;
}

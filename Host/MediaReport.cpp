// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/MediaReport.h"

#include "CommonLib/GlobalUtils.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "EngineApi/INLEMedia.h"
#include "EngineApi/NLECommon.h"

#include <QMap>

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

/// What the numbers of ITU-T H.273 stand for; the number itself for those that nobody writes.
QString CodeText(int code, const QMap<int, QString>& names)
{
    return names.value(code, QString::number(code));
}

/// Primaries, transfer and matrix as "BT.2020/PQ/BT.2020"; "–" for what the file does not tell.
/// Empty when it tells nothing.
QString ColoursText(const NLEStreamInfo& stream)
{
    static const QString unknown = QStringLiteral("–");
    static const QMap<int, QString> primaries = {
        {0, unknown},   {1, "BT.709"},  {2, unknown},    {4, "BT.470 M"}, {5, "BT.470 BG"},
        {6, "ST 170"},  {7, "ST 240"},  {8, "film"},     {9, "BT.2020"},  {10, "XYZ"},
        {11, "DCI-P3"}, {12, "P3-D65"}, {22, "EBU 3213"}};
    static const QMap<int, QString> transfers = {
        {0, unknown},    {1, "BT.709"},   {2, unknown},  {4, "2.2"},     {5, "2.8"},
        {6, "ST 170"},   {7, "ST 240"},   {8, "linear"}, {11, "xvYCC"},  {13, "sRGB"},
        {14, "BT.2020"}, {15, "BT.2020"}, {16, "PQ"},    {17, "ST 428"}, {18, "HLG"}};
    static const QMap<int, QString> matrices = {
        {0, "RGB"},   {1, "BT.709"},    {2, unknown},       {3, unknown},
        {4, "FCC"},   {5, "BT.470 BG"}, {6, "ST 170"},      {7, "ST 240"},
        {8, "YCgCo"}, {9, "BT.2020"},   {10, "BT.2020 CL"}, {14, "ICtCp"}};
    const QString none = QStringList{unknown, unknown, unknown}.join('/');
    const QString text =
        QStringList{CodeText(stream.primaries, primaries), CodeText(stream.transfer, transfers),
                    CodeText(stream.matrix, matrices)}
            .join('/');
    return text == none ? QString() : text;
}

/// The codes from black to white of luma: "64–940". Empty when the file does not tell.
QString RangeText(const NLEStreamInfo& stream)
{
    constexpr int black = 16;
    constexpr int white = 235;
    constexpr int full = 2;
    const int shift = stream.bitDepth - 8;
    if (shift < 0 || stream.colorRange == 0)
        return {};
    const bool isFull = stream.colorRange == full;
    return QStringLiteral("%1–%2")
        .arg(isFull ? 0 : black << shift)
        .arg(isFull ? (1 << stream.bitDepth) - 1 : white << shift);
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
        if (stream.bitDepth > 0)
            parts << QStringLiteral("%1 bit").arg(stream.bitDepth);
        parts << ColoursText(stream) << RangeText(stream);
        parts.removeAll({});
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

MediaReport::MediaReport(INLEMediaInfo* info)
    : image(false), video(false), audio(false), rate(0), frames(0), streams(ReadStreams(info))
{
    int kind = NLEMedia_Offline;
    NLERational exactRate = {0, 1};
    if (info && SUCCEEDED(info->GetKind(&kind)) &&
        SUCCEEDED(info->GetFrameCountAndRate(&frames, &exactRate)))
        rate = float(NLECommon::ToDouble(exactRate));
    image = kind == NLEMedia_Image;
    audio = FirstStream(NLEStream_Audio) != NLENoStream;
    const std::uint32_t picture = FirstStream(NLEStream_Video);
    video = picture != NLENoStream;
    if (video)
        size = QSizeF(streams[int(picture)].width, streams[int(picture)].height);
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

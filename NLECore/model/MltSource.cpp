// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/MltSource.h"

#include "EngineApi/NLEKey.h"
#include "NLECore/model/DocumentText.h"
#include "NLECore/scene/SourceChoice.h"

#include <QColor>

#include <algorithm>

namespace nle {

namespace {

using Kind = MltSource::Kind;

Kind KindOf(const QString& service)
{
    static const QMap<QString, Kind> kinds = {
        {QString(), Kind::Media},
        {QStringLiteral("avformat"), Kind::Media},
        {QStringLiteral("avformat-novalidate"), Kind::Media},
        {QStringLiteral("qimage"), Kind::Media},
        {QStringLiteral("pixbuf"), Kind::Media},
        {QStringLiteral("timewarp"), Kind::Media},
        {QStringLiteral("hold"), Kind::Media},
        {QStringLiteral("color"), Kind::Color},
        {QStringLiteral("colour"), Kind::Color},
        {QStringLiteral("qtext"), Kind::Text},
    };
    return kinds.value(service, Kind::Unknown);
}

/// Takes "speed:" from the front of a resource.
void TakeSpeed(MltSource& source, const DocumentFields& properties)
{
    const int colon = source.resource.indexOf(QLatin1Char(':'));
    bool isNumber = false;
    const double speed = source.resource.left(colon).toDouble(&isNumber);
    if (colon > 0 && isNumber)
        source.resource.remove(0, colon + 1);
    else
        source.resource = properties.value(QStringLiteral("warp_resource"), source.resource);
    const double named = MltNumber(properties.value(QStringLiteral("warp_speed")), 1);
    source.speed = colon > 0 && isNumber ? speed : named;
    source.keepsPitch = MltNumber(properties.value(QStringLiteral("warp_pitch")), 0) != 0;
}

const QString kVideoIndex = QStringLiteral("video_index");
const QString kAudioIndex = QStringLiteral("audio_index");

std::vector<int> StreamsOfType(const MediaInfo& media, NLEStreamType type)
{
    std::vector<int> streams;
    for (int index = 0; index < int(media.streams.size()); ++index) {
        if (media.streams[size_t(index)].type == type)
            streams.push_back(index);
    }
    return streams;
}

/// A whole number; none for what is not.
std::optional<int> IndexIn(const DocumentFields& properties, const QString& name)
{
    bool isNumber = false;
    const int index = properties.value(name).trimmed().toInt(&isNumber);
    return isNumber ? std::optional<int>(index) : std::nullopt;
}

/// The stream that is chosen by its index, or by its \a place among \a streams; below 0 for none
/// of them, no value where none is named.
std::optional<int> StreamAt(std::optional<int> index, std::optional<int> place,
                            const std::vector<int>& streams)
{
    if (index || !place || *place < 0)
        return index ? index : place;
    return *place < int(streams.size()) ? std::optional<int>(streams[size_t(*place)])
                                        : std::nullopt;
}

/// Whether the framework plays all streams of sound together.
bool AreAll(const DocumentFields& properties)
{
    return properties.value(kAudioIndex) == QLatin1String("all") ||
           IndexIn(properties, kAudioIndex) == INT32_MAX;
}

} // namespace

MltSource SourceOf(const MltService& producer)
{
    const DocumentFields& properties = producer.properties;
    MltSource source;
    source.service = properties.value(QStringLiteral("mlt_service"));
    source.resource = properties.value(QStringLiteral("resource"));
    // Without a service the resource may begin with one.
    const int colon = source.resource.indexOf(QLatin1Char(':'));
    const QString front = source.resource.left(colon);
    if (source.service.isEmpty() && colon > 1 && KindOf(front) != Kind::Unknown) {
        source.service = front;
        source.resource.remove(0, colon + 1);
    }
    source.kind = KindOf(source.service);
    if (source.service == QLatin1String("timewarp"))
        TakeSpeed(source, properties);
    else if (source.service == QLatin1String("hold"))
        source.frozen = MltInt(properties.value(QStringLiteral("frame")), 0);
    if (source.kind == Kind::Color && source.resource.isEmpty())
        source.resource = properties.value(QStringLiteral("colour"));
    if (source.kind == Kind::Text) {
        source.resource = properties.value(QStringLiteral("text"), source.resource);
        source.family = properties.value(QStringLiteral("family"));
    }
    if (source.kind == Kind::Media && source.resource.isEmpty())
        source.kind = Kind::Unknown;
    return source;
}

MltSource SourceOf(const MediaClip& clip, const QDir& folder)
{
    MltSource source;
    source.kind = Kind::Media;
    source.resource = DocumentPath(clip.Media().path, folder);
    const bool isStill = clip.Media().kind == NLEMedia_Image;
    source.service = isStill ? QStringLiteral("qimage") : QStringLiteral("avformat");
    if (isStill)
        return source;
    if (clip.IsFrozen()) {
        source.service = QStringLiteral("hold");
        source.frozen = clip.MakeSnapshot()->frozenFrame;
    } else if (clip.Speed() != 1) {
        source.service = QStringLiteral("timewarp");
        source.speed = clip.Speed();
    }
    return source;
}

MltStreams StreamsOf(const DocumentFields& properties, const MediaInfo& media)
{
    MltStreams streams;
    if (media.kind == NLEMedia_Image)
        return streams;
    const std::vector<int> sounds = StreamsOfType(media, NLEStream_Audio);
    const std::optional<int> video =
        StreamAt(IndexIn(properties, kVideoIndex), IndexIn(properties, QStringLiteral("vstream")),
                 StreamsOfType(media, NLEStream_Video));
    const std::optional<int> audio = StreamAt(
        IndexIn(properties, kAudioIndex), IndexIn(properties, QStringLiteral("astream")), sounds);
    SourceSettings chosen;
    chosen.videoStream = video.value_or(-1);
    if (AreAll(properties))
        chosen.audioStreams = sounds;
    else if (audio && *audio >= 0)
        chosen.audioStreams = {*audio};
    // Of a file that is not there nobody knows which it has.
    const bool isKnown = media.kind != NLEMedia_Offline;
    const bool isPreferred = chosen.audioStreams == std::vector<int>{media.audioStream};
    if (!isKnown || (HasVideoStream(media, chosen) && chosen.videoStream != media.videoStream))
        streams.video = std::max(chosen.videoStream, -1);
    if (!isKnown || (HasAudioStreams(media, chosen) && !isPreferred))
        streams.audio = chosen.audioStreams;
    streams.isHidden = video && *video < 0;
    streams.isSilent = audio && *audio < 0;
    return streams;
}

DocumentFields IndexesOf(const MediaClip& clip)
{
    const SourceSettings& settings = clip.Source();
    DocumentFields indexes;
    if (settings.videoStream >= 0)
        indexes[kVideoIndex] = QString::number(settings.videoStream);
    if (!settings.audioStreams.empty())
        indexes[kAudioIndex] = QString::number(settings.audioStreams.front());
    return indexes;
}

std::uint32_t ParseMltColor(const QString& text)
{
    if (text.startsWith(QLatin1String("0x"))) {
        const std::uint32_t rgba = text.mid(2).toUInt(nullptr, 16);
        return (rgba >> 8) | (rgba << 24);
    }
    const QColor color(text);
    return color.isValid() ? color.rgba() : 0xFF000000u;
}

} // namespace nle

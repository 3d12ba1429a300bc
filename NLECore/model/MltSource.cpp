// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/MltSource.h"

#include "EngineApi/NLEKey.h"
#include "NLECore/model/DocumentText.h"

#include <QColor>

namespace nle {

namespace {

using Kind = MltSource::Kind;

Kind KindOf(const QString& service)
{
    static const QHash<QString, Kind> kinds = {
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
void TakeSpeed(MltSource& source, const DocumentProperties& properties)
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

} // namespace

MltSource SourceOf(const MltService& producer)
{
    const DocumentProperties& properties = producer.properties;
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
        source.frozen = int(MltNumber(properties.value(QStringLiteral("frame")), 0));
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

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/OtioMarkers.h"

#include "Com/WideText.h"
#include "NLECore/model/OtioFormat.h"
#include "NLECore/scene/FrameMath.h"

#include <QColor>

#include <algorithm>
#include <array>

namespace nle {

using namespace otio;

namespace {

struct NamedColor
{
    const char* name;
    std::uint32_t argb;
};
/// The colours that the format has names for.
constexpr std::array<NamedColor, 11> kColors = {{{"RED", 0xFFFF0000},
                                                 {"PINK", 0xFFFF70C0},
                                                 {"ORANGE", 0xFFFFA000},
                                                 {"YELLOW", 0xFFFFFF00},
                                                 {"GREEN", 0xFF00FF00},
                                                 {"CYAN", 0xFF00FFFF},
                                                 {"BLUE", 0xFF0000FF},
                                                 {"PURPLE", 0xFFA000D0},
                                                 {"MAGENTA", 0xFFFF00FF},
                                                 {"BLACK", 0xFF000000},
                                                 {"WHITE", 0xFFFFFFFF}}};

int Distance(std::uint32_t a, std::uint32_t b)
{
    const auto apart = [](int from, int to) { return (from - to) * (from - to); };
    return apart(qRed(a), qRed(b)) + apart(qGreen(a), qGreen(b)) + apart(qBlue(a), qBlue(b));
}

const NamedColor& NearestColor(std::uint32_t argb)
{
    return *std::min_element(kColors.begin(), kColors.end(),
                             [argb](const NamedColor& a, const NamedColor& b) {
                                 return Distance(a.argb, argb) < Distance(b.argb, argb);
                             });
}

/// Red, as the format's own library presets it, where the name is unknown.
std::uint32_t ColorOf(const QString& name)
{
    const auto* const color =
        std::find_if(kColors.begin(), kColors.end(),
                     [&name](const NamedColor& one) { return name == QLatin1String(one.name); });
    return color == kColors.end() ? kColors.front().argb : color->argb;
}

bool IsSameMarker(const Marker& a, const Marker& b)
{
    return nle::IsSame(a.record, b.record) && a.name == b.name;
}

} // namespace

QJsonObject OtioMarkers::ToJson(const Marker& marker) const
{
    return {{kSchema, QStringLiteral("Marker.2")},
            {QStringLiteral("name"), FromWide(marker.name)},
            {QStringLiteral("color"), QLatin1String(NearestColor(marker.record.color).name)},
            {QStringLiteral("marked_range"),
             TimeRange(m_start * m_rate + marker.record.frame, marker.record.length, m_rate)},
            {QStringLiteral("metadata"), QJsonObject()}};
}

QJsonArray OtioMarkers::Write(const MarkerList& markers, const QJsonArray& kept) const
{
    QJsonArray result;
    QJsonArray left = kept;
    for (const Marker& marker : markers) {
        QJsonObject written = ToJson(marker);
        for (int i = 0; i < left.size(); ++i) {
            const MarkerList known = Read({left[i]});
            if (!known.empty() && IsSameMarker(known.front(), marker)) {
                written = left.takeAt(i).toObject();
                break;
            }
        }
        result.append(written);
    }
    // What has no time says something all the same.
    for (const QJsonValue unread : left) {
        if (Read({unread}).empty())
            result.append(unread);
    }
    return result;
}

bool OtioMarkers::IsSame(const QJsonArray& a, const QJsonArray& b) const
{
    const MarkerList first = Read(a);
    const MarkerList second = Read(b);
    return std::equal(first.begin(), first.end(), second.begin(), second.end(), IsSameMarker);
}

MarkerList OtioMarkers::Read(const QJsonArray& markers) const
{
    MarkerList result;
    for (const QJsonValue value : markers) {
        const QJsonObject object = value.toObject();
        const QJsonObject range = object[QLatin1String("marked_range")].toObject();
        const auto start = Seconds(range[QLatin1String("start_time")].toObject());
        const auto length = Seconds(range[QLatin1String("duration")].toObject());
        if (!start)
            continue;
        const NLEMarkerRecord record = {ClampToInt(std::round((*start - m_start) * m_rate)),
                                        ClampToInt(std::round(length.value_or(0) * m_rate)),
                                        ColorOf(object[QLatin1String("color")].toString())};
        PutMarker(result, {record, ToWide(object[QLatin1String("name")].toString())});
    }
    return result;
}

} // namespace nle

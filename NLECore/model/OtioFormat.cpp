// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/OtioFormat.h"

#include "Com/WideText.h"

#include <algorithm>

namespace nle::otio {

QJsonObject Time(double value, double rate)
{
    return {{kSchema, QStringLiteral("RationalTime.1")},
            {QStringLiteral("value"), value},
            {QStringLiteral("rate"), rate}};
}

QJsonObject TimeRange(double start, double duration, double rate)
{
    return {{kSchema, QStringLiteral("TimeRange.1")},
            {QStringLiteral("start_time"), Time(start, rate)},
            {QStringLiteral("duration"), Time(duration, rate)}};
}

std::optional<double> Seconds(const QJsonObject& time)
{
    const double rate = time.value(QLatin1String("rate")).toDouble();
    const QJsonValue value = time.value(QLatin1String("value"));
    if (!value.isDouble() || !(rate > 0))
        return std::nullopt;
    return std::clamp(value.toDouble() / rate, -kLongest, kLongest);
}

QString KeptText(const TimelineNode& node, const wchar_t* key)
{
    const auto& values = node.Bag().All();
    const auto value = values.find(key);
    const auto* text =
        value == values.end() ? nullptr : std::get_if<PropertyBag::Text>(&value->second);
    return text ? FromWide(**text) : QString();
}

QJsonDocument KeptJson(const TimelineNode& node, const wchar_t* key)
{
    return QJsonDocument::fromJson(KeptText(node, key).toUtf8());
}

double MediaStart(const TimelineNode& node)
{
    double start = 0;
    node.Bag().GetDouble(kMediaStart, &start);
    return IsFinite(start) ? start : 0;
}

} // namespace nle::otio

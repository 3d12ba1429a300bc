// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/SourceKeys.h"

#include "Com/WideText.h"
#include "EngineApi/NLEKey.h"

#include <QStringList>

#include <algorithm>

namespace nle {

using namespace NLEKey::Source;

namespace {

constexpr QLatin1Char kSeparator(',');

PropertyBag::Value StreamsText(const std::vector<int>& streams)
{
    QStringList numbers;
    for (const int stream : streams)
        numbers << QString::number(stream);
    return std::make_shared<const std::wstring>(numbers.join(kSeparator).toStdWString());
}

std::optional<std::vector<int>> ParseStreams(const std::wstring& text)
{
    std::vector<int> streams;
    const QString whole = FromWide(text);
    if (whole.isEmpty())
        return streams;
    for (const QString& part : whole.split(kSeparator)) {
        bool isNumber = false;
        const int stream = part.toInt(&isNumber);
        if (!isNumber || stream < 0 ||
            std::find(streams.begin(), streams.end(), stream) != streams.end())
            return std::nullopt;
        streams.push_back(stream);
    }
    return streams;
}

bool SetStreams(SourceSettings& settings, const PropertyBag::Value& value)
{
    const PropertyBag::Text* text = std::get_if<PropertyBag::Text>(&value);
    const auto streams = text ? ParseStreams(**text) : std::nullopt;
    return streams && SetField<&SourceSettings::audioStreams>(settings, *streams);
}

bool SetAspect(SourceSettings& settings, const PropertyBag::Value& value)
{
    const NLERational* aspect = std::get_if<NLERational>(&value);
    if (!aspect || aspect->den < 1 || aspect->den > INT32_MAX || aspect->num > INT32_MAX)
        return false;
    const bool isFlat = aspect->num != 0 && aspect->num * kMostPixelAspect < aspect->den;
    return !isFlat && SetField<&SourceSettings::pixelAspect>(settings, *aspect);
}

} // namespace

bool IsSourceKey(std::wstring_view key)
{
    return key == kVideoStream || key == kAudioStreams || key == kPixelAspect ||
           key == kDeinterlacing || key == kFieldOrder;
}

PropertyBag::Value SourceValue(const SourceSettings& settings, std::wstring_view key)
{
    if (key == kAudioStreams)
        return StreamsText(settings.audioStreams);
    if (key == kPixelAspect)
        return settings.pixelAspect;
    if (key == kDeinterlacing)
        return int(settings.deinterlacing);
    return key == kFieldOrder ? int(settings.fieldOrder) : settings.videoStream;
}

bool SetSourceValue(SourceSettings& settings, std::wstring_view key,
                    const PropertyBag::Value& value)
{
    if (key == kAudioStreams)
        return SetStreams(settings, value);
    if (key == kPixelAspect)
        return SetAspect(settings, value);
    const int* number = std::get_if<int>(&value);
    if (!number)
        return false;
    if (key == kDeinterlacing)
        return SetField<&SourceSettings::deinterlacing>(settings, NLEDeinterlacing(*number));
    if (key == kFieldOrder)
        return SetField<&SourceSettings::fieldOrder>(settings, NLEFieldOrder(*number));
    return SetField<&SourceSettings::videoStream>(settings, *number);
}

} // namespace nle

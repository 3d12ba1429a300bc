// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/SoundFilters.h"

#include "NLECore/model/TimelineNode.h"
#include "NLECore/scene/FrameMath.h"

#include <QStringList>

namespace nle {

namespace {

/// Key frames that a curve is written with, at most.
constexpr int kMostKeys = 2000;

QString Number(double value)
{
    return QString::number(value, 'g', 9);
}

DocumentFilter Volume(const DocumentTexts& values, std::optional<NLERange> range = std::nullopt)
{
    DocumentFilter filter = {{{QStringLiteral("mlt_service"), QStringLiteral("volume")}}, range};
    filter.properties.insert(filter.properties.end(), values.begin(), values.end());
    return filter;
}

DocumentFilter Constant(double gain)
{
    return Volume({{QStringLiteral("gain"), Number(gain)}});
}

DocumentFilter Ramp(double from, double to, const NLERange& range)
{
    return Volume({{QStringLiteral("gain"), Number(from)}, {QStringLiteral("end"), Number(to)}},
                  range);
}

DocumentFilter Balance(double balance)
{
    return {{{QStringLiteral("mlt_service"), QStringLiteral("panner")},
             {QStringLiteral("channel"), QStringLiteral("-1")},
             // The newer property, an animated one, does not take a single value everywhere.
             {QStringLiteral("start"), Number((balance + 1) / 2)}},
            std::nullopt};
}

/// A gain in decibels; silence as far down as makes no difference.
QString Decibel(double gain)
{
    constexpr double silence = 1e-5;
    constexpr double decade = 20;
    return QString::number(decade * std::log10(std::max(gain, silence)), 'f', 4);
}

/// The curve as key frames of the producer that has the range \a range: as the framework goes in
/// decibels from one to the next, there is one for each frame where that is possible.
DocumentFilter Curve(const std::vector<VolumePoint>& points, const NLERange& range, double fps)
{
    const auto frameOf = [&](const VolumePoint& point) {
        return std::clamp(std::floor(range.in + point.time * fps), 0.0, double(range.out));
    };
    const double first = frameOf(points.front());
    const double last = std::min(frameOf(points.back()) + 1, double(INT32_MAX));
    const double step = std::max(1.0, std::ceil((last - first) / kMostKeys));
    QStringList keys;
    for (double frame = first; frame < last + step; frame += step) {
        const double gain = GainAt(points, (frame - range.in) / fps);
        keys << QString::number(frame, 'f', 0) + QLatin1Char('=') + Decibel(gain);
    }
    return Volume({{QStringLiteral("level"), keys.join(QLatin1Char(';'))}});
}

} // namespace

std::vector<DocumentFilter> SoundFilters(const TimelineNode& node)
{
    const AudioSettings& sound = node.Audio().settings;
    const NLERange range = node.Range();
    const bool isSilent = sound.mute || (sound.volumeEnabled && sound.volume == 0);
    if (isSilent)
        return {Constant(0)};
    std::vector<DocumentFilter> filters;
    if (sound.volumeEnabled && sound.volume != 1)
        filters.push_back(Constant(sound.volume));
    if (sound.volumeEnabled && !sound.volumePoints.empty())
        filters.push_back(Curve(sound.volumePoints, range, ToDouble(node.FrameRate())));
    // The framework goes in each frame from the gain of the one before to its own.
    const auto first = [](int frames) { return 1.0 / frames; };
    if (sound.fadeIn && sound.fadeInFrames > 0)
        filters.push_back(Ramp(first(sound.fadeInFrames), 1,
                               {range.in, ClampToInt(double(range.in) + sound.fadeInFrames - 1)}));
    if (sound.fadeOut && sound.fadeOutFrames > 0)
        filters.push_back(
            Ramp(1 - first(sound.fadeOutFrames), 0,
                 {ClampToInt(double(range.out) - sound.fadeOutFrames + 1), range.out}));
    if (sound.mono)
        filters.push_back(
            {{{QStringLiteral("mlt_service"), QStringLiteral("mono")}}, std::nullopt});
    if (sound.balance != 0)
        filters.push_back(Balance(sound.balance));
    return filters;
}

std::vector<DocumentFilter> StripFilters(const tagMixerParam& strip, bool isSilent)
{
    if (isSilent)
        return {Constant(0)};
    std::vector<DocumentFilter> filters;
    if (strip.volume != 1)
        filters.push_back(Constant(strip.volume));
    if (strip.balance != 0)
        filters.push_back(Balance(strip.balance));
    return filters;
}

DocumentFilter FadeFilter(CrossFade fade, bool comes, const NLERange& range)
{
    const auto frames = int(NLERangeLength(range));
    const int step = std::max(1, frames / kMostKeys);
    QStringList keys;
    // The framework goes in each frame from the gain of the one before to its own.
    for (int frame = 0; frame < frames; frame += step) {
        const double gain = CrossFadeGain(fade, comes, (frame + 1.0) / frames);
        keys << QString::number(frame) + QLatin1Char('=') + Decibel(gain);
    }
    DocumentFilter filter = Volume({{QStringLiteral("level"), keys.join(QLatin1Char(';'))}});
    filter.range = range;
    return filter;
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLECommon.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace nle {

using NLECommon::IsRate;
using NLECommon::ToDouble;

/// The nearest 32-bit number; 0 for what is not a number.
inline int ClampToInt(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double lowest = std::numeric_limits<std::int32_t>::min();
    constexpr double highest = std::numeric_limits<std::int32_t>::max();
    return int(std::clamp(value, lowest, highest));
}

/// A place in time: a frame number with the rate that it counts at. Where a rate cannot be counted
/// with, every place is frame 0.
struct FrameTime
{
    double frame;
    NLERational rate;

    /// The frame at rate \a other that starts nearest to this place.
    int NearestAt(const NLERational& other) const { return ClampToInt(std::round(At(other))); }
    /// The frame at rate \a other that is showing at this place.
    int ShownAt(const NLERational& other) const
    {
        // The margin keeps a frame that starts at the same instant from falling to the one before.
        return ClampToInt(std::floor(At(other) + 1e-4));
    }

private:
    double At(const NLERational& other) const
    {
        return IsRate(rate) && IsRate(other) ? frame * ToDouble(other) / ToDouble(rate) : 0.0;
    }
};

/// The sample that plays when \a frame begins, of sound of \a sampleRate.
inline std::int64_t SampleOfFrame(std::int64_t frame, const NLERational& frameRate, int sampleRate)
{
    // Far from overflow in what is computed of it.
    constexpr double farthest = 1e15;
    return std::llround(
        std::clamp(double(frame) * sampleRate / ToDouble(frameRate), -farthest, farthest));
}

/// \a range with both ends at \a factor times their place; what is not empty keeps at least one
/// frame.
inline NLERange ScaleRange(const NLERange& range, double factor)
{
    const std::int64_t length = NLERangeLength(range);
    if (length == 0)
        return range;
    const int in = ClampToInt(std::round(range.in * factor));
    const double end = std::round((double(range.in) + double(length)) * factor);
    return {in, std::max(in, ClampToInt(end - 1))};
}

/// A span of time: frames with the rate that they count at.
struct FrameSpan
{
    NLERange range;
    NLERational rate;

    /// The same span at another rate; unchanged where one of the rates cannot be counted with.
    NLERange At(const NLERational& other) const
    {
        const bool counts = IsRate(rate) && IsRate(other);
        return counts ? ScaleRange(range, ToDouble(other) / ToDouble(rate)) : range;
    }
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace nle {

/// Whether a rate can be counted with.
constexpr bool IsRate(const NLERational& rate)
{
    return rate.num > 0 && rate.den > 0;
}

constexpr double ToDouble(const NLERational& rational)
{
    return rational.den == 0 ? 0.0 : double(rational.num) / double(rational.den);
}

/// A rate in millionths; 0 over 1000000 for what is not a usable number.
inline NLERational RateFromDouble(double rate)
{
    constexpr double highest = 1e6;
    if (!(rate > 0.0) || rate > highest)
        return {0, 1000000};
    return {std::int64_t(rate * 1000000 + 0.5), 1000000};
}

/// The nearest 32-bit number; 0 for what is not a number.
inline int ClampToInt(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double lowest = std::numeric_limits<std::int32_t>::min();
    constexpr double highest = std::numeric_limits<std::int32_t>::max();
    return int(std::clamp(value, lowest, highest));
}

/// The frame at rate \a to that is nearest to the start of \a frame at rate \a from.
inline int RescaleFrame(std::int64_t frame, const NLERational& from, const NLERational& to)
{
    return ClampToInt(std::round(double(frame) * ToDouble(to) / ToDouble(from)));
}

/// The frame at rate \a to that is showing when \a frame at rate \a from starts.
inline int ShownFrame(double frame, const NLERational& from, const NLERational& to)
{
    // The margin keeps a frame that starts at the same instant from falling to the one before.
    return ClampToInt(std::floor(frame * ToDouble(to) / ToDouble(from) + 1e-4));
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

/// The same span of time at another rate.
inline NLERange RescaleRange(const NLERange& range, const NLERational& from, const NLERational& to)
{
    return ScaleRange(range, ToDouble(to) / ToDouble(from));
}

} // namespace nle

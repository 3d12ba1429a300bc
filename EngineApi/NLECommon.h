// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"

#include <cmath>
#include <cstdint>

/// Functions that engine and library count with alike.
namespace NLECommon {

/// Whether a frame rate can be counted with.
constexpr bool IsRate(const NLERational& rate)
{
    return rate.num > 0 && rate.den > 0;
}

/// The fraction's value; 0 when the denominator is 0.
constexpr double ToDouble(const NLERational& value)
{
    return value.den == 0 ? 0.0 : double(value.num) / double(value.den);
}

/// Frames a second as the engine carries them: millionths, trunc(rate * 1000000 + 0.5). 0 for what
/// is not finite; the nearest that 64 bits hold for what is beyond.
inline NLERational RateToRational(double rate)
{
    constexpr std::int64_t millionths = 1000000;
    constexpr double furthest = 9.2e18;
    const double count = rate * millionths + 0.5;
    if (!std::isfinite(count))
        return {0, millionths};
    if (count >= furthest || count <= -furthest)
        return {count > 0 ? INT64_MAX : INT64_MIN, millionths};
    return {static_cast<std::int64_t>(count), millionths};
}

/// Places on a clip's key-frame axis: 0 is the start of the clip's first frame, 1 the end of its
/// last. A frame is numbered from 0 at the in point.
namespace KeyFrame {

/// Place where frame \a index of a clip of \a count frames starts: index over count. Frames outside
/// of the clip lie below 0 or from 1 on. 0 over 1 when \a count is not above 0.
inline NLERational CaculateKeyFramePosition(int index, int count)
{
    return count > 0 ? NLERational{index, count} : NLERational{0, 1};
}

/// The frame of a clip of \a count frames that starts nearest to the place \a time; the exact
/// inverse of CaculateKeyFramePosition(). Not limited to the clip, only to what an int holds. 0
/// when \a time is not a number or \a count is not above 0.
inline int CaculateKeyFrameIndex(double time, int count)
{
    if (count <= 0 || std::isnan(time))
        return 0;
    const double index = std::round(time * count);
    if (index <= INT32_MIN)
        return INT32_MIN;
    return index >= INT32_MAX ? INT32_MAX : static_cast<int>(index);
}

} // namespace KeyFrame

} // namespace NLECommon

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <limits>
#include <optional>

/// \a value truncated toward zero, or nothing when that is not a number of type \a Integer, where a
/// plain conversion would be undefined.
template <typename Integer, typename Float>
std::optional<Integer> Truncated(Float value)
{
    using Limits = std::numeric_limits<Integer>;
    // One past the largest value is a power of two and so exact in every floating-point type, while
    // the largest value itself may not be. Written so that a value that is no number fails.
    constexpr Integer half = Limits::max() / 2 + 1;
    const Float end = static_cast<Float>(half) * 2;
    const Float lowest = static_cast<Float>(Limits::min());
    if (!(value - lowest > Float(-1) && value < end))
        return std::nullopt;
    return static_cast<Integer>(value);
}

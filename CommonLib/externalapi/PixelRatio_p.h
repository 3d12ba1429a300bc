// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

#include <algorithm>

/// The least room that the interface needs, in pixels at a ratio of 1.
constexpr double kLeastWidth = 1280.0;
constexpr double kLeastHeight = 690.0;

/// The ratio to begin with for a monitor of this scale: 1.25 as it is, else rounded, with halves
/// and a little less (from .375) upwards.
inline double FixedPixelRatio(double scale)
{
    constexpr double kRoundUp = 0.625;
    constexpr double kMost = 1000; // no monitor's; keeps the conversion defined
    if (scale > 1.0 && scale <= 1.25)
        return 1.25;
    return static_cast<int>(std::max(0.0, std::min(kMost, scale)) + kRoundUp);
}

/// \a ratio lowered in quarters until the interface fits a monitor of \a width by \a height
/// physical pixels, at least 1. Calls \a lowered with every step.
template <typename Lowered>
double FittingPixelRatio(double ratio, int width, int height, Lowered lowered)
{
    // Nothing is lower than a monitor without height.
    const int room = std::max(height, 0);
    while ((ratio > 1.0 && ratio * kLeastWidth > width) || ratio * kLeastHeight > room) {
        ratio -= 0.25;
        lowered(ratio);
    }
    return std::max(ratio, 1.0);
}

/// The system's ratio carried over to a monitor of another scale than the primary one's.
inline double PixelRatioOn(double systemRatio, double primaryScale, double scale)
{
    if (!(primaryScale > 0) || !(scale > 0))
        return systemRatio;
    return std::max(1.0, systemRatio * scale / primaryScale);
}

/// The side of a monitor in its own pixels that Qt reports as \a logical at \a scale, rounded. Of
/// those that come out as this, the one with the most factors of two, as display modes have.
inline int PhysicalSide(int logical, double scale)
{
    const auto factorsOfTwo = [](int side) { return side & -side; };
    int best = qRound(logical * scale);
    const int reach = qRound(scale);
    for (int side = qMax(1, best - reach); side <= best + reach; ++side) {
        if (qRound(side / scale) == logical && factorsOfTwo(side) > factorsOfTwo(best))
            best = side;
    }
    return best;
}

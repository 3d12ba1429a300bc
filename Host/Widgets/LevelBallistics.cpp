// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/LevelBallistics.h"

#include <algorithm>
#include <cmath>

double ToDecibels(double level)
{
    return level > 0 ? 20 * std::log10(level) : -std::numeric_limits<double>::infinity();
}

void FallingLevel::Raise(double decibels, std::int64_t now)
{
    if (!(decibels >= At(now)))
        return;
    m_level = decibels;
    m_since = now;
}

double FallingLevel::At(std::int64_t now) const
{
    const std::int64_t falling = std::max<std::int64_t>(0, now - m_since - m_hold);
    return m_level - kFallPerSecond * double(falling) / 1000;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/TimelineRuler.h"

/// Frames and pixels as a ruler converts them now, with the ruler's left edge as 0.
struct TimelineScale
{
    double left = 0;   ///< frame at the left edge, with its fraction
    double pixels = 1; ///< that a frame takes

    explicit TimelineScale(const TimelineRuler& ruler)
    {
        // Far from frame 0 a float holds no fraction; near the offset it does.
        constexpr int many = 1 << 20;
        pixels = double(ruler.Frames2DurationF(many)) / many;
        left = ruler.OffsetFrames() - double(ruler.Frames2PositionF(ruler.OffsetFrames())) / pixels;
    }
    double X(double frame) const { return (frame - left) * pixels; }
    double Frame(double x) const { return left + x / pixels; }
};

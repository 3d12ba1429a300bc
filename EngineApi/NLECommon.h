// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"

#include <cmath>
#include <cstdint>

/// Functions that engine and library count with alike.
namespace NLECommon {

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

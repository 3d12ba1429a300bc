// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/VideoKeyFrameParam.h"

#include <cmath>

bool VideoKeyFrameParam::operator==(const VideoKeyFrameParam& other) const
{
    constexpr double tolerance = 1e-12;
    const QPointF distance = position - other.position;
    return rotateAngle == other.rotateAngle && std::abs(distance.x()) <= tolerance &&
           std::abs(distance.y()) <= tolerance && time == other.time && opacity == other.opacity &&
           qFuzzyCompare(scale.width(), other.scale.width()) &&
           qFuzzyCompare(scale.height(), other.scale.height());
}

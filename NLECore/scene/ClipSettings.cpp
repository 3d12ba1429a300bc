// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/scene/ClipSettings.h"

#include <algorithm>

namespace nle {

bool PutVolumePoint(std::vector<VolumePoint>& curve, const VolumePoint& point)
{
    if (!IsFinite(point.time) || !IsWithin(point.gain, 0.0, kMostVolume))
        return false;
    const auto place =
        std::lower_bound(curve.begin(), curve.end(), point.time,
                         [](const VolumePoint& before, double time) { return before.time < time; });
    if (place != curve.end() && place->time == point.time)
        place->gain = point.gain;
    else
        curve.insert(place, point);
    return true;
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/scene/ClipSettings.h"

#include <algorithm>
#include <cstdint>
#include <utility>

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

bool IsValid(const Marker& marker)
{
    const NLEMarkerRecord& record = marker.record;
    return IsValid(record) && std::int64_t(record.frame) + record.length - 1 <= INT32_MAX;
}

int PutMarker(MarkerList& markers, Marker marker)
{
    if (!IsValid(marker))
        return -1;
    const auto place =
        std::upper_bound(markers.begin(), markers.end(), marker.record.frame,
                         [](int frame, const Marker& other) { return frame < other.record.frame; });
    const auto index = int(place - markers.begin());
    markers.insert(place, std::move(marker));
    return index;
}

LevelSettings SettingsOf(const LevelMap& levels, int level)
{
    const auto found = levels.find(level);
    return found == levels.end() ? LevelSettings() : found->second;
}

void PutSettings(LevelMap& levels, int level, const LevelSettings& settings)
{
    if (IsSame(settings, LevelSettings()))
        levels.erase(level);
    else
        levels[level] = settings;
}

bool IsOutplayed(const LevelMap& levels, int level)
{
    return AnySolo(levels) && !SettingsOf(levels, level).solo;
}

double GainAt(const std::vector<VolumePoint>& curve, double time)
{
    if (curve.empty())
        return 1;
    const auto after =
        std::upper_bound(curve.begin(), curve.end(), time,
                         [](double wanted, const VolumePoint& p) { return wanted < p.time; });
    if (after == curve.begin())
        return after->gain;
    const auto before = after - 1;
    if (after == curve.end())
        return before->gain;
    const double share = (time - before->time) / (after->time - before->time);
    return before->gain + (after->gain - before->gain) * share;
}

} // namespace nle

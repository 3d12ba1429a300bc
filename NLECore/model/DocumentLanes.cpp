// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/DocumentLanes.h"

#include "EngineApi/NLEKey.h"

#include <algorithm>

namespace nle {

namespace {

/// The lowest of \a lanes, which are of the clip's level, that takes the clip above all that it
/// covers; a new one when there is none.
DocumentLane& LaneFor(const TimelineNode& clip, const Placement& placement,
                      std::vector<DocumentLane>& lanes)
{
    const BlendSettings& settings = clip.Blend().settings;
    const BlendMode blend = settings.enabled ? settings.mode : BlendMode::Normal;
    const auto streams =
        NLERenderMode(clip.Bag().IntOr(NLEKey::Render::kRender_Mode, NLERender_All));
    const auto covered =
        std::find_if(lanes.rbegin(), lanes.rend(),
                     [&](const DocumentLane& candidate) { return candidate.Overlaps(placement); });
    const auto lane = std::find_if(covered.base(), lanes.end(), [&](const DocumentLane& candidate) {
        return candidate.blend == blend && candidate.streams == streams;
    });
    if (lane != lanes.end())
        return *lane;
    lanes.push_back({clip.Level(), blend, streams, {}});
    return lanes.back();
}

} // namespace

Placement VisiblePart(const TimelineNode& clip)
{
    const NLERange range = clip.Range();
    const std::int64_t cut = std::max<std::int64_t>(0, -std::int64_t(clip.Position()));
    return {clip.Position() + cut,
            {int(std::min<std::int64_t>(range.in + cut, INT32_MAX)), range.out}};
}

bool DocumentLane::Overlaps(const Placement& placement) const
{
    const auto after = clips.lower_bound(placement.End());
    return after != clips.begin() &&
           VisiblePart(*std::prev(after)->second).End() > placement.position;
}

DocumentLanes LanesOf(const CompositeNode& composite)
{
    DocumentLanes result;
    std::map<int, std::vector<DocumentLane>> levels;
    for (const NLEComPtr<TimelineNode>& clip : composite.Clips()) {
        const Placement placement = VisiblePart(*clip);
        const bool isShown = clip->IsEnabled() && !clip->IsTransition();
        if (isShown && NLERangeLength(placement.range) > 0)
            LaneFor(*clip, placement, levels[clip->Level()]).clips[placement.position] = clip.get();
        else
            result.unplaced.push_back(clip.get());
    }
    for (auto& [level, lanes] : levels)
        std::move(lanes.begin(), lanes.end(), std::back_inserter(result.lanes));
    return result;
}

} // namespace nle

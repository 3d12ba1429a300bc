// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/DocumentLanes.h"

#include "EngineApi/NLEKey.h"
#include "NLECore/scene/FrameMath.h"
#include "NLECore/scene/Layer.h"

#include <algorithm>
#include <set>

namespace nle {

namespace {

BlendMode BlendOf(const TimelineNode& clip)
{
    const BlendSettings& settings = clip.Blend().settings;
    return settings.enabled ? settings.mode : BlendMode::Normal;
}

NLERenderMode StreamsOf(const TimelineNode& clip)
{
    return NLERenderMode(clip.Bag().IntOr(NLEKey::Render::kRender_Mode, NLERender_All));
}

std::int64_t EndOf(const TimelineNode& clip)
{
    return clip.Position() + NLERangeLength(clip.Range());
}

/// The joins of each clip.
class JoinIndex
{
public:
    explicit JoinIndex(const LaneJoins& joins)
    {
        for (const LaneJoin& join : joins) {
            m_going[join.from] = &join;
            m_coming[join.to] = &join;
        }
    }

    /// The one with which a clip goes, or comes; null for none.
    const LaneJoin* Going(const TimelineNode& clip) const { return Find(m_going, clip); }
    const LaneJoin* Coming(const TimelineNode& clip) const { return Find(m_coming, clip); }

    /// What of a clip is left where joined clips meet.
    Placement Cut(const TimelineNode& clip, Placement placement) const
    {
        if (const LaneJoin* coming = Coming(clip)) {
            const std::int64_t head = coming->Cut() - placement.position;
            placement.position += head;
            placement.range.in = ClampToInt(double(placement.range.in + head));
        }
        if (const LaneJoin* going = Going(clip))
            placement.range.out =
                ClampToInt(double(placement.range.out - (placement.End() - going->Cut())));
        return placement;
    }

private:
    using Joins = std::map<const TimelineNode*, const LaneJoin*>;
    static const LaneJoin* Find(const Joins& joins, const TimelineNode& clip)
    {
        const auto found = joins.find(&clip);
        return found == joins.end() ? nullptr : found->second;
    }

    Joins m_going;
    Joins m_coming;
};

/// The lowest of \a lanes, which are of the clip's level, that takes the clip above all that it
/// covers, which \a but is not; a new one when there is none.
DocumentLane& LaneFor(const LaneClip& clip, const TimelineNode* but,
                      std::vector<DocumentLane>& lanes)
{
    const BlendMode blend = BlendOf(*clip.node);
    const NLERenderMode streams = StreamsOf(*clip.node);
    const auto covered =
        std::find_if(lanes.rbegin(), lanes.rend(), [&](const DocumentLane& candidate) {
            return candidate.Overlapped(clip.placement, but);
        });
    const auto lane = std::find_if(covered.base(), lanes.end(), [&](const DocumentLane& candidate) {
        return candidate.blend == blend && candidate.streams == streams &&
               !candidate.Overlapped(clip.placement, nullptr);
    });
    if (lane != lanes.end())
        return *lane;
    lanes.push_back({clip.node->Level(), blend, streams, {}});
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

const TimelineNode* DocumentLane::Overlapped(const Placement& placement,
                                             const TimelineNode* but) const
{
    auto after = clips.lower_bound(placement.End());
    while (after != clips.begin()) {
        --after;
        if (after->second.placement.End() <= placement.position)
            return nullptr;
        if (after->second.node != but)
            return after->second.node;
    }
    return nullptr;
}

LevelParts OffParts(const CompositeNode& composite, int level)
{
    const MixerSettings& mixer = composite.Mixer().settings;
    const auto strip = mixer.find(level);
    const bool isOff = IsOutplayed(composite.Levels(), level);
    return {isOff || SettingsOf(composite.Levels(), level).hidden,
            isOff || (strip != mixer.end() && strip->second.mute != 0)};
}

LaneJoins JoinsOf(const CompositeNode& composite,
                  const std::function<bool(const LaneJoin&)>& isWanted)
{
    const auto& nodes = composite.Clips();
    if (std::none_of(nodes.begin(), nodes.end(),
                     [](const auto& node) { return node->IsTransition(); }))
        return {};
    const Snapshot snapshot = composite.MakeSnapshot();
    const std::vector<const TimelineNode*> clips = composite.PlayingClips();
    LaneJoins joins;
    std::map<const TimelineNode*, std::int64_t> starts; // where a clip is whole from
    for (const LayerTransition& transition : snapshot->transitions) {
        const LayerTransition::Clips& pair = transition.pictures;
        if (pair.from < 0 || pair.to < 0 || transition.position < 0)
            continue;
        const LaneJoin join = {clips[size_t(pair.from)], clips[size_t(pair.to)],
                               transition.position, transition.End() - transition.position,
                               transition.parameters};
        const bool isOverlap =
            EndOf(*join.from) == transition.End() && join.to->Position() == transition.position;
        const bool isAlike = BlendOf(*join.from) == BlendOf(*join.to) &&
                             StreamsOf(*join.from) == StreamsOf(*join.to);
        // In their order: what is left of the first clip is something.
        const auto start = starts.find(join.from);
        const std::int64_t whole = start == starts.end()
                                       ? std::max<std::int64_t>(0, join.from->Position())
                                       : start->second;
        if (!isOverlap || !isAlike || whole >= join.position || !isWanted(join))
            continue;
        joins.push_back(join);
        starts[join.to] = transition.End();
    }
    return joins;
}

DocumentLanes LanesOf(const CompositeNode& composite, const LaneJoins& joins, JoinedClips joined)
{
    DocumentLanes result;
    const JoinIndex index(joins);
    std::map<int, std::vector<DocumentLane>> levels;
    for (const NLEComPtr<TimelineNode>& clip : composite.Clips()) {
        Placement placement = VisiblePart(*clip);
        const bool isShown = clip->IsEnabled() && !clip->IsTransition();
        if (!isShown || NLERangeLength(placement.range) == 0) {
            result.unplaced.push_back(clip.get());
            continue;
        }
        if (joined == JoinedClips::Meet)
            placement = index.Cut(*clip, placement);
        const LaneJoin* coming = index.Coming(*clip);
        LaneFor({clip.get(), placement}, coming ? coming->from : nullptr, levels[clip->Level()])
            .clips[placement.position] = {clip.get(), placement};
    }
    for (auto& [level, lanes] : levels)
        std::move(lanes.begin(), lanes.end(), std::back_inserter(result.lanes));
    return result;
}

} // namespace nle

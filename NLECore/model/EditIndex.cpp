// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/EditIndex.h"

namespace nle {

void EditIndex::Put(TimelineNode& node)
{
    Remove(node);
    const Entry entry = {node.Level(), ClipSpan::Of(node)};
    auto& lanes = node.IsTransition() ? m_transitions : m_clips;
    lanes[entry.level].insert({entry.span.begin, node.Id(), &node});
    m_entries[&node] = entry;
    Count(entry.span, 1);
}

void EditIndex::Remove(TimelineNode& node)
{
    const auto found = m_entries.find(&node);
    if (found == m_entries.end())
        return;
    const Entry entry = found->second;
    auto& lanes = node.IsTransition() ? m_transitions : m_clips;
    lanes[entry.level].erase({entry.span.begin, node.Id(), &node});
    m_entries.erase(found);
    Count(entry.span, -1);
}

void EditIndex::Count(const ClipSpan& span, int step)
{
    for (const std::int64_t frame : {span.begin, span.end}) {
        const auto point = m_points.try_emplace(frame, 0).first;
        point->second += step;
        if (point->second == 0)
            m_points.erase(point);
    }
}

const EditIndex::Lane& EditIndex::LaneOf(Kind kind, int level) const
{
    static const Lane none;
    const auto& lanes = kind == Kind::Transition ? m_transitions : m_clips;
    const auto lane = lanes.find(level);
    return lane == lanes.end() ? none : lane->second;
}

TimelineNode* EditIndex::Before(int level, std::int64_t frame) const
{
    const Lane& lane = LaneOf(Kind::Clip, level);
    const auto found = lane.lower_bound(First(frame));
    return found == lane.begin() ? nullptr : std::prev(found)->node;
}

TimelineNode* EditIndex::From(int level, std::int64_t frame) const
{
    const Lane& lane = LaneOf(Kind::Clip, level);
    const auto found = lane.lower_bound(First(frame));
    return found == lane.end() ? nullptr : found->node;
}

TimelineNode* EditIndex::At(int level, std::int64_t frame) const
{
    const Nodes playing = Within(Kind::Clip, level, {frame, frame + 1});
    return playing.empty() ? nullptr : playing.back();
}

EditIndex::Nodes EditIndex::Within(Kind kind, int level, const ClipSpan& span) const
{
    const Lane& lane = LaneOf(kind, level);
    auto first = lane.lower_bound(First(span.begin));
    while (first != lane.begin() && ClipSpan::Of(*std::prev(first)->node).end > span.begin)
        --first;
    Nodes nodes;
    for (; first != lane.end() && first->begin < span.end; ++first)
        nodes.push_back(first->node);
    return nodes;
}

EditIndex::Nodes EditIndex::AllFrom(int level, std::int64_t frame) const
{
    const Lane& lane = LaneOf(Kind::Clip, level);
    Nodes nodes;
    for (auto found = lane.lower_bound(First(frame)); found != lane.end(); ++found)
        nodes.push_back(found->node);
    return nodes;
}

std::vector<int> EditIndex::Levels() const
{
    std::vector<int> levels;
    for (const auto& [level, lane] : m_clips)
        levels.push_back(level);
    return levels;
}

} // namespace nle

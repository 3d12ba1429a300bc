// SPDX-License-Identifier: LGPL-2.1-or-later
// Edits of stretches of time, after which clips close up or make way, and what lies where.
#include "NLECore/media/Reasons.h"
#include "NLECore/model/Editing.h"

#include <algorithm>
#include <limits>

namespace nle {

Editing::Levels Editing::LevelsFor(int level) const
{
    if (level != NLEEdit_AllLevels)
        return {level};
    const std::vector<int> all = m_timeline.Index().Levels();
    Levels levels(all.begin(), all.end());
    for (const int locked : m_timeline.LockedLevels())
        levels.erase(locked);
    return levels;
}

Editing::Levels Editing::RippleLevels(const Nodes& nodes, int flags) const
{
    if (!(flags & NLEEdit_OneLevel))
        return LevelsFor(NLEEdit_AllLevels);
    Levels levels;
    for (const TimelineNode* node : nodes)
        levels.insert(node->Level());
    return levels;
}

HRESULT Editing::RippleTrim(INLETimeline* clip, int edge, int frame, int flags)
{
    return WithClip(clip, [&](TimelineNode& node) {
        if (!IsEdge(edge))
            return RefuseRange("edge", NLEEdge_Begin, NLEEdge_End);
        const bool isBegin = edge == NLEEdge_Begin;
        const Nodes alike = AlikeAt(node, edge, flags);
        const Levels levels = RippleLevels(alike, flags);
        const ClipSpan span = ClipSpan::Of(node);
        // A clip that comes in by a transition follows as well.
        std::int64_t follows = span.end;
        for (const TimelineNode* member : alike) {
            follows = std::min(follows, ClipSpan::Of(*member).end);
            if (const TimelineNode* next = Adjacent(*member, NLEEdge_End))
                follows = std::min<std::int64_t>(follows, next->Position());
        }
        const std::int64_t way = frame - (isBegin ? span.begin : span.end);
        return EditBy(way, flags, [&](EditDraft& draft, std::int64_t by) {
            draft.Note(alike);
            for (const int level : levels)
                draft.ShiftFrom(level, follows, isBegin ? -by : by, alike);
            for (TimelineNode* member : alike) {
                draft.MoveEdge(*member, edge, by);
                draft.Shift(*member, isBegin ? -by : 0);
            }
            return S_OK;
        });
    });
}

std::vector<ClipSpan> Editing::GapsOf(const Nodes& clips) const
{
    std::vector<ClipSpan> gaps;
    for (const TimelineNode* clip : clips) {
        ClipSpan gap = ClipSpan::Of(*clip);
        if (const TimelineNode* before = Adjacent(*clip, NLEEdge_Begin))
            gap.begin = std::max(gap.begin, ClipSpan::Of(*before).end);
        if (const TimelineNode* after = Adjacent(*clip, NLEEdge_End))
            gap.end = std::min<std::int64_t>(gap.end, after->Position());
        gaps.push_back(gap);
    }
    std::sort(gaps.begin(), gaps.end(),
              [](const ClipSpan& a, const ClipSpan& b) { return a.begin < b.begin; });
    std::vector<ClipSpan> joined;
    for (const ClipSpan& gap : gaps) {
        if (!joined.empty() && gap.begin <= joined.back().end)
            joined.back().end = std::max(joined.back().end, gap.end);
        else
            joined.push_back(gap);
    }
    return joined;
}

HRESULT Editing::RippleDelete(INLETimeline* clip, int flags)
{
    return WithClip(clip, [&](TimelineNode& node) {
        const Nodes family = Family(node, flags);
        const Levels levels = RippleLevels(family, flags);
        std::vector<ClipSpan> gaps = GapsOf(family);
        return Edit([&](EditDraft& draft) {
            for (TimelineNode* member : family)
                draft.Remove(*member);
            // From the last one on, so that each closes by its own length.
            for (auto gap = gaps.rbegin(); gap != gaps.rend(); ++gap) {
                for (const int level : levels)
                    draft.ShiftFrom(level, gap->end, -gap->Length());
            }
            return S_OK;
        });
    });
}

HRESULT Editing::CutAway(const ClipSpan& span, int level, bool closes)
{
    return Guarded([&] {
        if (span.begin < 0 || span.Length() < 1)
            return Refuse(E_INVALIDARG);
        return Edit([&](EditDraft& draft) {
            for (const int one : LevelsFor(level)) {
                draft.Clear(one, span);
                if (closes)
                    draft.ShiftFrom(one, span.end, -span.Length());
            }
            return S_OK;
        });
    });
}

HRESULT Editing::Lift(int begin, int end, int level)
{
    return CutAway({begin, end}, level, false);
}

HRESULT Editing::Extract(int begin, int end, int level)
{
    return CutAway({begin, end}, level, true);
}

HRESULT Editing::CloseGap(int frame, int level)
{
    return Guarded([&] {
        const EditIndex& index = m_timeline.Index();
        const Levels levels = LevelsFor(level);
        constexpr std::int64_t never = std::numeric_limits<std::int64_t>::max();
        ClipSpan gap = {0, never};
        for (const int one : levels) {
            if (const TimelineNode* before = index.Before(one, std::int64_t(frame) + 1))
                gap.begin = std::max(gap.begin, ClipSpan::Of(*before).end);
            if (const TimelineNode* after = index.From(one, std::int64_t(frame) + 1))
                gap.end = std::min<std::int64_t>(gap.end, after->Position());
        }
        if (frame < gap.begin || gap.end == never)
            return S_FALSE;
        return Edit([&](EditDraft& draft) {
            for (const int one : levels)
                draft.ShiftFrom(one, gap.end, -gap.Length());
            return S_OK;
        });
    });
}

HRESULT Editing::GetClipAt(int frame, int level, INLETimeline** clip)
{
    return Guarded([&] {
        const NLEComPtr<INLETimeline> found = m_timeline.Index().At(level, frame);
        const HRESULT result = found.copyTo(clip);
        return FAILED(result) || found ? result : S_FALSE;
    });
}

HRESULT Editing::GetNeighbour(INLETimeline* clip, int edge, INLETimeline** neighbour)
{
    return WithClip(clip, [&](TimelineNode& node) {
        if (!IsEdge(edge))
            return RefuseRange("edge", NLEEdge_Begin, NLEEdge_End);
        const NLEComPtr<INLETimeline> found = Next(node, edge);
        const HRESULT result = found.copyTo(neighbour);
        return FAILED(result) || found ? result : S_FALSE;
    });
}

SnapPoints Editing::PointsOf(const Nodes& clips) const
{
    SnapPoints points;
    std::set<const TimelineNode*> nodes(clips.begin(), clips.end());
    for (const TimelineNode* clip : clips) {
        const auto transitions = m_timeline.Index().Within(EditIndex::Kind::Transition,
                                                           clip->Level(), ClipSpan::Of(*clip));
        nodes.insert(transitions.begin(), transitions.end());
    }
    for (const TimelineNode* node : nodes) {
        ++points[ClipSpan::Of(*node).begin];
        ++points[ClipSpan::Of(*node).end];
    }
    return points;
}

std::int64_t Editing::NearestPoint(int frame, const SnapPoints& ignored) const
{
    const auto counts = [&](const SnapPoints::value_type& point) {
        const auto own = ignored.find(point.first);
        return own == ignored.end() || own->second < point.second;
    };
    std::int64_t nearest = std::numeric_limits<std::int64_t>::max() / 2;
    const auto offer = [&](std::int64_t point) {
        if (std::abs(point - frame) < std::abs(nearest - frame))
            nearest = point;
    };
    const SnapPoints& points = m_timeline.Index().Points();
    const auto middle = points.lower_bound(frame);
    const auto after = std::find_if(middle, points.end(), counts);
    const auto before = std::find_if(std::make_reverse_iterator(middle), points.rend(), counts);
    if (before != points.rend())
        offer(before->first);
    if (after != points.end())
        offer(after->first);
    const MarkerList& markers = m_timeline.Composite().Markers().settings;
    const auto marker =
        std::lower_bound(markers.begin(), markers.end(), frame,
                         [](const Marker& one, int at) { return one.record.frame < at; });
    if (marker != markers.begin())
        offer(std::prev(marker)->record.frame);
    if (marker != markers.end())
        offer(marker->record.frame);
    return nearest;
}

HRESULT Editing::Snap(int frame, int distance, INLETimeline* moving, int* snapped)
{
    return Guarded([&] {
        if (!snapped)
            return Refuse(E_POINTER);
        TimelineNode* node = TimelineNode::From(moving);
        const HRESULT result = moving ? Check(moving, node) : S_OK;
        if (FAILED(result))
            return result;
        const Nodes family = node ? m_timeline.Groups().Family(*node) : Nodes();
        const std::int64_t nearest = NearestPoint(frame, PointsOf(family));
        if (std::abs(nearest - frame) > distance)
            return S_FALSE;
        *snapped = int(nearest);
        return S_OK;
    });
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/EditJoins.h"

namespace nle {

EditJoin EditJoin::Of(const EditedTimeline& timeline, TimelineNode& transition)
{
    EditJoin join;
    join.transition = &transition;
    join.span = ClipSpan::Of(transition);
    const auto playing =
        timeline.Index().Within(EditIndex::Kind::Clip, transition.Level(), join.span);
    for (TimelineNode* clip : playing) {
        const ClipSpan span = ClipSpan::Of(*clip);
        if (span.begin >= join.span.begin) {
            join.to = clip;
            join.toSpan = span;
        } else if (!join.from && span.end > join.span.begin && span.end <= join.span.end) {
            join.from = clip;
            join.fromSpan = span;
        }
    }
    return join;
}

std::optional<ClipSpan> EditJoin::Fitted(const EditedTimeline& timeline) const
{
    const bool isGone = (from && !timeline.Holds(*from)) || (to && !timeline.Holds(*to));
    const TimelineNode* const clip = to ? to : from;
    if (!clip || isGone || (from && to && from->Level() != to->Level()))
        return std::nullopt;
    const ClipSpan fitted = from && to ? BetweenClips() : WithinClip(*clip, timeline.Index());
    return fitted.Length() > 0 ? std::optional(fitted) : std::nullopt;
}

ClipSpan EditJoin::WithinClip(const TimelineNode& clip, const EditIndex& index) const
{
    const ClipSpan own = ClipSpan::Of(clip);
    const std::int64_t by = to ? own.begin - toSpan.begin : own.end - fromSpan.end;
    // Where the clip overlaps another one, the transition between the two is alone.
    ClipSpan free = own;
    if (const TimelineNode* previous = index.Before(clip.Level(), own.begin))
        free.begin = std::max(free.begin, ClipSpan::Of(*previous).end);
    if (const TimelineNode* next = index.From(clip.Level(), own.begin + 1))
        free.end = std::min<std::int64_t>(free.end, next->Position());
    const bool isFree = to ? free.begin == own.begin : free.end == own.end;
    return isFree ? ClipSpan{span.begin + by, span.end + by}.Common(free) : ClipSpan();
}

ClipSpan EditJoin::BetweenClips() const
{
    const ClipSpan before = ClipSpan::Of(*from);
    const ClipSpan after = ClipSpan::Of(*to);
    if (!before.GoesBefore(after))
        return {};
    const ClipSpan overlap = {after.begin, before.end};
    const bool isAsItWas = overlap.Length() == fromSpan.end - toSpan.begin;
    if (!isAsItWas)
        return overlap;
    const std::int64_t by = after.begin - toSpan.begin;
    return ClipSpan{span.begin + by, span.end + by}.Common({before.begin, after.end});
}

void EditJoins::Note(const TimelineNode& clip)
{
    const std::size_t first = m_joins.size();
    NoteEdges(clip);
    // Where two clips overlap, the other one has less room for transitions of its own, or more.
    const std::size_t last = m_joins.size();
    for (std::size_t i = first; i < last; ++i) {
        for (const TimelineNode* other : {m_joins[i].from, m_joins[i].to}) {
            if (other && other != &clip)
                NoteEdges(*other);
        }
    }
}

void EditJoins::NoteEdges(const TimelineNode& clip)
{
    const ClipSpan span = ClipSpan::Of(clip);
    for (const ClipSpan& edge : {ClipSpan{span.begin, span.begin + 1}, {span.end - 1, span.end}}) {
        for (TimelineNode* node :
             m_timeline.Index().Within(EditIndex::Kind::Transition, clip.Level(), edge)) {
            if (m_known.insert(node).second)
                m_joins.push_back(EditJoin::Of(m_timeline, *node));
        }
    }
}

void EditJoins::HandEndOver(const TimelineNode& clip, TimelineNode& right)
{
    for (EditJoin& join : m_joins) {
        if (join.from == &clip)
            join.from = &right;
    }
}

} // namespace nle

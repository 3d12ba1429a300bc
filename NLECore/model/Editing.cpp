// SPDX-License-Identifier: LGPL-2.1-or-later
// The history, and edits of a clip and its group in their place.
#include "NLECore/model/Editing.h"

#include "NLECore/media/Reasons.h"
#include "NLECore/scene/FrameMath.h"

#include <algorithm>

namespace nle {

namespace {

std::int64_t At(const TimelineNode& node, int edge)
{
    const ClipSpan span = ClipSpan::Of(node);
    return edge == NLEEdge_Begin ? span.begin : span.end;
}

int Opposite(int edge)
{
    return edge == NLEEdge_Begin ? NLEEdge_End : NLEEdge_Begin;
}

} // namespace

// ---- History

NLEComPtr<Editing> Editing::Of(CompositeNode& composite)
{
    if (auto* timeline = static_cast<EditedTimeline*>(composite.Watch()))
        return &timeline->Owner();
    return MakeCom<Editing>(composite);
}

HRESULT Editing::BeginStep()
{
    return Guarded([&] {
        if (m_open)
            return Refuse(E_FAIL, NLEReason_WrongState);
        m_open.emplace();
        return S_OK;
    });
}

HRESULT Editing::EndStep()
{
    return Guarded([&] {
        if (!m_open)
            return Refuse(E_FAIL, NLEReason_WrongState);
        EditStep step = std::move(*m_open);
        m_open.reset();
        if (step.IsEmpty())
            return S_FALSE;
        m_changed = step.Nodes(m_timeline.Composite());
        m_history.Add(std::move(step));
        return S_OK;
    });
}

HRESULT Editing::RewindStep()
{
    return Guarded([&] {
        if (!m_open)
            return Refuse(E_FAIL, NLEReason_WrongState);
        m_open->Undo(m_timeline);
        m_changed = m_open->Nodes(m_timeline.Composite());
        m_open.emplace();
        return S_OK;
    });
}

HRESULT Editing::MoveThrough(const EditStep* (EditHistory::*move)(EditedTimeline&))
{
    return Guarded([&] {
        if (m_open)
            return Refuse(E_FAIL, NLEReason_WrongState);
        const EditStep* step = (m_history.*move)(m_timeline);
        if (!step)
            return S_FALSE;
        m_changed = step->Nodes(m_timeline.Composite());
        return S_OK;
    });
}

HRESULT Editing::Undo()
{
    return MoveThrough(&EditHistory::Undo);
}

HRESULT Editing::Redo()
{
    return MoveThrough(&EditHistory::Redo);
}

HRESULT Editing::GetStepCounts(int* undo, int* redo)
{
    return Guarded([&] {
        if (undo)
            *undo = m_history.UndoCount();
        if (redo)
            *redo = m_history.RedoCount();
        return S_OK;
    });
}

HRESULT Editing::SetMostSteps(int most)
{
    if (most < 1)
        return RefuseRange("most", 1, std::numeric_limits<int>::max());
    return Guarded([&] {
        m_history.SetMost(most);
        return S_OK;
    });
}

HRESULT Editing::ForgetSteps()
{
    return Guarded([&] {
        Forget();
        return S_OK;
    });
}

void Editing::Forget()
{
    m_history.Clear();
    if (m_open)
        m_open.emplace();
}

HRESULT Editing::GetChanged(INLETimelineEnumerator** clips)
{
    return Guarded([&] { return GiveEnumerator(m_changed, clips); });
}

HRESULT Editing::Check(INLETimeline* clip, const TimelineNode* node) const
{
    if (!clip)
        return Refuse(E_POINTER);
    const bool isClip = node && m_timeline.Holds(*node) && !node->IsTransition();
    return isClip ? S_OK : Refuse(E_INVALIDARG, NLEReason_WrongObject);
}

HRESULT Editing::Edit(const Make& make)
{
    EditDraft draft(m_timeline);
    HRESULT result = make(draft);
    if (SUCCEEDED(result))
        result = draft.Finish();
    if (result == S_OK)
        Done(draft.Take());
    return result;
}

HRESULT Editing::EditBy(std::int64_t frames, int flags, const MakeBy& make)
{
    const auto by = [&make](std::int64_t distance) {
        return [&make, distance](EditDraft& draft) { return make(draft, distance); };
    };
    const HRESULT whole = Edit(by(frames));
    if (SUCCEEDED(whole) || !(flags & NLEEdit_Clamp))
        return whole;
    std::int64_t possible = 0;
    for (std::int64_t refused = frames; std::abs(refused - possible) > 1;) {
        const std::int64_t middle = possible + (refused - possible) / 2;
        EditDraft draft(m_timeline);
        const bool isPossible = SUCCEEDED(make(draft, middle)) && SUCCEEDED(draft.Finish());
        (isPossible ? possible : refused) = middle;
    }
    return Edit(by(possible));
}

void Editing::Done(EditStep&& step)
{
    m_changed = step.Nodes(m_timeline.Composite());
    if (m_open)
        m_open->Append(std::move(step));
    else
        m_history.Add(std::move(step));
}

// ---- Which clips

Editing::Nodes Editing::Family(TimelineNode& clip, int flags)
{
    return flags & NLEEdit_Alone ? Nodes{&clip} : m_timeline.Groups().Family(clip);
}

Editing::Nodes Editing::Alike(TimelineNode& clip, bool begin, bool end, int flags)
{
    const ClipSpan span = ClipSpan::Of(clip);
    Nodes alike;
    for (TimelineNode* node : Family(clip, flags)) {
        const ClipSpan own = ClipSpan::Of(*node);
        if ((!begin || own.begin == span.begin) && (!end || own.end == span.end))
            alike.push_back(node);
    }
    return alike;
}

Editing::Nodes Editing::AlikeAt(TimelineNode& clip, int edge, int flags)
{
    return Alike(clip, edge == NLEEdge_Begin, edge == NLEEdge_End, flags);
}

TimelineNode* Editing::Next(const TimelineNode& clip, int edge) const
{
    const EditIndex& index = m_timeline.Index();
    return edge == NLEEdge_Begin ? index.Before(clip.Level(), clip.Position())
                                 : index.From(clip.Level(), std::int64_t(clip.Position()) + 1);
}

TimelineNode* Editing::Adjacent(const TimelineNode& clip, int edge) const
{
    TimelineNode* next = Next(clip, edge);
    const bool isThere = next && (edge == NLEEdge_Begin ? At(*next, NLEEdge_End) >= clip.Position()
                                                        : next->Position() <= At(clip, edge));
    return isThere ? next : nullptr;
}

// ---- Edits

HRESULT Editing::SplitAt(EditDraft& draft, TimelineNode& clip, std::int64_t frame) const
{
    const auto transitions = m_timeline.Index().Within(EditIndex::Kind::Transition, clip.Level(),
                                                       {frame - 1, frame + 1});
    for (TimelineNode* transition : transitions) {
        const ClipSpan span = ClipSpan::Of(*transition);
        // A part must not lie within the overlap either.
        const bool isAtOverlap = EditJoin::Of(m_timeline, *transition).IsOverlap();
        if (span.Spans(frame) || isAtOverlap)
            return Refuse(E_INVALIDARG, NLEReason_WithinTransition, QString::number(frame));
    }
    draft.Split(clip, frame);
    return S_OK;
}

HRESULT Editing::Split(INLETimeline* clip, int frame, int flags)
{
    return WithClip(clip, [&](TimelineNode& node) {
        if (!ClipSpan::Of(node).Spans(frame))
            return S_FALSE;
        return Edit([&](EditDraft& draft) {
            HRESULT result = S_OK;
            for (TimelineNode* member : Family(node, flags)) {
                if (SUCCEEDED(result) && ClipSpan::Of(*member).Spans(frame))
                    result = SplitAt(draft, *member, frame);
            }
            return result;
        });
    });
}

HRESULT Editing::Trim(INLETimeline* clip, int edge, int frame, int flags)
{
    return WithClip(clip, [&](TimelineNode& node) {
        if (!IsEdge(edge))
            return RefuseRange("edge", NLEEdge_Begin, NLEEdge_End);
        const Nodes alike = AlikeAt(node, edge, flags);
        return EditBy(frame - At(node, edge), flags, [&](EditDraft& draft, std::int64_t by) {
            for (TimelineNode* member : alike)
                draft.MoveEdge(*member, edge, by);
            return S_OK;
        });
    });
}

HRESULT Editing::Roll(INLETimeline* clip, int edge, int frame, int flags)
{
    return WithClip(clip, [&](TimelineNode& node) {
        if (!IsEdge(edge))
            return RefuseRange("edge", NLEEdge_Begin, NLEEdge_End);
        const Nodes alike = AlikeAt(node, edge, flags);
        Nodes others;
        for (const TimelineNode* member : alike) {
            if (TimelineNode* other = Adjacent(*member, edge))
                others.push_back(other);
        }
        return EditBy(frame - At(node, edge), flags, [&](EditDraft& draft, std::int64_t by) {
            draft.Note(others);
            for (TimelineNode* member : alike)
                draft.MoveEdge(*member, edge, by);
            for (TimelineNode* other : others)
                draft.MoveEdge(*other, Opposite(edge), by);
            return S_OK;
        });
    });
}

HRESULT Editing::Slip(INLETimeline* clip, int frames, int flags)
{
    return WithClip(clip, [&](TimelineNode& node) {
        const Nodes alike = Alike(node, true, true, flags);
        return EditBy(frames, flags, [&](EditDraft& draft, std::int64_t by) {
            for (TimelineNode* member : alike)
                draft.Slip(*member, by);
            return S_OK;
        });
    });
}

HRESULT Editing::Slide(INLETimeline* clip, int frames, int flags)
{
    return WithClip(clip, [&](TimelineNode& node) {
        const Nodes alike = Alike(node, true, true, flags);
        Nodes before;
        Nodes after;
        for (const TimelineNode* member : alike) {
            if (TimelineNode* other = Adjacent(*member, NLEEdge_Begin))
                before.push_back(other);
            if (TimelineNode* other = Adjacent(*member, NLEEdge_End))
                after.push_back(other);
        }
        return EditBy(frames, flags, [&](EditDraft& draft, std::int64_t by) {
            draft.Note(before);
            draft.Note(after);
            for (TimelineNode* member : alike)
                draft.Shift(*member, by);
            for (TimelineNode* other : before)
                draft.MoveEdge(*other, NLEEdge_End, by);
            for (TimelineNode* other : after)
                draft.MoveEdge(*other, NLEEdge_Begin, by);
            return S_OK;
        });
    });
}

HRESULT Editing::Move(INLETimeline* clip, int position, int level, int flags)
{
    return WithClip(clip, [&](TimelineNode& node) {
        const Nodes family = Family(node, flags);
        const std::int64_t levels = std::int64_t(level) - node.Level();
        const std::int64_t frames = std::int64_t(position) - node.Position();
        return EditBy(frames, flags, [&](EditDraft& draft, std::int64_t by) {
            for (const TimelineNode* member : family) {
                const ClipSpan span = ClipSpan::Of(*member);
                if (flags & NLEEdit_Overwrite)
                    draft.Clear(ClampToInt(double(member->Level() + levels)),
                                {span.begin + by, span.end + by}, family);
            }
            draft.Note(family);
            for (TimelineNode* member : family)
                draft.Shift(*member, by, levels);
            return S_OK;
        });
    });
}

void Editing::DeleteTransition(EditDraft& draft, TimelineNode& transition) const
{
    const EditJoin join = EditJoin::Of(m_timeline, transition);
    draft.Remove(transition);
    if (!join.IsOverlap())
        return;
    const std::int64_t middle = (join.toSpan.begin + join.fromSpan.end) / 2;
    draft.MoveEdge(*join.from, NLEEdge_End, middle - join.fromSpan.end);
    draft.MoveEdge(*join.to, NLEEdge_Begin, middle - join.toSpan.begin);
}

HRESULT Editing::Delete(INLETimeline* clip, int flags)
{
    return Guarded([&] {
        TimelineNode* node = TimelineNode::From(clip);
        const bool isTransition = node && node->IsTransition() && m_timeline.Holds(*node);
        const HRESULT result = isTransition ? S_OK : Check(clip, node);
        if (FAILED(result))
            return result;
        return Edit([&](EditDraft& draft) {
            if (isTransition) {
                DeleteTransition(draft, *node);
                return S_OK;
            }
            for (TimelineNode* member : Family(*node, flags))
                draft.Remove(*member);
            return S_OK;
        });
    });
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
// Clips that come in, groups and locks.
#include "EngineApi/NLEKey.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/Editing.h"

#include <algorithm>
#include <limits>

namespace nle {

namespace {

/// What \a node plays once it stands at \a place.
ClipSpan SpanAt(const TimelineNode& node, const ClipPlace& place)
{
    return {place.position, place.position + NLERangeLength(place.range.value_or(node.Range()))};
}

/// A composite with copies of \a nodes, at the distances that they have.
NLEComPtr<INLETimeline> MakeBoard(const CompositeNode& composite, const EditIndex::Nodes& nodes)
{
    int begin = std::numeric_limits<int>::max();
    int lowest = begin;
    for (const TimelineNode* node : nodes) {
        begin = std::min(begin, node->Position());
        lowest = std::min(lowest, node->Level());
    }
    const NLEComPtr<CompositeNode> board = MakeCom<CompositeNode>(composite.FrameRate());
    board->SetOwnSize(composite.PictureSize());
    for (const TimelineNode* node : nodes) {
        const NLEComPtr<TimelineNode> copy = node->Copy(true);
        copy->SetPosition(node->Position() - begin);
        copy->SetLevel(node->Level() - lowest);
        board->Adopt(copy);
    }
    return board;
}

} // namespace

HRESULT Editing::MakeRoom(EditDraft& draft, const Levels& levels, std::int64_t at,
                          std::int64_t frames) const
{
    for (const int level : levels) {
        for (TimelineNode* clip :
             m_timeline.Index().Within(EditIndex::Kind::Clip, level, {at, at + 1})) {
            const HRESULT result = ClipSpan::Of(*clip).Spans(at) ? SplitAt(draft, *clip, at) : S_OK;
            if (FAILED(result))
                return result;
        }
        draft.ShiftFrom(level, at, frames);
    }
    return S_OK;
}

HRESULT Editing::AddAll(EditDraft& draft, const std::vector<Newcomer>& newcomers, bool areCopies,
                        int flags)
{
    Levels levels;
    ClipSpan all = {std::numeric_limits<std::int64_t>::max(), 0};
    for (const auto& [node, place] : newcomers) {
        const ClipSpan span = SpanAt(*node, place);
        levels.insert(place.level);
        all = {std::min(all.begin, span.begin), std::max(all.end, span.end)};
    }
    if (flags & NLEEdit_Insert) {
        const Levels moved = flags & NLEEdit_OneLevel ? levels : LevelsFor(NLEEdit_AllLevels);
        const HRESULT result = MakeRoom(draft, moved, all.begin, all.Length());
        if (FAILED(result))
            return result;
    }
    for (const auto& [node, place] : newcomers) {
        if (flags & NLEEdit_Overwrite && !node->IsTransition())
            draft.Clear(place.level, SpanAt(*node, place));
    }
    for (const auto& [node, place] : newcomers)
        areCopies ? draft.AddCopy(node, place) : draft.Add(node, place);
    return S_OK;
}

HRESULT Editing::Place(INLETimeline* clip, int position, int level, int flags)
{
    return Guarded([&] {
        if (!clip)
            return Refuse(E_POINTER);
        CompositeNode& composite = m_timeline.Composite();
        const NLEComPtr<TimelineNode> node = TimelineNode::From(clip);
        if (!node || node->IsTransition() || !composite.CanAdopt(*node))
            return Refuse(E_INVALIDARG, NLEReason_WrongObject);
        node->ChangeRate(composite.FrameRate());
        node->Bag().Exchange(NLEKey::Editing::kGroups, std::nullopt);
        const ClipPlace place = {position, level, node->Placement().range};
        return Edit([&](EditDraft& draft) { return AddAll(draft, {{node, place}}, false, flags); });
    });
}

HRESULT Editing::AddTransition(INLETimeline* transition, INLETimeline* clip, int edge, int frames)
{
    return WithClip(clip, [&](TimelineNode& node) {
        CompositeNode& composite = m_timeline.Composite();
        const NLEComPtr<TimelineNode> added = TimelineNode::From(transition);
        if (!added || !added->IsTransition() || !composite.CanAdopt(*added))
            return Refuse(E_INVALIDARG, NLEReason_WrongObject);
        if (!IsEdge(edge) || frames < 1)
            return Refuse(E_INVALIDARG);
        added->ChangeRate(composite.FrameRate());
        TimelineNode* other = Adjacent(node, edge);
        TimelineNode& first = edge == NLEEdge_Begin && other ? *other : node;
        TimelineNode& second = edge == NLEEdge_Begin || !other ? node : *other;
        const std::int64_t cut =
            edge == NLEEdge_Begin ? ClipSpan::Of(second).begin : ClipSpan::Of(first).end;
        const std::int64_t ahead = other ? frames / 2 : edge == NLEEdge_Begin ? 0 : frames;
        const ClipSpan span = {cut - ahead, cut - ahead + frames};
        return Edit([&](EditDraft& draft) {
            if (!m_timeline.Index()
                     .Within(EditIndex::Kind::Transition, node.Level(), span)
                     .empty() ||
                (!other && !(span.Common(ClipSpan::Of(node)) == span)))
                return Refuse(E_INVALIDARG, NLEReason_ClipsOverlap);
            if (other) {
                draft.Note({&first, &second});
                draft.MoveEdge(first, NLEEdge_End, span.end - cut);
                draft.MoveEdge(second, NLEEdge_Begin, span.begin - cut);
            }
            draft.Add(added, added->Place());
            draft.Fit(*added, span, node.Level());
            return S_OK;
        });
    });
}

HRESULT Editing::CheckClips(INLETimeline* const* clips, int count, Nodes* nodes) const
{
    if (!clips)
        return Refuse(E_POINTER);
    for (int i = 0; i < count; ++i) {
        TimelineNode* node = TimelineNode::From(clips[i]);
        const HRESULT result = Check(clips[i], node);
        if (FAILED(result))
            return result;
        if (std::find(nodes->begin(), nodes->end(), node) == nodes->end())
            nodes->push_back(node);
    }
    return nodes->empty() ? Refuse(E_INVALIDARG) : S_OK;
}

Editing::Nodes Editing::TransitionsAmong(const Nodes& clips) const
{
    const std::set<const TimelineNode*> chosen(clips.begin(), clips.end());
    const auto isChosen = [&](const TimelineNode* clip) { return !clip || chosen.count(clip) > 0; };
    Nodes transitions;
    std::set<const TimelineNode*> known;
    for (const TimelineNode* clip : clips) {
        for (TimelineNode* transition : m_timeline.Index().Within(
                 EditIndex::Kind::Transition, clip->Level(), ClipSpan::Of(*clip))) {
            const EditJoin join = EditJoin::Of(m_timeline, *transition);
            if (known.insert(transition).second && isChosen(join.from) && isChosen(join.to))
                transitions.push_back(transition);
        }
    }
    return transitions;
}

HRESULT Editing::Copy(INLETimeline* const* clips, int count, INLETimeline** board)
{
    return Guarded([&] {
        if (!board)
            return Refuse(E_POINTER);
        *board = nullptr;
        Nodes nodes;
        const HRESULT result = CheckClips(clips, count, &nodes);
        if (FAILED(result))
            return result;
        const Nodes transitions = TransitionsAmong(nodes);
        nodes.insert(nodes.end(), transitions.begin(), transitions.end());
        return MakeBoard(m_timeline.Composite(), nodes).copyTo(board);
    });
}

HRESULT Editing::Paste(INLETimeline* board, int position, int level, int flags)
{
    return Guarded([&] {
        if (!board)
            return Refuse(E_POINTER);
        CompositeNode& composite = m_timeline.Composite();
        const auto* source = dynamic_cast<const CompositeNode*>(TimelineNode::From(board));
        if (!source)
            return Refuse(E_INVALIDARG, NLEReason_WrongObject);
        const NLEComPtr<TimelineNode> copy = source->Copy(true);
        copy->ChangeRate(composite.FrameRate());
        auto& copies = static_cast<CompositeNode&>(*copy);
        std::vector<Newcomer> newcomers;
        for (const NLEComPtr<TimelineNode>& node : copies.Clips()) {
            copies.Drop(*node);
            if (!composite.CanAdopt(*node))
                return Refuse(E_INVALIDARG, NLEReason_WrongObject);
            const std::int64_t begin = std::int64_t(node->Position()) + position;
            const std::int64_t height = std::int64_t(node->Level()) + level;
            constexpr std::int64_t most = std::numeric_limits<int>::max();
            if (begin < 0 || begin > most || height < 0 || height > most)
                return RefuseRange("position", 0, double(most));
            newcomers.push_back({node, {int(begin), int(height), node->Placement().range}});
        }
        return newcomers.empty()
                   ? S_FALSE
                   : Edit([&](EditDraft& draft) { return AddAll(draft, newcomers, true, flags); });
    });
}

HRESULT Editing::Group(INLETimeline* const* clips, int count)
{
    return Guarded([&] {
        Nodes nodes;
        const HRESULT result = CheckClips(clips, count, &nodes);
        if (FAILED(result))
            return result;
        // Whole groups, each clip once.
        std::set<TimelineNode*> members;
        int parts = 0;
        for (TimelineNode* node : nodes) {
            if (members.count(node))
                continue;
            const Nodes family = m_timeline.Groups().Family(*node);
            members.insert(family.begin(), family.end());
            ++parts;
        }
        if (parts < 2)
            return Refuse(E_INVALIDARG);
        const int group = m_timeline.Groups().NewGroup();
        return Edit([&](EditDraft& draft) {
            for (TimelineNode* member : members) {
                GroupPath path = EditGroups::PathOf(*member);
                path.insert(path.begin(), group);
                draft.SetGroups(*member, path);
            }
            return S_OK;
        });
    });
}

HRESULT Editing::Ungroup(INLETimeline* clip)
{
    return WithClip(clip, [&](TimelineNode& node) {
        return Edit([&](EditDraft& draft) {
            for (TimelineNode* member : m_timeline.Groups().Family(node)) {
                GroupPath path = EditGroups::PathOf(*member);
                if (path.empty())
                    break;
                path.erase(path.begin());
                draft.SetGroups(*member, path);
            }
            return S_OK;
        });
    });
}

HRESULT Editing::GetGroup(INLETimeline* clip, INLETimelineEnumerator** clips)
{
    return WithClip(clip, [&](TimelineNode& node) {
        const Nodes family = m_timeline.Groups().Family(node);
        return GiveEnumerator({family.begin(), family.end()}, clips);
    });
}

HRESULT Editing::SetLevelLocked(int level, bool locked)
{
    return Guarded([&] {
        Levels levels = m_timeline.LockedLevels();
        const bool isNew = locked ? levels.insert(level).second : levels.erase(level) > 0;
        if (!isNew)
            return S_FALSE;
        return Edit([&](EditDraft& draft) {
            draft.SetValue(m_timeline.Composite(), NLEKey::Editing::kLockedLevels,
                           PropertyBag::ValueOf({levels.begin(), levels.end()}));
            return S_OK;
        });
    });
}

HRESULT Editing::GetLevelLocked(int level, bool* locked)
{
    return Guarded([&] { return GiveValue(locked, m_timeline.IsLocked(level)); });
}

} // namespace nle

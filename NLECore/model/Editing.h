// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComGuard.h"
#include "Com/ComObject.h"
#include "EngineApi/INLEEditing.h"
#include "EngineApi/INLELevels.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/EditDraft.h"

#include <functional>
#include <optional>

namespace nle {

/// The edits of a composite. Each is a few primitives of EditDraft, which says in the end whether
/// all of it may be; here stands what the edits are, and their history.
class Editing final : public ComObject<INLEEditing, INLELevels>
{
public:
    /// The one of \a composite, which is made when there is none.
    static NLEComPtr<Editing> Of(CompositeNode& composite);
    explicit Editing(CompositeNode& composite) : m_timeline(composite, *this) {}

    HRESULT BeginStep() override;
    HRESULT EndStep() override;
    HRESULT RewindStep() override;
    HRESULT Undo() override;
    HRESULT Redo() override;
    HRESULT GetStepCounts(int* undo, int* redo) override;
    HRESULT SetMostSteps(int most) override;
    HRESULT ForgetSteps() override;
    HRESULT GetChanged(INLETimelineEnumerator** clips) override;

    HRESULT Split(INLETimeline* clip, int frame, int flags) override;
    HRESULT Trim(INLETimeline* clip, int edge, int frame, int flags) override;
    HRESULT RippleTrim(INLETimeline* clip, int edge, int frame, int flags) override;
    HRESULT Roll(INLETimeline* clip, int edge, int frame, int flags) override;
    HRESULT Slip(INLETimeline* clip, int frames, int flags) override;
    HRESULT Slide(INLETimeline* clip, int frames, int flags) override;
    HRESULT Move(INLETimeline* clip, int position, int level, int flags) override;
    HRESULT Delete(INLETimeline* clip, int flags) override;
    HRESULT RippleDelete(INLETimeline* clip, int flags) override;

    HRESULT Place(INLETimeline* clip, int position, int level, int flags) override;
    HRESULT AddTransition(INLETimeline* transition, INLETimeline* clip, int edge,
                          int frames) override;
    HRESULT Copy(INLETimeline* const* clips, int count, INLETimeline** board) override;
    HRESULT Paste(INLETimeline* board, int position, int level, int flags) override;

    HRESULT Lift(int begin, int end, int level) override;
    HRESULT Extract(int begin, int end, int level) override;
    HRESULT CloseGap(int frame, int level) override;

    HRESULT Group(INLETimeline* const* clips, int count) override;
    HRESULT Ungroup(INLETimeline* clip) override;
    HRESULT GetGroup(INLETimeline* clip, INLETimelineEnumerator** clips) override;
    HRESULT SetLevelLocked(int level, bool locked) override;
    HRESULT GetLevelLocked(int level, bool* locked) override;

    HRESULT GetClipAt(int frame, int level, INLETimeline** clip) override;
    HRESULT GetNeighbour(INLETimeline* clip, int edge, INLETimeline** neighbour) override;
    HRESULT Snap(int frame, int distance, INLETimeline* moving, int* snapped) override;

    HRESULT GetCount(int* count) override;
    HRESULT GetFlags(int level, int* flags) override;
    HRESULT SetFlags(int level, int flags) override;
    HRESULT GetName(int level, wchar_t* name, int capacity) override;
    HRESULT SetName(int level, const wchar_t* name) override;
    HRESULT GetHeight(int level, int* height) override;
    HRESULT SetHeight(int level, int height) override;

    EditedTimeline& Timeline() { return m_timeline; }

private:
    using Nodes = EditIndex::Nodes;
    using Levels = std::set<int>;
    using Make = std::function<HRESULT(EditDraft&)>;
    /// Makes an edit that goes some frames far.
    using MakeBy = std::function<HRESULT(EditDraft&, std::int64_t)>;
    /// A node that comes in, and where to.
    struct Newcomer
    {
        NLEComPtr<TimelineNode> node;
        ClipPlace place;
    };

    /// Runs a call, after what happened from elsewhere was heard of.
    template <typename Call>
    HRESULT Guarded(Call&& call)
    {
        return ComGuard([&] {
            if (m_timeline.TakeForeign())
                Forget();
            return call();
        });
    }
    /// As Guarded(), with a clip, as a node, that has to be one of the composite's.
    template <typename Call>
    HRESULT WithClip(INLETimeline* clip, Call&& call)
    {
        return Guarded([&] {
            TimelineNode* node = TimelineNode::From(clip);
            const HRESULT result = Check(clip, node);
            return FAILED(result) ? result : call(*node);
        });
    }
    static bool IsEdge(int edge) { return edge == NLEEdge_Begin || edge == NLEEdge_End; }
    HRESULT Check(INLETimeline* clip, const TimelineNode* node) const;
    HRESULT CheckClips(INLETimeline* const* clips, int count, Nodes* nodes) const;

    HRESULT Edit(const Make& make);
    /// As Edit(); with NLEEdit_Clamp as far as it goes.
    HRESULT EditBy(std::int64_t frames, int flags, const MakeBy& make);
    void Done(EditStep&& step);
    void Forget();
    HRESULT MoveThrough(const EditStep* (EditHistory::*move)(EditedTimeline&));

    /// Runs a call, with what is set for \a level.
    template <typename Call>
    HRESULT WithLevel(int level, Call&& call)
    {
        return Guarded([&] {
            return level < 0 ? RefuseRange("level", 0, INT32_MAX) : call(m_timeline.LevelOf(level));
        });
    }
    HRESULT SetLevel(const LevelState& before, const LevelState& now);

    /// The clip and those grouped with it.
    Nodes Family(TimelineNode& clip, int flags);
    /// Those of its family that begin and, or, end where it does.
    Nodes Alike(TimelineNode& clip, bool begin, bool end, int flags);
    Nodes AlikeAt(TimelineNode& clip, int edge, int flags);
    /// The clip of the level that meets or overlaps another one at an edge; null when there is
    /// none.
    TimelineNode* Adjacent(const TimelineNode& clip, int edge) const;
    /// The next clip of the level, whatever the distance.
    TimelineNode* Next(const TimelineNode& clip, int edge) const;
    Levels RippleLevels(const Nodes& nodes, int flags) const;
    Levels LevelsFor(int level) const;

    HRESULT SplitAt(EditDraft& draft, TimelineNode& clip, std::int64_t frame) const;
    HRESULT MakeRoom(EditDraft& draft, const Levels& levels, std::int64_t at,
                     std::int64_t frames) const;
    HRESULT AddAll(EditDraft& draft, const std::vector<Newcomer>& newcomers, bool areCopies,
                   int flags);
    void DeleteTransition(EditDraft& draft, TimelineNode& transition) const;
    /// Removes what plays in a span; with \a closes what follows moves up.
    HRESULT CutAway(const ClipSpan& span, int level, bool closes);
    /// What is empty once the clips are gone, each frame once, in order.
    std::vector<ClipSpan> GapsOf(const Nodes& clips) const;
    /// Those that the clips and transitions on them make.
    SnapPoints PointsOf(const Nodes& clips) const;
    /// Beyond all frames when there is none at all.
    std::int64_t NearestPoint(int frame, const SnapPoints& ignored) const;
    Nodes TransitionsAmong(const Nodes& clips) const;

    EditedTimeline m_timeline;
    EditHistory m_history;
    std::optional<EditStep> m_open; ///< since BeginStep()
    std::vector<NLEComPtr<TimelineNode>> m_changed;
};

} // namespace nle

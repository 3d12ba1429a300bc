// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

struct INLETimeline;
struct INLETimelineEnumerator;

/// The two ends of a clip.
enum NLEClipEdge : std::int32_t
{
    NLEEdge_Begin = 0,
    NLEEdge_End = 1
};

/// How an edit is made; added up.
enum NLEEditFlags : std::int32_t
{
    NLEEdit_Alone = 1, ///< the clip without those that are grouped with it
    NLEEdit_OneLevel =
        2,             ///< other clips make way on the levels of the edited ones only, not on all
    NLEEdit_Clamp = 4, ///< as far as is possible, where all of the way is not
    NLEEdit_Overwrite = 8, ///< what stands where clips come to stand is cut away
    NLEEdit_Insert = 16    ///< what follows makes way for clips that come in
};

/// In the place of a level.
enum NLEEditLevels : std::int32_t
{
    NLEEdit_AllLevels = -1 ///< all that are not locked
};

/// Edits of the clips of one composite, with undo and redo. INLEFactory::CreateEditing gives it.
///
/// Positions and lengths are whole frames of the composite, ends are exclusive. An edit happens as
/// a whole or not at all. It gives S_OK, S_FALSE when nothing had to change, or fails with a reason
/// (INLEReasons) and changes nothing. What none of them does:
///
/// - a clip shorter than a frame, before frame 0, or beyond the ends of its material;
/// - two clips of a level at one time, unless a transition is all of their overlap. Overlaps that
///   are there may stay or shrink;
/// - a change on a level that is locked.
///
/// Transitions follow the clips that they are between, and are shortened or removed with them.
/// Clips of a group are edited together: where an edge is meant, those whose edge stands at the
/// same frame. Clips are the composite's; null and others give E_POINTER and E_INVALIDARG.
///
/// What happens to positions, levels, ranges and clips by other calls empties the history.
/// Properties are not part of it, except those that an edit has to change. For the thread that
/// edits.
struct INLEEditing : IUnknown
{
    static constexpr _GUID Iid = {
        0x4B7C1E90, 0x63D2, 0x4F58, {0xA1, 0x0D, 0x27, 0xE8, 0x5B, 0x94, 0xC3, 0x6A}};

    // ---- Steps

    /// Edits until EndStep() are one step. E_FAIL when one is open already.
    virtual HRESULT BeginStep() = 0;
    /// S_FALSE when nothing had changed. E_FAIL when no step is open, here and below.
    virtual HRESULT EndStep() = 0;
    /// Takes back what was done since BeginStep(), and leaves the step open: each movement of a
    /// drag is an edit of what was there when it began.
    virtual HRESULT RewindStep() = 0;
    /// Takes the last step back, or does it again: the same nodes stand where they stood. S_FALSE
    /// when there is none, E_FAIL while a step is open.
    virtual HRESULT Undo() = 0;
    virtual HRESULT Redo() = 0;
    /// Steps that can be taken back and done again; either may be null.
    virtual HRESULT GetStepCounts(int* undo, int* redo) = 0;
    /// Steps that are kept, 200 at first; the oldest go. At least 1.
    virtual HRESULT SetMostSteps(int most) = 0;
    /// Empties the history.
    virtual HRESULT ForgetSteps() = 0;
    /// The clips and transitions that the last edit, undo or redo, or the step that has just ended,
    /// has changed, added or removed.
    virtual HRESULT GetChanged(INLETimelineEnumerator** clips) = 0;

    // ---- One clip and its group

    /// Cuts at \a frame: the second part is a new clip, with the transition at the end. The second
    /// parts of a group are a group. S_FALSE where the clip does not play on both sides of the cut;
    /// fails within a transition.
    virtual HRESULT Split(INLETimeline* clip, int frame, int flags) = 0;
    /// Moves an edge to \a frame; what is left of the clip stays where it is.
    virtual HRESULT Trim(INLETimeline* clip, int edge, int frame, int flags) = 0;
    /// As Trim(), and all that follows keeps its distance. At the beginning the clip stays where it
    /// is and what it shows changes.
    virtual HRESULT RippleTrim(INLETimeline* clip, int edge, int frame, int flags) = 0;
    /// Moves the cut between a clip and its neighbour to \a frame. An edge without a neighbour is
    /// trimmed alone.
    virtual HRESULT Roll(INLETimeline* clip, int edge, int frame, int flags) = 0;
    /// Shows what is \a frames later in the material, in the same place.
    virtual HRESULT Slip(INLETimeline* clip, int frames, int flags) = 0;
    /// Moves the clip by \a frames between its neighbours, which give and take what is needed; gaps
    /// shrink and grow.
    virtual HRESULT Slide(INLETimeline* clip, int frames, int flags) = 0;
    /// Moves the clip; its group goes by as many frames and levels. With NLEEdit_Overwrite what
    /// stands there is cut away. NLEEdit_Clamp counts for the frames.
    virtual HRESULT Move(INLETimeline* clip, int position, int level, int flags) = 0;
    /// Removes a clip or a transition. Clips that overlapped under a transition meet in its middle.
    virtual HRESULT Delete(INLETimeline* clip, int flags) = 0;
    /// Removes a clip and closes the gap.
    virtual HRESULT RippleDelete(INLETimeline* clip, int flags) = 0;

    // ---- Clips that come in

    /// Adds a clip that has no parent: where nothing stands, over what stands there
    /// (NLEEdit_Overwrite), or between (NLEEdit_Insert: clips that play there are cut, unless they
    /// are within a transition). The clip counts at the composite's rate from then on, also when it
    /// is refused, and leaves its groups.
    virtual HRESULT Place(INLETimeline* clip, int position, int level, int flags) = 0;
    /// Puts a transition that has no parent on an edge: \a frames in the middle of the cut to a
    /// neighbour, both of which play on so far, or the last or first \a frames of a clip alone.
    virtual HRESULT AddTransition(INLETimeline* transition, INLETimeline* clip, int edge,
                                  int frames) = 0;
    /// Copies clips, and the transitions between them, into a new virtual timeline: the first one
    /// stands at 0, the lowest one on level 0. Their groups are taken along.
    virtual HRESULT Copy(INLETimeline* const* clips, int count, INLETimeline** board) = 0;
    /// Adds copies of all clips of such a timeline, as Place() does, with \a position for its frame
    /// 0 and \a level for its level 0.
    virtual HRESULT Paste(INLETimeline* board, int position, int level, int flags) = 0;

    // ---- Stretches of time; \a level may be NLEEdit_AllLevels

    /// Cuts away what plays from \a begin to before \a end, which lies after it, else E_INVALIDARG.
    virtual HRESULT Lift(int begin, int end, int level) = 0;
    /// As Lift(), and what follows closes the gap.
    virtual HRESULT Extract(int begin, int end, int level) = 0;
    /// Closes the gap at \a frame, on all levels where all have one. S_FALSE where there is none,
    /// or nothing after it.
    virtual HRESULT CloseGap(int frame, int level) = 0;

    // ---- Groups and levels

    /// Makes one group of the clips, or of their outermost groups. E_INVALIDARG for less than two.
    virtual HRESULT Group(INLETimeline* const* clips, int count) = 0;
    /// Takes the outermost group apart; S_FALSE for a clip of none.
    virtual HRESULT Ungroup(INLETimeline* clip) = 0;
    /// The clips of the outermost group, the clip alone when it has none.
    virtual HRESULT GetGroup(INLETimeline* clip, INLETimelineEnumerator** clips) = 0;
    /// A locked level keeps its clips as they are. A step as any other.
    virtual HRESULT SetLevelLocked(int level, bool locked) = 0;
    virtual HRESULT GetLevelLocked(int level, bool* locked) = 0;

    // ---- Questions

    /// The clip that plays at \a frame, of two the one that comes; null with S_FALSE when there is
    /// none.
    virtual HRESULT GetClipAt(int frame, int level, INLETimeline** clip) = 0;
    /// The next clip of the level before or after a clip, whatever the distance; null with S_FALSE
    /// when there is none.
    virtual HRESULT GetNeighbour(INLETimeline* clip, int edge, INLETimeline** neighbour) = 0;
    /// The nearest edge of a clip or transition, or marker of the composite, that is at most \a
    /// distance frames from \a frame. Those of \a moving, which may be null, and its group do not
    /// count. S_FALSE, and nothing written, when there is none.
    virtual HRESULT Snap(int frame, int distance, INLETimeline* moving, int* snapped) = 0;
};

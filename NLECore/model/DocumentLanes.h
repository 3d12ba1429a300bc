// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/CompositeNode.h"
#include "NLECore/scene/Transition.h"

#include <functional>
#include <map>
#include <vector>

namespace nle {

/// Where a clip stands on a track of a document: neither format has a place before frame 0.
struct Placement
{
    std::int64_t position;
    NLERange range;

    std::int64_t End() const { return position + NLERangeLength(range); }
    friend bool operator==(const Placement& a, const Placement& b)
    {
        return a.position == b.position && a.range.in == b.range.in && a.range.out == b.range.out;
    }
};

/// The part of a clip that lies at or after frame 0 of its parent.
Placement VisiblePart(const TimelineNode& clip);

/// A clip on a track of a document.
struct LaneClip
{
    const TimelineNode* node;
    Placement placement; ///< what of it the track shows
};

/// Clips of one level that do not overlap: a track of a document.
struct DocumentLane
{
    int level = 0;
    BlendMode blend = BlendMode::Normal;    ///< of all its clips
    NLERenderMode streams = NLERender_All;  ///< what of its clips plays
    std::map<std::int64_t, LaneClip> clips; ///< by the first visible frame

    /// A clip of the lane that plays at the same time, other than \a but, which may be null; null
    /// for none.
    const TimelineNode* Overlapped(const Placement& placement, const TimelineNode* but) const;
};

/// The clips of a composite as a document holds them.
struct DocumentLanes
{
    std::vector<DocumentLane> lanes; ///< the lowest first
    /// What does not show: disabled clips, ones of no visible length, transitions.
    std::vector<const TimelineNode*> unplaced;
};

/// What of a level is off because of its settings, those of other levels, and its mixer strip.
struct LevelParts
{
    bool picture;
    bool sound;
};
LevelParts OffParts(const CompositeNode& composite, int level);

/// A clip that another one goes over into by a transition, which is all of where they overlap.
struct LaneJoin
{
    const TimelineNode* from;
    const TimelineNode* to;
    std::int64_t position; ///< of the transition
    std::int64_t length;
    SharedParameters transition;

    /// Where one clip ends and the other begins in formats that let no clips overlap.
    std::int64_t Cut() const { return position + length / 2; }
};
using LaneJoins = std::vector<LaneJoin>;

/// The pairs of clips of \a composite, at frame 0 and later, of which \a isWanted is true.
LaneJoins JoinsOf(const CompositeNode& composite,
                  const std::function<bool(const LaneJoin&)>& isWanted);

/// What is done with clips that are joined.
enum class JoinedClips
{
    Overlap, ///< they are on lanes of their own, whichever of them is the higher one
    Meet     ///< either ends where the other one begins
};

/// Of clips that overlap, the one that covers is on the higher lane.
DocumentLanes LanesOf(const CompositeNode& composite, const LaneJoins& joins, JoinedClips joined);

} // namespace nle

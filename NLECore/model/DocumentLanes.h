// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/CompositeNode.h"

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

/// Clips of one level that do not overlap: a track of a document.
struct DocumentLane
{
    int level = 0;
    BlendMode blend = BlendMode::Normal;               ///< of all its clips
    NLERenderMode streams = NLERender_All;             ///< what of its clips plays
    std::map<std::int64_t, const TimelineNode*> clips; ///< by the first visible frame

    /// Whether a clip of the lane plays at the same time.
    bool Overlaps(const Placement& placement) const;
};

/// The clips of a composite as a document holds them.
struct DocumentLanes
{
    std::vector<DocumentLane> lanes; ///< the lowest first
    /// What does not show: disabled clips, ones of no visible length, transitions.
    std::vector<const TimelineNode*> unplaced;
};

/// Of clips that overlap, the one that covers is on the higher lane.
DocumentLanes LanesOf(const CompositeNode& composite);

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/EditedTimeline.h"

#include <unordered_set>

namespace nle {

/// A transition with its clips, as they stood before an edit.
struct EditJoin
{
    NLEComPtr<TimelineNode> transition;
    TimelineNode* from = nullptr; ///< ends in it; null: none
    TimelineNode* to = nullptr;   ///< begins in it; null: none
    ClipSpan span;
    ClipSpan fromSpan;
    ClipSpan toSpan;

    /// The clips that begin or end in \a transition as they stand now.
    static EditJoin Of(const EditedTimeline& timeline, TimelineNode& transition);
    /// Whether its two clips play at one time.
    bool IsOverlap() const { return from && to && toSpan.begin < fromSpan.end; }
    /// The frames of a transition that has clips after these have come to stand as they do now;
    /// nothing when it has no place any more.
    std::optional<ClipSpan> Fitted(const EditedTimeline& timeline) const;

private:
    /// Of a transition with \a clip alone, and with two.
    ClipSpan WithinClip(const TimelineNode& clip, const EditIndex& index) const;
    ClipSpan BetweenClips() const;
};

/// The transitions whose clips an edit changes.
class EditJoins
{
public:
    explicit EditJoins(const EditedTimeline& timeline) : m_timeline(timeline) {}

    /// \a clip is about to be changed for the first time.
    void Note(const TimelineNode& clip);
    /// The end of \a clip is that of \a right from now on.
    void HandEndOver(const TimelineNode& clip, TimelineNode& right);
    const std::vector<EditJoin>& All() const { return m_joins; }

private:
    void NoteEdges(const TimelineNode& clip);

    const EditedTimeline& m_timeline;
    std::vector<EditJoin> m_joins;
    std::unordered_set<const TimelineNode*> m_known; ///< transitions
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEEditing.h"
#include "NLECore/model/EditJoins.h"
#include "NLECore/model/EditStep.h"

#include <vector>

namespace nle {

/// An edit while it is made, all or nothing. Its changes are done at once; Finish() brings
/// transitions and groups after and looks at what was changed, and nothing else. What has not been
/// taken by then is undone.
class EditDraft
{
public:
    using Nodes = EditIndex::Nodes;

    explicit EditDraft(EditedTimeline& timeline);
    ~EditDraft();
    EditDraft(const EditDraft&) = delete;
    EditDraft& operator=(const EditDraft&) = delete;

    EditedTimeline& Timeline() { return m_timeline; }
    const EditIndex& Index() const { return m_timeline.Index(); }

    // ---- What all edits are made of

    void Add(const NLEComPtr<TimelineNode>& node, const ClipPlace& place);
    /// As Add(), of a copy that is still in the groups of its original: in the end all such copies
    /// are in new ones.
    void AddCopy(const NLEComPtr<TimelineNode>& node, const ClipPlace& place);
    void Remove(TimelineNode& node);
    void Place(TimelineNode& node, const ClipPlace& place);
    /// \a key is one of NLEKey.
    void SetValue(TimelineNode& node, const wchar_t* key, std::optional<PropertyBag::Value> value);
    /// Sets what a level of the composite is.
    void SetLevel(const LevelState& state);

    /// These are about to be changed: what depends on where they stand together is looked up.
    void Note(const Nodes& nodes);

    // ---- In terms of these

    /// Moves a clip by frames and levels.
    void Shift(TimelineNode& node, std::int64_t frames, std::int64_t levels = 0);
    /// Moves one edge of a clip by frames; the rest stays where it is.
    void MoveEdge(TimelineNode& node, int edge, std::int64_t frames);
    /// Shows what is \a frames later in the material.
    void Slip(TimelineNode& node, std::int64_t frames);
    /// Cuts a clip that plays on both sides of \a frame; its second part.
    TimelineNode& Split(TimelineNode& clip, std::int64_t frame);
    /// Cuts away what plays in \a span of a level, those in \a kept excepted.
    void Clear(int level, const ClipSpan& span, const Nodes& kept = {});
    /// Moves all clips of a level that begin at \a frame or later, those in \a kept excepted.
    void ShiftFrom(int level, std::int64_t frame, std::int64_t by, const Nodes& kept = {});
    void SetGroups(TimelineNode& node, const GroupPath& path);
    /// \a transition comes to play in \a span.
    void Fit(TimelineNode& transition, const ClipSpan& span, int level);

    /// S_OK when everything is as it may be, S_FALSE when nothing was changed.
    HRESULT Finish();
    /// What was changed; it stays so.
    EditStep Take() { return std::move(m_step); }

private:
    /// A node as it stood before the edit.
    struct Original
    {
        TimelineNode* node;
        bool isHeld;
        int level;
        ClipSpan span;
        NLERange range;
    };

    /// What is left of a clip when a span is cut away. A rest that would lie within a clip that it
    /// overlapped is none.
    struct Rest
    {
        TimelineNode* clip;
        bool hasLeft;
        bool hasRight;
    };

    Original& Touch(TimelineNode& node);
    Rest RestOf(TimelineNode& clip, const ClipSpan& span, const Nodes& kept) const;
    HeldPlace PlaceOf(const TimelineNode& node) const;
    void Change(TimelineNode& node, const HeldPlace& place);
    void ShiftSound(TimelineNode& node, std::int64_t frames);
    void SetSound(TimelineNode& node, const EndsOfSound& ends);
    void KeepFrozenFrame(TimelineNode& node);
    int Narrow(std::int64_t number);

    void RefitTransitions();
    void SeparateTransition(const EditJoin& join);
    void RegroupCopies();
    void CollapseGroups();

    HRESULT Check(const Original& original) const;
    HRESULT CheckPlace(const Original& original) const;
    HRESULT CheckMaterial(const Original& original) const;
    HRESULT CheckOverlaps(const TimelineNode& node) const;
    HRESULT CheckTransition(const Original& original) const;
    /// Nothing for one that stood elsewhere.
    ClipSpan FormerSpan(const TimelineNode& node, int level) const;
    /// Whether a transition is all of an overlap.
    bool IsJoined(int level, const ClipSpan& overlap) const;

    EditedTimeline& m_timeline;
    const std::set<int> m_locked;
    EditStep m_step;
    EditJoins m_joins;
    std::vector<Original> m_originals;
    std::unordered_map<const TimelineNode*, size_t> m_places; ///< in m_originals
    std::vector<TimelineNode*> m_copies; ///< still of the groups of their originals
    std::set<int> m_groups;              ///< that clips have left
    bool m_isTooFar = false;
};

} // namespace nle

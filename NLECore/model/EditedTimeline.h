// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/EditGroups.h"
#include "NLECore/model/EditIndex.h"

#include <set>

namespace nle {

class Editing;

/// What is set for a level of a composite.
struct LevelState
{
    int level;
    LevelSettings settings;
    bool isMuted;  ///< by its mixer strip
    bool hasStrip; ///< whether there is one
};

/// A composite that is edited, with what edits ask about it. It hears of every change of the clips,
/// whoever makes it, so that the answers are those of now.
class EditedTimeline final : public ClipWatch
{
public:
    /// Has to be the only watch of \a composite.
    EditedTimeline(CompositeNode& composite, Editing& editing);
    ~EditedTimeline();
    EditedTimeline(const EditedTimeline&) = delete;
    EditedTimeline& operator=(const EditedTimeline&) = delete;

    /// Whose part it is.
    Editing& Owner() const { return m_owner; }
    CompositeNode& Composite() const { return *m_composite; }
    const EditIndex& Index() const { return m_index; }
    EditGroups& Groups() { return m_groups; }
    bool Holds(const TimelineNode& node) const { return node.Parent() == m_composite.get(); }
    bool IsLocked(int level) const { return LockedLevels().count(level) > 0; }
    std::set<int> LockedLevels() const;
    LevelState LevelOf(int level) const;
    /// Whether the clips were changed from elsewhere since it was last asked.
    bool TakeForeign();

    /// Changes are ours as long as one of these is there.
    class Ours
    {
    public:
        explicit Ours(EditedTimeline& timeline) : m_timeline(timeline) { ++m_timeline.m_ours; }
        ~Ours() { --m_timeline.m_ours; }
        Ours(const Ours&) = delete;
        Ours& operator=(const Ours&) = delete;

    private:
        EditedTimeline& m_timeline;
    };

private:
    void ClipPlaced(TimelineNode& clip) override;
    void ClipGrew(TimelineNode& clip) override { m_index.Put(clip); }
    void ClipGoes(TimelineNode& clip) override;

    Editing& m_owner;
    const NLEComPtr<CompositeNode> m_composite;
    EditIndex m_index;
    EditGroups m_groups;
    NLERational m_rate; ///< that the steps count at
    int m_ours = 0;
    bool m_isForeign = false;
};

} // namespace nle

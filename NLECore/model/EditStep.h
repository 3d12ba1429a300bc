// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/EditedTimeline.h"

#include <deque>
#include <variant>

namespace nle {

/// Where a node is: on the composite, in its place among the clips, or, without one, nowhere.
struct HeldPlace
{
    std::optional<std::uint64_t> order;
    ClipPlace place;
};
/// A property of a node.
struct KeptValue
{
    const wchar_t* key; ///< one of NLEKey
    std::optional<PropertyBag::Value> value;
};
/// What counts from the ends of a clip in its sound.
struct EndsOfSound
{
    std::vector<VolumePoint> volume;
    bool fadeIn;
    bool fadeOut;
};

/// One thing of one node before and after an edit. It keeps the node, so that one that was removed
/// comes back itself.
struct EditChange
{
    template <typename State>
    struct Pair
    {
        State before;
        State after;
    };

    NLEComPtr<TimelineNode> node;
    std::variant<Pair<HeldPlace>, Pair<KeptValue>, Pair<EndsOfSound>, Pair<LevelState>> states;
};

/// Changes in their order.
class EditStep
{
public:
    bool IsEmpty() const { return m_changes.empty(); }
    /// Makes a change and remembers it.
    void Do(EditedTimeline& timeline, EditChange change);
    /// What is done already, in their order.
    void Append(EditStep&& later);
    void Undo(EditedTimeline& timeline) const;
    void Redo(EditedTimeline& timeline) const;
    /// The nodes that it changes, each once, without the composite itself.
    std::vector<NLEComPtr<TimelineNode>> Nodes(const CompositeNode& composite) const;

private:
    std::vector<EditChange> m_changes;
};

/// Steps that can be taken back and done again.
class EditHistory
{
public:
    int UndoCount() const { return int(m_undo.size()); }
    int RedoCount() const { return int(m_redo.size()); }
    /// A step that is done; what could be done again cannot any more.
    void Add(EditStep&& step);
    void SetMost(int most);
    void Clear();
    /// The step that was taken back; null when there is none.
    const EditStep* Undo(EditedTimeline& timeline);
    const EditStep* Redo(EditedTimeline& timeline);

private:
    void Trim();

    std::deque<EditStep> m_undo;
    std::deque<EditStep> m_redo;
    int m_most = 200;
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/EditStep.h"

#include <unordered_set>

namespace nle {

namespace {

void Apply(EditedTimeline& timeline, TimelineNode& node, const HeldPlace& state)
{
    CompositeNode& composite = timeline.Composite();
    if (timeline.Holds(node) && !state.order)
        composite.Drop(node);
    node.SetPlace(state.place);
    if (!timeline.Holds(node) && state.order)
        composite.Restore(&node, *state.order);
}

void Apply(EditedTimeline& timeline, TimelineNode& node, const KeptValue& state)
{
    node.Bag().Exchange(state.key, state.value);
    if (timeline.Holds(node))
        timeline.Groups().Put(node);
}

void Apply(EditedTimeline& /*timeline*/, TimelineNode& node, const EndsOfSound& state)
{
    AudioSettings& sound = node.Audio().settings;
    sound.volumePoints = state.volume;
    sound.fadeIn = state.fadeIn;
    sound.fadeOut = state.fadeOut;
}

void Apply(EditedTimeline& /*timeline*/, TimelineNode& node, const LevelState& state)
{
    LevelSettings settings = state.settings;
    // No edit changes it, so it stays as it was made since.
    settings.height = SettingsOf(node.Levels(), state.level).height;
    PutSettings(node.Levels(), state.level, settings);
    MixerSettings& mixer = node.Mixer().settings;
    const auto strip = mixer.try_emplace(state.level, kNeutralStrip).first;
    strip->second.mute = state.isMuted ? 1 : 0;
    if (!state.hasStrip && IsSame(strip->second, kNeutralStrip))
        mixer.erase(strip);
}

/// Takes a node to one side of a change.
void Apply(EditedTimeline& timeline, const EditChange& change, bool isForward)
{
    const EditedTimeline::Ours ours(timeline);
    std::visit(
        [&](const auto& pair) {
            Apply(timeline, *change.node, isForward ? pair.after : pair.before);
        },
        change.states);
}

/// Moves the last step of \a from to \a to.
const EditStep* MoveStep(std::deque<EditStep>& from, std::deque<EditStep>& to)
{
    to.push_back(std::move(from.back()));
    from.pop_back();
    return &to.back();
}

} // namespace

void EditStep::Do(EditedTimeline& timeline, EditChange change)
{
    m_changes.push_back(std::move(change));
    Apply(timeline, m_changes.back(), true);
}

void EditStep::Append(EditStep&& later)
{
    m_changes.insert(m_changes.end(), std::make_move_iterator(later.m_changes.begin()),
                     std::make_move_iterator(later.m_changes.end()));
    later.m_changes.clear();
}

void EditStep::Undo(EditedTimeline& timeline) const
{
    for (auto change = m_changes.rbegin(); change != m_changes.rend(); ++change)
        Apply(timeline, *change, false);
}

void EditStep::Redo(EditedTimeline& timeline) const
{
    for (const EditChange& change : m_changes)
        Apply(timeline, change, true);
}

std::vector<NLEComPtr<TimelineNode>> EditStep::Nodes(const CompositeNode& composite) const
{
    std::vector<NLEComPtr<TimelineNode>> nodes;
    std::unordered_set<const TimelineNode*> known = {&composite};
    for (const EditChange& change : m_changes) {
        if (known.insert(change.node.get()).second)
            nodes.push_back(change.node);
    }
    return nodes;
}

void EditHistory::Add(EditStep&& step)
{
    m_redo.clear();
    m_undo.push_back(std::move(step));
    Trim();
}

void EditHistory::SetMost(int most)
{
    m_most = most;
    Trim();
}

void EditHistory::Trim()
{
    while (UndoCount() > m_most)
        m_undo.pop_front();
}

void EditHistory::Clear()
{
    m_undo.clear();
    m_redo.clear();
}

const EditStep* EditHistory::Undo(EditedTimeline& timeline)
{
    if (m_undo.empty())
        return nullptr;
    m_undo.back().Undo(timeline);
    return MoveStep(m_undo, m_redo);
}

const EditStep* EditHistory::Redo(EditedTimeline& timeline)
{
    if (m_redo.empty())
        return nullptr;
    m_redo.back().Redo(timeline);
    return MoveStep(m_redo, m_undo);
}

} // namespace nle

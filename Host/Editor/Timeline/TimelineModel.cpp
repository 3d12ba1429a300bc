// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/TimelineModel.h"

#include "EngineApi/INLEEditing.h"
#include "EngineApi/INLEMarkers.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Project.h"
#include "Host/EngineText.h"

#include <QUndoStack>

#include <algorithm>

namespace {

QVector<NLEComPtr<INLETimeline>> ClipsOf(const NLEComPtr<INLETimeline>& composite)
{
    const auto holder = composite.query<INLETimelineComposite>();
    NLEComPtr<INLETimelineEnumerator> walk;
    constexpr int flags = 1;
    if (!holder || FAILED(holder->GetEnumerator(flags, walk.put())))
        return {};
    return NodesOf(*walk);
}

} // namespace

/// Rows that leave and join the indexes of levels.
struct TimelineModel::Change
{
    struct Sets
    {
        LevelIndex::Rows gone;
        LevelIndex::Rows come;
    };
    std::map<int, Sets> clips;
    std::map<int, Sets> transitions;
    std::vector<std::unique_ptr<ClipRow>> former; ///< until the indexes have forgotten them

    Sets& Of(const ClipRow& row) { return (row.IsTransition() ? transitions : clips)[row.level]; }
};

TimelineModel::TimelineModel(Project& project, QObject* parent)
    : QObject(parent), m_project(project)
{
    connect(&project, &Project::Replaced, this, &TimelineModel::Reload);
    connect(&project, &Project::ClipsChanged, this, &TimelineModel::Update);
    connect(&project, &Project::NodeChanged, this, &TimelineModel::Follow);
    connect(&project.Steps(), &QUndoStack::indexChanged, this, &TimelineModel::ReadLevels);
    if (project.IsUsable())
        Reload();
}

TimelineModel::~TimelineModel() = default;

void TimelineModel::Reload()
{
    m_levels.clear();
    m_rows.clear();
    m_reader.ForgetMedia();
    ReadLevels();
    Update(ClipsOf(m_project.Node()));
    ReadMarkers();
}

bool TimelineModel::IsHeld(INLETimeline& node) const
{
    NLEComPtr<INLETimeline> parent;
    return SUCCEEDED(node.GetParent(parent.put())) && parent && parent == m_project.Node();
}

void TimelineModel::Update(const QVector<NLEComPtr<INLETimeline>>& nodes)
{
    Change change;
    std::unordered_set<INLETimeline*> done;
    for (const NLEComPtr<INLETimeline>& node : nodes) {
        if (!node || !done.insert(node.get()).second)
            continue;
        if (const auto known = m_rows.find(node.get()); known != m_rows.end()) {
            change.Of(*known->second).gone.insert(known->second.get());
            change.former.push_back(std::move(known->second));
            m_rows.erase(known);
        }
        if (!IsHeld(*node))
            continue;
        auto& row = m_rows[node.get()] = std::make_unique<ClipRow>(m_reader.Read(node));
        change.Of(*row).come.insert(row.get());
    }
    for (const auto& [level, sets] : change.clips)
        m_levels[level].clips.Change(sets.gone, sets.come);
    for (const auto& [level, sets] : change.transitions)
        m_levels[level].transitions.Change(sets.gone, sets.come);
    Q_EMIT Changed();
}

void TimelineModel::Follow(const NLEComPtr<INLETimeline>& node)
{
    if (node == m_project.Node())
        ReadMarkers();
    else if (Find(node.get()))
        Update({node});
}

void TimelineModel::ReadMarkers()
{
    m_markers.clear();
    const auto markers = FacilityOf<INLEMarkers>(m_project.Node());
    int count = 0;
    if (markers)
        markers->GetCount(&count);
    for (int index = 0; index < count; ++index) {
        NLEMarkerRecord record{};
        if (SUCCEEDED(markers->GetMarker(index, &record, nullptr, 0)))
            m_markers.append({record.frame, record.length, QColor::fromRgba(record.color)});
    }
    Q_EMIT MarkersChanged();
}

bool TimelineModel::IsLocked(int level) const
{
    bool isLocked = false;
    if (m_project.IsUsable())
        m_project.Editing().GetLevelLocked(level, &isLocked);
    return isLocked;
}

int TimelineModel::SetLevelCount() const
{
    int count = 0;
    if (m_project.IsUsable())
        m_project.Levels()->GetCount(&count);
    return count;
}

void TimelineModel::ReadLevels()
{
    m_states.clear();
    m_isAnySolo = false;
    for (int level = 0, count = SetLevelCount(); level < count; ++level) {
        const auto levels = m_project.Levels();
        LevelState state;
        levels->GetFlags(level, &state.flags);
        state.name = EngineText(
            [&](wchar_t* name, int capacity) { return levels->GetName(level, name, capacity); });
        m_isAnySolo = m_isAnySolo || (state.flags & NLELevel_Solo) != 0;
        m_states << state;
    }
    Q_EMIT LevelsChanged();
}

LevelState TimelineModel::StateOf(int level) const
{
    LevelState state = m_states.value(level);
    state.isLocked = IsLocked(level);
    state.isShown = (state.flags & NLELevel_Hidden) == 0 &&
                    ((state.flags & NLELevel_Solo) != 0 || !m_isAnySolo);
    return state;
}

int TimelineModel::LevelCount() const
{
    for (auto level = m_levels.rbegin(); level != m_levels.rend(); ++level) {
        if (level->second.clips.Reach() > 0 || level->second.transitions.Reach() > 0)
            return level->first + 1;
    }
    return 0;
}

int TimelineModel::Length() const
{
    int length = 0;
    for (const auto& [number, level] : m_levels)
        length = std::max(length, level.clips.Reach());
    return length;
}

const LevelIndex& TimelineModel::Clips(int level) const
{
    static const LevelIndex none;
    const auto found = m_levels.find(level);
    return found == m_levels.end() ? none : found->second.clips;
}

const LevelIndex& TimelineModel::Transitions(int level) const
{
    static const LevelIndex none;
    const auto found = m_levels.find(level);
    return found == m_levels.end() ? none : found->second.transitions;
}

const ClipRow* TimelineModel::Find(INLETimeline* node) const
{
    const auto found = m_rows.find(node);
    return found == m_rows.end() ? nullptr : found->second.get();
}

const ClipRow* TimelineModel::At(int level, double frame) const
{
    const ClipRow* transition = Transitions(level).At(frame);
    return transition ? transition : Clips(level).At(frame);
}

int TimelineModel::NextCut(int frame, int step) const
{
    int next = frame;
    const auto offer = [&](int cut) {
        if ((cut - frame) * step > 0 && (next == frame || (next - cut) * step > 0))
            next = cut;
    };
    for (const auto& [number, level] : m_levels) {
        for (const LevelIndex::Entry& entry : level.clips.All()) {
            offer(entry.begin);
            offer(entry.end);
        }
    }
    return next;
}

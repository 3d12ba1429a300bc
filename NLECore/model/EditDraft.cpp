// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/EditDraft.h"

#include "EngineApi/NLEKey.h"
#include "NLECore/scene/FrameMath.h"

#include <algorithm>
#include <limits>

namespace nle {

namespace {

bool Contains(const EditIndex::Nodes& nodes, const TimelineNode* node)
{
    return std::find(nodes.begin(), nodes.end(), node) != nodes.end();
}

} // namespace

EditDraft::EditDraft(EditedTimeline& timeline)
    : m_timeline(timeline), m_locked(timeline.LockedLevels()), m_joins(timeline)
{
}

EditDraft::~EditDraft()
{
    // Where memory is out, what cannot be undone stays.
    try {
        m_step.Undo(m_timeline);
    } catch (const std::exception&) {
        m_step = EditStep();
    }
}

EditDraft::Original& EditDraft::Touch(TimelineNode& node)
{
    const auto [place, isNew] = m_places.try_emplace(&node, m_originals.size());
    if (isNew) {
        const bool isHeld = m_timeline.Holds(node);
        if (isHeld && !node.IsTransition())
            m_joins.Note(node);
        m_originals.push_back({&node, isHeld, node.Level(), ClipSpan::Of(node), node.Range()});
    }
    return m_originals[place->second];
}

void EditDraft::Note(const Nodes& nodes)
{
    for (TimelineNode* node : nodes)
        Touch(*node);
}

HeldPlace EditDraft::PlaceOf(const TimelineNode& node) const
{
    return {m_timeline.Holds(node) ? std::optional(node.Order()) : std::nullopt, node.Place()};
}

void EditDraft::Change(TimelineNode& node, const HeldPlace& place)
{
    Touch(node);
    const HeldPlace before = PlaceOf(node);
    if (before.order != place.order || !(before.place == place.place))
        m_step.Do(m_timeline, {&node, EditChange::Pair<HeldPlace>{before, place}});
}

void EditDraft::Add(const NLEComPtr<TimelineNode>& node, const ClipPlace& place)
{
    Change(*node, {m_timeline.Composite().NewOrder(), place});
}

void EditDraft::AddCopy(const NLEComPtr<TimelineNode>& node, const ClipPlace& place)
{
    Add(node, place);
    m_copies.push_back(node.get());
}

void EditDraft::Remove(TimelineNode& node)
{
    for (const int group : EditGroups::PathOf(node))
        m_groups.insert(group);
    Change(node, {std::nullopt, node.Place()});
}

void EditDraft::Place(TimelineNode& node, const ClipPlace& place)
{
    Change(node, {node.Order(), place});
}

void EditDraft::SetValue(TimelineNode& node, const wchar_t* key,
                         std::optional<PropertyBag::Value> value)
{
    const PropertyBag::Values& values = node.Bag().All();
    const auto found = values.find(key);
    const auto before =
        found == values.end() ? std::nullopt : std::optional<PropertyBag::Value>(found->second);
    m_step.Do(m_timeline,
              {&node, EditChange::Pair<KeptValue>{{key, before}, {key, std::move(value)}}});
}

void EditDraft::SetLevel(const LevelState& state)
{
    const EditChange::Pair<LevelState> states = {m_timeline.LevelOf(state.level), state};
    m_step.Do(m_timeline, {&m_timeline.Composite(), states});
}

int EditDraft::Narrow(std::int64_t number)
{
    const std::int64_t lowest = std::numeric_limits<int>::min();
    const std::int64_t highest = std::numeric_limits<int>::max();
    m_isTooFar = m_isTooFar || number < lowest || number > highest;
    return int(std::clamp(number, lowest, highest));
}

void EditDraft::Shift(TimelineNode& node, std::int64_t frames, std::int64_t levels)
{
    ClipPlace place = node.Place();
    place.position = Narrow(place.position + frames);
    place.level = Narrow(place.level + levels);
    Place(node, place);
}

void EditDraft::MoveEdge(TimelineNode& node, int edge, std::int64_t frames)
{
    Touch(node);
    if (frames == 0)
        return;
    ClipPlace place = node.Place();
    NLERange range = node.Range();
    if (edge == NLEEdge_Begin) {
        KeepFrozenFrame(node);
        ShiftSound(node, frames);
        place.position = Narrow(place.position + frames);
        range.in = Narrow(range.in + frames);
    } else {
        range.out = Narrow(range.out + frames);
    }
    place.range = range;
    Place(node, place);
}

void EditDraft::Slip(TimelineNode& node, std::int64_t frames)
{
    Touch(node);
    if (frames == 0)
        return;
    ClipPlace place = node.Place();
    const NLERange range = node.Range();
    ShiftSound(node, frames);
    place.range = NLERange{Narrow(range.in + frames), Narrow(range.out + frames)};
    Place(node, place);
}

void EditDraft::KeepFrozenFrame(TimelineNode& node)
{
    const auto* const key = NLEKey::Freeze::kFreeze_Frame;
    if (node.IsFrozen() && node.Bag().All().count(key) == 0)
        SetValue(node, key, ClampToInt(node.Range().in * node.Speed()));
}

void EditDraft::ShiftSound(TimelineNode& node, std::int64_t frames)
{
    const AudioSettings& sound = node.Audio().settings;
    if (sound.volumePoints.empty())
        return;
    EndsOfSound ends = {sound.volumePoints, sound.fadeIn, sound.fadeOut};
    for (VolumePoint& point : ends.volume)
        point.time -= double(frames) / ToDouble(node.FrameRate());
    SetSound(node, ends);
}

void EditDraft::SetSound(TimelineNode& node, const EndsOfSound& ends)
{
    const AudioSettings& sound = node.Audio().settings;
    const EndsOfSound before = {sound.volumePoints, sound.fadeIn, sound.fadeOut};
    m_step.Do(m_timeline, {&node, EditChange::Pair<EndsOfSound>{before, ends}});
}

TimelineNode& EditDraft::Split(TimelineNode& clip, std::int64_t frame)
{
    const ClipSpan span = ClipSpan::Of(clip);
    Original original = Touch(clip);
    const NLEComPtr<TimelineNode> right = clip.Copy(true);
    AddCopy(right, clip.Place());
    // For what is looked at in the end, there were two clips before.
    Touch(clip).span.end = frame;
    original.node = right.get();
    original.span.begin = frame;
    Touch(*right) = original;
    MoveEdge(*right, NLEEdge_Begin, frame - span.begin);
    MoveEdge(clip, NLEEdge_End, frame - span.end);
    const AudioSettings& sound = clip.Audio().settings;
    if (sound.fadeOut)
        SetSound(clip, {sound.volumePoints, sound.fadeIn, false});
    const AudioSettings& rest = right->Audio().settings;
    if (rest.fadeIn)
        SetSound(*right, {rest.volumePoints, false, rest.fadeOut});
    m_joins.HandEndOver(clip, *right);
    return *right;
}

EditDraft::Rest EditDraft::RestOf(TimelineNode& clip, const ClipSpan& span, const Nodes& kept) const
{
    const ClipSpan own = ClipSpan::Of(clip);
    const TimelineNode* previous = Index().Before(clip.Level(), own.begin);
    const TimelineNode* next = Index().From(clip.Level(), own.begin + 1);
    const bool isWithinPrevious =
        previous && !Contains(kept, previous) && ClipSpan::Of(*previous).end >= span.begin;
    const bool isWithinNext = next && !Contains(kept, next) && next->Position() <= span.end;
    return {&clip, own.begin < span.begin && !isWithinPrevious,
            own.end > span.end && !isWithinNext};
}

void EditDraft::Clear(int level, const ClipSpan& span, const Nodes& kept)
{
    std::vector<Rest> rests;
    for (TimelineNode* clip : Index().Within(EditIndex::Kind::Clip, level, span)) {
        if (!Contains(kept, clip))
            rests.push_back(RestOf(*clip, span, kept));
    }
    for (const auto& [clip, hasLeft, hasRight] : rests) {
        if (hasLeft && hasRight)
            Split(*clip, span.end);
        const ClipSpan own = ClipSpan::Of(*clip);
        if (hasLeft)
            MoveEdge(*clip, NLEEdge_End, span.begin - own.end);
        else if (hasRight)
            MoveEdge(*clip, NLEEdge_Begin, span.end - own.begin);
        else
            Remove(*clip);
    }
}

void EditDraft::ShiftFrom(int level, std::int64_t frame, std::int64_t by, const Nodes& kept)
{
    const Nodes clips = Index().AllFrom(level, frame);
    Note(clips);
    for (TimelineNode* clip : clips) {
        if (!Contains(kept, clip))
            Shift(*clip, by);
    }
}

void EditDraft::Fit(TimelineNode& transition, const ClipSpan& span, int level)
{
    const int in = transition.Range().in;
    Place(transition, {Narrow(span.begin), level, NLERange{in, Narrow(in + span.Length() - 1)}});
}

void EditDraft::SetGroups(TimelineNode& node, const GroupPath& path)
{
    SetValue(node, NLEKey::Editing::kGroups, PropertyBag::ValueOf(path));
}

} // namespace nle

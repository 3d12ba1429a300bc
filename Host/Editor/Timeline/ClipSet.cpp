// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/ClipSet.h"
#include "Host/Editor/Model/Engine.h"

#include <algorithm>

ClipSet ClipSets::GroupOf(INLEEditing& editing, INLETimeline* clip)
{
    const NLEComPtr<INLETimeline> alone(clip);
    if (alone.query<INLETimelineTransition>())
        return {alone};
    NLEComPtr<INLETimelineEnumerator> walk;
    if (FAILED(editing.GetGroup(clip, walk.put())) || !walk)
        return {alone};
    const ClipSet group = NodesOf(*walk);
    return group.isEmpty() ? ClipSet{alone} : group;
}

bool ClipSets::IsOneGroup(INLEEditing& editing, const ClipSet& clips)
{
    if (clips.isEmpty())
        return true;
    const ClipSet group = GroupOf(editing, clips.front().get());
    return std::all_of(clips.begin(), clips.end(),
                       [&](const auto& clip) { return group.contains(clip); });
}

bool ClipSets::IsHeld(INLETimeline& clip)
{
    NLEComPtr<INLETimeline> parent;
    return SUCCEEDED(clip.GetParent(parent.put())) && parent;
}

QVector<INLETimeline*> ClipSets::Pointers(const ClipSet& clips)
{
    QVector<INLETimeline*> pointers;
    for (const auto& clip : clips)
        pointers << clip.get();
    return pointers;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEEditing.h"
#include "EngineApi/INLETimeline.h"

#include <QVector>

/// Clips that are edited as one.
using ClipSet = QVector<NLEComPtr<INLETimeline>>;

namespace ClipSets {

/// The clip and those that are grouped with it; a transition is in no group.
ClipSet GroupOf(INLEEditing& editing, INLETimeline* clip);
/// Whether an edit of one is an edit of all already.
bool IsOneGroup(INLEEditing& editing, const ClipSet& clips);
/// Whether a clip still stands somewhere; others of a set may have taken it with them.
bool IsHeld(INLETimeline& clip);
/// For interfaces that take arrays; pointers stay the set's.
QVector<INLETimeline*> Pointers(const ClipSet& clips);

/// Makes \a edit while \a clips are one group: what it does to one it does to all, or to none.
template <typename Edit>
HRESULT Together(INLEEditing& editing, const ClipSet& clips, Edit edit)
{
    if (IsOneGroup(editing, clips))
        return edit();
    const HRESULT grouped = editing.Group(Pointers(clips).constData(), clips.size());
    if (FAILED(grouped))
        return grouped;
    const HRESULT edited = edit();
    if (FAILED(edited))
        return edited;
    const HRESULT parted = editing.Ungroup(clips.front().get());
    return FAILED(parted) ? parted : edited;
}

} // namespace ClipSets

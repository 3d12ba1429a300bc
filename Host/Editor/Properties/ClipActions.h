// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEEditing.h"
#include "EngineApi/INLEEffects.h"
#include "EngineApi/INLETimeline.h"

#include <QString>

class Project;
class Selection;

/// Steps that bring something new into the project. Each gives false, and changes nothing, where
/// the engine refuses it; Project::Refused() has told why.
namespace ClipActions {

/// Puts the transition \a name of the catalogue on an edge of \a clip, a second long, or as much of
/// it as both clips have material for. The transition is selected then.
bool AddTransition(Project& project, Selection& selection, const NLEComPtr<INLETimeline>& clip,
                   const QString& name, NLEClipEdge edge);
/// Puts the transition \a name of \a frames in the place of \a transition, with its parameters
/// where it is of that kind, and selects it.
bool ChangeTransition(Project& project, Selection& selection,
                      const NLEComPtr<INLETimeline>& transition, const QString& name, int frames);
/// Places a title of \a text at \a frame, above all that plays while it does, and selects it.
bool AddTitle(Project& project, Selection& selection, const QString& text, int frame);
/// Plays \a clip \a speed times as fast, with the same material: it becomes shorter or longer, and
/// is another node, that is selected then. It is grouped with the clips that the former one was
/// grouped with, and has its transitions, but for one to a neighbour that it no longer meets.
bool SetSpeed(Project& project, Selection& selection, const NLEComPtr<INLETimeline>& clip,
              double speed);

/// Adds an effect or, by \a kind, an audio filter as the last one of \a clip.
bool AddEffect(Project& project, const NLEComPtr<INLETimeline>& clip, NLECatalogKind kind,
               const QString& name);
/// \a index is that of the effect in \a clip, here and below.
bool RemoveEffect(Project& project, const NLEComPtr<INLETimeline>& clip, int index);
bool MoveEffect(Project& project, const NLEComPtr<INLETimeline>& clip, int index, int to);
bool EnableEffect(Project& project, const NLEComPtr<INLETimeline>& clip, int index, bool enable);

} // namespace ClipActions

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLETimeline.h"

class MediaPlayer;
class Project;
class Selection;

/// What a section of the panel works on: the node that is shown, in its project, with the play
/// head. It is copied; project, selection and player outlive the panel.
struct PropertyScope
{
    Project& project;
    Selection& selection;
    MediaPlayer& player;
    NLEComPtr<INLETimeline> node; ///< a clip, a transition, or the project itself

    /// The frame of the project under the play head; 0 while nothing is open.
    int PlayHead() const;
};

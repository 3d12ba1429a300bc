// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// What the mouse does to clips, and keys that move them.
enum class TimelineTool
{
    Select, ///< moves clips, trims edges
    Ripple, ///< trims edges, and what follows moves along
    Roll,   ///< moves the cut between two clips
    Slip,   ///< changes what a clip shows
    Slide,  ///< moves a clip between its neighbours
    Razor   ///< cuts
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEEditing.h"
#include "Host/Editor/Timeline/TimelineTool.h"

#include <QString>

/// The engine's edits behind the tools, and what they are called in menus.
namespace ToolEdits {

/// Moves an edge to \a frame; by trimming alone with tools that are not for edges.
HRESULT MoveEdge(TimelineTool tool, INLEEditing& editing, INLETimeline* clip, int edge, int frame);
QString EdgeText(TimelineTool tool);

/// Slips or slides by as many frames as the pointer or a key moves, to the right for more than 0: a
/// clip that is slipped to the right shows earlier material.
HRESULT Shift(TimelineTool tool, INLEEditing& editing, INLETimeline* clip, int frames);
QString ShiftText(TimelineTool tool);

} // namespace ToolEdits

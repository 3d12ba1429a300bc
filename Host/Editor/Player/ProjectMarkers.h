// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLETimeline.h"

#include <QVector>

/// Frames of the markers of a node, in order; none where it has no markers.
QVector<int> MarkerFrames(const NLEComPtr<INLETimeline>& node);
/// False when the node refuses it.
bool AddMarker(const NLEComPtr<INLETimeline>& node, const NLEMarkerRecord& marker);
/// Removes the first marker at \a frame; false when there is none.
bool RemoveMarker(const NLEComPtr<INLETimeline>& node, int frame);

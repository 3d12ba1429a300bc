// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/DocumentFilter.h"

namespace nle {

class TimelineNode;

/// Filters that show other programs where \a node lies on its parent, how its key frames move it,
/// to the nearest frame, and how much it covers. Empty when it lies where they put it anyway. They
/// are written only: a document is read from the node's own settings.
std::vector<DocumentFilter> MotionFilters(const TimelineNode& node);

/// Height of the letters of a text, in pixels of what it lies on.
int DocumentTextSize(const TimelineNode& text);

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/DocumentFilter.h"

namespace nle {

class TimelineNode;

/// Filters that show other programs the effects of \a node, as far as those have something like
/// them, with their key frames to the nearest frame. They are written only: a document is read from
/// the node's own settings.
std::vector<DocumentFilter> EffectFilters(const TimelineNode& node);

} // namespace nle

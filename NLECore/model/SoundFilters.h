// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/DocumentFilter.h"
#include "NLECore/scene/ClipSettings.h"
#include "NLECore/scene/Transition.h"

namespace nle {

class TimelineNode;

/// Filters that let other programs hear the gain, the volume curve, the fades, the balance and the
/// channels of \a node, to the nearest frame. They are written only: a document is read from the
/// node's own settings.
std::vector<DocumentFilter> SoundFilters(const TimelineNode& node);
/// The same for a mixer strip, but for its mute; \a isSilent where others play alone.
std::vector<DocumentFilter> StripFilters(const tagMixerParam& strip, bool isSilent);
/// The same for the frames \a range of a track, on which a sound comes or goes.
DocumentFilter FadeFilter(CrossFade fade, bool comes, const NLERange& range);

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/LoudnessMeter.h"
#include "NLECore/scene/Layer.h"

#include <functional>
#include <optional>

namespace nle {

/// What the effects of sound of \a layer hear, without its gains, fades and channels; \a before are
/// those that come first.
Snapshot HeardThrough(const Layer& layer, const std::vector<SharedParameters>& before);

/// Measures the sound of \a root in its range. Nothing when \a goesOn, which is told the percent
/// that are done, says no.
std::optional<Loudness> MeasureLoudness(const Snapshot& root,
                                        const std::function<bool(int percent)>& goesOn);

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/render/EffectKinds.h"

/// Effects that look at one pixel alone: the rows of the catalogue.
namespace nle {

EffectKind ExposureEffect();
EffectKind ContrastEffect();
EffectKind SaturationEffect();
EffectKind WhiteBalanceEffect();
EffectKind CurvesEffect();
EffectKind LookupEffect();
EffectKind ChromaKeyEffect();
EffectKind CropEffect();
EffectKind VignetteEffect();
EffectKind BlackAndWhiteEffect();

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/render/EffectKinds.h"

/// Effects that look at more than one pixel: the rows of the catalogue.
namespace nle {

EffectKind BlurEffect();
EffectKind SharpenEffect();
EffectKind MirrorEffect();
EffectKind NoiseReductionEffect();
EffectKind DropShadowEffect();

} // namespace nle

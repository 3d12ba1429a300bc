// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/EffectKinds.h"

#include "NLECore/render/ColorEffects_p.h"
#include "NLECore/render/SpatialEffects_p.h"
#include "NLECore/scene/FindNamed.h"

#include <algorithm>

namespace nle {

const std::vector<EffectKind>& EffectKinds()
{
    static const std::vector<EffectKind> kinds = {
        ExposureEffect(), ContrastEffect(), SaturationEffect(),     WhiteBalanceEffect(),
        CurvesEffect(),   LookupEffect(),   BlackAndWhiteEffect(),  VignetteEffect(),
        BlurEffect(),     SharpenEffect(),  NoiseReductionEffect(), ChromaKeyEffect(),
        CropEffect(),     MirrorEffect(),   DropShadowEffect()};
    return kinds;
}

const EffectKind* FindEffect(const QString& name)
{
    return FindNamed(EffectKinds(), name);
}

const EffectKind& KindOf(const ParameterValues& values)
{
    return *std::find_if(
        EffectKinds().begin(), EffectKinds().end(),
        [&values](const EffectKind& kind) { return &kind.declaration == &values.Declared(); });
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/render/EffectPicture.h"

namespace nle {

/// Blurs planes \a first to \a last of \a picture as a Gaussian does whose standard deviations are
/// \a across and \a down pixels. Beyond the sides the picture goes on as it is there.
void Soften(EffectPicture& picture, int first, int last, double across, double down,
            const Bands& bands);

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/render/EffectPicture.h"

namespace nle {

/// Planes \a first to \a last of \a picture, blurred as a Gaussian does whose standard deviations
/// are \a across and \a down pixels; the other planes are not filled. Beyond the sides the picture
/// goes on as it is there.
EffectPicture Softened(const EffectPicture& picture, int first, int last, double across,
                       double down, const Bands& bands);

/// Writes a row of \a width into \a wide, with \a reach more values on both sides, as it is there.
void WidenRow(const float* row, int width, int reach, float* wide);

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>

namespace nle {

/// The shadow that \a shape throws: its alpha, softened, in a colour. \a shape has 32 bits a pixel
/// and beside what shows there is room for what softening spreads, else that is cut off. The
/// standard deviations are in pixels and need not be whole. The result has 64 bits a pixel,
/// premultiplied.
QImage SoftShadow(const QImage& shape, double deviationX, double deviationY, QRgb color);

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/render/EffectKinds.h"

namespace nle {

/// A picture that may be larger than what it is the picture of.
struct DrawnPicture
{
    QImage image;
    QMargins margins; ///< pixels around the picture itself

    /// Without what lies around it.
    QImage Inner() const;
};

/// What the effects make of a picture.
struct EffectChain
{
    const std::vector<SharedParameters>& effects;
    double frame;  ///< of the clip, counted as its trim range is
    QPointF scale; ///< as in EffectFrame
    Bands bands;

    /// An image in another format than layers are drawn in becomes one of \a format first. Opaque
    /// ones stay opaque where no effect makes them transparent.
    DrawnPicture Apply(QImage image, QImage::Format format) const;
};

/// Whether one of the effects may make parts of an opaque picture transparent.
bool MakeTransparent(const std::vector<SharedParameters>& effects);

} // namespace nle

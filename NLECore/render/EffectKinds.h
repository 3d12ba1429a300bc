// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/render/EffectPicture.h"
#include "NLECore/scene/Parameters.h"

#include <QPointF>
#include <QRect>

#include <utility>
#include <vector>

namespace nle {

/// The picture that an effect works on, as it is drawn.
struct EffectFrame
{
    QRect inner;   ///< where the clip's own picture lies; other effects may have put more around it
    QPointF scale; ///< pixels that are drawn for one of the full size, across and down
    bool hasAlpha; ///< else alpha is 1 everywhere
    Bands bands;

    /// A size in pixels as it is drawn.
    double Drawn(double pixels) const { return pixels * (scale.x() + scale.y()) / 2; }
};

/// What an effect does to a row, any rows on any threads at a time.
using RowEffect = std::function<void(const EffectRow&)>;
/// Names and texts of a filter of MLT.
using MltTexts = std::vector<std::pair<QString, QString>>;

/// An effect: what it is called, what can be set, and one of two functions that draw it.
struct EffectKind
{
    Declaration declaration;
    /// Whether a picture without transparent parts may get some.
    bool makesTransparent = false;
    /// For effects that look at one pixel alone; an empty function where nothing changes.
    RowEffect (*makeRows)(const ParametersAt& values, const EffectFrame& frame) = nullptr;
    /// For all others. It may put another picture in place of \a picture, with other sides; then it
    /// moves the inner part of \a frame to where that lies.
    void (*draw)(const ParametersAt& values, EffectFrame& frame, EffectPicture& picture) = nullptr;
    /// What says the same, or nearly, to programs that read MLT: the service stands first. \a scale
    /// is as in EffectFrame. Null, or an empty result, where there is nothing like it.
    MltTexts (*mlt)(const ParametersAt& values, const QPointF& scale) = nullptr;
};

/// All effects, in the order of catalogues.
const std::vector<EffectKind>& EffectKinds();
/// The effect of a name; null for none.
const EffectKind* FindEffect(const QString& name);
/// The effect that has these values.
const EffectKind& KindOf(const ParameterValues& values);

} // namespace nle

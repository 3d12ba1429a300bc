// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "Host/Editor/Properties/PropertyField.h"

#include <QVector>

#include <functional>

struct INLETimeline;

/// Everything that \a node lets be set by INLEParameters, as fields: of an effect, a transition, a
/// title or an audio filter. Empty for other nodes.
///
/// \a clip is the node itself or the clip that carries it. Where a parameter has key frames, its
/// value is that at \a playHead, a frame of the project, and a change sets a key frame there.
QVector<PropertyField> ParameterFields(const NLEComPtr<INLETimeline>& node,
                                       const NLEComPtr<INLETimeline>& clip,
                                       const std::function<int()>& playHead);

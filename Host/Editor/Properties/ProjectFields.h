// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "Host/Editor/Properties/PropertyField.h"

#include <QVector>

struct INLETimeline;

/// What a whole project has, as fields.
namespace ProjectFields {

/// Size, rate and sound format. The rate is fixed as soon as there are clips: their places count
/// in it.
QVector<PropertyField> Format(const NLEComPtr<INLETimeline>& project);
/// How previews are drawn, bits of a colour, background.
QVector<PropertyField> Drawing(const NLEComPtr<INLETimeline>& project);
/// Levels that have clips, the lowest first.
QVector<int> MixedLevels(const NLEComPtr<INLETimeline>& project);
/// The mixer's strip of a level.
QVector<PropertyField> Strip(const NLEComPtr<INLETimeline>& project, int level);

} // namespace ProjectFields

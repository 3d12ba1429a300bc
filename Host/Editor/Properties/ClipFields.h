// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "Host/Editor/Properties/PropertyField.h"

#include <QVector>

struct INLETimeline;

/// What every clip has, as fields: each list is a section of the panel.
namespace ClipFields {

/// Where the picture stands, how large and how it is turned.
QVector<PropertyField> Placement(const NLEComPtr<INLETimeline>& clip);
/// How it is laid over what is below it.
QVector<PropertyField> Blending(const NLEComPtr<INLETimeline>& clip);
/// Volume, balance, fades and the like.
QVector<PropertyField> Sound(const NLEComPtr<INLETimeline>& clip);
/// The colour of a clip of one colour; empty for others.
QVector<PropertyField> Color(const NLEComPtr<INLETimeline>& clip);

} // namespace ClipFields

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEProperties.h"

#include <QString>
#include <QVector>

struct INLEMediaEncoder;
class PlayerMaterProvider;

/// The engine's ways to encode a film, which belong together under a name.
namespace EncodePresets {

struct Preset
{
    QString name;  ///< stable
    QString title; ///< for people, in their language
};

/// In the order of the engine; empty when it has none.
QVector<Preset> All(const NLEComPtr<INLEMediaEncoder>& encoder);
/// The settings of a preset in a new bag; null for a name that there is not.
NLEComPtr<INLEProperties> Settings(PlayerMaterProvider& provider,
                                   const NLEComPtr<INLEMediaEncoder>& encoder, const QString& name);
/// The usual suffix of files with \a settings, without a dot; empty when they name no container.
QString Suffix(const NLEComPtr<INLEMediaEncoder>& encoder,
               const NLEComPtr<INLEProperties>& settings);

} // namespace EncodePresets

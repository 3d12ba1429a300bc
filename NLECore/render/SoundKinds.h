// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/scene/Parameters.h"

#include <QByteArray>

#include <utility>
#include <vector>

namespace nle {

/// One of libavfilter's filters of sound, with options by name.
struct SoundFilter
{
    QByteArray name;
    std::vector<std::pair<QByteArray, QByteArray>> options;

    /// As libavfilter reads it.
    QByteArray Text() const;
};

/// An effect on the sound of a clip: what it is called, what can be set, and the filter that it is.
struct SoundKind
{
    Declaration declaration;
    SoundFilter (*filter)(const ParametersAt& values);
    /// Seconds that a sound goes on in what comes after it; null for less than a quarter of one.
    double (*tail)(const ParametersAt& values);
};

/// All of them, in the order of catalogues.
const std::vector<SoundKind>& SoundKinds();
/// The effect of a name; null for none.
const SoundKind* FindSound(const QString& name);
/// The effect that has these values; null where they are those of an effect on pictures.
const SoundKind* SoundOf(const ParameterValues& values);

} // namespace nle

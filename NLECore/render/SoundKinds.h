// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/AudioFilter.h"
#include "NLECore/scene/Parameters.h"

#include <vector>

namespace nle {

/// An effect on the sound of a clip: what it is called, what can be set, and the filter that it is.
struct SoundKind
{
    Declaration declaration;
    SoundFilter (*filter)(const ParametersAt& values);
    /// Seconds that a sound goes on in what comes after it; null for less than a quarter of one.
    double (*tail)(const ParametersAt& values);
};

/// Parameters of the effect that normalises loudness: what was measured, in LUFS, LU and dBTP.
namespace LoudnessParameter {
constexpr const char* kIntegrated = "integrated";
constexpr const char* kRange = "range";
constexpr const char* kTruePeak = "true-peak";
} // namespace LoudnessParameter

/// Whether these are the values of the effect that normalises loudness.
bool IsLoudness(const Declaration& declaration);

/// All of them, in the order of catalogues.
const std::vector<SoundKind>& SoundKinds();
/// The effect of a name; null for none.
const SoundKind* FindSound(const QString& name);
/// The effect that has these values; null where they are those of an effect on pictures.
const SoundKind* SoundOf(const ParameterValues& values);

} // namespace nle

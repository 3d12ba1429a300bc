// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>

namespace nle {

/// How sound gets another pitch at the same tempo.
enum class PitchMethod
{
    RubberBand, ///< by libavfilter's filter of that library
    Tempo ///< read faster or slower, and its tempo brought back, by filters that are always there
};

/// Rubber Band where this build of libavfilter has it. The first call writes to the log which it
/// is.
PitchMethod PitchMethodHere();

/// The chain of libavfilter's filters that raises sound of \a sampleRate by \a semitones, -24
/// to 24.
QByteArray PitchFilters(PitchMethod method, int semitones, int sampleRate);

} // namespace nle

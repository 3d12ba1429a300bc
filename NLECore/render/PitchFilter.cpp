// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/PitchFilter.h"

#include "NLECore/media/AudioFilter.h"
#include "NLECore/media/EngineLog.h"

#include <cmath>

namespace nle {

namespace {

constexpr const char* kRubberBand = "rubberband";
/// The slowest tempo that one filter makes.
constexpr double kSlowest = 0.5;

QByteArray Number(double value)
{
    return QByteArray::number(value, 'f', 12);
}

PitchMethod FindMethod()
{
    const bool hasRubberBand = AudioFilter::IsThere(kRubberBand);
    qCInfo(lcEngine, "pitch is changed by %s",
           hasRubberBand ? kRubberBand : "aresample and atempo");
    return hasRubberBand ? PitchMethod::RubberBand : PitchMethod::Tempo;
}

// Of sound that is played faster, at the sample rate that makes it so, the tempo is brought back.
QByteArray TempoFilters(double ratio, int sampleRate)
{
    const int played = int(std::lround(ratio * sampleRate));
    const double tempo = double(sampleRate) / played;
    const QByteArray once = ",atempo=";
    return "asetrate=" + QByteArray::number(played) +
           ",aresample=" + QByteArray::number(sampleRate) +
           (tempo < kSlowest ? (once + Number(std::sqrt(tempo))).repeated(2)
                             : once + Number(tempo));
}

} // namespace

PitchMethod PitchMethodHere()
{
    static const PitchMethod method = FindMethod();
    return method;
}

QByteArray PitchFilters(PitchMethod method, int semitones, int sampleRate)
{
    const double ratio = std::exp2(semitones / 12.0);
    return method == PitchMethod::RubberBand ? kRubberBand + ("=pitch=" + Number(ratio))
                                             : TempoFilters(ratio, sampleRate);
}

} // namespace nle

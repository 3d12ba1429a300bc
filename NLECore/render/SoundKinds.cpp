// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/SoundKinds.h"

#include "NLECore/media/LoudnessMeter.h"
#include "NLECore/scene/FindNamed.h"

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

QByteArray Text(double value)
{
    return QByteArray::number(value, 'f', 6);
}

/// A level in decibels as a factor.
double Factor(double decibels)
{
    constexpr double decade = 20;
    return std::pow(10, decibels / decade);
}

QByteArray FactorText(const ParametersAt& values, const char* name)
{
    return Text(Factor(values.Number(name)));
}

// Without key frames: what decides how far back a filter has to have heard, and what the filter
// does not take while it runs.
ParameterRow Row(NameRow names, NLEParameterUnit unit, double lowest, double highest, double preset)
{
    return NumberRow(names, unit, lowest, highest, preset).Constant();
}

/// Seconds that a dynamics filter needs to forget what it has heard.
double Release(const ParametersAt& values)
{
    constexpr double milliseconds = 1000;
    constexpr double times = 4;
    return times * (values.Number("attack") + values.Number("release")) / milliseconds;
}

SoundFilter Compressor(const ParametersAt& values)
{
    return {"acompressor",
            {{"threshold", FactorText(values, "threshold")},
             {"ratio", Text(values.Number("ratio"))},
             {"attack", Text(values.Number("attack"))},
             {"release", Text(values.Number("release"))},
             {"makeup", FactorText(values, "makeup")}}};
}

SoundFilter Limiter(const ParametersAt& values)
{
    return {"alimiter",
            {{"limit", FactorText(values, "limit")},
             {"attack", Text(values.Number("attack"))},
             {"release", Text(values.Number("release"))},
             {"level", "0"},
             {"latency", "1"}}};
}

SoundFilter Gate(const ParametersAt& values)
{
    return {"agate",
            {{"threshold", FactorText(values, "threshold")},
             {"range", Text(Factor(-values.Number("range")))},
             {"ratio", "100"},
             {"attack", Text(values.Number("attack"))},
             {"release", Text(values.Number("release"))}}};
}

/// An echo through taps of their own delays, in milliseconds, and factors.
SoundFilter Taps(const std::vector<std::pair<double, double>>& taps)
{
    QByteArray delays;
    QByteArray factors;
    for (const auto& [delay, factor] : taps) {
        const QByteArray bar = delays.isEmpty() ? "" : "|";
        delays += bar + Text(delay);
        factors += bar + Text(factor);
    }
    return {"aecho",
            {{"in_gain", "1"}, {"out_gain", "1"}, {"delays", delays}, {"decays", factors}}};
}

/// Below it an echo is not heard.
constexpr double kSilent = 0.001;

SoundFilter Echo(const ParametersAt& values)
{
    std::vector<std::pair<double, double>> taps;
    double factor = Factor(values.Number("level"));
    for (int repeat = 1; repeat <= values.Whole("repeats"); ++repeat) {
        taps.emplace_back(values.Number("delay") * repeat, std::max(factor, kSilent));
        factor *= Factor(values.Number("level"));
    }
    return Taps(taps);
}

double EchoTail(const ParametersAt& values)
{
    constexpr double milliseconds = 1000;
    return values.Number("delay") * values.Number("repeats") / milliseconds;
}

/// Reflections, closest to each other at first, that fall by 60 dB within the time.
SoundFilter Reverb(const ParametersAt& values)
{
    constexpr int count = 48;
    constexpr double fall = 60;
    constexpr double milliseconds = 1000;
    // A step that shares no rhythm with itself.
    constexpr double irregular = 0.618033988749895;
    std::vector<std::pair<double, double>> taps;
    double energy = 0;
    for (int i = 0; i < count; ++i) {
        const double jitter = (i + 1) * irregular;
        const double share = std::pow((i + 0.8 * (jitter - std::floor(jitter))) / count, 1.5);
        const double factor = Factor(-fall * share);
        energy += factor * factor;
        taps.emplace_back(values.Number("delay") + values.Number("time") * share * milliseconds,
                          factor);
    }
    // All of them together are as loud as the mix says.
    const double mix = values.Number("mix") / std::sqrt(energy);
    for (auto& [delay, factor] : taps)
        factor = std::clamp(factor * mix, 1e-5, 1.0);
    return Taps(taps);
}

double ReverbTail(const ParametersAt& values)
{
    return values.Number("time") + 0.25;
}

SoundFilter Pass(const char* name, const ParametersAt& values)
{
    return {name,
            {{"frequency", Text(values.Number("frequency"))},
             {"width_type", "q"},
             {"width", Text(values.Number("resonance"))}}};
}

SoundFilter HighPass(const ParametersAt& values)
{
    return Pass("highpass", values);
}

SoundFilter LowPass(const ParametersAt& values)
{
    return Pass("lowpass", values);
}

std::vector<ParameterRow> PassRows(double frequency)
{
    return {NumberRow({"frequency", QT_TRANSLATE_NOOP("NLECore", "Frequency")}, NLEUnit_Hertz, 20,
                      20000, frequency),
            NumberRow({"resonance", QT_TRANSLATE_NOOP("NLECore", "Resonance")}, NLEUnit_None, 0.1,
                      10, 0.707)};
}

SoundFilter DeEsser(const ParametersAt& values)
{
    return {"deesser",
            {{"i", Text(values.Number("amount"))},
             {"m", Text(1 - values.Number("depth"))},
             {"f", Text(values.Number("frequency"))}}};
}

/// The gain that brings what was measured to the target, and no peak over the ceiling.
SoundFilter Normalisation(const ParametersAt& values)
{
    const double loudness = values.Number(LoudnessParameter::kIntegrated);
    const double peak = values.Number(LoudnessParameter::kTruePeak);
    const double gain = loudness <= Loudness::kSilent ? 0
                                                      : std::min(values.Number("target") - loudness,
                                                                 values.Number("ceiling") - peak);
    return {"volume", {{"volume", Text(Factor(gain))}}};
}

std::vector<ParameterRow> NormalisationRows()
{
    return {
        Row({"target", QT_TRANSLATE_NOOP("NLECore", "Target loudness")}, NLEUnit_Decibels, -70, -5,
            -23),
        Row({"ceiling", QT_TRANSLATE_NOOP("NLECore", "Highest true peak")}, NLEUnit_Decibels, -20,
            0, -1),
        Row({LoudnessParameter::kIntegrated, QT_TRANSLATE_NOOP("NLECore", "Measured loudness")},
            NLEUnit_Decibels, Loudness::kSilent, 40, Loudness::kSilent),
        Row({LoudnessParameter::kRange, QT_TRANSLATE_NOOP("NLECore", "Measured loudness range")},
            NLEUnit_Decibels, 0, 120, 0),
        Row({LoudnessParameter::kTruePeak, QT_TRANSLATE_NOOP("NLECore", "Measured true peak")},
            NLEUnit_Decibels, Loudness::kNoPeak, 40, Loudness::kNoPeak)};
}

} // namespace

const std::vector<SoundKind>& SoundKinds()
{
    const auto attack = [](double preset) {
        return Row({"attack", QT_TRANSLATE_NOOP("NLECore", "Attack")}, NLEUnit_Milliseconds, 0.1,
                   80, preset);
    };
    const auto release = [](double preset) {
        return Row({"release", QT_TRANSLATE_NOOP("NLECore", "Release")}, NLEUnit_Milliseconds, 1,
                   1000, preset);
    };
    const auto threshold = [](double lowest, double preset) {
        return NumberRow({"threshold", QT_TRANSLATE_NOOP("NLECore", "Threshold")}, NLEUnit_Decibels,
                         lowest, 0, preset);
    };
    const auto share = [](NameRow names, double preset) {
        return Row(names, NLEUnit_Share, 0, 1, preset);
    };
    static const std::vector<SoundKind> kinds = {
        {{{"compressor", QT_TRANSLATE_NOOP("NLECore", "Compressor")},
          {threshold(-60, -18),
           NumberRow({"ratio", QT_TRANSLATE_NOOP("NLECore", "Ratio")}, NLEUnit_None, 1, 20, 3),
           attack(20), release(250),
           NumberRow({"makeup", QT_TRANSLATE_NOOP("NLECore", "Make-up gain")}, NLEUnit_Decibels, 0,
                     36, 0)}},
         Compressor,
         Release},
        {{{"limiter", QT_TRANSLATE_NOOP("NLECore", "Limiter")},
          {NumberRow({"limit", QT_TRANSLATE_NOOP("NLECore", "Limit")}, NLEUnit_Decibels, -24, 0,
                     -1),
           attack(5), release(50)}},
         Limiter,
         Release},
        {{{"gate", QT_TRANSLATE_NOOP("NLECore", "Noise gate")},
          {threshold(-90, -40),
           NumberRow({"range", QT_TRANSLATE_NOOP("NLECore", "Reduction")}, NLEUnit_Decibels, 0, 90,
                     24),
           attack(20), release(250)}},
         Gate,
         Release},
        {{{"reverb", QT_TRANSLATE_NOOP("NLECore", "Reverb")},
          {Row({"time", QT_TRANSLATE_NOOP("NLECore", "Time")}, NLEUnit_Seconds, 0.1, 5, 1.2),
           Row({"delay", QT_TRANSLATE_NOOP("NLECore", "First reflection")}, NLEUnit_Milliseconds, 1,
               200, 20),
           share({"mix", QT_TRANSLATE_NOOP("NLECore", "Mix")}, 0.3)}},
         Reverb,
         ReverbTail},
        {{{"echo", QT_TRANSLATE_NOOP("NLECore", "Echo")},
          {Row({"delay", QT_TRANSLATE_NOOP("NLECore", "Delay")}, NLEUnit_Milliseconds, 1, 2000,
               350),
           Row({"level", QT_TRANSLATE_NOOP("NLECore", "Level")}, NLEUnit_Decibels, -60, -1, -8),
           WholeRow({"repeats", QT_TRANSLATE_NOOP("NLECore", "Repeats")}, NLEUnit_None, 1, 10, 3)
               .Constant()}},
         Echo,
         EchoTail},
        {{{"high-pass", QT_TRANSLATE_NOOP("NLECore", "High pass")}, PassRows(100)},
         HighPass,
         nullptr},
        {{{"low-pass", QT_TRANSLATE_NOOP("NLECore", "Low pass")}, PassRows(8000)},
         LowPass,
         nullptr},
        {{{"de-esser", QT_TRANSLATE_NOOP("NLECore", "De-esser")},
          {share({"amount", QT_TRANSLATE_NOOP("NLECore", "Amount")}, 0.5),
           share({"depth", QT_TRANSLATE_NOOP("NLECore", "Depth")}, 0.5),
           share({"frequency", QT_TRANSLATE_NOOP("NLECore", "Frequency")}, 0.5)}},
         DeEsser,
         nullptr},
        {{{"loudness", QT_TRANSLATE_NOOP("NLECore", "Loudness normalisation")},
          NormalisationRows()},
         Normalisation,
         nullptr}};
    return kinds;
}

bool IsLoudness(const Declaration& declaration)
{
    return declaration.IndexOf(QLatin1String(LoudnessParameter::kIntegrated)) >= 0;
}

const SoundKind* FindSound(const QString& name)
{
    return FindNamed(SoundKinds(), name);
}

const SoundKind* SoundOf(const ParameterValues& values)
{
    const auto found =
        std::find_if(SoundKinds().begin(), SoundKinds().end(), [&values](const SoundKind& kind) {
            return &kind.declaration == &values.Declared();
        });
    return found == SoundKinds().end() ? nullptr : &*found;
}

} // namespace nle

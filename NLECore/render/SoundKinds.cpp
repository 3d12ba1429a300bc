// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/SoundKinds.h"

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

// Without key frames: filters of sound remember what they have heard.
ParameterRow Row(NameRow names, NLEParameterUnit unit, double lowest, double highest, double preset)
{
    return NumberRow(names, unit, lowest, highest, preset).Constant();
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
    return {Row({"frequency", "Frequency"}, NLEUnit_Hertz, 20, 20000, frequency),
            Row({"resonance", "Resonance"}, NLEUnit_None, 0.1, 10, 0.707)};
}

} // namespace

QByteArray SoundFilter::Text() const
{
    QByteArray text = name;
    char separator = '=';
    for (const auto& [option, value] : options) {
        text += separator + option + '=' + value;
        separator = ':';
    }
    return text;
}

const std::vector<SoundKind>& SoundKinds()
{
    const auto attack = [](double preset) {
        return Row({"attack", "Attack"}, NLEUnit_Milliseconds, 0.1, 80, preset);
    };
    const auto release = [](double preset) {
        return Row({"release", "Release"}, NLEUnit_Milliseconds, 1, 1000, preset);
    };
    static const std::vector<SoundKind> kinds = {
        {{{"compressor", "Compressor"},
          {Row({"threshold", "Threshold"}, NLEUnit_Decibels, -60, 0, -18),
           Row({"ratio", "Ratio"}, NLEUnit_None, 1, 20, 3), attack(20), release(250),
           Row({"makeup", "Make-up gain"}, NLEUnit_Decibels, 0, 36, 0)}},
         Compressor,
         nullptr},
        {{{"limiter", "Limiter"},
          {Row({"limit", "Limit"}, NLEUnit_Decibels, -24, 0, -1), attack(5), release(50)}},
         Limiter,
         nullptr},
        {{{"gate", "Noise gate"},
          {Row({"threshold", "Threshold"}, NLEUnit_Decibels, -90, 0, -40),
           Row({"range", "Reduction"}, NLEUnit_Decibels, 0, 90, 24), attack(20), release(250)}},
         Gate,
         nullptr},
        {{{"reverb", "Reverb"},
          {Row({"time", "Time"}, NLEUnit_Seconds, 0.1, 5, 1.2),
           Row({"delay", "First reflection"}, NLEUnit_Milliseconds, 1, 200, 20),
           Row({"mix", "Mix"}, NLEUnit_Share, 0, 1, 0.3)}},
         Reverb,
         ReverbTail},
        {{{"echo", "Echo"},
          {Row({"delay", "Delay"}, NLEUnit_Milliseconds, 1, 2000, 350),
           Row({"level", "Level"}, NLEUnit_Decibels, -60, -1, -8),
           WholeRow({"repeats", "Repeats"}, NLEUnit_None, 1, 10, 3).Constant()}},
         Echo,
         EchoTail},
        {{{"high-pass", "High pass"}, PassRows(100)}, HighPass, nullptr},
        {{{"low-pass", "Low pass"}, PassRows(8000)}, LowPass, nullptr}};
    return kinds;
}

const SoundKind* FindSound(const QString& name)
{
    const auto found =
        std::find_if(SoundKinds().begin(), SoundKinds().end(), [&name](const SoundKind& kind) {
            return name == QLatin1String(kind.declaration.names.name);
        });
    return found == SoundKinds().end() ? nullptr : &*found;
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

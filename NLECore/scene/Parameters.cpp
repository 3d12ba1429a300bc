// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/scene/Parameters.h"

#include "Com/WideText.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace nle {

namespace {

constexpr double kLargestColor = 0xFFFFFFFF;

/// Share of the way that has been gone when \a share of the time has passed.
double Eased(double share, NLEParameterInterpolation interpolation)
{
    switch (interpolation) {
    case NLEInterpolation_Hold:
        return 0;
    case NLEInterpolation_Linear:
        return share;
    case NLEInterpolation_Smooth:
        return share * share * (3 - 2 * share);
    }
    return share;
}

double MixColors(double a, double b, double share)
{
    const auto mix = [share](int from, int to) {
        return int(std::lround(from + (to - from) * share));
    };
    const auto from = QRgb(a);
    const auto to = QRgb(b);
    return qRgba(mix(qRed(from), qRed(to)), mix(qGreen(from), qGreen(to)),
                 mix(qBlue(from), qBlue(to)), mix(qAlpha(from), qAlpha(to)));
}

double Mix(const ParameterRow& row, double a, double b, double share)
{
    if (a == b)
        return a;
    if (row.kind == NLEParameter_Color)
        return MixColors(a, b, share);
    const double mixed = std::clamp(a * (1 - share) + b * share, row.lowest, row.highest);
    return row.kind == NLEParameter_Number ? mixed : std::round(mixed);
}

bool IsBefore(const ParameterKey& key, double time)
{
    return key.time < time;
}

ParameterRow PlainRow(NameRow names, NLEParameterKind kind)
{
    ParameterRow row;
    row.names = names;
    row.kind = kind;
    return row;
}

} // namespace

bool ParameterRow::Takes(double value) const
{
    const bool isWhole = kind == NLEParameter_Number || value == std::round(value);
    return !IsText() && isWhole && IsWithin(value, lowest, highest);
}

NLEParameterRecord ParameterRow::Record() const
{
    return {kind,    unit,  std::int32_t(canAnimate), std::int32_t(choices.size()), lowest,
            highest, preset};
}

ParameterRow ParameterRow::Constant() const
{
    ParameterRow row = *this;
    row.canAnimate = false;
    return row;
}

ParameterRow NumberRow(NameRow names, NLEParameterUnit unit, double lowest, double highest,
                       double preset)
{
    ParameterRow row = PlainRow(names, NLEParameter_Number);
    row.unit = unit;
    row.lowest = lowest;
    row.highest = highest;
    row.preset = preset;
    row.canAnimate = true;
    return row;
}

ParameterRow WholeRow(NameRow names, NLEParameterUnit unit, int lowest, int highest, int preset)
{
    ParameterRow row = NumberRow(names, unit, lowest, highest, preset);
    row.kind = NLEParameter_Whole;
    return row;
}

ParameterRow SwitchRow(NameRow names, bool preset)
{
    ParameterRow row = PlainRow(names, NLEParameter_Switch);
    row.highest = 1;
    row.preset = preset ? 1 : 0;
    return row;
}

ParameterRow ChoiceRow(NameRow names, std::vector<NameRow> choices, int preset)
{
    ParameterRow row = PlainRow(names, NLEParameter_Choice);
    row.highest = double(choices.size()) - 1;
    row.preset = preset;
    row.choices = std::move(choices);
    return row;
}

ParameterRow ColorRow(NameRow names, std::uint32_t preset)
{
    ParameterRow row = PlainRow(names, NLEParameter_Color);
    row.highest = kLargestColor;
    row.preset = preset;
    row.canAnimate = true;
    return row;
}

ParameterRow TextRow(NameRow names, std::wstring preset)
{
    ParameterRow row = PlainRow(names, NLEParameter_Text);
    row.presetText = std::move(preset);
    return row;
}

ParameterRow FileRow(NameRow names, bool (*accepts)(const std::wstring& path))
{
    ParameterRow row = PlainRow(names, NLEParameter_File);
    row.accepts = accepts;
    return row;
}

int Declaration::IndexOf(const QString& name) const
{
    const auto found =
        std::find_if(parameters.begin(), parameters.end(), [&name](const ParameterRow& row) {
            return name == QLatin1String(row.names.name);
        });
    return found == parameters.end() ? -1 : int(found - parameters.begin());
}

QString Translated(const char* title)
{
    return QCoreApplication::translate("NLECore", title);
}

ParameterValues::ParameterValues(const Declaration& declaration) : m_declaration(&declaration)
{
    for (const ParameterRow& row : declaration.parameters)
        m_values.push_back({row.preset, row.presetText, {}});
}

bool ParameterValues::SetNumber(int index, double value)
{
    if (!Row(index).Takes(value))
        return false;
    At(index).number = value;
    return true;
}

bool ParameterValues::SetText(int index, std::wstring text)
{
    if (!Row(index).IsText())
        return false;
    At(index).text = std::move(text);
    return true;
}

int ParameterValues::PutKey(int index, const ParameterKey& key)
{
    const ParameterRow& row = Row(index);
    if (!row.canAnimate || !row.Takes(key.value) || !std::isfinite(key.time) ||
        !IsWithin(key.interpolation, int(NLEInterpolation_Hold), int(NLEInterpolation_Smooth)))
        return -1;
    std::vector<ParameterKey>& keys = At(index).keys;
    const auto place = std::lower_bound(keys.begin(), keys.end(), key.time, IsBefore);
    const int at = int(place - keys.begin());
    if (place != keys.end() && place->time == key.time)
        *place = key;
    else
        keys.insert(place, key);
    return at;
}

bool ParameterValues::EraseKey(int index, int place)
{
    std::vector<ParameterKey>& keys = At(index).keys;
    if (place < 0 || place >= int(keys.size()))
        return false;
    keys.erase(keys.begin() + place);
    return true;
}

bool ParameterValues::IsAnimated() const
{
    return std::any_of(m_values.begin(), m_values.end(),
                       [](const Value& value) { return !value.keys.empty(); });
}

double ParameterValues::NumberAtTime(int index, double time) const
{
    const std::vector<ParameterKey>& keys = At(index).keys;
    if (keys.empty())
        return At(index).number;
    const auto after = std::lower_bound(keys.begin(), keys.end(), time, IsBefore);
    if (after == keys.end())
        return keys.back().value;
    if (after == keys.begin() || after->time == time)
        return after->value;
    const ParameterKey& before = *(after - 1);
    // Halves: the distance of two times may be more than a number holds.
    const double share = (time / 2 - before.time / 2) / (after->time / 2 - before.time / 2);
    return Mix(Row(index), before.value, after->value, Eased(share, before.interpolation));
}

void ParameterValues::FollowAxis(const KeyFrameAxis& axis)
{
    if (axis.length == 0 || axis == m_axis)
        return;
    if (m_axis.length > 0) {
        for (Value& value : m_values) {
            for (ParameterKey& key : value.keys)
                key.time = MapTime(key.time, m_axis, axis);
        }
    }
    m_axis = axis;
}

void ParameterValues::RescaleAxis(double factor)
{
    m_axis = {m_axis.start * factor, m_axis.length * factor};
}

bool operator==(const ParameterValues& a, const ParameterValues& b)
{
    const auto same = [](const ParameterValues::Value& one, const ParameterValues::Value& other) {
        return one.number == other.number && one.text == other.text && one.keys == other.keys;
    };
    return a.m_declaration == b.m_declaration && a.m_axis == b.m_axis &&
           std::equal(a.m_values.begin(), a.m_values.end(), b.m_values.begin(), b.m_values.end(),
                      same);
}

double ParametersAt::Number(const char* name) const
{
    return m_values.NumberAtFrame(IndexOf(name), m_frame);
}

QString ParametersAt::Text(const char* name) const
{
    return FromWide(m_values.Text(IndexOf(name)));
}

int ParametersAt::IndexOf(const char* name) const
{
    // Asked for with every frame, so no text is made of the name.
    const std::vector<ParameterRow>& rows = m_values.Declared().parameters;
    const auto found = std::find_if(rows.begin(), rows.end(), [name](const ParameterRow& row) {
        return std::strcmp(row.names.name, name) == 0;
    });
    Q_ASSERT(found != rows.end());
    return int(found - rows.begin());
}

} // namespace nle

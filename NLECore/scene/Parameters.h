// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEEffects.h"
#include "NLECore/scene/KeyFrameList.h"

#include <QColor>
#include <QString>

#include <memory>
#include <string>
#include <vector>

/// Parameters of what can be made by name: effects, transitions, titles, audio filters. Each kind
/// is one Declaration, a row in a table that lives as long as the process; ParameterValues holds
/// the values of one object, ParametersAt what applies at one frame.
namespace nle {

/// A choice of a parameter, or whatever else has a name for documents and one for people.
struct NameRow
{
    const char* name;  ///< short, English, part of documents
    const char* title; ///< English; Translated() gives it to people
};

/// One parameter as it is declared. Made by the functions below.
struct ParameterRow
{
    NameRow names;
    NLEParameterKind kind = NLEParameter_Number;
    NLEParameterUnit unit = NLEUnit_None;
    double lowest = 0;
    double highest = 0;
    double preset = 0;
    bool canAnimate = false;
    std::vector<NameRow> choices;
    std::wstring presetText;
    /// Whether a host may set this text; null: any.
    bool (*accepts)(const std::wstring& text) = nullptr;

    bool IsText() const { return kind == NLEParameter_Text || kind == NLEParameter_File; }
    /// Whether \a value is a number that the parameter takes.
    bool Takes(double value) const;
    NLEParameterRecord Record() const;
    /// The same parameter, without key frames.
    ParameterRow Constant() const;
};

ParameterRow NumberRow(NameRow names, NLEParameterUnit unit, double lowest, double highest,
                       double preset);
ParameterRow WholeRow(NameRow names, NLEParameterUnit unit, int lowest, int highest, int preset);
ParameterRow SwitchRow(NameRow names, bool preset);
/// The first choice is 0.
ParameterRow ChoiceRow(NameRow names, std::vector<NameRow> choices, int preset);
ParameterRow ColorRow(NameRow names, std::uint32_t preset);
ParameterRow TextRow(NameRow names, std::wstring preset);
ParameterRow FileRow(NameRow names, bool (*accepts)(const std::wstring& path));

/// What can be made by one name, and its parameters.
struct Declaration
{
    NameRow names;
    std::vector<ParameterRow> parameters;

    /// -1 for a name that no parameter has.
    int IndexOf(const QString& name) const;
};

/// \a title in the language of the application, context "NLECore".
QString Translated(const char* title);

/// One key frame of a parameter, on the axis of its values.
struct ParameterKey
{
    double time;
    double value;
    NLEParameterInterpolation interpolation;

    friend bool operator==(const ParameterKey& a, const ParameterKey& b)
    {
        return a.time == b.time && a.value == b.value && a.interpolation == b.interpolation;
    }
};

/// The values of one object. What is out of range never gets in. Indexes are those of the
/// declaration's parameters and have to be there.
class ParameterValues
{
public:
    /// All presets. \a declaration outlives the object.
    explicit ParameterValues(const Declaration& declaration);

    const Declaration& Declared() const { return *m_declaration; }
    const ParameterRow& Row(int index) const
    {
        return m_declaration->parameters[std::size_t(index)];
    }

    /// The value that holds where there are no key frames.
    double Number(int index) const { return At(index).number; }
    /// False, and nothing changed, for what the parameter does not take.
    bool SetNumber(int index, double value);
    const std::wstring& Text(int index) const { return At(index).text; }
    /// False for a number. Whether the text is one to be accepted is not asked.
    bool SetText(int index, std::wstring text);

    /// Sorted by time, no two at one time.
    const std::vector<ParameterKey>& Keys(int index) const { return At(index).keys; }
    /// Adds a key frame or replaces the one at the same time and gives its place; -1, and nothing
    /// changed, for what the parameter does not take.
    int PutKey(int index, const ParameterKey& key);
    /// False when there is no such key frame.
    bool EraseKey(int index, int place);
    bool IsAnimated() const;

    /// The value at a time of the axis.
    double NumberAtTime(int index, double time) const;
    /// The value at a frame of the clip, counted as its trim range is.
    double NumberAtFrame(int index, double frame) const
    {
        return NumberAtTime(index, m_axis.TimeOf(frame));
    }

    /// What the times count in; empty until a clip has given one.
    const KeyFrameAxis& Axis() const { return m_axis; }
    /// The times count in \a axis from now on, and stay as they are: so they change their frames.
    void SetAxis(const KeyFrameAxis& axis) { m_axis = axis; }
    /// The times count in \a axis from now on, and change so that they keep their frames. Nothing
    /// happens for an empty axis.
    void FollowAxis(const KeyFrameAxis& axis);
    /// The same material is counted in \a factor times as many frames from now on.
    void RescaleAxis(double factor);

    friend bool operator==(const ParameterValues& a, const ParameterValues& b);

private:
    struct Value
    {
        double number;
        std::wstring text;
        std::vector<ParameterKey> keys;
    };

    const Value& At(int index) const { return m_values[std::size_t(index)]; }
    Value& At(int index) { return m_values[std::size_t(index)]; }

    const Declaration* m_declaration;
    std::vector<Value> m_values;
    KeyFrameAxis m_axis;
};

/// Values of a node as a layer holds them: immutable.
using SharedParameters = std::shared_ptr<const ParameterValues>;

/// The values that apply at one frame, by name. A name that is not declared is a mistake of the
/// program.
class ParametersAt
{
public:
    /// \a frame counts as the clip's trim range does. \a values outlives the object.
    ParametersAt(const ParameterValues& values, double frame) : m_values(values), m_frame(frame) {}

    double Number(const char* name) const;
    int Whole(const char* name) const { return int(Number(name)); }
    bool Switch(const char* name) const { return Number(name) != 0; }
    QRgb Color(const char* name) const { return QRgb(Number(name)); }
    /// Of a text and of a file.
    QString Text(const char* name) const;

private:
    int IndexOf(const char* name) const;

    const ParameterValues& m_values;
    const double m_frame;
};

} // namespace nle

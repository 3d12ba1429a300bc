// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/ParameterFields.h"

#include "EngineApi/INLETimeline.h"
#include "Host/Editor/Properties/ParameterKeys.h"
#include "Host/EngineText.h"

#include <QCoreApplication>

namespace {

constexpr int kLongestText = 16384; // characters
constexpr double kPercent = 100;

struct Unit
{
    int unit;
    double factor;
    const char* suffix;
};
constexpr Unit kUnits[] = {
    {NLEUnit_None, 1, ""},
    {NLEUnit_Share, kPercent, QT_TRANSLATE_NOOP("ParameterFields", " %")},
    {NLEUnit_Degrees, 1, QT_TRANSLATE_NOOP("ParameterFields", "°")},
    {NLEUnit_Pixels, 1, QT_TRANSLATE_NOOP("ParameterFields", " px")},
    {NLEUnit_Stops, 1, QT_TRANSLATE_NOOP("ParameterFields", " EV")},
    {NLEUnit_Decibels, 1, QT_TRANSLATE_NOOP("ParameterFields", " dB")},
    {NLEUnit_Frames, 1, QT_TRANSLATE_NOOP("ParameterFields", " fr")},
    {NLEUnit_Seconds, 1, QT_TRANSLATE_NOOP("ParameterFields", " s")},
    {NLEUnit_Hertz, 1, QT_TRANSLATE_NOOP("ParameterFields", " Hz")},
    {NLEUnit_Kelvin, 1, QT_TRANSLATE_NOOP("ParameterFields", " K")},
    {NLEUnit_Milliseconds, 1, QT_TRANSLATE_NOOP("ParameterFields", " ms")},
};

void SetUnit(PropertyField& field, int unit)
{
    for (const Unit& known : kUnits) {
        if (known.unit != unit || !*known.suffix)
            continue;
        field.factor = known.factor;
        field.suffix = QCoreApplication::translate("ParameterFields", known.suffix);
    }
}

bool IsText(int kind)
{
    return kind == NLEParameter_Text || kind == NLEParameter_File;
}

/// One parameter of a node: what its functions need.
struct Source
{
    NLEComPtr<INLEParameters> parameters;
    QString name;
    std::function<int()> playHead;
};

void SetTextAccess(PropertyField& field, const Source& source)
{
    const std::wstring name = source.name.toStdWString();
    const auto parameters = source.parameters;
    SetAccess(
        field,
        [parameters, name] {
            return EngineText<kLongestText>([&](wchar_t* text, int capacity) {
                return parameters->GetText(name.c_str(), text, capacity);
            });
        },
        [parameters, name](const QVariant& value) {
            return SUCCEEDED(
                parameters->SetText(name.c_str(), value.toString().toStdWString().c_str()));
        });
}

void SetNumberAccess(PropertyField& field, const Source& source)
{
    const std::wstring name = source.name.toStdWString();
    const auto parameters = source.parameters;
    SetAccess(
        field,
        [parameters, name] {
            double number = 0;
            parameters->GetNumber(name.c_str(), &number);
            return number;
        },
        [parameters, name](const QVariant& value) {
            return SUCCEEDED(parameters->SetNumber(name.c_str(), value.toDouble()));
        });
}

/// Key frames decide over the value where there are some.
void SetAnimatedAccess(PropertyField& field, const Source& source)
{
    field.value = [keys = field.keys, plain = field.value, playHead = source.playHead] {
        return keys->IsAnimated() ? QVariant(keys->ValueAt(keys->Nearest(playHead()))) : plain();
    };
    field.change = [keys = field.keys, plain = field.change,
                    playHead = source.playHead](const QVariant& value) {
        return keys->IsAnimated() ? keys->Put(keys->Nearest(playHead()), value.toDouble())
                                  : plain(value);
    };
}

QStringList Choices(INLEParameters& parameters, int index, int count)
{
    QStringList choices;
    for (int choice = 0; choice < count; ++choice)
        choices += EngineText([&](wchar_t* title, int capacity) {
            return parameters.GetChoiceTitle(index, choice, title, capacity);
        });
    return choices;
}

PropertyField Describe(INLEParameters& parameters, int index, const NLEParameterRecord& record)
{
    PropertyField field;
    field.title = EngineText([&](wchar_t* title, int capacity) {
        return parameters.GetParameterTitle(index, title, capacity);
    });
    field.kind = record.kind;
    field.lowest = record.lowest;
    field.highest = record.highest;
    if (!IsText(record.kind))
        field.preset = record.preset;
    field.choices = Choices(parameters, index, record.choiceCount);
    SetUnit(field, record.unit);
    return field;
}

PropertyField MakeField(const NLEComPtr<INLETimeline>& clip, int index, Source source)
{
    NLEParameterRecord record = {};
    source.name = EngineText([&](wchar_t* name, int capacity) {
        return source.parameters->GetParameter(index, &record, name, capacity);
    });
    PropertyField field = Describe(*source.parameters, index, record);
    field.isFont = source.name == "font";
    if (field.isFont || record.kind == NLEParameter_File)
        field.preset = QString(); // none, and the system's
    if (IsText(record.kind)) {
        SetTextAccess(field, source);
        return field;
    }
    SetNumberAccess(field, source);
    if (record.canAnimate == 0)
        return field;
    field.keys = std::make_shared<ParameterKeys>(source.parameters, source.name, clip);
    SetAnimatedAccess(field, source);
    return field;
}

} // namespace

QVector<PropertyField> ParameterFields(const NLEComPtr<INLETimeline>& node,
                                       const NLEComPtr<INLETimeline>& clip,
                                       const std::function<int()>& playHead)
{
    QVector<PropertyField> fields;
    const auto parameters = node.query<INLEParameters>();
    int count = 0;
    if (!parameters || parameters->GetParameterCount(&count) != S_OK)
        return fields;
    for (int index = 0; index < count; ++index)
        fields.append(MakeField(clip, index, {parameters, {}, playHead}));
    return fields;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/ParameterText.h"

#include "Com/WideText.h"
#include "NLECore/model/DocumentText.h"
#include "NLECore/scene/FrameMath.h"

#include <QStringList>

namespace nle {

namespace {

/// Stands in the place of a parameter's name; none is called so.
const QString kAxisName = QStringLiteral("key-frame-axis");

QString Number(double value)
{
    return QString::number(value, 'g', 17);
}

QString NumberText(double number, const std::vector<ParameterKey>& keys)
{
    QStringList texts = {Number(number)};
    for (const ParameterKey& key : keys)
        texts << Number(key.time) + QLatin1Char(' ') + Number(key.value) + QLatin1Char(' ') +
                     QString::number(key.interpolation);
    return texts.join(QLatin1Char(';'));
}

/// Numbers with blanks between them; empty when one of them is none.
std::vector<double> Numbers(const QString& text)
{
    std::vector<double> numbers;
    for (const QString& part : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        bool ok = false;
        numbers.push_back(part.toDouble(&ok));
        if (!ok)
            return {};
    }
    return numbers;
}

void ReadNumber(const QString& text, int index, ParameterValues& values)
{
    QStringList parts = text.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    const std::vector<double> whole =
        parts.isEmpty() ? std::vector<double>() : Numbers(parts.takeFirst());
    if (whole.size() == 1)
        values.SetNumber(index, whole.front());
    for (const QString& part : parts) {
        const std::vector<double> key = Numbers(part);
        if (key.size() == 3)
            values.PutKey(index, {key[0], key[1],
                                  static_cast<NLEParameterInterpolation>(ClampToInt(key[2]))});
    }
}

} // namespace

void AddParameterTexts(const ParameterValues& values, const QString& prefix, const QDir& folder,
                       DocumentTexts& texts)
{
    if (values.IsAnimated())
        texts.emplace_back(prefix + kAxisName, Number(values.Axis().start) + QLatin1Char(' ') +
                                                   Number(values.Axis().length));
    int index = 0;
    for (const ParameterRow& row : values.Declared().parameters) {
        const QString name = prefix + QLatin1String(row.names.name);
        const std::wstring& text = values.Text(index);
        if (row.kind == NLEParameter_File && text != row.presetText)
            texts.emplace_back(name,
                               text.empty() ? QString() : DocumentPath(FromWide(text), folder));
        else if (row.IsText() && text != row.presetText)
            texts.emplace_back(name, FromWide(text));
        else if (values.Number(index) != row.preset || !values.Keys(index).empty())
            texts.emplace_back(name, NumberText(values.Number(index), values.Keys(index)));
        ++index;
    }
}

void ReadParameterTexts(const DocumentFields& properties, const QString& prefix,
                        const FindMedia& media, ParameterValues& values)
{
    const std::vector<double> axis = Numbers(properties.value(prefix + kAxisName));
    if (axis.size() == 2 && IsFinite(axis[0]) && IsFinite(axis[1]))
        values.SetAxis({axis[0], axis[1]});
    int index = 0;
    for (const ParameterRow& row : values.Declared().parameters) {
        const auto found = properties.constFind(prefix + QLatin1String(row.names.name));
        if (found != properties.constEnd()) {
            if (!row.IsText())
                ReadNumber(*found, index, values);
            else if (row.kind == NLEParameter_File && media && !found->isEmpty())
                values.SetText(index, ToWide(media(*found)->path));
            else
                values.SetText(index, ToWide(*found));
        }
        ++index;
    }
}

} // namespace nle

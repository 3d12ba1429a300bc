// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/PropertyEditor.h"

#include "Host/Editor/Properties/TextEditors.h"
#include "Host/Widgets/ColorButton.h"
#include "Host/Widgets/NumberEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>

#include <cmath>

namespace {

constexpr double kLongestSlider = 12000; // as shown; beyond, a pixel would be too much

/// How finely numbers are shown whose range is no longer than this.
struct Fineness
{
    double longest;
    int decimals;
    double step;
};
constexpr Fineness kFineness[] = {{2, 3, 0.01}, {50, 2, 0.1}, {1000, 1, 1}};

NumberEdit::Scale ScaleOf(const PropertyField& field)
{
    NumberEdit::Scale scale;
    scale.lowest = field.lowest * field.factor;
    scale.highest = field.highest * field.factor;
    scale.suffix = field.suffix;
    const double length = scale.highest - scale.lowest;
    scale.hasSlider = length <= kLongestSlider;
    for (const Fineness& fineness : kFineness) {
        if (field.kind == NLEParameter_Whole || length > fineness.longest)
            continue;
        scale.decimals = fineness.decimals;
        scale.step = fineness.step;
        break;
    }
    return scale;
}

class NumberPropertyEditor : public PropertyEditor
{
public:
    NumberPropertyEditor(const PropertyField& field, QWidget* parent)
        : PropertyEditor(parent)
        , m_edit(new NumberEdit(ScaleOf(field), this))
        , m_factor(field.factor)
    {
        Fill(m_edit, field.title);
        m_edit->SetTitle(field.title);
        connect(m_edit, &NumberEdit::Began, this, &PropertyEditor::Began);
        connect(m_edit, &NumberEdit::Ended, this, &PropertyEditor::Ended);
        connect(m_edit, &NumberEdit::Changed, this,
                [this](double value) { Q_EMIT Changed(value / m_factor); });
    }
    void Show(const QVariant& value) override { m_edit->SetValue(value.toDouble() * m_factor); }

private:
    NumberEdit* m_edit;
    const double m_factor;
};

class SwitchEditor : public PropertyEditor
{
public:
    SwitchEditor(const PropertyField& field, QWidget* parent)
        : PropertyEditor(parent), m_box(new QCheckBox(this))
    {
        Fill(m_box, field.title);
        connect(m_box, &QCheckBox::clicked, this,
                [this](bool isOn) { Q_EMIT Changed(isOn ? 1.0 : 0.0); });
    }
    void Show(const QVariant& value) override { m_box->setChecked(value.toDouble() != 0); }

private:
    QCheckBox* m_box;
};

class ChoiceEditor : public PropertyEditor
{
public:
    ChoiceEditor(const PropertyField& field, QWidget* parent)
        : PropertyEditor(parent), m_box(new QComboBox(this))
    {
        m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        m_box->addItems(field.choices);
        m_box->setFocusPolicy(Qt::StrongFocus);
        Fill(m_box, field.title);
        connect(m_box, QOverload<int>::of(&QComboBox::activated), this,
                [this](int index) { Q_EMIT Changed(double(index)); });
    }
    void Show(const QVariant& value) override { m_box->setCurrentIndex(value.toInt()); }

private:
    QComboBox* m_box;
};

class ColorEditor : public PropertyEditor
{
public:
    ColorEditor(const PropertyField& field, QWidget* parent)
        : PropertyEditor(parent), m_button(new ColorButton(true, this))
    {
        Fill(m_button, field.title);
        connect(m_button, &ColorButton::Began, this, &PropertyEditor::Began);
        connect(m_button, &ColorButton::Ended, this, &PropertyEditor::Ended);
        connect(m_button, &ColorButton::Changed, this,
                [this](const QColor& color) { Q_EMIT Changed(double(color.rgba())); });
    }
    void Show(const QVariant& value) override
    {
        m_button->SetColor(QColor::fromRgba(QRgb(value.toDouble())));
    }

private:
    ColorButton* m_button;
};

template <typename Editor>
PropertyEditor* MakeOne(const PropertyField& field, QWidget* parent)
{
    return new Editor(field, parent);
}

// By NLEParameterKind.
constexpr PropertyEditor* (*kMakers[])(const PropertyField&,
                                       QWidget*) = {&MakeOne<NumberPropertyEditor>,
                                                    &MakeOne<NumberPropertyEditor>,
                                                    &MakeOne<SwitchEditor>,
                                                    &MakeOne<ChoiceEditor>,
                                                    &MakeOne<ColorEditor>,
                                                    &MakeOne<TextEditor>,
                                                    &MakeOne<FileEditor>};

} // namespace

PropertyEditor* PropertyEditor::Make(const PropertyField& field, QWidget* parent)
{
    if (field.isFont)
        return new FontEditor(field, parent);
    return kMakers[field.kind](field, parent);
}

void PropertyEditor::Fill(QWidget* widget, const QString& title)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(widget);
    if (widget->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed)
        row->addStretch();
    widget->setAccessibleName(title);
    setFocusProxy(widget);
}

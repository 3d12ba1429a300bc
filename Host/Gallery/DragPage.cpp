// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Gallery/DragPage.h"

#include "CommonLib/IDragValueChangedHelper.h"
#include "Host/Widgets/KeepTranslated.h"

#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>

namespace {

constexpr int kFieldWidth = 120;
constexpr double kFastFactor = 10;
constexpr double kSlowFactor = 0.1;

} // namespace

DragPage::DragPage(QWidget* parent) : QWidget(parent), m_told(new QLabel(this))
{
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    const Field fields[] = {
        {QT_TR_NOOP("Opacity"), 0, 100, 75, 1, 0, " %", false},
        {QT_TR_NOOP("Rotation"), 0, 360, 30, 1, 1, "°", true},
        {QT_TR_NOOP("Scale"), 0.01, 20, 1, 0.1, 2, " ×", false},
        {QT_TR_NOOP("Disabled"), 0, 100, 50, 1, 0, "", false},
    };
    QDoubleSpinBox* last = nullptr;
    for (const Field& field : fields)
        last = AddField(*form, field);
    last->setEnabled(false);
    auto* label = new QLabel(this);
    KeepTranslated(label, [label] { label->setText(tr("Last signal")); });
    form->addRow(label, m_told);
    KeepTranslated(m_told, [this] { ShowTold(); });
}

QDoubleSpinBox* DragPage::AddField(QFormLayout& form, const Field& field)
{
    // The spin box brings text editing, keys, the wheel and its value for assistive programs.
    auto* box = new QDoubleSpinBox(this);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    box->setFixedWidth(kFieldWidth);
    box->setRange(field.min, field.max);
    box->setSingleStep(field.step);
    box->setDecimals(field.decimals);
    box->setSuffix(QString::fromUtf8(field.suffix));
    box->setWrapping(field.loop);
    box->setValue(field.value);

    auto* drag = new IDragValueChangedHelper(box);
    drag->SetRange(field.min, field.max);
    drag->SetLoop(field.loop);
    drag->SetValue(field.value);
    drag->SetStep(field.step);
    drag->SetFastStep(field.step * kFastFactor);
    drag->SetSlowStep(field.step * kSlowFactor);
    connect(drag, &IDragValueChangedHelper::sigValueChanged, box, &QDoubleSpinBox::setValue);
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), drag,
            &IDragValueChangedHelper::SetValue);
    connect(drag, &IDragValueChangedHelper::sigStartValueChanged, this,
            [this](double value) { Tell(QT_TR_NOOP("drag begins at %1"), value); });
    connect(drag, &IDragValueChangedHelper::sigEndValueChanged, this,
            [this](double value) { Tell(QT_TR_NOOP("drag ends at %1"), value); });

    auto* label = new QLabel(this);
    label->setBuddy(box);
    KeepTranslated(label, [label, text = field.label] { label->setText(tr(text)); });
    form.addRow(label, box);
    return box;
}

void DragPage::Tell(const char* what, double value)
{
    m_toldText = what;
    m_toldValue = value;
    ShowTold();
}

void DragPage::ShowTold()
{
    if (m_toldText)
        m_told->setText(tr(m_toldText).arg(m_toldValue));
}

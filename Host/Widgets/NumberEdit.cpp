// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/NumberEdit.h"

#include "CommonLib/IDragValueChangedHelper.h"
#include "CommonLib/ToolBarSlider.h"

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScopedValueRollback>

#include <algorithm>

namespace {

constexpr int kGap = 6;
constexpr int kLeastBoxWidth = 84;
constexpr int kSliderWidth = 44; // at the least
constexpr double kFastFactor = 10;
constexpr double kSlowFactor = 0.1;

} // namespace

NumberEdit::NumberEdit(const Scale& scale, QWidget* parent)
    : QWidget(parent), m_scale(scale), m_box(new QDoubleSpinBox(this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    MakeBox(scale);
    if (scale.hasSlider) {
        MakeSlider(scale);
        row->addWidget(m_slider, 1);
    }
    row->addWidget(m_box);
    if (!scale.hasSlider)
        row->addStretch();
    setFocusProxy(m_box);
}

void NumberEdit::MakeBox(const Scale& scale)
{
    m_box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_box->setFocusPolicy(Qt::StrongFocus);
    m_box->setKeyboardTracking(false);
    m_box->setDecimals(scale.decimals);
    m_box->setRange(scale.lowest, scale.highest);
    m_box->setSingleStep(scale.step);
    m_box->setSuffix(scale.suffix);
    m_box->ensurePolished();
    m_box->setFixedWidth(std::max(kLeastBoxWidth, m_box->sizeHint().width()));
    m_box->installEventFilter(this);
    connect(m_box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &NumberEdit::Follow);
    // What was typed is taken; the keys of undo are those of its window again.
    auto* line = m_box->findChild<QLineEdit*>();
    connect(m_box, &QDoubleSpinBox::editingFinished, line, [line] { line->setModified(false); });
}

/// Not before the pointer comes: each looks at all events of the program.
void NumberEdit::MakeDrag()
{
    m_drag = new IDragValueChangedHelper(m_box);
    m_drag->SetRange(m_scale.lowest, m_scale.highest);
    m_drag->SetLoop(false);
    m_drag->SetValue(m_box->value());
    m_drag->SetStep(m_scale.step);
    m_drag->SetFastStep(m_scale.step * kFastFactor);
    m_drag->SetSlowStep(m_scale.step * kSlowFactor);
    connect(m_drag, &IDragValueChangedHelper::sigStartValueChanged, this, &NumberEdit::Begin);
    connect(m_drag, &IDragValueChangedHelper::sigValueChanged, m_box, &QDoubleSpinBox::setValue);
    connect(m_drag, &IDragValueChangedHelper::sigEndValueChanged, this, &NumberEdit::End);
}

void NumberEdit::MakeSlider(const Scale& scale)
{
    m_slider = new ToolBarSlider(this, Qt::Horizontal);
    m_slider->setMinimumWidth(kSliderWidth);
    m_slider->setRange(float(scale.lowest), float(scale.highest));
    m_slider->setFixedHeight(m_slider->Height());
    m_slider->setFocusPolicy(Qt::StrongFocus);
    m_slider->SetLeftToRight(!isRightToLeft());
    m_slider->installEventFilter(this);
    connect(m_slider, &ToolBarSlider::startValueChanged, this, &NumberEdit::Begin);
    connect(m_slider, &ToolBarSlider::valueChanged, m_box, &QDoubleSpinBox::setValue);
    connect(m_slider, &ToolBarSlider::endValueChanged, this, &NumberEdit::End);
}

double NumberEdit::Value() const
{
    return m_box->value();
}

void NumberEdit::SetValue(double value)
{
    if (m_isHeld)
        return;
    const QScopedValueRollback setting(m_isSetting, true);
    m_box->setValue(value);
    Follow(m_box->value());
}

void NumberEdit::SetTitle(const QString& title)
{
    m_box->setAccessibleName(title);
    if (m_slider)
        m_slider->setAccessibleName(title);
}

void NumberEdit::Begin()
{
    m_isHeld = true;
    Q_EMIT Began();
}

void NumberEdit::End()
{
    m_isHeld = false;
    Q_EMIT Ended();
    Q_EMIT Settled(Value());
}

void NumberEdit::Follow(double value)
{
    // A drag counts on in steps that the box may round away.
    if (m_drag && !m_isHeld)
        m_drag->SetValue(value);
    if (m_slider)
        m_slider->setValue(float(value), false);
    if (m_isSetting)
        return;
    Q_EMIT Changed(value);
    if (!m_isHeld)
        Q_EMIT Settled(value);
}

bool NumberEdit::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    const bool isPress = type == QEvent::MouseButtonPress;
    if (watched == m_box && !m_drag && (type == QEvent::Enter || isPress)) {
        MakeDrag();
        // It sees events before any widget does; this one has passed it.
        return QCoreApplication::sendEvent(watched, event);
    }
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (type != QEvent::Wheel || !widget || widget->hasFocus())
        return QWidget::eventFilter(watched, event);
    event->ignore(); // goes on to what scrolls
    return true;
}

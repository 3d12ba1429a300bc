// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/PureSlider.h"

#include "CommonLib/ScreenPixels_p.h"
#include "CommonLib/SliderSteps_p.h"
#include "CommonLib/WidgetAccessibility_p.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QWheelEvent>

#include <climits>
#include <cmath>
#include <utility>

namespace {

constexpr int kDefaultMinimum = 0;
constexpr int kDefaultMaximum = 100;
constexpr QSize kUsualSize(160, 12);
constexpr QRgb kDisabledVeil = qRgba(240, 240, 240, 150);
constexpr int kPagesPerRange = 10;

} // namespace

PureSlider::PureSlider(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("CommonLib_PureSlider"));
    setAttribute(Qt::WA_StyledBackground);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PureSlider::SetRange(int min, int max)
{
    const std::pair<int, int> before(m_minimum, m_maximum);
    m_minimum = min < max ? min : kDefaultMinimum;
    m_maximum = min < max ? max : kDefaultMaximum;
    update();
    if (before != std::make_pair(m_minimum, m_maximum))
        Q_EMIT RangeChanged(m_minimum, m_maximum);
}

void PureSlider::SetMinimum(int minimum)
{
    const int low = qMin(minimum, INT_MAX - 1);
    SetRange(low, qMax(m_maximum, low + 1));
}

void PureSlider::SetMaximum(int maximum)
{
    const int high = qMax(maximum, INT_MIN + 1);
    SetRange(qMin(m_minimum, high - 1), high);
}

void PureSlider::GetRange(int* min, int* max) const
{
    if (min)
        *min = m_minimum;
    if (max)
        *max = m_maximum;
}

void PureSlider::SetValue(int value)
{
    const int limited = qBound(m_minimum, value, m_maximum);
    update();
    if (limited == m_value)
        return;
    m_value = limited;
    NotifyAccessibleValue(this, m_value);
    Q_EMIT sigValueChanged(m_value);
}

int PureSlider::GetValue() const
{
    return m_value;
}

void PureSlider::Style(PartColor& part, const QColor& color)
{
    const QColor before = part.Shown();
    part.styled = color;
    update();
    if (part.Shown() != before)
        Q_EMIT ColorsChanged();
}

void PureSlider::Fix(PartColor& part, const QColor& color)
{
    const QColor before = part.Shown();
    part.fixed = color;
    update();
    if (part.Shown() != before)
        Q_EMIT ColorsChanged();
}

void PureSlider::SetBorderColor(const QColor& color)
{
    Fix(m_border, color);
}

void PureSlider::SetSubpageColor(const QColor& color)
{
    Fix(m_subpage, color);
}

void PureSlider::SetAddpageColor(const QColor& color)
{
    Fix(m_addpage, color);
}

QSize PureSlider::sizeHint() const
{
    return kUsualSize;
}

void PureSlider::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), AddpageColor());
    // In 64 bits: the range may span all of an int.
    const qint64 range = qint64(m_maximum) - m_minimum;
    const qint64 above = qint64(qBound(m_minimum, m_value, m_maximum)) - m_minimum;
    const auto filled = static_cast<int>(width() * above / range);
    painter.fillRect(0, 0, filled, height(), SubpageColor());
    PaintFrame(painter, rect(),
               m_keyboardFocus ? palette().color(QPalette::Highlight) : BorderColor());
    if (!isEnabled())
        painter.fillRect(rect(), QColor::fromRgba(kDisabledVeil));
}

void PureSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        FollowMouse(event, event->pos().x());
    else
        event->ignore();
}

void PureSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() & Qt::LeftButton)
        FollowMouse(event, qMin(event->pos().x(), width()));
    else
        event->ignore();
}

void PureSlider::FollowMouse(QMouseEvent* event, int x)
{
    // In whole numbers, so that a whole quotient is not rounded below itself.
    const qint64 range = qint64(m_maximum) - m_minimum;
    const qint64 length = qMax(width(), 1);
    const qint64 value = (x * range + m_minimum * length) / length;
    const QPointer<PureSlider> self(this);
    SetValue(static_cast<int>(qBound(qint64(m_minimum), value, qint64(m_maximum))));
    // Qt would look for the parent of a slider that its handler has deleted.
    event->setAccepted(!self);
}

SliderSteps PureSlider::Steps() const
{
    const double range = double(m_maximum) - m_minimum;
    return {double(m_value),
            double(m_minimum),
            double(m_maximum),
            qMax(1.0, std::floor(range / kStepsPerRange)),
            qMax(1.0, std::floor(range / kPagesPerRange)),
            Qt::Horizontal};
}

void PureSlider::wheelEvent(QWheelEvent* event)
{
    const double target = Steps().Target(*event) + m_wheelRest;
    const double limited = qBound(double(m_minimum), std::trunc(target), double(m_maximum));
    m_wheelRest = target - std::trunc(target);
    event->accept();
    SetValue(static_cast<int>(limited));
}

void PureSlider::keyPressEvent(QKeyEvent* event)
{
    const std::optional<double> target = Steps().Target(*event);
    if (!target)
        return QWidget::keyPressEvent(event);
    SetValue(static_cast<int>(qBound(double(m_minimum), *target, double(m_maximum))));
}

void PureSlider::focusInEvent(QFocusEvent* event)
{
    m_keyboardFocus = ShowsKeyboardFocus(*event, m_keyboardFocus);
    QWidget::focusInEvent(event);
}

void PureSlider::focusOutEvent(QFocusEvent* event)
{
    m_keyboardFocus = ShowsKeyboardFocus(*event, m_keyboardFocus);
    QWidget::focusOutEvent(event);
}

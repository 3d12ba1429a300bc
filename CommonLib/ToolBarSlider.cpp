// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/ToolBarSlider.h"

#include "CommonLib/HoldWatch_p.h"
#include "CommonLib/NumberConversion_p.h"
#include "CommonLib/SliderPart_p.h"
#include "CommonLib/SliderSteps_p.h"
#include "CommonLib/WidgetAccessibility_p.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QStyle>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace {

constexpr int kUsualLength = 160;
constexpr double kPagesPerRange = 10;
// So that it does not look out below a chunk at an end, which the style sheet gives this margin.
constexpr int kGrooveInset = 1;

} // namespace

ToolBarSlider::ToolBarSlider(QWidget* parent) : ToolBarSlider(parent, Qt::Horizontal) {}

ToolBarSlider::ToolBarSlider(QWidget* parent, Qt::Orientation orientation)
    : QWidget(parent)
    , m_orientation(orientation)
    , m_background(new SliderPart(SliderPart::Kind::Background, this, this,
                                  QStringLiteral("CommonLib_ToolBarSlider_bg")))
    , m_groove(new SliderPart(SliderPart::Kind::Groove, this, this,
                              QStringLiteral("CommonLib_ToolBarSlider_groove")))
    , m_chunk(new SliderPart(SliderPart::Kind::Chunk, this, this,
                             QStringLiteral("CommonLib_ToolBarSlider_chunk")))
    , m_highlight(new SliderPart(SliderPart::Kind::Highlight, this, m_groove,
                                 QStringLiteral("CommonLib_ToolBarSlider_groove_highlight")))
{
    setObjectName(QStringLiteral("CommonLib_ToolBarSlider"));
    setAttribute(Qt::WA_StyledBackground);
    m_chunk->setAccessibleName(m_chunk->objectName());
    setFocusPolicy(Qt::StrongFocus);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    if (orientation == Qt::Vertical)
        policy.transpose();
    setSizePolicy(policy);
}

// Value -------------------------------------------------------------------------------------------

void ToolBarSlider::setRange(float min, float max)
{
    if (!std::isfinite(min) || !std::isfinite(max))
        return;
    const bool isOther = min != m_minimum || max != m_maximum;
    m_minimum = min;
    m_maximum = max;
    const QPointer<ToolBarSlider> self(this);
    if (isOther)
        Q_EMIT RangeChanged(min, max);
    if (!self || !ChangeTo(Limited(m_value)))
        return;
    PlaceChunk();
    QueueResizeChunk();
}

bool ToolBarSlider::ChangeTo(float value)
{
    if (value == m_value)
        return true;
    m_value = value;
    const QPointer<ToolBarSlider> self(this);
    Q_EMIT ValueShown(m_value);
    return !self.isNull();
}

QPointF ToolBarSlider::getRange() const
{
    return {m_minimum, m_maximum};
}

void ToolBarSlider::setValue(float value, bool)
{
    if (IsHeld() || std::isnan(value))
        return;
    m_lastEmitted = value;
    if (!ChangeTo(Limited(value)))
        return;
    PlaceChunk();
    QueueResizeChunk();
    NotifyAccessibleValue(this, m_value);
}

float ToolBarSlider::value() const
{
    return m_value;
}

void ToolBarSlider::setDuration(float duration)
{
    if (std::exchange(m_duration, duration) != duration)
        Q_EMIT SettingsChanged();
}

float ToolBarSlider::duration() const
{
    return m_duration;
}

// Look and switches -------------------------------------------------------------------------------

void ToolBarSlider::SetChunkSize(int width, int height)
{
    const QSize before = ChunkSize();
    m_chunkWidth = qMax(width, 0);
    m_chunkHeight = qMax(height, 0);
    updateGeometry();
    LayOut();
    if (ChunkSize() != before)
        Q_EMIT SettingsChanged();
}

void ToolBarSlider::SetChunkHeight(int height)
{
    SetChunkSize(m_chunkWidth, height);
}

void ToolBarSlider::SetGrooveHeight(int height)
{
    const int before = std::exchange(m_grooveHeight, qMax(height, 0));
    updateGeometry();
    LayOut();
    if (m_grooveHeight != before)
        Q_EMIT SettingsChanged();
}

void ToolBarSlider::SetGroomHighlight(QString style)
{
    m_highlight->setStyleSheet(style);
}

void ToolBarSlider::SetLeftToRight(bool on)
{
    if (m_orientation == Qt::Horizontal)
        SetForward(on);
}

void ToolBarSlider::SetBottomToTop(bool on)
{
    if (m_orientation == Qt::Vertical)
        SetForward(on);
}

void ToolBarSlider::SetForward(bool on)
{
    const bool before = std::exchange(m_forward, on);
    QueueResizeChunk();
    if (on != before)
        Q_EMIT SettingsChanged();
}

Qt::Orientation ToolBarSlider::Orientation() const
{
    return m_orientation;
}

void ToolBarSlider::SetOrientation(Qt::Orientation orientation)
{
    if (orientation == m_orientation)
        return;
    m_orientation = orientation;
    QSizePolicy policy = sizePolicy();
    policy.transpose();
    setSizePolicy(policy);
    LayOut();
    Q_EMIT SettingsChanged();
}

void ToolBarSlider::SetAwaysEmitValueChangeStartEnd(bool on)
{
    if (std::exchange(m_alwaysEmitStartEnd, on) != on)
        Q_EMIT SettingsChanged();
}

void ToolBarSlider::SetButtonPressDown(bool down)
{
    SetPressed(down);
}

bool ToolBarSlider::SetPressed(bool pressed)
{
    if (std::exchange(m_buttonPressDown, pressed) == pressed)
        return true;
    const QPointer<ToolBarSlider> self(this);
    Q_EMIT PressedChanged(pressed);
    return !self.isNull();
}

bool ToolBarSlider::ButtonPressDown() const
{
    return m_buttonPressDown;
}

bool ToolBarSlider::canSeek() const
{
    return m_canSeek;
}

int ToolBarSlider::Height() const
{
    return m_orientation == Qt::Horizontal ? qMax(m_chunkHeight, m_grooveHeight) : m_chunkHeight;
}

QSize ToolBarSlider::sizeHint() const
{
    return minimumSizeHint().expandedTo(m_orientation == Qt::Horizontal ? QSize(kUsualLength, 0)
                                                                        : QSize(0, kUsualLength));
}

QSize ToolBarSlider::minimumSizeHint() const
{
    if (m_orientation == Qt::Horizontal)
        return {2 * m_chunkWidth, Height()};
    return {qMax(m_chunkWidth, m_grooveHeight), 2 * m_chunkHeight};
}

// Arithmetic --------------------------------------------------------------------------------------

bool ToolBarSlider::CanChanged() const
{
    return !qFuzzyCompare(m_minimum, m_maximum);
}

bool ToolBarSlider::NeedEmitValue() const
{
    return CanChanged();
}

int ToolBarSlider::GetWidth() const
{
    return m_orientation == Qt::Horizontal ? qMax(width() - m_chunkWidth, 0)
                                           : qMax(height() - m_chunkHeight, 0);
}

void ToolBarSlider::CalculatePositionFromValue(double value)
{
    const bool horizontal = m_orientation == Qt::Horizontal;
    // Over the whole length and from the start of the range, while the way back counts from the
    // minimum over the length that the chunk travels. Kept: see docs/compatibility.md.
    const double range = double(m_maximum) - m_minimum;
    const int length = horizontal ? width() : height();
    const int chunk = horizontal ? m_chunkWidth : m_chunkHeight;
    const double position = CanChanged() ? length * (value / range) : 0;
    // Limited beforehand, so that it is an int; a value that is no number counts as 0.
    const int p = Truncated<int>(qBound(-1.0, position, length + 1.0)).value_or(0);
    m_chunkPosition = qMax(qMin(p - chunk / 2, GetWidth()), 0);
    QueueResizeChunk();
}

void ToolBarSlider::CalculatePostion(int pos)
{
    const int chunk = m_orientation == Qt::Horizontal ? m_chunkWidth : m_chunkHeight;
    const int travel = GetWidth();
    m_chunkPosition = qMax(qMin(pos - chunk / 2, travel), 0);
    if (!CanChanged()) {
        ChangeTo(0);
        return;
    }
    const double range = double(m_maximum) - m_minimum;
    const double share = travel > 0 ? double(m_chunkPosition) / travel : 0;
    ChangeTo(Limited(m_minimum + share * range));
}

void ToolBarSlider::CalculatePostion(QPoint pos)
{
    CalculatePostion(m_orientation == Qt::Horizontal ? pos.x() : pos.y());
}

float ToolBarSlider::Limited(double value) const
{
    const double low = qMin(m_minimum, m_maximum);
    const double high = qMax(m_minimum, m_maximum);
    return static_cast<float>(qBound(low, value, high));
}

bool ToolBarSlider::IsMirrored() const
{
    return m_orientation == Qt::Horizontal && !m_forward;
}

QPoint ToolBarSlider::Unmirrored(QPoint pos) const
{
    return IsMirrored() ? QPoint(width() - 1 - pos.x(), pos.y()) : pos;
}

// Signals -----------------------------------------------------------------------------------------

void ToolBarSlider::EmitValueChange()
{
    if (!qFuzzyCompare(m_value, m_lastEmitted)) {
        const QPointer<ToolBarSlider> self(this);
        Q_EMIT valueChanged(m_value);
        if (!self)
            return;
    }
    m_lastEmitted = m_value;
}

void ToolBarSlider::EmitStartEndSignals(bool start)
{
    if (!IsTold(m_hold))
        return;
    if (start)
        Q_EMIT startValueChanged();
    else
        Q_EMIT endValueChanged();
}

bool ToolBarSlider::IsTold(Hold hold) const
{
    return hold == Hold::Chunk || m_alwaysEmitStartEnd;
}

// Mouse -------------------------------------------------------------------------------------------

bool ToolBarSlider::IsHeld() const
{
    return m_hold == Hold::Groove || m_hold == Hold::Chunk;
}

void ToolBarSlider::mousePressEvent(QMouseEvent* event)
{
    if (!CanChanged() || IsHeld()) // or another button in mid-hold
        return;
    HoldWatch::Begin(*this, [this] { CancelHold(); });
    m_hold = childAt(event->pos()) == m_chunk ? Hold::Chunk : Hold::Groove;
    if (!SetPressed(true))
        return;
    const QPoint pos = Unmirrored(event->pos());
    if (m_hold == Hold::Chunk) {
        // Horizontal also on a vertical slider, whose chunk therefore centres itself on the
        // pointer. Kept: see docs/compatibility.md.
        m_grabOffset = pos.x() - m_chunkPosition - m_chunkWidth / 2;
    }
    if (!MoveChunkTo(pos) || !NeedEmitValue())
        return;
    const QPointer<ToolBarSlider> self(this);
    EmitStartEndSignals(true);
    if (self)
        EmitValueChange();
}

void ToolBarSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_buttonPressDown || !CanChanged())
        return;
    const QPointer<ToolBarSlider> self(this);
    if (!std::exchange(m_isDragging, true)) {
        Q_EMIT startDrag();
        if (!self || !CanChanged())
            return;
    }
    if (MoveChunkTo(Unmirrored(event->pos())))
        EmitValueChange();
}

void ToolBarSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (IsHeld() && event->buttons() != Qt::NoButton)
        return; // until the last one is released
    HoldWatch::End(*this);
    const Hold held = std::exchange(m_hold, Hold::None);
    if (!SetPressed(false))
        return;
    if (held == Hold::Cancelled || (held == Hold::None && !m_isDragging))
        return; // told already, or nothing began
    const bool emits = NeedEmitValue();
    if (emits) {
        if (!MoveChunkTo(Unmirrored(event->pos())))
            return;
        const QPointer<ToolBarSlider> self(this);
        EmitValueChange();
        if (!self)
            return;
    }
    EndHold(held, emits);
}

// A range that has become empty in the meantime ends the hold in silence.
void ToolBarSlider::EndHold(Hold held, bool emits)
{
    if (emits) {
        const QPointer<ToolBarSlider> self(this);
        if (held != Hold::None && IsTold(held))
            Q_EMIT endValueChanged();
        if (self && m_isDragging)
            Q_EMIT endDrag();
        if (!self)
            return;
    }
    m_isDragging = false;
    m_grabOffset = 0;
}

bool ToolBarSlider::MoveChunkTo(QPoint pos)
{
    const QPointer<ToolBarSlider> self(this);
    CalculatePostion(pos - QPoint(m_grabOffset, 0));
    if (!self)
        return false;
    ResizeChunk();
    NotifyAccessibleValue(this, m_value);
    return true;
}

bool ToolBarSlider::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Polish:
    case QEvent::EnabledChange:
        SetCanSeek(isEnabled());
        break;
    case QEvent::Hide:
        CancelHold();
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

void ToolBarSlider::SetCanSeek(bool canSeek)
{
    m_canSeek = canSeek;
    if (!canSeek)
        CancelHold();
}

// The release of the mouse may not come. Told later: a handler may delete the slider, which the
// sender of the event still needs.
void ToolBarSlider::CancelHold()
{
    if (!IsHeld())
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!IsHeld())
                return;
            const Hold held = std::exchange(m_hold, Hold::Cancelled);
            if (SetPressed(false))
                EndHold(held, NeedEmitValue());
        },
        Qt::QueuedConnection);
}

// Wheel and keys ----------------------------------------------------------------------------------

SliderSteps ToolBarSlider::Steps() const
{
    const double range = double(m_maximum) - m_minimum;
    return {m_value,       m_minimum,   m_maximum, range / kStepsPerRange, range / kPagesPerRange,
            m_orientation, IsMirrored()};
}

void ToolBarSlider::ChangeByUser(double value)
{
    if (!CanChanged() || IsHeld() || std::isnan(value) || Limited(value) == m_value)
        return;
    if (!ChangeTo(Limited(value)))
        return;
    PlaceChunk();
    ResizeChunk();
    NotifyAccessibleValue(this, m_value);
    const QPointer<ToolBarSlider> self(this);
    Q_EMIT startValueChanged();
    if (self)
        EmitValueChange();
    if (self)
        Q_EMIT endValueChanged();
}

void ToolBarSlider::wheelEvent(QWheelEvent* event)
{
    if (!CanChanged())
        return event->ignore();
    event->accept();
    ChangeByUser(Steps().Target(*event));
}

void ToolBarSlider::keyPressEvent(QKeyEvent* event)
{
    const std::optional<double> target = Steps().Target(*event);
    if (!target)
        return QWidget::keyPressEvent(event);
    ChangeByUser(*target);
}

void ToolBarSlider::focusInEvent(QFocusEvent* event)
{
    ShowFocus(*event);
    QWidget::focusInEvent(event);
}

void ToolBarSlider::focusOutEvent(QFocusEvent* event)
{
    ShowFocus(*event);
    QWidget::focusOutEvent(event);
}

void ToolBarSlider::ShowFocus(const QFocusEvent& event)
{
    constexpr const char* name = SliderPart::kKeyboardFocus;
    const bool before = m_chunk->property(name).toBool();
    const bool shows = ShowsKeyboardFocus(event, before);
    if (shows == before)
        return;
    m_chunk->setProperty(name, shows);
    m_chunk->style()->unpolish(m_chunk);
    m_chunk->style()->polish(m_chunk);
    m_chunk->update();
}

// Geometry ----------------------------------------------------------------------------------------

void ToolBarSlider::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    LayOut();
}

void ToolBarSlider::LayOut()
{
    m_background->setGeometry(rect());
    if (m_orientation == Qt::Horizontal)
        m_groove->setGeometry(kGrooveInset, (height() - m_grooveHeight) / 2,
                              width() - 2 * kGrooveInset, m_grooveHeight);
    else
        m_groove->setGeometry((width() - m_grooveHeight) / 2, kGrooveInset, m_grooveHeight,
                              height() - 2 * kGrooveInset);
    PlaceChunk();
    ResizeChunk();
}

void ToolBarSlider::PlaceChunk()
{
    const double range = double(m_maximum) - m_minimum;
    m_chunkPosition =
        CanChanged() ? static_cast<int>(GetWidth() * (double(m_value) - m_minimum) / range) : 0;
}

void ToolBarSlider::QueueResizeChunk()
{
    if (m_resizeQueued)
        return;
    m_resizeQueued = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_resizeQueued)
                ResizeChunk();
        },
        Qt::QueuedConnection);
}

void ToolBarSlider::ResizeChunk()
{
    m_resizeQueued = false;
    QRect chunk(0, 0, m_chunkWidth, m_chunkHeight);
    if (m_orientation == Qt::Vertical)
        chunk.moveTo((width() - m_chunkWidth) / 2, m_chunkPosition);
    else
        chunk.moveTo(IsMirrored() ? width() - m_chunkPosition - m_chunkWidth : m_chunkPosition,
                     (height() - m_chunkHeight) / 2);
    m_chunk->setGeometry(chunk);
    ResizeHighlight();
}

void ToolBarSlider::ResizeHighlight()
{
    QRect highlight(QPoint(0, 0), m_groove->size());
    const QPoint centre = m_groove->mapFromParent(m_chunk->geometry().center());
    if (m_orientation == Qt::Vertical && m_forward)
        highlight.setTop(centre.y());
    else if (m_orientation == Qt::Vertical)
        highlight.setBottom(centre.y());
    else if (m_forward)
        highlight.setRight(centre.x());
    else
        highlight.setLeft(centre.x());
    m_highlight->setGeometry(highlight);
}

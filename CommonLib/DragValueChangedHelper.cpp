// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/DragValueChangedHelper_p.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int WarpDistance = 5;    // pixels
constexpr int PauseDuration = 200; // ms

/// Middle of the primary screen, in native pixels over the whole scale.
QPoint Anchor(const QPoint& fallback)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen)
        return fallback;
    const int scale = std::max(1, static_cast<int>(screen->devicePixelRatio()));
    return screen->geometry().bottomRight() / (2 * scale);
}

QScreen* ScreenAt(const QPoint& position)
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto found = std::find_if(screens.begin(), screens.end(), [&](const QScreen* screen) {
        return screen->availableGeometry().contains(position);
    });
    return found == screens.end() ? nullptr : *found;
}

/// Whether a pointer at \a position has no way left to go; slow motion gets there step by step.
bool IsAtEdge(const QPoint& position)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    constexpr int Margin = 2 * WarpDistance;
    return screen &&
           !screen->geometry().adjusted(Margin, Margin, -Margin, -Margin).contains(position);
}

int WarpDistanceFor(int distance)
{
    return std::max(distance, WarpDistance);
}

} // namespace

std::unique_ptr<QMouseEvent> DragValueChangedHelper::s_press;

DragValueChangedHelper::DragValueChangedHelper(QWidget* widget) : QObject(widget), m_widget(widget)
{
    qApp->installEventFilter(this);
}

DragValueChangedHelper::~DragValueChangedHelper()
{
    if (m_pressed)
        ReturnPointer();
    PopAllCursors();
}

void DragValueChangedHelper::SetDragEnabled(bool enable)
{
    m_intercept = enable;
    m_dragEnabled = enable;
    if (enable)
        return;
    // The events that would end these are not looked at any more.
    PopAllCursors();
    if (!m_pressed)
        return;
    m_pressed = false;
    m_accel = 0;
    ReturnPointer();
    if (!m_firstMove)
        Q_EMIT sigEndValueChanged(m_value);
}

bool DragValueChangedHelper::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_dragEnabled)
        return false;
    if (m_intercept) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
            return Press(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseMove:
            return Move(*static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonRelease:
            return m_pressed && Release(watched);
        default:
            break;
        }
    }
    if (watched == m_widget)
        WatchWidget(*event);
    return false;
}

void DragValueChangedHelper::WatchWidget(const QEvent& event)
{
    const bool usable = m_widget->isVisible() && m_widget->isEnabled();
    switch (event.type()) {
    case QEvent::Enter:
        if (m_intercept && usable)
            PushCursor(m_hoverCursor);
        break;
    case QEvent::Leave:
        if (m_intercept && usable)
            PopAllCursors();
        break;
    case QEvent::Hide:
        if (m_intercept && !usable)
            PopAllCursors();
        break;
    case QEvent::FocusOut:
        m_intercept = true;
        if (IsCursorInside())
            PushCursor(m_hoverCursor);
        break;
    default:
        break;
    }
}

bool DragValueChangedHelper::IsCursorInside() const
{
    // Under the mouse: nothing else, such as a dialog, covers the place.
    if (!m_widget || !m_widget->isVisible() || !m_widget->isEnabled() || !m_widget->underMouse())
        return false;
    const QRect area = m_interactiveRect.isValid() ? m_interactiveRect : m_widget->rect();
    return area.contains(m_widget->mapFromGlobal(QCursor::pos()));
}

bool DragValueChangedHelper::Press(const QMouseEvent& event)
{
    if (m_pressed || !IsCursorInside())
        return false;
    m_pressPos = QCursor::pos();
    m_pressScreen = ScreenAt(m_pressPos);
    if (m_pressScreen)
        m_pressPos = QCursor::pos(m_pressScreen);
    m_anchorPos = Anchor(m_pressPos);
    PushCursor(Qt::BlankCursor);
    QCursor::setPos(m_anchorPos);
    m_lastPos = m_anchorPos;
    // What the last drag measured is no motion of this one.
    m_distance = 0;
    m_pressed = true;
    m_firstMove = true;
    s_press = std::make_unique<QMouseEvent>(event);
    return true;
}

DragValueChangedHelper::Pace DragValueChangedHelper::PaceOf(const QMouseEvent& event) const
{
    if (event.modifiers() & Qt::ShiftModifier)
        return {m_fastStep, m_fastDistance, WarpDistanceFor(m_fastDistance)};
    if (event.modifiers() & Qt::ControlModifier)
        return {m_slowStep, m_slowDistance, WarpDistanceFor(m_slowDistance)};
    return {m_step, m_stepDistance, WarpDistance};
}

bool DragValueChangedHelper::Move(const QMouseEvent& event)
{
    if (!m_pressed || event.buttons() == Qt::NoButton)
        return false;
    const Pace pace = PaceOf(event);
    if (m_firstMove) {
        m_accel = 0;
        m_elapsed.restart();
    }
    if (m_elapsed.elapsed() > PauseDuration)
        m_accel = 0;
    if (m_distance > pace.distance) {
        if (event.globalX() == m_lastPos.x())
            return false;
        if (!Step(event, pace.step))
            return true;
    }
    m_distance = std::abs(event.globalX() - m_lastPos.x());
    if (m_distance > pace.warpDistance || IsAtEdge(event.globalPos())) {
        QCursor::setPos(m_anchorPos);
        m_lastPos = m_anchorPos;
    }
    return true;
}

double DragValueChangedHelper::InRange(double value) const
{
    if (value < m_min)
        return m_loop ? m_max : m_min;
    if (value > m_max)
        return m_loop ? m_min : m_max;
    return value;
}

// False when a receiver of the signals has ended this object or the drag.
bool DragValueChangedHelper::Step(const QMouseEvent& event, double step)
{
    const bool increase = event.globalX() > m_lastPos.x();
    m_value = InRange(increase ? m_value + step + m_accel : m_value - step - m_accel);
    const QPointer<DragValueChangedHelper> alive(this);
    if (m_firstMove) {
        m_firstMove = false;
        Q_EMIT sigStartValueChanged(m_value);
    }
    if (alive && m_pressed)
        Q_EMIT sigValueChanged(m_value);
    if (!alive || !m_pressed)
        return false;
    m_lastPos = event.globalPos();
    m_distance = 0;
    m_accel = increase == m_lastIncrease ? m_accel + step : 0;
    m_lastIncrease = increase;
    m_elapsed.restart();
    return true;
}

void DragValueChangedHelper::ReturnPointer() const
{
    if (m_pressScreen)
        QCursor::setPos(m_pressScreen, m_pressPos);
    else
        QCursor::setPos(m_pressPos);
}

// True when who was told has ended the receiver, which then must not get the release.
bool DragValueChangedHelper::Release(QObject* receiver)
{
    const QPointer<QObject> alive(receiver);
    ReturnPointer();
    m_accel = 0;
    // Over before anyone is told: who is told may run an event loop, or end this object.
    m_pressed = false;
    if (m_firstMove) {
        PopAllCursors();
        m_intercept = false;
        if (const auto press = std::move(s_press))
            QCoreApplication::sendEvent(receiver, press.get());
    } else {
        PopCursor();
        Q_EMIT sigEndValueChanged(m_value);
    }
    return !alive;
}

void DragValueChangedHelper::PushCursor(const QCursor& cursor)
{
    QGuiApplication::setOverrideCursor(cursor);
    ++m_overrideCount;
}

void DragValueChangedHelper::PopCursor()
{
    if (m_overrideCount == 0)
        return;
    QGuiApplication::restoreOverrideCursor();
    --m_overrideCount;
}

void DragValueChangedHelper::PopAllCursors()
{
    while (m_overrideCount > 0)
        PopCursor();
}

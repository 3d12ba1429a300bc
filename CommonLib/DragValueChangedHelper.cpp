// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/DragValueChangedHelper_p.h"

#include "Com/AnyQt.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr int kWarpDistance = 5;    // pixels
constexpr int kPauseDuration = 200; // ms

/// Lower right corner over twice the whole scale: the middle of a primary screen at (0, 0) whose
/// geometry counts native pixels, further up and left where Qt scales. Kept: see
/// docs/compatibility.md.
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
    constexpr int margin = 2 * kWarpDistance;
    return screen && (position.x() < screen->geometry().left() + margin ||
                      position.x() > screen->geometry().right() - margin);
}

// A finger or a pen is where it is; a program cannot move it.
bool IsMouse(const QMouseEvent& event)
{
    return event.source() != Qt::MouseEventSynthesizedByQt &&
           event.source() != Qt::MouseEventSynthesizedBySystem;
}

int WarpDistanceFor(int distance)
{
    return std::max(distance, kWarpDistance);
}

} // namespace

std::unique_ptr<QMouseEvent> DragValueChangedHelper::s_press;
QPointer<DragValueChangedHelper> DragValueChangedHelper::s_last;

DragValueChangedHelper::DragValueChangedHelper(QWidget* widget) : QObject(widget), m_widget(widget)
{
    if (QCoreApplication* app = QCoreApplication::instance())
        app->installEventFilter(this);
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
    Interrupt();
    TellEnd();
}

// The end of a drag whose release may not come. Reported later: a receiver may delete the
// widget, which the sender of an event still needs.
void DragValueChangedHelper::Interrupt()
{
    PopAllCursors();
    if (!m_pressed)
        return;
    m_pressed = false;
    m_accel = 0;
    ReturnPointer();
    m_endUntold = !m_firstMove;
    if (m_endUntold)
        QMetaObject::invokeMethod(this, &DragValueChangedHelper::TellEnd, Qt::QueuedConnection);
}

void DragValueChangedHelper::TellEnd()
{
    if (std::exchange(m_endUntold, false))
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
            if (m_pressed)
                return Release(watched, *static_cast<QMouseEvent*>(event));
            break;
        default:
            break;
        }
    }
    if (m_clicked && event->type() == QEvent::MouseButtonRelease && watched->isWidgetType()) {
        // The window has passed it on.
        m_clicked = false;
        PlaceRelease(*static_cast<QWidget*>(watched), *static_cast<QMouseEvent*>(event));
    }
    if (watched == m_widget)
        WatchWidget(*event);
    else
        WatchSurroundings(*watched, *event);
    return false;
}

void DragValueChangedHelper::WatchWidget(const QEvent& event)
{
    const bool usable = m_widget->isVisible() && m_widget->isEnabled();
    switch (event.type()) {
    case QEvent::Enter:
        if (m_intercept && usable)
            PushHoverCursor();
        break;
    case QEvent::Leave:
        if (m_intercept && usable)
            PopAllCursors();
        break;
    case QEvent::Hide:
    case QEvent::WindowBlocked:
        Interrupt();
        break;
    case QEvent::EnabledChange:
        if (!m_widget->isEnabled())
            Interrupt();
        else if (m_intercept && IsInside(QCursor::pos(), true))
            PushHoverCursor();
        break;
    case QEvent::FocusOut:
        m_intercept = true;
        if (IsInside(QCursor::pos(), true))
            PushHoverCursor();
        break;
    default:
        break;
    }
}

void DragValueChangedHelper::WatchSurroundings(const QObject& watched, const QEvent& event)
{
    switch (event.type()) {
    case QEvent::Leave:
        // Qt may have lost sight of the widget; without its window the pointer has left it too.
        if (&watched == m_widget->window())
            WatchWidget(event);
        break;
    case QEvent::ApplicationStateChange:
        if (m_pressed &&
            static_cast<const QApplicationStateChangeEvent&>(event).applicationState() !=
                Qt::ApplicationActive)
            Interrupt();
        break;
    default:
        break;
    }
}

bool DragValueChangedHelper::IsInside(const QPoint& position, bool isMouse) const
{
    // Nothing else, such as a dialog, covers the place. A finger makes no widget lie under the
    // mouse.
    const bool isUnder =
        m_widget && (isMouse ? m_widget->underMouse()
                             : m_widget->window() == QApplication::topLevelAt(position));
    if (!isUnder || !m_widget->isVisible() || !m_widget->isEnabled())
        return false;
    const QRect area = m_interactiveRect.isValid() ? m_interactiveRect : m_widget->rect();
    return area.contains(m_widget->mapFromGlobal(position));
}

bool DragValueChangedHelper::Press(const QMouseEvent& event)
{
    m_clicked = false;
    if (s_last && s_last->m_pressed) {
        if (event.buttons() != event.button())
            return true; // a further button, where the pointer is only parked
        // Its release has gone elsewhere, and the pointer to where this press is.
        s_last->m_parks = false;
        s_last->Interrupt();
    }
    const bool isMouse = IsMouse(event);
    if (!IsInside(isMouse ? QCursor::pos() : event.globalPos(), isMouse))
        return false;
    m_pressPos = isMouse ? QCursor::pos() : event.globalPos();
    m_pressScreen = ScreenAt(m_pressPos);
    if (m_pressScreen && isMouse)
        m_pressPos = QCursor::pos(m_pressScreen);
    m_anchorPos = Anchor(m_pressPos);
    HidePointer();
    if (isMouse)
        QCursor::setPos(m_anchorPos);
    // Not every system lets a program move the pointer. Motion is measured from where it is then.
    m_parks = isMouse && (m_anchorPos == m_pressPos || QCursor::pos() != m_pressPos);
    m_lastPos = m_parks ? m_anchorPos : m_pressPos;
    // What the last drag measured is no motion of this one.
    m_distance = 0;
    m_pressed = true;
    m_firstMove = true;
    ++m_drag;
    s_press = AnyQt::CopyOf(event);
    s_last = this;
    return true;
}

DragValueChangedHelper::Pace DragValueChangedHelper::PaceOf(const QMouseEvent& event) const
{
    if (event.modifiers() & Qt::ShiftModifier)
        return {m_fastStep, m_fastDistance, WarpDistanceFor(m_fastDistance)};
    if (event.modifiers() & Qt::ControlModifier)
        return {m_slowStep, m_slowDistance, WarpDistanceFor(m_slowDistance)};
    return {m_step, m_stepDistance, kWarpDistance};
}

bool DragValueChangedHelper::Move(const QMouseEvent& event)
{
    if (!m_pressed || event.buttons() == Qt::NoButton)
        return false;
    // Parked, it may have left the widget, which popped what hid it.
    if (!m_hidesPointer && m_widget->isVisible())
        HidePointer();
    const Pace pace = PaceOf(event);
    if (m_firstMove) {
        m_accel = 0;
        m_elapsed.restart();
    }
    if (m_elapsed.elapsed() > kPauseDuration)
        m_accel = 0;
    if (m_distance > pace.distance) {
        if (event.globalX() == m_lastPos.x())
            return false;
        if (!Step(event, pace.step))
            return true;
    }
    m_distance = std::abs(event.globalX() - m_lastPos.x());
    if (!m_parks) {
        if (m_distance > pace.warpDistance)
            m_lastPos = event.globalPos();
    } else if (m_distance > pace.warpDistance || IsAtEdge(event.globalPos())) {
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
    const QPointer<DragValueChangedHelper> alive(this);
    // A receiver that runs an event loop may let another drag begin.
    const auto goesOn = [&, drag = m_drag] { return alive && m_pressed && m_drag == drag; };
    TellEnd(); // of the drag before
    if (!goesOn())
        return false;
    const bool increase = event.globalX() > m_lastPos.x();
    m_value = InRange(increase ? m_value + step + m_accel : m_value - step - m_accel);
    if (m_firstMove) {
        m_firstMove = false;
        Q_EMIT sigStartValueChanged(m_value);
    }
    if (goesOn())
        Q_EMIT sigValueChanged(m_value);
    if (!goesOn())
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
    if (!m_parks)
        return;
    if (m_pressScreen)
        QCursor::setPos(m_pressScreen, m_pressPos);
    else
        QCursor::setPos(m_pressPos);
}

// True when who was told has ended the receiver, which then must not get the release.
bool DragValueChangedHelper::Release(QObject* receiver, QMouseEvent& event)
{
    const QPointer<DragValueChangedHelper> self(this);
    const QPointer<QObject> alive(receiver);
    ReturnPointer();
    m_accel = 0;
    // Over before it is reported: a receiver may run an event loop, or end this object.
    m_pressed = false;
    if (m_firstMove) {
        PopAllCursors();
        m_intercept = false;
        if (const auto press = std::move(s_press))
            QCoreApplication::sendEvent(receiver, press.get());
        if (self && !m_pressed) {
            // Once more: the widget may have passed the focus on to an editor of its own.
            PopAllCursors();
            m_intercept = false;
        }
        if (self && alive && receiver->isWidgetType())
            PlaceRelease(*static_cast<QWidget*>(receiver), event);
        else if (self)
            m_clicked = alive != nullptr;
    } else {
        PopCursor();
        Q_EMIT sigEndValueChanged(m_value);
    }
    return !alive;
}

// A click was released where the pointer was parked; for the widget that is where it was pressed.
void DragValueChangedHelper::PlaceRelease(const QWidget& receiver, QMouseEvent& event) const
{
    if (m_parks && !receiver.rect().contains(event.pos()))
        AnyQt::SetPosition(event, receiver.mapFromGlobal(m_pressPos));
}

// Below the blank one in a drag.
void DragValueChangedHelper::PushHoverCursor()
{
    const bool hidesPointer = m_hidesPointer;
    if (hidesPointer)
        PopCursor();
    PushCursor(m_hoverCursor);
    if (hidesPointer)
        HidePointer();
}

void DragValueChangedHelper::HidePointer()
{
    PushCursor(Qt::BlankCursor);
    m_hidesPointer = true;
}

void DragValueChangedHelper::PushCursor(const QCursor& cursor)
{
    QGuiApplication::setOverrideCursor(cursor);
    ++m_overrideCount;
    m_hidesPointer = false;
}

void DragValueChangedHelper::PopCursor()
{
    m_hidesPointer = false;
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

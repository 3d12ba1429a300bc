// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLib.h"
#include "Host/HostLanguage.h"
#include "Host/Widgets/HostStyle.h"
#include "tests/support/SignalPairs.h"

#include <QDrag>
#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <random>

/// Somebody who does anything with the windows that there are: mouse, wheel, keys, focus, sizes,
/// looks, languages. Input takes the way of the system's, through the windows; what opens an event
/// loop of its own, as dialogs do, is gone on with in that.
///
/// Of Qt's file dialogs none is used, since they can rename and delete: they are closed.
class RandomInput
{
public:
    /// What happens besides, at times.
    using Extra = std::function<void(RandomInput&)>;

    explicit RandomInput(unsigned seed) : m_random(seed)
    {
        m_next.setSingleShot(true);
        QObject::connect(&m_next, &QTimer::timeout, [this] { Step(); });
        m_parking.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
        m_parking.setGeometry(3000, 3000, 20, 20);
    }

    int Any(int least, int most) { return std::uniform_int_distribution<>(least, most)(m_random); }
    bool Chance(int percent) { return Any(1, 100) <= percent; }
    template <typename List>
    auto& AnyOf(const List& list)
    {
        return *(std::begin(list) + Any(0, int(std::size(list)) - 1));
    }
    /// Whether an event loop that this has opened is about to go on.
    bool IsNested() const { return m_depth > 1; }

    /// Does \a count things, from now and then \a extra. What was left over; empty when nothing.
    QString Run(int count, const Extra& extra)
    {
        constexpr int stretch = 500;
        m_extra = extra;
        for (int done = 0; done < count; done += stretch) {
            m_left = std::min(stretch, count - done);
            QEventLoop loop;
            m_done = [&loop] { loop.quit(); };
            Arm();
            loop.exec();
            const QString remains = Settle();
            if (!remains.isEmpty())
                return QString("after %1: %2").arg(done + stretch).arg(remains);
        }
        return {};
    }

private:
    using Act = void (RandomInput::*)();
    static constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton,
                                                   Qt::RightButton, Qt::MiddleButton};
    static constexpr int kDeepest = 4; // loops within loops

    // ---- One after the other

    void Arm() { m_next.start(0); }
    void Step()
    {
        Arm(); // for a loop that is opened now
        ++m_depth;
        if (m_left <= 0 && !IsNested()) {
            ReleaseAll();
            --m_depth;
            m_next.stop();
            return m_done();
        }
        m_pairs.Follow();
        if (qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) ||
            (IsNested() && (m_left <= 0 || m_depth > kDeepest)))
            EndLoop();
        else if (--m_left >= 0)
            Do();
        m_pairs.Follow(); // what was made now may start at an event of the system
        --m_depth;
    }
    void EndLoop()
    {
        QDrag::cancel();
        if (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        else if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            dialog->reject();
        else
            ReleaseAll();
    }
    void Do()
    {
        static const struct
        {
            int weight;
            Act act;
        } acts[] = {{30, &RandomInput::Move},    {18, &RandomInput::Press},
                    {18, &RandomInput::Release}, {3, &RandomInput::DoubleClick},
                    {8, &RandomInput::Wheel},    {15, &RandomInput::Key},
                    {1, &RandomInput::Focus},    {1, &RandomInput::Resize},
                    {1, &RandomInput::Dress},    {5, &RandomInput::DoExtra}};
        int chosen = Any(1, 100);
        for (const auto& [weight, act] : acts) {
            chosen -= weight;
            if (chosen <= 0)
                return (this->*act)();
        }
    }

    // ---- Where

    /// A window that takes input now.
    QWidget* Window()
    {
        if (QWidget* popup = QApplication::activePopupWidget())
            return popup;
        if (QWidget* modal = QApplication::activeModalWidget())
            return modal;
        QWidgetList windows;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window != &m_parking && window->windowHandle())
                windows << window;
        }
        return windows.isEmpty() ? nullptr : AnyOf(windows);
    }
    /// The widget of before for a while, then another one.
    QWidget* Target()
    {
        if (m_target && m_target->isVisible() && Chance(85))
            return m_target;
        m_target = Window();
        QWidgetList widgets;
        if (m_target) {
            for (QWidget* widget : m_target->findChildren<QWidget*>()) {
                if (widget->isVisible())
                    widgets << widget;
            }
        }
        if (!widgets.isEmpty())
            m_target = AnyOf(widgets);
        return m_target;
    }
    /// Within the target, or a little outside.
    QPoint Place(const QWidget& target)
    {
        const int beyond = Chance(10) ? 30 : 0;
        const QPoint place(Any(-beyond, std::max(0, target.width() - 1) + beyond),
                           Any(-beyond, std::max(0, target.height() - 1) + beyond));
        return target.mapTo(target.window(), place);
    }
    Qt::KeyboardModifiers Modifiers()
    {
        static const Qt::KeyboardModifiers some[] = {
            Qt::NoModifier,      Qt::NoModifier,  Qt::NoModifier,
            Qt::ControlModifier, Qt::AltModifier, Qt::ControlModifier | Qt::ShiftModifier,
            Qt::ShiftModifier};
        return AnyOf(some);
    }

    // ---- What

    void Mouse(QWidget* target, QEvent::Type type, Qt::MouseButton button)
    {
        QWindow* window = target ? target->window()->windowHandle() : nullptr;
        if (!window)
            return;
        const QPoint place = Place(*target);
        m_pairs.Follow();                            // what an event before it has brought
        m_time += 1000;                              // no double click by chance
        QCursor::setPos(window->mapToGlobal(place)); // what is entered and left
        qt_handleMouseEvent(window, place, window->mapToGlobal(place), m_buttons, button, type,
                            Modifiers(), m_time);
    }
    void Move() { Mouse(Target(), QEvent::MouseMove, Qt::NoButton); }
    void Press()
    {
        const Qt::MouseButton button = AnyOf(kButtons);
        if (m_buttons & button)
            return Move();
        m_buttons |= button;
        Mouse(Target(), QEvent::MouseButtonPress, button);
    }
    void Release()
    {
        for (const Qt::MouseButton button : kButtons) {
            if (!(m_buttons & button))
                continue;
            m_buttons &= ~button;
            return Mouse(Target(), QEvent::MouseButtonRelease, button);
        }
        Move();
    }
    void DoubleClick()
    {
        ReleaseAll();
        const QPointer<QWidget> target = Target();
        for (int click = 0; click < 2 && target; ++click) {
            QWindow* window = target->window()->windowHandle();
            if (!window)
                return;
            const QPoint place = target->mapTo(target->window(), target->rect().center());
            m_time += click == 0 ? 1000 : 10;
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                m_pairs.Follow();
                if (target && target->isVisible() && target->window()->windowHandle() == window)
                    qt_handleMouseEvent(window, place, window->mapToGlobal(place),
                                        type == QEvent::MouseButtonPress ? Qt::LeftButton
                                                                         : Qt::NoButton,
                                        Qt::LeftButton, type, {}, m_time);
            }
        }
    }
    void ReleaseAll()
    {
        while (m_buttons)
            Release();
    }
    void Wheel()
    {
        const QWidget* target = Target();
        QWindow* window = target ? target->window()->windowHandle() : nullptr;
        if (!window)
            return;
        static const QPoint turns[] = {{0, 120}, {0, -120}, {120, 0}, {0, 15}, {0, -1200}};
        const QPoint place = Place(*target);
        QWheelEvent event(place, window->mapToGlobal(place), {}, AnyOf(turns), m_buttons,
                          Modifiers(), Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window, &event);
    }
    void Key()
    {
        static const int keys[] = {
            Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Home,
            Qt::Key_End,    Qt::Key_PageUp,   Qt::Key_Delete, Qt::Key_Tab,    Qt::Key_Backtab,
            Qt::Key_Escape, Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Space,  Qt::Key_Menu,
            Qt::Key_F1,     Qt::Key_F2,       Qt::Key_Plus,   Qt::Key_Minus,  Qt::Key_Comma,
            Qt::Key_Period, Qt::Key_0,        Qt::Key_9,      Qt::Key_Colon,  Qt::Key_Backspace,
            Qt::Key_F10,    Qt::Key_Shift,    Qt::Key_Alt,    Qt::Key_Control};
        const int key = Chance(40) ? Any(Qt::Key_A, Qt::Key_Z) : AnyOf(keys);
        const Qt::KeyboardModifiers modifiers = Modifiers();
        const QString text =
            key < 0x80 && !(modifiers & Qt::ControlModifier) ? QString(QChar(key)) : QString();
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            m_pairs.Follow();
            // A shortcut may end the window that has the focus.
            QWindow* window = QGuiApplication::focusWindow();
            if (!window ||
                (type == QEvent::KeyPress &&
                 qt_sendShortcutOverrideEvent(window, ulong(m_time), key, modifiers, text)))
                return;
            if ((window = QGuiApplication::focusWindow()))
                qt_handleKeyEvent(window, type, key, modifiers, text);
        }
    }
    void Focus()
    {
        if (QWidget* target = Target()) {
            target->window()->activateWindow();
            target->setFocus(Qt::TabFocusReason);
        }
    }
    void Resize()
    {
        if (QWidget* window = Window())
            window->resize(Any(1, 1400), Any(1, 900));
    }
    void Dress()
    {
        int count = 0;
        const LangConstInfo* rows = GetGlobalLangConstInfos(count);
        switch (Any(0, 3)) {
        case 0:
            return HostLanguage::Select(rows[Any(0, count - 1)].locale);
        case 1:
            return QApplication::setLayoutDirection(Chance(30) ? Qt::RightToLeft : Qt::LeftToRight);
        case 2:
            return HostStyle::Apply(!HostStyle::IsLight());
        default:
            return qApp->setStyleSheet(Chance(50) ? gGetCommonLibStyles() : QString());
        }
    }
    void DoExtra() { m_extra(*this); }

    // ---- What is left

    /// Ends what can be ended by a user, and gives what stays nevertheless.
    QString Settle()
    {
        const auto turn = [] {
            for (int i = 0; i < 3; ++i) {
                QCoreApplication::processEvents();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
        };
        for (int i = 0; i < 20 && QApplication::activePopupWidget(); ++i)
            QApplication::activePopupWidget()->close();
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (qobject_cast<QDialog*>(window) && window->isVisible())
                window->close();
        }
        turn();
        // The pointer goes elsewhere, as does the focus.
        m_parking.show();
        m_parking.activateWindow();
        QCursor::setPos(m_parking.geometry().center());
        turn();
        for (const auto type :
             {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            Mouse(&m_parking, type, type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton);
        turn();
        const QString remains = Remains();
        m_parking.hide();
        return remains;
    }
    QString Remains() const
    {
        QStringList remains = m_pairs.Faults();
        for (const QString& open : m_pairs.Open())
            remains << open + " without an end";
        if (QGuiApplication::overrideCursor())
            remains
                << QString("a cursor of shape %1").arg(QGuiApplication::overrideCursor()->shape());
        for (const QWidget* grabber : {QWidget::mouseGrabber(), QWidget::keyboardGrabber()}) {
            if (grabber)
                remains << QString("a grab by ") + grabber->metaObject()->className();
        }
        return remains.join(", ");
    }

    std::mt19937 m_random;
    QTimer m_next;
    QWidget m_parking;
    SignalPairs m_pairs;
    QPointer<QWidget> m_target;
    Extra m_extra;
    std::function<void()> m_done;
    Qt::MouseButtons m_buttons;
    int m_time = 1;
    int m_left = 0;
    int m_depth = 0;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMetaMethod>
#include <QtTest>
#include <QtWidgets>

#include <functional>

/// Deletes a widget in the slots of its signals and between the steps of an input. What breaks then
/// is seen best with the address sanitizer.
namespace DeletedInSlot {

using Make = std::function<QWidget*()>;
using Step = std::function<void(QWidget*)>;
using Steps = QVector<Step>;

inline Step Press(int x, Qt::MouseButton button = Qt::LeftButton)
{
    return [=](QWidget* w) { QTest::mousePress(w->window()->windowHandle(), button, {}, {x, 10}); };
}

inline Step Move(int x, int y = 10)
{
    return [=](QWidget* w) { QTest::mouseMove(w->window()->windowHandle(), {x, y}); };
}

inline Step Release(int x, Qt::MouseButton button = Qt::LeftButton)
{
    return [=](QWidget* w) {
        QTest::mouseRelease(w->window()->windowHandle(), button, {}, {x, 10});
    };
}

/// Runs an action when a signal comes for the \a count th time.
class Trap : public QObject
{
public:
    Trap(QObject* sender, const QMetaMethod& signal, int count, std::function<void()> action)
        : m_count(count), m_action(std::move(action))
    {
        QMetaObject::connect(sender, signal.methodIndex(), this,
                             QObject::staticMetaObject.methodCount(), Qt::DirectConnection);
    }
    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id == 0 && --m_count == 0)
            m_action();
        return id - 1;
    }

private:
    int m_count;
    std::function<void()> m_action;
};

/// Whether \a act deletes a new widget while, or after, it plays \a steps on it.
inline bool Dies(const Make& make, const Steps& steps,
                 const std::function<void(const QPointer<QWidget>&, const Steps&)>& act)
{
    const QPointer<QWidget> widget(make());
    if (!widget->parentWidget())
        widget->setWindowFlag(Qt::FramelessWindowHint);
    widget->resize(214, 20);
    widget->show();
    QCoreApplication::processEvents();
    act(widget, steps);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QWidget other; // for what Qt has kept of the mouse
    other.show();
    for (const auto button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton})
        QTest::mouseRelease(other.windowHandle(), button);
    const bool dead = !widget;
    delete widget;
    return dead;
}

inline void Play(const QPointer<QWidget>& widget, const Steps& steps)
{
    for (const Step& step : steps) {
        if (widget)
            step(widget);
        QCoreApplication::processEvents();
    }
}

/// The signals during which the widget was deleted, each as often as it came.
inline QString InEachSlot(const Make& make, const Steps& steps, bool later)
{
    // The real pointer must not enter what is shown.
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
    const auto remove = [later](QWidget* widget) { later ? widget->deleteLater() : delete widget; };
    for (int count = 1; count <= steps.size(); ++count) {
        Dies(make, steps.mid(0, count), [&](const QPointer<QWidget>& widget, const Steps& first) {
            Play(widget, first);
            remove(widget);
        });
    }
    QStringList deletedIn;
    const QMetaObject* meta = std::unique_ptr<QWidget>(make())->metaObject();
    for (int i = QWidget::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        const QMetaMethod signal = meta->method(i);
        if (signal.methodType() != QMetaMethod::Signal || signal.attributes() & QMetaMethod::Cloned)
            continue;
        for (int count = 1;
             Dies(make, steps,
                  [&](const QPointer<QWidget>&widget, const Steps&all) {
                      const Trap trap(widget, signal, count, [&] { remove(widget); });
                      Play(widget, all);
                  });
             ++count)
            deletedIn << signal.name();
    }
    return deletedIn.join(' ');
}

} // namespace DeletedInSlot

Q_DECLARE_METATYPE(DeletedInSlot::Make)
Q_DECLARE_METATYPE(DeletedInSlot::Steps)

namespace DeletedInSlot {

/// The test of a row with the columns "make", "steps" and "deletedIn", the slots apart from after
/// each step.
inline void CheckRow()
{
    QFETCH(const Make, make);
    QFETCH(const Steps, steps);
    QFETCH(const QString, deletedIn);
    for (const bool later : {false, true})
        QCOMPARE(InEachSlot(make, steps, later), deletedIn);
}

} // namespace DeletedInSlot

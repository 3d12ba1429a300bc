// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Window/WhenShown.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace {

constexpr int kLongest = 1000; // milliseconds

/// Child of the window; goes when it has called.
class FirstExpose : public QObject
{
public:
    FirstExpose(QWidget& window, std::function<void()> call)
        : QObject(&window), m_call(std::move(call))
    {
        QTimer::singleShot(kLongest, this, [this] { Call(); });
        window.windowHandle()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // It draws when this has passed on the event.
        if (event->type() == QEvent::Expose)
            QTimer::singleShot(0, this, [this] { Call(); });
        return QObject::eventFilter(watched, event);
    }

private:
    void Call()
    {
        const auto call = std::exchange(m_call, {});
        if (!call)
            return; // the other timer, perhaps in an event loop of the call's own
        deleteLater();
        call();
    }

    std::function<void()> m_call;
};

} // namespace

void WhenShown(QWidget& window, std::function<void()> call)
{
    new FirstExpose(window, std::move(call));
}

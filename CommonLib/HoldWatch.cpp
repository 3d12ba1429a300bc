// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/HoldWatch_p.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

#include <utility>

void HoldWatch::Begin(QWidget& held, std::function<void()> lost)
{
    End(held);
    new HoldWatch(held, std::move(lost));
}

void HoldWatch::End(const QWidget& held)
{
    delete held.findChild<HoldWatch*>(QString(), Qt::FindDirectChildrenOnly);
}

HoldWatch::HoldWatch(QWidget& held, std::function<void()> lost)
    : QObject(&held), m_lost(std::move(lost))
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool HoldWatch::eventFilter(QObject* watched, QEvent* event)
{
    const bool isReleased = event->type() == QEvent::MouseButtonRelease &&
                            static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton;
    if (isReleased || (event->type() == QEvent::WindowBlocked && watched == parent())) {
        QCoreApplication::instance()->removeEventFilter(this);
        QMetaObject::invokeMethod(
            this,
            [this] {
                // It may end this.
                const std::function<void()> lost = m_lost;
                lost();
            },
            Qt::QueuedConnection);
    }
    return false;
}

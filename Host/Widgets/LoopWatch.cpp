// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/LoopWatch.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

constexpr double kMillisecond = 1e6; // nanoseconds

QEvent::Type Question()
{
    static const auto type = QEvent::Type(QEvent::registerEventType());
    return type;
}

} // namespace

LoopWatch::LoopWatch(std::chrono::milliseconds between, QObject* parent)
    : QObject(parent), m_between(between), m_thread([this] { Ask(); })
{
}

LoopWatch::~LoopWatch()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void LoopWatch::Ask()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_changed.wait_for(lock, m_between, [this] { return m_isEnding; })) {
        m_isAsked = true;
        m_since.start();
        QCoreApplication::postEvent(this, new QEvent(Question()));
        m_changed.wait(lock, [this] { return m_isEnding || !m_isAsked; });
    }
}

bool LoopWatch::event(QEvent* event)
{
    if (event->type() != Question())
        return QObject::event(event);
    double wait = 0;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        wait = double(m_since.nsecsElapsed()) / kMillisecond;
        m_isAsked = false;
    }
    m_changed.notify_all();
    Q_EMIT Answered(wait);
    return true;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/TaskThread.h"

namespace nle {

TaskThread::~TaskThread()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_tasks.clear();
        m_isEnding = true;
    }
    m_changed.notify_one();
    if (m_thread.joinable())
        m_thread.join();
}

void TaskThread::Post(std::function<void()> task)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_tasks.push_back(std::move(task));
    if (!m_thread.joinable())
        m_thread = std::thread([this] { Run(); });
    m_changed.notify_one();
}

void TaskThread::Clear()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_tasks.clear();
}

void TaskThread::Run()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_isEnding || !m_tasks.empty(); });
        if (m_isEnding)
            return;
        const std::function<void()> task = std::move(m_tasks.front());
        m_tasks.pop_front();
        lock.unlock();
        task();
        lock.lock();
    }
}

} // namespace nle

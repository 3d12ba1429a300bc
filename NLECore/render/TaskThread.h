// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace nle {

/// A thread that does one task after the other. It starts with the first task.
class TaskThread
{
public:
    TaskThread() = default;
    /// Drops the tasks that wait and lets the running one end.
    ~TaskThread();
    TaskThread(const TaskThread&) = delete;
    TaskThread& operator=(const TaskThread&) = delete;

    void Post(std::function<void()> task);
    /// Drops the tasks that wait.
    void Clear();

private:
    void Run();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_tasks;
    bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace nle

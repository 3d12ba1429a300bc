// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <functional>
#include <memory>
#include <thread>

namespace nle {

/// A thread that does \a work; not joinable when the system has none left.
std::thread StartThread(const std::function<void()>& work);

/// A thread that does one task after the other. It starts with the first task.
class TaskThread
{
public:
    TaskThread();
    /// Drops the tasks that wait and lets the running one end. Does not wait when that is what
    /// calls it.
    ~TaskThread();
    TaskThread(const TaskThread&) = delete;
    TaskThread& operator=(const TaskThread&) = delete;

    /// Starts before the first task, so that Post succeeds; false when there is no thread.
    bool Start();
    /// False when there is no thread; the task is dropped then.
    bool Post(std::function<void()> task);
    /// Drops the tasks that wait.
    void Clear();

private:
    struct Shared;

    /// Lives as long as this object or its thread.
    const std::shared_ptr<Shared> m_shared;
};

} // namespace nle

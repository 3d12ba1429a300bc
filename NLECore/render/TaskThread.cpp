// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/TaskThread.h"

#include "NLECore/media/EngineLog.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>

namespace nle {

struct TaskThread::Shared
{
    std::mutex mutex; ///< guards the rest
    std::condition_variable changed;
    std::deque<std::function<void()>> tasks;
    bool isEnding = false;
    std::thread thread;

    void Run();
};

std::thread StartThread(const std::function<void()>& work)
{
    try {
        return std::thread(work);
    } catch (const std::system_error& error) {
        qCWarning(lcEngine, "no thread: %s", error.what());
    }
    return {};
}

TaskThread::TaskThread() : m_shared(std::make_shared<Shared>()) {}

TaskThread::~TaskThread()
{
    {
        const std::lock_guard<std::mutex> lock(m_shared->mutex);
        m_shared->tasks.clear();
        m_shared->isEnding = true;
    }
    m_shared->changed.notify_one();
    if (m_shared->thread.get_id() == std::this_thread::get_id())
        m_shared->thread.detach();
    else if (m_shared->thread.joinable())
        m_shared->thread.join();
}

bool TaskThread::Start()
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    if (!m_shared->thread.joinable())
        m_shared->thread = StartThread([shared = m_shared] { shared->Run(); });
    return m_shared->thread.joinable();
}

bool TaskThread::Post(std::function<void()> task)
{
    if (!Start())
        return false;
    {
        const std::lock_guard<std::mutex> lock(m_shared->mutex);
        m_shared->tasks.push_back(std::move(task));
    }
    m_shared->changed.notify_one();
    return true;
}

void TaskThread::Clear()
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    m_shared->tasks.clear();
}

void TaskThread::Shared::Run()
{
    std::unique_lock<std::mutex> lock(mutex);
    for (;;) {
        changed.wait(lock, [this] { return isEnding || !tasks.empty(); });
        if (isEnding)
            return;
        std::function<void()> task = std::move(tasks.front());
        tasks.pop_front();
        lock.unlock();
        task();
        task = nullptr;
        lock.lock();
    }
}

} // namespace nle

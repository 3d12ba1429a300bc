// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ThreadPriority.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

/// A thread that does jobs, the newest first: what was asked for last is what shows. Jobs are known
/// by keys.
template <typename Key>
class NewestFirst
{
public:
    /// \a isEnding becomes true when the result is of no use any more.
    using Job = std::function<void(const std::atomic<bool>& isEnding)>;

    explicit NewestFirst(std::size_t most) : m_most(most), m_thread([this] { Run(); }) {}
    /// Drops what waits, and waits for the job that is being done.
    ~NewestFirst()
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_isEnding = true;
        }
        m_wake.notify_one();
        m_thread.join();
    }
    NewestFirst(const NewestFirst&) = delete;
    NewestFirst& operator=(const NewestFirst&) = delete;

    /// Takes a job. When too many wait then, gives the key of the oldest one, which is dropped.
    std::optional<Key> Post(const Key& key, Job job)
    {
        std::optional<Key> dropped;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_waiting.emplace_back(key, std::move(job));
            if (m_waiting.size() > m_most) {
                dropped = m_waiting.front().first;
                m_waiting.pop_front();
            }
        }
        m_wake.notify_one();
        return dropped;
    }

private:
    void Run()
    {
        LowerThreadPriority();
        while (const Job job = Take())
            job(m_isEnding);
    }
    /// Waits for a job; an empty one at the end.
    Job Take()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_wake.wait(lock, [this] { return m_isEnding || !m_waiting.empty(); });
        if (m_isEnding)
            return {};
        Job job = std::move(m_waiting.back().second);
        m_waiting.pop_back();
        return job;
    }

    const std::size_t m_most;
    std::mutex m_mutex; ///< m_waiting
    std::condition_variable m_wake;
    std::deque<std::pair<Key, Job>> m_waiting; ///< the newest is the last
    std::atomic<bool> m_isEnding{false};
    std::thread m_thread;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/MediaStore.h"
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/WorkThreads.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <new>
#include <system_error>
#include <thread>

namespace nle {
namespace {

using namespace std::chrono;

// Opening a file mostly waits for the disk, so two at a time pay on one processor as well.
constexpr int kFewestThreads = 2;
constexpr int kMostThreads = 8;

MediaStore::Result Probe(const QString& path)
{
    try {
        MediaStore::Result result;
        result.info = ProbeMedia(path, &result.error);
        return result;
    } catch (const std::bad_alloc&) {
        return {nullptr, path + QStringLiteral(": out of memory")};
    }
}

// Threads that share out tasks; all have ended when this goes away.
class Crew
{
public:
    explicit Crew(int tasks) : m_tasks(tasks) {}
    ~Crew()
    {
        m_next = m_tasks;
        Join();
    }
    Crew(const Crew&) = delete;
    Crew& operator=(const Crew&) = delete;

    // Does all tasks on this and at most so many other threads.
    template <typename Task>
    void Run(int others, const Task& task)
    {
        const auto work = [this, &task] {
            for (int i = m_next++; i < m_tasks; i = m_next++)
                task(i);
        };
        try {
            while (int(m_threads.size()) < others)
                m_threads.emplace_back(work);
        } catch (const std::system_error&) {
            // Those that started, and this one, do it all.
        }
        work();
    }

    void Join()
    {
        for (std::thread& thread : m_threads)
            thread.join();
        m_threads.clear();
    }

private:
    const int m_tasks;
    std::atomic<int> m_next{0};
    std::vector<std::thread> m_threads;
};

} // namespace

MediaStore::MediaStore(int capacity) : m_capacity(std::max(1, capacity)) {}

MediaStore::Answer MediaStore::Find(const QString& path, const FileStamp& stamp)
{
    const auto place = m_guarded.places.constFind(path);
    if (place == m_guarded.places.constEnd() || !((*place)->stamp == stamp))
        return {};
    m_guarded.entries.splice(m_guarded.entries.begin(), m_guarded.entries, *place);
    return (*place)->answer;
}

std::uint64_t MediaStore::Insert(const QString& path, const FileStamp& stamp, const Answer& answer)
{
    Remove(path);
    // Held by none but the caller when there is no memory: else the promise would be broken then.
    Entries entry;
    entry.push_front({path, stamp, answer, ++m_guarded.lastNumber});
    m_guarded.places.insert(path, entry.begin());
    m_guarded.entries.splice(m_guarded.entries.begin(), entry);
    if (m_guarded.places.size() > m_capacity)
        Remove(QString(m_guarded.entries.back().path));
    return m_guarded.lastNumber;
}

void MediaStore::Remove(const QString& path)
{
    const auto place = m_guarded.places.find(path);
    if (place == m_guarded.places.end())
        return;
    m_guarded.entries.erase(*place);
    m_guarded.places.erase(place);
}

void MediaStore::Forget(const QString& path, std::uint64_t number)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto place = m_guarded.places.constFind(path);
    if (place != m_guarded.places.constEnd() && (*place)->number == number)
        Remove(path);
}

MediaStore::Result MediaStore::Describe(const QString& path)
{
    const FileStamp stamp = StampOf(path);
    if (stamp.size < 0)
        return Probe(path);
    std::packaged_task<Result()> task([&path] { return Probe(path); });
    Answer answer;
    std::uint64_t number = 0;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        answer = Find(path, stamp);
        if (!answer.valid()) {
            answer = task.get_future().share();
            number = Insert(path, stamp, answer);
        }
    }
    if (number == 0)
        return answer.get();
    task();
    Result result = answer.get();
    const bool isLasting = result.info && result.info->stamp == stamp && !IsFresh(stamp);
    if (!isLasting)
        Forget(path, number);
    return result;
}

std::vector<MediaStore::Result> MediaStore::DescribeAll(const QStringList& paths)
{
    std::vector<Result> results(size_t(paths.size()));
    const int threads = std::max(WorkThreads(kMostThreads), kFewestThreads);
    const auto describe = [&](int i) {
        try {
            results[size_t(i)] = Describe(paths[i]);
        } catch (const std::bad_alloc&) {
            // The result stays empty, as that of a file that cannot be read.
        }
    };
    Crew crew(paths.size()); // ends before what its threads use
    crew.Run(std::min(threads, int(paths.size())) - 1, describe);
    crew.Join();
    return results;
}

void MediaStore::Clear()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_guarded.places.clear();
    m_guarded.entries.clear();
}

} // namespace nle

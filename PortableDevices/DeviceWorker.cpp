// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/DeviceWorker.h"

#include "Com/ComGuard.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <thread>

namespace devices {
namespace {

// How often an idle device is looked after.
constexpr std::chrono::milliseconds kPresenceInterval{500};
// How often who waits for a result looks whether the device hangs.
constexpr std::chrono::milliseconds kLookInterval{100};
// The time that a device has to end what was cancelled, and a session to end.
constexpr std::chrono::milliseconds kPatience{1200};

struct Job
{
    DeviceWorker::Task task;
    std::function<void()> cleanup; // instead of a task
    std::promise<HRESULT> result;
    GPtr<GCancellable> cancellable;
};

} // namespace

// Shared with the thread, which may outlive the worker for the length of a listener's call.
struct DeviceWorker::State
{
    explicit State(std::unique_ptr<DeviceSession> opened) : session(std::move(opened)) {}

    void Loop();
    template <typename Work>
    void Unlocked(std::unique_lock<std::mutex>& lock, GPtr<GCancellable> cancellable, Work work);
    bool IsStuck();
    void Perform(Job& job);
    HRESULT ResultOf(const Job& job);
    void AnnounceRemoval();
    void WaitForCall(std::unique_lock<std::mutex>& lock, unsigned listener);

    std::unique_ptr<DeviceSession> session; // the thread's own
    bool isOpened = false;                  // the thread's own: an operation has succeeded

    std::atomic<bool> isRemoved{false};
    std::atomic<unsigned> cancelCount{0};
    std::thread thread;
    std::thread::id threadId;

    struct Guarded
    {
        std::deque<Job> jobs;
        GPtr<GCancellable> running; // ends what the thread is at; null while it waits
        DeviceWorker::Clock::time_point endOfPatience; // with what runs, since it was cancelled
        bool isClosed = false;
        std::map<unsigned, Listener> listeners;
        unsigned lastListener = 0;
        unsigned calledListener = 0; // 0 when no call is under way
        bool isStopping = false;
        bool hasEnded = false;
        bool isAnnounced = false;
    };
    std::mutex mutex; // guards `guarded`
    Guarded guarded;
    std::condition_variable wake;
    std::condition_variable callEnded;
    std::condition_variable ended;
};

void DeviceWorker::State::Loop()
{
    // Mounting waits on a context of this thread's own.
    const GPtr<GMainContext> context(g_main_context_new());
    g_main_context_push_thread_default(context.get());
    std::unique_lock lock(mutex);
    while (!guarded.isStopping || !guarded.jobs.empty()) {
        wake.wait_for(lock, kPresenceInterval, [this] {
            return guarded.isStopping || !guarded.jobs.empty() ||
                   (isRemoved && !guarded.isAnnounced);
        });
        if (!guarded.jobs.empty()) {
            Job job = std::move(guarded.jobs.front());
            guarded.jobs.pop_front();
            Unlocked(lock, Share(job.cancellable.get()), [&] { Perform(job); });
        } else if (isOpened && !isRemoved) {
            Unlocked(lock, GPtr<GCancellable>(g_cancellable_new()),
                     [this] { isRemoved = session && !session->IsPresent(false); });
        }
        if (isRemoved && !guarded.isAnnounced && !guarded.isStopping) {
            guarded.isAnnounced = true;
            Unlocked(lock, GPtr<GCancellable>(g_cancellable_new()), [this] { AnnounceRemoval(); });
        }
    }
    lock.unlock();
    session.reset();
    g_main_context_pop_thread_default(context.get());
    lock.lock();
    guarded.hasEnded = true;
    ended.notify_all();
}

// Runs \a work as what \a cancellable ends.
template <typename Work>
void DeviceWorker::State::Unlocked(std::unique_lock<std::mutex>& lock,
                                   GPtr<GCancellable> cancellable, Work work)
{
    guarded.running = std::move(cancellable);
    guarded.endOfPatience = {};
    lock.unlock();
    work();
    lock.lock();
    guarded.running.reset();
}

// Whether what runs was cancelled long ago.
bool DeviceWorker::State::IsStuck()
{
    const std::lock_guard lock(mutex);
    if (!guarded.running || !g_cancellable_is_cancelled(guarded.running.get()))
        return false;
    if (guarded.endOfPatience == Clock::time_point())
        guarded.endOfPatience = Clock::now() + kPatience;
    return Clock::now() >= guarded.endOfPatience;
}

void DeviceWorker::State::Perform(Job& job)
{
    if (job.cleanup) {
        job.cleanup();
        return;
    }
    job.result.set_value(ResultOf(job));
}

HRESULT DeviceWorker::State::ResultOf(const Job& job)
{
    if (!session)
        return kNotOpen;
    if (!isRemoved && isOpened && !session->IsPresent(false))
        isRemoved = true;
    if (isRemoved)
        return kDeviceGone;
    if (g_cancellable_is_cancelled(job.cancellable.get()))
        return kCancelled;
    const HRESULT result = ComGuard([&] { return job.task(*session, job.cancellable.get()); });
    if (SUCCEEDED(result)) {
        isOpened = true;
        return result;
    }
    if (isOpened && !isRemoved && result != kCancelled && !session->IsPresent(true))
        isRemoved = true;
    return isRemoved ? kDeviceGone : result;
}

void DeviceWorker::State::AnnounceRemoval()
{
    std::unique_lock lock(mutex);
    while (!guarded.listeners.empty() && !guarded.isStopping) {
        const auto first = guarded.listeners.begin();
        guarded.calledListener = first->first;
        const Listener listener = std::move(first->second);
        first->second = nullptr;
        lock.unlock();
        if (listener)
            listener();
        lock.lock();
        guarded.listeners.erase(guarded.calledListener);
        guarded.calledListener = 0;
        callEnded.notify_all();
    }
}

void DeviceWorker::State::WaitForCall(std::unique_lock<std::mutex>& lock, unsigned listener)
{
    if (listener != 0 && std::this_thread::get_id() != threadId)
        callEnded.wait(lock, [this, listener] { return guarded.calledListener != listener; });
}

DeviceWorker::DeviceWorker(std::unique_ptr<DeviceSession> session)
    : m_state(std::make_shared<State>(std::move(session)))
{
    const std::lock_guard lock(m_state->mutex);
    m_state->thread = std::thread([state = m_state] { state->Loop(); });
    m_state->threadId = m_state->thread.get_id();
}

DeviceWorker::~DeviceWorker()
{
    // Without memory what runs has the time that a hanging device has.
    ComGuard([this] {
        Cancel();
        return S_OK;
    });
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->guarded.isStopping = true;
        m_state->guarded.listeners.clear();
    }
    m_state->wake.notify_all();
    // The last reference to a device may be given back by a listener.
    bool hasEnded = std::this_thread::get_id() != m_state->threadId;
    if (hasEnded) {
        // Who waited for it already has used up the patience.
        m_state->IsStuck();
        std::unique_lock lock(m_state->mutex);
        const State::Guarded& guarded = m_state->guarded;
        const bool isWaitedFor = guarded.running && guarded.endOfPatience != Clock::time_point();
        const auto end = isWaitedFor ? guarded.endOfPatience : Clock::now() + kPatience;
        hasEnded =
            m_state->ended.wait_until(lock, end, [this] { return m_state->guarded.hasEnded; });
    }
    if (hasEnded)
        m_state->thread.join();
    else
        m_state->thread.detach();
}

DeviceWorker::Pending DeviceWorker::Start(Task task)
{
    Job job;
    job.task = std::move(task);
    job.cancellable.reset(g_cancellable_new());
    Pending pending{job.result.get_future(), Share(job.cancellable.get())};
    if (m_state->IsStuck()) {
        job.result.set_value(m_state->isRemoved ? kDeviceGone : kTimedOut);
        return pending;
    }
    {
        const std::lock_guard lock(m_state->mutex);
        if (m_state->guarded.isClosed)
            job.result.set_value(kNotOpen);
        else
            m_state->guarded.jobs.push_back(std::move(job));
    }
    m_state->wake.notify_one();
    return pending;
}

HRESULT DeviceWorker::Run(Task task)
{
    // A listener's own call cannot wait for its thread, which is free for it.
    if (std::this_thread::get_id() == m_state->threadId) {
        Job job;
        job.task = std::move(task);
        job.cancellable.reset(g_cancellable_new());
        return m_state->ResultOf(job);
    }
    return Finish(Start(std::move(task)));
}

HRESULT DeviceWorker::Finish(const Pending& pending, Clock::time_point deadline)
{
    while (pending.result.wait_for(kLookInterval) != std::future_status::ready) {
        if (Clock::now() >= deadline)
            g_cancellable_cancel(pending.cancellable.get());
        if (!m_state->IsStuck())
            continue;
        const bool wasCancelled = g_cancellable_is_cancelled(pending.cancellable.get());
        g_cancellable_cancel(pending.cancellable.get()); // it may not have had its turn yet
        return m_state->isRemoved ? kDeviceGone : wasCancelled ? kCancelled : kTimedOut;
    }
    return pending.result.get();
}

void DeviceWorker::StartCleanup(std::function<void()> cleanup)
{
    Job job;
    job.cleanup = std::move(cleanup);
    job.cancellable.reset(g_cancellable_new());
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->guarded.jobs.push_back(std::move(job));
    }
    m_state->wake.notify_one();
}

void DeviceWorker::Cancel()
{
    std::vector<GPtr<GCancellable>> targets;
    {
        const std::lock_guard lock(m_state->mutex);
        ++m_state->cancelCount;
        if (m_state->guarded.running)
            targets.push_back(Share(m_state->guarded.running.get()));
        for (const Job& job : m_state->guarded.jobs)
            targets.push_back(Share(job.cancellable.get()));
    }
    for (const GPtr<GCancellable>& target : targets)
        g_cancellable_cancel(target.get());
}

unsigned DeviceWorker::CancelCount() const
{
    return m_state->cancelCount;
}

HRESULT DeviceWorker::ResultSince(unsigned count) const
{
    if (m_state->isRemoved)
        return kDeviceGone;
    return m_state->cancelCount == count ? S_OK : kCancelled;
}

void DeviceWorker::Close()
{
    Cancel();
    {
        std::unique_lock lock(m_state->mutex);
        m_state->guarded.isClosed = true;
        m_state->guarded.listeners.clear();
        m_state->WaitForCall(lock, m_state->guarded.calledListener);
    }
    StartCleanup([state = m_state.get()] { state->session.reset(); });
}

void DeviceWorker::NoteRemoval()
{
    m_state->isRemoved = true;
    Cancel();
    // Under the lock, so that the thread is either waiting or yet to look.
    {
        const std::lock_guard lock(m_state->mutex);
    }
    m_state->wake.notify_all();
}

unsigned DeviceWorker::AddListener(Listener listener)
{
    const std::lock_guard lock(m_state->mutex);
    if (m_state->isRemoved)
        return 0;
    m_state->guarded.listeners.emplace(++m_state->guarded.lastListener, std::move(listener));
    return m_state->guarded.lastListener;
}

bool DeviceWorker::RemoveListener(unsigned number)
{
    std::unique_lock lock(m_state->mutex);
    const bool isKnown = m_state->guarded.listeners.erase(number) > 0;
    m_state->WaitForCall(lock, number);
    return isKnown;
}

} // namespace devices

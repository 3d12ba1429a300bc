// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "PortableDevices/DeviceSession.h"
#include "PortableDevices/GlibPointers.h"

#include <chrono>
#include <functional>
#include <future>
#include <memory>

namespace devices {

/// The one thread of an open device. It runs every operation of the session in turn, notices the
/// removal of the device, and tells the listeners about it.
///
/// All operations may be called from any thread, the listeners' calls included.
///
/// Nobody waits long for a device that stopped answering: what was cancelled and does not end is
/// left to the thread, and the thread to itself. So a task owns what it uses, or shares it.
class DeviceWorker
{
public:
    using Task = std::function<HRESULT(DeviceSession& session, GCancellable* cancellable)>;
    using Listener = std::function<void()>;
    using Clock = std::chrono::steady_clock;

    /// An operation that runs or waits for its turn.
    struct Pending
    {
        std::shared_future<HRESULT> result;
        GPtr<GCancellable> cancellable; // ends this operation alone
    };

    explicit DeviceWorker(std::unique_ptr<DeviceSession> session);
    DeviceWorker(const DeviceWorker&) = delete;
    DeviceWorker& operator=(const DeviceWorker&) = delete;
    /// Ends what runs, then the thread, which goes on without the worker when it hangs. No listener
    /// is called afterwards.
    ~DeviceWorker();

    /// Runs \a task and waits for its result: kCancelled after Cancel(), kDeviceGone when the
    /// device is or gets removed, kTimedOut while it hangs in something that was cancelled.
    HRESULT Run(Task task);
    /// Runs \a task without waiting.
    Pending Start(Task task);
    /// Waits for the result, as Run(); cancels the operation at \a deadline.
    HRESULT Finish(const Pending& pending, Clock::time_point deadline = Clock::time_point::max());
    /// Runs \a cleanup even when the device is gone or closed; for what lives on its thread.
    void StartCleanup(std::function<void()> cleanup);

    /// Ends the operations that run or wait.
    void Cancel();
    /// Counts the ends of everything under way, through Cancel() or the removal.
    unsigned CancelCount() const;
    /// S_OK when nothing was ended since CancelCount() gave \a count, else kDeviceGone or
    /// kCancelled.
    HRESULT ResultSince(unsigned count) const;
    /// Ends the session; every later operation gives kNotOpen.
    void Close();
    /// Tells that the device was removed, when somebody else noticed.
    void NoteRemoval();

    /// Calls \a listener once when the device is removed, from the device's thread. Gives its
    /// number; 0 when the device is gone already.
    unsigned AddListener(Listener listener);
    /// Returns false when there is no such listener. A call that is under way is waited for, except
    /// by the listener itself; no call comes afterwards.
    bool RemoveListener(unsigned number);

private:
    struct State;

    const std::shared_ptr<State> m_state;
};

} // namespace devices

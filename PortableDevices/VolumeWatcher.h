// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "PortableDevices/DeviceList.h"
#include "PortableDevices/GlibPointers.h"

#include <condition_variable>
#include <mutex>

namespace devices {

/// The system's volume monitors: phones, cameras, card readers and removable disks.
///
/// A thread of its own runs the context that they report to, so it does not matter which threads
/// ask and what event loop the host has. GLib's own collection of the monitors is left alone: it
/// belongs to the main thread, and made here it would call the handlers of the host's dialogs from
/// this thread. Those of GVfs, which are locked and may be used from any thread, know all volumes.
class VolumeWatcher
{
public:
    /// Lives until the process ends, as do its threads. Throws std::system_error while one of them
    /// cannot be started; the next call tries again.
    static VolumeWatcher& Instance();

    /// The devices that are there; nothing without a session bus or GVfs.
    std::vector<DeviceEntry> Entries();

    /// Tells \a device when it is removed, as long as it lives.
    void Watch(const std::shared_ptr<OpenDevice>& device);
    /// Has GVfs look, in this process, whether the mount of the root \a uri is still the one that
    /// it was when this was called last. Otherwise it would ask the daemon that has gone when the
    /// same device is plugged in again.
    void FollowMount(const std::string& uri);

private:
    VolumeWatcher();

    void Start();
    void Loop();
    void FollowMounts();
    void AddMonitors(const char* extensionPoint);
    void Update();

    const GPtr<GMainContext> m_context;
    const GPtr<GMainContext> m_mountContext;      // of the thread that follows mounts
    std::vector<GPtr<GVolumeMonitor>> m_monitors; // complete when it is ready
    std::condition_variable m_ready;

    struct Guarded
    {
        bool isLooping = false;   // the thread of m_context is there
        bool isFollowing = false; // that of m_mountContext
        bool isReady = false;
        std::vector<DeviceEntry> entries;
        std::vector<std::weak_ptr<OpenDevice>> watched;
    };
    std::mutex m_mutex; // guards m_guarded
    Guarded m_guarded;
};

} // namespace devices

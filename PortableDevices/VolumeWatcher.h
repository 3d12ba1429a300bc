// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "PortableDevices/DeviceList.h"
#include "PortableDevices/GlibPointers.h"

#include <mutex>

namespace devices {

/// The system's volume monitor: phones, cameras, card readers and removable disks.
///
/// The monitor belongs to the main thread. It learns what comes and goes when that thread runs its
/// event loop: through the GLib dispatcher where the loop has one, else through a timer.
class VolumeWatcher
{
public:
    /// Lives until the process ends.
    static VolumeWatcher& instance();

    /// The devices that are there; nothing without a session bus or GVfs. On another thread than
    /// the main one these are the devices of the last call there.
    std::vector<DeviceEntry> entries();

    /// Tells \a device when it is removed, as long as it lives.
    void watch(const std::shared_ptr<OpenDevice>& device);
    /// Has GVfs notice, in this process, when the mount of the root \a uri ends. Otherwise it
    /// would ask the daemon that has gone when the same device is plugged in again.
    static void followMount(const std::string& uri);

private:
    VolumeWatcher() = default;

    bool isMainThread();
    void connect();
    void keepTurning();
    void noteRemoval(GFile* root);

    static void volumeRemoved(GVolumeMonitor* monitor, GVolume* volume, gpointer self);
    static void mountRemoved(GVolumeMonitor* monitor, GMount* mount, gpointer self);

    GPtr<GVolumeMonitor> m_monitor; // the main thread's
    std::mutex m_mutex;             // guards what follows
    std::vector<DeviceEntry> m_entries;
    std::vector<std::weak_ptr<OpenDevice>> m_watched;
};

} // namespace devices

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/VolumeWatcher.h"

#include "PortableDevices/WideText.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <thread>

namespace devices {
namespace {

// How long the first list waits for the monitors, which may have to be started.
constexpr std::chrono::seconds kStartLimit{10};
constexpr unsigned kAnswerLimit =
    2000; // ms that the daemon of a mount has to tell that it is there

struct ObjectListDeleter
{
    void operator()(GList* list) const { g_list_free_full(list, g_object_unref); }
};
using ObjectList = std::unique_ptr<GList, ObjectListDeleter>;

bool HasScheme(GFile* root, const char* scheme)
{
    return g_file_has_uri_scheme(root, scheme);
}

// "/dev/bus/usb/BBB/DDD", or empty.
std::string UsbNode(GVolume* volume)
{
    const GPtr<char> node(
        volume ? g_volume_get_identifier(volume, G_VOLUME_IDENTIFIER_KIND_UNIX_DEVICE) : nullptr);
    return node && g_str_has_prefix(node.get(), "/dev/bus/usb/") ? node.get() : std::string();
}

// "usb:BBB,DDD"
std::string CameraPort(const std::string& node)
{
    unsigned bus = 0;
    unsigned device = 0;
    if (std::sscanf(node.c_str(), "/dev/bus/usb/%u/%u", &bus, &device) != 2)
        return {};
    const GPtr<char> port(g_strdup_printf("usb:%03u,%03u", bus, device));
    return port.get();
}

DeviceEntry MakeEntry(GFile* root, const char* name, GVolume* volume)
{
    DeviceEntry entry;
    entry.uri = GPtr<char>(g_file_get_uri(root)).get();
    entry.id = WideText(entry.uri.c_str());
    entry.name = WideText(name);
    const bool isCamera = HasScheme(root, "gphoto2");
    const bool isPhone = HasScheme(root, "mtp") || HasScheme(root, "afc");
    entry.description = isCamera ? L"Camera" : isPhone ? L"Phone or player" : L"Removable disk";
    entry.hasStorages = isCamera || HasScheme(root, "mtp");
    entry.usbNode = UsbNode(volume);
    if (isCamera)
        entry.cameraPort = CameraPort(entry.usbNode);
    return entry;
}

bool IsPortable(GFile* root, GDrive* drive)
{
    if (HasScheme(root, "gphoto2") || HasScheme(root, "mtp") || HasScheme(root, "afc"))
        return true;
    return drive && (g_drive_is_removable(drive) || g_drive_is_media_removable(drive));
}

void AddEntry(std::vector<DeviceEntry>& entries, const GPtr<GFile>& root, const char* name,
              GVolume* volume, GDrive* drive)
{
    if (!root || !IsPortable(root.get(), drive))
        return;
    DeviceEntry entry = MakeEntry(root.get(), name, volume);
    const auto isSame = [&entry](const DeviceEntry& known) { return known.id == entry.id; };
    if (std::none_of(entries.begin(), entries.end(), isSame))
        entries.push_back(std::move(entry));
}

// A phone that is not mounted yet is reached through the root that it is going to have.
GPtr<GFile> RootOf(GVolume* volume)
{
    const GPtr<GMount> mount(g_volume_get_mount(volume));
    return GPtr<GFile>(mount ? g_mount_get_root(mount.get())
                             : g_volume_get_activation_root(volume));
}

void ReadMonitor(GVolumeMonitor* monitor, std::vector<DeviceEntry>& entries)
{
    const ObjectList volumes(g_volume_monitor_get_volumes(monitor));
    for (GList* at = volumes.get(); at; at = at->next) {
        GVolume* volume = G_VOLUME(at->data);
        const GPtr<char> name(g_volume_get_name(volume));
        const GPtr<GDrive> drive(g_volume_get_drive(volume));
        AddEntry(entries, RootOf(volume), name.get(), volume, drive.get());
    }
    const ObjectList mounts(g_volume_monitor_get_mounts(monitor));
    for (GList* at = mounts.get(); at; at = at->next) {
        GMount* mount = G_MOUNT(at->data);
        const GPtr<char> name(g_mount_get_name(mount));
        const GPtr<GVolume> volume(g_mount_get_volume(mount));
        const GPtr<GDrive> drive(g_mount_get_drive(mount));
        AddEntry(entries, GPtr<GFile>(g_mount_get_root(mount)), name.get(), volume.get(),
                 drive.get());
    }
}

// Cancels after a while, from the thread that runs a context.
class Timer
{
public:
    Timer(GMainContext* context, unsigned milliseconds)
        : m_cancellable(g_cancellable_new()), m_source(g_timeout_source_new(milliseconds))
    {
        const auto cancel = [](gpointer target) -> gboolean {
            g_cancellable_cancel(G_CANCELLABLE(target));
            return G_SOURCE_REMOVE;
        };
        g_source_set_callback(m_source, cancel, g_object_ref(m_cancellable.get()), g_object_unref);
        g_source_attach(m_source, context);
    }
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    ~Timer()
    {
        g_source_destroy(m_source);
        g_source_unref(m_source);
    }
    GCancellable* Cancellable() const { return m_cancellable.get(); }

private:
    const GPtr<GCancellable> m_cancellable;
    GSource* const m_source;
};

// A device that was plugged in again is another one.
bool IsSame(const DeviceEntry& one, const DeviceEntry& other)
{
    return one.id == other.id && one.usbNode == other.usbNode;
}

} // namespace

VolumeWatcher& VolumeWatcher::Instance()
{
    static VolumeWatcher* const watcher = new VolumeWatcher;
    watcher->Start();
    return *watcher;
}

VolumeWatcher::VolumeWatcher()
    : m_context(g_main_context_new()), m_mountContext(g_main_context_new())
{
}

// Not in the constructor: when the second thread cannot start, the first one has the object.
void VolumeWatcher::Start()
{
    const std::lock_guard lock(m_mutex);
    if (!m_guarded.isLooping)
        std::thread([this] { Loop(); }).detach();
    m_guarded.isLooping = true;
    if (!m_guarded.isFollowing)
        std::thread([this] { FollowMounts(); }).detach();
    m_guarded.isFollowing = true;
}

// Apart from the rest, since a device that does not answer holds it up.
void VolumeWatcher::FollowMounts()
{
    g_main_context_push_thread_default(m_mountContext.get());
    for (;;)
        g_main_context_iteration(m_mountContext.get(), TRUE);
}

void VolumeWatcher::Loop()
{
    g_main_context_push_thread_default(m_context.get());
    // The end of a bus that was first used here must not end the host. Held, since GLib makes the
    // connection anew after the last reference.
    const GPtr<GDBusConnection> bus(g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, nullptr));
    if (bus)
        g_dbus_connection_set_exit_on_close(bus.get(), FALSE);
    g_vfs_get_default(); // loads the modules that have monitors
    AddMonitors(G_NATIVE_VOLUME_MONITOR_EXTENSION_POINT_NAME);
    AddMonitors(G_VOLUME_MONITOR_EXTENSION_POINT_NAME);
    {
        const std::lock_guard lock(m_mutex);
        m_guarded.isReady = true;
    }
    m_ready.notify_all();
    for (;;) {
        Update();
        g_main_context_iteration(m_context.get(), TRUE);
    }
}

void VolumeWatcher::AddMonitors(const char* extensionPoint)
{
    // Reports to a main loop, if there is one: of a monitor that was first used by the host.
    const auto changed = +[](VolumeWatcher* self) { self->Update(); };
    GIOExtensionPoint* point = g_io_extension_point_lookup(extensionPoint);
    for (GList* at = point ? g_io_extension_point_get_extensions(point) : nullptr; at;
         at = at->next) {
        const GType type = g_io_extension_get_type(static_cast<GIOExtension*>(at->data));
        const GType remote = g_type_from_name("GProxyVolumeMonitor");
        if (remote == 0 || !g_type_is_a(type, remote))
            continue;
        auto* monitorClass = static_cast<GVolumeMonitorClass*>(g_type_class_ref(type));
        if (monitorClass->is_supported()) {
            m_monitors.emplace_back(G_VOLUME_MONITOR(g_object_new(type, nullptr)));
            for (const char* signal : {"volume-removed", "mount-removed"})
                g_signal_connect_swapped(m_monitors.back().get(), signal, G_CALLBACK(changed),
                                         this);
        }
        g_type_class_unref(monitorClass);
    }
}

std::vector<DeviceEntry> VolumeWatcher::Entries()
{
    {
        std::unique_lock lock(m_mutex);
        if (!m_ready.wait_for(lock, kStartLimit, [this] { return m_guarded.isReady; }))
            return {};
    }
    Update();
    const std::lock_guard lock(m_mutex);
    return m_guarded.entries;
}

void VolumeWatcher::Update()
{
    std::vector<DeviceEntry> found;
    // What may be the last references ends outside of the lock, since ending waits for the device.
    std::vector<std::shared_ptr<OpenDevice>> watched;
    {
        const std::lock_guard lock(m_mutex);
        if (!m_guarded.isReady)
            return;
        for (const GPtr<GVolumeMonitor>& monitor : m_monitors)
            ReadMonitor(monitor.get(), found);
        found.swap(m_guarded.entries);
        const auto isGone = [this](const DeviceEntry& old) {
            return std::none_of(m_guarded.entries.begin(), m_guarded.entries.end(),
                                [&old](const DeviceEntry& entry) { return IsSame(entry, old); });
        };
        found.erase(std::partition(found.begin(), found.end(), isGone), found.end());
        for (const std::weak_ptr<OpenDevice>& known : m_guarded.watched)
            watched.push_back(known.lock());
    }
    for (const std::shared_ptr<OpenDevice>& device : watched) {
        const auto isOf = [&device](const DeviceEntry& old) { return old.id == device->Id(); };
        if (device && std::any_of(found.begin(), found.end(), isOf))
            device->Worker().NoteRemoval();
    }
}

void VolumeWatcher::Watch(const std::shared_ptr<OpenDevice>& device)
{
    const std::lock_guard lock(m_mutex);
    const auto isGone = [](const std::weak_ptr<OpenDevice>& known) { return known.expired(); };
    m_guarded.watched.erase(
        std::remove_if(m_guarded.watched.begin(), m_guarded.watched.end(), isGone),
        m_guarded.watched.end());
    m_guarded.watched.push_back(device);
}

void VolumeWatcher::FollowMount(const std::string& uri)
{
    // GVfs finds that a mount has ended when a thread asks once more over the connection that the
    // thread has had to it, and this thread stays. The answer itself does not matter.
    const auto ask = [](gpointer file) -> gboolean {
        const Timer timer(Instance().m_context.get(), kAnswerLimit);
        const GPtr<GFileInfo> info(g_file_query_info(G_FILE(file), G_FILE_ATTRIBUTE_STANDARD_TYPE,
                                                     G_FILE_QUERY_INFO_NONE, timer.Cancellable(),
                                                     nullptr));
        return G_SOURCE_REMOVE;
    };
    g_main_context_invoke_full(m_mountContext.get(), G_PRIORITY_DEFAULT, ask,
                               g_file_new_for_uri(uri.c_str()), g_object_unref);
}

} // namespace devices

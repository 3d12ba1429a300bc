// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/VolumeWatcher.h"

#include "PortableDevices/WideText.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <thread>

namespace devices {
namespace {

constexpr int kTurnInterval = 250; // ms between two turns of GLib's loop where Qt's does not run it

struct ObjectListDeleter
{
    void operator()(GList* list) const { g_list_free_full(list, g_object_unref); }
};
using ObjectList = std::unique_ptr<GList, ObjectListDeleter>;

bool HasScheme(GFile* root, const char* scheme)
{
    return g_file_has_uri_scheme(root, scheme);
}

// "usb:BBB,DDD" out of "/dev/bus/usb/BBB/DDD".
std::string CameraPort(GVolume* volume)
{
    const GPtr<char> node(
        volume ? g_volume_get_identifier(volume, G_VOLUME_IDENTIFIER_KIND_UNIX_DEVICE) : nullptr);
    unsigned bus = 0;
    unsigned device = 0;
    if (!node || std::sscanf(node.get(), "/dev/bus/usb/%u/%u", &bus, &device) != 2)
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
    if (isCamera)
        entry.cameraPort = CameraPort(volume);
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

std::vector<DeviceEntry> ReadMonitor(GVolumeMonitor* monitor)
{
    std::vector<DeviceEntry> entries;
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
    return entries;
}

} // namespace

VolumeWatcher& VolumeWatcher::instance()
{
    // Never destroyed: the monitor's signals may come as long as the main loop turns.
    static VolumeWatcher* const watcher = new VolumeWatcher;
    return *watcher;
}

bool VolumeWatcher::isMainThread()
{
    static const std::thread::id first = std::this_thread::get_id();
    const QCoreApplication* application = QCoreApplication::instance();
    return application ? application->thread() == QThread::currentThread()
                       : first == std::this_thread::get_id();
}

std::vector<DeviceEntry> VolumeWatcher::entries()
{
    if (isMainThread()) {
        connect();
        std::vector<DeviceEntry> entries = ReadMonitor(m_monitor.get());
        const std::lock_guard lock(m_mutex);
        m_entries = std::move(entries);
    }
    const std::lock_guard lock(m_mutex);
    return m_entries;
}

void VolumeWatcher::connect()
{
    if (m_monitor)
        return;
    m_monitor.reset(g_volume_monitor_get());
    g_signal_connect(m_monitor.get(), "volume-removed", G_CALLBACK(&VolumeWatcher::volumeRemoved),
                     this);
    g_signal_connect(m_monitor.get(), "mount-removed", G_CALLBACK(&VolumeWatcher::mountRemoved),
                     this);
    keepTurning();
}

void VolumeWatcher::keepTurning()
{
    const QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
    if (!dispatcher || dispatcher->inherits("QEventDispatcherGlib"))
        return;
    auto* timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, [] {
        while (g_main_context_iteration(nullptr, FALSE)) {
        }
    });
    timer->start(kTurnInterval);
}

void VolumeWatcher::watch(const std::shared_ptr<OpenDevice>& device)
{
    const std::lock_guard lock(m_mutex);
    const auto isGone = [](const std::weak_ptr<OpenDevice>& known) { return known.expired(); };
    m_watched.erase(std::remove_if(m_watched.begin(), m_watched.end(), isGone), m_watched.end());
    m_watched.push_back(device);
}

void VolumeWatcher::followMount(const std::string& uri)
{
    // GVfs drops what it remembers of a mount when the connection of an asynchronous call ends,
    // and the one of the main thread stays. The answer itself does not matter.
    const auto ask = [](gpointer file) -> gboolean {
        const auto ignore = [](GObject* source, GAsyncResult* result, gpointer) {
            const GPtr<GFileInfo> info(g_file_query_info_finish(G_FILE(source), result, nullptr));
        };
        g_file_query_info_async(G_FILE(file), G_FILE_ATTRIBUTE_STANDARD_TYPE,
                                G_FILE_QUERY_INFO_NONE, G_PRIORITY_DEFAULT, nullptr, ignore,
                                nullptr);
        return G_SOURCE_REMOVE;
    };
    GFile* root = g_file_new_for_uri(uri.c_str());
    if (g_file_is_native(root))
        g_object_unref(root);
    else
        g_main_context_invoke_full(nullptr, G_PRIORITY_DEFAULT, ask, root, g_object_unref);
}

void VolumeWatcher::noteRemoval(GFile* root)
{
    const std::wstring id = WideText(GPtr<char>(g_file_get_uri(root)).get());
    std::vector<std::shared_ptr<OpenDevice>> gone;
    {
        const std::lock_guard lock(m_mutex);
        for (const std::weak_ptr<OpenDevice>& known : m_watched) {
            if (std::shared_ptr<OpenDevice> device = known.lock(); device && device->id() == id)
                gone.push_back(std::move(device));
        }
    }
    for (const std::shared_ptr<OpenDevice>& device : gone)
        device->worker().noteRemoval();
}

void VolumeWatcher::volumeRemoved(GVolumeMonitor* /*monitor*/, GVolume* volume, gpointer self)
{
    if (const GPtr<GFile> root{g_volume_get_activation_root(volume)})
        static_cast<VolumeWatcher*>(self)->noteRemoval(root.get());
}

void VolumeWatcher::mountRemoved(GVolumeMonitor* /*monitor*/, GMount* mount, gpointer self)
{
    const GPtr<GFile> root(g_mount_get_root(mount));
    // A camera's mount goes when the camera is opened, to make way.
    if (root && !HasScheme(root.get(), "gphoto2"))
        static_cast<VolumeWatcher*>(self)->noteRemoval(root.get());
}

} // namespace devices

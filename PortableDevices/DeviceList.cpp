// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/DeviceList.h"

#include "PortableDevices/CameraSession.h"
#include "PortableDevices/FileSession.h"
#include "PortableDevices/VolumeWatcher.h"
#include "PortableDevices/WideText.h"

#include <algorithm>

namespace devices {
namespace {

std::vector<DeviceEntry> ConfiguredFolders()
{
    std::vector<DeviceEntry> entries;
    const char* variable = g_getenv(kFoldersVariable);
    std::string paths = variable ? variable : "";
    while (!paths.empty()) {
        const std::size_t colon = std::min(paths.find(':'), paths.size());
        const std::string path = paths.substr(0, colon);
        paths.erase(0, colon + 1);
        if (path.empty() || !g_file_test(path.c_str(), G_FILE_TEST_IS_DIR))
            continue;
        const GPtr<GFile> folder(g_file_new_for_path(path.c_str()));
        const GPtr<char> name(g_file_get_basename(folder.get()));
        DeviceEntry entry;
        entry.uri = GPtr<char>(g_file_get_uri(folder.get())).get();
        entry.id = WideText(entry.uri.c_str());
        entry.name = WideText(name.get());
        entry.description = L"Folder";
        entries.push_back(std::move(entry));
    }
    return entries;
}

} // namespace

std::vector<DeviceEntry> ListDevices()
{
    std::vector<DeviceEntry> entries = ConfiguredFolders();
    for (DeviceEntry& entry : VolumeWatcher::Instance().Entries())
        entries.push_back(std::move(entry));
    return entries;
}

std::unique_ptr<DeviceSession> MakeSession(const DeviceEntry& entry)
{
    if (!entry.cameraPort.empty())
        return std::make_unique<CameraSession>(entry.uri, entry.cameraPort, entry.name);
    return std::make_unique<FileSession>(entry.uri, entry.name, entry.hasStorages, entry.usbNode);
}

} // namespace devices

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "PortableDevices/OpenDevice.h"

#include <memory>
#include <string>
#include <vector>

namespace devices {

/// Names the folders that are offered as devices, separated by colons.
constexpr const char* kFoldersVariable = "COMMONLIB_DEVICE_FOLDERS";

/// How a device is reached and what it is called.
struct DeviceEntry
{
    std::wstring id; ///< The URI of its root.
    std::wstring name;
    std::wstring description;
    std::string uri;
    std::string usbNode;      ///< "/dev/bus/usb/BBB/DDD" where it is known, else empty.
    std::string cameraPort;   ///< "usb:BBB,DDD" for a camera, else empty.
    bool hasStorages = false; ///< The folders in the root are storages.
};

/// All devices: the folders of kFoldersVariable, then what the system's volume monitor knows.
std::vector<DeviceEntry> ListDevices();

/// A session for \a entry, not opened yet.
std::unique_ptr<DeviceSession> MakeSession(const DeviceEntry& entry);

} // namespace devices

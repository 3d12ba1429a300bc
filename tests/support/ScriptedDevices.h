// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "DeviceApi/PortableDeviceApi.h"
#include "tests/support/ScriptedEngine.h"

#include <map>
#include <string>
#include <vector>

namespace Scripted {

struct DeviceEntry
{
    std::wstring id;
    std::wstring friendlyName;
    std::wstring description;
};

struct DeviceObject
{
    std::wstring parent;
    std::wstring name;
    std::uint64_t size = 0;
    bool isFolder = false;
    double date = 0;
    std::vector<std::wstring> children;
};

/// The portable devices that the scripted service knows; one for the process. Calls and statuses
/// are Script's: "manager.GetDevices", "device.Open", "content.Delete" and so on.
class DeviceScript
{
public:
    static DeviceScript& Get();

    std::vector<DeviceEntry> devices;
    bool readOnly = false; ///< refuses to open unless read access is all that is asked
    std::map<std::wstring, DeviceObject> objects; ///< by identifier
    DWORD bufferSize = 4096;                      ///< what streams call optimal
    ULONG readLimit = 0;                          ///< most that one read gives; 0 for no limit
    int stepsUntilVanished = -1;                  ///< calls that still succeed; negative for no end
    /// What Advise() was given last; stays after Unadvise(), as an event may be late.
    NLEComPtr<IPortableDeviceEventCallback> listener;

    /// Forgets everything and adds the root object.
    void Reset();
    /// Adds an object that is called as its identifier.
    void Add(const std::wstring& parent, const std::wstring& id, bool isFolder = false,
             std::uint64_t size = 0, double date = 0);
    /// The data of every object: its byte at \a offset.
    static char DataAt(std::uint64_t offset)
    {
        return static_cast<char>(offset * 31 + offset / 251);
    }
    /// What a listener is told of \a event.
    static NLEComPtr<IPortableDeviceValues> EventParameters(const _GUID& event);
};

/// What the service's module exports.
HRESULT GetDeviceClassObject(REFCLSID classId, REFIID iid, void** out);

/// Makes the scripted service the system's, where the system has one; once for the process.
void InstallDeviceService();

} // namespace Scripted

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "DeviceApi/PortableDeviceApi.h"
#include "PortableDevices/DeviceList.h"

#include <mutex>

namespace devices {

/// What CLSID_PortableDeviceManager makes. The list of devices is taken when it is first asked for
/// and by RefreshDeviceList(), so that numbers and names fit together in between.
class DeviceManager final : public ComObject<IPortableDeviceManager>
{
public:
    HRESULT GetDevices(LPWSTR* ids, DWORD* count) override;
    HRESULT RefreshDeviceList() override;
    HRESULT GetDeviceFriendlyName(LPCWSTR id, WCHAR* name, DWORD* length) override;
    HRESULT GetDeviceDescription(LPCWSTR id, WCHAR* description, DWORD* length) override;
    HRESULT GetDeviceManufacturer(LPCWSTR id, WCHAR* manufacturer, DWORD* length) override;
    HRESULT GetDeviceProperty(LPCWSTR id, LPCWSTR property, BYTE* data, DWORD* bytes,
                              DWORD* type) override;
    HRESULT GetPrivateDevices(LPWSTR* ids, DWORD* count) override;

private:
    HRESULT GiveText(LPCWSTR id, std::wstring DeviceEntry::*text, WCHAR* buffer, DWORD* length);

    struct Guarded
    {
        bool isListed = false;
        std::vector<DeviceEntry> entries;
    };
    std::mutex m_mutex; // guards m_guarded
    Guarded m_guarded;
};

} // namespace devices

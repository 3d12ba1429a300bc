// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/DeviceManager.h"

#include "Com/ComGuard.h"
#include "PortableDevices/PropertyValues.h"

#include <algorithm>

namespace devices {
namespace {

constexpr HRESULT kBufferTooSmall = FromSystemError(122);

} // namespace

HRESULT DeviceManager::RefreshDeviceList()
{
    return ComGuard([&] {
        std::vector<DeviceEntry> entries = ListDevices();
        const std::lock_guard lock(m_mutex);
        m_guarded.entries = std::move(entries);
        m_guarded.isListed = true;
        return S_OK;
    });
}

HRESULT DeviceManager::GetDevices(LPWSTR* ids, DWORD* count)
{
    if (!count)
        return E_POINTER;
    std::unique_lock lock(m_mutex);
    if (!m_guarded.isListed) {
        lock.unlock();
        if (const HRESULT result = RefreshDeviceList(); FAILED(result))
            return result;
        lock.lock();
    }
    const auto known = static_cast<DWORD>(m_guarded.entries.size());
    if (!ids)
        return GiveValue(count, known);
    const DWORD given = std::min(*count, known);
    for (DWORD i = 0; i < given; ++i)
        ids[i] = TaskText(m_guarded.entries[i].id.c_str());
    *count = given;
    return given == known ? S_OK : S_FALSE;
}

HRESULT DeviceManager::GiveText(LPCWSTR id, std::wstring DeviceEntry::*text, WCHAR* buffer,
                                DWORD* length)
{
    if (!id || !length)
        return E_POINTER;
    const std::lock_guard lock(m_mutex);
    const auto entry = std::find_if(m_guarded.entries.begin(), m_guarded.entries.end(),
                                    [id](const DeviceEntry& known) { return known.id == id; });
    if (entry == m_guarded.entries.end())
        return kNotFound;
    const std::wstring& value = (*entry).*text;
    const DWORD room = *length;
    *length = static_cast<DWORD>(value.size() + 1);
    if (!buffer)
        return S_OK;
    if (room < *length)
        return kBufferTooSmall;
    std::wmemcpy(buffer, value.c_str(), *length);
    return S_OK;
}

HRESULT DeviceManager::GetDeviceFriendlyName(LPCWSTR id, WCHAR* name, DWORD* length)
{
    return GiveText(id, &DeviceEntry::name, name, length);
}

HRESULT DeviceManager::GetDeviceDescription(LPCWSTR id, WCHAR* description, DWORD* length)
{
    return GiveText(id, &DeviceEntry::description, description, length);
}

HRESULT DeviceManager::GetDeviceManufacturer(LPCWSTR /*id*/, WCHAR* /*manufacturer*/,
                                             DWORD* /*length*/)
{
    return kNoElement;
}

HRESULT DeviceManager::GetDeviceProperty(LPCWSTR /*id*/, LPCWSTR /*property*/, BYTE* /*data*/,
                                         DWORD* /*bytes*/, DWORD* /*type*/)
{
    return kNoElement;
}

HRESULT DeviceManager::GetPrivateDevices(LPWSTR* /*ids*/, DWORD* count)
{
    return GiveValue(count, DWORD{0});
}

} // namespace devices

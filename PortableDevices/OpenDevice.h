// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "PortableDevices/DeviceWorker.h"

#include <mutex>
#include <unordered_map>

namespace devices {

/// An open device, as its component objects share it.
class OpenDevice
{
public:
    OpenDevice(std::wstring id, std::unique_ptr<DeviceSession> session);

    const std::wstring& id() const { return m_id; }
    DeviceWorker& worker() { return m_worker; }

    HRESULT list(const std::wstring& parent, std::vector<std::wstring>& children);
    /// What list() has learned already is given without asking the device, once.
    HRESULT describe(const std::wstring& id, ObjectInfo& info);
    /// With \a isRecursive a folder goes with everything in it.
    HRESULT remove(const std::wstring& id, bool isRecursive);

private:
    bool takeKnown(const std::wstring& id, ObjectInfo& info);

    const std::wstring m_id;
    DeviceWorker m_worker;
    std::mutex m_mutex; // guards what follows
    std::unordered_map<std::wstring, ObjectInfo> m_known;
    std::wstring m_lastFile; // described last; has no children
};

} // namespace devices

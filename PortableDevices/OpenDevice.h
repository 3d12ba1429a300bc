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

    const std::wstring& Id() const { return m_id; }
    DeviceWorker& Worker() { return m_worker; }

    HRESULT List(const std::wstring& parent, std::vector<std::wstring>& children);
    /// What List() has learned already is given without asking the device, once.
    HRESULT Describe(const std::wstring& id, ObjectInfo& info);
    /// With \a isRecursive a folder goes with everything in it.
    HRESULT Remove(const std::wstring& id, bool isRecursive);

private:
    bool TakeKnown(const std::wstring& id, ObjectInfo& info);

    const std::wstring m_id;
    DeviceWorker m_worker;

    struct Guarded
    {
        std::unordered_map<std::wstring, ObjectInfo> known;
        std::wstring lastFile; // described last; has no children
    };
    std::mutex m_mutex; // guards m_guarded
    Guarded m_guarded;
};

} // namespace devices

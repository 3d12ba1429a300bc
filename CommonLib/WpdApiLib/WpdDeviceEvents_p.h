// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "CommonLib/WpdApiLib/WpdApiLib.h"
#include "DeviceApi/PortableDeviceApi.h"

#include <mutex>

/// Hears a device's events on a thread of the service and tells the host of the removal, once.
class WpdDeviceEvents final : public ComObject<IPortableDeviceEventCallback>
{
public:
    WpdDeviceEvents(WpdCallbackProc callback, void* user) : m_callback(callback), m_user(user) {}

    HRESULT OnEvent(IPortableDeviceValues* parameters) override;

    /// No call of the host's callback starts any more, and none is under way afterwards.
    void Close();

private:
    const WpdCallbackProc m_callback;
    void* const m_user;
    // Held during the callback, so that Close() can wait for its end; recursive, so that the
    // callback may close. Nothing else is locked inside.
    std::recursive_mutex m_mutex;
    bool m_closed = false;
};

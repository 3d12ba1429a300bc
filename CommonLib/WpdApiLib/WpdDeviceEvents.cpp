// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/WpdApiLib/WpdDeviceEvents_p.h"

HRESULT WpdDeviceEvents::OnEvent(IPortableDeviceValues* parameters)
{
    GUID event{};
    if (!parameters || !m_callback ||
        FAILED(parameters->GetGuidValue(Wpd::WPD_EVENT_PARAMETER_EVENT_ID, &event)) ||
        event != Wpd::WPD_EVENT_DEVICE_REMOVED)
        return S_OK;
    const std::lock_guard<std::recursive_mutex> lock(m_mutex);
    if (m_closed)
        return S_OK;
    m_closed = true; // a service may repeat itself
    m_callback(nullptr, 0, WpdDeviceRemoved, 0, m_user);
    return S_OK;
}

void WpdDeviceEvents::Close()
{
    const std::lock_guard<std::recursive_mutex> lock(m_mutex);
    m_closed = true;
}

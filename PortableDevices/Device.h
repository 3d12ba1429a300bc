// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "DeviceApi/PortableDeviceApi.h"
#include "PortableDevices/OpenDevice.h"

#include <mutex>

namespace devices {

/// What CLSID_PortableDevice and CLSID_PortableDeviceFTM make; usable from any thread.
class Device final : public ComObject<IPortableDevice>
{
public:
    /// Gives up after 30 seconds, and within two after a Cancel() or Close() from elsewhere.
    HRESULT Open(LPCWSTR id, IPortableDeviceValues* clientInformation) override;
    HRESULT SendCommand(const DWORD flags, IPortableDeviceValues* parameters,
                        IPortableDeviceValues** results) override;
    HRESULT Content(IPortableDeviceContent** out) override;
    HRESULT Capabilities(IPortableDeviceCapabilities** out) override;
    HRESULT Cancel() override;
    HRESULT Close() override;
    /// The only event is the removal of the device; it comes at most once.
    HRESULT Advise(const DWORD flags, IPortableDeviceEventCallback* callback,
                   IPortableDeviceValues* parameters, LPWSTR* cookie) override;
    /// Waits for a call of the callback that is under way, except inside of it.
    HRESULT Unadvise(LPCWSTR cookie) override;
    HRESULT GetPnPDeviceID(LPWSTR* id) override;

protected:
    ~Device() override;

private:
    std::shared_ptr<OpenDevice> Opened();
    /// The device that is open or being opened.
    std::shared_ptr<OpenDevice> Taken();
    HRESULT Connect(const std::shared_ptr<OpenDevice>& device);

    struct Guarded
    {
        std::shared_ptr<OpenDevice> device;
        bool isOpen = false; // else it is being opened
    };
    std::mutex m_mutex; // guards m_guarded
    Guarded m_guarded;
};

} // namespace devices

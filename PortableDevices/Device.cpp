// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/Device.h"

#include "Com/ComGuard.h"
#include "PortableDevices/DeviceContent.h"
#include "PortableDevices/DeviceList.h"
#include "PortableDevices/PropertyValues.h"
#include "PortableDevices/VolumeWatcher.h"

#include <algorithm>

namespace devices {
namespace {

constexpr std::chrono::seconds kOpeningLimit{30};

NLEComPtr<IPortableDeviceValues> RemovalEvent(const std::wstring& deviceId)
{
    const auto event = MakeCom<PropertyValues>();
    event->Store(Wpd::WPD_EVENT_PARAMETER_PNP_DEVICE_ID, Variant::Text(deviceId.c_str()));
    event->Store(Wpd::WPD_EVENT_PARAMETER_EVENT_ID,
                 Variant::Identifier(Wpd::WPD_EVENT_DEVICE_REMOVED));
    return event;
}

} // namespace

Device::~Device()
{
    Close();
}

std::shared_ptr<OpenDevice> Device::Opened()
{
    const std::lock_guard lock(m_mutex);
    return m_guarded.isOpen ? m_guarded.device : nullptr;
}

std::shared_ptr<OpenDevice> Device::Taken()
{
    const std::lock_guard lock(m_mutex);
    return m_guarded.device;
}

HRESULT Device::Open(LPCWSTR id, IPortableDeviceValues* clientInformation)
{
    return ComGuard([&] {
        if (!id || !clientInformation)
            return E_POINTER;
        if (Taken())
            return kAlreadyOpen;
        const std::vector<DeviceEntry> entries = ListDevices();
        const auto entry = std::find_if(entries.begin(), entries.end(),
                                        [id](const DeviceEntry& known) { return known.id == id; });
        if (entry == entries.end())
            return kNotFound;
        const auto device = std::make_shared<OpenDevice>(entry->id, MakeSession(*entry));
        {
            const std::lock_guard lock(m_mutex);
            if (m_guarded.device)
                return kAlreadyOpen;
            m_guarded.device = device;
        }
        const HRESULT result = ComGuard([&] { return Connect(device); });
        const std::lock_guard lock(m_mutex);
        if (m_guarded.device != device)
            return kCancelled; // closed meanwhile
        m_guarded.isOpen = SUCCEEDED(result);
        if (FAILED(result))
            m_guarded.device.reset(); // not the last reference
        return result;
    });
}

HRESULT Device::Connect(const std::shared_ptr<OpenDevice>& device)
{
    // Watched from now on: a device that goes while it opens must not stay.
    VolumeWatcher::Instance().Watch(device);
    const DeviceWorker::Clock::time_point deadline = DeviceWorker::Clock::now() + kOpeningLimit;
    const DeviceWorker::Pending opening =
        device->Worker().Start([](DeviceSession& session, GCancellable* cancellable) {
            return session.Open(cancellable);
        });
    const HRESULT result = device->Worker().Finish(opening, deadline);
    const bool isLate = DeviceWorker::Clock::now() >= deadline;
    return result == kCancelled && isLate ? kTimedOut : result;
}

HRESULT Device::Content(IPortableDeviceContent** out)
{
    const std::shared_ptr<OpenDevice> device = Opened();
    if (!device)
        return kNotOpen;
    return GiveNew<DeviceContent>(out, device);
}

HRESULT Device::Cancel()
{
    return ComGuard([&] {
        const std::shared_ptr<OpenDevice> device = Taken();
        if (!device)
            return kNotOpen;
        device->Worker().Cancel();
        return S_OK;
    });
}

HRESULT Device::Close()
{
    return ComGuard([&] {
        std::shared_ptr<OpenDevice> device;
        {
            const std::lock_guard lock(m_mutex);
            m_guarded.device.swap(device);
            m_guarded.isOpen = false;
        }
        if (device)
            device->Worker().Close();
        return S_OK;
    });
}

HRESULT Device::Advise(const DWORD /*flags*/, IPortableDeviceEventCallback* callback,
                       IPortableDeviceValues* /*parameters*/, LPWSTR* cookie)
{
    return ComGuard([&] {
        if (!callback || !cookie)
            return E_POINTER;
        *cookie = nullptr;
        const std::shared_ptr<OpenDevice> device = Opened();
        if (!device)
            return kNotOpen;
        const unsigned number = device->Worker().AddListener(
            [sink = NLEComPtr<IPortableDeviceEventCallback>(callback), id = device->Id()] {
                // Without memory no event comes; the device's thread has nobody to throw to.
                ComGuard([&] { return sink->OnEvent(RemovalEvent(id).get()); });
            });
        if (number == 0)
            return kDeviceGone;
        *cookie = TaskText(std::to_wstring(number).c_str());
        return S_OK;
    });
}

HRESULT Device::Unadvise(LPCWSTR cookie)
{
    if (!cookie)
        return E_POINTER;
    const std::shared_ptr<OpenDevice> device = Opened();
    if (!device)
        return kNotOpen;
    const auto number = static_cast<unsigned>(std::wcstoul(cookie, nullptr, 10));
    // Once the event has come, its registration is used up; ending it is no failure.
    device->Worker().RemoveListener(number);
    return S_OK;
}

HRESULT Device::GetPnPDeviceID(LPWSTR* id)
{
    if (!id)
        return E_POINTER;
    const std::shared_ptr<OpenDevice> device = Opened();
    *id = device ? TaskText(device->Id().c_str()) : nullptr;
    return device ? S_OK : kNotOpen;
}

HRESULT Device::SendCommand(const DWORD /*flags*/, IPortableDeviceValues* /*parameters*/,
                            IPortableDeviceValues** results)
{
    if (results)
        *results = nullptr;
    return E_NOTIMPL;
}

HRESULT Device::Capabilities(IPortableDeviceCapabilities** out)
{
    GiveValue<IPortableDeviceCapabilities*>(out, nullptr);
    return E_NOTIMPL;
}

} // namespace devices

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "DeviceApi/PortableDeviceApi.h"
#include "PortableDevices/OpenDevice.h"

namespace devices {

/// Identifier, parent, name, original file name, content type, size and modification date of the
/// objects of a device; all of them read-only.
class ObjectProperties final : public ComObject<IPortableDeviceProperties>
{
public:
    explicit ObjectProperties(std::shared_ptr<OpenDevice> device) : m_device(std::move(device)) {}

    HRESULT GetSupportedProperties(LPCWSTR object, IPortableDeviceKeyCollection** keys) override;
    HRESULT GetPropertyAttributes(LPCWSTR object, REFPROPERTYKEY key,
                                  IPortableDeviceValues** attributes) override;
    HRESULT GetValues(LPCWSTR object, IPortableDeviceKeyCollection* keys,
                      IPortableDeviceValues** values) override;
    HRESULT SetValues(LPCWSTR object, IPortableDeviceValues* values,
                      IPortableDeviceValues** results) override;
    HRESULT Delete(LPCWSTR object, IPortableDeviceKeyCollection* keys) override;
    HRESULT Cancel() override;

private:
    std::shared_ptr<OpenDevice> m_device;
};

} // namespace devices

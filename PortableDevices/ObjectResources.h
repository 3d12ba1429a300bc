// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "DeviceApi/PortableDeviceApi.h"
#include "PortableDevices/OpenDevice.h"

namespace devices {

/// The data of objects and their thumbnails, to read.
class ObjectResources final : public ComObject<IPortableDeviceResources>
{
public:
    explicit ObjectResources(std::shared_ptr<OpenDevice> device) : m_device(std::move(device)) {}

    HRESULT GetSupportedResources(LPCWSTR object, IPortableDeviceKeyCollection** keys) override;
    HRESULT GetResourceAttributes(LPCWSTR object, REFPROPERTYKEY key,
                                  IPortableDeviceValues** attributes) override;
    HRESULT GetStream(LPCWSTR object, REFPROPERTYKEY key, const DWORD mode,
                      DWORD* optimalBufferSize, IStream** out) override;
    HRESULT Delete(LPCWSTR object, IPortableDeviceKeyCollection* keys) override;
    HRESULT Cancel() override;
    HRESULT CreateResource(IPortableDeviceValues* attributes, IStream** out,
                           DWORD* optimalBufferSize, LPWSTR* cookie) override;

private:
    std::shared_ptr<OpenDevice> m_device;
};

} // namespace devices

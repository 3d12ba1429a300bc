// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "DeviceApi/PortableDeviceApi.h"
#include "PortableDevices/OpenDevice.h"

namespace devices {

/// The content of an open device. Nothing can be created, moved or copied on a device.
class DeviceContent final : public ComObject<IPortableDeviceContent>
{
public:
    explicit DeviceContent(std::shared_ptr<OpenDevice> device) : m_device(std::move(device)) {}

    HRESULT EnumObjects(const DWORD flags, LPCWSTR parent, IPortableDeviceValues* filter,
                        IEnumPortableDeviceObjectIDs** out) override;
    HRESULT Properties(IPortableDeviceProperties** out) override;
    HRESULT Transfer(IPortableDeviceResources** out) override;
    HRESULT CreateObjectWithPropertiesOnly(IPortableDeviceValues* values, LPWSTR* id) override;
    HRESULT CreateObjectWithPropertiesAndData(IPortableDeviceValues* values, IStream** data,
                                              DWORD* optimalBufferSize, LPWSTR* cookie) override;
    /// The first failure when nothing could be deleted, S_FALSE when some objects are left.
    /// \a results gets one error value for each object.
    HRESULT Delete(const DWORD options, IPortableDevicePropVariantCollection* ids,
                   IPortableDevicePropVariantCollection** results) override;
    HRESULT
    GetObjectIDsFromPersistentUniqueIDs(IPortableDevicePropVariantCollection* persistentIds,
                                        IPortableDevicePropVariantCollection** ids) override;
    HRESULT Cancel() override;
    HRESULT Move(IPortableDevicePropVariantCollection* ids, LPCWSTR target,
                 IPortableDevicePropVariantCollection** results) override;
    HRESULT Copy(IPortableDevicePropVariantCollection* ids, LPCWSTR target,
                 IPortableDevicePropVariantCollection** results) override;

private:
    std::shared_ptr<OpenDevice> m_device;
};

} // namespace devices

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/ObjectResources.h"

#include "Com/ComGuard.h"
#include "PortableDevices/PropertyValues.h"
#include "PortableDevices/ResourceStream.h"

namespace devices {

HRESULT ObjectResources::GetSupportedResources(LPCWSTR object, IPortableDeviceKeyCollection** keys)
{
    return ComGuard([&] {
        if (!object || !keys)
            return E_POINTER;
        *keys = nullptr;
        ObjectInfo info;
        if (const HRESULT result = m_device->Describe(object, info); FAILED(result))
            return result;
        std::vector<PROPERTYKEY> known;
        // Whether there is a thumbnail shows only when it is asked for.
        if (info.kind == ObjectKind::File)
            known = {Wpd::WPD_RESOURCE_DEFAULT, Wpd::WPD_RESOURCE_THUMBNAIL};
        return GiveNew<KeyCollection>(keys, std::move(known));
    });
}

HRESULT ObjectResources::GetResourceAttributes(LPCWSTR /*object*/, REFPROPERTYKEY /*key*/,
                                               IPortableDeviceValues** attributes)
{
    GiveValue<IPortableDeviceValues*>(attributes, nullptr);
    return E_NOTIMPL;
}

HRESULT ObjectResources::GetStream(LPCWSTR object, REFPROPERTYKEY key, const DWORD mode,
                                   DWORD* optimalBufferSize, IStream** out)
{
    return ComGuard([&] {
        if (!object || !out)
            return E_POINTER;
        *out = nullptr;
        if (mode != STGM_READ)
            return E_ACCESSDENIED;
        const bool isData = key == Wpd::WPD_RESOURCE_DEFAULT;
        if (!isData && key != Wpd::WPD_RESOURCE_THUMBNAIL)
            return kNoElement;
        std::uint32_t size = 0;
        const HRESULT result = ResourceStream::Open(
            m_device, object, isData ? Resource::Data : Resource::Thumbnail, size, out);
        if (optimalBufferSize)
            *optimalBufferSize = size;
        return result;
    });
}

HRESULT ObjectResources::Delete(LPCWSTR /*object*/, IPortableDeviceKeyCollection* /*keys*/)
{
    return E_ACCESSDENIED;
}

HRESULT ObjectResources::Cancel()
{
    return ComGuard([&] {
        m_device->Worker().Cancel();
        return S_OK;
    });
}

HRESULT ObjectResources::CreateResource(IPortableDeviceValues* /*attributes*/, IStream** /*out*/,
                                        DWORD* /*optimalBufferSize*/, LPWSTR* /*cookie*/)
{
    return E_NOTIMPL;
}

} // namespace devices

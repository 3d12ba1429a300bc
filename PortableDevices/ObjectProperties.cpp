// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/ObjectProperties.h"

#include "Com/ComGuard.h"
#include "PortableDevices/PropertyValues.h"

namespace devices {
namespace {

using namespace Wpd;

constexpr _GUID kFunctionalObjectType = {
    0x99ED0160, 0x17FF, 0x4C44, {0x9D, 0x98, 0x1D, 0x7A, 0x6F, 0x94, 0x19, 0x21}};
constexpr _GUID kGenericFileType = {
    0x0085E0A6, 0x8D34, 0x45D7, {0xBC, 0x5C, 0x44, 0x7E, 0x59, 0xC7, 0x3D, 0x48}};

constexpr PROPERTYKEY kKeys[] = {WPD_OBJECT_ID,           WPD_OBJECT_PARENT_ID,
                                 WPD_OBJECT_NAME,         WPD_OBJECT_CONTENT_TYPE,
                                 WPD_OBJECT_SIZE,         WPD_OBJECT_ORIGINAL_FILE_NAME,
                                 WPD_OBJECT_DATE_MODIFIED};

Variant ContentType(ObjectKind kind)
{
    switch (kind) {
    case ObjectKind::Folder:
        return Variant::Identifier(WPD_CONTENT_TYPE_FOLDER);
    case ObjectKind::File:
        return Variant::Identifier(kGenericFileType);
    default:
        return Variant::Identifier(kFunctionalObjectType);
    }
}

Variant ValueOf(const ObjectInfo& info, REFPROPERTYKEY key)
{
    if (key == WPD_OBJECT_ID)
        return Variant::Text(info.id.c_str());
    if (key == WPD_OBJECT_PARENT_ID)
        return Variant::Text(info.parentId.c_str());
    if (key == WPD_OBJECT_NAME || key == WPD_OBJECT_ORIGINAL_FILE_NAME)
        return Variant::Text(info.name.c_str());
    if (key == WPD_OBJECT_CONTENT_TYPE)
        return ContentType(info.kind);
    if (key == WPD_OBJECT_SIZE)
        return Variant::Size(info.size);
    if (key == WPD_OBJECT_DATE_MODIFIED && info.modified != 0)
        return Variant::Date(info.modified);
    return Variant::Error(kNoElement);
}

NLEComPtr<IPortableDeviceKeyCollection> AllKeys()
{
    return MakeCom<KeyCollection>(std::vector(std::begin(kKeys), std::end(kKeys)));
}

} // namespace

HRESULT ObjectProperties::GetSupportedProperties(LPCWSTR object,
                                                 IPortableDeviceKeyCollection** keys)
{
    return ComGuard([&] { return object ? AllKeys().copyTo(keys) : E_POINTER; });
}

HRESULT ObjectProperties::GetPropertyAttributes(LPCWSTR /*object*/, REFPROPERTYKEY /*key*/,
                                                IPortableDeviceValues** attributes)
{
    GiveValue<IPortableDeviceValues*>(attributes, nullptr);
    return E_NOTIMPL;
}

HRESULT ObjectProperties::GetValues(LPCWSTR object, IPortableDeviceKeyCollection* keys,
                                    IPortableDeviceValues** values)
{
    return ComGuard([&] {
        if (!object || !values)
            return E_POINTER;
        *values = nullptr;
        ObjectInfo info;
        if (const HRESULT result = m_device->Describe(object, info); FAILED(result))
            return result;
        const NLEComPtr<IPortableDeviceKeyCollection> wanted = keys ? keys : AllKeys();
        const auto answer = MakeCom<PropertyValues>();
        DWORD count = 0;
        wanted->GetCount(&count);
        HRESULT result = S_OK;
        for (DWORD i = 0; i < count; ++i) {
            PROPERTYKEY key = {};
            wanted->GetAt(i, &key);
            Variant value = ValueOf(info, key);
            if (value.Get().vt == VT_ERROR)
                result = S_FALSE;
            if (const HRESULT stored = answer->Store(key, std::move(value)); FAILED(stored))
                return stored;
        }
        NLEComPtr<IPortableDeviceValues>(answer).copyTo(values);
        return result;
    });
}

HRESULT ObjectProperties::SetValues(LPCWSTR /*object*/, IPortableDeviceValues* /*values*/,
                                    IPortableDeviceValues** results)
{
    if (results)
        *results = nullptr;
    return E_ACCESSDENIED;
}

HRESULT ObjectProperties::Delete(LPCWSTR /*object*/, IPortableDeviceKeyCollection* /*keys*/)
{
    return E_ACCESSDENIED;
}

HRESULT ObjectProperties::Cancel()
{
    return ComGuard([&] {
        m_device->Worker().Cancel();
        return S_OK;
    });
}

} // namespace devices

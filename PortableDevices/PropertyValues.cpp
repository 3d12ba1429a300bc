// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/PropertyValues.h"

#include "Com/ComGuard.h"
#include "PortableDevices/Results.h"

#include <algorithm>
#include <cstring>

namespace devices {
namespace {

constexpr HRESULT kWrongType = FromSystemError(1629);

void* TaskCopy(const void* data, std::size_t bytes)
{
    void* const copy = CoTaskMemAlloc(bytes);
    if (copy && bytes > 0)
        std::memcpy(copy, data, bytes);
    return copy;
}

template <typename T>
Variant Scalar(VARTYPE type, T PROPVARIANT::*member, T value)
{
    Variant variant;
    variant.Put()->vt = type;
    variant.Put()->*member = value;
    return variant;
}

Variant Bytes(const void* data, DWORD bytes)
{
    Variant variant;
    variant.Put()->vt = VT_VECTOR | VT_UI1;
    variant.Put()->caub = {bytes, static_cast<BYTE*>(TaskCopy(data, bytes))};
    return variant;
}

} // namespace

LPWSTR TaskText(const wchar_t* text)
{
    return static_cast<LPWSTR>(TaskCopy(text, (std::wcslen(text) + 1) * sizeof(wchar_t)));
}

Variant Variant::Text(const wchar_t* text)
{
    return Scalar(VT_LPWSTR, &PROPVARIANT::pwszVal, TaskText(text));
}

Variant Variant::Identifier(REFGUID id)
{
    return Scalar(VT_CLSID, &PROPVARIANT::puuid, static_cast<GUID*>(TaskCopy(&id, sizeof(id))));
}

Variant Variant::Date(DATE date)
{
    return Scalar(VT_DATE, &PROPVARIANT::date, date);
}

Variant Variant::Size(ULONGLONG size)
{
    return Scalar(VT_UI8, &PROPVARIANT::uhVal, ULARGE_INTEGER{size});
}

Variant Variant::Error(HRESULT error)
{
    return Scalar(VT_ERROR, &PROPVARIANT::scode, SCODE{error});
}

const PropertyValues::Entry* PropertyValues::Find(REFPROPERTYKEY key) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&key](const Entry& entry) { return entry.first == key; });
    return found == m_entries.end() ? nullptr : &*found;
}

HRESULT PropertyValues::Store(REFPROPERTYKEY key, Variant value)
{
    return ComGuard([&] {
        const std::lock_guard lock(m_mutex);
        if (const Entry* known = Find(key))
            std::swap(m_entries[static_cast<std::size_t>(known - m_entries.data())].second, value);
        else
            m_entries.emplace_back(key, std::move(value));
        return S_OK;
    });
}

HRESULT PropertyValues::CopyOf(REFPROPERTYKEY key, VARTYPE type, Variant& copy) const
{
    const std::lock_guard lock(m_mutex);
    const Entry* entry = Find(key);
    if (!entry)
        return kNoElement;
    if (entry->second.Get().vt != type)
        return kWrongType;
    return PropVariantCopy(copy.Put(), &entry->second.Get());
}

template <typename T>
HRESULT PropertyValues::SetScalar(REFPROPERTYKEY key, VARTYPE type, T PROPVARIANT::*member, T value)
{
    return Store(key, Scalar(type, member, value));
}

template <typename T, typename Out>
HRESULT PropertyValues::GetScalar(REFPROPERTYKEY key, VARTYPE type, T PROPVARIANT::*member,
                                  Out* out) const
{
    if (!out)
        return E_POINTER;
    *out = {};
    Variant copy;
    const HRESULT result = CopyOf(key, type, copy);
    if (SUCCEEDED(result))
        std::memcpy(out, &(copy.Get().*member), sizeof(Out));
    return result;
}

HRESULT PropertyValues::SetObject(REFPROPERTYKEY key, IUnknown* value)
{
    if (value)
        value->AddRef();
    return SetScalar(key, VT_UNKNOWN, &PROPVARIANT::punkVal, value);
}

template <typename Interface>
HRESULT PropertyValues::GetObject(REFPROPERTYKEY key, Interface** out) const
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    Variant copy;
    if (const HRESULT result = CopyOf(key, VT_UNKNOWN, copy); FAILED(result))
        return result;
    IUnknown* object = copy.Get().punkVal;
    return object ? object->QueryInterface(InterfaceId<Interface>(), reinterpret_cast<void**>(out))
                  : S_OK;
}

HRESULT PropertyValues::GetCount(DWORD* count)
{
    const std::lock_guard lock(m_mutex);
    return GiveValue(count, static_cast<DWORD>(m_entries.size()));
}

HRESULT PropertyValues::GetAt(const DWORD index, PROPERTYKEY* key, PROPVARIANT* value)
{
    const std::lock_guard lock(m_mutex);
    if (index >= m_entries.size())
        return E_INVALIDARG;
    if (key)
        *key = m_entries[index].first;
    return value ? PropVariantCopy(value, &m_entries[index].second.Get()) : S_OK;
}

HRESULT PropertyValues::SetValue(REFPROPERTYKEY key, const PROPVARIANT* value)
{
    if (!value)
        return E_POINTER;
    return Store(key, Variant(*value));
}

HRESULT PropertyValues::GetValue(REFPROPERTYKEY key, PROPVARIANT* value)
{
    if (!value)
        return E_POINTER;
    PropVariantInit(value);
    const std::lock_guard lock(m_mutex);
    const Entry* entry = Find(key);
    return entry ? PropVariantCopy(value, &entry->second.Get()) : kNoElement;
}

HRESULT PropertyValues::SetStringValue(REFPROPERTYKEY key, LPCWSTR value)
{
    if (!value)
        return E_POINTER;
    return Store(key, Variant::Text(value));
}

HRESULT PropertyValues::GetStringValue(REFPROPERTYKEY key, LPWSTR* value)
{
    if (!value)
        return E_POINTER;
    *value = nullptr;
    Variant copy;
    const HRESULT result = CopyOf(key, VT_LPWSTR, copy);
    if (SUCCEEDED(result))
        std::swap(*value, copy.Put()->pwszVal);
    return result;
}

HRESULT PropertyValues::SetUnsignedIntegerValue(REFPROPERTYKEY key, const ULONG value)
{
    return SetScalar(key, VT_UI4, &PROPVARIANT::ulVal, ULONG{value});
}

HRESULT PropertyValues::GetUnsignedIntegerValue(REFPROPERTYKEY key, ULONG* value)
{
    return GetScalar(key, VT_UI4, &PROPVARIANT::ulVal, value);
}

HRESULT PropertyValues::SetSignedIntegerValue(REFPROPERTYKEY key, const LONG value)
{
    return SetScalar(key, VT_I4, &PROPVARIANT::lVal, LONG{value});
}

HRESULT PropertyValues::GetSignedIntegerValue(REFPROPERTYKEY key, LONG* value)
{
    return GetScalar(key, VT_I4, &PROPVARIANT::lVal, value);
}

HRESULT PropertyValues::SetUnsignedLargeIntegerValue(REFPROPERTYKEY key, const ULONGLONG value)
{
    return SetScalar(key, VT_UI8, &PROPVARIANT::uhVal, ULARGE_INTEGER{value});
}

HRESULT PropertyValues::GetUnsignedLargeIntegerValue(REFPROPERTYKEY key, ULONGLONG* value)
{
    return GetScalar(key, VT_UI8, &PROPVARIANT::uhVal, value);
}

HRESULT PropertyValues::SetSignedLargeIntegerValue(REFPROPERTYKEY key, const LONGLONG value)
{
    return SetScalar(key, VT_I8, &PROPVARIANT::hVal, LARGE_INTEGER{value});
}

HRESULT PropertyValues::GetSignedLargeIntegerValue(REFPROPERTYKEY key, LONGLONG* value)
{
    return GetScalar(key, VT_I8, &PROPVARIANT::hVal, value);
}

HRESULT PropertyValues::SetFloatValue(REFPROPERTYKEY key, const FLOAT value)
{
    return SetScalar(key, VT_R4, &PROPVARIANT::fltVal, FLOAT{value});
}

HRESULT PropertyValues::GetFloatValue(REFPROPERTYKEY key, FLOAT* value)
{
    return GetScalar(key, VT_R4, &PROPVARIANT::fltVal, value);
}

HRESULT PropertyValues::SetErrorValue(REFPROPERTYKEY key, const HRESULT value)
{
    return SetScalar(key, VT_ERROR, &PROPVARIANT::scode, SCODE{value});
}

HRESULT PropertyValues::GetErrorValue(REFPROPERTYKEY key, HRESULT* value)
{
    return GetScalar(key, VT_ERROR, &PROPVARIANT::scode, value);
}

HRESULT PropertyValues::SetKeyValue(REFPROPERTYKEY key, REFPROPERTYKEY value)
{
    return Store(key, Bytes(&value, sizeof(value)));
}

HRESULT PropertyValues::GetKeyValue(REFPROPERTYKEY key, PROPERTYKEY* value)
{
    if (!value)
        return E_POINTER;
    *value = {};
    Variant copy;
    if (const HRESULT result = CopyOf(key, VT_VECTOR | VT_UI1, copy); FAILED(result))
        return result;
    if (copy.Get().caub.cElems != sizeof(*value))
        return kWrongType;
    std::memcpy(value, copy.Get().caub.pElems, sizeof(*value));
    return S_OK;
}

HRESULT PropertyValues::SetBoolValue(REFPROPERTYKEY key, const BOOL value)
{
    return SetScalar(key, VT_BOOL, &PROPVARIANT::boolVal, value ? VARIANT_TRUE : VARIANT_FALSE);
}

HRESULT PropertyValues::GetBoolValue(REFPROPERTYKEY key, BOOL* value)
{
    VARIANT_BOOL stored = VARIANT_FALSE;
    const HRESULT result = GetScalar(key, VT_BOOL, &PROPVARIANT::boolVal, &stored);
    return SUCCEEDED(result) ? GiveValue(value, BOOL{stored != VARIANT_FALSE}) : result;
}

HRESULT PropertyValues::SetIUnknownValue(REFPROPERTYKEY key, IUnknown* value)
{
    return SetObject(key, value);
}

HRESULT PropertyValues::GetIUnknownValue(REFPROPERTYKEY key, IUnknown** value)
{
    return GetObject(key, value);
}

HRESULT PropertyValues::SetGuidValue(REFPROPERTYKEY key, REFGUID value)
{
    return Store(key, Variant::Identifier(value));
}

HRESULT PropertyValues::GetGuidValue(REFPROPERTYKEY key, GUID* value)
{
    if (!value)
        return E_POINTER;
    *value = {};
    Variant copy;
    const HRESULT result = CopyOf(key, VT_CLSID, copy);
    if (SUCCEEDED(result))
        *value = *copy.Get().puuid;
    return result;
}

HRESULT PropertyValues::SetBufferValue(REFPROPERTYKEY key, BYTE* value, DWORD bytes)
{
    if (!value && bytes > 0)
        return E_POINTER;
    return Store(key, Bytes(value, bytes));
}

HRESULT PropertyValues::GetBufferValue(REFPROPERTYKEY key, BYTE** value, DWORD* bytes)
{
    if (!value || !bytes)
        return E_POINTER;
    *value = nullptr;
    *bytes = 0;
    Variant copy;
    const HRESULT result = CopyOf(key, VT_VECTOR | VT_UI1, copy);
    if (SUCCEEDED(result)) {
        *bytes = copy.Get().caub.cElems;
        std::swap(*value, copy.Put()->caub.pElems);
    }
    return result;
}

HRESULT PropertyValues::SetIPortableDeviceValuesValue(REFPROPERTYKEY key,
                                                      IPortableDeviceValues* value)
{
    return SetObject(key, value);
}

HRESULT PropertyValues::GetIPortableDeviceValuesValue(REFPROPERTYKEY key,
                                                      IPortableDeviceValues** value)
{
    return GetObject(key, value);
}

HRESULT PropertyValues::SetIPortableDevicePropVariantCollectionValue(
    REFPROPERTYKEY key, IPortableDevicePropVariantCollection* value)
{
    return SetObject(key, value);
}

HRESULT PropertyValues::GetIPortableDevicePropVariantCollectionValue(
    REFPROPERTYKEY key, IPortableDevicePropVariantCollection** value)
{
    return GetObject(key, value);
}

HRESULT PropertyValues::SetIPortableDeviceKeyCollectionValue(REFPROPERTYKEY key,
                                                             IPortableDeviceKeyCollection* value)
{
    return SetObject(key, value);
}

HRESULT PropertyValues::GetIPortableDeviceKeyCollectionValue(REFPROPERTYKEY key,
                                                             IPortableDeviceKeyCollection** value)
{
    return GetObject(key, value);
}

HRESULT
PropertyValues::SetIPortableDeviceValuesCollectionValue(REFPROPERTYKEY /*key*/,
                                                        IPortableDeviceValuesCollection* /*value*/)
{
    return E_NOTIMPL; // the service makes no such collections
}

HRESULT
PropertyValues::GetIPortableDeviceValuesCollectionValue(REFPROPERTYKEY /*key*/,
                                                        IPortableDeviceValuesCollection** value)
{
    GiveValue<IPortableDeviceValuesCollection*>(value, nullptr);
    return E_NOTIMPL;
}

HRESULT PropertyValues::RemoveValue(REFPROPERTYKEY key)
{
    const std::lock_guard lock(m_mutex);
    const Entry* entry = Find(key);
    if (!entry)
        return kNoElement;
    m_entries.erase(m_entries.begin() + (entry - m_entries.data()));
    return S_OK;
}

HRESULT PropertyValues::CopyValuesFromPropertyStore(IPropertyStore* /*store*/)
{
    return E_NOTIMPL;
}

HRESULT PropertyValues::CopyValuesToPropertyStore(IPropertyStore* /*store*/)
{
    return E_NOTIMPL;
}

HRESULT PropertyValues::Clear()
{
    std::vector<Entry> old; // ends outside the lock: objects in it may come back here
    const std::lock_guard lock(m_mutex);
    m_entries.swap(old);
    return S_OK;
}

HRESULT KeyCollection::GetCount(DWORD* count)
{
    const std::lock_guard lock(m_mutex);
    return GiveValue(count, static_cast<DWORD>(m_keys.size()));
}

HRESULT KeyCollection::GetAt(const DWORD index, PROPERTYKEY* key)
{
    const std::lock_guard lock(m_mutex);
    return index < m_keys.size() ? GiveValue(key, m_keys[index]) : E_INVALIDARG;
}

HRESULT KeyCollection::Add(REFPROPERTYKEY key)
{
    return ComGuard([&] {
        const std::lock_guard lock(m_mutex);
        m_keys.push_back(key);
        return S_OK;
    });
}

HRESULT KeyCollection::Clear()
{
    const std::lock_guard lock(m_mutex);
    m_keys.clear();
    return S_OK;
}

HRESULT KeyCollection::RemoveAt(const DWORD index)
{
    const std::lock_guard lock(m_mutex);
    if (index >= m_keys.size())
        return E_INVALIDARG;
    m_keys.erase(m_keys.begin() + index);
    return S_OK;
}

HRESULT VariantCollection::GetCount(DWORD* count)
{
    const std::lock_guard lock(m_mutex);
    return GiveValue(count, static_cast<DWORD>(m_guarded.values.size()));
}

HRESULT VariantCollection::GetAt(const DWORD index, PROPVARIANT* value)
{
    if (!value)
        return E_POINTER;
    PropVariantInit(value);
    const std::lock_guard lock(m_mutex);
    return index < m_guarded.values.size() ? PropVariantCopy(value, &m_guarded.values[index].Get())
                                           : E_INVALIDARG;
}

HRESULT VariantCollection::Add(const PROPVARIANT* value)
{
    return ComGuard([&] {
        if (!value)
            return E_POINTER;
        const std::lock_guard lock(m_mutex);
        if (m_guarded.type != VT_EMPTY && value->vt != m_guarded.type)
            return E_INVALIDARG;
        m_guarded.values.emplace_back(*value);
        m_guarded.type = value->vt;
        return S_OK;
    });
}

HRESULT VariantCollection::GetType(VARTYPE* type)
{
    const std::lock_guard lock(m_mutex);
    return GiveValue(type, m_guarded.type);
}

HRESULT VariantCollection::ChangeType(const VARTYPE type)
{
    const std::lock_guard lock(m_mutex);
    if (!m_guarded.values.empty())
        return E_NOTIMPL;
    m_guarded.type = type;
    return S_OK;
}

HRESULT VariantCollection::Clear()
{
    std::vector<Variant> old; // ends outside the lock, as above
    const std::lock_guard lock(m_mutex);
    m_guarded.values.swap(old);
    m_guarded.type = VT_EMPTY;
    return S_OK;
}

HRESULT VariantCollection::RemoveAt(const DWORD index)
{
    const std::lock_guard lock(m_mutex);
    if (index >= m_guarded.values.size())
        return E_INVALIDARG;
    m_guarded.values.erase(m_guarded.values.begin() + index);
    return S_OK;
}

} // namespace devices

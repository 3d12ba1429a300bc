// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "DeviceApi/PortableDeviceTypes.h"

#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace devices {

/// Owns a property value.
class Variant
{
public:
    Variant() { PropVariantInit(&m_value); }
    explicit Variant(const PROPVARIANT& value) { PropVariantCopy(&m_value, &value); }
    Variant(const Variant&) = delete;
    Variant& operator=(const Variant&) = delete;
    Variant(Variant&& other) noexcept : m_value(other.m_value) { PropVariantInit(&other.m_value); }
    Variant& operator=(Variant&& other) noexcept
    {
        std::swap(m_value, other.m_value);
        return *this;
    }
    ~Variant() { PropVariantClear(&m_value); }

    static Variant Text(const wchar_t* text);
    static Variant Identifier(REFGUID id);
    static Variant Date(DATE date);
    static Variant Size(ULONGLONG size);
    static Variant Error(HRESULT error);

    const PROPVARIANT& Get() const { return m_value; }
    PROPVARIANT* Put() { return &m_value; }

private:
    PROPVARIANT m_value;
};

/// Wide text as task memory; null when memory is out.
LPWSTR TaskText(const wchar_t* text);

/// What CLSID_PortableDeviceValues makes. Safe to use from several threads.
class PropertyValues final : public ComObject<IPortableDeviceValues>
{
public:
    /// Stores \a value under \a key; an old value goes. Throws nothing.
    HRESULT Store(REFPROPERTYKEY key, Variant value);

    HRESULT GetCount(DWORD* count) override;
    HRESULT GetAt(const DWORD index, PROPERTYKEY* key, PROPVARIANT* value) override;
    HRESULT SetValue(REFPROPERTYKEY key, const PROPVARIANT* value) override;
    HRESULT GetValue(REFPROPERTYKEY key, PROPVARIANT* value) override;
    HRESULT SetStringValue(REFPROPERTYKEY key, LPCWSTR value) override;
    HRESULT GetStringValue(REFPROPERTYKEY key, LPWSTR* value) override;
    HRESULT SetUnsignedIntegerValue(REFPROPERTYKEY key, const ULONG value) override;
    HRESULT GetUnsignedIntegerValue(REFPROPERTYKEY key, ULONG* value) override;
    HRESULT SetSignedIntegerValue(REFPROPERTYKEY key, const LONG value) override;
    HRESULT GetSignedIntegerValue(REFPROPERTYKEY key, LONG* value) override;
    HRESULT SetUnsignedLargeIntegerValue(REFPROPERTYKEY key, const ULONGLONG value) override;
    HRESULT GetUnsignedLargeIntegerValue(REFPROPERTYKEY key, ULONGLONG* value) override;
    HRESULT SetSignedLargeIntegerValue(REFPROPERTYKEY key, const LONGLONG value) override;
    HRESULT GetSignedLargeIntegerValue(REFPROPERTYKEY key, LONGLONG* value) override;
    HRESULT SetFloatValue(REFPROPERTYKEY key, const FLOAT value) override;
    HRESULT GetFloatValue(REFPROPERTYKEY key, FLOAT* value) override;
    HRESULT SetErrorValue(REFPROPERTYKEY key, const HRESULT value) override;
    HRESULT GetErrorValue(REFPROPERTYKEY key, HRESULT* value) override;
    HRESULT SetKeyValue(REFPROPERTYKEY key, REFPROPERTYKEY value) override;
    HRESULT GetKeyValue(REFPROPERTYKEY key, PROPERTYKEY* value) override;
    HRESULT SetBoolValue(REFPROPERTYKEY key, const BOOL value) override;
    HRESULT GetBoolValue(REFPROPERTYKEY key, BOOL* value) override;
    HRESULT SetIUnknownValue(REFPROPERTYKEY key, IUnknown* value) override;
    HRESULT GetIUnknownValue(REFPROPERTYKEY key, IUnknown** value) override;
    HRESULT SetGuidValue(REFPROPERTYKEY key, REFGUID value) override;
    HRESULT GetGuidValue(REFPROPERTYKEY key, GUID* value) override;
    HRESULT SetBufferValue(REFPROPERTYKEY key, BYTE* value, DWORD bytes) override;
    HRESULT GetBufferValue(REFPROPERTYKEY key, BYTE** value, DWORD* bytes) override;
    HRESULT SetIPortableDeviceValuesValue(REFPROPERTYKEY key,
                                          IPortableDeviceValues* value) override;
    HRESULT GetIPortableDeviceValuesValue(REFPROPERTYKEY key,
                                          IPortableDeviceValues** value) override;
    HRESULT SetIPortableDevicePropVariantCollectionValue(
        REFPROPERTYKEY key, IPortableDevicePropVariantCollection* value) override;
    HRESULT GetIPortableDevicePropVariantCollectionValue(
        REFPROPERTYKEY key, IPortableDevicePropVariantCollection** value) override;
    HRESULT SetIPortableDeviceKeyCollectionValue(REFPROPERTYKEY key,
                                                 IPortableDeviceKeyCollection* value) override;
    HRESULT GetIPortableDeviceKeyCollectionValue(REFPROPERTYKEY key,
                                                 IPortableDeviceKeyCollection** value) override;
    HRESULT
    SetIPortableDeviceValuesCollectionValue(REFPROPERTYKEY key,
                                            IPortableDeviceValuesCollection* value) override;
    HRESULT
    GetIPortableDeviceValuesCollectionValue(REFPROPERTYKEY key,
                                            IPortableDeviceValuesCollection** value) override;
    HRESULT RemoveValue(REFPROPERTYKEY key) override;
    HRESULT CopyValuesFromPropertyStore(IPropertyStore* store) override;
    HRESULT CopyValuesToPropertyStore(IPropertyStore* store) override;
    HRESULT Clear() override;

private:
    using Entry = std::pair<PROPERTYKEY, Variant>;

    template <typename T>
    HRESULT SetScalar(REFPROPERTYKEY key, VARTYPE type, T PROPVARIANT::*member, T value);
    template <typename T, typename Out>
    HRESULT GetScalar(REFPROPERTYKEY key, VARTYPE type, T PROPVARIANT::*member, Out* out) const;
    HRESULT SetObject(REFPROPERTYKEY key, IUnknown* value);
    template <typename Interface>
    HRESULT GetObject(REFPROPERTYKEY key, Interface** out) const;
    HRESULT CopyOf(REFPROPERTYKEY key, VARTYPE type, Variant& copy) const;
    const Entry* Find(REFPROPERTYKEY key) const;

    mutable std::mutex m_mutex;
    std::vector<Entry> m_entries;
};

/// What CLSID_PortableDeviceKeyCollection makes.
class KeyCollection final : public ComObject<IPortableDeviceKeyCollection>
{
public:
    explicit KeyCollection(std::vector<PROPERTYKEY> keys = {}) : m_keys(std::move(keys)) {}

    HRESULT GetCount(DWORD* count) override;
    HRESULT GetAt(const DWORD index, PROPERTYKEY* key) override;
    HRESULT Add(REFPROPERTYKEY key) override;
    HRESULT Clear() override;
    HRESULT RemoveAt(const DWORD index) override;

private:
    std::mutex m_mutex;
    std::vector<PROPERTYKEY> m_keys;
};

/// What CLSID_PortableDevicePropVariantCollection makes. The first value sets the type of all.
class VariantCollection final : public ComObject<IPortableDevicePropVariantCollection>
{
public:
    HRESULT GetCount(DWORD* count) override;
    HRESULT GetAt(const DWORD index, PROPVARIANT* value) override;
    HRESULT Add(const PROPVARIANT* value) override;
    HRESULT GetType(VARTYPE* type) override;
    /// Only an empty collection changes its type.
    HRESULT ChangeType(const VARTYPE type) override;
    HRESULT Clear() override;
    HRESULT RemoveAt(const DWORD index) override;

private:
    struct Guarded
    {
        std::vector<Variant> values;
        VARTYPE type = VT_EMPTY;
    };
    std::mutex m_mutex; // guards m_guarded
    Guarded m_guarded;
};

} // namespace devices

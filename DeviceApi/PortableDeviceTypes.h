// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "DeviceApi/PropertyTypes.h"

/// The collections that the portable-device service takes and gives.

#ifdef _WIN32

#include <portabledevicetypes.h>

#else

/// Opaque here: nothing on this system copies to or from a property store.
struct IPropertyStore;
struct IPortableDevicePropVariantCollection;
struct IPortableDeviceKeyCollection;
struct IPortableDeviceValuesCollection;

/// Values by property key. A getter of one type fails when the value has another type; text,
/// identifiers and bytes come as task memory, objects with a new reference.
struct IPortableDeviceValues : IUnknown
{
    virtual HRESULT GetCount(DWORD* count) = 0;
    virtual HRESULT GetAt(const DWORD index, PROPERTYKEY* key, PROPVARIANT* value) = 0;
    virtual HRESULT SetValue(REFPROPERTYKEY key, const PROPVARIANT* value) = 0;
    virtual HRESULT GetValue(REFPROPERTYKEY key, PROPVARIANT* value) = 0;
    virtual HRESULT SetStringValue(REFPROPERTYKEY key, LPCWSTR value) = 0;
    virtual HRESULT GetStringValue(REFPROPERTYKEY key, LPWSTR* value) = 0;
    virtual HRESULT SetUnsignedIntegerValue(REFPROPERTYKEY key, const ULONG value) = 0;
    virtual HRESULT GetUnsignedIntegerValue(REFPROPERTYKEY key, ULONG* value) = 0;
    virtual HRESULT SetSignedIntegerValue(REFPROPERTYKEY key, const LONG value) = 0;
    virtual HRESULT GetSignedIntegerValue(REFPROPERTYKEY key, LONG* value) = 0;
    virtual HRESULT SetUnsignedLargeIntegerValue(REFPROPERTYKEY key, const ULONGLONG value) = 0;
    virtual HRESULT GetUnsignedLargeIntegerValue(REFPROPERTYKEY key, ULONGLONG* value) = 0;
    virtual HRESULT SetSignedLargeIntegerValue(REFPROPERTYKEY key, const LONGLONG value) = 0;
    virtual HRESULT GetSignedLargeIntegerValue(REFPROPERTYKEY key, LONGLONG* value) = 0;
    virtual HRESULT SetFloatValue(REFPROPERTYKEY key, const FLOAT value) = 0;
    virtual HRESULT GetFloatValue(REFPROPERTYKEY key, FLOAT* value) = 0;
    virtual HRESULT SetErrorValue(REFPROPERTYKEY key, const HRESULT value) = 0;
    virtual HRESULT GetErrorValue(REFPROPERTYKEY key, HRESULT* value) = 0;
    virtual HRESULT SetKeyValue(REFPROPERTYKEY key, REFPROPERTYKEY value) = 0;
    virtual HRESULT GetKeyValue(REFPROPERTYKEY key, PROPERTYKEY* value) = 0;
    virtual HRESULT SetBoolValue(REFPROPERTYKEY key, const BOOL value) = 0;
    virtual HRESULT GetBoolValue(REFPROPERTYKEY key, BOOL* value) = 0;
    virtual HRESULT SetIUnknownValue(REFPROPERTYKEY key, IUnknown* value) = 0;
    virtual HRESULT GetIUnknownValue(REFPROPERTYKEY key, IUnknown** value) = 0;
    virtual HRESULT SetGuidValue(REFPROPERTYKEY key, REFGUID value) = 0;
    virtual HRESULT GetGuidValue(REFPROPERTYKEY key, GUID* value) = 0;
    virtual HRESULT SetBufferValue(REFPROPERTYKEY key, BYTE* value, DWORD bytes) = 0;
    virtual HRESULT GetBufferValue(REFPROPERTYKEY key, BYTE** value, DWORD* bytes) = 0;
    virtual HRESULT SetIPortableDeviceValuesValue(REFPROPERTYKEY key,
                                                  IPortableDeviceValues* value) = 0;
    virtual HRESULT GetIPortableDeviceValuesValue(REFPROPERTYKEY key,
                                                  IPortableDeviceValues** value) = 0;
    virtual HRESULT
    SetIPortableDevicePropVariantCollectionValue(REFPROPERTYKEY key,
                                                 IPortableDevicePropVariantCollection* value) = 0;
    virtual HRESULT
    GetIPortableDevicePropVariantCollectionValue(REFPROPERTYKEY key,
                                                 IPortableDevicePropVariantCollection** value) = 0;
    virtual HRESULT SetIPortableDeviceKeyCollectionValue(REFPROPERTYKEY key,
                                                         IPortableDeviceKeyCollection* value) = 0;
    virtual HRESULT GetIPortableDeviceKeyCollectionValue(REFPROPERTYKEY key,
                                                         IPortableDeviceKeyCollection** value) = 0;
    virtual HRESULT
    SetIPortableDeviceValuesCollectionValue(REFPROPERTYKEY key,
                                            IPortableDeviceValuesCollection* value) = 0;
    virtual HRESULT
    GetIPortableDeviceValuesCollectionValue(REFPROPERTYKEY key,
                                            IPortableDeviceValuesCollection** value) = 0;
    virtual HRESULT RemoveValue(REFPROPERTYKEY key) = 0;
    virtual HRESULT CopyValuesFromPropertyStore(IPropertyStore* store) = 0;
    virtual HRESULT CopyValuesToPropertyStore(IPropertyStore* store) = 0;
    virtual HRESULT Clear() = 0;
};

/// A list of property keys.
struct IPortableDeviceKeyCollection : IUnknown
{
    virtual HRESULT GetCount(DWORD* count) = 0;
    virtual HRESULT GetAt(const DWORD index, PROPERTYKEY* key) = 0;
    virtual HRESULT Add(REFPROPERTYKEY key) = 0;
    virtual HRESULT Clear() = 0;
    virtual HRESULT RemoveAt(const DWORD index) = 0;
};

/// A list of values, all of one type.
struct IPortableDevicePropVariantCollection : IUnknown
{
    virtual HRESULT GetCount(DWORD* count) = 0;
    virtual HRESULT GetAt(const DWORD index, PROPVARIANT* value) = 0;
    virtual HRESULT Add(const PROPVARIANT* value) = 0;
    virtual HRESULT GetType(VARTYPE* type) = 0;
    virtual HRESULT ChangeType(const VARTYPE type) = 0;
    virtual HRESULT Clear() = 0;
    virtual HRESULT RemoveAt(const DWORD index) = 0;
};

#endif

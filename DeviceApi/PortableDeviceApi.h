// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "DeviceApi/PortableDeviceTypes.h"

/// The portable-device service: manager, devices, content, properties, resources and events, with
/// the published order of operations. A compiler that brings the system's header uses that one.
///
/// Where the system has no such service, the module PortableDevices.dll beside the executable gives
/// the classes through its exported DllGetClassObject; it is loaded when the first one is made.
///
/// Text that an operation delivers is task memory (CoTaskMemFree), objects come with a new
/// reference. The manager writes names into the caller's buffers instead.

#if defined(_WIN32) && __has_include(<portabledeviceapi.h>)

#include <portabledeviceapi.h>

#else

/// Opaque: the commands, formats and events that a device knows.
struct IPortableDeviceCapabilities;
struct IPortableDevice;
struct IPortableDeviceContent;
struct IPortableDeviceProperties;
struct IPortableDeviceResources;
struct IPortableDeviceEventCallback;
struct IEnumPortableDeviceObjectIDs;

/// Lists the devices. The lengths of the three names count characters with the closing zero; a null
/// name asks for the length only.
struct IPortableDeviceManager : IUnknown
{
    /// Fills \a ids with up to \a count identifiers; a null \a ids asks for the number only.
    virtual HRESULT GetDevices(LPWSTR* ids, DWORD* count) = 0;
    virtual HRESULT RefreshDeviceList() = 0;
    virtual HRESULT GetDeviceFriendlyName(LPCWSTR id, WCHAR* name, DWORD* length) = 0;
    virtual HRESULT GetDeviceDescription(LPCWSTR id, WCHAR* description, DWORD* length) = 0;
    virtual HRESULT GetDeviceManufacturer(LPCWSTR id, WCHAR* manufacturer, DWORD* length) = 0;
    virtual HRESULT GetDeviceProperty(LPCWSTR id, LPCWSTR property, BYTE* data, DWORD* bytes,
                                      DWORD* type) = 0;
    virtual HRESULT GetPrivateDevices(LPWSTR* ids, DWORD* count) = 0;
};

/// One device.
struct IPortableDevice : IUnknown
{
    /// Opens the device for the client that \a clientInformation names.
    virtual HRESULT Open(LPCWSTR id, IPortableDeviceValues* clientInformation) = 0;
    virtual HRESULT SendCommand(const DWORD flags, IPortableDeviceValues* parameters,
                                IPortableDeviceValues** results) = 0;
    virtual HRESULT Content(IPortableDeviceContent** out) = 0;
    virtual HRESULT Capabilities(IPortableDeviceCapabilities** out) = 0;
    virtual HRESULT Cancel() = 0;
    virtual HRESULT Close() = 0;
    /// Calls \a callback for every event, on a thread of the service, until Unadvise().
    virtual HRESULT Advise(const DWORD flags, IPortableDeviceEventCallback* callback,
                           IPortableDeviceValues* parameters, LPWSTR* cookie) = 0;
    virtual HRESULT Unadvise(LPCWSTR cookie) = 0;
    virtual HRESULT GetPnPDeviceID(LPWSTR* id) = 0;
};

/// The tree of objects on a device, from the root object "DEVICE" down.
struct IPortableDeviceContent : IUnknown
{
    virtual HRESULT EnumObjects(const DWORD flags, LPCWSTR parent, IPortableDeviceValues* filter,
                                IEnumPortableDeviceObjectIDs** out) = 0;
    virtual HRESULT Properties(IPortableDeviceProperties** out) = 0;
    virtual HRESULT Transfer(IPortableDeviceResources** out) = 0;
    virtual HRESULT CreateObjectWithPropertiesOnly(IPortableDeviceValues* values, LPWSTR* id) = 0;
    virtual HRESULT CreateObjectWithPropertiesAndData(IPortableDeviceValues* values, IStream** data,
                                                      DWORD* optimalBufferSize, LPWSTR* cookie) = 0;
    /// S_FALSE when at least one of the objects could not be deleted.
    virtual HRESULT Delete(const DWORD options, IPortableDevicePropVariantCollection* ids,
                           IPortableDevicePropVariantCollection** results) = 0;
    virtual HRESULT
    GetObjectIDsFromPersistentUniqueIDs(IPortableDevicePropVariantCollection* persistentIds,
                                        IPortableDevicePropVariantCollection** ids) = 0;
    virtual HRESULT Cancel() = 0;
    virtual HRESULT Move(IPortableDevicePropVariantCollection* ids, LPCWSTR target,
                         IPortableDevicePropVariantCollection** results) = 0;
    virtual HRESULT Copy(IPortableDevicePropVariantCollection* ids, LPCWSTR target,
                         IPortableDevicePropVariantCollection** results) = 0;
};

/// The children of one object.
struct IEnumPortableDeviceObjectIDs : IUnknown
{
    /// S_FALSE when there were fewer than \a wanted left; \a fetched tells how many came.
    virtual HRESULT Next(ULONG wanted, LPWSTR* ids, ULONG* fetched) = 0;
    virtual HRESULT Skip(ULONG count) = 0;
    virtual HRESULT Reset() = 0;
    virtual HRESULT Clone(IEnumPortableDeviceObjectIDs** out) = 0;
    virtual HRESULT Cancel() = 0;
};

/// Properties of objects.
struct IPortableDeviceProperties : IUnknown
{
    virtual HRESULT GetSupportedProperties(LPCWSTR object, IPortableDeviceKeyCollection** keys) = 0;
    virtual HRESULT GetPropertyAttributes(LPCWSTR object, REFPROPERTYKEY key,
                                          IPortableDeviceValues** attributes) = 0;
    /// Null \a keys ask for everything. S_FALSE when a property could not be read: its value is an
    /// error then.
    virtual HRESULT GetValues(LPCWSTR object, IPortableDeviceKeyCollection* keys,
                              IPortableDeviceValues** values) = 0;
    virtual HRESULT SetValues(LPCWSTR object, IPortableDeviceValues* values,
                              IPortableDeviceValues** results) = 0;
    virtual HRESULT Delete(LPCWSTR object, IPortableDeviceKeyCollection* keys) = 0;
    virtual HRESULT Cancel() = 0;
};

/// Data of objects.
struct IPortableDeviceResources : IUnknown
{
    virtual HRESULT GetSupportedResources(LPCWSTR object, IPortableDeviceKeyCollection** keys) = 0;
    virtual HRESULT GetResourceAttributes(LPCWSTR object, REFPROPERTYKEY key,
                                          IPortableDeviceValues** attributes) = 0;
    virtual HRESULT GetStream(LPCWSTR object, REFPROPERTYKEY key, const DWORD mode,
                              DWORD* optimalBufferSize, IStream** out) = 0;
    virtual HRESULT Delete(LPCWSTR object, IPortableDeviceKeyCollection* keys) = 0;
    virtual HRESULT Cancel() = 0;
    virtual HRESULT CreateResource(IPortableDeviceValues* attributes, IStream** out,
                                   DWORD* optimalBufferSize, LPWSTR* cookie) = 0;
};

/// What a client gives to IPortableDevice::Advise().
struct IPortableDeviceEventCallback : IUnknown
{
    virtual HRESULT OnEvent(IPortableDeviceValues* parameters) = 0;
};

#endif

/// The published identifiers. They stand in a namespace of their own, beside those of a system
/// header.
namespace Wpd {

inline constexpr _GUID CLSID_PortableDeviceManager = {
    0x0AF10CEC, 0x2ECD, 0x4B92, {0x95, 0x81, 0x34, 0xF6, 0xAE, 0x06, 0x37, 0xF3}};
inline constexpr _GUID CLSID_PortableDevice = {
    0x728A21C5, 0x3D9E, 0x48D7, {0x98, 0x10, 0x86, 0x48, 0x48, 0xF0, 0xF4, 0x04}};
/// The same device without a thread of its own: usable from any thread.
inline constexpr _GUID CLSID_PortableDeviceFTM = {
    0xF7C0039A, 0x4762, 0x488A, {0xB4, 0xB3, 0x76, 0x0E, 0xF9, 0xA1, 0xBA, 0x9B}};
inline constexpr _GUID CLSID_PortableDeviceValues = {
    0x0C15D503, 0xD017, 0x47CE, {0x90, 0x16, 0x7B, 0x3F, 0x97, 0x87, 0x21, 0xCC}};
inline constexpr _GUID CLSID_PortableDeviceKeyCollection = {
    0xDE2D022D, 0x2480, 0x43BE, {0x97, 0xF0, 0xD1, 0xFA, 0x2C, 0xF9, 0x8F, 0x4F}};
inline constexpr _GUID CLSID_PortableDevicePropVariantCollection = {
    0x08A99E2F, 0x6D6D, 0x4B80, {0xAF, 0x5A, 0xBA, 0xF2, 0xBC, 0xBE, 0x4C, 0xB9}};

/// The root object of every device.
inline constexpr wchar_t WPD_DEVICE_OBJECT_ID[] = L"DEVICE";

inline constexpr _GUID ObjectProperties = {
    0xEF6B490D, 0x5CD8, 0x437A, {0xAF, 0xFC, 0xDA, 0x8B, 0x60, 0xEE, 0x4A, 0x3C}};
inline constexpr PROPERTYKEY WPD_OBJECT_ID = {ObjectProperties, 2};                  // text
inline constexpr PROPERTYKEY WPD_OBJECT_PARENT_ID = {ObjectProperties, 3};           // text
inline constexpr PROPERTYKEY WPD_OBJECT_NAME = {ObjectProperties, 4};                // text
inline constexpr PROPERTYKEY WPD_OBJECT_CONTENT_TYPE = {ObjectProperties, 7};        // identifier
inline constexpr PROPERTYKEY WPD_OBJECT_SIZE = {ObjectProperties, 11};               // VT_UI8
inline constexpr PROPERTYKEY WPD_OBJECT_ORIGINAL_FILE_NAME = {ObjectProperties, 12}; // text
inline constexpr PROPERTYKEY WPD_OBJECT_DATE_MODIFIED = {ObjectProperties, 19};      // VT_DATE

inline constexpr _GUID ClientInformation = {
    0x204D9F0C, 0x2292, 0x4080, {0x9F, 0x42, 0x40, 0x66, 0x4E, 0x70, 0xF8, 0x59}};
inline constexpr PROPERTYKEY WPD_CLIENT_NAME = {ClientInformation, 2};
inline constexpr PROPERTYKEY WPD_CLIENT_MAJOR_VERSION = {ClientInformation, 3};
inline constexpr PROPERTYKEY WPD_CLIENT_MINOR_VERSION = {ClientInformation, 4};
inline constexpr PROPERTYKEY WPD_CLIENT_REVISION = {ClientInformation, 5};
inline constexpr PROPERTYKEY WPD_CLIENT_SECURITY_QUALITY_OF_SERVICE = {ClientInformation, 8};
inline constexpr PROPERTYKEY WPD_CLIENT_DESIRED_ACCESS = {ClientInformation, 9};

inline constexpr _GUID EventParameters = {
    0x15AB1953, 0xF817, 0x4FEF, {0xA9, 0x21, 0x56, 0x76, 0xE8, 0x38, 0xF6, 0xE0}};
inline constexpr PROPERTYKEY WPD_EVENT_PARAMETER_PNP_DEVICE_ID = {EventParameters, 2}; // text
inline constexpr PROPERTYKEY WPD_EVENT_PARAMETER_EVENT_ID = {EventParameters, 3};      // identifier
inline constexpr _GUID WPD_EVENT_DEVICE_REMOVED = {
    0xE4CBCA1B, 0x6918, 0x48B9, {0x85, 0xEE, 0x02, 0xBE, 0x7C, 0x85, 0x0A, 0xF9}};

inline constexpr _GUID WPD_CONTENT_TYPE_FOLDER = {
    0x27E2E392, 0xA111, 0x48E0, {0xAB, 0x0C, 0xE1, 0x77, 0x05, 0xA0, 0x5F, 0x85}};

/// The object's own data, and the small picture that stands for it.
inline constexpr PROPERTYKEY WPD_RESOURCE_DEFAULT = {
    {0xE81E79BE, 0x34F0, 0x41BF, {0xB5, 0x3F, 0xF1, 0xA0, 0x6A, 0xE8, 0x78, 0x42}}, 0};
inline constexpr PROPERTYKEY WPD_RESOURCE_THUMBNAIL = {
    {0xC7C407BA, 0x98FA, 0x46B5, {0x99, 0x60, 0x23, 0xFE, 0xC1, 0x24, 0xCF, 0xDE}}, 0};

/// Options of IPortableDeviceContent::Delete().
inline constexpr DWORD PORTABLE_DEVICE_DELETE_NO_RECURSION = 0;
inline constexpr DWORD PORTABLE_DEVICE_DELETE_WITH_RECURSION = 1;

inline constexpr _GUID IID_PortableDeviceManager = {
    0xA1567595, 0x4C2F, 0x4574, {0xA6, 0xFA, 0xEC, 0xEF, 0x91, 0x7B, 0x9A, 0x40}};
inline constexpr _GUID IID_PortableDevice = {
    0x625E2DF8, 0x6392, 0x4CF0, {0x9A, 0xD1, 0x3C, 0xFA, 0x5F, 0x17, 0x77, 0x5C}};
inline constexpr _GUID IID_PortableDeviceContent = {
    0x6A96ED84, 0x7C73, 0x4480, {0x99, 0x38, 0xBF, 0x5A, 0xF4, 0x77, 0xD4, 0x26}};
inline constexpr _GUID IID_EnumPortableDeviceObjectIDs = {
    0x10ECE955, 0xCF41, 0x4728, {0xBF, 0xA0, 0x41, 0xEE, 0xDF, 0x1B, 0xBF, 0x19}};
inline constexpr _GUID IID_PortableDeviceProperties = {
    0x7F6D695C, 0x03DF, 0x4439, {0xA8, 0x09, 0x59, 0x26, 0x6B, 0xEE, 0xE3, 0xA6}};
inline constexpr _GUID IID_PortableDeviceResources = {
    0xFD8878AC, 0xD841, 0x4D17, {0x89, 0x1C, 0xE6, 0x82, 0x9C, 0xDB, 0x69, 0x34}};
inline constexpr _GUID IID_PortableDeviceEventCallback = {
    0xA8792A31, 0xF385, 0x493C, {0xA8, 0x93, 0x40, 0xF6, 0x4E, 0xB4, 0x5F, 0x6E}};
inline constexpr _GUID IID_PortableDeviceValues = {
    0x6848F6F2, 0x3155, 0x4F86, {0xB6, 0xF5, 0x26, 0x3E, 0xEE, 0xAB, 0x31, 0x43}};
inline constexpr _GUID IID_PortableDeviceKeyCollection = {
    0xDADA2357, 0xE0AD, 0x492E, {0x98, 0xDB, 0xDD, 0x61, 0xC5, 0x3B, 0xA3, 0x53}};
inline constexpr _GUID IID_PortableDevicePropVariantCollection = {
    0x89B2E422, 0x4F1B, 0x4316, {0xBC, 0xEF, 0xA4, 0x4A, 0xFE, 0xA8, 0x3E, 0xB3}};

} // namespace Wpd

// A specialisation each: a system header's interfaces carry no identifier that this code could ask.
#define WPD_INTERFACE_ID(Interface, Id)                                                            \
    template <>                                                                                    \
    constexpr const _GUID& InterfaceId<Interface>()                                                \
    {                                                                                              \
        return Wpd::Id;                                                                            \
    }
WPD_INTERFACE_ID(IPortableDeviceManager, IID_PortableDeviceManager)
WPD_INTERFACE_ID(IPortableDevice, IID_PortableDevice)
WPD_INTERFACE_ID(IPortableDeviceContent, IID_PortableDeviceContent)
WPD_INTERFACE_ID(IEnumPortableDeviceObjectIDs, IID_EnumPortableDeviceObjectIDs)
WPD_INTERFACE_ID(IPortableDeviceProperties, IID_PortableDeviceProperties)
WPD_INTERFACE_ID(IPortableDeviceResources, IID_PortableDeviceResources)
WPD_INTERFACE_ID(IPortableDeviceEventCallback, IID_PortableDeviceEventCallback)
WPD_INTERFACE_ID(IPortableDeviceValues, IID_PortableDeviceValues)
WPD_INTERFACE_ID(IPortableDeviceKeyCollection, IID_PortableDeviceKeyCollection)
WPD_INTERFACE_ID(IPortableDevicePropVariantCollection, IID_PortableDevicePropVariantCollection)
#undef WPD_INTERFACE_ID

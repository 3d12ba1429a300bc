// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/WpdApiLib/WpdApiLib.h"

#include "Com/ComGuard.h"
#include "CommonLib/BaseLog.h"
#include "CommonLib/WpdApiLib/PortableDeviceService_p.h"
#include "CommonLib/WpdApiLib/WpdContentWalk_p.h"
#include "CommonLib/WpdApiLib/WpdDeviceEvents_p.h"
#include "CommonLib/WpdApiLib/WpdReport_p.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <memory>
#include <mutex>
#include <new>
#include <utility>

std::int32_t WpdApiLib::bFailed = 0;
std::int32_t WpdApiLib::bCanceled = 0;
HWND WpdApiLib::g_hwndMsg = nullptr;
WpdCallbackProc WpdApiLib::m_pCallbackProc = nullptr;
void* WpdApiLib::m_pUserObj = nullptr;

namespace {

constexpr char kSourcePath[] = "CommonLib/WpdApiLib/WpdApiLib";
constexpr char kEnumerateAllDevicesName[] = "WpdApiLib::EnumerateAllDevices";

// Plain pointers: at the end of the process nothing may be released any more, since the module that
// made the objects may be gone.
IPortableDevice* s_device = nullptr;
std::mutex s_cancelMutex;                 // guards s_cancellable
IPortableDevice* s_cancellable = nullptr; // the device that is open or being opened; not owned
WpdDeviceEvents* s_events = nullptr;
wchar_t* s_cookie = nullptr; // task memory; null for none

void SetCancellable(IPortableDevice* device)
{
    const std::lock_guard<std::mutex> lock(s_cancelMutex);
    s_cancellable = device;
}

// ---- Listing

using NameOperation = HRESULT (IPortableDeviceManager::*)(LPCWSTR, WCHAR*, DWORD*);

/// A name of a device as a system string; empty when there is none, null when memory is out.
BSTR DeviceName(IPortableDeviceManager& manager, LPCWSTR id, NameOperation operation)
{
    DWORD length = 0;
    if (FAILED((manager.*operation)(id, nullptr, &length)) || length == 0)
        return SysAllocString(L"");
    const BSTR name = SysAllocStringLen(nullptr, length - 1); // the length counts the closing zero
    if (!name)
        return nullptr;
    name[0] = 0;
    if (FAILED((manager.*operation)(id, name, &length)))
        name[0] = 0;
    return name;
}

/// The friendly name, or the description of a device without; the caller frees it.
BSTR DisplayName(IPortableDeviceManager& manager, LPCWSTR id)
{
    const BSTR name = DeviceName(manager, id, &IPortableDeviceManager::GetDeviceFriendlyName);
    if (name && name[0])
        return name;
    SysFreeString(name);
    return DeviceName(manager, id, &IPortableDeviceManager::GetDeviceDescription);
}

unsigned long LogNoDevices(int line, const char* message)
{
    GetGlobalLogInstance()->LogInfo(kSourcePath, kEnumerateAllDevicesName, line, "%s", message);
    return 0;
}

// ---- Opening

/// What this client tells a device about itself. The name is the fixed one that devices know.
NLEComPtr<IPortableDeviceValues> ClientInformation()
{
    constexpr ULONG impersonation = 0x20000;
    NLEComPtr<IPortableDeviceValues> values;
    if (FAILED(CreatePortableDeviceComponent(Wpd::CLSID_PortableDeviceValues, values)))
        return nullptr;
    values->SetStringValue(Wpd::WPD_CLIENT_NAME, L"WPD Sample Application");
    values->SetUnsignedIntegerValue(Wpd::WPD_CLIENT_MAJOR_VERSION, 1);
    values->SetUnsignedIntegerValue(Wpd::WPD_CLIENT_MINOR_VERSION, 0);
    values->SetUnsignedIntegerValue(Wpd::WPD_CLIENT_REVISION, 2);
    values->SetUnsignedIntegerValue(Wpd::WPD_CLIENT_SECURITY_QUALITY_OF_SERVICE, impersonation);
    return values;
}

/// Opens \a device, read-only when it refuses more.
HRESULT Open(IPortableDevice& device, const wchar_t* deviceId, IPortableDeviceValues* client)
{
    constexpr ULONG readOnly = 0x80000000;
    const HRESULT result = device.Open(deviceId, client);
    if (result != E_ACCESSDENIED || !client)
        return result;
    client->SetUnsignedIntegerValue(Wpd::WPD_CLIENT_DESIRED_ACCESS, readOnly);
    return device.Open(deviceId, client);
}

void RegisterForEventNotifications(WpdCallbackProc callback, void* user)
{
    if (s_cookie)
        return; // registered already
    NLEComPtr<WpdDeviceEvents> events;
    const HRESULT result = ComGuard([&] {
        events = MakeCom<WpdDeviceEvents>(callback, user);
        return s_device->Advise(0, events.get(), nullptr, &s_cookie);
    });
    if (SUCCEEDED(result)) {
        s_events = events.detach();
        return;
    }
    s_cookie = nullptr;
    std::printf("! Failed to register for device events, hr = 0x%lx\n", ResultBits(result));
}

// ---- Content

/// The open device's content; null, with a message, when there is none.
NLEComPtr<IPortableDeviceContent> Content()
{
    NLEComPtr<IPortableDeviceContent> content;
    const HRESULT result =
        Delivered(s_device ? s_device->Content(content.put()) : E_POINTER, content);
    if (SUCCEEDED(result))
        return content;
    std::printf("! Failed to get IPortableDeviceContent from IPortableDevice, hr = 0x%lx\n",
                ResultBits(result));
    return nullptr;
}

NLEComPtr<IPortableDeviceResources> Resources(IPortableDeviceContent& content)
{
    NLEComPtr<IPortableDeviceResources> resources;
    const HRESULT result = Delivered(content.Transfer(resources.put()), resources);
    if (SUCCEEDED(result))
        return resources;
    std::printf("! Failed to get IPortableDeviceResources from IPortableDeviceContent, "
                "hr = 0x%lx\n",
                ResultBits(result));
    return nullptr;
}

NLEComPtr<IStream> SourceStream(IPortableDeviceResources& resources, const wchar_t* objectId,
                                bool alternateResource, DWORD& optimalBufferSize)
{
    NLEComPtr<IStream> source;
    REFPROPERTYKEY resource =
        alternateResource ? Wpd::WPD_RESOURCE_THUMBNAIL : Wpd::WPD_RESOURCE_DEFAULT;
    const HRESULT result = Delivered(
        resources.GetStream(objectId, resource, STGM_READ, &optimalBufferSize, source.put()),
        source);
    if (SUCCEEDED(result))
        return source;
    std::printf("! Failed to get IStream (representing object data on the device) from "
                "IPortableDeviceResources, hr = 0x%lx\n",
                ResultBits(result));
    return nullptr;
}

NLEComPtr<IStream> DestinationStream(const wchar_t* path, const wchar_t* objectId, IStream& source)
{
    NLEComPtr<IStream> destination;
    const HRESULT result =
        Delivered(CreateStreamOnFile(path, source, destination.put()), destination);
    if (SUCCEEDED(result))
        return destination;
    std::printf("! Failed to create a temporary file named (%s) to transfer object (%s), "
                "hr = 0x%lx\n",
                MessageText(path).constData(), MessageText(objectId).constData(),
                ResultBits(result));
    return nullptr;
}

/// Writes all of \a data, in as many steps as the stream likes.
HRESULT WriteAll(IStream& destination, const char* data, ULONG count)
{
    while (count > 0) {
        ULONG written = 0;
        const HRESULT result = destination.Write(data, count, &written);
        if (FAILED(result))
            return result;
        if (written == 0 || written > count)
            return STG_E_WRITEFAULT; // it would never end
        data += written;
        count -= written;
    }
    return S_OK;
}

/// Copies \a source to its end, one chunk of \a bufferSize bytes after the other.
HRESULT CopyStream(IStream& source, IStream& destination, DWORD bufferSize,
                   WpdCallbackProc callback, void* user)
{
    constexpr DWORD usualBufferSize = 256 * 1024;
    if (bufferSize == 0)
        bufferSize = usualBufferSize; // or nothing would ever be read
    const std::unique_ptr<char[]> buffer(new (std::nothrow) char[bufferSize]);
    if (!buffer) {
        std::printf("! Failed to allocate %lu bytes for the temporary transfer buffer.\n",
                    static_cast<unsigned long>(bufferSize));
        return S_OK; // a copy of nothing; kept: see docs/compatibility.md
    }
    std::int64_t total = 0;
    for (;;) {
        ULONG count = 0;
        HRESULT result = source.Read(buffer.get(), bufferSize, &count);
        if (FAILED(result)) {
            std::printf("! Failed to read %lu bytes from the source stream, hr = 0x%lx\n",
                        static_cast<unsigned long>(bufferSize), ResultBits(result));
            return result;
        }
        if (count == 0)
            return S_OK;
        result = WriteAll(destination, buffer.get(), std::min<ULONG>(count, bufferSize));
        if (FAILED(result)) {
            std::printf("! Failed to write %lu bytes of object data to the destination stream, "
                        "hr = 0x%lx\n",
                        static_cast<unsigned long>(count), ResultBits(result));
            return result;
        }
        total += count;
        if (callback && callback(nullptr, 0, WpdChunkWritten, total, user) > 0)
            return E_FAIL;
    }
}

// ---- Deleting

/// \a text as task memory; null for null and when memory is out.
TaskText CopyText(const wchar_t* text)
{
    if (!text)
        return nullptr;
    const std::size_t bytes = (std::wcslen(text) + 1) * sizeof(wchar_t);
    TaskText copy(static_cast<wchar_t*>(CoTaskMemAlloc(bytes)));
    if (copy)
        std::memcpy(copy.get(), text, bytes);
    return copy;
}

/// A collection of the one \a objectId; null, with a message, when a step fails.
NLEComPtr<IPortableDevicePropVariantCollection> CollectionOf(const wchar_t* objectId)
{
    NLEComPtr<IPortableDevicePropVariantCollection> ids;
    HRESULT result =
        CreatePortableDeviceComponent(Wpd::CLSID_PortableDevicePropVariantCollection, ids);
    if (result == E_POINTER) {
        std::printf("! Failed to delete an object from the device because we were returned a NULL "
                    "IPortableDevicePropVariantCollection interface pointer, hr = 0x%lx\n",
                    ResultBits(result));
        return nullptr;
    }
    if (FAILED(result)) {
        std::printf("! Failed to CoCreateInstance CLSID_PortableDevicePropVariantCollection, "
                    "hr = 0x%lx\n",
                    ResultBits(result));
        return nullptr;
    }
    TaskText copy = CopyText(objectId);
    if (!copy) {
        // "could no", here and below. Kept: see docs/compatibility.md.
        std::printf("! Failed to delete an object from the device because we could no allocate "
                    "memory for the object identifier string, hr = 0x%lx\n",
                    ResultBits(E_OUTOFMEMORY));
        return nullptr;
    }
    PROPVARIANT value;
    PropVariantInit(&value);
    value.vt = VT_LPWSTR;
    value.pwszVal = copy.release();
    result = ids->Add(&value);
    PropVariantClear(&value);
    if (SUCCEEDED(result))
        return ids;
    std::printf("! Failed to delete an object from the device because we could no add the object "
                "identifier string to the IPortableDevicePropVariantCollection, hr = 0x%lx\n",
                ResultBits(result));
    return nullptr;
}

} // namespace

void WpdApiLib::SetCallbackProc(WpdCallbackProc callback, void* user)
{
    m_pCallbackProc = callback;
    m_pUserObj = user;
}

unsigned long WpdApiLib::EnumerateAllDevices(wchar_t** ids, wchar_t** names)
{
    NLEComPtr<IPortableDeviceManager> manager;
    if (FAILED(CreatePortableDeviceComponent(Wpd::CLSID_PortableDeviceManager, manager)))
        return LogNoDevices(__LINE__, "Failed to CoCreateInstance CLSID_PortableDeviceManager");
    DWORD count = 0;
    if (FAILED(manager->GetDevices(nullptr, &count)))
        return LogNoDevices(__LINE__, "! Failed to get number of devices on the system");
    if (count == 0)
        return 0;
    const std::unique_ptr<LPWSTR[]> found(new (std::nothrow) LPWSTR[count]());
    if (!found)
        return LogNoDevices(__LINE__, "Failed to allocate memory for PWSTR array");
    DWORD fetched = count;
    if (FAILED(manager->GetDevices(found.get(), &fetched)))
        return LogNoDevices(__LINE__, "Failed to get the device list from the system");
    fetched = std::min(fetched, count); // a device may have gone or come meanwhile
    for (DWORD i = 0; i < fetched; ++i) {
        const TaskText id(found[i]);
        if (ids)
            ids[i] = SysAllocString(id.get());
        if (names)
            names[i] = DisplayName(*manager, id.get());
    }
    return fetched;
}

int WpdApiLib::ChooseDevice(const wchar_t* deviceId, HWND window)
{
    UnregisterForEventNotifications();
    if (!deviceId)
        return 0;
    const auto client = ClientInformation();
    NLEComPtr<IPortableDevice> device;
    HRESULT result = CreatePortableDeviceComponent(Wpd::CLSID_PortableDeviceFTM, device);
    if (FAILED(result)) {
        std::printf("! Failed to CoCreateInstance CLSID_PortableDeviceFTM, hr = 0x%lx\n",
                    ResultBits(result));
        return 0;
    }
    SetCancellable(device.get());
    result = Open(*device, deviceId, client.get());
    if (FAILED(result)) {
        SetCancellable(nullptr);
        std::printf("! Failed to Open the device, hr = 0x%lx\n", ResultBits(result));
        return 0;
    }
    s_device = device.detach();
    g_hwndMsg = window;
    RegisterForEventNotifications(m_pCallbackProc, m_pUserObj);
    return 1;
}

int WpdApiLib::EnumerateAllContent()
{
    bFailed = 0;
    bCanceled = 0;
    const auto content = Content();
    if (content)
        WpdContentWalk(content, m_pCallbackProc, m_pUserObj).Visit(Wpd::WPD_DEVICE_OBJECT_ID, 0);
    else
        bFailed = 1;
    return bFailed || bCanceled ? 0 : 1;
}

int WpdApiLib::TransferContentFromDevice(const wchar_t* objectId, const wchar_t* destinationPath,
                                         int alternateResource)
{
    const auto content = Content();
    const auto resources = content ? Resources(*content) : nullptr;
    DWORD bufferSize = 0;
    const auto source = resources
                            ? SourceStream(*resources, objectId, alternateResource != 0, bufferSize)
                            : nullptr;
    const auto destination =
        source ? DestinationStream(destinationPath, objectId, *source) : nullptr;
    if (!destination)
        return 0;
    const HRESULT result =
        CopyStream(*source, *destination, bufferSize, m_pCallbackProc, m_pUserObj);
    if (SUCCEEDED(result))
        return 1;
    // What was written stays: a host may show it or resume.
    std::printf("! Failed to transfer object from device, hr = 0x%lx\n", ResultBits(result));
    return 0;
}

void WpdApiLib::DeleteContentFromDevice(const wchar_t* objectId)
{
    const auto ids = CollectionOf(objectId);
    const auto content = ids ? Content() : nullptr;
    if (!content)
        return;
    const HRESULT result =
        content->Delete(Wpd::PORTABLE_DEVICE_DELETE_NO_RECURSION, ids.get(), nullptr);
    // S_FALSE reports objects that stayed, and there was only this one.
    if (result != S_OK)
        std::printf("! Failed to delete an object from the device, hr = 0x%lx\n",
                    ResultBits(result));
}

int WpdApiLib::Cancel()
{
    NLEComPtr<IPortableDevice> device;
    {
        const std::lock_guard<std::mutex> lock(s_cancelMutex);
        device = s_cancellable;
    }
    if (!device)
        return 0;
    const HRESULT result = device->Cancel();
    if (SUCCEEDED(result))
        return 1;
    // With a line end inside the message. Kept: see docs/compatibility.md.
    GetGlobalLogInstance()->LogWarn(kSourcePath, "WpdApiLib::Cancel", __LINE__,
                                    "! Failed to Cancel, hr = 0x%lx\n", ResultBits(result));
    return 0;
}

void WpdApiLib::UnregisterForEventNotifications()
{
    if (!s_device)
        return;
    SetCancellable(nullptr);
    if (s_events)
        s_events->Close(); // before anything else: the service may be about to call
    if (s_cookie && *s_cookie) {
        const HRESULT result = s_device->Unadvise(s_cookie);
        if (FAILED(result))
            std::printf("! Failed to unregister for device events using registration cookie '%s', "
                        "hr = 0x%lx\n",
                        MessageText(s_cookie).constData(), ResultBits(result));
    }
    const TaskText cookie(std::exchange(s_cookie, nullptr));
    NLEComPtr<WpdDeviceEvents> events;
    events.attach(std::exchange(s_events, nullptr));
    NLEComPtr<IPortableDevice> device;
    device.attach(std::exchange(s_device, nullptr));
}

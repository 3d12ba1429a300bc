// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/ScriptedDevices.h"

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <variant>

namespace Scripted {

DeviceScript& DeviceScript::Get()
{
    static DeviceScript s_script;
    return s_script;
}

void DeviceScript::Reset()
{
    *this = DeviceScript();
    objects[Wpd::WPD_DEVICE_OBJECT_ID] = {};
}

void DeviceScript::Add(const std::wstring& parent, const std::wstring& id, bool isFolder,
                       std::uint64_t size, double date)
{
    objects[parent].children.push_back(id);
    objects[id] = {parent, id, size, isFolder, date, {}};
}

namespace {

/// Declares operations that no client of the script calls.
#define NOT_SCRIPTED(...)                                                                          \
    HRESULT __VA_ARGS__ override                                                                   \
    {                                                                                              \
        return E_NOTIMPL;                                                                          \
    }
#define NOT_SCRIPTED_2(a, b) NOT_SCRIPTED(a) NOT_SCRIPTED(b)
#define NOT_SCRIPTED_4(a, b, c, d) NOT_SCRIPTED_2(a, b) NOT_SCRIPTED_2(c, d)
#define NOT_SCRIPTED_PAIR(Name, In, Out)                                                           \
    NOT_SCRIPTED_2(Set##Name##Value(REFPROPERTYKEY, In), Get##Name##Value(REFPROPERTYKEY, Out))

LPWSTR TaskCopy(const std::wstring& text)
{
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const auto copy = static_cast<LPWSTR>(CoTaskMemAlloc(bytes));
    std::memcpy(copy, text.c_str(), bytes);
    return copy;
}

/// An object whose every call counts down to the moment when the device is gone.
template <typename... Interfaces>
struct Service : Object<Interfaces...>
{
    using Object<Interfaces...>::Object;

    template <typename... Arguments>
    HRESULT Step(const char* operation, const Arguments&... arguments)
    {
        constexpr auto notConnected = static_cast<HRESULT>(0x8007048Fu);
        int& left = DeviceScript::Get().stepsUntilVanished;
        const HRESULT status = this->Call(operation, arguments...);
        if (left == 0)
            return notConnected;
        left -= left > 0 ? 1 : 0;
        return status;
    }
    /// As Step(); on success delivers \a object, unless the status is S_FALSE.
    template <typename T, typename... Arguments>
    HRESULT StepTo(const char* operation, T** out, const NLEComPtr<T>& object,
                   const Arguments&... arguments)
    {
        const HRESULT status = Step(operation, arguments...);
        *out = nullptr;
        return status == S_OK ? object.copyTo(out) : status;
    }
};

struct Keys : Service<IPortableDeviceKeyCollection>
{
    using Service::Service;

    HRESULT Add(REFPROPERTYKEY key) override
    {
        return Call(qPrintable("Add" + QString::number(key.pid)));
    }
    NOT_SCRIPTED_4(GetCount(DWORD*), GetAt(const DWORD, PROPERTYKEY*), Clear(),
                   RemoveAt(const DWORD))
};

struct Variants : Service<IPortableDevicePropVariantCollection>
{
    using Service::Service;
    QString text;

    HRESULT Add(const PROPVARIANT* value) override
    {
        text = value->vt == VT_LPWSTR ? QString::fromWCharArray(value->pwszVal) : "no text";
        return Call("Add", text);
    }
    NOT_SCRIPTED_4(GetCount(DWORD*), GetAt(const DWORD, PROPVARIANT*), GetType(VARTYPE*),
                   ChangeType(const VARTYPE))
    NOT_SCRIPTED_2(Clear(), RemoveAt(const DWORD))
};

struct Values : Service<IPortableDeviceValues>
{
    using Service::Service;
    using Value = std::variant<std::wstring, ULONGLONG, GUID, double>;
    std::map<DWORD, Value> values; ///< by number of the key; no two sets share one here

    QString Text() const
    {
        QStringList parts;
        for (const auto& [key, value] : values)
            parts += QStringLiteral("%1=%2").arg(key).arg(
                value.index() == 0 ? QString::fromStdWString(std::get<0>(value))
                                   : QString::number(std::get<1>(value), 16));
        return parts.join(' ');
    }
    template <typename T>
    HRESULT Find(REFPROPERTYKEY key, T* out) const
    {
        const auto found = values.find(key.pid);
        return found == values.end() ? E_FAIL : GiveValue(out, std::get<T>(found->second));
    }
    HRESULT SetStringValue(REFPROPERTYKEY key, LPCWSTR value) override
    {
        values[key.pid] = std::wstring(value);
        return S_OK;
    }
    HRESULT GetStringValue(REFPROPERTYKEY key, LPWSTR* value) override
    {
        std::wstring text;
        const HRESULT result = Find(key, &text);
        *value = SUCCEEDED(result) ? TaskCopy(text) : nullptr;
        return result;
    }
    HRESULT SetUnsignedIntegerValue(REFPROPERTYKEY key, const ULONG value) override
    {
        values[key.pid] = ULONGLONG(value);
        return S_OK;
    }
    HRESULT GetUnsignedLargeIntegerValue(REFPROPERTYKEY key, ULONGLONG* value) override
    {
        return Find(key, value);
    }
    HRESULT GetGuidValue(REFPROPERTYKEY key, GUID* value) override { return Find(key, value); }
    HRESULT GetValue(REFPROPERTYKEY key, PROPVARIANT* value) override
    {
        value->vt = VT_DATE;
        return Find(key, &value->date);
    }
    NOT_SCRIPTED_4(GetCount(DWORD*), GetAt(const DWORD, PROPERTYKEY*, PROPVARIANT*),
                   SetValue(REFPROPERTYKEY, const PROPVARIANT*),
                   GetUnsignedIntegerValue(REFPROPERTYKEY, ULONG*))
    NOT_SCRIPTED_4(SetUnsignedLargeIntegerValue(REFPROPERTYKEY, const ULONGLONG),
                   SetGuidValue(REFPROPERTYKEY, REFGUID),
                   SetBufferValue(REFPROPERTYKEY, BYTE*, DWORD),
                   GetBufferValue(REFPROPERTYKEY, BYTE**, DWORD*))
    NOT_SCRIPTED_PAIR(SignedInteger, const LONG, LONG*)
    NOT_SCRIPTED_PAIR(SignedLargeInteger, const LONGLONG, LONGLONG*)
    NOT_SCRIPTED_PAIR(Float, const FLOAT, FLOAT*)
    NOT_SCRIPTED_PAIR(Error, const HRESULT, HRESULT*)
    NOT_SCRIPTED_PAIR(Key, REFPROPERTYKEY, PROPERTYKEY*)
    NOT_SCRIPTED_PAIR(Bool, const BOOL, BOOL*)
    NOT_SCRIPTED_PAIR(IUnknown, IUnknown*, IUnknown**)
    NOT_SCRIPTED_PAIR(IPortableDeviceValues, IPortableDeviceValues*, IPortableDeviceValues**)
    NOT_SCRIPTED_PAIR(IPortableDevicePropVariantCollection, IPortableDevicePropVariantCollection*,
                      IPortableDevicePropVariantCollection**)
    NOT_SCRIPTED_PAIR(IPortableDeviceKeyCollection, IPortableDeviceKeyCollection*,
                      IPortableDeviceKeyCollection**)
    NOT_SCRIPTED_PAIR(IPortableDeviceValuesCollection, IPortableDeviceValuesCollection*,
                      IPortableDeviceValuesCollection**)
    NOT_SCRIPTED_4(RemoveValue(REFPROPERTYKEY), CopyValuesFromPropertyStore(IPropertyStore*),
                   CopyValuesToPropertyStore(IPropertyStore*), Clear())
};

struct Stream : Service<IStream>
{
    Stream(std::uint64_t size) : Service("stream"), m_size(size) {}

    HRESULT Read(void* data, ULONG count, ULONG* read) override
    {
        const HRESULT status = Step("Read");
        if (FAILED(status))
            return status;
        const ULONG limit = DeviceScript::Get().readLimit;
        *read = static_cast<ULONG>(
            std::min<std::uint64_t>({count, limit ? limit : count, m_size - m_position}));
        for (ULONG i = 0; i < *read; ++i)
            static_cast<char*>(data)[i] = DeviceScript::DataAt(m_position++);
        return *read < count ? S_FALSE : S_OK;
    }
    NOT_SCRIPTED_4(Write(const void*, ULONG, ULONG*), Seek(LARGE_INTEGER, DWORD, ULARGE_INTEGER*),
                   SetSize(ULARGE_INTEGER),
                   CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*))
    NOT_SCRIPTED_4(Commit(DWORD), Revert(), LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD),
                   UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD))
    NOT_SCRIPTED_2(Stat(STATSTG*, DWORD), Clone(IStream**))

private:
    const std::uint64_t m_size;
    std::uint64_t m_position = 0;
};

struct Enumerator : Service<IEnumPortableDeviceObjectIDs>
{
    explicit Enumerator(const std::vector<std::wstring>& ids) : Service("enumerator"), m_ids(ids) {}

    HRESULT Next(ULONG wanted, LPWSTR* ids, ULONG* fetched) override
    {
        const HRESULT status = Step("Next", wanted);
        if (FAILED(status))
            return status;
        for (*fetched = 0; *fetched < wanted && m_next < m_ids.size(); ++m_next)
            ids[(*fetched)++] = TaskCopy(m_ids[m_next]);
        return *fetched < wanted ? S_FALSE : S_OK;
    }
    NOT_SCRIPTED_4(Skip(ULONG), Reset(), Clone(IEnumPortableDeviceObjectIDs**), Cancel())

private:
    const std::vector<std::wstring> m_ids;
    std::size_t m_next = 0;
};

/// The content with its properties and resources, in one.
struct Content
    : Service<IPortableDeviceContent, IPortableDeviceProperties, IPortableDeviceResources>
{
    using Service::Service;

    HRESULT EnumObjects(const DWORD flags, LPCWSTR parent, IPortableDeviceValues* filter,
                        IEnumPortableDeviceObjectIDs** out) override
    {
        const auto& children = DeviceScript::Get().objects.at(parent).children;
        return StepTo<IEnumPortableDeviceObjectIDs>(
            "EnumObjects", out, MakeCom<Enumerator>(children), flags, parent, filter);
    }
    HRESULT Properties(IPortableDeviceProperties** out) override
    {
        return StepTo<IPortableDeviceProperties>("Properties", out, this);
    }
    HRESULT Transfer(IPortableDeviceResources** out) override
    {
        return StepTo<IPortableDeviceResources>("Transfer", out, this);
    }
    HRESULT Delete(const DWORD options, IPortableDevicePropVariantCollection* ids,
                   IPortableDevicePropVariantCollection** /*results*/) override
    {
        return Step("Delete", options, static_cast<Variants*>(ids)->text);
    }
    HRESULT GetValues(LPCWSTR id, IPortableDeviceKeyCollection* /*keys*/,
                      IPortableDeviceValues** out) override
    {
        const DeviceObject& object = DeviceScript::Get().objects.at(id);
        const auto values = MakeCom<Values>("values");
        values->values = {{3, object.parent},
                          {7, object.isFolder ? Wpd::WPD_CONTENT_TYPE_FOLDER : GUID{}},
                          {11, ULONGLONG(object.size)},
                          {12, object.name},
                          {19, object.date}};
        return StepTo<IPortableDeviceValues>("GetValues", out, values, id);
    }
    HRESULT GetStream(LPCWSTR object, REFPROPERTYKEY key, const DWORD mode, DWORD* bufferSize,
                      IStream** out) override
    {
        const DeviceScript& script = DeviceScript::Get();
        *bufferSize = script.bufferSize;
        return StepTo<IStream>("GetStream", out, MakeCom<Stream>(script.objects.at(object).size),
                               object, key.fmtid, key.pid, mode);
    }
    // Cancel() and the second Delete() are of more than one of the interfaces.
    NOT_SCRIPTED_2(Cancel(), Delete(LPCWSTR, IPortableDeviceKeyCollection*))
    NOT_SCRIPTED_4(CreateObjectWithPropertiesOnly(IPortableDeviceValues*, LPWSTR*),
                   CreateObjectWithPropertiesAndData(IPortableDeviceValues*, IStream**, DWORD*,
                                                     LPWSTR*),
                   GetObjectIDsFromPersistentUniqueIDs(IPortableDevicePropVariantCollection*,
                                                       IPortableDevicePropVariantCollection**),
                   SetValues(LPCWSTR, IPortableDeviceValues*, IPortableDeviceValues**))
    NOT_SCRIPTED_2(Move(IPortableDevicePropVariantCollection*, LPCWSTR,
                        IPortableDevicePropVariantCollection**),
                   Copy(IPortableDevicePropVariantCollection*, LPCWSTR,
                        IPortableDevicePropVariantCollection**))
    NOT_SCRIPTED_4(GetSupportedProperties(LPCWSTR, IPortableDeviceKeyCollection**),
                   GetPropertyAttributes(LPCWSTR, REFPROPERTYKEY, IPortableDeviceValues**),
                   GetSupportedResources(LPCWSTR, IPortableDeviceKeyCollection**),
                   GetResourceAttributes(LPCWSTR, REFPROPERTYKEY, IPortableDeviceValues**))
    NOT_SCRIPTED(CreateResource(IPortableDeviceValues*, IStream**, DWORD*, LPWSTR*))
};

struct Device : Service<IPortableDevice>
{
    using Service::Service;

    HRESULT Open(LPCWSTR id, IPortableDeviceValues* client) override
    {
        const HRESULT status = Step("Open", id, static_cast<Values*>(client)->Text());
        const bool refused =
            DeviceScript::Get().readOnly && !static_cast<Values*>(client)->values.count(9);
        return refused ? E_ACCESSDENIED : status;
    }
    HRESULT Content(IPortableDeviceContent** out) override
    {
        return StepTo<IPortableDeviceContent>("Content", out,
                                              MakeCom<Scripted::Content>("content"));
    }
    HRESULT Cancel() override { return Step("Cancel"); }
    HRESULT Advise(const DWORD flags, IPortableDeviceEventCallback* callback,
                   IPortableDeviceValues* parameters, LPWSTR* cookie) override
    {
        const HRESULT status = Step("Advise", flags, parameters);
        if (SUCCEEDED(status)) {
            DeviceScript::Get().listener = callback;
            *cookie = TaskCopy(L"cookie");
        }
        return status;
    }
    HRESULT Unadvise(LPCWSTR cookie) override { return Step("Unadvise", cookie); }
    NOT_SCRIPTED_4(SendCommand(const DWORD, IPortableDeviceValues*, IPortableDeviceValues**),
                   Capabilities(IPortableDeviceCapabilities**), Close(), GetPnPDeviceID(LPWSTR*))
};

struct Manager : Service<IPortableDeviceManager>
{
    using Service::Service;

    HRESULT GetDevices(LPWSTR* ids, DWORD* count) override
    {
        const auto& devices = DeviceScript::Get().devices;
        const HRESULT status = Call(ids ? "GetDevices" : "CountDevices");
        if (FAILED(status))
            return status;
        *count = static_cast<DWORD>(devices.size());
        for (std::size_t i = 0; ids && i < devices.size(); ++i)
            ids[i] = TaskCopy(devices[i].id);
        return S_OK;
    }
    HRESULT GetDeviceFriendlyName(LPCWSTR id, WCHAR* name, DWORD* length) override
    {
        return Name(id, &DeviceEntry::friendlyName, name, length);
    }
    HRESULT GetDeviceDescription(LPCWSTR id, WCHAR* name, DWORD* length) override
    {
        return Name(id, &DeviceEntry::description, name, length);
    }
    static HRESULT Name(LPCWSTR id, std::wstring DeviceEntry::*field, WCHAR* name, DWORD* length)
    {
        std::wstring text;
        for (const DeviceEntry& device : DeviceScript::Get().devices)
            text = device.id == id ? device.*field : text;
        if (text == L"none")
            return E_FAIL;
        if (name)
            std::wcscpy(name, text.c_str());
        *length = static_cast<DWORD>(text.size() + 1);
        return S_OK;
    }
    NOT_SCRIPTED_4(RefreshDeviceList(), GetDeviceManufacturer(LPCWSTR, WCHAR*, DWORD*),
                   GetDeviceProperty(LPCWSTR, LPCWSTR, BYTE*, DWORD*, DWORD*),
                   GetPrivateDevices(LPWSTR*, DWORD*))
};

template <typename Class>
struct DeviceClassFactory : Object<IClassFactory>
{
    using Object<IClassFactory>::Object;

    HRESULT CreateInstance(IUnknown* /*outer*/, REFIID iid, void** out) override
    {
        *out = nullptr;
        const HRESULT status = Call("Create");
        return status == S_OK ? MakeCom<Class>(Name())->QueryInterface(iid, out) : status;
    }
    NOT_SCRIPTED(LockServer(BOOL))
};

} // namespace

NLEComPtr<IPortableDeviceValues> DeviceScript::EventParameters(const _GUID& event)
{
    const auto values = MakeCom<Values>("values");
    values->values = {{3, event}};
    return values;
}

HRESULT GetDeviceClassObject(REFCLSID classId, REFIID iid, void** out)
{
    *out = nullptr;
    const auto make = [&](const _GUID& id, auto* factory) {
        const NLEComPtr<IClassFactory> object(factory);
        factory->Release(); // the pointer above holds it
        return classId == id && SUCCEEDED(object.get()->QueryInterface(iid, out));
    };
    const bool isMade =
        make(Wpd::CLSID_PortableDeviceManager, new DeviceClassFactory<Manager>("manager")) ||
        make(Wpd::CLSID_PortableDeviceFTM, new DeviceClassFactory<Device>("device")) ||
        make(Wpd::CLSID_PortableDeviceValues, new DeviceClassFactory<Values>("values")) ||
        make(Wpd::CLSID_PortableDeviceKeyCollection, new DeviceClassFactory<Keys>("keys")) ||
        make(Wpd::CLSID_PortableDevicePropVariantCollection,
             new DeviceClassFactory<Variants>("variants"));
    return isMade ? S_OK : CLASS_E_CLASSNOTAVAILABLE;
}

} // namespace Scripted

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/ScriptedDevices.h"

#include <algorithm>
#include <cwchar>

namespace Scripted {

DeviceScript& DeviceScript::Get()
{
    static DeviceScript script;
    return script;
}

void DeviceScript::Reset()
{
    *this = DeviceScript();
    objects[Wpd::WPD_DEVICE_OBJECT_ID] = {};
}

DeviceObject& DeviceScript::Add(const std::wstring& parent, const std::wstring& id)
{
    objects[parent].children.push_back(id);
    DeviceObject& object = objects[id];
    object.parent = parent;
    object.name = id;
    return object;
}

namespace {

/// Declares operations that no client of the script calls.
#define NOT_SCRIPTED(...)                                                                          \
    HRESULT __VA_ARGS__ override                                                                   \
    {                                                                                              \
        return E_NOTIMPL;                                                                          \
    }

#define NOT_SCRIPTED_PAIR(Name, In, Out)                                                           \
    NOT_SCRIPTED(Set##Name##Value(REFPROPERTYKEY, In))                                             \
    NOT_SCRIPTED(Get##Name##Value(REFPROPERTYKEY, Out*))
#define NOT_SCRIPTED_OBJECTS(Interface) NOT_SCRIPTED_PAIR(Interface, Interface*, Interface*)

LPWSTR TaskCopy(const std::wstring& text)
{
    const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
    const auto copy = static_cast<LPWSTR>(CoTaskMemAlloc(bytes));
    std::memcpy(copy, text.c_str(), bytes);
    return copy;
}

/// An object whose every call counts down to the moment when the device is gone.
template <typename Interface>
struct Service : Object<Interface>
{
    using Object<Interface>::Object;

    template <typename... Arguments>
    HRESULT Step(const char* operation, const Arguments&... arguments)
    {
        constexpr auto NotConnected = static_cast<HRESULT>(0x8007048Fu);
        int& left = DeviceScript::Get().stepsUntilVanished;
        const HRESULT status = this->Call(operation, arguments...);
        if (left == 0)
            return NotConnected;
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
    std::vector<PROPERTYKEY> keys;

    HRESULT Add(REFPROPERTYKEY key) override
    {
        const HRESULT status = Call(qPrintable("Add" + QString::number(key.pid)));
        if (SUCCEEDED(status))
            keys.push_back(key);
        return status;
    }
    NOT_SCRIPTED(GetCount(DWORD*))
    NOT_SCRIPTED(GetAt(const DWORD, PROPERTYKEY*))
    NOT_SCRIPTED(Clear())
    NOT_SCRIPTED(RemoveAt(const DWORD))
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
    NOT_SCRIPTED(GetCount(DWORD*))
    NOT_SCRIPTED(GetAt(const DWORD, PROPVARIANT*))
    NOT_SCRIPTED(GetType(VARTYPE*))
    NOT_SCRIPTED(ChangeType(const VARTYPE))
    NOT_SCRIPTED(Clear())
    NOT_SCRIPTED(RemoveAt(const DWORD))
};

struct Values : Service<IPortableDeviceValues>
{
    using Service::Service;
    std::map<DWORD, std::wstring> texts; ///< by number of the key; no two sets share one here
    std::map<DWORD, ULONGLONG> numbers;
    std::map<DWORD, GUID> identifiers;
    std::map<DWORD, double> dates;

    QString Text() const
    {
        QStringList parts;
        for (const auto& [key, text] : texts)
            parts += QStringLiteral("%1=%2").arg(key).arg(QString::fromStdWString(text));
        for (const auto& [key, number] : numbers)
            parts += QStringLiteral("%1=%2").arg(key).arg(number, 0, 16);
        return parts.join(' ');
    }
    HRESULT SetStringValue(REFPROPERTYKEY key, LPCWSTR value) override
    {
        texts[key.pid] = value;
        return S_OK;
    }
    HRESULT GetStringValue(REFPROPERTYKEY key, LPWSTR* value) override
    {
        const auto found = texts.find(key.pid);
        *value = found == texts.end() ? nullptr : TaskCopy(found->second);
        return *value ? S_OK : E_FAIL;
    }
    HRESULT SetUnsignedIntegerValue(REFPROPERTYKEY key, const ULONG value) override
    {
        numbers[key.pid] = value;
        return S_OK;
    }
    HRESULT GetUnsignedLargeIntegerValue(REFPROPERTYKEY key, ULONGLONG* value) override
    {
        return Find(numbers, key, value);
    }
    HRESULT GetGuidValue(REFPROPERTYKEY key, GUID* value) override
    {
        return Find(identifiers, key, value);
    }
    HRESULT GetValue(REFPROPERTYKEY key, PROPVARIANT* value) override
    {
        value->vt = VT_DATE;
        return Find(dates, key, &value->date);
    }
    template <typename T>
    static HRESULT Find(const std::map<DWORD, T>& from, REFPROPERTYKEY key, T* out)
    {
        const auto found = from.find(key.pid);
        return found == from.end() ? E_FAIL : GiveValue(out, found->second);
    }
    NOT_SCRIPTED(GetCount(DWORD*))
    NOT_SCRIPTED(GetAt(const DWORD, PROPERTYKEY*, PROPVARIANT*))
    NOT_SCRIPTED(SetValue(REFPROPERTYKEY, const PROPVARIANT*))
    NOT_SCRIPTED(GetUnsignedIntegerValue(REFPROPERTYKEY, ULONG*))
    NOT_SCRIPTED(SetUnsignedLargeIntegerValue(REFPROPERTYKEY, const ULONGLONG))
    NOT_SCRIPTED(SetGuidValue(REFPROPERTYKEY, REFGUID))
    NOT_SCRIPTED(SetBufferValue(REFPROPERTYKEY, BYTE*, DWORD))
    NOT_SCRIPTED(GetBufferValue(REFPROPERTYKEY, BYTE**, DWORD*))
    NOT_SCRIPTED_PAIR(SignedInteger, const LONG, LONG)
    NOT_SCRIPTED_PAIR(SignedLargeInteger, const LONGLONG, LONGLONG)
    NOT_SCRIPTED_PAIR(Float, const FLOAT, FLOAT)
    NOT_SCRIPTED_PAIR(Error, const HRESULT, HRESULT)
    NOT_SCRIPTED_PAIR(Key, REFPROPERTYKEY, PROPERTYKEY)
    NOT_SCRIPTED_PAIR(Bool, const BOOL, BOOL)
    NOT_SCRIPTED_PAIR(IUnknown, IUnknown*, IUnknown*)
    NOT_SCRIPTED_OBJECTS(IPortableDeviceValues)
    NOT_SCRIPTED_OBJECTS(IPortableDevicePropVariantCollection)
    NOT_SCRIPTED_OBJECTS(IPortableDeviceKeyCollection)
    NOT_SCRIPTED_OBJECTS(IPortableDeviceValuesCollection)
    NOT_SCRIPTED(RemoveValue(REFPROPERTYKEY))
    NOT_SCRIPTED(CopyValuesFromPropertyStore(IPropertyStore*))
    NOT_SCRIPTED(CopyValuesToPropertyStore(IPropertyStore*))
    NOT_SCRIPTED(Clear())
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
    NOT_SCRIPTED(Write(const void*, ULONG, ULONG*))
    NOT_SCRIPTED(Seek(LARGE_INTEGER, DWORD, ULARGE_INTEGER*))
    NOT_SCRIPTED(SetSize(ULARGE_INTEGER))
    NOT_SCRIPTED(CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*))
    NOT_SCRIPTED(Commit(DWORD))
    NOT_SCRIPTED(Revert())
    NOT_SCRIPTED(LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD))
    NOT_SCRIPTED(UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD))
    NOT_SCRIPTED(Stat(STATSTG*, DWORD))
    NOT_SCRIPTED(Clone(IStream**))

private:
    const std::uint64_t m_size;
    std::uint64_t m_position = 0;
};

struct Resources : Service<IPortableDeviceResources>
{
    using Service::Service;

    HRESULT GetStream(LPCWSTR object, REFPROPERTYKEY key, const DWORD mode, DWORD* bufferSize,
                      IStream** out) override
    {
        const DeviceScript& script = DeviceScript::Get();
        *bufferSize = script.bufferSize;
        return StepTo<IStream>("GetStream", out, MakeCom<Stream>(script.objects.at(object).size),
                               object, key.fmtid, key.pid, mode);
    }
    NOT_SCRIPTED(GetSupportedResources(LPCWSTR, IPortableDeviceKeyCollection**))
    NOT_SCRIPTED(GetResourceAttributes(LPCWSTR, REFPROPERTYKEY, IPortableDeviceValues**))
    NOT_SCRIPTED(Delete(LPCWSTR, IPortableDeviceKeyCollection*))
    NOT_SCRIPTED(Cancel())
    NOT_SCRIPTED(CreateResource(IPortableDeviceValues*, IStream**, DWORD*, LPWSTR*))
};

struct Properties : Service<IPortableDeviceProperties>
{
    using Service::Service;

    HRESULT GetValues(LPCWSTR id, IPortableDeviceKeyCollection* wanted,
                      IPortableDeviceValues** out) override
    {
        const DeviceObject& object = DeviceScript::Get().objects.at(id);
        const auto values = MakeCom<Values>("values");
        values->texts = {{3, object.parent}, {12, object.name}};
        values->numbers = {{11, object.size}};
        values->dates = {{19, object.date}};
        if (object.folder)
            values->identifiers = {{7, Wpd::WPD_CONTENT_TYPE_FOLDER}};
        const auto& keys = static_cast<Keys*>(wanted)->keys;
        for (const DWORD pid : {3u, 7u, 11u, 12u, 19u}) {
            if (std::none_of(keys.begin(), keys.end(),
                             [pid](REFPROPERTYKEY key) { return key.pid == pid; }))
                values->texts.erase(pid), values->numbers.erase(pid);
        }
        return StepTo<IPortableDeviceValues>("GetValues", out, values, id);
    }
    NOT_SCRIPTED(GetSupportedProperties(LPCWSTR, IPortableDeviceKeyCollection**))
    NOT_SCRIPTED(GetPropertyAttributes(LPCWSTR, REFPROPERTYKEY, IPortableDeviceValues**))
    NOT_SCRIPTED(SetValues(LPCWSTR, IPortableDeviceValues*, IPortableDeviceValues**))
    NOT_SCRIPTED(Delete(LPCWSTR, IPortableDeviceKeyCollection*))
    NOT_SCRIPTED(Cancel())
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
    NOT_SCRIPTED(Skip(ULONG))
    NOT_SCRIPTED(Reset())
    NOT_SCRIPTED(Clone(IEnumPortableDeviceObjectIDs**))
    NOT_SCRIPTED(Cancel())

private:
    const std::vector<std::wstring> m_ids;
    std::size_t m_next = 0;
};

struct Content : Service<IPortableDeviceContent>
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
        return StepTo<IPortableDeviceProperties>("Properties", out,
                                                 MakeCom<Scripted::Properties>("properties"));
    }
    HRESULT Transfer(IPortableDeviceResources** out) override
    {
        return StepTo<IPortableDeviceResources>("Transfer", out, MakeCom<Resources>("resources"));
    }
    HRESULT Delete(const DWORD options, IPortableDevicePropVariantCollection* ids,
                   IPortableDevicePropVariantCollection** /*results*/) override
    {
        return Step("Delete", options, static_cast<Variants*>(ids)->text);
    }
    NOT_SCRIPTED(CreateObjectWithPropertiesOnly(IPortableDeviceValues*, LPWSTR*))
    NOT_SCRIPTED(CreateObjectWithPropertiesAndData(IPortableDeviceValues*, IStream**, DWORD*,
                                                   LPWSTR*))
    NOT_SCRIPTED(GetObjectIDsFromPersistentUniqueIDs(IPortableDevicePropVariantCollection*,
                                                     IPortableDevicePropVariantCollection**))
    NOT_SCRIPTED(Cancel())
    NOT_SCRIPTED(Move(IPortableDevicePropVariantCollection*, LPCWSTR,
                      IPortableDevicePropVariantCollection**))
    NOT_SCRIPTED(Copy(IPortableDevicePropVariantCollection*, LPCWSTR,
                      IPortableDevicePropVariantCollection**))
};

struct Device : Service<IPortableDevice>
{
    using Service::Service;

    HRESULT Open(LPCWSTR id, IPortableDeviceValues* client) override
    {
        const HRESULT status = Step("Open", id, static_cast<Values*>(client)->Text());
        const bool refused =
            DeviceScript::Get().readOnly && !static_cast<Values*>(client)->numbers.count(9);
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
    NOT_SCRIPTED(SendCommand(const DWORD, IPortableDeviceValues*, IPortableDeviceValues**))
    NOT_SCRIPTED(Capabilities(IPortableDeviceCapabilities**))
    NOT_SCRIPTED(Close())
    NOT_SCRIPTED(GetPnPDeviceID(LPWSTR*))
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
        const auto& devices = DeviceScript::Get().devices;
        const auto found = std::find_if(devices.begin(), devices.end(),
                                        [id](const DeviceEntry& entry) { return entry.id == id; });
        const std::wstring& text = *found.*field;
        if (text == L"none")
            return E_FAIL;
        if (name)
            std::wcscpy(name, text.c_str());
        *length = static_cast<DWORD>(text.size() + 1);
        return S_OK;
    }
    NOT_SCRIPTED(RefreshDeviceList())
    NOT_SCRIPTED(GetDeviceManufacturer(LPCWSTR, WCHAR*, DWORD*))
    NOT_SCRIPTED(GetDeviceProperty(LPCWSTR, LPCWSTR, BYTE*, DWORD*, DWORD*))
    NOT_SCRIPTED(GetPrivateDevices(LPWSTR*, DWORD*))
};

template <typename Class>
struct DeviceClassFactory : Object<IClassFactory>
{
    using Object<IClassFactory>::Object;

    HRESULT CreateInstance(IUnknown* /*outer*/, REFIID iid, void** out) override
    {
        *out = nullptr;
        const HRESULT status = Call("Create");
        return status == S_OK ? MakeCom<Class>(name())->QueryInterface(iid, out) : status;
    }
    NOT_SCRIPTED(LockServer(BOOL))
};

} // namespace

NLEComPtr<IPortableDeviceValues> DeviceScript::EventParameters(const _GUID& event)
{
    const auto values = MakeCom<Values>("values");
    values->identifiers = {{3, event}};
    return values;
}

HRESULT GetDeviceClassObject(REFCLSID classId, REFIID iid, void** out)
{
    *out = nullptr;
    IClassFactory* factory = nullptr;
    if (classId == Wpd::CLSID_PortableDeviceManager)
        factory = new DeviceClassFactory<Manager>("manager");
    else if (classId == Wpd::CLSID_PortableDeviceFTM)
        factory = new DeviceClassFactory<Device>("device");
    else if (classId == Wpd::CLSID_PortableDeviceValues)
        factory = new DeviceClassFactory<Values>("values");
    else if (classId == Wpd::CLSID_PortableDeviceKeyCollection)
        factory = new DeviceClassFactory<Keys>("keys");
    else if (classId == Wpd::CLSID_PortableDevicePropVariantCollection)
        factory = new DeviceClassFactory<Variants>("variants");
    if (!factory)
        return CLASS_E_CLASSNOTAVAILABLE;
    const HRESULT result = factory->QueryInterface(iid, out);
    factory->Release();
    return result;
}

} // namespace Scripted

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "DeviceApi/PortableDeviceApi.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QLibrary>
#include <QMap>
#include <QStringList>
#include <QThread>

#include <atomic>
#include <functional>
#include <vector>

/// A client of the portable-device service, which it loads from beside the program.
namespace DeviceClient {

template <typename Interface>
NLEComPtr<Interface> Make(REFCLSID classId)
{
    using Entry = HRESULT (*)(REFCLSID, REFIID, void**);
    static const auto entry = reinterpret_cast<Entry>(QLibrary::resolve(
        QCoreApplication::applicationDirPath() + "/PortableDevices.dll", "DllGetClassObject"));
    NLEComPtr<IClassFactory> factory;
    NLEComPtr<Interface> object;
    if (entry && SUCCEEDED(entry(classId, InterfaceId<IClassFactory>(), factory.putVoid())))
        factory->CreateInstance(nullptr, InterfaceId<Interface>(), object.putVoid());
    return object;
}

/// Text that came as task memory.
inline QString Take(LPWSTR text)
{
    const QString copy = text ? QString::fromWCharArray(text) : QString();
    CoTaskMemFree(text);
    return copy;
}

/// Friendly names of the devices by identifier.
inline QMap<QString, QString> Devices()
{
    const auto manager = Make<IPortableDeviceManager>(Wpd::CLSID_PortableDeviceManager);
    DWORD count = 0;
    manager->GetDevices(nullptr, &count);
    std::vector<LPWSTR> ids(count);
    manager->GetDevices(ids.data(), &count);
    QMap<QString, QString> names;
    for (LPWSTR id : ids) {
        DWORD length = 0;
        manager->GetDeviceFriendlyName(id, nullptr, &length);
        std::wstring name(length, L'?');
        manager->GetDeviceFriendlyName(id, name.data(), &length);
        names[Take(id)] = QString::fromWCharArray(name.c_str()); // ends at the zero
    }
    return names;
}

struct Object
{
    QString id, parent, name;
    quint64 size = 0;
    bool isFolder = false;
    double modified = 0;
};

/// One opened device.
struct Device
{
    NLEComPtr<IPortableDevice> device = Make<IPortableDevice>(Wpd::CLSID_PortableDeviceFTM);
    NLEComPtr<IPortableDeviceContent> content;
    NLEComPtr<IPortableDeviceProperties> properties;
    NLEComPtr<IPortableDeviceResources> resources;
    HRESULT result = E_FAIL;

    explicit Device(const QString& id)
    {
        const auto client = Make<IPortableDeviceValues>(Wpd::CLSID_PortableDeviceValues);
        result = device->Open(id.toStdWString().c_str(), client.get());
        if (FAILED(result))
            return;
        device->Content(content.put());
        content->Properties(properties.put());
        content->Transfer(resources.put());
    }

    HRESULT Describe(const std::wstring& id, Object& object) const
    {
        NLEComPtr<IPortableDeviceValues> values;
        const HRESULT described = properties->GetValues(id.c_str(), nullptr, values.put());
        if (FAILED(described))
            return described;
        LPWSTR text = nullptr;
        GUID type = {};
        ULONGLONG size = 0;
        PROPVARIANT date;
        object.id = QString::fromStdWString(id);
        values->GetStringValue(Wpd::WPD_OBJECT_PARENT_ID, &text);
        object.parent = Take(text);
        values->GetStringValue(Wpd::WPD_OBJECT_ORIGINAL_FILE_NAME, &text);
        object.name = Take(text);
        values->GetUnsignedLargeIntegerValue(Wpd::WPD_OBJECT_SIZE, &size);
        object.size = size;
        values->GetGuidValue(Wpd::WPD_OBJECT_CONTENT_TYPE, &type);
        object.isFolder = type == Wpd::WPD_CONTENT_TYPE_FOLDER;
        values->GetValue(Wpd::WPD_OBJECT_DATE_MODIFIED, &date);
        object.modified = date.vt == VT_DATE ? date.date : 0;
        return described;
    }

    /// Visits \a id and all below it, as an importer does: children in batches of ten.
    HRESULT Walk(const std::wstring& id, const std::function<void(const Object&)>& visit) const
    {
        Object object;
        HRESULT walked = Describe(id, object);
        if (FAILED(walked))
            return walked;
        visit(object);
        NLEComPtr<IEnumPortableDeviceObjectIDs> children;
        walked = content->EnumObjects(0, id.c_str(), nullptr, children.put());
        for (HRESULT more = walked; more == S_OK && SUCCEEDED(walked);) {
            LPWSTR ids[10] = {};
            ULONG count = 0;
            more = children->Next(10, ids, &count);
            for (ULONG i = 0; i < count; ++i) {
                const HRESULT below = Walk(ids[i], visit);
                walked = FAILED(below) ? below : walked;
                CoTaskMemFree(ids[i]);
            }
        }
        return walked;
    }

    /// Everything on the device by path, folders ended by a slash.
    QMap<QString, Object> Tree() const
    {
        QMap<QString, Object> objects;
        QMap<QString, QString> paths{{"DEVICE", ""}};
        const HRESULT walked = Walk(Wpd::WPD_DEVICE_OBJECT_ID, [&](const Object& object) {
            if (object.id == "DEVICE")
                return;
            const QString path = paths[object.parent] + object.name;
            paths[object.id] = path + '/';
            objects[object.isFolder ? path + '/' : path] = object;
        });
        if (FAILED(walked))
            objects["failed"].size = static_cast<quint32>(walked);
        return objects;
    }

    HRESULT Open(const QString& id, NLEComPtr<IStream>& stream,
                 REFPROPERTYKEY resource = Wpd::WPD_RESOURCE_DEFAULT) const
    {
        DWORD size = 0;
        return resources->GetStream(id.toStdWString().c_str(), resource, STGM_READ, &size,
                                    stream.put());
    }

    /// Reads an object to its end; \a progress sees the bytes so far and returns whether to go on.
    HRESULT Read(
        const QString& id, QByteArray& hash, quint64& total,
        const std::function<bool(quint64)>& progress = [](quint64) { return true; }) const
    {
        NLEComPtr<IStream> stream;
        HRESULT done = Open(id, stream);
        std::vector<char> buffer(1U << 20);
        QCryptographicHash sum(QCryptographicHash::Md5);
        total = 0;
        ULONG count = 1;
        while (SUCCEEDED(done) && count > 0) {
            done = stream->Read(buffer.data(), static_cast<ULONG>(buffer.size()), &count);
            sum.addData(buffer.data(), static_cast<int>(count));
            total += count;
            if (count > 0 && !progress(total))
                return S_FALSE;
        }
        hash = sum.result();
        return done;
    }

    HRESULT Remove(const QString& id) const
    {
        const auto ids = Make<IPortableDevicePropVariantCollection>(
            Wpd::CLSID_PortableDevicePropVariantCollection);
        std::wstring text = id.toStdWString();
        PROPVARIANT value;
        PropVariantInit(&value);
        value.vt = VT_LPWSTR;
        value.pwszVal = text.data();
        ids->Add(&value);
        return content->Delete(Wpd::PORTABLE_DEVICE_DELETE_NO_RECURSION, ids.get(), nullptr);
    }
};

/// Counts the removals that it hears of.
class Listener final : public ComObject<IPortableDeviceEventCallback>
{
public:
    /// Gives the cookie.
    QString Advise(const Device& device)
    {
        LPWSTR cookie = nullptr;
        device.device->Advise(0, this, nullptr, &cookie);
        return Take(cookie);
    }
    HRESULT OnEvent(IPortableDeviceValues* event) override
    {
        GUID id = {};
        LPWSTR text = nullptr;
        event->GetGuidValue(Wpd::WPD_EVENT_PARAMETER_EVENT_ID, &id);
        event->GetStringValue(Wpd::WPD_EVENT_PARAMETER_PNP_DEVICE_ID, &text);
        deviceId = Take(text);
        isOwnThread = QThread::currentThread() != QCoreApplication::instance()->thread();
        if (id == Wpd::WPD_EVENT_DEVICE_REMOVED)
            ++removals;
        return S_OK;
    }

    std::atomic<int> removals{0};
    std::atomic<bool> isOwnThread{false};
    QString deviceId; // read only after a removal was counted
};

} // namespace DeviceClient

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/WpdApiLib/WpdContentWalk_p.h"

#include "CommonLib/WpdApiLib/PortableDeviceService_p.h"
#include "CommonLib/WpdApiLib/WpdReport_p.h"

#include <algorithm>

namespace {

/// Objects less deep than this have their children visited unasked.
constexpr int kUnaskedDepth = 2;
constexpr ULONG kBatchSize = 10;

bool Stopped()
{
    return WpdApiLib::bFailed || WpdApiLib::bCanceled;
}

TaskText TextOf(IPortableDeviceValues& values, REFPROPERTYKEY key)
{
    wchar_t* text = nullptr;
    if (FAILED(values.GetStringValue(key, &text)))
        text = nullptr;
    return TaskText(text);
}

const wchar_t* OrEmpty(const TaskText& text)
{
    return text ? text.get() : L"";
}

std::uint64_t SizeOf(IPortableDeviceValues& values)
{
    ULONGLONG size = 0;
    return SUCCEEDED(values.GetUnsignedLargeIntegerValue(Wpd::WPD_OBJECT_SIZE, &size)) ? size : 0;
}

bool IsFolder(IPortableDeviceValues& values)
{
    GUID type{};
    return SUCCEEDED(values.GetGuidValue(Wpd::WPD_OBJECT_CONTENT_TYPE, &type)) &&
           type == Wpd::WPD_CONTENT_TYPE_FOLDER;
}

double DateOf(IPortableDeviceValues& values)
{
    PROPVARIANT value;
    PropVariantInit(&value);
    const bool given = SUCCEEDED(values.GetValue(Wpd::WPD_OBJECT_DATE_MODIFIED, &value));
    const double date = given && value.vt == VT_DATE ? value.date : 0;
    PropVariantClear(&value);
    return date;
}

} // namespace

WpdContentWalk::WpdContentWalk(const NLEComPtr<IPortableDeviceContent>& content,
                               WpdCallbackProc callback, void* user)
    : m_content(content), m_callback(callback), m_user(user)
{
    if (OpenProperties())
        AddKeys();
}

bool WpdContentWalk::OpenProperties()
{
    const HRESULT result = Delivered(m_content->Properties(m_properties.put()), m_properties);
    if (SUCCEEDED(result))
        return true;
    std::printf("! Failed to get IPortableDeviceProperties from IPortableDevice, hr = 0x%lx\n",
                ResultBits(result));
    WpdApiLib::bFailed = 1;
    return false;
}

void WpdContentWalk::AddKeys()
{
    struct Key
    {
        PROPERTYKEY key;
        const char* name;
    };
    static constexpr Key keys[] = {{Wpd::WPD_OBJECT_PARENT_ID, "PARENT_ID"},
                                   {Wpd::WPD_OBJECT_ORIGINAL_FILE_NAME, "ORIGINAL_FILE_NAME"},
                                   {Wpd::WPD_OBJECT_SIZE, "SIZE"},
                                   {Wpd::WPD_OBJECT_CONTENT_TYPE, "CONTENT_TYPE"},
                                   {Wpd::WPD_OBJECT_DATE_MODIFIED, "DATE_MODIFIED"}};
    // Without a collection the device is asked for everything it knows: slower, the same values.
    if (FAILED(CreatePortableDeviceComponent(Wpd::CLSID_PortableDeviceKeyCollection, m_keys)))
        return;
    for (const Key& key : keys) {
        const HRESULT result = m_keys->Add(key.key);
        // "hr=" with no blank in it, also where values are read. Kept: see docs/compatibility.md.
        if (FAILED(result))
            std::printf(
                "! Failed to add WPD_OBJECT_%s to IPortableDeviceKeyCollection, hr= 0x%lx\n",
                key.name, ResultBits(result));
    }
}

void WpdContentWalk::Visit(const wchar_t* objectId, int depth)
{
    if (Stopped())
        return;
    const bool descend = ReadObject(objectId);
    if (!Stopped())
        VisitChildren(objectId, depth, descend);
}

bool WpdContentWalk::ReadObject(const wchar_t* objectId)
{
    NLEComPtr<IPortableDeviceValues> values;
    const HRESULT result =
        Delivered(m_properties->GetValues(objectId, m_keys.get(), values.put()), values);
    if (SUCCEEDED(result))
        return TellHost(objectId, *values);
    std::printf("! Failed to get all properties for object '%s', hr= 0x%lx\n",
                MessageText(objectId).constData(), ResultBits(result));
    WpdApiLib::bFailed = 1;
    return false;
}

bool WpdContentWalk::TellHost(const wchar_t* objectId, IPortableDeviceValues& values)
{
    if (!m_callback)
        return false;
    const TaskText parent = TextOf(values, Wpd::WPD_OBJECT_PARENT_ID);
    const TaskText name = TextOf(values, Wpd::WPD_OBJECT_ORIGINAL_FILE_NAME);
    WpdObjectRecord record{objectId,
                           OrEmpty(parent),
                           OrEmpty(name),
                           SizeOf(values),
                           IsFolder(values) ? 1 : 0,
                           DateOf(values),
                           0};
    const auto address = static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(&record));
    if (m_callback(nullptr, 0, WpdObjectRead, address, m_user) > 0)
        WpdApiLib::bCanceled = 1;
    return record.descend != 0;
}

void WpdContentWalk::VisitChildren(const wchar_t* objectId, int depth, bool descend)
{
    NLEComPtr<IEnumPortableDeviceObjectIDs> children;
    HRESULT result =
        Delivered(m_content->EnumObjects(0, objectId, nullptr, children.put()), children);
    if (FAILED(result)) {
        std::printf("! Failed to get IEnumPortableDeviceObjectIDs from IPortableDeviceContent, "
                    "hr = 0x%lx\n",
                    ResultBits(result));
        WpdApiLib::bFailed = 1;
        return;
    }
    // Listed even where nobody visits them: a device that cannot list fails at every depth.
    ULONG fetched = 0;
    do {
        wchar_t* ids[kBatchSize] = {};
        fetched = 0;
        result = children->Next(kBatchSize, ids, &fetched);
        if (FAILED(result))
            WpdApiLib::bFailed = 1; // a device that vanished has not been walked to its end
        for (ULONG i = 0; i < std::min(fetched, kBatchSize); ++i) {
            const TaskText id(ids[i]);
            if (id && (depth < kUnaskedDepth || descend))
                Visit(id.get(), depth + 1);
        }
    } while (result == S_OK && fetched > 0 && !Stopped());
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/DeviceContent.h"

#include "Com/ComGuard.h"
#include "PortableDevices/ObjectProperties.h"
#include "PortableDevices/ObjectResources.h"
#include "PortableDevices/PropertyValues.h"

#include <algorithm>
#include <mutex>

namespace devices {
namespace {

// The list is taken when the enumeration begins, so that it stays the same while objects go.
class ObjectIds final : public ComObject<IEnumPortableDeviceObjectIDs>
{
public:
    using List = std::shared_ptr<const std::vector<std::wstring>>;

    ObjectIds(std::shared_ptr<OpenDevice> device, List ids, std::size_t next = 0)
        : m_device(std::move(device)), m_ids(std::move(ids)), m_next(next)
    {
    }

    HRESULT Next(ULONG wanted, LPWSTR* ids, ULONG* fetched) override
    {
        if (!ids || (!fetched && wanted != 1))
            return E_POINTER;
        const std::lock_guard lock(m_mutex);
        const auto count = static_cast<ULONG>(std::min<std::size_t>(wanted, Left()));
        for (ULONG i = 0; i < count; ++i)
            ids[i] = TaskText((*m_ids)[m_next++].c_str());
        if (fetched)
            *fetched = count;
        return count == wanted ? S_OK : S_FALSE;
    }
    HRESULT Skip(ULONG count) override
    {
        const std::lock_guard lock(m_mutex);
        const std::size_t skipped = std::min<std::size_t>(count, Left());
        m_next += skipped;
        return skipped == count ? S_OK : S_FALSE;
    }
    HRESULT Reset() override
    {
        const std::lock_guard lock(m_mutex);
        m_next = 0;
        return S_OK;
    }
    HRESULT Clone(IEnumPortableDeviceObjectIDs** out) override
    {
        const std::lock_guard lock(m_mutex);
        return GiveNew<ObjectIds>(out, m_device, m_ids, m_next);
    }
    HRESULT Cancel() override
    {
        return ComGuard([&] {
            m_device->Worker().Cancel();
            return S_OK;
        });
    }

private:
    std::size_t Left() const { return m_ids->size() - m_next; }

    const std::shared_ptr<OpenDevice> m_device;
    const List m_ids;
    std::mutex m_mutex;
    std::size_t m_next;
};

} // namespace

HRESULT DeviceContent::EnumObjects(const DWORD /*flags*/, LPCWSTR parent,
                                   IPortableDeviceValues* /*filter*/,
                                   IEnumPortableDeviceObjectIDs** out)
{
    return ComGuard([&] {
        if (!parent || !out)
            return E_POINTER;
        *out = nullptr;
        auto ids = std::make_shared<std::vector<std::wstring>>();
        if (const HRESULT result = m_device->List(parent, *ids); FAILED(result))
            return result;
        return GiveNew<ObjectIds>(out, m_device, std::move(ids));
    });
}

HRESULT DeviceContent::Properties(IPortableDeviceProperties** out)
{
    return GiveNew<ObjectProperties>(out, m_device);
}

HRESULT DeviceContent::Transfer(IPortableDeviceResources** out)
{
    return GiveNew<ObjectResources>(out, m_device);
}

HRESULT DeviceContent::Delete(const DWORD options, IPortableDevicePropVariantCollection* ids,
                              IPortableDevicePropVariantCollection** results)
{
    return ComGuard([&] {
        if (results)
            *results = nullptr;
        if (!ids)
            return E_POINTER;
        DWORD count = 0;
        ids->GetCount(&count);
        const auto outcomes = MakeCom<VariantCollection>();
        HRESULT firstFailure = S_OK;
        DWORD failures = 0;
        for (DWORD i = 0; i < count; ++i) {
            Variant id;
            ids->GetAt(i, id.Put());
            const HRESULT outcome =
                id.Get().vt == VT_LPWSTR
                    ? m_device->Remove(id.Get().pwszVal,
                                       options & Wpd::PORTABLE_DEVICE_DELETE_WITH_RECURSION)
                    : E_INVALIDARG;
            if (const HRESULT noted = outcomes->Add(&Variant::Error(outcome).Get()); FAILED(noted))
                return noted;
            if (SUCCEEDED(outcome))
                continue;
            ++failures;
            firstFailure = FAILED(firstFailure) ? firstFailure : outcome;
        }
        if (results)
            NLEComPtr<IPortableDevicePropVariantCollection>(outcomes).copyTo(results);
        if (failures == 0)
            return count > 0 ? S_OK : E_INVALIDARG;
        return failures == count ? firstFailure : S_FALSE;
    });
}

HRESULT DeviceContent::Cancel()
{
    return ComGuard([&] {
        m_device->Worker().Cancel();
        return S_OK;
    });
}

HRESULT DeviceContent::CreateObjectWithPropertiesOnly(IPortableDeviceValues* /*values*/,
                                                      LPWSTR* /*id*/)
{
    return E_NOTIMPL;
}

HRESULT DeviceContent::CreateObjectWithPropertiesAndData(IPortableDeviceValues* /*values*/,
                                                         IStream** /*data*/,
                                                         DWORD* /*optimalBufferSize*/,
                                                         LPWSTR* /*cookie*/)
{
    return E_NOTIMPL;
}

HRESULT DeviceContent::GetObjectIDsFromPersistentUniqueIDs(
    IPortableDevicePropVariantCollection* /*persistentIds*/,
    IPortableDevicePropVariantCollection** /*ids*/)
{
    return E_NOTIMPL;
}

HRESULT DeviceContent::Move(IPortableDevicePropVariantCollection* /*ids*/, LPCWSTR /*target*/,
                            IPortableDevicePropVariantCollection** /*results*/)
{
    return E_NOTIMPL;
}

HRESULT DeviceContent::Copy(IPortableDevicePropVariantCollection* /*ids*/, LPCWSTR /*target*/,
                            IPortableDevicePropVariantCollection** /*results*/)
{
    return E_NOTIMPL;
}

} // namespace devices

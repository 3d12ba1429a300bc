// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/ScriptedDevices.h"

namespace Scripted {

namespace {

/// Stands in the system's table of classes for good; every object comes from a new factory.
struct Registered : ComObject<IClassFactory>
{
    explicit Registered(const _GUID& id) : classId(id) {}

    HRESULT CreateInstance(IUnknown* outer, REFIID iid, void** out) override
    {
        *out = nullptr;
        NLEComPtr<IClassFactory> factory;
        const HRESULT result =
            GetDeviceClassObject(classId, InterfaceId<IClassFactory>(), factory.putVoid());
        return FAILED(result) ? result : factory->CreateInstance(outer, iid, out);
    }
    HRESULT LockServer(BOOL /*lock*/) override { return S_OK; }

    const _GUID classId;
};

} // namespace

void InstallDeviceService()
{
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    DWORD cookie = 0;
    for (const _GUID& id : {Wpd::CLSID_PortableDeviceManager, Wpd::CLSID_PortableDeviceFTM,
                            Wpd::CLSID_PortableDeviceValues, Wpd::CLSID_PortableDeviceKeyCollection,
                            Wpd::CLSID_PortableDevicePropVariantCollection})
        CoRegisterClassObject(id, MakeCom<Registered>(id).get(), CLSCTX_INPROC_SERVER,
                              REGCLS_MULTIPLEUSE, &cookie);
}

} // namespace Scripted

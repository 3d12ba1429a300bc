// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineApi/ComObject.h"
#include "PortableDevices/Device.h"
#include "PortableDevices/DeviceManager.h"
#include "PortableDevices/PropertyValues.h"

#include <QtGlobal>

namespace {

/// Makes objects of \a Class.
template <typename Class>
class ClassFactory final : public ComObject<IClassFactory>
{
public:
    HRESULT CreateInstance(IUnknown* outer, REFIID iid, void** out) override
    {
        if (!out)
            return E_POINTER;
        *out = nullptr;
        if (outer)
            return CLASS_E_NOAGGREGATION;
        return MakeCom<Class>()->QueryInterface(iid, out);
    }
    // The module is linked so that it stays mapped; there is nothing to lock.
    HRESULT LockServer(BOOL /*lock*/) override { return S_OK; }
};

template <typename Class>
HRESULT GiveFactory(REFIID iid, void** out)
{
    return MakeCom<ClassFactory<Class>>()->QueryInterface(iid, out);
}

struct Known
{
    const CLSID& id;
    HRESULT (*give)(REFIID, void**);
};

const Known kClasses[] = {
    {Wpd::CLSID_PortableDeviceManager, &GiveFactory<devices::DeviceManager>},
    {Wpd::CLSID_PortableDevice, &GiveFactory<devices::Device>},
    {Wpd::CLSID_PortableDeviceFTM, &GiveFactory<devices::Device>},
    {Wpd::CLSID_PortableDeviceValues, &GiveFactory<devices::PropertyValues>},
    {Wpd::CLSID_PortableDeviceKeyCollection, &GiveFactory<devices::KeyCollection>},
    {Wpd::CLSID_PortableDevicePropVariantCollection, &GiveFactory<devices::VariantCollection>},
};

} // namespace

/// Entry of the module: gives the factory of one of the portable-device classes.
extern "C" Q_DECL_EXPORT HRESULT DllGetClassObject(REFCLSID classId, REFIID iid, void** out)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    for (const Known& known : kClasses) {
        if (known.id == classId)
            return known.give(iid, out);
    }
    return CLASS_E_CLASSNOTAVAILABLE;
}

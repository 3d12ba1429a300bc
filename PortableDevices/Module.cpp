// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Com/ClassFactory.h"
#include "PortableDevices/Device.h"
#include "PortableDevices/DeviceManager.h"
#include "PortableDevices/PropertyValues.h"

#include <QtGlobal>

namespace {

struct Known
{
    const CLSID& id;
    HRESULT (*give)(REFIID, void**);
};

const Known kClasses[] = {
    {Wpd::CLSID_PortableDeviceManager, &GiveClassFactory<devices::DeviceManager>},
    {Wpd::CLSID_PortableDevice, &GiveClassFactory<devices::Device>},
    {Wpd::CLSID_PortableDeviceFTM, &GiveClassFactory<devices::Device>},
    {Wpd::CLSID_PortableDeviceValues, &GiveClassFactory<devices::PropertyValues>},
    {Wpd::CLSID_PortableDeviceKeyCollection, &GiveClassFactory<devices::KeyCollection>},
    {Wpd::CLSID_PortableDevicePropVariantCollection, &GiveClassFactory<devices::VariantCollection>},
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

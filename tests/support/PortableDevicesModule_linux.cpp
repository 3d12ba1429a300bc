// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/ScriptedDevices.h"

extern "C" Q_DECL_EXPORT HRESULT DllGetClassObject(REFCLSID classId, REFIID iid, void** out)
{
    return Scripted::GetDeviceClassObject(classId, iid, out);
}

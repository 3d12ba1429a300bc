// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Com/ClassFactory.h"
#include "tests/support/ScriptedEngine.h"

COM_MODULE_ENTRY HRESULT DllGetClassObject(REFCLSID classId, REFIID iid, void** out)
{
    return Scripted::GetClassObject(classId, iid, out);
}

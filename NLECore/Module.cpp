// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Com/ClassFactory.h"
#include "EngineApi/INLEFactory.h"
#include "NLECore/objects/RootFactory.h"

#include <QtGlobal>

/// Entry of the module: gives the class factory of the engine's root factory.
extern "C" Q_DECL_EXPORT HRESULT DllGetClassObject(REFCLSID classId, REFIID iid, void** out)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    if (classId != INLEFactory::ClassId)
        return CLASS_E_CLASSNOTAVAILABLE;
    return GiveClassFactory<nle::RootFactory>(iid, out);
}

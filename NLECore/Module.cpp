// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Com/ClassFactory.h"
#include "EngineApi/INLEFactory.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/objects/RootFactory.h"

/// Entry of the module: gives the class factory of the engine's root factory.
COM_MODULE_ENTRY HRESULT DllGetClassObject(REFCLSID classId, REFIID iid, void** out)
{
    nle::WatchCalls();
    if (!out)
        return ComFailure(E_POINTER);
    *out = nullptr;
    if (classId != INLEFactory::ClassId)
        return ComFailure(CLASS_E_CLASSNOTAVAILABLE);
    return GiveClassFactory<nle::RootFactory>(iid, out);
}

/// Closes what is kept open, and lets its threads end: while Windows unloads a module no thread
/// can, and who waits for one waits for ever.
COM_MODULE_ENTRY HRESULT DllCanUnloadNow()
{
    return ComGuard([] { return MakeCom<nle::RootFactory>()->Shutdown(0); });
}

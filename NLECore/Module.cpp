// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineApi/ComObject.h"
#include "EngineApi/INLEFactory.h"
#include "NLECore/model/RootFactory.h"

#include <QtGlobal>

namespace {

/// Makes root factories.
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
        return MakeCom<nle::RootFactory>()->QueryInterface(iid, out);
    }
    // The module is linked so that it stays mapped; there is nothing to lock.
    HRESULT LockServer(BOOL /*lock*/) override { return S_OK; }
};

} // namespace

/// Entry of the module: gives the class factory of the engine's root factory.
extern "C" Q_DECL_EXPORT HRESULT DllGetClassObject(REFCLSID classId, REFIID iid, void** out)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    if (classId != INLEFactory::ClassId)
        return CLASS_E_CLASSNOTAVAILABLE;
    return MakeCom<ClassFactory>()->QueryInterface(iid, out);
}

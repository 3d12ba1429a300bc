// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComGuard.h"
#include "Com/ComObject.h"

/// The way from a module to its objects: a module exports one function, "DllGetClassObject", which
/// gives the factory of a class; the factory makes the objects. It may export another,
/// "DllCanUnloadNow", which is called before the module is unloaded, once its objects are gone, and
/// ends what it still does.

/// What the definition of either begins with. Windows declares them itself and takes no attribute
/// in the source after that: there the module's definition file (.def) names them.
#ifdef _WIN32
#define COM_MODULE_ENTRY extern "C"
#else
#define COM_MODULE_ENTRY extern "C" __attribute__((visibility("default")))
#endif

/// Signature of the first.
using DllGetClassObjectFunction = HRESULT (*)(REFCLSID classId, REFIID iid, void** out);
/// Signature of the second.
using DllCanUnloadNowFunction = HRESULT (*)();

/// Makes objects of \a Class, for a module that stays mapped.
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
        return ComGuard([&] { return MakeCom<Class>()->QueryInterface(iid, out); });
    }
    /// Nothing to lock.
    HRESULT LockServer(BOOL /*lock*/) override { return S_OK; }
};

/// Gives the factory of \a Class; what a module's entry answers for a class that it knows.
template <typename Class>
HRESULT GiveClassFactory(REFIID iid, void** out)
{
    return ComGuard([&] { return MakeCom<ClassFactory<Class>>()->QueryInterface(iid, out); });
}

/// Makes an object of a module's class through the module's entry. On failure \a out is null; a
/// factory that is refused, or missing in spite of success, is a failure.
inline HRESULT CreateThrough(DllGetClassObjectFunction getClassObject, REFCLSID classId,
                             IUnknown* outer, REFIID iid, void** out)
{
    *out = nullptr;
    NLEComPtr<IClassFactory> factory;
    HRESULT result = getClassObject(classId, InterfaceId<IClassFactory>(), factory.putVoid());
    if (FAILED(result)) {
        factory.forget();
        return result;
    }
    if (!factory)
        return E_FAIL;
    result = factory->CreateInstance(outer, iid, out);
    if (FAILED(result))
        *out = nullptr;
    return result;
}

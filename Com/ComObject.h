// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComGuard.h"
#include "Com/NLEComPtr.h"

#include <atomic>
#include <type_traits>

/// Stores \a value where an out-parameter points; E_POINTER for null.
template <typename T>
HRESULT GiveValue(T* out, const T& value)
{
    if (!out)
        return ComFailure(E_POINTER);
    *out = value;
    return S_OK;
}

namespace ComDetail {

/// Stores \a object's base \a Interface in \a out when \a iid names it.
template <typename Interface, typename Object>
bool Offer(Object* object, REFIID iid, void** out)
{
    if (iid != InterfaceId<Interface>())
        return false;
    *out = static_cast<Interface*>(object);
    return true;
}

} // namespace ComDetail

/// Reference counting and interface query for a class that implements \a Interfaces.
///
/// An object starts with one reference, which belongs to its maker (see MakeCom). The count may be
/// changed from any thread.
template <typename First, typename... Interfaces>
class ComObject : public First, public Interfaces...
{
public:
    ComObject() = default;
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;

    HRESULT QueryInterface(REFIID iid, void** out) override
    {
        if (!out)
            return E_POINTER;
        *out = nullptr;
        if (iid == InterfaceId<IUnknown>())
            *out = static_cast<IUnknown*>(static_cast<First*>(this));
        else if (!(ComDetail::Offer<First>(this, iid, out) ||
                   (ComDetail::Offer<Interfaces>(this, iid, out) || ...)))
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG AddRef() override { return m_references.fetch_add(1, std::memory_order_relaxed) + 1; }
    ULONG Release() override
    {
        const ULONG left = m_references.fetch_sub(1, std::memory_order_acq_rel) - 1;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    virtual ~ComObject() = default;

private:
    std::atomic<ULONG> m_references{1};
};

/// A component class \a Base with further \a Interfaces; counting stays \a Base's.
template <typename Base, typename... Interfaces>
class ComExtension : public Base, public Interfaces...
{
public:
    using Base::Base;

    HRESULT QueryInterface(REFIID iid, void** out) override
    {
        if (out && (ComDetail::Offer<Interfaces>(this, iid, out) || ...)) {
            Base::AddRef();
            return S_OK;
        }
        return Base::QueryInterface(iid, out);
    }
    ULONG AddRef() override { return Base::AddRef(); }
    ULONG Release() override { return Base::Release(); }
};

/// Makes a component object; the returned pointer holds its first reference.
template <typename Class, typename... Arguments>
NLEComPtr<Class> MakeCom(Arguments&&... arguments)
{
    NLEComPtr<Class> object;
    object.attach(new Class(std::forward<Arguments>(arguments)...));
    return object;
}

/// Makes a component object for a caller, under ComGuard: \a out receives its first reference, or
/// null on failure. E_POINTER for null.
template <typename Class, typename Interface, typename... Arguments>
HRESULT GiveNew(Interface** out, Arguments&&... arguments) noexcept
{
    if (!out)
        return ComFailure(E_POINTER);
    *out = nullptr;
    return ComGuard([&] {
        *out = MakeCom<Class>(std::forward<Arguments>(arguments)...).detach();
        return S_OK;
    });
}

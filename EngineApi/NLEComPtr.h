// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/ComTypes.h"

#include <cstddef>
#include <type_traits>
#include <utility>

/// Reference-counting pointer over an engine interface. May be null.
///
/// A reference taken over from an out-parameter goes through put() or attach(); a pointer that
/// somebody else owns goes through the constructor, which takes a reference of its own.
template <typename T>
class NLEComPtr
{
public:
    /// Null; no count changes.
    NLEComPtr() = default;
    NLEComPtr(std::nullptr_t) {}
    /// Adds a reference.
    NLEComPtr(T* object) : m_object(object) { retain(); }
    /// Adds a reference.
    NLEComPtr(const NLEComPtr& other) : m_object(other.m_object) { retain(); }
    /// Takes the other's reference over; the other is null afterwards.
    NLEComPtr(NLEComPtr&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    /// Adds a reference, as an object of a derived interface is one of the base too.
    template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    NLEComPtr(const NLEComPtr<U>& other) : m_object(other.get())
    {
        retain();
    }
    /// Releases the reference.
    ~NLEComPtr() { drop(m_object); }

    /// Adds a reference to the new object, then releases the old one. Self-assignment is harmless.
    NLEComPtr& operator=(const NLEComPtr& other)
    {
        NLEComPtr(other).swap(*this);
        return *this;
    }
    /// Takes the other's reference over, then releases the old one.
    NLEComPtr& operator=(NLEComPtr&& other) noexcept
    {
        NLEComPtr(std::move(other)).swap(*this);
        return *this;
    }

    /// The pointer; no count changes.
    T* get() const { return m_object; }
    T* operator->() const { return m_object; }
    T& operator*() const { return *m_object; }
    explicit operator bool() const { return m_object != nullptr; }

    /// Releases the old object and takes \a object with the reference that the caller holds on it.
    void attach(T* object) { drop(std::exchange(m_object, object)); }
    /// Hands the reference to the caller and becomes null; no count changes.
    T* detach() { return std::exchange(m_object, nullptr); }
    /// Releases the object and gives the address for an out-parameter that delivers a reference.
    T** put()
    {
        reset();
        return &m_object;
    }
    /// As put(), for interface queries.
    void** putVoid() { return reinterpret_cast<void**>(put()); }
    /// Releases the object and becomes null.
    void reset() { drop(std::exchange(m_object, nullptr)); }
    void swap(NLEComPtr& other) noexcept { std::swap(m_object, other.m_object); }

    /// Another interface of the same object with a reference of its own; null when it lacks it.
    template <typename U>
    NLEComPtr<U> query() const
    {
        NLEComPtr<U> result;
        if (m_object && FAILED(m_object->QueryInterface(InterfaceId<U>(), result.putVoid())))
            result.detach();
        return result;
    }
    /// Copies the pointer into an out-parameter with a new reference.
    HRESULT copyTo(T** out) const
    {
        if (!out)
            return E_POINTER;
        retain();
        *out = m_object;
        return S_OK;
    }

private:
    void retain() const
    {
        if (m_object)
            m_object->AddRef();
    }
    static void drop(T* object)
    {
        if (object)
            object->Release();
    }

    T* m_object = nullptr;
};

template <typename T, typename U>
bool operator==(const NLEComPtr<T>& a, const NLEComPtr<U>& b)
{
    return a.get() == b.get();
}
template <typename T, typename U>
bool operator!=(const NLEComPtr<T>& a, const NLEComPtr<U>& b)
{
    return a.get() != b.get();
}

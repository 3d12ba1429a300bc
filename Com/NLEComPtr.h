// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComGuard.h"
#include "Com/ComTypes.h"

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
    NLEComPtr() noexcept = default;
    NLEComPtr(std::nullptr_t) noexcept {}
    /// Adds a reference.
    NLEComPtr(T* object) noexcept : m_object(object) { retain(); }
    /// Adds a reference.
    NLEComPtr(const NLEComPtr& other) noexcept : m_object(other.m_object) { retain(); }
    /// Takes the other's reference over; the other is null afterwards.
    NLEComPtr(NLEComPtr&& other) noexcept : m_object(other.detach()) {}
    /// As the two above: an object of a derived interface is one of the base too.
    template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    NLEComPtr(const NLEComPtr<U>& other) noexcept : m_object(other.get())
    {
        retain();
    }
    template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    NLEComPtr(NLEComPtr<U>&& other) noexcept : m_object(other.detach())
    {
    }
    /// Releases the reference.
    ~NLEComPtr() { drop(m_object); }

    /// Adds a reference to the new object, then releases the old one. Self-assignment is harmless.
    NLEComPtr& operator=(const NLEComPtr& other) noexcept
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
    [[nodiscard]] T* get() const noexcept { return m_object; }
    T* operator->() const noexcept { return m_object; }
    T& operator*() const noexcept { return *m_object; }
    explicit operator bool() const noexcept { return m_object != nullptr; }

    /// Releases the old object and takes \a object with the reference that the caller holds on it.
    void attach(T* object) noexcept { drop(std::exchange(m_object, object)); }
    /// Hands the reference to the caller and becomes null; no count changes.
    [[nodiscard]] T* detach() noexcept { return std::exchange(m_object, nullptr); }
    /// Becomes null; no count changes. For what a failed call left in an out-parameter: it hands no
    /// reference over.
    void forget() noexcept { m_object = nullptr; }
    /// Releases the object and gives the address for an out-parameter that delivers a reference.
    [[nodiscard]] T** put() noexcept
    {
        reset();
        return &m_object;
    }
    /// As put(), for interface queries.
    [[nodiscard]] void** putVoid() noexcept { return reinterpret_cast<void**>(put()); }
    /// Releases the object and becomes null.
    void reset() noexcept { drop(std::exchange(m_object, nullptr)); }
    void swap(NLEComPtr& other) noexcept { std::swap(m_object, other.m_object); }

    /// Another interface of the same object with a reference of its own; null when it lacks it.
    template <typename U>
    [[nodiscard]] NLEComPtr<U> query() const
    {
        NLEComPtr<U> result;
        if (m_object && FAILED(m_object->QueryInterface(InterfaceId<U>(), result.putVoid())))
            result.forget();
        return result;
    }
    /// Copies the pointer into an out-parameter with a new reference.
    HRESULT copyTo(T** out) const noexcept
    {
        if (!out)
            return ComFailure(E_POINTER);
        retain();
        *out = m_object;
        return S_OK;
    }

private:
    void retain() const noexcept
    {
        if (m_object)
            m_object->AddRef();
    }
    static void drop(T* object) noexcept
    {
        if (object)
            object->Release();
    }

    T* m_object = nullptr;
};

template <typename T, typename U>
bool operator==(const NLEComPtr<T>& a, const NLEComPtr<U>& b) noexcept
{
    return a.get() == b.get();
}
template <typename T, typename U>
bool operator!=(const NLEComPtr<T>& a, const NLEComPtr<U>& b) noexcept
{
    return a.get() != b.get();
}
template <typename T>
bool operator==(const NLEComPtr<T>& pointer, std::nullptr_t) noexcept
{
    return !pointer;
}
template <typename T>
bool operator!=(const NLEComPtr<T>& pointer, std::nullptr_t) noexcept
{
    return bool(pointer);
}
template <typename T>
bool operator==(std::nullptr_t, const NLEComPtr<T>& pointer) noexcept
{
    return !pointer;
}
template <typename T>
bool operator!=(std::nullptr_t, const NLEComPtr<T>& pointer) noexcept
{
    return bool(pointer);
}

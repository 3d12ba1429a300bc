// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// The component model's basic types. On Windows they are the system's own; elsewhere they are
/// declared here with the same meaning and layout, so that one source serves both systems.

#ifdef _WIN32

#include <objbase.h>
#include <unknwn.h>

#else

#include <cstdint>
#include <cstring>

/// 128-bit identifier of an interface or a class.
struct _GUID
{
    std::uint32_t Data1;   ///< the first eight digits
    std::uint16_t Data2;   ///< the first group of four
    std::uint16_t Data3;   ///< the second group of four
    std::uint8_t Data4[8]; ///< the rest, a byte for two digits
};
using GUID = _GUID;
using IID = _GUID;
using CLSID = _GUID;
using REFIID = const IID&;
using REFCLSID = const CLSID&;

inline bool operator==(const _GUID& a, const _GUID& b)
{
    return std::memcmp(&a, &b, sizeof(_GUID)) == 0;
}
inline bool operator!=(const _GUID& a, const _GUID& b)
{
    return !(a == b);
}

/// 32-bit result code: negative on failure, 0 for plain success, positive for success with a
/// remark.
using HRESULT = std::int32_t;
using ULONG = std::uint32_t;
using BOOL = int;
/// Handles of a native window (an X11 window's number where there is one) and of a monitor.
using HWND = void*;
using HMONITOR = void*;

constexpr bool SUCCEEDED(HRESULT result)
{
    return result >= 0;
}
constexpr bool FAILED(HRESULT result)
{
    return result < 0;
}

constexpr HRESULT S_OK = 0;
constexpr HRESULT S_FALSE = 1;
constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001u);
constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002u);
constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003u);
constexpr HRESULT E_ABORT = static_cast<HRESULT>(0x80004004u);
constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005u);
constexpr HRESULT E_ACCESSDENIED = static_cast<HRESULT>(0x80070005u);
constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000Eu);
constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057u);
constexpr HRESULT CLASS_E_NOAGGREGATION = static_cast<HRESULT>(0x80040110u);
constexpr HRESULT CLASS_E_CLASSNOTAVAILABLE = static_cast<HRESULT>(0x80040111u);

/// Root of every interface: interface query and reference counting.
///
/// There is no virtual destructor on purpose: an object ends only through Release.
struct IUnknown
{
    static constexpr _GUID Iid = {0, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

    /// Gives the interface \a iid of the same object with a new reference, or clears \a out and
    /// returns E_NOINTERFACE. A null \a out gives E_POINTER.
    virtual HRESULT QueryInterface(REFIID iid, void** out) = 0;
    /// Adds a reference and returns the new count (for diagnosis only).
    virtual ULONG AddRef() = 0;
    /// Gives a reference back; the last one destroys the object. Returns the new count.
    virtual ULONG Release() = 0;
};

/// Makes objects of one class; what a module's DllGetClassObject hands out.
struct IClassFactory : IUnknown
{
    static constexpr _GUID Iid = {1, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

    /// Creates an object and queries it for \a iid. \a outer must be null (no aggregation).
    virtual HRESULT CreateInstance(IUnknown* outer, REFIID iid, void** out) = 0;
    /// Keeps the module loaded while \a lock is non-zero.
    virtual HRESULT LockServer(BOOL lock) = 0;
};

#endif

/// Identifier of an interface. Every interface of the engine carries its own as a static member;
/// the system's own interfaces on Windows do not, so this function knows those two.
template <typename Interface>
constexpr const _GUID& InterfaceId()
{
    return Interface::Iid;
}

#ifdef _WIN32
template <>
inline const _GUID& InterfaceId<IUnknown>()
{
    return IID_IUnknown;
}
template <>
inline const _GUID& InterfaceId<IClassFactory>()
{
    return IID_IClassFactory;
}
#endif

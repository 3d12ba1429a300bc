// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComMemory.h"
#include "Com/ComTypes.h"

/// Property keys, variants and streams of the component model. On Windows they are the system's
/// own; elsewhere they are declared here with the same names, order of operations and meaning.

#ifdef _WIN32

#include <objidl.h>
#include <propidl.h>
#include <propsys.h>

template <>
inline const _GUID& InterfaceId<ISequentialStream>()
{
    return IID_ISequentialStream;
}
template <>
inline const _GUID& InterfaceId<IStream>()
{
    return IID_IStream;
}

#else

#include <cstdint>
#include <cstring>
#include <cwchar>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using LONGLONG = std::int64_t;
using ULONGLONG = std::uint64_t;
using FLOAT = float;
using DATE = double; ///< days since 30 December 1899, the day's part as a fraction
using VARTYPE = std::uint16_t;
using VARIANT_BOOL = std::int16_t; ///< -1 for true, 0 for false
using SCODE = std::int32_t;
using WCHAR = wchar_t;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using REFGUID = const GUID&;

union LARGE_INTEGER {
    LONGLONG QuadPart;
};
union ULARGE_INTEGER {
    ULONGLONG QuadPart;
};
/// 100 ns steps since 1 January 1601, UTC.
struct FILETIME
{
    DWORD dwLowDateTime;
    DWORD dwHighDateTime;
};

/// Names a property: a set and a number in it.
struct PROPERTYKEY
{
    GUID fmtid;
    DWORD pid;
};
using REFPROPERTYKEY = const PROPERTYKEY&;

inline bool operator==(REFPROPERTYKEY a, REFPROPERTYKEY b)
{
    return a.pid == b.pid && a.fmtid == b.fmtid;
}
inline bool operator!=(REFPROPERTYKEY a, REFPROPERTYKEY b)
{
    return !(a == b);
}

enum VARENUM : VARTYPE
{
    VT_EMPTY = 0,
    VT_NULL = 1,
    VT_I2 = 2,
    VT_I4 = 3,
    VT_R4 = 4,
    VT_R8 = 5,
    VT_DATE = 7,
    VT_BSTR = 8,
    VT_ERROR = 10,
    VT_BOOL = 11,
    VT_UNKNOWN = 13,
    VT_I1 = 16,
    VT_UI1 = 17,
    VT_UI2 = 18,
    VT_UI4 = 19,
    VT_I8 = 20,
    VT_UI8 = 21,
    VT_LPWSTR = 31,
    VT_FILETIME = 64,
    VT_CLSID = 72,
    VT_VECTOR = 0x1000
};
constexpr VARIANT_BOOL VARIANT_TRUE = -1;
constexpr VARIANT_BOOL VARIANT_FALSE = 0;

/// Counted bytes.
struct CAUB
{
    ULONG cElems;
    BYTE* pElems;
};

/// A value of one of the types of VARENUM. Text, identifiers and bytes are task memory; an object
/// is a reference: PropVariantClear() ends both.
struct PROPVARIANT
{
    VARTYPE vt;
    WORD wReserved1;
    WORD wReserved2;
    WORD wReserved3;
    union {
        char cVal;
        BYTE bVal;
        std::int16_t iVal;
        std::uint16_t uiVal;
        LONG lVal;
        ULONG ulVal;
        LARGE_INTEGER hVal;
        ULARGE_INTEGER uhVal;
        FLOAT fltVal;
        double dblVal;
        VARIANT_BOOL boolVal;
        SCODE scode;
        DATE date;
        FILETIME filetime;
        GUID* puuid;
        BSTR bstrVal;
        LPWSTR pwszVal;
        IUnknown* punkVal;
        CAUB caub;
    };
};

/// Makes \a value empty without freeing anything.
inline void PropVariantInit(PROPVARIANT* value)
{
    std::memset(static_cast<void*>(value), 0, sizeof(*value));
}

/// Frees what \a value owns and makes it empty.
inline HRESULT PropVariantClear(PROPVARIANT* value)
{
    if (!value)
        return S_OK;
    switch (value->vt) {
    case VT_LPWSTR:
        CoTaskMemFree(value->pwszVal);
        break;
    case VT_CLSID:
        CoTaskMemFree(value->puuid);
        break;
    case VT_BSTR:
        SysFreeString(value->bstrVal);
        break;
    case VT_VECTOR | VT_UI1:
        CoTaskMemFree(value->caub.pElems);
        break;
    case VT_UNKNOWN:
        if (value->punkVal)
            value->punkVal->Release();
        break;
    default:
        break;
    }
    PropVariantInit(value);
    return S_OK;
}

/// Copies \a source into \a target, which need not be initialised; E_OUTOFMEMORY leaves it empty.
inline HRESULT PropVariantCopy(PROPVARIANT* target, const PROPVARIANT* source)
{
    const auto copyOf = [](const void* data, std::size_t bytes) {
        void* const copy = data ? CoTaskMemAlloc(bytes) : nullptr;
        return copy ? std::memcpy(copy, data, bytes) : nullptr;
    };
    const void* from = nullptr;
    const void* to = nullptr;
    *target = *source;
    switch (source->vt) {
    case VT_LPWSTR:
        from = source->pwszVal;
        if (from)
            target->pwszVal = static_cast<LPWSTR>(
                copyOf(from, (std::wcslen(source->pwszVal) + 1) * sizeof(wchar_t)));
        to = target->pwszVal;
        break;
    case VT_CLSID:
        from = source->puuid;
        to = target->puuid = static_cast<GUID*>(copyOf(from, sizeof(GUID)));
        break;
    case VT_BSTR:
        from = source->bstrVal;
        to = target->bstrVal = SysAllocString(source->bstrVal);
        break;
    case VT_VECTOR | VT_UI1:
        from = source->caub.pElems;
        to = target->caub.pElems = static_cast<BYTE*>(copyOf(from, source->caub.cElems));
        break;
    case VT_UNKNOWN:
        if (source->punkVal)
            source->punkVal->AddRef();
        break;
    default:
        break;
    }
    if (!from || to)
        return S_OK;
    PropVariantInit(target);
    return E_OUTOFMEMORY;
}

constexpr DWORD STGM_READ = 0;
constexpr DWORD STGM_WRITE = 1;
constexpr DWORD STGM_READWRITE = 2;
constexpr DWORD STGM_CREATE = 0x1000;
constexpr HRESULT STG_E_INVALIDFUNCTION = static_cast<HRESULT>(0x80030001u);
constexpr HRESULT STG_E_FILENOTFOUND = static_cast<HRESULT>(0x80030002u);
constexpr HRESULT STG_E_ACCESSDENIED = static_cast<HRESULT>(0x80030005u);
constexpr HRESULT STG_E_WRITEFAULT = static_cast<HRESULT>(0x8003001Du);
constexpr HRESULT STG_E_READFAULT = static_cast<HRESULT>(0x8003001Eu);
constexpr HRESULT STG_E_SHAREVIOLATION = static_cast<HRESULT>(0x80030020u);
constexpr HRESULT STG_E_MEDIUMFULL = static_cast<HRESULT>(0x80030070u);

/// What IStream::Stat() returns.
struct STATSTG
{
    LPWSTR pwcsName; ///< task memory, or null
    DWORD type;      ///< 2 for a stream
    ULARGE_INTEGER cbSize;
    FILETIME mtime;
    FILETIME ctime;
    FILETIME atime;
    DWORD grfMode;
    DWORD grfLocksSupported;
    CLSID clsid;
    DWORD grfStateBits;
    DWORD reserved;
};

/// Bytes in order.
struct ISequentialStream : IUnknown
{
    static constexpr _GUID Iid = {
        0x0C733A30, 0x2A1C, 0x11CE, {0xAD, 0xE5, 0x00, 0xAA, 0x00, 0x44, 0x77, 0x3D}};

    /// Reads up to \a count bytes; fewer are no failure, none means the end.
    virtual HRESULT Read(void* data, ULONG count, ULONG* read) = 0;
    virtual HRESULT Write(const void* data, ULONG count, ULONG* written) = 0;
};

/// A stream with a position.
struct IStream : ISequentialStream
{
    static constexpr _GUID Iid = {0x0000000C, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

    /// \a origin is 0 for the start, 1 for the current position, 2 for the end.
    virtual HRESULT Seek(LARGE_INTEGER move, DWORD origin, ULARGE_INTEGER* position) = 0;
    virtual HRESULT SetSize(ULARGE_INTEGER size) = 0;
    virtual HRESULT CopyTo(IStream* target, ULARGE_INTEGER count, ULARGE_INTEGER* read,
                           ULARGE_INTEGER* written) = 0;
    virtual HRESULT Commit(DWORD flags) = 0;
    virtual HRESULT Revert() = 0;
    virtual HRESULT LockRegion(ULARGE_INTEGER offset, ULARGE_INTEGER count, DWORD type) = 0;
    virtual HRESULT UnlockRegion(ULARGE_INTEGER offset, ULARGE_INTEGER count, DWORD type) = 0;
    virtual HRESULT Stat(STATSTG* out, DWORD flags) = 0;
    virtual HRESULT Clone(IStream** out) = 0;
};

#endif

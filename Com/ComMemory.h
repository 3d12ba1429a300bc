// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// Memory that crosses component interfaces: one side allocates, the other frees. On Windows these
/// are the system's functions; elsewhere they stand on the C library's heap, which every module of
/// a process shares.

#ifdef _WIN32

#include <objbase.h>
#include <oleauto.h>

#else

#include <cstddef>
#include <cstdlib>
#include <cwchar>

/// A system string: wide text that SysAllocString() made and SysFreeString() ends.
using BSTR = wchar_t*;

/// Memory for an out-parameter; null when there is none left.
inline void* CoTaskMemAlloc(std::size_t bytes)
{
    return std::malloc(bytes ? bytes : 1);
}
/// Frees what an out-parameter delivered; null is nothing.
inline void CoTaskMemFree(void* memory)
{
    std::free(memory);
}

/// A system string of \a length characters and a closing zero, copied from \a text, or not set
/// when \a text is null. Null when memory is out.
inline BSTR SysAllocStringLen(const wchar_t* text, unsigned int length)
{
    const auto copy = static_cast<BSTR>(std::malloc((std::size_t{length} + 1) * sizeof(wchar_t)));
    if (!copy)
        return nullptr;
    if (text)
        std::wmemcpy(copy, text, length);
    copy[length] = 0;
    return copy;
}
/// A copy of \a text, which ends in a zero. Null for null and when memory is out.
inline BSTR SysAllocString(const wchar_t* text)
{
    return text ? SysAllocStringLen(text, static_cast<unsigned int>(std::wcslen(text))) : nullptr;
}
/// Frees a system string; null is nothing.
inline void SysFreeString(BSTR text)
{
    std::free(text);
}

#endif

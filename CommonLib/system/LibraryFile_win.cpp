// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/LibraryFile_p.h"

#include "Com/WideText.h"

#include <QDir>

#include <string>
#include <windows.h>

QString LibraryFile()
{
    HMODULE library = nullptr;
    constexpr DWORD flags =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (!::GetModuleHandleExW(flags, reinterpret_cast<LPCWSTR>(&LibraryFile), &library))
        return {};
    constexpr DWORD longest = 32768; // wide characters of any path
    std::wstring path(longest, L'\0');
    const DWORD length = ::GetModuleFileNameW(library, path.data(), longest);
    return QDir::fromNativeSeparators(FromWide(path.substr(0, length)));
}

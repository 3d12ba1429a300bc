// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#ifdef _WIN32

#include <string>

#include <windows.h>

/// The whole path of \a name as Windows takes it without a limit of its length. A name that Windows
/// keeps for a device ("nul", "com1.txt") gives the device's own.
inline std::wstring SystemPath(const std::wstring& name)
{
    constexpr DWORD longest = 32768; // characters of any path
    std::wstring path(longest, L'\0');
    const DWORD length = GetFullPathNameW(name.c_str(), longest, path.data(), nullptr);
    path.resize(length < longest ? length : 0);
    const std::wstring start = path.substr(0, 4);
    if (path.empty() || start == L"\\\\.\\" || start == L"\\\\?\\")
        return path;
    return start.compare(0, 2, L"\\\\") == 0 ? L"\\\\?\\UNC" + path.substr(1) : L"\\\\?\\" + path;
}

#endif

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/SystemInfo_p.h"

#include "Com/WideText.h"

#include <QDir>
#include <QFileInfo>

#include <windows.h>

#include <dwmapi.h>

bool IsWindows8OrLater()
{
    // Unlike the documented calls, this one does not depend on what the host's manifest claims.
    using VersionFunction = void(WINAPI*)(DWORD * major, DWORD * minor, DWORD * build);
    const HMODULE library = ::LoadLibraryW(L"ntdll.dll");
    if (!library)
        return false;
    const auto version = reinterpret_cast<VersionFunction>(
        reinterpret_cast<void*>(::GetProcAddress(library, "RtlGetNtVersionNumbers")));
    DWORD major = 0;
    DWORD minor = 0;
    DWORD build = 0;
    if (version)
        version(&major, &minor, &build);
    ::FreeLibrary(library);
    return major > 6 || (major == 6 && minor >= 2);
}

std::optional<QRgb> DesktopAccentColor()
{
    DWORD color = 0;
    BOOL isOpaqueBlend = FALSE;
    if (FAILED(::DwmGetColorizationColor(&color, &isOpaqueBlend)))
        return std::nullopt;
    return static_cast<QRgb>(color); // both are ARGB
}

std::optional<quint64> FreeBytes(const QString& path)
{
    ULARGE_INTEGER withinQuota = {};
    ULARGE_INTEGER total = {};
    ULARGE_INTEGER free = {};
    // The system asks for a folder, and for a separator behind the name of a share.
    const QFileInfo info(path);
    const QString folder = info.isDir() ? path : info.absolutePath();
    const std::wstring name = ToWide(QDir::toNativeSeparators(folder) + QDir::separator());
    if (!::GetDiskFreeSpaceExW(name.c_str(), &withinQuota, &total, &free))
        return std::nullopt;
    return free.QuadPart;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#ifdef _WIN32

#include <windows.h>

/// Whether \a done, which uses a file, is so; tried again for half a second while somebody has the
/// file open, since scanners and indexers open what was just written for a moment. False with the
/// system's last error.
template <typename Call>
bool TryPatiently(Call done)
{
    constexpr int tries = 10;
    constexpr DWORD pauseMs = 50;
    for (int left = tries; !done(); --left) {
        const DWORD reason = GetLastError();
        const bool isInUse = reason == ERROR_SHARING_VIOLATION || reason == ERROR_ACCESS_DENIED;
        if (left == 1 || !isInUse) {
            SetLastError(reason);
            return false;
        }
        Sleep(pauseMs);
    }
    return true;
}

#endif

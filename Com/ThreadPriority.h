// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

/// Lets threads of normal priority, the window's and the player's, go before the calling one, for
/// as long as that lives. On Linux also before threads that it starts from now on.
inline void LowerThreadPriority()
{
#ifdef _WIN32
    SetThreadPriority(GetCurrentThread(), THREAD_PRIORITY_BELOW_NORMAL);
#else
    constexpr int niceness = 10; // a tenth of a normal thread's share
    // On this system a niceness belongs to a thread, named by its own number.
    setpriority(PRIO_PROCESS, id_t(syscall(SYS_gettid)), niceness);
#endif
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

#include <atomic>
#include <cerrno>

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace FullDisk {

/// Whether there is no more room for regular files, of any module of this process.
inline std::atomic<bool> s_isFull{false};

} // namespace FullDisk

// Modules take it, as the executable's come first. For one source of a program.
extern "C" Q_DECL_EXPORT ssize_t write(int descriptor, const void* data, size_t size)
{
    static auto* const real = reinterpret_cast<decltype(&write)>(dlsym(RTLD_NEXT, "write"));
    struct stat file = {};
    if (FullDisk::s_isFull && ::fstat(descriptor, &file) == 0 && S_ISREG(file.st_mode)) {
        errno = ENOSPC;
        return -1;
    }
    return real(descriptor, data, size);
}

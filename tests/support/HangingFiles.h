// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

#include <chrono>
#include <condition_variable>
#include <cstring>
#include <dlfcn.h>
#include <mutex>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

/// A storage that stops answering: calls of the C library for the files in one folder hang, whoever
/// makes them, until they are released or nobody has done so for long. For one source of a program
/// that exports its symbols.
namespace HangingFiles {

struct Guarded
{
    std::string folder; // empty: nothing hangs
    int hanging = 0;    // calls
    int givenUp = 0;    // that were not released in time
};
inline std::mutex s_mutex; // guards s_guarded
inline Guarded s_guarded;
inline std::condition_variable s_changed;

inline void Start(const std::string& folder)
{
    const std::lock_guard lock(s_mutex);
    s_guarded.folder = folder;
    s_guarded.givenUp = 0;
}

/// Whether a call hangs, or comes to in time.
inline bool WaitForCall()
{
    std::unique_lock lock(s_mutex);
    return s_changed.wait_for(lock, std::chrono::seconds(10), [] { return s_guarded.hanging > 0; });
}

inline bool IsHanging()
{
    const std::lock_guard lock(s_mutex);
    return s_guarded.hanging > 0;
}

/// Releases what hangs; returns the calls that have given up before.
inline int End()
{
    std::unique_lock lock(s_mutex);
    s_guarded.folder.clear();
    s_changed.notify_all();
    s_changed.wait(lock, [] { return s_guarded.hanging == 0; });
    return s_guarded.givenUp;
}

inline void Pass(const char* path)
{
    std::unique_lock lock(s_mutex);
    const std::string& folder = s_guarded.folder;
    if (folder.empty() || !path || std::strncmp(path, folder.c_str(), folder.size()) != 0)
        return;
    ++s_guarded.hanging;
    s_changed.notify_all();
    const bool isReleased =
        s_changed.wait_for(lock, std::chrono::seconds(8), [] { return s_guarded.folder.empty(); });
    s_guarded.givenUp += isReleased ? 0 : 1;
    --s_guarded.hanging;
    s_changed.notify_all();
}

template <typename Function>
Function* Real(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace HangingFiles

extern "C" {

// How GLib asks for a file; a test for a folder does not come this way.
Q_DECL_EXPORT int statx(int folder, const char* path, int flags, unsigned mask, struct statx* out)
{
    static auto* const real = HangingFiles::Real<decltype(statx)>("statx");
    HangingFiles::Pass(path);
    return real(folder, path, flags, mask, out);
}

Q_DECL_EXPORT ssize_t read(int descriptor, void* data, size_t size)
{
    static auto* const real = HangingFiles::Real<decltype(read)>("read");
    bool isWatched = false;
    {
        const std::lock_guard lock(HangingFiles::s_mutex);
        isWatched = !HangingFiles::s_guarded.folder.empty();
    }
    if (isWatched) {
        char path[4096] = {};
        const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
        if (::readlink(link.c_str(), path, sizeof(path) - 1) > 0)
            HangingFiles::Pass(path);
    }
    return real(descriptor, data, size);
}

} // extern "C"

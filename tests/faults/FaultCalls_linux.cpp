// SPDX-License-Identifier: LGPL-2.1-or-later
// Modules take the functions below instead of the C library's, since those of the executable come
// first.
#include "FaultCalls.h"

#include <QtGlobal>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

FaultCalls::Fault& Wanted()
{
    static FaultCalls::Fault s_fault;
    return s_fault;
}
std::atomic<bool> s_isCounting{false};
std::atomic<int> s_count{0};
std::atomic<bool> s_hasHappened{false};

/// Whether this call, of a file that counts, is the one.
bool IsTheOne(const char* call)
{
    const FaultCalls::Fault& fault = Wanted();
    if (fault.call != "any" && fault.call != call)
        return false;
    if (++s_count != fault.at)
        return false;
    s_hasHappened = true;
    if (fault.how == FaultCalls::How::Kill)
        ::kill(::getpid(), SIGKILL);
    if (fault.how == FaultCalls::How::Fail)
        return true;
    s_isCounting = false;
    std::error_code unused;
    std::filesystem::remove_all(fault.folder, unused);
    return false;
}

bool IsBelow(const char* path)
{
    const std::string& folder = Wanted().folder;
    return path && std::strncmp(path, folder.c_str(), folder.size()) == 0;
}

bool Fails(const char* call, const char* path)
{
    return s_isCounting && IsBelow(path) && IsTheOne(call);
}

bool Fails(const char* call, int descriptor)
{
    if (!s_isCounting)
        return false;
    std::array<char, 32> link = {};
    std::array<char, 1024> path = {};
    std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", descriptor);
    return ::readlink(link.data(), path.data(), path.size() - 1) > 0 && Fails(call, path.data());
}

template <typename Function>
Function* Real(Function* /*type*/, const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

template <typename Result>
Result Failed(int error)
{
    errno = error;
    return Result(-1);
}

bool IsUnnamed(int flags)
{
    return s_isCounting && Wanted().how == FaultCalls::How::Unnamed &&
           (flags & O_TMPFILE) == O_TMPFILE;
}

mode_t ModeOf(int flags, va_list arguments)
{
    return (flags & (O_CREAT | O_TMPFILE)) ? va_arg(arguments, mode_t) : 0;
}

} // namespace

void FaultCalls::Begin(const Fault& fault)
{
    Wanted() = fault;
    s_count = 0;
    s_hasHappened = false;
    s_isCounting = true;
}

bool FaultCalls::End()
{
    s_isCounting = false;
    return s_hasHappened;
}

// The functions, by what they do: a name, its parameters, how it is called on, whose file it is of.
// NOLINTBEGIN(bugprone-macro-parentheses): names of functions and what stands in theirs
#define FAULT_CALL(group, error, result, name, parameters, arguments, file)                        \
    extern "C" Q_DECL_EXPORT result name parameters                                                \
    {                                                                                              \
        static auto* const real = Real(&name, #name);                                              \
        return Fails(group, file) ? Failed<result>(error) : real arguments;                        \
    }
#define FAULT_OPEN(name, parameters, arguments)                                                    \
    extern "C" Q_DECL_EXPORT int name parameters                                                   \
    {                                                                                              \
        static auto* const real = Real(&name, #name);                                              \
        va_list rest;                                                                              \
        va_start(rest, flags);                                                                     \
        const mode_t mode = ModeOf(flags, rest);                                                   \
        va_end(rest);                                                                              \
        if (IsUnnamed(flags))                                                                      \
            return Failed<int>(EOPNOTSUPP);                                                        \
        return Fails("open", path) ? Failed<int>(EACCES) : real arguments;                         \
    }
// NOLINTEND(bugprone-macro-parentheses)

FAULT_OPEN(open, (const char* path, int flags, ...), (path, flags, mode))
FAULT_OPEN(open64, (const char* path, int flags, ...), (path, flags, mode))
FAULT_OPEN(openat, (int folder, const char* path, int flags, ...), (folder, path, flags, mode))
FAULT_OPEN(openat64, (int folder, const char* path, int flags, ...), (folder, path, flags, mode))
FAULT_CALL("read", EIO, ssize_t, read, (int file, void* data, size_t size), (file, data, size),
           file)
FAULT_CALL("read", EIO, ssize_t, pread64, (int file, void* data, size_t size, off64_t from),
           (file, data, size, from), file)
FAULT_CALL("write", ENOSPC, ssize_t, write, (int file, const void* data, size_t size),
           (file, data, size), file)
FAULT_CALL("write", ENOSPC, ssize_t, pwrite64,
           (int file, const void* data, size_t size, off64_t from), (file, data, size, from), file)
FAULT_CALL("write", ENOSPC, ssize_t, writev, (int file, const iovec* parts, int count),
           (file, parts, count), file)
FAULT_CALL("write", ENOSPC, int, ftruncate64, (int file, off64_t size), (file, size), file)
FAULT_CALL("sync", EIO, int, fsync, (int file), (file), file)
FAULT_CALL("sync", EIO, int, fdatasync, (int file), (file), file)
FAULT_CALL("rename", EACCES, int, rename, (const char* from, const char* to), (from, to), to)
FAULT_CALL("rename", EACCES, int, renameat2,
           (int fromFolder, const char* from, int toFolder, const char* to, unsigned flags),
           (fromFolder, from, toFolder, to, flags), to)
FAULT_CALL("rename", EACCES, int, link, (const char* from, const char* to), (from, to), to)
FAULT_CALL("rename", EACCES, int, linkat,
           (int fromFolder, const char* from, int toFolder, const char* to, int flags),
           (fromFolder, from, toFolder, to, flags), to)
FAULT_CALL("map", ENOMEM, void*, mmap64,
           (void* place, size_t size, int access, int flags, int file, off64_t from),
           (place, size, access, flags, file, from), file)
FAULT_CALL("map", ENOMEM, void*, mmap,
           (void* place, size_t size, int access, int flags, int file, off_t from),
           (place, size, access, flags, file, from), file)

extern "C" Q_DECL_EXPORT int pthread_create(pthread_t* thread, const pthread_attr_t* attributes,
                                            void* (*start)(void*), void* argument)
{
    static auto* const real = Real(&pthread_create, "pthread_create");
    return s_isCounting && IsTheOne("thread") ? EAGAIN : real(thread, attributes, start, argument);
}

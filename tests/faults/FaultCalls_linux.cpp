// SPDX-License-Identifier: LGPL-2.1-or-later
// Modules take the functions below instead of the C library's, since those of the executable come
// first.
#include "FaultCalls.h"
#include "tests/support/PlainDelete.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <initializer_list>
#include <new>

#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
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

/// Whether \a caller is code of a module whose path has one of \a names in it.
bool IsIn(const void* caller, std::initializer_list<const char*> names)
{
    dl_find_object found = {};
    if (_dl_find_object(const_cast<void*>(caller), &found) != 0 || !found.dlfo_link_map)
        return false;
    const char* path = found.dlfo_link_map->l_name;
    return std::any_of(names.begin(), names.end(),
                       [path](const char* name) { return std::strstr(path, name); });
}

/// Threads of Qt's pool and of GLib are not asked for in a way that could be refused.
bool FailsThread(const void* caller)
{
    return s_isCounting && !IsIn(caller, {"/libQt5", "/libglib"}) && IsTheOne("thread");
}

/// Memory that own modules ask for themselves, not through Qt.
bool FailsMemory(const void* caller)
{
    return s_isCounting && Wanted().call == "memory" &&
           IsIn(caller, {"NLECore", "PortableDevices", "libCommonLib"}) && IsTheOne("memory");
}

/// What \a caller asks for; null when that fails.
void* Memory(std::size_t bytes, const void* caller)
{
    return FailsMemory(caller) ? nullptr : std::malloc(bytes > 0 ? bytes : 1);
}

/// Memory of pictures, sound and tables; without little things the media libraries end the process.
bool FailsMediaMemory(const void* caller, size_t bytes)
{
    constexpr size_t little = 4096;
    return s_isCounting && Wanted().call == "memory" && bytes >= little &&
           IsIn(caller, {"/libav", "/libsw"}) && IsTheOne("memory");
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
    return FailsThread(__builtin_return_address(0)) ? EAGAIN
                                                    : real(thread, attributes, start, argument);
}

extern "C" Q_DECL_EXPORT int posix_memalign(void** memory, size_t alignment, size_t bytes)
{
    static auto* const real = Real(&posix_memalign, "posix_memalign");
    return FailsMediaMemory(__builtin_return_address(0), bytes) ? ENOMEM
                                                                : real(memory, alignment, bytes);
}

void* operator new(std::size_t bytes, const std::nothrow_t& /*tag*/) noexcept
{
    return Memory(bytes, __builtin_return_address(0));
}
void* operator new[](std::size_t bytes, const std::nothrow_t& /*tag*/) noexcept
{
    return Memory(bytes, __builtin_return_address(0));
}
void* operator new(std::size_t bytes)
{
    void* memory = Memory(bytes, __builtin_return_address(0));
    return memory ? memory : throw std::bad_alloc();
}
void* operator new[](std::size_t bytes)
{
    void* memory = Memory(bytes, __builtin_return_address(0));
    return memory ? memory : throw std::bad_alloc();
}

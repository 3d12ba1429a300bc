// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/log/LogFile_p.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

int Descriptor(LogFile::Handle handle)
{
    return static_cast<int>(handle);
}

bool IsOtherThanRegular(const char* path)
{
    struct stat status;
    return ::stat(path, &status) == 0 && !S_ISREG(status.st_mode);
}

bool IsRegular(int descriptor)
{
    struct stat status;
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

// A process that runs without standard streams gets their numbers for its first files; whatever is
// printed later would land in the log, and 0 could not be told from "no file".
int MoveAboveStandardStreams(int descriptor)
{
    if (descriptor < 0 || descriptor > STDERR_FILENO)
        return descriptor;
    const int moved = ::fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    ::close(descriptor);
    return moved;
}

// A file system that knows no locks must not keep the log from opening.
bool LockAgainstOtherLogs(int descriptor)
{
    return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

// For file systems that cannot rename without replacing.
void RenameByLink(const char* from, const char* to)
{
    if (::link(from, to) == 0) {
        if (::unlink(from) != 0)
            ::unlink(to);
        return;
    }
    struct stat status;
    if (errno != EEXIST && ::lstat(to, &status) != 0 && errno == ENOENT)
        std::rename(from, to);
}

} // namespace

namespace LogFile {

Handle Open(const char* path)
{
    // Merely opening a FIFO would wake who waits at its other end, so look before; the second look,
    // at what was opened, is the one that counts.
    if (IsOtherThanRegular(path))
        return kInvalid;
    const int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const int descriptor = MoveAboveStandardStreams(::open(path, flags, 0644));
    if (descriptor < 0)
        return kInvalid;
    if (!IsRegular(descriptor) || !LockAgainstOtherLogs(descriptor)) {
        ::close(descriptor);
        return kInvalid;
    }
    return descriptor;
}

void Close(Handle handle)
{
    // A child process between fork and exec shares the lock and would keep it beyond our close.
    ::flock(Descriptor(handle), LOCK_UN);
    ::close(Descriptor(handle));
}

std::int64_t SeekToEnd(Handle handle)
{
    return ::lseek(Descriptor(handle), 0, SEEK_END);
}

void Write(Handle handle, std::int64_t end, const char* text, std::size_t length)
{
    // Besides the lock on the file position that pwrite() spares, the plain system call spares the
    // C library's provisions for a thread that is cancelled while it writes: together a tenth of
    // what a line costs. A 32-bit system passes the position in two halves, so not there.
    if constexpr (sizeof(long) == sizeof(std::int64_t))
        ::syscall(SYS_pwrite64, Descriptor(handle), text, length, end);
    else [[maybe_unused]]
        const ssize_t written = ::pwrite(Descriptor(handle), text, length, end);
}

void Rename(const char* from, const char* to)
{
    if (::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0)
        return;
    if (errno == EINVAL || errno == ENOSYS)
        RenameByLink(from, to);
}

void Echo(const char* line, std::size_t length)
{
    std::fwrite(line, 1, length, stdout);
    std::fflush(stdout);
}

std::tm LocalTime(std::time_t time)
{
    std::tm local = {};
    ::localtime_r(&time, &local);
    return local;
}

} // namespace LogFile

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/SavedFile_p.h"

#include <QFile>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace nle {

QFileDevice::FileError ErrorOf(const QFileDevice& file)
{
    return file.error();
}

int OpenAlone(const QString& path)
{
    constexpr mode_t usual = 0666;
    const QByteArray name = QFile::encodeName(path);
    const int descriptor = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC, usual);
    if (descriptor < 0)
        return descriptor;
    // Some file systems know no locks. Who had it may have moved it away meanwhile.
    struct stat own = {};
    struct stat there = {};
    const bool isTaken = ::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    const bool isOurs = !isTaken && ::fstat(descriptor, &own) == 0 &&
                        ::stat(name.constData(), &there) == 0 && own.st_ino == there.st_ino;
    if (isOurs && ::ftruncate(descriptor, 0) == 0)
        return descriptor;
    const int error = isOurs ? errno : EWOULDBLOCK;
    ::close(descriptor);
    errno = error;
    return -1;
}

// While it is locked: who waits for the name must not get what is moved or removed.
void RemoveAlone(QFile& file, const QString& path)
{
    QFile::remove(path);
    file.close();
}

bool RemoveLeft(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    const int descriptor = ::open(name.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    if (descriptor < 0)
        return errno == ENOENT;
    const bool isGone =
        ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 && ::unlink(name.constData()) == 0;
    ::close(descriptor);
    return isGone;
}

bool WriteThrough(const QFile& file)
{
    // Some file systems have nothing of the kind.
    return ::fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOSYS;
}

bool MayBeReplaced(const QString& /*path*/, QString* /*error*/)
{
    return true;
}

bool MoveOver(const QString& file, const QString& target, QString* error)
{
    if (std::rename(QFile::encodeName(file).constData(), QFile::encodeName(target).constData()) ==
        0)
        return true;
    *error = qt_error_string();
    return false;
}

bool MoveAlone(QFile& file, const QString& path, const QString& target, QString* error)
{
    const bool isMoved = MoveOver(path, target, error);
    file.close();
    return isMoved;
}

} // namespace nle

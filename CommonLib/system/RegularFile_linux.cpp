// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/RegularFile_p.h"

#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool IsRegular(int descriptor)
{
    struct stat status;
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

bool OpenRegularFile(QFile& file, QIODevice::OpenMode mode)
{
    constexpr auto reading = QIODevice::ReadOnly | QIODevice::Text | QIODevice::Unbuffered;
    // Merely opening a pipe would wake who waits at its other end, so look before.
    const QFileInfo info(file.fileName());
    if (info.exists() && !info.isFile())
        return false;
    if ((mode & ~reading) != 0 || !info.isNativePath())
        return file.open(mode);
    // What stands there may have changed since: this look is the one that counts.
    const int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const int descriptor = ::open(QFile::encodeName(file.fileName()).constData(), flags);
    if (descriptor < 0)
        return false;
    if (IsRegular(descriptor) && file.open(descriptor, mode, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

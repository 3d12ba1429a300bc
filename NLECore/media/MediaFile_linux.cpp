// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/MediaFile_p.h"

#include <QFile>

#include <sys/stat.h>

namespace nle {
namespace {

std::int64_t Nanoseconds(const timespec& time)
{
    return std::int64_t(time.tv_sec) * 1000000000 + time.tv_nsec;
}

} // namespace

QByteArray EncodeMediaPath(const QString& path)
{
    return QFile::encodeName(path);
}

FileStamp StampOfFile(const QString& path)
{
    struct stat status = {};
    if (stat(EncodeMediaPath(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    return {status.st_size, Nanoseconds(status.st_mtim), Nanoseconds(status.st_ctim), status.st_dev,
            status.st_ino};
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/SavedFile_p.h"

#include <QFile>

#include <cstdio>

namespace nle {

QFileDevice::FileError ErrorOf(const QFileDevice& file)
{
    return file.error();
}

bool MoveOver(const QString& file, const QString& target, QString* error)
{
    if (std::rename(QFile::encodeName(file).constData(), QFile::encodeName(target).constData()) ==
        0)
        return true;
    *error = qt_error_string();
    return false;
}

} // namespace nle

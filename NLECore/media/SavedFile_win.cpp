// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/SavedFile_p.h"

#include "NLECore/media/SystemPath_p.h"

#include <windows.h>

namespace nle {

// Qt knows a full disk by its words only.
QFileDevice::FileError ErrorOf(const QFileDevice& file)
{
    const bool isFull = file.error() == QFileDevice::WriteError &&
                        (file.errorString() == qt_error_string(ERROR_DISK_FULL) ||
                         file.errorString() == qt_error_string(ERROR_HANDLE_DISK_FULL));
    return isFull ? QFileDevice::ResourceError : file.error();
}

bool MoveOver(const QString& file, const QString& target, QString* error)
{
    if (MoveFileExW(SystemPath(file).c_str(), SystemPath(target).c_str(),
                    MOVEFILE_REPLACE_EXISTING))
        return true;
    *error = qt_error_string();
    return false;
}

} // namespace nle

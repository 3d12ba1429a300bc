// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/LibraryFile_p.h"

#include <QFile>

#include <dlfcn.h>

QString LibraryFile()
{
    Dl_info info = {};
    if (::dladdr(reinterpret_cast<const void*>(&LibraryFile), &info) == 0 || !info.dli_fname)
        return {};
    return QFile::decodeName(info.dli_fname);
}

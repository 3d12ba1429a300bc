// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/RegularFile_p.h"

#include <QFileInfo>

bool OpenRegularFile(QFile& file, QIODevice::OpenMode mode)
{
    const QFileInfo info(file.fileName());
    return (!info.exists() || info.isFile()) && file.open(mode);
}

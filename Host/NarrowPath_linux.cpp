// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/NarrowPath.h"

#include <QFile>

QByteArray NarrowPath(const QString& path)
{
    return QFile::encodeName(path);
}

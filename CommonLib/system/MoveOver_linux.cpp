// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/MoveOver_p.h"

#include <QFile>

#include <cstdio>

bool MoveOver(const QString& file, const QString& target)
{
    return std::rename(QFile::encodeName(file).constData(),
                       QFile::encodeName(target).constData()) == 0;
}

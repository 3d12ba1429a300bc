// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/MediaFile_p.h"

#include <QFile>

namespace nle {

QByteArray EncodeMediaPath(const QString& path)
{
    return QFile::encodeName(path);
}

} // namespace nle

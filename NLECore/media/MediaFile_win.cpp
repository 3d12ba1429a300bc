// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/MediaFile_p.h"

namespace nle {

// The libraries take UTF-8 on Windows, whatever the system's code page.
QByteArray EncodeMediaPath(const QString& path)
{
    return path.toUtf8();
}

} // namespace nle

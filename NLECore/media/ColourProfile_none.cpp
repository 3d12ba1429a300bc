// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/ColourProfile_p.h"

#include "NLECore/media/EngineLog.h"

namespace nle {

void ConvertToSrgb(QImage* /*image*/, const QByteArray& profile, const QString& path)
{
    if (!profile.isEmpty())
        qCWarning(lcEngine, "%s: this build does not read colour profiles", qUtf8Printable(path));
}

void ConvertToSrgb(QImage* /*image*/, int /*primaries*/, const QString& /*path*/) {}

bool IsOfInks(const QByteArray& /*profile*/)
{
    return false;
}

QImage FromInks(const InkPicture& /*picture*/, const QByteArray& /*profile*/)
{
    return {};
}

} // namespace nle

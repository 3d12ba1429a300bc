// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/InkPictures_p.h"

#include <QByteArray>
#include <QImage>
#include <QString>

namespace nle {

/// Colours of \a image, of Format_ARGB32, that are coded by the ICC profile \a profile (ISO
/// 15076-1) become those of sRGB (IEC 61966-2-1), by relative colorimetry with black point
/// compensation. RGB and grey profiles; another, a damaged and an empty one leave the image as it
/// is, and so does a build without the library. What fails is logged with \a path.
void ConvertToSrgb(QImage* image, const QByteArray& profile, const QString& path);

/// The same for colours of standard dynamic range that are coded by \a primaries of ITU-T H.273.
void ConvertToSrgb(QImage* image, int primaries, const QString& path);

/// Whether \a profile is one of cyan, magenta, yellow and black.
bool IsOfInks(const QByteArray& profile);
/// \a picture in the colours of sRGB, as Format_ARGB32, by a profile that is one of its inks and in
/// the same way; null when it cannot be converted.
QImage FromInks(const InkPicture& picture, const QByteArray& profile);

} // namespace nle

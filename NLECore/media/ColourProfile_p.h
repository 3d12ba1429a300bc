// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace nle {

/// Colours of \a image, of Format_ARGB32, that are coded by the ICC profile \a profile (ISO
/// 15076-1) become those of sRGB (IEC 61966-2-1), by relative colorimetry with black point
/// compensation. RGB and grey profiles; another, a damaged and an empty one leave the image as it
/// is, and so does a build without the library. What fails is logged with \a path.
void ConvertToSrgb(QImage* image, const QByteArray& profile, const QString& path);

/// The same for colours that are coded by \a primaries and \a transfer of ITU-T H.273. Only a
/// transfer of standard dynamic range is changed.
void ConvertToSrgb(QImage* image, int primaries, int transfer, const QString& path);

} // namespace nle

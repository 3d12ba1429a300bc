// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/MediaInfo.h"

#include <QImage>
#include <QSize>

namespace nle {

/// Reads the still picture in \a stream of the file of \a info, by the library that knows its
/// format, at \a size without regard to its aspect: upright, its colours those of sRGB, as
/// Format_ARGB32 with straight alpha. Null, with a line in the log, when it cannot be read.
QImage ReadStill(const MediaInfo& info, int stream, const QSize& size);

/// \a picture, of Format_ARGB32, at \a size without regard to its aspect.
QImage ScalePicture(const QImage& picture, const QSize& size);

} // namespace nle

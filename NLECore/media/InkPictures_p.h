// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace nle {

/// A picture as a press prints it, which no decoder of films gives: it makes up RGB.
struct InkPicture
{
    QSize size;
    /// Cyan, magenta, yellow and black of each pixel, row by row.
    std::vector<std::uint8_t> inks;
    bool isInverted = false; ///< 255 is no ink in place of all of it
};

/// The JPEG at \a path (ITU-T T.81) of four components: those of inks, or YCCK. Adobe's programs
/// store them inverted, and say that they wrote them (APP14). None for another picture.
std::optional<InkPicture> ReadInkJpeg(const QString& path);
/// The TIFF at \a path whose pixels are separated (TIFF 6.0, section 16), of 8 or 16 bits, of which
/// 8 are kept, in strips. None for another picture.
std::optional<InkPicture> ReadInkTiff(const QString& path);

} // namespace nle

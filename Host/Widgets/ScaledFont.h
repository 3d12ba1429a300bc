// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QFont>

#include <algorithm>

/// \a font at \a factor times its size, in the unit it has: points, or pixels (at least one).
inline QFont ScaledFont(QFont font, double factor)
{
    if (font.pixelSize() > 0)
        font.setPixelSize(std::max(1, qRound(font.pixelSize() * factor)));
    else
        font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPainter>
#include <QRect>

// Not part of the library's interface.

/// Lets \a painter count in pixels of the screen from now on, so that lines are sharp and of one
/// width at any scale. Gives the pixels of \a area, with its edges rounded as the toolkit does.
/// Where the painter is turned, everything stays as it is.
inline QRect CountInScreenPixels(QPainter& painter, const QRect& area)
{
    const QTransform toScreen = painter.deviceTransform();
    if (toScreen.type() > QTransform::TxScale)
        return area;
    painter.setTransform(toScreen.inverted(), true);
    return toScreen.mapRect(QRectF(area)).toRect();
}

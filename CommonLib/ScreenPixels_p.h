// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPainter>
#include <QRect>
#include <QRegion>

/// Lets \a painter count in pixels of the screen from now on, so that lines are sharp and of one
/// width at any scale. Gives what maps to them. Where the painter is turned, everything stays as it
/// is.
inline QTransform CountInScreenPixels(QPainter& painter)
{
    QTransform toScreen = painter.deviceTransform();
    if (toScreen.type() > QTransform::TxScale)
        return {};
    painter.setTransform(toScreen.inverted(), true);
    return toScreen;
}

/// The same. Gives the pixels of \a area, with its edges rounded as Qt does.
inline QRect CountInScreenPixels(QPainter& painter, const QRect& area)
{
    return CountInScreenPixels(painter).mapRect(QRectF(area)).toRect();
}

/// Pixels of the screen for a line of \a width; at least 1.
inline int LineInScreenPixels(const QTransform& toScreen, double width)
{
    return qMax(1, qRound(width * toScreen.m11()));
}

/// Paints a frame one pixel wide along the inside of \a area. In strips, as a pen would straddle
/// the edge at other scales than 1.
inline void PaintFrame(QPainter& painter, const QRect& area, const QColor& color)
{
    const QTransform before = painter.transform();
    const QTransform toScreen = CountInScreenPixels(painter);
    const QRect frame = toScreen.mapRect(QRectF(area)).toRect();
    const int line = LineInScreenPixels(toScreen, 1);
    for (const QRect& strip : QRegion(frame) - frame.adjusted(line, line, -line, -line))
        painter.fillRect(strip, color);
    painter.setTransform(before);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Widgets/PicturePlacement.h"

#include <QColor>
#include <QImage>
#include <QVector>

class QPainter;

/// All that a picture view shows.
struct PictureScene
{
    QImage picture; ///< 32 bits a pixel, not premultiplied; null: the background alone
    PicturePlacement placement;
    QColor background;
    bool checkerboard = false;
    bool safeAreas = false;
};

/// The squares of the checkerboard: their side in device-independent pixels, the colour of the one
/// in the picture's corner and that of its neighbours.
constexpr int kCheckerSide = 8;
constexpr QRgb kCheckerLight = qRgb(0x99, 0x99, 0x99);
constexpr QRgb kCheckerDark = qRgb(0x66, 0x66, 0x66);

/// The side of a square in device pixels.
int CheckerSide(const PictureScene& scene);

/// A rectangle of whole device pixels in one opaque colour.
struct ColoredRect
{
    QRect area;
    QColor color;
};

/// The lines around the safe areas, in the order of drawing; none when they are not to be seen.
QVector<ColoredRect> SafeAreaLines(const PictureScene& scene);

/// Draws scenes by Qt's painter.
class PicturePainter
{
public:
    /// Draws all of \a scene; \a painter has the view's upper left corner as its origin and the
    /// view's ratio of device pixels.
    void Draw(QPainter& painter, const PictureScene& scene);

private:
    void DrawPicture(QPainter& painter, const PictureScene& scene);

    // A picture that shrinks below half is averaged once, not for each drawing.
    QImage m_shrunk;
    qint64 m_shrunkKey = 0;
    QRectF m_shrunkSource;
};

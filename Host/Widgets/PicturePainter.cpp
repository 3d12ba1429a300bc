// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/PicturePainter.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace {

/// Below it, the four pixels that smooth drawing looks at leave others out.
constexpr double kSmallestFactor = 0.5;
constexpr QRgb kSafeLine = qRgb(0xd8, 0xd8, 0xd8);
constexpr QRgb kSafeShadow = qRgb(0x30, 0x30, 0x30);

/// From here on a unit of \a painter is a device pixel, and the view's corner is on one.
void CountDevicePixels(QPainter& painter, const PictureScene& scene)
{
    painter.scale(1 / scene.placement.Ratio(), 1 / scene.placement.Ratio());
    const QTransform device = painter.deviceTransform();
    painter.translate(std::round(device.dx()) - device.dx(), std::round(device.dy()) - device.dy());
}

QBrush CheckerBrush(const PictureScene& scene)
{
    const int side = CheckerSide(scene);
    QImage tile(2 * side, 2 * side, QImage::Format_RGB32);
    QPainter painter(&tile);
    painter.fillRect(tile.rect(), QColor(kCheckerLight));
    painter.fillRect(side, 0, side, side, QColor(kCheckerDark));
    painter.fillRect(0, side, side, side, QColor(kCheckerDark));
    return QBrush(tile);
}

void DrawUnder(QPainter& painter, const PictureScene& scene)
{
    const QRect view(QPoint(), scene.placement.ViewSize());
    const QRect visible = scene.placement.Visible();
    if (visible != view)
        painter.fillRect(view, scene.background);
    painter.setBrushOrigin(scene.placement.Target().topLeft());
    painter.fillRect(visible, scene.checkerboard ? CheckerBrush(scene) : QBrush(scene.background));
}

/// The border of \a area, \a line device pixels thick, within it.
void AddBorder(QVector<ColoredRect>& lines, const QRect& area, int line, const QColor& color)
{
    const QRect inner = area.adjusted(line, line, -line, -line);
    lines << ColoredRect{QRect(area.left(), area.top(), area.width(), line), color}
          << ColoredRect{QRect(area.left(), inner.bottom() + 1, area.width(), line), color}
          << ColoredRect{QRect(area.left(), inner.top(), line, inner.height()), color}
          << ColoredRect{QRect(inner.right() + 1, inner.top(), line, inner.height()), color};
}

} // namespace

int CheckerSide(const PictureScene& scene)
{
    return std::max(1, int(std::round(kCheckerSide * scene.placement.Ratio())));
}

QVector<ColoredRect> SafeAreaLines(const PictureScene& scene)
{
    QVector<ColoredRect> lines;
    if (!scene.safeAreas || scene.placement.IsEmpty())
        return lines;
    const int line = std::max(1, int(std::round(scene.placement.Ratio())));
    for (const double part : {kActionSafe, kTitleSafe}) {
        const QRect area = scene.placement.Area(part);
        // Light on dark pictures, dark on light ones.
        AddBorder(lines, area, line, kSafeLine);
        AddBorder(lines, area.adjusted(line, line, -line, -line), line, kSafeShadow);
    }
    return lines;
}

void PicturePainter::Draw(QPainter& painter, const PictureScene& scene)
{
    painter.save();
    CountDevicePixels(painter, scene);
    DrawUnder(painter, scene);
    DrawPicture(painter, scene);
    for (const ColoredRect& line : SafeAreaLines(scene))
        painter.fillRect(line.area, line.color);
    painter.restore();
}

void PicturePainter::DrawPicture(QPainter& painter, const PictureScene& scene)
{
    const QRect visible = scene.placement.Visible();
    if (visible.isEmpty())
        return;
    const QRectF source = scene.placement.VisibleSource();
    const double factor = scene.placement.Factor();
    if (factor >= kSmallestFactor) {
        m_shrunk = {};
        painter.setRenderHint(QPainter::SmoothPixmapTransform, factor != 1);
        painter.drawImage(QRectF(visible), scene.picture, source);
        return;
    }
    if (m_shrunk.size() != visible.size() || m_shrunkKey != scene.picture.cacheKey() ||
        m_shrunkSource != source) {
        m_shrunk = scene.picture.copy(source.toAlignedRect())
                       .scaled(visible.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_shrunkKey = scene.picture.cacheKey();
        m_shrunkSource = source;
    }
    painter.drawImage(visible.topLeft(), m_shrunk);
}

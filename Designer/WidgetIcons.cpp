// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Designer/WidgetIcons.h"

#include <QHash>
#include <QPainter>
#include <QVector>

namespace {

constexpr int kGrid = 22; // icons are drawn on as many units
constexpr double kRadius = 1.5;

// Colours that show on light and on dark lists.
constexpr QRgb kLine = 0xff7f868e;
constexpr QRgb kAccent = 0xff2f80d0;
constexpr QRgb kInk = 0xffffffff; // on the two others

enum class Form
{
    Box,
    Disc,
    PlaySign,
    PlayHead
};

struct Shape
{
    Form form;
    QRectF area;
    QRgb color;
};
using Shapes = QVector<Shape>;

const QHash<QString, Shapes>& AllShapes()
{
    static const QHash<QString, Shapes> shapes{
        {"BaseButton", {{Form::Box, {2, 5, 18, 12}, kLine}, {Form::Box, {6, 10, 10, 2}, kInk}}},
        {"BaseStateButton",
         {{Form::Box, {7, 2, 13, 13}, kLine},
          {Form::Box, {2, 7, 13, 13}, kAccent},
          {Form::PlaySign, {6, 10, 6, 7}, kInk}}},
        {"BaseWidget", {{Form::Box, {2, 3, 18, 4}, kAccent}, {Form::Box, {2, 8, 18, 11}, kLine}}},
        {"ImageTextButton",
         {{Form::Box, {2, 7, 8, 8}, kAccent},
          {Form::Box, {12, 8, 8, 2}, kLine},
          {Form::Box, {12, 12, 6, 2}, kLine}}},
        {"ImageTextButton2",
         {{Form::Box, {7, 2, 8, 8}, kAccent},
          {Form::Box, {4, 12, 14, 2}, kLine},
          {Form::Box, {2, 17, 18, 2}, kAccent}}},
        {"MagicLabel",
         {{Form::Box, {8, 5, 12, 2}, kLine},
          {Form::Box, {3, 10, 17, 2}, kAccent},
          {Form::Box, {11, 15, 9, 2}, kLine}}},
        {"PureSlider", {{Form::Box, {2, 7, 18, 8}, kLine}, {Form::Box, {2, 7, 11, 8}, kAccent}}},
        {"ScaleUnitSlider",
         {{Form::Box, {1, 10, 4, 2}, kLine},
          {Form::Box, {6, 10, 10, 2}, kAccent},
          {Form::Disc, {8, 8, 6, 6}, kLine},
          {Form::Box, {17, 10, 4, 2}, kLine},
          {Form::Box, {18, 9, 2, 4}, kLine}}},
        {"TimelineRuler",
         {{Form::Box, {1, 18, 20, 2}, kLine},
          {Form::Box, {2, 12, 2, 6}, kLine},
          {Form::Box, {7, 15, 2, 3}, kLine},
          {Form::Box, {13, 15, 2, 3}, kLine},
          {Form::Box, {18, 12, 2, 6}, kLine},
          {Form::PlayHead, {7, 2, 8, 9}, kAccent}}},
        {"ToolBarSlider",
         {{Form::Box, {1, 10, 20, 2}, kLine},
          {Form::Box, {1, 10, 10, 2}, kAccent},
          {Form::Disc, {7, 7, 8, 8}, kLine}}},
    };
    return shapes;
}

void Paint(QPainter& painter, const Shape& shape)
{
    painter.setBrush(QColor(shape.color));
    const QRectF& area = shape.area;
    switch (shape.form) {
    case Form::Box:
        painter.drawRoundedRect(area, kRadius, kRadius);
        break;
    case Form::Disc:
        painter.drawEllipse(area);
        break;
    case Form::PlaySign:
        painter.drawPolygon(QPolygonF(
            {area.topLeft(), QPointF(area.right(), area.center().y()), area.bottomLeft()}));
        break;
    case Form::PlayHead:
        painter.drawPolygon(QPolygonF(
            {area.topLeft(), area.topRight(), QPointF(area.right(), area.center().y()),
             QPointF(area.center().x(), area.bottom()), QPointF(area.left(), area.center().y())}));
        break;
    }
}

QPixmap Picture(const Shapes& shapes, int side)
{
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.scale(double(side) / kGrid, double(side) / kGrid);
    for (const Shape& shape : shapes)
        Paint(painter, shape);
    return picture;
}

} // namespace

QIcon WidgetIcon(const QString& className)
{
    const auto shapes = AllShapes().constFind(className);
    if (shapes == AllShapes().constEnd())
        return {};
    QIcon icon;
    for (const int side : {kGrid, 2 * kGrid})
        icon.addPixmap(Picture(*shapes, side));
    return icon;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/Symbols.h"

#include "Host/Widgets/HostStyle.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

constexpr double kGrid = 24; // units that all shapes below are drawn in
constexpr double kDimmed = 0.35;

QPainterPath Polygon(std::initializer_list<QPointF> points)
{
    QPainterPath path;
    path.addPolygon(QVector<QPointF>(points));
    path.closeSubpath();
    return path;
}

QPainterPath Film()
{
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    path.addRoundedRect(3, 4, 18, 16, 2, 2);
    for (const double y : {6.5, 10.75, 15.0}) {
        for (const double x : {5.0, 17.0})
            path.addRect(x, y, 2, 2.5);
    }
    path.addRect(9, 6.5, 6, 11);
    return path;
}

QPainterPath Music()
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addEllipse(4, 15, 6, 5);
    path.addEllipse(14, 13, 6, 5);
    path.addRect(8.5, 6, 1.5, 11.5);
    path.addRect(18.5, 4, 1.5, 11.5);
    path.addPath(Polygon({{8.5, 6}, {20, 4}, {20, 7}, {8.5, 9}}));
    return path;
}

QPainterPath Star()
{
    constexpr double pi = 3.14159265358979;
    QVector<QPointF> points;
    for (int i = 0; i < 10; ++i) {
        const double radius = i % 2 == 0 ? 9.5 : 4;
        const double angle = i * pi / 5;
        points << QPointF(12 + radius * std::sin(angle), 12.5 - radius * std::cos(angle));
    }
    QPainterPath path;
    path.addPolygon(points);
    return path;
}

/// A frame of lines of \a width, whose outer edge is \a rect.
QPainterPath Frame(const QRectF& rect, double width)
{
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    path.addRect(rect);
    path.addRect(rect.adjusted(width, width, -width, -width));
    return path;
}

/// A bracket that opens to the right, or to the left.
QPainterPath Bracket(bool opensRight)
{
    QPainterPath path;
    path.addRect(opensRight ? 6 : 15, 4, 3, 16);
    path.addRect(opensRight ? 9 : 10, 4, 5, 2.5);
    path.addRect(opensRight ? 9 : 10, 17.5, 5, 2.5);
    return path;
}

/// Three quarters of a ring that end in an arrow.
QPainterPath Loop()
{
    QPainterPath path;
    path.addEllipse(QPointF(12, 13), 8, 8);
    QPainterPath hole;
    hole.addEllipse(QPointF(12, 13), 5.5, 5.5);
    hole.addRect(12, 3, 10, 10);
    hole.setFillRule(Qt::WindingFill);
    return path.subtracted(hole).united(Polygon({{12, 1.75}, {18, 6.25}, {12, 10.75}}));
}

QPainterPath Corners()
{
    QPainterPath path = Frame({3, 4, 18, 16}, 2.5);
    QPainterPath cross;
    cross.setFillRule(Qt::WindingFill);
    cross.addRect(9, 3, 6, 18);
    cross.addRect(2, 10, 20, 4);
    return path.subtracted(cross);
}

QPainterPath Speaker()
{
    QPainterPath path = Polygon({{3, 9}, {7, 9}, {12, 4}, {12, 20}, {7, 15}, {3, 15}});
    path.addRect(14.5, 9, 2, 6);
    path.addRect(18.5, 6, 2, 12);
    return path;
}

QPainterPath Shape(Symbol symbol)
{
    QPainterPath path;
    switch (symbol) {
    case Symbol::Play:
        return Polygon({{7, 4}, {20, 12}, {7, 20}});
    case Symbol::Pause:
        path.addRect(6, 4, 4, 16);
        path.addRect(14, 4, 4, 16);
        return path;
    case Symbol::Stop:
        path.addRoundedRect(5, 5, 14, 14, 1, 1);
        return path;
    case Symbol::StepBack:
        path.addRect(17, 4, 3, 16);
        path.addPath(Polygon({{14, 4}, {4, 12}, {14, 20}}));
        return path;
    case Symbol::StepForward:
        path.addRect(4, 4, 3, 16);
        path.addPath(Polygon({{10, 4}, {20, 12}, {10, 20}}));
        return path;
    case Symbol::Film:
        return Film();
    case Symbol::Music:
        return Music();
    case Symbol::Title:
        path.addRect(5, 4, 14, 3);
        path.addRect(10.5, 7, 3, 13);
        return path;
    case Symbol::Star:
        return Star();
    case Symbol::Import:
        path.addRect(4, 18, 16, 2);
        path.addRect(11, 3, 2, 9);
        path.addPath(Polygon({{6.5, 10}, {17.5, 10}, {12, 16}}));
        return path;
    case Symbol::InPoint:
        return Bracket(true);
    case Symbol::OutPoint:
        return Bracket(false);
    case Symbol::Marker:
        return Polygon({{6, 3}, {18, 3}, {18, 14}, {12, 21}, {6, 14}});
    case Symbol::Loop:
        return Loop();
    case Symbol::FullScreen:
        return Corners();
    case Symbol::SafeAreas:
        path = Frame({2, 4, 20, 16}, 1.5);
        path.addPath(Frame({6, 7.5, 12, 9}, 1.5));
        return path;
    case Symbol::Sound:
        return Speaker();
    }
    return path;
}

void Paint(QPainter& painter, const QRectF& rect, Symbol symbol, const QColor& color)
{
    const double side = qMin(rect.width(), rect.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.center() - QPointF(side / 2, side / 2));
    painter.scale(side / kGrid, side / kGrid);
    painter.fillPath(Shape(symbol), color);
    painter.restore();
}

class SymbolEngine : public QIconEngine
{
public:
    SymbolEngine(Symbol symbol, const QColor& color) : m_symbol(symbol), m_color(color) {}

    QIconEngine* clone() const override { return new SymbolEngine(*this); }
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        QColor color = HostStyle::Shown(m_color);
        if (mode == QIcon::Disabled)
            color.setAlphaF(kDimmed);
        Paint(*painter, rect, m_symbol, color);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

private:
    Symbol m_symbol;
    QColor m_color;
};

} // namespace

QIcon SymbolIcon(Symbol symbol, const QColor& color)
{
    return QIcon(new SymbolEngine(symbol, color));
}

QPixmap SymbolPixmap(Symbol symbol, const QColor& color, int side, qreal scale)
{
    QPixmap pixmap(QSize(side, side) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    Paint(painter, QRectF(0, 0, side, side), symbol, color);
    return pixmap;
}

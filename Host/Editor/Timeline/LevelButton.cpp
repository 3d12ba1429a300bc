// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/LevelButton.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

const QColor kOff(0x8a, 0x91, 0x9a);
const QColor kOn(0xff, 0xc2, 0x4a);
constexpr double kPen = 1.6;
constexpr int kTurn = 16; ///< parts of a degree that angles of arcs are counted in

void DrawEye(QPainter& painter)
{
    QPainterPath lids(QPointF(3, 10));
    lids.quadTo(10, 2.5, 17, 10);
    lids.quadTo(10, 17.5, 3, 10);
    painter.drawPath(lids);
    painter.setBrush(painter.pen().color());
    painter.drawEllipse(QPointF(10, 10), 1.6, 1.6);
}

void DrawSpeaker(QPainter& painter)
{
    painter.drawArc(QRectF(8.5, 6, 8, 8), -50 * kTurn, 100 * kTurn);
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(QPolygonF() << QPointF(3, 7.5) << QPointF(6, 7.5) << QPointF(11, 3.5)
                                    << QPointF(11, 16.5) << QPointF(6, 12.5) << QPointF(3, 12.5));
}

void DrawHeadphones(QPainter& painter)
{
    painter.drawArc(QRectF(4, 4, 12, 13), 0, 180 * kTurn);
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(2.8, 10, 4, 6.5), 1.5, 1.5);
    painter.drawRoundedRect(QRectF(13.2, 10, 4, 6.5), 1.5, 1.5);
}

/// The shackle of an open one stands beside the body.
void DrawLock(QPainter& painter, bool isClosed)
{
    painter.drawArc(QRectF(isClosed ? 6.5 : 10.5, 3.5, 7, 9), 0, 180 * kTurn);
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(4.5, 9, 11, 7.5), 1.5, 1.5);
}

} // namespace

LevelButton::LevelButton(Sign sign, QWidget* parent) : QAbstractButton(parent), m_sign(sign)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(sizeHint());
}

void LevelButton::keyPressEvent(QKeyEvent* event)
{
    if (event->modifiers() == Qt::ControlModifier)
        event->ignore();
    else
        QAbstractButton::keyPressEvent(event);
}

void LevelButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour = isChecked() ? kOn : kOff;
    const QPen pen(underMouse() ? colour.lighter(125) : colour, kPen);
    painter.setPen(pen);
    switch (m_sign) {
    case Sign::Eye:
        DrawEye(painter);
        break;
    case Sign::Speaker:
        DrawSpeaker(painter);
        break;
    case Sign::Headphones:
        DrawHeadphones(painter);
        break;
    case Sign::Lock:
        DrawLock(painter, isChecked());
        break;
    }
    painter.setPen(pen);
    if (isChecked() && (m_sign == Sign::Eye || m_sign == Sign::Speaker))
        painter.drawLine(QPointF(4, 16.5), QPointF(16, 3.5));
    if (!hasFocus())
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRoundedRect(QRectF(0.5, 0.5, width() - 1, height() - 1), 3, 3);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/LockButton.h"

#include <QPainter>

namespace {

const QColor kOpen(0x8a, 0x91, 0x9a);
const QColor kClosed(0xff, 0xc2, 0x4a);

} // namespace

LockButton::LockButton(QWidget* parent) : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setFixedSize(sizeHint());
}

void LockButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour = isChecked() ? kClosed : kOpen;
    painter.setPen(QPen(underMouse() ? colour.lighter(125) : colour, 1.6));
    // The shackle of an open one stands beside the body.
    painter.drawArc(QRectF(isChecked() ? 6.5 : 10.5, 3.5, 7, 9), 0, 180 * 16);
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(QRectF(4.5, 9, 11, 7.5), 1.5, 1.5);
    if (!hasFocus())
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRoundedRect(QRectF(0.5, 0.5, width() - 1, height() - 1), 3, 3);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/SheetStyle.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QPainter>

namespace SheetStyle {

QFont TextFont(int pixels, bool strong)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(pixels);
    font.setWeight(strong ? QFont::DemiBold : QFont::Normal);
    return font;
}

void PaintHeader(QPainter& painter, const QString& title, const QString& subtitle)
{
    const QRect titleArea(kMargin, kMargin - 12, kContentWidth, 52);
    PaintText(painter, titleArea, TextFont(36, true), kText, title, Qt::AlignLeft);
    const QRect subtitleArea(kMargin, titleArea.bottom() + 6, kContentWidth, 34);
    PaintText(painter, subtitleArea, TextFont(21), kFaintText, subtitle, Qt::AlignLeft);
}

void PaintText(QPainter& painter, const QRect& area, const QFont& font, const QColor& color,
               const QString& text, int alignment)
{
    painter.setFont(font);
    painter.setPen(color);
    const QString fitting = QFontMetrics(font).elidedText(text, Qt::ElideMiddle, area.width());
    painter.drawText(area, alignment | Qt::AlignVCenter | Qt::TextSingleLine, fitting);
}

} // namespace SheetStyle

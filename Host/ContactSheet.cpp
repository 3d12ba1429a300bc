// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/ContactSheet.h"

#include "Host/SheetStyle.h"

#include <QCoreApplication>
#include <QPainter>
#include <QtMath>

namespace {

constexpr int captionHeight = 40;
constexpr double narrowest = 0.5;
constexpr double widest = 2.4;
/// A picture alone on its page stays within one screen.
constexpr int tallest = 1080;

int columnsFor(double shape, int count)
{
    const int columns = shape < 0.9 ? 6 : shape > 2 ? 3 : 4;
    return qMin(columns, count);
}

} // namespace

ContactSheet::ContactSheet(double shape, int count) : m_columns(columnsFor(shape, count))
{
    using namespace SheetStyle;
    const double cellShape = qBound(narrowest, shape, widest);
    int width = (ContentWidth - (m_columns - 1) * Gap) / m_columns;
    width = qMin(width, qRound(tallest * cellShape));
    m_cellSize = QSize(width, qRound(width / cellShape));
    const double pictureWidth = qMin<double>(width, m_cellSize.height() * shape);
    m_pictureSize = QSize(qMax(1, qRound(pictureWidth)), qMax(1, qRound(pictureWidth / shape)));
}

void ContactSheet::add(const QImage& picture, const QString& caption, const QString& note)
{
    m_cells.append({picture, caption, note});
}

QImage ContactSheet::paint(const QString& title, const QString& subtitle) const
{
    using namespace SheetStyle;
    const int rows = (m_cells.size() + m_columns - 1) / m_columns;
    const int rowHeight = m_cellSize.height() + captionHeight + Gap;
    const int top = Margin + HeaderHeight;
    QImage page(Width, top + rows * rowHeight - Gap + Margin / 2, QImage::Format_RGB32);
    page.fill(Background);

    QPainter painter(&page);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintHeader(painter, title, subtitle);
    const int gridWidth = m_columns * (m_cellSize.width() + Gap) - Gap;
    const int left = (Width - gridWidth) / 2;
    for (int index = 0; index < m_cells.size(); ++index)
        paintCell(painter, m_cells[index],
                  QPoint(left + index % m_columns * (m_cellSize.width() + Gap),
                         top + index / m_columns * rowHeight));
    return page;
}

void ContactSheet::paintCell(QPainter& painter, const Cell& cell, const QPoint& corner) const
{
    using namespace SheetStyle;
    const QRect frame(corner, m_cellSize);
    painter.fillRect(frame, Panel);
    if (cell.picture.isNull()) {
        PaintText(painter, frame, TextFont(19), FaintText,
                  QCoreApplication::translate("ContactSheet", "no picture"), Qt::AlignHCenter);
    } else {
        QRect area(QPoint(), m_pictureSize);
        area.moveCenter(frame.center());
        painter.drawImage(area, cell.picture);
    }
    painter.setPen(Line);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(frame).adjusted(-0.5, -0.5, 0.5, 0.5));

    const QRect line(frame.left(), frame.bottom() + 1, frame.width(), captionHeight);
    PaintText(painter, line, TextFont(19), Text, cell.caption, Qt::AlignLeft);
    PaintText(painter, line, TextFont(17), FaintText, cell.note, Qt::AlignRight);
}

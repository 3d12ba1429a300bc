// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/ContactSheet.h"

#include "Host/SheetStyle.h"

#include <QCoreApplication>
#include <QPainter>
#include <QtMath>

namespace {

constexpr int kCaptionHeight = 40;
constexpr double kNarrowest = 0.5;
constexpr double kWidest = 2.4;
/// A picture alone on its page stays within one screen.
constexpr int kTallest = 1080;

int ColumnsFor(double shape, int count)
{
    const int columns = shape < 0.9 ? 6 : shape > 2 ? 3 : 4;
    return qMin(columns, count);
}

} // namespace

ContactSheet::ContactSheet(double shape, int count) : m_columns(ColumnsFor(shape, count))
{
    using namespace SheetStyle;
    const double cellShape = qBound(kNarrowest, shape, kWidest);
    int width = (kContentWidth - (m_columns - 1) * kGap) / m_columns;
    width = qMin(width, qRound(kTallest * cellShape));
    m_cellSize = QSize(width, qRound(width / cellShape));
    const double pictureWidth = qMin<double>(width, m_cellSize.height() * shape);
    m_pictureSize = QSize(qMax(1, qRound(pictureWidth)), qMax(1, qRound(pictureWidth / shape)));
}

void ContactSheet::Add(const QImage& picture, const QString& caption, const QString& note)
{
    m_cells.append({picture, caption, note});
}

QImage ContactSheet::Paint(const QString& title, const QString& subtitle) const
{
    using namespace SheetStyle;
    const int rows = (m_cells.size() + m_columns - 1) / m_columns;
    const int rowHeight = m_cellSize.height() + kCaptionHeight + kGap;
    const int top = kMargin + kHeaderHeight;
    QImage page(kWidth, top + rows * rowHeight - kGap + kMargin / 2, QImage::Format_RGB32);
    page.fill(kBackground);

    QPainter painter(&page);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintHeader(painter, title, subtitle);
    const int gridWidth = m_columns * (m_cellSize.width() + kGap) - kGap;
    const int left = (kWidth - gridWidth) / 2;
    for (int index = 0; index < m_cells.size(); ++index)
        PaintCell(painter, m_cells[index],
                  QPoint(left + index % m_columns * (m_cellSize.width() + kGap),
                         top + index / m_columns * rowHeight));
    return page;
}

void ContactSheet::PaintCell(QPainter& painter, const Cell& cell, const QPoint& corner) const
{
    using namespace SheetStyle;
    const QRect frame(corner, m_cellSize);
    painter.fillRect(frame, kPanel);
    if (cell.picture.isNull()) {
        PaintText(painter, frame, TextFont(19), kFaintText,
                  QCoreApplication::translate("ContactSheet", "no picture"), Qt::AlignHCenter);
    } else {
        QRect area(QPoint(), m_pictureSize);
        area.moveCenter(frame.center());
        painter.drawImage(area, cell.picture);
    }
    painter.setPen(kLine);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(frame).adjusted(-0.5, -0.5, 0.5, 0.5));

    const QRect line(frame.left(), frame.bottom() + 1, frame.width(), kCaptionHeight);
    PaintText(painter, line, TextFont(19), kText, cell.caption, Qt::AlignLeft);
    PaintText(painter, line, TextFont(17), kFaintText, cell.note, Qt::AlignRight);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>
#include <QString>
#include <QVector>

/// A page of pictures of one file under a title, each with a caption.
///
/// Cells take the shape of the pictures; shapes beyond 1:2 and 2.4:1 are letterboxed into the
/// nearest of these.
class ContactSheet
{
public:
    /// \a shape is width over height of the pictures, \a count how many will be added (1 or more).
    ContactSheet(double shape, int count);

    /// Size in pixels to ask pictures for; it fills the cell in one direction.
    QSize PictureSize() const { return m_pictureSize; }
    /// Adds a picture; a null one shows as an empty cell that says so.
    void Add(const QImage& picture, const QString& caption, const QString& note);
    /// The page. Works for fewer pictures than announced too.
    QImage Paint(const QString& title, const QString& subtitle) const;

private:
    struct Cell
    {
        QImage picture;
        QString caption;
        QString note;
    };
    void PaintCell(QPainter& painter, const Cell& cell, const QPoint& corner) const;

    int m_columns;
    QSize m_cellSize;
    QSize m_pictureSize;
    QVector<Cell> m_cells;
};

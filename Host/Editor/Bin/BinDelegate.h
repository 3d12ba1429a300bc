// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Bin/BinModel.h"

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

class BinPictures;

/// Draws files of a bin: a picture with what is to be seen at once, name and summary beside it or
/// below.
class BinDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Room of the picture in a cell of a grid.
    static constexpr QSize kCellPicture{120, 68};

    /// \a pictures outlives the delegate.
    BinDelegate(BinPictures& pictures, QObject* parent);

    /// Cells of a grid, or lines of a list.
    void SetGrid(bool isGrid) { m_isGrid = isGrid; }
    /// The file \a index shows its frame \a frame instead of the one that stands for it; no file
    /// does with an invalid index. \a isPassing: under a pointer that moves.
    void SetScrubbed(const QModelIndex& index, int frame, bool isPassing);
    const QPersistentModelIndex& Scrubbed() const { return m_scrubbed; }
    int ScrubbedFrame() const { return m_frame; }
    /// The frame that stands for a file.
    static int PosterFrame(const BinItem& item);

    /// Where the picture of a cell \a cell is.
    QRect PictureRect(const QRect& cell, Qt::LayoutDirection direction) const;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    void PaintPicture(QPainter& painter, const QRect& room, const QModelIndex& index,
                      const BinItem& item) const;
    void PaintTexts(QPainter& painter, const QStyleOptionViewItem& option, const QRect& room,
                    const BinItem& item) const;

    BinPictures& m_pictures;
    bool m_isGrid = true;
    QPersistentModelIndex m_scrubbed;
    int m_frame = 0;
    bool m_isPassing = false;
};

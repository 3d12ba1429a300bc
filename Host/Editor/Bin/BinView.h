// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QListView>

class BinDelegate;
class BinPictures;

/// The files of a bin as a grid or as a list. Pictures play under the pointer; comma and full stop
/// step the current one by a frame, I and O set in and out point at the frame on show.
class BinView : public QListView
{
    Q_OBJECT

public:
    /// \a pictures outlives the view.
    explicit BinView(BinPictures& pictures, QWidget* parent = nullptr);

    void SetGrid(bool isGrid);
    bool IsGrid() const { return viewMode() == QListView::IconMode; }
    /// Said while there is nothing to show.
    void SetHint(const QString& hint);
    /// The frame that \a index shows.
    int ShownFrame(const QModelIndex& index) const;
    /// Lets \a index show a frame, until the pointer or a step has another one.
    void ShowFrame(const QModelIndex& index, int frame);
    /// Paths of the selected files, in the order of the view.
    QStringList SelectedFiles() const;

Q_SIGNALS:
    /// Return, or a double click.
    void PlaceWanted();
    void RemoveWanted();
    void MarkInWanted();
    void MarkOutWanted();
    void MarksClearWanted();
    void SelectionChanged();

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

private:
    void Scrub(const QPoint& position);
    void Step(int frames);
    void SetScrubbed(const QModelIndex& index, int frame, bool isPassing);
    bool TakeKey(int key);

    BinPictures& m_pictures;
    BinDelegate* m_delegate; ///< a child
    QString m_hint;
};

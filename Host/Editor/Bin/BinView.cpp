// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/BinView.h"

#include "Host/Editor/Bin/BinDelegate.h"
#include "Host/Editor/Bin/BinPictures.h"

#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int kSpacing = 4;
constexpr QSize kDragPicture(96, 54);

BinItem ItemAt(const QModelIndex& index)
{
    return index.data(BinModel::ItemRole).value<BinItem>();
}

struct KeyRow
{
    int key;
    void (BinView::*signal)();
};
constexpr KeyRow kKeys[] = {
    {Qt::Key_Return, &BinView::PlaceWanted},  {Qt::Key_Enter, &BinView::PlaceWanted},
    {Qt::Key_Delete, &BinView::RemoveWanted}, {Qt::Key_Backspace, &BinView::RemoveWanted},
    {Qt::Key_I, &BinView::MarkInWanted},      {Qt::Key_O, &BinView::MarkOutWanted},
    {Qt::Key_X, &BinView::MarksClearWanted},
};

bool IsOwnKey(const QKeyEvent& event)
{
    const auto isSame = [&](const KeyRow& row) { return row.key == event.key(); };
    const bool isStep = event.key() == Qt::Key_Comma || event.key() == Qt::Key_Period;
    return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier &&
           (isStep || std::any_of(std::begin(kKeys), std::end(kKeys), isSame));
}

} // namespace

BinView::BinView(BinPictures& pictures, QWidget* parent)
    : QListView(parent), m_pictures(pictures), m_delegate(new BinDelegate(pictures, this))
{
    setItemDelegate(m_delegate);
    setMouseTracking(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setUniformItemSizes(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    SetGrid(true);
    connect(&m_pictures, &BinPictures::Made, viewport(), qOverload<>(&QWidget::update));
}

void BinView::SetGrid(bool isGrid)
{
    setViewMode(isGrid ? QListView::IconMode : QListView::ListMode);
    // The mode sets these as it likes them.
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
    setSpacing(isGrid ? kSpacing : 0);
    setWordWrap(false);
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::CopyAction);
    viewport()->setAcceptDrops(true);
    m_delegate->SetGrid(isGrid);
    m_pictures.SetRoom(BinDelegate::kCellPicture * devicePixelRatioF());
    scheduleDelayedItemsLayout();
}

void BinView::SetHint(const QString& hint)
{
    m_hint = hint;
    viewport()->update();
}

int BinView::ShownFrame(const QModelIndex& index) const
{
    return m_delegate->Scrubbed() == index ? m_delegate->ScrubbedFrame()
                                           : BinDelegate::PosterFrame(ItemAt(index));
}

void BinView::ShowFrame(const QModelIndex& index, int frame)
{
    SetScrubbed(index, std::clamp(frame, 0, std::max(0, ItemAt(index).Frames() - 1)), false);
}

QStringList BinView::SelectedFiles() const
{
    QModelIndexList indexes = selectedIndexes();
    std::sort(indexes.begin(), indexes.end());
    QStringList files;
    for (const QModelIndex& index : qAsConst(indexes))
        files << index.data(BinModel::PathRole).toString();
    return files;
}

void BinView::SetScrubbed(const QModelIndex& index, int frame, bool isPassing)
{
    const QModelIndex before = m_delegate->Scrubbed();
    m_delegate->SetScrubbed(index, frame, isPassing);
    if (before.isValid())
        update(before);
    if (index.isValid())
        update(index);
}

void BinView::Scrub(const QPoint& position)
{
    const QModelIndex index = indexAt(position);
    const QRect room = m_delegate->PictureRect(visualRect(index), layoutDirection());
    if (!index.isValid() || !room.contains(position) || !ItemAt(index).IsFilm()) {
        SetScrubbed({}, 0, false);
        return;
    }
    const int frame =
        int(qint64(position.x() - room.left()) * ItemAt(index).Frames() / room.width());
    SetScrubbed(index, frame, true);
}

void BinView::Step(int frames)
{
    const QModelIndex index = currentIndex();
    if (index.isValid() && ItemAt(index).IsFilm())
        ShowFrame(index, ShownFrame(index) + frames);
}

bool BinView::event(QEvent* event)
{
    // These keys mean something else in other panels.
    if (event->type() == QEvent::ShortcutOverride && IsOwnKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QListView::event(event);
}

bool BinView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave)
        SetScrubbed({}, 0, false);
    return QListView::viewportEvent(event);
}

bool BinView::TakeKey(int key)
{
    if (key == Qt::Key_Comma || key == Qt::Key_Period) {
        Step(key == Qt::Key_Comma ? -1 : 1);
        return true;
    }
    for (const KeyRow& row : kKeys) {
        if (row.key != key)
            continue;
        Q_EMIT(this->*row.signal)();
        return true;
    }
    return false;
}

void BinView::keyPressEvent(QKeyEvent* event)
{
    if (!IsOwnKey(*event) || !TakeKey(event->key()))
        QListView::keyPressEvent(event);
}

void BinView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton)
        Scrub(event->pos());
    QListView::mouseMoveEvent(event);
}

void BinView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid())
        Q_EMIT PlaceWanted();
}

void BinView::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    if (!model() || model()->rowCount() > 0 || m_hint.isEmpty())
        return;
    constexpr int margin = 24;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text).lighter(140));
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_hint);
}

void BinView::startDrag(Qt::DropActions actions)
{
    QMimeData* dragged = model()->mimeData(selectedIndexes());
    if (!dragged)
        return;
    auto* drag = new QDrag(this); // Qt deletes it after the drop
    drag->setMimeData(dragged);
    const BinItem item = ItemAt(currentIndex());
    const QImage picture = m_pictures.Picture(item.media, BinDelegate::PosterFrame(item));
    if (!picture.isNull())
        drag->setPixmap(QPixmap::fromImage(
            picture.scaled(kDragPicture, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    drag->exec(actions, Qt::CopyAction);
}

void BinView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    Q_EMIT SelectionChanged();
}

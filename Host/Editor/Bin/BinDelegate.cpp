// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Bin/BinDelegate.h"

#include "CommonLib/GlobalUtils.h"
#include "Host/Editor/Bin/BinPictures.h"
#include "Host/Widgets/HostStyle.h"
#include "Host/Widgets/ScaledFont.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace {

constexpr int kMargin = 6;
constexpr int kGap = 4;
constexpr int kRadius = 3;
constexpr int kLine = 3; // of what is drawn along the picture's lower edge
constexpr QSize kLinePicture(72, 41);
constexpr double kSmallFont = 0.88; // of the usual one
constexpr int kPosterShare = 10;    // beginnings are often black

const QColor kBehind(0x14, 0x15, 0x17);
const QColor kAccent(0x4d, 0xa3, 0xff);
const QColor kWarning(0xe0, 0x6c, 0x5a);
const QColor kQuiet(0x92, 0x99, 0xa1);
const QColor kBadge(0, 0, 0, 0xb0);
const QColor kBadgeText(0xf2, 0xf4, 0xf6);

/// A text on a dark ground at a corner of \a room.
void PaintBadge(QPainter& painter, const QRect& room, Qt::Alignment corner, const QString& text,
                const QColor& color = kBadgeText)
{
    const QFontMetrics metrics(painter.font());
    const QSize size(metrics.horizontalAdvance(text) + 2 * kGap, metrics.height());
    const QRect box =
        QStyle::alignedRect(Qt::LeftToRight, corner, size, room.adjusted(kGap, kGap, -kGap, -kGap));
    painter.setLayoutDirection(Qt::LeftToRight); // numbers
    painter.setPen(Qt::NoPen);
    painter.setBrush(kBadge);
    painter.drawRoundedRect(box, kRadius, kRadius);
    painter.setPen(color);
    painter.drawText(box, Qt::AlignCenter, text);
}

/// Where a frame is along a picture: time runs from left to right in all languages.
int PlaceOf(const QRect& room, int frame, int frames)
{
    return room.left() + int(qint64(frame) * room.width() / std::max(1, frames));
}

void PaintMarks(QPainter& painter, const QRect& room, const BinItem& item)
{
    const NLERange marks = item.entry.marks;
    if (NLERangeLength(marks) == 0 || item.Frames() == 0)
        return;
    const int left = PlaceOf(room, marks.in, item.Frames());
    const int right = PlaceOf(room, marks.out + 1, item.Frames());
    painter.fillRect(QRect(left, room.bottom() - kLine + 1, std::max(2, right - left), kLine),
                     kAccent);
}

void PaintProgress(QPainter& painter, const QRect& room, int percent)
{
    const QRect bar(room.left(), room.top(), room.width() * percent / 100, kLine);
    painter.fillRect(QRect(room.topLeft(), QSize(room.width(), kLine)), kBadge);
    painter.fillRect(bar, kAccent);
}

QString ProxyBadge(const BinItem& item)
{
    if (item.proxyPercent >= 0)
        return QStringLiteral("%1 %").arg(item.proxyPercent);
    return item.entry.proxy.isEmpty() ? QString() : BinDelegate::tr("Proxy");
}

QString TimeBadge(const BinItem& item, bool isScrubbed, int frame)
{
    if (!item.media.report || item.media.report->image)
        return {};
    return isScrubbed ? gFrame2String(frame, float(item.Rate()))
                      : gFrame2StringSecond(item.Frames(), float(item.Rate()));
}

} // namespace

BinDelegate::BinDelegate(BinPictures& pictures, QObject* parent)
    : QStyledItemDelegate(parent), m_pictures(pictures)
{
}

void BinDelegate::SetScrubbed(const QModelIndex& index, int frame, bool isPassing)
{
    m_scrubbed = index;
    m_frame = frame;
    m_isPassing = isPassing;
}

int BinDelegate::PosterFrame(const BinItem& item)
{
    const int preset = item.Frames() / kPosterShare;
    return NLERangeLength(item.entry.marks) > 0 ? item.entry.marks.in : preset;
}

QRect BinDelegate::PictureRect(const QRect& cell, Qt::LayoutDirection direction) const
{
    if (m_isGrid)
        return QRect(cell.left() + (cell.width() - kCellPicture.width()) / 2, cell.top() + kMargin,
                     kCellPicture.width(), kCellPicture.height());
    const QRect left(cell.left() + kMargin,
                     cell.top() + (cell.height() - kLinePicture.height()) / 2, kLinePicture.width(),
                     kLinePicture.height());
    return QStyle::visualRect(direction, cell, left);
}

QSize BinDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const
{
    const int texts = option.fontMetrics.height() +
                      QFontMetrics(ScaledFont(option.font, kSmallFont)).height() + kGap;
    if (m_isGrid)
        return QSize(kCellPicture.width() + 2 * kMargin,
                     kCellPicture.height() + 2 * kMargin + kGap + texts);
    return QSize(kLinePicture.width() + 4 * kMargin,
                 std::max(kLinePicture.height(), texts) + 2 * kMargin);
}

void BinDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const
{
    const auto item = index.data(BinModel::ItemRole).value<BinItem>();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const bool isSelected = option.state & QStyle::State_Selected;
    const bool isHovered = option.state & QStyle::State_MouseOver;
    const QRect ground = option.rect.adjusted(1, 1, -1, -1);
    if (isSelected || isHovered) {
        painter->setPen(isSelected ? QPen(kAccent) : QPen(Qt::NoPen));
        painter->setBrush(option.palette.color(QPalette::Button));
        painter->drawRoundedRect(QRectF(ground).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    }
    if (option.state & QStyle::State_HasFocus) {
        painter->setPen(QPen(kBadgeText, 1, Qt::DotLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(ground).adjusted(2.5, 2.5, -2.5, -2.5), kRadius, kRadius);
    }
    const QRect picture = PictureRect(option.rect, option.direction);
    painter->setFont(ScaledFont(option.font, kSmallFont));
    PaintPicture(*painter, picture, index, item);
    painter->setFont(option.font);
    PaintTexts(*painter, option, picture, item);
    painter->restore();
}

void BinDelegate::PaintPicture(QPainter& painter, const QRect& room, const QModelIndex& index,
                               const BinItem& item) const
{
    const bool isScrubbed = m_scrubbed == index;
    const int frame = isScrubbed ? m_frame : PosterFrame(item);
    QImage picture = m_pictures.Picture(item.media, frame, isScrubbed && m_isPassing);
    if (picture.isNull() && isScrubbed)
        picture = m_pictures.Picture(item.media, PosterFrame(item));
    painter.save();
    QPainterPath outline;
    outline.addRoundedRect(room, kRadius, kRadius);
    painter.setClipPath(outline);
    painter.fillRect(room, kBehind);
    if (!picture.isNull())
        painter.drawImage(
            QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                picture.size().scaled(room.size(), Qt::KeepAspectRatio), room),
            picture);
    PaintMarks(painter, room, item);
    if (isScrubbed)
        painter.fillRect(PlaceOf(room, frame, item.Frames()), room.top(), 1, room.height(),
                         kAccent);
    if (item.proxyPercent >= 0)
        PaintProgress(painter, room, item.proxyPercent);
    painter.restore();
    if (item.IsOffline())
        PaintBadge(painter, room, Qt::AlignCenter, item.Summary(), kWarning);
    if (!m_isGrid)
        return;
    if (const QString time = TimeBadge(item, isScrubbed, frame); !time.isEmpty())
        PaintBadge(painter, room, Qt::AlignRight | Qt::AlignBottom, time);
    if (const QString proxy = ProxyBadge(item); !proxy.isEmpty())
        PaintBadge(painter, room, Qt::AlignLeft | Qt::AlignTop, proxy);
    if (item.uses > 0)
        PaintBadge(painter, room, Qt::AlignRight | Qt::AlignTop,
                   QStringLiteral("× %1").arg(item.uses));
}

void BinDelegate::PaintTexts(QPainter& painter, const QStyleOptionViewItem& option,
                             const QRect& picture, const BinItem& item) const
{
    const QFont smallFont = ScaledFont(option.font, kSmallFont);
    const int nameHeight = option.fontMetrics.height();
    const int both = nameHeight + QFontMetrics(smallFont).height();
    QRect room(picture.left(), picture.bottom() + 1 + kGap, picture.width(), both);
    if (!m_isGrid) {
        const QRect cell = option.rect;
        const int left = kLinePicture.width() + 3 * kMargin;
        room = QStyle::visualRect(option.direction, cell,
                                  QRect(cell.left() + left, cell.top() + (cell.height() - both) / 2,
                                        std::max(0, cell.width() - left - kMargin), both));
    }
    const int side = int(QStyle::visualAlignment(option.direction, Qt::AlignLeft) |
                         Qt::AlignVCenter | Qt::AlignAbsolute);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto); // a size is read from left to right
    const QRect top(room.left(), room.top(), room.width(), nameHeight);
    painter.setPen(option.palette.color(item.IsOffline() ? QPalette::Disabled : QPalette::Active,
                                        QPalette::Text));
    painter.drawText(top, side,
                     option.fontMetrics.elidedText(item.Name(), Qt::ElideMiddle, room.width()));
    painter.setFont(smallFont);
    painter.setPen(HostStyle::Shown(kQuiet));
    const QRect below(room.left(), top.bottom() + 1, room.width(), both - nameHeight);
    painter.drawText(below, side,
                     painter.fontMetrics().elidedText(m_isGrid ? item.Brief() : item.Summary(),
                                                      Qt::ElideRight, room.width()));
}

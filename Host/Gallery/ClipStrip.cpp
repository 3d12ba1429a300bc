// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Gallery/ClipStrip.h"

#include "CommonLib/TimelineRuler.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace {

constexpr int kMargin = 6;
constexpr int kTextIndent = 8;
constexpr qreal kCornerRadius = 3;
// Clips may reach far beyond the widget; painting them there is of no use.
constexpr qreal kBeyond = 16;

} // namespace

ClipStrip::ClipStrip(const TimelineRuler& ruler, QVector<Clip> clips, QWidget* parent)
    : QWidget(parent), m_ruler(ruler), m_clips(std::move(clips))
{
}

void ClipStrip::PaintClip(QPainter& painter, const Clip& clip) const
{
    const qreal left = std::max<qreal>(m_ruler.Frames2PositionF(clip.in), -kBeyond);
    const qreal right = std::min<qreal>(m_ruler.Frames2PositionF(clip.out + 1), width() + kBeyond);
    if (right <= left)
        return;
    const QRectF box(left, kMargin, right - left - 1, height() - 2 * kMargin);
    painter.setPen(clip.color.lighter(140));
    painter.setBrush(clip.color);
    painter.drawRoundedRect(box.translated(0.5, 0.5), kCornerRadius, kCornerRadius);
    painter.setPen(QColor(0xf0, 0xf2, 0xf4));
    // Within the part of the clip that shows.
    const QRectF room = (box & QRectF(rect())).adjusted(kTextIndent, 0, -kTextIndent, 0);
    if (room.width() > 0)
        painter.drawText(
            room, Qt::AlignVCenter | Qt::AlignLeft,
            fontMetrics().elidedText(QCoreApplication::translate("ClipStrip", clip.name),
                                     Qt::ElideRight, static_cast<int>(room.width())));
}

void ClipStrip::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        update();
    QWidget::changeEvent(event);
}

void ClipStrip::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0x2b, 0x2e, 0x32));
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Clip& clip : m_clips)
        PaintClip(painter, clip);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const qreal x = m_ruler.Frames2PositionF(m_ruler.CurrentFrames());
    painter.setPen(QPen(m_ruler.GetPointerBGColor(), 2));
    painter.drawLine(QPointF(x, 0), QPointF(x, height()));
}

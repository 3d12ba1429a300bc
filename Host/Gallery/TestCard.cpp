// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Gallery/TestCard.h"

#include <QLinearGradient>
#include <QPainter>

#include <iterator>

namespace {

constexpr QSize kSize(1280, 720);
constexpr int kBarsBottom = 440;
constexpr int kWedgeBottom = 530;
/// The bars of SMPTE EG 1 at 75 %.
constexpr QRgb kBars[] = {qRgb(191, 191, 191), qRgb(191, 191, 0), qRgb(0, 191, 191),
                          qRgb(0, 191, 0),     qRgb(191, 0, 191), qRgb(191, 0, 0),
                          qRgb(0, 0, 191)};
constexpr int kGreys = 16;

/// The \a index-th of \a count columns, without gaps between them.
QRect Column(int index, int count, int top, int bottom)
{
    const int left = kSize.width() * index / count;
    return {left, top, kSize.width() * (index + 1) / count - left, bottom - top};
}

void PaintTransparentPart(QPainter& painter)
{
    const QRect rest(0, kWedgeBottom, kSize.width(), kSize.height() - kWedgeBottom);
    QLinearGradient fade(rest.topLeft(), rest.topRight());
    fade.setColorAt(0, QColor(0x2d, 0x6f, 0xb8, 0xff));
    fade.setColorAt(1, QColor(0x2d, 0x6f, 0xb8, 0x00));
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rest, fade);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

} // namespace

QImage PaintTestCard()
{
    QImage card(kSize, QImage::Format_ARGB32_Premultiplied);
    card.fill(Qt::black);
    QPainter painter(&card);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto bars = int(std::size(kBars));
    for (int i = 0; i < bars; ++i)
        painter.fillRect(Column(i, bars, 0, kBarsBottom), QColor(kBars[i]));
    for (int i = 0; i < kGreys; ++i) {
        const int grey = 255 * i / (kGreys - 1);
        painter.fillRect(Column(i, kGreys, kBarsBottom, kWedgeBottom), QColor(grey, grey, grey));
    }
    PaintTransparentPart(painter);
    painter.setPen(QPen(Qt::white, 4));
    const QPointF center(kSize.width() / 2.0, kSize.height() / 2.0);
    const double radius = 0.45 * kSize.height();
    painter.drawEllipse(center, radius, radius);
    painter.drawLine(center - QPointF(radius, 0), center + QPointF(radius, 0));
    painter.drawLine(center - QPointF(0, radius), center + QPointF(0, radius));
    return card;
}

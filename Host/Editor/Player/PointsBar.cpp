// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Player/PointsBar.h"

#include <QPainter>

namespace {

constexpr int kHeight = 8;
constexpr int kInset = 7; // half of the chunk of the seek bar below
constexpr double kMarkerWidth = 3;
const QColor kMarker(0xe0, 0xa0, 0x30);

} // namespace

PointsBar::PointsBar(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PointsBar::SetLength(int frames)
{
    m_length = frames;
    update();
}

void PointsBar::SetRange(int in, int out)
{
    m_in = in;
    m_out = out;
    update();
}

void PointsBar::SetMarkers(const QVector<int>& frames)
{
    m_markers = frames;
    update();
}

QSize PointsBar::sizeHint() const
{
    return {0, kHeight};
}

double PointsBar::At(int frame) const
{
    return kInset + double(width() - 2 * kInset) * frame / qMax(1, m_length - 1);
}

void PointsBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_in <= m_out) {
        const double left = At(m_in);
        const QRectF range(left, height() - 4, qMax(1.0, At(m_out) - left), 3);
        painter.fillRect(range, palette().highlight());
    }
    for (const int frame : m_markers)
        painter.fillRect(QRectF(At(frame) - kMarkerWidth / 2, 0, kMarkerWidth, height()), kMarker);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/PicturePlacement.h"

#include <algorithm>

namespace {

double FactorFor(const QSize& picture, const QSize& view, PicturePlacement::Scale scale)
{
    const double across = double(view.width()) / picture.width();
    const double down = double(view.height()) / picture.height();
    switch (scale) {
    case PicturePlacement::Scale::Fit:
        return std::min(across, down);
    case PicturePlacement::Scale::Fill:
        return std::max(across, down);
    case PicturePlacement::Scale::Pixels:
        break;
    }
    return 1;
}

} // namespace

PicturePlacement::PicturePlacement(const QSize& picture, const QSize& view, double ratio,
                                   Scale scale)
    : m_view(view * ratio), m_ratio(ratio)
{
    if (picture.isEmpty() || m_view.isEmpty())
        return;
    m_picture = picture;
    const double factor = FactorFor(picture, m_view, scale);
    const QSize size = (QSizeF(picture) * factor).toSize().expandedTo(QSize(1, 1));
    m_target = QRect(
        QPoint((m_view.width() - size.width()) / 2, (m_view.height() - size.height()) / 2), size);
}

QRectF PicturePlacement::VisibleSource() const
{
    if (IsEmpty())
        return {};
    const QRectF visible(Visible());
    return QRectF(ToPicture(visible.topLeft() / m_ratio),
                  ToPicture(visible.bottomRight() / m_ratio));
}

double PicturePlacement::Factor() const
{
    return IsEmpty() ? 1 : double(m_target.width()) / m_picture.width();
}

QPointF PicturePlacement::ToPicture(const QPointF& view) const
{
    if (IsEmpty())
        return {};
    const QPointF device = view * m_ratio - m_target.topLeft();
    return {device.x() * m_picture.width() / m_target.width(),
            device.y() * m_picture.height() / m_target.height()};
}

QPointF PicturePlacement::ToView(const QPointF& picture) const
{
    if (IsEmpty())
        return {};
    const QPointF device(picture.x() * m_target.width() / m_picture.width(),
                         picture.y() * m_target.height() / m_picture.height());
    return (device + m_target.topLeft()) / m_ratio;
}

QRectF PicturePlacement::ViewRect() const
{
    return {QPointF(m_target.topLeft()) / m_ratio, QSizeF(m_target.size()) / m_ratio};
}

QRect PicturePlacement::Area(double part) const
{
    QRectF area(QPointF(), QSizeF(m_target.size()) * part);
    area.moveCenter(QRectF(m_target).center());
    return area.toRect();
}

bool PicturePlacement::operator==(const PicturePlacement& other) const
{
    return m_picture == other.m_picture && m_view == other.m_view && m_target == other.m_target &&
           m_ratio == other.m_ratio;
}

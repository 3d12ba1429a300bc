// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/ColorButton.h"

#include <QColorDialog>
#include <QPainter>

namespace {

constexpr QSize kSize(56, 24);
constexpr int kMargin = 4;
constexpr int kSquare = 5;

void PaintCheckers(QPainter& painter, const QRect& area)
{
    painter.setClipRect(area);
    for (int y = 0; y * kSquare < area.height(); ++y) {
        for (int x = 0; x * kSquare < area.width(); ++x) {
            const QPoint corner = area.topLeft() + QPoint(x, y) * kSquare;
            painter.fillRect(QRect(corner, QSize(kSquare, kSquare)),
                             (x + y) % 2 == 0 ? Qt::white : Qt::lightGray);
        }
    }
}

} // namespace

ColorButton::ColorButton(bool hasAlpha, QWidget* parent) : QPushButton(parent), m_hasAlpha(hasAlpha)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QPushButton::clicked, this, &ColorButton::Ask);
}

void ColorButton::SetColor(const QColor& color)
{
    m_color = color;
    setToolTip(color.name(m_hasAlpha ? QColor::HexArgb : QColor::HexRgb));
    setAccessibleDescription(toolTip());
    update();
}

QSize ColorButton::sizeHint() const
{
    return kSize;
}

void ColorButton::Ask()
{
    auto* dialog = new QColorDialog(m_color, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QColorDialog::ShowAlphaChannel, m_hasAlpha);
    const auto show = [this](const QColor& color) {
        SetColor(color);
        Q_EMIT Changed(color);
    };
    connect(dialog, &QColorDialog::currentColorChanged, this, show);
    connect(dialog, &QColorDialog::rejected, this, [show, before = m_color] { show(before); });
    connect(dialog, &QColorDialog::finished, this, &ColorButton::Ended);
    Q_EMIT Began();
    dialog->open();
}

void ColorButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    const QRect area = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    if (m_color.alpha() < 255)
        PaintCheckers(painter, area);
    QColor shown = m_color;
    if (!m_hasAlpha)
        shown.setAlpha(255);
    painter.fillRect(area, isEnabled() ? shown : shown.darker());
}

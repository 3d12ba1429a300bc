// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/ImageTextButton2.h"

#include "CommonLib/PaletteLook_p.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int kTextHeight = 20;
constexpr int kTextGap = 10; // from the last row of the image to the text
constexpr int kMargin = 8;

QSize LogicalSize(const QPixmap& image)
{
    // A null one has no ratio.
    return image.isNull() ? QSize(0, 0)
                          : (QSizeF(image.size()) / image.devicePixelRatioF()).toSize();
}

} // namespace

ImageTextButton2::ImageTextButton2(int id, const QString& name, QWidget* parent)
    : QWidget(parent), m_id(id)
{
    setObjectName(name);
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
}

int ImageTextButton2::GetId() const
{
    return m_id;
}

void ImageTextButton2::SetText(const QString& text)
{
    m_text = text;
    updateGeometry();
    update();
}

QString ImageTextButton2::GetText() const
{
    return m_text;
}

void ImageTextButton2::SetNormalImage(QPixmap image)
{
    m_normalImage = image;
    updateGeometry();
    update();
}

QPixmap ImageTextButton2::GetNormalImage() const
{
    return m_normalImage;
}

void ImageTextButton2::SetSelectedImage(QPixmap image)
{
    m_selectedImage = image;
    updateGeometry();
    update();
}

QPixmap ImageTextButton2::GetSelectedImage() const
{
    return m_selectedImage;
}

void ImageTextButton2::SetNormalTextColor(QColor color)
{
    m_normalTextColor = color;
    update();
}

QColor ImageTextButton2::GetNormalTextColor() const
{
    return m_normalTextColor;
}

void ImageTextButton2::SetSelectedTextColor(QColor color)
{
    m_selectedTextColor = color;
    update();
}

QColor ImageTextButton2::GetSelectedTextColor() const
{
    return m_selectedTextColor;
}

void ImageTextButton2::SetButtonState(BUTTONSTATE state)
{
    m_state = state;
    update();
}

ImageTextButton2::BUTTONSTATE ImageTextButton2::GetButtonState() const
{
    return m_state;
}

QSize ImageTextButton2::sizeHint() const
{
    const QSize image = LogicalSize(m_normalImage).expandedTo(LogicalSize(m_selectedImage));
    const int text = fontMetrics().horizontalAdvance(m_text);
    // A text that is higher than its place reaches below it, while all stays centred about the
    // place.
    const int beyond = qMax(fontMetrics().height() - kTextHeight, 0);
    return {qMax(image.width(), text) + 2 * kMargin,
            image.height() + kTextGap + kTextHeight + 2 * beyond + 2 * kMargin};
}

void ImageTextButton2::paintEvent(QPaintEvent*)
{
    if (m_state != Normal && m_state != Selected)
        return;
    const bool selected = m_state == Selected;
    const QPixmap& image = selected ? m_selectedImage : m_normalImage;
    QColor color = selected ? m_selectedTextColor : m_normalTextColor;
    if (!color.isValid())
        color = palette().color(selected ? QPalette::Highlight : QPalette::WindowText);

    const QSize size = LogicalSize(image);
    const QRect place(
        QPoint((width() - size.width()) / 2, (height() - kTextHeight - size.height()) / 2), size);
    QPainter painter(this);
    if (!PaletteLook::HasRule(*this))
        PaletteLook::PaintPanel(painter, rect(), palette(),
                                {true, isEnabled() && underMouse(), false, false, hasFocus()});
    if (!image.isNull())
        painter.drawPixmap(place.topLeft(), image);
    painter.setPen(color);
    // From the last row of the image, not from the one below it.
    painter.drawText(QRect(0, place.bottom() + kTextGap, width(), kTextHeight),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextDontClip, m_text);
}

void ImageTextButton2::mousePressEvent(QMouseEvent*)
{
    Select();
}

void ImageTextButton2::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Select();
    default:
        QWidget::keyPressEvent(event);
    }
}

void ImageTextButton2::Select()
{
    m_state = Selected;
    update();
    Q_EMIT sigSelected(m_id);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/ImageTextButton2.h"

#include "CommonLib/PaletteLook_p.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

#include <utility>

namespace {

constexpr int kTextHeight = 20;
constexpr int kTextGap = 10; // from the last row of the image to the text
constexpr int kMargin = 8;

// Pixmaps have no comparison of their pixels; copies have one key.
bool IsSame(const QPixmap& a, const QPixmap& b)
{
    return a.cacheKey() == b.cacheKey();
}

template <typename Value>
bool IsSame(const Value& a, const Value& b)
{
    return a == b;
}

QSize LogicalSize(const QPixmap& image)
{
    // A null one has no ratio.
    return image.isNull() ? QSize(0, 0)
                          : (QSizeF(image.size()) / image.devicePixelRatioF()).toSize();
}

} // namespace

ImageTextButton2::ImageTextButton2(QWidget* parent) : ImageTextButton2(0, QString(), parent) {}

ImageTextButton2::ImageTextButton2(int id, const QString& name, QWidget* parent)
    : QWidget(parent), m_id(id)
{
    setObjectName(name);
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
}

template <typename Value>
void ImageTextButton2::Change(Value& value, const Value& to)
{
    const bool isOther = !IsSame(value, to);
    value = to;
    updateGeometry();
    update();
    if (isOther)
        Q_EMIT SettingsChanged();
}

void ImageTextButton2::SetId(int id)
{
    Change(m_id, id);
}

int ImageTextButton2::GetId() const
{
    return m_id;
}

void ImageTextButton2::SetText(const QString& text)
{
    Change(m_text, text);
}

QString ImageTextButton2::GetText() const
{
    return m_text;
}

void ImageTextButton2::SetNormalImage(QPixmap image)
{
    Change(m_normalImage, image);
}

QPixmap ImageTextButton2::GetNormalImage() const
{
    return m_normalImage;
}

void ImageTextButton2::SetSelectedImage(QPixmap image)
{
    Change(m_selectedImage, image);
}

QPixmap ImageTextButton2::GetSelectedImage() const
{
    return m_selectedImage;
}

void ImageTextButton2::SetNormalTextColor(QColor color)
{
    Change(m_normalTextColor, color);
}

QColor ImageTextButton2::GetNormalTextColor() const
{
    return m_normalTextColor;
}

void ImageTextButton2::SetSelectedTextColor(QColor color)
{
    Change(m_selectedTextColor, color);
}

QColor ImageTextButton2::GetSelectedTextColor() const
{
    return m_selectedTextColor;
}

void ImageTextButton2::SetButtonState(BUTTONSTATE state)
{
    update();
    if (std::exchange(m_state, state) != state)
        Q_EMIT StateChanged(state);
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
    const QPointer<ImageTextButton2> self(this);
    SetButtonState(Selected);
    if (self)
        Q_EMIT sigSelected(m_id);
}

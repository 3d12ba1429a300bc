// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/ImageTextButton.h"

#include "CommonLib/BaseButton.h"
#include "CommonLib/PaletteLook_p.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>

#include <utility>

namespace {

constexpr int kInitialSide = 300;

enum ImagePlace
{
    ImageLeft,
    ImageOnTop,
    ImageRight,
    ImageBelow
};

} // namespace

ImageTextButton::ImageTextButton(QWidget* parent) : ImageTextButton(0, QString(), parent) {}

ImageTextButton::ImageTextButton(int id, const QString& name, QWidget* parent)
    : QWidget(parent), m_text(new QLabel(this)), m_image(new BaseButton(id, name, this))
{
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_Hover);
    PaletteLook::PaintBelow(*this, [this]() -> std::optional<PaletteLook::Panel> {
        if (PaletteLook::HasRule(*this))
            return {}; // the sheet has drawn all
        return PaletteLook::Panel{false, isEnabled() && underMouse(), false, false, false};
    });
    m_text->setObjectName(QStringLiteral("ImageTextButton_Text"));
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // The mouse belongs to the whole button, which passes enter and leave on to the text.
    m_text->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(m_image, &BaseButton::Clicked, this, &ImageTextButton::Clicked);
    resize(kInitialSide, kInitialSide);
    LayOut();
}

void ImageTextButton::SetText(QString text)
{
    const bool isOther = text != Text();
    m_text->setText(text);
    m_image->setAccessibleName(text);
    if (isOther)
        Q_EMIT SettingsChanged();
}

QString ImageTextButton::Text() const
{
    return m_text->text();
}

int ImageTextButton::Id() const
{
    return m_image->GetId();
}

void ImageTextButton::SetId(int id)
{
    if (id == Id())
        return;
    m_image->setProperty("id", id);
    Q_EMIT SettingsChanged();
}

void ImageTextButton::SetIcon(const QIcon& icon)
{
    if (icon.cacheKey() == Icon().cacheKey())
        return;
    m_image->setIcon(icon);
    Q_EMIT SettingsChanged();
}

QIcon ImageTextButton::Icon() const
{
    return m_image->icon();
}

void ImageTextButton::SetTextAlign(Qt::Alignment alignment)
{
    if (alignment == TextAlign())
        return;
    m_text->setAlignment(alignment);
    Q_EMIT SettingsChanged();
}

Qt::Alignment ImageTextButton::TextAlign() const
{
    return m_text->alignment();
}

void ImageTextButton::SetImageAlign(int align)
{
    const int before = std::exchange(m_imageAlign, align);
    const Qt::Alignment textBefore = TextAlign();
    const bool centred = align == ImageOnTop || align == ImageBelow;
    m_text->setAlignment((centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter);
    if (isVisible())
        LayOut();
    if (align != before || TextAlign() != textBefore)
        Q_EMIT SettingsChanged();
}

void ImageTextButton::SetImageWidth(int width)
{
    const QSize before = m_image->iconSize();
    m_image->setIconSize(QSize(width, width));
    if (m_image->iconSize() != before)
        Q_EMIT SettingsChanged();
}

int ImageTextButton::ImageWidth() const
{
    return m_image->iconSize().width();
}

void ImageTextButton::enterEvent(AnyQt::EnterEvent* event)
{
    QWidget::enterEvent(event);
    PassToText(event);
}

void ImageTextButton::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    PassToText(event);
}

void ImageTextButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (rect().contains(event->pos())) {
        const QPointer<ImageTextButton> self(this);
        Q_EMIT Clicked(m_image->GetId(), mapToGlobal(QPoint(0, 0)));
        if (!self)
            return;
    }
    QWidget::mouseReleaseEvent(event);
}

void ImageTextButton::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    LayOut();
}

void ImageTextButton::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    LayOut();
}

void ImageTextButton::LayOut()
{
    // QRect's right() and bottom() are the last column and row within, so that image and text share
    // one. Beginning behind it would move one of the two by a pixel in every button.
    const int w = width();
    const int h = height();
    QRect image(0, 0, h, h);
    QRect text;
    switch (m_imageAlign) {
    case ImageOnTop:
        image = QRect(0, 0, w, w);
        text = QRect(0, image.bottom(), w, h - image.bottom());
        break;
    case ImageRight:
        text = QRect(0, 0, w - h, h);
        image.moveLeft(text.right());
        break;
    case ImageBelow:
        text = QRect(0, 0, w, h - w);
        image = QRect(0, text.bottom(), w, w);
        break;
    default:
        text = QRect(image.right(), 0, w - image.right(), h);
        break;
    }
    m_image->setGeometry(image);
    m_text->setGeometry(QRect(text.topLeft(), text.size().expandedTo({0, 0})));
}

void ImageTextButton::PassToText(QEvent* event)
{
    QCoreApplication::sendEvent(m_text, event);
    m_text->update();
}

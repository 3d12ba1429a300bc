// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/BaseButton.h"

#include "CommonLib/PaletteLook_p.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr QSize kPadding(20, 8); // on both sides together, where no sheet gives another

// Those that lie in a widget of ours which has a look of its own.
bool IsPart(const QWidget& button)
{
    const QWidget* parent = button.parentWidget();
    return parent && (parent->inherits("ImageTextButton") || parent->inherits("ScaleUnitSlider"));
}

} // namespace

BaseButton::BaseButton(const QString& name, QWidget* parent) : BaseButton(0, name, parent) {}

BaseButton::BaseButton(int id, const QString& name, QWidget* parent) : QPushButton(parent), m_id(id)
{
    // Named before it is styled, so that rules for the name are looked up once.
    setObjectName(name);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(PaletteLook::kButtonSheet));
    connect(this, &QPushButton::clicked, this,
            [this] { Q_EMIT Clicked(m_id, mapToGlobal(QPoint(0, 0))); });
    connect(this, &QPushButton::pressed, this,
            [this] { Q_EMIT Pressed(m_id, mapToGlobal(QPoint(0, 0))); });
}

int BaseButton::GetId() const
{
    return m_id;
}

void BaseButton::SetEnabled(bool enabled)
{
    setEnabled(enabled);
}

QSize BaseButton::sizeHint() const
{
    const QSize hint = QPushButton::sizeHint();
    return PaletteLook::HasSheet(*this) ? hint : hint + kPadding;
}

void BaseButton::enterEvent(QEvent* event)
{
    QPushButton::enterEvent(event);
    Q_EMIT sigEnter(m_id);
}

void BaseButton::leaveEvent(QEvent* event)
{
    QPushButton::leaveEvent(event);
    Q_EMIT sigLeave(m_id);
}

void BaseButton::paintEvent(QPaintEvent* event)
{
    if (PaletteLook::HasSheet(*this))
        return QPushButton::paintEvent(event);
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const bool flat = isFlat() || IsPart(*this);
    PaletteLook::PaintPanel(painter, rect(), option.palette,
                            {flat, isEnabled() && underMouse(), isDown(), isChecked(), hasFocus()});
    if (isChecked() && !isDown())
        option.palette.setColor(QPalette::ButtonText,
                                option.palette.color(QPalette::HighlightedText));
    option.state &= ~QStyle::State_HasFocus; // shows already
    painter.drawControl(QStyle::CE_PushButton, option);
}

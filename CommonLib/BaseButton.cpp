// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/BaseButton.h"

#include "CommonLib/PaletteLook_p.h"

#include <utility>

namespace {

// Those that lie in a widget of ours which has a look of its own.
bool IsPart(const QWidget& button)
{
    const QWidget* parent = button.parentWidget();
    return parent && (parent->inherits("ImageTextButton") || parent->inherits("ScaleUnitSlider"));
}

} // namespace

BaseButton::BaseButton(QWidget* parent) : BaseButton(0, QString(), parent) {}

BaseButton::BaseButton(const QString& name, QWidget* parent) : BaseButton(0, name, parent) {}

BaseButton::BaseButton(int id, const QString& name, QWidget* parent) : QPushButton(parent), m_id(id)
{
    // Named before it is styled, so that rules for the name are looked up once.
    setObjectName(name);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(PaletteLook::kButtonSheet));
    PaletteLook::PaintBelow(*this, [this]() -> std::optional<PaletteLook::Panel> {
        // The states of a state button have panels of their own.
        if (PaletteLook::HasSheet(*this) || inherits("BaseStateButton"))
            return {};
        return PaletteLook::Panel{isFlat() || IsPart(*this), isEnabled() && underMouse(), isDown(),
                                  isChecked(), hasFocus()};
    });
    connect(this, &QPushButton::clicked, this,
            [this] { Q_EMIT Clicked(m_id, mapToGlobal(QPoint(0, 0))); });
    connect(this, &QPushButton::pressed, this,
            [this] { Q_EMIT Pressed(m_id, mapToGlobal(QPoint(0, 0))); });
}

int BaseButton::GetId() const
{
    return m_id;
}

void BaseButton::SetId(int id)
{
    if (std::exchange(m_id, id) != id)
        Q_EMIT IdChanged(id);
}

void BaseButton::SetEnabled(bool enabled)
{
    setEnabled(enabled);
}

void BaseButton::enterEvent(AnyQt::EnterEvent* event)
{
    QPushButton::enterEvent(event);
    Q_EMIT sigEnter(m_id);
}

void BaseButton::leaveEvent(QEvent* event)
{
    QPushButton::leaveEvent(event);
    Q_EMIT sigLeave(m_id);
}

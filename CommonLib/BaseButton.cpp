// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/BaseButton.h"

BaseButton::BaseButton(const QString& name, QWidget* parent) : BaseButton(0, name, parent) {}

BaseButton::BaseButton(int id, const QString& name, QWidget* parent) : QPushButton(parent), m_id(id)
{
    // Named before it is styled, so that rules for the name are looked up once.
    setObjectName(name);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("QPushButton{border:0px;}"));
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

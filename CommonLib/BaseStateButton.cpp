// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/BaseStateButton.h"

#include "CommonLib/PaletteLook_p.h"

#include <QChildEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

BaseStateButton::BaseStateButton(int id, const QString& name, QWidget* parent)
    : BaseButton(id, name, parent)
{
    // Four values for rgb() are one too many, which Qt remarks on and takes as meant. The text is
    // fixed.
    setStyleSheet(QLatin1String(PaletteLook::kStateButtonSheet));
}

void BaseStateButton::AddButton(int id, const QString& name)
{
    AddButton(new BaseButton(id, name, this));
}

void BaseStateButton::AddButton(BaseButton* button)
{
    if (!button || button == this || m_buttons.contains(button))
        return;
    if (button->parentWidget() != this)
        button->setParent(this);
    connect(button, &BaseButton::Clicked, this, &BaseStateButton::Advance, Qt::UniqueConnection);
    m_buttons.append(button);
    updateGeometry();
    LayOut();
}

BaseButton* BaseStateButton::GetButton(int id) const
{
    for (BaseButton* button : m_buttons) {
        if (button->GetId() == id)
            return button;
    }
    return nullptr;
}

int BaseStateButton::CurrentButtonId() const
{
    if (m_buttons.isEmpty())
        return 0;
    return m_buttons.at(qBound(0, m_currentIndex, m_buttons.size() - 1))->GetId();
}

void BaseStateButton::SetCurrentButtonId(int id)
{
    m_currentIndex = 0;
    while (m_currentIndex < m_buttons.size() && m_buttons.at(m_currentIndex)->GetId() != id)
        ++m_currentIndex;
    LayOut();
}

void BaseStateButton::ClickCurrentButton()
{
    if (m_currentIndex >= m_buttons.size())
        return;
    BaseButton* button = m_buttons.at(m_currentIndex);
    Q_EMIT button->Clicked(button->GetId(), button->mapToGlobal(QPoint(0, 0)));
}

void BaseStateButton::Restore()
{
    m_currentIndex = 0;
    LayOut();
}

int BaseStateButton::BaseStateButtonId() const
{
    return GetId();
}

QSize BaseStateButton::sizeHint() const
{
    QSize size;
    for (const BaseButton* button : m_buttons)
        size = size.expandedTo(button->sizeHint());
    return size.isValid() ? size : BaseButton::sizeHint();
}

void BaseStateButton::resizeEvent(QResizeEvent* event)
{
    BaseButton::resizeEvent(event);
    LayOut();
}

void BaseStateButton::paintEvent(QPaintEvent*)
{
    // Without the bevel of a button, which a background alone does not take away.
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

void BaseStateButton::childEvent(QChildEvent* event)
{
    BaseButton::childEvent(event);
    if (!event->removed())
        return;
    for (int i = 0; i < m_buttons.size(); ++i) {
        // Compared only: what is left of a deleted child is no button any more.
        if (static_cast<QObject*>(m_buttons.at(i)) != event->child())
            continue;
        m_buttons.removeAt(i);
        const bool wasLast = m_currentIndex == i && i == m_buttons.size();
        if (m_currentIndex > i || (wasLast && i > 0))
            --m_currentIndex;
        LayOut();
        return;
    }
}

void BaseStateButton::Advance(int clickedId)
{
    // One that has left is still connected.
    if (!m_buttons.contains(static_cast<BaseButton*>(sender())))
        return;
    if (++m_currentIndex >= m_buttons.size())
        m_currentIndex = 0;
    LayOut();
    Q_EMIT Clicked(clickedId, mapToGlobal(QPoint(0, 0)));
}

void BaseStateButton::LayOut()
{
    BaseButton* current =
        m_currentIndex < m_buttons.size() ? m_buttons.at(m_currentIndex) : nullptr;
    // The keyboard stays on the state button while its states change below it.
    const bool focused = hasFocus();
    for (BaseButton* button : qAsConst(m_buttons))
        button->setGeometry(rect());
    if (current)
        current->setVisible(true);
    setFocusProxy(current);
    if (focused && current)
        current->setFocus();
    for (BaseButton* button : qAsConst(m_buttons)) {
        if (button != current)
            button->setVisible(false);
    }
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/BaseStateButton.h"

#include "CommonLib/PaletteLook_p.h"

#include <QChildEvent>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QStyleOption>

#include <utility>

BaseStateButton::BaseStateButton(QWidget* parent) : BaseStateButton(0, QString(), parent) {}

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
    ChangeStates([this, button] { m_buttons.append(button); });
}

// Changes what states there are and which shows; returns whether the button is still there.
template <typename Change>
bool BaseStateButton::ChangeStates(Change change)
{
    const QList<BaseButton*> states = m_buttons;
    const int current = CurrentButtonId();
    change();
    if (m_buttons != states)
        updateGeometry();
    LayOut();
    const QPointer<BaseStateButton> self(this);
    if (m_buttons != states)
        Q_EMIT StatesChanged();
    if (self && CurrentButtonId() != current)
        Q_EMIT CurrentButtonIdChanged(CurrentButtonId());
    return !self.isNull();
}

QStringList BaseStateButton::StateNames() const
{
    QStringList names;
    for (const BaseButton* button : m_buttons)
        names += button->objectName();
    return names;
}

void BaseStateButton::SetStateNames(const QStringList& names)
{
    if (names == StateNames())
        return;
    ChangeStates([this, &names] {
        for (BaseButton* button : std::exchange(m_buttons, {})) {
            button->hide();
            button->deleteLater(); // one of them may be telling of a click
        }
        m_currentIndex = 0;
        for (const QString& name : names) {
            m_buttons += new BaseButton(m_buttons.size(), name, this);
            connect(m_buttons.last(), &BaseButton::Clicked, this, &BaseStateButton::Advance);
        }
    });
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
    ChangeStates([this, id] {
        m_currentIndex = 0;
        while (m_currentIndex < m_buttons.size() && m_buttons.at(m_currentIndex)->GetId() != id)
            ++m_currentIndex;
    });
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
    ChangeStates([this] { m_currentIndex = 0; });
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
        RemoveState(i);
        return;
    }
}

// Does not look at what is gone, which may be half destroyed.
void BaseStateButton::RemoveState(int index)
{
    const bool wasShown = qMin(m_currentIndex, m_buttons.size() - 1) == index;
    const bool wasLast = m_currentIndex == index && index == m_buttons.size() - 1;
    m_buttons.removeAt(index);
    if (m_currentIndex > index || (wasLast && index > 0))
        --m_currentIndex;
    LayOut();
    const QPointer<BaseStateButton> self(this);
    Q_EMIT StatesChanged();
    if (self && wasShown)
        Q_EMIT CurrentButtonIdChanged(CurrentButtonId());
}

void BaseStateButton::Advance(int clickedId)
{
    // One that has left is still connected.
    if (!m_buttons.contains(static_cast<BaseButton*>(sender())))
        return;
    const bool isThere = ChangeStates([this] {
        if (++m_currentIndex >= m_buttons.size())
            m_currentIndex = 0;
    });
    if (isThere)
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

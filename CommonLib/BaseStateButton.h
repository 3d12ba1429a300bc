// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/BaseButton.h"

#include <QList>
#include <QStringList>

/// Button of several states, such as play and pause: a stack of buttons of which one shows. A click
/// on it shows the next.
///
/// The state button draws no more than the background that a style sheet gives it, transparent at
/// first. Clicked() carries the id of the state that was clicked, not of the one that shows then.
class COMMONLIB_EXPORT BaseStateButton : public BaseButton
{
    Q_OBJECT
    // The states first: forms set properties in this order.
    Q_PROPERTY(QStringList stateNames READ StateNames WRITE SetStateNames NOTIFY StatesChanged)
    Q_PROPERTY(int currentButtonId READ CurrentButtonId WRITE SetCurrentButtonId NOTIFY
                   CurrentButtonIdChanged)

public:
    explicit BaseStateButton(QWidget* parent); ///< with id 0 and no name, for forms
    BaseStateButton(int id, const QString& name, QWidget* parent); ///< as BaseButton

    /// Adds a state. The first one added shows first.
    void AddButton(int id, const QString& name);
    /// The same with \a button, which becomes a child. One that is deleted or gets another parent
    /// is no state any more. Nothing happens with null or a button that is a state already.
    void AddButton(BaseButton* button);
    /// The first state with \a id, or null.
    BaseButton* GetButton(int id) const;
    /// Id of the state that shows; of the last one when none shows, 0 when there is none.
    int CurrentButtonId() const;
    /// Shows the first state with \a id. With an id that no state has, none shows.
    void SetCurrentButtonId(int id);
    /// As a click on the state that shows; nothing when none does.
    void ClickCurrentButton();
    /// Shows the first state.
    void Restore();
    /// The state button's own id.
    int BaseStateButtonId() const;
    /// The object names of the states, in their order.
    QStringList StateNames() const;
    /// Deletes the states and makes others, with ids from 0 on. Nothing happens when they have
    /// these names already.
    void SetStateNames(const QStringList& names);

    /// The largest hint of the states.
    QSize sizeHint() const override;

Q_SIGNALS:
    void StatesChanged(); ///< a state has come or gone
    /// CurrentButtonId() gives another one, after a click, a call or the loss of a state. Comes
    /// before the Clicked() of the same click.
    void CurrentButtonIdChanged(int id);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void childEvent(QChildEvent* event) override;

private:
    void Advance(int clickedId);
    void LayOut();
    void RemoveState(int index);
    template <typename Change>
    bool ChangeStates(Change change);

    QList<BaseButton*> m_buttons;
    int m_currentIndex = 0;
};

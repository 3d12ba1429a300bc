// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/AnyQt.h"
#include "CommonLib/CommonLibExport.h"

#include <QPoint>
#include <QPushButton>
#include <QString>

/// Push button with a number, so that one slot serves many buttons.
///
/// Style sheets reach it by its object name, the name given. It has no border: a sheet of its own
/// says so, which wins over the border in a sheet of the application. Where there is no other
/// sheet, it shows in the palette's colours what state it is in. The parent widget given owns it
/// and is what parentWidget() gives.
///
/// Assistive tools read its accessible name, else its text, its tool tip or its object name.
class COMMONLIB_EXPORT BaseButton : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(int id READ GetId WRITE SetId NOTIFY IdChanged)

public:
    explicit BaseButton(QWidget* parent); ///< with id 0 and no name, for forms
    /// With id 0.
    BaseButton(const QString& name, QWidget* parent);
    BaseButton(int id, const QString& name, QWidget* parent);

    int GetId() const; ///< as it was made with, or set as the property \a id
    /// As setEnabled().
    void SetEnabled(bool enabled);

Q_SIGNALS:
    /// A click, and a press. \a p is the button's upper left corner in global coordinates.
    void Clicked(int id, QPoint p);
    void Pressed(int id, QPoint p);
    /// The mouse came or went. \a type is the id. A slot may delete the button with deleteLater()
    /// only: Qt still uses it.
    void sigEnter(int type);
    void sigLeave(int type);
    void IdChanged(int id); ///< by the property

protected:
    void enterEvent(AnyQt::EnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void SetId(int id);

    int m_id;
};

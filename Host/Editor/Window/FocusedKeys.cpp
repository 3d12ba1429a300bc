// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Window/FocusedKeys.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

template <typename... Classes>
bool IsOneOf(QObject* object)
{
    return (... || (qobject_cast<Classes*>(object) != nullptr));
}

bool Lives(QObject* widget, int key)
{
    if (key == Qt::Key_Space)
        return IsOneOf<QAbstractButton, QAbstractItemView, QComboBox>(widget);
    if (key == Qt::Key_Home || key == Qt::Key_End)
        return IsOneOf<QAbstractItemView, QAbstractSlider, QAbstractSpinBox, QComboBox>(widget);
    return false;
}

/// A field of one line in which nothing is typed that is not taken yet.
bool IsTaken(QObject* widget)
{
    auto* line = qobject_cast<QLineEdit*>(widget);
    if (qobject_cast<QAbstractSpinBox*>(widget))
        line = widget->findChild<QLineEdit*>();
    return line && !line->isModified();
}

} // namespace

bool FocusedKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QObject::eventFilter(watched, event);
    const auto* press = static_cast<QKeyEvent*>(event);
    const bool isStep = press->matches(QKeySequence::Undo) || press->matches(QKeySequence::Redo);
    if (isStep && IsTaken(watched)) {
        event->ignore();
        return true; // or the field would undo its own typing
    }
    if (Lives(watched, press->key()))
        event->accept();
    return QObject::eventFilter(watched, event);
}

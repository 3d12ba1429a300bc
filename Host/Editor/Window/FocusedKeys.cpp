// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Window/FocusedKeys.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>

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

} // namespace

bool FocusedKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        Lives(watched, static_cast<QKeyEvent*>(event)->key()))
        event->accept();
    return QObject::eventFilter(watched, event);
}

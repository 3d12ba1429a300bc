// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtTest>
#include <QtWidgets>

/// Ways of a release of the mouse past the widget that was pressed.
namespace LostRelease {

/// A dialog opens, which keeps it from the window, and is closed again.
inline void BehindDialog()
{
    QDialog dialog;
    dialog.setModal(true);
    dialog.show();
    QCoreApplication::processEvents();
}

/// A menu opens, as by a key, and gets it.
inline void ToMenu()
{
    QMenu menu;
    menu.addAction("Action");
    menu.popup({});
    QTest::mouseRelease(menu.windowHandle(), Qt::LeftButton);
    QCoreApplication::processEvents();
}

} // namespace LostRelease

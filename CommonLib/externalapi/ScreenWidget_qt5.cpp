// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/externalapi/ScreenWidget_p.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QScreen>

QWidget* ScreenWidget(QScreen* screen)
{
    const int number = QGuiApplication::screens().indexOf(screen);
    if (number < 0 || !qobject_cast<QApplication*>(QCoreApplication::instance()))
        return nullptr;
    // Qt offers no other widget for a screen.
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return QApplication::desktop()->screen(number);
    QT_WARNING_POP
}

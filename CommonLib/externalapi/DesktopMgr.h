// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QObject>
#include <QPoint>

class QWidget;

/// Widgets that stand for the screens, to place windows by. They are Qt's: never delete, show or
/// keep one across a change of the screens.
class COMMONLIB_EXPORT DesktopMgr : public QObject
{
    Q_OBJECT

public:
    /// The only instance, created on the first call and destroyed with the application object.
    static DesktopMgr* GetInstance();

    /// The primary screen; null without an application object or screens.
    QWidget* MainScreen() const;
    /// The screen that holds \a point (global); the nearest one when none does.
    QWidget* ScreenWithPoint(QPoint point) const;

private:
    using QObject::QObject;
};

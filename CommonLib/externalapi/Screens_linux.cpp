// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/externalapi/PixelRatio_p.h"
#include "CommonLib/externalapi/Screens_p.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

QVector<ScreenResolution::ScreenInfo> ListScreens()
{
    QVector<ScreenResolution::ScreenInfo> infos;
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        ScreenResolution::ScreenInfo info;
        const QRect logical = screen->geometry();
        // A compositor may list an output that it has not placed yet.
        if (logical.isEmpty())
            continue;
        info.handle = screen;
        info.primary = screen == QGuiApplication::primaryScreen();
        const double scale = screen->devicePixelRatio();
        info.physical = QRect(0, 0, PhysicalSide(logical.width(), scale),
                              PhysicalSide(logical.height(), scale));
        info.logical = logical;
        // Not the quotient of the two sizes: both are rounded, and 1.25 would come out as a bit
        // more.
        info.scale = static_cast<float>(scale);
        info.id = infos.size();
        infos.append(info);
    }
    return infos;
}

HMONITOR NearestMonitor(const QWidget& widget)
{
    const QWindow* window = widget.window()->windowHandle();
    return window ? window->screen() : nullptr;
}

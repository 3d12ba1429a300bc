// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/SystemInfo_p.h"

#include <QGuiApplication>
#include <QPalette>

bool IsWindows8OrLater()
{
    return true;
}

std::optional<QRgb> DesktopAccentColor()
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return std::nullopt;
    return QGuiApplication::palette().color(QPalette::Highlight).rgba();
}

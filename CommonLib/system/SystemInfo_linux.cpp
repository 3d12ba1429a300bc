// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/SystemInfo_p.h"

#include <QGuiApplication>
#include <QPalette>
#include <QStorageInfo>

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

std::optional<quint64> FreeBytes(const QString& path)
{
    const QStorageInfo volume(path);
    if (!volume.isValid() || !volume.isReady() || volume.bytesFree() < 0)
        return std::nullopt;
    return static_cast<quint64>(volume.bytesFree());
}

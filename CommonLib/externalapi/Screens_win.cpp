// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/externalapi/Screens_p.h"

#include <QOperatingSystemVersion>
#include <QWidget>

#include <windows.h>

#include <cmath>

namespace {

constexpr float kUnscaledDpi = 96.0F;

// Before 8.1 a process sees the desktop unscaled, and one scale holds for all monitors.
bool HasScalePerMonitor()
{
    return QOperatingSystemVersion::current() >= QOperatingSystemVersion::Windows8_1;
}

float SystemScale()
{
    const HDC screen = GetDC(nullptr);
    if (!screen)
        return 1;
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi > 0 ? static_cast<float>(dpi) / kUnscaledDpi : 1;
}

void SetScale(ScreenResolution::ScreenInfo& info)
{
    if (HasScalePerMonitor()) {
        info.scale =
            static_cast<float>(info.physical.width()) / static_cast<float>(info.logical.width());
        return;
    }
    info.scale = SystemScale();
    info.logical.setWidth(static_cast<int>(std::lround(info.physical.width() / info.scale)));
    info.logical.setHeight(static_cast<int>(std::lround(info.physical.height() / info.scale)));
}

BOOL CALLBACK AddMonitor(HMONITOR monitor, HDC /*context*/, LPRECT /*area*/, LPARAM list)
{
    auto& infos = *reinterpret_cast<QVector<ScreenResolution::ScreenInfo>*>(list);
    MONITORINFOEXW about = {};
    about.cbSize = sizeof(about);
    DEVMODEW mode = {};
    mode.dmSize = sizeof(mode);
    if (!GetMonitorInfoW(monitor, &about) ||
        !EnumDisplaySettingsW(about.szDevice, ENUM_CURRENT_SETTINGS, &mode))
        return TRUE;
    const RECT& area = about.rcMonitor;
    ScreenResolution::ScreenInfo info;
    info.handle = monitor;
    info.primary = (about.dwFlags & MONITORINFOF_PRIMARY) != 0;
    info.physical =
        QRect(0, 0, static_cast<int>(mode.dmPelsWidth), static_cast<int>(mode.dmPelsHeight));
    info.logical = QRect(area.left, area.top, area.right - area.left, area.bottom - area.top);
    if (info.logical.isEmpty())
        return TRUE;
    SetScale(info);
    info.id = infos.size();
    infos.append(info);
    return TRUE;
}

} // namespace

QVector<ScreenResolution::ScreenInfo> ListScreens()
{
    QVector<ScreenResolution::ScreenInfo> infos;
    EnumDisplayMonitors(nullptr, nullptr, AddMonitor, reinterpret_cast<LPARAM>(&infos));
    return infos;
}

HMONITOR NearestMonitor(const QWidget& widget)
{
    const WId window = widget.window()->internalWinId();
    return window ? MonitorFromWindow(reinterpret_cast<HWND>(window), MONITOR_DEFAULTTONEAREST)
                  : nullptr;
}

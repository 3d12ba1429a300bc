// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"

#include "CommonLib/system/SystemInfo_p.h"

namespace {

QRgb s_systemBorderColor = 0;

} // namespace

bool gIsAboveWin7Sys()
{
    static const bool isAbove = IsWindows8OrLater();
    return isAbove;
}

int gGetSystemBorder()
{
    return gIsAboveWin7Sys() ? 1 : 0;
}

void gInitBorderColor()
{
    s_systemBorderColor = DesktopAccentColor().value_or(s_systemBorderColor);
}

QColor gGetBorderColor(bool useSystem)
{
    return useSystem ? QColor(s_systemBorderColor) : QColor(42, 52, 63, 255);
}

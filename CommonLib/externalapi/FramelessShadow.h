// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "CommonLib/CommonLibExport.h"

/// Asks the system for a shadow around the frameless native window \a window. \a unused is part of
/// the signature only.
///
/// On X11, where \a window is the number of the window, sets the hints of the compositing and
/// window managers that know one. Does nothing for null, on Wayland and on a screen without such a
/// manager.
COMMONLIB_EXPORT void gOpenFramelessWidgetShadow(HWND window, int unused);

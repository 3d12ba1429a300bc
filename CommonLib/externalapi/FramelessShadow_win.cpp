// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/externalapi/FramelessShadow.h"

#include <windows.h>

#include <dwmapi.h>

namespace {

// WS_POPUP | WS_CAPTION | WS_CLIPCHILDREN
constexpr LONG_PTR kShadowStyles = 0x82C00000;
// SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE. Without SWP_NOZORDER and SWP_NOACTIVATE the window
// also comes to the front. Kept: see docs/compatibility.md.
constexpr UINT kFrameChange = 0x23;

} // namespace

void gOpenFramelessWidgetShadow(HWND window, int /*unused*/)
{
    if (!window)
        return;
    SetWindowLongPtrW(window, GWL_STYLE, GetWindowLongPtrW(window, GWL_STYLE) | kShadowStyles);
    const MARGINS margins = {0, 0, 1, 0};
    DwmExtendFrameIntoClientArea(window, &margins);
    SetWindowPos(window, nullptr, 0, 0, 0, 0, kFrameChange);
}

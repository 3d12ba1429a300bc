// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <functional>

class QWidget;

/// Calls \a call once, when \a window, which is being shown, has been drawn on the screen; after a
/// second in any case, as it may come up hidden. Not when the window goes before.
void WhenShown(QWidget& window, std::function<void()> call);

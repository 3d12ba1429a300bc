// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <functional>

class QWidget;

/// Calls \a setTexts now, and again each time the language reaches \a widget, for as long as the
/// widget lives. What it captures must live as long.
void KeepTranslated(QWidget* widget, std::function<void()> setTexts);

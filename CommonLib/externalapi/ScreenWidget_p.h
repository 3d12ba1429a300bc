// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

class QScreen;
class QWidget;

/// The widget that stands for \a screen as long as there is that screen; never shown, and nobody
/// deletes it. Null for null, and without a QApplication.
QWidget* ScreenWidget(QScreen* screen);

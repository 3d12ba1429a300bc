// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/externalapi/ScreenResolution.h"

/// The monitors as the system lists them, numbered in its order.
QVector<ScreenResolution::ScreenInfo> ListScreens();

/// The monitor nearest to a native window of \a widget; null when it has none.
HMONITOR NearestMonitor(const QWidget& widget);

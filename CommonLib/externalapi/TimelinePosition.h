// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QPoint>

struct INLETimeline;

/// Centre, in global coordinates, of the host's view of \a timeline: of the widget that holds a
/// visible TimelineRuler in the registered main window, of the main window when there is none, of
/// the primary screen when no window is registered.
///
/// (0, 0) for null.
COMMONLIB_EXPORT QPoint gGetTimelineCenterGlobalPos(INLETimeline* timeline);

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPolygonF>

/// Shape of a ruler's play head. Default: a pentagon that points down.
struct RulerPointerShape
{
    /// Outline in pixels; x = 0 lies on the current frame, y = 0 is the top.
    QPolygonF polygon{{{-8, 0}, {8, 0}, {8, 9}, {0, 18}, {-8, 9}}};
    /// Extent of the outline in pixels.
    int height = 18;
    int width = 16;
    /// Pen width of the line below the outline, drawn while the cursor is enabled.
    int cursorLineWidth = 2;
    /// Whether the timecode of the current frame stands beside the outline.
    bool drawTimeText = false;
};

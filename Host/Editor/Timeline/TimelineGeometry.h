// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Timeline/Gesture.h"
#include "Host/Editor/Timeline/LevelLayout.h"
#include "Host/Editor/Timeline/TimelineScale.h"

struct ClipRow;
class TimelineModel;

/// Where clips stand in a timeline view: below a strip of markers, levels that scroll.
struct TimelineGeometry
{
    static constexpr int kStripHeight = 16;

    const LevelLayout& levels;
    TimelineScale scale;
    int width = 0;    ///< of the view
    int scrolled = 0; ///< pixels of the levels that are above the view

    int LevelTop(int level) const { return kStripHeight + levels.Top(level) - scrolled; }
    int LevelAt(int y) const { return levels.LevelAt(y - kStripHeight + scrolled); }
    GesturePoint PointAt(const QPoint& at) const;
    /// Left edge of a frame in whole pixels; far beyond a view not exact.
    int Left(double frame) const;
    /// Of a clip, at least a pixel wide; far beyond a view it is cut.
    QRect Box(const ClipRow& row) const;
};

/// What is below the pointer.
struct ClipHit
{
    enum class Part
    {
        Body,
        Begin,
        End
    };

    const ClipRow* row = nullptr; ///< null for no clip
    Part part = Part::Body;

    static ClipHit Find(const TimelineModel& model, const TimelineGeometry& geometry,
                        const QPoint& at);
};

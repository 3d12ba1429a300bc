// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Timeline/ClipPainter.h"
#include "Host/Editor/Timeline/TimelineGeometry.h"

#include <QSet>

#include <optional>

class LevelIndex;
class TimelineModel;

/// Paints the part of a timeline that is to be painted: levels with their clips, the strip above
/// them, and what lies over them. What it costs depends on the pixels and not on the number of
/// clips: those that no pixel can tell apart are found and painted as one.
class TimelinePainter
{
public:
    /// What lies over the clips, in frames; in the view for the band.
    struct Overlay
    {
        int playHead = 0;
        std::optional<int> snapLine;
        QRect band;
        std::optional<QPair<int, int>> drop; ///< frame and level
        QVector<QPair<int, int>> cached;     ///< begin and end of what the preview cache has
        std::optional<int> in;               ///< first frame of the range, where it is set
        std::optional<int> end;              ///< behind its last one, where that is set
    };

    TimelinePainter(const TimelineModel& model, ClipPainter& clips);

    /// Clips that show as selected.
    void SetSelected(QSet<INLETimeline*> clips) { m_selected = std::move(clips); }
    void Paint(QPainter& painter, const QRect& area, const TimelineGeometry& geometry,
               const Overlay& overlay) const;

private:
    struct Pass;

    void PaintLevel(const Pass& pass) const;
    void PaintTransitions(const Pass& pass) const;
    static void PaintPoints(QPainter& painter, const QRect& area, const TimelineGeometry& geometry,
                            const Overlay& overlay);
    void PaintMarkers(QPainter& painter, const QRect& area, const TimelineGeometry& geometry) const;
    void PaintStrip(QPainter& painter, const QRect& area, const TimelineGeometry& geometry,
                    const Overlay& overlay) const;
    static void PaintOverlay(QPainter& painter, const QRect& area, const TimelineGeometry& geometry,
                             const Overlay& overlay);
    ClipPainter::State StateOf(const ClipRow& row, bool isLocked) const;

    const TimelineModel& m_model;
    ClipPainter& m_clips;
    QSet<INLETimeline*> m_selected;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPoint>

/// What the mouse drags on a ruler, where that began, and where it leads. Knows no widget.
class RulerDragAdjustManager
{
public:
    enum class Drag
    {
        None,
        PlayHead,
        /// Sideways scrolls, down zooms in, up zooms out; the frame that was grabbed stays under
        /// the mouse.
        ZoomAndScroll
    };

    Drag Active() const { return m_drag; }

    void BeginPlayHead(const QPoint& at);
    /// The next Grab() tells where the drag begins.
    void BeginZoomAndScroll(float zoom);
    bool NeedsGrab() const { return m_drag == Drag::ZoomAndScroll && !m_grabbed; }
    void Grab(const QPoint& at, double frame);
    /// Takes note of a move; true as soon as the mouse has left the place where it began.
    bool Move(const QPoint& to);
    /// Whether \a at is too far from where the drag began for a click.
    bool IsBeyondClick(const QPoint& at) const;
    void End() { m_drag = Drag::None; }

    /// The zoom that a zoom-and-scroll drag to \a at leads to, not yet limited.
    float ZoomAt(const QPoint& at) const;
    /// The frame that was grabbed.
    double GrabbedFrame() const { return m_frame; }

private:
    Drag m_drag = Drag::None;
    bool m_moved = false;
    bool m_grabbed = false;
    QPoint m_start;
    double m_frame = 0;
    float m_zoom = 0;
};

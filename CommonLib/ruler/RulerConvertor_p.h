// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/RulerPointerShape.h"

#include <QColor>
#include <QList>
#include <QRect>

#include <tuple>
#include <vector>

/// One segment of the zoom scale, with all that is needed to draw the ruler at a zoom within it.
struct RulerSegment
{
    QRect viewRect;             ///< drawing area without the bottom line
    int bigTickPixels = 150;    ///< spacing of large ticks at zoomMin
    int framesPerSmallTick = 1; ///< at least 1
    float zoomInSegment = 0;    ///< zoom above zoomMin; never below 0, may exceed the segment
    int smallTicksPerBigTick = 5;
    float fps = 25;
    int currentFrame = 0;
    int offsetFrames = 0; ///< the frame at the left edge
    int labelEvery = 1;   ///< large ticks from one label to the next
    float zoomMax = 0;
    float zoomMin = 0;
    int offsetPosition = 0; ///< further shift to the left, in pixels
    QPolygonF pointer{{{-4, 0}, {4, 0}, {4, 16}, {-4, 16}}};
    int pointerHeight = 16;
    int pointerWidth = 8;
    QColor pointerColor = Qt::black;
    QColor disabledPointerColor = QColor(0x63, 0x63, 0x63);
    bool drawCursorLine = false;
    int cursorLineWidth = 2;
    bool drawTimeText = false;
    QColor frameTextColor = QColor(0x80, 0x80, 0x80);
    QColor scaleColor = QColor(0x80, 0x80, 0x80);
    QColor drawColor = Qt::black;
    bool drawBottomLine = true;
    QPolygonF translatedPointer; ///< the pointer where it was drawn last
    bool enabled = true;

    /// Spacing of large ticks in pixels. Positive at every zoom: where the zoom leaves no room, it
    /// stays at a thousandth of a pixel.
    float Spacing() const;
    /// Conversions in double precision. Frames and pixels count from the ruler's left edge, except
    /// for durations.
    double FramesToPosition(double frames) const;
    double PositionToFrames(double x) const;
    double FramesToPixels(double frames) const;
    double PixelsToFrames(double pixels) const;
    /// The frame at the left edge, with its fraction.
    double LeftEdge() const { return PositionToFrames(0); }
};

/// The piecewise zoom scale: an ordered list of segments, one of them current.
///
/// Without segments a plain one that is in no list keeps the state.
class RulerConvertor
{
public:
    /// Zoom span, pixels of a large tick at the span's start, frames per small tick.
    using Entry = std::tuple<float, int, int>;

    /// The table that a ruler starts with, for zooms of 0 to kDefaultMaxZoom.
    static QList<Entry> DefaultTable();
    static constexpr float kDefaultMaxZoom = 780;

    /// Replaces the segments, clears MaxZoom and goes to the last zoom. Look and state stay.
    /// A span that is not a number or negative counts as 0, fewer than one frame as one.
    void Rebuild(const QList<Entry>& table);

    bool IsEmpty() const { return m_segments.empty(); }
    RulerSegment& Current() { return IsEmpty() ? m_none : m_segments[m_current]; }
    const RulerSegment& Current() const { return IsEmpty() ? m_none : m_segments[m_current]; }
    /// Changes every segment.
    template <typename Change>
    void ForEach(Change change)
    {
        change(m_none);
        for (RulerSegment& segment : m_segments)
            change(segment);
    }

    float Zoom() const { return Current().zoomMin + Current().zoomInSegment; }
    void SetZoom(float zoom);
    /// Largest zoom that a user can reach; 0 when none is set.
    float MaxZoom() const { return m_maxZoom; }
    void SetMaxZoom(float zoom) { m_maxZoom = zoom; }
    /// \a zoom within what a user can reach.
    float BoundedZoom(float zoom) const;
    /// Spaces the labels of the current segment by the application's font.
    void UpdateLabelInterval();

    float FindZoom(int frames, int width) const;
    /// The lowest zoom of the table in use at which \a frames (above 0) show in \a width pixels.
    float ZoomToShow(int frames, int width) const;
    /// May change the frames per small tick of a segment so that the whole range fits.
    int ZoomFromWidthAndTotaleFrames(int width, int frames);

private:
    void SelectSegment(float zoom);

    std::vector<RulerSegment> m_segments;
    std::size_t m_current = 0;
    RulerSegment m_none;
    float m_maxZoom = 0;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"
#include "CommonLib/RulerPointerShape.h"

#include <QColor>
#include <QList>
#include <QWidget>

#include <tuple>

class TimelineViewRuler;

/// Time ruler above a timeline view: ticks, timecode labels, play head.
///
/// Zoom runs from 0 to MaxZoom() on a scale cut into segments; a higher value shows more time. Each
/// segment has its own number of frames per tick, and within it every unit of zoom takes a pixel
/// from the spacing of large ticks. docs/ruler.md tabulates the scale and says what mouse, wheel
/// and keys do.
///
/// Signals report what the user does. A call never emits one, except that it may end a drag which
/// is under way; only those of the properties, which are named last, tell every change. A ruler
/// that is disabled or hidden in a drag ends it in the next turn of the event loop. A slot of any
/// of the signals may delete the ruler, at once or later. Positions are pixels from the left edge,
/// frames whole frames at FPS().
///
/// While the keyboard has brought the focus, a frame in the palette's highlight colour shows.
/// Assistive tools see a slider over frames with its value as timecode, named by the ruler's
/// accessible name.
///
/// Colours are properties for style sheets, which reach the ruler by the object name
/// "CommonLib_TimelineRuler" until the host gives another, and the area it draws on by
/// "TimelineView_TimelineViewRuler".
class COMMONLIB_EXPORT TimelineRuler : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(
        QColor PointerBGColor READ GetPointerBGColor WRITE SetPointerBGColor NOTIFY SettingsChanged)
    Q_PROPERTY(QColor PointerBGDisabledColor READ GetPointerBGDisabledColor WRITE
                   SetPointerBGDisabledColor NOTIFY SettingsChanged)
    Q_PROPERTY(
        QColor FrameTextColor READ GetFrameTextColor WRITE SetFrameTextColor NOTIFY SettingsChanged)
    Q_PROPERTY(QColor ScaleColor READ GetScaleColor WRITE SetScaleColor NOTIFY SettingsChanged)
    // The range first: forms set properties in this order.
    Q_PROPERTY(float fps READ FPS WRITE SetFPS NOTIFY SettingsChanged)
    Q_PROPERTY(int totalFrames READ TotaleFrames WRITE SetTotalFrames NOTIFY RangeChanged)
    Q_PROPERTY(int rangeIn READ RangeIn WRITE SetRangeIn NOTIFY RangeChanged)
    Q_PROPERTY(int rangeOut READ RangeOut WRITE SetRangeOut NOTIFY RangeChanged)
    Q_PROPERTY(bool rangeLimited READ IsRangeLimited WRITE SetIsLimitFrameRange NOTIFY RangeChanged)
    Q_PROPERTY(float maxZoom READ MaxZoom WRITE SetMaxZoom NOTIFY SettingsChanged)
    Q_PROPERTY(float zoom READ Zoom WRITE SetZoom NOTIFY ZoomShown)
    Q_PROPERTY(int offsetFrames READ OffsetFrames WRITE SetOffsetFrames NOTIFY OffsetShown)
    Q_PROPERTY(int offsetPosition READ OffsetPosition WRITE SetOffsetPosition NOTIFY OffsetShown)
    Q_PROPERTY(int currentFrames READ CurrentFrames WRITE SetCurrentFrames NOTIFY CurrentFramesShown
                   USER true)
    Q_PROPERTY(bool framesRound READ GetFramesRound WRITE SetFramesRound NOTIFY SettingsChanged)
    Q_PROPERTY(bool cursorEnabled READ IsCursorEnabled WRITE SetCursorEnable NOTIFY SettingsChanged)
    Q_PROPERTY(bool bottomLine READ HasBottomLine WRITE SetDrawBottonLine NOTIFY SettingsChanged)
    Q_PROPERTY(bool dragable READ IsDragable WRITE SetDragable NOTIFY SettingsChanged)
    Q_PROPERTY(
        bool moveFrameEnabled READ MovesFrame WRITE SetMoveFrameEnabled NOTIFY SettingsChanged)
    Q_PROPERTY(bool pressEmitsFrames READ PressEmitsFrames WRITE
                   SetMousePressEmitFramesChangedEnabled NOTIFY SettingsChanged)
    Q_PROPERTY(bool releaseEmitsFrames READ ReleaseEmitsFrames WRITE
                   SetMouseReleaseEmitFramesChangedEnabled NOTIFY SettingsChanged)
    Q_PROPERTY(bool singleClickEmits READ SingleClickEmits WRITE
                   SetSingalClickStartEndFrameChangeEnabled NOTIFY SettingsChanged)

public:
    explicit TimelineRuler(QWidget* parent = nullptr); ///< with the presets
    /// Emits nothing, not even for a drag that is under way.
    ~TimelineRuler() override;

    /// Names the ruler and applies the style sheet anew.
    void setObjectName(const QString& name);

    /// Pixel position of \a frames; may lie outside the widget.
    float Frames2PositionF(int frames) const;
    /// Frame at the pixel position \a x, with its fraction.
    float Position2FramesF(int x) const;
    /// Pixels that \a frames take.
    float Frames2DurationF(int frames) const;
    /// Frames, with a fraction, that take \a pixels.
    float Duration2FramesF(int pixels) const;

    /// Goes to the segment of \a zoom. A zoom that no segment serves stays in the current one:
    /// above it the ticks draw closer (at most until they are a thousandth of a pixel apart), below
    /// it, or when \a zoom is not a number, they keep their widest spacing.
    void SetZoom(float zoom);
    float Zoom() const;
    /// Bounds the zoom that a user reaches, but not SetZoom(). With 0 or less, the end of the last
    /// segment does.
    void SetMaxZoom(float zoom);
    float MaxZoom() const;
    /// The zoom at which \a frames fill \a width pixels, for the scale that a ruler starts with.
    /// The current zoom when one of them is negative.
    float FindZoom(int frames, int width) const;
    /// The zoom at which \a frames fill \a width pixels, for the current scale; 0 when there is
    /// none. May change the frames per tick of a segment so that the whole range fits without a
    /// gap.
    int ZoomFromWidthAndTotaleFramesF(int width, int frames);
    /// Begins a drag that zooms (up and down) and scrolls (sideways), as the middle button does.
    /// The frame below the mouse's next move stays under it. Ended by a release of the mouse or by
    /// doMouseButtonRelease().
    void StartZoomAndScrollRuler();
    /// Pixels from frame 0 to the left edge at this zoom: the value of a host's scroll bar.
    int GetZoomAndScrollRulerOffsetPosition() const;
    /// Replaces the scale. Entries: zoom span, pixels of a large tick at the span's start, frames
    /// per small tick. Goes to the last zoom and clears MaxZoom(), which the caller sets
    /// afterwards. Look, rate, current frame and offset stay. Without entries nothing is drawn.
    void RebuildRulerConvertor(const QList<std::tuple<float, int, int>>& table);

    /// Moves the play head; into the range while that is limited.
    void SetCurrentFrames(int frames);
    int CurrentFrames() const;
    /// The frame at the left edge.
    void SetOffsetFrames(int frames);
    int OffsetFrames() const;
    /// Pixels by which the ruler is shifted to the left beyond its offset in frames.
    void SetOffsetPosition(int pixels);
    /// Frames of the timeline; the user's play head stays below. 0, the default: no end.
    void SetTotalFrames(int frames);
    int TotaleFrames() const;
    /// Frames that the play head can reach: those of the range while that is limited, else all.
    int AvailableTotaleFrames() const;
    /// First and last frame of the range, both inclusive. When \a out is smaller than \a in, \a in
    /// is the only frame left.
    void SetFrameRange(int in, int out);
    /// Whether the play head stays within the range; moves it there at once. Off by default.
    void SetIsLimitFrameRange(bool limited);
    /// Frames per second, for the labels. 25 by default; a rate of 0 gives labels of zeros.
    void SetFPS(float fps);
    float FPS() const;
    /// Whether the mouse picks the nearest frame instead of the one that it is within. Off by
    /// default.
    void SetFramesRound(bool round);
    bool GetFramesRound() const;

    void SetPointerShape(const RulerPointerShape& shape); ///< how the play head looks
    /// Colour of the play head of an enabled ruler, and of a disabled one.
    void SetPointerBGColor(const QColor& color);
    QColor GetPointerBGColor() const;
    void SetPointerBGDisabledColor(const QColor& color);
    QColor GetPointerBGDisabledColor() const;
    void SetFrameTextColor(const QColor& color);
    QColor GetFrameTextColor() const;
    /// Colour of the ticks and the bottom line.
    void SetScaleColor(const QColor& color);
    QColor GetScaleColor() const;
    /// A colour that the host keeps with the ruler; nothing is drawn in it.
    void SetDrawColor(QColor color);
    /// Whether a line closes the ruler at the bottom. On by default.
    void SetDrawBottonLine(bool draw);
    /// Whether a line leads from the play head to the bottom; the play head then stands at the top.
    /// Off by default.
    void SetCursorEnable(bool enabled);
    /// Height of the ruler in pixels.
    int Height() const;

    /// Whether the mouse drags anything. On by default.
    void SetDragable(bool enabled);
    /// Whether mouse and keys move the play head. On by default.
    void SetMoveFrameEnabled(bool enabled);
    /// Whether a press, and whether a release, emits FramesChanged(). Both on by default.
    void SetMousePressEmitFramesChangedEnabled(bool enabled);
    void SetMouseReleaseEmitFramesChangedEnabled(bool enabled);
    /// Whether the two signals of a single click are emitted. Off by default.
    void SetSingalClickStartEndFrameChangeEnabled(bool enabled);
    /// Installs \a filter, which stays the caller's and may be null, on the widget that draws, and
    /// gives that widget, which stays the ruler's.
    QWidget* SetEventFilter(QWidget* filter);
    /// Ends a drag as a release of the mouse does, for a host that takes the release for itself.
    void doMouseButtonRelease();

Q_SIGNALS:
    /// Around a click, when enabled: on the press, and on the release or as soon as it becomes a
    /// drag.
    void sigSingleClickStartFramesChanged();
    void sigSingleClickEndFrameChanged();
    /// Around all changes of the current frame by one press, drag or key.
    void StartFramesChanged();
    void EndFramesChanged();
    void FramesChanged(int frames);
    /// Around all changes of the zoom by one drag, wheel step or key.
    void StartZoomChanged();
    void EndZoomChanged();
    void ZoomChanged(float zoom);
    /// The user scrolled. GetZoomAndScrollRulerOffsetPosition() tells where to, to the pixel.
    void OffsetFramesChanged(int frames);
    /// A press of the right button, in global coordinates. Told in the next turn of the event loop.
    void sigRightClicked(QPoint pt);
    /// Whenever the play head, the zoom or the left edge has changed, by the user or by a call.
    /// They come before the signals above of the same change.
    void CurrentFramesShown(int frames);
    void ZoomShown(float zoom);
    void OffsetShown();
    /// The number of frames, or the range and whether it limits the play head.
    void RangeChanged();
    void SettingsChanged(); ///< another property has changed

private:
    template <typename Value>
    void ChangeSetting(Value& setting, const Value& to);
    template <typename Value>
    void ChangeRange(Value& bound, const Value& to);
    int OffsetPosition() const;
    int RangeIn() const;
    int RangeOut() const;
    void SetRangeIn(int in);
    void SetRangeOut(int out);
    bool IsRangeLimited() const;
    bool IsCursorEnabled() const;
    bool HasBottomLine() const;
    bool IsDragable() const;
    bool MovesFrame() const;
    bool PressEmitsFrames() const;
    bool ReleaseEmitsFrames() const;
    bool SingleClickEmits() const;

    TimelineViewRuler* m_view;
};

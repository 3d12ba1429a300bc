// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QPoint>
#include <QPointF>
#include <QSize>
#include <QString>
#include <QWidget>

struct SliderSteps;

/// Slider with a fractional value for seek and zoom bars: a background, a groove and a chunk (the
/// handle), which style sheets draw, or the palette where none draws groove or chunk.
///
/// Object names: "CommonLib_ToolBarSlider" with the children "CommonLib_ToolBarSlider_bg",
/// "CommonLib_ToolBarSlider_groove" and "CommonLib_ToolBarSlider_chunk", and within the groove
/// "CommonLib_ToolBarSlider_groove_highlight", the part up to the chunk. While the keyboard has
/// brought the focus, the chunk's property "keyboardFocus" is true.
///
/// The minimum is at the left or top end. A minimum above the maximum turns the scale round. Bounds
/// that differ by no more than a hundred-thousandth of the smaller one are an empty range, on which
/// mouse and keys do nothing. Signals report what the user does; no call emits one of them, but
/// those of the properties, which tell every change.
///
/// docs/widgets.md tells what mouse, wheel and keys do.
class COMMONLIB_EXPORT ToolBarSlider : public QWidget
{
    Q_OBJECT
    // The range first: forms set properties in this order.
    Q_PROPERTY(float minimum READ Minimum WRITE SetMinimum NOTIFY RangeChanged)
    Q_PROPERTY(float maximum READ Maximum WRITE SetMaximum NOTIFY RangeChanged)
    Q_PROPERTY(float value READ value WRITE ChangeValue NOTIFY ValueShown USER true)
    Q_PROPERTY(float duration READ duration WRITE setDuration NOTIFY SettingsChanged)
    Q_PROPERTY(
        Qt::Orientation orientation READ Orientation WRITE SetOrientation NOTIFY SettingsChanged)
    Q_PROPERTY(bool leftToRight READ IsLeftToRight WRITE SetLeftToRight NOTIFY SettingsChanged)
    Q_PROPERTY(bool bottomToTop READ IsBottomToTop WRITE SetBottomToTop NOTIFY SettingsChanged)
    Q_PROPERTY(QSize chunkSize READ ChunkSize WRITE ChangeChunkSize NOTIFY SettingsChanged)
    Q_PROPERTY(int grooveHeight READ GrooveHeight WRITE SetGrooveHeight NOTIFY SettingsChanged)
    Q_PROPERTY(bool alwaysEmitStartEnd READ AlwaysEmitsStartEnd WRITE
                   SetAwaysEmitValueChangeStartEnd NOTIFY SettingsChanged)
    Q_PROPERTY(bool pressed READ ButtonPressDown NOTIFY PressedChanged)

public:
    explicit ToolBarSlider(QWidget* parent); ///< horizontal, for forms
    ToolBarSlider(QWidget* parent, Qt::Orientation orientation);

    /// 0 to 100 by default; the value follows into the range. Nothing happens when a bound is
    /// infinite or not a number.
    void setRange(float min, float max);
    /// x is the minimum, y the maximum.
    QPointF getRange() const;
    /// Sets the value, limited to the range. Ignored while the user holds the slider, so that a
    /// play position does not pull the chunk away, and for a value that is not a number. The chunk
    /// follows in the next turn of the event loop. The second parameter is part of the signature
    /// only.
    void setValue(float value, bool);
    float value() const;
    /// A duration that the host keeps with the slider; 0 by default.
    void setDuration(float duration);
    float duration() const;

    /// Size of the chunk in pixels, 14 by 14 by default; less than 0 is 0.
    void SetChunkSize(int width, int height);
    void SetChunkHeight(int height);
    /// Thickness of the groove in pixels, 3 by default.
    void SetGrooveHeight(int height);
    /// Style sheet of the part of the groove up to the chunk.
    void SetGroomHighlight(QString style);
    /// On by default. Off, a horizontal slider has its minimum at the right end.
    void SetLeftToRight(bool on);
    /// On by default: on a vertical slider the highlight rises from the bottom to the chunk. Off,
    /// it hangs from the top. The minimum is at the top in either case.
    void SetBottomToTop(bool on);
    /// Whether a press beside the chunk emits startValueChanged() and endValueChanged() too.
    /// On by default; a drag of the chunk always does.
    void SetAwaysEmitValueChangeStartEnd(bool on);
    /// What ButtonPressDown() gives until the next press or release, for a host that changes the
    /// value on the user's behalf.
    void SetButtonPressDown(bool down);
    /// Whether a mouse button is down on the slider.
    bool ButtonPressDown() const;
    /// Whether the user can move the chunk, which is so while the slider is enabled.
    bool canSeek() const;
    /// As it was made with, or set. Setting it turns the size policy, too.
    Qt::Orientation Orientation() const;
    void SetOrientation(Qt::Orientation orientation);
    /// Pixels that the slider needs in height to show the chunk, and a horizontal groove, uncut.
    int Height() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void valueChanged(double value); ///< by the user; a setValue() is silent
    /// Around all changes of the value by one press, drag or key.
    void startValueChanged();
    void endValueChanged();
    /// The mouse began, and ended, to move while it holds the slider.
    void startDrag();
    void endDrag();
    /// Whenever the property \a value has changed, by the user or by a call. Comes before
    /// valueChanged() of the same change.
    void ValueShown(float value);
    /// Whenever the property of that name has changed.
    void RangeChanged(float minimum, float maximum);
    void PressedChanged(bool pressed);
    /// One of the other properties has changed.
    void SettingsChanged();

protected:
    /// Places the chunk for \a value, which counts from the start of the range, over the whole
    /// length of the slider and centred there. The value stays.
    void CalculatePositionFromValue(double value);
    /// Centres the chunk on a pixel along the slider and takes the value from there, over the
    /// length that the chunk can travel. The value is 0 in an empty range. Emits no more than
    /// ValueShown().
    void CalculatePostion(int pos);
    void CalculatePostion(QPoint pos);
    /// Whether the range is not empty.
    bool CanChanged() const;
    bool NeedEmitValue() const;
    /// Emits valueChanged() unless the last one had the same value.
    void EmitValueChange();
    /// Emits startValueChanged() or, with \a start false, endValueChanged(), if this press has
    /// them.
    void EmitStartEndSignals(bool start);
    /// Pixels that the chunk can travel.
    int GetWidth() const;

    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    // What the mouse holds.
    enum class Hold
    {
        None,
        Groove,
        Chunk,
        Cancelled // nothing any more; a release that still comes ends nothing
    };

    void ResizeChunk();
    void SetCanSeek(bool canSeek);

    void LayOut();
    void PlaceChunk();
    void QueueResizeChunk();
    void ResizeHighlight();
    bool MoveChunkTo(QPoint pos);
    bool IsHeld() const;
    bool IsTold(Hold hold) const;
    void EndHold(Hold held, bool emits);
    void CancelHold();
    void ChangeByUser(double value);
    void ShowFocus(const QFocusEvent& event);
    SliderSteps Steps() const;
    QPoint Unmirrored(QPoint pos) const;
    float Limited(double value) const;
    bool IsMirrored() const;

    // Properties. Those that emit return whether the slider is still there.
    bool ChangeTo(float value);
    bool SetPressed(bool pressed);
    void ChangeValue(float value) { setValue(value, false); }
    float Minimum() const { return m_minimum; }
    float Maximum() const { return m_maximum; }
    void SetMinimum(float minimum) { setRange(minimum, m_maximum); }
    void SetMaximum(float maximum) { setRange(m_minimum, maximum); }
    bool IsLeftToRight() const { return m_orientation != Qt::Horizontal || m_forward; }
    bool IsBottomToTop() const { return m_orientation != Qt::Vertical || m_forward; }
    void SetForward(bool on);
    QSize ChunkSize() const { return {m_chunkWidth, m_chunkHeight}; }
    void ChangeChunkSize(QSize size) { SetChunkSize(size.width(), size.height()); }
    int GrooveHeight() const { return m_grooveHeight; }
    bool AlwaysEmitsStartEnd() const { return m_alwaysEmitStartEnd; }

    // Value.
    float m_value = 0;
    float m_lastEmitted = 0;
    float m_minimum = 0;
    float m_maximum = 100.0F;
    float m_duration = 0;

    // Switches.
    Qt::Orientation m_orientation;
    bool m_forward = true; // SetLeftToRight() or SetBottomToTop(), whichever fits the orientation
    bool m_canSeek = true;
    bool m_alwaysEmitStartEnd = true;

    // Mouse.
    Hold m_hold = Hold::None;
    bool m_isDragging = false;
    bool m_buttonPressDown = false; // what ButtonPressDown() gives, which the host may set too
    int m_grabOffset = 0;

    // Look, in pixels.
    QWidget* m_background;
    QWidget* m_groove;
    QWidget* m_chunk;
    QWidget* m_highlight;
    int m_chunkPosition = 0; // left or top edge, from the end with the minimum
    int m_chunkWidth = 14;
    int m_chunkHeight = 14;
    int m_grooveHeight = 3;
    bool m_resizeQueued = false;
};

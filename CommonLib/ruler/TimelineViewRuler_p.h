// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/ruler/RulerConvertor_p.h"
#include "CommonLib/ruler/RulerDragAdjustManager_p.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

#include <limits>

/// The widget that draws a TimelineRuler and takes its mouse, wheel and keys. Signals report what
/// the user does, never of calls.
///
/// A handler may delete the ruler. Functions that emit therefore return whether it is still there,
/// unless they are the last thing that an event does.
class TimelineViewRuler : public QWidget
{
    Q_OBJECT

public:
    explicit TimelineViewRuler(QWidget* parent);

    static constexpr int kHeight = 28;
    static constexpr int kDoubleClickInterval = 400; // ms

    /// What the mouse and the keys do; most of it is on at construction.
    struct Behaviour
    {
        bool dragable = true;
        bool moveFrame = true;
        bool pressEmitsFrames = true;
        bool releaseEmitsFrames = true;
        bool singleClickEmits = false;
        bool roundFrames = false;
        bool limitRange = false;
        int totalFrames = 0; ///< 0 when not known
        int rangeIn = 0;
        int rangeOut = std::numeric_limits<int>::max();
    };
    Behaviour behaviour;

    const RulerConvertor& Convertor() const { return m_convertor; }
    const RulerSegment& Segment() const { return m_convertor.Current(); }
    /// Changes the convertor and repaints all.
    template <typename Change>
    void ChangeConvertor(Change change)
    {
        change(m_convertor);
        update();
        TellShown();
    }
    /// Changes every segment and repaints all.
    template <typename Change>
    void ChangeSegments(Change change)
    {
        m_convertor.ForEach(change);
        update();
    }
    /// Fixes a colour of every segment that would else follow the palette.
    void SetColor(QColor RulerSegment::*role, const QColor& color);
    /// Moves the play head, within the range when that is limited. Repaints no more than where it
    /// was and is. Returns whether it moved; a handler may have deleted the ruler then.
    bool SetCurrentFrame(int frame);
    int AvailableFrames() const;
    /// The frames that the user's play head can reach.
    int FirstFrame() const;
    int LastFrame() const;
    /// Moves the play head for the user, to the nearest frame that it can reach, and into sight.
    void StepTo(qint64 frame);
    void SetOffsetFrames(int frames);
    void SetOffsetPosition(int pixels);

    /// By a press of the mouse, or by a host that has none.
    bool StartZoomAndScroll(bool isPressed = false);
    bool EndDrag();

Q_SIGNALS:
    void sigSingleClickStartFramesChanged();
    void sigSingleClickEndFrameChanged();
    void StartFramesChanged();
    void EndFramesChanged();
    void FramesChanged(int frames);
    void StartZoomChanged();
    void EndZoomChanged();
    void ZoomChanged(float zoom);
    void OffsetFramesChanged(int frames);
    void sigRightClicked(QPoint pt);
    /// Of calls as well, before the signals of the user's.
    void CurrentFramesShown(int frames);
    void ZoomShown(float zoom);
    void OffsetShown();
    void ColorsChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    using Drag = RulerDragAdjustManager::Drag;

    /// Emits \a signal.
    template <typename... Parameters, typename... Arguments>
    bool Tell(void (TimelineViewRuler::*signal)(Parameters...), Arguments... arguments)
    {
        const QPointer<TimelineViewRuler> self(this);
        Q_EMIT(this->*signal)(arguments...);
        return !self.isNull();
    }

    /// Tells what shows by now and has not been told.
    bool TellShown();
    void TellRightClick(const QPoint& at);
    void PressPlayHead(const QPoint& at);
    void DragPlayHead(const QPoint& at);
    void DragZoomAndScroll(const QPoint& at);
    bool EndSingleClick();
    void QueueEndDrag();
    void WatchHold();
    /// Whether a colour is another then.
    bool FollowPalette();
    bool HasFixed(QColor RulerSegment::*role) const;
    /// Moves the play head for the user and reports it when it moved.
    bool MoveByUser(int frame);
    bool ShowPlayHead();
    void ScrollAtEdge();

    int FrameAt(int x) const;
    int Bounded(qint64 frame) const;

    /// Zooms so that \a frame lies at \a x, and reports what changed.
    bool ZoomAbout(float zoom, double frame, double x);
    void ZoomOnceAbout(float zoom, double frame, double x);
    void FitAll();
    /// Scrolls so that \a frame (with its fraction) lies at the left edge.
    bool SetLeftEdge(double frame);

    RulerConvertor m_convertor;
    std::vector<QColor RulerSegment::*> m_fixedColors; // which the host, or a sheet, has set
    RulerDragAdjustManager m_drag;
    QElapsedTimer m_sincePress;
    QBasicTimer m_scrollTimer;
    struct Shown
    {
        int frame = 0;
        float zoom = RulerConvertor::kDefaultMaxZoom;
        int offsetFrames = 0;
        int offsetPosition = 0;
    };
    Shown m_shown; // as it was told
    QPoint m_mouse;
    double m_wheelRest = 0; // part of a pixel that the wheel has yet to scroll
    bool m_inSingleClick = false;
    bool m_keyboardFocus = false;
    bool m_endQueued = false; // a drag ends in the next turn of the event loop
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QCursor>
#include <QObject>
#include <QPointer>
#include <QRect>

class DragValueChangedHelper;
class QWidget;

/// Lets the user change a number by dragging on any widget, sideways, as on a spin box without
/// arrows.
///
/// While the button is down the pointer is hidden and parked in the middle of the primary screen,
/// further up and left where Qt scales, so no drag ends at a screen's edge. Every few pixels are a
/// step; steps that follow each other within 200 ms in one direction grow, each by one step more
/// than the last. Shift selects the fast step, Ctrl the slow one. A press and release without a
/// step is a click: the widget gets it, and the next ones too (to edit the number as text), until
/// it loses the focus.
///
/// The widget shows the number itself: connect sigValueChanged(), and report changes made
/// elsewhere with SetValue(). Bounds and steps are taken as they are; a bound that is not a number
/// bounds nothing. GUI thread only.
///
/// The release of the button may never come. A drag also ends when the widget is hidden or
/// disabled, when a dialog blocks it and when another program becomes active; the signal follows
/// in the next turn of the event loop. Object and widget may be deleted at any time, also by a slot
/// of its signals; the end of a drag is reported first, but not to those that are being destroyed
/// with them.
class COMMONLIB_EXPORT IDragValueChangedHelper : public QObject
{
    Q_OBJECT

public:
    /// Watches \a widget, which becomes the parent and must stay it. One object serves one widget.
    explicit IDragValueChangedHelper(QWidget* widget);
    ~IDragValueChangedHelper() override;

    /// False also ends a drag that is going on. On by default.
    void SetDragEnabled(bool enable);
    /// Whether the next press begins a drag. Not what was set last: between a click and the loss of
    /// focus presses are the widget's, and this is false.
    bool GetDragEnabled() const;

    /// Pixels that must be exceeded before a step is made; 1 each by default. The move after the
    /// one that exceeds them makes the step, in its own direction.
    ///
    /// The step distance counts anew once 5 pixels are exceeded. Set above 5 it is therefore a
    /// speed: a slow motion makes no steps, only one in which a single move leads beyond it. The
    /// fast and the slow distance may be of any length.
    void SetFastDistance(int pixels);
    int GetFastDistance() const;
    void SetSlowDistance(int pixels);
    int GetSlowDistance() const;
    void SetStepDistance(int pixels);
    int GetStepDistance() const;

    /// Steps: 10 with Shift, 1 with Ctrl, else 1 by default.
    void SetFastStep(double step);
    double GetFastStep() const;
    void SetSlowStep(double step);
    double GetSlowStep() const;
    void SetStep(double step);
    double GetStep() const;

    /// Taken as it is, even outside the range; emits nothing.
    void SetValue(double value);
    double GetValue() const;
    /// All finite numbers by default. The value is brought into it with the next step.
    void SetRange(double min, double max);
    void GetRange(double& min, double& max) const;
    void SetMinValue(double min);
    /// Whether a step beyond one end of the range leads to the other; on by default.
    void SetLoop(bool loop);
    bool GetLoop() const;

    /// Pointer over the widget; Qt::SizeHorCursor by default.
    void SetHoverCursor(QCursor cursor);
    QCursor GetHoverCursor() const;
    /// Part of the widget, in its own coordinates, where a press begins a drag. An invalid one, the
    /// default, stands for all of it.
    void SetInteractiveRectangle(QRect rectangle);
    QRect GetInteractiveRectangle() const;

Q_SIGNALS:
    /// After every step.
    void sigValueChanged(double value);
    /// Before the first sigValueChanged() of a drag, with the same value.
    void sigStartValueChanged(double value);
    /// A drag that has made steps is over: once for every sigStartValueChanged().
    void sigEndValueChanged(double value);

private:
    const QPointer<DragValueChangedHelper> m_helper; ///< a child of the widget
};

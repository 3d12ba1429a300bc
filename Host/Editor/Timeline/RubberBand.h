// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Timeline/ClipSet.h"
#include "Host/Editor/Timeline/Gesture.h"

#include <functional>

class Selection;
class TimelineModel;

/// Selects what a rectangle touches. It is held by a frame, so it grows when the view scrolls.
class RubberBand : public Gesture
{
public:
    using ToX = std::function<int(double frame)>;

    /// What is selected already stays so with \a isAdding. All outlive the gesture.
    RubberBand(Selection& selection, const TimelineModel& model, const GesturePoint& start,
               bool isAdding, ToX toX);
    void Move(const GesturePoint& point) override;
    void End() override {}
    void Cancel() override;
    QRect Band() const override;

private:
    Selection& m_selection;
    const TimelineModel& m_model;
    const GesturePoint m_start;
    GesturePoint m_end;
    const ToX m_toX;
    const ClipSet m_before;
    const ClipSet m_kept;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>
#include <qnamespace.h>

#include <optional>

class QKeyEvent;
class QWheelEvent;

/// Steps of an arrow key from one end of a slider to the other.
constexpr double kStepsPerRange = 100;

/// Where keys and the wheel take a slider.
struct SliderSteps
{
    double value;
    double minimum;
    double maximum; ///< may be the smaller one; keys still move the handle the way they point
    double step;    ///< towards the maximum, for an arrow key and a notch of the wheel
    double page;    ///< the same for the page keys, and for the wheel with Ctrl or Shift
    Qt::Orientation orientation;
    bool mirrored = false; ///< the minimum is at the right end

    /// The value, which may lie beyond the range, or nothing for a key that a slider has no use
    /// for.
    std::optional<double> Target(const QKeyEvent& event) const;
    /// Away from the user is more on a horizontal slider, and up on a vertical one.
    double Target(const QWheelEvent& event) const;
};

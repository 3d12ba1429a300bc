// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPoint>
#include <QRect>

/// Where the pointer is over the clips.
struct GesturePoint
{
    QPoint at;    ///< in the view
    double frame; ///< with its fraction
    int level;    ///< the nearest one
};

/// What the mouse does from a press to the release.
class Gesture
{
public:
    virtual ~Gesture() = default;
    virtual void Move(const GesturePoint& point) = 0;
    /// Keeps what was done.
    virtual void End() = 0;
    /// Leaves all as it was at the press.
    virtual void Cancel() = 0;
    /// What is drawn over the clips meanwhile, in the view; empty for nothing.
    virtual QRect Band() const { return {}; }
};

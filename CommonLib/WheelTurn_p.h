// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWheelEvent>

/// A turn of a wheel, or a swipe on a touchpad, along the axis that it goes further on.
struct WheelTurn
{
    double notches; ///< away from the user, or to the left, is more; parts of one too
    bool sideways;

    explicit WheelTurn(const QWheelEvent& event)
    {
        const QPoint turn = event.angleDelta();
        sideways = qAbs(turn.x()) > qAbs(turn.y());
        notches = double(sideways ? turn.x() : turn.y()) / QWheelEvent::DefaultDeltasPerStep;
    }
};

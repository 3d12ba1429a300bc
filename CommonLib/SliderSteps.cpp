// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/SliderSteps_p.h"

#include "CommonLib/WheelTurn_p.h"

#include <QKeyEvent>

std::optional<double> SliderSteps::Target(const QKeyEvent& event) const
{
    constexpr Qt::KeyboardModifiers shortcuts =
        Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (event.modifiers() & shortcuts)
        return std::nullopt;
    // The minimum of a vertical slider is at its top.
    const double up = orientation == Qt::Vertical ? -1 : 1;
    const double right = mirrored ? -1 : 1;
    switch (event.key()) {
    case Qt::Key_Right:
        return value + right * step;
    case Qt::Key_Left:
        return value - right * step;
    case Qt::Key_Up:
        return value + up * step;
    case Qt::Key_Down:
        return value - up * step;
    case Qt::Key_PageUp:
        return value + up * page;
    case Qt::Key_PageDown:
        return value - up * page;
    case Qt::Key_Home:
        return minimum;
    case Qt::Key_End:
        return maximum;
    default:
        return std::nullopt;
    }
}

double SliderSteps::Target(const QWheelEvent& event) const
{
    const WheelTurn turn(event);
    const bool isReversed = turn.sideways ? !mirrored : orientation == Qt::Vertical;
    const double notches = isReversed ? -turn.notches : turn.notches;
    const bool pages = event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
    return value + notches * (pages ? page : step);
}

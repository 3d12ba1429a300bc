// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <cmath>

/// Empty when \a found lies within \a tolerance of \a wanted, else what the failure is to show.
inline QString Deviation(double found, double wanted, double tolerance)
{
    const bool isNear = std::abs(found - wanted) <= tolerance; // false for what is no number
    return isNear ? QString() : QString("%1 instead of %2").arg(found).arg(wanted);
}

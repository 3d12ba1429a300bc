// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// Frame \a frame as hours:minutes:seconds:frames, "00:00:04:12". Fractional rates count at the
/// next whole rate without dropping numbers. A rate that is not above 0 gives the bare number.
QString TimecodeText(qint64 frame, double framesPerSecond);

/// A rate with up to three decimals and no trailing zeros: "25", "29.97".
QString RateText(double framesPerSecond);

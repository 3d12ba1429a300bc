// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "tests/long_run/Samples.h"

/// A picture of all quantities over the time, as SVG; the line is that of the growth over the
/// second half.
QByteArray PlotOf(const Samples& samples);

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// The seed of a random test: COMMONLIB_SEED, else the same each time, so that a build is judged by
/// what changed and not by its luck. The nightly scripts bring a new one.
inline unsigned Seed()
{
    const bool isGiven = qEnvironmentVariableIsSet("COMMONLIB_SEED");
    const unsigned seed = isGiven ? qEnvironmentVariable("COMMONLIB_SEED").toUInt() : 1;
    qInfo("COMMONLIB_SEED=%u", seed);
    return seed;
}

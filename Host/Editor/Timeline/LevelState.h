// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

/// What is set for a level.
struct LevelState
{
    QString name;  ///< empty: none of its own
    int flags = 0; ///< NLELevelFlags
    bool isLocked = false;
    bool isShown = true; ///< neither hidden nor outplayed by solo levels
};

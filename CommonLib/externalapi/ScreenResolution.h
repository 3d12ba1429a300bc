// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "CommonLib/CommonLibExport.h"

#include <QRect>
#include <QVector>

class QWidget;

/// The monitors, and classes of screens by their pixel area. GUI thread only; on Linux the monitors
/// are known once the application object is there.
class COMMONLIB_EXPORT ScreenResolution
{
public:
    /// Class of a screen by its pixel area, 0 to 17; docs/screens.md tabulates them. Hosts compare
    /// against these numbers.
    using RangeType = int;

    /// One monitor, as the system describes it.
    struct ScreenInfo
    {
        HMONITOR handle = nullptr; ///< the system's monitor; on Linux Qt's QScreen
        bool primary = false;      ///< whether it is the system's main one
        QRect physical;            ///< size in the monitor's own pixels
        QRect logical;             ///< place and size on the desktop
        float scale = 0;           ///< physical width by logical width
        int id = 0;                ///< number of the monitor, from 0
    };

    /// Class of a screen of this size; 0 when a side is below 1.
    static RangeType GetScreenRangeTypeFrom(int width, int height);
    /// Class of the logical size of the monitor \a id; 0 when there is none.
    static RangeType GetScreenRangeType(int id);
    static int GetScreenCount();
    /// Fills \a infos with all monitors. False, and none, when the system lists none.
    static bool GetScreenInfos(QVector<ScreenInfo>& infos);
    /// Whether the space available on the screen of \a widget (the primary one for null) is of a
    /// class below \a type. False without screens.
    static bool AdapterMinimumSize(QWidget* widget, RangeType type);
    /// Whether interface scaling is worth while: always, except for a single monitor of class 12 or
    /// below.
    static bool CheckEnableHightDPIScale();
    /// Lists the monitors once; always true.
    static bool EnableHightDPIResource();
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QPointF>
#include <QSizeF>

/// One key frame of a clip's picture. The order of the fields is fixed.
struct COMMONLIB_EXPORT VideoKeyFrameParam
{
    double time = 0;        ///< place on the clip's key-frame axis, 0 in point to 1 end
    double rotateAngle = 0; ///< degrees, clockwise
    double opacity = 1.0;   ///< 0 transparent to 1 opaque
    QPointF position = {};  ///< of the centre from the middle, in regions; y grows upward
    QSizeF scale = {1, 1};  ///< horizontal and vertical factor

    /// Strict: time, angle and opacity are exactly equal, the position to within 1e-12, the scale
    /// to a relative 1e-12.
    bool operator==(const VideoKeyFrameParam& other) const;
    bool operator!=(const VideoKeyFrameParam& other) const { return !(*this == other); }
};

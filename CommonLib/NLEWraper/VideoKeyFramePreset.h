// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QPointF>
#include <QSizeF>
#include <QString>

/// One key frame of a preset. Angle and opacity are single precision, unlike those of
/// VideoKeyFrameParam. The order of the fields is fixed.
struct VideoKeyFramePreset
{
    double time = 0;       ///< place on the key-frame axis of the clip that it is applied to
    QPointF position = {}; ///< as in VideoKeyFrameParam
    QSizeF scale = {1, 1}; ///< horizontal and vertical factor
    float rotateAngle = 0; ///< degrees, clockwise
    float opacity = 1.0f;  ///< 0 transparent to 1 opaque
};

/// A named animation for hosts to offer; the library fills none. The order of the fields is fixed.
struct VideoKeyFramePresetInfo
{
    int id = 0;                                ///< identifier, as the host numbers them
    int kind = 0;                              ///< group that the host shows it in
    QString name = {};                         ///< shown to the user
    QString icon = {};                         ///< path of a picture
    QList<VideoKeyFramePreset> keyFrames = {}; ///< what it is made of
};

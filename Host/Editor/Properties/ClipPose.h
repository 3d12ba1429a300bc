// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Properties/PropertyScope.h"

#include <QPointF>
#include <QSizeF>

struct PropertyChange;

/// Where the picture of a clip stands on that of the project, with its key frames.
struct ClipPose
{
    QPointF center; ///< from (0, 0) top left to (1, 1) bottom right of the project
    QSizeF scale;   ///< 1: as it is fitted into the project; below 0: mirrored
    double angle;   ///< degrees, clockwise
};

/// Reads and sets the pose of the scope's node at the play head.
class ClipPoses
{
public:
    explicit ClipPoses(PropertyScope scope) : m_scope(std::move(scope)) {}

    /// Whether the node is a clip with a picture that shows at the play head.
    bool IsShown() const;
    ClipPose Pose() const;
    /// The change to \a pose: of the key frame at the play head where the movement has some, else
    /// of the clip's placement.
    PropertyChange Change(const ClipPose& pose) const;
    /// Size of the picture at a scale of 1, in widths and heights of the project.
    QSizeF PlainSize() const;
    /// The project's own, in pixels.
    QSizeF ProjectSize() const;

private:
    const PropertyScope m_scope;
};

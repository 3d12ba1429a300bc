// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/TimelineNode.h"

#include <QJsonArray>

namespace nle {

/// Markers of a node as OpenTimelineIO has them, and back.
class OtioMarkers
{
public:
    /// A frame of the node lasts 1 / \a framesPerSecond seconds of its material, whose frame 0 is
    /// at \a start seconds.
    OtioMarkers(double framesPerSecond, double start) : m_rate(framesPerSecond), m_start(start) {}

    /// Those of \a kept that are still the same, and those without a time, are written as they
    /// came.
    QJsonArray Write(const MarkerList& markers, const QJsonArray& kept) const;
    /// In order of frames. What has no time is left out.
    MarkerList Read(const QJsonArray& markers) const;
    /// Whether Read() gives the same for both.
    bool IsSame(const QJsonArray& a, const QJsonArray& b) const;

private:
    QJsonObject ToJson(const Marker& marker) const;

    double m_rate;
    double m_start;
};

} // namespace nle

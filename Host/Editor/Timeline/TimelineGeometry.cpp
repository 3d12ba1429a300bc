// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/TimelineGeometry.h"

#include "Host/Editor/Timeline/TimelineModel.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kBeyond = 64;       ///< pixels, more than any mark reaches out of a clip
constexpr int kEdgeReach = 6;        ///< pixels within a clip that its edge is caught in
constexpr int kEdgesOfNarrowest = 5; ///< a part of each that narrow clips keep for their body

} // namespace

GesturePoint TimelineGeometry::PointAt(const QPoint& at) const
{
    return {at, scale.Frame(at.x()), LevelAt(at.y())};
}

int TimelineGeometry::Left(double frame) const
{
    return static_cast<int>(std::lround(std::clamp(scale.X(frame), -kBeyond, width + kBeyond)));
}

QRect TimelineGeometry::Box(const ClipRow& row) const
{
    const int left = Left(row.begin);
    return {left, LevelTop(row.level), std::max(1, Left(row.end) - left),
            levels.Height(row.level) - 1};
}

ClipHit ClipHit::Find(const TimelineModel& model, const TimelineGeometry& geometry,
                      const QPoint& at)
{
    ClipHit hit;
    const int y = at.y() - TimelineGeometry::kStripHeight + geometry.scrolled;
    if (at.y() < TimelineGeometry::kStripHeight || y < 0 || y >= geometry.levels.TotalHeight())
        return hit;
    hit.row = model.At(geometry.levels.LevelAt(y), geometry.scale.Frame(at.x() + 0.5));
    if (!hit.row || hit.row->IsTransition())
        return hit;
    const QRect box = geometry.Box(*hit.row);
    const int reach = std::min(kEdgeReach, box.width() / kEdgesOfNarrowest);
    if (at.x() < box.left() + reach)
        hit.part = Part::Begin;
    else if (at.x() > box.right() - reach)
        hit.part = Part::End;
    return hit;
}

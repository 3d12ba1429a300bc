// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/ClipPose.h"

#include "CommonLib/NLEWraper/FTimelineTransformHelper.h"
#include "EngineApi/INLELevels.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Properties/MovementKeys.h"

#include <algorithm>
#include <memory>

namespace {

QSizeF SizeOf(const NLEComPtr<INLETimeline>& node)
{
    const auto region = node.query<INLERenderRegion>();
    NLERectF rect = {};
    if (!region || FAILED(region->GetRenderRegion(&rect)))
        return {};
    return {rect.width, rect.height};
}

/// 1 where a scale is nothing, which no factor changes.
double Divided(double value, double scale)
{
    return scale == 0 ? 1 : value / scale;
}

ClipPose PlacementOf(const FTimelineTransformHelper& transform)
{
    if (!transform.GetTransformEnable())
        return {{0.5, 0.5}, {1, 1}, 0};
    return {transform.GetCenterPos(), transform.GetResizeScale(), transform.GetRotate()};
}

bool Place(FTimelineTransformHelper& transform, const ClipPose& pose, bool isEnabled)
{
    transform.SetTransformEnable(isEnabled);
    transform.SetCenterPos(pose.center);
    transform.SetResizeScale(pose.scale);
    transform.SetRotate(pose.angle);
    return true;
}

} // namespace

bool ClipPoses::IsShown() const
{
    if (!m_scope.node || m_scope.node == m_scope.project.Node() ||
        m_scope.node.query<INLETimelineTransition>() || SizeOf(m_scope.node).isEmpty())
        return false;
    int level = 0;
    int flags = 0;
    bool isEnabled = false;
    m_scope.node->GetLevel(&level);
    m_scope.node->GetEnabled(&isEnabled);
    m_scope.project.Levels()->GetFlags(level, &flags);
    const MovementKeys keys(m_scope.node);
    return isEnabled && (flags & NLELevel_Hidden) == 0 && keys.IsWithin(m_scope.PlayHead());
}

QSizeF ClipPoses::ProjectSize() const
{
    return SizeOf(m_scope.project.Node());
}

QSizeF ClipPoses::PlainSize() const
{
    const QSizeF own = SizeOf(m_scope.node);
    const QSizeF whole = ProjectSize();
    if (own.isEmpty() || whole.isEmpty())
        return {};
    const QSizeF part(own.width() / whole.width(), own.height() / whole.height());
    const double longer = std::max(part.width(), part.height());
    const double shorter = std::min(part.width(), part.height());
    tagNLEMarginMode mode = NLEMargin_Fit;
    m_scope.node->GetMarginMode(&mode);
    switch (mode) {
    case NLEMargin_Fill:
        return part / shorter;
    case NLEMargin_Stretch:
        return {1, 1};
    case NLEMargin_None:
        return part;
    case NLEMargin_Fit:
        break;
    }
    return part / longer;
}

ClipPose ClipPoses::Pose() const
{
    ClipPose pose = PlacementOf(FTimelineTransformHelper(m_scope.node, nullptr));
    const MovementKeys keys(m_scope.node);
    if (!keys.IsAnimated())
        return pose;
    const VideoKeyFrameParam key = keys.ValueAt(m_scope.PlayHead());
    pose.center += QPointF(key.position.x(), -key.position.y()); // it grows upwards
    pose.scale = {pose.scale.width() * key.scale.width(), pose.scale.height() * key.scale.height()};
    pose.angle += key.rotateAngle;
    return pose;
}

PropertyChange ClipPoses::Change(const ClipPose& pose) const
{
    const auto transform = std::make_shared<FTimelineTransformHelper>(m_scope.node, nullptr);
    const ClipPose placement = PlacementOf(*transform);
    const MovementKeys keys(m_scope.node);
    if (keys.IsAnimated()) {
        const int frame = m_scope.PlayHead();
        VideoKeyFrameParam key = keys.ValueAt(frame);
        key.position = {pose.center.x() - placement.center.x(),
                        placement.center.y() - pose.center.y()};
        key.scale = {Divided(pose.scale.width(), placement.scale.width()),
                     Divided(pose.scale.height(), placement.scale.height())};
        key.rotateAngle = pose.angle - placement.angle;
        return keys.Put(frame, key);
    }
    const bool wasEnabled = transform->GetTransformEnable();
    const ClipPose before = {transform->GetCenterPos(), transform->GetResizeScale(),
                             transform->GetRotate()};
    return {[=] { return Place(*transform, pose, true); },
            [=] { return Place(*transform, before, wasEnabled); }};
}

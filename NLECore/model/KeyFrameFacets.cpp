// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/KeyFrameFacets.h"

#include "Com/ComGuard.h"
#include "EngineApi/NLECommon.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/TimelineNode.h"

#include <cmath>

namespace nle {

namespace {

bool IsFinite(const NLEKeyFrameRecord& r)
{
    for (const double number :
         {r.time, r.angle, r.positionX, r.positionY, r.scaleWidth, r.scaleHeight, r.opacity}) {
        if (!std::isfinite(number))
            return false;
    }
    return true;
}

} // namespace

KeyFrameFacet::KeyFrameFacet(TimelineNode& node)
    : NodeFacet(static_cast<INLETimeline&>(node)), m_owner(node)
{
}

void KeyFrameFacet::FollowRange()
{
    const KeyFrameAxis axis = KeyFrameAxis::Of(m_owner.Range());
    if (axis.length == 0 || axis == m_axis)
        return;
    if (m_axis.length > 0)
        m_frames.MapTimes([&](double time) { return MapTime(time, m_axis, axis); });
    m_axis = axis;
    Changed();
}

HRESULT KeyFrameFacet::GetCount(int* count)
{
    return GiveValue(count, m_frames.Count());
}

HRESULT KeyFrameFacet::GetKeyFrame(int index, NLEKeyFrameRecord* record)
{
    return ComGuard([&] {
        if (!Has(index))
            return RefuseIndex(index, m_frames.Count());
        FollowRange();
        return GiveValue(record, m_frames.At(index));
    });
}

HRESULT KeyFrameFacet::SetKeyFrame(int index, const NLEKeyFrameRecord* record)
{
    return ComGuard([&] {
        if (!record)
            return Refuse(E_POINTER);
        if (!Has(index))
            return RefuseIndex(index, m_frames.Count());
        if (!IsFinite(*record))
            return Refuse(E_INVALIDARG);
        FollowRange();
        if (m_frames.At(index).time != record->time) {
            const int count = m_frames.Count();
            const int other =
                m_frames.First([=](const NLEKeyFrameRecord& r) { return r.time >= record->time; });
            if (other < count && m_frames.At(other).time == record->time)
                return Refuse(E_INVALIDARG);
            const int placed = m_frames.Put(*record);
            m_frames.Erase(placed <= index ? index + 1 : index);
        } else {
            m_frames.Put(*record);
        }
        Changed();
        return S_OK;
    });
}

HRESULT KeyFrameFacet::AddKeyFrame(const NLEKeyFrameRecord* record, int* index)
{
    return ComGuard([&] {
        if (!record || !index)
            return Refuse(E_POINTER);
        if (!IsFinite(*record))
            return Refuse(E_INVALIDARG);
        FollowRange();
        *index = m_frames.Put(*record);
        Changed();
        return S_OK;
    });
}

HRESULT KeyFrameFacet::DeleteKeyFrame(int index)
{
    if (!Has(index))
        return RefuseIndex(index, m_frames.Count());
    m_frames.Erase(index);
    Changed();
    return S_OK;
}

HRESULT KeyFrameFacet::DeleteAll()
{
    m_frames.Clear();
    Changed();
    return S_OK;
}

HRESULT KeyFrameFacet::GetParamAt(double time, NLEKeyFrameRecord* record)
{
    return ComGuard([&] {
        if (!std::isfinite(time))
            return Refuse(E_INVALIDARG);
        if (m_frames.Count() == 0)
            return Refuse(E_FAIL, NLEReason_NothingThere);
        FollowRange();
        return GiveValue(record, m_frames.ValueAt(time));
    });
}

HRESULT KeyFrameFacet::FindIndex(int frame, int frameCount, int* index)
{
    return ComGuard([&] {
        if (frameCount < 1)
            return Refuse(E_INVALIDARG);
        FollowRange();
        const auto frameOf = [frameCount](const NLEKeyFrameRecord& record) {
            return NLECommon::KeyFrame::CaculateKeyFrameIndex(record.time, frameCount);
        };
        const int found = m_frames.First(
            [&](const NLEKeyFrameRecord& record) { return frameOf(record) >= frame; });
        if (!Has(found) || frameOf(m_frames.At(found)) != frame)
            return Refuse(E_FAIL, NLEReason_NothingThere);
        return GiveValue(index, found);
    });
}

std::shared_ptr<const KeyFrameCurve> KeyFrameFacet::Curve() const
{
    return enabled && m_frames.Count() > 0 ? Stored() : nullptr;
}

std::shared_ptr<const KeyFrameCurve> KeyFrameFacet::Stored() const
{
    const KeyFrameAxis axis = m_axis.length > 0 ? m_axis : KeyFrameAxis::Of(m_owner.Range());
    if (!m_curve || !(m_curve->axis == axis))
        m_curve = std::make_shared<KeyFrameCurve>(KeyFrameCurve{axis, m_frames.All()});
    return m_curve;
}

void KeyFrameFacet::Restore(const KeyFrameCurve& curve)
{
    m_frames.Clear();
    for (const NLEKeyFrameRecord& record : curve.frames) {
        if (IsFinite(record))
            m_frames.Put(record);
    }
    m_axis = curve.axis;
    Changed();
}

void KeyFrameFacet::RescaleAxis(double factor)
{
    m_axis = {m_axis.start * factor, m_axis.length * factor};
    Changed();
}

HRESULT KeyFrameStatusFacet::GetStatus(bool* enabled)
{
    return GiveValue(enabled, m_keyFrames.enabled);
}

HRESULT KeyFrameStatusFacet::SetStatus(bool enabled)
{
    m_keyFrames.enabled = enabled;
    return S_OK;
}

} // namespace nle

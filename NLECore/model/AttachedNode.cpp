// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/AttachedNode.h"

#include "NLECore/media/Reasons.h"
#include "NLECore/model/CompositeNode.h"
#include "NLECore/scene/FrameMath.h"

#include <algorithm>

namespace nle {

AttachedNode::AttachedNode(const Declaration& declaration)
    : TimelineNode(kDefaultProfile.frameRate)
    , m_parameters(static_cast<INLETimeline&>(*this), nullptr, declaration)
{
}

HRESULT AttachedNode::QueryInterface(REFIID iid, void** out)
{
    if (out && ComDetail::Offer<INLEParameters>(&m_parameters, iid, out)) {
        AddRef();
        return S_OK;
    }
    if (iid == kNodeId || iid == InterfaceId<INLETimeline>() || iid == InterfaceId<IUnknown>() ||
        iid == InterfaceId<INLEPropertyHost>())
        return TimelineNode::QueryInterface(iid, out);
    if (!out)
        return Refuse(E_POINTER);
    *out = nullptr;
    return E_NOINTERFACE;
}

HRESULT AttachedNode::SetRenderFrameRate(NLERational rate)
{
    if (m_owner && ToDouble(rate) != ToDouble(m_owner->FrameRate()))
        return Refuse(E_INVALIDARG);
    return TimelineNode::SetRenderFrameRate(rate);
}

int AttachedNode::TotalLength() const
{
    return m_owner ? ClampToInt(double(NLERangeLength(m_owner->Range()))) : 0;
}

void AttachedNode::ChangeRate(const NLERational& rate)
{
    const double before = ToDouble(FrameRate());
    TimelineNode::ChangeRate(rate);
    if (before != ToDouble(rate))
        m_parameters.RescaleAxis(ToDouble(rate) / before);
}

void AttachedNode::SetOwner(const TimelineNode* owner)
{
    m_owner = owner;
    if (owner)
        TimelineNode::ChangeRate(owner->FrameRate());
    m_parameters.SetOwner(owner);
}

void AttachedNode::Join(const TimelineNode& owner)
{
    m_owner = &owner;
    m_parameters.Join(&owner);
}

void AttachedNode::Abandon()
{
    m_owner = nullptr;
    m_parameters.Join(nullptr);
}

} // namespace nle

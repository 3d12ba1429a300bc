// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/TransitionNode.h"

#include "Com/ComGuard.h"
#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/SourceNodes.h"
#include "NLECore/scene/FrameMath.h"

namespace nle {

TransitionNode::TransitionNode(const Declaration& declaration)
    : ComExtension(kDefaultProfile.frameRate)
    , m_parameters(static_cast<INLETimeline&>(*this), this, declaration)
{
    const NLERange range = {0, ClampToInt(kTransitionSeconds * ToDouble(FrameRate())) - 1};
    SetRange(&range);
}

HRESULT TransitionNode::QueryInterface(REFIID iid, void** out)
{
    if (!out || !ComDetail::Offer<INLEParameters>(&m_parameters, iid, out))
        return ComExtension::QueryInterface(iid, out);
    AddRef();
    return S_OK;
}

HRESULT TransitionNode::GetTransitionName(wchar_t* buffer, int capacity)
{
    return ComGuard([&] {
        const char* const name = m_parameters.Declared().names.name;
        return CopyText(QString::fromLatin1(name).toStdWString(), buffer, capacity);
    });
}

int TransitionNode::TotalLength() const
{
    return std::max(1, ClampToInt(kLongestStillSeconds * ToDouble(FrameRate())));
}

void TransitionNode::ChangeRate(const NLERational& rate)
{
    const double before = ToDouble(FrameRate());
    TimelineNode::ChangeRate(rate);
    if (before != ToDouble(rate))
        m_parameters.RescaleAxis(ToDouble(rate) / before);
}

LayerTransition TransitionNode::AsLayer() const
{
    LayerTransition layer;
    layer.position = Position();
    layer.range = Range();
    layer.level = Level();
    layer.parameters = m_parameters.Shared();
    return layer;
}

NLEComPtr<TimelineNode> TransitionNode::CopyContent(bool /*deep*/) const
{
    NLEComPtr<TransitionNode> copy = MakeCom<TransitionNode>(m_parameters.Declared());
    copy->m_parameters.Restore(*m_parameters.Shared());
    return copy;
}

} // namespace nle

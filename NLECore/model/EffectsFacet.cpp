// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/EffectsFacet.h"

#include "Com/ComGuard.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/EffectNode.h"

#include <algorithm>

namespace nle {

EffectsFacet::EffectsFacet(TimelineNode& node)
    : NodeFacet(static_cast<INLETimeline&>(node)), m_owner(node)
{
}

EffectsFacet::~EffectsFacet()
{
    for (const NLEComPtr<EffectNode>& effect : m_effects)
        effect->Abandon();
}

HRESULT EffectsFacet::GetCount(int* count)
{
    return GiveValue(count, int(m_effects.size()));
}

HRESULT EffectsFacet::GetEffect(int index, INLETimeline** effect)
{
    if (!effect)
        return Refuse(E_POINTER);
    *effect = nullptr;
    if (!Has(index))
        return RefuseIndex(index, std::int64_t(m_effects.size()));
    return NLEComPtr<INLETimeline>(m_effects[size_t(index)]).copyTo(effect);
}

HRESULT EffectsFacet::AddEffect(INLETimeline* effect, int index)
{
    return ComGuard([&] {
        EffectNode* node = EffectNode::From(effect);
        if (!node || node->Owner())
            return Refuse(E_INVALIDARG, NLEReason_WrongObject);
        if (index < -1 || index > int(m_effects.size()))
            return RefuseIndex(index, std::int64_t(m_effects.size()));
        m_effects.insert(index < 0 ? m_effects.end() : m_effects.begin() + index,
                         NLEComPtr<EffectNode>(node));
        node->SetOwner(&m_owner);
        return S_OK;
    });
}

HRESULT EffectsFacet::RemoveEffect(INLETimeline* effect)
{
    return ComGuard([&] {
        const auto found =
            std::find_if(m_effects.begin(), m_effects.end(),
                         [node = EffectNode::From(effect)](const NLEComPtr<EffectNode>& own) {
                             return own.get() == node;
                         });
        if (found == m_effects.end())
            return Refuse(E_INVALIDARG, NLEReason_WrongObject);
        (*found)->SetOwner(nullptr);
        m_effects.erase(found);
        return S_OK;
    });
}

HRESULT EffectsFacet::MoveEffect(int from, int to)
{
    if (!Has(from) || !Has(to))
        return RefuseIndex(Has(from) ? to : from, std::int64_t(m_effects.size()));
    const auto first = m_effects.begin();
    if (from < to)
        std::rotate(first + from, first + from + 1, first + to + 1);
    else
        std::rotate(first + to, first + from, first + from + 1);
    return S_OK;
}

void EffectsFacet::Adopt(const NLEComPtr<EffectNode>& effect)
{
    m_effects.push_back(effect);
    effect->Join(m_owner);
}

void EffectsFacet::CopyFrom(const EffectsFacet& other)
{
    for (const NLEComPtr<EffectNode>& effect : other.m_effects)
        Adopt(static_cast<EffectNode*>(effect->Copy(true).get()));
}

std::vector<SharedParameters> EffectsFacet::Shown() const
{
    std::vector<SharedParameters> shown;
    for (const NLEComPtr<EffectNode>& effect : m_effects) {
        if (effect->IsEnabled() && !effect->IsOfSound())
            shown.push_back(effect->Parameters().Shared());
    }
    return shown;
}

std::vector<SharedParameters> EffectsFacet::Heard() const
{
    std::vector<SharedParameters> heard;
    for (const NLEComPtr<EffectNode>& effect : m_effects) {
        if (effect->IsEnabled() && effect->IsOfSound())
            heard.push_back(effect->Parameters().Shared());
    }
    return heard;
}

void EffectsFacet::ChangeRate(const NLERational& rate)
{
    for (const NLEComPtr<EffectNode>& effect : m_effects)
        effect->ChangeRate(rate);
}

void EffectsFacet::RescaleAxis(double factor)
{
    for (const NLEComPtr<EffectNode>& effect : m_effects)
        effect->Parameters().RescaleAxis(factor);
}

} // namespace nle

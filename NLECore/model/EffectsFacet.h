// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEEffects.h"
#include "NLECore/model/NodeFacets.h"
#include "NLECore/scene/Layer.h"

#include <vector>

namespace nle {

class EffectNode;

/// The effects that a clip or a composite carries.
class EffectsFacet final : public NodeFacet<INLEEffects>
{
public:
    explicit EffectsFacet(TimelineNode& node);
    ~EffectsFacet();

    HRESULT GetCount(int* count) override;
    HRESULT GetEffect(int index, INLETimeline** effect) override;
    HRESULT AddEffect(INLETimeline* effect, int index) override;
    HRESULT RemoveEffect(INLETimeline* effect) override;
    HRESULT MoveEffect(int from, int to) override;

    const std::vector<NLEComPtr<EffectNode>>& All() const { return m_effects; }
    /// Adds an effect of no clip as it stands; one that has no axis yet gets the clip's.
    void Adopt(const NLEComPtr<EffectNode>& effect);
    /// Adds copies of the effects of another clip, with their switches and the frames of their key
    /// frames.
    void CopyFrom(const EffectsFacet& other);
    /// The values of those of pictures, and of those of sound, that are switched on.
    std::vector<SharedParameters> Shown() const;
    std::vector<SharedParameters> Heard() const;

    /// Counts at the clip's rate from now on.
    void ChangeRate(const NLERational& rate);
    /// The same material is counted in \a factor times as many frames from now on.
    void RescaleAxis(double factor);

private:
    bool Has(int index) const { return index >= 0 && index < int(m_effects.size()); }

    TimelineNode& m_owner;
    std::vector<NLEComPtr<EffectNode>> m_effects;
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLELoudness.h"
#include "NLECore/model/NodeFacets.h"

#include <memory>

namespace nle {

class EffectNode;

/// Measures for an effect that normalises loudness.
class LoudnessFacet final : public NodeFacet<INLELoudness>
{
public:
    explicit LoudnessFacet(EffectNode& effect);
    ~LoudnessFacet();

    HRESULT Measure(NLELoudnessCallback callback, void* userData) override;
    HRESULT Cancel() override;
    HRESULT Apply() override;
    HRESULT GetResult(NLELoudnessRecord* record) override;

private:
    struct Jobs;

    EffectNode& m_effect;
    const std::unique_ptr<Jobs> m_jobs;
};

} // namespace nle

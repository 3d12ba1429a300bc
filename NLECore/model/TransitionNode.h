// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/ParameterFacet.h"
#include "NLECore/model/TimelineNode.h"
#include "NLECore/scene/Transition.h"

namespace nle {

/// Seconds that a transition lasts until it is trimmed.
constexpr int kTransitionSeconds = 1;

/// A transition: a child of a composite that is no clip. Its position, range and level say between
/// which clips it is (see LayerTransition); the rest of what clips have does nothing.
class TransitionNode final : public ComExtension<TimelineNode, INLETimelineTransition>
{
public:
    /// \a declaration is one of TransitionDeclarations().
    explicit TransitionNode(const Declaration& declaration);

    HRESULT QueryInterface(REFIID iid, void** out) override;
    HRESULT GetTransitionName(wchar_t* buffer, int capacity) override;

    int TotalLength() const override;
    NLESize PictureSize() const override { return {0, 0}; }
    bool PlaysMaterial() const override { return false; }
    bool IsTransition() const override { return true; }
    void ChangeRate(const NLERational& rate) override;

    ParameterFacet& Parameters() { return m_parameters; }
    const ParameterFacet& Parameters() const { return m_parameters; }
    /// The transition as a layer of its composite has it, without clips.
    LayerTransition AsLayer() const;

protected:
    NLEComPtr<TimelineNode> CopyContent(bool deep) const override;
    void Describe(Layer& /*layer*/) const override {}

private:
    ParameterFacet m_parameters;
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/AttachedNode.h"

namespace nle {

/// An effect of a clip: what its declaration says, switched by the node's own switch.
class EffectNode final : public ComExtension<AttachedNode, INLETimelineEffect>
{
public:
    /// \a declaration is one of those that outlive everything.
    explicit EffectNode(const Declaration& declaration);
    /// The effect behind a node, not a new reference; null for another one.
    static EffectNode* From(IUnknown* object);

    HRESULT GetEffectName(wchar_t* buffer, int capacity) override;

protected:
    NLEComPtr<TimelineNode> CopyContent(bool deep) const override;
};

} // namespace nle

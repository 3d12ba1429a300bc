// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/AttachedNode.h"
#include "NLECore/model/LoudnessFacet.h"

namespace nle {

/// An effect of a clip, on its pictures or its sound: what its declaration says, switched by the
/// node's own switch.
class EffectNode final : public ComExtension<AttachedNode, INLETimelineEffect>
{
public:
    /// \a declaration is one of those that outlive everything.
    explicit EffectNode(const Declaration& declaration);
    /// The effect behind a node, not a new reference; null for another one.
    static EffectNode* From(IUnknown* object);

    HRESULT QueryInterface(REFIID iid, void** out) override;
    HRESULT GetEffectName(wchar_t* buffer, int capacity) override;

    bool IsOfSound() const { return m_isOfSound; }

protected:
    NLEComPtr<TimelineNode> CopyContent(bool deep) const override;

private:
    const bool m_isOfSound;
    LoudnessFacet m_loudness; ///< answered by the effect that it is for
};

/// What an effect is that has this name, of pictures or of sound; null for none.
const Declaration* FindDeclaration(const QString& name);

} // namespace nle

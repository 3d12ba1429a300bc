// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/ParameterFacet.h"
#include "NLECore/model/TimelineNode.h"

namespace nle {

/// A node that is no clip but belongs to one: it has parameters, a name and a switch, and neither a
/// place of its own nor a picture. It is as long as its clip.
class AttachedNode : public TimelineNode
{
public:
    /// Answers what holds for it only.
    HRESULT QueryInterface(REFIID iid, void** out) override;
    HRESULT SetRenderFrameRate(NLERational rate) override;

    int TotalLength() const override;
    NLESize PictureSize() const override { return {0, 0}; }
    bool PlaysMaterial() const override { return false; }
    bool IsClip() const override { return false; }
    void ChangeRate(const NLERational& rate) override;

    ParameterFacet& Parameters() { return m_parameters; }
    const ParameterFacet& Parameters() const { return m_parameters; }
    /// The clip that it belongs to; null for none.
    const TimelineNode* Owner() const { return m_owner; }
    /// Gives it to a clip, or takes it from it. The times of its key frames stay as they are.
    void SetOwner(const TimelineNode* owner);
    /// Gives it to a clip whose frames its key frames count already.
    void Join(const TimelineNode& owner);
    /// The clip is going.
    void Abandon();

protected:
    explicit AttachedNode(const Declaration& declaration);
    void Describe(Layer& /*layer*/) const override {}

private:
    const TimelineNode* m_owner = nullptr;
    ParameterFacet m_parameters;
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/TimelineNode.h"

#include <vector>

namespace nle {

/// Composites that may lie one inside of the other; everything that walks the tree recurses.
constexpr int kDeepestNesting = 64;

/// A node that holds clips. Without a size of its own it takes its parent's.
class CompositeNode
    : public ComExtension<TimelineNode, INLETimelineComposite, INLETimelineCompositeEx>
{
public:
    explicit CompositeNode(const NLERational& frameRate);

    HRESULT GetClipCount(int* count) override;
    HRESULT GetEnumerator(int flags, INLETimelineEnumerator** enumerator) override;
    HRESULT GetEnumerator(int recursive, int flags, INLETimelineEnumerator** enumerator) override;
    HRESULT AddClip(INLETimeline* clip) override;
    HRESULT RemoveClip(INLETimeline* clip) override;

    int TotalLength() const override;
    NLESize PictureSize() const override;
    /// The size that counts as long as there is no parent.
    void SetOwnSize(NLESize size) { m_size = size; }
    bool PlaysMaterial() const override { return false; }
    void ChangeRate(const NLERational& rate) override;

    const std::vector<NLEComPtr<TimelineNode>>& Clips() const { return m_clips; }
    /// Adds a node that has no parent, as it stands.
    void Adopt(const NLEComPtr<TimelineNode>& clip);

protected:
    ~CompositeNode() override;
    NLEComPtr<TimelineNode> CopyContent(bool deep) const override;
    void Describe(Layer& layer) const override;

    /// What shows where no clip does, 0xAARRGGBB.
    virtual std::uint32_t DefaultBackground() const { return 0; }
    void CopyClipsTo(CompositeNode& copy) const;

private:
    bool IsSelfOrAncestor(const TimelineNode* node) const;
    /// Composites above this one and itself.
    int DepthFromTop() const;

    NLESize m_size;

    std::vector<NLEComPtr<TimelineNode>> m_clips;
};

/// A project: a composite with a picture and sound format.
class ProjectNode final : public ComExtension<CompositeNode, INLEProjectSetting>
{
public:
    explicit ProjectNode(const tagNLEProjectProfile& profile);

    HRESULT GetProfile(tagNLEProjectProfile* profile) override;
    HRESULT SetProfile(const tagNLEProjectProfile* profile) override;

    NLESize PictureSize() const override { return m_profile.frameSize; }
    void ChangeRate(const NLERational& rate) override;

    const tagNLEProjectProfile& Profile() const { return m_profile; }
    static bool IsValid(const tagNLEProjectProfile& profile);

protected:
    NLEComPtr<TimelineNode> CopyContent(bool deep) const override;
    std::uint32_t DefaultBackground() const override { return 0xFF000000u; }

private:
    tagNLEProjectProfile m_profile;
};

} // namespace nle

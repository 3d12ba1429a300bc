// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEFactory.h"
#include "NLECore/model/CompositeCache.h"
#include "NLECore/model/TimelineNode.h"

#include <vector>

namespace nle {

/// Composites that may lie one inside of the other; everything that walks the tree recurses.
constexpr int kDeepestNesting = 64;

/// 1920 × 1080, 25 frames a second, 48,000 stereo samples a second as 32-bit floats.
extern const tagNLEProjectProfile kDefaultProfile;

/// A node that holds clips. Without a size of its own it takes its parent's.
class CompositeNode
    : public ComExtension<TimelineNode, INLETimelineComposite, INLETimelineCompositeEx>
{
public:
    explicit CompositeNode(const NLERational& frameRate);
    /// How the caches of all composites are made. Without it they have none.
    static void SetCacheMaker(MakeCompositeCache make) { s_makeCache = make; }

    /// Answers the background cache as well, which is made when it is first asked for.
    HRESULT GetInterface(REFIID iid, void** out, int reserved1, int reserved2) override;

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

    /// What shows where no clip does, 0xAARRGGBB.
    std::uint32_t Background() const;
    /// All that was added: clips and transitions.
    const std::vector<NLEComPtr<TimelineNode>>& Clips() const { return m_clips; }
    /// The clips that can show and sound, in the order of the children of a snapshot.
    std::vector<const TimelineNode*> PlayingClips() const;
    /// Reads frames of \a snapshot, one of this node, from the background cache; null when there is
    /// none.
    std::unique_ptr<CachedFrames> OpenCachedFrames(const Snapshot& snapshot) const;
    /// Adds a node that has no parent, as it stands.
    void Adopt(const NLEComPtr<TimelineNode>& clip);

protected:
    ~CompositeNode() override;
    NLEComPtr<TimelineNode> CopyContent(bool deep) const override;
    void Describe(Layer& layer) const override;

    /// The background of a node whose bag has none.
    virtual std::uint32_t DefaultBackground() const { return 0; }
    void CopyClipsTo(CompositeNode& copy) const;

private:
    bool IsSelfOrAncestor(const TimelineNode* node) const;
    /// Composites above this one and itself.
    int DepthFromTop() const;

    NLESize m_size;
    static MakeCompositeCache s_makeCache;
    NLEComPtr<CompositeCache> m_cache;

    std::vector<NLEComPtr<TimelineNode>> m_clips;
};

/// A project: a composite with a picture and sound format, and the context of all that it holds.
class ProjectNode final : public ComExtension<CompositeNode, INLEProjectSetting, INLEBasin>
{
public:
    explicit ProjectNode(const tagNLEProjectProfile& profile);

    HRESULT GetProfile(tagNLEProjectProfile* profile) override;
    HRESULT SetProfile(const tagNLEProjectProfile* profile) override;

    /// Sets all settings of the context in a bag of any engine.
    HRESULT FillProperties(INLEProperties* properties) override;
    /// Takes every value of a bag; settings that it lacks stay. E_INVALIDARG for another engine's
    /// bag, for a known key with a value of the wrong type or range, and for numbers that are not
    /// finite; nothing is taken then.
    HRESULT TakeProperties(INLEProperties* properties) override;

    NLESize PictureSize() const override { return m_profile.frameSize; }
    void ChangeRate(const NLERational& rate) override;

    std::optional<RenderContext> OwnContext() const override;
    const PropertyBag::Values& ContextValues() const { return m_context; }
    /// As TakeProperties().
    HRESULT TakeContext(const PropertyBag::Values& values);

    const tagNLEProjectProfile& Profile() const { return m_profile; }
    static bool IsValid(const tagNLEProjectProfile& profile);

protected:
    NLEComPtr<TimelineNode> CopyContent(bool deep) const override;
    std::uint32_t DefaultBackground() const override;

private:
    tagNLEProjectProfile m_profile;
    PropertyBag::Values m_context; ///< every known key is there
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEFactory.h"
#include "NLECore/model/CompositeCache.h"
#include "NLECore/model/TimelineNode.h"

#include <atomic>
#include <cstdint>
#include <map>
#include <vector>

namespace nle {

/// Hears what becomes of the clips of a composite.
struct ClipWatch
{
    /// A clip has come, or its position, level or trim range is another one.
    virtual void ClipPlaced(TimelineNode& clip) = 0;
    /// A clip without a trim range of its own may be shorter or longer: what it holds has changed.
    virtual void ClipGrew(TimelineNode& clip) = 0;
    /// A clip is about to go.
    virtual void ClipGoes(TimelineNode& clip) = 0;

protected:
    ~ClipWatch() = default;
};

/// Composites that may lie one inside of the other; everything that walks the tree recurses.
constexpr int kDeepestNesting = 64;

/// 1920 × 1080, 25 frames a second, 48,000 stereo samples a second as 32-bit floats.
extern const tagNLEProjectProfile kDefaultProfile;

/// Gives what walks \a nodes, which it holds.
HRESULT GiveEnumerator(std::vector<NLEComPtr<TimelineNode>> nodes,
                       INLETimelineEnumerator** enumerator);

/// A node that holds clips. Without a size of its own it takes its parent's.
class CompositeNode
    : public ComExtension<TimelineNode, INLETimelineComposite, INLETimelineCompositeEx>
{
public:
    explicit CompositeNode(const NLERational& frameRate);
    /// How the caches of all composites are made; for any thread. Without it they have none.
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
    std::vector<NLEComPtr<TimelineNode>> Clips() const;
    /// The clips that can show and sound, in the order of the children of a snapshot.
    std::vector<const TimelineNode*> PlayingClips() const;
    /// Reads frames of \a snapshot, one of this node, from the background cache; null when there is
    /// none.
    std::unique_ptr<CachedFrames> OpenCachedFrames(const Snapshot& snapshot) const;
    /// Whether AddClip() takes a node.
    bool CanAdopt(const TimelineNode& node) const;
    /// Adds a node that has no parent, as it stands.
    void Adopt(const NLEComPtr<TimelineNode>& clip) { Restore(clip, NewOrder()); }
    /// A place behind all that there were.
    std::uint64_t NewOrder() { return ++m_lastOrder; }
    /// Adds a node that has no parent in a free place among the clips, as it stands.
    void Restore(const NLEComPtr<TimelineNode>& clip, std::uint64_t order);
    /// Lets a clip of this composite go; its TimelineNode::Order() leads back.
    void Drop(TimelineNode& clip);

    /// Who hears of the clips, not owned; null for nobody.
    ClipWatch* Watch() const { return m_watch; }
    void SetWatch(ClipWatch* watch) { m_watch = watch; }
    /// A clip of this composite has another place.
    void ClipPlaced(TimelineNode& clip);

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
    /// What this composite holds may be shorter or longer.
    void Grew();

    NLESize m_size;
    static std::atomic<MakeCompositeCache> s_makeCache;
    NLEComPtr<CompositeCache> m_cache;

    /// By their places, so that one that comes back stands where it stood.
    std::map<std::uint64_t, NLEComPtr<TimelineNode>> m_clips;
    std::uint64_t m_lastOrder = 0;
    ClipWatch* m_watch = nullptr;
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

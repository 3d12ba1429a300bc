// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEProperties.h"
#include "EngineApi/INLETimeline.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/EffectsFacet.h"
#include "NLECore/model/KeyFrameFacets.h"
#include "NLECore/model/MarkerFacet.h"
#include "NLECore/model/NodeFacets.h"
#include "NLECore/model/PropertyBag.h"
#include "NLECore/scene/Layer.h"

namespace nle {

class CompositeNode;
class TimelineNode;

/// Where a clip stands on its composite, and what of it plays there.
struct ClipPlace
{
    int position;                  ///< first frame on the composite
    int level;                     ///< higher covers lower
    std::optional<NLERange> range; ///< the trim range; none: all frames

    friend bool operator==(const ClipPlace& a, const ClipPlace& b);
};

/// Key under which a node's timeline type is kept, as text.
inline constexpr const wchar_t* kTimelineTypeKey = L"key_timeline_type";

/// A node's property bag: frame rate and length are live views of the node.
class NodeBag final : public PropertyBag
{
public:
    explicit NodeBag(TimelineNode* node) : m_node(node) {}
    /// The node is gone; the bag stays with its plain values.
    void Detach() { m_node = nullptr; }

protected:
    std::optional<Value> Read(std::wstring_view key) const override;
    HRESULT Write(std::wstring_view key, Value value) override;

private:
    TimelineNode* m_node;
};

/// What every node of the model has in common: placement, range, rate, properties, parent.
///
/// The model belongs to the thread that edits; an edit changes plain data and nothing else.
class TimelineNode : public ComObject<INLETimeline, INLEPropertyHost, INLERenderRegion>
{
public:
    /// Identifier under which a node of this engine tells its class.
    static constexpr _GUID kNodeId = {
        0x1D6E1A52, 0x0C1B, 0x4F5E, {0x9B, 0x0E, 0x6A, 0x0F, 0x55, 0x2C, 0x90, 0x13}};
    /// The node behind an engine interface, not a new reference; null for another engine's object.
    static TimelineNode* From(IUnknown* object);

    HRESULT QueryInterface(REFIID iid, void** out) override;

    HRESULT GetInterface(REFIID iid, void** out, int reserved1, int reserved2) override;
    HRESULT GetId(std::uint32_t* id) override;
    HRESULT GetParent(INLETimeline** parent) override;
    HRESULT GetProperties(INLEProperties** properties) override;
    HRESULT SetRange(const NLERange* range) override;
    HRESULT GetRange(NLERange* range) override;
    HRESULT GetTotalRange(NLERange* range) override;
    HRESULT SetRenderFrameRate(NLERational rate) override;
    HRESULT GetRenderFrameRate(NLERational* rate) override;
    HRESULT SetLevel(int level) override;
    HRESULT GetLevel(int* level) override;
    HRESULT SetPosition(int position) override;
    HRESULT GetPosition(int* position) override;
    HRESULT SetMarginMode(tagNLEMarginMode mode) override;
    HRESULT GetMarginMode(tagNLEMarginMode* mode) override;
    HRESULT SetEnabled(bool enabled) override;
    HRESULT GetEnabled(bool* enabled) override;
    HRESULT Clone(bool deep, INLETimeline** clone) override;

    HRESULT GetRenderRegion(NLERectF* region) override;
    HRESULT GetCurrent(bool* current) override;
    HRESULT SetCurrent(bool current) override;

    /// Frames that the node has, at its render frame rate.
    virtual int TotalLength() const = 0;
    /// Picture size in pixels; empty when the node shows none of its own.
    virtual NLESize PictureSize() const = 0;
    /// What Clone gives.
    NLEComPtr<TimelineNode> Copy(bool deep) const;
    /// Everything that a render needs of the node.
    Snapshot MakeSnapshot() const;
    /// The snapshot of a node that is held by the one that is rendered: without a context.
    std::shared_ptr<Layer> MakeLayer() const;

    /// The trim range; all frames as long as none was set.
    NLERange Range() const;
    /// Makes the range that plays now the node's own, whatever becomes of its length.
    void PinRange();
    const NLERational& FrameRate() const { return m_frameRate; }
    ClipPlace Place() const;
    void SetPlace(const ClipPlace& place);
    int Position() const { return m_placement.position; }
    int Level() const { return m_placement.level; }
    bool IsEnabled() const { return m_placement.enabled; }
    PropertyBag& Bag() const { return *m_bag; }
    /// Playing speed, above 0; 1 when none is set or enabled.
    double Speed() const;
    bool IsFrozen() const;
    /// Whether speed and freeze apply: to what plays material, not to what holds clips.
    virtual bool PlaysMaterial() const { return true; }
    /// Whether a composite can hold it.
    virtual bool IsClip() const { return true; }
    /// Changes what the speed depends on and keeps the material that the trim range shows.
    template <typename Change>
    void ChangeSpeed(Change change);

    PlacementSettings& Placement() { return m_placement; }
    const PlacementSettings& Placement() const { return m_placement; }
    BlendFacet& Blend() { return m_blend; }
    TransformFacet& Transform() { return m_transform; }
    AudioFacet& Audio() { return m_audio; }
    VideoFacet& Video() { return m_video; }
    SourceSettings& Source() { return m_source; }
    const SourceSettings& Source() const { return m_source; }
    MixerFacet& Mixer() { return m_mixer; }
    /// Of the levels of a composite.
    LevelMap& Levels() { return m_levels; }
    const LevelMap& Levels() const { return m_levels; }
    MarkerFacet& Markers() { return m_markers; }
    const MarkerFacet& Markers() const { return m_markers; }
    EffectsFacet& Effects() { return m_effects; }
    const EffectsFacet& Effects() const { return m_effects; }
    KeyFrameFacet& KeyFrames() { return m_keyFrames; }
    const KeyFrameFacet& KeyFrames() const { return m_keyFrames; }
    const BlendFacet& Blend() const { return m_blend; }
    const TransformFacet& Transform() const { return m_transform; }
    const AudioFacet& Audio() const { return m_audio; }
    const VideoFacet& Video() const { return m_video; }
    const MixerFacet& Mixer() const { return m_mixer; }

    /// Whether the node is a TransitionNode: it stands among the clips of a composite and is none.
    virtual bool IsTransition() const { return false; }

    /// Whether the node plays a file; then the keys of NLEKey::Source are its settings.
    virtual bool PlaysFile() const { return false; }
    /// Takes other settings of what plays a file; E_INVALIDARG, and nothing changed, for streams
    /// that the file has not.
    virtual HRESULT ChangeSource(const SourceSettings& /*settings*/) { return Refuse(E_NOTIMPL); }

    /// What every render of the project sees, if the node is one.
    virtual std::optional<RenderContext> OwnContext() const { return std::nullopt; }
    CompositeNode* Parent() const { return m_parent; }
    /// That of GetId().
    std::uint32_t Id() const { return m_id; }
    /// Place among the clips of the parent; see CompositeNode::Restore.
    std::uint64_t Order() const { return m_order; }
    void SetParent(CompositeNode* parent, std::uint64_t order = 0)
    {
        m_parent = parent;
        m_order = order;
    }
    /// Counts ranges at \a rate from now on, keeping the instants of in and out point.
    virtual void ChangeRate(const NLERational& rate);

protected:
    explicit TimelineNode(const NLERational& frameRate);
    ~TimelineNode() override;

    /// A new node with the same content; placement and properties are copied by Clone.
    virtual NLEComPtr<TimelineNode> CopyContent(bool deep) const = 0;
    /// Adds what the node shows to \a layer, whose common fields are filled.
    virtual void Describe(Layer& layer) const = 0;
    /// The same material is counted in \a factor times as many frames from now on.
    virtual void RescaleTimes(double /*factor*/) {}

private:
    /// The outermost project's.
    RenderContext Context() const;
    /// Does \a change, and tells the composite if the clip has another place then.
    template <typename Change>
    void Replace(Change change);

    const std::uint32_t m_id;
    PlacementSettings m_placement;
    SourceSettings m_source;
    NLERational m_frameRate;
    bool m_current = false;
    CompositeNode* m_parent = nullptr;
    std::uint64_t m_order = 0;
    NLEComPtr<NodeBag> m_bag;
    BlendFacet m_blend;
    TransformFacet m_transform;
    AudioFacet m_audio;
    VideoFacet m_video;
    MixerFacet m_mixer;
    LevelMap m_levels;
    MarkerFacet m_markers;
    KeyFrameFacet m_keyFrames;
    KeyFrameStatusFacet m_keyFrameStatus;
    EffectsFacet m_effects;
};

} // namespace nle

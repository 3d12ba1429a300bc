// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/TimelineNode.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "EngineApi/NLEKey.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/SourceKeys.h"
#include "NLECore/scene/FrameMath.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace nle {

namespace {

std::uint32_t NextId()
{
    static std::atomic<std::uint32_t> s_last{0};
    return ++s_last;
}

QString Named(std::wstring_view key)
{
    return FromWide(key);
}

} // namespace

bool operator==(const ClipPlace& a, const ClipPlace& b)
{
    const bool hasRange = bool(a.range);
    return a.position == b.position && a.level == b.level && hasRange == bool(b.range) &&
           (!hasRange || (a.range->in == b.range->in && a.range->out == b.range->out));
}

std::optional<PropertyBag::Value> NodeBag::Read(std::wstring_view key) const
{
    if (m_node && key == NLEKey::Render::kRender_Framerate)
        return m_node->FrameRate();
    if (m_node && key == NLEKey::Render::kRender_TotalFrameCount)
        return m_node->TotalLength();
    if (m_node && m_node->PlaysFile() && IsSourceKey(key))
        return SourceValue(m_node->Source(), key);
    return PropertyBag::Read(key);
}

HRESULT NodeBag::Write(std::wstring_view key, Value value)
{
    if (m_node && key == NLEKey::Render::kRender_TotalFrameCount)
        return Refuse(E_ACCESSDENIED, NLEReason_ReadOnly, Named(key));
    if (m_node && key == NLEKey::Render::kRender_Framerate) {
        const NLERational* rate = std::get_if<NLERational>(&value);
        return rate ? m_node->SetRenderFrameRate(*rate) : Refuse(E_INVALIDARG);
    }
    if (m_node && m_node->PlaysFile() && IsSourceKey(key)) {
        SourceSettings settings = m_node->Source();
        return SetSourceValue(settings, key, value)
                   ? m_node->ChangeSource(settings)
                   : Refuse(E_INVALIDARG, NLEReason_OutOfRange, Named(key));
    }
    // A frozen clip has no length of its own: it goes on playing for as long as it did.
    if (m_node && key == NLEKey::Freeze::kFreeze_Enabled)
        m_node->PinRange();
    if (m_node && (key == NLEKey::Speed::kScale || key == NLEKey::Speed::kEnabled)) {
        m_node->ChangeSpeed([&] { PropertyBag::Write(key, std::move(value)); });
        return S_OK;
    }
    return PropertyBag::Write(key, std::move(value));
}

TimelineNode* TimelineNode::From(IUnknown* object)
{
    void* node = nullptr;
    if (!object || FAILED(object->QueryInterface(kNodeId, &node)))
        return nullptr;
    auto* result = static_cast<TimelineNode*>(node);
    result->Release();
    return result;
}

TimelineNode::TimelineNode(const NLERational& frameRate)
    : m_id(NextId())
    , m_frameRate(frameRate)
    , m_bag(MakeCom<NodeBag>(this))
    , m_blend(static_cast<INLETimeline&>(*this))
    , m_transform(static_cast<INLETimeline&>(*this))
    , m_audio(static_cast<INLETimeline&>(*this))
    , m_video(*this)
    , m_mixer(static_cast<INLETimeline&>(*this))
    , m_markers(static_cast<INLETimeline&>(*this))
    , m_keyFrames(*this)
    , m_keyFrameStatus(static_cast<INLETimeline&>(*this), m_keyFrames)
    , m_effects(*this)
{
}

TimelineNode::~TimelineNode()
{
    m_bag->Detach();
}

HRESULT TimelineNode::QueryInterface(REFIID iid, void** out)
{
    if (!out)
        return Refuse(E_POINTER);
    if (iid == kNodeId)
        *out = this;
    else if (!(ComDetail::Offer<INLEBlendSetting>(&m_blend, iid, out) ||
               ComDetail::Offer<INLETransform>(&m_transform, iid, out) ||
               ComDetail::Offer<INLEAudioStreamProcess>(&m_audio, iid, out) ||
               ComDetail::Offer<INLEVideoStreamProcess>(&m_video, iid, out) ||
               ComDetail::Offer<INLEMixerSetting>(&m_mixer, iid, out) ||
               ComDetail::Offer<INLEMarkers>(&m_markers, iid, out) ||
               ComDetail::Offer<INLEKeyFrameList>(&m_keyFrames, iid, out) ||
               ComDetail::Offer<INLEKeyFrameStatus>(&m_keyFrameStatus, iid, out) ||
               ComDetail::Offer<INLEEffects>(&m_effects, iid, out)))
        return ComObject::QueryInterface(iid, out);
    AddRef();
    return S_OK;
}

HRESULT TimelineNode::GetInterface(REFIID iid, void** out, int /*reserved1*/, int /*reserved2*/)
{
    return QueryInterface(iid, out);
}

HRESULT TimelineNode::GetId(std::uint32_t* id)
{
    return GiveValue(id, m_id);
}

HRESULT TimelineNode::GetParent(INLETimeline** parent)
{
    if (!parent)
        return Refuse(E_POINTER);
    *parent = m_parent;
    if (m_parent)
        m_parent->AddRef();
    return S_OK;
}

HRESULT TimelineNode::GetProperties(INLEProperties** properties)
{
    return NLEComPtr<INLEProperties>(m_bag).copyTo(properties);
}

HRESULT TimelineNode::SetRange(const NLERange* range)
{
    if (!range)
        return Refuse(E_POINTER);
    Replace([&] { m_placement.range = *range; });
    return S_OK;
}

HRESULT TimelineNode::GetRange(NLERange* range)
{
    return ComGuard([&] { return GiveValue(range, Range()); });
}

HRESULT TimelineNode::GetTotalRange(NLERange* range)
{
    return ComGuard([&] { return GiveValue(range, NLERange{0, TotalLength() - 1}); });
}

HRESULT TimelineNode::SetRenderFrameRate(NLERational rate)
{
    // A clip counts as its composite does.
    if (!IsRate(rate) || (m_parent && ToDouble(rate) != ToDouble(m_parent->FrameRate())))
        return Refuse(E_INVALIDARG);
    ChangeRate(rate);
    return S_OK;
}

HRESULT TimelineNode::GetRenderFrameRate(NLERational* rate)
{
    return GiveValue(rate, m_frameRate);
}

HRESULT TimelineNode::SetLevel(int level)
{
    Replace([&] { m_placement.level = level; });
    return S_OK;
}

HRESULT TimelineNode::GetLevel(int* level)
{
    return GiveValue(level, m_placement.level);
}

HRESULT TimelineNode::SetPosition(int position)
{
    Replace([&] { m_placement.position = position; });
    return S_OK;
}

HRESULT TimelineNode::GetPosition(int* position)
{
    return GiveValue(position, m_placement.position);
}

HRESULT TimelineNode::SetMarginMode(tagNLEMarginMode mode)
{
    return SetField<&PlacementSettings::margin>(m_placement, mode) ? S_OK : Refuse(E_INVALIDARG);
}

HRESULT TimelineNode::GetMarginMode(tagNLEMarginMode* mode)
{
    return GiveValue(mode, m_placement.margin);
}

HRESULT TimelineNode::SetEnabled(bool enabled)
{
    m_placement.enabled = enabled;
    return S_OK;
}

HRESULT TimelineNode::GetEnabled(bool* enabled)
{
    return GiveValue(enabled, m_placement.enabled);
}

HRESULT TimelineNode::Clone(bool deep, INLETimeline** clone)
{
    return ComGuard([&] {
        if (!clone)
            return Refuse(E_POINTER);
        *clone = nullptr;
        *clone = Copy(deep).detach();
        return S_OK;
    });
}

NLEComPtr<TimelineNode> TimelineNode::Copy(bool deep) const
{
    NLEComPtr<TimelineNode> copy = CopyContent(deep);
    copy->m_frameRate = m_frameRate;
    copy->m_placement = m_placement;
    copy->m_bag->SetAll(m_bag->All());
    copy->m_blend.settings = m_blend.settings;
    copy->m_transform.settings = m_transform.settings;
    copy->m_audio.settings = m_audio.settings;
    copy->m_video.settings = m_video.settings;
    copy->m_source = m_source;
    copy->m_mixer.settings = m_mixer.settings;
    copy->m_levels = m_levels;
    copy->m_markers.settings = m_markers.settings;
    copy->m_keyFrames.Restore(*m_keyFrames.Stored());
    copy->m_keyFrames.enabled = m_keyFrames.enabled;
    copy->m_effects.CopyFrom(m_effects);
    return copy;
}

HRESULT TimelineNode::GetRenderRegion(NLERectF* region)
{
    const NLESize size = PictureSize();
    return GiveValue(region, NLERectF{0, 0, double(size.width), double(size.height)});
}

HRESULT TimelineNode::GetCurrent(bool* current)
{
    return GiveValue(current, m_current);
}

HRESULT TimelineNode::SetCurrent(bool current)
{
    m_current = current;
    return S_OK;
}

NLERange TimelineNode::Range() const
{
    return m_placement.range ? *m_placement.range : NLERange{0, TotalLength() - 1};
}

ClipPlace TimelineNode::Place() const
{
    return {m_placement.position, m_placement.level, m_placement.range};
}

void TimelineNode::SetPlace(const ClipPlace& place)
{
    Replace([&] {
        m_placement.position = place.position;
        m_placement.level = place.level;
        m_placement.range = place.range;
    });
}

template <typename Change>
void TimelineNode::Replace(Change change)
{
    const ClipPlace before = Place();
    change();
    if (m_parent && !(before == Place()))
        m_parent->ClipPlaced(*this);
}

void TimelineNode::PinRange()
{
    m_placement.range = Range();
}

void TimelineNode::ChangeRate(const NLERational& rate)
{
    const NLERational old = std::exchange(m_frameRate, rate);
    if (ToDouble(old) == ToDouble(rate))
        return;
    if (m_placement.range)
        Replace([&] { m_placement.range = FrameSpan{*m_placement.range, old}.At(rate); });
    m_keyFrames.RescaleAxis(ToDouble(rate) / ToDouble(old));
    m_markers.Rescale(ToDouble(rate) / ToDouble(old));
    m_effects.ChangeRate(rate);
    RescaleTimes(ToDouble(rate) / ToDouble(old));
    AudioSettings& sound = m_audio.settings;
    sound.fadeInFrames = FrameTime{double(sound.fadeInFrames), old}.NearestAt(rate);
    sound.fadeOutFrames = FrameTime{double(sound.fadeOutFrames), old}.NearestAt(rate);
    int frozen = 0;
    if (m_bag->GetInt(NLEKey::Freeze::kFreeze_Frame, &frozen) == S_OK)
        m_bag->SetInt(NLEKey::Freeze::kFreeze_Frame,
                      FrameTime{double(frozen), old}.NearestAt(rate));
}

double TimelineNode::Speed() const
{
    constexpr double slowest = 0.01;
    constexpr double fastest = 100;
    NLERational scale = {1, 1};
    if (!PlaysMaterial() || m_bag->IntOr(NLEKey::Speed::kEnabled, 0) != 1 ||
        FAILED(m_bag->GetRational(NLEKey::Speed::kScale, &scale)) || !IsRate(scale))
        return 1;
    return std::clamp(ToDouble(scale), slowest, fastest);
}

bool TimelineNode::IsFrozen() const
{
    return PlaysMaterial() && m_bag->IntOr(NLEKey::Freeze::kFreeze_Enabled, 0) == 1;
}

template <typename Change>
void TimelineNode::ChangeSpeed(Change change)
{
    const double before = Speed();
    change();
    const double after = Speed();
    if (before == after)
        return;
    m_keyFrames.RescaleAxis(before / after);
    m_markers.Rescale(before / after);
    m_effects.RescaleAxis(before / after);
    RescaleTimes(before / after);
    if (m_placement.range)
        Replace([&] { m_placement.range = ScaleRange(*m_placement.range, before / after); });
    else if (m_parent)
        m_parent->ClipPlaced(*this);
}

RenderContext TimelineNode::Context() const
{
    RenderContext context;
    for (const TimelineNode* node = this; node; node = node->m_parent)
        context = node->OwnContext().value_or(context);
    return context;
}

Snapshot TimelineNode::MakeSnapshot() const
{
    const std::shared_ptr<Layer> root = MakeLayer();
    root->context = Context();
    return root;
}

std::shared_ptr<Layer> TimelineNode::MakeLayer() const
{
    auto layer = std::make_shared<Layer>();
    layer->range = Range();
    layer->position = m_placement.position;
    layer->level = m_placement.level;
    layer->frameRate = m_frameRate;
    layer->margin = m_placement.margin;
    layer->mode = NLERenderMode(m_bag->IntOr(NLEKey::Render::kRender_Mode, NLERender_All));
    layer->size = PictureSize();
    layer->speed = Speed();
    if (IsFrozen())
        layer->frozenFrame =
            m_bag->IntOr(NLEKey::Freeze::kFreeze_Frame, ClampToInt(layer->range.in * layer->speed));
    layer->blend = m_blend.settings;
    layer->transform = m_transform.settings;
    layer->audio = m_audio.settings;
    layer->source = m_source;
    layer->keyFrames = m_keyFrames.Curve();
    layer->effects = m_effects.Shown();
    layer->soundEffects = m_effects.Heard();
    Describe(*layer);
    return layer;
}

} // namespace nle

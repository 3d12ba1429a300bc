// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/CompositeNode.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "EngineApi/NLEKey.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/TransitionNode.h"
#include "NLECore/render/CachedFrames.h"
#include "NLECore/scene/FrameMath.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace nle {

namespace {

constexpr NLESize kDefaultSize = {1920, 1080};
/// Number of interleaved 32-bit floats among the sample formats.
constexpr int kSampleFormatFloat = 3;

/// Composites that \a node holds one inside of the other, itself included.
int DepthBelow(const TimelineNode& node)
{
    const auto* composite = dynamic_cast<const CompositeNode*>(&node);
    int deepest = 0;
    if (composite) {
        for (const NLEComPtr<TimelineNode>& clip : composite->Clips())
            deepest = std::max(deepest, DepthBelow(*clip));
    }
    return composite ? deepest + 1 : 0;
}

/// Whether a setting of the context can be used; unknown ones only have to be numbers.
bool IsContextValue(const std::wstring& key, const PropertyBag::Value& value)
{
    constexpr double smallestScale = 0.05;
    const double* number = std::get_if<double>(&value);
    const int* whole = std::get_if<int>(&value);
    if (number && !std::isfinite(*number))
        return false;
    if (key == NLEKey::Context::kContext_PreviewScale)
        return number && *number >= smallestScale && *number <= 1;
    if (key == NLEKey::Context::kContext_BitDepth)
        return whole && (*whole == kUsualDepth || *whole == kDeepDepth);
    return (key != NLEKey::Context::kContext_BackgroundColor &&
            key != NLEKey::Context::kContext_SmoothScaling) ||
           whole;
}

/// Writes a value into a bag of any engine.
struct WriteValue
{
    INLEProperties& bag;
    const wchar_t* key;

    HRESULT operator()(int value) const { return bag.SetInt(key, value); }
    HRESULT operator()(double value) const { return bag.SetDouble(key, value); }
    HRESULT operator()(const NLERational& value) const { return bag.SetRational(key, value); }
    HRESULT operator()(const PropertyBag::Text& value) const
    {
        return bag.SetString(key, value->c_str());
    }
};

/// Walks a list of clips that it holds itself.
class Enumerator final : public ComObject<INLETimelineEnumerator>
{
public:
    explicit Enumerator(std::vector<NLEComPtr<TimelineNode>> clips) : m_clips(std::move(clips)) {}

    HRESULT IsEmpty(bool* empty) override { return GiveValue(empty, m_clips.empty()); }
    HRESULT Next() override
    {
        if (m_index < m_clips.size())
            ++m_index;
        return m_index < m_clips.size() ? S_OK : S_FALSE;
    }
    HRESULT GetCurrent(INLETimeline** clip) override
    {
        if (!clip)
            return Refuse(E_POINTER);
        *clip = nullptr;
        if (m_index >= m_clips.size())
            return Refuse(E_FAIL, NLEReason_NothingThere);
        return NLEComPtr<INLETimeline>(m_clips[m_index]).copyTo(clip);
    }

private:
    std::vector<NLEComPtr<TimelineNode>> m_clips;
    size_t m_index = 0;
};

/// Leaves out what \a levels leave out of a clip. Mixer strips mute.
void ApplyLevel(const LevelMap& levels, Layer& clip)
{
    if (levels.empty())
        return;
    const bool isHidden = SettingsOf(levels, clip.level).hidden;
    if (IsOutplayed(levels, clip.level) || (isHidden && clip.mode == NLERender_VideoOnly))
        clip.range = {0, -1};
    else if (isHidden)
        clip.mode = NLERender_AudioOnly;
}

void AppendRecursively(const CompositeNode& from, std::vector<NLEComPtr<TimelineNode>>& to)
{
    for (const NLEComPtr<TimelineNode>& clip : from.Clips()) {
        to.push_back(clip);
        if (const auto* composite = dynamic_cast<const CompositeNode*>(clip.get()))
            AppendRecursively(*composite, to);
    }
}

} // namespace

std::atomic<MakeCompositeCache> CompositeNode::s_makeCache{nullptr};

HRESULT GiveEnumerator(std::vector<NLEComPtr<TimelineNode>> nodes,
                       INLETimelineEnumerator** enumerator)
{
    return GiveNew<Enumerator>(enumerator, std::move(nodes));
}

const tagNLEProjectProfile kDefaultProfile = {
    kDefaultSize, {25000000, 1000000}, 48000, 2, kSampleFormatFloat};

CompositeNode::CompositeNode(const NLERational& frameRate)
    : ComExtension(frameRate), m_size(kDefaultSize)
{
}

CompositeNode::~CompositeNode()
{
    if (m_cache)
        m_cache->Detach();
    for (const auto& [order, clip] : m_clips)
        clip->SetParent(nullptr);
}

HRESULT CompositeNode::GetInterface(REFIID iid, void** out, int reserved1, int reserved2)
{
    return ComGuard([&] {
        const MakeCompositeCache make = s_makeCache;
        if (iid != INLEBackgroundCache::Iid || !make)
            return ComExtension::GetInterface(iid, out, reserved1, reserved2);
        if (!m_cache)
            m_cache = make([this] { return MakeSnapshot(); });
        return m_cache->QueryInterface(iid, out);
    });
}

std::unique_ptr<CachedFrames> CompositeNode::OpenCachedFrames(const Snapshot& snapshot) const
{
    return m_cache ? m_cache->OpenFrames(snapshot) : nullptr;
}

HRESULT CompositeNode::GetClipCount(int* count)
{
    return GiveValue(count, int(m_clips.size()));
}

HRESULT CompositeNode::GetEnumerator(int /*flags*/, INLETimelineEnumerator** enumerator)
{
    return GetEnumerator(0, 1, enumerator);
}

HRESULT CompositeNode::GetEnumerator(int recursive, int /*flags*/,
                                     INLETimelineEnumerator** enumerator)
{
    return ComGuard([&] {
        std::vector<NLEComPtr<TimelineNode>> clips;
        if (recursive)
            AppendRecursively(*this, clips);
        else
            clips = Clips();
        return GiveEnumerator(std::move(clips), enumerator);
    });
}

HRESULT CompositeNode::AddClip(INLETimeline* clip)
{
    return ComGuard([&] {
        TimelineNode* node = TimelineNode::From(clip);
        if (!node || !CanAdopt(*node))
            return Refuse(E_INVALIDARG, NLEReason_WrongObject);
        Adopt(node);
        node->ChangeRate(FrameRate());
        return S_OK;
    });
}

HRESULT CompositeNode::RemoveClip(INLETimeline* clip)
{
    TimelineNode* node = TimelineNode::From(clip);
    if (!node || node->Parent() != this)
        return Refuse(E_INVALIDARG, NLEReason_WrongObject);
    return ComGuard([&] {
        Drop(*node);
        return S_OK;
    });
}

std::vector<NLEComPtr<TimelineNode>> CompositeNode::Clips() const
{
    std::vector<NLEComPtr<TimelineNode>> clips;
    clips.reserve(m_clips.size());
    for (const auto& [order, clip] : m_clips)
        clips.push_back(clip);
    return clips;
}

bool CompositeNode::CanAdopt(const TimelineNode& node) const
{
    return node.IsClip() && !node.Parent() && !IsSelfOrAncestor(&node) &&
           DepthFromTop() + DepthBelow(node) <= kDeepestNesting;
}

void CompositeNode::Restore(const NLEComPtr<TimelineNode>& clip, std::uint64_t order)
{
    m_clips[order] = clip;
    clip->SetParent(this, order);
    ClipPlaced(*clip);
}

void CompositeNode::Drop(TimelineNode& clip)
{
    if (m_watch)
        m_watch->ClipGoes(clip);
    const auto found = m_clips.find(clip.Order());
    const NLEComPtr<TimelineNode> kept = found->second;
    m_clips.erase(found);
    clip.SetParent(nullptr);
    Grew();
}

void CompositeNode::ClipPlaced(TimelineNode& clip)
{
    if (m_watch)
        m_watch->ClipPlaced(clip);
    Grew();
}

void CompositeNode::Grew()
{
    CompositeNode* parent = Parent();
    if (!parent || Placement().range)
        return;
    if (parent->m_watch)
        parent->m_watch->ClipGrew(*this);
    parent->Grew();
}

bool CompositeNode::IsSelfOrAncestor(const TimelineNode* node) const
{
    for (const CompositeNode* holder = this; holder; holder = holder->Parent()) {
        if (holder == node)
            return true;
    }
    return false;
}

int CompositeNode::DepthFromTop() const
{
    int depth = 1;
    for (const CompositeNode* holder = Parent(); holder; holder = holder->Parent())
        ++depth;
    return depth;
}

int CompositeNode::TotalLength() const
{
    std::int64_t end = 0;
    for (const auto& [order, clip] : m_clips) {
        if (!clip->IsTransition())
            end = std::max(end, clip->Position() + NLERangeLength(clip->Range()));
    }
    return int(std::min<std::int64_t>(end, std::numeric_limits<int>::max()));
}

NLESize CompositeNode::PictureSize() const
{
    return Parent() ? Parent()->PictureSize() : m_size;
}

void CompositeNode::ChangeRate(const NLERational& rate)
{
    const NLERational old = FrameRate();
    TimelineNode::ChangeRate(rate);
    for (const auto& [order, clip] : m_clips) {
        clip->SetPosition(FrameTime{double(clip->Position()), old}.NearestAt(rate));
        clip->ChangeRate(rate);
    }
}

NLEComPtr<TimelineNode> CompositeNode::CopyContent(bool deep) const
{
    NLEComPtr<CompositeNode> copy = MakeCom<CompositeNode>(FrameRate());
    copy->SetOwnSize(PictureSize());
    if (deep)
        CopyClipsTo(*copy);
    return copy;
}

void CompositeNode::CopyClipsTo(CompositeNode& copy) const
{
    for (const auto& [order, clip] : m_clips)
        copy.Adopt(clip->Copy(true));
}

std::uint32_t CompositeNode::Background() const
{
    return std::uint32_t(
        Bag().IntOr(NLEKey::Render::kRender_BackgroundColor, int(DefaultBackground())));
}

void CompositeNode::Describe(Layer& layer) const
{
    layer.kind = LayerKind::Composite;
    layer.argb = Background();
    layer.guid = Bag().TextOrEmpty(NLEKey::Timeline::kGuid);
    layer.mixer = Mixer().settings;
    std::vector<std::shared_ptr<Layer>> children;
    for (const TimelineNode* clip : PlayingClips())
        children.push_back(clip->MakeLayer());
    layer.children.assign(children.begin(), children.end());
    for (const auto& [order, clip] : m_clips) {
        if (clip->IsTransition() && clip->IsEnabled())
            layer.transitions.push_back(static_cast<const TransitionNode&>(*clip).AsLayer());
    }
    FindTransitionClips(layer);
    // Last: what transitions lead between does not depend on what plays now.
    for (const std::shared_ptr<Layer>& child : children)
        ApplyLevel(Levels(), *child);
}

std::vector<const TimelineNode*> CompositeNode::PlayingClips() const
{
    std::vector<const TimelineNode*> clips;
    for (const auto& [order, clip] : m_clips) {
        if (clip->IsEnabled() && !clip->IsTransition())
            clips.push_back(clip.get());
    }
    std::stable_sort(clips.begin(), clips.end(), [](const TimelineNode* a, const TimelineNode* b) {
        return a->Level() < b->Level();
    });
    return clips;
}

ProjectNode::ProjectNode(const tagNLEProjectProfile& profile)
    : ComExtension(profile.frameRate)
    , m_profile(profile)
    , m_context{{NLEKey::Context::kContext_BackgroundColor, int(0xFF000000u)},
                {NLEKey::Context::kContext_BitDepth, kUsualDepth},
                {NLEKey::Context::kContext_PreviewScale, 1.0},
                {NLEKey::Context::kContext_SmoothScaling, 1}}
{
}

bool ProjectNode::IsValid(const tagNLEProjectProfile& profile)
{
    return profile.frameSize.width > 0 && profile.frameSize.height > 0 && IsRate(profile.frameRate);
}

HRESULT ProjectNode::GetProfile(tagNLEProjectProfile* profile)
{
    return GiveValue(profile, m_profile);
}

HRESULT ProjectNode::SetProfile(const tagNLEProjectProfile* profile)
{
    if (!profile)
        return Refuse(E_POINTER);
    if (!IsValid(*profile))
        return Refuse(E_INVALIDARG);
    m_profile = *profile;
    ChangeRate(profile->frameRate);
    return S_OK;
}

HRESULT ProjectNode::FillProperties(INLEProperties* properties)
{
    if (!properties)
        return Refuse(E_POINTER);
    for (const auto& [key, value] : m_context) {
        const HRESULT result = std::visit(WriteValue{*properties, key.c_str()}, value);
        if (FAILED(result))
            return result;
    }
    return S_OK;
}

HRESULT ProjectNode::TakeProperties(INLEProperties* properties)
{
    return ComGuard([&] {
        if (!properties)
            return Refuse(E_POINTER);
        const PropertyBag* bag = PropertyBag::From(properties);
        return bag ? TakeContext(bag->All()) : Refuse(E_INVALIDARG, NLEReason_WrongObject);
    });
}

HRESULT ProjectNode::TakeContext(const PropertyBag::Values& values)
{
    for (const auto& [key, value] : values) {
        if (!IsContextValue(key, value))
            return Refuse(E_INVALIDARG, NLEReason_OutOfRange, FromWide(key));
    }
    PropertyBag::Values context = m_context;
    for (const auto& [key, value] : values)
        context[key] = value;
    m_context.swap(context);
    return S_OK;
}

std::optional<RenderContext> ProjectNode::OwnContext() const
{
    return RenderContext{std::get<double>(m_context.at(NLEKey::Context::kContext_PreviewScale)),
                         std::get<int>(m_context.at(NLEKey::Context::kContext_SmoothScaling)) != 0,
                         std::get<int>(m_context.at(NLEKey::Context::kContext_BitDepth))};
}

std::uint32_t ProjectNode::DefaultBackground() const
{
    return std::uint32_t(std::get<int>(m_context.at(NLEKey::Context::kContext_BackgroundColor)));
}

void ProjectNode::ChangeRate(const NLERational& rate)
{
    CompositeNode::ChangeRate(rate);
    m_profile.frameRate = rate;
}

NLEComPtr<TimelineNode> ProjectNode::CopyContent(bool deep) const
{
    NLEComPtr<ProjectNode> copy = MakeCom<ProjectNode>(m_profile);
    copy->m_context = m_context;
    if (deep)
        CopyClipsTo(*copy);
    return copy;
}

} // namespace nle

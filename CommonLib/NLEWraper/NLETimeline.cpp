// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/NLETimeline.h"

#include "CommonLib/NLEWraper/EngineCall_p.h"
#include "CommonLib/NLEWraper/FAudioStreamProcessHelper.h"
#include "CommonLib/NLEWraper/FPreViewRenderHelper.h"
#include "CommonLib/NLEWraper/FTimelineBlendingHelper.h"
#include "CommonLib/NLEWraper/FTimelineTransformHelper.h"
#include "CommonLib/NLEWraper/FVideoStreamProcessHelper.h"
#include "EngineApi/NLEKey.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

/// \a frames cut at the greatest int.
int ToFrames(std::int64_t frames)
{
    return static_cast<int>(std::min<std::int64_t>(frames, std::numeric_limits<int>::max()));
}

/// Length of \a node's range; an unknown range is empty.
std::int64_t PlayLength(INLETimeline* node)
{
    return NLERangeLength(EngineValue(NLERange{0, -1}, node, &INLETimeline::GetRange));
}

bool IsCurrent(const NLEComPtr<INLETimeline>& node)
{
    return EngineValue(false, node.query<INLERenderRegion>().get(), &INLERenderRegion::GetCurrent);
}

/// Hands the clips to \a visit one after the other until it returns true.
template <typename Visit>
void VisitClips(const NLEComPtr<INLETimelineEnumerator>& clips, Visit visit)
{
    if (EngineValue(true, clips.get(), &INLETimelineEnumerator::IsEmpty))
        return;
    do {
        auto clip = EngineObject<INLETimeline>(clips.get(), &INLETimelineEnumerator::GetCurrent);
        if (clip && visit(std::move(clip)))
            return;
    } while (clips->Next() == S_OK);
}

NLEComPtr<INLETimelineEnumerator> Clips(const NLEComPtr<INLETimelineComposite>& composite)
{
    constexpr int flags = 1;
    return EngineObject<INLETimelineEnumerator>(composite.get(),
                                                &INLETimelineComposite::GetEnumerator, flags);
}

NLEComPtr<INLETimeline> FindCurrent(const NLEComPtr<INLETimelineEnumerator>& clips)
{
    NLEComPtr<INLETimeline> current;
    VisitClips(clips, [&](NLEComPtr<INLETimeline> clip) {
        if (IsCurrent(clip))
            current.swap(clip);
        return bool(current);
    });
    return current;
}

template <typename Helper>
void Drop(QPointer<Helper>& helper)
{
    // Null first: the preview helper's end lets events through.
    delete std::exchange(helper, nullptr).data();
}

} // namespace

NLETimeline::NLETimeline(NLEComPtr<INLETimeline> timeline, ExactType exactType, QObject* parent)
    : QObject(parent), m_exactType(exactType)
{
    SetTimelineBase(std::move(timeline));
    m_filePath = GetFilePath();
}

NLETimeline::~NLETimeline()
{
    Q_EMIT sigBeforeDelete();
}

NLETimeline* NLETimeline::Clone() const
{
    const auto clone = NodeToRead(true);
    return clone ? new NLETimeline(clone, m_exactType, nullptr) : nullptr;
}

void NLETimeline::SetTimelineBase(NLEComPtr<INLETimeline> timeline)
{
    if (timeline != m_timeline)
        m_timeline = std::move(timeline);
    m_properties.reset();
    // No helper outlives the node it is bound to. Transform goes before blending, against the order
    // of the fields: hosts can see it in the order of destroyed().
    Drop(m_transformHelper);
    Drop(m_blendingHelper);
    Drop(m_audioStreamHelper);
    Drop(m_videoStreamHelper);
    const QPointer<NLETimeline> self(this);
    Drop(m_previewHelper);
    if (!self)
        return; // a slot of the preview helper has deleted this object
    m_properties = EngineObject<INLEProperties>(m_timeline.get(), &INLETimeline::GetProperties);
}

void NLETimeline::GetTimelineBase(INLETimeline** timeline) const
{
    if (timeline)
        *timeline = m_timeline.get();
}

NLEComPtr<INLETimeline> NLETimeline::GetSrc() const
{
    return m_timeline;
}

NLEComPtr<INLEProperties> NLETimeline::GetPropW() const
{
    return m_properties;
}

ExactType NLETimeline::GetExactType() const
{
    return m_exactType;
}

NLEComPtr<INLETimelineComposite> NLETimeline::GetTimelineComposite() const
{
    return m_timeline.query<INLETimelineComposite>();
}

NLEComPtr<INLETimelineCompositeEx> NLETimeline::GetTimelineCompositeEx() const
{
    return m_timeline.query<INLETimelineCompositeEx>();
}

NLEComPtr<INLETimelineSource> NLETimeline::GetTimelineSource() const
{
    return m_timeline.query<INLETimelineSource>();
}

NLEComPtr<INLETimelineEffect> NLETimeline::GetTimelineEffectIF() const
{
    return m_timeline.query<INLETimelineEffect>();
}

NLEComPtr<INLETimelineTransition> NLETimeline::GetTimelineTransitionIF() const
{
    return m_timeline.query<INLETimelineTransition>();
}

NLEComPtr<INLEAnimation> NLETimeline::GetTimelineAnimation() const
{
    return m_timeline.query<INLEAnimation>();
}

NLEComPtr<INLETimelineSourceDecoder> NLETimeline::GetSourceDecoder() const
{
    return m_timeline.query<INLETimelineSourceDecoder>();
}

NLEComPtr<INLEProjectSetting> NLETimeline::GetProjectSetting() const
{
    return m_timeline.query<INLEProjectSetting>();
}

bool NLETimeline::IsSource() const
{
    return bool(GetTimelineSource());
}

bool NLETimeline::IsEffect() const
{
    return bool(GetTimelineEffectIF());
}

bool NLETimeline::IsTransition() const
{
    return bool(GetTimelineTransitionIF());
}

void NLETimeline::PositionChanged() {}

void NLETimeline::TrimRangeChanged() {}

QList<NLEComPtr<INLETimeline>> NLETimeline::GetChilds() const
{
    QList<NLEComPtr<INLETimeline>> childs;
    VisitClips(Clips(GetTimelineComposite()), [&](NLEComPtr<INLETimeline> clip) {
        childs.append(clip);
        return false;
    });
    return childs;
}

int NLETimeline::GetClipCount() const
{
    return EngineValue(0, GetTimelineComposite().get(), &INLETimelineComposite::GetClipCount);
}

NLEComPtr<INLETimeline> NLETimeline::GetParentTimeline() const
{
    return EngineObject<INLETimeline>(m_timeline.get(), &INLETimeline::GetParent);
}

NLEComPtr<INLETimeline> NLETimeline::GetCurrentTimeline() const
{
    if (GetClipCount() == 0)
        return IsCurrent(m_timeline) ? m_timeline : nullptr;
    return FindCurrent(Clips(GetTimelineComposite()));
}

NLEComPtr<INLETimeline> NLETimeline::GetCurrentTimelineEx() const
{
    // Unlike above the node itself is no answer: null says that no clip is current.
    constexpr int flag = 1;
    return FindCurrent(EngineObject<INLETimelineEnumerator>(
        GetTimelineCompositeEx().get(), &INLETimelineCompositeEx::GetEnumerator, flag, flag));
}

bool NLETimeline::IsClipExist(NLETimeline* clip) const
{
    return clip != nullptr;
}

void NLETimeline::AddClipSuper(NLETimeline* clip, int position, int level)
{
    if (!IsClipExist(clip))
        return;
    clip->SetLevel(level);
    clip->SetPosition(position);
    AddClipSuper(clip->m_timeline);
}

void NLETimeline::AddClipSuper(NLEComPtr<INLETimeline> clip)
{
    if (clip)
        EngineSet(GetTimelineComposite().get(), &INLETimelineComposite::AddClip, clip.get());
}

void NLETimeline::RemoveClip(NLETimeline* clip)
{
    if (IsClipExist(clip))
        RemoveClip(clip->m_timeline);
}

void NLETimeline::RemoveClip(NLEComPtr<INLETimeline> clip)
{
    if (clip)
        EngineSet(GetTimelineComposite().get(), &INLETimelineComposite::RemoveClip, clip.get());
}

void NLETimeline::SetClipPos(NLETimeline* clip, int position)
{
    if (IsClipExist(clip))
        clip->SetPosition(position);
}

void NLETimeline::SetClipRange(NLETimeline* clip, int in, int out)
{
    if (IsClipExist(clip))
        clip->SetRange(in, out);
}

void NLETimeline::SetClipLevel(NLETimeline* clip, int level)
{
    if (IsClipExist(clip))
        clip->SetLevel(level);
}

void NLETimeline::SetPosition(int position)
{
    if (!m_timeline || GetPosition() == position)
        return;
    m_timeline->SetPosition(position);
    PositionChanged();
}

int NLETimeline::GetPosition() const
{
    return EngineValue(0, m_timeline.get(), &INLETimeline::GetPosition);
}

void NLETimeline::SetLevel(int level)
{
    EngineSet(m_timeline.get(), &INLETimeline::SetLevel, level);
}

int NLETimeline::GetLevel() const
{
    return EngineValue(0, m_timeline.get(), &INLETimeline::GetLevel);
}

void NLETimeline::SetMarginMode(tagNLEMarginMode mode)
{
    EngineSet(m_timeline.get(), &INLETimeline::SetMarginMode, mode);
}

tagNLEMarginMode NLETimeline::GetMarginMode() const
{
    return EngineValue(NLEMargin_Fit, m_timeline.get(), &INLETimeline::GetMarginMode);
}

NLERange NLETimeline::Range() const
{
    return EngineValue(NLERange{0, 0}, m_timeline.get(), &INLETimeline::GetRange);
}

void NLETimeline::InnerSetRange(const NLERange& range)
{
    const NLERange old = Range();
    if (!m_timeline || (old.in == range.in && old.out == range.out))
        return;
    m_timeline->SetRange(&range);
    TrimRangeChanged();
}

void NLETimeline::SetRange(int in, int out)
{
    InnerSetRange({in, out});
}

void NLETimeline::SetRange(const QPair<int, int>& range)
{
    InnerSetRange({range.first, range.second});
}

QPair<int, int> NLETimeline::GetRange() const
{
    const NLERange range = Range();
    return {range.in, range.out};
}

void NLETimeline::SetTrimin(int in)
{
    InnerSetRange({in, Range().out});
}

void NLETimeline::SetTrimout(int out)
{
    InnerSetRange({Range().in, out});
}

int NLETimeline::GetTrimin() const
{
    return Range().in;
}

int NLETimeline::GetTrimout() const
{
    return Range().out;
}

int NLETimeline::GetPlayLen() const
{
    return ToFrames(PlayLength(m_timeline.get()));
}

int NLETimeline::GetTotalLength() const
{
    return ToFrames(NLERangeLength(
        EngineValue(NLERange{0, -1}, m_timeline.get(), &INLETimeline::GetTotalRange)));
}

int NLETimeline::GetDuration() const
{
    const float rate = GetRenderFrameRate();
    return rate == 0 ? 0 : ToInteger<int>(static_cast<float>(PlayLength(m_timeline.get())) / rate);
}

bool NLETimeline::IsFrameIn(int frame) const
{
    int position = 0;
    if (!m_timeline || FAILED(m_timeline->GetPosition(&position)))
        return false;
    return position <= frame && frame < position + PlayLength(m_timeline.get());
}

void NLETimeline::SetFreezeFrame(int frame, int count)
{
    if (count < 1)
        return;
    EngineSet(m_properties.get(), &INLEProperties::SetInt, NLEKey::Freeze::kFreeze_Frame, frame);
    SetFreezeEnable(true);
    InnerSetRange({frame, ToFrames(std::int64_t(frame) + count - 1)});
}

void NLETimeline::SetClipEnable(bool enable)
{
    EngineSet(m_timeline.get(), &INLETimeline::SetEnabled, enable);
}

bool NLETimeline::GetClipEnable() const
{
    return EngineValue(false, m_timeline.get(), &INLETimeline::GetEnabled);
}

void NLETimeline::SetHiden(bool hidden)
{
    SetClipEnable(!hidden);
}

template <typename Helper>
Helper* NLETimeline::MakeOnce(QPointer<Helper>& helper)
{
    if (!helper)
        helper = new Helper(m_timeline, this);
    return helper;
}

FTimelineBlendingHelper* NLETimeline::GetBlendingHelper()
{
    return MakeOnce(m_blendingHelper);
}

FTimelineTransformHelper* NLETimeline::GetTransformHelper()
{
    return MakeOnce(m_transformHelper);
}

FAudioStreamProcessHelper* NLETimeline::GetAudioStreamProcessHelper()
{
    return MakeOnce(m_audioStreamHelper);
}

FVideoStreamProcessHelper* NLETimeline::GetVideoStreamProcessHelper()
{
    return MakeOnce(m_videoStreamHelper);
}

FPreViewRenderHelper* NLETimeline::GetPreViewRenderHelper()
{
    return MakeOnce(m_previewHelper);
}

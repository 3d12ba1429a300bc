// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/FMixerSettingDelegate.h"

#include "CommonLib/NLEWraper/EngineCall_p.h"
#include "CommonLib/NLEWraper/NLETimeline.h"

FMixerSettingDelegate::FMixerSettingDelegate(NLETimeline* timeline, QObject* parent)
    : QObject(parent), m_timeline(timeline)
{
}

FMixerSettingDelegate::~FMixerSettingDelegate() = default;

NLEComPtr<INLEMixerSetting> FMixerSettingDelegate::MixerSetting() const
{
    if (!m_mixerSetting)
        m_mixerSetting = LookUp<INLEMixerSetting>(m_timeline->GetSrc().get());
    return m_mixerSetting;
}

bool FMixerSettingDelegate::GetMixerParam(int index, tagMixerParam* param) const
{
    const auto setting = MixerSetting();
    return setting && setting->GetParam(index, param) == S_OK; // a positive status is a failure
}

bool FMixerSettingDelegate::SetMixerParam(int index, const tagMixerParam& param)
{
    const auto setting = MixerSetting();
    return setting && setting->SetParam(index, &param) == S_OK; // a positive status is a failure
}

void FMixerSettingDelegate::SetTimeline(NLETimeline* timeline)
{
    m_timeline = timeline;
    m_mixerSetting.reset();
    MixerSetting();
}

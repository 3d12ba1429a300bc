// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/FTimelineBlendingHelper.h"

#include "CommonLib/NLEWraper/EngineCall_p.h"

FTimelineBlendingHelper::FTimelineBlendingHelper(NLEComPtr<INLETimeline> timeline, QObject* parent)
    : QObject(parent), m_timeline(std::move(timeline))
{
}

FTimelineBlendingHelper::~FTimelineBlendingHelper() = default;

NLEComPtr<INLEBlendSetting> FTimelineBlendingHelper::BlendSetting() const
{
    if (!m_blendSetting)
        m_blendSetting = LookUp<INLEBlendSetting>(m_timeline.get());
    return m_blendSetting;
}

bool FTimelineBlendingHelper::GetBlendingEnable() const
{
    return EngineValue(false, BlendSetting().get(), &INLEBlendSetting::GetEnable);
}

void FTimelineBlendingHelper::SetBlendingEnable(bool enable)
{
    EngineSet(BlendSetting().get(), &INLEBlendSetting::SetEnable, enable);
}

int FTimelineBlendingHelper::GetBlendingMode() const
{
    return EngineValue(0, BlendSetting().get(), &INLEBlendSetting::GetMode);
}

void FTimelineBlendingHelper::SetBlendingMode(int mode)
{
    EngineSet(BlendSetting().get(), &INLEBlendSetting::SetMode, mode);
}

int FTimelineBlendingHelper::GetBlendingAlpha() const
{
    return EngineValue(0, BlendSetting().get(), &INLEBlendSetting::GetAlpha);
}

void FTimelineBlendingHelper::SetBlendingAlpha(int alpha)
{
    EngineSet(BlendSetting().get(), &INLEBlendSetting::SetAlpha, alpha);
}

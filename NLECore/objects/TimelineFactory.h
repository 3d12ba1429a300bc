// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEEffects.h"
#include "EngineApi/INLEFactory.h"

namespace nle {

/// Makes the nodes of the open engine's model.
class TimelineFactory final : public ComObject<INLETimelineFactory, INLEEffectCatalog>
{
public:
    HRESULT GetDefaultProfile(tagNLEProjectProfile* profile) override;
    HRESULT CreateProject(const tagNLEProjectProfile* profile, INLETimeline** project) override;
    HRESULT CreateMedia(const wchar_t* path, INLETimeline** clip) override;
    HRESULT CreateFromTemplate(const wchar_t* folder, INLETimeline** project) override;
    HRESULT CreateAudioFilter(const wchar_t* name, INLETimeline** filter) override;
    HRESULT CreateColor(std::uint32_t argb, NLESize size, float frameRate,
                        INLETimeline** clip) override;
    HRESULT CreateTipText(const wchar_t* text, const wchar_t* family, INLETimeline** clip) override;
    HRESULT CreateVirtual(int type, INLETimeline** timeline) override;
    HRESULT CreateEffect(const wchar_t* name, INLETimeline** effect) override;
    HRESULT CreateTransition(const wchar_t* name, INLETimeline** transition) override;
    HRESULT CreateTitle(const wchar_t* text, INLETimeline** title) override;

    HRESULT GetCount(int kind, int* count) override;
    HRESULT GetName(int kind, int index, wchar_t* name, int capacity) override;
    HRESULT GetTitle(int kind, int index, wchar_t* title, int capacity) override;
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "CommonLib/CommonLibExport.h"
#include "EngineApi/INLEMixerSetting.h"

#include <QObject>

class NLETimeline;

/// Mixer strips of a timeline, numbered as the engine does.
///
/// Keeps to the node that the timeline wrapped when the strips were first asked for; call
/// SetTimeline() after the node was replaced. Not thread-safe.
class COMMONLIB_EXPORT FMixerSettingDelegate : public QObject
{
    Q_OBJECT

public:
    /// \a timeline is not owned. It must not be null and must live when an operation runs.
    FMixerSettingDelegate(NLETimeline* timeline, QObject* parent);
    ~FMixerSettingDelegate() override;

    /// True when the engine's status is exactly 0.
    bool GetMixerParam(int index, tagMixerParam* param) const;
    /// True when the engine's status is exactly 0.
    bool SetMixerParam(int index, const tagMixerParam& param);
    /// Turns to the strips of \a timeline, which is not owned and must not be null.
    void SetTimeline(NLETimeline* timeline);

private:
    NLEComPtr<INLEMixerSetting> MixerSetting() const;

    NLETimeline* m_timeline;
    mutable NLEComPtr<INLEMixerSetting> m_mixerSetting; ///< null until first use
};

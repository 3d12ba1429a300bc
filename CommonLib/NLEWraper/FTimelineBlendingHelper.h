// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "CommonLib/CommonLibExport.h"
#include "EngineApi/INLETimeline.h"
#include "EngineApi/INLETransform.h"

#include <QObject>

/// How one clip is laid over what is below it.
///
/// Values pass unchanged: mode numbers and the alpha range are the engine's. A null node and one
/// without blend settings ignore setters and give 0 and false. Not thread-safe.
class COMMONLIB_EXPORT FTimelineBlendingHelper : public QObject
{
    Q_OBJECT

public:
    /// Holds a reference to \a timeline.
    FTimelineBlendingHelper(NLEComPtr<INLETimeline> timeline, QObject* parent);
    ~FTimelineBlendingHelper() override;

    bool GetBlendingEnable() const; ///< whether mode and alpha count
    void SetBlendingEnable(bool enable);
    int GetBlendingMode() const; ///< 0 normal
    void SetBlendingMode(int mode);
    int GetBlendingAlpha() const; ///< 0 transparent to 255 opaque
    void SetBlendingAlpha(int alpha);

private:
    NLEComPtr<INLEBlendSetting> BlendSetting() const;

    // The reverse of this order is the order of release.
    NLEComPtr<INLETimeline> m_timeline;
    mutable NLEComPtr<INLEBlendSetting> m_blendSetting; ///< null until first use
};

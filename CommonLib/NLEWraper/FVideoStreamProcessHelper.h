// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "CommonLib/CommonLibExport.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETimeline.h"

#include <QObject>
#include <QString>

/// Picture source settings of one clip: alpha channel and proxy file.
///
/// Values pass unchanged: their meaning is the engine's. A node without picture settings ignores
/// setters and gives the defaults. Not thread-safe.
class COMMONLIB_EXPORT FVideoStreamProcessHelper : public QObject
{
    Q_OBJECT

public:
    /// Alpha-channel parameters; what they mean is the engine's.
    struct AlphaChannelParm
    {
        std::int32_t nParam1 = 0; ///< the first of the engine's record
        std::int32_t nParam2 = 1; ///< the second of the engine's record
        std::int32_t nParam3 = 0; ///< the third of the engine's record
        double dParam4 = 0.0;     ///< the fourth of the engine's record
        std::int32_t nParam5 = 0; ///< the fifth of the engine's record
        std::int32_t nParam6 = 0; ///< the sixth of the engine's record
        std::int32_t nParam7 = 0; ///< the seventh of the engine's record
    };

    /// Holds a reference to \a timeline, which should not be null, and reads the
    /// premultiplied-alpha type.
    FVideoStreamProcessHelper(NLEComPtr<INLETimeline> timeline, QObject* parent);
    ~FVideoStreamProcessHelper() override;

    /// The node's picture settings, looked up afresh; null when it has none.
    NLEComPtr<INLEVideoStreamProcess> GetVideoStreamProcess() const;

    AlphaChannelParm GetAlphaChannel() const; ///< the presets when there is none
    /// Keeps everything else of the engine's alpha-channel record as it is.
    void SetAlphaChannel(const AlphaChannelParm& parm);

    /// As it was when this object was made, or as set here since; the engine is not asked.
    int GetPremultiAlphaType() const;
    /// Changes nothing when the node has no picture settings.
    void SetPremultiAlphaType(int type);

    bool GetProxyEnabled() const; ///< whether pictures come from the proxy
    void SetProxyEnabled(bool enabled);
    /// Path of the proxy file, at most 259 characters; empty without one.
    QString GetProxyPeth() const;
    /// An empty \a path clears the proxy. A path where no file is is ignored.
    void SetProxyFile(const QString& path);

private:
    // The reverse of this order is the order of release.
    NLEComPtr<INLETimeline> m_timeline;
    NLEComPtr<INLEVideoStreamProcess> m_videoStreamProcess; ///< stays null
    int m_premultiAlphaType = 0;                            ///< copy of the engine's
};

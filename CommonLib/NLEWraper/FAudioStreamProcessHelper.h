// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "CommonLib/CommonLibExport.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETimeline.h"

#include <QObject>
#include <QString>

/// Sound settings of one clip or track.
///
/// Values pass unchanged: ranges and units are the engine's. A node without sound settings ignores
/// setters and gives 0, false or 0.0. Not thread-safe.
class COMMONLIB_EXPORT FAudioStreamProcessHelper : public QObject
{
    Q_OBJECT

public:
    /// Holds a reference to \a timeline, which should not be null.
    FAudioStreamProcessHelper(NLEComPtr<INLETimeline> timeline, QObject* parent);
    ~FAudioStreamProcessHelper() override;

    void SetPitch(int pitch); ///< in semitones
    int GetPitch() const;

    void SetDenoiseLevel(int level); ///< in dB
    /// True when the engine's status is exactly 0. \a level may be written even if not.
    bool GetDenoiseLevel(int& level) const;
    void SetDenoiseEnable(bool enable); ///< whether noise is lowered
    bool GetDenoiseEnable() const;

    /// Mixes all channels down to mono.
    void SetMix2MomoEnable(bool enable);
    bool GetMix2MomoEnable() const;

    void SetVolumeEnable(bool enable); ///< whether volume and its curve count
    bool GetVolumeEnable() const;
    void SetMute(bool mute); ///< silent, whatever the volume
    bool GetMute() const;
    /// Gives the volume over time; the caller releases it. Leaves \a param untouched when the node
    /// has no sound settings.
    void GetVolumeKeyFrameParam(INLEKeyFrameParam** param) const;
    void SetVolume(double volume); ///< linear gain
    /// True when the engine's status is exactly 0. \a volume may be written even if not.
    bool GetVolume(double& volume) const;
    void SetBalance(double balance); ///< -1 left to 1 right
    double GetBalance() const;

    void SetFadeInEnable(bool enable); ///< whether it fades in
    bool GetFadeInEnable() const;
    void SetFadeInRange(int range); ///< in frames
    int GetFadeInRange() const;
    void SetFadeOutEnable(bool enable); ///< whether it fades out
    bool GetFadeOutEnable() const;
    void SetFadeOutRange(int range); ///< in frames
    int GetFadeOutRange() const;

    void SetEqualizerEnable(bool enable); ///< whether its gains count
    bool GetEqualizerEnable() const;
    void SetEqualizerName(QString name); ///< a name for people
    /// At most 127 characters.
    QString GetEqualizerName() const;
    /// \a params holds one value for each of the engine's bands.
    void SetEqualizerParam(const double* params);
    /// Fills \a params, which has room for one value for each of the engine's bands.
    void GetEqualizerParam(double* params) const;

private:
    NLEComPtr<INLEAudioStreamProcess> GetAudioStreamProcess() const;

    // The reverse of this order is the order of release.
    NLEComPtr<INLETimeline> m_timeline;
    mutable NLEComPtr<INLEAudioStreamProcess> m_audioStreamProcess; ///< null until first use
};

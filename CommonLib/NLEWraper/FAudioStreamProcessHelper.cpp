// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/FAudioStreamProcessHelper.h"

#include "Com/WideText.h"
#include "CommonLib/NLEWraper/EngineCall_p.h"

FAudioStreamProcessHelper::FAudioStreamProcessHelper(NLEComPtr<INLETimeline> timeline,
                                                     QObject* parent)
    : QObject(parent), m_timeline(std::move(timeline))
{
}

FAudioStreamProcessHelper::~FAudioStreamProcessHelper() = default;

NLEComPtr<INLEAudioStreamProcess> FAudioStreamProcessHelper::GetAudioStreamProcess() const
{
    if (!m_audioStreamProcess)
        m_audioStreamProcess = LookUp<INLEAudioStreamProcess>(m_timeline.get());
    return m_audioStreamProcess;
}

void FAudioStreamProcessHelper::SetPitch(int pitch)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetPitch, pitch);
}

int FAudioStreamProcessHelper::GetPitch() const
{
    return EngineValue(0, GetAudioStreamProcess().get(), &INLEAudioStreamProcess::GetPitch);
}

void FAudioStreamProcessHelper::SetDenoiseLevel(int level)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetDenoiseLevel, level);
}

bool FAudioStreamProcessHelper::GetDenoiseLevel(int& level) const
{
    const auto process = GetAudioStreamProcess();
    return process &&
           process->GetDenoiseLevel(&level) == S_OK; // a positive status does not vouch for it
}

void FAudioStreamProcessHelper::SetDenoiseEnable(bool enable)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetDenoiseEnable, enable);
}

bool FAudioStreamProcessHelper::GetDenoiseEnable() const
{
    return EngineValue(false, GetAudioStreamProcess().get(),
                       &INLEAudioStreamProcess::GetDenoiseEnable);
}

void FAudioStreamProcessHelper::SetMix2MomoEnable(bool enable)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetMixToMonoEnable, enable);
}

bool FAudioStreamProcessHelper::GetMix2MomoEnable() const
{
    return EngineValue(false, GetAudioStreamProcess().get(),
                       &INLEAudioStreamProcess::GetMixToMonoEnable);
}

void FAudioStreamProcessHelper::SetVolumeEnable(bool enable)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetVolumeEnable, enable);
}

bool FAudioStreamProcessHelper::GetVolumeEnable() const
{
    return EngineValue(false, GetAudioStreamProcess().get(),
                       &INLEAudioStreamProcess::GetVolumeEnable);
}

void FAudioStreamProcessHelper::SetMute(bool mute)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetMute, mute);
}

bool FAudioStreamProcessHelper::GetMute() const
{
    return EngineValue(false, GetAudioStreamProcess().get(), &INLEAudioStreamProcess::GetMute);
}

void FAudioStreamProcessHelper::GetVolumeKeyFrameParam(INLEKeyFrameParam** param) const
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::GetVolumeKeyFrameParam,
              param);
}

void FAudioStreamProcessHelper::SetVolume(double volume)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetVolume, volume);
}

bool FAudioStreamProcessHelper::GetVolume(double& volume) const
{
    const auto process = GetAudioStreamProcess();
    return process &&
           process->GetVolume(&volume) == S_OK; // a positive status does not vouch for it
}

void FAudioStreamProcessHelper::SetBalance(double balance)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetBalance, balance);
}

double FAudioStreamProcessHelper::GetBalance() const
{
    return EngineValue(0.0, GetAudioStreamProcess().get(), &INLEAudioStreamProcess::GetBalance);
}

void FAudioStreamProcessHelper::SetFadeInEnable(bool enable)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetFadeInEnable, enable);
}

bool FAudioStreamProcessHelper::GetFadeInEnable() const
{
    return EngineValue(false, GetAudioStreamProcess().get(),
                       &INLEAudioStreamProcess::GetFadeInEnable);
}

void FAudioStreamProcessHelper::SetFadeInRange(int range)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetFadeInRange, range);
}

int FAudioStreamProcessHelper::GetFadeInRange() const
{
    return EngineValue(0, GetAudioStreamProcess().get(), &INLEAudioStreamProcess::GetFadeInRange);
}

void FAudioStreamProcessHelper::SetFadeOutEnable(bool enable)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetFadeOutEnable, enable);
}

bool FAudioStreamProcessHelper::GetFadeOutEnable() const
{
    return EngineValue(false, GetAudioStreamProcess().get(),
                       &INLEAudioStreamProcess::GetFadeOutEnable);
}

void FAudioStreamProcessHelper::SetFadeOutRange(int range)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetFadeOutRange, range);
}

int FAudioStreamProcessHelper::GetFadeOutRange() const
{
    return EngineValue(0, GetAudioStreamProcess().get(), &INLEAudioStreamProcess::GetFadeOutRange);
}

void FAudioStreamProcessHelper::SetEqualizerEnable(bool enable)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetEqualizerEnable, enable);
}

bool FAudioStreamProcessHelper::GetEqualizerEnable() const
{
    return EngineValue(false, GetAudioStreamProcess().get(),
                       &INLEAudioStreamProcess::GetEqualizerEnable);
}

void FAudioStreamProcessHelper::SetEqualizerName(QString name)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetEqualizerName,
              ToWide(name).c_str());
}

QString FAudioStreamProcessHelper::GetEqualizerName() const
{
    constexpr int capacity = 128;
    return EngineText<capacity>(L'\0', GetAudioStreamProcess().get(),
                                &INLEAudioStreamProcess::GetEqualizerName);
}

void FAudioStreamProcessHelper::SetEqualizerParam(const double* params)
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::SetEqualizerParam, params);
}

void FAudioStreamProcessHelper::GetEqualizerParam(double* params) const
{
    EngineSet(GetAudioStreamProcess().get(), &INLEAudioStreamProcess::GetEqualizerParam, params);
}

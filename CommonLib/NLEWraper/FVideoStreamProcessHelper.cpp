// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/FVideoStreamProcessHelper.h"

#include "Com/WideText.h"
#include "CommonLib/FileOperation.h"
#include "CommonLib/NLEWraper/EngineCall_p.h"

FVideoStreamProcessHelper::FVideoStreamProcessHelper(NLEComPtr<INLETimeline> timeline,
                                                     QObject* parent)
    : QObject(parent), m_timeline(std::move(timeline))
{
    m_premultiAlphaType = EngineValue(0, GetVideoStreamProcess().get(),
                                      &INLEVideoStreamProcess::GetPremultipliedAlphaType);
}

FVideoStreamProcessHelper::~FVideoStreamProcessHelper() = default;

NLEComPtr<INLEVideoStreamProcess> FVideoStreamProcessHelper::GetVideoStreamProcess() const
{
    return LookUp<INLEVideoStreamProcess>(m_timeline.get());
}

FVideoStreamProcessHelper::AlphaChannelParm FVideoStreamProcessHelper::GetAlphaChannel() const
{
    const auto process = GetVideoStreamProcess();
    if (!process)
        return AlphaChannelParm();
    NLEAlphaChannelRecord record{};
    process->GetAlphaChannel(&record);
    return {record.param1, record.param2, record.param3, record.param4,
            record.param5, record.param6, record.param7};
}

void FVideoStreamProcessHelper::SetAlphaChannel(const AlphaChannelParm& parm)
{
    const auto process = GetVideoStreamProcess();
    if (!process)
        return;
    // From the engine's record: an empty one would clear what follows the seven fields.
    NLEAlphaChannelRecord record{};
    process->GetAlphaChannel(&record);
    record.param1 = parm.nParam1;
    record.param2 = parm.nParam2;
    record.param3 = parm.nParam3;
    record.param4 = parm.dParam4;
    record.param5 = parm.nParam5;
    record.param6 = parm.nParam6;
    record.param7 = parm.nParam7;
    process->SetAlphaChannel(&record);
}

int FVideoStreamProcessHelper::GetPremultiAlphaType() const
{
    return m_premultiAlphaType;
}

void FVideoStreamProcessHelper::SetPremultiAlphaType(int type)
{
    const auto process = GetVideoStreamProcess();
    if (!process)
        return;
    process->SetPremultipliedAlphaType(type);
    m_premultiAlphaType = type;
}

bool FVideoStreamProcessHelper::GetProxyEnabled() const
{
    return EngineValue(false, GetVideoStreamProcess().get(),
                       &INLEVideoStreamProcess::GetProxyEnabled);
}

void FVideoStreamProcessHelper::SetProxyEnabled(bool enabled)
{
    EngineSet(GetVideoStreamProcess().get(), &INLEVideoStreamProcess::SetProxyEnabled, enabled);
}

QString FVideoStreamProcessHelper::GetProxyPeth() const
{
    constexpr int capacity = 260;
    return EngineText<capacity>(L'\0', GetVideoStreamProcess().get(),
                                &INLEVideoStreamProcess::GetProxyPath);
}

void FVideoStreamProcessHelper::SetProxyFile(const QString& path)
{
    if (path.isEmpty() || FileOperation::IsFileExist(path))
        EngineSet(GetVideoStreamProcess().get(), &INLEVideoStreamProcess::SetProxyFile,
                  ToWide(path).c_str());
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Com/WideText.h"
#include "CommonLib/NLEWraper/EngineCall_p.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/NLEKey.h"

namespace {

constexpr const wchar_t* kAncestralGuid = L"Key_AncestralGuid";
constexpr double kRenderScaleUnits = 100000000;

QString ReadGuid(INLEProperties* properties, const wchar_t* key)
{
    constexpr int capacity = 256;
    return EngineText<capacity>(L'0', properties, &INLEProperties::GetString, key);
}

int ReadInt(INLEProperties* properties, const wchar_t* key)
{
    return EngineValue(0, properties, &INLEProperties::GetInt, key);
}

void WriteInt(INLEProperties* properties, const wchar_t* key, int value)
{
    EngineSet(properties, &INLEProperties::SetInt, key, value);
}

/// The profile of a project; false when there is none.
bool ReadProfile(INLEProjectSetting* setting, tagNLEProjectProfile* profile)
{
    profile->frameRate = {0, 1};
    return setting && SUCCEEDED(setting->GetProfile(profile));
}

/// Replaces one \a field of a project's profile and writes the whole profile back.
template <typename Field>
void WriteProfile(INLEProjectSetting* setting, Field tagNLEProjectProfile::*field,
                  const Field& value)
{
    tagNLEProjectProfile profile{};
    if (!ReadProfile(setting, &profile))
        return; // what was not read must not be written back
    profile.*field = value;
    setting->SetProfile(&profile);
}

} // namespace

void NLETimeline::SetTimelineGuid(const QString& guid)
{
    EngineSet(m_properties.get(), &INLEProperties::SetString, NLEKey::Timeline::kGuid,
              ToWide(guid).c_str());
}

QString NLETimeline::GetTimelineGuid() const
{
    return ReadGuid(m_properties.get(), NLEKey::Timeline::kGuid);
}

void NLETimeline::SetAncestralGuid(const QString& guid)
{
    EngineSet(m_properties.get(), &INLEProperties::SetString, kAncestralGuid, ToWide(guid).c_str());
}

QString NLETimeline::GetAncestralGuid() const
{
    return ReadGuid(m_properties.get(), kAncestralGuid);
}

unsigned int NLETimeline::GetID() const
{
    return EngineValue(std::uint32_t(0), m_timeline.get(), &INLETimeline::GetId);
}

QString NLETimeline::GetGuidString() const
{
    return QString::number(GetID());
}

void NLETimeline::SetFreezeEnable(bool enable)
{
    WriteInt(m_properties.get(), NLEKey::Freeze::kFreeze_Enabled, enable ? 1 : 0);
}

bool NLETimeline::IsFreezeEnable() const
{
    return ReadInt(m_properties.get(), NLEKey::Freeze::kFreeze_Enabled) == 1;
}

void NLETimeline::SetRenderScaleEnable(bool enable)
{
    WriteInt(m_properties.get(), NLEKey::Speed::kEnabled, enable ? 1 : 0);
}

bool NLETimeline::IsRenderScaleEnable() const
{
    return ReadInt(m_properties.get(), NLEKey::Speed::kEnabled) == 1;
}

void NLETimeline::SetRenderScale(float scale)
{
    const NLERational value{ToInteger<std::int64_t>(scale * kRenderScaleUnits),
                            static_cast<std::int64_t>(kRenderScaleUnits)};
    EngineSet(m_properties.get(), &INLEProperties::SetRational, NLEKey::Speed::kScale, value);
}

float NLETimeline::GetRenderScale() const
{
    return RationalToFloat(EngineValue(NLERational{0, 1}, m_properties.get(),
                                       &INLEProperties::GetRational, NLEKey::Speed::kScale));
}

void NLETimeline::SetRenderMode(NLERenderMode mode)
{
    WriteInt(m_properties.get(), NLEKey::Render::kRender_Mode, mode);
}

void NLETimeline::SetRenderBackgroundColor(const QColor& color)
{
    WriteInt(m_properties.get(), NLEKey::Render::kRender_BackgroundColor,
             static_cast<int>(color.rgba()));
}

QColor NLETimeline::GetRenderBackgroundColor() const
{
    return QColor::fromRgba(
        static_cast<QRgb>(ReadInt(m_properties.get(), NLEKey::Render::kRender_BackgroundColor)));
}

void NLETimeline::SetRenderFrameRate(float rate)
{
    EngineSet(m_timeline.get(), &INLETimeline::SetRenderFrameRate, NLECommon::RateToRational(rate));
}

float NLETimeline::GetRenderFrameRate() const
{
    return RationalToFloat(EngineValue(NLERational{25000000, 1000000}, m_timeline.get(),
                                       &INLETimeline::GetRenderFrameRate));
}

tagNLEProjectProfile NLETimeline::GetProjectProfile() const
{
    const auto preset =
        NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider()->GetDefualtProfile();
    return EngineValue(preset, GetProjectSetting().get(), &INLEProjectSetting::GetProfile);
}

QSize NLETimeline::GetProjectResolution() const
{
    const auto setting = GetProjectSetting();
    if (!setting)
        return QSize();
    tagNLEProjectProfile profile{};
    ReadProfile(setting.get(), &profile);
    return QSize(profile.frameSize.width, profile.frameSize.height);
}

void NLETimeline::SetProjectResolution(int width, int height)
{
    WriteProfile(GetProjectSetting().get(), &tagNLEProjectProfile::frameSize, {width, height});
}

float NLETimeline::GetProjectFps() const
{
    tagNLEProjectProfile profile{};
    ReadProfile(GetProjectSetting().get(), &profile);
    return RationalToFloat(profile.frameRate);
}

void NLETimeline::SetProjectFps(float fps)
{
    WriteProfile(GetProjectSetting().get(), &tagNLEProjectProfile::frameRate,
                 NLECommon::RateToRational(fps));
}

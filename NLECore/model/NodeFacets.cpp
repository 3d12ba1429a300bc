// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/NodeFacets.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/model/PropertyBag.h"
#include "NLECore/model/TimelineNode.h"

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

/// Sets the field \a Member; E_INVALIDARG for a value that it does not accept.
template <auto Member, typename Settings, typename Value>
HRESULT Take(Settings& settings, const Value& value)
{
    if (SetField<Member>(settings, value))
        return S_OK;
    HRESULT result = E_INVALIDARG;
    ForEachField<Settings>([&](const auto& field) {
        if constexpr (std::is_same_v<std::remove_const_t<decltype(field.member)>,
                                     std::remove_const_t<decltype(Member)>>) {
            if (field.member == Member)
                result = RefuseRange(field.property, double(field.lowest), double(field.highest));
        }
    });
    return result;
}

} // namespace

HRESULT BlendFacet::SetEnable(bool enable)
{
    return Take<&BlendSettings::enabled>(settings, enable);
}

HRESULT BlendFacet::GetEnable(bool* enable)
{
    return GiveValue(enable, settings.enabled);
}

HRESULT BlendFacet::GetMode(int* mode)
{
    return GiveValue(mode, int(settings.mode));
}

HRESULT BlendFacet::SetMode(int mode)
{
    return Take<&BlendSettings::mode>(settings, BlendMode(mode));
}

HRESULT BlendFacet::GetAlpha(int* alpha)
{
    return GiveValue(alpha, settings.alpha);
}

HRESULT BlendFacet::SetAlpha(int alpha)
{
    return Take<&BlendSettings::alpha>(settings, alpha);
}

HRESULT TransformFacet::SetEnable(bool enable)
{
    return Take<&TransformSettings::enabled>(settings, enable);
}

HRESULT TransformFacet::GetEnable(bool* enable)
{
    return GiveValue(enable, settings.enabled);
}

HRESULT TransformFacet::SetCenter(const NLEPointF* center)
{
    if (!center)
        return Refuse(E_POINTER);
    return Take<&TransformSettings::center>(settings, *center);
}

HRESULT TransformFacet::GetCenter(NLEPointF* center)
{
    return GiveValue(center, settings.center);
}

HRESULT TransformFacet::SetScale(const NLESizeF* scale)
{
    if (!scale)
        return Refuse(E_POINTER);
    return Take<&TransformSettings::scale>(settings, *scale);
}

HRESULT TransformFacet::GetScale(NLESizeF* scale)
{
    return GiveValue(scale, settings.scale);
}

HRESULT TransformFacet::SetRotation(double degrees)
{
    return Take<&TransformSettings::rotation>(settings, degrees);
}

HRESULT TransformFacet::GetRotation(double* degrees)
{
    return GiveValue(degrees, settings.rotation);
}

HRESULT TransformFacet::SetLock(bool lock)
{
    return Take<&TransformSettings::lock>(settings, lock);
}

class AudioFacet::VolumeCurve final : public ComObject<INLEKeyFrameParam>
{
public:
    /// Keeps the node, and so the settings, alive.
    explicit VolumeCurve(AudioFacet& audio) : m_audio(&audio) {}

    HRESULT GetCount(int* count) override { return GiveValue(count, int(Points().size())); }

    HRESULT GetPoint(int index, double* time, double* value) override
    {
        if (!time || !value)
            return Refuse(E_POINTER);
        if (index < 0 || index >= int(Points().size()))
            return RefuseIndex(index, std::int64_t(Points().size()));
        *time = Points()[size_t(index)].time;
        *value = Points()[size_t(index)].gain;
        return S_OK;
    }

    HRESULT SetPoint(double time, double value) override
    {
        return ComGuard([&] {
            return PutVolumePoint(Points(), {time, value}) ? S_OK
                                                           : RefuseRange("volume", 0, kMostVolume);
        });
    }

    HRESULT Clear() override
    {
        Points().clear();
        return S_OK;
    }

private:
    std::vector<VolumePoint>& Points() { return m_audio->settings.volumePoints; }

    const NLEComPtr<AudioFacet> m_audio;
};

HRESULT AudioFacet::SetPitch(int pitch)
{
    return Take<&AudioSettings::pitch>(settings, pitch);
}

HRESULT AudioFacet::GetPitch(int* pitch)
{
    return GiveValue(pitch, settings.pitch);
}

HRESULT AudioFacet::SetDenoiseLevel(int level)
{
    return Take<&AudioSettings::denoiseLevel>(settings, level);
}

HRESULT AudioFacet::GetDenoiseLevel(int* level)
{
    return GiveValue(level, settings.denoiseLevel);
}

HRESULT AudioFacet::SetDenoiseEnable(bool enable)
{
    return Take<&AudioSettings::denoise>(settings, enable);
}

HRESULT AudioFacet::GetDenoiseEnable(bool* enable)
{
    return GiveValue(enable, settings.denoise);
}

HRESULT AudioFacet::SetMixToMonoEnable(bool enable)
{
    return Take<&AudioSettings::mono>(settings, enable);
}

HRESULT AudioFacet::GetMixToMonoEnable(bool* enable)
{
    return GiveValue(enable, settings.mono);
}

HRESULT AudioFacet::SetVolumeEnable(bool enable)
{
    return Take<&AudioSettings::volumeEnabled>(settings, enable);
}

HRESULT AudioFacet::GetVolumeEnable(bool* enable)
{
    return GiveValue(enable, settings.volumeEnabled);
}

HRESULT AudioFacet::SetMute(bool mute)
{
    return Take<&AudioSettings::mute>(settings, mute);
}

HRESULT AudioFacet::GetMute(bool* mute)
{
    return GiveValue(mute, settings.mute);
}

HRESULT AudioFacet::GetVolumeKeyFrameParam(INLEKeyFrameParam** param)
{
    return GiveNew<VolumeCurve>(param, *this);
}

HRESULT AudioFacet::SetVolume(double volume)
{
    return Take<&AudioSettings::volume>(settings, volume);
}

HRESULT AudioFacet::GetVolume(double* volume)
{
    return GiveValue(volume, settings.volume);
}

HRESULT AudioFacet::SetBalance(double balance)
{
    return Take<&AudioSettings::balance>(settings, balance);
}

HRESULT AudioFacet::GetBalance(double* balance)
{
    return GiveValue(balance, settings.balance);
}

HRESULT AudioFacet::SetFadeInEnable(bool enable)
{
    return Take<&AudioSettings::fadeIn>(settings, enable);
}

HRESULT AudioFacet::GetFadeInEnable(bool* enable)
{
    return GiveValue(enable, settings.fadeIn);
}

HRESULT AudioFacet::SetFadeInRange(int frames)
{
    return Take<&AudioSettings::fadeInFrames>(settings, frames);
}

HRESULT AudioFacet::GetFadeInRange(int* frames)
{
    return GiveValue(frames, settings.fadeInFrames);
}

HRESULT AudioFacet::SetFadeOutEnable(bool enable)
{
    return Take<&AudioSettings::fadeOut>(settings, enable);
}

HRESULT AudioFacet::GetFadeOutEnable(bool* enable)
{
    return GiveValue(enable, settings.fadeOut);
}

HRESULT AudioFacet::SetFadeOutRange(int frames)
{
    return Take<&AudioSettings::fadeOutFrames>(settings, frames);
}

HRESULT AudioFacet::GetFadeOutRange(int* frames)
{
    return GiveValue(frames, settings.fadeOutFrames);
}

HRESULT AudioFacet::SetEqualizerEnable(bool enable)
{
    return Take<&AudioSettings::equalizer>(settings, enable);
}

HRESULT AudioFacet::GetEqualizerEnable(bool* enable)
{
    return GiveValue(enable, settings.equalizer);
}

HRESULT AudioFacet::SetEqualizerName(const wchar_t* name)
{
    return ComGuard([&] {
        return name ? Take<&AudioSettings::equalizerName>(settings, std::wstring(name))
                    : Refuse(E_POINTER);
    });
}

HRESULT AudioFacet::GetEqualizerName(wchar_t* buffer, int capacity)
{
    return CopyText(settings.equalizerName, buffer, capacity);
}

HRESULT AudioFacet::SetEqualizerParam(const double* params)
{
    if (!params)
        return Refuse(E_POINTER);
    auto gains = settings.equalizerGains;
    std::copy_n(params, gains.size(), gains.begin());
    return Take<&AudioSettings::equalizerGains>(settings, gains);
}

HRESULT AudioFacet::GetEqualizerParam(double* params)
{
    if (!params)
        return Refuse(E_POINTER);
    std::copy(settings.equalizerGains.begin(), settings.equalizerGains.end(), params);
    return S_OK;
}

VideoFacet::VideoFacet(TimelineNode& node) : NodeFacet(static_cast<INLETimeline&>(node)) {}

HRESULT VideoFacet::GetAlphaChannel(NLEAlphaChannelRecord* record)
{
    if (!record)
        return Refuse(E_POINTER);
    if (settings.alphaChannel) {
        *record = *settings.alphaChannel;
    } else {
        *record = {};
        record->param2 = 1;
    }
    return S_OK;
}

HRESULT VideoFacet::SetAlphaChannel(const NLEAlphaChannelRecord* record)
{
    return ComGuard([&] {
        if (!record)
            return Refuse(E_POINTER);
        settings.alphaChannel = std::make_shared<NLEAlphaChannelRecord>(*record);
        return S_OK;
    });
}

HRESULT VideoFacet::SetProxyFile(const wchar_t* path)
{
    return ComGuard([&] {
        if (!path)
            return Refuse(E_POINTER);
        std::shared_ptr<const MediaInfo> proxy;
        if (*path != L'\0') {
            proxy = DescribeFile(FromWide(path));
            if (!proxy)
                return Refuse(E_FAIL);
            if (proxy->videoStream < 0)
                return Refuse(E_FAIL, NLEReason_NothingThere, proxy->path);
        }
        return Take<&VideoSettings::proxy>(settings, proxy);
    });
}

HRESULT VideoFacet::GetProxyPath(wchar_t* buffer, int capacity)
{
    return ComGuard([&] {
        return CopyText(settings.proxy ? settings.proxy->path.toStdWString() : std::wstring(),
                        buffer, capacity);
    });
}

HRESULT VideoFacet::SetProxyEnabled(bool enabled)
{
    return Take<&VideoSettings::proxyEnabled>(settings, enabled);
}

HRESULT VideoFacet::GetProxyEnabled(bool* enabled)
{
    return GiveValue(enabled, settings.proxyEnabled);
}

HRESULT VideoFacet::SetPremultipliedAlphaType(int type)
{
    return Take<&VideoSettings::premultipliedType>(settings, type);
}

HRESULT VideoFacet::GetPremultipliedAlphaType(int* type)
{
    return GiveValue(type, settings.premultipliedType);
}

HRESULT MixerFacet::GetParam(int index, tagMixerParam* param)
{
    const auto strip = settings.find(index);
    return GiveValue(param, strip == settings.end() ? kNeutralStrip : strip->second);
}

HRESULT MixerFacet::SetParam(int index, const tagMixerParam* param)
{
    return ComGuard([&] {
        if (!param)
            return Refuse(E_POINTER);
        if (!IsValid(*param))
            return Refuse(E_INVALIDARG);
        settings[index] = *param;
        return S_OK;
    });
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/NodeFacets.h"

#include "Com/ComGuard.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/model/PropertyBag.h"
#include "NLECore/model/TimelineNode.h"

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

constexpr int kMostSemitones = 24;
constexpr int kMostDenoise = 97;
constexpr double kMostVolume = 16;
constexpr double kMostEqualizerGain = 40;

template <typename T>
HRESULT Take(T& field, const T& value)
{
    field = value;
    return S_OK;
}

/// Takes a number from \a lowest to \a highest; what is not a number lies in no range.
template <typename T>
HRESULT TakeWithin(T& field, T value, T lowest, T highest)
{
    if (!(value >= lowest && value <= highest))
        return E_INVALIDARG;
    field = value;
    return S_OK;
}

} // namespace

HRESULT BlendFacet::SetEnable(bool enable)
{
    return Take(settings.enabled, enable);
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
    if (mode < 0 || mode >= kBlendModes)
        return E_INVALIDARG;
    return Take(settings.mode, BlendMode(mode));
}

HRESULT BlendFacet::GetAlpha(int* alpha)
{
    return GiveValue(alpha, settings.alpha);
}

HRESULT BlendFacet::SetAlpha(int alpha)
{
    return TakeWithin(settings.alpha, alpha, 0, kOpaqueAlpha);
}

HRESULT TransformFacet::SetEnable(bool enable)
{
    return Take(settings.enabled, enable);
}

HRESULT TransformFacet::GetEnable(bool* enable)
{
    return GiveValue(enable, settings.enabled);
}

HRESULT TransformFacet::SetCenter(const NLEPointF* center)
{
    if (!center)
        return E_POINTER;
    if (!std::isfinite(center->x) || !std::isfinite(center->y))
        return E_INVALIDARG;
    return Take(settings.center, *center);
}

HRESULT TransformFacet::GetCenter(NLEPointF* center)
{
    return GiveValue(center, settings.center);
}

HRESULT TransformFacet::SetScale(const NLESizeF* scale)
{
    if (!scale)
        return E_POINTER;
    if (!std::isfinite(scale->width) || !std::isfinite(scale->height))
        return E_INVALIDARG;
    return Take(settings.scale, *scale);
}

HRESULT TransformFacet::GetScale(NLESizeF* scale)
{
    return GiveValue(scale, settings.scale);
}

HRESULT TransformFacet::SetRotation(double degrees)
{
    return std::isfinite(degrees) ? Take(settings.rotation, degrees) : E_INVALIDARG;
}

HRESULT TransformFacet::GetRotation(double* degrees)
{
    return GiveValue(degrees, settings.rotation);
}

HRESULT TransformFacet::SetLock(bool lock)
{
    return Take(settings.lock, lock);
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
            return E_POINTER;
        if (index < 0 || index >= int(Points().size()))
            return E_INVALIDARG;
        *time = Points()[size_t(index)].time;
        *value = Points()[size_t(index)].gain;
        return S_OK;
    }

    HRESULT SetPoint(double time, double value) override
    {
        return ComGuard([&] {
            if (!std::isfinite(time) || !(value >= 0 && value <= kMostVolume))
                return E_INVALIDARG;
            auto place = std::lower_bound(
                Points().begin(), Points().end(), time,
                [](const VolumePoint& point, double wanted) { return point.time < wanted; });
            if (place != Points().end() && place->time == time)
                place->gain = value;
            else
                Points().insert(place, {time, value});
            return S_OK;
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
    return TakeWithin(settings.pitch, pitch, -kMostSemitones, kMostSemitones);
}

HRESULT AudioFacet::GetPitch(int* pitch)
{
    return GiveValue(pitch, settings.pitch);
}

HRESULT AudioFacet::SetDenoiseLevel(int level)
{
    return TakeWithin(settings.denoiseLevel, level, 0, kMostDenoise);
}

HRESULT AudioFacet::GetDenoiseLevel(int* level)
{
    return GiveValue(level, settings.denoiseLevel);
}

HRESULT AudioFacet::SetDenoiseEnable(bool enable)
{
    return Take(settings.denoise, enable);
}

HRESULT AudioFacet::GetDenoiseEnable(bool* enable)
{
    return GiveValue(enable, settings.denoise);
}

HRESULT AudioFacet::SetMixToMonoEnable(bool enable)
{
    return Take(settings.mono, enable);
}

HRESULT AudioFacet::GetMixToMonoEnable(bool* enable)
{
    return GiveValue(enable, settings.mono);
}

HRESULT AudioFacet::SetVolumeEnable(bool enable)
{
    return Take(settings.volumeEnabled, enable);
}

HRESULT AudioFacet::GetVolumeEnable(bool* enable)
{
    return GiveValue(enable, settings.volumeEnabled);
}

HRESULT AudioFacet::SetMute(bool mute)
{
    return Take(settings.mute, mute);
}

HRESULT AudioFacet::GetMute(bool* mute)
{
    return GiveValue(mute, settings.mute);
}

HRESULT AudioFacet::GetVolumeKeyFrameParam(INLEKeyFrameParam** param)
{
    return ComGuard([&] {
        if (!param)
            return E_POINTER;
        *param = MakeCom<VolumeCurve>(*this).detach();
        return S_OK;
    });
}

HRESULT AudioFacet::SetVolume(double volume)
{
    return TakeWithin(settings.volume, volume, 0.0, kMostVolume);
}

HRESULT AudioFacet::GetVolume(double* volume)
{
    return GiveValue(volume, settings.volume);
}

HRESULT AudioFacet::SetBalance(double balance)
{
    return TakeWithin(settings.balance, balance, -1.0, 1.0);
}

HRESULT AudioFacet::GetBalance(double* balance)
{
    return GiveValue(balance, settings.balance);
}

HRESULT AudioFacet::SetFadeInEnable(bool enable)
{
    return Take(settings.fadeIn, enable);
}

HRESULT AudioFacet::GetFadeInEnable(bool* enable)
{
    return GiveValue(enable, settings.fadeIn);
}

HRESULT AudioFacet::SetFadeInRange(int frames)
{
    return TakeWithin(settings.fadeInFrames, frames, 0, INT32_MAX);
}

HRESULT AudioFacet::GetFadeInRange(int* frames)
{
    return GiveValue(frames, settings.fadeInFrames);
}

HRESULT AudioFacet::SetFadeOutEnable(bool enable)
{
    return Take(settings.fadeOut, enable);
}

HRESULT AudioFacet::GetFadeOutEnable(bool* enable)
{
    return GiveValue(enable, settings.fadeOut);
}

HRESULT AudioFacet::SetFadeOutRange(int frames)
{
    return TakeWithin(settings.fadeOutFrames, frames, 0, INT32_MAX);
}

HRESULT AudioFacet::GetFadeOutRange(int* frames)
{
    return GiveValue(frames, settings.fadeOutFrames);
}

HRESULT AudioFacet::SetEqualizerEnable(bool enable)
{
    return Take(settings.equalizer, enable);
}

HRESULT AudioFacet::GetEqualizerEnable(bool* enable)
{
    return GiveValue(enable, settings.equalizer);
}

HRESULT AudioFacet::SetEqualizerName(const wchar_t* name)
{
    return ComGuard(
        [&] { return name ? Take(settings.equalizerName, std::wstring(name)) : E_POINTER; });
}

HRESULT AudioFacet::GetEqualizerName(wchar_t* buffer, int capacity)
{
    return CopyText(settings.equalizerName, buffer, capacity);
}

HRESULT AudioFacet::SetEqualizerParam(const double* params)
{
    if (!params)
        return E_POINTER;
    auto gains = settings.equalizerGains;
    for (size_t band = 0; band < gains.size(); ++band) {
        if (FAILED(TakeWithin(gains[band], params[band], -kMostEqualizerGain, kMostEqualizerGain)))
            return E_INVALIDARG;
    }
    return Take(settings.equalizerGains, gains);
}

HRESULT AudioFacet::GetEqualizerParam(double* params)
{
    if (!params)
        return E_POINTER;
    std::copy(settings.equalizerGains.begin(), settings.equalizerGains.end(), params);
    return S_OK;
}

VideoFacet::VideoFacet(TimelineNode& node) : NodeFacet(static_cast<INLETimeline&>(node)) {}

HRESULT VideoFacet::GetAlphaChannel(NLEAlphaChannelRecord* record)
{
    if (!record)
        return E_POINTER;
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
            return E_POINTER;
        settings.alphaChannel = std::make_shared<NLEAlphaChannelRecord>(*record);
        return S_OK;
    });
}

HRESULT VideoFacet::SetProxyFile(const wchar_t* path)
{
    return ComGuard([&] {
        if (!path)
            return E_POINTER;
        std::shared_ptr<const MediaInfo> proxy;
        if (*path != L'\0') {
            proxy = DescribeFile(QString::fromWCharArray(path));
            if (!proxy || proxy->videoStream < 0)
                return E_FAIL;
        }
        return Take(settings.proxy, proxy);
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
    return Take(settings.proxyEnabled, enabled);
}

HRESULT VideoFacet::GetProxyEnabled(bool* enabled)
{
    return GiveValue(enabled, settings.proxyEnabled);
}

HRESULT VideoFacet::SetPremultipliedAlphaType(int type)
{
    return Take(settings.premultipliedType, type);
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
            return E_POINTER;
        tagMixerParam strip = *param;
        if (FAILED(TakeWithin(strip.volume, param->volume, 0.0, kMostVolume)) ||
            FAILED(TakeWithin(strip.balance, param->balance, -1.0, 1.0)))
            return E_INVALIDARG;
        settings[index] = strip;
        return S_OK;
    });
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLEMixerSetting.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETransform.h"
#include "tests/support/ScriptedEngine.h"

#include <QVector>

/// Sound, picture, blend, transform and mixer settings, key frames and the context object.
namespace Scripted {

struct AudioStreamProcess : Object<INLEAudioStreamProcess>
{
    using Object::Object;

    SCRIPTED_SETTING(int, pitch, Pitch)
    SCRIPTED_SETTING(int, denoiseLevel, DenoiseLevel)
    SCRIPTED_SETTING(bool, denoiseEnable, DenoiseEnable)
    SCRIPTED_SETTING(bool, mono, MixToMonoEnable)
    SCRIPTED_SETTING(bool, volumeEnable, VolumeEnable)
    SCRIPTED_SETTING(bool, mute, Mute)
    SCRIPTED_SETTING(double, volume, Volume)
    SCRIPTED_SETTING(double, balance, Balance)
    SCRIPTED_SETTING(bool, fadeInEnable, FadeInEnable)
    SCRIPTED_SETTING(int, fadeInRange, FadeInRange)
    SCRIPTED_SETTING(bool, fadeOutEnable, FadeOutEnable)
    SCRIPTED_SETTING(int, fadeOutRange, FadeOutRange)
    SCRIPTED_SETTING(bool, equalizerEnable, EqualizerEnable)
    double band = 0; ///< the only one

    HRESULT GetVolumeKeyFrameParam(INLEKeyFrameParam** out) override
    {
        *out = nullptr;
        return Call("GetVolumeKeyFrameParam");
    }
    HRESULT SetEqualizerName(const wchar_t* name) override
    {
        return Set("SetEqualizerName", equalizerName, Text(name));
    }
    SCRIPTED_TEXT(equalizerName, EqualizerName)
    HRESULT SetEqualizerParam(const double* params) override
    {
        return Value("SetEqualizerParam", *params, &band);
    }
    HRESULT GetEqualizerParam(double* params) override
    {
        return Value("GetEqualizerParam", band, params);
    }
};

struct VideoStreamProcess : Object<INLEVideoStreamProcess>
{
    using Object::Object;

    SCRIPTED_RECORD(NLEAlphaChannelRecord, record, AlphaChannel)
    HRESULT Reserved1() override { return E_NOTIMPL; }
    HRESULT Reserved2() override { return E_NOTIMPL; }
    HRESULT Reserved3() override { return E_NOTIMPL; }
    HRESULT Reserved4() override { return E_NOTIMPL; }
    HRESULT Reserved5() override { return E_NOTIMPL; }
    HRESULT Reserved6() override { return E_NOTIMPL; }
    HRESULT Reserved7() override { return E_NOTIMPL; }
    HRESULT Reserved8() override { return E_NOTIMPL; }
    HRESULT Reserved9() override { return E_NOTIMPL; }
    HRESULT Reserved10() override { return E_NOTIMPL; }
    HRESULT SetProxyFile(const wchar_t* path) override { return Call("SetProxyFile", path); }
    SCRIPTED_TEXT(proxyPath, ProxyPath)
    SCRIPTED_SETTING(bool, proxyEnabled, ProxyEnabled)
    SCRIPTED_SETTING(int, alphaType, PremultipliedAlphaType)
};

struct BlendSetting : Object<INLEBlendSetting>
{
    using Object::Object;

    SCRIPTED_SETTING(bool, enable, Enable)
    SCRIPTED_SETTING(int, mode, Mode)
    SCRIPTED_SETTING(int, alpha, Alpha)
};

struct Transform : Object<INLETransform>
{
    using Object::Object;

    SCRIPTED_SETTING(bool, enable, Enable)
    SCRIPTED_RECORD(NLEPointF, center, Center)
    SCRIPTED_RECORD(NLESizeF, scale, Scale)
    SCRIPTED_SETTING(double, rotation, Rotation)
    HRESULT Reserved1() override { return E_NOTIMPL; }
    HRESULT Reserved2() override { return E_NOTIMPL; }
    HRESULT SetLock(bool lock) override { return Call("SetLock", lock); }
};

struct MixerSetting : Object<INLEMixerSetting>
{
    using Object::Object;

    tagMixerParam param = {};

    HRESULT GetParam(int index, tagMixerParam* out) override
    {
        return Value("GetParam", param, out, index);
    }
    HRESULT SetParam(int index, const tagMixerParam* value) override
    {
        return Value("SetParam", *value, &param, index);
    }
};

/// Finds what the test says; its records change by writing them only.
struct KeyFrameList : Object<INLEKeyFrameList>
{
    using Object::Object;

    QVector<NLEKeyFrameRecord> records;
    int found = 1;

    HRESULT GetCount(int* out) override { return Value("GetCount", int(records.size()), out); }
    HRESULT GetKeyFrame(int index, NLEKeyFrameRecord* out) override
    {
        return Value("GetKeyFrame", records.at(index), out, index);
    }
    HRESULT SetKeyFrame(int index, const NLEKeyFrameRecord* record) override
    {
        return Value("SetKeyFrame", *record, &records[index], index, *record);
    }
    HRESULT AddKeyFrame(const NLEKeyFrameRecord* record, int* index) override
    {
        return Value("AddKeyFrame", found, index, *record);
    }
    HRESULT DeleteKeyFrame(int index) override { return Call("DeleteKeyFrame", index); }
    HRESULT DeleteAll() override { return Call("DeleteAll"); }
    HRESULT GetParamAt(double time, NLEKeyFrameRecord* out) override
    {
        return Value("GetParamAt", records.first(), out, time);
    }
    HRESULT FindIndex(int frame, int count, int* index) override
    {
        return Value("FindIndex", found, index, frame, count);
    }
};

struct KeyFrameStatus : Object<INLEKeyFrameStatus>
{
    using Object::Object;
    SCRIPTED_SETTING(bool, enabled, Status)
};

/// Only records; the bag is what the test makes of it.
struct Basin : Object<INLEBasin>
{
    using Object::Object;
    HRESULT FillProperties(INLEProperties* bag) override { return Call("FillProperties", bag); }
    HRESULT TakeProperties(INLEProperties* bag) override { return Call("TakeProperties", bag); }
};

} // namespace Scripted

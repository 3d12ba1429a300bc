// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

/// Volume over time of one stream: points sorted by time, in seconds from the clip's in point and
/// not on the key-frame axis that its picture has. A value is a linear gain, 1 unchanged; it is
/// interpolated between two points and held outside of them.
struct INLEKeyFrameParam : IUnknown
{
    static constexpr _GUID Iid = {
        0x4F9C35D4, 0xA032, 0x43E3, {0xB5, 0x4F, 0xF9, 0xF2, 0x36, 0x39, 0xB5, 0x3D}};

    virtual HRESULT GetCount(int* count) = 0;                             ///< points of the curve
    virtual HRESULT GetPoint(int index, double* time, double* value) = 0; ///< a point, by its place
    /// Adds a point, or changes the one at exactly \a time.
    virtual HRESULT SetPoint(double time, double value) = 0;
    virtual HRESULT Clear() = 0;
};

/// Sound settings of a clip or a track.
struct INLEAudioStreamProcess : IUnknown
{
    static constexpr _GUID Iid = {
        0x1A649613, 0xDD2B, 0x4248, {0x8D, 0x5C, 0xE8, 0x31, 0x16, 0x12, 0x14, 0xAA}};

    virtual HRESULT SetPitch(int pitch) = 0; ///< semitones, -24 to 24; the tempo stays
    virtual HRESULT GetPitch(int* pitch) = 0;
    virtual HRESULT SetDenoiseLevel(int level) = 0; ///< by how many dB noise is lowered, 0 to 97
    virtual HRESULT GetDenoiseLevel(int* level) = 0;
    virtual HRESULT SetDenoiseEnable(bool enable) = 0; ///< whether noise is lowered
    virtual HRESULT GetDenoiseEnable(bool* enable) = 0;
    virtual HRESULT SetMixToMonoEnable(bool enable) = 0; ///< every channel is the mean of all
    virtual HRESULT GetMixToMonoEnable(bool* enable) = 0;
    virtual HRESULT SetVolumeEnable(bool enable) = 0; ///< whether volume and its curve count
    virtual HRESULT GetVolumeEnable(bool* enable) = 0;
    virtual HRESULT SetMute(bool mute) = 0; ///< silent, whatever the volume
    virtual HRESULT GetMute(bool* mute) = 0;
    virtual HRESULT GetVolumeKeyFrameParam(INLEKeyFrameParam** param) = 0; ///< the curve
    virtual HRESULT SetVolume(double volume) = 0;                          ///< linear gain, 0 to 16
    virtual HRESULT GetVolume(double* volume) = 0;
    virtual HRESULT SetBalance(double balance) = 0; ///< -1 left to 1 right
    virtual HRESULT GetBalance(double* balance) = 0;
    virtual HRESULT SetFadeInEnable(bool enable) = 0; ///< whether it fades in
    virtual HRESULT GetFadeInEnable(bool* enable) = 0;
    virtual HRESULT SetFadeInRange(int frames) = 0; ///< frames from the in point
    virtual HRESULT GetFadeInRange(int* frames) = 0;
    virtual HRESULT SetFadeOutEnable(bool enable) = 0; ///< whether it fades out
    virtual HRESULT GetFadeOutEnable(bool* enable) = 0;
    virtual HRESULT SetFadeOutRange(int frames) = 0; ///< frames to the out point
    virtual HRESULT GetFadeOutRange(int* frames) = 0;
    virtual HRESULT SetEqualizerEnable(bool enable) = 0; ///< whether its gains count
    virtual HRESULT GetEqualizerEnable(bool* enable) = 0;
    virtual HRESULT SetEqualizerName(const wchar_t* name) = 0; ///< a name for people
    virtual HRESULT GetEqualizerName(wchar_t* buffer, int capacity) = 0;
    virtual HRESULT SetEqualizerParam(const double* params) = 0; ///< ten gains, -40 to 40 dB
    virtual HRESULT GetEqualizerParam(double* params) = 0;
};

/// Picture source settings of a clip.
struct INLEVideoStreamProcess : IUnknown
{
    static constexpr _GUID Iid = {
        0x7E764BF3, 0x001F, 0x4713, {0x9D, 0x3C, 0xE9, 0x22, 0x2C, 0x6B, 0x60, 0x41}};

    virtual HRESULT GetAlphaChannel(NLEAlphaChannelRecord* record) = 0; ///< kept as it is
    virtual HRESULT SetAlphaChannel(const NLEAlphaChannelRecord* record) = 0;
    /// Ten places of the interface that nothing calls.
    virtual HRESULT Reserved1() = 0;
    virtual HRESULT Reserved2() = 0;
    virtual HRESULT Reserved3() = 0;
    virtual HRESULT Reserved4() = 0;
    virtual HRESULT Reserved5() = 0;
    virtual HRESULT Reserved6() = 0;
    virtual HRESULT Reserved7() = 0;
    virtual HRESULT Reserved8() = 0;
    virtual HRESULT Reserved9() = 0;
    virtual HRESULT Reserved10() = 0;
    virtual HRESULT SetProxyFile(const wchar_t* path) = 0;
    virtual HRESULT GetProxyPath(wchar_t* buffer, int capacity) = 0;
    virtual HRESULT SetProxyEnabled(bool enabled) = 0;
    virtual HRESULT GetProxyEnabled(bool* enabled) = 0;
    virtual HRESULT SetPremultipliedAlphaType(int type) = 0; ///< kept as it is
    virtual HRESULT GetPremultipliedAlphaType(int* type) = 0;
};

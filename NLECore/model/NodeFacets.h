// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEMixerSetting.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETransform.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/scene/ClipSettings.h"

namespace nle {

class TimelineNode;

/// One further interface of a node. It has no count of its own: references to it are references to
/// the node, and so is its answer to every interface query.
template <typename Interface>
class NodeFacet : public Interface
{
public:
    explicit NodeFacet(IUnknown& node) : m_node(node) {}
    NodeFacet(const NodeFacet&) = delete;
    NodeFacet& operator=(const NodeFacet&) = delete;

    HRESULT QueryInterface(REFIID iid, void** out) final { return m_node.QueryInterface(iid, out); }
    ULONG AddRef() final { return m_node.AddRef(); }
    ULONG Release() final { return m_node.Release(); }

protected:
    ~NodeFacet() = default;

private:
    IUnknown& m_node;
};

class BlendFacet final : public NodeFacet<INLEBlendSetting>
{
public:
    using NodeFacet::NodeFacet;

    HRESULT SetEnable(bool enable) override;
    HRESULT GetEnable(bool* enable) override;
    HRESULT GetMode(int* mode) override;
    /// E_INVALIDARG for a number that is no BlendMode.
    HRESULT SetMode(int mode) override;
    HRESULT GetAlpha(int* alpha) override;
    /// E_INVALIDARG outside of 0 to 255.
    HRESULT SetAlpha(int alpha) override;

    BlendSettings settings;
};

class TransformFacet final : public NodeFacet<INLETransform>
{
public:
    using NodeFacet::NodeFacet;

    HRESULT SetEnable(bool enable) override;
    HRESULT GetEnable(bool* enable) override;
    /// The setters give E_INVALIDARG for values that are no finite numbers.
    HRESULT SetCenter(const NLEPointF* center) override;
    HRESULT GetCenter(NLEPointF* center) override;
    HRESULT SetScale(const NLESizeF* scale) override;
    HRESULT GetScale(NLESizeF* scale) override;
    HRESULT SetRotation(double degrees) override;
    HRESULT GetRotation(double* degrees) override;
    HRESULT Reserved1() override { return Refuse(E_NOTIMPL); }
    HRESULT Reserved2() override { return Refuse(E_NOTIMPL); }
    HRESULT SetLock(bool lock) override;

    TransformSettings settings;
};

class AudioFacet final : public NodeFacet<INLEAudioStreamProcess>
{
public:
    using NodeFacet::NodeFacet;

    /// Semitones, -24 to 24.
    HRESULT SetPitch(int pitch) override;
    HRESULT GetPitch(int* pitch) override;
    /// Decibels that noise is lowered by, 0 to 97.
    HRESULT SetDenoiseLevel(int level) override;
    HRESULT GetDenoiseLevel(int* level) override;
    HRESULT SetDenoiseEnable(bool enable) override;
    HRESULT GetDenoiseEnable(bool* enable) override;
    HRESULT SetMixToMonoEnable(bool enable) override;
    HRESULT GetMixToMonoEnable(bool* enable) override;
    HRESULT SetVolumeEnable(bool enable) override;
    HRESULT GetVolumeEnable(bool* enable) override;
    HRESULT SetMute(bool mute) override;
    HRESULT GetMute(bool* mute) override;
    HRESULT GetVolumeKeyFrameParam(INLEKeyFrameParam** param) override;
    /// Linear gain, 0 to 16.
    HRESULT SetVolume(double volume) override;
    HRESULT GetVolume(double* volume) override;
    /// -1 left to 1 right: the other side is lowered.
    HRESULT SetBalance(double balance) override;
    HRESULT GetBalance(double* balance) override;
    HRESULT SetFadeInEnable(bool enable) override;
    HRESULT GetFadeInEnable(bool* enable) override;
    /// Frames of the clip, 0 or more.
    HRESULT SetFadeInRange(int frames) override;
    HRESULT GetFadeInRange(int* frames) override;
    HRESULT SetFadeOutEnable(bool enable) override;
    HRESULT GetFadeOutEnable(bool* enable) override;
    HRESULT SetFadeOutRange(int frames) override;
    HRESULT GetFadeOutRange(int* frames) override;
    HRESULT SetEqualizerEnable(bool enable) override;
    HRESULT GetEqualizerEnable(bool* enable) override;
    HRESULT SetEqualizerName(const wchar_t* name) override;
    HRESULT GetEqualizerName(wchar_t* buffer, int capacity) override;
    /// Ten gains in dB, -40 to 40, for the bands of kEqualizerBands.
    HRESULT SetEqualizerParam(const double* params) override;
    HRESULT GetEqualizerParam(double* params) override;

    AudioSettings settings;

private:
    /// Volume over time, as its own object: this interface and the node's differ in life time.
    class VolumeCurve;
};

class VideoFacet final : public NodeFacet<INLEVideoStreamProcess>
{
public:
    explicit VideoFacet(TimelineNode& node);

    HRESULT GetAlphaChannel(NLEAlphaChannelRecord* record) override;
    HRESULT SetAlphaChannel(const NLEAlphaChannelRecord* record) override;
    HRESULT Reserved1() override { return Refuse(E_NOTIMPL); }
    HRESULT Reserved2() override { return Refuse(E_NOTIMPL); }
    HRESULT Reserved3() override { return Refuse(E_NOTIMPL); }
    HRESULT Reserved4() override { return Refuse(E_NOTIMPL); }
    HRESULT Reserved5() override { return Refuse(E_NOTIMPL); }
    HRESULT Reserved6() override { return Refuse(E_NOTIMPL); }
    HRESULT Reserved7() override { return Refuse(E_NOTIMPL); }
    HRESULT Reserved8() override { return Refuse(E_NOTIMPL); }
    HRESULT Reserved9() override { return Refuse(E_NOTIMPL); }
    HRESULT Reserved10() override { return Refuse(E_NOTIMPL); }
    /// An empty path takes the proxy away; E_FAIL when the file has no picture.
    HRESULT SetProxyFile(const wchar_t* path) override;
    HRESULT GetProxyPath(wchar_t* buffer, int capacity) override;
    HRESULT SetProxyEnabled(bool enabled) override;
    HRESULT GetProxyEnabled(bool* enabled) override;
    HRESULT SetPremultipliedAlphaType(int type) override;
    HRESULT GetPremultipliedAlphaType(int* type) override;

    VideoSettings settings;
};

class MixerFacet final : public NodeFacet<INLEMixerSetting>
{
public:
    using NodeFacet::NodeFacet;

    /// A track that was never set has the neutral strip.
    HRESULT GetParam(int index, tagMixerParam* param) override;
    /// E_INVALIDARG for a volume outside of 0 to 16 and a balance outside of -1 to 1.
    HRESULT SetParam(int index, const tagMixerParam* param) override;

    MixerSettings settings;
};

} // namespace nle

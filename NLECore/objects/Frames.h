// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEMedia.h"

#include <QImage>

#include <vector>

namespace nle {

/// Format of all pictures that leave the engine.
constexpr QImage::Format kPictureFormat = QImage::Format_ARGB32;

/// A picture over an image without gaps between its rows.
class Picture final : public ComObject<INLEPicture>
{
public:
    explicit Picture(const QImage& image);

    HRESULT GetWidth(int* width) override;
    HRESULT GetHeight(int* height) override;
    HRESULT GetData(const std::uint8_t** pixels) override;

private:
    const QImage m_image;
};

/// A video frame, whatever memory its pixels are in.
class SizedFrame : public ComObject<INLEVideoFrame>
{
public:
    explicit SizedFrame(NLESize size) : m_size(size), m_valid{0, 0, size.width, size.height} {}

    HRESULT GetSize(NLESize* size) override;
    HRESULT GetValidRect(NLERect* rect) override;
    HRESULT SetValidRect(const NLERect* rect) override;

protected:
    NLESize Size() const { return m_size; }

private:
    const NLESize m_size;
    NLERect m_valid;
};

/// A video frame in system memory.
class VideoFrame final : public SizedFrame
{
public:
    using SizedFrame::SizedFrame;

    HRESULT Prepare() override;
    HRESULT GetData(std::uint8_t** pixels) override;
    HRESULT GetMemory(int* memory) override;

private:
    QImage m_image;
};

/// A block of sound.
class AudioFrame final : public ComObject<INLEAudioFrame>
{
public:
    static constexpr int kSampleRate = 48000;
    static constexpr int kChannels = 2;

    explicit AudioFrame(int sampleCount) : m_samples(size_t(sampleCount) * kChannels) {}

    HRESULT GetSampleCount(int* count) override;
    HRESULT GetSampleRate(int* rate) override;
    HRESULT GetChannels(int* channels) override;
    HRESULT GetData(float** samples) override;

private:
    std::vector<float> m_samples;
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFrames.h"
#include "NLECore/media/AudioDecoder.h"
#include "NLECore/media/WavePyramid.h"

#include <memory>

namespace nle {

/// Envelope of a media file's sound, from the store where it is kept there.
class WaveExtractor final : public ComObject<INLEWaveExtractor, INLEWaveCache>
{
public:
    HRESULT SetSource(INLEMediaInfo* info, std::uint32_t audioStream) override;
    HRESULT Extract(double start, double length, int count, float* minima, float* maxima) override;
    HRESULT Finish() override;

    HRESULT SetCacheFolder(const wchar_t* folder, std::int64_t quota) override;
    HRESULT IsCached(bool* cached) override;
    HRESULT Compute(NLEProgressCallback callback, void* userData) override;

private:
    /// False when the sound cannot be read.
    bool OpenDecoder();
    /// Looks for the envelope in the store.
    bool OpenKept();
    /// As Compute(), without looking whether it is kept.
    HRESULT Keep(const WavePyramid::Progress& progress);
    /// What ReadWaveForm() gives, from the store. A long span has all of the sound kept first.
    /// Empty where the store does not help.
    std::vector<WavePeak> KeptPeaks(std::int64_t firstSample, std::int64_t sampleCount, int count);

    std::shared_ptr<const MediaInfo> m_media; ///< null: no source
    int m_stream = -1;
    std::unique_ptr<AudioDecoder> m_decoder; ///< null: not needed yet
    std::unique_ptr<WaveFile> m_kept;        ///< null: not kept
    bool m_canKeep = true;                   ///< false once that has failed
};

} // namespace nle

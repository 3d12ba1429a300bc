// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/AudioDecoder.h"
#include "NLECore/model/Layer.h"

#include <map>
#include <memory>
#include <vector>

namespace nle {

/// Mixes the sound of a snapshot. One object serves one thread; it keeps the decoders of the layers
/// that it has met.
class AudioMixer
{
public:
    AudioMixer(Snapshot root, int sampleRate, int channels);

    /// Writes \a count samples a channel, interleaved, from sample \a first of the root on, counted
    /// from its frame 0. Silence where nothing plays; the sum of the layers is not limited.
    void Mix(std::int64_t first, int count, float* samples);
    /// The sample that plays when frame \a frame of the root starts.
    std::int64_t SampleOfFrame(std::int64_t frame) const;

private:
    void Add(const Layer& layer, std::int64_t first, int count, float* samples);
    void AddMedia(const Layer& layer, std::int64_t first, int count, float* samples);
    std::int64_t SampleOfFrame(std::int64_t frame, const NLERational& rate) const;

    const Snapshot m_root;
    const int m_sampleRate;
    const int m_channels;
    std::map<const Layer*, std::unique_ptr<AudioDecoder>> m_decoders;
    std::vector<float> m_block;
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/AudioDecoder.h"
#include "NLECore/media/AudioFilter.h"
#include "NLECore/scene/Layer.h"

#include <map>
#include <memory>
#include <vector>

namespace nle {

/// Mixes the sound of a snapshot. One object serves one thread; it keeps the decoders of the layers
/// that sounded within the last second.
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
    /// What is kept of one layer between reads.
    struct Voice
    {
        std::vector<std::unique_ptr<AudioDecoder>> decoders; ///< of the streams that sound
        std::vector<std::unique_ptr<AudioFilter>> effects;   ///< in the order of the sound
        bool isOpened = false; ///< also after a failure, which is not tried again
        std::int64_t idle = 0; ///< samples mixed since it was read last
    };

    /// The filters that a layer's sound goes through. Those without key frames that follow each
    /// other are one.
    std::vector<std::unique_ptr<AudioFilter>> MakeEffects(const Layer& layer) const;
    /// One whose key frames decide, each for a block of samples.
    std::unique_ptr<AudioFilter> MakeAnimated(const Layer& layer,
                                              const SharedParameters& values) const;
    /// The layer's own samples with its settings, from its frame 0 on.
    void Render(const Layer& layer, std::int64_t first, int count, float* samples);
    void RenderContent(const Layer& layer, std::int64_t first, int count, float* samples);
    /// The child at the place \a index.
    void AddChild(const Layer& parent, int index, std::int64_t first, int count, float* samples);
    /// Lets a child fade as the transitions of its parent say. \a first counts from frame 0 of the
    /// parent.
    void ApplyTransitions(const Layer& parent, int child, std::int64_t first, int count,
                          float* samples) const;
    /// Gives up what has not been read for a second, after \a count samples were mixed.
    void DropIdleVoices(int count);
    void ReadMedia(const Layer& layer, Voice& voice, std::int64_t first, int count, float* samples);
    void ApplyGains(const Layer& layer, std::int64_t first, int count, float* samples) const;
    void ApplyBalance(double balance, int count, float* samples) const;
    std::int64_t SampleOfFrame(std::int64_t frame, const NLERational& rate) const;

    const Snapshot m_root;
    const int m_sampleRate;
    const int m_channels;
    std::map<const Layer*, Voice> m_voices;
};

} // namespace nle

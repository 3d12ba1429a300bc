// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/LoudnessPass.h"

#include "NLECore/render/AudioMixer.h"

#include <algorithm>

namespace nle {

namespace {

constexpr int kSampleRate = 48000;
constexpr int kChannels = 2;
/// Samples that are mixed at a time.
constexpr int kBlock = 4800;

} // namespace

Snapshot HeardThrough(const Layer& layer, const std::vector<SharedParameters>& before)
{
    auto heard = std::make_shared<Layer>(layer);
    AudioSettings sound;
    sound.pitch = layer.audio.pitch;
    sound.denoise = layer.audio.denoise;
    sound.denoiseLevel = layer.audio.denoiseLevel;
    sound.equalizer = layer.audio.equalizer;
    sound.equalizerGains = layer.audio.equalizerGains;
    heard->audio = sound;
    heard->soundEffects = before;
    return heard;
}

std::optional<Loudness> MeasureLoudness(const Snapshot& root,
                                        const std::function<bool(int percent)>& goesOn)
{
    AudioMixer mixer(root, kSampleRate, kChannels);
    LoudnessMeter meter(kSampleRate, kChannels);
    const std::int64_t first = mixer.SampleOfFrame(root->range.in);
    const std::int64_t end = mixer.SampleOfFrame(std::int64_t(root->range.out) + 1);
    std::vector<float> block(std::size_t(kBlock) * kChannels);
    for (std::int64_t at = first; at < end; at += kBlock) {
        if (!goesOn(int((at - first) * 100 / (end - first))))
            return std::nullopt;
        const auto count = int(std::min<std::int64_t>(kBlock, end - at));
        mixer.Mix(at, count, block.data());
        if (!meter.Add(block.data(), count))
            return std::nullopt;
    }
    return meter.Finish();
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/WaveForm.h"
#include "NLECore/media/AudioDecoder.h"

#include <algorithm>

namespace nle {
namespace {

constexpr std::int64_t kBlockSamples = 32768;

} // namespace

std::int64_t WaveBucketStart(std::int64_t bucket, std::int64_t sampleCount, std::int64_t buckets)
{
    return sampleCount / buckets * bucket + sampleCount % buckets * bucket / buckets;
}

std::vector<WavePeak> ReadWaveForm(AudioDecoder& decoder, std::int64_t firstSample,
                                   std::int64_t sampleCount, int sampleRate, int channels,
                                   int buckets)
{
    if (sampleCount <= 0 || sampleRate <= 0 || channels <= 0 || buckets <= 0)
        return {};
    std::vector<WavePeak> peaks(size_t(buckets) * size_t(channels));
    std::vector<float> block(size_t(kBlockSamples) * size_t(channels));
    std::int64_t blockStart = 0;
    std::int64_t blockEnd = 0;
    for (int bucket = 0; bucket < buckets; ++bucket) {
        const std::int64_t start = WaveBucketStart(bucket, sampleCount, buckets);
        const std::int64_t end =
            std::max(start + 1, WaveBucketStart(bucket + 1, sampleCount, buckets));
        WavePeak* const peak = &peaks[size_t(bucket) * size_t(channels)];
        for (std::int64_t sample = start; sample < end; ++sample) {
            if (sample >= blockEnd) {
                blockStart = sample;
                blockEnd = std::min(sampleCount, blockStart + kBlockSamples);
                if (decoder.Read(firstSample + blockStart, int(blockEnd - blockStart), sampleRate,
                                 channels, block.data()) < 0)
                    return {};
            }
            const float* const values = &block[size_t(sample - blockStart) * size_t(channels)];
            for (int channel = 0; channel < channels; ++channel) {
                const float value = values[channel];
                WavePeak& range = peak[channel];
                const bool isFirst = sample == start;
                range.min = isFirst ? value : std::min(range.min, value);
                range.max = isFirst ? value : std::max(range.max, value);
            }
        }
    }
    return peaks;
}

} // namespace nle

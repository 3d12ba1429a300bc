// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <cstdint>
#include <vector>

namespace nle {

class AudioDecoder;

/// Lowest and highest sample of a stretch of sound, nominally from -1 to 1.
struct WavePeak
{
    float min = 0.0F;
    float max = 0.0F;
};

/// First of \a sampleCount samples that belongs to stretch \a bucket when they are cut into
/// \a buckets of equal length. Does not overflow for any real length.
std::int64_t WaveBucketStart(std::int64_t bucket, std::int64_t sampleCount, std::int64_t buckets);

/// Peaks of \a sampleCount sample groups from \a firstSample on, both counted at \a sampleRate,
/// in \a buckets stretches of equal length (to the sample). The result lists, for each stretch,
/// one peak per channel. Samples outside the stream count as silence; a stretch shorter than a
/// sample shows the sample that it lies in. Empty for arguments that make no sense.
std::vector<WavePeak> ReadWaveForm(AudioDecoder& decoder, std::int64_t firstSample,
                                   std::int64_t sampleCount, int sampleRate, int channels,
                                   int buckets);

} // namespace nle

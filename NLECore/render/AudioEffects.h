// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/ClipSettings.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace nle {

/// Pitch, denoise and equaliser of one layer, by filters of libavfilter.
///
/// The filters remember what went before; reads that follow each other continue, another start
/// begins them anew with a quarter of a second of lead-in.
class AudioEffects
{
public:
    /// Writes \a count samples a channel from sample \a first on, interleaved.
    using Source = std::function<void(std::int64_t first, int count, float* samples)>;

    AudioEffects(const AudioSettings& settings, int sampleRate, int channels);
    ~AudioEffects();

    /// Whether \a settings ask for any of these effects.
    static bool AreNeeded(const AudioSettings& settings);
    /// As Source, with the effects; what the filters cannot do passes unchanged.
    void Read(std::int64_t first, int count, const Source& source, float* samples);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace nle

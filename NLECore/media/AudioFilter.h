// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>

#include <cstdint>
#include <functional>
#include <memory>

namespace nle {

/// A chain of libavfilter's sound filters over samples that are asked for by position.
///
/// The filters remember what went before; reads that follow each other continue, another start
/// begins them anew with a lead-in.
class AudioFilter
{
public:
    /// Writes \a count samples a channel from sample \a first on, interleaved.
    using Source = std::function<void(std::int64_t first, int count, float* samples)>;

    /// Seconds of lead-in that are enough for filters without a long memory.
    static constexpr double kLeadIn = 0.25;

    /// \a description is the chain in libavfilter's notation, for example "equalizer=f=500:g=3".
    /// \a leadIn is in seconds.
    AudioFilter(const QByteArray& description, int sampleRate, int channels,
                double leadIn = kLeadIn);
    ~AudioFilter();
    AudioFilter(const AudioFilter&) = delete;
    AudioFilter& operator=(const AudioFilter&) = delete;

    /// As Source, filtered; a chain that libavfilter refuses lets everything pass unchanged.
    void Read(std::int64_t first, int count, const Source& source, float* samples);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace nle

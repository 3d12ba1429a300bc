// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace nle {

/// One of libavfilter's filters of sound, with options by name.
struct SoundFilter
{
    QByteArray name;
    std::vector<std::pair<QByteArray, QByteArray>> options;

    /// As libavfilter reads it.
    QByteArray Text() const;
};

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
    /// One filter whose options change: \a filterAt gives it as it is from a sample on, with the
    /// same options in the same order, and is asked at whole multiples of BlockLength(). Wherever
    /// reading begins, each sample is filtered with the same options.
    using Automation = std::function<SoundFilter(std::int64_t sample)>;
    AudioFilter(Automation filterAt, int sampleRate, int channels, double leadIn = kLeadIn);
    ~AudioFilter();
    AudioFilter(const AudioFilter&) = delete;
    AudioFilter& operator=(const AudioFilter&) = delete;

    /// Whether this build of libavfilter has a filter of that name.
    static bool IsThere(const char* name);
    /// Samples for which options stay as they are: ten milliseconds.
    static int BlockLength(int sampleRate) { return sampleRate < 100 ? 1 : sampleRate / 100; }

    /// As Source, filtered; a chain that libavfilter refuses lets everything pass unchanged.
    void Read(std::int64_t first, int count, const Source& source, float* samples);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace nle

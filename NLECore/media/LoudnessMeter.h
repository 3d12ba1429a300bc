// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <memory>

namespace nle {

/// How loud a sound is, after EBU R128.
struct Loudness
{
    static constexpr double kSilent = -70; ///< the gate of the recommendation
    static constexpr double kNoPeak = -120;

    double integrated = kSilent; ///< LUFS
    double range = 0;            ///< LU
    double truePeak = kNoPeak;   ///< dBTP, of four samples for each
};

/// Measures a sound from its beginning to its end. What is shorter than 0.4 seconds, the first
/// block of the recommendation, counts as silent.
class LoudnessMeter
{
public:
    LoudnessMeter(int sampleRate, int channels);
    ~LoudnessMeter();
    LoudnessMeter(const LoudnessMeter&) = delete;
    LoudnessMeter& operator=(const LoudnessMeter&) = delete;

    /// Appends \a count samples a channel, interleaved. False when it cannot measure.
    bool Add(const float* samples, int count);
    /// Of all that was added. To be called once.
    Loudness Finish();

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <vector>

namespace nle {

/// Sound on its way to a device, and the clock that follows from what the device took.
///
/// Samples of two channels are counted from 0 for the queue's whole life. One thread writes, the
/// device's thread takes; neither waits, locks or allocates. What the device wants and does not
/// find is silence, which is counted and does not advance the count.
class SoundQueue
{
public:
    using Clock = std::chrono::steady_clock;

    static constexpr int kRate = 48000;
    static constexpr int kChannels = 2;

    SoundQueue();

    /// The device's thread: the next \a count samples a channel into \a samples, called at \a now.
    void Take(float* samples, int count, Clock::time_point now);

    /// The count after the last sample that was written.
    std::int64_t End() const { return m_end; }
    /// Samples that were written and not taken.
    int Waiting() const { return int(m_end - m_next); }
    /// The writer: appends \a count samples a channel, no more than fit (kCapacity - Waiting()).
    void Write(const float* samples, int count);
    /// Takes back what was written but for \a kept samples, and gives the count of the end then.
    /// Only while neither writer nor device are at it.
    std::int64_t Cut(int kept);

    /// While held the device gets silence.
    void Hold(bool isHeld) { m_isHeld = isHeld; }
    /// No more is written, so that an empty queue is no underrun.
    void SetWhole(bool isWhole) { m_isWhole = isWhole; }
    /// Linear; reached within the next block, without a jump while there is sound.
    void SetGain(float gain) { m_gain = gain; }
    /// Blocks that the device holds before the one that it takes is heard, that one included.
    void SetLatency(int blocks) { m_latency = blocks; }

    /// The count of the sample that is heard at \a now; never falls. Any thread.
    std::int64_t Heard(Clock::time_point now) const;
    int Underruns() const { return m_underruns; }

    /// Samples a channel that it holds at the most, a power of two.
    static constexpr int kCapacity = 1 << 14;

private:
    void Tell(std::int64_t first, int wanted, int given, Clock::time_point now);

    std::vector<float> m_ring;
    std::atomic<std::int64_t> m_next{0}; ///< the sample that is taken next
    std::atomic<std::int64_t> m_end{0};
    std::atomic<bool> m_isHeld{true};
    std::atomic<bool> m_isWhole{false};
    std::atomic<float> m_gain{1};
    std::atomic<int> m_latency{1};
    std::atomic<int> m_underruns{0};
    // The device's thread only.
    float m_lastGain = 1;
    int m_silence = kCapacity; ///< samples of silence that it got last, up to kCapacity

    /// The block that was taken last. Odd versions are being written.
    struct
    {
        std::atomic<std::uint32_t> version{0};
        std::atomic<std::int64_t> first{0};
        std::atomic<int> wanted{0};
        std::atomic<int> given{0};
        std::atomic<int> silence{0}; ///< samples that it got before
        std::atomic<Clock::rep> time{0};
    } m_block;
    mutable std::atomic<std::int64_t> m_heard{0}; ///< the furthest that Heard() gave
};

} // namespace nle

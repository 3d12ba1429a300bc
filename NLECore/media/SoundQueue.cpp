// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/SoundQueue.h"

#include <algorithm>

namespace nle {

SoundQueue::SoundQueue() : m_ring(size_t(kCapacity) * kChannels) {}

void SoundQueue::Take(float* samples, int count, Clock::time_point now)
{
    const std::int64_t first = m_next;
    const bool isHeld = m_isHeld;
    const int given = isHeld ? 0 : int(std::min<std::int64_t>(count, m_end - first));
    const float gain = m_gain;
    if (m_silence > 0)
        m_lastGain = gain;
    const float step = given > 0 ? (gain - m_lastGain) / float(given) : 0;
    for (int i = 0; i < given; ++i) {
        const auto place = size_t(first + i) % kCapacity * kChannels;
        const float factor = i + 1 == given ? gain : m_lastGain + step * float(i + 1);
        for (size_t channel = 0; channel < kChannels; ++channel)
            *samples++ = m_ring[place + channel] * factor;
    }
    std::fill_n(samples, size_t(count - given) * kChannels, 0.0f);
    m_lastGain = gain;
    if (!isHeld && given < count && !m_isWhole)
        ++m_underruns;
    Tell(first, count, given, now);
    m_silence =
        given == count ? 0 : std::min((given > 0 ? 0 : m_silence) + count - given, kCapacity);
    m_next = first + given;
}

void SoundQueue::Tell(std::int64_t first, int wanted, int given, Clock::time_point now)
{
    ++m_block.version;
    m_block.first = first;
    m_block.wanted = wanted;
    m_block.given = given;
    m_block.silence = m_silence;
    m_block.time = now.time_since_epoch().count();
    ++m_block.version;
}

void SoundQueue::Write(const float* samples, int count)
{
    const std::int64_t end = m_end;
    for (int i = 0; i < count; ++i) {
        const auto place = size_t(end + i) % kCapacity * kChannels;
        std::copy_n(samples + size_t(i) * kChannels, kChannels, m_ring.begin() + place);
    }
    m_end = end + count;
}

std::int64_t SoundQueue::Cut(int kept)
{
    m_end = std::min<std::int64_t>(m_end, m_next + kept);
    m_isWhole = false;
    return m_end;
}

std::int64_t SoundQueue::Heard(Clock::time_point now) const
{
    std::uint32_t version = 0;
    std::int64_t heard = 0;
    do {
        version = m_block.version;
        const std::int64_t first = m_block.first;
        const Clock::time_point time{Clock::duration(m_block.time)};
        const double seconds = std::chrono::duration<double>(now - time).count();
        const auto passed = std::int64_t(seconds * kRate);
        const auto ahead = std::int64_t(m_latency - 1) * m_block.wanted;
        const std::int64_t unheard = std::max<std::int64_t>(ahead - m_block.silence, 0);
        heard = passed < ahead ? std::min(first, first - unheard + passed)
                               : std::min(first + m_block.given, first - ahead + passed);
    } while (version % 2 != 0 || version != m_block.version);
    std::int64_t furthest = m_heard;
    while (furthest < heard && !m_heard.compare_exchange_weak(furthest, heard)) {
    }
    return std::max(furthest, heard);
}

} // namespace nle

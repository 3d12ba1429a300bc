// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/LevelMeter.h"

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

constexpr double kFall = 20;       ///< decibels a second
constexpr double kHold = 1.5;      ///< seconds
constexpr double kRmsWindow = 0.3; ///< seconds
constexpr int kRmsSamples = int(kRmsWindow * SoundQueue::kRate);
/// Short beside the window, so that silence leaves it bit by bit.
constexpr int kSilentPiece = 480;
constexpr float kInaudible = 1e-6f;

float Fallen(float level, int count)
{
    const double seconds = double(count) / SoundQueue::kRate;
    const auto fallen = float(level * std::pow(10.0, -kFall * seconds / 20));
    return fallen < kInaudible ? 0 : fallen;
}

} // namespace

LevelMeter::Piece LevelMeter::Measure(const float* samples, int count)
{
    Piece piece;
    piece.count = count;
    for (int i = 0; i < count; ++i) {
        for (size_t channel = 0; channel < piece.peak.size(); ++channel) {
            const float value = std::abs(*samples++);
            piece.peak[channel] = std::max(piece.peak[channel], value);
            piece.squares[channel] += double(value) * value;
            piece.clipped[channel] += value > 1 ? 1 : 0;
        }
    }
    return piece;
}

void LevelMeter::Follow(Channel& channel, float peak, int count)
{
    channel.peak = std::max(peak, Fallen(channel.peak, count));
    channel.held += count;
    if (peak > 0 && peak >= channel.hold) {
        channel.hold = peak;
        channel.held = 0;
    } else if (channel.held > kHold * SoundQueue::kRate) {
        channel.hold = std::max(channel.peak, Fallen(channel.hold, count));
    }
}

void LevelMeter::Add(const Piece& piece)
{
    for (size_t i = 0; i < m_channels.size(); ++i) {
        Follow(m_channels[i], piece.peak[i], piece.count);
        m_channels[i].clipped += piece.clipped[i];
    }
    m_window.push_back(piece);
    m_windowCount += piece.count;
    while (m_window.size() > 1 && m_windowCount - m_window.front().count >= kRmsSamples) {
        m_windowCount -= m_window.front().count;
        m_window.pop_front();
    }
}

void LevelMeter::AddSilence(int count)
{
    for (; count > 0; count -= kSilentPiece)
        Add({std::min(count, kSilentPiece), {}, {}, {}});
}

void LevelMeter::ResetClipping()
{
    for (Channel& channel : m_channels)
        channel.clipped = 0;
}

void LevelMeter::Get(NLEPlayerLevels* levels) const
{
    *levels = {};
    levels->channels = SoundQueue::kChannels;
    for (size_t i = 0; i < m_channels.size(); ++i) {
        double squares = 0;
        for (const Piece& piece : m_window)
            squares += piece.squares[i];
        levels->peak[i] = m_channels[i].peak;
        levels->hold[i] = m_channels[i].hold;
        levels->rms[i] = float(std::sqrt(squares / std::max(m_windowCount, kRmsSamples)));
        levels->clipped[i] = m_channels[i].clipped;
    }
}

} // namespace nle

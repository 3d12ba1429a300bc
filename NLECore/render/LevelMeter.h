// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEPlayer.h"
#include "NLECore/media/SoundQueue.h"

#include <array>
#include <deque>

namespace nle {

/// Peak, held peak, RMS and clipped samples of sound that goes by; see NLEPlayerLevels.
class LevelMeter
{
public:
    /// What a short piece of sound measures.
    struct Piece
    {
        int count = 0; ///< samples a channel
        std::array<float, SoundQueue::kChannels> peak = {};
        std::array<double, SoundQueue::kChannels> squares = {}; ///< their sum
        std::array<int, SoundQueue::kChannels> clipped = {};
    };
    static Piece Measure(const float* samples, int count);

    /// The piece has been heard.
    void Add(const Piece& piece);
    /// Nothing was heard for as long as \a count samples.
    void AddSilence(int count);
    void ResetClipping();
    /// Fills all but the frame.
    void Get(NLEPlayerLevels* levels) const;

private:
    struct Channel
    {
        float peak = 0;
        float hold = 0;
        int held = 0; ///< samples since the held peak
        int clipped = 0;
    };

    static void Follow(Channel& channel, float peak, int count);

    std::array<Channel, SoundQueue::kChannels> m_channels;
    std::deque<Piece> m_window; ///< what the RMS is of
    int m_windowCount = 0;
};

} // namespace nle

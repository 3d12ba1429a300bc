// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <cstdint>
#include <limits>

/// How meters move: a level rises at once and falls by 20 dB a second; a held peak stays for 1.5 s
/// before.
constexpr double kFallPerSecond = 20;
constexpr std::int64_t kPeakHold = 1500; ///< milliseconds

/// Decibels of a linear level, 1 being 0 dB; minus infinity for 0 and for what is no level.
double ToDecibels(double level);

/// A level in decibels that rises at once, stays for a while and falls then. Times are milliseconds
/// of a steady clock.
class FallingLevel
{
public:
    FallingLevel() = default;
    /// Stays for \a hold milliseconds.
    explicit FallingLevel(std::int64_t hold) : m_hold(hold) {}

    /// A level that was reached at \a now; one below what still shows changes nothing.
    void Raise(double decibels, std::int64_t now);
    double At(std::int64_t now) const;

private:
    std::int64_t m_hold = 0;
    std::int64_t m_since = 0;
    double m_level = -std::numeric_limits<double>::infinity();
};

/// What a meter shows of a channel.
struct ChannelLevels
{
    FallingLevel peak;
    FallingLevel held{kPeakHold};
    FallingLevel rms;
    bool isClipped = false;
};

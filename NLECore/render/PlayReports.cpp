// SPDX-License-Identifier: LGPL-2.1-or-later
// What a PlayLoop tells of its playing: counts of pictures, levels of sound.
#include "NLECore/render/PlayLoop.h"

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

constexpr double kLateMs = 10;
/// While nothing is heard levels fall in steps of this.
constexpr std::chrono::milliseconds kSilentStep{50};
/// After as much silence all levels are 0.
constexpr std::chrono::seconds kLongestFall{10};

} // namespace

void PlayLoop::Tally::Add(int source, double lateMs)
{
    ++report.shown;
    ++(source == NLEPlayerSource_Cached ? report.cached : report.rendered);
    report.late += lateMs > kLateMs ? 1 : 0;
    driftSum += lateMs;
    if (std::abs(lateMs) > std::abs(report.furthestDrift))
        report.furthestDrift = lateMs;
}

void PlayLoop::Tally::Add(const Tally& other)
{
    report.shown += other.report.shown;
    report.dropped += other.report.dropped;
    report.late += other.report.late;
    report.rendered += other.report.rendered;
    report.cached += other.report.cached;
    report.underruns += other.report.underruns;
    driftSum += other.driftSum;
    if (std::abs(other.report.furthestDrift) > std::abs(report.furthestDrift))
        report.furthestDrift = other.report.furthestDrift;
}

NLEPlayerReport PlayLoop::Tally::Sum() const
{
    NLEPlayerReport sum = report;
    sum.drift = report.shown > 0 ? driftSum / report.shown : 0;
    return sum;
}

PlayLoop::Tally PlayLoop::TotalNow() const
{
    Tally sum = m_guarded.total;
    sum.Add(m_guarded.second);
    sum.report.underruns += m_queue.Underruns() - m_guarded.underruns;
    return sum;
}

bool PlayLoop::LastSecond(NLEPlayerReport* report) const
{
    const Lock lock(m_mutex);
    *report = m_guarded.lastSecond.value_or(NLEPlayerReport());
    return m_guarded.lastSecond.has_value();
}

void PlayLoop::Totals(NLEPlayerReport* report) const
{
    const Lock lock(m_mutex);
    *report = TotalNow().Sum();
}

void PlayLoop::Measure()
{
    const Clock::time_point now = Clock::now();
    std::deque<HeardPiece>& pieces = m_guarded.pieces;
    const std::int64_t heard = m_guarded.runs.empty() ? 0 : HeardNow();
    for (; !pieces.empty() && pieces.front().end <= heard; pieces.pop_front()) {
        m_guarded.meter.Add(pieces.front().piece);
        m_guarded.measuredAt = now;
    }
    const auto quiet = std::min<Clock::duration>(now - m_guarded.measuredAt, kLongestFall);
    if (quiet < kSilentStep)
        return;
    m_guarded.meter.AddSilence(
        int(std::chrono::duration<double>(quiet).count() * SoundQueue::kRate));
    m_guarded.measuredAt = now;
}

void PlayLoop::Levels(NLEPlayerLevels* levels)
{
    const Lock lock(m_mutex);
    Measure();
    m_guarded.meter.Get(levels);
    levels->frame = m_guarded.scene ? FrameNow() : -1;
}

void PlayLoop::ResetClipping()
{
    const Lock lock(m_mutex);
    m_guarded.meter.ResetClipping();
}

} // namespace nle

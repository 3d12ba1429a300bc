// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/FrameGrid_p.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace nle {
namespace {

// In ascending order. Containers with coarse clocks only come close to them.
constexpr AVRational kStandardRates[] = {{24000, 1001}, {24, 1},        {25, 1}, {30000, 1001},
                                         {30, 1},       {48, 1},        {50, 1}, {60000, 1001},
                                         {60, 1},       {120000, 1001}, {120, 1}};
constexpr double kStandardRateTolerance = 0.0002;

// Above this, what is declared is the clock of the container rather than a grid of pictures.
constexpr double kMaxGridRate = 125.0;

// Pictures at irregular times are not numbered more finely than that.
constexpr AVRational kMaxIrregularRate = {60, 1};

// A mean rate this close to the grid leaves out hardly a picture.
constexpr double kMeanTolerance = 0.02;

// Share of a frame by which a picture may stand beside the grid, besides the clock's own steps.
constexpr double kGridTolerance = 0.1;

const AVRational* StandardRate(AVRational rate)
{
    for (const AVRational& standard : kStandardRates) {
        if (std::abs(av_q2d(rate) / av_q2d(standard) - 1.0) < kStandardRateTolerance)
            return &standard;
    }
    return nullptr;
}

AVRational SnapToStandardRate(AVRational rate)
{
    const AVRational* const standard = StandardRate(rate);
    return standard != nullptr ? *standard : rate;
}

bool IsHalfWhole(AVRational rate)
{
    return std::abs(av_q2d(rate) * 2 - std::round(av_q2d(rate) * 2)) < kStandardRateTolerance;
}

// The rate on which libavformat found the first pictures. Interlaced streams may count fields.
AVRational FinestGrid(const AVStream* stream)
{
    const AVRational grid = stream->r_frame_rate;
    const AVRational mean = stream->avg_frame_rate;
    const bool isInterlaced = stream->codecpar->field_order > AV_FIELD_PROGRESSIVE;
    const bool countsFields =
        isInterlaced && IsValid(mean) && std::abs(av_q2d(grid) / av_q2d(mean) - 2.0) < 0.1;
    return countsFields ? AVRational{grid.num, 2 * grid.den} : grid;
}

/// Pictures by their times at one rate.
struct Fit
{
    /// Greatest distance of a picture from its frame, in seconds.
    double worst = 0;
    bool areDistinct = true;
};

Fit FitTo(const std::vector<std::int64_t>& ticks, AVRational clock, AVRational rate)
{
    const double framesPerTick = av_q2d(clock) * av_q2d(rate);
    Fit fit;
    double previous = -1;
    for (const std::int64_t tick : ticks) {
        const double frames = double(tick - ticks.front()) * framesPerTick;
        const double frame = std::round(frames);
        fit.worst = std::max(fit.worst, std::abs(frames - frame) / av_q2d(rate));
        fit.areDistinct = fit.areDistinct && frame > previous;
        previous = frame;
    }
    return fit;
}

bool IsOnGrid(const Fit& fit, AVRational clock, AVRational rate)
{
    return fit.areDistinct && fit.worst <= av_q2d(clock) + kGridTolerance / av_q2d(rate);
}

// 24 and 23.976 and their like are told apart by which of them fits better.
std::optional<AVRational> StandardGrid(const std::vector<std::int64_t>& ticks, AVRational clock)
{
    std::optional<AVRational> found;
    double worst = 0;
    for (const AVRational& rate : kStandardRates) {
        if (found && av_q2d(rate) > av_q2d(*found) * (1 + kMeanTolerance))
            break;
        const Fit fit = FitTo(ticks, clock, rate);
        if (!IsOnGrid(fit, clock, rate) || (found && fit.worst >= worst))
            continue;
        found = rate;
        worst = fit.worst;
    }
    return found;
}

} // namespace

FrameGrid DeclaredGrid(const AVStream* stream)
{
    const AVRational grid = FinestGrid(stream);
    const AVRational mean = stream->avg_frame_rate;
    const bool hasGrid = IsValid(grid) && av_q2d(grid) <= kMaxGridRate &&
                         (!IsValid(mean) || av_q2d(grid) < 2.5 * av_q2d(mean));
    if (hasGrid)
        return {SnapToStandardRate(grid), true};
    if (IsValid(mean))
        return {SnapToStandardRate(mean), false};
    return {};
}

bool HasHoles(const AVStream* stream, AVRational rate)
{
    const AVRational mean = stream->avg_frame_rate;
    return IsValid(mean) && std::abs(av_q2d(rate) / av_q2d(mean) - 1.0) >= kMeanTolerance;
}

bool HasDoubtfulGrid(const AVStream* stream)
{
    const FrameGrid declared = DeclaredGrid(stream);
    return IsValid(stream->avg_frame_rate) &&
           (!declared.isConstant || HasHoles(stream, declared.rate) ||
            (StandardRate(declared.rate) == nullptr && !IsHalfWhole(declared.rate)));
}

FrameGrid FindGrid(const AVStream* stream, std::vector<std::int64_t> times)
{
    std::sort(times.begin(), times.end());
    times.erase(std::unique(times.begin(), times.end()), times.end());
    if (times.size() < 2)
        return DeclaredGrid(stream);
    const AVRational clock = stream->time_base;
    const AVRational mean = stream->avg_frame_rate;
    const AVRational finest = FinestGrid(stream);
    const bool isUsual =
        IsValid(finest) && (av_cmp_q(finest, kMaxIrregularRate) <= 0 ||
                            (av_q2d(finest) <= kMaxGridRate && av_q2d(finest) < 2 * av_q2d(mean)));
    if (isUsual && IsOnGrid(FitTo(times, clock, finest), clock, finest))
        return {SnapToStandardRate(finest), true};
    if (IsOnGrid(FitTo(times, clock, mean), clock, mean))
        return {SnapToStandardRate(mean), true};
    if (const std::optional<AVRational> grid = StandardGrid(times, clock))
        return {*grid, true};
    for (const AVRational& rate : kStandardRates) {
        if (av_cmp_q(rate, kMaxIrregularRate) <= 0 && FitTo(times, clock, rate).areDistinct)
            return {rate, true};
    }
    return {kMaxIrregularRate, false};
}

} // namespace nle

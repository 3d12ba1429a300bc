// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/SoftPicture_p.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace nle {

namespace {

/// Rows or columns that are blurred side by side, so that one step works on all of them.
constexpr int kLanes = 16;
/// Deviations up to which each pixel is weighed; beyond it three means one after the other do it,
/// at the same cost whatever the size.
constexpr double kMostWeighed = 3;
/// Below it nothing is seen.
constexpr double kLeastDeviation = 0.05;

using Lanes = std::vector<float>; ///< kLanes numbers for each place along the line

/// Three means one after the other, at the same cost whatever the size.
class BoxBlur
{
public:
    BoxBlur(double deviation, int length) : m_length(length)
    {
        // The box, with a part of a pixel at both ends, of which kPasses have the deviation.
        const double variance = deviation * deviation / kPasses;
        m_radius = int((std::sqrt(12 * variance + 1) - 1) / 2);
        const double next = double(m_radius + 1) * (m_radius + 1);
        const double part = (2 * m_radius + 1) *
                            (double(m_radius) * (m_radius + 1) - 3 * variance) /
                            (6 * (variance - next));
        const double width = 2 * m_radius + 1 + 2 * part;
        m_inner = float(1 / width);
        m_outer = float(part / width);
    }

    /// Blurs \a line; \a spare has the same size.
    void Run(Lanes& line, Lanes& spare) const
    {
        constexpr int passes = kPasses;
        for (int pass = 0; pass < passes; ++pass) {
            Mean(line.data(), spare.data());
            line.swap(spare);
        }
    }

private:
    static constexpr int kPasses = 3;

    const float* At(const float* line, int place) const
    {
        return line + std::size_t(std::clamp(place, 0, m_length - 1)) * kLanes;
    }
    void Mean(const float* from, float* to) const
    {
        std::array<float, kLanes> sum = {};
        for (int place = -m_radius; place <= m_radius; ++place) {
            const float* source = At(from, place);
            for (int lane = 0; lane < kLanes; ++lane)
                sum[std::size_t(lane)] += source[lane];
        }
        for (int place = 0; place < m_length; ++place) {
            const float* before = At(from, place - m_radius - 1);
            const float* after = At(from, place + m_radius + 1);
            const float* last = At(from, place - m_radius);
            float* target = to + std::size_t(place) * kLanes;
            for (int lane = 0; lane < kLanes; ++lane) {
                target[lane] =
                    sum[std::size_t(lane)] * m_inner + (before[lane] + after[lane]) * m_outer;
                sum[std::size_t(lane)] += after[lane] - last[lane];
            }
        }
    }

    const int m_length;
    int m_radius = 0;
    float m_inner = 1;
    float m_outer = 0;
};

/// Rows from \a first to \a end side by side. Back and forth in squares, which stay at hand.
template <typename Move>
void ForSquares(int width, int first, int end, Move move)
{
    for (int from = 0; from < width; from += kLanes) {
        const int to = std::min(from + kLanes, width);
        for (int y = first; y < end; ++y)
            move(y, from, to);
    }
}

void BlurRows(EffectPicture& picture, int plane, int first, int end, const BoxBlur& blur,
              Lanes& line, Lanes& spare)
{
    const auto lanes = [&line, first](int y) { return line.data() + (y - first); };
    ForSquares(picture.Width(), first, end, [&](int y, int from, int to) {
        const float* row = picture.Row(plane, y);
        float* lane = lanes(y);
        for (int x = from; x < to; ++x)
            lane[std::size_t(x) * kLanes] = row[x];
    });
    blur.Run(line, spare);
    ForSquares(picture.Width(), first, end, [&](int y, int from, int to) {
        float* row = picture.Row(plane, y);
        const float* lane = lanes(y);
        for (int x = from; x < to; ++x)
            row[x] = lane[std::size_t(x) * kLanes];
    });
}

void BlurColumns(EffectPicture& picture, int plane, int first, int end, const BoxBlur& blur,
                 Lanes& line, Lanes& spare)
{
    for (int y = 0; y < picture.Height(); ++y) {
        const float* row = picture.Row(plane, y);
        std::copy(row + first, row + end, line.data() + std::size_t(y) * kLanes);
    }
    blur.Run(line, spare);
    for (int y = 0; y < picture.Height(); ++y) {
        const float* from = line.data() + std::size_t(y) * kLanes;
        std::copy(from, from + (end - first), picture.Row(plane, y) + first);
    }
}

/// Calls \a work for groups of kLanes lines at the most of each plane.
template <typename Work>
void ForLanes(int lines, int length, int first, int last, const Bands& bands, Work work)
{
    const int groups = (lines + kLanes - 1) / kLanes;
    const int size = std::max(1, bands.size / kLanes);
    ForBands(groups, {size, bands.isParallel}, [&](int from, int to) {
        Lanes line(std::size_t(length) * kLanes);
        Lanes spare(line.size());
        for (int group = from; group < to; ++group) {
            for (int plane = first; plane <= last; ++plane)
                work(plane, group * kLanes, std::min(group * kLanes + kLanes, lines), line, spare);
        }
    });
}

/// Weights of the pixels around, the middle one first; those on both sides are alike.
class WeighedBlur
{
public:
    WeighedBlur(double across, double down) : m_across(WeightsOf(across)), m_down(WeightsOf(down))
    {
    }

    /// Rows \a first to \a end of a plane.
    void Run(const EffectPicture& from, EffectPicture& to, int plane, int first, int end) const
    {
        const int radius = int(m_down.size()) - 1;
        const int width = from.Width();
        const int count = end - first + 2 * radius;
        std::vector<float> wide(std::size_t(width) + 2 * m_across.size());
        std::vector<float> rows(std::size_t(count) * std::size_t(width));
        const auto row = [&](int y) { return rows.data() + std::ptrdiff_t(y) * width; };
        for (int y = 0; y < count; ++y)
            Across(from.Row(plane, std::clamp(first - radius + y, 0, from.Height() - 1)), width,
                   wide.data(), row(y));
        for (int y = first; y < end; ++y) {
            const int middle = y - first + radius;
            Weigh(m_down, width, to.Row(plane, y), [&](int side) { return row(middle + side); });
        }
    }

private:
    using Weights = std::vector<float>;
    static constexpr int kBlock = 64; ///< pixels that are weighed at a time

    static Weights WeightsOf(double deviation)
    {
        constexpr double reach = 3.5; // deviations
        const int radius = deviation > kLeastDeviation ? int(std::ceil(deviation * reach)) : 0;
        std::vector<double> weights = {1};
        double sum = 1;
        for (int i = 1; i <= radius; ++i) {
            weights.push_back(std::exp(-i * i / (2 * deviation * deviation)));
            sum += 2 * weights.back();
        }
        Weights shares;
        for (const double weight : weights)
            shares.push_back(float(weight / sum));
        return shares;
    }
    /// \a wide has room for a row that goes on beyond its sides as it is there.
    void Across(const float* row, int width, float* wide, float* to) const
    {
        const int radius = int(m_across.size()) - 1;
        WidenRow(row, width, radius, wide);
        Weigh(m_across, width, to, [&](int side) { return wide + radius + side; });
    }
    /// \a at gives where the values on a side begin that count for the pixels of \a to.
    template <typename At>
    static void Weigh(const Weights& weights, int width, float* to, At at)
    {
        for (int first = 0; first < width; first += kBlock) {
            const int count = std::min(kBlock, width - first);
            std::array<float, kBlock> sum;
            const float* const middle = at(0) + first;
            for (int x = 0; x < count; ++x)
                sum[std::size_t(x)] = middle[x] * weights[0];
            for (int side = 1; side < int(weights.size()); ++side)
                AddBoth(at(-side) + first, at(side) + first, weights[std::size_t(side)], count,
                        sum.data());
            std::copy_n(sum.begin(), count, to + first);
        }
    }
    static void AddBoth(const float* before, const float* after, float weight, int count,
                        float* sum)
    {
        for (int x = 0; x < count; ++x)
            sum[x] += (before[x] + after[x]) * weight;
    }

    const Weights m_across;
    const Weights m_down;
};

} // namespace

void WidenRow(const float* row, int width, int reach, float* wide)
{
    std::fill_n(wide, reach, row[0]);
    std::copy_n(row, width, wide + reach);
    std::fill_n(wide + reach + width, reach, row[width - 1]);
}

EffectPicture Softened(const EffectPicture& picture, int first, int last, double across,
                       double down, const Bands& bands)
{
    EffectPicture soft(picture.Size());
    if (std::max(across, down) <= kMostWeighed) {
        const WeighedBlur blur(across, down);
        ForBands(picture.Height(), bands, [&](int top, int end) {
            for (int plane = first; plane <= last; ++plane)
                blur.Run(picture, soft, plane, top, end);
        });
        return soft;
    }
    CopyPlanes(picture, soft, first, last, bands);
    if (across > kLeastDeviation) {
        const BoxBlur blur(across, picture.Width());
        ForLanes(picture.Height(), picture.Width(), first, last, bands,
                 [&](int plane, int from, int to, Lanes& line, Lanes& spare) {
                     BlurRows(soft, plane, from, to, blur, line, spare);
                 });
    }
    if (down > kLeastDeviation) {
        const BoxBlur blur(down, picture.Height());
        ForLanes(picture.Width(), picture.Height(), first, last, bands,
                 [&](int plane, int from, int to, Lanes& line, Lanes& spare) {
                     BlurColumns(soft, plane, from, to, blur, line, spare);
                 });
    }
    return soft;
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/SoftPicture_p.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace nle {

namespace {

/// Rows or columns that are blurred side by side, so that one step works on all of them.
constexpr int kLanes = 16;
/// Deviations up to which each pixel is weighed; beyond three means one after the other do it, at
/// the same cost whatever the size.
constexpr double kMostWeighed = 3;
/// Below it nothing is seen.
constexpr double kLeastDeviation = 0.05;

using Lanes = std::vector<float>; ///< kLanes numbers for each place along the line

/// One blur of lines of \a length places.
class LineBlur
{
public:
    LineBlur(double deviation, int length) : m_length(length)
    {
        if (deviation <= kMostWeighed)
            FindWeights(deviation);
        else
            FindBox(deviation);
    }

    /// Blurs \a line; \a spare has the same size.
    void Run(Lanes& line, Lanes& spare) const
    {
        if (!m_weights.empty()) {
            Weigh(line.data(), spare.data());
            line.swap(spare);
            return;
        }
        constexpr int passes = kPasses;
        for (int pass = 0; pass < passes; ++pass) {
            Mean(line.data(), spare.data());
            line.swap(spare);
        }
    }

private:
    static constexpr int kPasses = 3;
    static constexpr int kPlaces = 32; ///< that are weighed at a time

    void FindWeights(double deviation)
    {
        constexpr double reach = 3.5; // deviations
        const int radius = int(std::ceil(deviation * reach));
        double sum = 0;
        for (int i = -radius; i <= radius; ++i) {
            const double weight = std::exp(-i * i / (2 * deviation * deviation));
            m_weights.push_back(float(weight));
            sum += weight;
        }
        for (float& weight : m_weights)
            weight = float(double(weight) / sum);
    }
    /// The box, with a part of a pixel at both ends, of which kPasses have the deviation.
    void FindBox(double deviation)
    {
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

    const float* At(const float* line, int place) const
    {
        return line + std::size_t(std::clamp(place, 0, m_length - 1)) * kLanes;
    }

    void Weigh(const float* from, float* to) const
    {
        const int radius = int(m_weights.size() / 2);
        const float* const middle = m_weights.data() + radius;
        for (int first = 0; first < m_length; first += kPlaces) {
            const int count = std::min(kPlaces, m_length - first);
            const bool isInside = first >= radius && first + kPlaces + radius <= m_length;
            std::array<float, std::size_t(kPlaces)* kLanes> sum = {};
            for (int i = -radius; i <= radius; ++i) {
                const float weight = middle[i];
                if (isInside) {
                    AddWeighed(At(from, first + i), weight, sum.data(), sum.size());
                    continue;
                }
                for (int place = 0; place < count; ++place)
                    AddWeighed(At(from, first + place + i), weight,
                               sum.data() + std::ptrdiff_t(place) * kLanes, kLanes);
            }
            std::copy_n(sum.begin(), count * kLanes, to + std::size_t(first) * kLanes);
        }
    }
    static void AddWeighed(const float* values, float weight, float* sum, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            sum[i] += values[i] * weight;
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
    std::vector<float> m_weights; ///< empty: the box counts
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

void BlurRows(EffectPicture& picture, int plane, int first, int end, const LineBlur& blur,
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

void BlurColumns(EffectPicture& picture, int plane, int first, int end, const LineBlur& blur,
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

} // namespace

void Soften(EffectPicture& picture, int first, int last, double across, double down,
            const Bands& bands)
{
    if (across > kLeastDeviation) {
        const LineBlur blur(across, picture.Width());
        ForLanes(picture.Height(), picture.Width(), first, last, bands,
                 [&](int plane, int from, int to, Lanes& line, Lanes& spare) {
                     BlurRows(picture, plane, from, to, blur, line, spare);
                 });
    }
    if (down > kLeastDeviation) {
        const LineBlur blur(down, picture.Height());
        ForLanes(picture.Width(), picture.Height(), first, last, bands,
                 [&](int plane, int from, int to, Lanes& line, Lanes& spare) {
                     BlurColumns(picture, plane, from, to, blur, line, spare);
                 });
    }
}

} // namespace nle

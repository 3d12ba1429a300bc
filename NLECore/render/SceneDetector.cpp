// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/SceneDetector.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace nle {

namespace {

// Differences are means of cells, luma whole and colours half, in steps of 8 bits.

/// Less than this is no cut, and no two scenes of a dissolve.
constexpr double kLeastCut = 9;
constexpr double kLeastDissolve = 12;
/// A cut is so many times the usual change around it, and so much more.
constexpr double kCutFactor = 2.5;
constexpr double kCutOffset = 4;
/// Least share of the pixels that change their colour.
constexpr double kLeastColours = 0.12;
constexpr double kLeastDissolvedColours = 0.25;
/// A picture that came back differs by less than this share of the flash.
constexpr double kReturnShare = 0.4;
/// Standard deviation of the luma of a plain picture, at most.
constexpr double kPlainDeviation = 5;

/// Longest side of a picture that is asked for, where it is very long.
constexpr int kLongestSide = 1024;
/// Furthest shift of the whole picture from one to the next, in cells.
constexpr int kColumnShift = 5;
constexpr int kRowShift = 3;
/// Changes below this need no look for a shift.
constexpr double kNoShiftNeeded = 5;

/// Dissolves are looked for in so many pictures a second, of up to kMostSteps.
constexpr double kDissolveRate = 12.5;
constexpr int kFewestSteps = 3;
constexpr int kMostSteps = 32;
/// Two steps before and behind a dissolve pictures are off its ends by so much, and one step, at
/// most.
constexpr double kEndDrift = 0.15;
/// Mean residue of mixtures in the middle of the way, and the most of one.
constexpr double kMostResidue = 0.07;
/// The middle of the way, and the fewest pictures there.
constexpr double kMiddleFrom = 0.15;
constexpr double kMiddleTo = 0.85;
/// Largest step of a dissolve; a cut makes the way in one.
constexpr double kLargestStep = 0.45;
/// Where parts of the picture have moved, less than this share of the change is left.
constexpr double kLeastMotion = 0.5;
/// Correlation of two pictures that are one in another light.
constexpr double kSameLikeness = 0.6;

std::uint8_t Clamped(int value)
{
    return std::uint8_t(std::clamp(value, 0, 255));
}

} // namespace

SceneDetector::SceneDetector(double frameRate)
    : m_shortest(std::max(2, int(std::lround(frameRate / 4))))
    , m_stride(std::max(1, int(std::lround(frameRate / kDissolveRate))))
{
}

QSize SceneDetector::PictureSize(const QSize& size)
{
    const double factor = std::max(2.0 * kColumns / std::max(1, size.width()),
                                   2.0 * kRows / std::max(1, size.height()));
    const auto side = [factor](int length, int cells) {
        return std::clamp(int(std::lround(length * factor)), cells, kLongestSide);
    };
    return {side(size.width(), 2 * kColumns), side(size.height(), 2 * kRows)};
}

SceneDetector::Sketch SceneDetector::Draw(const QImage& picture)
{
    std::array<std::array<int, kPlanes>, kCells> sums = {};
    std::array<int, kCells> counts = {};
    std::array<int, kColours> colours = {};
    double sum = 0;
    double squares = 0;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const int luma = (77 * qRed(row[x]) + 150 * qGreen(row[x]) + 29 * qBlue(row[x])) >> 8;
            const int blue = Clamped((qBlue(row[x]) - luma) / 2 + 128);
            const int red = Clamped((qRed(row[x]) - luma) / 2 + 128);
            const int place =
                y * kRows / picture.height() * kColumns + x * kColumns / picture.width();
            const auto cell = std::size_t(place);
            const int bin = luma / 32 * 16 + blue / 64 * 4 + red / 64;
            sums[cell][0] += luma;
            sums[cell][1] += blue;
            sums[cell][2] += red;
            ++counts[cell];
            ++colours[std::size_t(bin)];
            sum += luma;
            squares += double(luma) * luma;
        }
    }
    Sketch sketch = {};
    for (std::size_t cell = 0; cell < kCells; ++cell) {
        for (std::size_t plane = 0; plane < kPlanes; ++plane)
            sketch.cells[plane * kCells + cell] =
                Clamped(sums[cell][plane] / std::max(1, counts[cell]));
    }
    const double pixels = std::max(1, picture.width() * picture.height());
    for (std::size_t colour = 0; colour < kColours; ++colour)
        sketch.colours[colour] = std::uint16_t(colours[colour] / pixels * 65535);
    sketch.isPlain =
        squares / pixels - sum / pixels * sum / pixels < kPlainDeviation * kPlainDeviation;
    return sketch;
}

/// Mean difference of the cells that both pictures have after the shift that suits best.
double SceneDetector::ShiftedDifference(const Sketch& a, const Sketch& b)
{
    const auto difference = [&](int right, int down, double best) {
        const int columns = kColumns - std::abs(right);
        const int rows = kRows - std::abs(down);
        std::array<int, kPlanes> sums = {};
        for (int plane = 0; plane < kPlanes; ++plane) {
            for (int y = 0; y < rows; ++y) {
                const int start = plane * kCells;
                const std::uint8_t* const from =
                    &a.cells[std::size_t(start + (y + std::max(0, -down)) * kColumns) +
                             std::size_t(std::max(0, -right))];
                const std::uint8_t* const to =
                    &b.cells[std::size_t(start + (y + std::max(0, down)) * kColumns) +
                             std::size_t(std::max(0, right))];
                int sum = 0;
                for (int x = 0; x < columns; ++x)
                    sum += std::abs(int(from[x]) - int(to[x]));
                sums[std::size_t(plane)] += sum;
            }
            if (plane == 0 && double(sums[0]) / (columns * rows) >= best)
                return best;
        }
        return (sums[0] + 0.5 * (sums[1] + sums[2])) / (columns * rows);
    };
    double best = difference(0, 0, std::numeric_limits<double>::max());
    if (best < kNoShiftNeeded)
        return best;
    for (int down = -kRowShift; down <= kRowShift; ++down) {
        for (int right = -kColumnShift; right <= kColumnShift; ++right)
            best = std::min(best, difference(right, down, best));
    }
    return best;
}

double SceneDetector::ColourDifference(const Sketch& a, const Sketch& b)
{
    int sum = 0;
    for (std::size_t colour = 0; colour < kColours; ++colour)
        sum += std::abs(int(a.colours[colour]) - int(b.colours[colour]));
    return sum / (2.0 * 65535);
}

/// How much of the change is left when each part of the picture is compared with the place that it
/// may have moved to: a mixture stays one, a pan or zoom goes away.
double SceneDetector::ShareOfMotion(const Sketch& a, const Sketch& b)
{
    constexpr int columns = 8;
    constexpr int rows = 6;
    constexpr int reach = 3;
    const auto difference = [&](int left, int top, int right, int down) {
        int sum = 0;
        for (int y = top; y < top + rows; ++y) {
            for (int x = left; x < left + columns; ++x) {
                const int here = y * kColumns + x;
                const int there = here + down * kColumns + right;
                sum += std::abs(int(a.cells[std::size_t(here)]) - int(b.cells[std::size_t(there)]));
            }
        }
        return sum;
    };
    int still = 0;
    int moved = 0;
    for (int top = 0; top < kRows; top += rows) {
        for (int left = 0; left < kColumns; left += columns) {
            int best = difference(left, top, 0, 0);
            still += best;
            for (int down = -std::min(reach, top); down <= std::min(reach, kRows - rows - top);
                 ++down) {
                for (int right = -std::min(reach, left);
                     right <= std::min(reach, kColumns - columns - left); ++right)
                    best = std::min(best, difference(left, top, right, down));
            }
            moved += best;
        }
    }
    return still > 0 ? double(moved) / still : 1.0;
}

/// Correlation of the lumas: 1 for the same picture in another light; 0 with a plain one.
double SceneDetector::Likeness(const Sketch& a, const Sketch& b)
{
    double sumA = 0;
    double sumB = 0;
    double squaresA = 0;
    double squaresB = 0;
    double products = 0;
    for (std::size_t cell = 0; cell < kCells; ++cell) {
        const double valueA = a.cells[cell];
        const double valueB = b.cells[cell];
        sumA += valueA;
        sumB += valueB;
        squaresA += valueA * valueA;
        squaresB += valueB * valueB;
        products += valueA * valueB;
    }
    const double spread = (squaresA - sumA * sumA / kCells) * (squaresB - sumB * sumB / kCells);
    return a.isPlain || b.isPlain || spread <= 0
               ? 0.0
               : (products - sumA * sumB / kCells) / std::sqrt(spread);
}

void SceneDetector::Add(const QImage& picture)
{
    if (picture.isNull() && m_sketches.empty())
        m_sketches.push_back({{}, {}, true});
    else
        m_sketches.push_back(picture.isNull() ? m_sketches.back() : Draw(picture));
    const int newest = End() - 1;
    m_changes.push_back(newest == 0 ? 0 : ShiftedDifference(At(newest - 1), At(newest)));
    if (newest - m_shortest >= m_nextCut)
        DecideCut(m_nextCut++);
    if (newest % m_stride == 0)
        DecideDissolve(newest - 2 * m_stride);
    const int decided = std::max(m_first, m_nextCut - 1);
    if (m_firstPicture == kNone && !At(decided).isPlain)
        m_firstPicture = decided;
    const int kept = (kMostSteps + 5) * m_stride + 2 * m_shortest;
    if (int(m_sketches.size()) > kept) {
        m_sketches.pop_front();
        m_changes.pop_front();
        ++m_first;
    }
}

void SceneDetector::Finish()
{
    while (m_nextCut < End())
        DecideCut(m_nextCut++);
}

std::optional<int> SceneDetector::Take()
{
    if (m_found.empty())
        return std::nullopt;
    const int picture = m_found.front();
    m_found.pop_front();
    return picture;
}

void SceneDetector::Found(int picture)
{
    m_found.push_back(picture);
    m_sceneStart = picture;
    m_firstPicture = kNone;
}

// ---- cuts

/// The median of the changes of some pictures; 0 for those that there are not.
double SceneDetector::UsualChange(int first, int last) const
{
    std::vector<double> changes(std::size_t(last - first + 1), 0.0);
    for (int picture = std::max(first, m_first); picture <= std::min(last, End() - 1); ++picture)
        changes[std::size_t(picture - first)] = m_changes[std::size_t(picture - m_first)];
    const auto middle = changes.begin() + std::ptrdiff_t(changes.size() / 2);
    std::nth_element(changes.begin(), middle, changes.end());
    return *middle;
}

bool SceneDetector::StandsOut(int picture) const
{
    const double change = m_changes[std::size_t(picture - m_first)];
    if (change < kLeastCut)
        return false;
    const double usual = std::max(UsualChange(picture - m_shortest, picture - 1),
                                  UsualChange(picture + 1, picture + m_shortest));
    return change > kCutFactor * usual + kCutOffset &&
           ColourDifference(At(picture - 1), At(picture)) > kLeastColours;
}

/// The picture that the one before \a picture comes back in; 0 when it does not.
int SceneDetector::EndOfFlash(int picture) const
{
    const double change = m_changes[std::size_t(picture - m_first)];
    const Sketch& before = At(picture - 1);
    for (int later = std::min(picture + m_shortest, End() - 1); later > picture; --later) {
        if (ShiftedDifference(before, At(later)) < kReturnShare * change)
            return later;
    }
    return 0;
}

void SceneDetector::DecideCut(int picture)
{
    if (picture <= m_quietUntil || !StandsOut(picture))
        return;
    if (const int end = EndOfFlash(picture)) {
        m_quietUntil = end;
        return;
    }
    m_dissolveFrom = picture;
    if (m_sceneStart == 0 || picture - m_sceneStart >= m_shortest)
        Found(picture);
}

// ---- dissolves

double SceneDetector::LengthOf(const Span& span) const
{
    const auto& a = At(span.first).cells;
    const auto& b = At(span.last).cells;
    std::int64_t squares = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const std::int64_t step = int(b[i]) - int(a[i]);
        squares += step * step;
    }
    return double(squares);
}

SceneDetector::Progress SceneDetector::On(const Span& span, double length, int picture) const
{
    const auto& a = At(span.first).cells;
    const auto& b = At(span.last).cells;
    const auto& between = At(picture).cells;
    int along = 0;
    int squares = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const int way = int(between[i]) - int(a[i]);
        along += way * (int(b[i]) - int(a[i]));
        squares += way * way;
    }
    const double place = along / length;
    return {place, std::max(0.0, squares / length - place * place)};
}

void SceneDetector::DecideDissolve(int last)
{
    for (int steps = kFewestSteps; steps <= kMostSteps; ++steps) {
        const Span span = {last - steps * m_stride, last};
        if (span.first < std::max(m_first, m_dissolveFrom))
            return;
        if (!IsDissolve(span))
            continue;
        const double length = LengthOf(span);
        int picture = span.first + 1;
        while (picture < last && On(span, length, picture).place < 0.5)
            ++picture;
        m_dissolveFrom = last;
        if (m_sceneStart == 0 || picture - m_sceneStart >= m_shortest)
            Found(picture);
        return;
    }
}

bool SceneDetector::IsDissolve(const Span& span) const
{
    const Sketch& a = At(span.first);
    const Sketch& b = At(span.last);
    if (b.isPlain || (a.isPlain && m_firstPicture >= span.first) || !IsMixture(span))
        return false;
    const int quarter = (span.last - span.first) / 4;
    const double share = ShareOfMotion(At(span.first + quarter), At(span.last - quarter));
    return share > kLeastMotion && ShiftedDifference(a, b) >= kLeastDissolve &&
           ColourDifference(a, b) >= kLeastDissolvedColours && Likeness(a, b) < kSameLikeness;
}

bool SceneDetector::IsMixture(const Span& span) const
{
    const double length = LengthOf(span);
    if (length < kLeastDissolve * kLeastDissolve * kCells)
        return false;
    // Before and behind a dissolve nothing moves on its way; two more steps of it would show.
    const double drift = std::min(kEndDrift, double(m_stride) / (span.last - span.first));
    const auto stands = [&](int picture, double place) {
        return picture < std::max(m_first, m_dissolveFrom) || picture >= End() ||
               std::abs(On(span, length, picture).place - place) <= drift;
    };
    const bool hasEnds =
        stands(span.last + 2 * m_stride, 1) && stands(span.first - 2 * m_stride, 0);
    if (!hasEnds)
        return false;
    double before = 0;
    double residue = 0;
    int inMiddle = 0;
    for (int picture = span.first + m_stride; picture <= span.last; picture += m_stride) {
        const Progress progress = On(span, length, picture);
        if (std::abs(progress.place - before) > kLargestStep)
            return false;
        before = progress.place;
        if (progress.place > kMiddleFrom && progress.place < kMiddleTo) {
            residue += progress.residue;
            ++inMiddle;
        }
    }
    return inMiddle >= 2 && residue <= kMostResidue * inMiddle;
}

} // namespace nle

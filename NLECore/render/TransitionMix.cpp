// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/TransitionMix.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

/// Bits of a pixel of four components in 16 bits.
constexpr int kDeepPixel = 64;
constexpr int kComponents = 4;
constexpr double kLastStep = 65535;

/// Place of a pixel: 0 to 1 from the left and from the top, and what makes the sides comparable.
struct Place
{
    double x;
    double y;
    double width; ///< of the picture, in pixels
    double height;
};

double WipeAt(const Place& place, const DirectionSteps& steps)
{
    const auto along = [](double share, int step) { return step > 0 ? share : 1 - share; };
    if (steps.y == 0)
        return along(place.x, steps.x);
    if (steps.x == 0)
        return along(place.y, steps.y);
    return (along(place.x, steps.x) + along(place.y, steps.y)) / 2;
}

double CircleAt(const Place& place)
{
    const double x = (place.x - 0.5) * place.width;
    const double y = (place.y - 0.5) * place.height;
    return std::hypot(x, y) / std::hypot(place.width / 2, place.height / 2);
}

double DiamondAt(const Place& place)
{
    return std::abs(place.x - 0.5) + std::abs(place.y - 0.5);
}

/// From the top, clockwise.
double ClockAt(const Place& place)
{
    const double x = (place.x - 0.5) * place.width;
    const double y = (place.y - 0.5) * place.height;
    const double turn = std::atan2(x, -y) / (2 * M_PI);
    return turn < 0 ? turn + 1 : turn;
}

double PatternAt(TransitionKind kind, int direction, const Place& place)
{
    switch (kind) {
    case TransitionKind::Wipe:
        return WipeAt(place, StepsOf(Direction(direction)));
    case TransitionKind::Circle:
        return CircleAt(place);
    case TransitionKind::Diamond:
        return DiamondAt(place);
    case TransitionKind::Clock:
        return ClockAt(place);
    case TransitionKind::BarnDoors:
        return std::abs((direction == 0 ? place.x : place.y) - 0.5) * 2;
    default:
        return 0;
    }
}

bool HasDirection(TransitionKind kind)
{
    return kind == TransitionKind::Wipe || kind == TransitionKind::BarnDoors;
}

/// Weight of a pixel at each step of a pattern, for one moment.
class EdgeWeights
{
public:
    /// An edge is at least as wide as a pixel, so that it has no jags.
    EdgeWeights(const MixWeights& weights, const QSize& size)
        : m_width(std::max(weights.softness, 1.0 / std::max(size.width(), size.height())) *
                  kWholeWeight)
        , m_position(weights.progress * (kWholeWeight + m_width))
    {
    }

    std::uint32_t At(std::uint16_t step) const
    {
        const float share = std::clamp((m_position - float(step)) / m_width, 0.0f, 1.0f);
        return std::uint32_t(share * share * (3 - 2 * share) * float(kWholeWeight));
    }

private:
    const float m_width;
    const float m_position;
};

std::uint32_t EvenWeight(double progress)
{
    return std::uint32_t(std::lround(std::clamp(progress, 0.0, 1.0) * kWholeWeight));
}

/// Components of 8 bits, with a weight of 0 to 256.
void MixComponents(std::uint8_t* to, const std::uint8_t* other, int count, std::uint32_t weight)
{
    constexpr std::uint32_t half = 128;
    const auto share = std::uint16_t((weight + half) / (2 * half));
    const auto rest = std::uint16_t(2 * half - share);
    for (int i = 0; i < count; ++i)
        to[i] = std::uint8_t(std::uint16_t(to[i] * rest + other[i] * share + half) / (2 * half));
}

void MixComponents(std::uint16_t* to, const std::uint16_t* other, int count, std::uint32_t weight)
{
    const std::uint32_t rest = kWholeWeight - weight;
    for (int i = 0; i < count; ++i)
        to[i] = std::uint16_t((to[i] * rest + other[i] * weight + kWholeWeight / 2) / kWholeWeight);
}

template <typename Component>
void MixRow(Component* to, const Component* other, int width, const std::uint16_t* pattern,
            const EdgeWeights& weights)
{
    for (int x = 0; x < width; ++x) {
        const std::uint32_t weight = weights.At(pattern[x]);
        Component* const pixel = to + std::ptrdiff_t(x) * kComponents;
        const Component* const second = other + std::ptrdiff_t(x) * kComponents;
        if (weight == kWholeWeight)
            std::copy_n(second, kComponents, pixel);
        else if (weight > 0)
            MixComponents(pixel, second, kComponents, weight);
    }
}

template <typename Component>
void MixRowsOf(QImage& picture, const QImage& other, const MixWeights& weights, int first, int end)
{
    const std::uint32_t even = EvenWeight(weights.progress);
    const EdgeWeights edge(weights, picture.size());
    const int width = picture.width();
    for (int y = first; y < end; ++y) {
        auto* const to = reinterpret_cast<Component*>(picture.scanLine(y));
        const auto* const from = reinterpret_cast<const Component*>(other.constScanLine(y));
        if (weights.pattern)
            MixRow(to, from, width, weights.pattern->Row(y), edge);
        else
            MixComponents(to, from, width * kComponents, even);
    }
}

} // namespace

WipePattern::WipePattern(TransitionKind kind, const ParametersAt& parameters, const QSize& size)
    : m_shape(ShapeOf(kind, parameters, size))
    , m_width(std::size_t(size.width()))
    , m_values(m_width * std::size_t(size.height()))
{
    Place place = {0, 0, double(size.width()), double(size.height())};
    auto value = m_values.begin();
    for (int y = 0; y < size.height(); ++y) {
        place.y = (y + 0.5) / place.height;
        for (int x = 0; x < size.width(); ++x) {
            place.x = (x + 0.5) / place.width;
            const double at = PatternAt(kind, m_shape.direction, place);
            const double step = std::round((m_shape.isReverse ? 1 - at : at) * kLastStep);
            *value++ = std::uint16_t(std::clamp(step, 1.0, kLastStep));
        }
    }
}

bool WipePattern::Is(TransitionKind kind, const ParametersAt& parameters, const QSize& size) const
{
    const Shape shape = ShapeOf(kind, parameters, size);
    return shape.kind == m_shape.kind && shape.direction == m_shape.direction &&
           shape.isReverse == m_shape.isReverse && shape.size == m_shape.size;
}

WipePattern::Shape WipePattern::ShapeOf(TransitionKind kind, const ParametersAt& parameters,
                                        const QSize& size)
{
    return {kind, HasDirection(kind) ? parameters.Whole(TransitionParameter::kDirection) : 0,
            kind != TransitionKind::Wipe && parameters.Switch(TransitionParameter::kReverse), size};
}

void MixRows(QImage& picture, const QImage& other, const MixWeights& weights, int first, int end)
{
    if (picture.depth() == kDeepPixel)
        MixRowsOf<std::uint16_t>(picture, other, weights, first, end);
    else
        MixRowsOf<std::uint8_t>(picture, other, weights, first, end);
}

DipStep DipStepAt(const LayerTransition::Clips& clips, double progress)
{
    if (clips.to < 0)
        return {false, progress};
    if (clips.from < 0)
        return {true, progress};
    return progress < 0.5 ? DipStep{false, progress * 2} : DipStep{true, progress * 2 - 1};
}

TransitionMotion MotionAt(const LayerTransition& transition, bool isAlone, std::int64_t frame,
                          const QSize& canvas)
{
    const double progress = transition.ProgressAt(frame);
    if (transition.Kind() == TransitionKind::Zoom) {
        const auto scaled = [&canvas](double scale) {
            const QPointF middle(canvas.width() / 2.0, canvas.height() / 2.0);
            return QTransform::fromTranslate(-middle.x(), -middle.y()) *
                   QTransform::fromScale(scale, scale) *
                   QTransform::fromTranslate(middle.x(), middle.y());
        };
        return {isAlone ? scaled(1 - progress) : QTransform(), scaled(progress)};
    }
    const DirectionSteps steps =
        StepsOf(Direction(transition.At(frame).Whole(TransitionParameter::kDirection)));
    const double across = steps.x * canvas.width();
    const double down = steps.y * canvas.height();
    // Whole pixels: nothing is blurred on the way.
    const double right = std::round(across * progress);
    const double below = std::round(down * progress);
    const bool moves = isAlone || transition.Kind() == TransitionKind::Push;
    return {moves ? QTransform::fromTranslate(right, below) : QTransform(),
            QTransform::fromTranslate(right - across, below - down)};
}

bool IsWipe(TransitionKind kind)
{
    switch (kind) {
    case TransitionKind::Wipe:
    case TransitionKind::Circle:
    case TransitionKind::Diamond:
    case TransitionKind::Clock:
    case TransitionKind::BarnDoors:
        return true;
    default:
        return false;
    }
}

bool MixesPictures(TransitionKind kind)
{
    return kind == TransitionKind::Dissolve || kind == TransitionKind::Dip || IsWipe(kind);
}

} // namespace nle

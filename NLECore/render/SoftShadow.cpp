// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/SoftShadow.h"

#include <QRgba64>

#include <algorithm>
#include <cmath>
#include <vector>

namespace nle {

namespace {

constexpr int kPasses = 3;

/// A mean over neighbours whose two outermost ones count by a share, so that it can be as wide as
/// any deviation asks for. Three of them come close to a Gaussian.
struct Box
{
    int radius;   ///< whole neighbours on each side
    double share; ///< of the next ones

    /// The variance of a box of n whole samples is (n^2 - 1) / 12.
    static Box Of(double deviation)
    {
        const double variance = deviation * deviation / kPasses;
        const int radius = int((std::sqrt(1 + 12 * variance) - 1) / 2);
        const double whole = 2.0 * radius + 1;
        const double missing = whole * (variance - radius * (radius + 1.0) / 3);
        const double next = (radius + 1.0) * (radius + 1.0);
        return {radius, std::clamp(missing / (2 * (next - variance)), 0.0, 1.0)};
    }
    double Weight() const { return 2.0 * radius + 1 + 2 * share; }
};

/// Means of the \a count values that are \a step apart from one another; beyond them is nothing.
void Soften(float* values, int count, int step, const Box& box, std::vector<float>& line)
{
    const int margin = box.radius + 1;
    line.assign(std::size_t(count) + 2 * std::size_t(margin), 0.0F);
    float* const middle = line.data() + margin;
    for (int i = 0; i < count; ++i)
        middle[i] = values[std::ptrdiff_t(i) * step];
    double sum = 0;
    for (int i = -box.radius; i <= box.radius && i < count; ++i)
        sum += middle[i];
    const double weight = 1 / box.Weight();
    for (int i = 0; i < count; ++i) {
        const double outer = double(middle[i - margin]) + double(middle[i + margin]);
        values[std::ptrdiff_t(i) * step] = float((sum + box.share * outer) * weight);
        sum += double(middle[i + margin]) - double(middle[i - box.radius]);
    }
}

std::vector<float> AlphaOf(const QImage& shape)
{
    std::vector<float> alpha;
    alpha.reserve(std::size_t(shape.width()) * std::size_t(shape.height()));
    for (int y = 0; y < shape.height(); ++y) {
        const auto* pixels = reinterpret_cast<const QRgb*>(shape.constScanLine(y));
        std::transform(pixels, pixels + shape.width(), std::back_inserter(alpha),
                       [](QRgb pixel) { return float(qAlpha(pixel)) / 255; });
    }
    return alpha;
}

QImage Colored(const std::vector<float>& alpha, const QSize& size, QRgb color)
{
    QImage image(size, QImage::Format_RGBA64_Premultiplied);
    const QRgba64 opaque = QColor::fromRgba(color | 0xFF000000u).rgba64();
    const double whole = qAlpha(color) / 255.0;
    const float* share = alpha.data();
    for (int y = 0; y < size.height(); ++y) {
        auto* pixels = reinterpret_cast<QRgba64*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const double part = std::clamp(double(*share++) * whole, 0.0, 1.0);
            const auto level = [part](int component) { return quint16(component * part + 0.5); };
            pixels[x] = QRgba64::fromRgba64(level(opaque.red()), level(opaque.green()),
                                            level(opaque.blue()), level(0xFFFF));
        }
    }
    return image;
}

} // namespace

QImage SoftShadow(const QImage& shape, double deviationX, double deviationY, QRgb color)
{
    std::vector<float> alpha = AlphaOf(shape);
    const int width = shape.width();
    const int height = shape.height();
    const Box across = Box::Of(deviationX);
    const Box along = Box::Of(deviationY);
    std::vector<float> line;
    for (int pass = 0; pass < kPasses; ++pass) {
        for (int y = 0; deviationX > 0 && y < height; ++y)
            Soften(alpha.data() + std::ptrdiff_t(y) * width, width, 1, across, line);
        for (int x = 0; deviationY > 0 && x < width; ++x)
            Soften(alpha.data() + x, height, width, along, line);
    }
    return Colored(alpha, shape.size(), color);
}

} // namespace nle

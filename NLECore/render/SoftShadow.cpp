// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/SoftShadow.h"

#include <QRgba64>

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
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

/// Numbers in rows.
struct Plane
{
    int width;
    int height;
    std::vector<float> values;

    const float* Row(int y) const { return values.data() + std::ptrdiff_t(y) * width; }
    float* Row(int y) { return values.data() + std::ptrdiff_t(y) * width; }
};

/// Means along the columns; beyond the plane is nothing. A row at a time, so that the processor
/// takes many columns at once.
Plane Softened(const Plane& plane, const Box& box)
{
    const std::size_t width = std::size_t(plane.width);
    Plane result = {plane.width, plane.height, std::vector<float>(plane.values.size())};
    const std::vector<float> nothing(width, 0.0F);
    const auto row = [&](int y) {
        return y >= 0 && y < plane.height ? plane.Row(y) : nothing.data();
    };
    std::vector<float> sums(width, 0.0F);
    for (int y = 0; y <= box.radius; ++y)
        std::transform(sums.begin(), sums.end(), row(y), sums.begin(), std::plus<float>());
    const auto weight = float(1 / box.Weight());
    const auto share = float(box.share);
    for (int y = 0; y < plane.height; ++y) {
        const float* before = row(y - box.radius - 1);
        const float* leaving = row(y - box.radius);
        const float* after = row(y + box.radius + 1);
        float* mean = result.Row(y);
        float* sum = sums.data();
        for (std::size_t x = 0; x < width; ++x) {
            mean[x] = (sum[x] + share * (before[x] + after[x])) * weight;
            sum[x] += after[x] - leaving[x];
        }
    }
    return result;
}

Plane Transposed(const Plane& plane)
{
    constexpr int block = 16; // so that what is read and written stays in the cache
    Plane result = {plane.height, plane.width, std::vector<float>(plane.values.size())};
    for (int top = 0; top < plane.height; top += block) {
        for (int x = 0; x < plane.width; ++x) {
            const int end = std::min(top + block, plane.height);
            for (int y = top; y < end; ++y)
                result.Row(x)[y] = plane.Row(y)[x];
        }
    }
    return result;
}

Plane AlphaOf(const QImage& shape)
{
    Plane alpha = {shape.width(), shape.height(), {}};
    alpha.values.reserve(std::size_t(shape.width()) * std::size_t(shape.height()));
    for (int y = 0; y < shape.height(); ++y) {
        const auto* pixels = reinterpret_cast<const QRgb*>(shape.constScanLine(y));
        std::transform(pixels, pixels + shape.width(), std::back_inserter(alpha.values),
                       [](QRgb pixel) { return float(qAlpha(pixel)) / 255; });
    }
    return alpha;
}

QImage Colored(const Plane& alpha, QRgb color)
{
    QImage image(alpha.width, alpha.height, QImage::Format_RGBA64_Premultiplied);
    const QRgba64 opaque = QColor::fromRgba(color | 0xFF000000u).rgba64();
    const double whole = qAlpha(color) / 255.0;
    for (int y = 0; y < alpha.height; ++y) {
        const float* shares = alpha.Row(y);
        auto* pixels = reinterpret_cast<QRgba64*>(image.scanLine(y));
        for (int x = 0; x < alpha.width; ++x) {
            const double part = std::clamp(double(shares[x]) * whole, 0.0, 1.0);
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
    Plane alpha = AlphaOf(shape);
    for (const double deviation : {deviationY, deviationX}) {
        const Box box = Box::Of(deviation);
        for (int pass = 0; deviation > 0 && pass < kPasses; ++pass)
            alpha = Softened(alpha, box);
        alpha = Transposed(alpha);
    }
    return Colored(alpha, color);
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/ToneCurve_p.h"

#include <QStringList>

#include <algorithm>

namespace nle {

namespace {

/// Second derivatives of the natural cubic spline through \a points, by Thomas's algorithm.
std::vector<double> Bends(const std::vector<QPointF>& points)
{
    const std::size_t last = points.size() - 1;
    std::vector<double> bends(points.size());
    std::vector<double> shares(points.size());
    for (std::size_t i = 1; i < last; ++i) {
        const QPointF before = points[i] - points[i - 1];
        const QPointF after = points[i + 1] - points[i];
        const double own = 2 * (before.x() + after.x()) - before.x() * shares[i - 1];
        shares[i] = after.x() / own;
        const double turn = 6 * (after.y() / after.x() - before.y() / before.x());
        bends[i] = (turn - before.x() * bends[i - 1]) / own;
    }
    for (std::size_t i = last; i-- > 1;)
        bends[i] -= shares[i] * bends[i + 1];
    return bends;
}

bool IsShare(double value)
{
    return value >= 0 && value <= 1;
}

} // namespace

std::optional<ToneCurve> ToneCurve::Parse(const QString& text)
{
    std::vector<QPointF> points;
    for (const QString& part : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QStringList numbers = part.split(QLatin1Char('/'));
        bool hasX = false;
        bool hasY = false;
        const QPointF point(numbers.value(0).toDouble(&hasX), numbers.value(1).toDouble(&hasY));
        if (numbers.size() != 2 || !hasX || !hasY || !IsShare(point.x()) || !IsShare(point.y()) ||
            (!points.empty() && point.x() <= points.back().x()))
            return std::nullopt;
        points.push_back(point);
    }
    if (points.empty())
        return ToneCurve();
    return points.size() < 2 ? std::nullopt : std::optional(ToneCurve(points));
}

ToneCurve::ToneCurve(const std::vector<QPointF>& points) : m_table(kSteps + 2)
{
    const std::vector<double> bends = Bends(points);
    std::size_t piece = 0;
    for (int step = 0; step <= kSteps; ++step) {
        const double x = std::clamp(double(step) / kSteps, points.front().x(), points.back().x());
        while (piece + 2 < points.size() && x > points[piece + 1].x())
            ++piece;
        const QPointF from = points[piece];
        const QPointF to = points[piece + 1];
        const double width = to.x() - from.x();
        const double b = (x - from.x()) / width;
        const double a = 1 - b;
        const double bend = ((a * a * a - a) * bends[piece] + (b * b * b - b) * bends[piece + 1]) *
                            width * width / 6;
        m_table[std::size_t(step)] = float(std::clamp(a * from.y() + b * to.y() + bend, 0.0, 1.0));
    }
    m_table.back() = m_table[kSteps];
}

float ToneCurve::At(float value) const
{
    const float place = std::min(std::max(value, 0.0F), 1.0F) * kSteps;
    const int step = int(place);
    const float share = place - float(step);
    return m_table[std::size_t(step)] * (1 - share) + m_table[std::size_t(step) + 1] * share;
}

void ToneCurve::Join(const ToneCurve& next)
{
    if (next.IsPlain())
        return;
    if (IsPlain())
        m_table = next.m_table;
    else
        next.Apply(m_table.data(), int(m_table.size()));
}

void ToneCurve::Apply(float* values, int count) const
{
    if (IsPlain())
        return;
    for (int i = 0; i < count; ++i)
        values[i] = At(values[i]);
}

} // namespace nle

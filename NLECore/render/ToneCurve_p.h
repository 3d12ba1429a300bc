// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPointF>
#include <QString>

#include <optional>
#include <vector>

namespace nle {

/// A curve from 0 to 1 to values from 0 to 1: a natural cubic spline through points, as FFmpeg's
/// filter of curves draws it.
class ToneCurve
{
public:
    /// Changes nothing.
    ToneCurve() = default;
    /// The curve through points "x/y x/y …", two or more, in order of x; plain for an empty text.
    /// None for what is no such text.
    static std::optional<ToneCurve> Parse(const QString& text);

    bool IsPlain() const { return m_table.empty(); }
    /// Brings what this curve gives through another one.
    void Join(const ToneCurve& next);
    /// Values outside of 0 to 1 count as the nearest in it.
    void Apply(float* values, int count) const;

private:
    static constexpr int kSteps = 4096;

    explicit ToneCurve(const std::vector<QPointF>& points);
    float At(float value) const;

    std::vector<float> m_table; ///< kSteps + 2; empty: the identity
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
// What a process holds over a long run, and whether that grows.
#pragma once

#include <QString>
#include <QVector>

#include <array>

/// What is sampled.
struct Quantity
{
    const char* name;
    const char* unit;
    double part;  ///< of the mean by which it may grow
    double least; ///< growth that always passes
};
constexpr int kQuantities = 6;
const std::array<Quantity, kQuantities>& Quantities();

/// A value of each, and when.
struct Sample
{
    double minutes;
    std::array<double, kQuantities> values;
};
using Samples = QVector<Sample>;

/// This process now. \a folder is where all its files lie.
Sample TakeSample(double minutes, const QString& folder);

/// How one quantity grew over the second half of the time: by a line of the median slope of all
/// pairs of samples, which single peaks do not move.
struct Growth
{
    double from;
    double to;
    double limit; ///< of to - from

    bool IsFlat() const { return to - from <= limit; }
};
/// Of at least two samples.
Growth GrowthOf(const Samples& samples, int quantity);

bool WriteSamples(const Samples& samples, const QString& path);
/// Empty where it cannot be read.
Samples ReadSamples(const QString& path);

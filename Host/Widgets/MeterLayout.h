// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QFontMetrics>
#include <QRectF>
#include <QVector>

/// Where the parts of a level meter stand. Lengths are device-independent pixels.
struct MeterLayout
{
    /// The ends of the scale, in decibels.
    double minimum;
    double maximum;
    int channels;
    bool isUpright;
    QRectF bars;    ///< all bars with the gaps between them
    QRectF marks;   ///< the clip marks, beyond the bars' ends
    QRectF numbers; ///< of the scale; empty without one

    MeterLayout(const QRectF& area, bool upright, int channelCount, double lowest, double highest);
    /// Takes room for numbers away from the bars, as long as these do not become too thin.
    void AddNumbers(const QFontMetrics& font);

    /// How far \a decibels are from the bars' lower end, limited to the scale.
    double Along(double decibels) const;
    /// The part of a channel's bar between two distances from its lower end.
    QRectF Bar(int channel, double from, double to) const;
    QRectF Mark(int channel) const;
    /// The values whose numbers stand beside the bars without touching each other.
    QVector<int> Values(const QFontMetrics& font) const;
    /// Where the number of \a value stands; within the room for numbers also at its ends.
    QRectF Number(int value, const QFontMetrics& font) const;
    /// A line from the bars towards the number.
    QRectF Tick(int value) const;

private:
    double Length() const { return isUpright ? bars.height() : bars.width(); }
    /// Edges of a channel across the bars, from the first bar's outer edge.
    double Across(int channel) const;
};

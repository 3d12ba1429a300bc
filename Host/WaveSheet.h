// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>
#include <QString>
#include <QVector>

/// A page that shows the envelope of a sound over time.
class WaveSheet
{
public:
    /// Number of steps to measure the sound in: one for each column of pixels.
    static int StepCount();
    /// The page. \a minima and \a maxima hold StepCount() values from -1 to 1; \a seconds is the
    /// span that they cover.
    static QImage Paint(const QString& title, const QString& subtitle, const QVector<float>& minima,
                        const QVector<float>& maxima, double seconds);
};

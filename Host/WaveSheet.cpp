// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/WaveSheet.h"

#include "Host/SheetStyle.h"

#include <QPainter>
#include <QtMath>

using namespace SheetStyle;

namespace {

constexpr int kWaveHeight = 360;
constexpr int kAxisHeight = 44;

/// The smallest round step that leaves room for a label at each mark.
double MarkStep(double seconds)
{
    constexpr int mostMarks = 11;
    for (double step : {0.1, 0.2, 0.5, 1.0, 2.0, 5.0, 10.0, 15.0, 30.0, 60.0, 120.0, 300.0, 600.0,
                        900.0, 1800.0}) {
        if (seconds / step <= mostMarks)
            return step;
    }
    return qCeil(seconds / mostMarks / 3600) * 3600.0;
}

/// "0:04", with tenths where the step needs them.
QString MarkText(double seconds, double step)
{
    const int minutes = int(seconds / 60 + 1e-6);
    const int decimals = step < 1 ? 1 : 0;
    return QStringLiteral("%1:%2").arg(minutes).arg(seconds - minutes * 60.0, decimals ? 4 : 2, 'f',
                                                    decimals, QLatin1Char('0'));
}

void PaintAxis(QPainter& painter, const QRect& wave, double seconds)
{
    const double step = MarkStep(seconds);
    for (int mark = 0; mark * step < seconds + 1e-6; ++mark) {
        const int x = wave.left() + qRound(mark * step / seconds * (wave.width() - 1));
        painter.fillRect(x, wave.top(), 1, wave.height() + 8, kLine);
        // The outermost labels stay within the page's margins.
        const int centre = qBound(wave.left() + 20, x, wave.right() - 20);
        const QRect label(centre - 60, wave.bottom() + 10, 120, kAxisHeight - 10);
        PaintText(painter, label, TextFont(17), kFaintText, MarkText(mark * step, step),
                  Qt::AlignHCenter);
    }
}

/// A column of pixels for each step. Each reaches to the one before it, so that the line has no
/// gaps where a step is shorter than a wave.
void PaintWave(QPainter& painter, const QRect& area, const QVector<float>& minima,
               const QVector<float>& maxima)
{
    const double middle = area.top() + area.height() / 2.0;
    const double scale = area.height() / 2.0 - 8;
    for (int column = 0; column < qMin(minima.size(), maxima.size()); ++column) {
        const int before = qMax(0, column - 1);
        const float high = qMax(maxima[column], minima[before]);
        const float low = qMin(minima[column], maxima[before]);
        const double top = middle - scale * double(qBound(-1.0f, high, 1.0f));
        const double bottom = middle - scale * double(qBound(-1.0f, low, 1.0f));
        painter.fillRect(QRectF(area.left() + column, top, 1, qMax(1.0, bottom - top)), kAccent);
    }
}

} // namespace

int WaveSheet::StepCount()
{
    return kContentWidth;
}

QImage WaveSheet::Paint(const QString& title, const QString& subtitle, const QVector<float>& minima,
                        const QVector<float>& maxima, double seconds)
{
    const QRect wave(kMargin, kMargin + kHeaderHeight, kContentWidth, kWaveHeight);
    QImage page(kWidth, wave.bottom() + 1 + kAxisHeight + kMargin / 2, QImage::Format_RGB32);
    page.fill(kBackground);

    QPainter painter(&page);
    PaintHeader(painter, title, subtitle);
    painter.fillRect(wave, kPanel);
    if (seconds > 0)
        PaintAxis(painter, wave, seconds);
    PaintWave(painter, wave, minima, maxima);
    return page;
}

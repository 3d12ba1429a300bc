// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/MeterLayout.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr double kMarkLength = 5;
constexpr double kGap = 2;
constexpr double kThinnest = 3; // of a bar beside numbers
constexpr double kTick = 3;
constexpr double kNumberGap = 2; // between tick and number
constexpr int kSteps[] = {3, 6, 12, 24, 60};

int NumberWidth(const QFontMetrics& font, int value)
{
    return font.horizontalAdvance(QString::number(value));
}

} // namespace

MeterLayout::MeterLayout(const QRectF& area, bool upright, int channelCount, double lowest,
                         double highest)
    : minimum(lowest)
    , maximum(highest)
    , channels(channelCount)
    , isUpright(upright)
    , bars(area)
    , marks(area)
{
    if (isUpright) {
        marks.setHeight(kMarkLength);
        bars.setTop(marks.bottom() + kGap);
    } else {
        marks.setLeft(area.right() - kMarkLength);
        bars.setRight(marks.left() - kGap);
    }
}

void MeterLayout::AddNumbers(const QFontMetrics& font)
{
    const double needed = kTick + kNumberGap +
                          (isUpright ? NumberWidth(font, int(std::floor(minimum))) : font.height());
    const double across = isUpright ? bars.width() : bars.height();
    if (across - needed < channels * (kThinnest + kGap) - kGap)
        return;
    numbers = bars | marks;
    for (QRectF* part : {&bars, &marks})
        isUpright ? part->setWidth(across - needed) : part->setHeight(across - needed);
    isUpright ? numbers.setLeft(bars.right()) : numbers.setTop(bars.bottom());
}

double MeterLayout::Along(double decibels) const
{
    return std::clamp((decibels - minimum) / (maximum - minimum), 0.0, 1.0) * Length();
}

double MeterLayout::Across(int channel) const
{
    const double all = isUpright ? bars.width() : bars.height();
    return channel * (all + kGap) / channels;
}

QRectF MeterLayout::Bar(int channel, double from, double to) const
{
    const double start = Across(channel);
    const double thickness = Across(channel + 1) - kGap - start;
    return isUpright ? QRectF(bars.left() + start, bars.bottom() - to, thickness, to - from)
                     : QRectF(bars.left() + from, bars.top() + start, to - from, thickness);
}

QRectF MeterLayout::Mark(int channel) const
{
    const QRectF bar = Bar(channel, 0, 0);
    return isUpright ? QRectF(bar.left(), marks.top(), bar.width(), marks.height())
                     : QRectF(marks.left(), bar.top(), marks.width(), bar.height());
}

QVector<int> MeterLayout::Values(const QFontMetrics& font) const
{
    // With room between them, so that none runs into the next.
    const double wanted = isUpright ? 1.5 * font.height() : 2.0 * NumberWidth(font, int(minimum));
    const auto* step = std::find_if(std::begin(kSteps), std::end(kSteps) - 1, [&](int decibels) {
        return decibels * Length() / (maximum - minimum) >= wanted;
    });
    QVector<int> values;
    for (int value = int(std::floor(maximum / *step)) * *step; value >= minimum; value -= *step)
        values << value;
    return values;
}

QRectF MeterLayout::Tick(int value) const
{
    const double along = Along(value);
    return isUpright ? QRectF(numbers.left(), bars.bottom() - along, kTick, 1)
                     : QRectF(bars.left() + along - 1, numbers.top(), 1, kTick);
}

QRectF MeterLayout::Number(int value, const QFontMetrics& font) const
{
    QRectF number(0, 0, NumberWidth(font, value), font.height());
    if (isUpright) {
        number.moveLeft(numbers.left() + kTick + kNumberGap);
        const double middle = bars.bottom() - Along(value) - number.height() / 2;
        number.moveTop(std::clamp(middle, numbers.top(),
                                  std::max(numbers.top(), numbers.bottom() - number.height())));
    } else {
        number.moveTop(numbers.top() + kTick);
        const double middle = bars.left() + Along(value) - number.width() / 2;
        number.moveLeft(std::clamp(middle, numbers.left(),
                                   std::max(numbers.left(), numbers.right() - number.width())));
    }
    return number;
}

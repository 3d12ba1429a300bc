// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"
#include "CommonLib/NumberConversion_p.h"
#include "CommonLib/StringOperation.h"
#include "CommonLib/ruler/RulerConvertor_p.h"

#include <QFont>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>

namespace {

constexpr float kSmallestSpacing = 1.0F / 1024;
constexpr int kMostTicksPerLabel = 1 << 30;
// Labels take at most two thirds of the room between them.
constexpr double kLabelRoom = 1.5;

// Adjusting the frames of a tick so that a range fits.
constexpr int kMostFramesPerTick = 10000000;
constexpr int kAdjustedTicks = 5;
constexpr double kWasteThreshold = 0.7;

// The default table as seen from the other side: where the spacing of large ticks of so many frames
// lies within the limits, the zoom is `zoomSum` less that spacing.
struct FitRange
{
    int framesPerBigTick;
    double lowest;
    double end;
    double zoomSum;
};
constexpr FitRange kFitRanges[] = {
    {25, 30, 150, 270},   {125, 30, 150, 390},   {750, 30, 180, 540},
    {3750, 30, 150, 660}, {22500, 30, 180, 810},
};
constexpr int kFinestBigTick = 5;
constexpr double kFinestSpacing = 150;
constexpr double kClosestSpacing = 30;

// What is left of the pixels when every small tick stands for `step` frames: the zoom at which
// `frames` fill the width, unrounded.
struct StepFit
{
    double zoomSum;
    double width;
    double frames;
    // Multiplied before it is divided, so that a whole number comes out as one.
    double Zoom(qint64 step) const
    {
        return zoomSum - static_cast<double>(step) * kAdjustedTicks * width / frames;
    }
    double PixelsPerStep() const { return kAdjustedTicks * width / frames; }
    bool IsDecided(qint64 step) const
    {
        const double zoom = Zoom(step);
        return zoom < 0 || zoom - std::floor(zoom) > kWasteThreshold;
    }
};

// The first step from `step` on at which the fit is decided; kMostFramesPerTick when there is none.
qint64 FirstDecidedStep(const StepFit& fit, qint64 step)
{
    // Small steps walk down to the next whole number before anything is decided: go there at once.
    const double zoom = fit.Zoom(step);
    const double perStep = fit.PixelsPerStep();
    if (perStep < 1 - kWasteThreshold && perStep >= 0 && !fit.IsDecided(step)) {
        const double steps = (zoom - std::floor(zoom)) / perStep;
        if (!(steps < kMostFramesPerTick))
            return kMostFramesPerTick;
        step += std::max<qint64>(static_cast<qint64>(steps) - 1, 0);
    }
    while (step < kMostFramesPerTick && !fit.IsDecided(step))
        ++step;
    return step;
}

} // namespace

float RulerSegment::Spacing() const
{
    const float spacing = static_cast<float>(bigTickPixels) - zoomInSegment;
    return spacing > kSmallestSpacing ? spacing : kSmallestSpacing;
}

double RulerSegment::FramesToPosition(double frames) const
{
    return FramesToPixels(frames - offsetFrames) - offsetPosition;
}

double RulerSegment::PositionToFrames(double x) const
{
    return PixelsToFrames(x + offsetPosition) + offsetFrames;
}

double RulerSegment::FramesToPixels(double frames) const
{
    const double spacing = Spacing();
    return frames * spacing / (static_cast<double>(framesPerSmallTick) * smallTicksPerBigTick);
}

double RulerSegment::PixelsToFrames(double pixels) const
{
    const double spacing = Spacing();
    return pixels * smallTicksPerBigTick / spacing * framesPerSmallTick;
}

QList<RulerConvertor::Entry> RulerConvertor::DefaultTable()
{
    return {{120.0F, 150, 1},   {119.0F, 149, 5},   {119.0F, 149, 25},
            {149.0F, 179, 150}, {119.0F, 149, 750}, {149.0F, 179, 4500}};
}

void RulerConvertor::Rebuild(const QList<Entry>& table)
{
    m_none = Current();
    m_segments.clear();
    m_current = 0;
    m_maxZoom = 0;
    float start = 0;
    for (const auto& [span, bigTickPixels, framesPerSmallTick] : table) {
        RulerSegment segment = m_none;
        segment.bigTickPixels = bigTickPixels;
        segment.framesPerSmallTick = std::max(framesPerSmallTick, 1);
        segment.zoomInSegment = 0;
        segment.zoomMin = start;
        segment.zoomMax = start + (span > 0 ? span : 0);
        start = segment.zoomMax + 1;
        m_segments.push_back(segment);
    }
    if (!m_segments.empty())
        SetZoom(start - 1);
}

void RulerConvertor::SelectSegment(float zoom)
{
    const float rounded = std::round(zoom);
    const auto found =
        std::find_if(m_segments.begin(), m_segments.end(), [rounded](const RulerSegment& segment) {
            return segment.zoomMin <= rounded && rounded <= segment.zoomMax;
        });
    if (found == m_segments.end())
        return;
    const RulerSegment& from = Current();
    RulerSegment& to = *found;
    to.viewRect = from.viewRect;
    to.fps = from.fps;
    to.currentFrame = from.currentFrame;
    to.offsetFrames = from.offsetFrames;
    to.labelEvery = from.labelEvery;
    to.offsetPosition = from.offsetPosition;
    m_current = static_cast<std::size_t>(found - m_segments.begin());
}

void RulerConvertor::SetZoom(float zoom)
{
    SelectSegment(zoom);
    RulerSegment& segment = Current();
    const float inSegment = zoom - segment.zoomMin;
    segment.zoomInSegment = inSegment > 0 ? inSegment : 0;
    UpdateLabelInterval();
}

float RulerConvertor::BoundedZoom(float zoom) const
{
    const float last = IsEmpty() ? 0 : m_segments.back().zoomMax;
    const float most = m_maxZoom > 0 ? m_maxZoom : last;
    return std::max(0.0F, std::min(most, zoom));
}

void RulerConvertor::UpdateLabelInterval()
{
    RulerSegment& segment = Current();
    segment.labelEvery = 1;
    const double room = kLabelRoom * StringOperation::GetTextTrueLenght(
                                         QGuiApplication::font(), gFrame2String(0, segment.fps));
    double gap = segment.Spacing();
    // Ticks closer than a pixel would leave no gap to double once it is truncated.
    if (gap >= 1)
        gap = std::trunc(gap);
    while (room > gap && segment.labelEvery < kMostTicksPerLabel) {
        segment.labelEvery *= 2;
        gap *= 2;
    }
}

float RulerConvertor::FindZoom(int frames, int width) const
{
    // One division, so that a boundary is met exactly in both neighbouring ranges.
    const auto spacing = [&](int framesPerBigTick) {
        return static_cast<double>(width) * framesPerBigTick / frames;
    };
    if (frames == 0)
        return width > 0 ? 0 : Zoom();
    const double finest = spacing(kFinestBigTick);
    if (finest > kFinestSpacing)
        return 0;
    if (finest >= kClosestSpacing)
        return static_cast<float>(kFinestSpacing - finest);
    for (const FitRange& range : kFitRanges) {
        const double pixels = spacing(range.framesPerBigTick);
        if (pixels >= range.lowest && pixels < range.end)
            return static_cast<float>(range.zoomSum - pixels);
    }
    return finest >= 0 ? kDefaultMaxZoom : Zoom();
}

float RulerConvertor::ZoomToShow(int frames, int width) const
{
    for (const RulerSegment& segment : m_segments) {
        const double framesPerBigTick =
            static_cast<double>(segment.framesPerSmallTick) * segment.smallTicksPerBigTick;
        const double zoom = segment.zoomMin + static_cast<double>(segment.bigTickPixels) -
                            framesPerBigTick * width / frames;
        if (zoom <= segment.zoomMax)
            return std::max(segment.zoomMin, static_cast<float>(zoom));
    }
    return IsEmpty() ? Zoom() : m_segments.back().zoomMax;
}

int RulerConvertor::ZoomFromWidthAndTotaleFrames(int width, int frames)
{
    if (frames == 0)
        return 0;
    for (std::size_t i = 0; i < m_segments.size(); ++i) {
        RulerSegment& segment = m_segments[i];
        const double zoomSum = segment.bigTickPixels + static_cast<double>(segment.zoomMin);
        const double exact = zoomSum - static_cast<double>(segment.smallTicksPerBigTick) * width *
                                           segment.framesPerSmallTick / frames;
        const int zoom = Truncated<int>(exact).value_or(-1);
        if (!(segment.zoomMin <= zoom && zoom <= segment.zoomMax))
            continue;
        const StepFit fit{zoomSum, static_cast<double>(width), static_cast<double>(frames)};
        const qint64 step = FirstDecidedStep(fit, segment.framesPerSmallTick);
        if (step >= kMostFramesPerTick || fit.Zoom(step) < 0)
            return zoom;
        if (i > 0 && m_segments[i - 1].zoomMax >= fit.Zoom(step))
            return zoom;
        // The segment keeps the step: with the former one the range would not fit at this zoom.
        segment.framesPerSmallTick = static_cast<int>(step);
        return Truncated<int>(fit.Zoom(step) + 1).value_or(zoom);
    }
    return 0;
}

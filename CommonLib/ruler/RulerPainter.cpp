// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/ruler/RulerPainter_p.h"

#include "CommonLib/GlobalUtils.h"
#include "CommonLib/ScreenPixels_p.h"
#include "CommonLib/StringOperation.h"

#include <QFontMetricsF>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int kSmallTickHeight = 4;
constexpr int kBigTickHeight = 8;
constexpr int kLabelIndent = 2;
constexpr int kLabelTop = 20; // above the bottom
constexpr int kLabelHeight = 12;
constexpr int kTimeTextGap = 3;
constexpr int kTimeTextBaseline = 15;
// Pens and antialiasing reach beyond an outline.
constexpr int kPointerMargin = 2;
// How far whole pixels of the screen may reach beyond the place of a tick.
constexpr double kTickReach = 2;
// Scales such as 1.3 come back a little below whole pixels.
constexpr double kPixelNoise = 1e-3;
// The rasteriser works in fixed-point numbers; what lies further out is not on the widget.
constexpr double kFarthestPixel = 1 << 20;

double PointerX(const RulerSegment& segment)
{
    const double x = segment.FramesToPosition(segment.currentFrame);
    return std::max(-kFarthestPixel, std::min(kFarthestPixel, x));
}

double TimeTextX(const RulerSegment& segment)
{
    const int offset = segment.pointerWidth / 2 + kTimeTextGap;
    return PointerX(segment) + offset;
}

int ScreenY(const QTransform& toScreen, int y)
{
    return qRound(toScreen.m22() * y + toScreen.dy());
}

qint64 RoundedUpTo(qint64 value, qint64 multiple)
{
    const qint64 rest = value % multiple;
    return rest == 0 ? value : value - rest + (rest > 0 ? multiple : 0);
}

} // namespace

RulerPainter::RulerPainter(QPainter& painter, RulerSegment& segment)
    : m_painter(painter)
    , m_segment(segment)
    , m_spacing(segment.Spacing())
    , m_bigFrames(static_cast<qint64>(segment.framesPerSmallTick) * segment.smallTicksPerBigTick)
    , m_firstBig(segment.offsetFrames / m_bigFrames)
    , m_height(segment.viewRect.height())
{
    const auto rest = static_cast<double>(segment.offsetFrames % m_bigFrames);
    m_shift = segment.FramesToPixels(rest) + segment.offsetPosition;
}

double RulerPainter::BigTickX(qint64 index) const
{
    return std::trunc(static_cast<double>(index) * m_spacing) - m_shift;
}

// The large ticks that show in the clip themselves, or with something that reaches so far to their
// right. Nothing stands to the left of the first tick.
RulerPainter::TickRange RulerPainter::VisibleTicks(const QRect& clip, double reach) const
{
    const double first = std::floor((clip.left() - reach + m_shift) / m_spacing) - 1;
    const double last = std::ceil((clip.right() + 1 + m_shift) / m_spacing);
    return {static_cast<qint64>(std::max(first, 0.0)), static_cast<qint64>(last)};
}

// Ticks and the bottom line, as rectangles of whole pixels of the screen.
void RulerPainter::PaintLines(const QRect& clip)
{
    const QTransform before = m_painter.transform();
    const QTransform toScreen = CountInScreenPixels(m_painter);
    QVector<QRect> lines = Ticks(clip, toScreen);
    if (m_segment.drawBottomLine) {
        const QRect line =
            toScreen.mapRect(QRectF(m_segment.viewRect).adjusted(0, 0, 1, 0)).toRect();
        lines.append(
            QRect(line.left(), line.bottom() + 1, line.width(), LineInScreenPixels(toScreen, 1)));
    }
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(m_segment.scaleColor);
    m_painter.drawRects(lines);
    m_painter.setTransform(before);
}

QVector<QRect> RulerPainter::Ticks(const QRect& clip, const QTransform& toScreen) const
{
    const int perBig = m_segment.smallTicksPerBigTick;
    const double smallSpacing = m_spacing / perBig;
    const auto stride = static_cast<qint64>(std::ceil(std::max(1.0, 1 / m_spacing)));
    const TickRange visible = VisibleTicks(clip, m_spacing + kTickReach);
    const double start = clip.left() - kTickReach;
    const double end = clip.right() + 1.0 + kTickReach;
    // Where Qt begins the widget, so that nothing cuts the tick at its left edge.
    const int origin = qRound(toScreen.dx());
    const int width = LineInScreenPixels(toScreen, 1);
    const int bottom = ScreenY(toScreen, m_height);
    QVector<QRect> ticks;
    const auto addTick = [&](double x, int top) {
        if (x < start || x > end)
            return;
        const double left = std::floor(toScreen.m11() * x + kPixelNoise);
        ticks.append(QRect(origin + static_cast<int>(left), top, width, bottom - top));
    };
    const int bigTop = ScreenY(toScreen, m_height - kBigTickHeight);
    const int smallTop = ScreenY(toScreen, m_height - kSmallTickHeight);
    for (qint64 i = RoundedUpTo(visible.first, stride); i <= visible.last; i += stride) {
        const double big = BigTickX(i);
        if (big > end)
            break;
        double previous = big;
        // The large tick covers the small one at its place.
        for (int j = 1; j < perBig && stride == 1; ++j) {
            const double x =
                std::trunc(static_cast<double>(perBig * i + j) * smallSpacing) - m_shift;
            if (x > previous)
                addTick(x, smallTop);
            previous = x;
        }
        addTick(big, bigTop);
    }
    return ticks;
}

void RulerPainter::PaintLabels(const QRect& clip)
{
    const QFontMetricsF metrics(m_painter.font());
    const double baseline =
        m_height - kLabelTop + std::ceil((kLabelHeight - metrics.height()) / 2 + metrics.ascent());
    const QString longest = gFrame2String(std::numeric_limits<int>::max(), m_segment.fps);
    const double reach =
        kLabelIndent + StringOperation::GetTextTrueLenght(m_painter.font(), longest);
    const TickRange visible = VisibleTicks(clip, reach);
    m_painter.setPen(m_segment.frameTextColor);
    // Frames below 0 and past what an int counts have no timecode.
    qint64 big = RoundedUpTo(m_firstBig + visible.first, m_segment.labelEvery);
    big = std::max<qint64>(big, 0);
    for (; big <= m_firstBig + visible.last; big += m_segment.labelEvery) {
        const qint64 frame = big * m_bigFrames;
        if (frame > std::numeric_limits<int>::max())
            break;
        m_painter.drawText(QPointF(BigTickX(big - m_firstBig) + kLabelIndent, baseline),
                           gFrame2String(static_cast<int>(frame), m_segment.fps));
    }
}

void RulerPainter::PaintPointer(const QRect& clip)
{
    if (!PointerRect(m_segment, m_painter.font()).intersects(clip))
        return;
    const double x = PointerX(m_segment);
    const int top = m_segment.drawCursorLine ? 0 : m_height - m_segment.pointerHeight;
    const QColor color =
        m_segment.enabled ? m_segment.pointerColor : m_segment.disabledPointerColor;
    m_segment.translatedPointer = m_segment.pointer.translated(x, top);
    m_painter.setPen(QPen(color, 1));
    m_painter.setBrush(color);
    m_painter.setRenderHint(QPainter::Antialiasing, true);
    m_painter.drawPolygon(m_segment.translatedPointer);
    m_painter.setRenderHint(QPainter::Antialiasing, false);
    if (m_segment.drawCursorLine)
        PaintCursorLine(x, color);
    if (m_segment.drawTimeText) {
        m_painter.setPen(m_segment.frameTextColor);
        m_painter.drawText(QPointF(TimeTextX(m_segment), kTimeTextBaseline),
                           gFrame2String(m_segment.currentFrame, m_segment.fps));
    }
}

// Its ends are square: it begins half its width above the pointer's lower end.
void RulerPainter::PaintCursorLine(double x, const QColor& color)
{
    const QTransform before = m_painter.transform();
    const QTransform toScreen = CountInScreenPixels(m_painter);
    const int width = LineInScreenPixels(toScreen, m_segment.cursorLineWidth);
    const double left = toScreen.m11() * x + toScreen.dx() - width / 2.0;
    const int top = ScreenY(toScreen, m_segment.pointerHeight - m_segment.cursorLineWidth / 2);
    m_painter.fillRect(static_cast<int>(std::floor(left + 0.5)), top, width,
                       ScreenY(toScreen, m_height) - top, color);
    m_painter.setTransform(before);
}

void RulerPainter::Paint(const QRect& clip)
{
    PaintLabels(clip);
    PaintLines(clip);
    PaintPointer(clip);
}

QRect RulerPainter::PointerRect(const RulerSegment& segment, const QFont& font)
{
    const double x = PointerX(segment);
    const int height = segment.viewRect.height();
    QRectF area = segment.pointer.boundingRect().translated(
        x, segment.drawCursorLine ? 0 : height - segment.pointerHeight);
    if (segment.drawCursorLine) {
        const double half = segment.cursorLineWidth / 2.0;
        area |= QRectF(x - half, 0, 2 * half, height + 1);
    }
    if (segment.drawTimeText) {
        const QString text = gFrame2String(segment.currentFrame, segment.fps);
        area |=
            QRectF(TimeTextX(segment), 0, StringOperation::GetTextTrueLenght(font, text), height);
    }
    return area.toAlignedRect().adjusted(-kPointerMargin, -kPointerMargin, kPointerMargin,
                                         kPointerMargin);
}

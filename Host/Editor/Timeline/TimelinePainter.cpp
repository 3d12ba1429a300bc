// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/TimelinePainter.h"

#include "Host/Editor/Timeline/TimelineModel.h"
#include "Host/Widgets/HostStyle.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int kNarrowest = 3; ///< pixels of a clip that is told apart from its neighbours
constexpr int kMargin = 8;    ///< around what is painted, for what reaches out of a clip
constexpr int kCachedHeight = 3;
constexpr int kFlag = 5; ///< half of the width of a marker
constexpr int kBracket = 4;

// Between those of the style sheet's surfaces.
const QColor kBackground(0x1b, 0x1d, 0x20);
const QColor kLevel(0x23, 0x25, 0x29);
const QColor kLevelEdge(0x2f, 0x32, 0x37);
const QColor kStrip(0x20, 0x22, 0x25);
const QColor kPlayHead(0x4d, 0xa3, 0xff);
const QColor kSnapLine(0xff, 0xd0, 0x4a);
const QColor kCached(0x3f, 0xb0, 0x6b);
const QColor kHidden(0x23, 0x25, 0x29, 0xA0);
const QColor kLocked(0xff, 0xff, 0xff, 0x18);
const QColor kBand(0x4d, 0xa3, 0xff, 0x38);
const QColor kDrop(0x7f, 0xe0, 0x9a);
const QColor kPoint(0xe8, 0xa3, 0x3d);
const QColor kRange(0xe8, 0xa3, 0x3d, 0x48);

void VerticalLine(QPainter& painter, const QRect& area, int x, const QColor& colour)
{
    painter.fillRect(QRect(x, area.top(), 1, area.height()), colour);
}

} // namespace

/// One level, and what of it is to be painted.
struct TimelinePainter::Pass
{
    QPainter& painter;
    const TimelineGeometry& geometry;
    QRect area; ///< to be painted
    int level;
    int top;
    int height; ///< of clips
    LevelState state;

    QRect Box(const LevelIndex::Entry& entry) const
    {
        const int left = geometry.Left(entry.begin);
        return {left, top, std::max(1, geometry.Left(entry.end) - left), height};
    }
    bool Ends(const LevelIndex& index, LevelIndex::Entries::const_iterator entry) const
    {
        return entry == index.All().end() || entry->begin >= geometry.scale.Frame(area.right() + 1);
    }
};

TimelinePainter::TimelinePainter(const TimelineModel& model, ClipPainter& clips)
    : m_model(model), m_clips(clips)
{
}

ClipPainter::State TimelinePainter::StateOf(const ClipRow& row, bool isLocked) const
{
    return {m_selected.contains(row.node.get()), isLocked, 0};
}

void TimelinePainter::Paint(QPainter& painter, const QRect& area, const TimelineGeometry& geometry,
                            const Overlay& overlay) const
{
    painter.fillRect(area, HostStyle::Shown(kBackground));
    for (int level = 0; level < geometry.levels.Count(); ++level) {
        const QRect box(area.left(), geometry.LevelTop(level), area.width(),
                        geometry.levels.Height(level));
        if (!box.intersects(area))
            continue;
        painter.fillRect(box, HostStyle::Shown(kLevel));
        painter.fillRect(box.left(), box.bottom(), box.width(), 1, HostStyle::Shown(kLevelEdge));
        PaintLevel({painter, geometry, box & area.adjusted(-kMargin, 0, kMargin, 0), level,
                    box.top(), box.height() - 1, m_model.StateOf(level)});
    }
    PaintStrip(painter, area, geometry, overlay);
    PaintOverlay(painter, area, geometry, overlay);
}

void TimelinePainter::PaintLevel(const Pass& pass) const
{
    const LevelIndex& index = m_model.Clips(pass.level);
    const LevelIndex& transitions = m_model.Transitions(pass.level);
    const TimelineScale& scale = pass.geometry.scale;
    auto entry = index.FirstAfter(scale.Frame(pass.area.left() - kNarrowest));
    while (!pass.Ends(index, entry)) {
        const ClipRow& row = *entry->row;
        QRect box = pass.Box(*entry);
        if (box.width() >= kNarrowest) {
            ClipPainter::State state = StateOf(row, pass.state.isLocked);
            if (const ClipRow* cover = transitions.At(row.begin))
                state.free = std::max(0, pass.geometry.Left(cover->end));
            m_clips.Paint(pass.painter, row, scale, box, pass.area, state);
            ++entry;
            continue;
        }
        // Narrow clips with no free pixel between them are painted as one; those that begin within
        // it are passed over unseen.
        for (bool isNear = true; isNear;) {
            entry = index.FirstFrom(entry + 1, scale.Frame(box.right() + 0.5));
            const QRect next = pass.Ends(index, entry) ? QRect() : pass.Box(*entry);
            isNear = next.isValid() && next.width() < kNarrowest && next.left() <= box.right() + 1;
            if (isNear)
                box.setRight(next.right());
        }
        ClipPainter::PaintBlock(pass.painter, row, box, StateOf(row, pass.state.isLocked));
    }
    PaintTransitions(pass);
    if (!pass.state.isShown)
        pass.painter.fillRect(pass.area, HostStyle::Shown(kHidden));
    if (pass.state.isLocked)
        pass.painter.fillRect(pass.area, QBrush(kLocked, Qt::BDiagPattern));
}

void TimelinePainter::PaintTransitions(const Pass& pass) const
{
    const LevelIndex& index = m_model.Transitions(pass.level);
    const TimelineScale& scale = pass.geometry.scale;
    auto entry = index.FirstAfter(scale.Frame(pass.area.left()));
    while (!pass.Ends(index, entry)) {
        const QRect box = pass.Box(*entry);
        if (box.width() >= kNarrowest)
            m_clips.PaintTransition(pass.painter, *entry->row, box,
                                    StateOf(*entry->row, pass.state.isLocked));
        entry = index.FirstFrom(entry + 1, scale.Frame(box.left() + 0.5));
    }
}

void TimelinePainter::PaintMarkers(QPainter& painter, const QRect& area,
                                   const TimelineGeometry& geometry) const
{
    painter.setPen(Qt::NoPen);
    for (const MarkerRow& marker : m_model.Markers()) {
        const int x = geometry.Left(marker.frame);
        if (x > area.right() + kFlag)
            break; // they are in order
        const int end = geometry.Left(marker.frame + marker.length);
        if (end < area.left() - kFlag)
            continue;
        painter.fillRect(x, 2, end - x, 3, marker.colour);
        painter.setBrush(marker.colour);
        const QPoint flag[] = {
            {x - kFlag, 2}, {x + kFlag, 2}, {x + kFlag, 7}, {x, 12}, {x - kFlag, 7}};
        painter.drawConvexPolygon(flag, 5);
        QColor faint = marker.colour;
        faint.setAlpha(0x60);
        VerticalLine(painter, area.adjusted(0, kFlag, 0, 0), x, faint);
    }
}

/// A bracket at each end of the range in the strip, and the range between both.
void TimelinePainter::PaintPoints(QPainter& painter, const QRect& area,
                                  const TimelineGeometry& geometry, const Overlay& overlay)
{
    constexpr int height = TimelineGeometry::kStripHeight;
    const auto bracket = [&](int x, int inwards) {
        painter.fillRect(QRect(x, 0, 1, height), kPoint);
        for (const int y : {0, height - 1})
            painter.fillRect(QRect(inwards > 0 ? x : x - kBracket + 1, y, kBracket, 1), kPoint);
    };
    if (overlay.in && overlay.end) {
        const int left = std::max(geometry.Left(*overlay.in), area.left());
        const int right = std::min(geometry.Left(*overlay.end), area.right() + 1);
        if (left < right)
            painter.fillRect(left, 0, right - left, height, kRange);
    }
    if (overlay.in)
        bracket(geometry.Left(*overlay.in), 1);
    if (overlay.end)
        bracket(geometry.Left(*overlay.end) - 1, -1);
}

void TimelinePainter::PaintStrip(QPainter& painter, const QRect& area,
                                 const TimelineGeometry& geometry, const Overlay& overlay) const
{
    constexpr int height = TimelineGeometry::kStripHeight;
    painter.fillRect(QRect(area.left(), 0, area.width(), height), HostStyle::Shown(kStrip));
    for (const auto& [begin, end] : overlay.cached) {
        const int left = geometry.Left(begin);
        painter.fillRect(left, height - kCachedHeight, geometry.Left(end) - left, kCachedHeight,
                         kCached);
    }
    PaintPoints(painter, area, geometry, overlay);
    PaintMarkers(painter, area, geometry);
}

void TimelinePainter::PaintOverlay(QPainter& painter, const QRect& area,
                                   const TimelineGeometry& geometry, const Overlay& overlay)
{
    if (overlay.drop) {
        const int level = overlay.drop->second;
        painter.fillRect(geometry.Left(overlay.drop->first) - 1, geometry.LevelTop(level), 3,
                         geometry.levels.Height(level), kDrop);
    }
    if (!overlay.band.isEmpty()) {
        painter.setPen(kPlayHead);
        painter.setBrush(kBand);
        painter.drawRect(overlay.band);
    }
    VerticalLine(painter, area, geometry.Left(overlay.playHead), kPlayHead);
    if (overlay.snapLine)
        VerticalLine(painter, area, geometry.Left(*overlay.snapLine), kSnapLine);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/ClipPainter.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kMostNames = 4096;
constexpr int kTextIndent = 5;
constexpr int kNarrowestName = 26;   ///< pixels of a clip that shows one
constexpr int kNarrowestDetail = 10; ///< of a clip that shows pictures and sound
constexpr int kLowestContent = 14;   ///< pixels of height for the same
constexpr int kTextGrain = 8;        ///< pixels in whose steps names are cut
constexpr int kCoarser = 6;          ///< times that the distance of pictures is doubled in search
constexpr double kPictureShare = 0.62;

const QColor kSelected(0xff, 0xc2, 0x4a);
const QColor kText(0xf0, 0xf2, 0xf4);
const QColor kKey(0xff, 0xe0, 0x8a);
const QColor kWave(0xff, 0xff, 0xff, 0xa8);
const QColor kTransition(0xe6, 0xea, 0xf0, 0x90);
const QColor kTransitionName(0xb9, 0xc0, 0xc9);

QColor BodyColour(const ClipRow& row)
{
    static const QColor colours[] = {
        {0x2f, 0x5f, 0x85}, // Video
        {0x2f, 0x70, 0x56}, // Sound
        {0x6d, 0x4f, 0x86}, // Picture
        {0x5a, 0x5f, 0x66}, // Colour
        {0x86, 0x66, 0x2c}, // Title
        {0x44, 0x55, 0x8a}, // Composite
        {0x5a, 0x5f, 0x66}, // Transition
        {0x84, 0x3a, 0x3a}, // Offline
    };
    return colours[static_cast<int>(row.kind)];
}

QColor Shade(QColor colour, const ClipRow& row, ClipPainter::State state)
{
    if (state.isLocked || !row.isEnabled)
        colour = QColor::fromHsv(colour.hue(), colour.saturation() / 3, colour.value() * 3 / 4);
    return state.isSelected ? colour.lighter(125) : colour;
}

/// Lines of \a width pixels within a box.
void PaintFrame(QPainter& painter, const QRect& box, const QColor& colour, int width)
{
    painter.fillRect(box.left(), box.top(), box.width(), width, colour);
    painter.fillRect(box.left(), box.bottom() + 1 - width, box.width(), width, colour);
    painter.fillRect(box.left(), box.top(), width, box.height(), colour);
    painter.fillRect(box.right() + 1 - width, box.top(), width, box.height(), colour);
}

void PaintKeys(QPainter& painter, const ClipRow& row, const TimelineScale& scale, const QRect& box,
               const QRect& shown)
{
    constexpr int half = 3;
    const int y = box.bottom() - half - 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(kKey);
    for (const int key : row.keys) {
        const int x = static_cast<int>(std::lround(scale.X(row.begin + key)));
        if (x < shown.left() - half || x > shown.right() + half)
            continue;
        const QPoint diamond[] = {{x, y - half}, {x + half, y}, {x, y + half}, {x - half, y}};
        painter.drawConvexPolygon(diamond, 4);
    }
}

} // namespace

ClipPainter::ClipPainter(QObject* parent) : QObject(parent), m_names(kMostNames)
{
    connect(&m_thumbnails, &Thumbnails::Ready, this, &ClipPainter::Ready);
    connect(&m_waves, &WaveForms::Ready, this, &ClipPainter::Ready);
}

void ClipPainter::SetFont(const QFont& font)
{
    if (font == m_font)
        return;
    m_font = font;
    m_nameHeight = QFontMetrics(font).height() + 1;
    m_names.clear();
}

void ClipPainter::PaintBlock(QPainter& painter, const ClipRow& row, const QRect& box, State state)
{
    painter.fillRect(box, Shade(BodyColour(row), row, state));
    if (state.isSelected)
        painter.fillRect(box.left(), box.top(), box.width(), 2, kSelected);
}

void ClipPainter::Paint(QPainter& painter, const ClipRow& row, const TimelineScale& scale,
                        const QRect& box, const QRect& area, State state)
{
    const QColor body = Shade(BodyColour(row), row, state);
    painter.fillRect(box & area, body);
    const bool hasName = box.width() >= kNarrowestName;
    if (box.width() >= kNarrowestDetail) {
        const QRect content = box.adjusted(1, hasName ? m_nameHeight : 1, -1, -1);
        if (content.height() >= kLowestContent)
            PaintContent(painter, row, scale, content, area & content);
    }
    PaintFrame(painter, box, state.isSelected ? kSelected : body.darker(150),
               state.isSelected ? 2 : 1);
    if (hasName) {
        // From the view's left edge on, so that long clips are named wherever they show.
        const int left = std::max(box.left(), state.free);
        PaintName(painter, row, {left, box.top(), box.right() - left, m_nameHeight}, kText);
    }
    PaintKeys(painter, row, scale, box, area);
}

void ClipPainter::PaintContent(QPainter& painter, const ClipRow& row, const TimelineScale& scale,
                               const QRect& box, const QRect& shown)
{
    if (row.colour.isValid())
        painter.fillRect(shown, row.colour);
    if (!row.media || shown.isEmpty())
        return;
    const bool hasPictures = row.media->picture != NLENoStream && row.media->frames > 0;
    const bool hasSound = row.media->sound != NLENoStream && row.frozenFrame < 0;
    QRect pictures = box;
    QRect sound = box;
    if (hasPictures && hasSound) {
        const int middle = box.top() + static_cast<int>(box.height() * kPictureShare);
        pictures.setBottom(middle - 1);
        sound.setTop(middle);
    }
    if (hasPictures)
        PaintPictures(painter, row, scale, pictures, shown);
    if (hasSound)
        PaintWave(painter, row, scale, sound, shown & sound);
}

/// The picture of a second of the material. Frames are rounded to a grid that follows the zoom in
/// powers of two, so that zooming finds again what is kept; meanwhile one of a coarser grid shows.
const QImage* ClipPainter::Picture(const ClipRow& row, double second, double secondsPerTile,
                                   const QSize& size)
{
    const ClipMedia& media = *row.media;
    const int wanted = std::clamp(static_cast<int>(second * media.rate), 0, media.frames - 1);
    const int first = std::clamp(static_cast<int>(row.Second(0) * media.rate), 0, wanted);
    int grid = 1;
    while (grid * 2 <= secondsPerTile * media.rate)
        grid *= 2;
    const auto onGrid = [&](int distance) { return std::max(first, wanted - wanted % distance); };
    if (const QImage* picture = m_thumbnails.Find(media, onGrid(grid), size))
        return picture;
    for (int coarser = 1; coarser <= kCoarser && grid < media.frames; ++coarser) {
        grid *= 2;
        if (const QImage* picture = m_thumbnails.Kept(media, onGrid(grid), size))
            return picture;
    }
    return nullptr;
}

void ClipPainter::PaintPictures(QPainter& painter, const ClipRow& row, const TimelineScale& scale,
                                const QRect& box, const QRect& shown)
{
    const double ratio = painter.device()->devicePixelRatioF();
    const QSize size(std::max(1, static_cast<int>(box.height() * row.media->shape * ratio)),
                     static_cast<int>(box.height() * ratio));
    const double tile = size.width() / ratio;
    const double left = scale.X(row.begin);
    const int firstTile = std::max(0, static_cast<int>((shown.left() - left) / tile));
    const int lastTile = static_cast<int>((shown.right() - left) / tile);
    for (int index = firstTile; index <= lastTile; ++index) {
        const QImage* picture = Picture(row, row.Second(index * tile / scale.pixels),
                                        tile / scale.pixels * row.secondsPerFrame, size);
        if (!picture)
            continue;
        // Cut at the clip's end; pixel for pixel everywhere.
        const double x = left + index * tile;
        const double width = std::min(tile, box.right() + 1 - x);
        if (width > 0)
            painter.drawImage(QRectF(x, box.top(), width, box.height()), *picture,
                              QRectF(0, 0, width * ratio, size.height()));
    }
}

void ClipPainter::PaintWave(QPainter& painter, const ClipRow& row, const TimelineScale& scale,
                            const QRect& box, const QRect& shown)
{
    const double secondsPerPixel = row.secondsPerFrame / scale.pixels;
    const int step = WaveForms::StepFor(secondsPerPixel);
    const double perStep = std::ldexp(1.0, step);
    const double middle = box.top() + box.height() / 2.0;
    const double half = box.height() / 2.0 - 1;
    QVector<QRect> columns;
    columns.reserve(shown.width());
    const WaveForms::Part* part = nullptr;
    int partIndex = -1;
    for (int x = shown.left(); x <= shown.right(); ++x) {
        const double second = row.Second(scale.Frame(x) - row.begin);
        const int first = std::max(0, static_cast<int>(second / perStep));
        const int last = std::max(first, static_cast<int>((second + secondsPerPixel) / perStep));
        float low = 0;
        float high = 0;
        for (int at = first; at <= last; ++at) {
            if (const int index = at / WaveForms::kSteps; index != partIndex) {
                partIndex = index;
                part = m_waves.Find(*row.media, step, index);
            }
            if (!part)
                continue;
            low = std::min(low, part->low[static_cast<std::size_t>(at % WaveForms::kSteps)]);
            high = std::max(high, part->high[static_cast<std::size_t>(at % WaveForms::kSteps)]);
        }
        const int top = static_cast<int>(middle - half * double(std::min(high, 1.0F)));
        const int bottom = static_cast<int>(middle - half * double(std::max(low, -1.0F)));
        columns.append({x, top, 1, bottom - top + 1});
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(kWave);
    painter.drawRects(columns);
}

void ClipPainter::PaintTransition(QPainter& painter, const ClipRow& row, const QRect& box,
                                  State state)
{
    painter.fillRect(box, kTransition);
    painter.fillRect(box.left(), box.top(), box.width(), std::min(m_nameHeight, box.height()),
                     kTransitionName);
    painter.setPen(QColor(0x20, 0x22, 0x25, 0xb0));
    painter.drawLine(box.bottomLeft(), QPoint(box.right(), box.top() + m_nameHeight));
    PaintFrame(painter, box, state.isSelected ? kSelected : kTransition.lighter(110),
               state.isSelected ? 2 : 1);
    if (box.width() >= kNarrowestName)
        PaintName(painter, row, {box.left(), box.top(), box.width(), m_nameHeight},
                  QColor(0x1b, 0x1d, 0x20));
}

void ClipPainter::PaintName(QPainter& painter, const ClipRow& row, const QRect& room,
                            const QColor& colour)
{
    const int width = (room.width() - 2 * kTextIndent) / kTextGrain * kTextGrain;
    if (width <= 0 || row.name.isEmpty())
        return;
    const QPair<QString, int> key(row.name, std::min(width, 1024));
    QStaticText* text = m_names.object(key);
    if (!text) {
        text =
            new QStaticText(QFontMetrics(m_font).elidedText(row.name, Qt::ElideRight, key.second));
        text->setTextFormat(Qt::PlainText);
        text->setPerformanceHint(QStaticText::AggressiveCaching);
        text->prepare({}, m_font);
        m_names.insert(key, text);
    }
    painter.setFont(m_font);
    painter.setPen(colour);
    painter.drawStaticText(room.left() + kTextIndent, room.top(), *text);
}

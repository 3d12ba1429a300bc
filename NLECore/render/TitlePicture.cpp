// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/TitlePicture.h"

#include "NLECore/render/SoftShadow.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

/// Size of the letters that are laid out, in pixels: large enough that the font's units round away.
constexpr int kLaidSize = 256;
/// A line of this width is never broken.
constexpr double kEndless = 1e7;
/// A piece of a line goes on to the end of a word with so many elements.
constexpr int kPieceElements = 1000;
/// Shadows and outlines end within so many standard deviations.
constexpr double kShadowReach = 3;

/// Whether letters of the script are joined, so that space between them would tear words. What all
/// scripts share goes with the letters before it.
bool IsJoined(const QChar& letter, bool isBefore)
{
    switch (letter.script()) {
    case QChar::Script_Common:
    case QChar::Script_Inherited:
        return isBefore;
    case QChar::Script_Arabic:
    case QChar::Script_Syriac:
    case QChar::Script_Mongolian:
    case QChar::Script_Nko:
    case QChar::Script_Mandaic:
    case QChar::Script_PhagsPa:
        return true;
    default:
        return false;
    }
}

QFont FontOf(const TitleLook& look)
{
    QFont font(look.family);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(kLaidSize);
    font.setBold(look.bold);
    font.setItalic(look.italic);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// Letters that are not joined stand apart.
QVector<QTextLayout::FormatRange> Spacing(const QString& text, QFont font, double spacing)
{
    QVector<QTextLayout::FormatRange> ranges;
    if (spacing == 0)
        return ranges;
    font.setLetterSpacing(QFont::AbsoluteSpacing, spacing * kLaidSize);
    QTextCharFormat apart;
    apart.setFont(font);
    bool isJoined = false;
    for (int i = 0; i < text.size(); ++i) {
        isJoined = IsJoined(text[i], isJoined);
        if (isJoined)
            continue;
        if (!ranges.isEmpty() && ranges.last().start + ranges.last().length == i)
            ++ranges.last().length;
        else
            ranges.append({i, 1, apart});
    }
    return ranges;
}

Qt::LayoutDirection DirectionOf(TitleDirection direction)
{
    switch (direction) {
    case TitleDirection::LeftToRight:
        return Qt::LeftToRight;
    case TitleDirection::RightToLeft:
        return Qt::RightToLeft;
    case TitleDirection::Automatic:
        break;
    }
    return Qt::LayoutDirectionAuto;
}

QTextOption OptionOf(const TitleLook& look)
{
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(DirectionOf(look.direction));
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    return option;
}

/// Lays a text out for nothing. Fonts that lend letters to others count in full only once they were
/// used: without this, the first layout in a process may differ from the next.
void LendLetters(const QString& text, const QFont& font, const QTextOption& option)
{
    QTextLayout layout(text, font);
    layout.setTextOption(option);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
}

/// Share of what is left over that comes before.
double ShareBefore(int alignment)
{
    return alignment / 2.0;
}

bool IsVisible(std::uint32_t argb)
{
    return argb >> 24 != 0;
}

QImage Canvas(const QSize& size, QImage::Format format)
{
    QImage canvas(size, format);
    canvas.fill(Qt::transparent);
    return canvas;
}

bool IsHorizontal(TitleRoll roll)
{
    return roll == TitleRoll::Left || roll == TitleRoll::Right;
}

} // namespace

TitleLayout::TitleLayout(const TitleLook& look, NLESize picture) : m_look(look), m_picture(picture)
{
    const bool canDraw = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    if (!canDraw || picture.width < 1 || picture.height < 1 || look.text.trimmed().isEmpty())
        return;
    const double em = look.size * picture.height / kLaidSize;
    LayOut(IsHorizontal(look.roll) ? kEndless : look.width * picture.width / em);
    Align();
    const double padding = look.boxPadding * kLaidSize;
    if (IsVisible(look.boxColor))
        m_box = m_block.adjusted(-padding, -padding, padding, padding);
}

void TitleLayout::LayOut(double width)
{
    const QFont font = FontOf(m_look);
    // Lines are as high as the font says; what another one lends may be higher.
    const QFontMetricsF metrics(font);
    Shapes shapes;
    double top = 0;
    for (const QString& paragraph : m_look.text.split(QLatin1Char('\n'))) {
        LendLetters(paragraph, font, OptionOf(m_look));
        QTextLayout layout(paragraph, font);
        layout.setTextOption(OptionOf(m_look));
        const auto spaced = Spacing(paragraph, font, m_look.letterSpacing);
        const double last = spaced.isEmpty() ? 0 : m_look.letterSpacing * kLaidSize;
        layout.setFormats(spaced);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            line.setPosition(QPointF(0, top + metrics.ascent() - line.ascent()));
            top += metrics.height() * m_look.lineSpacing;
        }
        layout.endLayout();
        for (int i = 0; i < layout.lineCount(); ++i) {
            const QTextLine line = layout.lineAt(i);
            // Behind the last letter there is nothing to be apart from.
            const QRectF text = line.naturalTextRect();
            const double above = line.y() + line.ascent() - metrics.ascent();
            Line laid = {{text.x(), above, text.width() - last, metrics.height()}, {}, {}, {}};
            for (const QGlyphRun& run : line.glyphRuns())
                AddRun(run, shapes, laid);
            m_lines.push_back(std::move(laid));
        }
    }
}

void TitleLayout::AddRun(const QGlyphRun& run, Shapes& shapes, Line& line)
{
    const QRawFont font = run.rawFont();
    const QVector<quint32> glyphs = run.glyphIndexes();
    const QVector<QPointF> places = run.positions();
    QVector<quint32> shapeless;
    QVector<QPointF> shapelessPlaces;
    QHash<quint32, QPainterPath>& known = shapes[font];
    for (int i = 0; i < glyphs.size(); ++i) {
        if (!known.contains(glyphs[i]))
            known.insert(glyphs[i], font.pathForGlyph(glyphs[i]));
        const QPainterPath& shape = known[glyphs[i]];
        const QRectF around = font.boundingRect(glyphs[i]).translated(places[i]);
        const bool isBlank = shape.isEmpty() && around.isEmpty();
        if (line.letters.empty() ||
            (isBlank && line.letters.back().elementCount() > kPieceElements)) {
            line.letters.emplace_back();
            line.letters.back().setFillRule(Qt::WindingFill);
        }
        if (!shape.isEmpty()) {
            line.letters.back().addPath(shape.translated(places[i]));
        } else if (!isBlank) {
            shapeless.append(glyphs[i]);
            shapelessPlaces.append(places[i]);
            line.ink |= around;
        }
    }
    if (shapeless.isEmpty())
        return;
    QGlyphRun pictures = run;
    pictures.setGlyphIndexes(shapeless);
    pictures.setPositions(shapelessPlaces);
    line.pictures.push_back(pictures);
}

void TitleLayout::Align()
{
    double width = 0;
    for (const Line& line : m_lines)
        width = std::max(width, line.text.width());
    for (Line& line : m_lines) {
        const double left = (width - line.text.width()) * ShareBefore(int(m_look.alignment));
        const double shift = left - line.text.x();
        line.text.translate(shift, 0);
        line.ink.translate(shift, 0);
        for (QPainterPath& piece : line.letters) {
            piece.translate(shift, 0);
            line.ink |= piece.boundingRect();
        }
        for (QGlyphRun& run : line.pictures) {
            QVector<QPointF> places = run.positions();
            for (QPointF& place : places)
                place.rx() += shift;
            run.setPositions(places);
        }
        m_block |= line.text;
    }
}

QTransform TitleLayout::ToPixels(const QSize& size) const
{
    const double em = m_look.size * m_picture.height / kLaidSize;
    const auto start = [this](double side, double block, int alignment) {
        const double margin = m_look.margin * side;
        return margin + (side - 2 * margin - block) * ShareBefore(alignment);
    };
    const double left =
        start(m_picture.width, m_block.width() * em, int(m_look.alignment)) - m_block.x() * em;
    const double top =
        start(m_picture.height, m_block.height() * em, int(m_look.place)) - m_block.y() * em;
    const double scaleX = double(size.width()) / m_picture.width;
    const double scaleY = double(size.height()) / m_picture.height;
    return QTransform(em * scaleX, 0, 0, em * scaleY, left * scaleX, top * scaleY);
}

QMarginsF TitleLayout::Reach() const
{
    const double outline = IsVisible(m_look.outlineColor) ? m_look.outline * kLaidSize : 0;
    QMarginsF reach(outline, outline, outline, outline);
    if (!IsVisible(m_look.shadowColor))
        return reach;
    const double x = m_look.shadow.x * kLaidSize;
    const double y = m_look.shadow.y * kLaidSize;
    const double soft = outline + m_look.shadowBlur * kLaidSize * kShadowReach;
    return QMarginsF(std::max(outline, soft - x), std::max(outline, soft - y),
                     std::max(outline, soft + x), std::max(outline, soft + y));
}

QRect TitleLayout::Bounds(const QSize& size) const
{
    QRectF bounds = m_box;
    for (const Line& line : m_lines) {
        if (!line.ink.isEmpty())
            bounds |= line.ink.marginsAdded(Reach());
    }
    if (bounds.isEmpty())
        return {};
    return ToPixels(size).mapRect(bounds).toAlignedRect().adjusted(-1, -1, 1, 1);
}

QImage TitleLayout::Draw(const QRect& part, const QSize& size, QImage::Format format) const
{
    const QTransform toPixels = ToPixels(size);
    const QMargins margins = ShadowMargins(toPixels);
    const QRect around = part.marginsAdded(margins);
    QImage lines = Canvas(around.size(), format);
    {
        QPainter painter(&lines);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        painter.setTransform(toPixels * QTransform::fromTranslate(-around.x(), -around.y()));
        DrawLines(painter, toPixels.inverted().mapRect(QRectF(around)));
    }
    if (m_box.isEmpty() && !IsVisible(m_look.shadowColor))
        return lines;
    QImage image = Canvas(part.size(), format);
    QPainter painter(&image);
    if (!m_box.isEmpty())
        DrawBox(painter, toPixels * QTransform::fromTranslate(-part.x(), -part.y()));
    if (IsVisible(m_look.shadowColor))
        DrawShadow(painter, lines, margins, toPixels);
    painter.drawImage(-margins.left(), -margins.top(), lines);
    return image;
}

void TitleLayout::DrawBox(QPainter& painter, const QTransform& transform) const
{
    const double radius = m_look.boxRadius * kLaidSize;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgba(m_look.boxColor));
    painter.setTransform(transform);
    painter.drawRoundedRect(m_box, radius, radius);
    painter.resetTransform();
}

void TitleLayout::DrawLines(QPainter& painter, const QRectF& part) const
{
    // No outline covers letters that were drawn before.
    if (m_look.outline > 0 && IsVisible(m_look.outlineColor))
        DrawOutlines(painter, part);
    const QColor color = QColor::fromRgba(m_look.color);
    painter.setPen(color);
    for (const Line& line : m_lines) {
        for (const QPainterPath& piece : line.letters) {
            if (piece.controlPointRect().intersects(part))
                painter.fillPath(piece, color);
        }
        for (const QGlyphRun& run : line.pictures)
            painter.drawGlyphRun(QPointF(0, 0), run);
    }
}

void TitleLayout::DrawOutlines(QPainter& painter, const QRectF& part) const
{
    // In pixels: the fine steps of curves as large as they were laid out take long to stroke.
    const QTransform toPixels = painter.transform();
    const double outline = m_look.outline * kLaidSize;
    const double width = 2 * outline * std::sqrt(toPixels.m11() * toPixels.m22());
    const QPen pen(QColor::fromRgba(m_look.outlineColor), width, Qt::SolidLine, Qt::RoundCap,
                   Qt::RoundJoin);
    painter.resetTransform();
    for (const Line& line : m_lines) {
        for (const QPainterPath& piece : line.letters) {
            const QRectF reach =
                piece.controlPointRect().adjusted(-outline, -outline, outline, outline);
            if (reach.intersects(part))
                painter.strokePath(toPixels.map(piece), pen);
        }
    }
    painter.setTransform(toPixels);
}

QPoint TitleLayout::ShadowShift(const QTransform& toPixels) const
{
    return QPoint(qRound(m_look.shadow.x * kLaidSize * toPixels.m11()),
                  qRound(m_look.shadow.y * kLaidSize * toPixels.m22()));
}

QMargins TitleLayout::ShadowMargins(const QTransform& toPixels) const
{
    if (!IsVisible(m_look.shadowColor))
        return {};
    const double reach = m_look.shadowBlur * kLaidSize * kShadowReach;
    const int x = int(std::ceil(reach * toPixels.m11())) + 1;
    const int y = int(std::ceil(reach * toPixels.m22())) + 1;
    const QPoint shift = ShadowShift(toPixels);
    return QMargins(std::max(0, x + shift.x()), std::max(0, y + shift.y()),
                    std::max(0, x - shift.x()), std::max(0, y - shift.y()));
}

void TitleLayout::DrawShadow(QPainter& painter, const QImage& lines, const QMargins& margins,
                             const QTransform& toPixels) const
{
    const double deviation = m_look.shadowBlur * kLaidSize;
    const QImage shape = lines.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    painter.drawImage(ShadowShift(toPixels) - QPoint(margins.left(), margins.top()),
                      SoftShadow(shape, deviation * toPixels.m11(), deviation * toPixels.m22(),
                                 m_look.shadowColor));
}

void TitlePainter::LayOut(const TitleLook& look, NLESize picture, const QSize& size)
{
    const bool isLaidOut = m_layout && IsSame(m_look, look) && m_picture.width == picture.width &&
                           m_picture.height == picture.height;
    if (isLaidOut && m_size == size)
        return;
    if (!isLaidOut) {
        m_look = look;
        m_picture = picture;
        m_layout.emplace(look, picture);
    }
    m_size = size;
    m_bounds = m_layout->Bounds(size);
    m_pieces.clear();
}

QRect TitlePainter::Place(const TitleMoment& moment, NLESize picture, const QSize& size)
{
    LayOut(moment.look, picture, size);
    return m_bounds.isEmpty() ? QRect() : m_bounds.translated(Moved(moment));
}

QRectF TitlePainter::Lines(const TitleMoment& moment, NLESize picture, const QSize& size)
{
    LayOut(moment.look, picture, size);
    return m_bounds.isEmpty() ? QRectF() : m_layout->Lines(size).translated(Moved(moment));
}

TitleShot TitlePainter::Draw(const TitleMoment& moment, NLESize picture, const QSize& size,
                             QImage::Format format)
{
    LayOut(moment.look, picture, size);
    if (m_format != format)
        m_pieces.clear();
    m_format = format;
    const QPoint moved = Moved(moment);
    const QRect shown = m_bounds.translated(moved) & QRect(QPoint(0, 0), size);
    if (shown.isEmpty())
        return {};
    DrawPieces(PlacesOf(shown.translated(-moved)));
    if (m_pieces.size() == 1 && m_pieces.front().place.translated(moved) == shown)
        return {m_pieces.front().image, shown.topLeft()};
    QImage image(shown.size(), format);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const Piece& piece : m_pieces)
        painter.drawImage(piece.place.topLeft() + moved - shown.topLeft(), piece.image);
    return {image, shown.topLeft()};
}

QPoint TitlePainter::Moved(const TitleMoment& moment) const
{
    const auto between = [&moment](double start, double end) {
        return start + (end - start) * moment.progress;
    };
    double x = moment.shift.x * m_size.width();
    double y = moment.shift.y * m_size.height();
    const double below = m_size.height() - m_bounds.y();
    const double above = -double(m_bounds.y()) - m_bounds.height();
    const double right = m_size.width() - m_bounds.x();
    const double left = -double(m_bounds.x()) - m_bounds.width();
    switch (moment.look.roll) {
    case TitleRoll::None:
        break;
    case TitleRoll::Up:
        y = between(below, above);
        break;
    case TitleRoll::Down:
        y = between(above, below);
        break;
    case TitleRoll::Left:
        x = between(right, left);
        break;
    case TitleRoll::Right:
        x = between(left, right);
        break;
    }
    return QPoint(qRound(x), qRound(y));
}

// A title that stands is one piece where the picture has room for it. One that rolls has several,
// so that what comes next takes little time.
std::vector<QRect> TitlePainter::PlacesOf(const QRect& shown) const
{
    constexpr int pieces = 4;
    const bool rolls = m_look.roll != TitleRoll::None;
    const bool isHorizontal = IsHorizontal(m_look.roll);
    const int width = rolls && isHorizontal ? m_size.width() / pieces + 1 : m_size.width();
    const int height = rolls && !isHorizontal ? m_size.height() / pieces + 1 : m_size.height();
    const auto first = [](int from, int start, int side) {
        return start + (from - start) / side * side;
    };
    std::vector<QRect> places;
    for (int y = first(shown.y(), m_bounds.y(), height); y <= shown.bottom(); y += height) {
        for (int x = first(shown.x(), m_bounds.x(), width); x <= shown.right(); x += width)
            places.push_back(QRect(x, y, width, height) & m_bounds);
    }
    return places;
}

void TitlePainter::DrawPieces(const std::vector<QRect>& places)
{
    std::vector<Piece> pieces;
    for (const QRect& place : places) {
        const auto known = std::find_if(m_pieces.begin(), m_pieces.end(),
                                        [&](const Piece& piece) { return piece.place == place; });
        if (known != m_pieces.end())
            pieces.push_back(*known);
        else
            pieces.push_back({place, m_layout->Draw(place, m_size, m_format)});
    }
    m_pieces = std::move(pieces);
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/TitlePicture.h"

#include "NLECore/render/SoftShadow.h"

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

/// Share of what is left over that comes before.
double ShareBefore(int alignment)
{
    return alignment / 2.0;
}

bool IsVisible(std::uint32_t argb)
{
    return argb >> 24 != 0;
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
    double top = 0;
    for (const QString& paragraph : m_look.text.split(QLatin1Char('\n'))) {
        QTextLayout layout(paragraph, font);
        layout.setTextOption(OptionOf(m_look));
        const auto spaced = Spacing(paragraph, font, m_look.letterSpacing);
        const double last = spaced.isEmpty() ? 0 : m_look.letterSpacing * kLaidSize;
        layout.setFormats(spaced);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            line.setPosition(QPointF(0, top));
            top += line.height() * m_look.lineSpacing;
        }
        layout.endLayout();
        for (int i = 0; i < layout.lineCount(); ++i) {
            const QTextLine line = layout.lineAt(i);
            // Behind the last letter there is nothing to be apart from.
            Line laid = {line.naturalTextRect().adjusted(0, 0, -last, 0), {}, {}, {}};
            laid.letters.setFillRule(Qt::WindingFill);
            for (const QGlyphRun& run : line.glyphRuns())
                AddRun(run, laid);
            m_lines.push_back(std::move(laid));
        }
    }
}

void TitleLayout::AddRun(const QGlyphRun& run, Line& line)
{
    const QRawFont font = run.rawFont();
    const QVector<quint32> glyphs = run.glyphIndexes();
    const QVector<QPointF> places = run.positions();
    QVector<quint32> shapeless;
    QVector<QPointF> shapelessPlaces;
    for (int i = 0; i < glyphs.size(); ++i) {
        const QPainterPath shape = font.pathForGlyph(glyphs[i]);
        const QRectF around = font.boundingRect(glyphs[i]).translated(places[i]);
        if (!shape.isEmpty()) {
            line.letters.addPath(shape.translated(places[i]));
        } else if (!around.isEmpty()) {
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
        line.letters.translate(shift, 0);
        line.ink = line.ink.translated(shift, 0) | line.letters.boundingRect();
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
    QImage image(part.size(), format);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QTransform toPart = ToPixels(size) * QTransform::fromTranslate(-part.x(), -part.y());
    painter.setTransform(toPart);
    if (!m_box.isEmpty()) {
        const double radius = m_look.boxRadius * kLaidSize;
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromRgba(m_look.boxColor));
        painter.drawRoundedRect(m_box, radius, radius);
    }
    if (IsVisible(m_look.shadowColor)) {
        painter.resetTransform();
        DrawShadow(painter, part, size);
        painter.setTransform(toPart);
    }
    DrawLines(painter, toPart.inverted().mapRect(QRectF(image.rect())));
    return image;
}

void TitleLayout::DrawLines(QPainter& painter, const QRectF& part) const
{
    const double outline = m_look.outline * kLaidSize;
    const bool hasOutline = outline > 0 && IsVisible(m_look.outlineColor);
    const QPen pen(QColor::fromRgba(m_look.outlineColor), 2 * outline, Qt::SolidLine, Qt::RoundCap,
                   Qt::RoundJoin);
    const QColor color = QColor::fromRgba(m_look.color);
    const auto forEachLine = [&](const auto& draw) {
        for (const Line& line : m_lines) {
            if (line.ink.adjusted(-outline, -outline, outline, outline).intersects(part))
                draw(line);
        }
    };
    // No line's outline covers letters of the one before.
    if (hasOutline)
        forEachLine([&](const Line& line) { painter.strokePath(line.letters, pen); });
    painter.setPen(color);
    forEachLine([&](const Line& line) {
        painter.fillPath(line.letters, color);
        for (const QGlyphRun& run : line.pictures)
            painter.drawGlyphRun(QPointF(0, 0), run);
    });
}

void TitleLayout::DrawShadow(QPainter& painter, const QRect& part, const QSize& size) const
{
    const QTransform toPixels = ToPixels(size);
    const double deviation = m_look.shadowBlur * kLaidSize;
    const double deviationX = deviation * toPixels.m11();
    const double deviationY = deviation * toPixels.m22();
    const int marginX = int(std::ceil(deviationX * kShadowReach)) + 1;
    const int marginY = int(std::ceil(deviationY * kShadowReach)) + 1;
    const QRect around = part.adjusted(-marginX, -marginY, marginX, marginY);
    QImage shape(around.size(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter shapePainter(&shape);
    shapePainter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QTransform toShape =
        QTransform::fromTranslate(m_look.shadow.x * kLaidSize, m_look.shadow.y * kLaidSize) *
        toPixels * QTransform::fromTranslate(-around.x(), -around.y());
    shapePainter.setTransform(toShape);
    DrawLines(shapePainter, toShape.inverted().mapRect(QRectF(shape.rect())));
    shapePainter.end();
    painter.drawImage(-marginX, -marginY,
                      SoftShadow(shape, deviationX, deviationY, m_look.shadowColor));
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

QPoint TitlePainter::Move(const TitleMoment& moment, NLESize picture, const QSize& size)
{
    LayOut(moment.look, picture, size);
    return Moved(moment);
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

// The title is cut into pieces as large as the picture; a few of them show.
std::vector<QRect> TitlePainter::PlacesOf(const QRect& shown) const
{
    const auto first = [](int from, int start, int side) {
        return start + (from - start) / side * side;
    };
    std::vector<QRect> places;
    for (int y = first(shown.y(), m_bounds.y(), m_size.height()); y <= shown.bottom();
         y += m_size.height()) {
        for (int x = first(shown.x(), m_bounds.x(), m_size.width()); x <= shown.right();
             x += m_size.width())
            places.push_back(QRect(QPoint(x, y), m_size) & m_bounds);
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

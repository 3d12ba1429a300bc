// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/scene/Title.h"

#include <QGlyphRun>
#include <QHash>
#include <QImage>
#include <QPainterPath>
#include <QRawFont>
#include <QRect>
#include <QTransform>

#include <optional>
#include <vector>

class QPainter;

namespace nle {

/// A title that is laid out: its letters as shapes, to be drawn at any size. Lines break at the
/// same places whatever that size is. For one thread.
///
/// Fonts belong to the GUI application; without one the title is empty.
class TitleLayout
{
public:
    /// \a picture is the full size of the picture that the title is for.
    TitleLayout(const TitleLook& look, NLESize picture);

    /// The pixels with anything in them, of a picture that is drawn \a size large; they may lie
    /// outside of it.
    QRect Bounds(const QSize& size) const;
    /// Where its lines lie then, as high as the font is and without anything around them.
    QRectF Lines(const QSize& size) const { return ToPixels(size).mapRect(m_block); }
    /// What lies in the pixels \a part of a picture that is drawn \a size large.
    QImage Draw(const QRect& part, const QSize& size, QImage::Format format) const;

private:
    // All in units of the letters that were laid out, from the corner of the block of lines.
    struct Line
    {
        QRectF text;                       ///< as wide as the letters run, as high as the font
        std::vector<QPainterPath> letters; ///< a few words each, so that not all need be drawn
        std::vector<QGlyphRun> pictures;   ///< signs that have no shape, such as coloured ones
        QRectF ink;                        ///< of both, before outline and shadow
    };

    /// Shapes of the glyphs of each font that were asked for.
    using Shapes = QHash<QRawFont, QHash<quint32, QPainterPath>>;

    void LayOut(double width);
    static void AddRun(const QGlyphRun& run, Shapes& shapes, Line& line);
    void Align();
    QTransform ToPixels(const QSize& size) const;
    /// How far outline and shadow reach beyond the ink.
    QMarginsF Reach() const;
    /// Letters and their outlines, as far as they lie in \a part.
    void DrawLines(QPainter& painter, const QRectF& part) const;
    void DrawOutlines(QPainter& painter, const QRectF& part) const;
    void DrawBox(QPainter& painter, const QTransform& transform) const;
    QPoint ShadowShift(const QTransform& toPixels) const;
    /// Pixels that have to be drawn around a part because their shadows fall into it.
    QMargins ShadowMargins(const QTransform& toPixels) const;
    void DrawShadow(QPainter& painter, const QImage& lines, const QMargins& margins,
                    const QTransform& toPixels) const;

    const TitleLook m_look;
    const NLESize m_picture;
    std::vector<Line> m_lines;
    QRectF m_block; ///< of the lines
    QRectF m_box;   ///< empty without one
};

/// What shows of a title.
struct TitleShot
{
    QImage image;  ///< null: nothing
    QPoint corner; ///< of the image, in the title's picture
};

/// Draws the title of one clip and keeps what it drew last: one that stands is drawn once, one that
/// rolls a piece at a time, and moving and fading cost no drawing. For one thread.
class TitlePainter
{
public:
    /// The title in a picture that is drawn \a size large and has the full size \a picture, without
    /// its opacity. The image lies within the picture.
    TitleShot Draw(const TitleMoment& moment, NLESize picture, const QSize& size,
                   QImage::Format format);
    /// Where all of it lies then, also outside of the picture.
    QRect Place(const TitleMoment& moment, NLESize picture, const QSize& size);
    /// Where its lines lie then, as high as the font is; empty without any.
    QRectF Lines(const TitleMoment& moment, NLESize picture, const QSize& size);

private:
    /// A part of the title as it was drawn.
    struct Piece
    {
        QRect place;
        QImage image;
    };

    void LayOut(const TitleLook& look, NLESize picture, const QSize& size);
    /// How far the title has moved, in pixels.
    QPoint Moved(const TitleMoment& moment) const;
    std::vector<QRect> PlacesOf(const QRect& shown) const;
    void DrawPieces(const std::vector<QRect>& places);

    NLESize m_picture = {0, 0};
    TitleLook m_look;
    std::optional<TitleLayout> m_layout;
    QSize m_size;
    QImage::Format m_format = QImage::Format_Invalid;
    QRect m_bounds;
    std::vector<Piece> m_pieces;
};

} // namespace nle

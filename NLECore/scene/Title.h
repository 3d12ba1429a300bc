// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/scene/Layer.h"
#include "NLECore/scene/Parameters.h"

namespace nle {

/// Where the lines of a title begin or end, and the title in the picture.
enum class TitleAlignment : int
{
    Left = 0,
    Center = 1,
    Right = 2
};
enum class TitlePlace : int
{
    Top = 0,
    Middle = 1,
    Bottom = 2
};
/// Which way the lines of a paragraph run.
enum class TitleDirection : int
{
    Automatic = 0, ///< as its first letter does
    LeftToRight = 1,
    RightToLeft = 2
};
/// Which way a title goes through the picture, from outside to outside, in the time of its clip.
enum class TitleRoll : int
{
    None = 0,
    Up = 1,
    Down = 2,
    Left = 3,
    Right = 4
};

/// What a title looks like before it moves and fades. Lengths are shares, so that it looks the same
/// in pictures of any size. A colour without alpha switches off what it is for.
struct TitleLook
{
    QString text;    ///< lines end with line feeds
    QString family;  ///< as Qt finds it
    double size = 0; ///< of the letters' em, as a share of the picture's height
    bool bold = false;
    bool italic = false;
    double letterSpacing = 0; ///< added between letters, in sizes; not where they are joined
    double lineSpacing = 1;   ///< factor of the font's own
    double width = 1;         ///< of the longest line, as a share of the picture's width
    double margin = 0;        ///< shares of width and height that stay free at the sides
    TitleAlignment alignment = TitleAlignment::Center;
    TitlePlace place = TitlePlace::Middle;
    TitleDirection direction = TitleDirection::Automatic;
    TitleRoll roll = TitleRoll::None;
    std::uint32_t color = 0;
    double outline = 0; ///< beyond the letters, in sizes
    std::uint32_t outlineColor = 0;
    std::uint32_t shadowColor = 0;
    NLEPointF shadow = {0, 0}; ///< to the right and downwards, in sizes
    double shadowBlur = 0;     ///< standard deviation, in sizes
    std::uint32_t boxColor = 0;
    double boxPadding = 0; ///< around the lines, in sizes
    double boxRadius = 0;  ///< of the corners, in sizes
};
template <>
inline constexpr auto kFields<TitleLook> = std::tuple(
    Field{&TitleLook::text, nullptr, Shows::kYes}, Field{&TitleLook::family, nullptr, Shows::kYes},
    Field{&TitleLook::size, nullptr, Shows::kYes}, Field{&TitleLook::bold, nullptr, Shows::kYes},
    Field{&TitleLook::italic, nullptr, Shows::kYes},
    Field{&TitleLook::letterSpacing, nullptr, Shows::kYes},
    Field{&TitleLook::lineSpacing, nullptr, Shows::kYes},
    Field{&TitleLook::width, nullptr, Shows::kYes}, Field{&TitleLook::margin, nullptr, Shows::kYes},
    Field{&TitleLook::alignment, nullptr, Shows::kYes},
    Field{&TitleLook::place, nullptr, Shows::kYes},
    Field{&TitleLook::direction, nullptr, Shows::kYes},
    Field{&TitleLook::roll, nullptr, Shows::kYes}, Field{&TitleLook::color, nullptr, Shows::kYes},
    Field{&TitleLook::outline, nullptr, Shows::kYes},
    Field{&TitleLook::outlineColor, nullptr, Shows::kYes},
    Field{&TitleLook::shadowColor, nullptr, Shows::kYes},
    Field{&TitleLook::shadow, nullptr, Shows::kYes},
    Field{&TitleLook::shadowBlur, nullptr, Shows::kYes},
    Field{&TitleLook::boxColor, nullptr, Shows::kYes},
    Field{&TitleLook::boxPadding, nullptr, Shows::kYes},
    Field{&TitleLook::boxRadius, nullptr, Shows::kYes});
static_assert(kListsAllFields<TitleLook>);

/// A title at one frame.
struct TitleMoment
{
    TitleLook look;
    NLEPointF shift = {0, 0}; ///< to the right and downwards, shares of the picture's sides
    double progress = 0;      ///< how far a rolling title has gone, 0 to 1
    double opacity = 1;
};
template <>
inline constexpr auto
    kFields<TitleMoment> = std::tuple(Field{&TitleMoment::look, nullptr, Shows::kYes},
                                      Field{&TitleMoment::shift, nullptr, Shows::kYes},
                                      Field{&TitleMoment::progress, nullptr, Shows::kYes},
                                      Field{&TitleMoment::opacity, nullptr, Shows::kYes});
static_assert(kListsAllFields<TitleMoment>);

/// The parameters of a title.
const Declaration& TitleDeclaration();
/// Index of the title's text and of its font among them.
int TitleTextIndex();
int TitleFontIndex();

/// Frames of \a layer, which is a title, between which it moves and fades evenly.
std::vector<double> TurningPoints(const Layer& layer);

/// Whether \a layer, which is a title, is the same at all frames.
bool IsStill(const Layer& layer);

/// The title of \a layer, which is one, at a frame of its own, counted as its trim range is.
TitleMoment MomentOf(const Layer& layer, std::int64_t frame);

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
// Texts of titles, laid out and drawn.
#include "Fuzz.h"
#include "NLECore/render/TitlePicture.h"

#include <QImage>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr NLESize full = {320, 180};
    constexpr QSize drawn(160, 90);
    constexpr int longest = 400; // characters; longer texts take long and show nothing new
    fuzz::Input input(data, size);
    nle::TitleMoment moment;
    nle::TitleLook& look = moment.look;
    look.direction = nle::TitleDirection(input.Take<std::uint8_t>() % 3);
    look.alignment = nle::TitleAlignment(input.Take<std::uint8_t>() % 3);
    look.roll = nle::TitleRoll(input.Take<std::uint8_t>() % 5);
    look.size = (1 + input.Take<std::uint8_t>()) / 256.0;
    look.outline = input.Take<std::uint8_t>() / 512.0;
    look.shadowBlur = input.Take<std::uint8_t>() / 512.0;
    look.letterSpacing = input.Take<std::int8_t>() / 64.0;
    moment.progress = input.Take<std::uint8_t>() / 255.0;
    look.color = look.outlineColor = look.shadowColor = look.boxColor = 0x80ffffff;
    look.text = QString::fromUtf8(input.Rest()).left(longest);
    nle::TitlePainter painter;
    const nle::TitleShot shot =
        painter.Draw(moment, full, drawn, QImage::Format_ARGB32_Premultiplied);
    const QRect picture(QPoint(0, 0), drawn);
    const QRect place(shot.corner, shot.image.size());
    fuzz::Require(shot.image.isNull() || picture.contains(place), "a title lies in its picture");
    painter.Place(moment, full, drawn);
    painter.Lines(moment, full, drawn);
    return 0;
}

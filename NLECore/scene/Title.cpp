// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/scene/Title.h"

#include "NLECore/scene/FrameMath.h"

#include <algorithm>

namespace nle {

namespace {

constexpr double kLargest = 2;       ///< height of letters in heights of the picture
constexpr double kFarthest = 2;      ///< shift in sides of the picture
constexpr double kLongestFade = 600; ///< seconds
constexpr std::uint32_t kWhite = 0xFFFFFFFFu;
constexpr std::uint32_t kBlack = 0xFF000000u;
/// Nothing of it shows until its alpha is raised.
constexpr std::uint32_t kClearBlack = 0;

std::vector<ParameterRow> Rows()
{
    const auto share = [](const char* name, const char* title, double lowest, double highest,
                          double preset) {
        return NumberRow({name, title}, NLEUnit_Share, lowest, highest, preset);
    };
    const auto seconds = [](const char* name, const char* title) {
        return NumberRow({name, title}, NLEUnit_Seconds, 0, kLongestFade, 0).Constant();
    };
    return {
        TextRow({"text", QT_TRANSLATE_NOOP("NLECore", "Text")}, L""),
        TextRow({"font", QT_TRANSLATE_NOOP("NLECore", "Font")}, L""),
        share("size", QT_TRANSLATE_NOOP("NLECore", "Size"), 0.001, kLargest, 0.1),
        SwitchRow({"bold", QT_TRANSLATE_NOOP("NLECore", "Bold")}, false),
        SwitchRow({"italic", QT_TRANSLATE_NOOP("NLECore", "Italic")}, false),
        ColorRow({"color", QT_TRANSLATE_NOOP("NLECore", "Colour")}, kWhite),
        share("letter-spacing", QT_TRANSLATE_NOOP("NLECore", "Letter spacing"), -0.5, 5, 0),
        NumberRow({"line-spacing", QT_TRANSLATE_NOOP("NLECore", "Line spacing")}, NLEUnit_None, 0.3,
                  5, 1),
        ChoiceRow({"direction", QT_TRANSLATE_NOOP("NLECore", "Direction")},
                  {{"automatic", QT_TRANSLATE_NOOP("NLECore", "Automatic")},
                   {"left-to-right", QT_TRANSLATE_NOOP("NLECore", "Left to right")},
                   {"right-to-left", QT_TRANSLATE_NOOP("NLECore", "Right to left")}},
                  int(TitleDirection::Automatic)),
        ChoiceRow({"alignment", QT_TRANSLATE_NOOP("NLECore", "Alignment")},
                  {{"left", QT_TRANSLATE_NOOP("NLECore", "Left")},
                   {"center", QT_TRANSLATE_NOOP("NLECore", "Centre")},
                   {"right", QT_TRANSLATE_NOOP("NLECore", "Right")}},
                  int(TitleAlignment::Center)),
        ChoiceRow({"place", QT_TRANSLATE_NOOP("NLECore", "Place")},
                  {{"top", QT_TRANSLATE_NOOP("NLECore", "Top")},
                   {"middle", QT_TRANSLATE_NOOP("NLECore", "Middle")},
                   {"bottom", QT_TRANSLATE_NOOP("NLECore", "Bottom")}},
                  int(TitlePlace::Middle)),
        share("x", QT_TRANSLATE_NOOP("NLECore", "Shift to the right"), -kFarthest, kFarthest, 0),
        share("y", QT_TRANSLATE_NOOP("NLECore", "Shift downwards"), -kFarthest, kFarthest, 0),
        share("width", QT_TRANSLATE_NOOP("NLECore", "Longest line"), 0.01, 10, 0.9),
        share("margin", QT_TRANSLATE_NOOP("NLECore", "Margin"), 0, 0.49, 0.05),
        share("outline", QT_TRANSLATE_NOOP("NLECore", "Outline"), 0, 1, 0),
        ColorRow({"outline-color", QT_TRANSLATE_NOOP("NLECore", "Outline colour")}, kBlack),
        ColorRow({"shadow-color", QT_TRANSLATE_NOOP("NLECore", "Shadow colour")}, kClearBlack),
        share("shadow-x", QT_TRANSLATE_NOOP("NLECore", "Shadow to the right"), -2, 2, 0.05),
        share("shadow-y", QT_TRANSLATE_NOOP("NLECore", "Shadow downwards"), -2, 2, 0.05),
        share("shadow-blur", QT_TRANSLATE_NOOP("NLECore", "Shadow blur"), 0, 1, 0.04),
        ColorRow({"box-color", QT_TRANSLATE_NOOP("NLECore", "Box colour")}, kClearBlack),
        share("box-padding", QT_TRANSLATE_NOOP("NLECore", "Box padding"), 0, 2, 0.2),
        share("box-radius", QT_TRANSLATE_NOOP("NLECore", "Box corners"), 0, 2, 0),
        seconds("fade-in", QT_TRANSLATE_NOOP("NLECore", "Fade in")),
        seconds("fade-out", QT_TRANSLATE_NOOP("NLECore", "Fade out")),
        ChoiceRow({"roll", QT_TRANSLATE_NOOP("NLECore", "Roll")},
                  {{"none", QT_TRANSLATE_NOOP("NLECore", "None")},
                   {"up", QT_TRANSLATE_NOOP("NLECore", "Up")},
                   {"down", QT_TRANSLATE_NOOP("NLECore", "Down")},
                   {"left", QT_TRANSLATE_NOOP("NLECore", "To the left")},
                   {"right", QT_TRANSLATE_NOOP("NLECore", "To the right")}},
                  int(TitleRoll::None)),
    };
}

TitleLook LookOf(const ParametersAt& at, const QString& family)
{
    TitleLook look;
    look.text = at.Text("text");
    look.family = family;
    look.size = at.Number("size");
    look.bold = at.Switch("bold");
    look.italic = at.Switch("italic");
    look.letterSpacing = at.Number("letter-spacing");
    look.lineSpacing = at.Number("line-spacing");
    look.width = at.Number("width");
    look.margin = at.Number("margin");
    look.alignment = TitleAlignment(at.Whole("alignment"));
    look.place = TitlePlace(at.Whole("place"));
    look.direction = TitleDirection(at.Whole("direction"));
    look.roll = TitleRoll(at.Whole("roll"));
    look.color = at.Color("color");
    look.outline = at.Number("outline");
    look.outlineColor = at.Color("outline-color");
    look.shadowColor = at.Color("shadow-color");
    look.shadow = {at.Number("shadow-x"), at.Number("shadow-y")};
    look.shadowBlur = at.Number("shadow-blur");
    look.boxColor = at.Color("box-color");
    look.boxPadding = at.Number("box-padding");
    look.boxRadius = at.Number("box-radius");
    return look;
}

/// Linear, as fades of sound are.
double FadeAt(const ParametersAt& at, const Layer& layer, std::int64_t frame)
{
    const double rate = IsRate(layer.frameRate) ? ToDouble(layer.frameRate) : 1;
    const double in = at.Number("fade-in") * rate;
    const double out = at.Number("fade-out") * rate;
    const auto since = double(frame - layer.range.in);
    const auto left = double(layer.range.out + std::int64_t(1) - frame);
    const double coming = in > 0 ? std::clamp(since / in, 0.0, 1.0) : 1;
    const double going = out > 0 ? std::clamp(left / out, 0.0, 1.0) : 1;
    return coming * going;
}

} // namespace

const Declaration& TitleDeclaration()
{
    static const Declaration declaration = {{"title", QT_TRANSLATE_NOOP("NLECore", "Title")},
                                            Rows()};
    return declaration;
}

int TitleTextIndex()
{
    static const int index = TitleDeclaration().IndexOf(QStringLiteral("text"));
    return index;
}

int TitleFontIndex()
{
    static const int index = TitleDeclaration().IndexOf(QStringLiteral("font"));
    return index;
}

std::vector<double> TurningPoints(const Layer& layer)
{
    const ParameterValues& values = *layer.title;
    const ParametersAt at(values, layer.range.in);
    const double rate = IsRate(layer.frameRate) ? ToDouble(layer.frameRate) : 1;
    const double in = layer.range.in;
    const double end = double(layer.range.out) + 1;
    std::vector<double> frames;
    if (at.Number("fade-in") > 0)
        frames.insert(frames.end(), {in, in + at.Number("fade-in") * rate});
    if (at.Number("fade-out") > 0)
        frames.insert(frames.end(), {end - at.Number("fade-out") * rate, end});
    if (TitleRoll(at.Whole("roll")) != TitleRoll::None)
        frames.insert(frames.end(), {in, end});
    for (const char* name : {"x", "y"}) {
        for (const ParameterKey& key : values.Keys(values.Declared().IndexOf(QLatin1String(name))))
            frames.push_back(values.Axis().FrameOf(key.time));
    }
    return frames;
}

bool IsStill(const Layer& layer)
{
    const ParametersAt at(*layer.title, layer.range.in);
    const bool moves = layer.title->IsAnimated() || at.Number("fade-in") > 0 ||
                       at.Number("fade-out") > 0 || TitleRoll(at.Whole("roll")) != TitleRoll::None;
    return layer.frozenFrame || !moves;
}

TitleMoment MomentOf(const Layer& layer, std::int64_t frame)
{
    const std::int64_t shown = layer.frozenFrame.value_or(frame);
    const ParametersAt at(*layer.title, double(shown));
    TitleMoment moment;
    moment.look = LookOf(at, layer.family);
    moment.shift = {at.Number("x"), at.Number("y")};
    const auto length = double(NLERangeLength(layer.range));
    if (moment.look.roll != TitleRoll::None && length > 0)
        moment.progress = std::clamp(double(shown - layer.range.in) / length, 0.0, 1.0);
    moment.opacity = FadeAt(at, layer, shown);
    return moment;
}

} // namespace nle

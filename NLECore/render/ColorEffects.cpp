// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Com/WideText.h"
#include "NLECore/render/ColorEffects_p.h"

#include "NLECore/media/CubeTable.h"
#include "NLECore/render/ToneCurve_p.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

using Color = std::array<float, 3>;

/// Shares of red, green and blue in the light of a pixel, ITU-R BT.709.
constexpr Color kLuma = {0.2126F, 0.7152F, 0.0722F};
/// Display gamma by which steps of light become steps of code values.
constexpr double kGamma = 2.2;

QString Text(double value)
{
    return QString::number(value, 'g', 9);
}

QString Service(const char* name)
{
    return QString::fromLatin1(name);
}

/// An effect on each component of the colour alone.
template <typename Function>
RowEffect OnComponents(Function function)
{
    return [function](const EffectRow& row) {
        for (float* plane : row.colors) {
            for (int x = 0; x < row.width; ++x)
                plane[x] = function(plane[x]);
        }
    };
}

/// An effect on the colours as a whole.
template <typename Function>
RowEffect OnColors(Function function)
{
    return [function](const EffectRow& row) {
        float* red = row.colors[0];
        float* green = row.colors[1];
        float* blue = row.colors[2];
        for (int x = 0; x < row.width; ++x)
            function(red[x], green[x], blue[x]);
    };
}

float Luma(float red, float green, float blue)
{
    return kLuma[0] * red + kLuma[1] * green + kLuma[2] * blue;
}

// ---- Exposure

RowEffect Exposure(const ParametersAt& values, const EffectFrame& /*frame*/)
{
    const auto black = float(values.Number("black"));
    const float scale = 1 / (float(std::exp2(-values.Number("exposure") / kGamma)) - black);
    if (black == 0 && scale == 1)
        return {};
    return OnComponents([=](float value) { return (value - black) * scale; });
}

MltTexts MltExposure(const ParametersAt& values, const QPointF& /*scale*/)
{
    return {{QStringLiteral("mlt_service"), Service("avfilter.exposure")},
            {QStringLiteral("av.exposure"), Text(values.Number("exposure") / kGamma)},
            {QStringLiteral("av.black"), Text(values.Number("black"))}};
}

// ---- Contrast

RowEffect Contrast(const ParametersAt& values, const EffectFrame& /*frame*/)
{
    const auto contrast = float(values.Number("contrast"));
    const auto brightness = float(values.Number("brightness"));
    const auto pivot = float(values.Number("pivot"));
    if (contrast == 1 && brightness == 0)
        return {};
    const float offset = pivot - pivot * contrast + brightness;
    return OnComponents([=](float value) { return value * contrast + offset; });
}

MltTexts MltContrast(const ParametersAt& values, const QPointF& /*scale*/)
{
    const QString pivot = Text(values.Number("pivot"));
    const QString formula =
        QStringLiteral("clip(((val/maxval-%1)*%2+%1+%3)*maxval,0,maxval)")
            .arg(pivot, Text(values.Number("contrast")), Text(values.Number("brightness")));
    return {{QStringLiteral("mlt_service"), Service("avfilter.lutrgb")},
            {QStringLiteral("av.r"), formula},
            {QStringLiteral("av.g"), formula},
            {QStringLiteral("av.b"), formula}};
}

// ---- Saturation

RowEffect Saturation(const ParametersAt& values, const EffectFrame& /*frame*/)
{
    const auto saturation = float(values.Number("saturation"));
    if (saturation == 1)
        return {};
    return OnColors([=](float& red, float& green, float& blue) {
        const float grey = Luma(red, green, blue) * (1 - saturation);
        red = red * saturation + grey;
        green = green * saturation + grey;
        blue = blue * saturation + grey;
    });
}

MltTexts MltSaturation(const ParametersAt& values, const QPointF& /*scale*/)
{
    return {{QStringLiteral("mlt_service"), Service("avfilter.eq")},
            {QStringLiteral("av.saturation"), Text(values.Number("saturation"))}};
}

// ---- White balance

/// The colour of the light of a black body, by the usual fit to its table.
Color BlackBody(double kelvin)
{
    constexpr double daylight = 66; // hundreds of kelvins
    constexpr double darkest = 19;
    const double hundreds = kelvin / 100;
    const auto share = [](double value) { return float(std::clamp(value, 0.0, 1.0)); };
    Color color = {1, 1, 1};
    if (hundreds > daylight) {
        color[0] = share(1.292936186062745 * std::pow(hundreds - 60, -0.1332047592));
        color[1] = share(1.129890860895294 * std::pow(hundreds - 60, -0.0755148492));
    } else {
        color[1] = share(0.390081578769020 * std::log(hundreds) - 0.631841443788627);
        color[2] = hundreds > darkest
                       ? share(0.543206789110196 * std::log(hundreds - 10) - 1.196254089140000)
                       : 0;
    }
    return color;
}

/// What the components are multiplied with. White keeps its light.
Color BalanceGains(const ParametersAt& values)
{
    constexpr double neutral = 6500;
    constexpr double tintSteps = 4; // the part of a doubling that all of the tint is
    const Color wanted = BlackBody(values.Number("temperature"));
    const Color white = BlackBody(neutral);
    Color gains;
    for (std::size_t i = 0; i < gains.size(); ++i)
        gains[i] = wanted[i] / white[i];
    gains[1] *= float(std::exp2(-values.Number("tint") / tintSteps));
    const float light = Luma(gains[0], gains[1], gains[2]);
    for (float& gain : gains)
        gain /= light;
    return gains;
}

RowEffect WhiteBalance(const ParametersAt& values, const EffectFrame& /*frame*/)
{
    const Color gains = BalanceGains(values);
    if (gains == Color{1, 1, 1})
        return {};
    return [gains](const EffectRow& row) {
        for (std::size_t i = 0; i < gains.size(); ++i) {
            const float gain = gains[i];
            float* plane = row.colors[i];
            for (int x = 0; x < row.width; ++x)
                plane[x] *= gain;
        }
    };
}

MltTexts MltWhiteBalance(const ParametersAt& values, const QPointF& /*scale*/)
{
    const Color gains = BalanceGains(values);
    return {{QStringLiteral("mlt_service"), Service("avfilter.colorchannelmixer")},
            {QStringLiteral("av.rr"), Text(double(gains[0]))},
            {QStringLiteral("av.gg"), Text(double(gains[1]))},
            {QStringLiteral("av.bb"), Text(double(gains[2]))}};
}

// ---- Curves

constexpr std::array<const char*, 3> kCurveNames = {"red", "green", "blue"};

bool IsCurve(const std::wstring& text)
{
    return ToneCurve::Parse(FromWide(text)).has_value();
}

RowEffect Curves(const ParametersAt& values, const EffectFrame& /*frame*/)
{
    const auto curveOf = [&values](const char* name) {
        return ToneCurve::Parse(values.Text(name)).value_or(ToneCurve());
    };
    const ToneCurve master = curveOf("master");
    std::array<ToneCurve, kCurveNames.size()> curves;
    bool isPlain = master.IsPlain();
    for (std::size_t i = 0; i < curves.size(); ++i) {
        curves[i] = curveOf(kCurveNames[i]);
        isPlain = isPlain && curves[i].IsPlain();
        curves[i].Join(master);
    }
    if (isPlain)
        return {};
    return [curves](const EffectRow& row) {
        for (std::size_t i = 0; i < curves.size(); ++i)
            curves[i].Apply(row.colors[i], row.width);
    };
}

MltTexts MltCurves(const ParametersAt& values, const QPointF& /*scale*/)
{
    MltTexts texts = {{QStringLiteral("mlt_service"), Service("avfilter.curves")}};
    for (const char* name : {"master", "red", "green", "blue"}) {
        const QString curve = values.Text(name);
        if (!curve.isEmpty())
            texts.emplace_back(QLatin1String("av.") + QLatin1String(name), curve);
    }
    return texts.size() > 1 ? texts : MltTexts();
}

// ---- Three-dimensional tables

bool IsCubeFile(const std::wstring& path)
{
    return CubeTable::Open(FromWide(path)) != nullptr;
}

RowEffect Lookup(const ParametersAt& values, const EffectFrame& /*frame*/)
{
    const auto amount = float(values.Number("amount"));
    const QString path = values.Text("file");
    const std::shared_ptr<const CubeTable> table =
        amount == 0 || path.isEmpty() ? nullptr : CubeTable::Open(path);
    if (!table)
        return {};
    return OnColors([=](float& red, float& green, float& blue) {
        const CubeTable::Color color = table->At(red, green, blue);
        red += (color[0] - red) * amount;
        green += (color[1] - green) * amount;
        blue += (color[2] - blue) * amount;
    });
}

MltTexts MltLookup(const ParametersAt& values, const QPointF& /*scale*/)
{
    const QString path = values.Text("file");
    if (path.isEmpty() || values.Number("amount") != 1)
        return {};
    return {{QStringLiteral("mlt_service"), Service("avfilter.lut3d")},
            {QStringLiteral("av.file"), path}};
}

// ---- Chroma key

/// Colour differences of ITU-R BT.709, as shares of the range that video has for them.
struct Chroma
{
    static constexpr float kRange = 224.0F / 255.0F;
    /// What a difference of one is of blue and of red.
    static constexpr float kBlueSteps = 1.8556F / kRange;
    static constexpr float kRedSteps = 1.5748F / kRange;

    float u, v;

    static Chroma Of(float red, float green, float blue)
    {
        const float luma = Luma(red, green, blue);
        return {(blue - luma) / kBlueSteps, (red - luma) / kRedSteps};
    }
    float Length() const { return std::sqrt(u * u + v * v); }
};

Chroma KeyChroma(const ParametersAt& values)
{
    constexpr float most = 255;
    const QRgb key = values.Color("color");
    return Chroma::Of(float(qRed(key)) / most, float(qGreen(key)) / most, float(qBlue(key)) / most);
}

RowEffect ChromaKey(const ParametersAt& values, const EffectFrame& /*frame*/)
{
    constexpr float diagonal = 1.41421356F;
    constexpr float hardest = 1e-4F;
    const Chroma key = KeyChroma(values);
    const auto tolerance = float(values.Number("tolerance"));
    const float softness = std::max(float(values.Number("softness")), hardest);
    const auto spill = float(values.Number("spill"));
    const float length = std::max(key.Length(), hardest);
    const Chroma direction = {key.u / length, key.v / length};
    return [=](const EffectRow& row) {
        float* red = row.colors[0];
        float* green = row.colors[1];
        float* blue = row.colors[2];
        float* alpha = row.alpha;
        for (int x = 0; x < row.width; ++x) {
            const Chroma own = Chroma::Of(red[x], green[x], blue[x]);
            const Chroma off = {own.u - key.u, own.v - key.v};
            const float covers = (off.Length() / diagonal - tolerance) / softness;
            alpha[x] *= std::min(std::max(covers, 0.0F), 1.0F);
            // What of the colour is that of the key goes, its light stays.
            const float share = std::max(own.u * direction.u + own.v * direction.v, 0.0F) * spill;
            const float lessRed = share * direction.v * Chroma::kRedSteps;
            const float lessBlue = share * direction.u * Chroma::kBlueSteps;
            red[x] -= lessRed;
            blue[x] -= lessBlue;
            green[x] += (kLuma[0] * lessRed + kLuma[2] * lessBlue) / kLuma[1];
        }
    };
}

MltTexts MltChromaKey(const ParametersAt& values, const QPointF& /*scale*/)
{
    // Its edge is hard, where half of the soft one shows; it counts in 200ths of a component.
    constexpr double steps = 255.0 / 200.0;
    const double middle = values.Number("tolerance") + values.Number("softness") / 2;
    const QRgb key = values.Color("color");
    return {{QStringLiteral("mlt_service"), Service("chroma")},
            {QStringLiteral("key"),
             QStringLiteral("0x%1ff").arg(key & 0xFFFFFF, 6, 16, QLatin1Char('0'))},
            {QStringLiteral("variance"), Text(std::min(middle * steps, 1.0))}};
}

// ---- Crop

/// How much of each place from 0 to \a length shows between two edges, the soft part inside.
std::vector<float> EdgeShares(int length, double low, double high, double softness)
{
    std::vector<float> shares(std::size_t(std::max(length, 0)));
    const double soft = std::max(softness, 1.0);
    for (int i = 0; i < length; ++i) {
        // Without softness an edge between two pixels shows a part of the pixel.
        const double middle = i + 0.5;
        const double inside = std::min(middle - low * length, (1 - high) * length - middle);
        const double offset = softness < 1 ? 0.5 : 0;
        shares[std::size_t(i)] = float(std::clamp(inside / soft + offset, 0.0, 1.0));
    }
    return shares;
}

RowEffect Crop(const ParametersAt& values, const EffectFrame& frame)
{
    const double left = values.Number("left");
    const double right = values.Number("right");
    const double top = values.Number("top");
    const double bottom = values.Number("bottom");
    if (left == 0 && right == 0 && top == 0 && bottom == 0)
        return {};
    const QRect inner = frame.inner;
    const double soft = values.Number("softness");
    // An edge that is not cropped stays sharp: it lies far outside.
    const auto edge = [](double share) { return share > 0 ? share : -1.0; };
    const auto across = EdgeShares(inner.width(), edge(left), edge(right), soft * frame.scale.x());
    const auto down = EdgeShares(inner.height(), edge(top), edge(bottom), soft * frame.scale.y());
    return [=](const EffectRow& row) {
        const int y = row.y - inner.top();
        const float share = y >= 0 && y < inner.height() ? down[std::size_t(y)] : 0;
        for (int x = 0; x < row.width; ++x) {
            const int place = x - inner.left();
            const bool isInside = place >= 0 && place < inner.width();
            row.alpha[x] *= isInside ? across[std::size_t(place)] * share : 0.0F;
        }
    };
}

MltTexts MltCrop(const ParametersAt& values, const QPointF& /*scale*/)
{
    const auto percent = [](double share) { return Text(share * 100) + QLatin1Char('%'); };
    const double left = values.Number("left");
    const double top = values.Number("top");
    const QStringList rect = {percent(left), percent(top),
                              percent(std::max(0.0, 1 - left - values.Number("right"))),
                              percent(std::max(0.0, 1 - top - values.Number("bottom")))};
    return {{QStringLiteral("mlt_service"), Service("qtcrop")},
            {QStringLiteral("rect"), rect.join(QLatin1Char(' '))},
            {QStringLiteral("color"), QStringLiteral("#00000000")}};
}

// ---- Vignette

/// Cosine to the fourth power of an angle from 0 to a right one, given by its square.
float FourthCosine(float square)
{
    // The series of the cosine, which is as exact as a float here.
    const float cosine =
        1 + square * (-1.0F / 2 +
                      square * (1.0F / 24 +
                                square * (-1.0F / 720 +
                                          square * (1.0F / 40320 + square * (-1.0F / 3628800)))));
    return cosine * cosine * cosine * cosine;
}

constexpr double kRightAngle = 1.57079632679489662;

RowEffect Vignette(const ParametersAt& values, const EffectFrame& frame)
{
    const double amount = values.Number("amount");
    if (amount == 0)
        return {};
    const QRectF inner = frame.inner;
    const float unit = float(2 / std::hypot(inner.width(), inner.height()));
    const float centerX = float(inner.left() + values.Number("x") * inner.width());
    const float centerY = float(inner.top() + values.Number("y") * inner.height());
    const auto angle = float(amount * kRightAngle);
    return [=](const EffectRow& row) {
        float* red = row.colors[0];
        float* green = row.colors[1];
        float* blue = row.colors[2];
        const float down = (float(row.y) - centerY) * unit;
        for (int x = 0; x < row.width; ++x) {
            const float across = (float(x) - centerX) * unit;
            const float square = across * across + down * down;
            const float inside = FourthCosine(square * angle * angle);
            const float light = square > 1 ? 0.0F : inside;
            red[x] *= light;
            green[x] *= light;
            blue[x] *= light;
        }
    };
}

MltTexts MltVignette(const ParametersAt& values, const QPointF& /*scale*/)
{
    return {{QStringLiteral("mlt_service"), Service("avfilter.vignette")},
            {QStringLiteral("av.angle"), Text(values.Number("amount") * kRightAngle)},
            {QStringLiteral("av.x0"), Text(values.Number("x")) + QLatin1String("*w")},
            {QStringLiteral("av.y0"), Text(values.Number("y")) + QLatin1String("*h")}};
}

// ---- Black and white

constexpr std::array<const char*, 3> kColorNames = {"red", "green", "blue"};

RowEffect BlackAndWhite(const ParametersAt& values, const EffectFrame& /*frame*/)
{
    const auto amount = float(values.Number("amount"));
    if (amount == 0)
        return {};
    Color weights;
    for (std::size_t i = 0; i < weights.size(); ++i)
        weights[i] = float(values.Number(kColorNames[i]));
    return OnColors([=](float& red, float& green, float& blue) {
        const float grey = (weights[0] * red + weights[1] * green + weights[2] * blue) * amount;
        red = red * (1 - amount) + grey;
        green = green * (1 - amount) + grey;
        blue = blue * (1 - amount) + grey;
    });
}

MltTexts MltBlackAndWhite(const ParametersAt& values, const QPointF& /*scale*/)
{
    const double amount = values.Number("amount");
    MltTexts texts = {{QStringLiteral("mlt_service"), Service("avfilter.colorchannelmixer")}};
    for (const char* to : kColorNames) {
        for (const char* from : kColorNames) {
            const double own = to == from ? 1 - amount : 0;
            texts.emplace_back(QLatin1String("av.") + QLatin1Char(*to) + QLatin1Char(*from),
                               Text(own + amount * values.Number(from)));
        }
    }
    return texts;
}

} // namespace

EffectKind ExposureEffect()
{
    return {{{"exposure", QT_TRANSLATE_NOOP("NLECore", "Exposure")},
             {NumberRow({"exposure", QT_TRANSLATE_NOOP("NLECore", "Exposure")}, NLEUnit_Stops, -5,
                        5, 0),
              NumberRow({"black", QT_TRANSLATE_NOOP("NLECore", "Black level")}, NLEUnit_Share, -0.1,
                        0.1, 0)}},
            false,
            Exposure,
            nullptr,
            MltExposure};
}

EffectKind ContrastEffect()
{
    return {
        {{"contrast", QT_TRANSLATE_NOOP("NLECore", "Contrast")},
         {NumberRow({"contrast", QT_TRANSLATE_NOOP("NLECore", "Contrast")}, NLEUnit_Share, 0, 4, 1),
          NumberRow({"brightness", QT_TRANSLATE_NOOP("NLECore", "Brightness")}, NLEUnit_Share, -1,
                    1, 0),
          NumberRow({"pivot", QT_TRANSLATE_NOOP("NLECore", "Pivot")}, NLEUnit_Share, 0, 1, 0.5)}},
        false,
        Contrast,
        nullptr,
        MltContrast};
}

EffectKind SaturationEffect()
{
    return {{{"saturation", QT_TRANSLATE_NOOP("NLECore", "Saturation")},
             {NumberRow({"saturation", QT_TRANSLATE_NOOP("NLECore", "Saturation")}, NLEUnit_Share,
                        0, 3, 1)}},
            false,
            Saturation,
            nullptr,
            MltSaturation};
}

EffectKind WhiteBalanceEffect()
{
    return {{{"white-balance", QT_TRANSLATE_NOOP("NLECore", "White balance")},
             {NumberRow({"temperature", QT_TRANSLATE_NOOP("NLECore", "Temperature")},
                        NLEUnit_Kelvin, 2000, 12000, 6500),
              NumberRow({"tint", QT_TRANSLATE_NOOP("NLECore", "Tint")}, NLEUnit_Share, -1, 1, 0)}},
            false,
            WhiteBalance,
            nullptr,
            MltWhiteBalance};
}

EffectKind CurvesEffect()
{
    const auto row = [](NameRow names) {
        ParameterRow curve = TextRow(names, {});
        curve.accepts = IsCurve;
        return curve;
    };
    return {{{"curves", QT_TRANSLATE_NOOP("NLECore", "Curves")},
             {row({"master", QT_TRANSLATE_NOOP("NLECore", "Master")}),
              row({"red", QT_TRANSLATE_NOOP("NLECore", "Red")}),
              row({"green", QT_TRANSLATE_NOOP("NLECore", "Green")}),
              row({"blue", QT_TRANSLATE_NOOP("NLECore", "Blue")})}},
            false,
            Curves,
            nullptr,
            MltCurves};
}

EffectKind LookupEffect()
{
    return {
        {{"lut", QT_TRANSLATE_NOOP("NLECore", "Lookup table")},
         {FileRow({"file", QT_TRANSLATE_NOOP("NLECore", "File")}, IsCubeFile),
          NumberRow({"amount", QT_TRANSLATE_NOOP("NLECore", "Amount")}, NLEUnit_Share, 0, 1, 1)}},
        false,
        Lookup,
        nullptr,
        MltLookup};
}

EffectKind ChromaKeyEffect()
{
    constexpr std::uint32_t green = 0xFF00FF00;
    return {{{"chroma-key", QT_TRANSLATE_NOOP("NLECore", "Chroma key")},
             {ColorRow({"color", QT_TRANSLATE_NOOP("NLECore", "Colour")}, green),
              NumberRow({"tolerance", QT_TRANSLATE_NOOP("NLECore", "Tolerance")}, NLEUnit_Share,
                        0.01, 1, 0.15),
              NumberRow({"softness", QT_TRANSLATE_NOOP("NLECore", "Softness")}, NLEUnit_Share, 0, 1,
                        0.05),
              NumberRow({"spill", QT_TRANSLATE_NOOP("NLECore", "Spill removal")}, NLEUnit_Share, 0,
                        1, 0)}},
            true,
            ChromaKey,
            nullptr,
            MltChromaKey};
}

EffectKind CropEffect()
{
    return {{{"crop", QT_TRANSLATE_NOOP("NLECore", "Crop")},
             {NumberRow({"left", QT_TRANSLATE_NOOP("NLECore", "Left")}, NLEUnit_Share, 0, 1, 0),
              NumberRow({"top", QT_TRANSLATE_NOOP("NLECore", "Top")}, NLEUnit_Share, 0, 1, 0),
              NumberRow({"right", QT_TRANSLATE_NOOP("NLECore", "Right")}, NLEUnit_Share, 0, 1, 0),
              NumberRow({"bottom", QT_TRANSLATE_NOOP("NLECore", "Bottom")}, NLEUnit_Share, 0, 1, 0),
              NumberRow({"softness", QT_TRANSLATE_NOOP("NLECore", "Softness")}, NLEUnit_Pixels, 0,
                        500, 0)}},
            true,
            Crop,
            nullptr,
            MltCrop};
}

EffectKind VignetteEffect()
{
    return {
        {{"vignette", QT_TRANSLATE_NOOP("NLECore", "Vignette")},
         {NumberRow({"amount", QT_TRANSLATE_NOOP("NLECore", "Amount")}, NLEUnit_Share, 0, 1, 0.4),
          NumberRow({"x", QT_TRANSLATE_NOOP("NLECore", "Centre across")}, NLEUnit_Share, 0, 1, 0.5),
          NumberRow({"y", QT_TRANSLATE_NOOP("NLECore", "Centre down")}, NLEUnit_Share, 0, 1, 0.5)}},
        false,
        Vignette,
        nullptr,
        MltVignette};
}

EffectKind BlackAndWhiteEffect()
{
    return {
        {{"black-and-white", QT_TRANSLATE_NOOP("NLECore", "Black and white")},
         {NumberRow({"amount", QT_TRANSLATE_NOOP("NLECore", "Amount")}, NLEUnit_Share, 0, 1, 1),
          NumberRow({"red", QT_TRANSLATE_NOOP("NLECore", "Red")}, NLEUnit_Share, -1, 2, 0.2126),
          NumberRow({"green", QT_TRANSLATE_NOOP("NLECore", "Green")}, NLEUnit_Share, -1, 2, 0.7152),
          NumberRow({"blue", QT_TRANSLATE_NOOP("NLECore", "Blue")}, NLEUnit_Share, -1, 2, 0.0722)}},
        false,
        BlackAndWhite,
        nullptr,
        MltBlackAndWhite};
}

} // namespace nle

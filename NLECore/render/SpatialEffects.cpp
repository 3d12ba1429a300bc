// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/SpatialEffects_p.h"

#include "NLECore/render/SoftPicture_p.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

constexpr int kAlpha = 3;

QString Text(double value)
{
    return QString::number(value, 'g', 9);
}

QString Service(const char* name)
{
    return QString::fromLatin1(name);
}

// ---- Blur

void Blur(const ParametersAt& values, EffectFrame& frame, EffectPicture& picture)
{
    const double size = values.Number("size");
    const int last = frame.hasAlpha ? kAlpha : kAlpha - 1;
    EffectPicture soft =
        Softened(picture, 0, last, size * frame.scale.x(), size * frame.scale.y(), frame.bands);
    if (!frame.hasAlpha)
        CopyPlanes(picture, soft, kAlpha, kAlpha, frame.bands);
    picture = std::move(soft);
}

MltTexts MltBlur(const ParametersAt& values, const QPointF& scale)
{
    return {{QStringLiteral("mlt_service"), Service("avfilter.gblur")},
            {QStringLiteral("av.sigma"), Text(values.Number("size") * scale.x())},
            {QStringLiteral("av.sigmaV"), Text(values.Number("size") * scale.y())},
            {QStringLiteral("av.steps"), QStringLiteral("3")}};
}

// ---- Sharpen

void Sharpen(const ParametersAt& values, EffectFrame& frame, EffectPicture& picture)
{
    const auto amount = float(values.Number("amount"));
    if (amount == 0)
        return;
    const double size = values.Number("size");
    const EffectPicture soft = Softened(picture, 0, kAlpha - 1, size * frame.scale.x(),
                                        size * frame.scale.y(), frame.bands);
    ForBands(picture.Height(), frame.bands, [&](int from, int to) {
        const int count = (to - from) * picture.Width();
        for (int plane = 0; plane < kAlpha; ++plane) {
            float* own = picture.Row(plane, from);
            const float* other = soft.Row(plane, from);
            for (int i = 0; i < count; ++i)
                own[i] += (own[i] - other[i]) * amount;
        }
    });
}

MltTexts MltSharpen(const ParametersAt& values, const QPointF& scale)
{
    // Its matrix of weights is as wide as a Gaussian of a quarter of its side.
    constexpr int narrowest = 3;
    constexpr int widest = 23;
    const int side = std::clamp(2 * int(std::lround(values.Number("size") * scale.x() * 2)) - 1,
                                narrowest, widest);
    return {{QStringLiteral("mlt_service"), Service("avfilter.unsharp")},
            {QStringLiteral("av.lx"), QString::number(side)},
            {QStringLiteral("av.ly"), QString::number(side)},
            {QStringLiteral("av.la"), Text(std::min(values.Number("amount"), 5.0))},
            {QStringLiteral("av.ca"), QStringLiteral("0")}};
}

// ---- Mirror

void Mirror(const ParametersAt& values, EffectFrame& frame, EffectPicture& picture)
{
    if (values.Switch("horizontal")) {
        ForBands(picture.Height(), frame.bands, [&](int from, int to) {
            for (int plane = 0; plane < EffectPicture::kPlanes; ++plane) {
                for (int y = from; y < to; ++y)
                    std::reverse(picture.Row(plane, y), picture.Row(plane, y) + picture.Width());
            }
        });
        frame.inner.moveLeft(picture.Width() - 1 - frame.inner.right());
    }
    if (values.Switch("vertical")) {
        ForBands(picture.Height() / 2, frame.bands, [&](int from, int to) {
            for (int plane = 0; plane < EffectPicture::kPlanes; ++plane) {
                for (int y = from; y < to; ++y)
                    std::swap_ranges(picture.Row(plane, y), picture.Row(plane, y) + picture.Width(),
                                     picture.Row(plane, picture.Height() - 1 - y));
            }
        });
        frame.inner.moveTop(picture.Height() - 1 - frame.inner.bottom());
    }
}

MltTexts MltMirror(const ParametersAt& values, const QPointF& /*scale*/)
{
    const bool across = values.Switch("horizontal");
    if (across && values.Switch("vertical"))
        return {{QStringLiteral("mlt_service"), Service("avfilter.rotate")},
                {QStringLiteral("av.angle"), QStringLiteral("PI")}};
    if (!across && !values.Switch("vertical"))
        return {};
    return {{QStringLiteral("mlt_service"), Service(across ? "avfilter.hflip" : "avfilter.vflip")}};
}

// ---- Noise reduction

/// A mean of the pixels beside, of which those count that are nearly alike. Along rows first and
/// then along columns, as Pham and van Vliet do ("Separable bilateral filtering for fast video
/// preprocessing", 2005).
class Denoiser
{
public:
    Denoiser(double strength, int step)
        : m_sharpness(float(1 / (strength * strength))), m_step(step)
    {
    }

    void Across(const EffectPicture& from, EffectPicture& to, int y)
    {
        const int reach = kReach * m_step;
        const int width = from.Width() + 2 * reach;
        m_wide.resize(std::size_t(kAlpha) * std::size_t(width));
        Around around;
        for (int plane = 0; plane < kAlpha; ++plane) {
            float* wide = m_wide.data() + std::ptrdiff_t(plane) * width;
            WidenRow(from.Row(plane, y), from.Width(), reach, wide);
            for (int side = 0; side < kSides; ++side)
                around[std::size_t(side)][std::size_t(plane)] =
                    wide + std::ptrdiff_t(side) * m_step;
        }
        Row(around, to, y);
    }
    void Down(const EffectPicture& from, EffectPicture& to, int y) const
    {
        Around around;
        for (int side = 0; side < kSides; ++side) {
            const int line = std::clamp(y + (side - kReach) * m_step, 0, from.Height() - 1);
            for (int plane = 0; plane < kAlpha; ++plane)
                around[std::size_t(side)][std::size_t(plane)] = from.Row(plane, line);
        }
        Row(around, to, y);
    }

private:
    static constexpr int kReach = 2; ///< steps to each side
    static constexpr int kSides = 2 * kReach + 1;
    static constexpr int kBlock = 64; ///< pixels that are done at a time
    using Values = std::array<float, kBlock>;
    using Colors = std::array<const float*, kAlpha>;
    using Around = std::array<Colors, kSides>;

    void Row(const Around& around, EffectPicture& to, int y) const
    {
        for (int first = 0; first < to.Width(); first += kBlock) {
            const int count = std::min(kBlock, to.Width() - first);
            std::array<Values, kAlpha> own = {};
            std::array<Values, kAlpha> sums = {};
            Values weights = {};
            Take(around[kReach], first, count, own);
            for (const Colors& colors : around) {
                // Copies, so that nothing that is read can be what is written.
                std::array<Values, kAlpha> beside = {};
                Take(colors, first, count, beside);
                Add(beside, own, sums, weights);
            }
            for (int plane = 0; plane < kAlpha; ++plane) {
                float* row = to.Row(plane, y) + first;
                const Values& sum = sums[std::size_t(plane)];
                for (int x = 0; x < count; ++x)
                    row[x] = sum[std::size_t(x)] / weights[std::size_t(x)];
            }
        }
    }
    static void Take(const Colors& colors, int first, int count, std::array<Values, kAlpha>& values)
    {
        for (std::size_t plane = 0; plane < values.size(); ++plane)
            std::copy_n(colors[plane] + first, count, values[plane].begin());
    }
    void Add(const std::array<Values, kAlpha>& beside, const std::array<Values, kAlpha>& own,
             std::array<Values, kAlpha>& sums, Values& weights) const
    {
        for (std::size_t x = 0; x < kBlock; ++x) {
            const float red = beside[0][x] - own[0][x];
            const float green = beside[1][x] - own[1][x];
            const float blue = beside[2][x] - own[2][x];
            const float off = (red * red + green * green + blue * blue) * m_sharpness;
            const float like = std::max(1 - off, 0.0F);
            const float weight = like * like;
            weights[x] += weight;
            sums[0][x] += beside[0][x] * weight;
            sums[1][x] += beside[1][x] * weight;
            sums[2][x] += beside[2][x] * weight;
        }
    }

    const float m_sharpness;
    const int m_step;
    std::vector<float> m_wide;
};

/// The difference of colours that strength 1 takes for noise.
constexpr double kMostNoise = 0.5;

void ReduceNoise(const ParametersAt& values, EffectFrame& frame, EffectPicture& picture)
{
    constexpr int farthest = 8;
    const double strength = values.Number("strength") * kMostNoise;
    if (strength == 0)
        return;
    const int step =
        std::clamp(int(std::lround(frame.Drawn(values.Number("size")) / 2)), 1, farthest);
    EffectPicture across(picture.Size());
    ForBands(picture.Height(), frame.bands, [&](int first, int end) {
        Denoiser denoiser(strength, step);
        for (int y = first; y < end; ++y)
            denoiser.Across(picture, across, y);
    });
    ForBands(picture.Height(), frame.bands, [&](int first, int end) {
        const Denoiser denoiser(strength, step);
        for (int y = first; y < end; ++y)
            denoiser.Down(across, picture, y);
    });
}

MltTexts MltReduceNoise(const ParametersAt& values, const QPointF& scale)
{
    const double strength = values.Number("strength") * kMostNoise;
    return {{QStringLiteral("mlt_service"), Service("avfilter.bilateral")},
            {QStringLiteral("av.sigmaS"), Text(std::max(values.Number("size") * scale.x(), 0.1))},
            {QStringLiteral("av.sigmaR"), Text(std::clamp(strength / 3, 0.001, 1.0))},
            {QStringLiteral("av.planes"), QStringLiteral("7")}};
}

// ---- Drop shadow

/// A shadow of the picture's alpha, moved and blurred, on a canvas that has room for both.
class Shadow
{
public:
    Shadow(const ParametersAt& values, const EffectFrame& frame)
        : m_x(int(std::lround(values.Number("x") * frame.scale.x())))
        , m_y(int(std::lround(values.Number("y") * frame.scale.y())))
        , m_softX(values.Number("blur") * frame.scale.x())
        , m_softY(values.Number("blur") * frame.scale.y())
        , m_color(values.Color("color"))
        , m_opacity(float(values.Number("opacity")))
    {
    }

    bool Shows() const { return m_opacity > 0 && qAlpha(m_color) > 0; }

    void Draw(EffectFrame& frame, EffectPicture& picture) const
    {
        constexpr double reach = 3; // deviations
        const int wide = int(std::ceil(m_softX * reach));
        const int high = int(std::ceil(m_softY * reach));
        const QMargins room(std::max(wide - m_x, 0), std::max(high - m_y, 0),
                            std::max(wide + m_x, 0), std::max(high + m_y, 0));
        EffectPicture canvas(QRect(QPoint(), picture.Size()).marginsAdded(room).size());
        PutAlpha(picture, QPoint(room.left() + m_x, room.top() + m_y), frame.bands, canvas);
        canvas = Softened(canvas, kAlpha, kAlpha, m_softX, m_softY, frame.bands);
        PutPicture(picture, QPoint(room.left(), room.top()), frame.bands, canvas);
        frame.inner.translate(room.left(), room.top());
        picture = std::move(canvas);
    }

private:
    /// The alpha of the picture at \a place, nothing around it.
    static void PutAlpha(const EffectPicture& picture, const QPoint& place, const Bands& bands,
                         EffectPicture& canvas)
    {
        ForBands(canvas.Height(), bands, [&](int from, int to) {
            for (int y = from; y < to; ++y) {
                float* row = canvas.Row(kAlpha, y);
                std::fill(row, row + canvas.Width(), 0.0F);
                const int line = y - place.y();
                if (line >= 0 && line < picture.Height())
                    std::copy(picture.Row(kAlpha, line),
                              picture.Row(kAlpha, line) + picture.Width(), row + place.x());
            }
        });
    }
    /// The shadow in its colour with the picture over it.
    void PutPicture(const EffectPicture& picture, const QPoint& place, const Bands& bands,
                    EffectPicture& canvas) const
    {
        constexpr float most = 255;
        const std::array<float, 3> color = {float(qRed(m_color)) / most,
                                            float(qGreen(m_color)) / most,
                                            float(qBlue(m_color)) / most};
        const float opacity = m_opacity * float(qAlpha(m_color)) / most;
        ForBands(canvas.Height(), bands, [&](int from, int to) {
            for (int y = from; y < to; ++y) {
                float* alpha = canvas.Row(kAlpha, y);
                for (int x = 0; x < canvas.Width(); ++x)
                    alpha[x] *= opacity;
                const int line = y - place.y();
                const bool isInside = line >= 0 && line < picture.Height();
                for (int plane = 0; plane < kAlpha; ++plane) {
                    float* row = canvas.Row(plane, y);
                    for (int x = 0; x < canvas.Width(); ++x)
                        row[x] = alpha[x] * color[std::size_t(plane)];
                    if (isInside)
                        Cover(picture, plane, line, row + place.x());
                }
                if (isInside)
                    Cover(picture, kAlpha, line, alpha + place.x());
            }
        });
    }
    static void Cover(const EffectPicture& picture, int plane, int line, float* row)
    {
        const float* own = picture.Row(plane, line);
        const float* alpha = picture.Row(kAlpha, line);
        for (int x = 0; x < picture.Width(); ++x)
            row[x] = own[x] + row[x] * (1 - alpha[x]);
    }

    const int m_x;
    const int m_y;
    const double m_softX;
    const double m_softY;
    const QRgb m_color;
    const float m_opacity;
};

void DropShadow(const ParametersAt& values, EffectFrame& frame, EffectPicture& picture)
{
    const Shadow shadow(values, frame);
    if (shadow.Shows())
        shadow.Draw(frame, picture);
}

} // namespace

EffectKind BlurEffect()
{
    return {
        {{"blur", QT_TRANSLATE_NOOP("NLECore", "Blur")},
         {NumberRow({"size", QT_TRANSLATE_NOOP("NLECore", "Size")}, NLEUnit_Pixels, 0, 200, 8)}},
        false,
        nullptr,
        Blur,
        MltBlur};
}

EffectKind SharpenEffect()
{
    return {
        {{"sharpen", QT_TRANSLATE_NOOP("NLECore", "Sharpen")},
         {NumberRow({"amount", QT_TRANSLATE_NOOP("NLECore", "Amount")}, NLEUnit_Share, 0, 5, 1),
          NumberRow({"size", QT_TRANSLATE_NOOP("NLECore", "Size")}, NLEUnit_Pixels, 0.2, 50, 2)}},
        false,
        nullptr,
        Sharpen,
        MltSharpen};
}

EffectKind MirrorEffect()
{
    return {{{"mirror", QT_TRANSLATE_NOOP("NLECore", "Mirror")},
             {SwitchRow({"horizontal", QT_TRANSLATE_NOOP("NLECore", "Left and right")}, true),
              SwitchRow({"vertical", QT_TRANSLATE_NOOP("NLECore", "Top and bottom")}, false)}},
            false,
            nullptr,
            Mirror,
            MltMirror};
}

EffectKind NoiseReductionEffect()
{
    return {{{"noise-reduction", QT_TRANSLATE_NOOP("NLECore", "Noise reduction")},
             {NumberRow({"strength", QT_TRANSLATE_NOOP("NLECore", "Strength")}, NLEUnit_Share, 0, 1,
                        0.2),
              NumberRow({"size", QT_TRANSLATE_NOOP("NLECore", "Size")}, NLEUnit_Pixels, 1, 16, 2)}},
            false,
            nullptr,
            ReduceNoise,
            MltReduceNoise};
}

EffectKind DropShadowEffect()
{
    constexpr std::uint32_t black = 0xFF000000;
    return {{{"drop-shadow", QT_TRANSLATE_NOOP("NLECore", "Drop shadow")},
             {NumberRow({"x", QT_TRANSLATE_NOOP("NLECore", "Offset across")}, NLEUnit_Pixels, -500,
                        500, 8),
              NumberRow({"y", QT_TRANSLATE_NOOP("NLECore", "Offset down")}, NLEUnit_Pixels, -500,
                        500, 8),
              NumberRow({"blur", QT_TRANSLATE_NOOP("NLECore", "Blur")}, NLEUnit_Pixels, 0, 200, 6),
              ColorRow({"color", QT_TRANSLATE_NOOP("NLECore", "Colour")}, black),
              NumberRow({"opacity", QT_TRANSLATE_NOOP("NLECore", "Opacity")}, NLEUnit_Share, 0, 1,
                        0.6)}},
            true,
            nullptr,
            DropShadow,
            nullptr};
}

} // namespace nle

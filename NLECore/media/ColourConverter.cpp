// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/ColourConverter_p.h"

#include <QVector3D>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

extern "C" {
#include <libavutil/csp.h>
#include <libavutil/mastering_display_metadata.h>
}

namespace nle {
namespace {

/// Luminance of diffuse white in cd/m²: ITU-R BT.2408, section 2.1.
constexpr double kWhite = 203;
/// Luminance that SMPTE ST 2084 ends at, in cd/m².
constexpr double kHighestPeak = 10000;
/// Peak of content that does not tell its own, and of the display that HLG is shown on, in cd/m².
constexpr double kUsualPeak = 1000;
/// System gamma of HLG at that peak: ITU-R BT.2100, table 5.
constexpr double kSystemGamma = 1.2;
/// Gamma of a display: ITU-R BT.1886.
constexpr double kDisplayGamma = 2.4;

// ---- transfers: from a code of 0 to 1 to light and back

/// SMPTE ST 2084, in cd/m².
double PqToLight(double code)
{
    constexpr double m1 = 2610.0 / 16384;
    constexpr double m2 = 2523.0 / 4096 * 128;
    constexpr double c1 = 3424.0 / 4096;
    constexpr double c2 = 2413.0 / 4096 * 32;
    constexpr double c3 = 2392.0 / 4096 * 32;
    const double power = std::pow(code, 1 / m2);
    return kHighestPeak * std::pow(std::max(power - c1, 0.0) / (c2 - c3 * power), 1 / m1);
}

double PqFromLight(double light)
{
    constexpr double m1 = 2610.0 / 16384;
    constexpr double m2 = 2523.0 / 4096 * 128;
    constexpr double c1 = 3424.0 / 4096;
    constexpr double c2 = 2413.0 / 4096 * 32;
    constexpr double c3 = 2392.0 / 4096 * 32;
    const double power = std::pow(light / kHighestPeak, m1);
    return std::pow((c1 + c2 * power) / (1 + c3 * power), m2);
}

/// Light of the scene, 0 to 1: ITU-R BT.2100, table 5.
double HlgToLight(double code)
{
    constexpr double a = 0.17883277;
    constexpr double b = 0.28466892;
    constexpr double c = 0.55991073;
    return code <= 0.5 ? code * code / 3 : (std::exp((code - c) / a) + b) / 12;
}

/// IEC 61966-2-1.
double SrgbToLight(double code)
{
    return code <= 0.04045 ? code / 12.92 : std::pow((code + 0.055) / 1.055, 2.4);
}

double SrgbFromLight(double light)
{
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

/// Light of a component; that of white is 1, of HLG that of the scene.
double ToLight(AVColorTransferCharacteristic transfer, double code)
{
    switch (transfer) {
    case AVCOL_TRC_SMPTE2084:
        return PqToLight(code) / kWhite;
    case AVCOL_TRC_ARIB_STD_B67:
        return HlgToLight(code);
    case AVCOL_TRC_IEC61966_2_1:
        return SrgbToLight(code);
    default:
        return std::pow(code, kDisplayGamma);
    }
}

/// The light that a display of white alone shows for \a light: ITU-R BT.2390-10, section 5.4.1,
/// without the lift of black. In cd/m².
double Compressed(double light, double peak)
{
    const double whole = PqFromLight(peak);
    const double highest = PqFromLight(kWhite) / whole;
    const double knee = 1.5 * highest - 0.5;
    const double code = std::min(PqFromLight(light) / whole, 1.0);
    if (code <= knee)
        return light;
    const double t = (code - knee) / (1 - knee);
    const double t2 = t * t;
    const double t3 = t2 * t;
    const double bent =
        (2 * t3 - 3 * t2 + 1) * knee + (t3 - 2 * t2 + t) * (1 - knee) + (3 * t2 - 2 * t3) * highest;
    return PqToLight(bent * whole);
}

// ---- primaries

QVector3D Xyz(const AVCIExy& place)
{
    const double x = av_q2d(place.x);
    const double y = av_q2d(place.y);
    return QVector3D(float(x / y), 1, float((1 - x - y) / y));
}

/// From linear components to CIE XYZ for the white of BT.709: SMPTE RP 177.
QMatrix4x4 ToXyz(AVColorPrimaries primaries)
{
    const AVColorPrimariesDesc* own = av_csp_primaries_desc_from_id(primaries);
    const AVColorPrimariesDesc* usual = av_csp_primaries_desc_from_id(AVCOL_PRI_BT709);
    if (!own || !usual)
        return {};
    QMatrix4x4 matrix;
    matrix.setColumn(0, Xyz(own->prim.r).toVector4D());
    matrix.setColumn(1, Xyz(own->prim.g).toVector4D());
    matrix.setColumn(2, Xyz(own->prim.b).toVector4D());
    matrix.scale(matrix.inverted().mapVector(Xyz(own->wp)));
    QMatrix4x4 result;
    result.scale(Xyz(usual->wp) / Xyz(own->wp));
    return result * matrix;
}

// ---- what a picture tells

bool IsWide(AVColorPrimaries primaries)
{
    return primaries == AVCOL_PRI_BT2020 || primaries == AVCOL_PRI_SMPTE431 ||
           primaries == AVCOL_PRI_SMPTE432;
}

/// Either may be null.
double Peak(const std::uint8_t* contentLight, const std::uint8_t* display)
{
    const auto* light = reinterpret_cast<const AVContentLightMetadata*>(contentLight);
    if (light && light->MaxCLL > 0)
        return light->MaxCLL;
    const auto* master = reinterpret_cast<const AVMasteringDisplayMetadata*>(display);
    return master && master->has_luminance ? av_q2d(master->max_luminance) : 0;
}

double PeakOf(const AVFrame& frame)
{
    const auto dataOf = [&frame](AVFrameSideDataType type) -> const std::uint8_t* {
        const AVFrameSideData* side = av_frame_get_side_data(&frame, type);
        return side ? side->data : nullptr;
    };
    return Peak(dataOf(AV_FRAME_DATA_CONTENT_LIGHT_LEVEL),
                dataOf(AV_FRAME_DATA_MASTERING_DISPLAY_METADATA));
}

} // namespace

bool IsHighRange(AVColorTransferCharacteristic transfer)
{
    return transfer == AVCOL_TRC_SMPTE2084 || transfer == AVCOL_TRC_ARIB_STD_B67;
}

double PeakOf(const AVStream* stream)
{
    return Peak(av_stream_get_side_data(stream, AV_PKT_DATA_CONTENT_LIGHT_LEVEL, nullptr),
                av_stream_get_side_data(stream, AV_PKT_DATA_MASTERING_DISPLAY_METADATA, nullptr));
}

std::optional<ForeignColours> ForeignColoursOf(const AVFrame& frame, const MediaStream& stream)
{
    const auto primaries = frame.color_primaries != AVCOL_PRI_UNSPECIFIED
                               ? frame.color_primaries
                               : AVColorPrimaries(stream.colours.primaries);
    const auto transfer = frame.color_trc != AVCOL_TRC_UNSPECIFIED
                              ? frame.color_trc
                              : AVColorTransferCharacteristic(stream.colours.transfer);
    // An embedded profile goes before numbers; it is applied to the whole picture.
    const bool hasProfile = av_frame_get_side_data(&frame, AV_FRAME_DATA_ICC_PROFILE) != nullptr;
    if (hasProfile)
        return {};
    return ForeignColoursOf(primaries, transfer,
                            stream.peakLuminance > 0 ? stream.peakLuminance : PeakOf(frame));
}

std::optional<ForeignColours> ForeignColoursOf(AVColorPrimaries primaries,
                                               AVColorTransferCharacteristic transfer, double peak)
{
    if (!IsWide(primaries) && !IsHighRange(transfer))
        return {};
    ForeignColours result = {AVCOL_PRI_BT709, AVCOL_TRC_BT709, kUsualPeak};
    if (IsWide(primaries))
        result.primaries = primaries;
    else if (primaries == AVCOL_PRI_UNSPECIFIED)
        result.primaries = AVCOL_PRI_BT2020;
    if (IsHighRange(transfer) || transfer == AVCOL_TRC_IEC61966_2_1)
        result.transfer = transfer;
    if (transfer == AVCOL_TRC_SMPTE2084)
        result.peak = std::clamp(peak > 0 ? peak : kUsualPeak, kWhite, kHighestPeak);
    return result;
}

// ---- the conversion

namespace {

constexpr int kCodeCount = 1 << ColourConverter::kBits;

/// A function of light. The values stand in equal steps within each octave from 2^Lowest on, as
/// close as light of that size needs; what lies beyond has the value of the end.
template <typename Value, int Lowest, int Octaves, int StepBits>
class LightTable
{
public:
    template <typename Function>
    explicit LightTable(Function valueAt) : m_values(kCount + 1)
    {
        for (int i = 0; i < kCount; ++i) {
            const double step = (double(i % kSteps) + 0.5) / kSteps;
            m_values[std::size_t(i)] = Value(valueAt(std::ldexp(1 + step, Lowest + i / kSteps)));
        }
        m_values.front() = Value(valueAt(0.0));
        m_values.back() = Value(valueAt(std::ldexp(1.0, Lowest + Octaves)));
    }

    /// Where the value for \a light stands.
    static std::int32_t IndexOf(float light)
    {
        constexpr int fractionBits = 23;
        constexpr std::int32_t bias = 127;
        constexpr std::int32_t first = (bias + Lowest) << fractionBits;
        constexpr std::int32_t last = (bias + Lowest + Octaves) << fractionBits;
        std::int32_t bits = 0;
        std::memcpy(&bits, &light, sizeof bits);
        // Light below 0 has the sign bit, and so the lowest numbers.
        bits = std::min(std::max(bits, first), last);
        return (bits - first) >> (fractionBits - StepBits);
    }
    Value operator[](std::int32_t index) const { return m_values[std::size_t(index)]; }

private:
    static constexpr int kSteps = 1 << StepBits;
    static constexpr int kCount = Octaves * kSteps;

    std::vector<Value> m_values;
};

} // namespace

struct ColourConverter::Codes : LightTable<std::uint16_t, -24, 24, 10>
{
    using LightTable::LightTable;
};

struct ColourConverter::Gains : LightTable<float, -24, 31, 8>
{
    using LightTable::LightTable;
};

/// Light of some pixels: a number that is known in advance lets the compiler work on several.
struct ColourConverter::Block
{
    static constexpr int kSize = 64;
    using Row = std::array<float, kSize>;

    Row red;
    Row green;
    Row blue;

    template <typename LightOf>
    void Multiply(const Gains& gains, LightOf lightOf)
    {
        std::array<std::int32_t, kSize> index;
        for (std::size_t i = 0; i < kSize; ++i)
            index[i] = Gains::IndexOf(lightOf(red[i], green[i], blue[i]));
        Row gain;
        for (std::size_t i = 0; i < kSize; ++i)
            gain[i] = gains[index[i]];
        for (std::size_t i = 0; i < kSize; ++i) {
            red[i] *= gain[i];
            green[i] *= gain[i];
            blue[i] *= gain[i];
        }
    }
};

ColourConverter::ColourConverter(const ForeignColours& colours)
    : m_colours(colours)
    , m_luminance(ToXyz(colours.primaries).row(1).toVector3D())
    , m_toTarget(ToXyz(AVCOL_PRI_BT709).inverted() * ToXyz(colours.primaries))
    , m_light(kCodeCount)
{
    for (int code = 0; code < kCodeCount; ++code) {
        const double share = std::min(double(code) / kHighest, 1.0);
        m_light[std::size_t(code)] = float(ToLight(colours.transfer, share));
    }
    if (colours.transfer == AVCOL_TRC_ARIB_STD_B67) {
        m_system = std::make_unique<Gains>([](double luminance) {
            return kUsualPeak / kWhite * std::pow(luminance, kSystemGamma - 1);
        });
    }
    if (IsHighRange(colours.transfer)) {
        m_tone = std::make_unique<Gains>([peak = colours.peak](double light) {
            return light > 0 ? Compressed(light * kWhite, peak) / (light * kWhite) : 1;
        });
    }
    const bool isSrgb = colours.transfer == AVCOL_TRC_IEC61966_2_1;
    m_codes = std::make_unique<Codes>([isSrgb](double light) {
        const double code = isSrgb ? SrgbFromLight(light) : std::pow(light, 1 / kDisplayGamma);
        return std::lround(code * UINT16_MAX);
    });
}

ColourConverter::~ColourConverter() = default;

void ColourConverter::ToTargetLight(Block& block) const
{
    if (m_system) {
        block.Multiply(*m_system, [shares = m_luminance](float red, float green, float blue) {
            return shares.x() * red + shares.y() * green + shares.z() * blue;
        });
    }
    const float* m = m_toTarget.constData(); // column by column, each of four
    for (std::size_t i = 0; i < Block::kSize; ++i) {
        const float red = block.red[i];
        const float green = block.green[i];
        const float blue = block.blue[i];
        block.red[i] = m[0] * red + m[4] * green + m[8] * blue;
        block.green[i] = m[1] * red + m[5] * green + m[9] * blue;
        block.blue[i] = m[2] * red + m[6] * green + m[10] * blue;
    }
    if (m_tone) {
        block.Multiply(*m_tone, [](float red, float green, float blue) {
            return std::max(std::max(red, green), blue);
        });
    }
}

void ColourConverter::Convert(std::uint16_t* red, std::uint16_t* green, std::uint16_t* blue,
                              int count) const
{
    const auto read = [this](const std::uint16_t* codes, int size, Block::Row& light) {
        for (int i = 0; i < size; ++i)
            light[std::size_t(i)] = m_light[codes[i] & (kCodeCount - 1)];
    };
    const auto write = [this](const Block::Row& light, int size, std::uint16_t* codes) {
        std::array<std::int32_t, Block::kSize> index;
        for (std::size_t i = 0; i < Block::kSize; ++i)
            index[i] = Codes::IndexOf(light[i]);
        for (int i = 0; i < size; ++i)
            codes[i] = (*m_codes)[index[std::size_t(i)]];
    };
    Block block = {};
    for (int first = 0; first < count; first += Block::kSize) {
        const int size = std::min(Block::kSize, count - first);
        read(red + first, size, block.red);
        read(green + first, size, block.green);
        read(blue + first, size, block.blue);
        ToTargetLight(block);
        write(block.red, size, red + first);
        write(block.green, size, green + first);
        write(block.blue, size, blue + first);
    }
}

} // namespace nle

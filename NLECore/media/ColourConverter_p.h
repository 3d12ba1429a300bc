// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/MediaFile_p.h"

#include <QMatrix4x4>
#include <QVector3D>

#include <memory>
#include <optional>
#include <vector>

namespace nle {

/// Colours of a picture that are not those of a project: ITU-R BT.709 on a display of BT.1886.
struct ForeignColours
{
    /// BT709, BT2020, SMPTE431 or SMPTE432.
    AVColorPrimaries primaries;
    /// SMPTE2084, ARIB_STD_B67, IEC61966_2_1, or BT709 for all others.
    AVColorTransferCharacteristic transfer;
    /// The brightest that the pictures hold, in cd/m²; 203 to 10,000.
    double peak;

    friend bool operator==(const ForeignColours& a, const ForeignColours& b)
    {
        return a.primaries == b.primaries && a.transfer == b.transfer && a.peak == b.peak;
    }
};

/// The colours of \a frame, or where it does not tell them those of \a stream, when they have to be
/// converted; none when the picture shows as it is.
std::optional<ForeignColours> ForeignColoursOf(const AVFrame& frame, const MediaStream& stream);

/// Those of numbers of ITU-T H.273, of pictures that hold light up to \a peak, in cd/m²; a peak of
/// 0 is not known. None when they show as they are.
std::optional<ForeignColours> ForeignColoursOf(AVColorPrimaries primaries,
                                               AVColorTransferCharacteristic transfer, double peak);
/// Whether a transfer is one of high dynamic range: SMPTE ST 2084 or HLG.
bool IsHighRange(AVColorTransferCharacteristic transfer);

/// The brightest that the pictures of a stream hold, in cd/m², as its container tells: the content
/// light level, else the peak of the display it was made on; 0 when it does not.
double PeakOf(const AVStream* stream);

/// Brings pictures of other colours into those of a project.
///
/// Light of high dynamic range, as the display shows it (SMPTE ST 2084, or ITU-R BT.2100 for HLG on
/// a display of 1,000 cd/m²), is compressed by the curve of ITU-R BT.2390 to a white of 203 cd/m²,
/// which is that of BT.2408. The largest component goes by the curve and takes the others along, so
/// that hues stay. What BT.709 has no colour for is cut off. Other transfers stay as they are.
class ColourConverter
{
public:
    /// Bits of a component that is to be converted, and its highest code: swscale counts on from
    /// 255 of 8 bits.
    static constexpr int kBits = 12;
    static constexpr int kHighest = 255 << (kBits - 8);

    explicit ColourConverter(const ForeignColours& colours);
    ~ColourConverter();
    const ForeignColours& Colours() const { return m_colours; }

    /// Converts \a count pixels in place: R'G'B' of 0 to kHighest becomes that of a project in 16
    /// bits.
    void Convert(std::uint16_t* red, std::uint16_t* green, std::uint16_t* blue, int count) const;

private:
    struct Block;
    struct Codes;
    struct Gains;

    void ToTargetLight(Block& block) const;

    const ForeignColours m_colours;
    const QVector3D m_luminance;           ///< what the linear components add to it
    const QMatrix4x4 m_toTarget;           ///< of linear components
    std::vector<float> m_light;            ///< by the code of a component; white is 1
    std::unique_ptr<const Gains> m_system; ///< of HLG, by luminance; null for others
    std::unique_ptr<const Gains> m_tone;   ///< by the largest component; null without compression
    std::unique_ptr<const Codes> m_codes;  ///< by light
};

} // namespace nle

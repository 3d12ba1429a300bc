// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"
#include "NLECore/media/MediaInfo.h"

#include <array>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace nle {

/// How the colours of a clip and of what is below it become one; numbers are part of documents.
enum class BlendMode : int
{
    Normal = 0,
    Multiply = 1,
    Screen = 2,
    Overlay = 3,
    Darken = 4,
    Lighten = 5,
    Add = 6,
    Difference = 7,
    ColorDodge = 8,
    ColorBurn = 9,
    HardLight = 10,
    SoftLight = 11,
    Exclusion = 12
};
constexpr int kBlendModes = 13;
/// Alpha of a clip that covers fully.
constexpr int kOpaqueAlpha = 255;

struct BlendSettings
{
    bool enabled = true;
    BlendMode mode = BlendMode::Normal;
    int alpha = kOpaqueAlpha; ///< 0 to 255

    friend bool operator==(const BlendSettings& a, const BlendSettings& b)
    {
        return a.enabled == b.enabled && a.mode == b.mode && a.alpha == b.alpha;
    }
};

/// Where a clip lies on its parent, on top of what its margin mode says.
struct TransformSettings
{
    bool enabled = true;
    NLEPointF center = {0.5, 0.5}; ///< of the parent, (0, 0) top left to (1, 1) bottom right
    NLESizeF scale = {1, 1};       ///< 1 keeps the size
    double rotation = 0;           ///< degrees, clockwise
    bool lock = false;             ///< kept for editors; rendering does not ask for it

    bool IsIdentity() const
    {
        return !enabled || (center.x == 0.5 && center.y == 0.5 && scale.width == 1 &&
                            scale.height == 1 && rotation == 0);
    }
};

/// Bands of the equaliser; each is an octave wide.
constexpr std::array<double, 10> kEqualizerBands = {31.25, 62.5, 125,  250,  500,
                                                    1000,  2000, 4000, 8000, 16000};

struct VolumePoint
{
    double time; ///< seconds from the clip's in point
    double gain; ///< linear
};

struct AudioSettings
{
    int pitch = 0;         ///< semitones
    int denoiseLevel = 12; ///< dB, 0 to 97
    bool denoise = false;
    bool mono = false;
    bool volumeEnabled = true;
    bool mute = false;
    double volume = 1;  ///< linear gain
    double balance = 0; ///< -1 left to 1 right
    bool fadeIn = false;
    int fadeInFrames = 0;
    bool fadeOut = false;
    int fadeOutFrames = 0;
    bool equalizer = false;
    std::wstring equalizerName;
    std::array<double, kEqualizerBands.size()> equalizerGains = {}; ///< dB
    std::vector<VolumePoint> volumePoints;                          ///< sorted by time
};

struct VideoSettings
{
    std::shared_ptr<const NLEAlphaChannelRecord> alphaChannel; ///< null: never set
    std::shared_ptr<const MediaInfo> proxy;                    ///< null: none
    bool proxyEnabled = false;
    int premultipliedType = 0;
};

/// Mixer strips of a composite's tracks, by level.
using MixerSettings = std::map<int, tagMixerParam>;
constexpr tagMixerParam kNeutralStrip = {1, 0, 0, 0};

} // namespace nle

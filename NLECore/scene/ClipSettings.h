// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"
#include "NLECore/media/MediaInfo.h"
#include "NLECore/scene/Fields.h"

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nle {

/// Where a node stands on its parent, and what of it plays.
struct PlacementSettings
{
    std::optional<NLERange> range; ///< the trim range; none: all frames
    int position = 0;              ///< first frame on the parent
    int level = 0;                 ///< higher covers lower
    tagNLEMarginMode margin = NLEMargin_Fit;
    bool enabled = true;
};
/// Place and length count where a layer stands, and not in what it shows.
template <>
inline constexpr auto kFields<PlacementSettings> = std::tuple(
    Field{&PlacementSettings::range, "range", Shows::kNo},
    Field{&PlacementSettings::position, "position", Shows::kNo},
    Field{&PlacementSettings::level, "level", Shows::kNo},
    Field{&PlacementSettings::margin, "margin", Shows::kYes, NLEMargin_Fit, NLEMargin_None},
    Field{&PlacementSettings::enabled, "enabled", Shows::kNo});
static_assert(kListsAllFields<PlacementSettings>);

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
};
template <>
inline constexpr auto kFields<BlendSettings> =
    std::tuple(Field{&BlendSettings::enabled, "blend", Shows::kYes},
               Field{&BlendSettings::mode, "blend", Shows::kYes, 0, kBlendModes - 1},
               Field{&BlendSettings::alpha, "blend", Shows::kYes, 0, kOpaqueAlpha});
static_assert(kListsAllFields<BlendSettings>);

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
template <>
inline constexpr auto kFields<TransformSettings> =
    std::tuple(Field{&TransformSettings::enabled, "transform", Shows::kYes},
               Field{&TransformSettings::center, "transform", Shows::kYes},
               Field{&TransformSettings::scale, "transform", Shows::kYes},
               Field{&TransformSettings::rotation, "transform", Shows::kYes},
               Field{&TransformSettings::lock, "transform", Shows::kNo});
static_assert(kListsAllFields<TransformSettings>);

/// Bands of the equaliser; each is an octave wide.
constexpr std::array<double, 10> kEqualizerBands = {31.25, 62.5, 125,  250,  500,
                                                    1000,  2000, 4000, 8000, 16000};

struct VolumePoint
{
    double time; ///< seconds from the clip's in point
    double gain; ///< linear, 0 to kMostVolume

    friend bool operator==(const VolumePoint& a, const VolumePoint& b)
    {
        return a.time == b.time && a.gain == b.gain;
    }
};
/// Puts a point into a curve, in place of one at the same time. False, and nothing changed, for a
/// time that is not finite and a gain outside of 0 to kMostVolume.
bool PutVolumePoint(std::vector<VolumePoint>& curve, const VolumePoint& point);
/// Gain of a curve at a time in seconds: linear between points, held outside of them, 1 without
/// any.
double GainAt(const std::vector<VolumePoint>& curve, double time);

constexpr int kMostSemitones = 24;
constexpr int kMostDenoise = 97;          ///< dB
constexpr double kMostVolume = 16;        ///< linear gain
constexpr double kMostEqualizerGain = 40; ///< dB, up or down

struct AudioSettings
{
    int pitch = 0;         ///< semitones
    int denoiseLevel = 12; ///< dB
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
template <>
inline constexpr auto kFields<AudioSettings> = std::tuple(
    Field{&AudioSettings::volumeEnabled, "sound:levels", Shows::kNo},
    Field{&AudioSettings::volume, "sound:levels", Shows::kNo, 0.0, kMostVolume},
    Field{&AudioSettings::mute, "sound:levels", Shows::kNo},
    Field{&AudioSettings::balance, "sound:levels", Shows::kNo, -1.0, 1.0},
    Field{&AudioSettings::fadeIn, "sound:fades", Shows::kNo},
    Field{&AudioSettings::fadeInFrames, "sound:fades", Shows::kNo, 0, INT32_MAX},
    Field{&AudioSettings::fadeOut, "sound:fades", Shows::kNo},
    Field{&AudioSettings::fadeOutFrames, "sound:fades", Shows::kNo, 0, INT32_MAX},
    Field{&AudioSettings::pitch, "sound:effects", Shows::kNo, -kMostSemitones, kMostSemitones},
    Field{&AudioSettings::denoise, "sound:effects", Shows::kNo},
    Field{&AudioSettings::denoiseLevel, "sound:effects", Shows::kNo, 0, kMostDenoise},
    Field{&AudioSettings::mono, "sound:effects", Shows::kNo},
    Field{&AudioSettings::equalizer, "sound:effects", Shows::kNo},
    Field{&AudioSettings::equalizerGains, "sound:equalizer", Shows::kNo, -kMostEqualizerGain,
          kMostEqualizerGain},
    Field{&AudioSettings::equalizerName, "sound:equalizer-name", Shows::kNo},
    Field{&AudioSettings::volumePoints, "sound:curve", Shows::kNo});
static_assert(kListsAllFields<AudioSettings>);

struct VideoSettings
{
    std::shared_ptr<const NLEAlphaChannelRecord> alphaChannel; ///< null: never set
    std::shared_ptr<const MediaInfo> proxy;                    ///< null: none
    bool proxyEnabled = false;
    int premultipliedType = 0; ///< kept for editors; rendering does not ask for it
};
/// Whether a proxy shows is the layer's to say.
template <>
inline constexpr auto kFields<VideoSettings> =
    std::tuple(Field{&VideoSettings::alphaChannel, "alpha-channel", Shows::kNo},
               Field{&VideoSettings::proxy, "proxy", Shows::kNo},
               Field{&VideoSettings::proxyEnabled, "proxy-enabled", Shows::kNo},
               Field{&VideoSettings::premultipliedType, "premultiplied", Shows::kNo});
static_assert(kListsAllFields<VideoSettings>);

/// A place of a node that somebody has named. It shows in no picture.
struct Marker
{
    NLEMarkerRecord record;
    std::wstring name;
};
using MarkerList = std::vector<Marker>; ///< in order of frames
/// The document property of a marker has its number behind its name, and ends with the marker's.
template <>
inline constexpr auto kFields<NLEMarkerRecord> =
    std::tuple(Field{&NLEMarkerRecord::frame, "marker:", Shows::kNo},
               Field{&NLEMarkerRecord::length, "marker:", Shows::kNo, 0, INT32_MAX},
               Field{&NLEMarkerRecord::color, "marker:", Shows::kNo});
static_assert(kListsAllFields<NLEMarkerRecord>);
/// Whether a marker lies where frames can be counted.
bool IsValid(const Marker& marker);
/// Puts a marker behind those of its frame and gives its place; -1, and nothing changed, for one
/// that is not valid.
int PutMarker(MarkerList& markers, Marker marker);

/// What of a file shows and sounds, and how its pictures are meant.
struct SourceSettings
{
    int videoStream = -1;             ///< index; -1: the file's preferred one
    std::vector<int> audioStreams;    ///< indexes, summed; none: the file's preferred one
    NLERational pixelAspect = {0, 1}; ///< width over height as displayed; 0: as the file says
    NLEDeinterlacing deinterlacing = NLEDeinterlacing_Automatic;
    NLEFieldOrder fieldOrder = NLEField_Progressive; ///< progressive: as the file says
    int gpuFirst = 0; ///< not 0: decoded by hardware where that is on
};
/// What the aspect of pixels does shows in the size of the layer.
template <>
inline constexpr auto kFields<SourceSettings> = std::tuple(
    Field{&SourceSettings::videoStream, "video-stream", Shows::kYes, -1, INT32_MAX},
    Field{&SourceSettings::audioStreams, "audio-streams", Shows::kNo},
    Field{&SourceSettings::pixelAspect, "pixel-aspect", Shows::kNo, 0.0, double(kMostPixelAspect)},
    Field{&SourceSettings::deinterlacing, "deinterlacing", Shows::kYes, NLEDeinterlacing_Automatic,
          NLEDeinterlacing_Always},
    Field{&SourceSettings::fieldOrder, "deinterlacing", Shows::kYes, NLEField_Progressive,
          NLEField_BottomFirst},
    Field{&SourceSettings::gpuFirst, "decoder", Shows::kNo});
static_assert(kListsAllFields<SourceSettings>);

/// Mixer strips of a composite's tracks, by level.
using MixerSettings = std::map<int, tagMixerParam>;
constexpr tagMixerParam kNeutralStrip = {1, 0, 0, 0};
/// The document property of a strip has the level behind its name.
template <>
inline constexpr auto kFields<tagMixerParam> =
    std::tuple(Field{&tagMixerParam::volume, "mixer:", Shows::kNo, 0.0, kMostVolume},
               Field{&tagMixerParam::balance, "mixer:", Shows::kNo, -1.0, 1.0},
               Field{&tagMixerParam::mute, "mixer:", Shows::kNo},
               Field{&tagMixerParam::solo, "mixer:", Shows::kNo});
static_assert(kListsAllFields<tagMixerParam>);
/// Whether a strip of a mixer, or a level, plays alone.
template <typename Levels>
bool AnySolo(const Levels& levels)
{
    return std::any_of(levels.begin(), levels.end(),
                       [](const auto& level) { return level.second.solo != 0; });
}

constexpr int kMostLevelHeight = 10000;
/// A level of a composite. Its mute is that of its mixer strip.
struct LevelSettings
{
    bool hidden = false; ///< its pictures are not drawn
    bool solo = false;   ///< levels without it do not play
    int height = 0;      ///< pixels in an editor; 0 leaves it to that
    std::wstring name;
};
/// The document property of a level has its number behind its name; the name stands last, with all
/// its blanks. What of a level counts shows in the modes of a layer's children.
template <>
inline constexpr auto kFields<LevelSettings> =
    std::tuple(Field{&LevelSettings::hidden, "level:", Shows::kNo},
               Field{&LevelSettings::solo, "level:", Shows::kNo},
               Field{&LevelSettings::height, "level:", Shows::kNo, 0, kMostLevelHeight},
               Field{&LevelSettings::name, "level:", Shows::kNo});
static_assert(kListsAllFields<LevelSettings>);
/// Levels that have something set, by their numbers.
using LevelMap = std::map<int, LevelSettings>;
/// Those of \a level; presets for one that has none.
LevelSettings SettingsOf(const LevelMap& levels, int level);
/// Presets take the level out of the map.
void PutSettings(LevelMap& levels, int level, const LevelSettings& settings);
/// Whether a level neither shows nor sounds because others play alone.
bool IsOutplayed(const LevelMap& levels, int level);

} // namespace nle

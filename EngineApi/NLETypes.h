// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <cstdint>

/// Plain records and enumerations that cross the engine's interfaces. Their layouts are fixed.

/// Frames from in to out, both inclusive; empty when out < in.
struct NLERange
{
    std::int32_t in;  ///< first frame
    std::int32_t out; ///< last frame
};

/// Number of frames in \a range; 0 for an empty one. Wider than 32 bits, so that no range
/// overflows.
constexpr std::int64_t NLERangeLength(const NLERange& range)
{
    return range.out < range.in ? 0 : std::int64_t(range.out) - range.in + 1;
}

/// A fraction. Frame rates are carried as millionths, scales as hundred-millionths.
struct NLERational
{
    std::int64_t num; ///< numerator
    std::int64_t den; ///< denominator
};

/// A rectangle, in pixels or in parts of a picture, as its user says.
struct NLERectF
{
    double x;      ///< from the left
    double y;      ///< from the top
    double width;  ///< horizontal
    double height; ///< vertical
};

/// A rectangle of whole pixels.
struct NLERect
{
    std::int32_t x;      ///< left edge
    std::int32_t y;      ///< upper edge
    std::int32_t width;  ///< in pixels
    std::int32_t height; ///< in pixels
};

/// A size in whole pixels.
struct NLESize
{
    std::int32_t width;  ///< in pixels
    std::int32_t height; ///< in pixels
};

/// A point, in pixels or in parts of a picture, as its user says.
struct NLEPointF
{
    double x; ///< from the left
    double y; ///< from the top
};

/// A size, in pixels or in parts of a picture, as its user says.
struct NLESizeF
{
    double width;  ///< horizontal
    double height; ///< vertical
};

/// Picture and sound format of a project.
struct tagNLEProjectProfile
{
    NLESize frameSize;         ///< picture size in pixels
    NLERational frameRate;     ///< frames a second
    std::int32_t sampleRate;   ///< audio samples a second and channel
    std::int32_t channels;     ///< audio channels
    std::int32_t sampleFormat; ///< sample format, numbered as the engine reports it
};

/// How a picture whose shape differs from its parent's is placed into it.
enum tagNLEMarginMode : std::int32_t
{
    NLEMargin_Fit = 0,     ///< whole picture, bars at two sides
    NLEMargin_Fill = 1,    ///< whole frame, picture cut at two sides
    NLEMargin_Stretch = 2, ///< whole frame, shape not kept
    NLEMargin_None = 3     ///< pixel for pixel, centred
};

/// What a node contributes when it is rendered.
enum NLERenderMode : std::int32_t
{
    NLERender_All = 0,
    NLERender_VideoOnly = 1,
    NLERender_AudioOnly = 2
};

/// What a wrapped node is, as its creator knows it. Neither the engine nor the library tests it.
enum ExactType : std::int32_t
{
    ExactType_Unknown = 0,
    ExactType_Project = 1,
    ExactType_Composite = 2,
    ExactType_Video = 3,
    ExactType_Audio = 4,
    ExactType_Image = 5,
    ExactType_Color = 6,
    ExactType_Text = 7,
    ExactType_Effect = 8,
    ExactType_Transition = 9,
    ExactType_AudioFilter = 10,
    ExactType_SplitScreen = 11
};

/// Type codes of media streams.
enum NLEStreamType : std::int32_t
{
    NLEStream_Unknown = 0,
    NLEStream_Other = 1, ///< subtitles, data, attached pictures
    NLEStream_Video = 2,
    NLEStream_Audio = 3
};

/// What a remark on a document is about; see INLEDocumentReport. Codes keep their meaning.
enum NLEDocumentRemark : std::int32_t
{
    NLERemark_Effect = 1,     ///< an effect was left out
    NLERemark_Transition = 2, ///< a transition was left out; the clips are where they were
    NLERemark_Service = 3,    ///< a clip of an unknown kind: an empty picture keeps its place
    NLERemark_Reversed = 4,   ///< plays backwards there, forwards here
    NLERemark_Speed = 5,      ///< a change of speed was left out or is only close
    NLERemark_Missing = 6,    ///< a file is not there; its clip is offline
    NLERemark_Structure = 7,  ///< a reference to nothing, or more than can be taken
    NLERemark_Marker = 8,     ///< markers are kept as text only
    NLERemark_Level = 9       ///< a volume, balance or opacity is only close
};

/// Kind codes of media files.
enum NLEMediaKind : std::int32_t
{
    NLEMedia_Offline = 0, ///< the file is not there
    NLEMedia_Video = 1,
    NLEMedia_Audio = 2,
    NLEMedia_Image = 3
};

/// How the lines of a picture were taken.
enum NLEFieldOrder : std::int32_t
{
    NLEField_Progressive = 0, ///< all at one time
    NLEField_TopFirst = 1,    ///< the first line and every other one before the rest
    NLEField_BottomFirst = 2, ///< the second line and every other one before the rest
    NLEField_Unknown = 3
};

/// Which pictures of a clip are deinterlaced: drawn as they were at the time of their first field.
enum NLEDeinterlacing : std::int32_t
{
    NLEDeinterlacing_Automatic = 0, ///< those that the file marks as interlaced
    NLEDeinterlacing_Off = 1,
    NLEDeinterlacing_Always = 2
};

/// Stream index that names no stream.
constexpr std::uint32_t NLENoStream = 0xFFFFFFFFu;

/// One stream of a media file. Fields of the other kind of stream are 0.
///
/// Width and height count the pixels that are stored. A clip shows them width * pixelAspect wide
/// and height high, unless its settings say otherwise.
struct NLEStreamInfo
{
    std::int32_t type;         ///< NLEStreamType
    std::int32_t width;        ///< after rotation, in stored pixels
    std::int32_t height;       ///< after rotation, in stored pixels
    std::int32_t rotation;     ///< clockwise degrees that the file asks for: 0, 90, 180 or 270
    NLERational frameRate;     ///< frames a second: the grid on which no picture is lost
    NLERational pixelAspect;   ///< width of a pixel over its height, after rotation
    std::int32_t sampleRate;   ///< samples a second and channel
    std::int32_t channels;     ///< audio channels
    std::int32_t sampleFormat; ///< sample format, numbered as the decoder reports it
    std::uint32_t fourCC;      ///< codec tag, first character in the lowest byte
    std::int64_t bitRate;      ///< bits a second, 0 when unknown
    std::int64_t duration;     ///< microseconds, 0 when unknown
    char codecName[32];        ///< short name of the codec, for example "h264"
    NLERational meanFrameRate; ///< pictures a second on average; below frameRate where the pictures
                               ///< stand at a variable rate
    std::int32_t transfer;   ///< transfer characteristics by ITU-T H.273; 2: the file does not say
    std::int32_t primaries;  ///< colour primaries by ITU-T H.273; 2: the file does not say
    std::int32_t matrix;     ///< matrix coefficients by ITU-T H.273; 2: the file does not say
    std::int32_t colorRange; ///< 1 limited, 2 full; 0: the file does not say
    std::int32_t bitDepth;   ///< bits of a colour component; 0 when unknown
    std::int32_t fieldOrder; ///< NLEFieldOrder
};

/// Memory that a video frame lives in.
enum NLEFrameMemory : std::int32_t
{
    NLEMemory_System = 1,
    NLEMemory_OpenCL = 2
};

/// What a media encoder writes. 0 in a field means the timeline's own value or the codec's default.
struct NLEEncodeSettings
{
    NLESize frameSize;         ///< picture size in pixels
    NLERational frameRate;     ///< frames a second
    NLERange range;            ///< frames of the timeline; an empty one and {0, 0} mean all of it,
                               ///< of a clip its trim range; see NLEKey::Encode::kFirstFrame
    std::int32_t quality;      ///< constant rate factor, 1 (best) to 51
    std::int32_t sampleRate;   ///< audio samples a second, at most 384000
    std::int32_t channels;     ///< audio channels, at most 64
    std::int32_t audioBitRate; ///< bits a second
};

/// One key frame of a clip's picture.
struct NLEKeyFrameRecord
{
    double time;                ///< place on the clip's key-frame axis
    double angle;               ///< rotation in degrees
    double positionX;           ///< offset of the centre, in widths of the parent
    double positionY;           ///< in heights of the parent; grows upward
    double scaleWidth;          ///< 1 unchanged
    double scaleHeight;         ///< 1 unchanged
    double opacity;             ///< 0 transparent to 1 opaque
    std::int32_t interpolation; ///< 1: linear to the next key frame
};

/// One marker of a node. Its name stands beside it.
struct NLEMarkerRecord
{
    std::int32_t frame; ///< first frame, counted as the node's trim range is; may lie outside of it
    std::int32_t length; ///< frames from there on; 0 for an instant
    std::uint32_t color; ///< 0xAARRGGBB
};
static_assert(sizeof(NLEMarkerRecord) == 12, "fixed binary layout");

/// Mixer strip of a track.
struct tagMixerParam
{
    double volume;     ///< linear gain, 1 unchanged
    double balance;    ///< -1 left to 1 right
    std::int32_t mute; ///< non-zero: silent
    std::int32_t solo; ///< non-zero: only soloed tracks sound
};

/// Alpha-channel and matte settings of a clip: 1104 bytes, little-endian, UTF-16 text on every
/// system.
struct NLEAlphaChannelRecord
{
    std::int32_t param1;   ///< kept as it is
    std::int32_t param2;   ///< kept as it is
    std::int32_t param3;   ///< kept as it is
    std::int32_t padding1; ///< kept as it is
    double param4;         ///< kept as it is
    std::int32_t param5;   ///< kept as it is
    std::int32_t param6;   ///< kept as it is
    std::int32_t param7;   ///< kept as it is
    std::int32_t padding2; ///< kept as it is
    char16_t text1[260];   ///< kept as it is
    char16_t text2[260];   ///< kept as it is
    std::int32_t param8;   ///< kept as it is
    std::int32_t padding3; ///< kept as it is
    std::uint8_t tail[16]; ///< kept as it is
};
static_assert(sizeof(NLEAlphaChannelRecord) == 1104, "fixed binary layout");

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLECommon.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace nle {

/// How the colours of a picture are coded. Numbers of ITU-T H.273; 2 is what is not told.
struct ColourTags
{
    int primaries = 2;
    int transfer = 2;
    int matrix = 2;
    int range = 0; ///< 1 limited, 2 full, 0 when it is not told
};

/// One stream of a file. Fields that do not apply to its type keep their presets.
struct MediaStream
{
    /// Attached cover pictures are NLEStream_Other.
    NLEStreamType type = NLEStream_Unknown;
    /// Stored pixels after the rotation; DisplayedSize() applies the sample aspect.
    int width = 0;
    int height = 0;
    /// Clockwise turn from the coded to the displayed picture: 0, 90, 180 or 270 degrees.
    int rotation = 0;
    /// The coded picture is mirrored left to right before it is turned.
    bool mirrored = false;
    bool hasAlpha = false;
    /// Of the stream; single pictures of it may be another way.
    NLEFieldOrder fieldOrder = NLEField_Progressive;
    ColourTags colours;
    /// Bits of a colour component; 0 when unknown.
    int bitDepth = 0;
    /// The brightest that the pictures hold, in cd/m², as the container tells; 0 when it does not.
    double peakLuminance = 0;
    /// The grid on which no picture is lost.
    NLERational frameRate = {0, 1};
    /// Pictures a second on average; 0/1 when unknown.
    NLERational meanRate = {0, 1};
    /// Width to height of one displayed pixel; 1/1 when the file does not say.
    NLERational sampleAspect = {1, 1};
    int sampleRate = 0;
    int channels = 0;
    /// Each coded frame holds a multiple of so many samples; 0 when unknown.
    int frameSamples = 0;
    /// Number of the sample format in libavutil's AVSampleFormat; -1 without sound.
    int sampleFormat = -1;
    /// Bits per second; 0 when unknown.
    std::int64_t bitRate = 0;
    std::uint32_t fourcc = 0;
    std::string codecName;
    std::string profileName;
    std::int64_t durationUs = 0;
    /// Time of the first picture or sample in the container, in microseconds.
    std::int64_t startUs = 0;
    /// Time stamp of the first picture or sample in ticks of the container's stream clock.
    std::int64_t startTicks = 0;
    /// Number of pictures that a decoder holds back to bring them into order of display.
    int reorderDelay = 0;
    /// Pictures stand on the grid of frameRate, so no two of them share one frame number.
    bool constantRate = false;
    /// Frames with pictures of a video stream at frameRate, 1 for a still picture; 0 when unknown.
    std::uint32_t frameCount = 0;
};

/// Tells one content of a file from another; times in nanoseconds since 1970, UTC.
struct FileStamp
{
    std::int64_t size = -1;      ///< bytes; -1 when there is no regular file
    std::int64_t modifiedNs = 0; ///< last change of the content
    std::int64_t changedNs = 0;  ///< last change of content or attributes
    std::uint64_t volume = 0;
    std::uint64_t file = 0; ///< number on the volume

    friend bool operator==(const FileStamp& a, const FileStamp& b)
    {
        return a.size == b.size && a.modifiedNs == b.modifiedNs && a.changedNs == b.changedNs &&
               a.volume == b.volume && a.file == b.file;
    }
};

/// That of the file at \a path as it is now, or of the image sequence that \a path names.
FileStamp StampOf(const QString& path);

/// Plain description of a media file. Never changes once made, so threads may share it.
struct MediaInfo
{
    QString path;
    /// What the file is used as: a still picture is an image, a file with a cover picture and sound
    /// is audio.
    NLEMediaKind kind = NLEMedia_Offline;
    std::vector<MediaStream> streams;
    /// Indexes of the preferred streams in streams; -1 when there is none.
    int videoStream = -1;
    int audioStream = -1;
    /// Number of frames with pictures at frameRate, of frames that last as long as the sound where
    /// there is no picture; 1 for a still picture. The sound may last longer than the pictures.
    std::uint32_t frameCount = 0;
    /// The file does not tell its length; that of the preferred stream was measured, those of the
    /// others are not to be relied on.
    bool isLengthMeasured = false;
    /// Rate of the video stream; 25/1 for sound and still pictures.
    NLERational frameRate = {25, 1};
    std::int64_t durationUs = 0;
    /// Time in the container, in microseconds, that counts as the beginning: the start of the
    /// video stream, or of the audio stream when there is no picture. Sound and pictures are both
    /// counted from here, so they stay together.
    std::int64_t originUs = 0;
    /// Short names of the container format, separated by commas, as libavformat has them.
    QString containerName;
    /// That of the file when it was described; tells whether it was replaced since.
    FileStamp stamp;
    /// The bytes of the file that hold it, from the first to before the last; 0 and 0 for all.
    std::int64_t firstByte = 0;
    std::int64_t endByte = 0;
    /// Recordings with clocks of their own that were joined to one file, in their order, each of
    /// the same path; empty for any other file.
    std::vector<std::shared_ptr<const MediaInfo>> parts;

    /// The stream at \a index, or null when the index is outside the list.
    const MediaStream* Stream(int index) const
    {
        return index >= 0 && index < int(streams.size()) ? &streams[size_t(index)] : nullptr;
    }
};

/// Greatest width of a pixel over its height, and of its height over its width. What a file says
/// beyond that is taken for a mistake.
constexpr int kMostPixelAspect = 16;

/// Size of a picture with square pixels that shows as \a stream is meant: with the stored height,
/// and the width scaled by the pixels' aspect, rounded. \a aspect above 0 counts in place of what
/// the file says.
NLESize DisplayedSize(const MediaStream& stream, const NLERational& aspect = {0, 1});

/// Opens the file at \a path, describes and closes it. Only regular local files are opened, and no
/// format that would lead to other files or to the network. Gives null on failure; then \a error,
/// when not null, receives one English sentence that tells the reason. Never takes much longer
/// than ten seconds. May be called from any thread.
std::shared_ptr<const MediaInfo> ProbeMedia(const QString& path, QString* error);

} // namespace nle

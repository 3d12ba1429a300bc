// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEEncode.h"

#include <QString>

#include <string>
#include <vector>

struct AVCodec;

namespace nle {

/// How a film is encoded, as far as somebody has asked: empty texts and numbers of 0 leave it to
/// container and codec. The keys of NLEKey::Encode tell what each means.
struct EncodeOptions
{
    std::string container;
    std::string videoCodec;
    std::string audioCodec;
    std::string profile;
    std::string speed;
    std::string pixelFormat;
    std::string sampleFormat;
    int rateControl = 0;
    int quality = 0;
    int videoBitRate = 0;
    int maxBitRate = 0;
    int bufferSize = 0;
    int gop = 0;
    int bFrames = -1; ///< below 0 as the codec likes
    int bitDepth = 0;
    int alpha = 0;
    int fieldOrder = NLEField_Progressive;
    int audioBitRate = 0;
    int threads = 0;
    int proxies = 0;    ///< 1: pictures come from proxies where clips have them switched on
    int firstFrame = 0; ///< 1: a range of {0, 0} is frame 0 alone, and not all
};

/// The name of a codec that stands for none.
inline constexpr const char* kNoCodec = "none";

/// Lists in the texts of formats: names with commas between them, the one to choose first.
std::vector<std::string> SplitNames(const char* names);

/// A codec that can be chosen.
struct CodecFormat
{
    const char* name;
    const char* title;
    NLEStreamType type;
    const char* encoders; ///< in the library's names; the first that there is counts
    int rateControls;     ///< flags of NLERateControl
    bool hasFields;       ///< whether frames of two fields can be encoded as such
    const char* profiles;
    const char* speeds;
    const char* pixelFormats;
    const char* sampleFormats;
};

/// A container that can be chosen.
struct ContainerFormat
{
    const char* name;
    const char* title;
    const char* suffixes;
    const char* muxer; ///< in the library's name
    const char* video; ///< codecs of pictures
    const char* audio; ///< codecs of sound
    bool isSequence;   ///< a file of each picture

    std::vector<const CodecFormat*> Codecs(NLEStreamType type) const;
    /// The codec called \a name, or the first one for an empty name; null when there is none.
    const CodecFormat* Codec(NLEStreamType type, const std::string& name) const;
    /// What sound of \a codec can be kept as here.
    std::vector<std::string> SampleFormats(const CodecFormat& codec) const;
};

/// All containers that this build of the libraries has encoders for.
const std::vector<ContainerFormat>& Containers();
/// The one of these with that name; null when there is none.
const ContainerFormat* FindContainer(const std::string& name);
/// The container that the suffix of \a path chooses, be there encoders for it or not; null for
/// another suffix.
const ContainerFormat* ContainerOfPath(const QString& path);

/// The encoder of a codec, for sound of that sample format; null when this build of the libraries
/// has none.
const AVCodec* FindEncoder(const CodecFormat& codec, const ContainerFormat& container,
                           const std::string& sampleFormat);

/// The pixel format and the profile that options choose for a codec; both follow from each other.
struct PixelChoice
{
    std::string pixelFormat;
    std::string profile;
};
PixelChoice ChoosePixels(const CodecFormat& codec, const EncodeOptions& options);
bool HasAlpha(const std::string& pixelFormat);
/// Bits of a component.
int DepthOf(const std::string& pixelFormat);

/// Why \a options cannot be combined in \a container, in English; empty when nothing is known
/// against it.
QString ComplaintAbout(const EncodeOptions& options, const ContainerFormat& container);

/// Settings that belong together, under a name, which is its title in English too.
struct EncodePreset
{
    const char* name;
    EncodeOptions options;
};
/// Those that this build of the libraries has encoders for.
const std::vector<EncodePreset>& EncodePresets();

} // namespace nle

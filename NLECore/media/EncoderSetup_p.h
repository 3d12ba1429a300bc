// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/EncodeFormats.h"
#include "NLECore/media/MediaFile_p.h"
#include "NLECore/media/MediaWriter.h"

namespace nle {

/// What a film is written into and with. Containers that are not in the list of formats have no
/// formats here, only what the library chooses for them.
struct EncodePlan
{
    const AVOutputFormat* muxer = nullptr;
    const ContainerFormat* container = nullptr;
    const CodecFormat* videoFormat = nullptr;
    const CodecFormat* audioFormat = nullptr;
    const AVCodec* video = nullptr; ///< null: no pictures
    const AVCodec* audio = nullptr; ///< null: no sound
    bool isSequence = false;        ///< a file of each picture
};

/// The plan for a path; false when nothing can be written so, \a error then tells why.
bool MakePlan(const QString& path, const WriterSettings& settings, EncodePlan* plan,
              WriterError* error);

/// Prepares an encoder of pictures, which is to be opened then, for settings that the formats of
/// \a plan do not refuse.
void SetUpVideo(AVCodecContext* codec, const EncodePlan& plan, const WriterSettings& settings);
/// The same for sound.
void SetUpAudio(AVCodecContext* codec, const EncodePlan& plan, const WriterSettings& settings);
/// What options become with encoders of pictures and of sound, null for none, that have been
/// opened.
EncodeOptions SettledOptions(const EncodeOptions& options, const EncodePlan& plan,
                             const AVCodecContext* video, const AVCodecContext* audio);

} // namespace nle

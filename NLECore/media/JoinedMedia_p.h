// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/AudioDecoder.h"
#include "NLECore/media/PictureSource_p.h"

#include <memory>
#include <vector>

namespace nle {

/// The description of recordings that follow each other in one file, at the rate of the first:
/// lengths are sums. \a parts is not empty; null when the first has no picture and sound.
std::shared_ptr<const MediaInfo> JoinMedia(std::vector<std::shared_ptr<const MediaInfo>> parts);

/// Opens the pictures of \a info, which has parts.
std::unique_ptr<PictureSource> OpenJoinedPictures(const std::shared_ptr<const MediaInfo>& info,
                                                  int stream, QString* error);

/// The sound of joined recordings. One object serves one thread at a time.
class JoinedSound
{
public:
    /// \a stream is that of \a info, which has parts; recordings without such a stream are silent.
    JoinedSound(const std::shared_ptr<const MediaInfo>& info, int stream);

    /// As AudioDecoder::Read, for arguments that make sense and a target that is silent.
    int Read(std::int64_t firstSample, int count, int sampleRate, int channels, float* interleaved);

private:
    struct Part
    {
        std::shared_ptr<const MediaInfo> info;
        std::int64_t startUs = 0;
        bool isTried = false;
        std::unique_ptr<AudioDecoder> decoder;
    };
    AudioDecoder* DecoderOf(Part* part) const;

    const int m_stream;
    std::vector<Part> m_parts;
};

} // namespace nle

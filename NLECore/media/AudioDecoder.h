// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/MediaInfo.h"

#include <cstdint>
#include <memory>

namespace nle {

/// Samples of one audio stream of one file at exact positions.
///
/// Positions count from MediaInfo::originUs, that is from the first picture where there is one.
/// One object serves one thread at a time.
class AudioDecoder
{
public:
    /// Opens \a stream of the file of \a info. Gives null on failure; then \a error, when not
    /// null, receives one English sentence.
    static std::unique_ptr<AudioDecoder> Open(std::shared_ptr<const MediaInfo> info, int stream,
                                              QString* error);
    ~AudioDecoder();
    AudioDecoder(const AudioDecoder&) = delete;
    AudioDecoder& operator=(const AudioDecoder&) = delete;

    /// Writes \a count sample groups from position \a firstSample on, both counted at
    /// \a sampleRate, as floats from -1 to 1 with \a channels interleaved, into \a interleaved
    /// (room for count * channels). The part outside the stream is silence. A mono stream goes to
    /// all channels at its level; a mix to fewer channels is scaled so that it cannot overflow.
    /// Reads that follow each other continue without a seek. Gives the number of groups up to
    /// the end of the stream, 0 when all was silence outside of it; -1, and nothing is written,
    /// for arguments that make no sense.
    int Read(std::int64_t firstSample, int count, int sampleRate, int channels, float* interleaved);

    /// The description that the decoder was opened with.
    const std::shared_ptr<const MediaInfo>& Info() const;
    /// Index of the stream being decoded.
    int StreamIndex() const;

private:
    struct Private;
    explicit AudioDecoder(std::unique_ptr<Private> state);
    std::unique_ptr<Private> d;
};

} // namespace nle

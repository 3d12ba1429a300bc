// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/Deinterlacer.h"
#include "NLECore/media/MediaInfo.h"

#include <QImage>
#include <QSize>

#include <memory>

struct AVFrame;

namespace nle {

/// How finely the colours of a picture are kept.
enum class PictureDepth : std::int32_t
{
    Usual, ///< 8 bits of a component, Format_ARGB32
    Deep   ///< 16 bits of a component, Format_RGBA64
};

/// Exact pictures of one video stream of one file.
///
/// Frame N shows the last picture whose time, in frames of the stream's rate and rounded, is not
/// after N; so a picture holds until the next one, over gaps as well. A picture stays valid beyond
/// the end of the data for its own duration, at least for two frames, which makes up for a frame
/// count that was only estimated. One object serves one thread at a time.
class FrameDecoder
{
public:
    /// Opens \a stream of the file of \a info. Gives null on failure; then \a error, when not
    /// null, receives one English sentence. \a threads is the number of decoding threads; 0 lets
    /// the decoder choose.
    static std::unique_ptr<FrameDecoder> Open(std::shared_ptr<const MediaInfo> info, int stream,
                                              QString* error, int threads = 0);
    ~FrameDecoder();
    FrameDecoder(const FrameDecoder&) = delete;
    FrameDecoder& operator=(const FrameDecoder&) = delete;

    /// Picture of \a frame (from 0), scaled to \a size without regard to its aspect, upright, in
    /// the colours of a project (ITU-R BT.709) with straight alpha. Null for a negative frame, an
    /// empty size, past the end of the data, and when nothing could be decoded. A still picture is
    /// the same for every frame. A picture that is damaged in the file leaves the one before it in
    /// place. Which pictures are deinterlaced \a deinterlacing says; frame N shows picture N then
    /// as well.
    QImage Picture(int frame, const QSize& size, const Deinterlacing& deinterlacing = {},
                   PictureDepth depth = PictureDepth::Usual);

    /// The picture of \a frame as it was decoded and deinterlaced, valid until the next call; null
    /// where Picture gives none, when it does not stand upright as it is or has other colours than
    /// a project, and of what is no film.
    const AVFrame* Decoded(int frame, const Deinterlacing& deinterlacing = {});

    /// Frame number of the picture decoded last; -1 when none was yet.
    int Position() const;
    /// The description that the decoder was opened with.
    const std::shared_ptr<const MediaInfo>& Info() const;
    /// Index of the stream being decoded.
    int StreamIndex() const;
    /// False when the file was changed or replaced since it was opened here.
    bool IsFileUnchanged() const;

private:
    struct Private;
    explicit FrameDecoder(std::unique_ptr<Private> state);
    std::unique_ptr<Private> d;
};

} // namespace nle

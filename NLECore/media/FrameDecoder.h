// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/Deinterlacer.h"
#include "NLECore/media/MediaInfo.h"

#include <QImage>
#include <QSize>

#include <atomic>
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
///
/// A step back decodes the group of pictures once and keeps it in KeptPictures(), from where the
/// next steps back are served. Playing forward keeps nothing, and gives up what was kept when it
/// has left it behind.
class FrameDecoder
{
public:
    /// Going back over so many frames at the most counts as stepping back.
    static constexpr int kStepBack = 32;

    /// Opens \a stream of the file of \a info. Gives null on failure; then \a error, when not
    /// null, receives one English sentence. \a threads is the number of decoding threads; 0 lets
    /// the decoder choose. With \a hardware the graphics hardware decodes; where it cannot, and
    /// from where it fails on, software does, without losing a picture.
    static std::unique_ptr<FrameDecoder> Open(std::shared_ptr<const MediaInfo> info, int stream,
                                              QString* error, int threads = 0,
                                              bool hardware = false);
    ~FrameDecoder();
    FrameDecoder(const FrameDecoder&) = delete;
    FrameDecoder& operator=(const FrameDecoder&) = delete;

    /// Picture of \a frame (from 0), scaled to \a size without regard to its aspect, upright, in
    /// the colours of a project (ITU-R BT.709) with straight alpha. Null for a negative frame, an
    /// empty size, past the end of the data, and when nothing could be decoded. A still picture is
    /// the same for every frame. A picture that is damaged in the file leaves the one before it in
    /// place. Which pictures are deinterlaced \a deinterlacing says; frame N shows picture N then
    /// as well. Null too when \a stop is set meanwhile; it is read while decoding and may be null.
    QImage Picture(int frame, const QSize& size, const Deinterlacing& deinterlacing = {},
                   PictureDepth depth = PictureDepth::Usual,
                   const std::atomic<bool>* stop = nullptr);

    /// A picture for \a frame that takes no more than one decoded picture: that of Picture where it
    /// is at hand or the next one, else the nearest one that is at hand or the key frame before.
    /// \a isExact tells which. Null where Picture gives none.
    QImage NearPicture(int frame, const QSize& size, bool* isExact,
                       const Deinterlacing& deinterlacing = {},
                       PictureDepth depth = PictureDepth::Usual);

    /// The picture of \a frame as it was decoded and deinterlaced, valid until the next call; null
    /// where Picture gives none, when it does not stand upright as it is or has other colours than
    /// a project, and of what is no film.
    const AVFrame* Decoded(int frame, const Deinterlacing& deinterlacing = {});

    /// Frame number of the picture on show; -1 when none was decoded yet.
    int Position() const;
    /// Whether Picture gives \a frame without decoding.
    bool Holds(int frame) const;
    /// Whether it was opened for hardware, even if software decodes.
    bool IsForHardware() const;
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

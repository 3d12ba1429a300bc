// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/FrameDecoder.h"

#include <QImage>
#include <QSize>

#include <memory>

namespace nle {

/// Pictures of what is no single film to libavcodec: stills, drawings, image sequences, animations
/// that another library reads, recordings that were joined. One object serves one thread at a time.
class PictureSource
{
public:
    virtual ~PictureSource() = default;

    /// Opens \a stream of what \a info describes. Null on failure, with one English sentence in
    /// \a error unless that is null.
    static std::unique_ptr<PictureSource> Open(const std::shared_ptr<const MediaInfo>& info,
                                               int stream, QString* error);
    /// Whether \a info describes what is read here and not as a film.
    static bool Reads(const MediaInfo& info);

    /// Picture of \a frame (from 0) at \a size, which is not empty, upright, with straight alpha;
    /// null past the end and when it cannot be read. What has no more than 8 bits of a component,
    /// and no fields, is the same for every \a deinterlacing and \a depth, as Format_ARGB32.
    virtual QImage Picture(int frame, const QSize& size, const Deinterlacing& deinterlacing,
                           PictureDepth depth) = 0;
};

} // namespace nle

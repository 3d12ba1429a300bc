// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/Deinterlacer.h"
#include "NLECore/media/FrameDecoder.h"

#include <QImage>

#include <deque>
#include <memory>

namespace nle {

/// Pictures of media that were drawn for the last frames. After an edit these frames are drawn
/// again, when the decoders have gone on already. One object serves one thread.
class PictureTrail
{
public:
    struct Key
    {
        std::shared_ptr<const MediaInfo> media;
        int stream;
        int frame; ///< of the stream
        QSize size;
        Deinterlacing deinterlacing;
        PictureDepth depth;
    };

    /// The next frame is drawn; pictures that were last used kFrames before are given up.
    void BeginFrame();
    /// Null when it is not there.
    QImage Find(const Key& key);
    /// The oldest make room.
    void Add(const Key& key, const QImage& image);

private:
    struct Entry
    {
        Key key;
        QImage image;
        std::int64_t used;
    };
    static constexpr std::int64_t kFrames = 12;
    static constexpr std::int64_t kMostBytes = std::int64_t(128) << 20;

    std::int64_t m_frame = 0;
    std::int64_t m_bytes = 0;
    std::deque<Entry> m_entries; ///< in the order in which they were added
};

} // namespace nle

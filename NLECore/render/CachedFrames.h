// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/render/ChunkStore.h"

namespace nle {

/// Reads pictures of one snapshot from the cache. One object serves one thread; it keeps the chunk
/// that is playing open.
class CachedFrames
{
public:
    CachedFrames(std::shared_ptr<const ChunkPlan> plan, std::shared_ptr<ChunkStore> store);

    /// The picture of frame \a frame scaled to \a size; null when it is not in the cache.
    QImage Picture(std::int64_t frame, const QSize& size);

private:
    bool OpenChunkOf(std::int64_t frame);

    const std::shared_ptr<const ChunkPlan> m_plan;
    const std::shared_ptr<ChunkStore> m_store;
    const Chunk* m_chunk = nullptr; ///< the one that is open
    std::unique_ptr<ChunkReader> m_reader;
    std::unique_ptr<PictureDecoder> m_decoder;
};

} // namespace nle

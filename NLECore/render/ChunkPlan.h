// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/PictureCodec.h"
#include "NLECore/scene/LayerKey.h"

#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace nle {

/// What cached pictures are like.
struct CacheFormat
{
    QSize size;        ///< the frame that pictures are fitted into
    int quality = 850; ///< thousandths
};

/// Consecutive frames that are cached together.
struct Chunk
{
    int first = 0;
    int last = -1; ///< inclusive
    ContentKey key;

    int Length() const { return last - first + 1; }
};

/// Keys that must stay.
using KeySet = std::unordered_set<ContentKey, ContentKeyHash>;

/// What of a snapshot is to be cached: chunks of all frames that show something, in order.
///
/// A chunk belongs to the lowest layer that shows in it. Its borders are every kFrames frames of
/// that layer's material, and where the lowest layer changes; layers above have no influence. Its
/// key is made of what shows in it, relative to its first frame. So an edit changes the chunks
/// that the clip shows in, and clips that move together keep their chunks. Never changes once made.
class ChunkPlan
{
public:
    /// Frames of a whole chunk.
    static constexpr int kFrames = 50;
    /// Frames of a timeline that are cached at the most; what comes after is rendered anew.
    static constexpr int kMostFrames = 10'000'000;

    ChunkPlan(Snapshot root, const CacheFormat& format);

    const std::vector<Chunk>& Chunks() const { return m_chunks; }
    /// The chunk that holds \a frame, or null.
    const Chunk* At(std::int64_t frame) const;
    /// Frames of all chunks.
    std::int64_t FrameCount() const { return m_frameCount; }
    KeySet Keys() const;
    /// What stands in the files for the timeline; none where the host has no name for it.
    std::optional<ContentKey> Owner() const;
    /// The key that \a chunk has with the media files as they are now.
    ContentKey CurrentKey(const Chunk& chunk) const;

    const Snapshot& Root() const { return m_root; }
    const CacheFormat& Format() const { return m_format; }
    /// How the pictures are encoded.
    PictureCoding Coding() const;

private:
    /// Frames of a composite that one of its children shows in.
    struct Span
    {
        std::int64_t begin;
        std::int64_t end;         ///< exclusive
        std::int64_t furthestEnd; ///< of this span and those before it
        const Layer* layer;
        int order; ///< in the stack, from below
    };
    /// The children of a composite that show a picture, by begin.
    using Spans = std::vector<Span>;

    /// Frames with one lowest layer.
    struct Run
    {
        std::int64_t begin;
        std::int64_t end; ///< exclusive
        const Span* base;
    };

    void AddSpans(const Layer& composite);
    static std::vector<Run> FindRuns(const Spans& spans);
    void AddChunks(const Run& run, LayerKeys& layers);
    ContentKey KeyOf(const Chunk& chunk, LayerKeys& layers) const;
    void AddChildren(ContentHash& hash, const Layer& composite, std::int64_t first,
                     std::int64_t last, LayerKeys& layers) const;
    /// The transitions of a composite that change frames of it from \a first to \a last, in which
    /// \a showing, the lowest first, show.
    static void AddTransitions(ContentHash& hash, const Layer& composite,
                               const std::vector<const Span*>& showing, std::int64_t first,
                               std::int64_t last);

    const Snapshot m_root;
    const CacheFormat m_format;
    std::unordered_map<const Layer*, Spans> m_spans;
    ContentKey m_rootKey;
    std::vector<Chunk> m_chunks;
    std::int64_t m_frameCount = 0;
};

} // namespace nle

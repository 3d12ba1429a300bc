// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <cstdint>
#include <memory>

struct AVFrame;

namespace nle {

/// Decoded pictures that decoders keep for stepping back, bounded in bytes across all of them.
///
/// Pictures are copies in the decoder's own format, in memory of their own: what is given up goes
/// back to the system, and not to the pool of a decoder. The one unused for the longest time makes
/// room for the next, whosever it is. May be used from any thread.
class PictureCache
{
    struct Shared;

public:
    using Picture = std::shared_ptr<const AVFrame>;

    /// The pictures of one decoder, which all go with it. May outlive the cache.
    class Shelf
    {
    public:
        explicit Shelf(const PictureCache& cache);
        ~Shelf();
        Shelf(const Shelf&) = delete;
        Shelf& operator=(const Shelf&) = delete;

        /// Keeps a copy of \a picture for the frames from \a first to \a last. Nothing is kept
        /// without room or memory for it, and of pictures that are not in system memory.
        void Keep(const AVFrame& picture, std::int64_t first, std::int64_t last) noexcept;
        /// The picture of \a frame, now the one used last; null when it is not kept.
        Picture Find(std::int64_t frame);
        bool Has(std::int64_t frame) const;
        /// The picture that is kept for the frame nearest to \a frame, with that frame in \a found;
        /// null when nothing is kept.
        Picture FindNearest(std::int64_t frame, std::int64_t* found);
        /// How many pictures like \a picture the cache has room for; 0 when it keeps none of them.
        std::int64_t CapacityFor(const AVFrame& picture) const;
        void Clear();

    private:
        friend class PictureCache;
        struct Index;
        const std::shared_ptr<Shared> m_shared;
        const std::unique_ptr<Index> m_index;
    };

    explicit PictureCache(std::int64_t maxBytes);
    ~PictureCache();
    PictureCache(const PictureCache&) = delete;
    PictureCache& operator=(const PictureCache&) = delete;

    /// The bound, at least 0; what is beyond it is given up at once.
    void SetMaxBytes(std::int64_t maxBytes);
    std::int64_t MaxBytes() const;
    /// Bytes of the pictures that are kept now.
    std::int64_t Bytes() const;
    /// Gives all pictures up.
    void Clear();

private:
    const std::shared_ptr<Shared> m_shared;
};

/// The engine's own, of all its decoders; 512 MiB unless a host sets another bound.
PictureCache& KeptPictures();

} // namespace nle

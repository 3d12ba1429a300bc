// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/FrameDecoder.h"

#include <cstdint>
#include <memory>

namespace nle {

/// What a decoder is kept for. Decoders of one purpose are never given out for another, so
/// scrolling through thumbnails does not move the play position of a render.
enum class DecodePurpose : std::int32_t
{
    Thumbnail = 0,
    Render = 1
};

/// Bounded set of open decoders, shared by all threads.
///
/// Acquire() lends a decoder to one user at a time; the lease gives it back when it goes away.
/// Decoders that are not lent stay open for the next user until the bound is reached, then the one
/// unused for the longest time is closed. Lent decoders count towards the bound but are never
/// closed, so more than the bound may be open while more are in use.
class DecoderPool
{
    struct Shared;

public:
    /// Exclusive use of one decoder. May outlive the pool. Movable, not copyable.
    class Lease
    {
    public:
        Lease() = default;
        ~Lease();
        Lease(Lease&& other) noexcept;
        Lease& operator=(Lease&& other) noexcept;

        /// False for a lease that holds no decoder.
        explicit operator bool() const { return m_decoder != nullptr; }
        FrameDecoder* operator->() const { return m_decoder.get(); }
        FrameDecoder& operator*() const { return *m_decoder; }
        /// Gives the decoder back at once; the lease is empty afterwards.
        void Release();

    private:
        friend class DecoderPool;
        std::shared_ptr<Shared> m_pool;
        std::unique_ptr<FrameDecoder> m_decoder;
        DecodePurpose m_purpose = DecodePurpose::Thumbnail;
        std::uint64_t m_generation = 0;
    };

    /// \a maxOpen is the bound of open decoders, at least 1; \a threads are those of a decoder, 0
    /// lets it choose.
    explicit DecoderPool(int maxOpen = 8, int threads = 0);
    ~DecoderPool();
    DecoderPool(const DecoderPool&) = delete;
    DecoderPool& operator=(const DecoderPool&) = delete;

    /// Lends a decoder for \a stream of the file of \a info: the idle one that holds \a wantedFrame
    /// or stands closest before it, else another idle one, else a new one. With \a hardware it is
    /// one that was opened so, see FrameDecoder::Open(). An idle decoder whose file
    /// was replaced on disk is closed instead. On failure the lease is empty and \a error, when
    /// not null, receives one English sentence.
    Lease Acquire(const std::shared_ptr<const MediaInfo>& info, int stream, DecodePurpose purpose,
                  int wantedFrame, QString* error = nullptr, bool hardware = false);

    /// Closes the idle decoders of the file at \a path, whatever name they know it by; those in
    /// use are closed when they come back.
    void Drop(const QString& path);
    /// Closes all idle decoders; those in use are closed when they come back.
    void Clear();

    /// Number of open decoders that are not lent.
    int IdleCount() const;
    /// Number of open decoders, lent ones included.
    int OpenCount() const;

private:
    std::shared_ptr<Shared> m_shared;
};

/// The engine's open decoders, shared by all extractors and renders.
DecoderPool& Decoders();

} // namespace nle

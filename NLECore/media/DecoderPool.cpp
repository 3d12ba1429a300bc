// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/DecoderPool.h"

#include <algorithm>
#include <list>
#include <map>
#include <mutex>
#include <new>

namespace nle {

namespace {

/// Be it under another name, or with another content.
bool IsSameFile(const FileStamp& a, const FileStamp& b)
{
    return a.size >= 0 && b.size >= 0 && a.volume == b.volume && a.file == b.file;
}

} // namespace

/// State of the pool; lives as long as the pool or any lease of it.
struct DecoderPool::Shared
{
    struct Idle
    {
        std::unique_ptr<FrameDecoder> decoder;
        DecodePurpose purpose;
    };
    /// The one used last stands first.
    using IdleList = std::list<Idle>;

    mutable std::mutex mutex;
    IdleList idle;
    /// Number of the last Drop() of each path, and of the last Clear(). A lease that began before
    /// does not give its decoder back.
    std::map<QString, std::uint64_t> dropped;
    std::uint64_t cleared = 0;
    std::uint64_t generation = 0;
    int lentCount = 0;
    int maxOpen = 8;
    int threads = 0;
    bool isClosed = false;

    IdleList TakeSurplus(int room);
    IdleList TakeMatching(const MediaInfo& info, int stream, DecodePurpose purpose, int wanted,
                          bool hardware);
    /// Without memory for it the decoder is closed.
    void Keep(Idle entry) noexcept;
    bool WasDropped(const QString& path, std::uint64_t since) const;
};

// The functions of Shared need the lock. They hand out what is to be closed, as closing a file
// takes time and is done after the lock was given up.

DecoderPool::Shared::IdleList DecoderPool::Shared::TakeSurplus(int room)
{
    IdleList surplus;
    while (!idle.empty() && int(idle.size()) + lentCount + room > maxOpen)
        surplus.splice(surplus.begin(), idle, std::prev(idle.end()));
    return surplus;
}

// The one that holds the wanted frame, else the one closest before it, else the one that stands the
// least after it. A step back goes to the decoder that keeps pictures for the next ones.
DecoderPool::Shared::IdleList DecoderPool::Shared::TakeMatching(const MediaInfo& info, int stream,
                                                                DecodePurpose purpose, int wanted,
                                                                bool hardware)
{
    const auto cost = [wanted](const Idle& entry) {
        const std::int64_t distance = std::int64_t(wanted) - entry.decoder->Position();
        if (distance >= 0 || entry.decoder->Holds(wanted))
            return std::max<std::int64_t>(0, distance);
        const bool isStep = -distance <= FrameDecoder::kStepBack;
        return (isStep ? FrameDecoder::kStepBack : std::int64_t(1) << 32) - distance;
    };
    auto best = idle.end();
    for (auto entry = idle.begin(); entry != idle.end(); ++entry) {
        const MediaInfo& other = *entry->decoder->Info();
        const bool isSame = entry->purpose == purpose && other.path == info.path &&
                            entry->decoder->StreamIndex() == stream &&
                            entry->decoder->IsForHardware() == hardware &&
                            other.stamp == info.stamp;
        if (isSame && (best == idle.end() || cost(*entry) < cost(*best)))
            best = entry;
    }
    IdleList taken;
    if (best != idle.end())
        taken.splice(taken.begin(), idle, best);
    return taken;
}

void DecoderPool::Shared::Keep(Idle entry) noexcept
{
    try {
        idle.push_front(std::move(entry));
    } catch (const std::bad_alloc&) {
    }
}

bool DecoderPool::Shared::WasDropped(const QString& path, std::uint64_t since) const
{
    const auto entry = dropped.find(path);
    return isClosed || cleared > since || (entry != dropped.end() && entry->second > since);
}

DecoderPool::Lease::~Lease()
{
    Release();
}

DecoderPool::Lease::Lease(Lease&& other) noexcept = default;

DecoderPool::Lease& DecoderPool::Lease::operator=(Lease&& other) noexcept
{
    if (this != &other) {
        Release();
        m_pool = std::move(other.m_pool);
        m_decoder = std::move(other.m_decoder);
        m_purpose = other.m_purpose;
        m_generation = other.m_generation;
    }
    return *this;
}

void DecoderPool::Lease::Release()
{
    if (!m_pool)
        return;
    Shared::IdleList surplus;
    {
        const std::lock_guard<std::mutex> lock(m_pool->mutex);
        --m_pool->lentCount;
        if (m_decoder && !m_pool->WasDropped(m_decoder->Info()->path, m_generation))
            m_pool->Keep({std::move(m_decoder), m_purpose});
        surplus = m_pool->TakeSurplus(0);
    }
    m_decoder.reset();
    m_pool.reset();
}

DecoderPool::DecoderPool(int maxOpen, int threads) : m_shared(std::make_shared<Shared>())
{
    m_shared->threads = threads;
    m_shared->maxOpen = std::max(1, maxOpen);
}

DecoderPool::~DecoderPool()
{
    Clear();
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    m_shared->isClosed = true;
}

DecoderPool::Lease DecoderPool::Acquire(const std::shared_ptr<const MediaInfo>& info, int stream,
                                        DecodePurpose purpose, int wantedFrame, QString* error,
                                        bool hardware)
{
    Lease lease;
    if (!info) {
        if (error != nullptr)
            *error = QStringLiteral("no media");
        return lease;
    }
    lease.m_purpose = purpose;
    Shared::IdleList surplus;
    bool isReusable = true;
    while (isReusable && !lease.m_decoder) {
        Shared::IdleList taken;
        {
            const std::lock_guard<std::mutex> lock(m_shared->mutex);
            taken = m_shared->TakeMatching(*info, stream, purpose, wantedFrame, hardware);
            isReusable = !taken.empty();
            lease.m_generation = m_shared->generation;
            if (!isReusable)
                surplus = m_shared->TakeSurplus(1);
            ++m_shared->lentCount;
            lease.m_pool = m_shared;
        }
        surplus.clear();
        if (!isReusable)
            lease.m_decoder = FrameDecoder::Open(info, stream, error, m_shared->threads, hardware);
        else if (taken.front().decoder->IsFileUnchanged())
            lease.m_decoder = std::move(taken.front().decoder);
        if (!lease.m_decoder)
            lease.Release();
    }
    return lease;
}

void DecoderPool::Drop(const QString& path)
{
    const FileStamp stamp = StampOf(path);
    Shared::IdleList closing;
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    // Without a lease nothing can come back later, so nothing need be remembered.
    if (m_shared->lentCount == 0)
        m_shared->dropped.clear();
    else
        m_shared->dropped[path] = ++m_shared->generation;
    for (auto entry = m_shared->idle.begin(); entry != m_shared->idle.end();) {
        const auto next = std::next(entry);
        const MediaInfo& info = *entry->decoder->Info();
        if (info.path == path || IsSameFile(info.stamp, stamp))
            closing.splice(closing.end(), m_shared->idle, entry);
        entry = next;
    }
}

void DecoderPool::Clear()
{
    Shared::IdleList closing;
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    m_shared->cleared = ++m_shared->generation;
    closing.swap(m_shared->idle);
}

int DecoderPool::IdleCount() const
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    return int(m_shared->idle.size());
}

int DecoderPool::OpenCount() const
{
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    return int(m_shared->idle.size()) + m_shared->lentCount;
}

DecoderPool& Decoders()
{
    static DecoderPool s_pool;
    return s_pool;
}

} // namespace nle

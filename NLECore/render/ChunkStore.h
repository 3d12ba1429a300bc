// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/FileClaim.h"
#include "NLECore/render/ChunkFile.h"
#include "NLECore/render/ChunkPlan.h"

#include <memory>
#include <mutex>
#include <unordered_map>
#include <utility>

namespace nle {

/// How much a cache may take, in bytes.
struct CacheLimits
{
    std::int64_t quota = 0;   ///< the most that all chunks of the folder fill
    std::int64_t reserve = 0; ///< what stays free on the disk
};

/// The chunks in one folder, which may hold other files as well. All timelines of the process that
/// use the folder share one object. Any thread.
class ChunkStore
{
public:
    enum class Room
    {
        Enough,
        LowDisk,
        QuotaReached
    };

    /// Room that several threads cannot take twice. It goes back when the object ends, unless the
    /// store, which outlives it, has got it in Add.
    class Reservation
    {
    public:
        Reservation(Reservation&& other) noexcept
            : m_store(other.m_store)
            , m_outcome(other.m_outcome)
            , m_size(std::exchange(other.m_size, 0))
        {
        }
        Reservation(const Reservation&) = delete;
        Reservation& operator=(const Reservation&) = delete;
        ~Reservation();

        /// Whether there is room.
        Room Outcome() const { return m_outcome; }

    private:
        friend ChunkStore;
        Reservation(ChunkStore& store, Room outcome, std::int64_t size)
            : m_store(store), m_outcome(outcome), m_size(outcome == Room::Enough ? size : 0)
        {
        }

        ChunkStore& m_store;
        const Room m_outcome;
        std::int64_t m_size; ///< what is reserved, in bytes
    };

    /// The object of the folder at \a path, which need not be there yet.
    static std::shared_ptr<ChunkStore> Of(const QString& path);
    ~ChunkStore();

    /// Makes the folder where it is missing; the next Refresh takes stock of it. False when nothing
    /// can be written there.
    bool Prepare();
    /// Takes stock of the folder unless that has been done; forgets all when it is gone.
    void EnsureListed();
    /// Takes stock of the folder when it may have changed since.
    void Refresh();

    bool Has(const ContentKey& key) const;
    /// Frames of \a chunks that are here.
    std::int64_t CountFrames(const std::vector<Chunk>& chunks) const;
    /// Removes the chunks used least lately until \a wanted more bytes go into \a limits; those of
    /// \a keep stay, and what other processes have lately written.
    Room MakeRoom(const CacheLimits& limits, std::int64_t wanted, const KeySet& keep);
    /// The same, and keeps the room: several threads fill one quota.
    Reservation Reserve(const CacheLimits& limits, std::int64_t wanted, const KeySet& keep);
    /// The chunk was written, as large as was reserved. When other processes have used up the quota
    /// meanwhile, this makes room as MakeRoom() does, or removes the chunk.
    Room Add(const ContentKey& key, Reservation reserved, const CacheLimits& limits,
             const KeySet& keep);

    /// Opens a chunk for reading; null when it is not here. A damaged one is removed.
    std::unique_ptr<ChunkReader> Read(const ContentKey& key);
    /// Removes a chunk.
    void Remove(const ContentKey& key);
    /// Removes what was rendered for a timeline, whenever that was.
    void RemoveOf(const ChunkOwner& owner);
    /// Removes all chunks and what else was made here. The folder goes as well when nothing else is
    /// in it, unless it was there for something else.
    void Clear();
    /// The same with the folder when no chunk is left.
    void RemoveEmptyFolder();

    const QString& Folder() const { return m_folder; }
    QString PathOf(const ContentKey& key) const;
    bool IsFolderThere() const;
    /// Bytes that the disk has left; below 0 when that is not known.
    std::int64_t FreeSpace() const;

private:
    struct Entry
    {
        std::int64_t size = 0;
        std::int64_t lastUse = 0; ///< milliseconds since 1970
        bool isOthers = false;    ///< another process has written it while this one was at work
    };

    static constexpr std::int64_t kUnknownState = -1;

    explicit ChunkStore(const QString& folder) : m_folder(folder) {}
    QString InFolder(const QString& name) const { return m_folder + QLatin1Char('/') + name; }
    // The functions below need the lock.
    Room FindRoom(const CacheLimits& limits, std::int64_t wanted, const KeySet& keep);
    void List();
    void Claim();
    bool IsShared();
    void LeaveFolder();
    void RemoveFolder();
    bool Evict(std::int64_t bytes, const KeySet& keep);
    void Drop(const ContentKey& key);

    const QString m_folder;
    struct Guarded
    {
        std::unordered_map<ContentKey, Entry, ContentKeyHash> entries;
        std::int64_t used = 0;
        std::int64_t reserved = 0;
        bool isListed = false;
        bool wasListed = false; ///< ever
        std::int64_t listedState =
            kUnknownState;         ///< the folder's time of change when it was listed
        bool isFolderOurs = false; ///< was missing or empty
        bool isMarked = false;     ///< this process has left the mark of IsShared()
        std::unique_ptr<FileClaim> claim;
    };
    mutable std::mutex m_mutex; ///< guards m_guarded
    Guarded m_guarded;
};

} // namespace nle

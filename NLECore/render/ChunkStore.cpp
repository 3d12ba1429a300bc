// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/ChunkStore.h"

#include "Com/ComGuard.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QStorageInfo>

#include <algorithm>
#include <map>

namespace nle {

namespace {

const QLatin1String kSuffix(".nlechunk");
const QLatin1String kClaimName("nlechunks.lock");
const QLatin1String kSharedName("nlechunks.shared");
/// Coarsest time of change that file systems keep, in milliseconds.
constexpr std::int64_t kTimeGrain = 2000;

/// How long what another process has written is not removed for new chunks, in milliseconds. Two
/// that fill one quota would else remove each other's work for as long as they run.
constexpr std::int64_t kOthersTime = std::int64_t(5) * 60 * 1000;

/// Name of a chunk.
const QRegularExpression& NamePattern()
{
    static const QRegularExpression pattern(
        QStringLiteral("^([0-9a-f]{16})([0-9a-f]{16})\\.nlechunk$"));
    return pattern;
}

std::int64_t Now()
{
    return QDateTime::currentMSecsSinceEpoch();
}

/// Calls \a visit with each file of ours: key, whether it is whole, and where the file is found.
template <typename Visit>
void ForEachFile(const QString& folder, Visit visit)
{
    QDirIterator files(folder, QDir::Files | QDir::Hidden);
    while (files.hasNext()) {
        files.next();
        const QString becomes = WholeFile::NameOf(files.fileName());
        const bool isWhole = becomes.isEmpty();
        const QRegularExpressionMatch name =
            NamePattern().match(isWhole ? files.fileName() : becomes);
        if (!name.hasMatch())
            continue;
        const ContentKey key{name.captured(1).toULongLong(nullptr, 16),
                             name.captured(2).toULongLong(nullptr, 16)};
        visit(key, isWhole, files);
    }
}

/// Whether the file at \a path is a chunk of \a owner. Closes it, since open ones are not removed
/// everywhere.
bool IsChunkOf(const QString& path, const ContentKey& key, const ChunkOwner& owner)
{
    const auto reader = ChunkReader::Open(path, key);
    return reader && reader->Owner() == owner;
}

} // namespace

std::shared_ptr<ChunkStore> ChunkStore::Of(const QString& path)
{
    static std::mutex s_mutex;
    // Never destroyed: timelines may outlive the objects of the module.
    static auto& s_stores = *new std::map<QString, std::weak_ptr<ChunkStore>>;
    const QString folder = QDir::cleanPath(QDir(path).absolutePath());
    const std::lock_guard<std::mutex> lock(s_mutex);
    std::weak_ptr<ChunkStore>& known = s_stores[folder];
    std::shared_ptr<ChunkStore> store = known.lock();
    if (!store)
        known = store = std::shared_ptr<ChunkStore>(new ChunkStore(folder));
    return store;
}

ChunkStore::~ChunkStore()
{
    ComGuard([this] {
        RemoveFolder();
        return S_OK;
    });
}

QString ChunkStore::PathOf(const ContentKey& key) const
{
    return InFolder(ToText(key) + kSuffix);
}

bool ChunkStore::IsFolderThere() const
{
    return QFileInfo(m_folder).isDir();
}

std::int64_t ChunkStore::FreeSpace() const
{
    return QStorageInfo(m_folder).bytesAvailable();
}

bool ChunkStore::Prepare()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!IsFolderThere() && !QDir().mkpath(m_folder))
        return false;
    m_guarded.isFolderOurs =
        m_guarded.isFolderOurs || QDir(m_folder).isEmpty(QDir::AllEntries | QDir::Hidden |
                                                         QDir::System | QDir::NoDotAndDotDot);
    if (!WholeFile(PathOf({})).open(QIODevice::WriteOnly))
        return false;
    m_guarded.listedState = kUnknownState;
    return true;
}

void ChunkStore::EnsureListed()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_guarded.isListed || !IsFolderThere())
        List();
}

void ChunkStore::Refresh()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const QFileInfo folder(m_folder);
    const std::int64_t state = folder.lastModified().toMSecsSinceEpoch();
    if (!m_guarded.isListed || !folder.isDir() || m_guarded.listedState == kUnknownState ||
        state != m_guarded.listedState)
        List();
}

// What a killed process left half written goes.
void ChunkStore::List()
{
    Claim();
    // What changes within one grain of time after this cannot be told from it.
    const std::int64_t state = QFileInfo(m_folder).lastModified().toMSecsSinceEpoch();
    m_guarded.listedState = state + kTimeGrain < Now() ? state : kUnknownState;
    // What has come since, or is here while another process has the claim, is not this one's.
    const bool isOthers = m_guarded.wasListed || !m_guarded.claim;
    std::unordered_map<ContentKey, Entry, ContentKeyHash> found;
    std::int64_t used = 0;
    ForEachFile(m_folder, [&](const ContentKey& key, bool isWhole, const QDirIterator& file) {
        if (!isWhole) {
            RemoveLeft(file.filePath());
            return;
        }
        const auto known = m_guarded.entries.find(key);
        const QFileInfo info = file.fileInfo();
        const std::int64_t written = info.lastModified().toMSecsSinceEpoch();
        const Entry entry = known != m_guarded.entries.end()
                                ? known->second
                                : Entry{info.size(), std::min(written, Now()), isOthers};
        found[key] = entry;
        used += entry.size;
    });
    m_guarded.entries.swap(found);
    m_guarded.used = used;
    m_guarded.isListed = IsFolderThere();
    m_guarded.wasListed = true;
}

void ChunkStore::Claim()
{
    if (m_guarded.claim && !QFileInfo::exists(InFolder(kClaimName)))
        m_guarded.claim.reset();
    if (m_guarded.claim || !IsFolderThere())
        return;
    m_guarded.claim = std::make_unique<FileClaim>(InFolder(kClaimName));
    if (m_guarded.claim->Take())
        QFile::remove(InFolder(kSharedName));
    else
        m_guarded.claim.reset();
}

/// Whether other processes may have written to the folder since it was last listed. The one that
/// claims it learns that from a mark, which each of the others leaves whenever it has written, and
/// takes the mark away before it lists; who has only now got the claim does not know.
bool ChunkStore::IsShared()
{
    const bool hadClaim = m_guarded.claim != nullptr;
    Claim();
    if (m_guarded.claim)
        return QFile::remove(InFolder(kSharedName)) || !hadClaim;
    m_guarded.isMarked =
        QFile(InFolder(kSharedName)).open(QIODevice::WriteOnly) || m_guarded.isMarked;
    return true;
}

/// The mark stays for the one that has the claim; who leaves last takes it away.
void ChunkStore::LeaveFolder()
{
    if (m_guarded.isMarked)
        Claim();
    if (m_guarded.claim)
        QFile::remove(InFolder(kSharedName));
    m_guarded.isMarked = false;
    m_guarded.claim.reset();
}

bool ChunkStore::Has(const ContentKey& key) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_guarded.entries.count(key) != 0;
}

std::int64_t ChunkStore::CountFrames(const std::vector<Chunk>& chunks) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::int64_t frames = 0;
    for (const Chunk& chunk : chunks)
        frames += m_guarded.entries.count(chunk.key) != 0 ? chunk.Length() : 0;
    return frames;
}

ChunkStore::Room ChunkStore::MakeRoom(const CacheLimits& limits, std::int64_t wanted,
                                      const KeySet& keep)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return FindRoom(limits, wanted, keep);
}

ChunkStore::Reservation ChunkStore::Reserve(const CacheLimits& limits, std::int64_t wanted,
                                            const KeySet& keep)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Reservation reservation(*this, FindRoom(limits, wanted, keep), wanted);
    m_guarded.reserved += reservation.m_size;
    return reservation;
}

ChunkStore::Reservation::~Reservation()
{
    if (m_size == 0)
        return;
    const std::lock_guard<std::mutex> lock(m_store.m_mutex);
    m_store.m_guarded.reserved -= m_size;
}

ChunkStore::Room ChunkStore::FindRoom(const CacheLimits& limits, std::int64_t wanted,
                                      const KeySet& keep)
{
    const std::int64_t surplus = m_guarded.used + m_guarded.reserved + wanted - limits.quota;
    if (surplus > 0 && !Evict(surplus, keep))
        return Room::QuotaReached;
    const std::int64_t free = FreeSpace();
    const std::int64_t lacking = free < 0 ? 0 : limits.reserve + wanted - free;
    return lacking <= 0 || Evict(lacking, keep) ? Room::Enough : Room::LowDisk;
}

// Removes nothing when it would not be enough.
bool ChunkStore::Evict(std::int64_t bytes, const KeySet& keep)
{
    std::vector<std::pair<std::int64_t, ContentKey>> oldest;
    std::int64_t removable = 0;
    const std::int64_t othersUntil = Now() - kOthersTime;
    for (const auto& [key, entry] : m_guarded.entries) {
        const bool isOthers = entry.isOthers && entry.lastUse > othersUntil;
        if (!isOthers && keep.count(key) == 0) {
            oldest.emplace_back(entry.lastUse, key);
            removable += entry.size;
        }
    }
    if (removable < bytes)
        return false;
    std::sort(oldest.begin(), oldest.end(),
              [](const auto& a, const auto& b) { return a.first < b.first; });
    const std::int64_t wanted = m_guarded.used - bytes;
    for (auto next = oldest.begin(); m_guarded.used > wanted && next != oldest.end(); ++next)
        Drop(next->second);
    return true;
}

// Who adds last sees what all have added, so the quota holds whenever nobody is adding. What
// another thread has listed meanwhile counts as well: it was not known when the room was reserved.
ChunkStore::Room ChunkStore::Add(const ContentKey& key, Reservation reserved,
                                 const CacheLimits& limits, const KeySet& keep)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const std::int64_t size = std::exchange(reserved.m_size, 0);
    m_guarded.reserved -= size;
    Entry& entry = m_guarded.entries[key];
    m_guarded.used += size - entry.size;
    entry = {size, Now(), false};
    if (IsShared())
        List();
    const std::int64_t surplus = m_guarded.used - limits.quota;
    if (surplus <= 0 || Evict(surplus, keep))
        return Room::Enough;
    Drop(key);
    return Room::QuotaReached;
}

std::unique_ptr<ChunkReader> ChunkStore::Read(const ContentKey& key)
{
    if (!Has(key))
        return nullptr;
    std::unique_ptr<ChunkReader> reader = ChunkReader::Open(PathOf(key), key);
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto entry = m_guarded.entries.find(key);
    if (entry == m_guarded.entries.end())
        return reader;
    if (!reader) {
        Drop(key);
        return nullptr;
    }
    entry->second.lastUse = Now();
    return reader;
}

void ChunkStore::Remove(const ContentKey& key)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_guarded.isFolderOurs = m_guarded.isFolderOurs || m_guarded.entries.count(key) != 0;
    Drop(key);
}

void ChunkStore::RemoveOf(const ChunkOwner& owner)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ForEachFile(m_folder, [&](const ContentKey& key, bool isWhole, const QDirIterator& file) {
        if (!isWhole || !IsChunkOf(file.filePath(), key, owner))
            return;
        QFile::remove(file.filePath());
        m_guarded.isFolderOurs = true;
    });
    List();
}

void ChunkStore::Drop(const ContentKey& key)
{
    const auto entry = m_guarded.entries.find(key);
    if (entry == m_guarded.entries.end())
        return;
    QFile::remove(PathOf(key));
    m_guarded.used -= entry->second.size;
    m_guarded.entries.erase(entry);
}

void ChunkStore::Clear()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    ForEachFile(m_folder, [this](const ContentKey&, bool isWhole, const QDirIterator& file) {
        if (isWhole)
            QFile::remove(file.filePath());
        else
            RemoveLeft(file.filePath());
        m_guarded.isFolderOurs = m_guarded.isFolderOurs || isWhole;
    });
    m_guarded.entries.clear();
    m_guarded.used = 0;
    RemoveFolder();
}

void ChunkStore::RemoveEmptyFolder()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_guarded.entries.empty())
        RemoveFolder();
}

void ChunkStore::RemoveFolder()
{
    LeaveFolder();
    m_guarded.isListed = false;
    if (m_guarded.isFolderOurs)
        QDir().rmdir(m_folder);
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/CacheRenderer.h"

#include "Com/ComGuard.h"
#include "Com/ThreadPriority.h"
#include "NLECore/media/EngineLog.h"
#include "NLECore/media/WorkThreads.h"
#include "NLECore/render/Composer.h"
#include "NLECore/render/TaskThread.h"

#include <algorithm>
#include <chrono>

namespace nle {

namespace {

/// More threads than that would hold more open decoders than their memory is worth.
constexpr int kMostThreads = 4;
/// Chunks are rendered side by side, so each decoder does with one thread.
constexpr int kDecoderThreads = 1;
/// Decoders that a thread holds while one clip ends and the next begins.
constexpr int kDecodersPerThread = 2;
constexpr int kLastReportTries = 100;
constexpr std::chrono::milliseconds kLastReportPause(10);

/// The state that a lack of room ends a run with.
std::optional<NLECacheState> StateOf(ChunkStore::Room room)
{
    switch (room) {
    case ChunkStore::Room::LowDisk:
        return NLECache_LowDisk;
    case ChunkStore::Room::QuotaReached:
        return NLECache_QuotaReached;
    case ChunkStore::Room::Enough:
        break;
    }
    return {};
}

} // namespace

/// What one thread keeps from chunk to chunk.
struct CacheRenderer::Worker
{
    Composer composer;
    std::unique_ptr<PictureEncoder> encoder;
    std::int64_t lastSize = 0;
};

std::unique_ptr<CacheRenderer> CacheRenderer::Start(std::shared_ptr<const ChunkPlan> plan,
                                                    std::shared_ptr<ChunkStore> store,
                                                    const CacheLimits& limits, Report report)
{
    std::unique_ptr<CacheRenderer> renderer(
        new CacheRenderer(std::move(plan), std::move(store), limits, std::move(report)));
    return renderer->StartThreads() ? std::move(renderer) : nullptr;
}

CacheRenderer::CacheRenderer(std::shared_ptr<const ChunkPlan> plan,
                             std::shared_ptr<ChunkStore> store, const CacheLimits& limits,
                             Report report)
    : m_plan(std::move(plan))
    , m_store(std::move(store))
    , m_limits(limits)
    , m_report(std::move(report))
    , m_keep(m_plan->Keys())
    , m_threadCount(WorkThreads(kMostThreads))
    , m_decoders(kDecodersPerThread * m_threadCount, kDecoderThreads)
{
    KeySet seen;
    const std::vector<Chunk>& chunks = m_plan->Chunks();
    for (int index = 0; index < int(chunks.size()); ++index) {
        const ContentKey& key = chunks[std::size_t(index)].key;
        if (!m_store->Has(key) && seen.insert(key).second)
            m_guarded.pending.insert(index);
    }
}

// The threads that start wait for the lock before they take a chunk or report.
bool CacheRenderer::StartThreads()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_threads.reserve(std::size_t(m_threadCount));
    for (int number = 0; number < m_threadCount; ++number) {
        std::thread thread = StartThread([this, number] { Run(number); });
        if (thread.joinable())
            m_threads.push_back(std::move(thread));
    }
    m_guarded.working = int(m_threads.size());
    if (m_threads.empty())
        return false;
    ReportProgress(NLECache_Caching);
    return true;
}

CacheRenderer::~CacheRenderer()
{
    m_isEnding = true;
    for (std::thread& thread : m_threads)
        thread.join();
}

void CacheRenderer::Stop()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isEnding = true;
    ReportProgress(NLECache_Stopped);
}

void CacheRenderer::Run(int number)
{
    LowerThreadPriority();
    const HRESULT result = ComGuard([&] {
        RenderChunks(number);
        return S_OK;
    });
    if (FAILED(result))
        End(NLECache_Stopped);
    EndWorker();
}

void CacheRenderer::RenderChunks(int number)
{
    const QRect place = PlaceRoot(m_plan->Root()->size, m_plan->Format().size);
    Worker worker{Composer(m_plan->Root(), m_decoders),
                  PictureEncoder::Open(place.size(), m_plan->Coding()), 0};
    // The threads begin apart, so that each finds chunks that follow one another.
    const std::int64_t count = std::int64_t(m_plan->Chunks().size());
    int last = int(count * number / m_threadCount) - 1;
    for (std::optional<int> next = Take(last); next; next = Take(last)) {
        last = *next;
        if (const auto failure = RenderChunk(m_plan->Chunks()[std::size_t(last)], worker))
            return End(*failure);
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_isEnding)
            ReportProgress(NLECache_Caching);
    }
}

// Chunks in a row need no seek, and no other decoder. Who has come to the end of a row begins in
// the middle of the longest one that is left, because another thread is working its way into it.
std::optional<int> CacheRenderer::Take(int last)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::set<int>& pending = m_guarded.pending;
    if (m_isEnding || pending.empty())
        return {};
    auto chosen = pending.find(last + 1);
    if (chosen == pending.end()) {
        std::vector<int> row;
        std::vector<int> longest;
        for (const int index : pending) {
            if (!row.empty() && index != row.back() + 1)
                row.clear();
            row.push_back(index);
            if (row.size() > longest.size())
                longest = row;
        }
        chosen = pending.find(longest[longest.size() / 2]);
    }
    const int index = *chosen;
    pending.erase(chosen);
    return index;
}

QByteArray CacheRenderer::EncodeFrame(int frame, Worker& worker) const
{
    if (!worker.encoder)
        return {};
    // A single clip needs no painting: what was decoded is scaled and encoded in its own colours.
    if (const AVFrame* plain = worker.composer.PlainPicture(frame, m_plan->Format().size)) {
        QByteArray encoded = worker.encoder->Encode(*plain);
        if (!encoded.isEmpty())
            return encoded;
    }
    QRect place;
    return worker.encoder->Encode(worker.composer.Render(frame, m_plan->Format().size, &place));
}

// A name that cannot be given, because another process has cleared the half-written file away or a
// reader holds the old one, says nothing about the other chunks.
std::optional<NLECacheState> CacheRenderer::FailureState(QFileDevice::FileError error,
                                                         std::int64_t size) const
{
    if (!m_store->IsFolderThere())
        return NLECache_FolderUnwriteable;
    const std::int64_t free = m_store->FreeSpace();
    if (error == QFileDevice::ResourceError || (free >= 0 && free < size))
        return NLECache_LowDisk;
    if (error == QFileDevice::RenameError)
        return {};
    return NLECache_FolderUnwriteable;
}

std::optional<NLECacheState> CacheRenderer::RenderChunk(const Chunk& chunk, Worker& worker)
{
    if (const auto full = StateOf(m_store->MakeRoom(m_limits, worker.lastSize, m_keep)))
        return full;
    const PictureCoding coding = m_plan->Coding();
    ChunkWriter file(m_store->PathOf(chunk.key), chunk.key, m_plan->Owner().value_or(ChunkOwner()),
                     coding.format, chunk.Length());
    if (!file.Open())
        return FailureState(QFileDevice::OpenError, file.Size());
    for (int frame = chunk.first; frame <= chunk.last; ++frame) {
        if (m_isEnding)
            return {};
        const QByteArray encoded = EncodeFrame(frame, worker);
        if (encoded.isEmpty()) {
            qCWarning(lcEngine, "frame %d cannot be cached", frame);
            return {};
        }
        if (!file.Append(encoded))
            return FailureState(file.Error(), file.Size() + encoded.size());
    }
    // Media that was written to meanwhile would stand under the key of what it was before.
    if (m_plan->CurrentKey(chunk) != chunk.key)
        return {};
    worker.lastSize = file.Size();
    ChunkStore::Reservation room = m_store->Reserve(m_limits, file.Size(), m_keep);
    if (const auto full = StateOf(room.Outcome()))
        return full;
    if (m_isEnding)
        return {};
    if (!file.Commit())
        return m_isEnding ? std::nullopt : FailureState(file.Error(), file.Size());
    return StateOf(m_store->Add(chunk.key, std::move(room), m_limits, m_keep));
}

void CacheRenderer::End(NLECacheState state)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_isEnding.exchange(true))
        ReportProgress(state);
}

void CacheRenderer::EndWorker()
{
    m_decoders.Clear();
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (--m_guarded.working == 0 && !m_isEnding.exchange(true))
        ReportProgress(NLECache_Finished);
}

void CacheRenderer::ReportProgress(NLECacheState state)
{
    Progress progress;
    progress.state = state;
    progress.totalFrames = m_plan->FrameCount();
    progress.cachedFrames = m_store->CountFrames(m_plan->Chunks());
    const std::int64_t percent =
        progress.totalFrames > 0 ? progress.cachedFrames * 100 / progress.totalFrames : 100;
    // A hundred means that the run has ended, and this one is reported before its end.
    progress.percent =
        state == NLECache_Finished ? int(percent) : int(std::min<std::int64_t>(percent, 99));
    // For lack of memory a report is left out, since a thread has nobody to throw to. The last one,
    // for which hosts wait, is tried for a second.
    const auto isTold = [&] {
        return SUCCEEDED(ComGuard([&] {
            m_report(progress);
            return S_OK;
        }));
    };
    int tries = state == NLECache_Caching ? 1 : kLastReportTries;
    while (!isTold() && --tries > 0)
        std::this_thread::sleep_for(kLastReportPause);
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEBackgroundCache.h"
#include "NLECore/media/DecoderPool.h"
#include "NLECore/render/ChunkStore.h"

#include <atomic>
#include <functional>
#include <optional>
#include <set>
#include <thread>

namespace nle {

/// One run that renders what a plan lacks, on threads of low priority.
class CacheRenderer
{
public:
    struct Progress
    {
        int percent = 0;
        NLECacheState state = NLECache_Caching;
        std::int64_t cachedFrames = 0;
        std::int64_t totalFrames = 0;
    };
    /// Called from the threads that render and from Stop, one call at a time, in order. It must not
    /// wait for anything.
    using Report = std::function<void(const Progress&)>;

    /// Starts to render; null when the system has no thread for it.
    static std::unique_ptr<CacheRenderer> Start(std::shared_ptr<const ChunkPlan> plan,
                                                std::shared_ptr<ChunkStore> store,
                                                const CacheLimits& limits, Report report);
    /// Stops, and waits for the frames that are being drawn.
    ~CacheRenderer();
    CacheRenderer(const CacheRenderer&) = delete;
    CacheRenderer& operator=(const CacheRenderer&) = delete;

    /// Asks the threads to stop after their frame and reports that at once; also when they have
    /// ended by themselves, so that nobody waits for a report that does not come.
    void Stop();
    bool IsRunning() const { return !m_isEnding; }

private:
    struct Worker;

    CacheRenderer(std::shared_ptr<const ChunkPlan> plan, std::shared_ptr<ChunkStore> store,
                  const CacheLimits& limits, Report report);
    /// False when not even one starts.
    bool StartThreads();
    void Run(int number);
    /// Renders until nothing is left or the run ends.
    void RenderChunks(int number);
    /// Empty when the frame cannot be drawn or encoded.
    QByteArray EncodeFrame(int frame, Worker& worker) const;
    /// The state that ends the run; none when the chunk is in the store, or not worth trying again,
    /// or the run is ending.
    std::optional<NLECacheState> RenderChunk(const Chunk& chunk, Worker& worker);
    /// The state that a file which cannot be written ends the run with; none when only that chunk
    /// is to be left out.
    std::optional<NLECacheState> FailureState(QFileDevice::FileError error,
                                              std::int64_t size) const;
    /// Index of the next chunk for the thread that last did \a last.
    std::optional<int> Take(int last);
    void End(NLECacheState state);
    void EndWorker();
    void ReportProgress(NLECacheState state);

    const std::shared_ptr<const ChunkPlan> m_plan;
    const std::shared_ptr<ChunkStore> m_store;
    const CacheLimits m_limits;
    const Report m_report;
    const KeySet m_keep;
    const int m_threadCount;
    DecoderPool m_decoders;
    std::atomic<bool> m_isEnding{false};

    struct Guarded
    {
        std::set<int> pending; ///< indexes of chunks, one of each content
        int working = 0;       ///< threads that have not ended
    };
    std::mutex m_mutex; ///< guards m_guarded and the order of reports
    Guarded m_guarded;
    std::vector<std::thread> m_threads;
};

} // namespace nle

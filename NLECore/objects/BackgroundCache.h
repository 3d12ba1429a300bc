// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEBackgroundCache.h"
#include "NLECore/model/CompositeCache.h"
#include "NLECore/render/CacheRenderer.h"
#include "NLECore/render/CachedFrames.h"
#include "NLECore/render/TaskThread.h"

namespace nle {

/// The preview cache of one composite.
///
/// The object belongs to the thread that edits, as the composite does. Update may be called from
/// any thread, but only on the thread that edits it sees edits: elsewhere it analyses again what
/// was analysed last. Callbacks come from a thread of this object.
class BackgroundCache final
    : public ComObject<CompositeCache, INLEBackgroundCacheStat, INLEBackgroundCacheAsyncUpdate,
                       INLEBackgroundCacheQualitySet>
{
public:
    /// Starts with the folder and the limits of DefaultCache().
    explicit BackgroundCache(std::function<Snapshot()> takeSnapshot);

    /// Ends a render that is running. E_INVALIDARG for no name and for numbers below 0.
    HRESULT SetCacheFolder(const wchar_t* folder, std::int64_t quota, int reserve) override;
    /// S_FALSE while a render is running, whose reports the caller gets from then on as well;
    /// E_INVALIDARG without a folder or a size, E_ACCESSDENIED when the folder takes no files,
    /// E_FAIL when there is nothing to render, E_OUTOFMEMORY when there is no thread.
    HRESULT Start(const NLESize* resolution, NLERenderCallback callback, void* userData) override;
    /// Returns at once; the render ends with its state 3. S_FALSE when none was started.
    HRESULT Stop() override;
    /// \a all: every chunk in the folder, also those of other timelines; else those of this one as
    /// it is, as it was first analysed and as it was rendered since the folder was set.
    HRESULT DeleteCache(bool all) override;
    HRESULT Update() override;

    long GetCount() override;
    HRESULT GetStat(int index, NLERange* range, long* valid, int* cachedTo) override;
    HRESULT SetUpdateCallback(NLEUpdateCallback callback, void* userData) override;
    /// Counts from the next analysis on. E_INVALIDARG outside of 0 to 1.
    HRESULT SetQuality(NLERational quality) override;

    std::unique_ptr<CachedFrames> OpenFrames(const Snapshot& root) override;
    void Detach() override;

private:
    /// A row of cached frames and the row after it that is not.
    struct Segment
    {
        NLERange range;
        int cachedTo;
    };
    using Plan = std::shared_ptr<const ChunkPlan>;
    /// Who has started a render: the function, and what it is given.
    using Listener = std::pair<NLERenderCallback, void*>;

    ~BackgroundCache() override;
    Snapshot TakeSnapshot() const;
    Plan Analyse(const Snapshot& root);
    Plan CurrentPlan() const;
    std::shared_ptr<ChunkStore> Store() const;
    CacheFormat FormatFor(const Layer& root) const;
    bool JoinRun(const Listener& listener);
    void Report(const CacheRenderer::Progress& progress);
    void ListSegments();
    void EndRendering();

    std::function<Snapshot()> m_takeSnapshot; ///< null once the composite is gone
    const std::thread::id m_editingThread = std::this_thread::get_id();

    struct Guarded
    {
        std::shared_ptr<ChunkStore> store;
        QSize size; ///< empty until a render was started
        int quality = CacheFormat().quality;
        Plan plan;
        KeySet former; ///< of earlier plans in this folder that were rendered, and of the first
        std::vector<Listener> listeners; ///< of the last run
    };
    mutable std::mutex m_mutex; ///< guards m_guarded
    Guarded m_guarded;

    CacheLimits m_limits;
    std::vector<Segment> m_segments;
    TaskThread m_reports;
    TaskThread m_analyses;
    std::unique_ptr<CacheRenderer> m_renderer;
};

} // namespace nle

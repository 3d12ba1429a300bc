// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/BackgroundCache.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/render/CacheDefaults.h"

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

constexpr std::int64_t kMebibyte = 1 << 20;
/// A limit beyond it is none.
constexpr std::int64_t kMostMebibytes = std::int64_t(1) << 40;
constexpr int kLongestSide = 16384;
/// What is cached until a size was asked for: half of the picture; when that has more pixels than
/// this, as wide as it is, or as high as it where the picture is not wider than high.
constexpr double kPresetScale = 0.5;
const QSize kPresetSize(960, 540);

QSize PresetSize(const NLESize& picture)
{
    const QSize half(int(picture.width * kPresetScale), int(picture.height * kPresetScale));
    if (half.width() * half.height() <= kPresetSize.width() * kPresetSize.height())
        return half;
    const double shape = double(half.width()) / half.height();
    return shape > 1 ? QSize(kPresetSize.width(), int(kPresetSize.width() / shape))
                     : QSize(int(kPresetSize.height() * shape), kPresetSize.height());
}

} // namespace

BackgroundCache::BackgroundCache(std::function<Snapshot()> takeSnapshot)
    : m_takeSnapshot(std::move(takeSnapshot))
{
    const CacheDefaults defaults = DefaultCache();
    if (defaults.folder.isEmpty())
        return;
    m_limits = {defaults.quota * kMebibyte, defaults.reserve * kMebibyte};
    m_guarded.store = ChunkStore::Of(defaults.folder);
}

BackgroundCache::~BackgroundCache() = default;

HRESULT BackgroundCache::SetCacheFolder(const wchar_t* folder, std::int64_t quota, int reserve)
{
    return ComGuard([&] {
        if (!folder || *folder == L'\0' || quota < 0 || reserve < 0)
            return Refuse(E_INVALIDARG);
        EndRendering();
        m_limits = {std::min(quota, kMostMebibytes) * kMebibyte, reserve * kMebibyte};
        const auto store = ChunkStore::Of(FromWide(folder));
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_guarded.store != store)
            m_guarded.former.clear();
        m_guarded.store = store;
        return S_OK;
    });
}

HRESULT BackgroundCache::Start(const NLESize* resolution, NLERenderCallback callback,
                               void* userData)
{
    return ComGuard([&] {
        const std::shared_ptr<ChunkStore> store = Store();
        const auto isSide = [](int length) { return length > 0 && length <= kLongestSide; };
        if (!store)
            return Refuse(E_INVALIDARG, NLEReason_WrongState, QStringLiteral("no cache folder"));
        if (!resolution || !isSide(resolution->width) || !isSide(resolution->height))
            return RefuseRange("resolution", 1, kLongestSide);
        const Listener listener(callback, userData);
        if (JoinRun(listener))
            return S_FALSE;
        EndRendering();
        if (!store->Prepare())
            return Refuse(E_ACCESSDENIED, NLEReason_NotWritable, store->Folder());
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_guarded.size = QSize(resolution->width, resolution->height);
        }
        const Plan plan = Analyse(TakeSnapshot());
        if (!plan || store->CountFrames(plan->Chunks()) == plan->FrameCount())
            return Refuse(E_FAIL, NLEReason_NothingThere);
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_guarded.former.merge(plan->Keys());
            m_guarded.listeners = {listener};
        }
        if (m_reports.Start())
            m_renderer = CacheRenderer::Start(
                plan, store, m_limits,
                [this](const CacheRenderer::Progress& progress) { Report(progress); });
        return m_renderer ? S_OK : Refuse(E_OUTOFMEMORY);
    });
}

// A run that has ended reports it under this lock, and is no longer running before it does.
bool BackgroundCache::JoinRun(const Listener& listener)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_renderer || !m_renderer->IsRunning())
        return false;
    std::vector<Listener>& listeners = m_guarded.listeners;
    if (std::find(listeners.begin(), listeners.end(), listener) == listeners.end())
        listeners.push_back(listener);
    return true;
}

void BackgroundCache::Report(const CacheRenderer::Progress& progress)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (const auto& [callback, userData] : m_guarded.listeners) {
        if (!callback)
            continue;
        m_reports.Post([=, callback = callback, userData = userData] {
            callback(progress.percent, long(progress.state), long(progress.cachedFrames),
                     long(progress.totalFrames), userData);
        });
    }
}

HRESULT BackgroundCache::Stop()
{
    if (!m_renderer)
        return S_FALSE;
    m_renderer->Stop();
    return S_OK;
}

HRESULT BackgroundCache::DeleteCache(bool all)
{
    return ComGuard([&] {
        EndRendering();
        const std::shared_ptr<ChunkStore> store = Store();
        if (!store)
            return Refuse(E_FAIL, NLEReason_WrongState, QStringLiteral("no cache folder"));
        if (all) {
            store->Clear();
            return S_OK;
        }
        const Plan plan = m_takeSnapshot ? Analyse(TakeSnapshot()) : CurrentPlan();
        KeySet keys = plan ? plan->Keys() : KeySet();
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            keys.merge(std::exchange(m_guarded.former, {}));
        }
        for (const ContentKey& key : keys)
            store->Remove(key);
        if (const auto owner = plan ? plan->Owner() : std::nullopt)
            store->RemoveOf(*owner);
        store->RemoveEmptyFolder();
        return S_OK;
    });
}

HRESULT BackgroundCache::Update()
{
    return ComGuard([&] {
        Snapshot root;
        if (std::this_thread::get_id() == m_editingThread)
            root = TakeSnapshot();
        else if (const Plan plan = CurrentPlan())
            root = plan->Root();
        return Analyse(root) ? S_OK : Refuse(E_FAIL, NLEReason_NothingThere);
    });
}

long BackgroundCache::GetCount()
{
    m_segments.clear();
    const HRESULT result = ComGuard([&] {
        ListSegments();
        return S_OK;
    });
    return SUCCEEDED(result) ? long(m_segments.size()) : 0;
}

void BackgroundCache::ListSegments()
{
    const Plan plan = CurrentPlan();
    const std::shared_ptr<ChunkStore> store = Store();
    if (!plan)
        return;
    // A run writes there all the time, and finds out by itself.
    if (store && !(m_renderer && m_renderer->IsRunning()))
        store->Refresh();
    for (const Chunk& chunk : plan->Chunks()) {
        const bool isCached = store && store->Has(chunk.key);
        Segment* last = m_segments.empty() ? nullptr : &m_segments.back();
        const bool isLastWhole = last && last->cachedTo == last->range.out + 1;
        if (!last || last->range.out + 1 != chunk.first || (isCached && !isLastWhole))
            last = &m_segments.emplace_back(Segment{{chunk.first, chunk.first - 1}, chunk.first});
        last->range.out = chunk.last;
        if (isCached)
            last->cachedTo = chunk.last + 1;
    }
}

HRESULT BackgroundCache::GetStat(int index, NLERange* range, long* valid, int* cachedTo)
{
    if (!range || !valid || !cachedTo)
        return Refuse(E_POINTER);
    if (index < 0 || index >= int(m_segments.size()))
        return RefuseIndex(index, std::int64_t(m_segments.size()));
    const Segment& segment = m_segments[std::size_t(index)];
    *range = segment.range;
    *valid = 1;
    *cachedTo = segment.cachedTo;
    return S_OK;
}

HRESULT BackgroundCache::SetUpdateCallback(NLEUpdateCallback callback, void* userData)
{
    return ComGuard([&] {
        if (!callback) {
            m_analyses.Clear();
            return S_OK;
        }
        const bool isPosted = m_analyses.Post([this, callback, userData, root = TakeSnapshot()] {
            Plan plan;
            const HRESULT result = ComGuard([&] {
                plan = Analyse(root);
                return plan ? S_OK : Refuse(E_FAIL, NLEReason_NothingThere);
            });
            const bool isEmpty = !plan || plan->Chunks().empty();
            callback(static_cast<INLEBackgroundCache*>(this), result,
                     isEmpty ? 0 : plan->Chunks().front().first,
                     isEmpty ? -1 : plan->Chunks().back().last,
                     isEmpty ? 0 : long(plan->FrameCount()), userData);
        });
        return isPosted ? S_OK : Refuse(E_OUTOFMEMORY);
    });
}

HRESULT BackgroundCache::SetQuality(NLERational quality)
{
    if (quality.den <= 0 || quality.num < 0 || quality.num > quality.den)
        return RefuseRange("quality", 0, 1);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_guarded.quality = int(std::lround(double(quality.num) / double(quality.den) * 1000));
    return S_OK;
}

std::unique_ptr<CachedFrames> BackgroundCache::OpenFrames(const Snapshot& root)
{
    const std::shared_ptr<ChunkStore> store = Store();
    if (!store || !root)
        return nullptr;
    store->EnsureListed();
    return std::make_unique<CachedFrames>(std::make_shared<ChunkPlan>(root, FormatFor(*root)),
                                          store);
}

void BackgroundCache::Detach()
{
    m_renderer.reset();
    m_reports.Clear();
    m_takeSnapshot = nullptr;
}

Snapshot BackgroundCache::TakeSnapshot() const
{
    return m_takeSnapshot ? m_takeSnapshot() : nullptr;
}

BackgroundCache::Plan BackgroundCache::Analyse(const Snapshot& root)
{
    if (!root)
        return nullptr;
    Plan plan = std::make_shared<ChunkPlan>(root, FormatFor(*root));
    if (const std::shared_ptr<ChunkStore> store = Store())
        store->Refresh();
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_guarded.former.empty())
        m_guarded.former = plan->Keys();
    m_guarded.plan = plan;
    return plan;
}

BackgroundCache::Plan BackgroundCache::CurrentPlan() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_guarded.plan;
}

std::shared_ptr<ChunkStore> BackgroundCache::Store() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_guarded.store;
}

CacheFormat BackgroundCache::FormatFor(const Layer& root) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return {m_guarded.size.isEmpty() ? PresetSize(root.size) : m_guarded.size, m_guarded.quality};
}

/// For a caller who goes on to use the cache, and who may be waiting for the end.
void BackgroundCache::EndRendering()
{
    if (m_renderer && m_renderer->IsRunning())
        m_renderer->Stop();
    m_renderer.reset();
}

} // namespace nle

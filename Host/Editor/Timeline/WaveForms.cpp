// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/WaveForms.h"

#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "Host/Editor/Model/Engine.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kMostKept = 8192; ///< parts of 2 KiB
constexpr std::size_t kMostWaiting = 256;
constexpr int kShortestStep = -12; ///< a quarter of a millisecond
constexpr int kLongestStep = 12;

int StopsAtEnd(int /*percent*/, void* isEnding)
{
    return *static_cast<const std::atomic<bool>*>(isEnding) ? 1 : 0;
}

/// Has the engine keep the file's whole envelope, so that parts come from there.
void Prepare(const NLEComPtr<INLEWaveExtractor>& extractor, const std::atomic<bool>& isEnding)
{
    const auto cache = extractor.query<INLEWaveCache>();
    bool isCached = false;
    if (cache && SUCCEEDED(cache->IsCached(&isCached)) && !isCached)
        cache->Compute(&StopsAtEnd, const_cast<std::atomic<bool>*>(&isEnding));
}

bool Measure(INLEWaveExtractor& extractor, int step, int index, WaveForms::Part& part)
{
    const double length = std::ldexp(double(WaveForms::kSteps), step);
    return SUCCEEDED(extractor.Extract(index * length, length, WaveForms::kSteps, part.low.data(),
                                       part.high.data()));
}

} // namespace

WaveForms::WaveForms(QObject* parent)
    : QObject(parent)
    , m_extractor(EngineProvider().CreateWaveExtractor())
    , m_kept(kMostKept)
    , m_worker(std::make_unique<NewestFirst<MediaKey>>(kMostWaiting))
{
}

WaveForms::~WaveForms() = default;

int WaveForms::StepFor(double seconds)
{
    if (!(seconds > 0))
        return kShortestStep;
    return std::clamp(static_cast<int>(std::floor(std::log2(seconds))), kShortestStep,
                      kLongestStep);
}

const WaveForms::Part* WaveForms::Find(const ClipMedia& media, int step, int index)
{
    const MediaKey key{media.path, media.sound, step, index};
    const Part* part = m_kept.object(key);
    if (!part && m_extractor && !m_asked.contains(key) && !m_unreadable.contains(key))
        Ask(key, media);
    return part;
}

void WaveForms::Ask(const MediaKey& key, const ClipMedia& media)
{
    m_asked.insert(key);
    const auto job = [this, key, media](const std::atomic<bool>& isEnding) {
        auto part = std::make_shared<std::unique_ptr<Part>>(std::make_unique<Part>());
        bool isMeasured = SUCCEEDED(m_extractor->SetSource(media.info.get(), media.sound));
        if (isMeasured)
            Prepare(m_extractor, isEnding);
        isMeasured = isMeasured && !isEnding && Measure(*m_extractor, key.kind, key.index, **part);
        if (!isMeasured)
            part->reset();
        QMetaObject::invokeMethod(
            this, [this, key, part] { Keep(key, std::move(*part)); }, Qt::QueuedConnection);
    };
    if (const auto dropped = m_worker->Post(key, job))
        m_asked.remove(*dropped);
}

void WaveForms::Keep(const MediaKey& key, std::unique_ptr<Part> part)
{
    m_asked.remove(key);
    if (!part) {
        m_unreadable.insert(key);
        return;
    }
    m_kept.insert(key, part.release());
    Q_EMIT Ready();
}

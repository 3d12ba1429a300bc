// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/LoudnessFacet.h"

#include "NLECore/media/Reasons.h"
#include "NLECore/model/EffectNode.h"
#include "NLECore/render/LoudnessPass.h"
#include "NLECore/render/SoundKinds.h"
#include "NLECore/render/TaskThread.h"

#include <algorithm>
#include <atomic>
#include <mutex>

namespace nle {

namespace {

/// One measurement.
struct Job
{
    Snapshot root;
    NLELoudnessCallback callback;
    void* userData;
    std::atomic<bool> isCancelled{false};
    std::atomic<bool> isSilent{false}; ///< nobody wants to know
    std::atomic<bool> isOver{false};
    std::mutex mutex; ///< guards the rest
    std::optional<Loudness> result;

    void Tell(HRESULT state, int percent) const
    {
        if (callback && !isSilent)
            callback(state, percent, userData);
    }
};

HRESULT Work(Job& job)
{
    int told = -1;
    const std::optional<Loudness> measured = MeasureLoudness(job.root, [&](int percent) {
        if (percent != std::exchange(told, percent))
            job.Tell(S_FALSE, percent);
        return !job.isCancelled;
    });
    if (job.isCancelled)
        return Refuse(E_ABORT);
    if (!measured)
        return Refuse(E_FAIL, NLEReason_NotOffered, QStringLiteral("ebur128"));
    const std::lock_guard<std::mutex> lock(job.mutex);
    job.result = measured;
    return S_OK;
}

/// The values of the effects of sound that come before \a effect.
std::vector<SharedParameters> Before(const EffectNode& effect)
{
    std::vector<SharedParameters> before;
    for (const NLEComPtr<EffectNode>& other : effect.Owner()->Effects().All()) {
        if (other.get() == &effect)
            break;
        if (other->IsEnabled() && other->IsOfSound())
            before.push_back(other->Parameters().Shared());
    }
    return before;
}

} // namespace

struct LoudnessFacet::Jobs
{
    std::shared_ptr<Job> last;
    TaskThread thread; ///< ends before the rest
};

LoudnessFacet::LoudnessFacet(EffectNode& effect)
    : NodeFacet(static_cast<INLETimeline&>(effect))
    , m_effect(effect)
    , m_jobs(std::make_unique<Jobs>())
{
}

LoudnessFacet::~LoudnessFacet()
{
    if (m_jobs->last)
        m_jobs->last->isSilent = true;
    LoudnessFacet::Cancel();
}

HRESULT LoudnessFacet::Measure(NLELoudnessCallback callback, void* userData)
{
    return ComGuard([&] {
        const TimelineNode* owner = m_effect.Owner();
        if (!owner)
            return Refuse(E_FAIL, NLEReason_WrongState);
        Cancel();
        const auto job = std::make_shared<Job>();
        job->root = HeardThrough(*owner->MakeSnapshot(), Before(m_effect));
        job->callback = callback;
        job->userData = userData;
        const bool isPosted = m_jobs->thread.Post([job] {
            const HRESULT result = ComGuard([&] { return Work(*job); });
            job->root.reset();
            job->isOver = true;
            job->Tell(result, result == S_OK ? 100 : 0);
        });
        if (!isPosted)
            return Refuse(E_OUTOFMEMORY);
        std::atomic_store(&m_jobs->last, job);
        return S_OK;
    });
}

HRESULT LoudnessFacet::Cancel()
{
    const std::shared_ptr<Job> job = std::atomic_load(&m_jobs->last);
    if (!job || job->isOver)
        return S_FALSE;
    job->isCancelled = true;
    return S_OK;
}

HRESULT LoudnessFacet::Apply()
{
    return ComGuard([&] {
        const std::shared_ptr<Job> job = m_jobs->last;
        if (!job)
            return S_FALSE;
        const std::lock_guard<std::mutex> lock(job->mutex);
        const std::optional<Loudness> measured = std::exchange(job->result, std::nullopt);
        if (!measured)
            return S_FALSE;
        ParameterFacet& parameters = m_effect.Parameters();
        for (const auto& [name, value] :
             {std::pair(LoudnessParameter::kIntegrated, measured->integrated),
              std::pair(LoudnessParameter::kRange, measured->range),
              std::pair(LoudnessParameter::kTruePeak, measured->truePeak)}) {
            const ParameterRow& row =
                parameters.Declared()
                    .parameters[std::size_t(parameters.Declared().IndexOf(QLatin1String(name)))];
            const HRESULT result =
                parameters.SetNumber(QString::fromLatin1(name).toStdWString().c_str(),
                                     std::clamp(value, row.lowest, row.highest));
            if (FAILED(result))
                return result;
        }
        return S_OK;
    });
}

HRESULT LoudnessFacet::GetResult(NLELoudnessRecord* record)
{
    return ComGuard([&] {
        const SharedParameters values = m_effect.Parameters().Shared();
        const ParametersAt at(*values, 0);
        const NLELoudnessRecord result = {at.Number(LoudnessParameter::kIntegrated),
                                          at.Number(LoudnessParameter::kRange),
                                          at.Number(LoudnessParameter::kTruePeak)};
        const HRESULT given = GiveValue(record, result);
        return SUCCEEDED(given) && result.truePeak <= Loudness::kNoPeak ? S_FALSE : given;
    });
}

} // namespace nle

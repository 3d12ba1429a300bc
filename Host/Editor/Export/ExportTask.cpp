// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Export/ExportTask.h"

#include "Com/ThreadPriority.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEEncode.h"
#include "EngineApi/INLEProperties.h"
#include "EngineApi/NLEKey.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Reasons.h"
#include "Host/EncodePresets.h"

#include <QFileInfo>

#include <utility>

namespace {

constexpr int kAll = 100; // per cent
constexpr qint64 kSecond = 1000;
constexpr qint64 kEarly = 2000; // milliseconds after which the pace says something

bool TakeOptions(const NLEComPtr<INLEMediaEncoder>& encoder, const ExportOrder& order)
{
    if (order.preset.isEmpty() && !order.isPart)
        return true;
    PlayerMaterProvider& provider = EngineProvider();
    const auto settings = order.preset.isEmpty()
                              ? provider.CreateNLEProperties()
                              : EncodePresets::Settings(provider, encoder, order.preset);
    const auto options = encoder.query<INLEEncodeOptions>();
    // Frame 0 alone may be the part.
    return settings && options &&
           settings->SetInt(NLEKey::Encode::kFirstFrame, order.isPart ? 1 : 0) == S_OK &&
           options->SetOptions(settings.get()) == S_OK;
}

} // namespace

std::shared_ptr<ExportTask> ExportTask::Make(int number, NLEComPtr<INLETimeline> project,
                                             const ExportOrder& order)
{
    std::shared_ptr<ExportTask> task(new ExportTask);
    task->m_number = number;
    task->m_order = order;
    task->m_project = std::move(project);
    task->m_factory = EngineFactory();
    if (!task->m_factory || FAILED(task->m_factory->CreateMediaEncoder(task->m_encoder.put())))
        return {};
    task->m_hasOptions = TakeOptions(task->m_encoder, order);
    return task;
}

HRESULT ExportTask::Write()
{
    if (m_isCancelled)
        return S_FALSE;
    if (!m_hasOptions)
        return E_INVALIDARG;
    const HRESULT opened =
        m_encoder->Open(m_project.get(), m_order.path.toStdWString().c_str(), &m_order.settings);
    return opened == S_OK ? m_encoder->Encode(&ExportTask::Progress, this) : opened;
}

void ExportTask::Run(ExportQueue& queue)
{
    LowerThreadPriority();
    m_queue = &queue;
    m_since.start();
    if (!m_isCancelled)
        Tell(0);
    const Reasons reasons(m_factory);
    const HRESULT result = Write();
    using State = ExportQueue::State;
    const State state = result == S_OK      ? State::Done
                        : SUCCEEDED(result) ? State::Cancelled
                                            : State::Failed;
    const QString reason =
        state == State::Failed
            ? reasons.Of(
                  ExportQueue::tr("%1 is not written").arg(QFileInfo(m_order.path).fileName()))
            : QString();
    QMetaObject::invokeMethod(
        &queue, [&queue, number = m_number, state, reason] { queue.Finish(number, state, reason); },
        Qt::QueuedConnection);
}

int ExportTask::Progress(int percent, void* task)
{
    auto* self = static_cast<ExportTask*>(task);
    if (percent != self->m_told)
        self->Tell(percent);
    return self->m_isCancelled ? 1 : 0;
}

void ExportTask::Tell(int percent)
{
    m_told = percent;
    const qint64 passed = m_since.elapsed();
    const int left =
        percent > 0 && passed > kEarly ? int(passed * (kAll - percent) / percent / kSecond) : -1;
    QMetaObject::invokeMethod(
        m_queue,
        [queue = m_queue, number = m_number, percent, left] { queue->Note(number, percent, left); },
        Qt::QueuedConnection);
}

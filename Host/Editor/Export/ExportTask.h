// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEFrames.h"
#include "Host/Editor/Export/ExportQueue.h"

#include <QElapsedTimer>

#include <atomic>

/// One film on its way, between the GUI thread, which makes and deletes it, and the thread that
/// runs it.
class ExportTask
{
public:
    /// \a project is the task's own. Null when the engine has no encoder.
    static std::shared_ptr<ExportTask> Make(int number, NLEComPtr<INLETimeline> project,
                                            const ExportOrder& order);

    int Number() const { return m_number; }
    /// From any thread: Run() ends soon, or does not begin.
    void Cancel() { m_isCancelled = true; }
    /// Writes the film; tells \a queue, which outlives the call, in its own thread.
    void Run(ExportQueue& queue);

private:
    ExportTask() = default;
    HRESULT Write();
    static int Progress(int percent, void* task);
    void Tell(int percent);

    int m_number = 0;
    ExportOrder m_order;
    NLEComPtr<INLETimeline> m_project;
    NLEComPtr<INLEFactory> m_factory;
    NLEComPtr<INLEMediaEncoder> m_encoder;
    bool m_hasOptions = false; ///< or the preset is refused
    std::atomic<bool> m_isCancelled{false};
    // While it runs.
    ExportQueue* m_queue = nullptr;
    QElapsedTimer m_since;
    int m_told = -1;
};

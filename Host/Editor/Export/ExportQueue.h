// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLETimeline.h"
#include "Host/Editor/Export/ExportOrder.h"

#include <QObject>
#include <QThreadPool>
#include <QVector>

#include <memory>

class ExportTask;

/// Films that are written one after the other, on a thread of their own. Each is made of a copy of
/// the project as it was when it was added, so that editing goes on meanwhile.
///
/// For the GUI thread. Needs an engine.
class ExportQueue : public QObject
{
    Q_OBJECT

public:
    enum class State
    {
        Waiting,
        Running,
        Done,
        Cancelled,
        Failed
    };
    struct Job
    {
        int number; ///< above 0
        ExportOrder order;
        State state = State::Waiting;
        int percent = 0;
        int secondsLeft = -1; ///< -1 while nobody can say
        QString reason;       ///< why it failed, for people
    };

    explicit ExportQueue(QObject* parent = nullptr);
    /// Cancels what is not done, and waits for the film that is being written to stop.
    ~ExportQueue() override;

    /// The number of the new job; 0 when the project cannot be copied.
    int Add(const NLEComPtr<INLETimeline>& project, const ExportOrder& order);
    /// Ends a job that waits or runs; nothing is left of its film then. Others stay as they are.
    void Cancel(int number);
    /// Takes a job that has ended from the list.
    void Remove(int number);
    const QVector<Job>& Jobs() const { return m_jobs; }
    /// Null for a number that is not in the list. Valid until the list changes.
    const Job* Find(int number) const;
    /// Whether a job waits or runs.
    bool IsBusy() const;

Q_SIGNALS:
    void Added(int number);
    /// Something of a job is another.
    void Changed(int number);
    void Removed(int number);

private:
    friend class ExportTask;
    void Note(int number, int percent, int secondsLeft);
    void Finish(int number, State state, const QString& reason);
    Job* Get(int number);

    QVector<Job> m_jobs;
    QVector<std::shared_ptr<ExportTask>> m_tasks; ///< of the jobs that have not ended
    int m_last = 0;
    QThreadPool m_thread; ///< one thread, so that the films come in order
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Export/ExportQueue.h"

#include "Host/Editor/Export/ExportTask.h"

#include <algorithm>

ExportQueue::ExportQueue(QObject* parent) : QObject(parent)
{
    m_thread.setMaxThreadCount(1);
}

ExportQueue::~ExportQueue()
{
    for (const auto& task : qAsConst(m_tasks))
        task->Cancel();
    m_thread.waitForDone();
}

int ExportQueue::Add(const NLEComPtr<INLETimeline>& project, const ExportOrder& order)
{
    NLEComPtr<INLETimeline> copy;
    if (!project || FAILED(project->Clone(true, copy.put())))
        return 0;
    const auto task = ExportTask::Make(m_last + 1, copy, order);
    if (!task)
        return 0;
    ++m_last;
    Job job;
    job.number = m_last;
    job.order = order;
    m_jobs.append(job);
    m_tasks.append(task);
    Q_EMIT Added(m_last);
    // The list holds the task as long as it runs, so that it ends in this thread.
    m_thread.start([this, running = task.get()] { running->Run(*this); });
    return job.number;
}

void ExportQueue::Cancel(int number)
{
    for (const auto& task : qAsConst(m_tasks)) {
        if (task->Number() == number)
            task->Cancel();
    }
    Job* job = Get(number);
    if (!job || job->state != State::Waiting)
        return;
    job->state = State::Cancelled;
    Q_EMIT Changed(number);
}

void ExportQueue::Remove(int number)
{
    const Job* job = Find(number);
    if (!job || job->state == State::Waiting || job->state == State::Running)
        return;
    m_jobs.removeAt(int(job - m_jobs.constData()));
    Q_EMIT Removed(number);
}

const ExportQueue::Job* ExportQueue::Find(int number) const
{
    const auto isIt = [number](const Job& job) { return job.number == number; };
    const auto found = std::find_if(m_jobs.begin(), m_jobs.end(), isIt);
    return found == m_jobs.end() ? nullptr : &*found;
}

ExportQueue::Job* ExportQueue::Get(int number)
{
    const Job* job = Find(number);
    return job ? &m_jobs[int(job - m_jobs.constData())] : nullptr;
}

bool ExportQueue::IsBusy() const
{
    return std::any_of(m_jobs.begin(), m_jobs.end(), [](const Job& job) {
        return job.state == State::Waiting || job.state == State::Running;
    });
}

void ExportQueue::Note(int number, int percent, int secondsLeft)
{
    Job* job = Get(number);
    if (!job || job->state == State::Cancelled)
        return;
    job->state = State::Running;
    job->percent = percent;
    job->secondsLeft = secondsLeft;
    Q_EMIT Changed(number);
}

void ExportQueue::Finish(int number, State state, const QString& reason)
{
    const auto isIt = [number](const auto& task) { return task->Number() == number; };
    m_tasks.erase(std::remove_if(m_tasks.begin(), m_tasks.end(), isIt), m_tasks.end());
    Job* job = Get(number); // null when it was cancelled before it began, and taken away
    if (!job)
        return;
    job->state = state;
    job->reason = reason;
    job->secondsLeft = -1;
    Q_EMIT Changed(number);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Import/ImportSession.h"

#include <QDeadlineTimer>

namespace {

constexpr int kPatience = 1800;  // ms; a device of this system ends within 1,300
constexpr int kCancelEvery = 50; // ms

} // namespace

ImportSession::ImportSession(QObject* parent)
    : QObject(parent), m_worker(new ImportWorker), m_thread(new QThread)
{
    const ImportWorker* worker = m_worker.get();
    connect(worker, &ImportWorker::DevicesListed, this, &ImportSession::DevicesListed);
    connect(worker, &ImportWorker::Opened, this, &ImportSession::Opened);
    connect(worker, &ImportWorker::InUse, this, &ImportSession::InUse);
    connect(worker, &ImportWorker::ObjectsRead, this, &ImportSession::ObjectsRead);
    connect(worker, &ImportWorker::ContentRead, this, &ImportSession::ContentRead);
    connect(worker, &ImportWorker::ThumbnailRead, this, &ImportSession::ThumbnailRead);
    connect(worker, &ImportWorker::Progressed, this, &ImportSession::Progressed);
    connect(worker, &ImportWorker::Imported, this, &ImportSession::Imported);
    connect(worker, &ImportWorker::Removed, this, &ImportSession::Removed);
    m_worker->moveToThread(m_thread.get());
    m_thread->start();
}

ImportSession::~ImportSession()
{
    m_worker->Stop();
    m_worker->Quit();
    // More than once: one may come between two operations.
    const QDeadlineTimer end(kPatience);
    while (!m_thread->wait(kCancelEvery) && !end.hasExpired())
        m_worker->Stop();
    if (m_thread->isFinished())
        return;
    // Left behind with the device that hangs.
    m_worker->GiveUp();
    Q_UNUSED(m_worker.release())
    Q_UNUSED(m_thread.release())
}

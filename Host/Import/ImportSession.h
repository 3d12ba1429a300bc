// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Import/ImportWorker.h"

#include <QThread>

/// Uses the library's device import on a thread of its own, so that a slow device never holds up
/// the window. One at a time has a device open. The operations return at once and are carried out
/// in order; signals tell what came of them.
class ImportSession : public QObject
{
    Q_OBJECT

public:
    explicit ImportSession(QObject* parent = nullptr);
    /// Stops what is under way. A device that does not answer is left behind with the thread after
    /// little more than a second.
    ~ImportSession() override;

    /// As the operations of the same names of ImportWorker.
    void List() { m_worker->List(); }
    void Open(const std::wstring& deviceId) { m_worker->Open(deviceId); }
    void ReadThumbnails(const QVector<ImportPicture>& files) { m_worker->ReadThumbnails(files); }
    void Import(const QVector<ImportFile>& files) { m_worker->Import(files); }
    void Delete(const QVector<std::wstring>& objectIds) { m_worker->Delete(objectIds); }
    void Close() { m_worker->Close(); }
    void Stop() { m_worker->Stop(); }

Q_SIGNALS:
    /// As the signals of the same names of ImportWorker.
    void DevicesListed(const QVector<ImportDevice>& devices);
    void Opened(bool isOpen);
    void InUse();
    void ObjectsRead(const QVector<ImportObject>& objects);
    void ContentRead(bool isWhole);
    void ThumbnailRead(const std::wstring& objectId, const QImage& image);
    void Progressed(quint64 bytes);
    void Imported(const ImportResult& result);
    void Removed();

private:
    // Both outlive the session when a device hangs.
    std::unique_ptr<ImportWorker> m_worker;
    std::unique_ptr<QThread> m_thread;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QImage>
#include <QMutex>
#include <QObject>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

#include <atomic>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>

Q_DECLARE_METATYPE(std::wstring)

class ComponentThread;
struct WpdObjectRecord;

/// A device that can be imported from.
struct ImportDevice
{
    std::wstring id;
    QString name;

    bool operator==(const ImportDevice& other) const
    {
        return id == other.id && name == other.name;
    }
};

/// A file, a folder or a storage on the open device.
struct ImportObject
{
    std::wstring id;
    std::wstring parent;
    QString name; ///< may be empty
    quint64 size; ///< bytes
    bool isFolder;
    QDateTime modified; ///< invalid when the device does not tell
};

/// A file to show a small picture of.
struct ImportPicture
{
    std::wstring id;
    bool isSmallPicture; ///< may be read whole when the device has no small picture of it
};

/// A file to import and where to.
struct ImportFile
{
    std::wstring id;
    QString path;
    quint64 size; ///< bytes, for the progress
};

/// How an import ended.
struct ImportResult
{
    int wanted = 0;
    bool isStopped = false;
    QVector<std::wstring> importedIds;
    QStringList imported; ///< paths, in the order of importedIds
    QStringList failed;   ///< paths that were not written
};

/// Uses the library's device import on the thread that it lives on, which starts after it was moved
/// there. The library has one device for the process, which one worker has at a time. The
/// operations may be called from the one thread that made it; they return at once and are carried
/// out in order. Signals tell what came of them.
class ImportWorker : public QObject
{
    Q_OBJECT

public:
    ImportWorker();
    ~ImportWorker() override;

    /// Lists the devices: DevicesListed().
    void List();
    /// Opens a device instead of the one that is open and reads its content: Opened(),
    /// ObjectsRead() in pieces, ContentRead(). While another worker has one open: InUse().
    void Open(const std::wstring& deviceId);
    /// Reads small pictures of \a files, even while content is being read: ThumbnailRead() for
    /// those that have one.
    void ReadThumbnails(const QVector<ImportPicture>& files);
    /// Copies \a files one after the other: Progressed(), Imported(). A file that is stopped or
    /// fails is removed again.
    void Import(const QVector<ImportFile>& files);
    /// Deletes \a objectIds on the device. It does not tell what has really gone; reading its
    /// content again does.
    void Delete(const QVector<std::wstring>& objectIds);
    /// Closes the open device.
    void Close();
    /// Stops everything that was asked for so far.
    void Stop();
    /// Closes the open device and ends the thread.
    void Quit();
    /// Leaves the library to others, for a thread that does not come back.
    void GiveUp();

Q_SIGNALS:
    void DevicesListed(const QVector<ImportDevice>& devices);
    void Opened(bool isOpen);
    /// Another worker has a device open.
    void InUse();
    void ObjectsRead(const QVector<ImportObject>& objects);
    /// \a isWhole is false when the device failed in the middle or reading was stopped.
    void ContentRead(bool isWhole);
    void ThumbnailRead(const std::wstring& objectId, const QImage& image);
    void Progressed(quint64 bytes);
    void Imported(const ImportResult& result);
    /// The open device is gone.
    void Removed();

private:
    static std::int64_t Callback(HWND window, std::uint32_t message, std::uint64_t code,
                                 std::int64_t value, void* user);

    template <typename Work>
    void Queue(Work work);
    template <typename Work>
    auto WhileBusy(Work work);
    bool IsStopped() const { return m_ticket <= m_stopped; }
    /// Takes the library for this worker; false while another one has it.
    bool Hold();
    bool Holds() const;

    // On the session's thread.
    void ListNow();
    bool ChooseNow(const wchar_t* deviceId);
    void CloseNow();
    void OpenNow(const std::wstring& deviceId);
    void ImportNow(const QVector<ImportFile>& files);
    bool ImportFileNow(const ImportFile& file);
    void TakeObject(WpdObjectRecord& record);
    void SendObjects();
    void TakeProgress(quint64 bytesOfFile);
    bool ReadNextThumbnail();
    QImage ReadPicture(const std::wstring& objectId, bool isWhole);

    int m_issued = 0;              ///< tickets given to operations
    std::atomic<int> m_stopped{0}; ///< operations up to this ticket are not wanted any more

    std::atomic<bool> m_isBusy{false}; ///< a device's operation may be under way

    QMutex m_mutex; ///< guards m_thumbnails
    std::deque<ImportPicture> m_thumbnails;

    // Used on the session's thread only.
    std::unique_ptr<ComponentThread> m_components;
    QTemporaryDir m_folder;
    int m_ticket = 0; ///< of the operation under way
    QVector<ImportObject> m_objects;
    QElapsedTimer m_sent;
    bool m_isImporting = false;
    quint64 m_imported = 0; ///< bytes of the files before the one under way
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Import/ImportWorker.h"

#include "Com/WideText.h"
#include "CommonLib/WpdApiLib/WpdApiLib.h"
#include "Host/Import/ComponentThread_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QThread>

namespace {

constexpr int kPieceOfObjects = 200;
constexpr int kSendEvery = 60; // ms
constexpr QSize kThumbnail(96, 64);

/// Has the library's one device, or is about to; null for none.
std::atomic<const ImportWorker*> s_holder{nullptr};

std::wstring NativePath(const QString& path)
{
    return QDir::toNativeSeparators(path).toStdWString();
}

/// \a days since 30 December 1899; 0 is no date.
QDateTime DateOf(double days)
{
    constexpr double millisecondsPerDay = 24.0 * 60 * 60 * 1000;
    if (days <= 0)
        return QDateTime();
    const QDateTime start(QDate(1899, 12, 30), QTime(0, 0));
    return start.addDays(static_cast<qint64>(days))
        .addMSecs(qRound64((days - static_cast<qint64>(days)) * millisecondsPerDay));
}

} // namespace

ImportWorker::ImportWorker()
{
    qRegisterMetaType<std::wstring>("std::wstring");
    qRegisterMetaType<QVector<ImportDevice>>("QVector<ImportDevice>");
    qRegisterMetaType<QVector<ImportObject>>("QVector<ImportObject>");
    qRegisterMetaType<ImportResult>("ImportResult");
    Queue([this] { m_components = std::make_unique<ComponentThread>(); });
}

ImportWorker::~ImportWorker() = default;

bool ImportWorker::Hold()
{
    const ImportWorker* nobody = nullptr;
    return s_holder.compare_exchange_strong(nobody, this) || Holds();
}

bool ImportWorker::Holds() const
{
    return s_holder == this;
}

void ImportWorker::GiveUp()
{
    const ImportWorker* self = this;
    s_holder.compare_exchange_strong(self, nullptr);
}

void ImportWorker::Quit()
{
    Queue([this] {
        CloseNow();
        m_components.reset();
        thread()->quit();
    });
}

template <typename Work>
void ImportWorker::Queue(Work work)
{
    const int ticket = ++m_issued;
    QMetaObject::invokeMethod(
        this,
        [this, ticket, work] {
            m_ticket = ticket;
            work();
        },
        Qt::QueuedConnection);
}

/// What \a work gives; what stands for nothing where the library is another's, whose objects may
/// have the same identifiers.
template <typename Work>
auto ImportWorker::WhileBusy(Work work)
{
    if (!Holds())
        return decltype(work())();
    m_isBusy = true;
    const auto result = work();
    m_isBusy = false;
    return result;
}

void ImportWorker::List()
{
    Queue([this] { ListNow(); });
}

void ImportWorker::Open(const std::wstring& deviceId)
{
    Queue([this, deviceId] { OpenNow(deviceId); });
}

void ImportWorker::ReadThumbnails(const QVector<ImportPicture>& files)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_thumbnails.insert(m_thumbnails.end(), files.begin(), files.end());
    }
    Queue([this] {
        WhileBusy([this] {
            while (!IsStopped() && ReadNextThumbnail()) {
            }
            return true;
        });
    });
}

void ImportWorker::Import(const QVector<ImportFile>& files)
{
    Queue([this, files] { ImportNow(files); });
}

void ImportWorker::Delete(const QVector<std::wstring>& objectIds)
{
    Queue([this, objectIds] {
        WhileBusy([this, &objectIds] {
            for (int i = 0; i < objectIds.size() && !IsStopped(); ++i)
                WpdApiLib::DeleteContentFromDevice(objectIds[i].c_str());
            return true;
        });
    });
}

void ImportWorker::Close()
{
    Queue([this] { CloseNow(); });
}

void ImportWorker::Stop()
{
    m_stopped = m_issued;
    {
        const QMutexLocker lock(&m_mutex);
        m_thumbnails.clear();
    }
    // What the device is at ends at the next chunk or object; a device that hangs has none.
    if (m_isBusy)
        WpdApiLib::Cancel();
}

std::int64_t ImportWorker::Callback(HWND /*window*/, std::uint32_t /*message*/, std::uint64_t code,
                                    std::int64_t value, void* user)
{
    auto& self = *static_cast<ImportWorker*>(user);
    if (code == WpdDeviceRemoved) {
        Q_EMIT self.Removed(); // on a thread of the service; receivers hear of it on their own
        return 0;
    }
    if (code == WpdObjectRead) {
        self.TakeObject(*reinterpret_cast<WpdObjectRecord*>(static_cast<std::intptr_t>(value)));
        self.ReadNextThumbnail(); // one between two objects: both go on
    } else if (self.m_isImporting) {
        self.TakeProgress(static_cast<quint64>(value));
    }
    return self.IsStopped() ? 1 : 0;
}

void ImportWorker::ListNow()
{
    // A device that is plugged in between may only show in the next list.
    const unsigned long room = WpdApiLib::EnumerateAllDevices(nullptr, nullptr) + 16;
    std::unique_ptr<wchar_t*[]> ids(new wchar_t*[room]());
    std::unique_ptr<wchar_t*[]> names(new wchar_t*[room]());
    const unsigned long count = WpdApiLib::EnumerateAllDevices(ids.get(), names.get());
    QVector<ImportDevice> devices;
    for (unsigned long i = 0; i < count; ++i) {
        if (ids[i])
            devices.append({ids[i], FromWide(names[i])});
        SysFreeString(ids[i]);
        SysFreeString(names[i]);
    }
    Q_EMIT DevicesListed(devices);
}

bool ImportWorker::ChooseNow(const wchar_t* deviceId)
{
    return WhileBusy([&] { return WpdApiLib::ChooseDevice(deviceId, nullptr) != 0; });
}

void ImportWorker::CloseNow()
{
    if (!Holds())
        return;
    ChooseNow(nullptr);
    WpdApiLib::SetCallbackProc(nullptr, nullptr);
    GiveUp();
}

void ImportWorker::OpenNow(const std::wstring& deviceId)
{
    if (IsStopped())
        return;
    if (!Hold()) {
        Q_EMIT InUse();
        return;
    }
    WpdApiLib::SetCallbackProc(&ImportWorker::Callback, this);
    const bool isOpen = ChooseNow(deviceId.c_str());
    if (!isOpen)
        CloseNow();
    Q_EMIT Opened(isOpen);
    if (!isOpen)
        return;
    m_objects.clear();
    m_sent.start();
    const bool isWhole = WhileBusy(&WpdApiLib::EnumerateAllContent) != 0;
    if (IsStopped())
        return; // the content of a device that nobody looks at any more
    SendObjects();
    Q_EMIT ContentRead(isWhole);
}

void ImportWorker::TakeObject(WpdObjectRecord& record)
{
    record.descend = record.isFolder; // folders at every depth
    m_objects.append({record.objectId, record.parentId, FromWide(record.originalFileName),
                      record.size, record.isFolder != 0, DateOf(record.dateModified)});
    if (m_objects.size() >= kPieceOfObjects || m_sent.elapsed() >= kSendEvery)
        SendObjects();
}

void ImportWorker::SendObjects()
{
    if (!m_objects.isEmpty() && !IsStopped())
        Q_EMIT ObjectsRead(m_objects);
    m_objects.clear();
    m_sent.restart();
}

bool ImportWorker::ReadNextThumbnail()
{
    ImportPicture picture;
    {
        const QMutexLocker lock(&m_mutex);
        if (m_thumbnails.empty())
            return false;
        picture = m_thumbnails.front();
        m_thumbnails.pop_front();
    }
    QImage image = ReadPicture(picture.id, false);
    if (image.isNull() && picture.isSmallPicture)
        image = ReadPicture(picture.id, true);
    if (!image.isNull())
        Q_EMIT ThumbnailRead(picture.id, image);
    return true;
}

/// An object's small picture, or the object itself made small; null when there is none.
QImage ImportWorker::ReadPicture(const std::wstring& objectId, bool isWhole)
{
    const QString path = m_folder.filePath(QStringLiteral("picture"));
    if (!WpdApiLib::TransferContentFromDevice(objectId.c_str(), NativePath(path).c_str(),
                                              isWhole ? 0 : 1))
        return QImage();
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.width() > kThumbnail.width() || size.height() > kThumbnail.height())
        reader.setScaledSize(size.scaled(kThumbnail, Qt::KeepAspectRatio));
    return reader.read();
}

void ImportWorker::ImportNow(const QVector<ImportFile>& files)
{
    ImportResult result;
    result.wanted = files.size();
    m_isImporting = true;
    m_imported = 0;
    m_sent.start();
    for (const ImportFile& file : files) {
        if (IsStopped())
            break;
        if (ImportFileNow(file)) {
            result.importedIds.append(file.id);
            result.imported.append(file.path);
        } else if (!IsStopped()) {
            result.failed.append(file.path);
        }
        m_imported += file.size;
        Q_EMIT Progressed(m_imported);
    }
    m_isImporting = false;
    result.isStopped = IsStopped();
    Q_EMIT Imported(result);
}

bool ImportWorker::ImportFileNow(const ImportFile& file)
{
    const std::wstring path = NativePath(file.path);
    const auto transfer = [&] {
        return WpdApiLib::TransferContentFromDevice(file.id.c_str(), path.c_str(), 0) != 0;
    };
    // Without memory for its buffer the library copies nothing and calls that a success. What is
    // not here must not be deleted there.
    if (WhileBusy(transfer) && static_cast<quint64>(QFileInfo(file.path).size()) >= file.size)
        return true;
    QFile::remove(file.path); // the library leaves what it has written
    return false;
}

void ImportWorker::TakeProgress(quint64 bytesOfFile)
{
    if (m_sent.elapsed() < kSendEvery)
        return;
    m_sent.restart();
    Q_EMIT Progressed(m_imported + bytesOfFile);
}

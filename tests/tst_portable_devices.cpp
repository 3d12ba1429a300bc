// SPDX-License-Identifier: LGPL-2.1-or-later
// The portable-device service through its published interfaces.
#include "CommonLib/WpdApiLib/WpdApiLib.h"
#include "DeviceApi/DeviceResults.h"
#include "tests/support/DeviceClient.h"
#include "tests/support/FailingMemory.h"
#include "tests/support/HangingFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <pthread.h>
#include <thread>
#include <unistd.h>

using DeviceClient::Device;
using DeviceClient::Listener;
using DeviceClient::Object;

using namespace devices;

namespace {

constexpr qint64 kLarge = 5LL << 30;

thread_local int s_threads = 0;      // that this thread was to start
thread_local int s_threadToFail = 0; // the number of the one that cannot; 0 for none

/// A call of the service, made to an open device with the file \a id on it.
using Call = HRESULT (*)(const Device& device, LPCWSTR id);

} // namespace

extern "C" Q_DECL_EXPORT int pthread_create(pthread_t* thread, const pthread_attr_t* attributes,
                                            void* (*run)(void*), void* argument)
{
    static auto* const real = HangingFiles::Real<decltype(pthread_create)>("pthread_create");
    return ++s_threads == s_threadToFail ? EAGAIN : real(thread, attributes, run, argument);
}

Q_DECLARE_METATYPE(Call)

class TestPortableDevices : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString Path(const QString& name) const { return m_folder->filePath(name); }
    QString FolderId(const QString& name) const
    {
        return QString::fromLatin1(QUrl::fromLocalFile(Path(name)).toEncoded());
    }
    // Bytes that tell where they belong.
    void Write(const QString& name, qint64 size) const
    {
        QFile file(Path(name));
        QVERIFY(QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly));
        QByteArray block(1 << 20, 0);
        for (qint64 at = 0; at < size; at += block.size()) {
            for (int i = 0; i < block.size(); i += 8)
                *reinterpret_cast<qint64*>(block.data() + i) = at + i;
            file.write(block.left(static_cast<int>(qMin<qint64>(block.size(), size - at))));
        }
    }
    QByteArray Hash(const QString& name) const
    {
        QFile file(Path(name));
        QCryptographicHash sum(QCryptographicHash::Md5);
        return file.open(QIODevice::ReadOnly) && sum.addData(&file) ? sum.result() : QByteArray();
    }

    /// A clip two folders down, an empty file with a name that is no UTF-8, a file of more than
    /// four gigabytes, and a link to the folder itself.
    void PutTree() const
    {
        Write("card/DCIM/100/clip.mp4", 3000000);
        const QByteArray invalid = QFile::encodeName(Path("card/")) + "b\xff.jpg";
        FILE* file = fopen(invalid.constData(), "w");
        QVERIFY(file);
        fclose(file);
        QFile large(Path("card/large"));
        QVERIFY(large.open(QIODevice::WriteOnly));
        QVERIFY(large.seek(kLarge));
        QCOMPARE(large.write("end"), 3);
        large.flush();
        large.setFileTime(QDateTime({2024, 2, 29}, {12, 0}), QFileDevice::FileModificationTime);
        large.close();
        QVERIFY(QFile::link(".", Path("card/circle")));
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QDir(m_folder->path()).mkpath("card");
        qputenv("COMMONLIB_DEVICE_FOLDERS", QFile::encodeName(Path("card") + ":" + Path("none")));
    }

    // The first function: afterwards the threads of the module are there.
    void threadThatCannotStartIsTriedAgain()
    {
        s_threads = 0;
        s_threadToFail = 2;
        QVERIFY(DeviceClient::Devices().isEmpty());
        QVERIFY(DeviceClient::Devices().contains(FolderId("card")));
        QCOMPARE(s_threads, 3);
    }

    void folders()
    {
        const auto devices = DeviceClient::Devices();
        QCOMPARE(devices.value(FolderId("card")), QString("card"));
        QVERIFY(!devices.contains(FolderId("none")));
        QCOMPARE(Device(FolderId("none")).result, kNotFound);
        qunsetenv("COMMONLIB_DEVICE_FOLDERS");
        QVERIFY(!DeviceClient::Devices().contains(FolderId("card")));
    }

    void walk()
    {
        PutTree();
        const Device device(FolderId("card"));
        QCOMPARE(device.result, S_OK);
        const QMap<QString, Object> tree = device.Tree();
        QCOMPARE(tree.keys(),
                 QStringList({"card", "card/DCIM/", "card/DCIM/100/", "card/DCIM/100/clip.mp4",
                              "card/b\ufffd.jpg", "card/large"}));
        QCOMPARE(tree["card"].parent, QString("DEVICE"));
        QCOMPARE(tree["card/large"].size, quint64(kLarge) + 3);
        QCOMPARE(tree["card/large"].modified, 45351.5);
    }

    void identifierOutlivesTheSession()
    {
        PutTree();
        const auto tree = Device(FolderId("card")).Tree();
        const Device again(FolderId("card"));
        Object clip;
        QCOMPARE(again.Describe(tree["card/DCIM/100/clip.mp4"].id.toStdWString(), clip), S_OK);
        QCOMPARE(clip.size, quint64(3000000));
        QCOMPARE(clip.parent, tree["card/DCIM/100/"].id);
    }

    void readsAndRemoves_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("an empty file whose name is no UTF-8") << "card/b\ufffd.jpg";
        QTest::newRow("a clip in a folder") << "card/DCIM/100/clip.mp4";
    }

    void readsAndRemoves()
    {
        QFETCH(QString, path);
        PutTree();
        const Device device(FolderId("card"));
        const Object object = device.Tree()[path];
        quint64 total = 0;
        QByteArray hash;
        QCOMPARE(device.Read(object.id, hash, total), S_FALSE);
        QCOMPARE(total, object.size);
        if (total > 0)
            QCOMPARE(hash, Hash(path));
        QCOMPARE(device.Remove(object.id), S_OK);
        QVERIFY(!device.Tree().contains(path));
        QVERIFY(!QFile::exists(Path(path)));
    }

    void readsBeyondFourGigabytes()
    {
        PutTree();
        const Device device(FolderId("card"));
        NLEComPtr<IStream> stream;
        QCOMPARE(device.Open(device.Tree()["card/large"].id, stream), S_OK);
        QCOMPARE(stream->Seek({kLarge - 1}, 0, nullptr), S_OK);
        char data[8] = {};
        ULONG count = 0;
        QCOMPARE(stream->Read(data, sizeof(data), &count), S_OK);
        QCOMPARE(QByteArray(data, static_cast<int>(count)), QByteArray("\0end", 4));
        QCOMPARE(stream->Read(data, sizeof(data), &count), S_FALSE);
    }

    void manyObjects()
    {
        QVERIFY(QDir().mkpath(Path("card/many")));
        for (int i = 0; i < 20000; ++i)
            QVERIFY(QFile(Path("card/many/") + QString::number(i)).open(QIODevice::WriteOnly));
        const Device device(FolderId("card"));
        int count = 0;
        QCOMPARE(device.Walk(L"DEVICE", [&count](const Object&) { ++count; }), S_OK);
        QCOMPARE(count, 20003);
    }

    void changesDuringCopy_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<int>("result");
        QTest::addColumn<quint64>("total"); // 0: whatever was read before the change
        const quint64 size = 20 << 20;
        QTest::newRow("the file grows") << "grow" << int(S_FALSE) << size + 5;
        QTest::newRow("the file shrinks") << "shrink" << int(kCutShort) << quint64(5 << 20);
        QTest::newRow("the file is deleted") << "delete" << int(S_FALSE) << size;
        QTest::newRow("the folder is renamed") << "rename" << int(kDeviceGone) << quint64(0);
        QTest::newRow("another folder in its place") << "replace" << int(kDeviceGone) << quint64(0);
        QTest::newRow("cancelled") << "cancel" << int(kCancelled) << quint64(0);
    }
    void changesDuringCopy()
    {
        QFETCH(QString, change);
        QFETCH(quint64, total);
        Write("card/clip", 20 << 20);
        const Device device(FolderId("card"));
        const auto listener = MakeCom<Listener>();
        listener->Advise(device);
        const QString id = device.Tree()["card/clip"].id;
        quint64 read = 0;
        QByteArray hash;
        const HRESULT result = device.Read(id, hash, read, [&](quint64 sofar) {
            if (sofar != 2 << 20)
                return true;
            QFile file(Path("card/clip"));
            if (change == "grow")
                return file.open(QIODevice::Append) && file.write("grown") == 5;
            if (change == "shrink")
                return file.resize(5 << 20);
            if (change == "delete")
                return file.remove();
            if (change == "cancel")
                return device.device->Cancel() == S_OK;
            QDir folder(m_folder->path());
            return folder.rename("card", "away") && (change == "rename" || folder.mkdir("card"));
        });
        QTEST(int(result), "result");
        if (total > 0)
            QCOMPARE(read, total);
        else
            QVERIFY(read <= 3 << 20); // one step more may have been read ahead
        const bool isGone = result == kDeviceGone;
        QTRY_COMPARE(listener->removals.load(), isGone ? 1 : 0);
        // Cancel ends what was under way, and nothing else.
        Object object;
        const HRESULT after = device.Describe(id.toStdWString(), object);
        QCOMPARE(after, isGone ? kDeviceGone : change == "delete" ? kNotFound : S_OK);
    }

    void stopsAnswering_data()
    {
        QTest::addColumn<QString>("when");
        for (const char* when : {"while it opens", "in a read", "in a walk"})
            QTest::newRow(when) << when;
    }
    // Cancelled and closed before the storage answers again.
    void stopsAnswering()
    {
        QFETCH(QString, when);
        Write("card/clip", 20 << 20);
        auto device = std::make_unique<Device>(when == "while it opens" ? "" : FolderId("card"));
        const QString id = device->properties ? device->Tree()["card/clip"].id : QString();
        NLEComPtr<IStream> stream;
        if (when == "in a read")
            QCOMPARE(device->Open(id, stream), S_OK);
        const auto client =
            DeviceClient::Make<IPortableDeviceValues>(Wpd::CLSID_PortableDeviceValues);
        HangingFiles::Start(Path("card").toStdString());
        std::thread helper([&] {
            if (HangingFiles::WaitForCall())
                device->device->Cancel();
        });
        HRESULT result = S_OK;
        if (when == "while it opens")
            result = device->device->Open(FolderId("card").toStdWString().c_str(), client.get());
        else if (when == "in a walk")
            result = static_cast<HRESULT>(device->Tree()["failed"].size);
        std::vector<char> data(1 << 20);
        for (ULONG count = 1; stream && result == S_OK;)
            result = stream->Read(data.data(), static_cast<ULONG>(data.size()), &count);
        helper.join();
        stream.reset();
        device.reset();
        QCOMPARE(HangingFiles::End(), 0);
        QCOMPARE(result, kCancelled);
    }

    void copyOntoItself_data()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("the same path") << "card/b\u00fc.mp4";
        QTest::newRow("another spelling") << "card/../card//./b\u00fc.mp4";
        QTest::newRow("a symbolic link") << "soft";
        QTest::newRow("a hard link") << "hard";
    }
    void copyOntoItself()
    {
        QFETCH(QString, target);
        Write("card/b\u00fc.mp4", 300000);
        const QByteArray path = QFile::encodeName(Path("card/b\u00fc.mp4"));
        QVERIFY(QFile::link(Path("card/b\u00fc.mp4"), Path("soft")));
        QCOMPARE(::link(path.constData(), QFile::encodeName(Path("hard")).constData()), 0);
        const QByteArray hash = Hash("card/b\u00fc.mp4");
        const QString id = Device(FolderId("card")).Tree()["card/b\u00fc.mp4"].id;
        QCOMPARE(WpdApiLib::ChooseDevice(FolderId("card").toStdWString().c_str(), nullptr), 1);
        const auto copy = [&id](const QString& to) {
            return WpdApiLib::TransferContentFromDevice(id.toStdWString().c_str(),
                                                        to.toStdWString().c_str(), 0);
        };
        QCOMPARE(copy(m_folder->path() + '/' + target), 0);
        QCOMPARE(Hash("card/b\u00fc.mp4"), hash);
        QCOMPARE(copy(Path("other")), 1);
        QCOMPARE(Hash("other"), hash);
        WpdApiLib::UnregisterForEventNotifications();
    }

    void removedWhileIdle()
    {
        Device device(FolderId("card"));
        const auto kept = MakeCom<Listener>();
        const auto ended = MakeCom<Listener>();
        QVERIFY(!kept->Advise(device).isEmpty());
        const QString cookie = ended->Advise(device);
        QCOMPARE(device.device->Unadvise(cookie.toStdWString().c_str()), S_OK);
        QVERIFY(QDir(Path("card")).removeRecursively());
        QTRY_COMPARE(kept->removals.load(), 1);
        QVERIFY(kept->isOwnThread);
        QCOMPARE(kept->deviceId, FolderId("card"));
        QTest::qWait(700); // longer than the service looks again
        QCOMPARE(kept->removals.load(), 1);
        QCOMPARE(ended->removals.load(), 0);
        QVERIFY(ended->Advise(device).isEmpty());
    }

    void deleteRefused()
    {
        Write("card/folder/file", 1);
        const Device device(FolderId("card"));
        const auto tree = device.Tree();
        QCOMPARE(device.Remove(tree["card/folder/"].id), kNotEmpty);
        QCOMPARE(device.Remove(tree["card"].id), E_ACCESSDENIED);
        QCOMPARE(device.Remove("../../file"), kNotFound);
    }

    void identifierIsNotOfAnotherFileAtThePath()
    {
        Write("card/file", 1);
        const Device device(FolderId("card"));
        const QString id = device.Tree()["card/file"].id;
        QVERIFY(QFile::rename(Path("card/file"), Path("card/old")));
        Write("card/file", 1);
        QCOMPARE(device.Remove(id), kNotFound);
        quint64 total = 0;
        QByteArray hash;
        QCOMPARE(device.Read(id, hash, total), kNotFound);
    }

    void fileHasNoThumbnail()
    {
        Write("card/file", 1);
        const Device device(FolderId("card"));
        NLEComPtr<IStream> stream;
        QCOMPARE(device.Open(device.Tree()["card/file"].id, stream, Wpd::WPD_RESOURCE_THUMBNAIL),
                 kNoElement);
    }

    void closedDeviceDeletesNothing()
    {
        Write("card/file", 1);
        const Device device(FolderId("card"));
        const QString id = device.Tree()["card/file"].id;
        QCOMPARE(device.device->Close(), S_OK);
        QCOMPARE(device.Remove(id), kNotOpen);
        QVERIFY(QFile::exists(Path("card/file")));
    }

    /// Whatever allocation fails, no call throws into its caller.
    void withoutMemory_data()
    {
        QTest::addColumn<Call>("call");
        const auto row = [](const char* name, Call call) { QTest::newRow(name) << call; };
        row("the list of devices", [](const Device&, LPCWSTR) {
            DWORD count = 0;
            const auto manager =
                DeviceClient::Make<IPortableDeviceManager>(Wpd::CLSID_PortableDeviceManager);
            return manager ? manager->GetDevices(nullptr, &count) : E_OUTOFMEMORY;
        });
        row("the objects of an open device", [](const Device& device, LPCWSTR) {
            NLEComPtr<IPortableDeviceContent> content;
            const HRESULT given = device.device->Content(content.put());
            if (FAILED(given))
                return given;
            NLEComPtr<IPortableDeviceProperties> properties;
            return content->Properties(properties.put());
        });
        row("the children of an object", [](const Device& device, LPCWSTR) {
            NLEComPtr<IEnumPortableDeviceObjectIDs> children;
            NLEComPtr<IEnumPortableDeviceObjectIDs> copy;
            const HRESULT listed =
                device.content->EnumObjects(0, Wpd::WPD_DEVICE_OBJECT_ID, nullptr, children.put());
            return FAILED(listed) ? listed : children->Clone(copy.put());
        });
        row("the properties of an object", [](const Device& device, LPCWSTR id) {
            NLEComPtr<IPortableDeviceKeyCollection> keys;
            NLEComPtr<IPortableDeviceValues> values;
            const HRESULT known = device.properties->GetSupportedProperties(id, keys.put());
            return FAILED(known) ? known
                                 : device.properties->GetValues(id, keys.get(), values.put());
        });
        row("the resources of an object", [](const Device& device, LPCWSTR id) {
            NLEComPtr<IPortableDeviceKeyCollection> keys;
            return device.resources->GetSupportedResources(id, keys.put());
        });
        row("a stream", [](const Device& device, LPCWSTR id) {
            NLEComPtr<IStream> stream;
            DWORD size = 0;
            const HRESULT opened = device.resources->GetStream(id, Wpd::WPD_RESOURCE_DEFAULT,
                                                               STGM_READ, &size, stream.put());
            char data[8];
            ULONG count = 0;
            const HRESULT moved = FAILED(opened) ? opened : stream->Seek({1}, 0, nullptr);
            return FAILED(moved) ? moved : stream->Read(data, sizeof(data), &count);
        });
        row("values", [](const Device&, LPCWSTR id) {
            const auto values =
                DeviceClient::Make<IPortableDeviceValues>(Wpd::CLSID_PortableDeviceValues);
            return values ? values->SetStringValue(Wpd::WPD_OBJECT_NAME, id) : E_OUTOFMEMORY;
        });
        row("a collection of keys", [](const Device&, LPCWSTR) {
            const auto keys = DeviceClient::Make<IPortableDeviceKeyCollection>(
                Wpd::CLSID_PortableDeviceKeyCollection);
            return keys ? keys->Add(Wpd::WPD_OBJECT_NAME) : E_OUTOFMEMORY;
        });
    }

    void withoutMemory()
    {
        QFETCH(const Call, call);
        Write("card/file", 100);
        const Device device(FolderId("card"));
        const std::wstring id = device.Tree()["card/file"].id.toStdWString();
        QVERIFY(SUCCEEDED(call(device, id.c_str()))); // the client has the module from now on
        bool ranOut = true;
        int failures = 0;
        for (long count = 0; ranOut; ++count) {
            const std::optional<HRESULT> result = FailingMemory::After(
                count, [&] { return call(device, id.c_str()); }, &ranOut);
            QVERIFY2(result, qPrintable(QString("threw after %1 allocations").arg(count)));
            QVERIFY(ranOut || SUCCEEDED(*result));
            failures += FAILED(*result) ? 1 : 0;
        }
        QVERIFY(failures > 0);
    }
};

QTEST_GUILESS_MAIN(TestPortableDevices)

#include "tst_portable_devices.moc"

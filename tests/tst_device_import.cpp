// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/WpdApiLib/WpdApiLib.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedDevices.h"

#include <QDir>
#include <QTemporaryFile>
#include <QtTest>

#include <atomic>
#include <cstdlib>
#include <new>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#endif

using Scripted::DeviceScript;
using Scripted::Script;

namespace {

// On Windows a library keeps the operators that it was linked with.
#ifdef Q_OS_WIN
constexpr bool kSeesAllocations = false;
constexpr unsigned kFullDisk = 0x80070070; // the system's own stream hands its error on
#else
constexpr bool kSeesAllocations = true;
constexpr unsigned kFullDisk = 0x80030070;
#endif
std::size_t s_allocationToFail = 0;
int s_buffers = 0; // that were allocated, of the size of a transfer buffer or more

} // namespace

// The library's arrays come from here: lets one fail and counts the large ones.
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    if (size == s_allocationToFail)
        return nullptr;
    s_buffers += size >= 4096 ? 1 : 0;
    return ::operator new[](size);
}

class tst_device_import : public QObject
{
    Q_OBJECT

private:
    QStringList m_seen;      ///< identifiers
    QStringList m_details;   ///< the rest of the records
    std::wstring m_lastName; ///< as it came
    QVector<qint64> m_chunks;
    QSet<QString> m_descendInto;
    int m_stopAfter = -1; ///< calls of the callback that do not stop; negative for all
    std::atomic<int> m_removals{0};
    QTemporaryDir m_folder;

    static std::int64_t Callback(HWND window, std::uint32_t message, std::uint64_t code,
                                 std::int64_t value, void* user)
    {
        auto& self = *static_cast<tst_device_import*>(user);
        if (window || message != 0)
            qFatal("the callback has a window or a message");
        if (code == WpdDeviceRemoved) {
            ++self.m_removals;
            return value;
        }
        if (code == WpdObjectRead)
            self.See(*reinterpret_cast<WpdObjectRecord*>(value));
        else
            self.m_chunks.append(value);
        return self.m_stopAfter-- == 0 ? 1 : 0;
    }
    void See(WpdObjectRecord& record)
    {
        QCOMPARE(record.descend, 0);
        m_seen.append(QString::fromWCharArray(record.objectId));
        m_lastName = record.originalFileName;
        m_details.append(
            QStringLiteral("%1 %2 %3 %4 %5")
                .arg(QString::fromWCharArray(record.parentId), QString::fromStdWString(m_lastName))
                .arg(record.size)
                .arg(record.isFolder)
                .arg(record.dateModified));
        record.descend = m_descendInto.contains(m_seen.last()) ? 1 : 0;
    }
    /// What \a action prints to the standard output.
    template <typename Action>
    static QString Printed(Action action)
    {
        QTemporaryFile file;
        if (!file.open())
            return "no file";
        std::fflush(stdout);
        const int saved = ::dup(1);
        ::dup2(file.handle(), 1);
        action();
        std::fflush(stdout);
        ::dup2(saved, 1);
        ::close(saved);
        file.seek(0);
        return QString::fromLocal8Bit(file.readAll());
    }
    QString Target() const { return m_folder.filePath("copy.bin"); }

    static QString Take(wchar_t* text)
    {
        QString copy = QString::fromWCharArray(text);
        SysFreeString(text);
        return copy;
    }
    int Transfer(const wchar_t* id, int alternate, const QString& path)
    {
        return WpdApiLib::TransferContentFromDevice(
            id, QDir::toNativeSeparators(path).toStdWString().c_str(), alternate);
    }
    /// Where files may not become larger than the first buffer of a copy.
    int TransferToFullDisk()
    {
        const FileSizeLimit limit(4096);
        return Transfer(L"clip", 0, Target());
    }
    static void Open() { QCOMPARE(WpdApiLib::ChooseDevice(L"device 1", nullptr), 1); }

    /// Does one step of an import; \a opened is what opening the device gave.
    int Perform(const QString& action, const QString& failing, int opened)
    {
        wchar_t* ids[2] = {};
        if (action == "list")
            return static_cast<int>(WpdApiLib::EnumerateAllDevices(ids, nullptr));
        if (action == "walk")
            return WpdApiLib::EnumerateAllContent();
        if (action == "copy")
            return failing == "full disk" ? TransferToFullDisk() : Transfer(L"clip", 0, Target());
        if (action == "cancel")
            return WpdApiLib::Cancel();
        if (action == "delete")
            WpdApiLib::DeleteContentFromDevice(failing == "no identifier" ? nullptr : L"clip");
        return opened;
    }
    /// Opens a device with the clip of the row; a longer file stands at the target.
    void PrepareCopy()
    {
        QFETCH(quint64, size);
        QFETCH(uint, bufferSize);
        QFETCH(uint, readLimit);
        QFETCH(int, stopAfter);
        DeviceScript::Get().Add(L"DEVICE", L"clip", false, size);
        DeviceScript::Get().bufferSize = bufferSize;
        DeviceScript::Get().readLimit = readLimit;
        m_stopAfter = stopAfter;
        Open();
        QFile file(Target());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(400000));
    }
    static void FireFromTwoThreads(const _GUID& event)
    {
        const auto parameters = DeviceScript::EventParameters(event);
        const auto fire = [&] { DeviceScript::Get().listener->OnEvent(parameters.get()); };
        std::thread first(fire);
        std::thread second(fire);
        first.join();
        second.join();
    }
    static void BuildTree()
    {
        DeviceScript& script = DeviceScript::Get();
        script.Add(L"DEVICE", L"card");
        script.Add(L"card", L"DCIM", true);
        script.Add(L"DCIM", L"100", true);
        script.Add(L"DCIM", L"101", true);
        script.Add(L"100", L"clip.mov", false, 5'000'000'000, 4500.25);
        script.Add(L"101", L"deep", true);
        script.Add(L"deep", L"deeper");
    }

private slots:
    void initTestCase() { Scripted::InstallDeviceService(); }
    void init()
    {
        Script::Get().Reset();
        DeviceScript::Get().Reset();
        m_seen.clear();
        m_details.clear();
        m_chunks.clear();
        m_descendInto.clear();
        m_stopAfter = -1;
        m_removals = 0;
        s_allocationToFail = 0;
        s_buffers = 0;
        WpdApiLib::SetCallbackProc(&Callback, this);
    }
    void cleanup()
    {
        WpdApiLib::UnregisterForEventNotifications();
        DeviceScript::Get().listener.reset();
        QCOMPARE(Script::Get().liveObjects, QStringList());
    }

    void listsNoDevices()
    {
        wchar_t* ids[1] = {};
        wchar_t* names[1] = {};
        QCOMPARE(WpdApiLib::EnumerateAllDevices(ids, names), 0ul);
        QVERIFY(!ids[0]);
        QVERIFY(!names[0]);
    }

    void listsDevices()
    {
        DeviceScript::Get().devices = {{L"a", L"Tel\u00e9fono \U0001F4F7", L"x"},
                                       {L"b", L"", L"Camera"},
                                       {L"c", L"none", L"none"}};
        wchar_t* ids[3] = {};
        wchar_t* names[3] = {};
        QCOMPARE(WpdApiLib::EnumerateAllDevices(nullptr, nullptr), 3ul);
        QCOMPARE(WpdApiLib::EnumerateAllDevices(ids, names), 3ul);
        QStringList listed;
        for (int i = 0; i < 3; ++i)
            listed << Take(ids[i]) + ": " + Take(names[i]);
        QCOMPARE(listed, QStringList({"a: Tel\u00e9fono \U0001F4F7", "b: Camera", "c: "}));
    }

    void tellsWhoAsks()
    {
        DeviceScript::Get().readOnly = true;
        QCOMPARE(WpdApiLib::ChooseDevice(L"phone", nullptr), 1);
        QCOMPARE(WpdApiLib::ChooseDevice(nullptr, nullptr), 0);
        const QString client = "device.Open(phone, 2=WPD Sample Application 3=1 4=0 5=2 8=20000";
        QCOMPARE(Script::Get().TakeCalls(),
                 QStringList({"values.Create()", "device.Create()", client + ")",
                              client + " 9=80000000)", "device.Advise(0, null)",
                              "device.Unadvise(cookie)"}));
    }

    void failsAtEveryStep_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("failing");
        QTest::addColumn<uint>("status");
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("output");
        // One line a step. In the output %1 is the status; what is printed starts with "! ".
        static constexpr struct
        {
            const char* action;
            const char* failing;
            uint status;
            int result;
            const char* output;
        } steps[] = {
            // clang-format off
            {"list", "manager.Create", 0x80040154, 0, "-INFO- [WpdApiLib::EnumerateAllDevices]:  Failed to CoCreateInstance CLSID_PortableDeviceManager"},
            {"list", "manager.CountDevices", 0x80004005, 0, "-INFO- [WpdApiLib::EnumerateAllDevices]:  ! Failed to get number of devices on the system"},
            {"list", "memory", 0, 0, "-INFO- [WpdApiLib::EnumerateAllDevices]:  Failed to allocate memory for PWSTR array"},
            {"list", "manager.GetDevices", 0x80004005, 0, "-INFO- [WpdApiLib::EnumerateAllDevices]:  Failed to get the device list from the system"},
            {"open", "device.Open", 0x8007001F, 0, "! Failed to Open the device, hr = 0x%1\n"},
            {"open", "device.Create", 0x80040154, 0, "! Failed to CoCreateInstance CLSID_PortableDeviceFTM, hr = 0x%1\n"},
            {"open", "device.Advise", 0x80004001, 1, "! Failed to register for device events, hr = 0x%1\n"},
            {"open", "device.Unadvise", 0x80004005, 1, "! Failed to unregister for device events using registration cookie 'cookie', hr = 0x%1\n"},
            {"walk", "device.Content", 0x80004005, 0, "! Failed to get IPortableDeviceContent from IPortableDevice, hr = 0x%1\n"},
            {"walk", "no device", 0, 0, "! Failed to get IPortableDeviceContent from IPortableDevice, hr = 0x80004003\n"},
            {"walk", "content.Properties", 0x80004005, 0, "! Failed to get IPortableDeviceProperties from IPortableDevice, hr = 0x%1\n"},
            {"walk", "content.GetValues", 0x8007001F, 0, "! Failed to get all properties for object 'DEVICE', hr= 0x%1\n"},
            {"walk", "content.EnumObjects", 0x80004005, 0, "! Failed to get IEnumPortableDeviceObjectIDs from IPortableDeviceContent, hr = 0x%1\n"},
            {"walk", "enumerator.Next", 0x80004005, 0, ""},
            {"walk", "keys.Add3", 0x80070057, 1, "! Failed to add WPD_OBJECT_PARENT_ID to IPortableDeviceKeyCollection, hr= 0x%1\n"},
            {"walk", "keys.Add19", 0x80070057, 1, "! Failed to add WPD_OBJECT_DATE_MODIFIED to IPortableDeviceKeyCollection, hr= 0x%1\n"},
            {"copy", "device.Content", 0x80004005, 0, "! Failed to get IPortableDeviceContent from IPortableDevice, hr = 0x%1\n"},
            {"copy", "content.Transfer", 0x80004005, 0, "! Failed to get IPortableDeviceResources from IPortableDeviceContent, hr = 0x%1\n"},
            {"copy", "content.GetStream", 0x80070490, 0, "! Failed to get IStream (representing object data on the device) from IPortableDeviceResources, hr = 0x%1\n"},
            {"copy", "stream.Read", 0x8007001F, 0, "! Failed to read 4096 bytes from the source stream, hr = 0x%1\n! Failed to transfer object from device, hr = 0x%1\n"},
            {"copy", "memory", 0, 1, "! Failed to allocate 4096 bytes for the temporary transfer buffer.\n"},
            {"copy", "full disk", kFullDisk, 0, "! Failed to write 4096 bytes of object data to the destination stream, hr = 0x%1\n! Failed to transfer object from device, hr = 0x%1\n"},
            {"delete", "variants.Create", 0x80040154, 0, "! Failed to CoCreateInstance CLSID_PortableDevicePropVariantCollection, hr = 0x%1\n"},
            {"delete", "variants.Create", 1, 0, "! Failed to delete an object from the device because we were returned a NULL IPortableDevicePropVariantCollection interface pointer, hr = 0x80004003\n"},
            {"delete", "no identifier", 0, 0, "! Failed to delete an object from the device because we could no allocate memory for the object identifier string, hr = 0x8007000e\n"},
            {"delete", "variants.Add", 0x8007000E, 0, "! Failed to delete an object from the device because we could no add the object identifier string to the IPortableDevicePropVariantCollection, hr = 0x%1\n"},
            {"delete", "content.Delete", 0x80070005, 0, "! Failed to delete an object from the device, hr = 0x%1\n"},
            {"delete", "", 0, 0, ""},
            {"cancel", "device.Cancel", 0x80004001, 0, "-WARN- [WpdApiLib::Cancel]:  ! Failed to Cancel, hr = 0x%1\n"},
            {"cancel", "no device", 0, 0, ""},
            {"cancel", "", 0, 1, ""},
            // clang-format on
        };
        for (const auto& step : steps) {
            const QString failing = step.failing;
            const QString output = step.output;
            if (failing == "memory" && !kSeesAllocations)
                continue;
            QTest::addRow("%s: %s %x", step.action, step.failing, step.status)
                << QString(step.action) << failing << step.status << step.result
                << (output.contains("%1") ? output.arg(step.status, 0, 16) : output);
        }
    }
    void failsAtEveryStep()
    {
        QFETCH(QString, action);
        QFETCH(QString, failing);
        QFETCH(uint, status);
        QFETCH(QString, output);
        DeviceScript::Get().Add(L"DEVICE", L"clip", false, 10000);
        DeviceScript::Get().devices = {{L"a", L"", L""}, {L"b", L"", L""}};
        Script::Get().statuses[failing] = static_cast<HRESULT>(status);
        int result = 0;
        LogCapture log;
        const QString printed = Printed([&] {
            if (failing != "no device" && action != "list")
                result = WpdApiLib::ChooseDevice(L"phone", nullptr);
            s_allocationToFail = failing != "memory" ? 0 : action == "list" ? 16 : 4096;
            result = Perform(action, failing, result);
            WpdApiLib::UnregisterForEventNotifications();
        });
        QString logged = log.Take().join('|');
        logged.remove(QRegularExpression(" - \\[CommonLib/WpdApiLib/WpdApiLib\\(\\d+\\)\\]$"));
        QCOMPARE(output.startsWith('-') ? logged : printed, output);
        if (action != "delete")
            QTEST(result, "result");
        if (action == "walk") {
            QCOMPARE(WpdApiLib::bFailed, 1 - result);
            QCOMPARE(WpdApiLib::bCanceled, 0);
        }
        QCOMPARE(Script::Get().TakeCalls().contains("content.Delete(0, clip)"),
                 action == "delete" && (failing.isEmpty() || failing == "content.Delete"));
    }

    void walksTwoLevels()
    {
        BuildTree();
        Open();
        QCOMPARE(WpdApiLib::EnumerateAllContent(), 1);
        QCOMPARE(m_seen, QStringList({"DEVICE", "card", "DCIM"}));
        QCOMPARE(Script::Get().TakeCalls().filter("keys.Add").join(' '),
                 QString("keys.Add3() keys.Add12() keys.Add11() keys.Add7() keys.Add19()"));
    }

    void walksDeeperWhereAsked()
    {
        BuildTree();
        Open();
        m_descendInto = {"DCIM", "100", "101"};
        QCOMPARE(WpdApiLib::EnumerateAllContent(), 1);
        QCOMPARE(m_seen, QStringList({"DEVICE", "card", "DCIM", "100", "clip.mov", "101", "deep"}));
        QCOMPARE(m_details.value(3), QString("DCIM 100 0 1 0"));
        QCOMPARE(m_details.value(4), QString("100 clip.mov 5000000000 0 4500.25"));
    }

    void stopsAWalkWhenAsked_data()
    {
        QTest::addColumn<int>("stopAfter");
        QTest::newRow("at the first object") << 0;
        QTest::newRow("at the second object") << 1;
        QTest::newRow("two levels down") << 2;
    }

    void stopsAWalkWhenAsked()
    {
        QFETCH(int, stopAfter);
        BuildTree();
        Open();
        m_descendInto = {"DCIM", "100", "101"};
        m_stopAfter = stopAfter;
        QCOMPARE(WpdApiLib::EnumerateAllContent(), 0);
        QCOMPARE(m_seen.size(), stopAfter + 1);
        QCOMPARE(WpdApiLib::bCanceled, 1);

        // The next walk knows nothing of it.
        m_stopAfter = -1;
        QCOMPARE(WpdApiLib::EnumerateAllContent(), 1);
        QCOMPARE(WpdApiLib::bCanceled, 0);
    }

    void endsWhenTheDeviceVanishes_data()
    {
        QTest::addColumn<bool>("isWalk");
        QTest::addColumn<int>("steps"); // that the device has to be there for
        // Content, properties and three calls for each of four objects.
        QTest::newRow("in a walk") << true << 2 + 3 * 4;
        // Content, resources, stream, and a read more than the buffers that the data fills.
        QTest::newRow("in a copy") << false << 3 + 10000 / 4096 + 2;
    }

    void endsWhenTheDeviceVanishes()
    {
        QFETCH(bool, isWalk);
        QFETCH(int, steps);
        BuildTree();
        DeviceScript::Get().Add(L"card", L"small", false, 10000);
        Open();
        int enough = -1;
        for (int result = 0; result == 0 && enough < 100;) {
            DeviceScript::Get().stepsUntilVanished = ++enough;
            Printed([&] {
                result =
                    isWalk ? WpdApiLib::EnumerateAllContent() : Transfer(L"small", 0, Target());
            });
        }
        DeviceScript::Get().stepsUntilVanished = -1;
        QCOMPARE(enough, steps);
    }

    void walksManyObjects()
    {
        const int count = 20000;
        for (int i = 0; i < count; ++i)
            DeviceScript::Get().Add(L"DEVICE", std::to_wstring(i));
        Open();
        QCOMPARE(WpdApiLib::EnumerateAllContent(), 1);
        QCOMPARE(m_seen.size(), 1 + count);
        // Ten at a time and once for the end; each object is asked for children of its own.
        QCOMPARE(Script::Get().TakeCalls().filter("enumerator.Next(10)").size(),
                 count / 10 + 1 + count);
    }

    void passesOddNamesOn()
    {
        const std::wstring odd = L"IMG\xDCFF.jpg"; // a byte that is not UTF-8
        DeviceScript::Get().Add(L"DEVICE", odd, false, 3);
        Open();
        QCOMPARE(WpdApiLib::EnumerateAllContent(), 1);
        QVERIFY(m_lastName == odd);
    }

    void copies_data()
    {
        QTest::addColumn<quint64>("size");
        QTest::addColumn<uint>("bufferSize");
        QTest::addColumn<uint>("readLimit");
        QTest::addColumn<int>("stopAfter");
        QTest::addColumn<QVector<qint64>>("chunks"); // bytes so far, as the callback is told
        const auto row = [](const char* name, quint64 size, uint bufferSize, uint readLimit,
                            int stopAfter, const QVector<qint64>& chunks) {
            QTest::newRow(name) << size << bufferSize << readLimit << stopAfter << chunks;
        };
        row("nothing", 0, 4096, 0, -1, {});
        row("three buffers", 10000, 4096, 0, -1, {4096, 8192, 10000});
        row("short reads", 10000, 8192, 4000, -1, {4000, 8000, 10000});
        row("a device without a size of its own", 300000, 0, 0, -1, {262144, 300000});
        row("stopped at the first buffer", 10000, 4096, 0, 0, {4096});
        row("stopped at the last buffer", 10000, 4096, 0, 2, {4096, 8192, 10000});
        row("stopped where space is reserved ahead", 70000000, 1 << 25, 0, 2,
            {1 << 25, 1 << 26, 70000000});
    }

    void copies()
    {
        QFETCH(int, stopAfter);
        QFETCH(QVector<qint64>, chunks);
        PrepareCopy();
        s_buffers = 0;
        int result = -1;
        const QString printed = Printed([&] { result = Transfer(L"clip", 0, Target()); });
        const bool isStopped = stopAfter >= 0;
        QCOMPARE(result, isStopped ? 0 : 1);
        QCOMPARE(
            printed,
            QString(isStopped ? "! Failed to transfer object from device, hr = 0x80004005\n" : ""));
        QCOMPARE(m_chunks, chunks);
        QCOMPARE(s_buffers, kSeesAllocations ? 1 : 0);
        QByteArray expected(chunks.isEmpty() ? 0 : int(chunks.last()), 0);
        for (int i = 0; i < expected.size(); ++i)
            expected[i] = DeviceScript::DataAt(i);
        QFile file(Target());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(file.readAll() == expected);
#ifdef Q_OS_LINUX
        struct stat status = {};
        QCOMPARE(::fstat(file.handle(), &status), 0);
        QVERIFY(status.st_blocks * 512 <
                file.size() + (1 << 20)); // what was reserved is given back
#endif
    }

#ifdef Q_OS_LINUX
    void copiesIntoFilesOnly_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("isRead"); // at the other end
        QTest::newRow("a pipe that nobody reads") << m_folder.filePath("pipe") << false;
        QTest::newRow("a pipe that is read") << m_folder.filePath("pipe") << true;
        QTest::newRow("a device") << "/dev/full" << false;
        QTest::newRow("a folder") << m_folder.path() << false;
    }
    // Nor does it wait for a reader.
    void copiesIntoFilesOnly()
    {
        QFETCH(QString, target);
        QFETCH(bool, isRead);
        const QByteArray pipe = QFile::encodeName(m_folder.filePath("pipe"));
        QVERIFY(::mkfifo(pipe.constData(), 0600) == 0 || errno == EEXIST);
        const int reader = isRead ? ::open(pipe.constData(), O_RDONLY | O_NONBLOCK) : -1;
        DeviceScript::Get().Add(L"DEVICE", L"clip", false, 100);
        Open();
        const QString printed = Printed([&] { QCOMPARE(Transfer(L"clip", 0, target), 0); });
        ::close(reader);
        QCOMPARE(printed, "! Failed to create a temporary file named (" + target +
                              ") to transfer object (clip), hr = 0x80030005\n");
    }
#endif

    void asksForTheResource_data()
    {
        QTest::addColumn<int>("alternate");
        QTest::addColumn<QString>("resource");
        QTest::newRow("the content") << 0 << "E81E79BE";
        QTest::newRow("the thumbnail") << 2 << "C7C407BA";
        QTest::newRow("the thumbnail, by a negative number") << -1 << "C7C407BA";
    }

    void asksForTheResource()
    {
        QFETCH(int, alternate);
        QFETCH(QString, resource);
        DeviceScript::Get().Add(L"DEVICE", L"clip", false, 100);
        Open();
        QCOMPARE(Transfer(L"clip", alternate, Target()), 1);
        const QStringList calls = Script::Get().TakeCalls().filter("GetStream");
        QCOMPARE(calls, QStringList("content.GetStream(clip, " + resource + ", 0, 0)"));
    }

    void tellsOnceOfTheRemoval()
    {
        Open();
        WpdApiLib::SetCallbackProc(nullptr, nullptr); // the event object keeps its copies
        FireFromTwoThreads(Wpd::WPD_CONTENT_TYPE_FOLDER);
        QCOMPARE(m_removals.load(), 0);
        FireFromTwoThreads(Wpd::WPD_EVENT_DEVICE_REMOVED);
        QCOMPARE(m_removals.load(), 1);
    }

    void tellsOfNoRemovalAfterClosing()
    {
        const auto removed = DeviceScript::EventParameters(Wpd::WPD_EVENT_DEVICE_REMOVED);
        for (int round = 0; round < 200; ++round) {
            Open();
            std::thread late([&] { DeviceScript::Get().listener->OnEvent(removed.get()); });
            WpdApiLib::UnregisterForEventNotifications();
            const int told = m_removals;
            late.join();
            QCOMPARE(m_removals.load(), told);
        }
    }

    void callbackMayCloseTheDevice()
    {
        WpdApiLib::SetCallbackProc(
            [](HWND, std::uint32_t, std::uint64_t, std::int64_t, void*) -> std::int64_t {
                WpdApiLib::UnregisterForEventNotifications();
                return 0;
            },
            nullptr);
        Open();
        const auto removed = DeviceScript::EventParameters(Wpd::WPD_EVENT_DEVICE_REMOVED);
        DeviceScript::Get().listener->OnEvent(removed.get());
        QCOMPARE(WpdApiLib::Cancel(), 0);
    }
};

QTEST_GUILESS_MAIN(tst_device_import)
#include "tst_device_import.moc"

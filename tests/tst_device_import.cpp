// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/WpdApiLib/WpdApiLib.h"
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

using Scripted::DeviceScript;
using Scripted::Script;

namespace {

// On Windows a library keeps the operators that it was linked with.
#ifdef Q_OS_WIN
constexpr bool SeesAllocations = false;
#else
constexpr bool SeesAllocations = true;
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
    int Transfer(const wchar_t* id, int alternate, const QString& path)
    {
        return WpdApiLib::TransferContentFromDevice(
            id, QDir::toNativeSeparators(path).toStdWString().c_str(), alternate);
    }
    static void Open() { QCOMPARE(WpdApiLib::ChooseDevice(L"device 1", nullptr), 1); }
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

    void listsDevices()
    {
        wchar_t* ids[3] = {};
        wchar_t* names[3] = {};
        QCOMPARE(WpdApiLib::EnumerateAllDevices(ids, names), 0ul);
        QVERIFY(!ids[0] && !names[0]);
        DeviceScript::Get().devices = {{L"a", L"Tel\u00e9fono \U0001F4F7", L"x"},
                                       {L"b", L"", L"Camera"},
                                       {L"c", L"none", L"none"}};
        QCOMPARE(WpdApiLib::EnumerateAllDevices(nullptr, nullptr), 3ul);
        QCOMPARE(WpdApiLib::EnumerateAllDevices(ids, names), 3ul);
        const std::pair<const wchar_t*, const wchar_t*> expected[] = {
            {L"a", L"Tel\u00e9fono \U0001F4F7"}, {L"b", L"Camera"}, {L"c", L""}};
        for (int i = 0; i < 3; ++i) {
            QVERIFY(std::wstring(ids[i]) == expected[i].first);
            QVERIFY(std::wstring(names[i]) == expected[i].second);
            SysFreeString(ids[i]);
            SysFreeString(names[i]);
        }
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
            {"copy", "full disk", 0x80030070, 0, "! Failed to write 100 bytes of object data to the destination stream, hr = 0x%1\n! Failed to transfer object from device, hr = 0x%1\n"},
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
            if ((failing == "memory" && !SeesAllocations) ||
                (failing == "full disk" && !QFile::exists("/dev/full")))
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
        DeviceScript::Get().Add(L"DEVICE", L"clip", false, 100);
        DeviceScript::Get().devices = {{L"a", L"", L""}, {L"b", L"", L""}};
        Script::Get().statuses[failing] = static_cast<HRESULT>(status);
        int result = 0;
        LogCapture log;
        const QString printed = Printed([&] {
            if (failing != "no device" && action != "list")
                result = WpdApiLib::ChooseDevice(L"phone", nullptr);
            s_allocationToFail = failing != "memory" ? 0 : action == "list" ? 16 : 4096;
            wchar_t* ids[2] = {};
            if (action == "list")
                result = static_cast<int>(WpdApiLib::EnumerateAllDevices(ids, nullptr));
            else if (action == "walk")
                result = WpdApiLib::EnumerateAllContent();
            else if (action == "copy")
                result = Transfer(L"clip", 0, failing == "full disk" ? "/dev/full" : Target());
            else if (action == "cancel")
                result = WpdApiLib::Cancel();
            else if (action == "delete")
                WpdApiLib::DeleteContentFromDevice(failing == "no identifier" ? nullptr : L"clip");
            WpdApiLib::UnregisterForEventNotifications();
        });
        QString logged = log.Take().join('|');
        logged.remove(QRegularExpression(" - \\[CommonLib/WpdApiLib/WpdApiLib\\(\\d+\\)\\]$"));
        if (output.startsWith('-'))
            QCOMPARE(logged, output);
        else
            QCOMPARE(printed, output);
        if (action != "delete")
            QTEST(result, "result");
        if (action == "walk")
            QVERIFY(WpdApiLib::bFailed == 1 - result && WpdApiLib::bCanceled == 0);
        QCOMPARE(Script::Get().TakeCalls().contains("content.Delete(0, clip)"),
                 action == "delete" && (failing.isEmpty() || failing == "content.Delete"));
    }

    void walksTwoLevelsAndWhereAsked()
    {
        BuildTree();
        Open();
        QCOMPARE(WpdApiLib::EnumerateAllContent(), 1);
        QCOMPARE(m_seen, QStringList({"DEVICE", "card", "DCIM"}));
        QCOMPARE(Script::Get().TakeCalls().filter("keys.Add").join(' '),
                 QString("keys.Add3() keys.Add12() keys.Add11() keys.Add7() keys.Add19()"));
        m_seen.clear();
        m_details.clear();
        m_descendInto = {"DCIM", "100", "101"};
        QCOMPARE(WpdApiLib::EnumerateAllContent(), 1);
        QCOMPARE(m_seen, QStringList({"DEVICE", "card", "DCIM", "100", "clip.mov", "101", "deep"}));
        QCOMPARE(m_details.value(3), QString("DCIM 100 0 1 0"));
        QCOMPARE(m_details.value(4), QString("100 clip.mov 5000000000 0 4500.25"));
        for (int calls = 0; calls < 3; ++calls) {
            m_seen.clear();
            m_stopAfter = calls;
            QCOMPARE(WpdApiLib::EnumerateAllContent(), 0);
            QCOMPARE(m_seen.size(), calls + 1);
            QCOMPARE(WpdApiLib::bCanceled, 1);
        }
        m_stopAfter = -1;
        QCOMPARE(WpdApiLib::EnumerateAllContent(), 1);
        QCOMPARE(WpdApiLib::bCanceled, 0);
    }

    void endsWhenTheDeviceVanishes()
    {
        BuildTree();
        DeviceScript::Get().Add(L"card", L"small", false, 10000);
        Open();
        for (const bool walking : {true, false}) {
            int result = 0;
            int steps = 0;
            for (; result == 0 && steps < 100; ++steps) {
                DeviceScript::Get().stepsUntilVanished = steps;
                Printed([&] {
                    result = walking ? WpdApiLib::EnumerateAllContent()
                                     : Transfer(L"small", 0, Target());
                });
            }
            // Content, properties and three calls an object; content, resources, stream, reads.
            QCOMPARE(steps, walking ? 2 + 3 * 4 + 1 : 3 + 4 + 1);
        }
        DeviceScript::Get().stepsUntilVanished = -1;
    }

    void passesManyAndOddNamesOn()
    {
        for (int i = 0; i < 20000; ++i)
            DeviceScript::Get().Add(L"DEVICE", std::to_wstring(i));
        const std::wstring odd = L"IMG\xDCFF.jpg"; // a byte that is not UTF-8
        DeviceScript::Get().Add(L"DEVICE", odd, false, 3);
        Open();
        QCOMPARE(WpdApiLib::EnumerateAllContent(), 1);
        QVERIFY(m_lastName == odd);
        QCOMPARE(m_seen.size(), 1 + 20001);
        QCOMPARE(Script::Get().TakeCalls().filter("enumerator.Next(10)").size(), 2001 + 20001);
    }

    void copies()
    {
        const struct
        {
            quint64 size;
            uint bufferSize, readLimit;
            int stopAfter;
            QVector<qint64> chunks;
        } rows[] = {{0, 4096, 0, -1, {}},
                    {10000, 4096, 0, -1, {4096, 8192, 10000}},
                    {10000, 8192, 4000, -1, {4000, 8000, 10000}}, // short reads
                    {300000, 0, 0, -1, {262144, 300000}}, // a device without a size of its own
                    {10000, 4096, 0, 0, {4096}},
                    {10000, 4096, 0, 2, {4096, 8192, 10000}},
                    // space is reserved ahead
                    {70000000, 1 << 25, 0, 2, {1 << 25, 1 << 26, 70000000}}};
        for (const auto& row : rows) {
            const QVector<qint64>& chunks = row.chunks;
            const int stopAfter = row.stopAfter;
            init();
            DeviceScript::Get().Add(L"DEVICE", L"clip", false, row.size);
            DeviceScript::Get().bufferSize = row.bufferSize;
            DeviceScript::Get().readLimit = row.readLimit;
            m_stopAfter = stopAfter;
            Open();
            s_buffers = 0;
            QFile file(Target());
            QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(400000)); // is to be overwritten
            file.close();
            int result = 0;
            const QString printed =
                Printed([&] { result = Transfer(L"clip", stopAfter, Target()); });
            QCOMPARE(result, stopAfter < 0 ? 1 : 0);
            QCOMPARE(printed, stopAfter < 0 ? QString()
                                            : "! Failed to transfer object from device, "
                                              "hr = 0x80004005\n");
            QCOMPARE(m_chunks, chunks);
            QCOMPARE(s_buffers, SeesAllocations ? 1 : 0);
            const QString resource = stopAfter == 0 ? "E81E79BE" : "C7C407BA";
            QVERIFY(Script::Get().TakeCalls().contains("content.GetStream(clip, " + resource +
                                                       ", 0, 0)"));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QByteArray expected(chunks.isEmpty() ? 0 : int(chunks.last()), 0);
            for (int i = 0; i < expected.size(); ++i)
                expected[i] = DeviceScript::DataAt(i);
            QVERIFY(file.readAll() == expected);
#ifdef Q_OS_LINUX
            struct stat status = {};
            QVERIFY(::fstat(file.handle(), &status) == 0);
            QVERIFY(status.st_blocks * 512 < file.size() + (1 << 20));
#endif
            cleanup();
        }
    }

    void tellsOnceOfTheRemoval()
    {
        const auto removed = DeviceScript::EventParameters(Wpd::WPD_EVENT_DEVICE_REMOVED);
        const auto other = DeviceScript::EventParameters(Wpd::WPD_CONTENT_TYPE_FOLDER);
        const auto fromThreads = [&](const NLEComPtr<IPortableDeviceValues>& event) {
            const auto fire = [&] { DeviceScript::Get().listener->OnEvent(event.get()); };
            std::thread first(fire);
            std::thread second(fire);
            first.join();
            second.join();
        };
        Open();
        WpdApiLib::SetCallbackProc(nullptr, nullptr); // the event object keeps its copies
        fromThreads(other);
        QCOMPARE(m_removals.load(), 0);
        fromThreads(removed);
        QCOMPARE(m_removals.load(), 1);

        // An event in the middle of closing: none is reported afterwards.
        for (int round = 0; round < 200; ++round) {
            WpdApiLib::SetCallbackProc(&Callback, this);
            Open();
            std::thread late([&] { DeviceScript::Get().listener->OnEvent(removed.get()); });
            WpdApiLib::UnregisterForEventNotifications();
            const int told = m_removals;
            late.join();
            QCOMPARE(m_removals.load(), told);
        }

        // The callback may close the device itself.
        WpdApiLib::SetCallbackProc(
            [](HWND, std::uint32_t, std::uint64_t, std::int64_t, void*) -> std::int64_t {
                WpdApiLib::UnregisterForEventNotifications();
                return 0;
            },
            nullptr);
        Open();
        DeviceScript::Get().listener->OnEvent(removed.get());
        QCOMPARE(WpdApiLib::Cancel(), 0);
    }
};

QTEST_GUILESS_MAIN(tst_device_import)
#include "tst_device_import.moc"

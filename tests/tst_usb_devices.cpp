// SPDX-License-Identifier: LGPL-2.1-or-later
// The portable-device service with cameras and phones on emulated USB ports: GVfs, libgphoto2 and
// libmtp are the ones that talk to real devices.
#include "DeviceApi/DeviceResults.h"
#include "tests/support/DeviceClient.h"
#include "tests/support/PtpDevice.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <clocale>
#include <future>
#include <gio/gio.h>
#include <thread>
#include <umockdev.h>
#include <unistd.h>

using DeviceClient::Device;
using DeviceClient::Listener;
using DeviceClient::Object;

Q_DECLARE_METATYPE(PtpDevice::Kind)

using namespace devices;

class TestUsbDevices : public QObject
{
    Q_OBJECT

public:
    TestUsbDevices()
    {
        GTestDBus* bus = g_test_dbus_new(G_TEST_DBUS_NONE);
        // While there is one thread: what ends the bus after this process is a fork of it, which
        // would wait for ever for a lock that another thread held.
        g_test_dbus_add_service_dir(bus, QFile::encodeName(m_services.path()).constData());
        g_test_dbus_up(bus);
    }

private:
    UMockdevTestbed* m_testbed = nullptr;
    QTemporaryDir m_services;

    // The emulation names a process's end of the event channel after its descriptor, so those of
    // different processes must differ: the ones up to \a descriptors are taken beforehand.
    void AddService(const QByteArray& name, const QByteArray& program, int descriptors) const
    {
        QFile file(m_services.filePath(name + ".service"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[D-BUS Service]\nName=" + name + "\nExec=/bin/bash -c 'for i in {3.." +
                   QByteArray::number(descriptors) + "}; do eval \"exec $i<&0\"; done; " +
                   "UMOCKDEV_DIR=" + qgetenv("UMOCKDEV_DIR") + " exec /usr/libexec/" + program +
                   "'\n");
    }
    // The identifier of the one device, once GVfs has seen it; empty after a while. Asked for on
    // threads that have no event loop.
    static QString WaitForDevice()
    {
        QMap<QString, QString> devices;
        for (int i = 0; i < 100 && devices.isEmpty(); ++i) {
            QTest::qWait(50);
            devices = std::async(std::launch::async, &DeviceClient::Devices).get();
        }
        return devices.isEmpty() ? QString() : devices.firstKey();
    }
    static void AddKinds()
    {
        QTest::addColumn<PtpDevice::Kind>("kind");
        QTest::newRow("camera") << PtpDevice::Kind{false, true};
        QTest::newRow("phone") << PtpDevice::Kind{true, true};
    }
    static QByteArray HashOf(quint64 size)
    {
        QCryptographicHash sum(QCryptographicHash::Md5);
        for (quint64 at = 0; at < size; at += 1 << 20)
            sum.addData(PtpDevice::Content(at, quint32(qMin<quint64>(1 << 20, size - at))));
        return sum.result();
    }

private Q_SLOTS:
    void initTestCase()
    {
        // A host that never asked for the user's locale.
        std::setlocale(LC_ALL, "C");
        m_testbed = umockdev_testbed_new();
        AddService("org.gtk.vfs.Daemon", "gvfsd", 3);
        AddService("org.gtk.vfs.GPhoto2VolumeMonitor", "gvfs-gphoto2-volume-monitor", 40);
        AddService("org.gtk.vfs.MTPVolumeMonitor", "gvfs-mtp-volume-monitor", 60);
    }
    void cleanup() { QTRY_VERIFY(DeviceClient::Devices().isEmpty()); }

    void transfer_data()
    {
        QTest::addColumn<PtpDevice::Kind>("kind");
        for (const PtpDevice::Kind kind :
             {PtpDevice::Kind{false, true}, {false, false}, {true, true}, {true, false}})
            QTest::addRow("%s, parts: %d", kind.Name(), kind.hasPartialReads) << kind;
    }
    void transfer()
    {
        QFETCH(PtpDevice::Kind, kind);
        const quint64 size = kind.hasPartialReads ? 300 << 20 : 30 << 20;
        PtpDevice usb(m_testbed, kind);
        const quint32 folder = usb.AddFolder(usb.AddFolder(0, "DCIM"), "100");
        usb.Add(folder, "\u00fcber.MP4", size);
        usb.Add(folder, "LARGE.MP4", 5ULL << 30);
        const quint32 picture = usb.Add(folder, "IMG.JPG", 3);
        const quint32 locked = usb.Add(folder, "LOCKED.JPG", 0, true);
        const QString id = WaitForDevice();
        // As a desktop does it; a camera's mount has to make way.
        QCOMPARE(QProcess::execute("gio", {"mount", id}), 0);
        const Device device(id);
        QCOMPARE(device.result, S_OK);
        QCOMPARE(QProcess::execute("gio", {"info", id}) == 0, kind.isPhone);
        const auto tree = device.Tree();
        const QString top = tree.firstKey() + "/DCIM/100/";
        QCOMPARE(tree.size(), 7);
        QCOMPARE(tree[top + "\u00fcber.MP4"].size, size);
        const Object& large = tree[top + "LARGE.MP4"];
        QCOMPARE(large.size, !kind.isPhone && kind.hasPartialReads ? 0xFFFFFFFF : 5ULL << 30);
        QCOMPARE(tree[top + "IMG.JPG"].modified, 45351.5);

        QByteArray hash;
        quint64 total = 0;
        int steps = 0;
        const auto count = [&steps](quint64) { return ++steps > 0; };
        QCOMPARE(device.Read(tree[top + "\u00fcber.MP4"].id, hash, total, count), S_FALSE);
        QCOMPARE(total, size);
        QCOMPARE(hash, HashOf(size));
        QVERIFY(steps >= int(size >> 20));
        QCOMPARE(usb.wholeReads > 0, !kind.hasPartialReads);
        QCOMPARE(usb.partialReads > 0, kind.hasPartialReads);

        char data[100] = {};
        ULONG got = 0;
        NLEComPtr<IStream> stream;
        // Without parts all would have to be fetched; without the true size the end is not known.
        const Object& sought = kind.hasPartialReads ? large : tree[top + "\u00fcber.MP4"];
        const quint32 left = sought.size == 0xFFFFFFFF ? 0 : 8;
        QCOMPARE(device.Open(sought.id, stream), S_OK);
        QCOMPARE(stream->Seek({qint64(sought.size) - 8}, 0, nullptr), S_OK);
        QCOMPARE(stream->Read(data, 100, &got), left > 0 ? S_OK : kTooLarge);
        QCOMPARE(QByteArray(data, int(got)), PtpDevice::Content(sought.size - 8, left));
        QCOMPARE(device.Open(tree[top + "IMG.JPG"].id, stream, Wpd::WPD_RESOURCE_THUMBNAIL), S_OK);
        QCOMPARE(stream->Read(data, 100, &got), S_OK);
        QCOMPARE(QByteArray(data, int(got)), PtpDevice::Thumbnail());

        QVERIFY(FAILED(device.Remove(tree[top + "LOCKED.JPG"].id)));
        QVERIFY(usb.Has(locked));
        QVERIFY(FAILED(device.Remove(tree[top].id)));
        QCOMPARE(device.Remove(tree[top + "IMG.JPG"].id), S_OK);
        QVERIFY(!usb.Has(picture));
    }

    void ended_data()
    {
        QTest::addColumn<PtpDevice::Kind>("kind");
        QTest::addColumn<QString>("how");
        for (const char* how : {"cancel", "leave", "unplug"}) {
            QTest::addRow("camera, %s", how) << PtpDevice::Kind{false, true} << how;
            QTest::addRow("phone, %s", how) << PtpDevice::Kind{true, true} << how;
        }
        for (const PtpDevice::Kind kind :
             {PtpDevice::Kind{false, true}, {false, false}, {true, true}, {true, false}})
            QTest::addRow("%s, parts: %d, short", kind.Name(), kind.hasPartialReads)
                << kind << "short";
    }
    // A transfer that ends early, and what the device is good for afterwards.
    void ended()
    {
        QFETCH(PtpDevice::Kind, kind);
        QFETCH(QString, how);
        PtpDevice usb(m_testbed, kind);
        usb.Add(0, "A.MP4", 60 << 20);
        usb.Add(0, "B.JPG", 5);
        const QString id = WaitForDevice();
        const Device device(id);
        QCOMPARE(device.result, S_OK);
        const auto listener = MakeCom<Listener>();
        listener->Advise(device);
        const auto tree = device.Tree();
        const QString& top = tree.firstKey();
        QByteArray hash;
        quint64 total = 0;
        std::thread helper;
        if (how == "short")
            usb.endsAt = 5 << 20;
        const HRESULT result =
            device.Read(tree[top + "/A.MP4"].id, hash, total, [&](quint64 sofar) {
                if (sofar < 4 << 20 || helper.joinable() || how == "short")
                    return true;
                if (how == "leave")
                    return false;
                helper = std::thread([&] {
                    if (how == "cancel")
                        device.device->Cancel();
                    else
                        usb.Unplug();
                });
                return true;
            });
        if (helper.joinable())
            helper.join();
        QVERIFY(total < 60 << 20);
        if (how == "unplug") {
            QVERIFY(FAILED(result));
            QVERIFY(result != kCancelled);
            QTRY_COMPARE(listener->removals.load(), 1);
            QVERIFY(listener->isOwnThread);
            QCOMPARE(listener->deviceId, id);
            QCOMPARE(device.Read(tree[top + "/B.JPG"].id, hash, total), kDeviceGone);
            return;
        }
        QCOMPARE(result, how == "cancel" ? kCancelled : how == "short" ? kCutShort : S_FALSE);
        QCOMPARE(device.Read(tree[top + "/B.JPG"].id, hash, total), S_FALSE);
        QCOMPARE(total, quint64(5));
        QCOMPARE(listener->removals.load(), 0);
    }

    void unpluggedWhileIdle_data() { AddKinds(); }
    void unpluggedWhileIdle()
    {
        QFETCH(PtpDevice::Kind, kind);
        PtpDevice usb(m_testbed, kind);
        const Device device(WaitForDevice());
        QCOMPARE(device.result, S_OK);
        const auto listener = MakeCom<Listener>();
        listener->Advise(device);
        usb.Unplug();
        QTRY_COMPARE(listener->removals.load(), 1);
    }

    void heldByAnother_data() { AddKinds(); }
    void heldByAnother()
    {
        QFETCH(PtpDevice::Kind, kind);
        PtpDevice usb(m_testbed, kind);
        const QString id = WaitForDevice();
        usb.isHeld = true;
        QCOMPARE(Device(id).result, kBusy);
        usb.isHeld = false;
        QCOMPARE(Device(id).result, S_OK);
    }

    void stopsAnswering_data()
    {
        QTest::addColumn<PtpDevice::Kind>("kind");
        QTest::addColumn<bool>("isRead");
        QTest::newRow("camera, in a transfer") << PtpDevice::Kind{false, true} << true;
        QTest::newRow("camera, in a walk") << PtpDevice::Kind{false, true} << false;
        QTest::newRow("phone, in a transfer") << PtpDevice::Kind{true, true} << true;
        QTest::newRow("phone, in a walk") << PtpDevice::Kind{true, true} << false;
    }
    // Cancelled and closed before the libraries below have given up.
    void stopsAnswering()
    {
        QFETCH(PtpDevice::Kind, kind);
        QFETCH(bool, isRead);
        PtpDevice usb(m_testbed, kind);
        usb.Add(usb.AddFolder(0, "DCIM"), "A.MP4", 60 << 20);
        auto device = std::make_unique<Device>(WaitForDevice());
        QCOMPARE(device->result, S_OK);
        const auto walk = [&device] { return static_cast<HRESULT>(device->Tree()["failed"].size); };
        std::atomic<bool> isDone{false};
        std::thread helper;
        const auto hang = [&](quint64) {
            if (helper.joinable())
                return true;
            usb.isHanging = true;
            helper = std::thread([&] {
                // More than once: one may come between two operations.
                while (!isDone) {
                    QThread::msleep(50);
                    if (usb.isAsked)
                        device->device->Cancel();
                }
            });
            return true;
        };
        QByteArray hash;
        quint64 total = 0;
        HRESULT result = S_OK;
        if (isRead) {
            result = device->Read(device->Tree().last().id, hash, total, hang);
        } else {
            hang(0);
            result = walk();
        }
        isDone = true;
        helper.join();
        QCOMPARE(result, kCancelled);
        if (isRead) // the device is still at it
            QCOMPARE(walk(), kTimedOut);
        device.reset();
        QCOMPARE(usb.givenUp.load(), 0);
    }
};

int main(int argc, char** argv)
{
    // The emulation has to be there before the C library's own calls are bound. What leaks in the
    // camera drivers is unloaded before the leak check, so no suppression could name it.
    if (!qgetenv("LD_PRELOAD").contains("umockdev")) {
        qputenv("LD_PRELOAD", "libumockdev-preload.so.0");
        qputenv("ASAN_OPTIONS",
                qgetenv("ASAN_OPTIONS") + ":verify_asan_link_order=0:detect_leaks=0");
        qputenv("GVFS_DISABLE_FUSE", "1");
        execv("/proc/self/exe", argv);
    }
    // A host whose event loop is not GLib's.
    qputenv("QT_NO_GLIB", "1");
    QCoreApplication application(argc, argv);
    TestUsbDevices test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_usb_devices.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/PtpDevice.h"

#include <QFile>
#include <QtEndian>

#include <cerrno>
#include <linux/usb/ch9.h>
#include <linux/usbdevice_fs.h>
#include <memory>
#include <sys/ioctl.h>
#include <umockdev.h>

namespace {

using GPtr = std::unique_ptr<char, decltype(&g_free)>;

constexpr const char* kNode = "/dev/bus/usb/001/002";
constexpr const char* kSysPath = "/sys/devices/usb1/1-1";
constexpr quint32 kStorage = 0x00010001;
constexpr quint16 kDone = 0x2001;
constexpr quint16 kNotKnown = 0x2005;
constexpr quint16 kNoObject = 0x2009;
constexpr quint16 kProtected = 0x200D;

template <typename T>
QByteArray Little(T value)
{
    value = qToLittleEndian(value);
    return {reinterpret_cast<const char*>(&value), sizeof(value)};
}

QByteArray Text(const QString& text)
{
    QByteArray bytes(1, text.isEmpty() ? 0 : static_cast<char>(text.size() + 1));
    for (int i = 0; i <= text.size() && !text.isEmpty(); ++i)
        bytes += Little<quint16>(i < text.size() ? text[i].unicode() : 0);
    return bytes;
}

template <typename T>
QByteArray Array(const QList<T>& values)
{
    QByteArray bytes = Little<quint32>(static_cast<quint32>(values.size()));
    for (T value : values)
        bytes += Little(value);
    return bytes;
}

quint32 Parameter(const QByteArray& command, int number)
{
    const int at = 12 + 4 * number;
    return at + 4 <= command.size() ? qFromLittleEndian<quint32>(command.constData() + at) : 0;
}

// Device, configuration, one still-image interface, three end points.
QByteArray Descriptors(const PtpDevice::Kind& kind)
{
    return QByteArray("1201000200000040") + (kind.isPhone ? "d118e14e" : "34127856") +
           "000100000001" + "09022700010100c032" + "090400000306010100" + "07058102000200" +
           "07050202000200" + "0705830308000a";
}

} // namespace

struct PtpDevice::Urb
{
    // Held: a client that ends leaves requests, and none may be answered to another one.
    UMockdevIoctlClient* client;
    UMockdevIoctlData* request; // in the client's memory, as is the buffer
    UMockdevIoctlData* buffer;
    bool isDiscarded;

    const usbdevfs_urb& operator*() const
    {
        return *reinterpret_cast<const usbdevfs_urb*>(request->data);
    }
};

// The emulation's way to hand requests over is a class of its own object system.
struct Handler
{
    UMockdevIoctlBase base;
    PtpDevice* device; // null when it has gone before those that have its node open
};
struct HandlerClass
{
    UMockdevIoctlBaseClass base;
};
G_DEFINE_TYPE(Handler, handler, UMOCKDEV_TYPE_IOCTL_BASE)
static std::mutex s_handlerMutex; // guards the devices of all
static void handler_init(Handler* /*self*/) {}
static void handler_class_init(HandlerClass* type)
{
    type->base.handle_ioctl = [](UMockdevIoctlBase* self, UMockdevIoctlClient* client) -> gboolean {
        const std::lock_guard lock(s_handlerMutex);
        if (PtpDevice* device = reinterpret_cast<Handler*>(self)->device)
            return device->Handle(client);
        umockdev_ioctl_client_complete(client, -1, ENODEV);
        return TRUE;
    };
}

PtpDevice::PtpDevice(UMockdevTestbed* testbed, const Kind& kind) : m_testbed(testbed), m_kind(kind)
{
    auto* created = static_cast<Handler*>(g_object_new(handler_get_type(), nullptr));
    created->device = this;
    m_handler = created;
    const QByteArray description =
        "P: /devices/usb1/1-1\nN: bus/usb/001/002\nE: DEVNAME=/dev/bus/usb/001/002\n"
        "E: DEVTYPE=usb_device\nE: SUBSYSTEM=usb\nE: BUSNUM=001\nE: DEVNUM=002\nE: MAJOR=189\n"
        "E: MINOR=1\nE: ID_VENDOR_ENC=Maker\nE: ID_MODEL_ENC=" +
        QByteArray(kind.Name()) + "\nE: ID_SERIAL=Maker_" + kind.Name() + "\n" +
        (kind.isPhone ? "E: ID_MTP_DEVICE=1\nE: ID_MEDIA_PLAYER=1\n" : "E: ID_GPHOTO2=1\n") +
        "A: busnum=1\\n\nA: devnum=2\\n\nA: bConfigurationValue=1\\n\nA: speed=480\\n\n"
        "H: descriptors=" +
        Descriptors(kind) + "\n";
    GError* error = nullptr;
    if (!umockdev_testbed_add_from_string(testbed, description.constData(), &error) ||
        !umockdev_testbed_attach_ioctl(testbed, kNode, UMOCKDEV_IOCTL_BASE(m_handler), &error))
        qFatal("%s", error->message);
}

PtpDevice::~PtpDevice()
{
    Unplug();
    const std::lock_guard lock(s_handlerMutex);
    static_cast<Handler*>(m_handler)->device = nullptr;
    g_object_unref(m_handler);
}

void PtpDevice::Unplug()
{
    {
        const std::lock_guard lock(m_mutex);
        if (!std::exchange(m_isPlugged, false))
            return;
    }
    const GPtr root(umockdev_testbed_get_root_dir(m_testbed), g_free);
    umockdev_testbed_uevent(m_testbed, kSysPath, "remove");
    umockdev_testbed_remove_device(m_testbed, kSysPath);
    umockdev_testbed_detach_ioctl(m_testbed, kNode, nullptr);
    QFile::remove(QFile::decodeName(QByteArray(root.get()) + kNode)); // it would stay
}

quint32 PtpDevice::Add(quint32 parent, const QString& name, quint64 size, bool isProtected)
{
    const std::lock_guard lock(m_mutex);
    const quint32 number = m_objects.isEmpty() ? 1 : m_objects.lastKey() + 1;
    m_objects[number] = {parent, name, size, false, isProtected};
    return number;
}

quint32 PtpDevice::AddFolder(quint32 parent, const QString& name)
{
    const quint32 number = Add(parent, name, 0);
    const std::lock_guard lock(m_mutex);
    m_objects[number].isFolder = true;
    return number;
}

bool PtpDevice::Has(quint32 object)
{
    const std::lock_guard lock(m_mutex);
    return m_objects.contains(object);
}

QByteArray PtpDevice::Content(quint64 offset, quint32 size)
{
    const quint64 first = offset & ~7ULL;
    QByteArray bytes(static_cast<int>(offset + size - first + 7) & ~7, Qt::Uninitialized);
    for (int at = 0; at < bytes.size(); at += 8)
        qToLittleEndian<quint64>(first + static_cast<quint64>(at), bytes.data() + at);
    return bytes.mid(static_cast<int>(offset - first), static_cast<int>(size));
}

QByteArray PtpDevice::deviceInfo() const
{
    QList<quint16> operations{0x1001, 0x1002, 0x1003, 0x1004, 0x1005, 0x1007, 0x1008,
                              0x1009, 0x100A, 0x100B, 0x9421, 0x9801, 0x9802, 0x9803};
    if (m_kind.hasPartialReads)
        operations << 0x101B;
    if (m_kind.hasPartialReads && m_kind.isPhone)
        operations << 0x95C1;
    // One maker's extension is that a camera reports sizes of 64 bits.
    const quint32 maker = m_kind.isPhone ? 6 : m_kind.hasPartialReads ? 0 : 10;
    return Little<quint16>(100) + Little(maker) + Little<quint16>(100) +
           Text(m_kind.isPhone ? "microsoft.com: 1.0; android.com: 1.0;" : "") +
           Little<quint16>(0) + Array(operations) + Array(QList<quint16>()) +
           Array(QList<quint16>()) + Array(QList<quint16>()) + Array(QList<quint16>{0x3801}) +
           Text("Maker") + Text(m_kind.Name()) + Text("1.0") + Text("0001");
}

QByteArray PtpDevice::objectInfo(const Object& object) const
{
    const auto size = static_cast<quint32>(qMin<quint64>(object.size, 0xFFFFFFFF));
    const bool isPicture = object.name.endsWith(".JPG");
    return Little(kStorage) +
           Little<quint16>(object.isFolder ? 0x3001
                           : isPicture     ? 0x3801
                                           : 0x3000) +
           Little<quint16>(object.isProtected) + Little(size) + Little<quint16>(0x3808) +
           Little(static_cast<quint32>(Thumbnail().size())) + QByteArray(5 * 4, 0) +
           Little(object.parent) + Little<quint16>(object.isFolder) + QByteArray(8, 0) +
           Text(object.name) + Text("20240229T120000") + Text("20240229T120000") + Text("");
}

void PtpDevice::answerData(const QByteArray& command, const QByteArray& data, quint64 offset,
                           quint64 size)
{
    const quint64 length = 12 + static_cast<quint64>(data.size()) + size;
    m_transfers.push_back({Little(static_cast<quint32>(qMin<quint64>(length, 0xFFFFFFFF))) +
                               Little<quint16>(2) + command.mid(6, 6) + data,
                           offset, size});
}

void PtpDevice::answer(const QByteArray& command, quint16 code)
{
    m_transfers.push_back(
        {Little<quint32>(12) + Little<quint16>(3) + Little(code) + command.mid(8, 4), 0, 0});
}

void PtpDevice::command(const QByteArray& bytes)
{
    if (bytes.size() < 12 || bytes[4] != 1)
        return;
    m_transfers.clear();
    answer(bytes, data(qFromLittleEndian<quint16>(bytes.constData() + 6), bytes));
}

// Does what is asked for, and gives the code of the answer.
quint16 PtpDevice::data(quint16 code, const QByteArray& command)
{
    const quint32 number = Parameter(command, 0);
    const Object object = m_objects.value(number);
    const auto give = [&](const QByteArray& bytes) {
        answerData(command, bytes);
        return kDone;
    };
    const auto content = [&](quint64 offset, quint64 size) {
        const quint64 end = qMin(qMin(object.size, endsAt.load()), offset + size);
        answerData(command, {}, offset, end > offset ? end - offset : 0);
        return kDone;
    };
    switch (code) {
    case 0x1001:
        return give(deviceInfo());
    case 0x1002:
    case 0x1003:
        return kDone;
    case 0x1004:
        return give(Array(QList<quint32>{kStorage}));
    case 0x1005:
        return give(Little<quint16>(4) + Little<quint16>(2) + Little<quint16>(0) +
                    Little<quint64>(1ULL << 36) + Little<quint64>(1ULL << 35) + Little<quint32>(0) +
                    Text("Memory") + Text("Memory"));
    case 0x1007: {
        QList<quint32> handles;
        const quint32 parent = Parameter(command, 2);
        for (auto at = m_objects.cbegin(); at != m_objects.cend(); ++at) {
            if (parent == 0 || at->parent == (parent == 0xFFFFFFFF ? 0 : parent))
                handles << at.key();
        }
        return give(Array(handles));
    }
    case 0x9801: // the properties of objects: the size, of 64 bits
        return give(Array(QList<quint16>{0xDC04}));
    case 0x9802:
        return give(Little<quint16>(0xDC04) + Little<quint16>(8) + QByteArray(14, 0));
    default:
        break;
    }
    if (!m_objects.contains(number))
        return code >= 0x1008 && code <= 0x101B ? kNoObject : kNotKnown;
    switch (code) {
    case 0x1008:
        return give(objectInfo(object));
    case 0x1009:
        ++wholeReads;
        return content(0, object.size);
    case 0x100A:
        return give(Thumbnail());
    case 0x100B:
        if (object.isProtected)
            return kProtected;
        m_objects.remove(number);
        return kDone;
    case 0x101B:
        ++partialReads;
        return content(Parameter(command, 1), Parameter(command, 2));
    case 0x9421:
    case 0x9803:
        return give(Little(object.size));
    case 0x95C1:
        ++partialReads;
        return content(Parameter(command, 1) | quint64(Parameter(command, 2)) << 32,
                       Parameter(command, 3));
    default:
        return kNotKnown;
    }
}

// Moves the data of one request. Gives the status that ends it, 0 for success, 1 while there is
// nothing to give.
int PtpDevice::complete(Urb& urb, int& length)
{
    const usbdevfs_urb& request = *urb;
    if (urb.isDiscarded)
        return -ENOENT;
    if (!m_isPlugged)
        return -ESHUTDOWN;
    if (request.type == USBDEVFS_URB_TYPE_CONTROL)
        return 0;
    const bool isBulk = request.type == USBDEVFS_URB_TYPE_BULK;
    if (isHanging && isBulk) {
        isAsked = true;
        return 1;
    }
    length = request.buffer_length;
    if (!(request.endpoint & USB_DIR_IN)) {
        command({reinterpret_cast<const char*>(urb.buffer->data), length});
        return 0;
    }
    if (!isBulk || m_transfers.empty())
        return 1;
    Transfer& transfer = m_transfers.front();
    QByteArray bytes = transfer.head.left(length);
    transfer.head.remove(0, bytes.size());
    const auto rest =
        static_cast<quint32>(qMin(transfer.size, static_cast<quint64>(length - bytes.size())));
    bytes += Content(transfer.offset, rest);
    transfer.offset += rest;
    transfer.size -= rest;
    length = bytes.size();
    if (transfer.head.isEmpty() && transfer.size == 0)
        m_transfers.pop_front();
    umockdev_ioctl_data_update(urb.buffer, 0, reinterpret_cast<guint8*>(bytes.data()), length);
    return 0;
}

int PtpDevice::submit(UMockdevIoctlClient* client, UMockdevIoctlData* request)
{
    if (!m_isPlugged)
        return ENODEV;
    Urb urb = {client, request, nullptr, false};
    urb.buffer = umockdev_ioctl_data_resolve(request, offsetof(usbdevfs_urb, buffer),
                                             static_cast<gsize>((*urb).buffer_length), nullptr);
    g_object_ref(client);
    m_urbs.push_back(urb);
    return 0;
}

int PtpDevice::reap(UMockdevIoctlClient* client, UMockdevIoctlData* target)
{
    for (auto urb = m_urbs.begin(); urb != m_urbs.end(); ++urb) {
        int length = 0;
        const int status = urb->client == client ? complete(*urb, length) : 1;
        if (status > 0)
            continue;
        guint8 bytes[sizeof(usbdevfs_urb)];
        memcpy(bytes, urb->request->data, sizeof(bytes));
        memcpy(bytes + offsetof(usbdevfs_urb, status), &status, sizeof(status));
        memcpy(bytes + offsetof(usbdevfs_urb, actual_length), &length, sizeof(length));
        umockdev_ioctl_data_update(urb->request, 0, bytes, sizeof(bytes));
        umockdev_ioctl_data_set_ptr(target, 0, urb->request);
        g_object_unref(urb->request);
        g_clear_object(&urb->buffer);
        g_object_unref(urb->client);
        m_urbs.erase(urb);
        return 0;
    }
    if (!m_isPlugged)
        return ENODEV;
    g_usleep(200); // the caller asks again and again
    return EAGAIN;
}

bool PtpDevice::Handle(UMockdevIoctlClient* client)
{
    const gulong request = umockdev_ioctl_client_get_request(client);
    UMockdevIoctlData* argument = umockdev_ioctl_client_get_arg(client);
    const std::lock_guard lock(m_mutex);
    int error = m_isPlugged ? 0 : ENODEV;
    const auto resolved = [argument](gsize size) {
        return umockdev_ioctl_data_resolve(argument, 0, size, nullptr);
    };
    if (request == USBDEVFS_GET_CAPABILITIES) {
        quint32 capabilities = USBDEVFS_CAP_ZERO_PACKET | USBDEVFS_CAP_NO_PACKET_SIZE_LIM;
        UMockdevIoctlData* answer = resolved(sizeof(capabilities));
        umockdev_ioctl_data_update(answer, 0, reinterpret_cast<guint8*>(&capabilities),
                                   sizeof(capabilities));
        g_object_unref(answer);
    } else if (request == USBDEVFS_CLAIMINTERFACE) {
        error = isHeld ? EBUSY : error;
    } else if (request == USBDEVFS_SUBMITURB) {
        error = submit(client, resolved(sizeof(usbdevfs_urb)));
    } else if (request == USBDEVFS_REAPURB || request == USBDEVFS_REAPURBNDELAY) {
        UMockdevIoctlData* target = resolved(sizeof(void*));
        error = reap(client, target);
        g_object_unref(target);
    } else if (request == USBDEVFS_DISCARDURB) {
        gulong address = 0;
        memcpy(&address, argument->data, sizeof(address));
        for (Urb& urb : m_urbs) {
            if (urb.client != client || urb.request->client_addr != address)
                continue;
            urb.isDiscarded = true;
            givenUp += isHanging && (*urb).type == USBDEVFS_URB_TYPE_BULK;
        }
    }
    umockdev_ioctl_client_complete(client, error == 0 ? 0 : -1, error);
    return true;
}

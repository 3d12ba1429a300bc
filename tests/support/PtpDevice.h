// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

#include <atomic>
#include <deque>
#include <mutex>

struct _UMockdevTestbed;
struct _UMockdevIoctlClient;
struct _UMockdevIoctlData;

/// A camera or phone on an emulated USB port: it answers the requests of the Picture Transfer
/// Protocol on the level of the kernel's USB device files, so that the libraries that talk to real
/// ones are in the path.
class PtpDevice
{
public:
    struct Kind
    {
        bool isPhone;
        bool hasPartialReads;
        const char* Name() const { return isPhone ? "Phone" : "Shooter"; }
    };
    struct Object
    {
        quint32 parent; // 0 on top
        QString name;
        quint64 size; // of content that Content() gives
        bool isFolder;
        bool isProtected;
    };

    /// Plugs the device in, as number 2 of bus 1.
    PtpDevice(_UMockdevTestbed* testbed, const Kind& kind);
    ~PtpDevice();

    /// Adds an object below \a parent and gives its number.
    quint32 Add(quint32 parent, const QString& name, quint64 size, bool isProtected = false);
    quint32 AddFolder(quint32 parent, const QString& name);
    bool Has(quint32 object);
    void Unplug();

    /// Bytes from \a offset on of every object: eight bytes at a time tell where they stand.
    static QByteArray Content(quint64 offset, quint32 size);
    static QByteArray Thumbnail() { return "a thumbnail"; }

    /// Objects give no data from this place on, whatever their told size.
    std::atomic<quint64> endsAt{~0ULL};
    /// Nothing is answered any more; a request that waits for data sets isAsked, and one that is
    /// taken back adds to givenUp.
    std::atomic<bool> isHanging{false}, isAsked{false};
    std::atomic<int> givenUp{0};
    /// Another program has taken it up.
    std::atomic<bool> isHeld{false};
    /// Whole and partial reads of data that were asked for.
    std::atomic<int> wholeReads{0}, partialReads{0};

    /// Answers one request to the device file; for the emulation.
    bool Handle(_UMockdevIoctlClient* client);

private:
    // One transfer to the host: a header, then content of an object.
    struct Transfer
    {
        QByteArray head;
        quint64 offset, size;
    };
    struct Urb;

    void command(const QByteArray& bytes);
    void answerData(const QByteArray& command, const QByteArray& data, quint64 offset = 0,
                    quint64 size = 0);
    void answer(const QByteArray& command, quint16 code);
    QByteArray deviceInfo() const;
    QByteArray objectInfo(const Object& object) const;
    quint16 data(quint16 code, const QByteArray& command);
    int complete(Urb& urb, int& length);
    int submit(_UMockdevIoctlClient* client, _UMockdevIoctlData* request);
    int reap(_UMockdevIoctlClient* client, _UMockdevIoctlData* target);

    _UMockdevTestbed* m_testbed;
    void* m_handler = nullptr;
    const Kind m_kind;
    std::mutex m_mutex; // guards what follows
    QMap<quint32, Object> m_objects;
    std::deque<Transfer> m_transfers;
    std::deque<Urb> m_urbs;
    bool m_isPlugged = true;
};

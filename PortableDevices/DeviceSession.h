// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "PortableDevices/Results.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace devices {

/// Identifier of the object that stands for the device itself; the root of its content.
constexpr const wchar_t* kDeviceObject = L"DEVICE";
/// Transfers go in steps of this many bytes; those of local files in steps that stay in a
/// processor's cache.
constexpr std::uint32_t kTransferSize = 1U << 20;
constexpr std::uint32_t kLocalTransferSize = 1U << 18;

enum class ObjectKind
{
    Device,
    Storage,
    Folder,
    File
};

/// What a device reports of one object.
struct ObjectInfo
{
    std::wstring id;
    std::wstring parentId; ///< Empty for the device itself.
    std::wstring name;     ///< With the suffix.
    ObjectKind kind = ObjectKind::File;
    std::uint64_t size = 0;
    double modified = 0;     ///< OLE automation date in local time; 0 when it is not known.
    bool isComplete = false; ///< False when only the identifiers are set.
};

/// The two streams of data that an object may have.
enum class Resource
{
    Data,
    Thumbnail
};

/// One open stream of an object's data. Lives on the thread of its session.
class DataReader
{
public:
    DataReader() = default;
    DataReader(const DataReader&) = delete;
    DataReader& operator=(const DataReader&) = delete;
    virtual ~DataReader() = default;

    /// A path that leads to the open file itself as long as the reader lives, when the data lies in
    /// the local file system; else empty.
    virtual std::string LocalPath() const { return {}; }
    /// Reads at most \a size bytes from \a position on, as far as the system holds them in memory,
    /// and never waits for a device. Any thread, also beside a Read(), which it moves nowhere.
    /// Gives what was read; 0 tells nothing.
    virtual std::uint32_t ReadHeld(void* /*buffer*/, std::uint32_t /*size*/,
                                   std::uint64_t /*position*/) const
    {
        return 0;
    }
    /// Reads at most \a size bytes; 0 bytes with success is the end of the data.
    virtual HRESULT Read(void* buffer, std::uint32_t size, std::uint32_t& got,
                         GCancellable* cancellable) = 0;
    /// Goes to \a position, counted from the start of the data.
    virtual HRESULT Seek(std::uint64_t position, GCancellable* cancellable) = 0;

    /// Bytes that the device promised: data that ends before is cut short. 0 where it told none.
    std::uint64_t PromisedSize() const { return m_promisedSize; }
    void SetPromisedSize(std::uint64_t size) { m_promisedSize = size; }

private:
    std::uint64_t m_promisedSize = 0;
};

/// The content of one open device. Every operation runs on the one thread that the device has,
/// and ends early with kCancelled when its cancellable is triggered.
class DeviceSession
{
public:
    DeviceSession() = default;
    DeviceSession(const DeviceSession&) = delete;
    DeviceSession& operator=(const DeviceSession&) = delete;
    virtual ~DeviceSession() = default;

    virtual HRESULT Open(GCancellable* cancellable) = 0;
    /// Whether the device is still there. Cheap: asked before every operation and twice a second
    /// in between. \a hasFailed tells that an operation has just failed, which justifies a
    /// question to the device itself.
    virtual bool IsPresent(bool hasFailed) = 0;

    /// Appends the children of \a parent, completely or, where that would cost a question to the
    /// device for each of them, with their identifiers only.
    virtual HRESULT List(const std::wstring& parent, std::vector<ObjectInfo>& children,
                         GCancellable* cancellable) = 0;
    virtual HRESULT Describe(const std::wstring& id, ObjectInfo& info,
                             GCancellable* cancellable) = 0;
    /// kNoElement when the object lacks the resource.
    virtual HRESULT OpenData(const std::wstring& id, Resource resource,
                             std::unique_ptr<DataReader>& reader, GCancellable* cancellable) = 0;
    /// Deletes a file or an empty folder; success means that it is gone.
    virtual HRESULT Remove(const std::wstring& id, GCancellable* cancellable) = 0;
};

/// What every device reports of itself, its root object.
ObjectInfo DeviceInfo(const std::wstring& name);

/// Seconds since 1970 as an OLE automation date in local time.
double AutomationDate(std::int64_t seconds, std::int64_t microseconds);

} // namespace devices

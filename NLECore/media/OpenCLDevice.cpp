// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/OpenCLDevice.h"

#include "NLECore/media/EngineLog.h"
#include "NLECore/media/RuntimeLibrary_p.h"

#include <QVersionNumber>

#include <algorithm>
#include <mutex>
#include <vector>

namespace nle {

namespace {

struct OpenCLLibrary : RuntimeLibrary
{
    ClFunctions functions;

    OpenCLLibrary();
    static OpenCLLibrary& Get()
    {
        static OpenCLLibrary s_library;
        return s_library;
    }
};

OpenCLLibrary::OpenCLLibrary() : RuntimeLibrary(QStringLiteral("OpenCL"), 1)
{
    Resolve(functions.getPlatformIds, "clGetPlatformIDs");
    Resolve(functions.getDeviceIds, "clGetDeviceIDs");
    Resolve(functions.getDeviceInfo, "clGetDeviceInfo");
    Resolve(functions.createContext, "clCreateContext");
    Resolve(functions.releaseContext, "clReleaseContext");
    // Of later versions as well, and all that an ordinary queue needs.
    Resolve(functions.createCommandQueue, "clCreateCommandQueue");
    Resolve(functions.releaseCommandQueue, "clReleaseCommandQueue");
    Resolve(functions.createBuffer, "clCreateBuffer");
    Resolve(functions.releaseMemObject, "clReleaseMemObject");
    Resolve(functions.enqueueMapBuffer, "clEnqueueMapBuffer");
    Resolve(functions.enqueueUnmapMemObject, "clEnqueueUnmapMemObject");
    Resolve(functions.waitForEvents, "clWaitForEvents");
    Resolve(functions.releaseEvent, "clReleaseEvent");
}

/// A property of a device; that of a failure is 0.
template <typename Value>
Value InfoOf(const ClFunctions& cl, ClDevice device, ClDeviceInfo info)
{
    Value value{};
    cl.getDeviceInfo(device, info, sizeof value, &value, nullptr);
    return value;
}

QString TextOf(const ClFunctions& cl, ClDevice device, ClDeviceInfo info)
{
    std::size_t size = 0;
    cl.getDeviceInfo(device, info, 0, nullptr, &size);
    QByteArray text(int(size), '\0');
    cl.getDeviceInfo(device, info, size, text.data(), nullptr);
    return QString::fromUtf8(text.constData()).trimmed();
}

struct Candidate
{
    ClPlatform platform;
    ClDevice id;
    int rank; ///< the lower, the better
};

int RankOf(ClFlags type)
{
    if ((type & kClDeviceTypeGpu) != 0)
        return 0;
    return (type & kClDeviceTypeCpu) != 0 ? 1 : 2;
}

bool IsUsable(const ClFunctions& cl, ClDevice device)
{
    // "OpenCL 1.2 " and more.
    const QString version = TextOf(cl, device, ClDeviceVersion).section(QLatin1Char(' '), 1);
    return InfoOf<ClCount>(cl, device, ClDeviceAvailable) != 0 &&
           QVersionNumber::fromString(version) >= QVersionNumber(1, 2);
}

std::vector<Candidate> FindDevices(const ClFunctions& cl)
{
    ClCount count = 0;
    cl.getPlatformIds(0, nullptr, &count);
    std::vector<ClPlatform> platforms(count);
    if (count > 0)
        cl.getPlatformIds(count, platforms.data(), nullptr);
    std::vector<Candidate> found;
    for (ClPlatform platform : platforms) {
        ClCount devices = 0;
        if (cl.getDeviceIds(platform, kClDeviceTypeAll, 0, nullptr, &devices) != ClSuccess)
            continue;
        std::vector<ClDevice> ids(devices);
        cl.getDeviceIds(platform, kClDeviceTypeAll, devices, ids.data(), nullptr);
        for (ClDevice id : ids) {
            if (IsUsable(cl, id))
                found.push_back({platform, id, RankOf(InfoOf<ClFlags>(cl, id, ClDeviceType))});
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Candidate& a, const Candidate& b) { return a.rank < b.rank; });
    return found;
}

/// Null, and \a complaint says why, where no device works.
std::shared_ptr<const OpenCLDevice> OpenDevice(QString* complaint)
{
    const OpenCLLibrary& opencl = OpenCLLibrary::Get();
    if (!opencl.isThere) {
        *complaint = QStringLiteral("OpenCL: ") + opencl.library.errorString();
        return nullptr;
    }
    for (const Candidate& candidate : FindDevices(opencl.functions)) {
        auto device = std::make_shared<const OpenCLDevice>(opencl.functions, candidate.platform,
                                                           candidate.id);
        if (device->Works())
            return device;
    }
    *complaint = QStringLiteral("OpenCL: no device of version 1.2 or later");
    return nullptr;
}

/// The device of the process, and what its search gave.
struct Shared
{
    std::mutex mutex; ///< guards the rest, also during the search, so that there is one device
    bool isSearched = false;
    std::shared_ptr<const OpenCLDevice> device;
    QString complaint;
};

Shared& SharedDevice()
{
    // Never destroyed: the library that owns the context may end before the objects of this module.
    static auto& s_shared = *new Shared;
    return s_shared;
}

} // namespace

std::shared_ptr<const OpenCLDevice> OpenCLDevice::Get(QString* complaint)
{
    Shared& shared = SharedDevice();
    std::unique_lock<std::mutex> lock(shared.mutex);
    const bool isFirst = !shared.isSearched;
    if (isFirst) {
        shared.device = OpenDevice(&shared.complaint);
        shared.isSearched = true;
    }
    *complaint = shared.complaint;
    auto device = shared.device;
    lock.unlock();
    if (isFirst && device)
        qCInfo(lcEngine, "OpenCL: %s", qUtf8Printable(device->Name()));
    return device;
}

void OpenCLDevice::Forget()
{
    Shared& shared = SharedDevice();
    std::shared_ptr<const OpenCLDevice> last;
    const std::lock_guard<std::mutex> lock(shared.mutex);
    last.swap(shared.device);
    shared.isSearched = false;
    shared.complaint.clear();
}

OpenCLDevice::OpenCLDevice(const ClFunctions& functions, ClPlatform platform, ClDevice id)
    : m_functions(functions)
    , m_id(id)
    , m_name(TextOf(functions, id, ClDeviceName))
    , m_sharesMemory(InfoOf<ClCount>(functions, id, ClDeviceHostUnifiedMemory) != 0)
{
    const std::intptr_t properties[] = {kClContextPlatform,
                                        reinterpret_cast<std::intptr_t>(platform), 0};
    m_context = m_functions.createContext(properties, 1, &m_id, nullptr, nullptr, nullptr);
    if (m_context)
        m_queue = m_functions.createCommandQueue(m_context, m_id, 0, nullptr);
}

OpenCLDevice::~OpenCLDevice()
{
    if (m_queue)
        m_functions.releaseCommandQueue(m_queue);
    if (m_context)
        m_functions.releaseContext(m_context);
}

ClFlags OpenCLDevice::BufferFlags() const
{
    return kClMemReadWrite | (m_sharesMemory ? kClMemAllocHostPtr : 0);
}

ClStatus OpenCLBuffer::Allocate(std::size_t size)
{
    Free();
    ClStatus status = ClSuccess;
    m_handle = m_device->Functions().createBuffer(m_device->Context(), m_device->BufferFlags(),
                                                  size, nullptr, &status);
    m_size = size;
    return status;
}

void OpenCLBuffer::Free()
{
    Unmap();
    if (m_handle)
        m_device->Functions().releaseMemObject(m_handle);
    m_handle = nullptr;
}

ClStatus OpenCLBuffer::Map(ClFlags flags)
{
    if (m_bytes && m_mapping == flags)
        return ClSuccess;
    ClStatus status = Unmap();
    if (status != ClSuccess)
        return status;
    constexpr ClCount isBlocking = 1;
    void* bytes = m_device->Functions().enqueueMapBuffer(
        m_device->Queue(), m_handle, isBlocking, flags, 0, m_size, 0, nullptr, nullptr, &status);
    if (status != ClSuccess)
        return status;
    m_bytes = static_cast<std::uint8_t*>(bytes);
    m_mapping = flags;
    return ClSuccess;
}

ClStatus OpenCLBuffer::Unmap()
{
    if (!m_bytes)
        return ClSuccess;
    const ClFunctions& cl = m_device->Functions();
    ClEvent done = nullptr;
    ClStatus status =
        cl.enqueueUnmapMemObject(m_device->Queue(), m_handle, m_bytes, 0, nullptr, &done);
    m_bytes = nullptr;
    if (status != ClSuccess)
        return status;
    status = cl.waitForEvents(1, &done);
    cl.releaseEvent(done);
    return status;
}

} // namespace nle

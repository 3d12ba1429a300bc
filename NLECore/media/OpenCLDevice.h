// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/OpenCLApi.h"

#include <QString>

#include <memory>

namespace nle {

/// A device of OpenCL with the engine's context and queue on it. For any thread.
class OpenCLDevice
{
public:
    /// The device of this process, found and opened on first use: a graphics processor if one
    /// works, else a CPU, else another. Null, and \a complaint says what is missing, where there is
    /// none.
    static std::shared_ptr<const OpenCLDevice> Get(QString* complaint);
    /// The next Get() looks again. Whoever has the device keeps it.
    static void Forget();

    /// Opens \a id of \a platform; Works() tells whether that went well.
    OpenCLDevice(const ClFunctions& functions, ClPlatform platform, ClDevice id);
    ~OpenCLDevice();
    OpenCLDevice(const OpenCLDevice&) = delete;
    OpenCLDevice& operator=(const OpenCLDevice&) = delete;

    bool Works() const { return m_context && m_queue; }
    ClDevice Id() const { return m_id; }
    ClContext Context() const { return m_context; }
    ClQueue Queue() const { return m_queue; }
    const QString& Name() const { return m_name; }
    /// Where buffers lie best: in memory of the host that the device shares, else in the device's.
    ClFlags BufferFlags() const;
    const ClFunctions& Functions() const { return m_functions; }

private:
    const ClFunctions& m_functions;
    const ClDevice m_id;
    ClContext m_context = nullptr;
    ClQueue m_queue = nullptr;
    QString m_name;
    bool m_sharesMemory = false;
};

/// Bytes on a device, which are the device's or, while they are mapped, the host's. Each operation
/// gives ClSuccess or why it failed. For one thread at a time.
class OpenCLBuffer
{
public:
    explicit OpenCLBuffer(std::shared_ptr<const OpenCLDevice> device) : m_device(std::move(device))
    {
    }
    ~OpenCLBuffer() { Free(); }
    OpenCLBuffer(const OpenCLBuffer&) = delete;
    OpenCLBuffer& operator=(const OpenCLBuffer&) = delete;

    /// Takes memory; what was there goes.
    ClStatus Allocate(std::size_t size);
    void Free();
    /// Gives the bytes to the host; \a flags are those of OpenCL. A mapping of the same flags
    /// stays.
    ClStatus Map(ClFlags flags);
    /// Gives the bytes back to the device and waits until they are there.
    ClStatus Unmap();

    const OpenCLDevice& Device() const { return *m_device; }
    /// Null without memory.
    ClBuffer Handle() const { return m_handle; }
    /// The bytes while they are mapped, else null.
    std::uint8_t* Bytes() const { return m_bytes; }

private:
    const std::shared_ptr<const OpenCLDevice> m_device;
    ClBuffer m_handle = nullptr;
    std::size_t m_size = 0;
    std::uint8_t* m_bytes = nullptr;
    ClFlags m_mapping = 0;
};

} // namespace nle

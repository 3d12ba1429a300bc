// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "PortableDevices/DeviceSession.h"

namespace devices {

/// A temporary file in the user's cache folder for devices that give a file only as a whole. It
/// goes with the object.
class SpoolFile final : public DataReader
{
public:
    /// A new, empty file; null when none can be made.
    static std::unique_ptr<SpoolFile> Create();
    ~SpoolFile() override;

    const std::string& Path() const { return m_path; }
    /// The open file; the object keeps it.
    int Descriptor() const { return m_descriptor; }
    /// Opens the path anew, as a file was copied there, and takes the name away, so that nothing is
    /// left behind whatever happens. Reading starts at the beginning.
    HRESULT StartReading();
    std::uint64_t Size() const;

    HRESULT Read(void* buffer, std::uint32_t size, std::uint32_t& got,
                 GCancellable* cancellable) override;
    HRESULT Seek(std::uint64_t position, GCancellable* cancellable) override;

private:
    SpoolFile(std::string path, int descriptor);
    void RemoveName();

    std::string m_path;
    int m_descriptor;
};

} // namespace devices

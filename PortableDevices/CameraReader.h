// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "PortableDevices/CameraHandle.h"
#include "PortableDevices/SpoolFile.h"

namespace devices {

/// A camera's size of a file for 4 GiB and more where it has only the field of 32 bits for it.
constexpr std::uint64_t kSizeTooLarge = 0xFFFFFFFF;

/// Reads a file on a camera step by step; as a whole into a spool file where the camera gives no
/// parts, and where the file is too large for the offsets of parts. kTooLarge where neither gives
/// all of it.
class CameraReader final : public DataReader
{
public:
    /// \a size is what the camera says of the file.
    CameraReader(std::shared_ptr<CameraHandle> camera, std::string folder, std::string name,
                 std::uint64_t size);

    HRESULT Read(void* buffer, std::uint32_t size, std::uint32_t& got,
                 GCancellable* cancellable) override;
    HRESULT Seek(std::uint64_t position, GCancellable* cancellable) override;

private:
    HRESULT FetchWhole(GCancellable* cancellable);

    const std::shared_ptr<CameraHandle> m_camera;
    const std::string m_folder;
    const std::string m_name;
    const std::uint64_t m_size;
    std::uint64_t m_position = 0;
    std::unique_ptr<SpoolFile> m_whole;
};

/// Reads a small file that the library holds in memory.
class PreviewReader final : public DataReader
{
public:
    explicit PreviewReader(CameraPtr<CameraFile> file) : m_file(std::move(file)) {}

    HRESULT Read(void* buffer, std::uint32_t size, std::uint32_t& got,
                 GCancellable* cancellable) override;
    HRESULT Seek(std::uint64_t position, GCancellable* cancellable) override;

private:
    const CameraPtr<CameraFile> m_file;
    std::uint64_t m_position = 0;
};

} // namespace devices

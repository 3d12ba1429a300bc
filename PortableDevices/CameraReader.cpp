// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/CameraReader.h"

#include <algorithm>
#include <cstring>
#include <unistd.h>

namespace devices {

CameraReader::CameraReader(std::shared_ptr<CameraHandle> camera, std::string folder,
                           std::string name, std::uint64_t size)
    : m_camera(std::move(camera))
    , m_folder(std::move(folder))
    , m_name(std::move(name))
    , m_size(size)
{
}

HRESULT CameraReader::Read(void* buffer, std::uint32_t size, std::uint32_t& got,
                           GCancellable* cancellable)
{
    got = 0;
    // Parts cannot begin past 4 GiB.
    if (!m_whole && m_size > kSizeTooLarge) {
        if (const HRESULT result = FetchWhole(cancellable); FAILED(result))
            return result;
    }
    if (m_whole)
        return m_whole->Read(buffer, size, got, cancellable);
    if (m_position >= m_size)
        return m_size == kSizeTooLarge ? kTooLarge : S_OK;
    const CameraHandle::Scope scope(*m_camera, cancellable);
    std::uint64_t count = std::min<std::uint64_t>(size, m_size - m_position);
    const int result =
        gp_camera_file_read(m_camera->Get(), m_folder.c_str(), m_name.c_str(), GP_FILE_TYPE_NORMAL,
                            m_position, static_cast<char*>(buffer), &count, m_camera->Context());
    if (result == GP_ERROR_NOT_SUPPORTED) {
        const HRESULT fetched = FetchWhole(cancellable);
        return FAILED(fetched) ? fetched : m_whole->Read(buffer, size, got, cancellable);
    }
    if (result < GP_OK)
        return scope.IsCancelled() ? kCancelled : FromCameraResult(result);
    // From a camera that gives parts the library takes no more than the size that it was told, and
    // that is not all of this file.
    if (m_size == kSizeTooLarge)
        return kTooLarge;
    // Success with less than there is: a cancelled transfer, or a camera that lost the file.
    if (count == 0)
        return scope.IsCancelled() ? kCancelled : kCutShort;
    got = static_cast<std::uint32_t>(count);
    m_position += count;
    return S_OK;
}

HRESULT CameraReader::FetchWhole(GCancellable* cancellable)
{
    std::unique_ptr<SpoolFile> spool = SpoolFile::Create();
    if (!spool)
        return kDiskFull;
    CameraFile* target = nullptr;
    // The library closes the descriptor that it is given.
    gp_file_new_from_fd(&target, dup(spool->Descriptor()));
    const CameraPtr<CameraFile> file(target);
    const CameraHandle::Scope scope(*m_camera, cancellable);
    const int result = gp_camera_file_get(m_camera->Get(), m_folder.c_str(), m_name.c_str(),
                                          GP_FILE_TYPE_NORMAL, file.get(), m_camera->Context());
    if (scope.IsCancelled())
        return kCancelled;
    if (result < GP_OK)
        return FromCameraResult(result);
    if (spool->Size() < m_size)
        return kCutShort;
    m_whole = std::move(spool);
    const HRESULT started = m_whole->StartReading();
    return FAILED(started) ? started : m_whole->Seek(m_position, cancellable);
}

HRESULT CameraReader::Seek(std::uint64_t position, GCancellable* cancellable)
{
    m_position = position;
    return m_whole ? m_whole->Seek(position, cancellable) : S_OK;
}

HRESULT PreviewReader::Read(void* buffer, std::uint32_t size, std::uint32_t& got,
                            GCancellable* /*cancellable*/)
{
    const char* data = nullptr;
    unsigned long total = 0;
    got = 0;
    if (gp_file_get_data_and_size(m_file.get(), &data, &total) < GP_OK)
        return kDeviceError;
    if (m_position >= total)
        return S_OK;
    got = static_cast<std::uint32_t>(std::min<std::uint64_t>(size, total - m_position));
    std::memcpy(buffer, data + m_position, got);
    m_position += got;
    return S_OK;
}

HRESULT PreviewReader::Seek(std::uint64_t position, GCancellable* /*cancellable*/)
{
    m_position = position;
    return S_OK;
}

} // namespace devices

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PortableDevices/SpoolFile.h"

#include "PortableDevices/GlibPointers.h"

#include <fcntl.h>
#include <glib/gstdio.h>
#include <sys/stat.h>
#include <unistd.h>

namespace devices {

std::unique_ptr<SpoolFile> SpoolFile::Create()
{
    // Not the folder for temporary files: that one often lies in memory, and videos are large.
    const char* folder = g_get_user_cache_dir();
    if (g_mkdir_with_parents(folder, 0700) != 0)
        return nullptr;
    const GPtr<char> path(g_build_filename(folder, "portable-device-XXXXXX", nullptr));
    const int descriptor = g_mkstemp_full(path.get(), O_RDWR | O_CLOEXEC, 0600);
    if (descriptor < 0)
        return nullptr;
    return std::unique_ptr<SpoolFile>(new SpoolFile(path.get(), descriptor));
}

SpoolFile::SpoolFile(std::string path, int descriptor)
    : m_path(std::move(path)), m_descriptor(descriptor)
{
}

SpoolFile::~SpoolFile()
{
    RemoveName();
    if (m_descriptor >= 0)
        close(m_descriptor);
}

void SpoolFile::RemoveName()
{
    if (!m_path.empty())
        g_unlink(m_path.c_str());
    m_path.clear();
}

HRESULT SpoolFile::StartReading()
{
    const int opened = g_open(m_path.c_str(), O_RDONLY | O_CLOEXEC, 0);
    RemoveName();
    if (opened < 0)
        return E_FAIL;
    close(m_descriptor);
    m_descriptor = opened;
    return S_OK;
}

std::uint64_t SpoolFile::Size() const
{
    struct stat status = {};
    return fstat(m_descriptor, &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

HRESULT SpoolFile::Read(void* buffer, std::uint32_t size, std::uint32_t& got,
                        GCancellable* /*cancellable*/)
{
    const ssize_t count = ::read(m_descriptor, buffer, size);
    got = count > 0 ? static_cast<std::uint32_t>(count) : 0;
    return count < 0 ? kDeviceError : S_OK;
}

HRESULT SpoolFile::Seek(std::uint64_t position, GCancellable* /*cancellable*/)
{
    return lseek(m_descriptor, static_cast<off_t>(position), SEEK_SET) < 0 ? E_INVALIDARG : S_OK;
}

} // namespace devices

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/MediaFile_p.h"

#include "Com/SystemPath.h"

#include <memory>

#include <windows.h>

namespace nle {
namespace {

struct HandleCloser
{
    void operator()(void* handle) const { CloseHandle(handle); }
};

// The system counts steps of 100 ns since 1601.
std::int64_t Nanoseconds(const LARGE_INTEGER& time)
{
    constexpr std::int64_t stepsTo1970 = 116444736000000000;
    return (time.QuadPart - stepsTo1970) * 100;
}

} // namespace

// The libraries take UTF-8 on Windows, whatever the system's code page.
QByteArray EncodeMediaPath(const QString& path)
{
    return path.toUtf8();
}

FileStamp StampOfFile(const QString& path)
{
    const HANDLE handle = CreateFileW(SystemPath(path.toStdWString()).c_str(), FILE_READ_ATTRIBUTES,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return {};
    const std::unique_ptr<void, HandleCloser> file(handle);
    FILE_BASIC_INFO times = {};
    BY_HANDLE_FILE_INFORMATION identity = {};
    if (GetFileType(handle) != FILE_TYPE_DISK ||
        !GetFileInformationByHandleEx(handle, FileBasicInfo, &times, sizeof times) ||
        !GetFileInformationByHandle(handle, &identity))
        return {};
    const auto join = [](DWORD high, DWORD low) { return std::uint64_t(high) << 32 | low; };
    return {std::int64_t(join(identity.nFileSizeHigh, identity.nFileSizeLow)),
            Nanoseconds(times.LastWriteTime), Nanoseconds(times.ChangeTime),
            identity.dwVolumeSerialNumber, join(identity.nFileIndexHigh, identity.nFileIndexLow)};
}

} // namespace nle

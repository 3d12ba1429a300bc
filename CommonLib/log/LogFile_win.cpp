// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/log/LogFile_p.h"

#include "Com/SystemPath.h"

#include <cstring>
#include <string>

#include <windows.h>

namespace {

HANDLE Native(LogFile::Handle handle)
{
    return reinterpret_cast<HANDLE>(handle);
}

// As Windows takes it, of a path in the process's code page.
std::wstring NativePath(const char* path)
{
    std::wstring name(std::strlen(path) + 1, L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, path, -1, name.data(), int(name.size()));
    return SystemPath(name);
}

} // namespace

namespace LogFile {

Handle Open(const char* path)
{
    const HANDLE file =
        ::CreateFileW(NativePath(path).c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ,
                      nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE || ::GetFileType(file) == FILE_TYPE_DISK)
        return reinterpret_cast<Handle>(file);
    ::CloseHandle(file); // a device
    return kInvalid;
}

void Close(Handle handle)
{
    // -1 is also the pseudo handle of the process itself; keep it out of CloseHandle.
    if (handle != kInvalid)
        ::CloseHandle(Native(handle));
}

std::int64_t SeekToEnd(Handle handle)
{
    LARGE_INTEGER distance = {};
    LARGE_INTEGER end = {};
    if (handle == kInvalid || !::SetFilePointerEx(Native(handle), distance, &end, FILE_END))
        return -1;
    return end.QuadPart;
}

void Write(Handle handle, std::int64_t, const char* text, std::size_t length)
{
    DWORD written = 0;
    if (handle != kInvalid)
        ::WriteFile(Native(handle), text, static_cast<DWORD>(length), &written, nullptr);
}

void Rename(const char* from, const char* to)
{
    ::MoveFileW(NativePath(from).c_str(), NativePath(to).c_str());
}

void Echo(const char* line, std::size_t length)
{
    ::OutputDebugStringA(line);
    const HANDLE output = ::GetStdHandle(STD_OUTPUT_HANDLE);
    if (output == nullptr || output == INVALID_HANDLE_VALUE)
        return;
    DWORD written = 0;
    // WriteConsole refuses an output that is redirected to a file or a pipe.
    if (!::WriteConsoleA(output, line, static_cast<DWORD>(length), &written, nullptr))
        ::WriteFile(output, line, static_cast<DWORD>(length), &written, nullptr);
}

std::tm LocalTime(std::time_t time)
{
    std::tm local = {};
    ::localtime_s(&local, &time);
    return local;
}

} // namespace LogFile

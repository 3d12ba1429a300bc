// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <atomic>

#include <windows.h>
// After it, as it needs its types.
#include <psapi.h>
#else
#include <csignal>
#include <sys/resource.h>
#endif

/// While it lives, writing to files beyond a size fails in this process, as it does on a full disk
/// but without privileges. One at a time. On Windows it holds for the modules that are loaded by
/// then, with a full disk's own error.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(qint64 bytes);
    ~FileSizeLimit();
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

#ifdef Q_OS_WIN
    static constexpr bool kIsFullDisk = true;

private:
    using Write = decltype(&WriteFile);

    static void Import(HMODULE module);
    static void Replace(Write* slot);
    static BOOL WINAPI WriteWithin(HANDLE file, const void* data, DWORD size, DWORD* written,
                                   OVERLAPPED* overlapped);

    static inline std::atomic<qint64> s_limit{-1}; ///< bytes; -1 for none
#else
    static constexpr bool kIsFullDisk = false; ///< but a file that is too large

private:
    rlimit m_before = {};
#endif
};

#ifdef Q_OS_WIN

inline FileSizeLimit::FileSizeLimit(qint64 bytes)
{
    HMODULE modules[512] = {};
    DWORD size = 0;
    K32EnumProcessModules(GetCurrentProcess(), modules, sizeof modules, &size);
    for (DWORD i = 0; i < size / sizeof(HMODULE); ++i) {
        if (modules[i] != GetModuleHandleW(L"kernel32") &&
            modules[i] != GetModuleHandleW(L"kernelbase"))
            Import(modules[i]);
    }
    s_limit = bytes;
}

inline FileSizeLimit::~FileSizeLimit()
{
    s_limit = -1;
}

/// Lets \a module call WriteWithin() for the system's function, in its table of imports.
inline void FileSizeLimit::Import(HMODULE module)
{
    auto* const base = reinterpret_cast<BYTE*>(module);
    const auto* const dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    const auto* const nt = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const auto& table = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const auto* import = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + table.VirtualAddress);
    for (; table.Size != 0 && import->FirstThunk != 0; ++import) {
        for (auto* slot = reinterpret_cast<Write*>(base + import->FirstThunk); *slot; ++slot)
            Replace(slot);
    }
}

inline void FileSizeLimit::Replace(Write* slot)
{
    static const auto find = [](const wchar_t* module) {
        return reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(module), "WriteFile"));
    };
    static void* const known[] = {find(L"kernel32"), find(L"kernelbase")};
    auto* const current = reinterpret_cast<void*>(*slot);
    DWORD protection = 0;
    if ((current == known[0] || current == known[1]) &&
        VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection) != 0) {
        *slot = &FileSizeLimit::WriteWithin;
        VirtualProtect(slot, sizeof *slot, protection, &protection);
    }
}

inline BOOL WINAPI FileSizeLimit::WriteWithin(HANDLE file, const void* data, DWORD size,
                                              DWORD* written, OVERLAPPED* overlapped)
{
    static const auto real = reinterpret_cast<Write>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernelbase"), "WriteFile")));
    LARGE_INTEGER position = {};
    if (s_limit >= 0 && GetFileType(file) == FILE_TYPE_DISK &&
        SetFilePointerEx(file, {}, &position, FILE_CURRENT) != 0 &&
        position.QuadPart + size > s_limit) {
        SetLastError(ERROR_DISK_FULL);
        return FALSE;
    }
    return real(file, data, size, written, overlapped);
}

#else

inline FileSizeLimit::FileSizeLimit(qint64 bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit tight = {rlim_t(bytes), m_before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &tight);
}

inline FileSizeLimit::~FileSizeLimit()
{
    ::setrlimit(RLIMIT_FSIZE, &m_before);
}

#endif

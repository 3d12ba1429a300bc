// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/system/CommandCapture_p.h"

#include "Com/WideText.h"

#include <windows.h>

CommandCapture::CommandCapture(const QString& commandLine)
{
    SECURITY_ATTRIBUTES inheritable = {sizeof(inheritable), nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    if (!::CreatePipe(&readEnd, &writeEnd, &inheritable, 0))
        return;

    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    ::GetStartupInfoW(&startup);
    // What the runtime library got from the host's own parent: it would hand on that one's streams.
    startup.cbReserved2 = 0;
    startup.lpReserved2 = nullptr;
    startup.hStdOutput = writeEnd;
    startup.hStdError = writeEnd;
    startup.wShowWindow = SW_HIDE;
    startup.dwFlags = STARTF_USESHOWWINDOW | STARTF_USESTDHANDLES;

    // The system may write into the command line.
    std::wstring line = ToWide(commandLine);
    PROCESS_INFORMATION process = {};
    const bool isStarted = ::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0,
                                            nullptr, nullptr, &startup, &process);
    // The read would never end while this process could still write. The handles of the process and
    // its thread stay open on purpose.
    ::CloseHandle(writeEnd);
    if (isStarted)
        m_pipe = reinterpret_cast<qintptr>(readEnd);
    else
        ::CloseHandle(readEnd);
}

CommandCapture::~CommandCapture()
{
    if (IsStarted())
        ::CloseHandle(reinterpret_cast<HANDLE>(m_pipe));
}

bool CommandCapture::Read(char* buffer, int size)
{
    DWORD count = 0;
    return ::ReadFile(reinterpret_cast<HANDLE>(m_pipe), buffer, static_cast<DWORD>(size), &count,
                      nullptr);
}

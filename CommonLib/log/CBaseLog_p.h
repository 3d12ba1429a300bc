// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/BaseLog.h"
#include "CommonLib/log/LogFile_p.h"

#include <atomic>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>

/// The one implementation of BaseLog.
class CBaseLog final : public BaseLog
{
public:
    /// Throws std::bad_alloc when there is no memory for the message buffer.
    CBaseLog();
    CBaseLog(const CBaseLog&) = delete;
    CBaseLog& operator=(const CBaseLog&) = delete;

    int Init(const char* path, bool echo, int level) override;
    void LogDebug(const char* file, const char* function, int line, const char* format,
                  ...) override;
    void LogInfo(const char* file, const char* function, int line, const char* format,
                 ...) override;
    void LogWarn(const char* file, const char* function, int line, const char* format,
                 ...) override;
    void LogError(const char* file, const char* function, int line, const char* format,
                  ...) override;
    void Release() override;

private:
    ~CBaseLog();

    void Log(int level, const char* file, const char* function, int line, const char* format,
             va_list arguments) COMMONLIB_PRINTF(6, 0);
    void WriteLine(int level, const char* file, const char* function, int line);
    void Rotate();

    std::int32_t m_level = LogLevelAll;
    std::uint32_t m_lineCount = 0;
    bool m_echo = false;
    char m_path[256] = {};
    /// All zero between two messages.
    std::unique_ptr<char[]> m_message;
    /// Atomic because a level operation looks at it before it takes the mutex.
    std::atomic<LogFile::Handle> m_file{LogFile::kNone};
    std::recursive_mutex m_mutex;
};

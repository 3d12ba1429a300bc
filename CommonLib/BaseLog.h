// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

/// Lets the compiler check a printf-style format against its arguments; \a text and \a first are
/// argument numbers that count `this` as 1.
#if defined(__MINGW32__) // where printf alone means the formats of the system's old library
#define COMMONLIB_PRINTF(text, first) __attribute__((__format__(__gnu_printf__, text, first)))
#elif defined(__GNUC__) || defined(__clang__)
#define COMMONLIB_PRINTF(text, first) __attribute__((__format__(__printf__, text, first)))
#else
#define COMMONLIB_PRINTF(text, first)
#endif

/// Level of a message, and threshold of a log: a message passes when its level is not below the
/// threshold. The first and the last serve as thresholds only.
enum LogLevel : int
{
    LogLevelAll = 0,
    LogLevelDebug = 1,
    LogLevelInfo = 2,
    LogLevelWarn = 3,
    LogLevelError = 4,
    LogLevelOff = 5
};

/// A plain-text log file that any thread may write to.
///
/// Until Init() has succeeded every message is dropped. Each message becomes one line:
///
///     [2026-03-07 09:05:01]-INFO- [Class::Function]:  message - [File.cpp(212)]
///
/// ended by CR LF on every system. A file that has reached 50 MiB is renamed before the next line:
/// its path up to the first dot *of the whole path*, then "_year_month_day_hour_minute_second.tx".
/// When that name is taken, or the rename fails otherwise, logging goes on in the old file.
///
/// Messages are UTF-8 by convention; the log writes the bytes it is given. Nothing is ever reported
/// to the caller of a level operation: a full disk or a vanished file loses lines, silently.
///
/// Created by CreateLogInstance() or GetGlobalLogInstance(), ended by Release().
class COMMONLIB_EXPORT BaseLog
{
public:
    BaseLog();
    BaseLog(const BaseLog& other);
    BaseLog& operator=(const BaseLog& other);

    /// Opens the log file, creating it when missing and keeping what it holds. Others may read the
    /// file meanwhile, but no second log opens it, in this process or another.
    ///
    /// Not safe against a concurrent call of any operation: call it once, before other threads log.
    ///
    /// \param path in the system's narrow character set; cut to 255 bytes
    /// \param echo whether every line also goes to the debugger (Windows) and to standard output
    /// \param level threshold, a LogLevel; values outside 0..5 become the nearest of them
    /// \return 0 on success; 1 when \a path is null; 23 when a file is open already, which stays as
    ///         it is; 27 when the file cannot be opened or is not a regular file
    virtual int Init(const char* path, bool echo, int level) = 0;

    /// Writes a message of level DEBUG.
    ///
    /// \param file source path; only what follows its last backslash is printed (slashes stay)
    /// \param function qualified name, Class::Function
    /// \param line source line
    /// \param format printf format of the message, followed by its arguments. A message over 1,900
    ///        bytes is cut to 1,850 and marked; a line is cut at 2,047 bytes, its end included
    virtual void LogDebug(const char* file, const char* function, int line, const char* format, ...)
        COMMONLIB_PRINTF(5, 6) = 0;
    /// Writes a message of level INFO; arguments as for LogDebug().
    virtual void LogInfo(const char* file, const char* function, int line, const char* format, ...)
        COMMONLIB_PRINTF(5, 6) = 0;
    /// Writes a message of level WARN; arguments as for LogDebug().
    virtual void LogWarn(const char* file, const char* function, int line, const char* format, ...)
        COMMONLIB_PRINTF(5, 6) = 0;
    /// Writes a message of level ERROR; arguments as for LogDebug().
    virtual void LogError(const char* file, const char* function, int line, const char* format, ...)
        COMMONLIB_PRINTF(5, 6) = 0;

    /// Closes the file and destroys the log. No thread may use it any more.
    virtual void Release() = 0;

protected:
    // Only Release() ends a log. Not virtual: the six operations above are all the slots there are.
    ~BaseLog() = default;
};

/// Creates a log of its own, not yet open. The caller ends it with Release(). Null when memory is
/// out.
COMMONLIB_EXPORT BaseLog* CreateLogInstance();

/// The log of the process, created on the first call. Takes no lock: call it once before other
/// threads could. Owned by the library; ended by ReleseGlobalLogInstance(), never by the caller.
COMMONLIB_EXPORT BaseLog* GetGlobalLogInstance();

/// Ends the log of the process, if there is one; GetGlobalLogInstance() then creates a new one.
COMMONLIB_EXPORT void ReleseGlobalLogInstance();

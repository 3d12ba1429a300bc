// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/log/CBaseLog_p.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <new>
#include <string_view>

namespace {

constexpr int kAlreadyOpen = 23;
constexpr int kNoPath = 1;
constexpr int kCannotOpen = 27;

constexpr std::size_t kMessageSize = 10240;
constexpr std::size_t kLongestMessage = 1900;
constexpr std::size_t kCutMessage = 1850;
constexpr std::string_view kCutMark = "... Log Info Length Over Size.";
constexpr std::size_t kLineSize = 2048;
constexpr std::size_t kSourcePathLength = 255;
constexpr std::size_t kPathSize = 256;
constexpr std::size_t kStampSize = 24;
constexpr std::uint32_t kRotationSize = 50 * 1024 * 1024;

constexpr std::string_view kLevelNames[] = {"ALL", "DEBUG", "INFO", "WARN", "ERROR", "OFF"};

BaseLog* s_globalLog = nullptr;

/// A text built in somebody's fixed buffer, cut where the buffer ends and always terminated.
class BoundedText
{
public:
    BoundedText(char* buffer, std::size_t size) : m_buffer(buffer), m_limit(size - 1)
    {
        m_buffer[0] = 0;
    }
    // Inlined, the copy may become a string instruction that costs more than the call.
    Q_NEVER_INLINE void Append(std::string_view text)
    {
        const std::size_t length = std::min(text.size(), m_limit - m_length);
        std::memcpy(m_buffer + m_length, text.data(), length);
        m_length += length;
        m_buffer[m_length] = 0;
    }
    void Append(int number)
    {
        char digits[12];
        const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
        Append(std::string_view(digits, static_cast<std::size_t>(end.ptr - digits)));
    }
    std::size_t Length() const { return m_length; }

private:
    char* m_buffer;
    std::size_t m_limit;
    std::size_t m_length = 0;
};

std::size_t BoundedLength(const char* text, std::size_t limit)
{
    const void* end = std::memchr(text, 0, limit);
    return end ? static_cast<std::size_t>(static_cast<const char*>(end) - text) : limit;
}

// Only a backslash separates: slashes are part of the name on purpose.
std::string_view BaseName(const char* file)
{
    if (!file)
        return {};
    std::string_view name(file, BoundedLength(file, kSourcePathLength));
    // Forwards, because most paths hold no backslash at all and searching that way is fast.
    for (std::size_t at = name.find('\\'); at != name.npos; at = name.find('\\'))
        name.remove_prefix(at + 1);
    return name;
}

// The text changes once a second, and making it is a large part of what a line costs.
std::string_view TimeStamp()
{
    thread_local std::time_t s_second = -1;
    thread_local char s_text[kStampSize] = {};
    const std::time_t now = std::time(nullptr);
    if (now != s_second) {
        const std::tm t = LogFile::LocalTime(now);
        std::strftime(s_text, sizeof s_text, "[%Y-%m-%d %H:%M:%S]", &t);
        s_second = now;
    }
    return s_text;
}

// `result` has room for kPathSize bytes.
void MakeRotatedPath(std::string_view path, char* result)
{
    const std::tm t = LogFile::LocalTime(std::time(nullptr));
    char suffix[64] = {};
    std::strftime(suffix, sizeof suffix, "_%Y_%m_%d_%H_%M_%S.txt", &t);
    BoundedText text(result, kPathSize);
    // At the first dot of the whole path, even in the name of a folder, not the last of the file's
    // name. Kept: see docs/compatibility.md.
    text.Append(path.substr(0, path.find('.')));
    // Cut to 23 characters, so that the names end in ".tx", not ".txt". Kept: likewise.
    text.Append(std::string_view(suffix).substr(0, kStampSize - 1));
}

// Only the low 32 bits of the size count, not all of them: a file little longer than 4 GiB is not
// rotated. Kept: see docs/compatibility.md.
bool IsTooLarge(std::int64_t size)
{
    return size >= 0 && static_cast<std::uint32_t>(size) >= kRotationSize;
}

} // namespace

BaseLog::BaseLog() = default;
BaseLog::BaseLog(const BaseLog&) = default;
BaseLog& BaseLog::operator=(const BaseLog&) = default;

CBaseLog::CBaseLog() : m_message(std::make_unique<char[]>(kMessageSize)) {}

CBaseLog::~CBaseLog()
{
    const std::lock_guard<std::recursive_mutex> lock(m_mutex);
    const LogFile::Handle file = m_file.load();
    if (file != LogFile::kNone)
        LogFile::Close(file);
    m_message.reset();
}

int CBaseLog::Init(const char* path, bool echo, int level)
{
    if (!path)
        return kNoPath;
    if (m_file.load() != LogFile::kNone)
        return kAlreadyOpen;
    const std::size_t length = BoundedLength(path, sizeof m_path - 1);
    std::memset(m_path, 0, sizeof m_path);
    std::memcpy(m_path, path, length);
    const LogFile::Handle file = LogFile::Open(m_path);
    if (file == LogFile::kNone || file == LogFile::kInvalid)
        return kCannotOpen;
    m_echo = echo;
    m_level = std::clamp<int>(level, LogLevelAll, LogLevelOff);
    // Last, so that whoever sees the file open sees the other fields too.
    m_file.store(file);
    return 0;
}

void CBaseLog::LogDebug(const char* file, const char* function, int line, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    Log(LogLevelDebug, file, function, line, format, arguments);
    va_end(arguments);
}

void CBaseLog::LogInfo(const char* file, const char* function, int line, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    Log(LogLevelInfo, file, function, line, format, arguments);
    va_end(arguments);
}

void CBaseLog::LogWarn(const char* file, const char* function, int line, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    Log(LogLevelWarn, file, function, line, format, arguments);
    va_end(arguments);
}

void CBaseLog::LogError(const char* file, const char* function, int line, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    Log(LogLevelError, file, function, line, format, arguments);
    va_end(arguments);
}

void CBaseLog::Release()
{
    delete this;
}

void CBaseLog::Log(int level, const char* file, const char* function, int line, const char* format,
                   va_list arguments)
{
    // The threshold is fixed while a file is open, so neither test needs the mutex.
    if (m_file.load(std::memory_order_acquire) == LogFile::kNone || level < m_level)
        return;
    const std::lock_guard<std::recursive_mutex> lock(m_mutex);
    const int formatted =
        format ? std::vsnprintf(m_message.get(), kMessageSize, format, arguments) : 0;
    WriteLine(level, file, function, line);
    // Zeroing what was used costs less than zeroing the whole buffer for each message. After a
    // conversion error nobody knows how much that is.
    const bool isWhole = formatted >= 0 && static_cast<std::size_t>(formatted) < kMessageSize;
    std::memset(m_message.get(), 0, isWhole ? static_cast<std::size_t>(formatted) : kMessageSize);
}

void CBaseLog::WriteLine(int level, const char* file, const char* function, int line)
{
    // One call gives the size for the rotation and the position for the line.
    std::int64_t end = LogFile::SeekToEnd(m_file.load(std::memory_order_relaxed));
    if (IsTooLarge(end)) {
        Rotate();
        end = LogFile::SeekToEnd(m_file.load(std::memory_order_relaxed));
    }
    ++m_lineCount;

    const std::string_view message = m_message.get();
    char buffer[kLineSize];
    BoundedText text(buffer, sizeof buffer);
    text.Append(TimeStamp());
    text.Append("-");
    text.Append(kLevelNames[level]);
    text.Append("- [");
    text.Append(function ? function : "(null)");
    text.Append("]:  ");
    if (message.size() > kLongestMessage) {
        text.Append(message.substr(0, kCutMessage));
        text.Append(kCutMark);
    } else {
        text.Append(message);
    }
    text.Append(" - [");
    text.Append(BaseName(file));
    text.Append("(");
    text.Append(line);
    text.Append(")]\r\n");

    if (m_echo)
        LogFile::Echo(buffer, text.Length());
    LogFile::Write(m_file.load(std::memory_order_relaxed), end, buffer, text.Length());
}

void CBaseLog::Rotate()
{
    // The field keeps the old handle until the new one is there: "no file" in between would make
    // other threads drop their lines before they reach the mutex.
    LogFile::Close(m_file.load(std::memory_order_relaxed));
    char rotatedPath[kPathSize];
    MakeRotatedPath(m_path, rotatedPath);
    LogFile::Rename(m_path, rotatedPath);
    m_lineCount = 0;
    // A failure is kept as it is: the log stays open and its writes fail.
    m_file.store(LogFile::Open(m_path), std::memory_order_release);
}

BaseLog* CreateLogInstance()
{
    try {
        return new CBaseLog;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

BaseLog* GetGlobalLogInstance()
{
    if (!s_globalLog)
        s_globalLog = CreateLogInstance();
    return s_globalLog;
}

void ReleseGlobalLogInstance()
{
    if (!s_globalLog)
        return;
    s_globalLog->Release();
    s_globalLog = nullptr;
}

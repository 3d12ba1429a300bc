// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/MediaLog.h"
#include "NLECore/media/MediaLog_p.h"

#include <cstring>
#include <memory>
#include <mutex>

extern "C" {
#include <libavutil/log.h>
}

namespace nle {
namespace {

using Sink = std::function<void(const char*)>;

struct LogState
{
    std::mutex mutex;
    std::shared_ptr<const Sink> sink;
};

// Never destroyed: a decoding thread may still log while the process ends.
LogState& State()
{
    static LogState* const state = new LogState;
    return *state;
}

std::shared_ptr<const Sink> CurrentSink()
{
    LogState& state = State();
    const std::lock_guard<std::mutex> lock(state.mutex);
    return state.sink;
}

void Forward(void* context, int level, const char* format, va_list arguments)
{
    if (level > AV_LOG_WARNING)
        return;
    const std::shared_ptr<const Sink> sink = CurrentSink();
    if (!sink)
        return;
    // A message may arrive in pieces; each thread keeps track of whether it starts a line.
    thread_local int s_atLineStart = 1;
    char line[1024];
    av_log_format_line2(context, level, format, arguments, line, int(sizeof line), &s_atLineStart);
    size_t length = std::strlen(line);
    while (length > 0 && (line[length - 1] == '\n' || line[length - 1] == '\r'))
        line[--length] = '\0';
    if (length == 0)
        return;
    // Nothing may be thrown through the libraries, which are C; a message is lost for it.
    try {
        (*sink)(line);
    } catch (...) {
    }
}

} // namespace

void SetMediaLogSink(std::function<void(const char*)> sink)
{
    InstallMediaLog();
    std::shared_ptr<const Sink> next;
    if (sink)
        next = std::make_shared<const Sink>(std::move(sink));
    LogState& state = State();
    const std::lock_guard<std::mutex> lock(state.mutex);
    state.sink.swap(next);
}

void InstallMediaLog()
{
    static std::once_flag s_once;
    std::call_once(s_once, [] { av_log_set_callback(Forward); });
}

} // namespace nle

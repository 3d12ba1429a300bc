// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/Reasons.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "NLECore/media/EngineLog.h"
#include "NLECore/media/SavedFile_p.h"

#include <QFileDevice>
#include <QtGlobal>

#include <algorithm>
#include <cstring>
#include <cwchar>
#include <iterator>

namespace nle {

namespace {

/// How much the log makes of a reason.
enum class Level
{
    None,  ///< asking is usual
    Debug, ///< a mistake of the host, or its wish
    Warning
};

struct Row
{
    NLEReason reason;
    const char* title;
    Level level;
};

constexpr Row kRows[] = {
    {NLEReason_None, QT_TRANSLATE_NOOP("NLECore", "No failure"), Level::None},
    {NLEReason_Unknown, QT_TRANSLATE_NOOP("NLECore", "Failed"), Level::Warning},
    {NLEReason_NullPointer,
     QT_TRANSLATE_NOOP("NLECore", "Something that has to be given is missing"), Level::Debug},
    {NLEReason_InvalidArgument, QT_TRANSLATE_NOOP("NLECore", "A value that is not accepted"),
     Level::Debug},
    {NLEReason_OutOfRange, QT_TRANSLATE_NOOP("NLECore", "Outside of the range"), Level::Debug},
    {NLEReason_UnknownName, QT_TRANSLATE_NOOP("NLECore", "There is nothing of this name"),
     Level::Debug},
    {NLEReason_UnknownIndex, QT_TRANSLATE_NOOP("NLECore", "There is nothing of this number"),
     Level::Debug},
    {NLEReason_WrongState, QT_TRANSLATE_NOOP("NLECore", "Not possible at this time"), Level::Debug},
    {NLEReason_NotOffered, QT_TRANSLATE_NOOP("NLECore", "Not offered"), Level::Debug},
    {NLEReason_OutOfMemory, QT_TRANSLATE_NOOP("NLECore", "Out of memory"), Level::Warning},
    {NLEReason_Cancelled, QT_TRANSLATE_NOOP("NLECore", "Cancelled"), Level::Debug},
    {NLEReason_ReadOnly, QT_TRANSLATE_NOOP("NLECore", "A value that cannot be changed"),
     Level::Debug},
    {NLEReason_NoValue, QT_TRANSLATE_NOOP("NLECore", "There is no such value"), Level::None},
    {NLEReason_NothingThere, QT_TRANSLATE_NOOP("NLECore", "There is nothing to show or to write"),
     Level::Debug},
    {NLEReason_WrongObject, QT_TRANSLATE_NOOP("NLECore", "This object cannot be used there"),
     Level::Debug},
    {NLEReason_FileMissing, QT_TRANSLATE_NOOP("NLECore", "There is no such file"), Level::Warning},
    {NLEReason_FileUnreadable, QT_TRANSLATE_NOOP("NLECore", "The file cannot be read"),
     Level::Warning},
    {NLEReason_FileUnsupported,
     QT_TRANSLATE_NOOP("NLECore", "The file is damaged or of no known format"), Level::Warning},
    {NLEReason_NotWritable, QT_TRANSLATE_NOOP("NLECore", "The file or folder cannot be written"),
     Level::Warning},
    {NLEReason_DiskFull, QT_TRANSLATE_NOOP("NLECore", "The disk is full"), Level::Warning},
    {NLEReason_NoContainer,
     QT_TRANSLATE_NOOP("NLECore", "There is no format of this name to write"), Level::Warning},
    {NLEReason_SettingsRefused,
     QT_TRANSLATE_NOOP("NLECore", "The format does not take these settings"), Level::Warning},
    {NLEReason_NoDevice, QT_TRANSLATE_NOOP("NLECore", "There is no such device"), Level::Warning},
    {NLEReason_LevelLocked, QT_TRANSLATE_NOOP("NLECore", "The track is locked"), Level::Debug},
    {NLEReason_ClipsOverlap, QT_TRANSLATE_NOOP("NLECore", "Clips would overlap"), Level::Debug},
    {NLEReason_NoMaterial, QT_TRANSLATE_NOOP("NLECore", "The clip has no more material"),
     Level::Debug},
    {NLEReason_ClipTooShort, QT_TRANSLATE_NOOP("NLECore", "Nothing would be left of the clip"),
     Level::Debug},
    {NLEReason_WithinTransition, QT_TRANSLATE_NOOP("NLECore", "A transition cannot be cut"),
     Level::Debug}};

/// Null for a number that is no NLEReason.
const Row* RowOf(int reason)
{
    const auto found = std::find_if(std::begin(kRows), std::end(kRows),
                                    [reason](const Row& row) { return row.reason == reason; });
    return found == std::end(kRows) ? nullptr : found;
}

NLEReason ReasonOf(HRESULT result)
{
    constexpr struct
    {
        HRESULT result;
        NLEReason reason;
    } rows[] = {{E_POINTER, NLEReason_NullPointer},     {E_INVALIDARG, NLEReason_InvalidArgument},
                {E_NOTIMPL, NLEReason_NotOffered},      {E_NOINTERFACE, NLEReason_NotOffered},
                {E_OUTOFMEMORY, NLEReason_OutOfMemory}, {E_ABORT, NLEReason_Cancelled},
                {E_ACCESSDENIED, NLEReason_NotWritable}};
    for (const auto& row : rows) {
        if (row.result == result)
            return row.reason;
    }
    return NLEReason_Unknown;
}

/// What a thread does. Nothing in it has to be destroyed, or takes memory when it is first used.
struct ThreadCalls
{
    int depth = 0; ///< of calls within calls
    LastFailure noted;
    LastFailure last;
};

ThreadCalls& Calls() noexcept
{
    thread_local ThreadCalls s_calls;
    return s_calls;
}

void Log(const LastFailure& failure)
{
    const Row* row = RowOf(failure.reason);
    if (failure.isLogged || !row || row->level == Level::None)
        return;
    // The log may be short of memory itself.
    try {
        const char* separator = *failure.words == L'\0' ? "" : ": ";
        const QByteArray words = FromWide(failure.words).toUtf8();
        if (row->level == Level::Warning)
            qCWarning(lcEngine, "%s%s%s", row->title, separator, words.constData());
        else
            qCDebug(lcEngine, "%s%s%s", row->title, separator, words.constData());
    } catch (...) {
    }
}

void Begin() noexcept
{
    ThreadCalls& calls = Calls();
    if (calls.depth++ == 0)
        calls.noted.reason = NLEReason_None;
}

void Keep(LastFailure& failure, const char* words) noexcept
{
    const std::size_t length =
        words ? std::min<std::size_t>(std::strlen(words), LastFailure::kMostWords - 1) : 0;
    std::copy_n(words, length, failure.words);
    failure.words[length] = L'\0';
}

void End(HRESULT result, const char* words) noexcept
{
    ThreadCalls& calls = Calls();
    if (--calls.depth > 0)
        return;
    if (SUCCEEDED(result))
        return;
    LastFailure& noted = calls.noted;
    const bool isNoted = noted.reason != NLEReason_None && !words &&
                         (noted.result == result || noted.result == S_OK);
    if (!isNoted) {
        noted.reason = ReasonOf(result);
        noted.isLogged = false;
        Keep(noted, words);
    }
    noted.result = result;
    calls.last = noted;
    Log(calls.last);
}

void Note(HRESULT result, NLEReason reason, const QString& words, bool isLogged) noexcept
{
    LastFailure& noted = Calls().noted;
    noted.result = result;
    noted.reason = reason;
    noted.isLogged = isLogged;
    const int length = std::min<int>(words.size(), LastFailure::kMostWords - 1);
    // Each unit of UTF-16 gives one character at the most.
    const int written = QStringView(words).left(length).toWCharArray(noted.words);
    noted.words[written] = L'\0';
}

} // namespace

HRESULT Refuse(HRESULT result, NLEReason reason, const QString& words) noexcept
{
    // The end of the call that this is a part of, or of one of its own, keeps it.
    Begin();
    Note(result, reason, words, false);
    End(result, nullptr);
    return result;
}

HRESULT Refuse(HRESULT result) noexcept
{
    return ComFailure(result);
}

void NoteReason(NLEReason reason, const QString& words) noexcept
{
    Note(S_OK, reason, words, true);
}

HRESULT RefuseIndex(std::int64_t index, std::int64_t count) noexcept
{
    wchar_t words[64];
    std::swprintf(words, std::size(words), L"%lld: %lld", static_cast<long long>(index),
                  static_cast<long long>(count));
    return Refuse(E_INVALIDARG, NLEReason_UnknownIndex, FromWide(words));
}

HRESULT RefuseRange(const char* name, double lowest, double highest) noexcept
{
    try {
        return Refuse(
            E_INVALIDARG, NLEReason_OutOfRange,
            QStringLiteral("%1: %2 to %3").arg(QLatin1String(name)).arg(lowest).arg(highest));
    } catch (...) {
        return Refuse(E_INVALIDARG, NLEReason_OutOfRange);
    }
}

NLEReason ReasonOfWriting(bool isDiskFull) noexcept
{
    return isDiskFull ? NLEReason_DiskFull : NLEReason_NotWritable;
}

HRESULT RefuseWriting(HRESULT result, const QString& path, const QFileDevice& file)
{
    return Refuse(result, ReasonOfWriting(ErrorOf(file) == QFileDevice::ResourceError),
                  path + QStringLiteral(": ") + file.errorString());
}

LastFailure& LastFailureOfThread() noexcept
{
    return Calls().last;
}

const char* TitleOf(int reason)
{
    const Row* row = RowOf(reason);
    return row ? row->title : nullptr;
}

void WatchCalls() noexcept
{
    // Once: from then on threads read it.
    [[maybe_unused]] static const bool isWatching = [] {
        s_comCallWatch = {Begin, End};
        return true;
    }();
}

} // namespace nle

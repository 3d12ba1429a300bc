// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/INLEReasons.h"

#include <QString>

class QFileDevice;

/// Why calls of the engine fail. One way for all: whatever refuses a call gives its result through
/// Refuse(), and ComGuard, which hears of the end of every call, keeps and logs the last reason of
/// a call that failed, or one that follows from the result. Nothing here throws or has to have
/// memory.
namespace nle {

/// Gives \a result, with a reason: \a words, the same in all languages, say more.
HRESULT Refuse(HRESULT result, NLEReason reason, const QString& words = {}) noexcept;
/// Gives \a result, with the reason that has been noted for this call, else one that follows from
/// it.
HRESULT Refuse(HRESULT result) noexcept;
/// The reason of this call for whatever it fails with; in the log already.
void NoteReason(NLEReason reason, const QString& words) noexcept;

/// An index that names none of \a count.
HRESULT RefuseIndex(std::int64_t index, std::int64_t count) noexcept;
/// A number \a name outside of its range.
HRESULT RefuseRange(const char* name, double lowest, double highest) noexcept;

/// Why a file is not written, of a disk that is full or not.
NLEReason ReasonOfWriting(bool isDiskFull) noexcept;
/// Gives \a result, for a file at \a path that \a file does not write.
HRESULT RefuseWriting(HRESULT result, const QString& path, const QFileDevice& file);

/// The last failure of a call on this thread.
struct LastFailure
{
    static constexpr int kMostWords = 512;

    HRESULT result = S_OK;
    NLEReason reason = NLEReason_None;
    bool isLogged = false;
    wchar_t words[kMostWords] = L"";
};
LastFailure& LastFailureOfThread() noexcept;

/// English, without a stop; null for a number that is no NLEReason.
const char* TitleOf(int reason);

/// From now on ComGuard tells of calls in this module.
void WatchCalls() noexcept;

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"

#include <cstdint>

/// Why a call failed. Numbers are stable, for a host's own table of texts; what the words after
/// them are is in quotes.
enum NLEReason : std::int32_t
{
    NLEReason_None = 0,
    NLEReason_Unknown = 1,          ///< nobody can say; "the words of whatever failed"
    NLEReason_NullPointer = 2,      ///< a pointer or an object that has to be given is null
    NLEReason_InvalidArgument = 3,  ///< a value that is not accepted
    NLEReason_OutOfRange = 4,       ///< "name: lowest to highest"
    NLEReason_UnknownName = 5,      ///< "the name"
    NLEReason_UnknownIndex = 6,     ///< "the number: how many there are"
    NLEReason_WrongState = 7,       ///< not now: nothing is open, or too much is
    NLEReason_NotOffered = 8,       ///< not by this engine
    NLEReason_OutOfMemory = 9,      ///< memory or threads
    NLEReason_Cancelled = 10,       ///< as the host asked for
    NLEReason_ReadOnly = 11,        ///< a value that is only read; "its key"
    NLEReason_NoValue = 12,         ///< a bag has none of this kind under the key; "the key"
    NLEReason_NothingThere = 13,    ///< no picture, sound or text in that place; "the place"
    NLEReason_WrongObject = 14,     ///< an object that cannot stand there, or stands elsewhere
    NLEReason_FileMissing = 15,     ///< "the path"
    NLEReason_FileUnreadable = 16,  ///< a folder, empty, or not permitted; "path: words"
    NLEReason_FileUnsupported = 17, ///< damaged, or of no known format; "path: words"
    NLEReason_NotWritable = 18,     ///< no file or folder can be made there; "path: words"
    NLEReason_DiskFull = 19,        ///< "path: words"
    NLEReason_NoContainer = 20,     ///< none that is written goes by that name; "path: words"
    NLEReason_SettingsRefused = 21, ///< container or codec does not take them; "path: words"
    NLEReason_NoDevice = 22,        ///< no device of this kind works here; "what is missing"
    NLEReason_LevelLocked = 23,     ///< an edit would change what stands on it; "the level"
    NLEReason_ClipsOverlap = 24,    ///< two clips would play at one time; "first to last frame"
    NLEReason_NoMaterial = 25,      ///< a clip would play beyond its ends; "first to last frame"
    NLEReason_ClipTooShort = 26,    ///< a clip would have no frame left
    NLEReason_WithinTransition = 27 ///< a cut where two clips go over into each other; "the frame"
};

/// Tells why calls of the engine failed. Each thread has its own last failure: the last call on
/// this thread that gave an error, through whatever interface of the engine, those of this one and
/// interface queries (E_NOINTERFACE) excepted. Calls that succeed leave it as it is. In a callback
/// that tells of a failure it is that failure, on the engine's thread. A call from within another
/// one, out of a progress callback, counts as a part of that.
///
/// The log has each failure too, values that a bag lacks excepted. Needs no memory; for any thread.
struct INLEReasons : IUnknown
{
    static constexpr _GUID Iid = {
        0x3E6F0B58, 0x29C4, 0x4A17, {0xB3, 0x8D, 0x50, 0x71, 0xE2, 0x9C, 0x46, 0xAF}};

    /// What the call gave, and an NLEReason; either may be null. S_FALSE, S_OK and NLEReason_None
    /// when no call has failed.
    virtual HRESULT GetLast(HRESULT* result, int* reason) = 0;
    /// An English sentence with the words of GetWords(), cut to \a capacity characters with the
    /// terminating zero, here and below; empty when no call has failed.
    virtual HRESULT GetText(wchar_t* text, int capacity) = 0;
    /// What belongs to the reason and is the same in all languages: a path, a name, a range, what
    /// FFmpeg or the system said. At most 511 characters; may be empty.
    virtual HRESULT GetWords(wchar_t* words, int capacity) = 0;
    /// Forgets the last failure of this thread.
    virtual HRESULT Forget() = 0;
    /// What a reason is called for people, in the language that the host has installed a translator
    /// for (context "NLECore"). E_INVALIDARG for a number that is no NLEReason.
    virtual HRESULT GetTitle(int reason, wchar_t* title, int capacity) = 0;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

/// States of a preview cache. An engine reports all but the last; the numbers are fixed.
enum NLECacheState : long
{
    NLECache_Caching = 0,
    NLECache_LowDisk = 1,
    NLECache_QuotaReached = 2,
    NLECache_Stopped = 3, ///< as it was asked to
    NLECache_FolderUnwriteable = 4,
    NLECache_Finished = 5,
    NLECache_Idle = 6 ///< at first, after a stop, a new folder or a deletion
};

/// Called from the render thread: percentage, an NLECacheState, cached and total frames.
using NLERenderCallback = int (*)(int progress, long state, long cachedFrames, long totalFrames,
                                  void* userData);
/// Called from an engine thread when an analysis has ended. Only the user data is for the caller.
using NLEUpdateCallback = int (*)(void* cache, long state, long firstFrame, long lastFrame,
                                  long count, void* userData);

/// Preview-render cache of one timeline, filled in the background. For the thread that edits, as
/// its other interfaces are; Update() for any.
struct INLEBackgroundCache : IUnknown
{
    static constexpr _GUID Iid = {
        0xA9BDC3BD, 0xAE9B, 0x4F2A, {0x90, 0x36, 0xDF, 0xA6, 0xB7, 0x60, 0xD9, 0xE4}};

    /// \a quota and \a reserve are MiB: the most that the cache may fill, and what it leaves free.
    virtual HRESULT SetCacheFolder(const wchar_t* folder, std::int64_t quota, int reserve) = 0;
    virtual HRESULT Start(const NLESize* resolution, NLERenderCallback callback,
                          void* userData) = 0;
    virtual HRESULT Stop() = 0;
    /// Deletes what is cached of the timeline, or all of the folder. E_FAIL without a folder.
    virtual HRESULT DeleteCache(bool all) = 0;
    /// Finds out on the calling thread what needs rendering; on another one than that which edits,
    /// of the timeline as it was analysed last. E_FAIL without a timeline.
    virtual HRESULT Update() = 0;
};

/// What is cached and what needs rendering, in segments.
struct INLEBackgroundCacheStat : IUnknown
{
    static constexpr _GUID Iid = {
        0x471EB74E, 0x6880, 0x4A12, {0x98, 0x60, 0x94, 0x52, 0x1E, 0xB6, 0xE8, 0xBE}};

    /// Number of segments.
    virtual long GetCount() = 0;
    /// A segment's frames, whether it counts (1 or more), and the first frame in it that is not
    /// cached.
    virtual HRESULT GetStat(int index, NLERange* range, long* valid, int* cachedTo) = 0;
};

/// Analysis on the engine's own thread.
struct INLEBackgroundCacheAsyncUpdate : IUnknown
{
    static constexpr _GUID Iid = {
        0xFEEBD79A, 0x8853, 0x477D, {0xB6, 0x0C, 0x4F, 0x5D, 0x85, 0xCB, 0x19, 0x3F}};

    /// Asks for an analysis that ends with a call of \a callback; null clears what was asked for.
    virtual HRESULT SetUpdateCallback(NLEUpdateCallback callback, void* userData) = 0;
};

/// How faithful the cached pictures are.
struct INLEBackgroundCacheQualitySet : IUnknown
{
    static constexpr _GUID Iid = {
        0x3FCF15B7, 0xBF51, 0x49ED, {0xA9, 0x81, 0xC9, 0x4C, 0x84, 0x0A, 0xF8, 0xD5}};

    /// 0 to 1, else E_INVALIDARG.
    virtual HRESULT SetQuality(NLERational quality) = 0;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

#include <cstdint>

/// How far a proxy is, on a thread of the engine. \a state is S_FALSE while it is made, \a percent
/// then the part that is done; S_OK when it is there, E_ABORT when it was cancelled, else why it is
/// not made. After any other state than S_FALSE no call comes for this file. \a file is the name
/// that Make() had, valid during the call.
using NLEProxyCallback = void (*)(const wchar_t* file, HRESULT state, int percent, void* userData);

/// Makes proxies: films without sound of fewer lines, which stand for a media file or an image
/// sequence, named by its pattern, while a project is edited. They are kept in a folder and found
/// again by what the media holds, wherever it lies. Whether one is used is said at the clip
/// (SetProxyFile and SetProxyEnabled of INLEVideoStreamProcess); media encoders leave it out unless
/// NLEKey::Encode::kProxies asks for it.
///
/// For any thread. Files are worked on one after the other. The last reference cancels what waits
/// and ends what is being made; no call comes afterwards.
struct INLEProxyMaker : IUnknown
{
    static constexpr _GUID Iid = {
        0x5E0B7C46, 0x8D1F, 0x4F6B, {0xA0, 0x52, 0x7C, 0x3E, 0x91, 0xD4, 0x06, 0xBA}};

    /// Where proxies are kept, and the most MiB that they may fill; those used least lately go
    /// first. An empty or null \a folder is a folder of the application's caches, 0 MiB keeps none.
    /// Counts for all of the process. E_INVALIDARG for less than 0.
    virtual HRESULT SetFolder(const wchar_t* folder, std::int64_t quota) = 0;
    /// Lines of proxies that are made or looked for from now on, 64 to 2160; preset 540. The width
    /// follows the picture. E_INVALIDARG for others.
    virtual HRESULT SetHeight(int height) = 0;
    /// Gives the path of the proxy of \a file, cut to \a capacity characters with the terminating
    /// zero. S_FALSE, and an empty text, when there is none.
    virtual HRESULT Find(const wchar_t* file, wchar_t* proxy, int capacity) = 0;
    /// Makes the proxy of \a file in the background; one that is there is told at once. A file
    /// without a moving picture, one that cannot be read and one whose pictures have no more lines
    /// than the proxy would get give E_INVALIDARG, to the callback, which may be null.
    virtual HRESULT Make(const wchar_t* file, NLEProxyCallback callback, void* userData) = 0;
    /// Cancels the proxies of \a file, or all for null, that wait or are being made; does not wait.
    /// S_FALSE when there are none.
    virtual HRESULT Cancel(const wchar_t* file) = 0;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

/// Key frames of a clip's picture, sorted by time.
struct INLEKeyFrameList : IUnknown
{
    static constexpr _GUID Iid = {
        0x17023CB6, 0x6191, 0x4B63, {0x8C, 0x9B, 0xEC, 0x29, 0x9C, 0xF1, 0x60, 0x54}};

    virtual HRESULT GetCount(int* count) = 0; ///< key frames of the clip
    virtual HRESULT GetKeyFrame(int index, NLEKeyFrameRecord* record) = 0; ///< by its place
    virtual HRESULT SetKeyFrame(int index, const NLEKeyFrameRecord* record) = 0;
    /// \a index receives the new key frame's place.
    virtual HRESULT AddKeyFrame(const NLEKeyFrameRecord* record, int* index) = 0;
    virtual HRESULT DeleteKeyFrame(int index) = 0;
    virtual HRESULT DeleteAll() = 0;
    /// Interpolated values at a time.
    virtual HRESULT GetParamAt(double time, NLEKeyFrameRecord* record) = 0;
    /// The key frame at frame \a frame of a clip of \a frameCount frames; E_FAIL when there is
    /// none.
    virtual HRESULT FindIndex(int frame, int frameCount, int* index) = 0;
};

/// Whether a clip's key frames apply.
struct INLEKeyFrameStatus : IUnknown
{
    static constexpr _GUID Iid = {
        0xDD93A6DD, 0x322F, 0x4298, {0xAD, 0xFF, 0x12, 0x53, 0x21, 0x06, 0x6A, 0x5A}};

    virtual HRESULT GetStatus(bool* enabled) = 0; ///< whether they apply
    virtual HRESULT SetStatus(bool enabled) = 0;
};

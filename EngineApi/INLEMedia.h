// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComTypes.h"
#include "EngineApi/NLETypes.h"

/// Description of a media file, read when the file was opened; it does not change afterwards. For
/// any thread.
struct INLEMediaInfo : IUnknown
{
    static constexpr _GUID Iid = {
        0x4471B203, 0x90A2, 0x4C09, {0xA0, 0x23, 0x33, 0xFC, 0x6F, 0xEA, 0xC7, 0x1C}};

    /// An NLEMediaKind.
    virtual HRESULT GetKind(int* kind) = 0;
    virtual HRESULT GetStreamCount(std::uint32_t* count) = 0;
    /// E_INVALIDARG past the last stream.
    virtual HRESULT GetStream(std::uint32_t index, NLEStreamInfo* stream) = 0;
    /// Frames that have a picture, and frames a second; 1 at 25 for a still picture, and counted at
    /// 25 frames a second for sound alone. A clip is longer where the sound of the file is.
    virtual HRESULT GetFrameCountAndRate(std::uint32_t* count, NLERational* rate) = 0;
    /// Writes at most \a capacity characters with the terminating zero.
    virtual HRESULT GetFilePath(wchar_t* buffer, int capacity) = 0;
};

/// Codecs of a file. For any thread.
struct INLECodec : IUnknown
{
    static constexpr _GUID Iid = {
        0xB0674F69, 0x3E2E, 0x47C4, {0x9E, 0x68, 0xFC, 0x23, 0x24, 0x48, 0xF9, 0x1A}};

    virtual HRESULT GetMediaInfo(INLEMediaInfo** info) = 0; ///< of the file
    /// Short name of the file's container, for example "mov".
    virtual HRESULT GetContainerName(wchar_t* buffer, int capacity) = 0;
    /// Short name of a stream's codec, for example "h264".
    virtual HRESULT GetCodecName(std::uint32_t stream, wchar_t* buffer, int capacity) = 0;
    /// Profile of a stream's codec, for example "High"; empty when there is none.
    virtual HRESULT GetProfileName(std::uint32_t stream, wchar_t* buffer, int capacity) = 0;
};

/// A picture in system memory: 32 bits a pixel, blue in the lowest byte, alpha in the highest, not
/// premultiplied, rows without gaps. The pixels live as long as the picture. For any thread.
struct INLEPicture : IUnknown
{
    static constexpr _GUID Iid = {
        0xF994686B, 0x9080, 0x4193, {0xB0, 0x5C, 0xAF, 0xD6, 0x5A, 0x9B, 0x22, 0x42}};

    virtual HRESULT GetWidth(int* width) = 0;                 ///< in pixels
    virtual HRESULT GetHeight(int* height) = 0;               ///< in pixels
    virtual HRESULT GetData(const std::uint8_t** pixels) = 0; ///< valid as long as the picture
};

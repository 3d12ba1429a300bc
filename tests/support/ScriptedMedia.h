// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEMedia.h"
#include "tests/support/ScriptedEngine.h"

#include <QImage>
#include <QVector>

/// Media descriptions, pictures, frames and extractors.
namespace Scripted {

struct MediaInfo : Object<INLEMediaInfo>
{
    using Object::Object;

    int kind = NLEMedia_Video;
    QVector<NLEStreamInfo> streams;
    std::uint32_t frameCount = 0;
    NLERational rate = {25, 1};

    HRESULT GetKind(int* out) override { return Value("GetKind", kind, out); }
    HRESULT GetStreamCount(std::uint32_t* out) override
    {
        return Value("GetStreamCount", std::uint32_t(streams.size()), out);
    }
    HRESULT GetStream(std::uint32_t index, NLEStreamInfo* out) override
    {
        if (index >= std::uint32_t(streams.size()))
            return E_INVALIDARG;
        return Value("GetStream", streams.at(int(index)), out, index);
    }
    HRESULT GetFrameCountAndRate(std::uint32_t* count, NLERational* out) override
    {
        const HRESULT status = Value("GetFrameCountAndRate", rate, out);
        if (SUCCEEDED(status))
            *count = frameCount;
        return status;
    }
    SCRIPTED_TEXT(filePath, FilePath)
};

struct Picture : Object<INLEPicture>
{
    using Object::Object;

    QImage image; ///< ARGB32

    HRESULT GetWidth(int* out) override { return Value("GetWidth", image.width(), out); }
    HRESULT GetHeight(int* out) override { return Value("GetHeight", image.height(), out); }
    HRESULT GetData(const std::uint8_t** out) override
    {
        *out = image.constBits();
        return Call("GetData");
    }
};

struct VideoFrame : Object<INLEVideoFrame>
{
    using Object::Object;

    QImage image; ///< ARGB32

    HRESULT Prepare() override { return Call("Prepare"); }
    HRESULT GetSize(NLESize* out) override
    {
        return Value("GetSize", NLESize{image.width(), image.height()}, out);
    }
    SCRIPTED_RECORD(NLERect, validRect, ValidRect)
    HRESULT GetData(std::uint8_t** out) override
    {
        *out = image.bits();
        return Call("GetData");
    }
    HRESULT GetMemory(int* out) override { return Value("GetMemory", int(NLEMemory_System), out); }
};

struct FrameExtractor : Object<INLEFrameExtractor>
{
    using Object::Object;

    HRESULT Open(INLETimeline* timeline, int flags) override
    {
        return Call("Open", timeline, flags);
    }
    HRESULT Extract(int frame, INLEVideoFrame* picture) override
    {
        return Call("Extract", frame, picture);
    }
    HRESULT ExtractAudio(int frame, INLEAudioFrame* sound) override
    {
        return Call("ExtractAudio", frame, sound);
    }
    HRESULT Finish() override { return Call("Finish"); }
};

struct ThumbnailExtractor : Object<INLEThumbnailExtractor>
{
    using Object::Object;

    HRESULT SetSource(INLEMediaInfo* info, std::uint32_t videoStream) override
    {
        return Call("SetSource", info, videoStream);
    }
    HRESULT Extract(int frame, NLESize wanted, INLEPicture** out) override
    {
        return Give("Extract", out, frame, wanted);
    }
    HRESULT Finish() override { return Call("Finish"); }
};

} // namespace Scripted

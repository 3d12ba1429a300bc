// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFactory.h"

namespace nle {

/// The open engine's root factory. What this engine does not offer gives E_NOTIMPL and null.
class RootFactory final : public ComObject<INLEFactory>
{
public:
    RootFactory();

    HRESULT Init(int flags) override;
    HRESULT GetTimelineFactory(INLETimelineFactory** factory) override;
    HRESULT GetFontLibrary(INLEFontLibrary** library) override;
    HRESULT GetSystemConfig(INLESystemConfig** config) override;
    HRESULT CreateVideoFrame(int width, int height, int pixelFormat, int memory, int poolFlags,
                             int poolMinimum, int poolMaximum, int poolReserve,
                             INLEVideoFrame** frame) override;
    HRESULT CreateAudioFrame(int sampleCount, INLEAudioFrame** frame) override;
    HRESULT CreateCodecFromFile(const wchar_t* path, INLECodec** codec) override;
    HRESULT CreateMarkBook(const wchar_t* path, INLEMarkBook** book) override;
    HRESULT CreateDocumentSerialize(INLEDocumentSerialize** serialize) override;
    HRESULT CreateFrameExtractor(INLEFrameExtractor** extractor) override;
    HRESULT CreateThumbnailExtractor(INLEThumbnailExtractor** extractor) override;
    HRESULT CreateWaveExtractor(INLEWaveExtractor** extractor) override;
    HRESULT CreateSceneSegment(INLESceneSegment** segment) override;
    HRESULT CreateMediaEncoder(INLEMediaEncoder** encoder) override;
    HRESULT CreateProperties(INLEProperties** properties) override;
    HRESULT Shutdown(int flags) override;
    HRESULT CreateProxyMaker(INLEProxyMaker** maker) override;
    HRESULT CreatePlayer(INLEPlayer** player) override;
    HRESULT GetReasons(INLEReasons** reasons) override;
    HRESULT CreateEditing(INLETimeline* composite, INLEEditing** editing) override;
};

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/RootFactory.h"

#include "Com/ComGuard.h"
#include "NLECore/media/DecoderPool.h"
#include "NLECore/media/EngineLog.h"
#include "NLECore/media/HardwareDecoding.h"
#include "NLECore/media/MediaLog.h"
#include "NLECore/media/PictureCache.h"
#include "NLECore/media/StillPictures.h"
#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/model/PropertyBag.h"
#include "NLECore/objects/BackgroundCache.h"
#include "NLECore/objects/CodecObject.h"
#include "NLECore/objects/DocumentSerialize.h"
#include "NLECore/objects/Extractors.h"
#include "NLECore/objects/FontLibrary.h"
#include "NLECore/objects/Frames.h"
#include "NLECore/objects/MarkBook.h"
#include "NLECore/objects/MediaEncoder.h"
#include "NLECore/objects/Player.h"
#include "NLECore/objects/ProxyMaker.h"
#include "NLECore/objects/SceneSegment.h"
#include "NLECore/objects/SystemConfig.h"
#include "NLECore/objects/TimelineFactory.h"
#include "NLECore/objects/WaveExtractor.h"

namespace nle {

namespace {

/// Longest side of a frame in pixels; a frame of that size still fits a 32-bit byte count.
constexpr int kLongestSide = 16384;
/// Most samples of an audio frame: ten minutes.
constexpr int kMostSamples = 600 * AudioFrame::kSampleRate;

template <typename Interface>
HRESULT Refuse(Interface** out, HRESULT reason = E_NOTIMPL)
{
    if (!out)
        return E_POINTER;
    *out = nullptr;
    return reason;
}

} // namespace

RootFactory::RootFactory()
{
    CompositeNode::SetCacheMaker([](std::function<Snapshot()> takeSnapshot) {
        return NLEComPtr<CompositeCache>(MakeCom<BackgroundCache>(std::move(takeSnapshot)));
    });
}

HRESULT RootFactory::Init(int /*flags*/)
{
    return ComGuard([&] {
        SetMediaLogSink([](const char* message) { qCDebug(lcEngine, "%s", message); });
        return S_OK;
    });
}

HRESULT RootFactory::GetTimelineFactory(INLETimelineFactory** factory)
{
    return GiveNew<TimelineFactory>(factory);
}

HRESULT RootFactory::GetFontLibrary(INLEFontLibrary** library)
{
    return GiveNew<FontLibrary>(library);
}

HRESULT RootFactory::GetSystemConfig(INLESystemConfig** config)
{
    return GiveNew<SystemConfig>(config);
}

HRESULT RootFactory::CreateVideoFrame(int width, int height, int /*pixelFormat*/, int memory,
                                      int /*poolFlags*/, int /*poolMinimum*/, int /*poolMaximum*/,
                                      int /*poolReserve*/, INLEVideoFrame** frame)
{
    if (memory != NLEMemory_System)
        return Refuse(frame);
    if (width < 1 || height < 1 || width > kLongestSide || height > kLongestSide)
        return Refuse(frame, E_INVALIDARG);
    return GiveNew<VideoFrame>(frame, NLESize{width, height});
}

HRESULT RootFactory::CreateAudioFrame(int sampleCount, INLEAudioFrame** frame)
{
    if (sampleCount < 1 || sampleCount > kMostSamples)
        return Refuse(frame, E_INVALIDARG);
    return GiveNew<AudioFrame>(frame, sampleCount);
}

HRESULT RootFactory::CreateCodecFromFile(const wchar_t* path, INLECodec** codec)
{
    return ComGuard([&] {
        const auto media = path ? DescribeFile(QString::fromWCharArray(path)) : nullptr;
        return media ? GiveNew<CodecObject>(codec, media) : Refuse(codec, E_FAIL);
    });
}

HRESULT RootFactory::CreateMarkBook(const wchar_t* path, INLEMarkBook** book)
{
    return ComGuard([&] {
        const HRESULT none = Refuse(book, E_FAIL);
        return path && book ? MarkBook::Open(QString::fromWCharArray(path), book) : none;
    });
}

HRESULT RootFactory::CreateDocumentSerialize(INLEDocumentSerialize** serialize)
{
    return GiveNew<DocumentSerialize>(serialize);
}

HRESULT RootFactory::CreateFrameExtractor(INLEFrameExtractor** extractor)
{
    return GiveNew<FrameExtractor>(extractor);
}

HRESULT RootFactory::CreateThumbnailExtractor(INLEThumbnailExtractor** extractor)
{
    return GiveNew<ThumbnailExtractor>(extractor);
}

HRESULT RootFactory::CreateWaveExtractor(INLEWaveExtractor** extractor)
{
    return GiveNew<WaveExtractor>(extractor);
}

HRESULT RootFactory::CreateSceneSegment(INLESceneSegment** segment)
{
    return GiveNew<SceneSegment>(segment);
}

HRESULT RootFactory::CreateMediaEncoder(INLEMediaEncoder** encoder)
{
    return GiveNew<MediaEncoder>(encoder);
}

HRESULT RootFactory::CreateProperties(INLEProperties** properties)
{
    return GiveNew<PropertyBag>(properties);
}

HRESULT RootFactory::CreateProxyMaker(INLEProxyMaker** maker)
{
    return GiveNew<ProxyMaker>(maker);
}

HRESULT RootFactory::CreatePlayer(INLEPlayer** player)
{
    return GiveNew<Player>(player);
}

HRESULT RootFactory::Shutdown(int /*flags*/)
{
    return ComGuard([&] {
        Decoders().Clear();
        Stills().Clear();
        KeptPictures().Clear();
        ForgetDevices();
        ForgetFiles();
        return S_OK;
    });
}

} // namespace nle

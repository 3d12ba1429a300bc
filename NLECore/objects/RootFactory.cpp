// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/RootFactory.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "NLECore/media/DecoderPool.h"
#include "NLECore/media/EngineLog.h"
#include "NLECore/media/HardwareDecoding.h"
#include "NLECore/media/MediaLog.h"
#include "NLECore/media/PictureCache.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/media/StillPictures.h"
#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/Editing.h"
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
#include "NLECore/objects/OpenCLFrame.h"
#include "NLECore/objects/Player.h"
#include "NLECore/objects/ProxyMaker.h"
#include "NLECore/objects/ReasonBook.h"
#include "NLECore/objects/SceneSegment.h"
#include "NLECore/objects/SystemConfig.h"
#include "NLECore/objects/TimelineFactory.h"
#include "NLECore/objects/WaveExtractor.h"
#include "NLECore/render/EffectPicture.h"

namespace nle {

namespace {

/// Longest side of a frame in pixels; a frame of that size still fits a 32-bit byte count.
constexpr int kLongestSide = 16384;
/// Most samples of an audio frame: ten minutes.
constexpr int kMostSamples = 600 * AudioFrame::kSampleRate;

/// Whether a result can be given; there is none yet then.
template <typename Interface>
bool Empties(Interface** out)
{
    if (out)
        *out = nullptr;
    return out != nullptr;
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
    if (!Empties(frame))
        return Refuse(E_POINTER);
    if (memory != NLEMemory_System && memory != NLEMemory_OpenCL)
        return Refuse(E_NOTIMPL);
    if (width < 1 || height < 1 || width > kLongestSide || height > kLongestSide)
        return RefuseRange("size", 1, kLongestSide);
    if (memory == NLEMemory_System)
        return GiveNew<VideoFrame>(frame, NLESize{width, height});
    return ComGuard([&] {
        QString complaint;
        auto device = OpenCLDevice::Get(&complaint);
        return device ? GiveNew<OpenCLFrame>(frame, NLESize{width, height}, std::move(device))
                      : Refuse(E_FAIL, NLEReason_NoDevice, complaint);
    });
}

HRESULT RootFactory::CreateAudioFrame(int sampleCount, INLEAudioFrame** frame)
{
    if (!Empties(frame))
        return Refuse(E_POINTER);
    if (sampleCount < 1 || sampleCount > kMostSamples)
        return RefuseRange("sampleCount", 1, kMostSamples);
    return GiveNew<AudioFrame>(frame, sampleCount);
}

HRESULT RootFactory::CreateCodecFromFile(const wchar_t* path, INLECodec** codec)
{
    return ComGuard([&] {
        if (!Empties(codec))
            return Refuse(E_POINTER);
        if (!path)
            return Refuse(E_FAIL, NLEReason_NullPointer);
        const auto media = DescribeFile(FromWide(path));
        return media ? GiveNew<CodecObject>(codec, media) : Refuse(E_FAIL);
    });
}

HRESULT RootFactory::CreateMarkBook(const wchar_t* path, INLEMarkBook** book)
{
    return ComGuard([&] {
        if (!Empties(book))
            return Refuse(E_POINTER);
        return path ? MarkBook::Open(FromWide(path), book) : Refuse(E_FAIL, NLEReason_NullPointer);
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

HRESULT RootFactory::GetReasons(INLEReasons** reasons)
{
    return GiveNew<ReasonBook>(reasons);
}

HRESULT RootFactory::CreateEditing(INLETimeline* composite, INLEEditing** editing)
{
    return ComGuard([&] {
        if (!Empties(editing))
            return Refuse(E_POINTER);
        auto* node = dynamic_cast<CompositeNode*>(TimelineNode::From(composite));
        if (!node)
            return Refuse(E_INVALIDARG, NLEReason_WrongObject);
        *editing = Editing::Of(*node).detach();
        return S_OK;
    });
}

HRESULT RootFactory::Shutdown(int /*flags*/)
{
    return ComGuard([&] {
        Decoders().Clear();
        Stills().Clear();
        KeptPictures().Clear();
        EffectPicture::FreeSpare();
        ForgetDevices();
        OpenCLDevice::Forget();
        ForgetFiles();
        return S_OK;
    });
}

} // namespace nle

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/PlayerMaterProvider_p.h"

#include "Com/WideText.h"
#include "CommonLib/BaseLog.h"
#include "CommonLib/FileOperation.h"
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/EngineCall_p.h"
#include "CommonLib/PathOperation.h"
#include "EngineApi/NLEKey.h"

#include <QDir>

#include <algorithm>
#include <limits>

namespace {
constexpr char kSourcePath[] = "CommonLib/NLEWraper/PlayerMaterProviderPrivate";
constexpr char kConstructorName[] = "PlayerMaterProviderPrivate::PlayerMaterProviderPrivate";
constexpr char kOpenCLGpuInitName[] = "PlayerMaterProviderPrivate::OpenCLGpuInit";
} // namespace

PlayerMaterProviderPrivate::PlayerMaterProviderPrivate(QObject* parent) : QObject(parent)
{
    // Line numbers in the log are fixed.
    constexpr int factoryFailedLine = 28;
    constexpr int moduleCheckLine = 31;
    constexpr int noTimelineFactoryLine = 39;

    BaseLog* log = GetGlobalLogInstance();
    if (CVCreateInstance::Instance()->cvCreateInstance(INLEFactory::ClassId, nullptr, 0,
                                                       INLEFactory::Iid, m_scratch.putVoid())) {
        m_scratch.copyTo(&m_factory);
        m_factory->Init(0);
        m_timelineFactory =
            EngineObject<INLETimelineFactory>(m_factory, &INLEFactory::GetTimelineFactory);
        if (!m_timelineFactory)
            log->LogInfo(kSourcePath, kConstructorName, noTimelineFactoryLine,
                         "m_pNLETimelineFactory is NULL.");
    } else {
        log->LogInfo(kSourcePath, kConstructorName, factoryFailedLine,
                     "INLEFactory Create failed.");
        // Of the first place of all, where a host ships it.
        const QString module = PathOperation::MakeWorkPath("NLECore.dll");
        log->LogInfo(kSourcePath, kConstructorName, moduleCheckLine, "Check NLECore Exist:%d",
                     FileOperation::IsFileExist(module) ? 1 : 0);
    }
    m_scratch.reset();
}

PlayerMaterProviderPrivate::~PlayerMaterProviderPrivate()
{
    m_timelineFactory.reset(); // before the factory that it came from
    if (m_factory)
        m_factory->Release();
}

NLEComPtr<INLETimeline> PlayerMaterProviderPrivate::CreateProjectTimeline()
{
    return CreateProjectTimeline(GetDefualtProfile());
}

NLEComPtr<INLETimeline>
PlayerMaterProviderPrivate::CreateProjectTimeline(const tagNLEProjectProfile& profile)
{
    return EngineObject<INLETimeline>(m_timelineFactory.get(), &INLETimelineFactory::CreateProject,
                                      &profile);
}

tagNLEProjectProfile PlayerMaterProviderPrivate::GetDefualtProfile()
{
    tagNLEProjectProfile profile{};
    profile.frameRate = {0, 1};
    if (m_timelineFactory)
        m_timelineFactory->GetDefaultProfile(&profile);
    return profile;
}

NLEComPtr<INLETimeline> PlayerMaterProviderPrivate::CreateMediaTimeline(const QString& path,
                                                                        bool allowMissing)
{
    if (!allowMissing && !FileOperation::IsFileExist(path))
        return nullptr;
    return EngineObject<INLETimeline>(m_timelineFactory.get(), &INLETimelineFactory::CreateMedia,
                                      ToWide(QDir::toNativeSeparators(path)).c_str());
}

NLEComPtr<INLETimeline> PlayerMaterProviderPrivate::CreateTimelineFromTemplate(const QString& path)
{
    // QDir takes an empty path for the current folder.
    if (path.isEmpty() || !QDir(path).exists())
        return nullptr;
    return EngineObject<INLETimeline>(
        m_timelineFactory.get(), &INLETimelineFactory::CreateFromTemplate, ToWide(path).c_str());
}

NLEComPtr<INLETimeline> PlayerMaterProviderPrivate::CreateAudioFilterTimeline(const QString& name)
{
    return EngineObject<INLETimeline>(
        m_timelineFactory.get(), &INLETimelineFactory::CreateAudioFilter, ToWide(name).c_str());
}

NLEComPtr<INLETimeline> PlayerMaterProviderPrivate::CreateColorTimeline(const QColor& color,
                                                                        const QSize& size,
                                                                        float frameRate)
{
    return EngineObject<INLETimeline>(m_timelineFactory.get(), &INLETimelineFactory::CreateColor,
                                      color.rgba(), NLESize{size.width(), size.height()},
                                      frameRate);
}

NLEComPtr<INLETimeline> PlayerMaterProviderPrivate::CreateTipTextTimeline(const QString& text,
                                                                          const QString& family)
{
    return EngineObject<INLETimeline>(m_timelineFactory.get(), &INLETimelineFactory::CreateTipText,
                                      ToWide(text).c_str(), ToWide(family).c_str());
}

NLEComPtr<INLETimeline> PlayerMaterProviderPrivate::CreateVirtualTimeline(int type)
{
    return EngineObject<INLETimeline>(m_timelineFactory.get(), &INLETimelineFactory::CreateVirtual,
                                      type);
}

NLEComPtr<INLETimeline>
PlayerMaterProviderPrivate::CloneTimeline(const NLEComPtr<INLETimeline>& timeline, bool deep)
{
    return EngineObject<INLETimeline>(timeline.get(), &INLETimeline::Clone, deep);
}

bool PlayerMaterProviderPrivate::GetMediaCombineTimeline(const NLEComPtr<INLETimeline>& timeline,
                                                         INLETimeline** out)
{
    // Nothing is combined. Kept: see docs/compatibility.md.
    return SUCCEEDED(timeline.copyTo(out));
}

int PlayerMaterProviderPrivate::GetTimelineFrameRate(const NLEComPtr<INLETimeline>& timeline)
{
    NLERational rate{0, 1};
    if (const auto properties = NLEGetProperties(timeline.get()))
        properties->GetRational(NLEKey::Render::kRender_Framerate, &rate);
    constexpr std::int64_t highest = std::numeric_limits<int>::max();
    return rate.den <= 0 ? 0 : static_cast<int>(std::clamp(rate.num / rate.den, -highest, highest));
}

void PlayerMaterProviderPrivate::SetTimelineFrameRate(const NLEComPtr<INLETimeline>& timeline,
                                                      int framesPerSecond)
{
    if (const auto properties = NLEGetProperties(timeline.get()))
        properties->SetRational(NLEKey::Render::kRender_Framerate,
                                NLECommon::RateToRational(framesPerSecond));
}

int PlayerMaterProviderPrivate::GetTimelineLength(const NLEComPtr<INLETimeline>& timeline)
{
    int length = 0;
    if (const auto properties = NLEGetProperties(timeline.get()))
        properties->GetInt(NLEKey::Render::kRender_TotalFrameCount, &length);
    return length;
}

NLEComPtr<INLEVideoFrame> PlayerMaterProviderPrivate::CreateFrame(int width, int height,
                                                                  NLEFrameMemory memory)
{
    // Fixed values; poolMaximum only matters to engines that keep a pool of frames.
    constexpr int pixelFormat = 0;
    constexpr int poolFlags = 0;
    constexpr int poolMinimum = 0;
    constexpr int poolMaximum = 400000;
    constexpr int poolReserve = 0;
    return EngineObject<INLEVideoFrame>(m_factory, &INLEFactory::CreateVideoFrame, width, height,
                                        pixelFormat, memory, poolFlags, poolMinimum, poolMaximum,
                                        poolReserve);
}

NLEComPtr<INLEVideoFrame> PlayerMaterProviderPrivate::CreateVideoFrame(int width, int height)
{
    return CreateFrame(width, height, NLEMemory_System);
}

NLEComPtr<INLEVideoFrame> PlayerMaterProviderPrivate::CreateVideoFrameOpencl(int width, int height)
{
    return CreateFrame(width, height, NLEMemory_OpenCL);
}

NLEComPtr<INLEAudioFrame> PlayerMaterProviderPrivate::CreateAudioFrame(int sampleCount)
{
    return EngineObject<INLEAudioFrame>(m_factory, &INLEFactory::CreateAudioFrame, sampleCount);
}

NLEComPtr<INLECodec> PlayerMaterProviderPrivate::CreateCodecFromFile(const QString& path)
{
    if (!FileOperation::IsFileExist(path))
        return nullptr;
    return EngineObject<INLECodec>(m_factory, &INLEFactory::CreateCodecFromFile,
                                   ToWide(path).c_str());
}

NLEComPtr<INLEMarkBook> PlayerMaterProviderPrivate::CreateMarkBook(const QString& path)
{
    if (!FileOperation::IsFileExist(path))
        return nullptr;
    return EngineObject<INLEMarkBook>(m_factory, &INLEFactory::CreateMarkBook,
                                      ToWide(path).c_str());
}

NLEComPtr<INLEDocumentSerialize> PlayerMaterProviderPrivate::CreateDocumentSerialize()
{
    return EngineObject<INLEDocumentSerialize>(m_factory, &INLEFactory::CreateDocumentSerialize);
}

NLEComPtr<INLEFrameExtractor> PlayerMaterProviderPrivate::CreateFrameExtractor()
{
    return EngineObject<INLEFrameExtractor>(m_factory, &INLEFactory::CreateFrameExtractor);
}

NLEComPtr<INLEThumbnailExtractor> PlayerMaterProviderPrivate::CreateThumbnailExtractor()
{
    return EngineObject<INLEThumbnailExtractor>(m_factory, &INLEFactory::CreateThumbnailExtractor);
}

NLEComPtr<INLEWaveExtractor> PlayerMaterProviderPrivate::CreateWaveExtractor()
{
    return EngineObject<INLEWaveExtractor>(m_factory, &INLEFactory::CreateWaveExtractor);
}

NLEComPtr<INLESceneSegment> PlayerMaterProviderPrivate::CreateSceneSegment()
{
    return EngineObject<INLESceneSegment>(m_factory, &INLEFactory::CreateSceneSegment);
}

NLEComPtr<INLEMediaEncoder> PlayerMaterProviderPrivate::CreateMediaEncoder()
{
    return EngineObject<INLEMediaEncoder>(m_factory, &INLEFactory::CreateMediaEncoder);
}

NLEComPtr<INLEProperties> PlayerMaterProviderPrivate::CreateNLEProperties()
{
    return EngineObject<INLEProperties>(m_factory, &INLEFactory::CreateProperties);
}

NLEComPtr<INLEProperties> PlayerMaterProviderPrivate::NLEGetProperties(IUnknown* object)
{
    const auto host = NLEComPtr<IUnknown>(object).query<INLEPropertyHost>();
    return EngineObject<INLEProperties>(host.get(), &INLEPropertyHost::GetProperties);
}

NLEComPtr<INLESystemConfig> PlayerMaterProviderPrivate::GetSystemConfig()
{
    return EngineObject<INLESystemConfig>(m_factory, &INLEFactory::GetSystemConfig);
}

void PlayerMaterProviderPrivate::OpenCLGpuInit()
{
    // Line numbers in the log are fixed.
    constexpr int reInitLine = 63;
    constexpr int createFailedLine = 67;

    // Only reports: nothing makes the GPU factory. Kept: see docs/compatibility.md.
    BaseLog* log = GetGlobalLogInstance();
    if (m_gpuFactory)
        log->LogInfo(kSourcePath, kOpenCLGpuInitName, reInitLine,
                     "m_pNLEOpenCLGpuFactory->ReInit.");
    else
        log->LogInfo(kSourcePath, kOpenCLGpuInitName, createFailedLine,
                     "m_pNLEOpenCLGpuFactory Create failed.");
}

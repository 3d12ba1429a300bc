// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"

#include "CommonLib/NLEWraper/PlayerMaterProvider_p.h"

PlayerMaterProvider::PlayerMaterProvider(QObject* parent)
    : QObject(parent), m_private(new PlayerMaterProviderPrivate(this))
{
}

NLEComPtr<INLETimeline> PlayerMaterProvider::CreateProjectTimeline()
{
    return m_private->CreateProjectTimeline();
}

NLEComPtr<INLETimeline>
PlayerMaterProvider::CreateProjectTimeline(const tagNLEProjectProfile& profile)
{
    return m_private->CreateProjectTimeline(profile);
}

tagNLEProjectProfile PlayerMaterProvider::GetDefualtProfile()
{
    return m_private->GetDefualtProfile();
}

NLEComPtr<INLETimeline> PlayerMaterProvider::CreateMediaTimeline(const QString& path,
                                                                 bool allowMissing)
{
    return m_private->CreateMediaTimeline(path, allowMissing);
}

NLEComPtr<INLETimeline> PlayerMaterProvider::CreateTimelineFromTemplate(const QString& path)
{
    return m_private->CreateTimelineFromTemplate(path);
}

NLEComPtr<INLETimeline> PlayerMaterProvider::CreateAudioFilterTimeline(const QString& name)
{
    return m_private->CreateAudioFilterTimeline(name);
}

NLEComPtr<INLETimeline> PlayerMaterProvider::CreateColorTimeline(const QColor& color,
                                                                 const QSize& size, float frameRate)
{
    return m_private->CreateColorTimeline(color, size, frameRate);
}

NLEComPtr<INLETimeline> PlayerMaterProvider::CreateTipTextTimeline(const QString& text,
                                                                   const QString& family)
{
    return m_private->CreateTipTextTimeline(text, family);
}

NLEComPtr<INLETimeline> PlayerMaterProvider::CreateVirtualTimeline(int type)
{
    return m_private->CreateVirtualTimeline(type);
}

NLEComPtr<INLETimeline> PlayerMaterProvider::CloneTimeline(NLEComPtr<INLETimeline> timeline,
                                                           bool deep)
{
    return m_private->CloneTimeline(timeline, deep);
}

bool PlayerMaterProvider::GetMediaCombineTimeline(NLEComPtr<INLETimeline> timeline,
                                                  INLETimeline** out)
{
    return m_private->GetMediaCombineTimeline(timeline, out);
}

int PlayerMaterProvider::GetTimelineFrameRate(NLEComPtr<INLETimeline> timeline)
{
    return m_private->GetTimelineFrameRate(timeline);
}

void PlayerMaterProvider::SetTimelineFrameRate(NLEComPtr<INLETimeline> timeline,
                                               int framesPerSecond)
{
    m_private->SetTimelineFrameRate(timeline, framesPerSecond);
}

int PlayerMaterProvider::GetTimelineLength(NLEComPtr<INLETimeline> timeline)
{
    return m_private->GetTimelineLength(timeline);
}

NLEComPtr<INLEVideoFrame> PlayerMaterProvider::CreateVideoFrame(int width, int height)
{
    return m_private->CreateVideoFrame(width, height);
}

NLEComPtr<INLEVideoFrame> PlayerMaterProvider::CreateVideoFrameOpencl(int width, int height)
{
    return m_private->CreateVideoFrameOpencl(width, height);
}

NLEComPtr<INLEAudioFrame> PlayerMaterProvider::CreateAudioFrame(int sampleCount)
{
    return m_private->CreateAudioFrame(sampleCount);
}

NLEComPtr<INLECodec> PlayerMaterProvider::CreateCodecFromFile(const QString& path)
{
    return m_private->CreateCodecFromFile(path);
}

NLEComPtr<INLEMarkBook> PlayerMaterProvider::CreateMarkBook(const QString& path)
{
    return m_private->CreateMarkBook(path);
}

NLEComPtr<INLEDocumentSerialize> PlayerMaterProvider::CreateDocumentSerialize()
{
    return m_private->CreateDocumentSerialize();
}

NLEComPtr<INLEFrameExtractor> PlayerMaterProvider::CreateFrameExtractor()
{
    return m_private->CreateFrameExtractor();
}

NLEComPtr<INLEThumbnailExtractor> PlayerMaterProvider::CreateThumbnailExtractor()
{
    return m_private->CreateThumbnailExtractor();
}

NLEComPtr<INLEWaveExtractor> PlayerMaterProvider::CreateWaveExtractor()
{
    return m_private->CreateWaveExtractor();
}

NLEComPtr<INLESceneSegment> PlayerMaterProvider::CreateSceneSegment()
{
    return m_private->CreateSceneSegment();
}

NLEComPtr<INLEMediaEncoder> PlayerMaterProvider::CreateMediaEncoder()
{
    return m_private->CreateMediaEncoder();
}

NLEComPtr<INLEProperties> PlayerMaterProvider::CreateNLEProperties()
{
    return m_private->CreateNLEProperties();
}

NLEComPtr<INLEProperties> PlayerMaterProvider::NLEGetProperties(IUnknown* object)
{
    return m_private->NLEGetProperties(object);
}

NLEComPtr<INLESystemConfig> PlayerMaterProvider::GetSystemConfig()
{
    return m_private->GetSystemConfig();
}

void PlayerMaterProvider::OpenCLGpuInit()
{
    m_private->OpenCLGpuInit();
}

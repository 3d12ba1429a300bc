// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/NLEWraper/PlayerMaterProvider.h"

/// Holds the engine's factories for PlayerMaterProvider, whose operations it carries out under the
/// same names.
class PlayerMaterProviderPrivate : public QObject
{
    Q_OBJECT

public:
    /// Starts the engine; on failure logs why and stays without factories.
    explicit PlayerMaterProviderPrivate(QObject* parent);
    ~PlayerMaterProviderPrivate() override;

    NLEComPtr<INLETimeline> CreateProjectTimeline();
    NLEComPtr<INLETimeline> CreateProjectTimeline(const tagNLEProjectProfile& profile);
    tagNLEProjectProfile GetDefualtProfile();
    NLEComPtr<INLETimeline> CreateMediaTimeline(const QString& path, bool allowMissing);
    NLEComPtr<INLETimeline> CreateTimelineFromTemplate(const QString& path);
    NLEComPtr<INLETimeline> CreateAudioFilterTimeline(const QString& name);
    NLEComPtr<INLETimeline> CreateColorTimeline(const QColor& color, const QSize& size,
                                                float frameRate);
    NLEComPtr<INLETimeline> CreateTipTextTimeline(const QString& text, const QString& family);
    NLEComPtr<INLETimeline> CreateVirtualTimeline(int type);
    NLEComPtr<INLETimeline> CloneTimeline(const NLEComPtr<INLETimeline>& timeline, bool deep);
    bool GetMediaCombineTimeline(const NLEComPtr<INLETimeline>& timeline, INLETimeline** out);

    int GetTimelineFrameRate(const NLEComPtr<INLETimeline>& timeline);
    void SetTimelineFrameRate(const NLEComPtr<INLETimeline>& timeline, int framesPerSecond);
    int GetTimelineLength(const NLEComPtr<INLETimeline>& timeline);

    NLEComPtr<INLEVideoFrame> CreateVideoFrame(int width, int height);
    NLEComPtr<INLEVideoFrame> CreateVideoFrameOpencl(int width, int height);
    NLEComPtr<INLEAudioFrame> CreateAudioFrame(int sampleCount);
    NLEComPtr<INLECodec> CreateCodecFromFile(const QString& path);
    NLEComPtr<INLEMarkBook> CreateMarkBook(const QString& path);
    NLEComPtr<INLEDocumentSerialize> CreateDocumentSerialize();
    NLEComPtr<INLEFrameExtractor> CreateFrameExtractor();
    NLEComPtr<INLEThumbnailExtractor> CreateThumbnailExtractor();
    NLEComPtr<INLEWaveExtractor> CreateWaveExtractor();
    NLEComPtr<INLESceneSegment> CreateSceneSegment();
    NLEComPtr<INLEMediaEncoder> CreateMediaEncoder();
    NLEComPtr<INLEProperties> CreateNLEProperties();
    NLEComPtr<INLEProperties> NLEGetProperties(IUnknown* object);
    NLEComPtr<INLESystemConfig> GetSystemConfig();
    void OpenCLGpuInit();

private:
    NLEComPtr<INLEVideoFrame> CreateFrame(int width, int height, NLEFrameMemory memory);

    NLEComPtr<INLEFactory> m_scratch;             ///< only during construction
    INLEFactory* m_factory = nullptr;             ///< owned reference
    INLEOpenCLGpuFactory* m_gpuFactory = nullptr; ///< never set in this build
    NLEComPtr<INLETimelineFactory> m_timelineFactory;
};

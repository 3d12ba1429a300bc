// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "CommonLib/CommonLibExport.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEMedia.h"
#include "EngineApi/INLEProperties.h"
#include "EngineApi/INLETimeline.h"

#include <QColor>
#include <QObject>
#include <QSize>
#include <QString>

class PlayerMaterProviderPrivate;

/// Makes every new engine object: what a player and an editor are built from.
///
/// Each result is a new reference that the caller owns; null when the engine is missing or fails.
class COMMONLIB_EXPORT PlayerMaterProvider : public QObject
{
    Q_OBJECT

public:
    /// Starts the engine. NLEWraper makes the one provider of the process.
    explicit PlayerMaterProvider(QObject* parent);

    /// A project with the engine's default profile.
    NLEComPtr<INLETimeline> CreateProjectTimeline();
    NLEComPtr<INLETimeline> CreateProjectTimeline(const tagNLEProjectProfile& profile);
    /// The engine's default profile; all 0 with the rate 0/1 when there is no engine.
    tagNLEProjectProfile GetDefualtProfile();
    /// A clip of a media file. Unless \a allowMissing is set, null for a file that does not exist.
    NLEComPtr<INLETimeline> CreateMediaTimeline(const QString& path, bool allowMissing);
    /// A project from a template folder; null when \a path is no existing folder.
    NLEComPtr<INLETimeline> CreateTimelineFromTemplate(const QString& path);
    NLEComPtr<INLETimeline> CreateAudioFilterTimeline(const QString& name);
    /// A clip of one colour; \a size in pixels, \a frameRate in frames a second.
    NLEComPtr<INLETimeline> CreateColorTimeline(const QColor& color, const QSize& size,
                                                float frameRate);
    /// A text clip in the font family \a family.
    NLEComPtr<INLETimeline> CreateTipTextTimeline(const QString& text, const QString& family);
    /// An empty composite of the engine's timeline type \a type.
    NLEComPtr<INLETimeline> CreateVirtualTimeline(int type);
    /// The engine's clone, with what the node holds when \a deep is set.
    NLEComPtr<INLETimeline> CloneTimeline(NLEComPtr<INLETimeline> timeline, bool deep);
    /// Stores \a timeline itself with a new reference in \a out; nothing is combined. True, unless
    /// \a out is null.
    bool GetMediaCombineTimeline(NLEComPtr<INLETimeline> timeline, INLETimeline** out);

    /// Whole frames a second, cut toward zero; 0 for a null timeline.
    int GetTimelineFrameRate(NLEComPtr<INLETimeline> timeline);
    void SetTimelineFrameRate(NLEComPtr<INLETimeline> timeline, int framesPerSecond);
    /// Length in frames; 0 for a null timeline.
    int GetTimelineLength(NLEComPtr<INLETimeline> timeline);

    /// A frame in system memory; size in pixels.
    NLEComPtr<INLEVideoFrame> CreateVideoFrame(int width, int height);
    /// A frame in OpenCL memory; size in pixels. Null as well where there is no OpenCL device.
    NLEComPtr<INLEVideoFrame> CreateVideoFrameOpencl(int width, int height);
    /// \a sampleCount samples a channel.
    NLEComPtr<INLEAudioFrame> CreateAudioFrame(int sampleCount);
    /// Null unless the file exists.
    NLEComPtr<INLECodec> CreateCodecFromFile(const QString& path);
    /// Null unless the file exists.
    NLEComPtr<INLEMarkBook> CreateMarkBook(const QString& path);
    NLEComPtr<INLEDocumentSerialize> CreateDocumentSerialize();
    NLEComPtr<INLEFrameExtractor> CreateFrameExtractor();
    NLEComPtr<INLEThumbnailExtractor> CreateThumbnailExtractor();
    NLEComPtr<INLEWaveExtractor> CreateWaveExtractor();
    NLEComPtr<INLESceneSegment> CreateSceneSegment();
    NLEComPtr<INLEMediaEncoder> CreateMediaEncoder();
    /// A new, empty property bag.
    NLEComPtr<INLEProperties> CreateNLEProperties();
    /// The bag of any engine object; null when it has none. \a object stays the caller's.
    NLEComPtr<INLEProperties> NLEGetProperties(IUnknown* object);
    NLEComPtr<INLESystemConfig> GetSystemConfig();
    /// Logs the state of the engine's OpenCL rendering and changes nothing.
    void OpenCLGpuInit();

private:
    PlayerMaterProviderPrivate* m_private;
};

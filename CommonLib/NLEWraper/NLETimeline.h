// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "CommonLib/CommonLibExport.h"
#include "EngineApi/INLEMedia.h"
#include "EngineApi/INLEProperties.h"
#include "EngineApi/INLETimeline.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPair>
#include <QPointer>
#include <QSize>
#include <QSizeF>
#include <QString>

class FAudioStreamProcessHelper;
class FPreViewRenderHelper;
class FTimelineBlendingHelper;
class FTimelineTransformHelper;
class FVideoStreamProcessHelper;

/// One node of the engine's timeline tree: a project, a composite, a clip, an effect or a
/// transition, in Qt's types.
///
/// Owns one reference to the node, which may be null. Where the node lacks what a getter asks for,
/// the getter gives its neutral value; setters ignore what the engine answers. Frames are whole
/// frames of the node's own timebase. Not thread-safe.
class COMMONLIB_EXPORT NLETimeline : public QObject
{
    Q_OBJECT

public:
    /// Wraps \a timeline; \a exactType is what its creator knows it to be.
    NLETimeline(NLEComPtr<INLETimeline> timeline, ExactType exactType, QObject* parent);
    ~NLETimeline() override;

    // The order of the virtual operations is fixed.

    /// A wrapper without a parent around the engine's deep clone, with the same exact type; null
    /// when the engine cannot clone. The caller owns it.
    virtual NLETimeline* Clone() const;
    /// Number of all frames that the node has, whatever its range.
    virtual int GetTotalLength() const;
    /// First frame of the range.
    virtual int GetTrimin() const;
    /// Last frame of the range.
    virtual int GetTrimout() const;
    /// "0" when the node has none.
    virtual QString GetAncestralGuid() const;
    /// Frames a second that ranges are counted in, kept to a millionth. The engine refuses rates
    /// that are not above 0.
    virtual void SetRenderFrameRate(float rate);
    /// Empty; for subclasses that know their sound streams.
    virtual QList<int> GetAudioSourceStreamsSampleRate() const;
    /// True when the media has a sound stream.
    virtual bool HaveAudio() const;

protected:
    /// Called after another position than the current one was set, whatever the engine answered.
    virtual void PositionChanged();
    /// Called after another range than the current one was set, whatever the engine answered.
    virtual void TrimRangeChanged();

public:
    /// Replaces the wrapped node and fetches its property bag. Deletes the helpers that were handed
    /// out before, even when the node is the same.
    void SetTimelineBase(NLEComPtr<INLETimeline> timeline);
    /// Copies the node's pointer without adding a reference.
    void GetTimelineBase(INLETimeline** timeline) const;
    /// The node with a new reference.
    NLEComPtr<INLETimeline> GetSrc() const;
    /// The node's property bag, fetched when the node was set.
    NLEComPtr<INLEProperties> GetPropW() const;
    /// As the creator gave it.
    ExactType GetExactType() const;

    /// True when the node plays a media file.
    bool IsSource() const;
    bool IsEffect() const;
    bool IsTransition() const;
    /// True when the media has a picture stream.
    bool HaveVideo() const;
    /// True when the media is a still picture.
    bool IsImage() const;

    /// The composite's clips in their order; empty when the node is no composite.
    QList<NLEComPtr<INLETimeline>> GetChilds() const;
    /// 0 when the node is no composite.
    int GetClipCount() const;
    /// Null at the top.
    NLEComPtr<INLETimeline> GetParentTimeline() const;
    /// The first clip that is marked as current; for a node without clips the node itself when it
    /// is. Null when none is.
    NLEComPtr<INLETimeline> GetCurrentTimeline() const;
    /// The first clip that is marked as current, clips of held composites included; never the node
    /// itself.
    NLEComPtr<INLETimeline> GetCurrentTimelineEx() const;
    /// Places \a clip and adds it to this composite. When this is no composite the clip is placed
    /// all the same. Null is ignored.
    void AddClipSuper(NLETimeline* clip, int position, int level);
    /// Adds \a clip as it stands.
    void AddClipSuper(NLEComPtr<INLETimeline> clip);
    /// Removes \a clip from this composite; nothing happens when it is not there.
    void RemoveClip(NLETimeline* clip);
    void RemoveClip(NLEComPtr<INLETimeline> clip);

    /// As SetPosition(), SetRange() and SetLevel() of \a clip; null is ignored.
    void SetClipPos(NLETimeline* clip, int position);
    void SetClipRange(NLETimeline* clip, int in, int out);
    void SetClipLevel(NLETimeline* clip, int level);
    /// First frame on the parent. Setting what stands already does nothing.
    void SetPosition(int position);
    int GetPosition() const;
    /// Stacking layer: higher levels cover lower ones.
    void SetLevel(int level);
    int GetLevel() const;
    /// How the picture is fitted into a parent of another shape.
    void SetMarginMode(tagNLEMarginMode mode);
    tagNLEMarginMode GetMarginMode() const;

    /// First and last frame that are shown; empty when out < in. Nothing is clamped to the media.
    /// Setting what stands already does nothing.
    void SetRange(int in, int out);
    void SetRange(const QPair<int, int>& range);
    QPair<int, int> GetRange() const;
    /// Sets one end of the range and keeps the other.
    void SetTrimin(int in);
    void SetTrimout(int out);
    /// Length of the range in frames; the greatest int when it is longer.
    int GetPlayLen() const;
    /// Length of the range in whole seconds, cut off; 0 when the node has no frame rate.
    int GetDuration() const;
    /// True when the node plays at \a frame of its parent.
    bool IsFrameIn(int frame) const;
    /// Makes the clip show its frame \a frame for \a count frames: names the frame, switches
    /// freezing on and sets the range to \a count frames from \a frame on, cut at the greatest
    /// int. Nothing happens when \a count is below 1.
    void SetFreezeFrame(int frame, int count);

    /// A clip that is not enabled is neither seen nor heard.
    void SetClipEnable(bool enable);
    bool GetClipEnable() const;
    /// The opposite of SetClipEnable().
    void SetHiden(bool hidden);

    void SetTimelineGuid(const QString& guid); ///< kept with the node
    /// "0" when the node has none; at most 255 characters.
    QString GetTimelineGuid() const;
    void SetAncestralGuid(const QString& guid);
    /// Number of the node in the engine.
    unsigned int GetID() const;
    /// GetID() as a decimal number.
    QString GetGuidString() const;
    void SetFreezeEnable(bool enable);
    bool IsFreezeEnable() const;
    /// Whether the playing speed applies.
    void SetRenderScaleEnable(bool enable);
    bool IsRenderScaleEnable() const;
    /// Playing speed, 1 normal, kept to a hundred-millionth.
    void SetRenderScale(float scale);
    float GetRenderScale() const;
    void SetRenderMode(NLERenderMode mode);
    void SetRenderBackgroundColor(const QColor& color);
    /// Transparent black when none is set.
    QColor GetRenderBackgroundColor() const;

    /// 25 when the engine does not answer.
    float GetRenderFrameRate() const;

    /// Picture and sound format; the engine's default when the node is no project.
    tagNLEProjectProfile GetProjectProfile() const;
    /// In pixels; an invalid size when the node is no project.
    QSize GetProjectResolution() const;
    void SetProjectResolution(int width, int height);
    /// Frames a second; 0 when the node is no project.
    float GetProjectFps() const;
    /// Kept to a millionth.
    void SetProjectFps(float fps);

    /// The media file as the engine names it now; empty without one. At most 511 characters.
    QString GetFilePath() const;
    /// Points the clip at another file without touching its range.
    void SetFilePath(const QString& path);
    /// Points the clip at the same media in another place. False when the engine cannot read the
    /// file; the clip then keeps its media.
    bool Relink(const QString& path);
    /// Size in pixels of the picture that is shown; (0, 0) without one.
    QSizeF GetSourceSize() const;
    /// Frames a second of the media; 25 without media.
    float GetSourceFramerate() const;
    /// Fills in what the media reports: rate, picture size and sound format. The other fields stay.
    void GetSourceAVProfile(tagNLEProjectProfile* profile) const;
    /// Length of the media in frames, and its frames a second. Both stay as they are without media.
    void GetMediaFrameCount(unsigned int& count, float& rate) const;
    /// Null without media.
    NLEComPtr<INLEMediaInfo> GetTimelineMediaInfo() const;
    /// Whether the decoder prefers the GPU, as the engine counts it; 0 without a decoder.
    int GetGPUFirst() const;
    void SetGPUFirst(int preference);

    /// Picture of frame \a frame of the media file, scaled to \a width x \a height pixels without
    /// keeping its shape. With \a cloneFirst it is read from a deep clone, so that the clip in use
    /// is not disturbed; \a finish closes the extractor's file afterwards.
    ///
    /// Null and a warning in the log when there is no picture or the size is empty.
    QImage GetThumbnailFromMediaInfo(int frame, int width, int height, bool cloneFirst,
                                     bool finish) const;
    /// Frame \a frame as it is rendered within \a width x \a height pixels, without the margins.
    /// For the flags see GetThumbnailFromMediaInfo().
    ///
    /// A transparent image of the full size when the frame cannot be rendered; null without a node
    /// and for an empty size.
    QImage GetThumbnailFromStream(int frame, int width, int height, bool cloneFirst,
                                  bool finish) const;

    /// Processing helpers of the node, children of this object. The first call makes each; it lives
    /// until the node is replaced. A host may delete it before; the next call makes another.
    FTimelineBlendingHelper* GetBlendingHelper();
    FTimelineTransformHelper* GetTransformHelper();
    FAudioStreamProcessHelper* GetAudioStreamProcessHelper();
    FVideoStreamProcessHelper* GetVideoStreamProcessHelper();
    FPreViewRenderHelper* GetPreViewRenderHelper();

Q_SIGNALS:
    /// The object is about to end; everything is still there.
    void sigBeforeDelete();

protected:
    /// Further interfaces of the node; null when it lacks them.
    NLEComPtr<INLETimelineComposite> GetTimelineComposite() const;
    NLEComPtr<INLETimelineCompositeEx> GetTimelineCompositeEx() const;
    NLEComPtr<INLETimelineSource> GetTimelineSource() const;
    NLEComPtr<INLETimelineEffect> GetTimelineEffectIF() const;
    NLEComPtr<INLETimelineTransition> GetTimelineTransitionIF() const;
    NLEComPtr<INLEAnimation> GetTimelineAnimation() const;
    NLEComPtr<INLETimelineSourceDecoder> GetSourceDecoder() const;
    NLEComPtr<INLEProjectSetting> GetProjectSetting() const;

    /// True when \a clip is not null.
    bool IsClipExist(NLETimeline* clip) const;

private:
    NLERange Range() const;
    void InnerSetRange(const NLERange& range);
    NLEComPtr<INLETimeline> NodeToRead(bool cloneFirst) const;
    bool HaveStream(NLEStreamType type) const;
    template <typename Helper>
    Helper* MakeOnce(QPointer<Helper>& helper);

    // The reverse of this order is the order of release.
    NLEComPtr<INLETimeline> m_timeline;
    NLEComPtr<INLEProperties> m_properties;
    NLEComPtr<IUnknown> m_spare; ///< never set here
    // Children of this object, null until first asked for and after a host has deleted them.
    QPointer<FTimelineBlendingHelper> m_blendingHelper;
    QPointer<FTimelineTransformHelper> m_transformHelper;
    QPointer<FAudioStreamProcessHelper> m_audioStreamHelper;
    QPointer<FVideoStreamProcessHelper> m_videoStreamHelper;
    QPointer<FPreViewRenderHelper> m_previewHelper;
    ExactType m_exactType;
    QString m_filePath; ///< as it was when the node was wrapped
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"
#include "EngineApi/INLEMedia.h"
#include "EngineApi/INLEProperties.h"
#include "EngineApi/INLETimeline.h"
#include "EngineApi/NLEComPtr.h"

#include <QImage>
#include <QObject>
#include <QSizeF>
#include <QString>

/// One node of the engine's timeline tree: a project, a composite, a clip, an effect or a
/// transition, in Qt's types.
///
/// Owns one reference to the node, which may be null. Where the node lacks what a getter asks for,
/// the getter gives its neutral value. Frames are whole frames of the node's own timebase. Not
/// thread-safe.
class COMMONLIB_EXPORT NLETimeline : public QObject
{
    Q_OBJECT

public:
    /// Wraps \a timeline; \a exactType is what its creator knows it to be.
    NLETimeline(NLEComPtr<INLETimeline> timeline, ExactType exactType, QObject* parent);
    ~NLETimeline() override;

    /// A wrapper without a parent around the engine's deep clone, with the same exact type; null
    /// when the engine cannot clone. The caller owns it.
    virtual NLETimeline* Clone() const;
    /// True when the media has a sound stream.
    virtual bool HaveAudio() const;

    /// Replaces the wrapped node and fetches its property bag.
    void SetTimelineBase(NLEComPtr<INLETimeline> timeline);
    /// Copies the node's pointer without adding a reference.
    void GetTimelineBase(INLETimeline** timeline) const;
    /// The node with a new reference.
    NLEComPtr<INLETimeline> GetSrc() const;
    /// The node's property bag, fetched when the node was set.
    NLEComPtr<INLEProperties> GetPropW() const;
    /// As the creator gave it.
    ExactType GetExactType() const;

    /// True when the media has a picture stream.
    bool HaveVideo() const;
    /// True when the media is a still picture.
    bool IsImage() const;

    /// The media file as the engine names it now; empty without one. At most 511 characters.
    QString GetFilePath() const;
    /// Size in pixels of the picture that is shown; (0, 0) without one.
    QSizeF GetSourceSize() const;
    /// Frames a second of the media; 25 without media.
    float GetSourceFramerate() const;
    /// Length of the media in frames, and its frames a second. Both stay as they are without media.
    void GetMediaFrameCount(unsigned int& count, float& rate) const;
    /// Null without media.
    NLEComPtr<INLEMediaInfo> GetTimelineMediaInfo() const;

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

Q_SIGNALS:
    /// The object is about to end; everything is still there.
    void sigBeforeDelete();

protected:
    /// The node as a player of a media file; null when it is none.
    NLEComPtr<INLETimelineSource> GetTimelineSource() const;

private:
    NLEComPtr<INLETimeline> NodeToRead(bool cloneFirst) const;
    bool HaveStream(NLEStreamType type) const;

    // The reverse of this order is the order of release.
    NLEComPtr<INLETimeline> m_timeline;
    NLEComPtr<INLEProperties> m_properties;
    NLEComPtr<IUnknown> m_spare; ///< never set here
    ExactType m_exactType;
    QString m_filePath; ///< as it was when the node was wrapped
};

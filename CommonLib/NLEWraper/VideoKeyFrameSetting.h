// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "CommonLib/CommonLibExport.h"
#include "CommonLib/NLEWraper/VideoKeyFrameParam.h"
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLETimeline.h"

#include <QList>

/// The key frames of one clip, in the order of their times.
///
/// Owns a reference to the clip, which may be null, and keeps nothing else: each call asks the clip
/// again. A clip that has no key-frame list behaves as one with an empty list. Copies edit the same
/// clip. Not thread-safe.
class COMMONLIB_EXPORT VideoKeyFrameSetting
{
public:
    explicit VideoKeyFrameSetting(NLEComPtr<INLETimeline> timeline); ///< edits that clip
    VideoKeyFrameSetting(const VideoKeyFrameSetting& other);
    VideoKeyFrameSetting& operator=(const VideoKeyFrameSetting& other);
    ~VideoKeyFrameSetting();

    /// Edits another clip from now on.
    void SetTimeline(NLEComPtr<INLETimeline> timeline);

    /// Adds a key frame; \a index receives its place. False when the engine refuses it.
    bool AddKeyFrame(const VideoKeyFrameParam& param, int& index);
    /// The new key frame's place; -1 when the engine refuses it.
    int AddKeyFrame(const VideoKeyFrameParam& param);
    /// False when \a index names no key frame.
    bool DeleteKeyFrame(int index);
    void ClearAllKeyFrame();      ///< of the clip
    int GetKeyFrameCount() const; ///< 0 when the clip has none

    /// All that can be read.
    QList<VideoKeyFrameParam> GetAllKeyFrameParams() const;
    /// False when \a index names no key frame or it cannot be read; \a param then stays as it is.
    bool GetKeyFrameParam(int index, VideoKeyFrameParam& param) const;
    /// What the engine makes of the key frames at \a time of the axis; the presets when it gives
    /// nothing.
    VideoKeyFrameParam GetKeyFrameParam(double time) const;
    /// Ignored when \a index names no key frame.
    void SetKeyFrameParam(int index, const VideoKeyFrameParam& param);
    /// The first key frame that is equal to \a param; -1 when there is none.
    int GetKeyFrameIndex(const VideoKeyFrameParam& param) const;
    /// The engine's search for the key frame at frame \a frame of a clip of \a frameCount frames;
    /// false when there is none.
    bool GetKeyFrameIndex(int frame, int frameCount, int& index) const;

    // One field of a key frame. The getters give its preset, the setters do nothing, when \a index
    // names no key frame.
    QPointF GetPosition(int index) const; ///< offset from the centre
    void SetPosition(int index, QPointF position);
    QSizeF GetScale(int index) const; ///< 1 unchanged
    void SetScale(int index, QSizeF scale);
    double GetRotateAngle(int index) const; ///< in degrees
    void SetRotateAngle(int index, double angle);
    double GetOpacity(int index) const; ///< 0 transparent to 1 opaque
    void SetOpacity(int index, double opacity);

    /// Whether key frames follow and precede \a index. An index out of range is not refused here:
    /// only 0 has none before it, only the last one and what lies beyond has none after it. In an
    /// empty list none has one before it, and from -1 on none has one after it.
    bool HasNext(int index) const;
    bool HasPrevious(int index) const;

    /// Whether the key frames apply; false when the clip cannot tell.
    bool GetKeyFrameStatus() const;
    /// True when the engine took it.
    bool SetKeyFrameStatus(bool enabled);

private:
    NLEComPtr<INLEKeyFrameList> List() const;
    /// The list when it has a key frame \a index, else null.
    NLEComPtr<INLEKeyFrameList> ListWith(int index) const;
    VideoKeyFrameParam ParamOrPreset(int index) const;
    template <typename Field>
    void SetField(int index, Field VideoKeyFrameParam::*field, const Field& value);

    NLEComPtr<INLETimeline> m_timeline;
};

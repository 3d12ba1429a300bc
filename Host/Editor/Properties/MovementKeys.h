// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/NLEWraper/VideoKeyFrameSetting.h"
#include "Host/Editor/Properties/KeyFrames.h"

/// The key frames of a clip's picture: place, scale, rotation and opacity together, linear between
/// them.
class MovementKeys : public KeyFrames
{
public:
    explicit MovementKeys(const NLEComPtr<INLETimeline>& clip);

    /// What applies at \a frame.
    VideoKeyFrameParam ValueAt(int frame) const;
    /// Sets a key frame at \a frame, in place of one that is there.
    PropertyChange Put(int frame, VideoKeyFrameParam value) const;

    PropertyChange Toggle(int frame) const override;
    std::optional<int> Interpolation(int frame) const override;
    PropertyChange Interpolate(int frame, int interpolation) const override;
    bool HasInterpolations() const override { return false; }

protected:
    QVector<double> Times() const override;

private:
    using Params = QList<VideoKeyFrameParam>;
    /// All but the one at \a frame.
    Params Others(int frame) const;
    PropertyChange ChangeTo(const Params& params) const;
    bool Write(const Params& params) const;

    mutable VideoKeyFrameSetting m_setting;
};

/// The numbers of a clip's movement as fields: what applies at \a playHead, a frame of the project.
/// A change sets a key frame there.
QVector<PropertyField> MovementFields(const std::shared_ptr<MovementKeys>& keys,
                                      const std::function<int()>& playHead);

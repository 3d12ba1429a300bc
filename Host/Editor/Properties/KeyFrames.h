// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLETimeline.h"
#include "Host/Editor/Properties/PropertyField.h"

#include <QVector>

#include <optional>

/// Key frames of a clip, at frames of the project: the engine's times count along the clip.
///
/// The functions that change something give the change and make none.
class KeyFrames
{
public:
    explicit KeyFrames(NLEComPtr<INLETimeline> clip);
    virtual ~KeyFrames() = default;

    bool IsAnimated() const { return !Times().isEmpty(); }
    /// Whether the clip plays at \a frame; key frames are set there only.
    bool IsWithin(int frame) const;
    /// The frame of the clip that is nearest to \a frame.
    int Nearest(int frame) const;
    /// Whether a key frame stands at \a frame, and the frames of the next ones to both sides.
    bool IsAt(int frame) const;
    std::optional<int> Before(int frame) const;
    std::optional<int> Behind(int frame) const;

    /// Removes the key frame at \a frame, or sets one with the value that applies there.
    virtual PropertyChange Toggle(int frame) const = 0;
    /// The NLEParameterInterpolation that applies at \a frame; null before the first key frame.
    virtual std::optional<int> Interpolation(int frame) const = 0;
    /// Changes it; no function where all are linear.
    virtual PropertyChange Interpolate(int frame, int interpolation) const = 0;
    /// Whether there is a choice of them.
    virtual bool HasInterpolations() const = 0;

protected:
    KeyFrames(const KeyFrames&) = default;

    /// All of them, rising.
    virtual QVector<double> Times() const = 0;
    double Time(int frame) const;
    int Frame(double time) const;

private:
    int Begin() const;
    int Length() const;

    NLEComPtr<INLETimeline> m_clip;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLETimeline.h"
#include "Host/Editor/Properties/PropertyField.h"

#include <QVector>

#include <optional>
#include <string>

/// The key frames of one parameter of a node, at frames of the project.
///
/// Times of the engine count along the clip; \a clip is the node itself, or the clip that carries
/// it. The functions that change something give the change and make none.
class ParameterKeys
{
public:
    using Key = NLEParameterKeyFrame;

    ParameterKeys(NLEComPtr<INLEParameters> parameters, const QString& name,
                  NLEComPtr<INLETimeline> clip);

    QVector<Key> All() const;
    bool IsAnimated() const;
    /// Whether the clip plays at \a frame; key frames are set there only.
    bool IsWithin(int frame) const;
    /// The frame of the clip that is nearest to \a frame.
    int Nearest(int frame) const;
    /// The key frame that stands at \a frame, the last one that is not behind it, and the frames
    /// of the next ones to both sides.
    std::optional<Key> At(int frame) const;
    std::optional<Key> InForce(int frame) const;
    std::optional<int> Before(int frame) const;
    std::optional<int> Behind(int frame) const;
    /// The value that applies at \a frame.
    double ValueAt(int frame) const;

    /// Sets \a value at \a frame; a key frame that is there keeps its interpolation.
    PropertyChange Put(int frame, double value) const;
    /// Removes the key frame at \a frame, or sets one with the value that applies there.
    PropertyChange Toggle(int frame) const;
    /// \a interpolation, an NLEParameterInterpolation, of the key frame InForce() \a frame.
    PropertyChange Interpolate(int frame, int interpolation) const;
    /// Removes all of them; the value is \a value from then on.
    PropertyChange Clear(double value) const;

private:
    /// All that one parameter has.
    struct State
    {
        double number = 0;
        QVector<Key> keys;
    };
    State Read() const;
    bool Write(const State& state) const;
    PropertyChange ChangeTo(const State& state) const;
    double Time(int frame) const;
    int Frame(double time) const;
    int Begin() const;
    int Length() const;

    NLEComPtr<INLEParameters> m_parameters;
    std::wstring m_name;
    NLEComPtr<INLETimeline> m_clip;
};

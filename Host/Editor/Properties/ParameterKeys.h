// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Properties/KeyFrames.h"

#include <QVector>

#include <optional>
#include <string>

/// The key frames of one parameter of a node.
class ParameterKeys : public KeyFrames
{
public:
    using Key = NLEParameterKeyFrame;

    /// \a clip is the node of \a parameters itself, or the clip that carries it.
    ParameterKeys(NLEComPtr<INLEParameters> parameters, const QString& name,
                  NLEComPtr<INLETimeline> clip);

    QVector<Key> All() const;
    /// The value that applies at \a frame.
    double ValueAt(int frame) const;

    /// Sets \a value at \a frame; a key frame that is there keeps its interpolation.
    PropertyChange Put(int frame, double value) const;
    PropertyChange Toggle(int frame) const override;
    std::optional<int> Interpolation(int frame) const override;
    PropertyChange Interpolate(int frame, int interpolation) const override;
    bool HasInterpolations() const override { return true; }
    /// Removes all of them; the value is \a value from then on.
    PropertyChange Clear(double value) const;

protected:
    QVector<double> Times() const override;

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
    /// The key frame at \a frame, and the last one that is not behind it.
    std::optional<Key> At(int frame) const;
    std::optional<Key> Ruling(int frame) const;

    NLEComPtr<INLEParameters> m_parameters;
    std::wstring m_name;
};

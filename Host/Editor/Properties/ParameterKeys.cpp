// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/ParameterKeys.h"

#include <algorithm>
#include <utility>

ParameterKeys::ParameterKeys(NLEComPtr<INLEParameters> parameters, const QString& name,
                             NLEComPtr<INLETimeline> clip)
    : KeyFrames(std::move(clip)), m_parameters(std::move(parameters)), m_name(name.toStdWString())
{
}

QVector<ParameterKeys::Key> ParameterKeys::All() const
{
    int count = 0;
    m_parameters->GetKeyFrameCount(m_name.c_str(), &count);
    QVector<Key> keys;
    for (int index = 0; index < count; ++index) {
        Key key = {};
        if (m_parameters->GetKeyFrame(m_name.c_str(), index, &key) == S_OK)
            keys.append(key);
    }
    return keys;
}

QVector<double> ParameterKeys::Times() const
{
    QVector<double> times;
    for (const Key& key : All())
        times.append(key.time);
    return times;
}

std::optional<ParameterKeys::Key> ParameterKeys::Ruling(int frame) const
{
    std::optional<Key> found;
    for (const Key& key : All()) {
        if (Frame(key.time) <= frame)
            found = key;
    }
    return found;
}

std::optional<ParameterKeys::Key> ParameterKeys::At(int frame) const
{
    const std::optional<Key> key = Ruling(frame);
    return key && Frame(key->time) == frame ? key : std::nullopt;
}

std::optional<int> ParameterKeys::Interpolation(int frame) const
{
    const std::optional<Key> key = Ruling(frame);
    return key ? std::optional<int>(key->interpolation) : std::nullopt;
}

double ParameterKeys::ValueAt(int frame) const
{
    double value = 0;
    m_parameters->GetNumberAt(m_name.c_str(), Time(frame), &value);
    return value;
}

ParameterKeys::State ParameterKeys::Read() const
{
    State state;
    m_parameters->GetNumber(m_name.c_str(), &state.number);
    state.keys = All();
    return state;
}

bool ParameterKeys::Write(const State& state) const
{
    int count = 0;
    m_parameters->GetKeyFrameCount(m_name.c_str(), &count);
    while (count > 0)
        m_parameters->DeleteKeyFrame(m_name.c_str(), --count);
    bool isDone = m_parameters->SetNumber(m_name.c_str(), state.number) == S_OK;
    for (const Key& key : state.keys)
        isDone &= SUCCEEDED(m_parameters->PutKeyFrame(m_name.c_str(), &key, nullptr));
    return isDone;
}

PropertyChange ParameterKeys::ChangeTo(const State& state) const
{
    return {[keys = *this, state] { return keys.Write(state); },
            [keys = *this, before = Read()] { return keys.Write(before); }};
}

PropertyChange ParameterKeys::Put(int frame, double value) const
{
    State state = Read();
    const std::optional<Key> there = At(frame);
    const std::optional<Key> like = Ruling(frame);
    const int interpolation = like ? like->interpolation : int(NLEInterpolation_Linear);
    Key key = {Time(frame), value, interpolation, 0};
    if (there)
        key.time = there->time;
    const auto isBefore = [](const Key& a, const Key& b) { return a.time < b.time; };
    const auto place = std::lower_bound(state.keys.begin(), state.keys.end(), key, isBefore);
    if (there)
        *place = key;
    else
        state.keys.insert(place, key);
    return ChangeTo(state);
}

PropertyChange ParameterKeys::Toggle(int frame) const
{
    const std::optional<Key> there = At(frame);
    if (!there)
        return Put(frame, ValueAt(frame));
    State state = Read();
    // The last one leaves its value behind.
    if (state.keys.size() == 1)
        return Clear(there->value);
    const auto isThere = [&](const Key& key) { return key.time == there->time; };
    state.keys.erase(std::remove_if(state.keys.begin(), state.keys.end(), isThere),
                     state.keys.end());
    return ChangeTo(state);
}

PropertyChange ParameterKeys::Interpolate(int frame, int interpolation) const
{
    State state = Read();
    const std::optional<Key> chosen = Ruling(frame);
    for (Key& key : state.keys) {
        if (chosen && key.time == chosen->time)
            key.interpolation = interpolation;
    }
    return ChangeTo(state);
}

PropertyChange ParameterKeys::Clear(double value) const
{
    State state;
    state.number = value;
    return ChangeTo(state);
}

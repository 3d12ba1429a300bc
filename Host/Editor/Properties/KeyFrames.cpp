// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/KeyFrames.h"

#include "CommonLib/NLEWraper/VideoKeyFrame.h"

#include <algorithm>
#include <limits>
#include <utility>

KeyFrames::KeyFrames(NLEComPtr<INLETimeline> clip) : m_clip(std::move(clip)) {}

int KeyFrames::Begin() const
{
    int position = 0;
    m_clip->GetPosition(&position);
    return position;
}

int KeyFrames::Length() const
{
    NLERange range = {};
    m_clip->GetRange(&range);
    return int(std::min<std::int64_t>(NLERangeLength(range), std::numeric_limits<int>::max()));
}

double KeyFrames::Time(int frame) const
{
    return CalculateVideoKeyFramePosition(frame - Begin(), Length());
}

int KeyFrames::Frame(double time) const
{
    return Begin() + CalculateVideoKeyFrameIndex(time, Length());
}

bool KeyFrames::IsWithin(int frame) const
{
    return frame >= Begin() && frame - Begin() < Length();
}

int KeyFrames::Nearest(int frame) const
{
    return std::clamp(frame, Begin(), Begin() + std::max(Length() - 1, 0));
}

bool KeyFrames::IsAt(int frame) const
{
    const QVector<double> times = Times();
    return std::any_of(times.begin(), times.end(),
                       [&](double time) { return Frame(time) == frame; });
}

std::optional<int> KeyFrames::Before(int frame) const
{
    std::optional<int> found;
    for (const double time : Times()) {
        if (Frame(time) < frame)
            found = Frame(time);
    }
    return found;
}

std::optional<int> KeyFrames::Behind(int frame) const
{
    for (const double time : Times()) {
        if (Frame(time) > frame)
            return Frame(time);
    }
    return std::nullopt;
}

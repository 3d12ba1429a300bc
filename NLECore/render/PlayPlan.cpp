// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/PlayPlan.h"

#include "NLECore/media/SoundQueue.h"
#include "NLECore/scene/FrameMath.h"

#include <algorithm>
#include <cmath>

namespace nle {

namespace {

/// Sound is stretched at rates from the one to the other.
constexpr double kSlowestSound = 0.5;
constexpr double kFastestSound = 2;
/// What a product of frames may lack to be a whole one.
constexpr double kAlmost = 1e-6;

} // namespace

PlayPlan::PlayPlan(const Terms& terms)
    : m_terms(terms)
    , m_first(MaterialOf(terms.range.in, terms.frameRate))
    , m_end(MaterialOf(std::int64_t(terms.range.out) + 1, terms.frameRate))
{
    std::int64_t& start = m_terms.material;
    if (start < m_first || start >= m_end)
        start = IsBackwards() ? m_end - 1 : m_first;
    m_startFrame = FrameOf(start, m_terms.frameRate);
}

std::int64_t PlayPlan::MaterialOf(std::int64_t frame, const NLERational& rate)
{
    return SampleOfFrame(frame, rate, SoundQueue::kRate);
}

int PlayPlan::FrameOf(std::int64_t material, const NLERational& rate)
{
    int frame = ClampToInt(double(material) * ToDouble(rate) / SoundQueue::kRate);
    while (MaterialOf(std::int64_t(frame) + 1, rate) <= material)
        ++frame;
    while (frame > 0 && MaterialOf(frame, rate) > material)
        --frame;
    return frame;
}

std::int64_t PlayPlan::ToEnd() const
{
    return IsBackwards() ? m_terms.material + 1 - m_first : m_end - m_terms.material;
}

std::int64_t PlayPlan::Length() const
{
    if (m_terms.isLoop)
        return kNever;
    return std::int64_t(std::ceil(double(ToEnd()) / std::abs(m_terms.rate)));
}

std::int64_t PlayPlan::Wrapped(std::int64_t travelled) const
{
    const std::int64_t length = m_end - m_first;
    const std::int64_t from = m_terms.material - m_first;
    if (!m_terms.isLoop)
        travelled = std::min(travelled, ToEnd() - 1);
    const std::int64_t place = (IsBackwards() ? from - travelled : from + travelled) % length;
    return m_first + (place < 0 ? place + length : place);
}

std::int64_t PlayPlan::MaterialAt(std::int64_t played) const
{
    const double travelled = double(std::max<std::int64_t>(played, 0)) * std::abs(m_terms.rate);
    return Wrapped(std::int64_t(travelled + kAlmost));
}

int PlayPlan::FrameAt(std::int64_t played) const
{
    return FrameOf(MaterialAt(played), m_terms.frameRate);
}

PlayPlan::Due PlayPlan::Picture(std::int64_t index) const
{
    const double speed = std::abs(m_terms.rate);
    const auto offset = std::int64_t(std::floor(double(index) * std::max(speed, 1.0) + kAlmost));
    if (offset == 0)
        return {m_startFrame, 0};
    const std::int64_t count = std::max<std::int64_t>(NLERangeLength(m_terms.range), 1);
    const int first = m_terms.range.in;
    const std::int64_t place = m_startFrame - first + (IsBackwards() ? -offset : offset);
    const std::int64_t lap = place >= 0 ? place / count : -((count - 1 - place) / count);
    const auto frame = int(first + place - lap * count);
    // Backwards a frame begins where it ends.
    const std::int64_t edge = IsBackwards()
                                  ? MaterialOf(std::int64_t(frame) + 1, m_terms.frameRate) - 1
                                  : MaterialOf(frame, m_terms.frameRate);
    const std::int64_t distance = std::abs(edge + lap * (m_end - m_first) - m_terms.material);
    return {frame, std::int64_t(std::ceil(double(distance) / speed - kAlmost))};
}

std::int64_t PlayPlan::PictureAt(std::int64_t played) const
{
    const double perPicture =
        SoundQueue::kRate / ToDouble(m_terms.frameRate) / std::min(std::abs(m_terms.rate), 1.0);
    auto index = std::max<std::int64_t>(0, std::int64_t(double(played) / perPicture) - 1);
    while (Picture(index + 1).played <= played)
        ++index;
    return index;
}

bool PlayPlan::IsSounding() const
{
    return m_terms.rate >= kSlowestSound && m_terms.rate <= kFastestSound;
}

PlayPlan::Stretch PlayPlan::SoundAt(std::int64_t travelled) const
{
    if (!m_terms.isLoop && travelled >= ToEnd())
        return {m_end, 0};
    const std::int64_t material = Wrapped(travelled);
    return {material, m_end - material};
}

} // namespace nle

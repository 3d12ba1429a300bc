// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/scene/KeyFrameList.h"

namespace nle {

namespace {

/// Records that are kept together: few enough to be moved in well below a microsecond.
constexpr size_t kMostInChunk = 256;

/// Weighted sum that neither overflows nor leaves a value that both sides share.
double Mix(double a, double b, double share)
{
    return a == b ? a : a * (1 - share) + b * share;
}

auto NotBefore(double time)
{
    return [time](const NLEKeyFrameRecord& record) { return record.time >= time; };
}

} // namespace

NLEKeyFrameRecord Interpolate(const NLEKeyFrameRecord* before, const NLEKeyFrameRecord* after,
                              double time)
{
    NLEKeyFrameRecord result = before ? *before : after ? *after : kPlainKeyFrame;
    result.time = time;
    if (!before || !after)
        return result;
    // Halves: the distance of two times may be more than a number holds.
    const double share = (time / 2 - before->time / 2) / (after->time / 2 - before->time / 2);
    result.angle = Mix(before->angle, after->angle, share);
    result.positionX = Mix(before->positionX, after->positionX, share);
    result.positionY = Mix(before->positionY, after->positionY, share);
    result.scaleWidth = Mix(before->scaleWidth, after->scaleWidth, share);
    result.scaleHeight = Mix(before->scaleHeight, after->scaleHeight, share);
    result.opacity = Mix(before->opacity, after->opacity, share);
    return result;
}

const NLEKeyFrameRecord& KeyFrameList::At(int index) const
{
    const Place place = PlaceOf(index);
    return m_chunks[place.chunk][place.offset];
}

KeyFrameList::Place KeyFrameList::PlaceOf(int index) const
{
    Place place = {0, size_t(index)};
    while (place.offset >= m_chunks[place.chunk].size())
        place.offset -= m_chunks[place.chunk++].size();
    return place;
}

int KeyFrameList::IndexOf(const Place& place) const
{
    size_t index = place.offset;
    for (size_t chunk = 0; chunk < place.chunk; ++chunk)
        index += m_chunks[chunk].size();
    return int(index);
}

int KeyFrameList::Put(const NLEKeyFrameRecord& record)
{
    Place place = Find(NotBefore(record.time));
    const int index = IndexOf(place);
    if (place.chunk < m_chunks.size() && m_chunks[place.chunk][place.offset].time == record.time) {
        m_chunks[place.chunk][place.offset] = record;
        return index;
    }
    if (m_chunks.empty()) {
        m_chunks.emplace_back(1, record);
        ++m_count;
        return index;
    }
    if (place.chunk == m_chunks.size())
        place = {m_chunks.size() - 1, m_chunks.back().size()};
    Chunk& chunk = m_chunks[place.chunk];
    chunk.insert(chunk.begin() + std::ptrdiff_t(place.offset), record);
    ++m_count;
    if (chunk.size() > kMostInChunk) {
        const auto half = std::ptrdiff_t(chunk.size() / 2);
        m_chunks.insert(m_chunks.begin() + std::ptrdiff_t(place.chunk) + 1,
                        Chunk(chunk.begin() + half, chunk.end()));
        Chunk& lower = m_chunks[place.chunk];
        lower.erase(lower.begin() + half, lower.end());
    }
    return index;
}

void KeyFrameList::Erase(int index)
{
    const Place place = PlaceOf(index);
    Chunk& chunk = m_chunks[place.chunk];
    chunk.erase(chunk.begin() + std::ptrdiff_t(place.offset));
    if (chunk.empty())
        m_chunks.erase(m_chunks.begin() + std::ptrdiff_t(place.chunk));
    --m_count;
}

void KeyFrameList::Clear()
{
    m_chunks.clear();
    m_count = 0;
}

NLEKeyFrameRecord KeyFrameList::ValueAt(double time) const
{
    const int after = First(NotBefore(time));
    return Interpolate(after > 0 ? &At(after - 1) : nullptr, after < m_count ? &At(after) : nullptr,
                       time);
}

std::vector<NLEKeyFrameRecord> KeyFrameList::All() const
{
    std::vector<NLEKeyFrameRecord> all;
    all.reserve(size_t(m_count));
    for (const Chunk& chunk : m_chunks)
        all.insert(all.end(), chunk.begin(), chunk.end());
    return all;
}

double MapTime(double time, const KeyFrameAxis& from, const KeyFrameAxis& to)
{
    constexpr double limit = std::numeric_limits<double>::max();
    double frame = from.FrameOf(time);
    // A key frame on a frame stays exactly there, however often the range changes.
    const double nearest = std::round(frame);
    if (std::abs(frame - nearest) < 1e-6)
        frame = nearest;
    return std::clamp(to.TimeOf(frame), -limit, limit);
}

NLEKeyFrameRecord KeyFrameCurve::AtFrame(double frame) const
{
    const double time = axis.TimeOf(frame);
    const auto after =
        std::partition_point(frames.begin(), frames.end(), [time](const NLEKeyFrameRecord& record) {
            return record.time < time;
        });
    return Interpolate(after != frames.begin() ? &*(after - 1) : nullptr,
                       after != frames.end() ? &*after : nullptr, time);
}

} // namespace nle

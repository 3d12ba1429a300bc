// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/NLETypes.h"
#include "NLECore/scene/Fields.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace nle {

template <>
inline constexpr auto kFields<NLEKeyFrameRecord> =
    std::tuple(Field{&NLEKeyFrameRecord::time, "key-frames", Shows::kYes},
               Field{&NLEKeyFrameRecord::angle, "key-frames", Shows::kYes},
               Field{&NLEKeyFrameRecord::positionX, "key-frames", Shows::kYes},
               Field{&NLEKeyFrameRecord::positionY, "key-frames", Shows::kYes},
               Field{&NLEKeyFrameRecord::scaleWidth, "key-frames", Shows::kYes},
               Field{&NLEKeyFrameRecord::scaleHeight, "key-frames", Shows::kYes},
               Field{&NLEKeyFrameRecord::opacity, "key-frames", Shows::kYes},
               Field{&NLEKeyFrameRecord::interpolation, "key-frames", Shows::kYes});
static_assert(kListsAllFields<NLEKeyFrameRecord>);

/// A key frame that changes nothing.
constexpr NLEKeyFrameRecord kPlainKeyFrame = {0, 0, 0, 0, 1, 1, 1, 1};

/// Values at \a time between two neighbours, linear. With one of them null the other holds; with
/// both null nothing changes.
NLEKeyFrameRecord Interpolate(const NLEKeyFrameRecord* before, const NLEKeyFrameRecord* after,
                              double time);

/// Key frames sorted by time, no two at one time, for editing: adding and removing move a few
/// hundred records at most, however long the list is.
class KeyFrameList
{
public:
    int Count() const { return m_count; }
    /// \a index is from 0 to Count() - 1.
    const NLEKeyFrameRecord& At(int index) const;
    /// Index of the first key frame for which \a isReached holds, which must hold for all after it;
    /// Count() when there is none.
    template <typename Predicate>
    int First(Predicate isReached) const
    {
        return IndexOf(Find(isReached));
    }
    /// Adds a key frame, or replaces the one at the same time. Gives its index.
    int Put(const NLEKeyFrameRecord& record);
    void Erase(int index);
    void Clear();
    NLEKeyFrameRecord ValueAt(double time) const;
    std::vector<NLEKeyFrameRecord> All() const;
    /// Replaces each time by \a map of it, which must keep their order.
    template <typename Map>
    void MapTimes(Map map)
    {
        for (Chunk& chunk : m_chunks) {
            for (NLEKeyFrameRecord& record : chunk)
                record.time = map(record.time);
        }
    }

private:
    using Chunk = std::vector<NLEKeyFrameRecord>;
    struct Place
    {
        size_t chunk;
        size_t offset;
    };

    template <typename Predicate>
    Place Find(Predicate isReached) const
    {
        const auto misses = [&](const NLEKeyFrameRecord& record) { return !isReached(record); };
        const auto chunk =
            std::partition_point(m_chunks.begin(), m_chunks.end(),
                                 [&](const Chunk& candidate) { return misses(candidate.back()); });
        if (chunk == m_chunks.end())
            return {m_chunks.size(), 0};
        const auto record = std::partition_point(chunk->begin(), chunk->end(), misses);
        return {size_t(chunk - m_chunks.begin()), size_t(record - chunk->begin())};
    }
    Place PlaceOf(int index) const;
    int IndexOf(const Place& place) const;

    std::vector<Chunk> m_chunks; ///< none is empty
    int m_count = 0;
};

/// Frames of a clip, counted as its trim range is, that the times 0 to 1 span. Not whole ones: they
/// follow changes of speed and rate exactly.
struct KeyFrameAxis
{
    double start = 0;
    double length = 0; ///< 0: none yet

    static KeyFrameAxis Of(const NLERange& range)
    {
        return {double(range.in), double(NLERangeLength(range))};
    }
    double FrameOf(double time) const { return start + time * LengthOrOne(); }
    double TimeOf(double frame) const { return (frame - start) / LengthOrOne(); }

    friend bool operator==(const KeyFrameAxis& a, const KeyFrameAxis& b)
    {
        return a.start == b.start && a.length == b.length;
    }

private:
    double LengthOrOne() const { return length > 0 ? length : 1; }
};

/// The time on \a to of what is at \a time on \a from.
double MapTime(double time, const KeyFrameAxis& from, const KeyFrameAxis& to);

/// What the key frames of a clip do to its picture, immutable, for rendering.
struct KeyFrameCurve
{
    KeyFrameAxis axis;
    std::vector<NLEKeyFrameRecord> frames; ///< sorted by time

    /// Values at a frame of the clip, counted as its trim range is.
    NLEKeyFrameRecord AtFrame(double frame) const;

    /// Gives every number that decides about pictures to \a take, in order: curves that move a clip
    /// alike give the same ones, whatever their axis.
    template <typename Take>
    void ForEachNumber(Take take) const
    {
        constexpr double finest = 1e6; // parts of a frame that are told apart
        take(double(frames.size()));
        for (NLEKeyFrameRecord f : frames) {
            f.time = std::round(axis.FrameOf(f.time) * finest);
            ForEachField<NLEKeyFrameRecord>(
                [&](const auto& field) { take(double(f.*field.member)); });
        }
    }
};

} // namespace nle

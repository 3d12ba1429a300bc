// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/TimelineNode.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <set>
#include <unordered_map>
#include <vector>

namespace nle {

/// Frames of a composite.
struct ClipSpan
{
    std::int64_t begin = 0;
    std::int64_t end = 0; ///< exclusive

    static ClipSpan Of(const TimelineNode& node)
    {
        return {node.Position(), node.Position() + NLERangeLength(node.Range())};
    }
    /// Below 1 for nothing.
    std::int64_t Length() const { return end - begin; }
    /// Whether it plays on both sides of \a frame.
    bool Spans(std::int64_t frame) const { return begin < frame && frame < end; }
    /// Begins and ends before \a other, so that one can go over into the other.
    bool GoesBefore(const ClipSpan& other) const { return begin < other.begin && end < other.end; }
    ClipSpan Common(const ClipSpan& other) const
    {
        return {std::max(begin, other.begin), std::min(end, other.end)};
    }
};
inline bool operator==(const ClipSpan& a, const ClipSpan& b)
{
    return a.begin == b.begin && a.end == b.end;
}

/// Frames to which edges snap, with the number of edges that are there.
using SnapPoints = std::map<std::int64_t, int>;

/// Where the clips and transitions of a composite stand, by level and frame. All questions cost the
/// logarithm of their number.
///
/// Of the clips of a level each that begins later is taken to end later: one that covers another
/// whole one, which no edit makes, may be passed over.
class EditIndex
{
public:
    using Nodes = std::vector<TimelineNode*>;
    enum class Kind
    {
        Clip,
        Transition
    };

    /// Takes a node in, or its new place.
    void Put(TimelineNode& node);
    void Remove(TimelineNode& node);
    bool Has(const TimelineNode& node) const { return m_entries.count(&node) > 0; }

    /// The clip that begins last before \a frame; null when there is none.
    TimelineNode* Before(int level, std::int64_t frame) const;
    /// The clip that begins first at \a frame or later.
    TimelineNode* From(int level, std::int64_t frame) const;
    /// The clip that plays at \a frame, of two the one that begins later.
    TimelineNode* At(int level, std::int64_t frame) const;
    /// Those that play within \a span, in order.
    Nodes Within(Kind kind, int level, const ClipSpan& span) const;
    /// The clips that begin at \a frame or later, in order.
    Nodes AllFrom(int level, std::int64_t frame) const;
    /// Levels that clips have stood on.
    std::vector<int> Levels() const;
    const SnapPoints& Points() const { return m_points; }

private:
    struct Key
    {
        std::int64_t begin;
        std::uint32_t id; ///< tells nodes of one frame apart
        TimelineNode* node;

        bool operator<(const Key& other) const
        {
            return begin != other.begin ? begin < other.begin : id < other.id;
        }
    };
    using Lane = std::set<Key>;
    struct Entry
    {
        int level;
        ClipSpan span;
    };

    static Key First(std::int64_t frame) { return {frame, 0, nullptr}; }
    const Lane& LaneOf(Kind kind, int level) const;
    void Count(const ClipSpan& span, int step);

    std::map<int, Lane> m_clips;
    std::map<int, Lane> m_transitions;
    std::unordered_map<const TimelineNode*, Entry> m_entries;
    SnapPoints m_points;
};

} // namespace nle

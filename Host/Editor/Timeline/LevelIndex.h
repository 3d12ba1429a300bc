// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <unordered_set>
#include <vector>

struct ClipRow;

/// The clips of a level by frame. Finding is a matter of the logarithm of their number, a change of
/// any number of clips at once costs one walk over the level.
class LevelIndex
{
public:
    struct Entry
    {
        int begin;
        int end;   ///< exclusive
        int reach; ///< greatest end of this and all entries before
        const ClipRow* row;
    };
    using Entries = std::vector<Entry>;
    using Rows = std::unordered_set<const ClipRow*>;

    /// Rows stay the caller's.
    void Change(const Rows& gone, const Rows& come);

    /// In order of their begins.
    const Entries& All() const { return m_entries; }
    /// End of the last clip; 0 without clips.
    int Reach() const { return m_entries.empty() ? 0 : m_entries.back().reach; }
    /// The first entry that may play at \a frame or later: all before end by then.
    Entries::const_iterator FirstAfter(double frame) const;
    /// The first entry from \a from on that begins at \a frame or later.
    Entries::const_iterator FirstFrom(Entries::const_iterator from, double frame) const;
    /// What plays at \a frame, of two the one that comes; null when nothing does.
    const ClipRow* At(double frame) const;

private:
    Entries m_entries;
};

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/LevelIndex.h"

#include "Host/Editor/Timeline/ClipRow.h"

#include <algorithm>

namespace {

bool BeginsBefore(const LevelIndex::Entry& a, const LevelIndex::Entry& b)
{
    return a.begin != b.begin ? a.begin < b.begin : a.end < b.end;
}

} // namespace

void LevelIndex::Change(const Rows& gone, const Rows& come)
{
    m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(),
                                   [&](const Entry& entry) { return gone.count(entry.row) > 0; }),
                    m_entries.end());
    const auto kept = static_cast<Entries::difference_type>(m_entries.size());
    for (const ClipRow* row : come)
        m_entries.push_back({row->begin, row->end, 0, row});
    std::sort(m_entries.begin() + kept, m_entries.end(), BeginsBefore);
    std::inplace_merge(m_entries.begin(), m_entries.begin() + kept, m_entries.end(), BeginsBefore);
    int reach = 0;
    for (Entry& entry : m_entries)
        entry.reach = reach = std::max(reach, entry.end);
}

LevelIndex::Entries::const_iterator LevelIndex::FirstAfter(double frame) const
{
    return std::partition_point(m_entries.begin(), m_entries.end(),
                                [frame](const Entry& entry) { return entry.reach <= frame; });
}

LevelIndex::Entries::const_iterator LevelIndex::FirstFrom(Entries::const_iterator from,
                                                          double frame) const
{
    return std::partition_point(from, m_entries.end(),
                                [frame](const Entry& entry) { return entry.begin < frame; });
}

const ClipRow* LevelIndex::At(double frame) const
{
    const ClipRow* found = nullptr;
    for (auto entry = FirstAfter(frame); entry != m_entries.end() && entry->begin <= frame;
         ++entry) {
        if (entry->end > frame)
            found = entry->row;
    }
    return found;
}

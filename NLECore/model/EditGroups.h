// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/TimelineNode.h"

#include <map>
#include <set>
#include <unordered_map>
#include <vector>

namespace nle {

/// Numbers of the groups that a clip is in, the outermost first.
using GroupPath = std::vector<int>;

/// The groups of a composite's clips. Each clip has its path in its bag
/// (NLEKey::Editing::kGroups), where clones and documents keep it; this finds the clips of a group.
class EditGroups
{
public:
    using Nodes = std::vector<TimelineNode*>;

    static GroupPath PathOf(const TimelineNode& node);

    /// Takes in which groups a clip is in now.
    void Put(TimelineNode& node);
    void Remove(TimelineNode& node);

    /// All clips of a group and of those in it, in the order of their numbers.
    Nodes Members(int group) const;
    /// The clips of the outermost group; the clip alone when it has none.
    Nodes Family(TimelineNode& node) const;
    int NewGroup() { return ++m_last; }

private:
    struct ById
    {
        bool operator()(TimelineNode* a, TimelineNode* b) const;
    };

    std::unordered_map<const TimelineNode*, GroupPath> m_paths;
    std::map<int, std::set<TimelineNode*, ById>> m_members;
    int m_last = 0;
};

} // namespace nle

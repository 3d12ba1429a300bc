// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/EditGroups.h"

#include "EngineApi/NLEKey.h"

#include <algorithm>

namespace nle {

GroupPath EditGroups::PathOf(const TimelineNode& node)
{
    GroupPath path;
    for (const int group : node.Bag().NumbersIn(NLEKey::Editing::kGroups)) {
        if (group > 0 && std::find(path.begin(), path.end(), group) == path.end())
            path.push_back(group);
    }
    return path;
}

bool EditGroups::ById::operator()(TimelineNode* a, TimelineNode* b) const
{
    return a->Id() < b->Id();
}

void EditGroups::Put(TimelineNode& node)
{
    Remove(node);
    GroupPath path = PathOf(node);
    for (const int group : path) {
        m_members[group].insert(&node);
        m_last = std::max(m_last, group);
    }
    if (!path.empty())
        m_paths[&node] = std::move(path);
}

void EditGroups::Remove(TimelineNode& node)
{
    const auto found = m_paths.find(&node);
    if (found == m_paths.end())
        return;
    for (const int group : found->second) {
        const auto members = m_members.find(group);
        members->second.erase(&node);
        if (members->second.empty())
            m_members.erase(members);
    }
    m_paths.erase(found);
}

EditGroups::Nodes EditGroups::Members(int group) const
{
    const auto found = m_members.find(group);
    return found == m_members.end() ? Nodes() : Nodes(found->second.begin(), found->second.end());
}

EditGroups::Nodes EditGroups::Family(TimelineNode& node) const
{
    const auto path = m_paths.find(&node);
    return path == m_paths.end() ? Nodes{&node} : Members(path->second.front());
}

} // namespace nle

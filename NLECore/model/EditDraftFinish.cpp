// SPDX-License-Identifier: LGPL-2.1-or-later
// The end of an edit: what follows from its changes, and whether all of it may be.
#include "EngineApi/NLEKey.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/EditDraft.h"
#include "NLECore/scene/FrameMath.h"

#include <algorithm>
#include <limits>

namespace nle {

namespace {

constexpr int kLastFrame = std::numeric_limits<int>::max();

bool IsNested(const ClipSpan& one, const ClipSpan& other)
{
    return one.Common(other).Length() > 0 && !one.GoesBefore(other) && !other.GoesBefore(one);
}

/// Whether two clips overlap on more frames than before, or the other way round.
bool OverlapsMore(const ClipSpan& one, const ClipSpan& other, const ClipSpan& oneBefore,
                  const ClipSpan& otherBefore)
{
    const bool isTurned = one.GoesBefore(other) != oneBefore.GoesBefore(otherBefore);
    return isTurned || one.Common(other).Length() > oneBefore.Common(otherBefore).Length();
}

QString Words(const ClipSpan& span)
{
    return QStringLiteral("%1 to %2").arg(span.begin).arg(span.end - 1);
}

HRESULT RefusePlace(const char* name)
{
    return Refuse(E_INVALIDARG, NLEReason_OutOfRange,
                  QStringLiteral("%1: 0 to %2").arg(QLatin1String(name)).arg(kLastFrame));
}

} // namespace

HRESULT EditDraft::Finish()
{
    RegroupCopies();
    CollapseGroups();
    RefitTransitions();
    if (m_isTooFar)
        return RefusePlace("position");
    for (const Original& original : m_originals) {
        const HRESULT result = Check(original);
        if (FAILED(result))
            return result;
    }
    return m_step.IsEmpty() ? S_FALSE : S_OK;
}

void EditDraft::RefitTransitions()
{
    for (const EditJoin& join : m_joins.All()) {
        TimelineNode& transition = *join.transition;
        if (!m_timeline.Holds(transition) || (!join.from && !join.to))
            continue;
        const auto fitted = join.Fitted(m_timeline);
        const int level = (join.to ? join.to : join.from)->Level();
        if (!fitted)
            Remove(transition);
        else if (!(*fitted == join.span) || level != transition.Level())
            Fit(transition, *fitted, level);
    }
    for (const EditJoin& join : m_joins.All())
        SeparateTransition(join);
}

/// One at an end of a clip alone makes way for others of the clip.
void EditDraft::SeparateTransition(const EditJoin& join)
{
    TimelineNode& transition = *join.transition;
    if (!m_timeline.Holds(transition) || (join.from && join.to))
        return;
    const int level = transition.Level();
    const ClipSpan own = ClipSpan::Of(transition);
    ClipSpan free = own;
    for (const TimelineNode* other : Index().Within(EditIndex::Kind::Transition, level, own)) {
        const ClipSpan span = ClipSpan::Of(*other);
        if (other != &transition && join.to)
            free.end = std::min(free.end, span.begin);
        else if (other != &transition)
            free.begin = std::max(free.begin, span.end);
    }
    if (free.Length() < 1)
        Remove(transition);
    else if (!(free == own))
        Fit(transition, free, level);
}

void EditDraft::RegroupCopies()
{
    std::map<int, int> numbers;
    for (TimelineNode* copy : m_copies) {
        GroupPath path = EditGroups::PathOf(*copy);
        for (int& group : path) {
            const auto [number, isNew] = numbers.try_emplace(group, 0);
            if (isNew)
                number->second = m_timeline.Groups().NewGroup();
            group = number->second;
            m_groups.insert(group);
        }
        if (!path.empty())
            SetGroups(*copy, path);
    }
}

void EditDraft::CollapseGroups()
{
    for (const int group : m_groups) {
        const EditGroups::Nodes members = m_timeline.Groups().Members(group);
        std::set<int> inner;
        int clips = 0;
        for (const TimelineNode* member : members) {
            const GroupPath path = EditGroups::PathOf(*member);
            const auto next = std::next(std::find(path.begin(), path.end(), group));
            if (next == path.end())
                ++clips;
            else
                inner.insert(*next);
        }
        if (clips + int(inner.size()) > 1)
            continue;
        for (TimelineNode* member : members) {
            GroupPath path = EditGroups::PathOf(*member);
            path.erase(std::find(path.begin(), path.end(), group));
            SetGroups(*member, path);
        }
    }
}

HRESULT EditDraft::Check(const Original& original) const
{
    const TimelineNode& node = *original.node;
    const bool isHeld = m_timeline.Holds(node);
    for (const int level : m_locked) {
        if ((original.isHeld && original.level == level) || (isHeld && node.Level() == level))
            return Refuse(E_ACCESSDENIED, NLEReason_LevelLocked, QString::number(level));
    }
    if (!isHeld)
        return S_OK;
    HRESULT result = CheckPlace(original);
    if (SUCCEEDED(result) && node.IsTransition())
        return CheckTransition(original);
    if (SUCCEEDED(result))
        result = CheckMaterial(original);
    if (SUCCEEDED(result))
        result = CheckOverlaps(node);
    return result;
}

HRESULT EditDraft::CheckTransition(const Original& original) const
{
    const TimelineNode& node = *original.node;
    const ClipSpan own = ClipSpan::Of(node);
    const auto others = Index().Within(EditIndex::Kind::Transition, node.Level(), own);
    const bool isAlone = others.size() < 2;
    return isAlone || original.isHeld ? S_OK
                                      : Refuse(E_INVALIDARG, NLEReason_ClipsOverlap, Words(own));
}

HRESULT EditDraft::CheckPlace(const Original& original) const
{
    const TimelineNode& node = *original.node;
    const ClipSpan span = ClipSpan::Of(node);
    if (span.Length() < 1)
        return Refuse(E_INVALIDARG, NLEReason_ClipTooShort);
    if (span.begin < 0 || span.end - 1 > kLastFrame)
        return RefusePlace("position");
    const bool isElsewhere = !original.isHeld || original.level != node.Level();
    return isElsewhere && node.Level() < 0 ? RefusePlace("level") : S_OK;
}

HRESULT EditDraft::CheckMaterial(const Original& original) const
{
    const NLERange range = original.node->Range();
    const NLERange& before = original.range;
    if (range.in >= before.in && range.out <= before.out)
        return S_OK;
    const int last = original.node->TotalLength() - 1;
    const bool isThere =
        range.in >= std::min(before.in, 0) && range.out <= std::max(before.out, last);
    return isThere ? S_OK
                   : Refuse(E_INVALIDARG, NLEReason_NoMaterial, Words({0, std::int64_t(last) + 1}));
}

HRESULT EditDraft::CheckOverlaps(const TimelineNode& node) const
{
    const ClipSpan own = ClipSpan::Of(node);
    for (const TimelineNode* other : Index().Within(EditIndex::Kind::Clip, node.Level(), own)) {
        const ClipSpan span = ClipSpan::Of(*other);
        const ClipSpan common = own.Common(span);
        if (other == &node || common.Length() < 1)
            continue;
        const ClipSpan ownBefore = FormerSpan(node, node.Level());
        const ClipSpan before = FormerSpan(*other, node.Level());
        const bool isNested = IsNested(own, span) && !IsNested(ownBefore, before);
        const bool isMore = OverlapsMore(own, span, ownBefore, before);
        if (isNested || (isMore && !IsJoined(node.Level(), common)))
            return Refuse(E_INVALIDARG, NLEReason_ClipsOverlap, Words(common));
    }
    return S_OK;
}

ClipSpan EditDraft::FormerSpan(const TimelineNode& node, int level) const
{
    const auto place = m_places.find(&node);
    if (place == m_places.end())
        return ClipSpan::Of(node);
    const Original& original = m_originals[place->second];
    return original.isHeld && original.level == level ? original.span : ClipSpan();
}

bool EditDraft::IsJoined(int level, const ClipSpan& overlap) const
{
    const auto found = Index().Within(EditIndex::Kind::Transition, level, overlap);
    return std::any_of(found.begin(), found.end(), [&](const TimelineNode* transition) {
        return ClipSpan::Of(*transition) == overlap;
    });
}

} // namespace nle

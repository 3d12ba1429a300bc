// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/MltTransitions.h"

#include "NLECore/model/SoundFilters.h"
#include "NLECore/scene/FrameMath.h"
#include "NLECore/scene/Layer.h"

namespace nle {

namespace {

using namespace TransitionParameter;

/// A pattern that the framework makes itself, and the wipe that it shows, as it is or inverted.
struct PatternRow
{
    const char* resource;
    const char* name;
    int direction; ///< -1: none
    bool isReverse;
    bool isInverted;
};

constexpr int kNoDirection = -1;
constexpr PatternRow kPatterns[] = {
    {"luma01.pgm", "wipe", int(Direction::Right), false, false},
    {"luma01.pgm", "wipe", int(Direction::Left), false, true},
    {"luma02.pgm", "wipe", int(Direction::Down), false, false},
    {"luma02.pgm", "wipe", int(Direction::Up), false, true},
    {"luma07.pgm", "wipe", int(Direction::DownRight), false, false},
    {"luma07.pgm", "wipe", int(Direction::UpLeft), false, true},
    {"luma08.pgm", "wipe", int(Direction::DownLeft), false, false},
    {"luma08.pgm", "wipe", int(Direction::UpRight), false, true},
    {"luma16.pgm", "circle", kNoDirection, false, false},
    {"luma16.pgm", "circle", kNoDirection, true, true},
    {"luma22.pgm", "clock", kNoDirection, false, false},
    {"luma22.pgm", "clock", kNoDirection, true, true},
    {"luma03.pgm", "barn-doors", 0, true, false},
    {"luma03.pgm", "barn-doors", 0, false, true},
    {"luma04.pgm", "barn-doors", 1, true, false},
    {"luma04.pgm", "barn-doors", 1, false, true},
};

/// The value of a parameter, or a preset where the transition has none of that name.
int WholeOr(const ParameterValues& values, const char* name, int preset)
{
    const int index = values.Declared().IndexOf(QLatin1String(name));
    return index < 0 ? preset : int(values.Number(index));
}

DocumentFilter Effect(const char* service, const NLERange& range)
{
    return {{{QStringLiteral("mlt_service"), QLatin1String(service)}}, range};
}

/// Adds what is written for one transition.
class Terms
{
public:
    Terms(const CompositeNode& composite, const DocumentLanes& lanes)
        : m_clips(composite.PlayingClips())
    {
        for (int lane = 0; lane < int(lanes.lanes.size()); ++lane) {
            for (const auto& [position, clip] : lanes.lanes[size_t(lane)].clips)
                m_lanes[clip.node] = lane;
        }
    }

    void Add(const LayerTransition& transition)
    {
        m_range = {ClampToInt(double(transition.position)),
                   ClampToInt(double(transition.End() - 1))};
        if (m_range.in < 0 || NLERangeLength(m_range) == 0)
            return;
        AddPicture(transition, LaneOf(transition.pictures.from), LaneOf(transition.pictures.to));
        const auto fade = CrossFade(transition.At(transition.position).Whole(kSound));
        AddSound(fade, LaneOf(transition.sounds.from), LaneOf(transition.sounds.to));
    }

    MltTransitions result;

private:
    /// -1 where there is no such clip.
    int LaneOf(int child) const
    {
        return child < 0 ? -1 : m_lanes.value(m_clips[size_t(child)], -1);
    }

    void AddPicture(const LayerTransition& transition, int from, int to)
    {
        const bool isDissolve = transition.Kind() == TransitionKind::Dissolve;
        if (from >= 0 && to >= 0 && HasLuma(*transition.parameters)) {
            const std::optional<MltPattern> pattern = PatternInMlt(*transition.parameters);
            DocumentFilter luma = Effect("luma", m_range);
            luma.properties.emplace_back(QStringLiteral("progressive"), QStringLiteral("1"));
            if (pattern)
                AddPattern(transition, *pattern, luma);
            result.between.push_back({luma, from, to});
        } else if (isDissolve && (from >= 0 || to >= 0)) {
            AddOpacity(from, to);
        }
    }

    static void AddPattern(const LayerTransition& transition, const MltPattern& pattern,
                           DocumentFilter& luma)
    {
        const double softness = transition.At(transition.position).Number(kSoftness);
        luma.properties.emplace_back(QStringLiteral("resource"), pattern.resource);
        luma.properties.emplace_back(QStringLiteral("softness"), QString::number(softness, 'g', 9));
        if (pattern.isInverted)
            luma.properties.emplace_back(QStringLiteral("invert"), QStringLiteral("1"));
    }

    /// Of a clip alone, which comes from what is below it or goes to that.
    void AddOpacity(int from, int to)
    {
        const bool comes = to >= 0;
        DocumentFilter filter = Effect("brightness", m_range);
        filter.properties.emplace_back(QStringLiteral("level"), QStringLiteral("1"));
        filter.properties.emplace_back(QStringLiteral("alpha"), QStringLiteral("0=%1;%2=%3")
                                                                    .arg(comes ? 0 : 1)
                                                                    .arg(NLERangeLength(m_range))
                                                                    .arg(comes ? 1 : 0));
        result.onLanes[comes ? to : from].push_back(filter);
    }

    void AddSound(CrossFade fade, int from, int to)
    {
        if (fade == CrossFade::None)
            return;
        if (from >= 0 && to >= 0 && fade == CrossFade::Linear) {
            DocumentFilter mix = Effect("mix", m_range);
            mix.properties.emplace_back(QStringLiteral("start"), QStringLiteral("-1"));
            result.between.push_back({mix, from, to});
            return;
        }
        for (const int lane : {from, to}) {
            if (lane >= 0)
                result.onLanes[lane].push_back(FadeFilter(fade, lane == to, m_range));
        }
    }

    const std::vector<const TimelineNode*> m_clips;
    QMap<const TimelineNode*, int> m_lanes;
    NLERange m_range = {0, -1};
};

} // namespace

std::optional<MltPattern> PatternInMlt(const ParameterValues& transition)
{
    const int direction = WholeOr(transition, kDirection, kNoDirection);
    const bool isReverse = WholeOr(transition, kReverse, 0) != 0;
    for (const PatternRow& row : kPatterns) {
        if (QLatin1String(row.name) == QLatin1String(transition.Declared().names.name) &&
            row.direction == direction && row.isReverse == isReverse)
            return MltPattern{QLatin1Char('%') + QLatin1String(row.resource), row.isInverted};
    }
    return std::nullopt;
}

std::optional<ParameterValues> WipeOfMlt(const QString& pattern, bool isInverted)
{
    for (const PatternRow& row : kPatterns) {
        if (pattern != QLatin1String(row.resource) || isInverted != row.isInverted)
            continue;
        ParameterValues values(*FindTransition(QLatin1String(row.name)));
        if (row.direction >= 0)
            values.SetNumber(values.Declared().IndexOf(QLatin1String(kDirection)), row.direction);
        if (row.isReverse)
            values.SetNumber(values.Declared().IndexOf(QLatin1String(kReverse)), 1);
        return values;
    }
    return std::nullopt;
}

bool HasLuma(const ParameterValues& transition)
{
    return TransitionKindOf(transition.Declared()) == TransitionKind::Dissolve ||
           PatternInMlt(transition);
}

MltTransitions TransitionsInMlt(const CompositeNode& composite, const DocumentLanes& lanes)
{
    const auto& nodes = composite.Clips();
    if (std::none_of(nodes.begin(), nodes.end(),
                     [](const auto& node) { return node->IsTransition(); }))
        return {};
    Terms terms(composite, lanes);
    const Snapshot snapshot = composite.MakeSnapshot();
    for (const LayerTransition& transition : snapshot->transitions)
        terms.Add(transition);
    return std::move(terms.result);
}

} // namespace nle

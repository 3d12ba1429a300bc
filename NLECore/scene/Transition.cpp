// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/scene/Transition.h"

#include "NLECore/scene/FindNamed.h"
#include "NLECore/scene/Layer.h"
#include "NLECore/scene/LayerKey.h"

#include <QtGlobal>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace nle {

namespace {

using namespace TransitionParameter;

ParameterRow SoundRow()
{
    return ChoiceRow({kSound, QT_TRANSLATE_NOOP("NLECore", "Sound")},
                     {{"linear", QT_TRANSLATE_NOOP("NLECore", "Linear")},
                      {"power", QT_TRANSLATE_NOOP("NLECore", "Equal power")},
                      {"none", QT_TRANSLATE_NOOP("NLECore", "No fade")}},
                     int(CrossFade::Linear));
}

ParameterRow SoftnessRow()
{
    return NumberRow({kSoftness, QT_TRANSLATE_NOOP("NLECore", "Softness")}, NLEUnit_Share, 0, 1, 0);
}

ParameterRow ReverseRow()
{
    return SwitchRow({kReverse, QT_TRANSLATE_NOOP("NLECore", "Reverse")}, false);
}

ParameterRow DirectionRow()
{
    return ChoiceRow({kDirection, QT_TRANSLATE_NOOP("NLECore", "Direction")},
                     {{"right", QT_TRANSLATE_NOOP("NLECore", "To the right")},
                      {"left", QT_TRANSLATE_NOOP("NLECore", "To the left")},
                      {"down", QT_TRANSLATE_NOOP("NLECore", "Down")},
                      {"up", QT_TRANSLATE_NOOP("NLECore", "Up")},
                      {"down-right", QT_TRANSLATE_NOOP("NLECore", "Down right")},
                      {"down-left", QT_TRANSLATE_NOOP("NLECore", "Down left")},
                      {"up-right", QT_TRANSLATE_NOOP("NLECore", "Up right")},
                      {"up-left", QT_TRANSLATE_NOOP("NLECore", "Up left")}},
                     int(Direction::Right));
}

ParameterRow AxisRow()
{
    return ChoiceRow({kDirection, QT_TRANSLATE_NOOP("NLECore", "Direction")},
                     {{"horizontal", QT_TRANSLATE_NOOP("NLECore", "Horizontal")},
                      {"vertical", QT_TRANSLATE_NOOP("NLECore", "Vertical")}},
                     0);
}

ParameterRow DipColorRow()
{
    constexpr std::uint32_t black = 0xFF000000u;
    return ColorRow({kColor, QT_TRANSLATE_NOOP("NLECore", "Colour")}, black);
}

/// A clip on its composite.
struct Span
{
    std::int64_t begin;
    std::int64_t end; ///< exclusive
    int child;
};

/// The clips of one level that take part in transitions of pictures, or of sounds.
class LevelClips
{
public:
    void Add(const Span& span) { m_byBegin.push_back(span); }

    void Sort()
    {
        std::stable_sort(m_byBegin.begin(), m_byBegin.end(),
                         [](const Span& a, const Span& b) { return a.begin < b.begin; });
        m_byEnd = m_byBegin;
        std::stable_sort(m_byEnd.begin(), m_byEnd.end(),
                         [](const Span& a, const Span& b) { return a.end < b.end; });
    }

    /// The clips that begin or end from \a begin to before \a end; called in order of \a begin.
    LayerTransition::Clips Take(std::int64_t begin, std::int64_t end)
    {
        LayerTransition::Clips clips;
        if (const Span* to = Coming(begin, end))
            clips.to = to->child;
        if (const Span* from = Going(begin, end, clips.to))
            clips.from = from->child;
        for (const int child : {clips.from, clips.to}) {
            if (child >= 0)
                m_busyUntil[child] = end;
        }
        return clips;
    }

private:
    bool IsFree(const Span& span, std::int64_t begin) const
    {
        const auto busy = m_busyUntil.find(span.child);
        return busy == m_busyUntil.end() || busy->second <= begin;
    }

    /// The one that begins last; of several the highest.
    const Span* Coming(std::int64_t begin, std::int64_t end) const
    {
        auto span =
            std::lower_bound(m_byBegin.begin(), m_byBegin.end(), end,
                             [](const Span& one, std::int64_t at) { return one.begin < at; });
        while (span != m_byBegin.begin() && std::prev(span)->begin >= begin) {
            --span;
            if (IsFree(*span, begin))
                return &*span;
        }
        return nullptr;
    }

    /// The one that began first; of several the lowest.
    const Span* Going(std::int64_t begin, std::int64_t end, int coming) const
    {
        const auto first =
            std::upper_bound(m_byEnd.begin(), m_byEnd.end(), begin,
                             [](std::int64_t at, const Span& one) { return at < one.end; });
        const Span* earliest = nullptr;
        for (auto span = first; span != m_byEnd.end() && span->end <= end; ++span) {
            const bool isEarlier = !earliest || span->begin < earliest->begin;
            if (isEarlier && span->child != coming && IsFree(*span, begin))
                earliest = &*span;
        }
        return earliest;
    }

    std::vector<Span> m_byBegin;
    std::vector<Span> m_byEnd;
    /// When the transition ends that a clip took part in last, by the clip.
    std::map<int, std::int64_t> m_busyUntil;
};

using Levels = std::map<int, LevelClips>;

Levels LevelsOf(const Layer& composite, bool (*takesPart)(const Layer&))
{
    Levels levels;
    for (const LayerTransition& transition : composite.transitions)
        levels[transition.level];
    for (int child = 0; child < int(composite.children.size()); ++child) {
        const Layer& layer = *composite.children[std::size_t(child)];
        const std::int64_t length = NLERangeLength(layer.range);
        const auto level = levels.find(layer.level);
        if (level != levels.end() && length > 0 && takesPart(layer))
            level->second.Add({layer.position, layer.position + length, child});
    }
    for (auto& [number, clips] : levels)
        clips.Sort();
    return levels;
}

bool HasSound(const Layer& layer)
{
    return layer.mode != NLERender_VideoOnly &&
           (layer.kind == LayerKind::Composite ||
            (layer.kind == LayerKind::Media && layer.media->audioStream >= 0));
}

} // namespace

DirectionSteps StepsOf(Direction direction)
{
    switch (direction) {
    case Direction::Right:
        return {1, 0};
    case Direction::Left:
        return {-1, 0};
    case Direction::Down:
        return {0, 1};
    case Direction::Up:
        return {0, -1};
    case Direction::DownRight:
        return {1, 1};
    case Direction::DownLeft:
        return {-1, 1};
    case Direction::UpRight:
        return {1, -1};
    case Direction::UpLeft:
        return {-1, -1};
    }
    return {1, 0};
}

const std::vector<Declaration>& TransitionDeclarations()
{
    static const std::vector<Declaration> declarations = {
        {{"dissolve", QT_TRANSLATE_NOOP("NLECore", "Dissolve")}, {SoundRow()}},
        {{"dip", QT_TRANSLATE_NOOP("NLECore", "Dip to colour")}, {DipColorRow(), SoundRow()}},
        {{"wipe", QT_TRANSLATE_NOOP("NLECore", "Wipe")},
         {DirectionRow(), SoftnessRow(), SoundRow()}},
        {{"circle", QT_TRANSLATE_NOOP("NLECore", "Circle")},
         {ReverseRow(), SoftnessRow(), SoundRow()}},
        {{"diamond", QT_TRANSLATE_NOOP("NLECore", "Diamond")},
         {ReverseRow(), SoftnessRow(), SoundRow()}},
        {{"clock", QT_TRANSLATE_NOOP("NLECore", "Clock")},
         {ReverseRow(), SoftnessRow(), SoundRow()}},
        {{"barn-doors", QT_TRANSLATE_NOOP("NLECore", "Barn doors")},
         {AxisRow(), ReverseRow(), SoftnessRow(), SoundRow()}},
        {{"push", QT_TRANSLATE_NOOP("NLECore", "Push")}, {DirectionRow(), SoundRow()}},
        {{"slide", QT_TRANSLATE_NOOP("NLECore", "Slide")}, {DirectionRow(), SoundRow()}},
        {{"zoom", QT_TRANSLATE_NOOP("NLECore", "Zoom")}, {SoundRow()}},
    };
    return declarations;
}

const Declaration* FindTransition(const QString& name)
{
    return FindNamed(TransitionDeclarations(), name);
}

TransitionKind TransitionKindOf(const Declaration& declaration)
{
    return TransitionKind(&declaration - TransitionDeclarations().data());
}

bool ShowsInPicture(const ParameterRow& row)
{
    return QLatin1String(row.names.name) != QLatin1String(kSound);
}

std::vector<LayerTransition>::const_iterator
FirstFrom(const std::vector<LayerTransition>& transitions, std::int64_t frame)
{
    return std::partition_point(
        transitions.begin(), transitions.end(),
        [frame](const LayerTransition& one) { return one.furthestEnd <= frame; });
}

double CrossFadeGain(CrossFade kind, bool comes, double progress)
{
    const double share = std::clamp(comes ? progress : 1 - progress, 0.0, 1.0);
    switch (kind) {
    case CrossFade::Linear:
        return share;
    case CrossFade::Power:
        return std::sin(share * M_PI_2);
    case CrossFade::None:
        break;
    }
    return 1;
}

void FindTransitionClips(Layer& composite)
{
    std::vector<LayerTransition>& transitions = composite.transitions;
    if (transitions.empty())
        return;
    std::stable_sort(
        transitions.begin(), transitions.end(),
        [](const LayerTransition& a, const LayerTransition& b) { return a.position < b.position; });
    Levels pictures = LevelsOf(composite, HasPicture);
    Levels sounds = LevelsOf(composite, HasSound);
    std::int64_t furthestEnd = std::numeric_limits<std::int64_t>::min();
    for (LayerTransition& transition : transitions) {
        transition.furthestEnd = furthestEnd = std::max(furthestEnd, transition.End());
        transition.pictures =
            pictures[transition.level].Take(transition.position, transition.End());
        transition.sounds = sounds[transition.level].Take(transition.position, transition.End());
    }
}

} // namespace nle

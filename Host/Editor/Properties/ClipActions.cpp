// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/ClipActions.h"

#include "CommonLib/NLEWraper/NLETimeline.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/EngineCatalog.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("ClipActions", text);
}

/// First frame and the one behind the last on the project.
struct Span
{
    int begin;
    int end;
};

Span SpanOf(INLETimeline& clip)
{
    int position = 0;
    NLERange range = {};
    clip.GetPosition(&position);
    clip.GetRange(&range);
    return {position, position + int(NLERangeLength(range))};
}

int LevelOf(INLETimeline& clip)
{
    int level = 0;
    clip.GetLevel(&level);
    return level;
}

/// The lowest level above all that plays within \a span.
int FreeLevel(const Project& project, const Span& span)
{
    int level = 0;
    const NLETimeline node(project.Node(), ExactType_Project, nullptr);
    for (const auto& clip : node.GetChilds()) {
        const Span other = SpanOf(*clip);
        if (other.begin < span.end && span.begin < other.end)
            level = std::max(level, LevelOf(*clip) + 1);
    }
    return level;
}

/// The longest transition that the engine takes, half as long each time. The last refusal stands.
HRESULT PutTransition(INLEEditing& editing, INLETimeline* transition, INLETimeline* clip,
                      NLEClipEdge edge, int frames)
{
    HRESULT result = E_FAIL;
    for (int length = frames; length > 0 && FAILED(result); length /= 2)
        result = editing.AddTransition(transition, clip, edge, length);
    return result;
}

NLEComPtr<INLETimeline> EffectAt(const NLEComPtr<INLETimeline>& clip, int index)
{
    NLEComPtr<INLETimeline> effect;
    if (const auto effects = FacilityOf<INLEEffects>(clip))
        effects->GetEffect(index, effect.put());
    return effect;
}

NLEComPtr<INLETimeline> AtSpeed(const NLEComPtr<INLETimeline>& clip, double speed)
{
    NLEComPtr<INLETimeline> copy;
    if (FAILED(clip->Clone(true, copy.put())))
        return {};
    NLETimeline wrapper(copy, ExactType_Unknown, nullptr);
    wrapper.SetRenderScale(float(speed));
    wrapper.SetRenderScaleEnable(speed != 1);
    return copy;
}

/// A transition on an edge of a clip.
struct Joint
{
    NLEComPtr<INLETimeline> transition;
    NLEClipEdge edge;
    int frames;
    bool hasNeighbour;
};

/// Whether another clip meets or overlaps \a clip at \a edge.
bool HasNeighbour(INLEEditing& editing, INLETimeline& clip, NLEClipEdge edge)
{
    NLEComPtr<INLETimeline> other;
    if (editing.GetNeighbour(&clip, edge, other.put()) != S_OK)
        return false;
    const Span own = SpanOf(clip);
    const Span next = SpanOf(*other);
    return edge == NLEEdge_Begin ? next.end >= own.begin : next.begin <= own.end;
}

/// The edge of \a clip that plays within \a span; nothing when neither does.
std::optional<NLEClipEdge> EdgeWithin(const Span& span, const Span& clip)
{
    if (span.begin <= clip.begin && clip.begin < span.end)
        return NLEEdge_Begin;
    if (span.begin < clip.end && clip.end <= span.end)
        return NLEEdge_End;
    return {};
}

QVector<NLEComPtr<INLETimeline>> NodesOfLevel(const Project& project, int level)
{
    QVector<NLEComPtr<INLETimeline>> nodes;
    NLEComPtr<INLETimelineEnumerator> walk;
    const auto holder = project.Node().query<INLETimelineComposite>();
    if (!holder || FAILED(holder->GetEnumerator(0, walk.put())))
        return nodes;
    for (const NLEComPtr<INLETimeline>& node : NodesOf(*walk)) {
        if (LevelOf(*node) == level)
            nodes << node;
    }
    return nodes;
}

QVector<Joint> JointsOf(const Project& project, INLETimeline& clip)
{
    QVector<Joint> joints;
    const Span own = SpanOf(clip);
    for (const NLEComPtr<INLETimeline>& node : NodesOfLevel(project, LevelOf(clip))) {
        const Span span = SpanOf(*node);
        const std::optional<NLEClipEdge> edge = EdgeWithin(span, own);
        if (edge && node.query<INLETimelineTransition>())
            joints.append(
                {node, *edge, span.end - span.begin, HasNeighbour(project.Editing(), clip, *edge)});
    }
    return joints;
}

QVector<INLETimeline*> OthersOfGroup(INLEEditing& editing, INLETimeline& clip)
{
    QVector<INLETimeline*> others;
    NLEComPtr<INLETimelineEnumerator> walk;
    if (FAILED(editing.GetGroup(&clip, walk.put())))
        return others;
    for (const NLEComPtr<INLETimeline>& member : NodesOf(*walk)) {
        if (member.get() != &clip)
            others.append(member.get()); // the project holds it
    }
    return others;
}

/// Puts a copy of a transition on the same edge of \a clip, if its neighbour is still there.
void PutAgain(INLEEditing& editing, const Joint& joint, INLETimeline& clip)
{
    NLEComPtr<INLETimeline> copy;
    if (HasNeighbour(editing, clip, joint.edge) == joint.hasNeighbour &&
        SUCCEEDED(joint.transition->Clone(true, copy.put())))
        PutTransition(editing, copy.get(), &clip, joint.edge, joint.frames);
}

} // namespace

bool ClipActions::AddTransition(Project& project, Selection& selection,
                                const NLEComPtr<INLETimeline>& clip, const QString& name,
                                NLEClipEdge edge)
{
    const auto transition = EngineCatalog::Make(NLECatalog_Transition, name);
    const int second = std::max(int(std::lround(project.FrameRate())), 1);
    if (!transition || !project.Edit(Tr(QT_TRANSLATE_NOOP("ClipActions", "Add transition")),
                                     [&](INLEEditing& editing) {
                                         return PutTransition(editing, transition.get(), clip.get(),
                                                              edge, second);
                                     }))
        return false;
    selection.Set({transition});
    return true;
}

bool ClipActions::ChangeTransition(Project& project, Selection& selection,
                                   const NLEComPtr<INLETimeline>& transition, const QString& name,
                                   int frames)
{
    const Span span = SpanOf(*transition);
    NLEComPtr<INLETimeline> clip;
    std::optional<NLEClipEdge> edge;
    for (const NLEComPtr<INLETimeline>& node : NodesOfLevel(project, LevelOf(*transition))) {
        if (edge || node.query<INLETimelineTransition>())
            continue;
        clip = node;
        edge = EdgeWithin(span, SpanOf(*node));
    }
    NLEComPtr<INLETimeline> other;
    if (EngineCatalog::NameOf(transition) != name)
        other = EngineCatalog::Make(NLECatalog_Transition, name);
    else if (FAILED(transition->Clone(true, other.put())))
        other.forget();
    if (!edge || !other ||
        !project.Edit(
            Tr(QT_TRANSLATE_NOOP("ClipActions", "Change transition")), [&](INLEEditing& editing) {
                const HRESULT result = editing.Delete(transition.get(), NLEEdit_Alone);
                return FAILED(result)
                           ? result
                           : editing.AddTransition(other.get(), clip.get(), *edge, frames);
            }))
        return false;
    selection.Set({other});
    return true;
}

bool ClipActions::AddTitle(Project& project, Selection& selection, const QString& text, int frame)
{
    const auto title = EngineCatalog::MakeTitle(text);
    if (!title)
        return false;
    const Span own = SpanOf(*title);
    const int level = FreeLevel(project, {frame, frame + own.end - own.begin});
    if (!project.Edit(Tr(QT_TRANSLATE_NOOP("ClipActions", "Add title")), [&](INLEEditing& editing) {
            return editing.Place(title.get(), frame, level, 0);
        }))
        return false;
    selection.Set({title});
    return true;
}

bool ClipActions::SetSpeed(Project& project, Selection& selection,
                           const NLEComPtr<INLETimeline>& clip, double speed)
{
    NLEComPtr<INLETimeline> copy;
    // The history knows nodes that come and go; a speed that changes under it would empty it.
    const auto replace = [&](INLEEditing& editing) {
        QVector<INLETimeline*> group = OthersOfGroup(editing, *clip);
        const QVector<Joint> joints = JointsOf(project, *clip);
        // Clips that overlap meet in the middle of it then.
        for (const Joint& joint : joints)
            editing.Delete(joint.transition.get(), NLEEdit_Alone);
        copy = AtSpeed(clip, speed);
        if (!copy)
            return E_FAIL;
        const int begin = SpanOf(*clip).begin;
        const int level = LevelOf(*clip);
        HRESULT result = editing.Delete(clip.get(), NLEEdit_Alone);
        if (SUCCEEDED(result))
            result = editing.Place(copy.get(), begin, level, 0);
        if (FAILED(result))
            return result;
        for (const Joint& joint : joints)
            PutAgain(editing, joint, *copy);
        group.append(copy.get());
        return group.size() > 1 ? editing.Group(group.data(), group.size()) : S_OK;
    };
    if (!project.Edit(Tr(QT_TRANSLATE_NOOP("ClipActions", "Change speed")), replace))
        return false;
    selection.Set({copy});
    return true;
}

bool ClipActions::AddEffect(Project& project, const NLEComPtr<INLETimeline>& clip,
                            NLECatalogKind kind, const QString& name)
{
    const auto effect = EngineCatalog::Make(kind, name);
    const auto effects = FacilityOf<INLEEffects>(clip);
    if (!effect || !effects)
        return false;
    return project.Change(
        Tr(QT_TRANSLATE_NOOP("ClipActions", "Add effect")), clip,
        [effects, effect] { return effects->AddEffect(effect.get(), -1) == S_OK; },
        [effects, effect] { return effects->RemoveEffect(effect.get()) == S_OK; });
}

bool ClipActions::RemoveEffect(Project& project, const NLEComPtr<INLETimeline>& clip, int index)
{
    const auto effects = FacilityOf<INLEEffects>(clip);
    const auto effect = EffectAt(clip, index);
    return effect && project.Change(
                         Tr(QT_TRANSLATE_NOOP("ClipActions", "Remove effect")), clip,
                         [=] { return effects->RemoveEffect(effect.get()) == S_OK; },
                         [=] { return effects->AddEffect(effect.get(), index) == S_OK; });
}

bool ClipActions::MoveEffect(Project& project, const NLEComPtr<INLETimeline>& clip, int index,
                             int to)
{
    const auto effects = FacilityOf<INLEEffects>(clip);
    return effects && project.Change(
                          Tr(QT_TRANSLATE_NOOP("ClipActions", "Move effect")), clip,
                          [=] { return effects->MoveEffect(index, to) == S_OK; },
                          [=] { return effects->MoveEffect(to, index) == S_OK; });
}

bool ClipActions::EnableEffect(Project& project, const NLEComPtr<INLETimeline>& clip, int index,
                               bool enable)
{
    const auto effect = EffectAt(clip, index);
    return effect && project.Change(
                         Tr(QT_TRANSLATE_NOOP("ClipActions", "Switch effect")), clip,
                         [=] { return effect->SetEnabled(enable) == S_OK; },
                         [=] { return effect->SetEnabled(!enable) == S_OK; });
}

// SPDX-License-Identifier: LGPL-2.1-or-later
// Edits of a timeline: what each does and refuses, and that nothing is lost in long runs of them.
#include "Com/ComGuard.h"
#include "EngineApi/INLEReasons.h"
#include "EngineApi/NLEKey.h"
#include "NLECore/media/Reasons.h"
#include "tests/support/EditedProject.h"
#include "tests/support/Seed.h"

#include <QtTest>

#include <functional>
#include <random>

using namespace nle;

namespace {

using Act = std::function<HRESULT(EditedProject&)>;
using Edits = INLEEditing;
constexpr int kBegin = NLEEdge_Begin;
constexpr int kEnd = NLEEdge_End;

/// What a refusal is told as.
QString Refused(NLEReason reason)
{
    return QString("refused: %1").arg(TitleOf(reason));
}

/// An edit of the clip of that letter.
template <typename... Arguments>
Act On(char letter, HRESULT (Edits::*edit)(INLETimeline*, Arguments...), Arguments... arguments)
{
    return [=](EditedProject& p) { return ((*p.editing).*edit)(p.Find(letter), arguments...); };
}
template <typename... Arguments>
Act OnAll(HRESULT (Edits::*edit)(Arguments...), Arguments... arguments)
{
    return [=](EditedProject& p) { return ((*p.editing).*edit)(arguments...); };
}
/// A file comes in, from its frame 0 on.
Act Put(char letter, int length, int position, int flags)
{
    return [=](EditedProject& p) {
        return p.editing->Place(EditedProject::Clip(letter, 0, length).get(), position, 0, flags);
    };
}
Act Join(char letter, int edge, int frames)
{
    return [=](EditedProject& p) {
        return p.editing->AddTransition(EditedProject::Dissolve(frames).get(), p.Find(letter), edge,
                                        frames);
    };
}
std::vector<INLETimeline*> Clips(const EditedProject& p, const char* letters)
{
    std::vector<INLETimeline*> clips;
    for (const QChar letter : QString(letters))
        clips.push_back(p.Find(letter));
    return clips;
}
Act Grouped(const char* letters, const Act& act)
{
    return [=](EditedProject& p) {
        const auto clips = Clips(p, letters);
        const HRESULT result = p.editing->Group(clips.data(), int(clips.size()));
        return FAILED(result) ? result : act(p);
    };
}
Act Locked(int level, const Act& act)
{
    return [=](EditedProject& p) {
        const HRESULT result = p.editing->SetLevelLocked(level, true);
        return FAILED(result) ? result : act(p);
    };
}
Act Pasted(const char* letters, int position, int level, int flags)
{
    return [=](EditedProject& p) {
        const auto clips = Clips(p, letters);
        NLEComPtr<INLETimeline> board;
        const HRESULT result = p.editing->Copy(clips.data(), int(clips.size()), board.put());
        return FAILED(result) ? result : p.editing->Paste(board.get(), position, level, flags);
    };
}

/// What must not be of the clips of a level; empty when all is well.
QString FaultOfLevel(const EditIndex& index, const EditIndex::Nodes& clips)
{
    for (size_t i = 0; i < clips.size(); ++i) {
        const ClipSpan span = ClipSpan::Of(*clips[i]);
        const NLERange range = clips[i]->Range();
        if (span.begin < 0 || span.Length() < 1)
            return "a place that cannot be";
        if (range.in < 0 || range.out >= clips[i]->TotalLength())
            return "beyond the material";
        for (size_t next = i + 1; next < clips.size(); ++next) {
            const ClipSpan other = ClipSpan::Of(*clips[next]);
            const ClipSpan common = span.Common(other);
            if (common.Length() < 1)
                break;
            const auto joins = index.Within(EditIndex::Kind::Transition, clips[i]->Level(), common);
            if (next > i + 1 || !span.GoesBefore(other) || joins.size() != 1 ||
                !(ClipSpan::Of(*joins[0]) == common))
                return "an overlap";
        }
    }
    return {};
}

/// Groups form a forest, in which no group has a single child.
QString FaultOfGroups(const EditedProject& p)
{
    std::map<int, GroupPath> above;
    std::map<int, std::set<quintptr>> children;
    for (const auto& clip : p.project->Clips()) {
        const GroupPath path = EditGroups::PathOf(*clip);
        for (size_t i = 0; i < path.size(); ++i) {
            const GroupPath before(path.begin(), path.begin() + int(i));
            if (above.try_emplace(path[i], before).first->second != before)
                return "a group in two";
            children[path[i]].insert(i + 1 < path.size() ? quintptr(path[i + 1])
                                                         : quintptr(clip.get()));
        }
    }
    for (const auto& [group, inner] : children) {
        if (inner.size() < 2)
            return "a group of one";
    }
    return {};
}

QString Fault(const EditedProject& p)
{
    const EditIndex& kept = p.editing->Timeline().Index();
    EditIndex fresh;
    for (const auto& clip : p.project->Clips()) {
        if (clip->Parent() != p.project.get())
            return "a clip that does not know its parent";
        fresh.Put(*clip);
        if (clip->IsTransition()) {
            const EditJoin join = EditJoin::Of(p.editing->Timeline(), *clip);
            if (!join.from && !join.to)
                return "a transition of nothing";
        }
    }
    if (fresh.Points() != kept.Points())
        return "points to snap to";
    for (const int level : kept.Levels()) {
        const EditIndex::Nodes clips = fresh.AllFrom(level, 0);
        if (clips != kept.AllFrom(level, 0))
            return "the index";
        QString fault = FaultOfLevel(fresh, clips);
        if (!fault.isEmpty())
            return fault;
    }
    return FaultOfGroups(p);
}

/// Edits of a small timeline by chance.
class RandomEdits
{
public:
    explicit RandomEdits(unsigned seed)
        : project(
              "A0+20@20 B15+20@20 ~15+5 C35+20@20 a60+20@0 D90+30@5 / E0+40@30 b45+30@0 F80+15@2 "
              "G95+20@50 / H10+60@20")
        , m_random(seed)
    {
    }

    struct Outcome
    {
        const char* name;
        HRESULT result;
    };
    /// Keeps the timeline short, as most random frames should mean something.
    Outcome Next()
    {
        if (project.project->TotalLength() > 400 && Number(3) == 0)
            return {"cutting off", project.editing->Lift(200, 1 << 30, NLEEdit_AllLevels)};
        Edit& edit = m_edits[size_t(Number(int(m_edits.size())))];
        const HRESULT result = edit.act(*this, *project.editing);
        edit.isDone = edit.isDone || result == S_OK;
        return {edit.name, result};
    }
    std::vector<const char*> NeverDone() const
    {
        std::vector<const char*> names;
        for (const Edit& edit : m_edits) {
            if (!edit.isDone)
                names.push_back(edit.name);
        }
        return names;
    }

    EditedProject project;

private:
    struct Edit
    {
        const char* name;
        HRESULT (*act)(RandomEdits&, Edits&);
        bool isDone = false;
    };

    int Number(int below) { return int(m_random() % unsigned(below)); }
    int Frame() { return Number(250); }
    int Step() { return Number(31) - 15; }
    int Level() { return Number(12) == 0 ? NLEEdit_AllLevels : Number(4); }
    int Edge() { return Number(2); }
    /// Any of them, and mostly none.
    int Flags() { return Number(2) ? Number(32) : 0; }
    INLETimeline* Clip()
    {
        EditIndex::Nodes clips;
        for (const auto& clip : project.project->Clips()) {
            if (!clip->IsTransition())
                clips.push_back(clip.get());
        }
        return clips.empty() ? nullptr : clips[size_t(Number(int(clips.size())))];
    }
    int Near(INLETimeline* clip, int edge)
    {
        const ClipSpan span = clip ? ClipSpan::Of(*TimelineNode::From(clip)) : ClipSpan();
        return int(edge == kBegin ? span.begin : span.end) + Step();
    }
    template <typename Call>
    HRESULT AtEdge(Call call)
    {
        INLETimeline* clip = Clip();
        const int edge = Edge();
        return (project.editing.get()->*call)(clip, edge, Near(clip, edge), Flags());
    }
    HRESULT DeleteTransition()
    {
        return project.Find('~') ? project.editing->Delete(project.Find('~'), 0) : S_FALSE;
    }
    HRESULT Paste()
    {
        INLETimeline* clips[] = {Clip(), Clip(), Clip()};
        NLEComPtr<INLETimeline> board;
        const HRESULT result = project.editing->Copy(clips, 3, board.put());
        return FAILED(result) ? result
                              : project.editing->Paste(board.get(), Frame(), Number(3), Flags());
    }
    HRESULT Group()
    {
        INLETimeline* clips[] = {Clip(), Clip(), Clip()};
        return project.editing->Group(clips, 1 + Number(3));
    }
    /// One of few letters, so that the document stays small.
    HRESULT Place()
    {
        const auto clip = EditedProject::Clip(Number(4) ? 'N' : 'n', Number(40), 1 + Number(25));
        return project.editing->Place(clip.get(), Frame(), Number(4), Flags());
    }
    HRESULT Transition()
    {
        const int frames = 1 + Number(12);
        return project.editing->AddTransition(EditedProject::Dissolve(frames).get(), Clip(), Edge(),
                                              frames);
    }

    std::mt19937 m_random;
    using R = RandomEdits;
    std::vector<Edit> m_edits = {
        {"split",
         [](R& r, Edits& e) {
             INLETimeline* clip = r.Clip();
             return e.Split(clip, r.Near(clip, kBegin), r.Flags());
         }},
        {"trim", [](R& r, Edits&) { return r.AtEdge(&Edits::Trim); }},
        {"ripple trim", [](R& r, Edits&) { return r.AtEdge(&Edits::RippleTrim); }},
        {"roll", [](R& r, Edits&) { return r.AtEdge(&Edits::Roll); }},
        {"slip", [](R& r, Edits& e) { return e.Slip(r.Clip(), r.Step(), r.Flags()); }},
        {"slide", [](R& r, Edits& e) { return e.Slide(r.Clip(), r.Step(), r.Flags()); }},
        {"move",
         [](R& r, Edits& e) { return e.Move(r.Clip(), r.Frame(), r.Number(4), r.Flags()); }},
        {"nudge",
         [](R& r, Edits& e) {
             INLETimeline* clip = r.Clip();
             int level = 0;
             if (clip)
                 clip->GetLevel(&level);
             return e.Move(clip, r.Near(clip, kBegin), level, r.Flags());
         }},
        {"delete", [](R& r, Edits& e) { return e.Delete(r.Clip(), r.Flags()); }},
        {"delete a transition", [](R& r, Edits&) { return r.DeleteTransition(); }},
        {"ripple delete", [](R& r, Edits& e) { return e.RippleDelete(r.Clip(), r.Flags()); }},
        {"place", [](R& r, Edits&) { return r.Place(); }},
        {"place again", [](R& r, Edits&) { return r.Place(); }},
        {"transition", [](R& r, Edits&) { return r.Transition(); }},
        {"transition again", [](R& r, Edits&) { return r.Transition(); }},
        {"paste", [](R& r, Edits&) { return r.Paste(); }},
        {"lift",
         [](R& r, Edits& e) {
             const int begin = r.Frame();
             return e.Lift(begin, begin + r.Step(), r.Level());
         }},
        {"extract",
         [](R& r, Edits& e) {
             const int begin = r.Frame();
             return e.Extract(begin, begin + r.Step(), r.Level());
         }},
        {"close gap", [](R& r, Edits& e) { return e.CloseGap(r.Frame(), r.Level()); }},
        {"group", [](R& r, Edits&) { return r.Group(); }},
        {"ungroup", [](R& r, Edits& e) { return e.Ungroup(r.Clip()); }},
        {"lock", [](R& r, Edits& e) { return e.SetLevelLocked(r.Number(4), r.Number(8) == 0); }},
        {"level flags",
         [](R& r, Edits& e) {
             return static_cast<Editing&>(e).SetFlags(r.Number(4), r.Number(8));
         }},
        {"level name",
         [](R& r, Edits& e) {
             return static_cast<Editing&>(e).SetName(r.Number(4), r.Number(2) ? L"B  roll " : L"");
         }},
        {"undo", [](R&, Edits& e) { return e.Undo(); }},
        {"redo", [](R&, Edits& e) { return e.Redo(); }},
    };
};

} // namespace
Q_DECLARE_METATYPE(Act)

class tst_Editing : public QObject
{
    Q_OBJECT

    static void Rewind(EditedProject& p)
    {
        while (p.editing->Undo() == S_OK)
            ;
    }
    static void Forward(EditedProject& p)
    {
        while (p.editing->Redo() == S_OK)
            ;
    }

private slots:
    void edits_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("after");
        const auto row = [](const char* name, const char* before, const Act& act,
                            const QString& after) {
            QTest::newRow(name) << QString(before) << act << after;
        };
        const char* const alone = "A30+10@20";
        const char* const two = "A0+10@20 B10+10@20";
        const char* const joined = "A0+10@20 B6+10@20 ~6+4";
        const char* const three = "A0+10@20 B10+5@20 C15+10@20";
        const char* const levels = "A0+10@20 B10+10@20 / C12+5@0";
        const char* const pair = "A0+10@20 / B0+10@20";

        row("a cut leaves each frame its material", two, On('A', &Edits::Split, 4, 0),
            "A0+4@20 A4+6@24 B10+10@20");
        row("a cut at an edge is none", two, On('A', &Edits::Split, 10, 0), two);
        row("a cut leaves the transition to the second part", joined, On('A', &Edits::Split, 4, 0),
            "A0+4@20 A4+6@24 B6+10@20 ~6+4");
        row("a transition is not cut", joined, On('A', &Edits::Split, 8, 0),
            Refused(NLEReason_WithinTransition));

        row("a beginning grows to that of the material", alone,
            On('A', &Edits::Trim, kBegin, 10, 0), "A10+30@0");
        row("and no further", alone, On('A', &Edits::Trim, kBegin, 9, 0),
            Refused(NLEReason_NoMaterial));
        row("and as far as it goes", alone, On('A', &Edits::Trim, kBegin, 0, int(NLEEdit_Clamp)),
            "A10+30@0");
        row("an end grows to the last frame", "A0+10@85", On('A', &Edits::Trim, kEnd, 15, 0),
            "A0+15@85");
        row("an end grows as far as a neighbour", "A0+10@0 B15+5@0",
            On('A', &Edits::Trim, kEnd, 40, int(NLEEdit_Clamp)), "A0+15@0 B15+5@0");
        row("and not into it", "A0+10@0 B15+5@0", On('A', &Edits::Trim, kEnd, 16, 0),
            Refused(NLEReason_ClipsOverlap));
        row("a frame is left", alone, On('A', &Edits::Trim, kEnd, 31, 0), "A30+1@20");
        row("and not none", alone, On('A', &Edits::Trim, kEnd, 30, 0),
            Refused(NLEReason_ClipTooShort));
        row("a colour has no end", "a0+10@0", On('a', &Edits::Trim, kEnd, 500, 0), "a0+500@0");
        row("a transition is shortened with its clip", joined, On('A', &Edits::Trim, kEnd, 8, 0),
            "A0+8@20 B6+10@20 ~6+2");
        row("and goes with the overlap", joined, On('A', &Edits::Trim, kEnd, 6, 0),
            "A0+6@20 B6+10@20");
        row("and grows with it", joined, On('A', &Edits::Trim, kEnd, 12, 0),
            "A0+12@20 B6+10@20 ~6+6");
        row("a clip does not end after the next one", joined, On('A', &Edits::Trim, kEnd, 16, 0),
            Refused(NLEReason_ClipsOverlap));
        row("a transition at an end alone follows it", "A0+10@20 ~6+4",
            On('A', &Edits::Trim, kEnd, 8, 0), "A0+8@20 ~4+4");
        row("an edge takes those of its group along", pair,
            Grouped("AB", On('A', &Edits::Trim, kEnd, 8, 0)), "A0+8@20 / B0+8@20");
        row("and not when it is alone", pair,
            Grouped("AB", On('A', &Edits::Trim, kEnd, 8, int(NLEEdit_Alone))),
            "A0+8@20 / B0+10@20");

        row("what follows a longer clip moves on all levels", levels,
            On('A', &Edits::RippleTrim, kEnd, 14, 0), "A0+14@20 B14+10@20 / C16+5@0");
        row("and on one", levels, On('A', &Edits::RippleTrim, kEnd, 14, int(NLEEdit_OneLevel)),
            "A0+14@20 B14+10@20 / C12+5@0");
        row("and on those that are not locked", levels,
            Locked(1, On('A', &Edits::RippleTrim, kEnd, 14, 0)), "A0+14@20 B14+10@20 / C12+5@0");
        row("a rippled beginning stays in its place", levels,
            On('A', &Edits::RippleTrim, kBegin, 4, 0), "A0+6@24 B6+10@20 / C8+5@0");
        row("what follows does not run into others", "A0+10@0 B10+5@0 / C2+9@0 D12+3@0",
            On('A', &Edits::RippleTrim, kEnd, 4, 0), Refused(NLEReason_ClipsOverlap));
        row("a rippled end takes its transition along", joined,
            On('A', &Edits::RippleTrim, kEnd, 14, 0), "A0+14@20 B10+10@20 ~10+4");

        row("a roll moves the cut", two, On('A', &Edits::Roll, kEnd, 13, 0), "A0+13@20 B13+7@23");
        row("from the other side as well", two, On('B', &Edits::Roll, kBegin, 7, 0),
            "A0+7@20 B7+13@17");
        row("a roll takes the transition along", joined, On('A', &Edits::Roll, kEnd, 13, 0),
            "A0+13@20 B9+7@23 ~9+4");
        row("a roll ends where material does", "A0+10@20 B10+10@5",
            On('A', &Edits::Roll, kEnd, 1, int(NLEEdit_Clamp)), "A0+5@20 B5+15@0");
        row("a roll beside a gap is a trim", "A0+10@20 B20+5@0", On('A', &Edits::Roll, kEnd, 12, 0),
            "A0+12@20 B20+5@0");

        row("a slip changes the material alone", two, On('A', &Edits::Slip, 5, 0),
            "A0+10@25 B10+10@20");
        row("a slip ends where material does", two, On('A', &Edits::Slip, 500, int(NLEEdit_Clamp)),
            "A0+10@90 B10+10@20");
        row("a slide takes from one neighbour and gives to the other", three,
            On('B', &Edits::Slide, 3, 0), "A0+13@20 B13+5@20 C18+7@23");
        row("a slide uses gaps up", "A0+10@20 B12+5@20 C20+10@20", On('B', &Edits::Slide, 2, 0),
            "A0+10@20 B14+5@20 C20+10@20");
        row("a slide leaves the neighbour a frame", three,
            On('B', &Edits::Slide, -50, int(NLEEdit_Clamp)), "A0+1@20 B1+5@20 C6+19@11");

        row("a clip comes in over the middle of another", "A0+20@20",
            Put('N', 5, 5, NLEEdit_Overwrite), "A0+5@20 N5+5@0 A10+10@30");
        row("and over all of one and parts of others", three, Put('N', 10, 8, NLEEdit_Overwrite),
            "A0+8@20 N8+10@0 C18+7@23");
        row("but not where something stands", two, Put('N', 5, 8, 0),
            Refused(NLEReason_ClipsOverlap));
        row("an insertion cuts and makes way", "A0+10@20 / B0+4@0 C8+5@0",
            Put('N', 5, 4, NLEEdit_Insert), "A0+4@20 N4+5@0 A9+6@24 / B0+4@0 C13+5@0");
        row("but not within a transition", joined, Put('N', 5, 8, NLEEdit_Insert),
            Refused(NLEReason_WithinTransition));

        row("a stretch is lifted", "A0+10@20 B10+10@20 / C0+20@0",
            OnAll(&Edits::Lift, 5, 15, int(NLEEdit_AllLevels)),
            "A0+5@20 B15+5@25 / C0+5@0 C15+5@15");
        row("on one level", "A0+10@20 / C0+20@0", OnAll(&Edits::Lift, 5, 15, 1),
            "A0+10@20 / C0+5@0 C15+5@15");
        row("with a transition", joined, OnAll(&Edits::Lift, 8, 12, 0), "A0+8@20 B12+4@26");
        row("beside a transition", joined, OnAll(&Edits::Lift, 12, 14, 0),
            "A0+10@20 B6+6@20 ~6+4 B14+2@28");
        row("a stretch is extracted", "A0+10@20 B10+10@20 / C0+20@0",
            OnAll(&Edits::Extract, 5, 15, int(NLEEdit_AllLevels)),
            "A0+5@20 B5+5@25 / C0+5@0 C5+5@15");

        row("a clip moves", two, On('A', &Edits::Move, 30, 1, 0), "B10+10@20 / A30+10@20");
        row("over another", "A0+10@0 B10+5@0", On('A', &Edits::Move, 8, 0, int(NLEEdit_Overwrite)),
            "A8+10@0");
        row("up to another", "A0+10@0 B15+5@0", On('A', &Edits::Move, 12, 0, int(NLEEdit_Clamp)),
            "A5+10@0 B15+5@0");
        row("not to before the first frame", alone, On('A', &Edits::Move, -1, 0, 0),
            Refused(NLEReason_OutOfRange));
        row("not below the lowest level", alone, On('A', &Edits::Move, 0, -1, 0),
            Refused(NLEReason_OutOfRange));
        row("a transition shrinks when a clip moves away", joined, On('B', &Edits::Move, 8, 0, 0),
            "A0+10@20 B8+10@20 ~8+2");
        row("a clip does not move to the other side of its transition", joined,
            On('A', &Edits::Move, 15, 0, 0), Refused(NLEReason_ClipsOverlap));
        row("a group moves over frames and levels, its own members not in the way",
            "A0+10@0 B10+5@0 / C0+5@0", Grouped("ABC", On('A', &Edits::Move, 5, 1, 0)),
            "/ A5+10@0 B15+5@0 / C5+5@0");
        row("a group with a locked member stays", pair,
            Grouped("AB", Locked(1, On('A', &Edits::Move, 5, 0, 0))),
            Refused(NLEReason_LevelLocked));
        row("a locked level stays", alone, Locked(0, On('A', &Edits::Trim, kEnd, 35, 0)),
            Refused(NLEReason_LevelLocked));
        row("nothing moves to a locked level", alone, Locked(1, On('A', &Edits::Move, 0, 1, 0)),
            Refused(NLEReason_LevelLocked));

        row("a clip is deleted with its transition", joined, On('A', &Edits::Delete, 0),
            "B6+10@20");
        row("a deleted transition leaves a cut", joined, On('~', &Edits::Delete, 0),
            "A0+8@20 B8+8@22");
        row("a gap is closed on all levels", "A0+10@0 B10+5@0 C15+5@0 / D15+5@0",
            On('B', &Edits::RippleDelete, 0), "A0+10@0 C10+5@0 / D10+5@0");
        row("between two transitions", "A0+10@0 B8+10@20 ~8+2 C16+10@20 ~16+2",
            On('B', &Edits::RippleDelete, 0), "A0+10@0 C10+10@20");
        row("each gap by its own length", "A0+5@0 B5+5@0 C10+5@0 D15+5@0",
            Grouped("AC", On('A', &Edits::RippleDelete, 0)), "B0+5@0 D5+5@0");
        row("a gap closes", "A0+10@0 B15+5@0 / C0+20@0", OnAll(&Edits::CloseGap, 12, 0),
            "A0+10@0 B10+5@0 / C0+20@0");
        row("as far as all levels have one", "A0+10@0 B15+5@0 / C0+11@0 D18+5@0",
            OnAll(&Edits::CloseGap, 12, int(NLEEdit_AllLevels)),
            "A0+10@0 B11+5@0 / C0+11@0 D14+5@0");
        row("a clip is no gap", two, OnAll(&Edits::CloseGap, 12, 0), two);

        row("a transition lies over the cut", two, Join('A', kEnd, 4), "A0+12@20 B8+12@18 ~8+4");
        row("where both have material", "A0+10@90 B10+10@20", Join('B', kBegin, 4),
            Refused(NLEReason_NoMaterial));
        row("or within a clip alone", alone, Join('A', kEnd, 4), "A30+10@20 ~36+4");
        row("no two on one cut", joined, Join('A', kEnd, 2), Refused(NLEReason_ClipsOverlap));

        row("copies keep distances and transitions", "A0+10@20 B6+10@20 ~6+4 / C2+5@0",
            Pasted("ABC", 20, 1, 0),
            "A0+10@20 B6+10@20 ~6+4 / C2+5@0 A20+10@20 B26+10@20 ~26+4 / C22+5@0");
        row("copies make way", two, Pasted("A", 10, 0, NLEEdit_Insert),
            "A0+10@20 A10+10@20 B20+10@20");
    }

    void edits()
    {
        QFETCH(QString, before);
        QFETCH(Act, act);
        QFETCH(QString, after);
        WatchCalls();
        EditedProject p(before);
        const QString first = p.Document();
        const HRESULT result = act(p);
        const QString last = p.Document();
        if (FAILED(result))
            QCOMPARE(Refused(LastFailureOfThread().reason), after);
        else
            QCOMPARE(p.Text(), after);
        if (result != S_OK)
            QCOMPARE(p.Text(), before);
        QCOMPARE(Fault(p), QString());
        Rewind(p);
        QCOMPARE(p.Document(), first);
        Forward(p);
        QCOMPARE(p.Document(), last);
        QCOMPARE(Fault(p), QString());
    }

    /// Twice as fast, a clip has half as many frames, and each keeps its material.
    void speedCounts()
    {
        EditedProject p("A0+10@20");
        const auto bag = NLEComPtr<INLEProperties>(&p.Find('A')->Bag());
        bag->SetRational(NLEKey::Speed::kScale, {2, 1});
        bag->SetInt(NLEKey::Speed::kEnabled, 1);
        QCOMPARE(p.Text(), QString("A0+5@10"));
        QCOMPARE(p.editing->Split(p.Find('A'), 2, 0), S_OK);
        QCOMPARE(p.Text(), QString("A0+2@10 A2+3@12"));
        QCOMPARE(p.editing->Slip(p.Find('A'), 500, NLEEdit_Clamp), S_OK);
        QCOMPARE(p.Text(), QString("A0+2@48 A2+3@12"));
    }

    /// What counts from the ends of a clip stays with its frames, and fades with the outer edges.
    void settingsStayWithTheMaterial()
    {
        EditedProject p("A0+50@20");
        TimelineNode& left = *p.Find('A');
        left.Audio().settings.volumePoints = {{1, 0.5}};
        left.Audio().settings.fadeIn = left.Audio().settings.fadeOut = true;
        NLEComPtr<INLEProperties>(&left.Bag())->SetInt(NLEKey::Freeze::kFreeze_Enabled, 1);
        const int frozen = *left.MakeLayer()->frozenFrame;
        QCOMPARE(p.editing->Split(&left, 20, 0), S_OK);
        const TimelineNode& right = *p.editing->Timeline().Index().At(0, 20);
        QCOMPARE(right.Audio().settings.volumePoints[0].time, 1 - 20 / 25.0);
        QVERIFY(left.Audio().settings.fadeIn && !left.Audio().settings.fadeOut);
        QVERIFY(!right.Audio().settings.fadeIn && right.Audio().settings.fadeOut);
        QCOMPARE(*right.MakeLayer()->frozenFrame, frozen);
        Rewind(p);
        QVERIFY(left.Audio().settings.fadeOut);
    }

    void aDragIsOneStep()
    {
        EditedProject p("A0+10@20 B10+10@20");
        QCOMPARE(p.editing->EndStep(), E_FAIL);
        QCOMPARE(p.editing->BeginStep(), S_OK);
        for (const int position : {30, 12, 40}) {
            QCOMPARE(p.editing->RewindStep(), S_OK);
            QCOMPARE(p.editing->Move(p.Find('A'), position, 0, NLEEdit_Overwrite), S_OK);
        }
        QCOMPARE(p.editing->Undo(), E_FAIL);
        QCOMPARE(p.editing->EndStep(), S_OK);
        QCOMPARE(p.Text(), QString("B10+10@20 A40+10@20"));
        QCOMPARE(p.editing->Undo(), S_OK);
        QCOMPARE(p.Text(), QString("A0+10@20 B10+10@20"));
        QCOMPARE(p.editing->Undo(), S_FALSE);
    }

    void historyKeepsNodesAndCounts()
    {
        EditedProject p("A0+10@20 B10+10@20");
        const NLEComPtr<TimelineNode> clip = p.Find('A');
        p.editing->Delete(clip.get(), 0);
        QVERIFY(!clip->Parent());
        p.editing->Undo();
        QCOMPARE(p.Find('A'), clip.get());
        p.editing->Redo();
        p.editing->Undo();
        p.editing->SetMostSteps(2);
        for (int i = 0; i < 3; ++i)
            p.editing->Slip(clip.get(), 1, 0);
        int undo = -1;
        int redo = -1;
        p.editing->GetStepCounts(&undo, &redo);
        QCOMPARE(undo, 2);
        QCOMPARE(redo, 0);
        clip->SetPosition(100); // from elsewhere
        QCOMPARE(p.editing->Undo(), S_FALSE);
        QCOMPARE(Fault(p), QString());
    }

    void changedClipsAreTold_data()
    {
        QTest::addColumn<bool>("hasTwo");
        QTest::addColumn<QString>("changed");
        QTest::newRow("of an edit") << false << "A~";
        QTest::newRow("of a step of two") << true << "A~C";
    }

    void changedClipsAreTold()
    {
        QFETCH(bool, hasTwo);
        QFETCH(QString, changed);
        EditedProject p("A0+10@20 B6+10@20 ~6+4 C30+5@0");
        p.editing->BeginStep();
        p.editing->Trim(p.Find('A'), kEnd, 8, 0);
        if (hasTwo)
            p.editing->Slip(p.Find('C'), 1, 0);
        p.editing->EndStep();
        for (const bool isUndone : {false, true}) {
            if (isUndone)
                p.editing->Undo();
            NLEComPtr<INLETimelineEnumerator> walk;
            p.editing->GetChanged(walk.put());
            QStringList letters;
            NLEComPtr<INLETimeline> clip;
            while (walk->GetCurrent(clip.put()) == S_OK) {
                letters << TimelineNode::From(clip.get())->Bag().TextOrEmpty(L"letter");
                walk->Next();
            }
            QCOMPARE(letters.join(""), changed);
        }
    }

    void snaps_data()
    {
        QTest::addColumn<int>("frame");
        QTest::addColumn<QString>("moving");
        QTest::addColumn<int>("snapped");
        QTest::newRow("to an end") << 13 << "" << 11;
        QTest::newRow("to the nearest") << 17 << "" << 20;
        QTest::newRow("before the first") << -3 << "" << 0;
        QTest::newRow("to a marker") << 52 << "" << 50;
        QTest::newRow("not from further off") << 40 << "" << -1;
        QTest::newRow("not to itself") << 21 << "B" << -1;
        QTest::newRow("where another one stands as well") << 9 << "A" << 10;
    }

    void snaps()
    {
        QFETCH(int, frame);
        QFETCH(QString, moving);
        QFETCH(int, snapped);
        EditedProject p("A0+10@20 / C10+1@0 B20+10@20");
        const NLEMarkerRecord marker = {50, 0, 0};
        int index = -1;
        p.project->Markers().AddMarker(&marker, L"", &index);
        int found = -1;
        TimelineNode* clip = moving.isEmpty() ? nullptr : p.Find(moving[0]);
        QCOMPARE(p.editing->Snap(frame, 5, clip, &found), snapped < 0 ? S_FALSE : S_OK);
        QCOMPARE(found, snapped);
    }

    void groupsNestAndFallApart()
    {
        EditedProject p("A0+10@20 B10+10@20 C20+10@20 D30+10@20");
        const auto family = [&](char letter) {
            return int(p.editing->Timeline().Groups().Family(*p.Find(letter)).size());
        };
        const auto group = [&](const char* letters) {
            const auto clips = Clips(p, letters);
            return p.editing->Group(clips.data(), int(clips.size()));
        };
        QCOMPARE(group("AB"), S_OK);
        QCOMPARE(group("BC"), S_OK);
        QCOMPARE(family('A'), 3);
        QCOMPARE(group("AC"), E_INVALIDARG);
        QCOMPARE(p.editing->Delete(p.Find('C'), NLEEdit_Alone), S_OK);
        QCOMPARE(Fault(p), QString());
        QCOMPARE(p.editing->Ungroup(p.Find('A')), S_OK);
        QCOMPARE(family('B'), 1);
        QCOMPARE(p.editing->Ungroup(p.Find('A')), S_FALSE);
        QCOMPARE(group("DD"), E_INVALIDARG);
    }

    /// Random edits, as many as COMMONLIB_EDITS says.
    void longRuns()
    {
        const int edits = std::max(2000, qEnvironmentVariableIntValue("COMMONLIB_EDITS"));
        const unsigned seed = Seed();
        RandomEdits run(seed);
        EditedProject& p = run.project;
        p.editing->SetMostSteps(edits);
        const QString first = p.Document();
        for (int i = 0; i < edits; ++i) {
            const QString before = p.Text();
            const auto [name, result] = run.Next();
            const QString what = QString("%1, number %2 from seed %3").arg(name).arg(i).arg(seed);
            QVERIFY2(result == S_OK || p.Text() == before, qPrintable(what));
            const QString fault = Fault(p);
            QVERIFY2(fault.isEmpty(),
                     qPrintable(fault + " after " + what + ": " + before + " => " + p.Text()));
        }
        Forward(p);
        const QString last = p.Document();
        Rewind(p);
        QCOMPARE(p.Document(), first);
        Forward(p);
        QCOMPARE(p.Document(), last);
        for (const char* name : run.NeverDone())
            QFAIL(qPrintable(QString("%1 was never done").arg(name)));
    }
};

QTEST_GUILESS_MAIN(tst_Editing)
#include "tst_editing.moc"

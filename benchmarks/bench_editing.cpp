// SPDX-License-Identifier: LGPL-2.1-or-later
// What edits cost in 100 clips and in 10,000: the ratio should be near 1, whatever the edit. What
// moves many clips is timed by the clip. Each edit is done and undone, and both are timed.
#include "NLECore/model/Editing.h"
#include "NLECore/model/SourceNodes.h"
#include "benchmarks/Pairs.h"

#include <cstdio>
#include <functional>

using namespace nle;

namespace {

constexpr int kSmall = 100;
constexpr int kLarge = 10000;
constexpr int kLevels = 4;
constexpr int kFrames = 20; ///< from one clip of a level to the next, of which half are empty

/// Clips in a row on each of the levels.
struct Project
{
    explicit Project(int count)
        : root(MakeCom<ProjectNode>(kDefaultProfile)), editing(Editing::Of(*root))
    {
        for (int i = 0; i < count; ++i) {
            clips.push_back(
                MakeCom<ColorClip>(0xFF000000u, NLESize{64, 48}, kDefaultProfile.frameRate));
            const NLERange range = {100, 100 + kFrames / 2 - 1};
            clips.back()->SetPlace({i / kLevels * kFrames, i % kLevels, range});
            root->Adopt(clips.back());
        }
    }
    /// One of twenty clips near the end, from where edits move alike many clips in any project.
    INLETimeline* Clip(int call) const
    {
        return clips[clips.size() - 40 + size_t(call % 20)].get();
    }

    NLEComPtr<ProjectNode> root;
    NLEComPtr<Editing> editing;
    std::vector<NLEComPtr<TimelineNode>> clips;
};

using Edit = std::function<HRESULT(Editing&, INLETimeline*, int position, int level)>;

/// An edit and its undoing, of another clip each time.
auto Repeated(const Project& project, const Edit& edit)
{
    return [&project, edit, call = 0]() mutable {
        INLETimeline* clip = project.Clip(call++ % 20);
        int position = 0;
        int level = 0;
        clip->GetPosition(&position);
        clip->GetLevel(&level);
        const HRESULT result = edit(*project.editing, clip, position, level);
        if (FAILED(result))
            std::fputs("an edit was refused\n", stderr);
        if (result == S_OK)
            project.editing->Undo();
    };
}

/// All clips but the first ones make way, until kLarge have moved.
auto RippledAll(const Project& project)
{
    return [&project] {
        for (std::size_t moved = 0; moved < kLarge; moved += project.clips.size()) {
            project.editing->RippleTrim(project.clips[0].get(), NLEEdge_End, kFrames / 2 - 1, 0);
            project.editing->Undo();
        }
    };
}

} // namespace

int main(int argc, char** argv)
{
    const Project small(kSmall);
    const Project large(kLarge);
    const Peer few = Ours(QString("%1 clips").arg(kSmall));
    const std::pair<const char*, Edit> edits[] = {
        {"split", [](Editing& e, INLETimeline* c, int p, int) { return e.Split(c, p + 5, 0); }},
        {"trim", [](Editing& e, INLETimeline* c, int p,
                    int) { return e.Trim(c, NLEEdge_Begin, p + 2, 0); }},
        {"ripple trim", [](Editing& e, INLETimeline* c, int p,
                           int) { return e.RippleTrim(c, NLEEdge_End, p + 12, 0); }},
        {"roll",
         [](Editing& e, INLETimeline* c, int p, int) { return e.Roll(c, NLEEdge_End, p + 12, 0); }},
        {"slip", [](Editing& e, INLETimeline* c, int, int) { return e.Slip(c, 3, 0); }},
        {"slide", [](Editing& e, INLETimeline* c, int, int) { return e.Slide(c, 3, 0); }},
        {"move", [](Editing& e, INLETimeline* c, int p, int) { return e.Move(c, p, kLevels, 0); }},
        {"move over", [](Editing& e, INLETimeline* c, int p,
                         int l) { return e.Move(c, p + kFrames, l, NLEEdit_Overwrite); }},
        {"delete", [](Editing& e, INLETimeline* c, int, int) { return e.Delete(c, 0); }},
        {"ripple delete",
         [](Editing& e, INLETimeline* c, int, int) { return e.RippleDelete(c, NLEEdit_OneLevel); }},
        {"lift", [](Editing& e, INLETimeline*, int p, int) { return e.Lift(p + 2, p + 5, -1); }},
        {"extract",
         [](Editing& e, INLETimeline*, int p, int) { return e.Extract(p + 2, p + 5, -1); }},
        {"close gap",
         [](Editing& e, INLETimeline*, int p, int l) { return e.CloseGap(p + 15, l); }},
        {"copy, paste",
         [](Editing& e, INLETimeline* c, int p, int) {
             NLEComPtr<INLETimeline> board;
             e.Copy(&c, 1, board.put());
             return e.Paste(board.get(), p, kLevels, 0);
         }},
        {"insert",
         [](Editing& e, INLETimeline* c, int p, int l) {
             NLEComPtr<INLETimeline> board;
             e.Copy(&c, 1, board.put());
             return e.Paste(board.get(), p + 5, l, NLEEdit_Insert);
         }},
        {"group",
         [&](Editing& e, INLETimeline* c, int, int) {
             INLETimeline* other = nullptr;
             e.GetNeighbour(c, NLEEdge_End, &other);
             INLETimeline* pair[] = {c, other};
             const HRESULT result = e.Group(pair, 2);
             other->Release();
             return result;
         }},
        {"snap",
         [](Editing& e, INLETimeline* c, int p, int) {
             int snapped = 0;
             e.Snap(p + 13, 5, c, &snapped);
             return S_FALSE;
         }},
        {"clip at",
         [](Editing& e, INLETimeline*, int p, int l) {
             NLEComPtr<INLETimeline> found;
             e.GetClipAt(p + 5, l, found.put());
             return S_FALSE;
         }},
    };
    for (const auto& [name, edit] : edits)
        AddPair(QString("%1, %2 clips").arg(name).arg(kLarge), Repeated(large, edit), few,
                Repeated(small, edit));
    AddPair(QString("each moved by a ripple trim, %1 clips").arg(kLarge), RippledAll(large), few,
            RippledAll(small), kLarge);
    return RunPairs(argc, argv);
}

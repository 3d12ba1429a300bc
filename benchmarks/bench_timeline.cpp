// SPDX-License-Identifier: LGPL-2.1-or-later
// What the object layer adds to the engine's own calls, and how it scales: getters, listing,
// building and editing of a project. Each library call runs beside the same engine calls made bare.
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/NLEKey.h"
#include "benchmarks/Pairs.h"

#include <QCoreApplication>

#include <cstdio>
#include <memory>
#include <vector>

namespace {

using Engine = NLEComPtr<INLETimeline>;

constexpr int kSmall = 1000;
constexpr int kLarge = 10000;

PlayerMaterProvider* Provider()
{
    return NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
}

/// A project with wrapped clips.
struct Project
{
    explicit Project(int count) : root(Provider()->CreateProjectTimeline(), ExactType_Project, {})
    {
        clips.reserve(size_t(count));
        for (int i = 0; i < count; ++i) {
            clips.push_back(std::make_unique<NLETimeline>(
                Provider()->CreateColorTimeline(Qt::red, QSize(64, 48), 25), ExactType_Color,
                nullptr));
            root.AddClipSuper(clips.back().get(), i * 25, i % 8);
        }
    }

    NLETimeline root;
    std::vector<std::unique_ptr<NLETimeline>> clips;
};

/// A value that \a get writes through its last parameter.
template <typename T, typename Interface, typename... Arguments>
T Read(Interface* engine, HRESULT (Interface::*get)(Arguments..., T*),
       const Arguments&... arguments)
{
    T value{};
    (engine->*get)(arguments..., &value);
    return value;
}

void CompareGetters(const NLETimeline& clip, const NLETimeline& project)
{
    INLETimeline* node = clip.GetSrc().get();
    const Engine root = project.GetSrc();
    INLEProperties* bag = clip.GetPropW().get();
    AddPair(
        "GetPosition", [&clip] { return clip.GetPosition(); }, Bare("engine"),
        [=] { return Read(node, &INLETimeline::GetPosition); });
    AddPair(
        "GetRange", [&clip] { return clip.GetRange(); }, Bare("engine"),
        [=] { return Read(node, &INLETimeline::GetRange); });
    AddPair(
        "GetPlayLen", [&clip] { return clip.GetPlayLen(); }, Bare("engine"),
        [=] { return NLERangeLength(Read(node, &INLETimeline::GetRange)); });
    AddPair(
        "GetClipEnable", [&clip] { return clip.GetClipEnable(); }, Bare("engine"),
        [=] { return Read(node, &INLETimeline::GetEnabled); });
    AddPair(
        "GetRenderFrameRate", [&clip] { return clip.GetRenderFrameRate(); }, Bare("engine"),
        [=] { return Read(node, &INLETimeline::GetRenderFrameRate); });
    AddPair(
        "GetID", [&clip] { return clip.GetID(); }, Bare("engine"),
        [=] { return Read(node, &INLETimeline::GetId); });
    AddPair(
        "IsFreezeEnable", [&clip] { return clip.IsFreezeEnable(); }, Bare("engine"),
        [=] {
            int value = 0;
            bag->GetInt(NLEKey::Freeze::kFreeze_Enabled, &value);
            return value;
        });
    AddPair(
        "GetTimelineGuid", [&clip] { return clip.GetTimelineGuid(); }, Bare("engine"),
        [=] {
            wchar_t buffer[256] = L"0";
            bag->GetString(L"Key_TimelineGuid", buffer, 256);
            return buffer[0];
        });
    AddPair(
        "GetClipCount", [&project] { return project.GetClipCount(); }, Bare("engine"),
        [root] {
            const auto composite = root.query<INLETimelineComposite>();
            return Read(composite.get(), &INLETimelineComposite::GetClipCount);
        });
}

/// The clips of \a root, listed without the library.
std::vector<Engine> BareChilds(const Engine& root)
{
    std::vector<Engine> clips;
    NLEComPtr<INLETimelineEnumerator> walk;
    root.query<INLETimelineComposite>()->GetEnumerator(1, walk.put());
    do {
        Engine clip;
        walk->GetCurrent(clip.put());
        clips.push_back(std::move(clip));
    } while (walk->Next() == S_OK);
    return clips;
}

void CompareListing(const NLETimeline& project)
{
    AddPair(
        QString("GetChilds of %1 clips").arg(project.GetClipCount()),
        [&project] { return project.GetChilds(); }, Bare("engine"),
        [&project] { return BareChilds(project.GetSrc()); });
}

void CompareBuilding()
{
    const auto build = [](int count) {
        return [count] {
            for (int built = 0; built < kLarge; built += count)
                const Project project(count);
        };
    };
    AddPair(QString("a clip, in building and ending a project of %1").arg(kLarge), build(kLarge),
            Ours(QString("a project of %1").arg(kSmall)), build(kSmall), kLarge);
}

void CompareEdits(const Project& hundred, const Project& large)
{
    using Edit = void (*)(NLETimeline&, int);
    const std::pair<const char*, Edit> edits[] = {
        {"position", [](NLETimeline& clip, int value) { clip.SetPosition(value); }},
        {"range", [](NLETimeline& clip, int value) { clip.SetRange(0, value); }},
        {"level", [](NLETimeline& clip, int value) { clip.SetLevel(value); }},
        {"property", [](NLETimeline& clip, int value) { clip.SetFreezeEnable(value & 1); }},
    };
    for (const auto& [name, edit] : edits) {
        const auto repeat = [edit = edit](const Project& project) {
            // A hundred clips from all over either project, so that the working set is the same.
            const size_t stride = project.clips.size() / 100;
            return [&project, edit, stride, value = 0]() mutable {
                ++value;
                edit(*project.clips[size_t(value) % 100 * stride], value % 5000);
            };
        };
        AddPair(QString("an edit of %1, %2 clips").arg(name).arg(large.clips.size()), repeat(large),
                Ours(QString("%1 clips").arg(hundred.clips.size())), repeat(hundred));
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (!Provider()->CreateProjectTimeline()) {
        std::fputs("the engine did not start\n", stderr);
        return 1;
    }
    int result = 0;
    {
        const Project hundred(100);
        const Project large(kLarge);
        hundred.clips.front()->SetTimelineGuid("{0d5e4f2a-88c1-4d7b-9a51-5c0a3b6f7e10}");
        hundred.clips.front()->SetFreezeEnable(true);
        CompareGetters(*hundred.clips.front(), hundred.root);
        CompareListing(large.root);
        CompareEdits(hundred, large);
        CompareBuilding();
        result = RunPairs(argc, argv);
    }
    NLEWraper::Release();
    return result;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
// What the object layer adds to the engine's own calls, and how it scales: getters, listing,
// building and editing of a project. Each library call runs beside the same engine calls made bare,
// interleaved, and is compared by medians.
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/NLEKey.h"
#include "benchmarks/Median.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

namespace {

using Action = std::function<void()>;
using Engine = NLEComPtr<INLETimeline>;

constexpr int kRounds = 15;
constexpr int kSmall = 1000;
constexpr int kLarge = 10000;

/// Nanoseconds that one run of \a action takes.
double Time(const Action& action)
{
    QElapsedTimer timer;
    timer.start();
    action();
    return double(timer.nsecsElapsed());
}

struct Pair
{
    double first;
    double second;
};

/// Medians of two actions that take turns.
Pair Interleaved(const Action& first, const Action& second, int rounds = kRounds)
{
    std::vector<double> firsts;
    std::vector<double> seconds;
    for (int round = 0; round < rounds; ++round) {
        firsts.push_back(Time(first));
        seconds.push_back(Time(second));
    }
    return {Median(firsts), Median(seconds)};
}

/// Keeps the compiler from leaving out a call whose result nobody uses.
template <typename T>
void Use(const T& value)
{
    asm volatile("" : : "g"(&value) : "memory");
}

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

template <typename Library, typename Bare>
void CompareGetter(const char* name, Library library, Bare bare)
{
    constexpr int calls = 20000;
    const auto repeat = [](auto call) {
        return [call] {
            for (int i = 0; i < calls; ++i)
                Use(call());
        };
    };
    const Pair times = Interleaved(repeat(library), repeat(bare), 31);
    std::printf("  %-24s %8.1f ns, bare %8.1f ns, ratio %.2f\n", name, times.first / calls,
                times.second / calls, times.first / times.second);
}

/// A value that \a get writes through its last parameter.
template <typename T, typename Interface, typename... Arguments>
T Read(Interface* engine, HRESULT (Interface::*get)(Arguments..., T*),
       const Arguments&... arguments)
{
    T value{};
    (engine->*get)(arguments..., &value);
    return value;
}

void Getters(const NLETimeline& clip, const NLETimeline& project)
{
    std::puts("getters (target: ratio at most 3)");
    INLETimeline* node = clip.GetSrc().get();
    const Engine root = project.GetSrc();
    INLEProperties* bag = clip.GetPropW().get();
    CompareGetter(
        "GetPosition", [&] { return clip.GetPosition(); },
        [=] { return Read(node, &INLETimeline::GetPosition); });
    CompareGetter(
        "GetRange", [&] { return clip.GetRange(); },
        [=] { return Read(node, &INLETimeline::GetRange); });
    CompareGetter(
        "GetPlayLen", [&] { return clip.GetPlayLen(); },
        [=] { return NLERangeLength(Read(node, &INLETimeline::GetRange)); });
    CompareGetter(
        "GetClipEnable", [&] { return clip.GetClipEnable(); },
        [=] { return Read(node, &INLETimeline::GetEnabled); });
    CompareGetter(
        "GetRenderFrameRate", [&] { return clip.GetRenderFrameRate(); },
        [=] { return Read(node, &INLETimeline::GetRenderFrameRate); });
    CompareGetter(
        "GetID", [&] { return clip.GetID(); }, [=] { return Read(node, &INLETimeline::GetId); });
    CompareGetter(
        "IsFreezeEnable", [&] { return clip.IsFreezeEnable(); },
        [=] {
            int value = 0;
            bag->GetInt(NLEKey::Freeze::kFreeze_Enabled, &value);
            return value;
        });
    CompareGetter(
        "GetTimelineGuid", [&] { return clip.GetTimelineGuid(); },
        [=] {
            wchar_t buffer[256] = L"0";
            bag->GetString(L"Key_TimelineGuid", buffer, 256);
            return buffer[0];
        });
    CompareGetter(
        "GetClipCount", [&] { return project.GetClipCount(); },
        [&] {
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

void Listing(const NLETimeline& project)
{
    const Pair times = Interleaved([&] { Use(project.GetChilds()); },
                                   [&] { Use(BareChilds(project.GetSrc())); }, 41);
    std::printf("GetChilds of %d clips: %.2f ms (target: below 5), bare %.2f ms, ratio %.2f\n",
                project.GetChilds().size(), times.first / 1e6, times.second / 1e6,
                times.first / times.second);
}

void Building()
{
    std::unique_ptr<Project> kept; // destroyed outside of the other's time
    const auto build = [&kept](int count) {
        return [&kept, count] { kept = std::make_unique<Project>(count); };
    };
    std::vector<double> small;
    std::vector<double> large;
    for (int round = 0; round < kRounds; ++round) {
        small.push_back(Time(build(kSmall)));
        kept.reset();
        large.push_back(Time(build(kLarge)));
        kept.reset();
    }
    std::printf("building: %d clips %.2f ms, %d clips %.2f ms, ratio %.2f (target: at most 11)\n",
                kSmall, Median(small) / 1e6, kLarge, Median(large) / 1e6,
                Median(large) / Median(small));
}

void Edits(const Project& hundred, const Project& large)
{
    using Edit = void (*)(NLETimeline&, int);
    const std::pair<const char*, Edit> edits[] = {
        {"position", [](NLETimeline& clip, int value) { clip.SetPosition(value); }},
        {"range", [](NLETimeline& clip, int value) { clip.SetRange(0, value); }},
        {"level", [](NLETimeline& clip, int value) { clip.SetLevel(value); }},
        {"property", [](NLETimeline& clip, int value) { clip.SetFreezeEnable(value & 1); }},
    };
    std::printf("edits in projects of %zu and %zu clips (target: below 20 us)\n",
                hundred.clips.size(), large.clips.size());
    int value = 0;
    for (const auto& [name, edit] : edits) {
        constexpr int calls = 5000;
        const auto repeat = [&value, edit = edit](const Project& project) {
            // A hundred clips from all over either project, so that the working set is the same.
            const size_t stride = project.clips.size() / 100;
            return [&value, &project, edit, stride] {
                for (int i = 0; i < calls; ++i)
                    edit(*project.clips[size_t(i) % 100 * stride], ++value);
            };
        };
        const Pair times = Interleaved(repeat(hundred), repeat(large), 31);
        std::printf("  %-10s %.3f us, %.3f us, ratio %.2f\n", name, times.first / calls / 1e3,
                    times.second / calls / 1e3, times.second / times.first);
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
    {
        const Project hundred(100);
        const Project large(kLarge);
        hundred.clips.front()->SetTimelineGuid("{0d5e4f2a-88c1-4d7b-9a51-5c0a3b6f7e10}");
        hundred.clips.front()->SetFreezeEnable(true);
        Getters(*hundred.clips.front(), hundred.root);
        Listing(large.root);
        Edits(hundred, large);
    }
    Building();
    NLEWraper::Release();
    return 0;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
// Opening, saving and cloning projects of many clips of fifty files. Opening is compared with what
// must be done in any case: describing the fifty files one after the other, without the library.
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "NLECore/media/MediaInfo.h"
#include "TestMedia.h"
#include "benchmarks/Median.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>
#include <vector>

namespace {

using Node = NLEComPtr<INLETimeline>;

constexpr int kFiles = 50;
constexpr int kRounds = 5;
/// Beyond the description of the files.
struct Size
{
    int clips;
    double targetMs;
};
constexpr Size kSizes[] = {{1000, 300}, {10000, 1000}};

double MillisecondsOf(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

PlayerMaterProvider* Provider()
{
    return NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
}

bool MakeFiles(const QTemporaryDir& folder, QStringList* paths)
{
    TestClip clip;
    clip.frames = 100;
    clip.bframes = 2;
    clip.audioCodec = QStringLiteral("aac");
    const QString first = folder.filePath(QStringLiteral("0.mp4"));
    const QString failure = MakeTestClip(first, clip);
    if (!failure.isEmpty())
        std::fprintf(stderr, "%s\n", qPrintable(failure));
    bool isMade = failure.isEmpty();
    *paths << first;
    for (int i = 1; i < kFiles; ++i) {
        *paths << folder.filePath(QStringLiteral("%1.mp4").arg(i));
        isMade = isMade && QFile::copy(first, paths->last());
    }
    return isMade;
}

/// Another time of change, so that nobody takes the files for known.
void Touch(const QStringList& paths, int round)
{
    const QDateTime time = QDateTime::currentDateTimeUtc().addSecs(-3600 - round);
    for (const QString& path : paths) {
        QFile file(path);
        if (file.open(QIODevice::ReadWrite))
            file.setFileTime(time, QFileDevice::FileModificationTime);
    }
}

/// Clips of ten frames on four levels, in turn of all files; end to end or all on one place.
Node MakeProject(const QStringList& paths, int clips, bool isPiled)
{
    const Node project = Provider()->CreateProjectTimeline();
    const auto composite = project.query<INLETimelineComposite>();
    for (int i = 0; i < clips; ++i) {
        const Node clip = Provider()->CreateMediaTimeline(paths[i % kFiles], false);
        const NLERange range = {i % 80, i % 80 + 9};
        clip->SetRange(&range);
        clip->SetPosition(isPiled ? 0 : i / 4 * 10);
        clip->SetLevel(i % 4);
        composite->AddClip(clip.get());
    }
    return project;
}

int ClipCount(const Node& project)
{
    int count = -1;
    if (const auto composite = project.query<INLETimelineComposite>())
        composite->GetClipCount(&count);
    return count;
}

struct Times
{
    std::vector<double> bare, first, again, save, clone;
};

bool Measure(const QStringList& paths, const QString& document, int round, Times* times)
{
    const std::wstring name = document.toStdWString();
    const auto serialize = Provider()->CreateDocumentSerialize();
    Node project;
    Node again;
    Node clone;
    times->bare.push_back(MillisecondsOf([&] {
        for (const QString& path : paths)
            nle::ProbeMedia(path, nullptr);
    }));
    Touch(paths, round);
    const auto load = [&](Node& node) {
        return MillisecondsOf([&] { serialize->Load(name.c_str(), node.put()); });
    };
    times->first.push_back(load(project));
    times->again.push_back(load(again));
    times->clone.push_back(MillisecondsOf([&] { project->Clone(true, clone.put()); }));
    times->save.push_back(MillisecondsOf([&] { serialize->Save(project.get(), name.c_str()); }));
    return ClipCount(clone) > 0 && ClipCount(clone) == ClipCount(again);
}

bool Run(const QStringList& paths, const QString& document, const Size& size, bool isPiled)
{
    const auto serialize = Provider()->CreateDocumentSerialize();
    serialize->Save(MakeProject(paths, size.clips, isPiled).get(), document.toStdWString().c_str());
    Times times;
    bool isWhole = true;
    for (int round = 0; round < kRounds; ++round)
        isWhole = Measure(paths, document, round, &times) && isWhole;
    const double bare = Median(times.bare);
    const double first = Median(times.first);
    std::printf("%d clips of %d files, %s:\n", size.clips, kFiles,
                isPiled ? "all at one time" : "one after the other");
    std::printf("  open %7.1f ms, bare description of the files %7.1f ms, ratio %.2f\n", first,
                bare, first / bare);
    std::printf("  open with known files %7.1f ms (target: at most %.0f), %.1f us per clip\n",
                Median(times.again), size.targetMs, Median(times.again) * 1e3 / size.clips);
    std::printf("  save %7.1f ms, clone %7.1f ms\n", Median(times.save), Median(times.clone));
    return isWhole;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    bool isWhole = false;
    {
        const QTemporaryDir folder;
        QStringList paths;
        isWhole = Provider()->CreateProjectTimeline() && MakeFiles(folder, &paths);
        for (const Size& size : kSizes) {
            for (const bool isPiled : {false, true})
                isWhole =
                    isWhole && Run(paths, folder.filePath(QStringLiteral("a.mlt")), size, isPiled);
        }
    }
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    return isWhole ? 0 : 1;
}

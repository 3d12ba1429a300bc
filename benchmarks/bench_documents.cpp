// SPDX-License-Identifier: LGPL-2.1-or-later
// Opening, saving and cloning projects of many clips of fifty files. Opening is compared with what
// must be done in any case: describing the fifty files one after the other, without the library.
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "NLECore/media/MediaInfo.h"
#include "TestMedia.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <vector>

namespace {

using Node = NLEComPtr<INLETimeline>;

constexpr int kFiles = 50;
constexpr int kRounds = 5;
constexpr int kCounts[] = {1000, 10000};

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
    Node project = Provider()->CreateProjectTimeline();
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
    times->bare.push_back(Seconds([&] {
        for (const QString& path : paths)
            nle::ProbeMedia(path, nullptr);
    }));
    Touch(paths, round);
    const auto load = [&](Node& node) {
        return Seconds([&] { serialize->Load(name.c_str(), node.put()); });
    };
    times->first.push_back(load(project));
    times->again.push_back(load(again));
    times->clone.push_back(Seconds([&] { project->Clone(true, clone.put()); }));
    times->save.push_back(Seconds([&] { serialize->Save(project.get(), name.c_str()); }));
    return ClipCount(clone) > 0 && ClipCount(clone) == ClipCount(again);
}

bool Run(const QStringList& paths, const QString& document, int clips, bool isPiled)
{
    const auto serialize = Provider()->CreateDocumentSerialize();
    serialize->Save(MakeProject(paths, clips, isPiled).get(), document.toStdWString().c_str());
    Times times;
    bool isWhole = true;
    for (int round = 0; round < kRounds; ++round)
        isWhole = Measure(paths, document, round, &times) && isWhole;
    const double bare = Median(times.bare);
    const QString what =
        QStringLiteral("%1 of %2 clips ") + (isPiled ? "all at one time" : "one after the other");
    Report(what.arg("opening").arg(clips), Median(times.first),
           Bare(QStringLiteral("describing the %1 files").arg(kFiles), bare));
    const std::pair<const char*, double> others[] = {{"opening again", Median(times.again)},
                                                     {"saving", Median(times.save)},
                                                     {"cloning", Median(times.clone)}};
    for (const auto& [name, seconds] : others)
        Report(what.arg(name).arg(clips), seconds, Ours("first opening", Median(times.first)));
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
        for (const int clips : kCounts) {
            for (const bool isPiled : {false, true})
                isWhole =
                    isWhole && Run(paths, folder.filePath(QStringLiteral("a.mlt")), clips, isPiled);
        }
    }
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    return isWhole ? 0 : 1;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
// Scenes of films whose cuts and dissolves are known, found by the engine and by FFmpeg's own
// filter: how many of them, how many that are none, and the time.
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"
#include "tests/support/SceneFilm.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

namespace {

constexpr int kFilms = 3;
constexpr int kShots = 12;

constexpr const char* kPan =
    "mandelbrot=size=1280x360:rate=25:start_scale=1,select=eq(n\\,0),loop=-1:1,"
    "setpts=N/25/TB,crop=640:360:x=n*6:y=0";

/// What shots are made of: still, moving and noisy pictures, zooms and pans.
const char* const kSources[] = {
    "testsrc2=@",
    "mandelbrot=@",
    "smptebars=@",
    "rgbtestsrc=@",
    "color=gray:@,noise=alls=60:allf=t",
    "life=@:mold=10:ratio=0.1:death_color=#C83232:life_color=#00ff00",
    "gradients=@:c0=#203060:c1=#e0a040:x0=0:y0=0:x1=600:y1=350:nb_colors=2",
    "sierpinski=@:type=triangle",
    kPan,
    "testsrc=@",
};

struct Score
{
    int known = 0;
    int hit = 0;
    int found = 0;
    int right = 0;
    double seconds = 0;
};

/// Shots of two to four seconds; every third follows by a dissolve. A flash in each tenth second.
SceneFilm MakeFilm(unsigned seed)
{
    std::mt19937 generator(seed);
    SceneFilm film;
    film.size = QSize(640, 360);
    film.filter = "drawbox=color=white:t=fill:enable=lt(mod(t+4\\,10)\\,0.1)";
    std::size_t last = std::size(kSources);
    for (int i = 0; i < kShots; ++i) {
        std::size_t source = last;
        while (source == last)
            source = generator() % std::size(kSources);
        last = source;
        const double dissolve = i % 3 == 2 ? 0.4 + double(generator() % 4) * 0.4 : 0;
        film.shots << SceneFilm::Shot{kSources[source], 2.0 + double(generator() % 3) + dissolve,
                                      dissolve};
    }
    return film;
}

void Judge(const QList<SceneFilm::Scene>& known, const QList<int>& found, bool dissolves,
           Score* score)
{
    for (const SceneFilm::Scene& scene : known) {
        if ((scene.tolerance > 1) != dissolves)
            continue;
        ++score->known;
        for (const int frame : found) {
            if (std::abs(frame - scene.frame) <= scene.tolerance) {
                ++score->hit;
                break;
            }
        }
    }
    score->found = score->found + (dissolves ? 0 : int(found.size()));
    for (const int frame : found) {
        bool isRight = false;
        for (const SceneFilm::Scene& scene : known)
            isRight = isRight || std::abs(frame - scene.frame) <= scene.tolerance;
        score->right += !dissolves && isRight ? 1 : 0;
    }
}

QList<int> OwnScenes(const QString& path, double* seconds)
{
    QList<int> frames;
    *seconds += Seconds([&] {
        PlayerMaterProvider* const provider =
            NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
        const auto clip = provider->CreateMediaTimeline(path, false);
        const auto segment = provider->CreateSceneSegment();
        int frame = 0;
        if (clip && segment->Open(clip.get()) == S_OK) {
            while (segment->Next(&frame) == S_OK)
                frames << frame;
        }
    });
    return frames;
}

/// The filter's own measure, above the value that its documentation calls sane.
QList<int> FilterScenes(const QString& path, double* seconds)
{
    QProcess process;
    *seconds += Seconds([&] {
        process.start("ffmpeg",
                      {"-v", "error", "-i", path, "-vf",
                       "select='gt(scene,0.3)',metadata=print:file=-", "-f", "null", "-"});
        process.waitForFinished(-1);
    });
    QList<int> frames;
    for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
        const int place = line.indexOf("pts_time:");
        if (place >= 0)
            frames << qRound(line.mid(place + 9).toDouble() * 25);
    }
    return frames;
}

void Print(const char* title, const Score& cuts, const Score& dissolves)
{
    std::printf("%-8s cuts %3d of %3d  dissolves %2d of %2d  right %3d of %3d found\n", title,
                cuts.hit, cuts.known, dissolves.hit, dissolves.known, cuts.right, cuts.found);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const bool isVerbose = application.arguments().contains("--verbose");
    Score own[2];
    Score peer[2];
    for (unsigned seed = 1; seed <= kFilms; ++seed) {
        const SceneFilm film = MakeFilm(seed);
        const QString path = folder.filePath(QString("%1.mp4").arg(seed));
        const QString failure = film.Make(path);
        if (!failure.isEmpty()) {
            std::fprintf(stderr, "%s\n", qPrintable(failure));
            return 1;
        }
        const QList<int> peerFound = FilterScenes(path, &peer[0].seconds);
        const QList<int> ownFound = OwnScenes(path, &own[0].seconds);
        for (const bool dissolves : {false, true}) {
            Judge(film.Scenes(), ownFound, dissolves, &own[dissolves ? 1 : 0]);
            Judge(film.Scenes(), peerFound, dissolves, &peer[dissolves ? 1 : 0]);
        }
        for (int i = 0; isVerbose && i < film.Scenes().size(); ++i)
            std::printf("  %4d +- %2d  %s\n", film.Scenes()[i].frame, film.Scenes()[i].tolerance,
                        qPrintable(film.shots[i + 1].source.left(30)));
        for (int i = 0; isVerbose && i < ownFound.size(); ++i)
            std::printf("  found %d\n", ownFound[i]);
    }
    Print("own", own[0], own[1]);
    Print("filter", peer[0], peer[1]);
    Report(QString("scenes of %1 films").arg(kFilms), own[0].seconds,
           Other("FFmpeg's filter", peer[0].seconds));
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    return 0;
}

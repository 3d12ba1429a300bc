// SPDX-License-Identifier: LGPL-2.1-or-later
// Writing films: a clip with its sound, two layers and a clip on a large still, beside the ffmpeg
// and melt programs with the same codecs; memory over the length of a film.
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETimeline.h"
#include "EngineApi/INLETransform.h"
#include "TestMedia.h"
#include "benchmarks/Cost.h"

#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <cstdio>
#include <functional>
#include <vector>

#include <sys/resource.h>

namespace {

using Node = NLEComPtr<INLETimeline>;

constexpr int kFrames = 300;
constexpr int kRounds = 3;

PlayerMaterProvider* Provider()
{
    return NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
}

void Add(const Node& project, const Node& clip, int level)
{
    clip->SetLevel(level);
    project.query<INLETimelineComposite>()->AddClip(clip.get());
}

Node Project()
{
    return Provider()->CreateProjectTimeline({{1920, 1080}, {25, 1}, 48000, 2, 3});
}

Node Clip(const QString& media)
{
    return Provider()->CreateMediaTimeline(media, false);
}

bool Export(const Node& project, const QString& path)
{
    const auto encoder = Provider()->CreateMediaEncoder();
    if (encoder->Open(project.get(), path.toStdWString().c_str(), nullptr) == S_OK &&
        encoder->Encode(nullptr, nullptr) == S_OK)
        return true;
    std::fprintf(stderr, "%s is not written\n", qPrintable(path));
    return false;
}

void RunPeer(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(600000) || process.exitCode() != 0)
        std::fprintf(stderr, "%s failed: %s\n", qPrintable(program), process.readAll().constData());
}

/// The codecs as the encoder sets them when nothing else is asked for.
void Ffmpeg(const QStringList& inputs, const QString& output)
{
    RunPeer("ffmpeg", QStringList{"-hide_banner", "-loglevel", "error", "-nostdin", "-y"} + inputs +
                          QStringList{"-c:v", "libx264", "-preset", "veryfast", "-crf", "20",
                                      "-c:a", "aac", "-b:a", "192k", output});
}

void Melt(const QString& document, const QString& output)
{
    RunPeer("melt", {"-silent", document, "-consumer", "avformat:" + output, "vcodec=libx264",
                     "preset=veryfast", "crf=20", "acodec=aac", "ab=192k", "real_time=-2",
                     "progressive=1", "progress=0"});
}

/// \a inputs are ffmpeg's for the same film.
void Compare(const char* title, const Node& project, const QStringList& inputs, const QDir& folder)
{
    const QString document = folder.filePath("film.mlt");
    Provider()->CreateDocumentSerialize()->Save(project.get(), document.toStdWString().c_str());
    std::vector<Cost> own;
    std::vector<Cost> ffmpeg;
    std::vector<Cost> melt;
    const QString output = folder.filePath("own.mp4");
    const QString other = folder.filePath("peer.mp4");
    Memory("VmHWM:");
    for (int round = 0; round < kRounds; ++round) {
        own.push_back(CostOf(RUSAGE_SELF, [&] { Export(project, output); }));
        ffmpeg.push_back(CostOf(RUSAGE_CHILDREN, [&] { Ffmpeg(inputs, other); }));
        if (round % 2 == 0)
            melt.push_back(CostOf(RUSAGE_CHILDREN, [&] { Melt(document, other); }));
    }
    const Cost mine = MedianCost(own);
    std::printf("%s: at the most %.0f MiB\n", title, Memory("VmHWM:"));
    ReportCosts(title, kFrames, mine, "ffmpeg", MedianCost(ffmpeg));
    ReportCosts(title, kFrames, mine, "melt", MedianCost(melt));
}

Node OneClip(const QString& media)
{
    Node project = Project();
    Add(project, Clip(media), 0);
    return project;
}

/// The second layer lies above the first: half as large, turned and half transparent.
Node TwoLayers(const QString& media, const QString& other)
{
    Node project = OneClip(media);
    const Node clip = Clip(other);
    const NLESizeF half = {0.5, 0.5};
    clip.query<INLETransform>()->SetScale(&half);
    clip.query<INLETransform>()->SetRotation(10);
    clip.query<INLEBlendSetting>()->SetAlpha(160);
    Add(project, clip, 1);
    return project;
}

QStringList TwoLayersInFfmpeg(const QString& media, const QString& other)
{
    constexpr const char* filter =
        "[1:v]scale=960:540:flags=bilinear,format=yuva420p,rotate=10*PI/180:c=none:ow=rotw(10*"
        "PI/180):oh=roth(10*PI/180),colorchannelmixer=aa=0.627[top];[0:v][top]overlay=(W-w)/2:("
        "H-h)/2,format=yuv420p[v];[0:a][1:a]amix=normalize=0[a]";
    return {"-i", media, "-i", other, "-filter_complex", filter, "-map", "[v]", "-map", "[a]"};
}

/// A film of a small clip on a still of twelve megapixels.
Node OnStill(const QString& media, const QString& still)
{
    Node project = Project();
    const Node picture = Clip(still);
    const NLERange range = {0, kFrames - 1};
    picture->SetRange(&range);
    Add(project, picture, 0);
    const Node clip = Clip(media);
    const NLESizeF half = {0.5, 0.5};
    clip.query<INLETransform>()->SetScale(&half);
    Add(project, clip, 1);
    return project;
}

QStringList OnStillInFfmpeg(const QString& media, const QString& still)
{
    constexpr const char* filter =
        "[0:v]scale=1440:1080:flags=bilinear,pad=1920:1080:240:0,format=yuv420p,loop=-1:1[bottom]"
        ";[1:v]scale=960:540:flags=bilinear[top];[bottom][top]overlay=480:270:shortest=1,format="
        "yuv420p[v]";
    return {"-i", still, "-i", media, "-filter_complex", filter, "-map", "[v]", "-map", "1:a"};
}

/// What the size of a still costs: the film on a large one beside that on one of the size that it
/// is drawn at.
void CompareStills(const QString& media, const QString& large, const QString& drawn,
                   const QDir& folder)
{
    std::vector<Cost> onLarge;
    std::vector<Cost> onDrawn;
    const QString output = folder.filePath("own.mp4");
    for (int round = 0; round < kRounds; ++round) {
        onLarge.push_back(CostOf(RUSAGE_SELF, [&] { Export(OnStill(media, large), output); }));
        onDrawn.push_back(CostOf(RUSAGE_SELF, [&] { Export(OnStill(media, drawn), output); }));
    }
    const Cost all = MedianCost(onLarge);
    const Cost least = MedianCost(onDrawn);
    const QString peer = QStringLiteral("a still of the size drawn");
    Report("on a large still, a frame", all.wall / kFrames, Ours(peer, least.wall / kFrames));
    Report("on a large still, processors a frame", all.processor / kFrames,
           Ours(peer, least.processor / kFrames));
}

/// Memory in the course of a film of an hour: small pictures, but every frame of it.
void MeasureLongFilm(const QString& media, const QDir& folder)
{
    const Node project = Provider()->CreateProjectTimeline({{320, 180}, {25, 1}, 48000, 2, 3});
    constexpr int hour = 3600 * 25;
    for (int position = 0; position < hour; position += kFrames) {
        const Node clip = Clip(media);
        clip->SetPosition(position);
        Add(project, clip, position / kFrames % 2);
    }
    const auto encoder = Provider()->CreateMediaEncoder();
    const QString output = folder.filePath("long.mp4");
    struct Course
    {
        double early = 0;
        double late = 0;
    } course;
    const auto note = [](int percent, void* data) {
        auto* seen = static_cast<Course*>(data);
        if (percent == 10 && seen->early == 0)
            seen->early = Memory("VmRSS:");
        if (percent == 99 && seen->late == 0)
            seen->late = Memory("VmRSS:");
        return 0;
    };
    const bool written =
        encoder->Open(project.get(), output.toStdWString().c_str(), nullptr) == S_OK &&
        encoder->Encode(note, &course) == S_OK;
    std::printf("a film of an hour%s: %.1f MiB after a tenth, %.1f MiB at the end\n",
                written ? "" : " (not written)", course.early, course.late);
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QTemporaryDir temporary;
    const QDir folder(temporary.path());
    const QString media = folder.filePath("source.mp4");
    const QString other = folder.filePath("other.mp4");
    const QString small = folder.filePath("small.mp4");
    const QString still = folder.filePath("still.jpg");
    const QString drawn = folder.filePath("drawn.jpg");
    const auto film = [](const char* picture, const char* tone, const QString& path) {
        return RunFfmpeg({"-f",        "lavfi",
                          "-i",        QString::fromLatin1(picture),
                          "-f",        "lavfi",
                          "-i",        QString::fromLatin1(tone),
                          "-frames:v", QString::number(kFrames),
                          "-c:v",      "libx264",
                          "-preset",   "veryfast",
                          "-bf",       "3",
                          "-g",        "50",
                          "-c:a",      "aac",
                          "-ac",       "2",
                          "-shortest", path});
    };
    constexpr const char* colours = "setparams=colorspace=bt709:color_primaries=bt709:color_trc="
                                    "bt709:range=tv,format=yuv420p";
    const QString large = QString("testsrc2=size=1920x1080:rate=25,noise=alls=6:allf=t,") + colours;
    const QString second = QString("testsrc=size=1920x1080:rate=25,") + colours;
    const QString tiny = QString("testsrc2=size=320x180:rate=25,") + colours;
    for (const QString& failure :
         {film(qPrintable(large), "sine=440:sample_rate=48000", media),
          film(qPrintable(second), "sine=660:sample_rate=48000", other),
          film(qPrintable(tiny), "sine=440:sample_rate=48000", small),
          RunFfmpeg({"-f", "lavfi", "-i", "testsrc2=size=4000x3000", "-frames:v", "1", still}),
          RunFfmpeg({"-i", still, "-vf", "scale=1440:1080:flags=area", "-q:v", "2", drawn})}) {
        if (!failure.isEmpty() || !Provider()->CreateProjectTimeline()) {
            std::fprintf(stderr, "%s\n", qPrintable(failure));
            return 1;
        }
    }
    std::printf("%d frames of 1080p, H.264 veryfast, crf 20, %d processors\n", kFrames,
                QThread::idealThreadCount());
    Compare("one clip", OneClip(media), {"-i", media}, folder);
    Compare("two layers", TwoLayers(media, other), TwoLayersInFfmpeg(media, other), folder);
    Compare("on a large still", OnStill(media, still), OnStillInFfmpeg(media, still), folder);
    CompareStills(media, still, drawn, folder);
    MeasureLongFilm(small, folder);
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    return 0;
}

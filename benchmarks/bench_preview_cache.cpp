// SPDX-License-Identifier: LGPL-2.1-or-later
// The preview cache: rendering into it beside the melt and ffmpeg programs with the same codec, at
// the same priority; reading beside rendering; analysis, stopping and edits; memory.
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEBackgroundCache.h"
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETransform.h"
#include "TestMedia.h"
#include "benchmarks/Cost.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThread>

#include <atomic>
#include <cstdio>
#include <functional>
#include <vector>

#include <sys/resource.h>

namespace {

using Node = NLEComPtr<INLETimeline>;

constexpr int kFrames = 300;
constexpr int kRounds = 3;
constexpr NLESize kSize = {960, 540};

PlayerMaterProvider* Provider()
{
    return NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
}

class Cache
{
public:
    Cache(const Node& node, const QString& folder)
    {
        void* found = nullptr;
        node->GetInterface(INLEBackgroundCache::Iid, &found, 0, 0);
        engine.attach(static_cast<INLEBackgroundCache*>(found));
        engine->SetCacheFolder(folder.toStdWString().c_str(), 10000, 0);
    }
    ~Cache() { engine->DeleteCache(true); }

    bool Start() { return engine->Start(&kSize, Note, this) == S_OK; }
    void WaitForEnd() { m_ended.acquire(); }
    void Render()
    {
        engine->DeleteCache(true);
        while (m_ended.tryAcquire()) {
        }
        if (Start())
            WaitForEnd();
    }

    NLEComPtr<INLEBackgroundCache> engine;

private:
    static int Note(int, long state, long, long, void* self)
    {
        if (state != 0)
            static_cast<Cache*>(self)->m_ended.release();
        return 0;
    }
    QSemaphore m_ended;
};

void Add(const Node& project, const Node& clip, int position, int level)
{
    clip->SetPosition(position);
    clip->SetLevel(level);
    project.query<INLETimelineComposite>()->AddClip(clip.get());
}

Node Project()
{
    return Provider()->CreateProjectTimeline({{1920, 1080}, {25, 1}, 48000, 2, 3});
}

/// The second layer lies above the first, smaller, turned and half transparent.
Node MakeTimeline(const QString& media, int layers)
{
    Node project = Project();
    for (int level = 0; level < layers; ++level) {
        const Node clip = Provider()->CreateMediaTimeline(media, false);
        if (level > 0) {
            const NLESizeF half = {0.5, 0.5};
            clip.query<INLETransform>()->SetScale(&half);
            clip.query<INLETransform>()->SetRotation(10);
            clip.query<INLEBlendSetting>()->SetAlpha(160);
            // Across the picture and half round.
            const auto keys = clip.query<INLEKeyFrameList>();
            const NLEKeyFrameRecord ends[] = {{0, 0, -0.2, 0.2, 1, 1, 1, 1},
                                              {1, 180, 0.2, -0.2, 0.7, 0.7, 0.6, 1}};
            int index = 0;
            for (const NLEKeyFrameRecord& end : ends)
                keys->AddKeyFrame(&end, &index);
        }
        Add(project, clip, 0, level);
    }
    return project;
}

/// Runs a peer with the priority of the threads that render the cache.
void RunPeer(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("nice", QStringList{"-n", "5", program} + arguments);
    if (!process.waitForFinished(600000) || process.exitCode() != 0)
        std::fprintf(stderr, "%s failed: %s\n", qPrintable(program), process.readAll().constData());
}

void RunMelt(const QString& document, const QString& output)
{
    RunPeer("melt", {"-silent", document, "-consumer", "avformat:" + output, "vcodec=mjpeg",
                     "qscale=3", "pix_fmt=yuvj420p", "s=960x540", "an=1", "real_time=-2",
                     "progressive=1", "progress=0"});
}

void RunPlainFfmpeg(const QString& media, const QString& output)
{
    RunPeer("ffmpeg", {"-hide_banner", "-loglevel", "error", "-y", "-i", media, "-vf",
                       "scale=960:540:flags=bilinear", "-c:v", "mjpeg", "-q:v", "3", "-huffman",
                       "default", "-an", output});
}

void CompareRendering(const char* title, const QString& media, int layers, const QDir& folder)
{
    const Node project = MakeTimeline(media, layers);
    const QString document = folder.filePath("timeline.mlt");
    const QString output = folder.filePath("peer.avi");
    Provider()->CreateDocumentSerialize()->Save(project.get(), document.toStdWString().c_str());
    Cache cache(project, folder.filePath("cache"));
    std::vector<Cost> own;
    std::vector<Cost> melt;
    std::vector<Cost> ffmpeg;
    Memory("VmHWM:");
    for (int round = 0; round < kRounds; ++round) {
        own.push_back(CostOf(RUSAGE_SELF, [&] { cache.Render(); }));
        melt.push_back(CostOf(RUSAGE_CHILDREN, [&] { RunMelt(document, output); }));
        if (layers == 1)
            ffmpeg.push_back(CostOf(RUSAGE_CHILDREN, [&] { RunPlainFfmpeg(media, output); }));
    }
    const Cost mine = MedianCost(own);
    std::printf("%s: at the most %.0f MiB\n", title, Memory("VmHWM:"));
    ReportCosts(title, kFrames, mine, "melt", MedianCost(melt));
    if (layers == 1)
        ReportCosts(title, kFrames, mine, "ffmpeg", MedianCost(ffmpeg));
}

double FrameTime(const Node& project, int flags, const NLESize& size)
{
    constexpr int count = 60;
    const auto picture = Provider()->CreateVideoFrame(size.width, size.height);
    const auto extractor = Provider()->CreateFrameExtractor();
    picture->Prepare();
    extractor->Open(project.get(), flags);
    extractor->Extract(0, picture.get());
    return Seconds([&] {
               for (int frame = 1; frame <= count; ++frame)
                   extractor->Extract(frame, picture.get());
           }) /
           count;
}

void CompareReading(const QString& media, const QDir& folder)
{
    const Node project = MakeTimeline(media, 2);
    Cache cache(project, folder.filePath("cache"));
    cache.Render();
    for (const NLESize& size : {kSize, NLESize{1920, 1080}}) {
        std::vector<double> read;
        std::vector<double> rendered;
        for (int round = 0; round < kRounds; ++round) {
            read.push_back(FrameTime(project, NLEOpen_Cached, size));
            rendered.push_back(FrameTime(project, NLEOpen_Render, size));
        }
        Report(QString("two layers read at %1 x %2, a frame").arg(size.width).arg(size.height),
               Median(read), Ours("rendered anew", Median(rendered)));
    }
}

void MeasureStops(const QString& media, const QDir& folder)
{
    const Node project = MakeTimeline(media, 2);
    Cache cache(project, folder.filePath("cache"));
    std::vector<double> times;
    for (int round = 0; round < 10; ++round) {
        cache.engine->DeleteCache(true);
        cache.Start();
        QThread::msleep(150 + unsigned(round) * 13);
        times.push_back(Seconds([&] {
            cache.engine->Stop();
            cache.WaitForEnd();
        }));
    }
    std::printf("stop: acknowledged after %.2f ms, at the most %.2f ms\n", Median(times) * 1e3,
                Largest(times) * 1e3);
}

void MeasureLargeProject(const QString& media, const QDir& folder)
{
    constexpr int clipCount = 10000;
    const Node project = Project();
    const Node source = Provider()->CreateMediaTimeline(media, false);
    std::vector<Node> clips;
    for (int i = 0; i < clipCount; ++i) {
        Node clip;
        source->Clone(true, clip.put());
        const NLERange range = {i % 400, i % 400 + 29};
        clip->SetRange(&range);
        Add(project, clip, i / 2 * 25, i % 2);
        clips.push_back(clip);
    }
    Cache cache(project, folder.filePath("cache"));
    cache.engine->Update();
    std::vector<Cost> updates;
    for (int round = 0; round < 31; ++round) {
        clips[size_t(round) * 300].query<INLEBlendSetting>()->SetAlpha(100 + round);
        updates.push_back(CostOf(RUSAGE_THREAD, [&] { cache.engine->Update(); }));
    }
    const Cost update = MedianCost(updates);
    std::printf("%d clips: analysis after one edit %.2f ms, %.2f ms of processor\n", clipCount,
                update.wall * 1e3, update.processor * 1e3);

    cache.Start();
    std::vector<double> edits;
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 3000) {
        INLETimeline* clip = clips[edits.size() * 7 % clipCount].get();
        edits.push_back(Seconds([&] { clip->SetLevel(int(edits.size()) % 2); }));
        QThread::usleep(200);
    }
    cache.engine->Stop();
    std::printf("edits while rendering: %.4f ms, at the most %.4f ms of %zu\n", Median(edits) * 1e3,
                Largest(edits) * 1e3, edits.size());
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir temporary;
    const QDir folder(temporary.path());
    const QString media = folder.filePath("source.mp4");
    const QString failure = RunFfmpeg(
        {"-f", "lavfi", "-i", "testsrc2=size=1920x1080:rate=25,noise=alls=6:allf=t,format=yuv420p",
         "-frames:v", QString::number(kFrames), "-c:v", "libx264", "-preset", "veryfast", "-bf",
         "3", "-g", "50", media});
    if (!failure.isEmpty() || !Provider()->CreateProjectTimeline()) {
        std::fprintf(stderr, "%s\n", qPrintable(failure));
        return 1;
    }
    std::printf("%d frames of 1080p H.264 into %d x %d, %d processors\n", kFrames, kSize.width,
                kSize.height, QThread::idealThreadCount());
    CompareRendering("a plain clip, rendered", media, 1, folder);
    CompareRendering("two layers, rendered", media, 2, folder);
    CompareReading(media, folder);
    MeasureStops(media, folder);
    MeasureLargeProject(media, folder);
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    return 0;
}

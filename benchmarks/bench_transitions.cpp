// SPDX-License-Identifier: LGPL-2.1-or-later
// Transitions: a dissolve of two films rendered into the preview cache beside the melt program with
// the same codec; what each transition costs a frame.
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEBackgroundCache.h"
#include "EngineApi/INLEEffects.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLETimeline.h"
#include "TestMedia.h"
#include "benchmarks/Cost.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QThread>

#include <cstdio>
#include <functional>
#include <vector>

#include <sys/resource.h>

namespace {

using Node = NLEComPtr<INLETimeline>;

constexpr int kFrames = 200;
constexpr int kRounds = 3;
constexpr NLESize kSize = {960, 540};

PlayerMaterProvider* Provider()
{
    return NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
}

Node Transition(const wchar_t* name)
{
    NLEComPtr<INLEFactory> engine;
    NLEComPtr<INLETimelineFactory> factory;
    Node node;
    if (CVCreateInstance::Instance()->cvCreateInstance(INLEFactory::ClassId, nullptr, 0,
                                                       INLEFactory::Iid, engine.putVoid()) &&
        SUCCEEDED(engine->GetTimelineFactory(factory.put())))
        factory->CreateTransition(name, node.put());
    return node;
}

void Add(const Node& project, const Node& node, int frames)
{
    const NLERange range = {0, frames - 1};
    node->SetRange(&range);
    project.query<INLETimelineComposite>()->AddClip(node.get());
}

/// Two clips that go over into each other all the time; without a \a name the second covers the
/// first.
Node Pair(const Node& from, const Node& to, const wchar_t* name, int frames)
{
    Node project = Provider()->CreateProjectTimeline({{1920, 1080}, {25, 1}, 48000, 2, 3});
    Add(project, from, frames);
    Add(project, to, frames);
    if (name)
        Add(project, Transition(name), frames);
    return project;
}

Node Film(const QString& path)
{
    return Provider()->CreateMediaTimeline(path, false);
}

/// The preview cache of one timeline.
class Cache
{
public:
    Cache(const Node& node, const QString& folder)
    {
        void* found = nullptr;
        node->GetInterface(INLEBackgroundCache::Iid, &found, 0, 0);
        m_engine.attach(static_cast<INLEBackgroundCache*>(found));
        m_engine->SetCacheFolder(folder.toStdWString().c_str(), 10000, 0);
    }
    ~Cache() { m_engine->DeleteCache(true); }

    void Render()
    {
        m_engine->DeleteCache(true);
        while (m_ended.tryAcquire()) {
        }
        if (m_engine->Start(&kSize, Note, this) == S_OK)
            m_ended.acquire();
    }

private:
    static int Note(int, long state, long, long, void* self)
    {
        if (state != 0)
            static_cast<Cache*>(self)->m_ended.release();
        return 0;
    }

    QSemaphore m_ended;
    NLEComPtr<INLEBackgroundCache> m_engine;
};

/// With the priority of the threads that render the cache.
void RunMelt(const QString& document, const QString& output)
{
    QProcess melt;
    melt.setProcessChannelMode(QProcess::MergedChannels);
    melt.start("nice", {"-n", "5", "melt", "-silent", document, "-consumer", "avformat:" + output,
                        "vcodec=mjpeg", "qscale=3", "pix_fmt=yuvj420p", "s=960x540", "an=1",
                        "real_time=-2", "progressive=1", "progress=0"});
    if (!melt.waitForFinished(600000) || melt.exitCode() != 0)
        std::fprintf(stderr, "melt failed: %s\n", melt.readAll().constData());
}

void CompareDissolve(const QString& first, const QString& second, const QDir& folder)
{
    const Node project = Pair(Film(first), Film(second), L"dissolve", kFrames);
    const QString document = folder.filePath("dissolve.mlt");
    Provider()->CreateDocumentSerialize()->Save(project.get(), document.toStdWString().c_str());
    Cache cache(project, folder.filePath("cache"));
    std::vector<Cost> own;
    std::vector<Cost> melt;
    for (int round = 0; round < kRounds; ++round) {
        own.push_back(CostOf(RUSAGE_SELF, [&] { cache.Render(); }));
        melt.push_back(
            CostOf(RUSAGE_CHILDREN, [&] { RunMelt(document, folder.filePath("melt.avi")); }));
    }
    ReportCosts("dissolve", kFrames, MedianCost(own), "melt", MedianCost(melt));
}

/// Seconds of processor a frame.
double FrameCost(const Node& project, int frames)
{
    const auto picture = Provider()->CreateVideoFrame(kSize.width, kSize.height);
    const auto extractor = Provider()->CreateFrameExtractor();
    picture->Prepare();
    extractor->Open(project.get(), NLEOpen_Render);
    extractor->Extract(0, picture.get());
    const Cost cost = CostOf(RUSAGE_SELF, [&] {
        for (int frame = 1; frame < frames; ++frame)
            extractor->Extract(frame, picture.get());
    });
    return cost.processor / (frames - 1);
}

/// Of colours, so that little but the transition is measured.
void MeasureEach()
{
    constexpr int frames = 60;
    const auto colour = [](QRgb color) {
        return Provider()->CreateColorTimeline(QColor(color), QSize(1920, 1080), 25.0f);
    };
    Peer none = Ours("no transition");
    for (const wchar_t* name :
         {static_cast<const wchar_t*>(nullptr), L"dissolve", L"dip", L"wipe", L"circle", L"diamond",
          L"clock", L"barn-doors", L"push", L"slide", L"zoom"}) {
        std::vector<double> costs;
        for (int round = 0; round < kRounds; ++round)
            costs.push_back(
                FrameCost(Pair(colour(0xFF2050A0), colour(0xFFA05020), name, frames), frames));
        if (name)
            Report(QString::fromWCharArray(name) + " of two colours, processors a frame",
                   Median(costs), none);
        else
            none.seconds = Median(costs);
    }
}

QString MakeFilm(const QString& path, const char* source)
{
    return RunFfmpeg(
        {"-f", "lavfi", "-i",
         QString("%1=size=1920x1080:rate=25,noise=alls=6:allf=t,format=yuv420p").arg(source),
         "-frames:v", QString::number(kFrames), "-c:v", "libx264", "-preset", "veryfast", "-bf",
         "3", "-g", "50", path});
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir temporary;
    const QDir folder(temporary.path());
    const QString first = folder.filePath("first.mp4");
    const QString second = folder.filePath("second.mp4");
    const QString failure = MakeFilm(first, "testsrc2") + MakeFilm(second, "smptehdbars");
    if (!failure.isEmpty() || !Provider()->CreateProjectTimeline()) {
        std::fprintf(stderr, "%s\n", qPrintable(failure));
        return 1;
    }
    std::printf("%d frames of 1080p H.264 into %d x %d, %d processors\n", kFrames, kSize.width,
                kSize.height, QThread::idealThreadCount());
    CompareDissolve(first, second, folder);
    MeasureEach();
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    return 0;
}

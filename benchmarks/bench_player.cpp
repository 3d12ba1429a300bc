// SPDX-License-Identifier: LGPL-2.1-or-later
// The player with 1080p30 H.264 and sound: what is dropped and how far pictures are from the sound,
// and what a second costs beside the melt program playing the same file; how soon a sought picture
// shows, beside FFmpeg's libraries used in the plain way; how soon sound is heard; how soon an edit
// shows in mid-play.
//
// bench_player [SECONDS [LINES]]: plays as long, 60 at first, a film of as many lines, 1080 at
// first; an hour tells whether memory is flat. Sound goes where SDL_AUDIODRIVER says, else nowhere,
// in real time.
#include "Com/ComObject.h"
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEPlayer.h"
#include "EngineApi/INLETitle.h"
#include "EngineApi/INLETransform.h"
#include "TestMedia.h"
#include "benchmarks/Cost.h"
#include "benchmarks/PlainDecoder.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <random>

namespace {

constexpr int kUsualSeconds = 60;
constexpr int kFrameRate = 30;
constexpr int kSought = 60;
constexpr int kPressed = 15;
constexpr int kEdits = 40;
constexpr int kUsualLines = 1080;

/// A minute, over and over.
QString MakeFilm(const QString& path, const QSize& size, int seconds)
{
    const QString minute = path + ".minute.mp4";
    const QString picture =
        QString("testsrc2=size=%1x%2:rate=30,format=yuv420p").arg(size.width()).arg(size.height());
    const QString failure =
        RunFfmpeg({"-f",      "lavfi",    "-i",        picture,
                   "-f",      "lavfi",    "-i",        "sine=frequency=440:sample_rate=48000",
                   "-t",      "60",       "-c:v",      "libx264",
                   "-preset", "veryfast", "-g",        "60",
                   "-c:a",    "aac",      "-shortest", minute});
    return failure.isEmpty() ? RunFfmpeg({"-stream_loop", "-1", "-i", minute, "-c", "copy", "-t",
                                          QString::number(seconds), path})
                             : failure;
}

/// Waits for pictures.
class Viewer final : public ComObject<INLEPlayerListener>
{
public:
    HRESULT PictureDue(int frame, int /*source*/, INLEVideoFrame* picture) override
    {
        std::uint8_t* pixels = nullptr;
        const bool hasPixels = picture != nullptr && picture->GetData(&pixels) == S_OK;
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_frame = frame;
            m_corner = hasPixels ? *reinterpret_cast<const QRgb*>(pixels) : 0;
        }
        m_changed.notify_all();
        return S_OK;
    }
    HRESULT StateChanged(int /*state*/) override { return S_OK; }
    HRESULT DeviceChanged() override { return S_OK; }
    HRESULT SecondPlayed(const NLEPlayerReport* /*report*/) override { return S_OK; }

    void Await(int frame)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [=] { return m_frame == frame; });
    }
    /// Waits for a picture with that colour in its corner.
    void AwaitCorner(QRgb color)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [=] { return m_corner == color; });
    }

private:
    std::mutex m_mutex; ///< guards what is shown
    std::condition_variable m_changed;
    int m_frame = -1;
    QRgb m_corner = 0;
};

NLEComPtr<INLEPlayer> NewPlayer()
{
    NLEComPtr<INLEFactory> factory;
    NLEComPtr<INLEPlayer> player;
    CVCreateInstance::Instance()->cvCreateInstance(INLEFactory::ClassId, nullptr, 0,
                                                   INLEFactory::Iid, factory.putVoid());
    if (factory)
        factory->CreatePlayer(player.put());
    return player;
}

void Melt(const QString& path, int seconds)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("SDL_VIDEODRIVER"), QStringLiteral("dummy"));
    process.setProcessEnvironment(environment);
    process.start("melt", {"-silent", path, "out=" + QString::number(seconds * kFrameRate - 1),
                           "-consumer", "sdl2", "terminate_on_pause=1"});
    process.waitForFinished(-1);
}

void ComparePlaying(INLEPlayer& player, Viewer& viewer, const QString& path, int seconds)
{
    player.Seek(0);
    viewer.Await(0);
    NLEPlayerReport before = {};
    NLEPlayerReport report = {};
    player.GetTotals(&before);
    double early = 0;
    double late = 0;
    const Cost own = CostOf(RUSAGE_SELF, [&] {
        const auto tenth = static_cast<unsigned long>(seconds) * 100;
        player.Play(1);
        QThread::msleep(tenth);
        early = Memory("VmRSS:");
        QThread::msleep(tenth * 9);
        late = Memory("VmRSS:");
        player.Pause();
    });
    player.GetTotals(&report);
    std::printf("  played %d s         shown %d  dropped %d  late %d  underruns %d\n", seconds,
                report.shown - before.shown, report.dropped - before.dropped,
                report.late - before.late, report.underruns - before.underruns);
    std::printf("  pictures to sound   mean %.2f ms  furthest %.2f ms\n", report.drift,
                report.furthestDrift);
    std::printf("  memory              %.1f MiB after a tenth  %.1f at the end\n", early, late);
    std::fflush(stdout);
    const Cost melt = CostOf(RUSAGE_CHILDREN, [&] { Melt(path, seconds); });
    Report("a second of playing, processors", own.processor / own.wall,
           Other("melt", melt.processor / melt.wall));
}

void CompareSeeking(INLEPlayer& player, Viewer& viewer, const QString& path, const QSize& size,
                    int seconds)
{
    const auto plain = PlainDecoder::Open(path, 0);
    std::vector<double> own;
    std::vector<double> peer;
    std::mt19937 generator(1);
    for (int i = 0; plain && i < kSought; ++i) {
        const int frame = int(generator() % unsigned(seconds * kFrameRate));
        own.push_back(Seconds([&] {
            player.Seek(frame);
            viewer.Await(frame);
        }));
        // Nothing is rendered ahead while the peer has the processors.
        QThread::msleep(300);
        peer.push_back(Seconds([&] { plain->At(frame, size); }));
    }
    if (!own.empty())
        Report("from a seek to its picture", Median(own), Other("FFmpeg", Median(peer)));
}

void MeasureStart(INLEPlayer& player)
{
    std::vector<double> starts;
    for (int i = 0; i < kPressed; ++i) {
        // Silence goes by, so that all levels are 0.
        QThread::msleep(1000);
        starts.push_back(Seconds([&] {
            player.Play(1);
            for (NLEPlayerLevels levels = {}; levels.rms[0] == 0; player.GetLevels(&levels))
                QThread::usleep(500);
        }));
        player.Pause();
    }
    std::printf("  play to sound       %.1f ms, at most %.1f\n", Median(starts) * 1e3,
                Largest(starts) * 1e3);
}

/// A corner of another colour over the film, again and again.
void MeasureEdits(INLEPlayer& player, Viewer& viewer, const NLEComPtr<INLETimeline>& film,
                  const QSize& size)
{
    auto* const provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
    const auto project = provider->CreateProjectTimeline(
        {{size.width(), size.height()}, {kFrameRate, 1}, 48000, 2, 3});
    const auto corner = provider->CreateColorTimeline(Qt::red, size, float(kFrameRate));
    const NLEPointF place = {0.1F, 0.1F};
    const NLESizeF scale = {0.2F, 0.2F};
    corner.query<INLETransform>()->SetCenter(&place);
    corner.query<INLETransform>()->SetScale(&scale);
    corner->SetLevel(1);
    const auto composite = project.query<INLETimelineComposite>();
    composite->AddClip(film.get());
    composite->AddClip(corner.get());
    NLERange range = {};
    film->GetRange(&range);
    corner->SetRange(&range);
    player.Open(project.get());
    player.Play(1);
    std::vector<double> edits;
    for (int i = 0; i < kEdits; ++i) {
        QThread::msleep(300);
        const QRgb color = i % 2 == 0 ? qRgb(0, 0, 255) : qRgb(255, 0, 0);
        edits.push_back(Seconds([&] {
            corner.query<INLEColorClip>()->SetColor(color);
            player.Refresh();
            viewer.AwaitCorner(color);
        }));
    }
    player.Pause();
    std::printf("  edit to picture     %.1f ms, at most %.1f\n", Median(edits) * 1e3,
                Largest(edits) * 1e3);
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("SDL_AUDIODRIVER")) {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", "/dev/null");
    }
    const QCoreApplication application(argc, argv);
    const int seconds = argc > 1 ? std::max(std::atoi(argv[1]), 1) : kUsualSeconds;
    const int lines = argc > 2 ? std::max(std::atoi(argv[2]), 1) / 2 * 2 : kUsualLines;
    const QSize size(lines * 16 / 9 / 2 * 2, lines);
    const QTemporaryDir folder;
    const QString path = folder.filePath("film.mp4");
    const QString failure = MakeFilm(path, size, seconds + 2);
    auto* const provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
    const auto clip = provider->CreateMediaTimeline(path, false);
    NLEComPtr<INLEPlayer> player = NewPlayer();
    if (!failure.isEmpty() || !clip || !player) {
        std::fprintf(stderr, "nothing can be played: %s\n", qPrintable(failure));
        return 1;
    }
    const NLEComPtr<Viewer> viewer = MakeCom<Viewer>();
    player->SetListener(viewer.get());
    player->Open(clip.get());
    viewer->Await(0);
    std::printf("%d lines, 30 a second, H.264 with sound, beside melt and FFmpeg:\n", lines);
    ComparePlaying(*player, *viewer, path, seconds);
    CompareSeeking(*player, *viewer, path, size, seconds);
    MeasureStart(*player);
    MeasureEdits(*player, *viewer, clip, size);
    player->SetListener(nullptr);
    player->Close();
    player.reset();
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    return 0;
}

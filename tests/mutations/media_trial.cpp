// SPDX-License-Identifier: LGPL-2.1-or-later
// Does with one media file what an editor does with it, in little memory and time:
//
//     media_trial FILE FOLDER
//
// Prints each step that it begins, or "refused" when the file is no media. FOLDER takes what it
// writes.
#include "tests/support/EngineFixture.h"

#include <QGuiApplication>

#include <cstdio>

#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

#ifdef UNDER_SANITIZER
constexpr bool kIsSlow = true;
#else
constexpr bool kIsSlow = false;
#endif

/// Processor time of one step, in seconds: a busy machine changes nothing of it.
constexpr rlim_t kStepTime = kIsSlow ? 30 : 5;
/// What the file may take in memory, in bytes.
constexpr rlim_t kMemory = rlim_t(1) << 30;
constexpr QSize kSize(160, 90);
constexpr int kFrames = 8;
constexpr NLEEncodeSettings kFilm = {{160, 90}, {25, 1}, {0, kFrames - 1}, 30, 48000, 2, 0};

/// Begins a step, which has its own time.
void Begin(const char* step)
{
    std::puts(step);
    std::fflush(stdout);
    rusage used = {};
    getrusage(RUSAGE_SELF, &used);
    rlimit limit = {};
    getrlimit(RLIMIT_CPU, &limit);
    limit.rlim_cur = rlim_t(used.ru_utime.tv_sec + used.ru_stime.tv_sec) + 1 + kStepTime;
    setrlimit(RLIMIT_CPU, &limit);
}

void LimitMemory()
{
    if (kIsSlow) // a sanitizer takes addresses for its own use
        return;
    mallopt(M_ARENA_MAX, 2); // each takes addresses that are not used
    long pages = 0;
    if (std::FILE* file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%ld", &pages) != 1)
            pages = 0;
        std::fclose(file);
    }
    const rlim_t now = rlim_t(pages) * rlim_t(sysconf(_SC_PAGESIZE));
    const rlimit limit = {now + kMemory, now + kMemory};
    setrlimit(RLIMIT_AS, &limit);
}

/// Frames of the clip that a strip of thumbnails, or a player, would show.
std::vector<int> Places(const Node& clip)
{
    const NLERange range = EngineFixture::TotalOf(clip);
    const qint64 length = qint64(range.out) - range.in;
    std::vector<int> places;
    for (const int part : {0, 3, 1, 4, 2})
        places.push_back(int(range.in + length * part / 4));
    return places;
}

void ReadWave(const EngineFixture& engine, const Node& clip)
{
    NLEComPtr<INLEMediaInfo> info;
    std::uint32_t stream = NLENoStream;
    const auto source = clip.query<INLETimelineSource>();
    if (!source || source->GetMediaInfo(info.put()) != S_OK ||
        source->GetAudioStreamIndex(&stream) != S_OK || stream == NLENoStream)
        return;
    std::array<float, 100> minima = {};
    std::array<float, 100> maxima = {};
    const auto wave = engine.provider->CreateWaveExtractor();
    if (wave->SetSource(info.get(), stream) == S_OK)
        wave->Extract(0, 10, int(minima.size()), minima.data(), maxima.data());
}

void Play(const EngineFixture& engine, const Node& project)
{
    const auto picture = engine.provider->CreateVideoFrame(kSize.width(), kSize.height());
    const auto sound = engine.provider->CreateAudioFrame(EngineFixture::kSampleRate / 25);
    const auto extractor = engine.provider->CreateFrameExtractor();
    picture->Prepare();
    if (extractor->Open(project.get(), 0) != S_OK)
        return;
    for (int frame = 0; frame < kFrames; ++frame) {
        extractor->Extract(frame, picture.get());
        extractor->ExtractAudio(frame, sound.get());
    }
}

void Export(const EngineFixture& engine, const Node& project, const QString& path)
{
    const auto encoder = engine.provider->CreateMediaEncoder();
    if (encoder->Open(project.get(), path.toStdWString().c_str(), &kFilm) == S_OK)
        encoder->Encode(nullptr, nullptr);
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    const EngineFixture engine;
    LimitMemory();
    Begin("probe");
    const Node clip = engine.Media(arguments[1]);
    if (!clip) {
        std::puts("refused");
        return 0;
    }
    Begin("thumbnails");
    for (const int place : Places(clip))
        engine.Frame(clip, place, NLEOpen_Render, kSize);
    Begin("wave form");
    ReadWave(engine, clip);
    const Node project = engine.ProjectWith(clip);
    Begin("frames and sound");
    Play(engine, project);
    Begin("export");
    Export(engine, project, arguments[2] + "/film.mp4");
    Begin("end");
    return 0;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
// The envelope of half an hour of sound: computed, and drawn again from what was kept. Computing is
// compared with FFmpeg decoding the same file to nothing.
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "TestMedia.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <vector>

namespace {

constexpr int kSeconds = 1800;
constexpr int kSteps = 1920;
constexpr int kRounds = 5;

bool Run(const QTemporaryDir& folder, const char* name)
{
    PlayerMaterProvider* const provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
    const QString path = folder.filePath(name);
    const QString failure =
        RunFfmpeg({"-f", "lavfi", "-i", "anoisesrc=amplitude=0.5:sample_rate=44100", "-t",
                   QString::number(kSeconds), "-ac", "2", path});
    const auto clip = provider->CreateMediaTimeline(path, false);
    if (!failure.isEmpty() || !clip)
        return false;
    NLEComPtr<INLEMediaInfo> info;
    std::uint32_t stream = NLENoStream;
    clip.query<INLETimelineSource>()->GetMediaInfo(info.put());
    clip.query<INLETimelineSource>()->GetAudioStreamIndex(&stream);
    std::vector<float> minima(kSteps);
    std::vector<float> maxima(kSteps);
    bool isDrawn = true;
    const auto draw = [&] {
        const auto wave = provider->CreateWaveExtractor();
        isDrawn = wave->SetSource(info.get(), stream) == S_OK &&
                  wave->Extract(0, kSeconds, kSteps, minima.data(), maxima.data()) == S_OK &&
                  isDrawn;
    };
    const double bare = Seconds([&] { RunFfmpeg({"-i", path, "-f", "null", "-"}); });
    const double first = Seconds(draw);
    std::vector<double> again;
    for (int round = 0; round < kRounds; ++round)
        again.push_back(Seconds(draw));
    Report(QString("half an hour, %1, drawn at first").arg(name), first,
           Bare("FFmpeg decoding it", bare));
    Report(QString("half an hour, %1, drawn again").arg(name), Median(again),
           Ours("at first", first));
    return isDrawn && maxima.back() > 0;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    bool isWhole = true;
    {
        const QTemporaryDir folder;
        const auto wave =
            NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider()->CreateWaveExtractor();
        isWhole = wave && wave.query<INLEWaveCache>()->SetCacheFolder(
                              folder.filePath("waves").toStdWString().c_str(), 100) == S_OK;
        for (const char* name : {"sound.m4a", "sound.flac", "sound.wav"})
            isWhole = isWhole && Run(folder, name);
    }
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    return isWhole ? 0 : 1;
}

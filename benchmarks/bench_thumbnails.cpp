// SPDX-License-Identifier: LGPL-2.1-or-later
// Thumbnails of 160 x 90 from 1080p H.264 through the library, beside a plain use of FFmpeg.
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "PlainDecoder.h"
#include "TestMedia.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <random>
#include <vector>

namespace {

constexpr int kFrameCount = 250;
constexpr int kRounds = 5;
constexpr int kRandomFrames = 20;
const QSize kThumbnail(160, 90);

bool MakeClip(const QString& path, int gop)
{
    const QString source =
        QStringLiteral("testsrc2=size=1920x1080:rate=25,noise=alls=6:allf=t,format=yuv420p");
    const QString failure =
        RunFfmpeg({"-f", "lavfi", "-i", source, "-frames:v", QString::number(kFrameCount), "-c:v",
                   "libx264", "-preset", "veryfast", "-bf", "3", "-g", QString::number(gop),
                   "-keyint_min", QString::number(gop), "-sc_threshold", "0", path});
    if (!failure.isEmpty())
        std::fprintf(stderr, "%s\n", qPrintable(failure));
    return failure.isEmpty();
}

void Compare(const QString& title, int frames, const std::function<void(int)>& own,
             const std::function<void(int)>& peer)
{
    int ownRound = 0;
    int peerRound = 0;
    const Rounds rounds = TakeTurns(
        kRounds, [&] { own(ownRound++); }, [&] { peer(peerRound++); });
    Report(title, Median(rounds.ours) / frames, Other("FFmpeg", Median(rounds.theirs) / frames));
}

bool Run(const QString& path, int gop, int threads)
{
    if (!MakeClip(path, gop))
        return false;
    const auto plain = PlainDecoder::Open(path, threads);
    const auto clip =
        NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider()->CreateMediaTimeline(path, false);
    if (!clip || !plain) {
        std::fprintf(stderr, "%s cannot be read\n", qPrintable(path));
        return false;
    }
    const NLETimeline timeline(clip, ExactType_Video, nullptr);
    const auto picture = [&](int frame) {
        return timeline.GetThumbnailFromMediaInfo(frame, kThumbnail.width(), kThumbnail.height(),
                                                  true, false);
    };
    const auto randomFrames = [](int round) {
        std::mt19937 generator(unsigned(round) + 1);
        std::vector<int> frames;
        for (int i = 0; i < kRandomFrames; ++i)
            frames.push_back(int(generator() % kFrameCount));
        return frames;
    };

    int equal = 0;
    for (int frame : randomFrames(100))
        equal += picture(frame) == plain->At(frame, kThumbnail) ? 1 : 0;
    std::printf("group of %d: %d of %d random pictures equal those of the peer\n", gop, equal,
                kRandomFrames);
    Compare(
        QString("every frame in groups of %1").arg(gop), kFrameCount,
        [&](int) {
            for (int frame = 0; frame < kFrameCount; ++frame)
                picture(frame);
        },
        [&](int) {
            plain->Rewind();
            while (!plain->Next(kThumbnail).isNull()) {
            }
        });
    Compare(
        QString("random frames in groups of %1").arg(gop), kRandomFrames,
        [&](int round) {
            for (int frame : randomFrames(round))
                picture(frame);
        },
        [&](int round) {
            for (int frame : randomFrames(round))
                plain->At(frame, kThumbnail);
        });
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    // As many as the decoders of the pool take.
    const int threads = std::clamp(QThread::idealThreadCount(), 1, 4);
    std::printf("%d decoding threads on both sides\n", threads);
    for (int gop : {25, 250}) {
        if (!Run(folder.filePath(QStringLiteral("gop%1.mp4").arg(gop)), gop, threads))
            return 1;
    }
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    return 0;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
// A play head in 1080p H.264: stepping back beside stepping forward, and how soon something shows
// while it is dragged, beside the exact pictures of the same frames.
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/NLEKey.h"
#include "TestMedia.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

namespace {

constexpr int kFrameCount = 300;
constexpr int kSteps = 270;
constexpr int kRounds = 3;
constexpr int kDragged = 30;
constexpr int kPresetMebibytes = 512;
constexpr int kShortestGroup = 25;
const QSize kPreview(960, 540);

QString MakeClip(const QString& path, int group)
{
    return RunFfmpeg({"-f", "lavfi", "-i",
                      "testsrc2=size=1920x1080:rate=25,noise=alls=6:allf=t,format=yuv420p",
                      "-frames:v", QString::number(kFrameCount), "-c:v", "libx264", "-preset",
                      "ultrafast", "-bf", "3", "-g", QString::number(group), "-keyint_min",
                      QString::number(group), "-sc_threshold", "0", path});
}

class PlayHead
{
public:
    explicit PlayHead(const QString& path)
    {
        auto* const provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
        const auto clip = provider->CreateMediaTimeline(path, false);
        m_extractor = provider->CreateFrameExtractor();
        m_scrubber = m_extractor.query<INLEFrameScrubber>();
        m_picture = provider->CreateVideoFrame(kPreview.width(), kPreview.height());
        m_isOpen = clip && m_picture->Prepare() == S_OK &&
                   m_extractor->Open(clip.get(), NLEOpen_Render) == S_OK;
    }
    bool IsOpen() const { return m_isOpen; }
    void Show(int frame) { m_extractor->Extract(frame, m_picture.get()); }
    void ShowNear(int frame) { m_scrubber->ExtractNear(frame, m_picture.get(), nullptr); }

private:
    NLEComPtr<INLEFrameExtractor> m_extractor;
    NLEComPtr<INLEFrameScrubber> m_scrubber;
    NLEComPtr<INLEVideoFrame> m_picture;
    bool m_isOpen = false;
};

void SetKeptMebibytes(int mebibytes)
{
    NLEComPtr<INLEProperties> bag;
    NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider()->GetSystemConfig()->GetProperties(
        bag.put());
    bag->SetInt(NLEKey::System::kDecodedPictures, mebibytes);
}

void CompareSteps(const QString& path, int group, int mebibytes)
{
    std::vector<double> forward;
    std::vector<double> backward;
    double longest = 0;
    for (int round = 0; round < kRounds; ++round) {
        // Nothing is kept of the round before: both ways are through what was not seen yet.
        SetKeptMebibytes(0);
        SetKeptMebibytes(mebibytes);
        PlayHead head(path);
        const int first = kFrameCount - kSteps;
        head.Show(first - 1);
        forward.push_back(Seconds([&] {
            for (int frame = first; frame < kFrameCount; ++frame)
                head.Show(frame);
        }));
        double sum = 0;
        for (int frame = kFrameCount - 2; frame >= first - 1; --frame) {
            const double step = Seconds([&] { head.Show(frame); });
            longest = std::max(longest, step);
            sum += step;
        }
        backward.push_back(sum);
    }
    Report(QString("a step back in groups of %1, %2 MiB kept").arg(group).arg(mebibytes),
           Median(backward) / kSteps, Ours("a step forward", Median(forward) / kSteps));
    std::printf("  longest step back %.0f ms\n", longest * 1e3);
    SetKeptMebibytes(kPresetMebibytes);
}

void CompareDragging(const QString& path, int group)
{
    std::vector<double> near;
    std::vector<double> exact;
    PlayHead head(path);
    PlayHead plain(path);
    plain.Show(0);
    std::mt19937 generator(1);
    for (int i = 0; i < kDragged; ++i) {
        const int frame = int(generator() % kFrameCount);
        near.push_back(Seconds([&] { head.ShowNear(frame); }));
        head.Show(frame);
        exact.push_back(Seconds([&] { plain.Show(frame); }));
    }
    Report(QString("first picture while dragging in groups of %1").arg(group), Median(near),
           Ours("the exact one", Median(exact)));
    std::printf("  at most %.0f ms, the exact one %.0f ms\n", Largest(near) * 1e3,
                Largest(exact) * 1e3);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    for (const int group : {kShortestGroup, 120, 250}) {
        const QString path = folder.filePath(QStringLiteral("group%1.mp4").arg(group));
        const QString failure = MakeClip(path, group);
        if (!failure.isEmpty() || !PlayHead(path).IsOpen()) {
            std::fprintf(stderr, "%s cannot be played: %s\n", qPrintable(path),
                         qPrintable(failure));
            return 1;
        }
        // Without kept pictures a step back decodes its whole group: minutes in the longer ones.
        if (group == kShortestGroup)
            CompareSteps(path, group, 0);
        for (const int mebibytes : {256, kPresetMebibytes})
            CompareSteps(path, group, mebibytes);
        CompareDragging(path, group);
    }
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    return 0;
}

// SPDX-License-Identifier: LGPL-2.1-or-later
// What playing is counted with: the plan of pictures and sound, the queue that is the clock,
// levels.
#include "NLECore/render/LevelMeter.h"
#include "NLECore/render/PlayPlan.h"

#include <QtMath>
#include <QtTest>

#include <cmath>

using namespace nle;

namespace {

using namespace std::chrono_literals;

constexpr int kBlock = 1024;

PlayPlan Plan(double rate, int frame, NLERange range, bool isLoop,
              const NLERational& frameRate = {25, 1})
{
    PlayPlan::Terms terms;
    terms.frameRate = frameRate;
    terms.range = range;
    terms.isLoop = isLoop;
    terms.rate = rate;
    terms.material = rate > 0 ? PlayPlan::MaterialOf(frame, frameRate)
                              : PlayPlan::MaterialOf(frame + 1, frameRate) - 1;
    return PlayPlan(terms);
}

/// \a count samples that say where they stand.
std::vector<float> Counted(int first, int count)
{
    std::vector<float> samples;
    for (int i = 0; i < count; ++i)
        samples.insert(samples.end(), SoundQueue::kChannels, float(first + i));
    return samples;
}

} // namespace

class tst_PlayPlan : public QObject
{
    Q_OBJECT

private slots:
    void pictures_data()
    {
        QTest::addColumn<double>("rate");
        QTest::addColumn<int>("start");
        QTest::addColumn<bool>("isLoop");
        QTest::addColumn<QList<int>>("frames");
        QTest::newRow("each frame") << 1.0 << 4 << false << QList<int>{4, 5, 6, 7, 8, 9};
        QTest::newRow("slowly each frame too") << 0.25 << 6 << false << QList<int>{6, 7, 8, 9};
        QTest::newRow("every other one at twice the speed")
            << 2.0 << 2 << false << QList<int>{2, 4, 6, 8};
        QTest::newRow("what a broken rate shows")
            << 1.5 << 2 << false << QList<int>{2, 3, 5, 6, 8, 9};
        QTest::newRow("backwards") << -1.0 << 4 << false << QList<int>{4, 3, 2};
        QTest::newRow("backwards fast") << -3.0 << 9 << false << QList<int>{9, 6, 3};
        QTest::newRow("a loop begins again") << 1.0 << 8 << true << QList<int>{8, 9, 2, 3, 4};
        QTest::newRow("a loop backwards") << -1.0 << 3 << true << QList<int>{3, 2, 9, 8, 7};
        QTest::newRow("a loop, fast") << 3.0 << 8 << true << QList<int>{8, 3, 6, 9, 4};
        QTest::newRow("from outside of a loop") << 1.0 << 40 << true << QList<int>{2, 3, 4};
    }
    // The frames in their order; each is due when the material reaches it, not before, and the
    // position agrees.
    void pictures()
    {
        QFETCH(double, rate);
        QFETCH(int, start);
        QFETCH(bool, isLoop);
        QFETCH(QList<int>, frames);
        for (const NLERational frameRate : {NLERational{25, 1}, NLERational{30000, 1001}}) {
            const PlayPlan plan = Plan(rate, start, {2, 9}, isLoop, frameRate);
            QList<int> planned;
            for (int i = 0; i < frames.size(); ++i) {
                const PlayPlan::Due due = plan.Picture(i);
                planned << due.frame;
                QCOMPARE(plan.FrameAt(due.played), due.frame);
                QCOMPARE(plan.PictureAt(due.played), std::int64_t(i));
                if (i > 0) {
                    QVERIFY(plan.FrameAt(due.played - 1) != due.frame);
                    QCOMPARE(plan.PictureAt(due.played - 1), std::int64_t(i - 1));
                }
            }
            QCOMPARE(planned, frames);
            const bool isOver = plan.Picture(frames.size()).played >= plan.Length();
            QCOMPARE(isOver, !isLoop);
        }
    }

    // Sound of a loop is one piece for as long as one likes: laps are of whole samples.
    void soundOfALoop()
    {
        const PlayPlan plan = Plan(1, 5, {2, 9}, true, {30000, 1001});
        const std::int64_t first = PlayPlan::MaterialOf(2, {30000, 1001});
        const std::int64_t end = PlayPlan::MaterialOf(10, {30000, 1001});
        std::int64_t played = 0;
        for (int lap = 0; lap < 1000; ++lap) {
            const PlayPlan::Stretch stretch = plan.SoundAt(played);
            if (lap > 0)
                QCOMPARE(stretch.material, first);
            QCOMPARE(stretch.material + stretch.count, end);
            played += stretch.count;
            QCOMPARE(plan.MaterialAt(played), first);
        }
        QCOMPARE(Plan(1, 5, {2, 9}, false).SoundAt(std::int64_t(5) * 1920).count, std::int64_t(0));
    }

    void silenceDoesNotCount()
    {
        SoundQueue queue;
        std::vector<float> taken(size_t(kBlock) * SoundQueue::kChannels, -1);
        SoundQueue::Clock::time_point now{};
        const auto take = [&] { queue.Take(taken.data(), kBlock, now += 20ms); };
        queue.Write(Counted(0, 1500).data(), 1500);
        take();
        QCOMPARE(taken[1], 0.0f); // held
        QCOMPARE(queue.Heard(now + 10s), std::int64_t(0));
        queue.Hold(false);
        take();
        QCOMPARE(taken[2046], 1023.0f);
        QCOMPARE(queue.Heard(now + 5ms), std::int64_t(240));
        take();
        QCOMPARE(taken[950], 1499.0f);
        QCOMPARE(taken[952], 0.0f);
        QCOMPARE(queue.Underruns(), 1);
        QCOMPARE(queue.Heard(now + 10s), std::int64_t(1500));
        queue.Write(Counted(1500, 2000).data(), 2000);
        take();
        QCOMPARE(taken[0], 1500.0f);
        QCOMPARE(queue.Cut(100), std::int64_t(1500 + kBlock + 100));
        queue.SetWhole(true);
        take();
        QCOMPARE(taken[198], float(1500 + kBlock + 99));
        QCOMPARE(queue.Underruns(), 1); // it has ended, and misses nothing
    }

    // Two blocks lie in the device; a block that comes late does not take the clock back.
    void heardIsBehindTheDevice()
    {
        SoundQueue queue;
        queue.SetLatency(2);
        queue.Hold(false);
        queue.Write(Counted(0, 8 * kBlock).data(), 8 * kBlock);
        std::vector<float> taken(size_t(kBlock) * SoundQueue::kChannels);
        const SoundQueue::Clock::time_point start{};
        queue.Take(taken.data(), kBlock, start);
        QCOMPARE(queue.Heard(start + 10ms), std::int64_t(0));
        QCOMPARE(queue.Heard(start + 40ms), std::int64_t(40 * 48 - kBlock));
        queue.Take(taken.data(), kBlock, start + 60ms);
        QCOMPARE(queue.Heard(start + 61ms), std::int64_t(40 * 48 - kBlock));
        QCOMPARE(queue.Heard(start + 90ms), std::int64_t(30 * 48));
    }

    // Devices ask a little too early, each time, and still play what they have.
    void allIsHeardInTheEnd()
    {
        SoundQueue queue;
        queue.SetLatency(2);
        queue.Hold(false);
        queue.SetWhole(true);
        queue.Write(Counted(0, kBlock + 100).data(), kBlock + 100);
        std::vector<float> taken(size_t(kBlock) * SoundQueue::kChannels);
        SoundQueue::Clock::time_point now{};
        for (int block = 0; block < 3; ++block)
            queue.Take(taken.data(), kBlock, now += 21ms);
        QCOMPARE(queue.Heard(now + 2ms), std::int64_t(kBlock + 96));
        QCOMPARE(queue.Heard(now + 20ms), std::int64_t(kBlock + 100));
        queue.Write(Counted(kBlock + 100, kBlock).data(), kBlock);
        queue.Take(taken.data(), kBlock, now += 21ms);
        QCOMPARE(queue.Heard(now + 20ms), std::int64_t(kBlock + 100));
        QCOMPARE(queue.Heard(now + 25ms), std::int64_t(25 * 48 + 100));
    }

    void gainIsReachedWithoutAJump()
    {
        SoundQueue queue;
        queue.Hold(false);
        const std::vector<float> ones(size_t(3) * kBlock * SoundQueue::kChannels, 1.0f);
        queue.Write(ones.data(), 3 * kBlock);
        std::vector<float> taken(ones.size() / 3);
        queue.SetGain(0.5f);
        queue.Take(taken.data(), kBlock, {});
        QCOMPARE(taken.front(), 0.5f); // there was no sound before
        queue.SetGain(0);
        queue.Take(taken.data(), kBlock, {});
        QVERIFY(taken[0] > 0.49f);
        QVERIFY(std::is_sorted(taken.rbegin(), taken.rend()));
        QCOMPARE(taken.back(), 0.0f);
        queue.Take(taken.data(), kBlock, {});
        QCOMPARE(taken.front(), 0.0f);
    }

    void levels()
    {
        LevelMeter meter;
        NLEPlayerLevels levels;
        std::vector<float> tone(size_t(48000) * 2);
        for (size_t i = 0; i < 48000; ++i) {
            tone[2 * i] = 0.5f * float(std::sin(double(i) * 0.1));
            tone[2 * i + 1] = i % 4800 == 0 ? -1.25f : 0.0f;
        }
        for (int at = 0; at < 48000; at += 480)
            meter.Add(LevelMeter::Measure(tone.data() + size_t(at) * 2, 480));
        meter.Get(&levels);
        QCOMPARE(levels.channels, 2);
        QVERIFY(std::abs(levels.peak[0] - 0.5f) < 0.005f);
        QVERIFY(std::abs(levels.rms[0] - 0.5f * float(M_SQRT1_2)) < 0.005f);
        QCOMPARE(levels.clipped[0], 0);
        QCOMPARE(levels.clipped[1], 10);
        QCOMPARE(levels.hold[1], 1.25f);
        meter.AddSilence(48000);
        meter.ResetClipping();
        meter.Get(&levels);
        QVERIFY(std::abs(levels.peak[0] - 0.05f) < 0.005f); // 20 dB in a second
        QVERIFY(levels.hold[0] > 0.49f);
        QCOMPARE(levels.rms[0], 0.0f);
        QCOMPARE(levels.clipped[1], 0);
        meter.AddSilence(72000);
        meter.Get(&levels);
        QVERIFY(levels.hold[0] < 0.2f);
        meter.Add(LevelMeter::Measure(tone.data(), 14400));
        meter.Get(&levels);
        QVERIFY(std::abs(levels.rms[0] - 0.5f * float(M_SQRT1_2)) < 0.005f); // silence is forgotten
    }
};

QTEST_APPLESS_MAIN(tst_PlayPlan)
#include "tst_play_plan.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"

#include <QtTest>

#include <limits>

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr int kMax = std::numeric_limits<int>::max();
constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kDaySeconds = 24 * 60 * 60;

int RoundTrip(int frame, float fps)
{
    return gString2Frame(fps, gFrame2String(frame, fps));
}

// The first of every `step`th frame that comes back as another one; `end` when all before it stay.
int FirstChanged(float fps, int end, int step)
{
    for (int frame = 0; frame < end; frame += step) {
        if (RoundTrip(frame, fps) != frame)
            return frame;
    }
    return end;
}

} // namespace

class TestTimecode : public QObject
{
    Q_OBJECT

private slots:
    void frameToText_data()
    {
        QTest::addColumn<int>("frame");
        QTest::addColumn<float>("fps");
        QTest::addColumn<QString>("full");
        QTest::addColumn<QString>("withoutFrames");
        const auto row = [](const char* name, int frame, float fps, const char* full,
                            const char* withoutFrames = "00:00:00") {
            QTest::newRow(name) << frame << fps << QString(full) << QString(withoutFrames);
        };
        row("25, one hour", 90000, 25, "01:00:00:00", "01:00:00");
        // Without frames a minute is cut to 1798 frames, so that the first one reads as the next.
        row("29.97, last frame of a minute", 1798, 29.97F, "00:00:59:29");
        row("29.97, one minute", 1799, 29.97F, "00:01:00:00", "00:01:00");
        row("119.88, three digits of frames", 119, 119.88F, "00:00:00:119");
        row("the last frame of all", kMax, 25, "23860:55:45:22", "23860:55:45");
        row("a frame before the first", -25, 25, "20496382304:07:17:05", "00:00:-1");
        row("no rate", 100, 0, "00:00:00:00");
        row("negative rate", 100, -25, "00:00:00:00");
        row("rate that is no number", 100, kNaN, "00:00:00:00");
        row("infinite rate", 100, kInfinity, "00:00:00:00");
        row("rate below its four decimals", 100, 0.00005F, "00:00:00:00");
        row("rate without a frame in an hour", 100, 0.0002F, "138:53:20:00");
        row("rate without a frame in a minute", 100, 0.01F, "02:46:40:00");
        row("rate with an hour beyond 32 bits", 100, 1e7F, "00:00:00:100");
        row("rate with an hour of 2^64", 100, 1.1529215e14F, "00:00:00:00");
        row("first frame of all at a rate beyond bounds", kMin, 3e38F, "00:00:00:00");
    }
    void frameToText()
    {
        QFETCH(int, frame);
        QFETCH(float, fps);
        QTEST(gFrame2String(frame, fps), "full");
        QTEST(gFrame2StringSecond(frame, fps), "withoutFrames");
    }

    void textToFrame_data()
    {
        QTest::addColumn<float>("fps");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("frame");
        const auto row = [](const char* name, float fps, const char* text, int frame) {
            QTest::newRow(name) << fps << QString(text) << frame;
        };
        row("one hour", 25, "01:00:00:00", 90000);
        row("a second and ten frames", 25, "00:00:01:10", 35);
        row("fields of one digit", 25, "1:2:3:04", 93079);
        row("in single precision, in steps of 8 up here", 25, "999:59:59:999", 90000976);
        row("white space around", 25, " \t00:00:01:10\n", 35);
        row("a second of 29.97 is rounded up", 29.97F, "00:00:01:00", 30);
        row("no rate counts only frames", 0, "00:00:01:10", 10);
        row("beyond all frames", 1e6F, "999:00:00:00", -1);
        row("before all frames", -1e6F, "999:00:00:00", -1);
        row("rate that is no number", kNaN, "999:00:00:00", -1);
        row("infinite rate", kInfinity, "999:00:00:00", -1);
    }
    void textToFrame()
    {
        QFETCH(float, fps);
        QFETCH(QString, text);
        QTEST(gString2Frame(fps, text), "frame");
    }

    void otherTextIsNoFrame_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << "";
        QTest::newRow("frames of one digit") << "00:00:01:5";
        QTest::newRow("60 minutes") << "00:60:00:00";
        QTest::newRow("60 seconds") << "00:00:60:00";
        QTest::newRow("hours of four digits") << "1000:00:00:00";
        QTest::newRow("frames of four digits") << "00:00:00:0000";
        QTest::newRow("three fields") << "00:00:00";
        QTest::newRow("five fields") << "00:00:00:00:00";
        QTest::newRow("no hours") << ":00:00:00";
        QTest::newRow("no minutes") << "00::00:00";
        QTest::newRow("semicolon before the frames") << "00:00:00;00";
        QTest::newRow("comma before the frames") << "00:00:00,00";
        QTest::newRow("minus") << "-1:00:00:00";
        QTest::newRow("plus") << "+1:00:00:00";
        QTest::newRow("space within") << "00:00: 1:00";
        QTest::newRow("letter within") << "00:00:0a:00";
        QTest::newRow("Arabic digit") << "\u0661:00:00:00";
        QTest::newRow("letter behind") << "00:00:00:00x";
    }
    void otherTextIsNoFrame()
    {
        QFETCH(QString, text);
        QCOMPARE(gString2Frame(25, text), -1);
    }

    // docs/timecode.md has the figures of all frames; here are enough of them to see a change.
    void wholeRatesComeBack_data()
    {
        QTest::addColumn<float>("fps");
        for (const int fps : {24, 25, 30, 50, 60})
            QTest::addRow("%d", fps) << float(fps);
    }
    void wholeRatesComeBack()
    {
        QFETCH(float, fps);
        const int end = static_cast<int>(kDaySeconds * fps);
        QCOMPARE(FirstChanged(fps, end, end / 60000), end);
    }

    void fractionalRatesLoseAFrameLater_data()
    {
        QTest::addColumn<float>("fps");
        QTest::addColumn<int>("firstChanged");
        QTest::newRow("23.976") << 23.976F << 133859;
        QTest::newRow("29.97") << 29.97F << 132858;
        QTest::newRow("59.94") << 59.94F << 262718;
        QTest::newRow("119.88") << 119.88F << 525435;
    }
    void fractionalRatesLoseAFrameLater()
    {
        QFETCH(float, fps);
        QFETCH(int, firstChanged);
        QCOMPARE(FirstChanged(fps, firstChanged, 7), firstChanged);
        QCOMPARE(RoundTrip(firstChanged, fps), firstChanged - 1);
        const int end = static_cast<int>(kDaySeconds * fps);
        for (int frame = firstChanged; frame < end; frame += end / 60000) {
            const int lost = frame - RoundTrip(frame, fps);
            if (lost != 0 && lost != 1)
                QFAIL(qPrintable(QString("frame %1 loses %2").arg(frame).arg(lost)));
        }
    }

    void otherRate_data()
    {
        QTest::addColumn<int>("frame");
        QTest::addColumn<double>("fromFps");
        QTest::addColumn<double>("toFps");
        QTest::addColumn<int>("expected");
        QTest::newRow("25 to 30") << 100 << 25.0 << 30.0 << 120;
        QTest::newRow("half a frame is cut off") << -7 << 2.0 << 1.0 << -3;
        QTest::newRow("from no rate") << 100 << 0.0 << 30.0 << -1;
        QTest::newRow("from a rate that is no number") << 100 << double(kNaN) << 30.0 << -1;
        QTest::newRow("to an infinite rate") << 100 << 25.0 << double(kInfinity) << -1;
        QTest::newRow("the first frame of all") << kMin << 1.0 << 1.0 << kMin;
        QTest::newRow("low 32 bits of a larger one") << kMax << 1.0 << 2.0 << -2;
    }
    void otherRate()
    {
        QFETCH(int, frame);
        QFETCH(double, fromFps);
        QFETCH(double, toFps);
        QTEST(gFrameBaseFps(frame, fromFps, toFps), "expected");
    }

    void codecNames()
    {
        QCOMPARE(gMakeFourCCString(0x34363248), QString("H264"));
        QCOMPARE(gMakeFourCCString(int(0xE9000041)), QString::fromLatin1("A\0\0\xE9", 4));
    }

    void h264Codecs()
    {
        QVERIFY(gIsH264Coder(0x31637661));  // avc1
        QVERIFY(gIsH264Coder(0x34363268));  // h264
        QVERIFY(!gIsH264Coder(0x31766568)); // hev1
    }
};

QTEST_GUILESS_MAIN(TestTimecode)

#include "tst_timecode.moc"

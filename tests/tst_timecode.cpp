// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"

#include <QtTest>

#include <limits>

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr int kMax = std::numeric_limits<int>::max();
constexpr int kMin = std::numeric_limits<int>::min();

} // namespace

class TestTimecode : public QObject
{
    Q_OBJECT

private slots:
    void frameToText()
    {
        const auto check = [](int frame, float fps, const char* full,
                              const char* withoutFrames = "00:00:00") {
            QCOMPARE(gFrame2String(frame, fps), QString(full));
            QCOMPARE(gFrame2StringSecond(frame, fps), QString(withoutFrames));
        };
        check(90000, 25, "01:00:00:00", "01:00:00");
        // Without frames a minute is cut to 1798 frames, so that the first one reads as the next.
        check(1798, 29.97F, "00:00:59:29");
        check(1799, 29.97F, "00:01:00:00", "00:01:00");
        check(119, 119.88F, "00:00:00:119");
        check(kMax, 25, "23860:55:45:22", "23860:55:45");
        check(-25, 25, "20496382304:07:17:05", "00:00:-1");
        for (const float fps : {0.0F, -25.0F, kNaN, kInfinity, 0.00005F})
            check(100, fps, "00:00:00:00");
        check(100, 0.0002F, "138:53:20:00");      // no frame per hour
        check(100, 0.01F, "02:46:40:00");         // no frame per minute
        check(100, 1e7F, "00:00:00:100");         // an hour beyond 32 bits
        check(100, 1.1529215e14F, "00:00:00:00"); // an hour of 2^64
        check(kMin, 3e38F, "00:00:00:00");
    }

    void textToFrame()
    {
        const auto check = [](float fps, const QString& text, int frame) {
            const int actual = gString2Frame(fps, text);
            const QString line = QString("\"%1\" at %2 gives %3").arg(text).arg(fps).arg(actual);
            QVERIFY2(actual == frame, qPrintable(line));
        };
        check(25, "01:00:00:00", 90000);
        check(25, "00:00:01:10", 35);
        check(25, "1:2:3:04", 93079);
        check(25, "999:59:59:999", 90000976); // single precision: in steps of 8 up here
        check(25, " \t00:00:01:10\n", 35);
        check(29.97F, "00:00:01:00", 30); // rounded up
        check(0, "00:00:01:10", 10);
        for (const char* refused :
             {"", "00:00:01:5", "00:60:00:00", "00:00:60:00", "1000:00:00:00", "00:00:00:0000",
              "00:00:00", "00:00:00:00:00", ":00:00:00", "00::00:00", "00:00:00;00", "00:00:00,00",
              "-1:00:00:00", "+1:00:00:00", "00:00: 1:00", "00:00:0a:00", "\u0661:00:00:00",
              "00:00:00:00x"})
            check(25, refused, -1);
        for (const float fps : {kNaN, kInfinity, 1e6F, -1e6F})
            check(fps, "999:00:00:00", -1);
    }

    // docs/timecode.md has the figures of all frames; here are enough of them to see a change.
    void roundTrip()
    {
        const auto check = [](float fps, int firstChanged) {
            const auto changeOf = [fps](int frame) {
                return gString2Frame(fps, gFrame2String(frame, fps)) - frame;
            };
            const int end = static_cast<int>(86400 * fps);
            const int step = end / 60000;
            for (int frame = 0; frame < end; frame += frame < firstChanged ? 7 : step) {
                const int change = changeOf(frame);
                const bool mayChange = firstChanged >= 0 && frame >= firstChanged;
                const QByteArray place = QByteArray::number(frame);
                QVERIFY2(change == 0 || (mayChange && change == -1), place.constData());
            }
            if (firstChanged >= 0)
                QCOMPARE(changeOf(firstChanged), -1);
        };
        for (const float fps : {24.0F, 25.0F, 30.0F, 50.0F, 60.0F})
            check(fps, -1);
        check(23.976F, 133859);
        check(29.97F, 132858);
        check(59.94F, 262718);
        check(119.88F, 525435);
    }

    void otherRate()
    {
        QCOMPARE(gFrameBaseFps(100, 0, 30), -1);
        QCOMPARE(gFrameBaseFps(100, 25, 30), 120);
        QCOMPARE(gFrameBaseFps(-7, 2, 1), -3);
        QCOMPARE(gFrameBaseFps(100, double(kNaN), 30), -1);
        QCOMPARE(gFrameBaseFps(100, 25, double(kInfinity)), -1);
        QCOMPARE(gFrameBaseFps(kMin, 1, 1), kMin);
        QCOMPARE(gFrameBaseFps(kMax, 1, 2), -2); // the low 32 bits
    }

    void codecNames()
    {
        QCOMPARE(gMakeFourCCString(0x34363248), QString("H264"));
        QCOMPARE(gMakeFourCCString(int(0xE9000041)), QString::fromLatin1("A\0\0\xE9", 4));
        QVERIFY(gIsH264Coder(0x31637661));  // avc1
        QVERIFY(gIsH264Coder(0x34363268));  // h264
        QVERIFY(!gIsH264Coder(0x31766568)); // hev1
    }
};

QTEST_GUILESS_MAIN(TestTimecode)

#include "tst_timecode.moc"

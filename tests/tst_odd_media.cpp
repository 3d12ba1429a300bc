// SPDX-License-Identifier: LGPL-2.1-or-later
// Files that recorders and copying programs leave behind, which say less than they should.
#include "NLECore/media/AudioDecoder.h"
#include "NLECore/media/FrameDecoder.h"
#include "tests/support/MediaFixture.h"

#include <QtTest>

#include <algorithm>

using namespace nle;

class tst_OddMedia : public QObject, private MediaFixture
{
    Q_OBJECT

    /// Transport streams, one behind the other.
    static TestClip Recording(int frames, const QSize& size, int bframes)
    {
        TestClip clip;
        clip.size = size;
        clip.frames = frames;
        clip.gop = 12;
        clip.bframes = bframes;
        clip.audioCodec = "aac";
        return clip;
    }

private Q_SLOTS:
    void joinedRecordings_data()
    {
        QTest::addColumn<QList<int>>("lengths");
        QTest::addColumn<QSize>("secondSize");
        QTest::addColumn<int>("bframes");
        QTest::newRow("of one size") << QList<int>{60, 40} << kThumbnail << 0;
        QTest::newRow("with pictures out of order") << QList<int>{60, 40} << kThumbnail << 2;
        QTest::newRow("the second one larger") << QList<int>{40, 60} << QSize(320, 180) << 2;
        QTest::newRow("the second one much longer") << QList<int>{30, 400} << kThumbnail << 2;
        QTest::newRow("three") << QList<int>{30, 40, 30} << QSize(320, 180) << 0;
    }

    void joinedRecordings()
    {
        QFETCH(QList<int>, lengths);
        QFETCH(QSize, secondSize);
        QFETCH(int, bframes);
        QByteArray file;
        QList<int> shown;
        for (int i = 0; i < lengths.size(); ++i) {
            const TestClip clip = Recording(lengths[i], i == 1 ? secondSize : kThumbnail, bframes);
            QCOMPARE(MakeTestClip(Path("part.ts"), clip), QString());
            file += Contents(Path("part.ts"));
            for (int frame = 0; frame < lengths[i]; ++frame)
                shown << frame;
        }
        QVERIFY(SetContents(Path("joined.ts"), file));
        const Info info = Probe("joined.ts");
        QVERIFY(info);
        QCOMPARE(int(info->frameCount), shown.size());
        const auto sequential = FrameDecoder::Open(info, info->videoStream, nullptr);
        const auto jumping = FrameDecoder::Open(info, info->videoStream, nullptr);
        for (int frame = 0; frame < shown.size(); ++frame) {
            QCOMPARE(ReadFrameNumber(sequential->Picture(frame, kThumbnail)), shown[frame]);
            const int other = frame * 37 % shown.size();
            QCOMPARE(ReadFrameNumber(jumping->Picture(other, kThumbnail)), shown[other]);
        }
        QVERIFY(sequential->Picture(shown.size() + 40, kThumbnail).isNull());
    }

    void joinedSound()
    {
        TestClip tone = Recording(50, kThumbnail, 0);
        TestClip silence = tone;
        silence.toneLevel = 0;
        QCOMPARE(MakeTestClip(Path("silence.ts"), silence), QString());
        QCOMPARE(MakeTestClip(Path("tone.ts"), tone), QString());
        QVERIFY(
            SetContents(Path("both.ts"), Contents(Path("silence.ts")) + Contents(Path("tone.ts"))));
        const Info info = Probe("both.ts");
        QVERIFY(info);
        const auto sound = AudioDecoder::Open(info, info->audioStream, nullptr);
        QVERIFY(sound);
        constexpr int rate = 48000;
        std::vector<float> samples(std::size_t(4) * rate);
        QVERIFY(sound->Read(0, 4 * rate, rate, 1, samples.data()) > 3.9 * rate);
        const auto loudest = [&](double from, double to) {
            return *std::max_element(samples.begin() + int(from * rate),
                                     samples.begin() + int(to * rate));
        };
        QVERIFY(loudest(0, 1.9) < 0.01F);
        QVERIFY(loudest(2.1, 3.9) > 0.4F);
    }

    void sizeChangesAmid_data()
    {
        QTest::addColumn<QString>("offset"); // in seconds
        // The muxer begins a clip of two B-frames at 80 ms, and one with an offset at none.
        QTest::newRow("times go on") << "2.08";
        QTest::newRow("times of two pictures come twice") << "2";
    }

    void sizeChangesAmid()
    {
        QFETCH(QString, offset);
        TestClip first = Recording(50, kThumbnail, 2);
        TestClip second = Recording(50, QSize(320, 180), 2);
        first.audioCodec.clear();
        second.audioCodec.clear();
        second.extra = QStringList{"-output_ts_offset", offset};
        QCOMPARE(MakeTestClip(Path("small.ts"), first), QString());
        QCOMPARE(MakeTestClip(Path("large.ts"), second), QString());
        QVERIFY(
            SetContents(Path("grows.ts"), Contents(Path("small.ts")) + Contents(Path("large.ts"))));
        const Info info = Probe("grows.ts");
        QVERIFY(info);
        QCOMPARE(int(info->frameCount), 100);
        const auto sequential = FrameDecoder::Open(info, info->videoStream, nullptr);
        const auto jumping = FrameDecoder::Open(info, info->videoStream, nullptr);
        for (int frame = 0; frame < 100; ++frame) {
            QCOMPARE(ReadFrameNumber(sequential->Picture(frame, kThumbnail)), frame % 50);
            const int other = frame * 37 % 100;
            QCOMPARE(ReadFrameNumber(jumping->Picture(other, kThumbnail)), other % 50);
        }
    }

    void staticTailOfTheora()
    {
        // The encoder writes empty packets for pictures that do not change.
        QByteArray pictures;
        for (int frame = 0; frame < 100; ++frame) {
            const QImage picture = PaintFrameNumber(std::min(frame, 30), QSize(160, 96))
                                       .convertToFormat(QImage::Format_ARGB32);
            pictures.append(reinterpret_cast<const char*>(picture.constBits()),
                            int(picture.sizeInBytes()));
        }
        QCOMPARE(RunFfmpeg({"-f", "rawvideo", "-pixel_format", "bgra", "-video_size", "160x96",
                            "-framerate", "25", "-i", "-", "-c:v", "libtheora", "-q:v", "8", "-g",
                            "200", Path("static.ogv")},
                           pictures),
                 QString());
        const Info info = Probe("static.ogv");
        QVERIFY(info);
        // The program does not write all of the pictures that stand at the end.
        const int count = int(info->frameCount);
        QVERIFY(count >= 60 && count <= 100);
        const auto sequential = FrameDecoder::Open(info, info->videoStream, nullptr);
        for (int frame = 0; frame < count; ++frame)
            QCOMPARE(ReadFrameNumber(sequential->Picture(frame, kThumbnail)), std::min(frame, 30));
        for (const int frame : {count - 1, 40, count - 2, 20, 50}) {
            const auto jumping = FrameDecoder::Open(info, info->videoStream, nullptr);
            QCOMPARE(ReadFrameNumber(jumping->Picture(frame, kThumbnail)), std::min(frame, 30));
        }
        QVERIFY(sequential->Picture(count + 40, kThumbnail).isNull());
    }

    void streamedFlashVideo_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<QString>("audioCodec");
        QTest::newRow("25 pictures a second") << 25 << "";
        QTest::newRow("30 pictures a second") << 30 << "";
        QTest::newRow("with sound") << 25 << "aac";
    }

    void streamedFlashVideo()
    {
        QFETCH(int, rate);
        QFETCH(QString, audioCodec);
        TestClip clip = SmallClip(50);
        clip.rateNum = rate;
        clip.audioCodec = audioCodec;
        clip.extra = QStringList{"-flvflags", "no_metadata+no_duration_filesize"};
        QFile::remove(Path("streamed.flv"));
        const Info info = Make("streamed.flv", clip);
        QVERIFY(info);
        QCOMPARE(int(info->frameCount), clip.frames);
    }
};

QTEST_GUILESS_MAIN(tst_OddMedia)
#include "tst_odd_media.moc"

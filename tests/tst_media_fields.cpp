// SPDX-License-Identifier: LGPL-2.1-or-later
// Interlaced pictures: what the engine knows of them, and what it makes of them.
#include "NLECore/media/FrameDecoder.h"
#include "tests/support/MediaFixture.h"

#include <QtTest>

#include <array>
#include <cmath>
#include <random>

using namespace nle;

namespace {

constexpr int kFrames = 24;
const QSize kPal(720, 576);
const QSize kSmall(320, 180);

const Deinterlacing kOff = {NLEDeinterlacing_Off, NLEField_Progressive};

/// Mean difference of the green of two pictures, 0 to 255.
double Difference(const QImage& a, const QImage& b)
{
    if (a.isNull() || a.size() != b.size())
        return 255;
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); x += 4)
            sum += std::abs(qGreen(a.pixel(x, y)) - qGreen(b.pixel(x, y)));
    }
    return sum / (std::ceil(a.width() / 4.0) * a.height());
}

} // namespace

class tst_MediaFields : public QObject, private MediaFixture
{
    Q_OBJECT

    /// A pattern that moves in every field; \a filter weaves its 50 pictures a second.
    QString MakeMoving(const QString& name, const QSize& size, const QString& filter,
                       const QString& encoder) const
    {
        const QString source = QString("testsrc2=size=%1x%2:rate=50,scroll=horizontal=0.011,"
                                       "format=yuv420p%3")
                                   .arg(size.width())
                                   .arg(size.height())
                                   .arg(filter.isEmpty() ? ",fps=25" : "," + filter);
        return RunFfmpeg(
            QStringList{"-f", "lavfi", "-i", source, "-frames:v", QString::number(kFrames)} +
            encoder.split(' ') + QStringList{Path(name)});
    }
    /// The row's file; a second call finds it.
    Info MakeRow() const
    {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        QFETCH(QString, filter);
        QFETCH(QString, encoder);
        const bool isThere = QFile::exists(Path(name));
        return Probe(name, isThere ? QString() : MakeMoving(name, size, filter, encoder));
    }
    /// All pictures of a file as the ffmpeg program shows them through \a filter.
    QVector<QImage> Reference(const QString& name, const QString& filter) const
    {
        QTemporaryDir pictures;
        const QString error = RunFfmpeg({"-i", Path(name), "-vf", filter, "-fps_mode",
                                         "passthrough", pictures.filePath("%d.png")});
        QVector<QImage> result;
        for (int i = 1; error.isEmpty() && QFile::exists(pictures.filePath("%1.png").arg(i)); ++i)
            result << QImage(pictures.filePath("%1.png").arg(i));
        return result;
    }

private slots:
    void initTestCase() { QVERIFY(folder.isValid()); }

    void fieldsAreDrawnTogether_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("encoder");
        QTest::addColumn<int>("order"); // NLEFieldOrder
        const auto row = [](const char* title, const char* name, const char* filter,
                            const char* encoder, int order, const QSize& size = kSmall) {
            QTest::newRow(title) << QString(name) << size << QString(filter) << QString(encoder)
                                 << order;
        };
        const char* const top = "tinterlace=interleave_top,setfield=tff";
        const char* const bottom = "tinterlace=interleave_bottom,setfield=bff";
        row("MPEG-2 with B pictures, top first", "top.mpg", top,
            "-c:v mpeg2video -flags +ildct+ilme -top 1 -bf 2 -g 12 -q:v 3", NLEField_TopFirst);
        row("MPEG-2 of a disc, bottom first", "bottom.vob", bottom,
            "-c:v mpeg2video -flags +ildct+ilme -top 0 -bf 2 -q:v 3 -f vob", NLEField_BottomFirst);
        row("H.264 in a transport stream, top first", "top.ts", top,
            "-c:v libx264 -flags +ildct+ilme -top 1 -bf 3 -g 10 -crf 15", NLEField_TopFirst);
        row("H.264 in MP4, long groups, bottom first", "bottom.mp4", bottom,
            "-c:v libx264 -x264-params bff=1 -top 0 -bf 2 -crf 15", NLEField_BottomFirst);
        row("DV", "pal.dv", bottom, "-c:v dvvideo", NLEField_BottomFirst, kPal);
        row("ProRes", "top.mov", top, "-c:v prores_ks -flags +ildct -top 1 -field_order tt",
            NLEField_TopFirst);
        row("only the container says so", "top.mkv", top, "-c:v huffyuv -field_order tt",
            NLEField_TopFirst);
        row("only a picture says so", "top.avi", top, "-c:v mpeg4 -flags +ildct+ilme -top 1 -q:v 2",
            NLEField_TopFirst);
        row("progressive", "whole.mp4", "", "-c:v libx264 -bf 3 -g 10", NLEField_Progressive);
    }

    void fieldsAreDrawnTogether()
    {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        QFETCH(int, order);
        const auto info = MakeRow();
        QVERIFY(info);
        QCOMPARE(int(info->streams[size_t(info->videoStream)].fieldOrder), order);
        const bool isInterlaced = order != NLEField_Progressive;
        const QString filter = QString("setfield=%1,bwdif=send_frame:auto:all")
                                   .arg(order == NLEField_TopFirst ? "tff" : "bff");
        const auto wanted = Reference(name, isInterlaced ? filter : "null");
        const auto woven = Reference(name, "null");
        QCOMPARE(wanted.size(), kFrames);
        const auto decoder = FrameDecoder::Open(info, info->videoStream, nullptr);
        QVERIFY(decoder);
        for (int frame = 0; frame < kFrames; ++frame) {
            const QImage drawn = decoder->Picture(frame, size);
            QVERIFY2(Difference(drawn, wanted[frame]) < 1, qPrintable(QString::number(frame)));
            QVERIFY(!isInterlaced || Difference(drawn, woven[frame]) > 3);
        }
        QVERIFY(decoder->Picture(kFrames + 10, size).isNull());
        QVERIFY(Difference(decoder->Picture(5, size, kOff), woven[5]) < 1);
    }

    void theWayThereDoesNotShow_data() { fieldsAreDrawnTogether_data(); }

    void theWayThereDoesNotShow()
    {
        QFETCH(QSize, size);
        const auto info = MakeRow();
        QVERIFY(info);
        const auto forward = FrameDecoder::Open(info, info->videoStream, nullptr);
        const auto jumping = FrameDecoder::Open(info, info->videoStream, nullptr);
        QVector<QImage> pictures;
        for (int frame = 0; frame < kFrames; ++frame)
            pictures << forward->Picture(frame, size);
        std::mt19937 generator(5);
        QVector<int> frames{kFrames - 1, 0, kFrames - 2, 1, 11, 10, 10, 13};
        for (int i = 0; i < 12; ++i)
            frames << int(generator() % unsigned(kFrames));
        for (const int frame : frames) {
            // Another clip of the file may want them as they are, between two of this one.
            if (frame % 3 == 0)
                jumping->Picture(frame, size, kOff);
            QVERIFY2(jumping->Picture(frame, size) == pictures[frame],
                     qPrintable(QString::number(frame)));
        }
    }

    void settings_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("order");
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("name");
        const auto row = [](const char* title, int mode, int order, const char* filter,
                            const char* name = "unmarked.mp4") {
            QTest::newRow(title) << mode << order << QString(filter) << QString(name);
        };
        row("what does not say that it is", NLEDeinterlacing_Automatic, 0, "null");
        row("always, top first", NLEDeinterlacing_Always, NLEField_TopFirst,
            "bwdif=send_frame:tff:all");
        row("always, bottom first", NLEDeinterlacing_Always, NLEField_BottomFirst,
            "bwdif=send_frame:bff:all");
        row("always, the usual order", NLEDeinterlacing_Always, 0, "bwdif=send_frame:tff:all");
        row("never", NLEDeinterlacing_Off, NLEField_TopFirst, "null");
        row("numbered pictures", NLEDeinterlacing_Automatic, 0, "null", "%d.png");
        row("numbered pictures, always", NLEDeinterlacing_Always, NLEField_BottomFirst,
            "bwdif=send_frame:bff:all", "%d.png");
    }

    void settings()
    {
        QFETCH(int, mode);
        QFETCH(int, order);
        QFETCH(QString, filter);
        QFETCH(QString, name);
        const bool isFilm = name == "unmarked.mp4";
        if (!QFile::exists(Path(isFilm ? name : "1.png")))
            QCOMPARE(MakeMoving(name, kSmall, "tinterlace=interleave_top,setfield=prog",
                                isFilm ? "-c:v libx264 -crf 12 -g 8" : "-c:v png"),
                     QString());
        const auto info = Probe(name);
        QVERIFY(info);
        const auto decoder = FrameDecoder::Open(info, info->videoStream, nullptr);
        const auto wanted = Reference(name, filter);
        for (const int frame : {12, 0, 7, 8, kFrames - 1}) {
            const QImage drawn =
                decoder->Picture(frame, kSmall, {NLEDeinterlacing(mode), NLEFieldOrder(order)});
            QVERIFY2(Difference(drawn, wanted[frame]) < 1, qPrintable(QString::number(frame)));
        }
    }

    void joinedRecordings_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("order");
        QTest::newRow("those that say so") << int(NLEDeinterlacing_Automatic) << 0;
        QTest::newRow("none") << int(NLEDeinterlacing_Off) << 0;
        QTest::newRow("bottom first") << int(NLEDeinterlacing_Always) << int(NLEField_BottomFirst);
    }

    void joinedRecordings()
    {
        QFETCH(int, mode);
        QFETCH(int, order);
        const Deinterlacing wanted = {NLEDeinterlacing(mode), NLEFieldOrder(order)};
        const QString encoder = "-c:v libx264 -crf 12 -bf 2 -g 8";
        if (!QFile::exists(Path("joined.ts"))) {
            QCOMPARE(MakeMoving("one.ts", kSmall, "tinterlace=interleave_top,setfield=tff",
                                encoder + " -flags +ildct+ilme -top 1"),
                     QString());
            QCOMPARE(MakeMoving("two.ts", kSmall, "", encoder), QString());
            QVERIFY(SetContents(Path("joined.ts"),
                                Contents(Path("one.ts")) + Contents(Path("two.ts"))));
        }
        const auto info = Probe("joined.ts");
        QVERIFY(info);
        QCOMPARE(int(info->parts.size()), 2);
        const auto joined = FrameDecoder::Open(info, info->videoStream, nullptr);
        const std::array parts = {Probe("one.ts"), Probe("two.ts")};
        for (const int frame : {0, kFrames + 5, 9, kFrames - 1, kFrames, kFrames - 1, 8, 7}) {
            const auto alone = FrameDecoder::Open(parts[size_t(frame / kFrames)], 0, nullptr);
            for (const PictureDepth depth : {PictureDepth::Usual, PictureDepth::Deep})
                QCOMPARE(joined->Picture(frame, kSmall, wanted, depth),
                         alone->Picture(frame % kFrames, kSmall, wanted, depth));
        }
    }

    // The head of the stream says nothing of what comes later.
    void interlacedPartOfAStream()
    {
        const QString encoder = "-c:v libx264 -crf 12 -bf 2 -g 8";
        QCOMPARE(MakeMoving("first.ts", kSmall, "", encoder), QString());
        QCOMPARE(MakeMoving("second.ts", kSmall, "tinterlace=interleave_top,setfield=tff",
                            encoder + " -flags +ildct+ilme -top 1 -output_ts_offset 1.04"),
                 QString());
        QVERIFY(
            SetContents(Path("both.ts"), Contents(Path("first.ts")) + Contents(Path("second.ts"))));
        const auto info = Probe("both.ts");
        QVERIFY(info);
        const auto wanted = Reference("both.ts", "bwdif=send_frame:auto:interlaced");
        const auto forward = FrameDecoder::Open(info, info->videoStream, nullptr);
        const auto jumping = FrameDecoder::Open(info, info->videoStream, nullptr);
        QVector<QImage> pictures;
        for (int frame = 0; frame < 2 * kFrames; ++frame) {
            pictures << forward->Picture(frame, kSmall);
            QVERIFY2(Difference(pictures.last(), wanted[frame]) < 1,
                     qPrintable(QString::number(frame)));
        }
        for (const int frame : {kFrames, 2 * kFrames - 1, 3, kFrames + 9, kFrames - 1, kFrames})
            QCOMPARE(jumping->Picture(frame, kSmall), pictures[frame]);
    }
};

QTEST_MAIN(tst_MediaFields)
#include "tst_media_fields.moc"

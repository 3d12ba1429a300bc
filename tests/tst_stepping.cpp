// SPDX-License-Identifier: LGPL-2.1-or-later
// Stepping back, scrubbing and hardware: pictures are those that plain decoding gives.
#include "NLECore/media/DecoderPool.h"
#include "NLECore/media/HardwareDecoding_p.h"
#include "NLECore/media/PictureCache.h"
#include "tests/support/IdleDevice.h"
#include "tests/support/MediaFixture.h"

#include <QRegularExpression>
#include <QScopeGuard>
#include <QtTest>

#include <atomic>
#include <random>
#include <thread>

extern "C" {
#include <libswscale/swscale.h>
}

using namespace nle;

namespace {

/// What is deinterlaced is drawn from its neighbours, and not kept.
constexpr Deinterlacing kAsStored = {NLEDeinterlacing_Off, NLEField_Progressive};
constexpr int kGroup = 50;
constexpr int kFrames = 150;

/// A picture of the test clips in memory, with what its lines are padded with.
constexpr std::int64_t kPictureBytes = 192 * 90 + 2 * 128 * 45 + 64;

int Failing(AVBufferRef** /*device*/, AVHWDeviceType /*type*/)
{
    return AVERROR(ENODEV);
}

const QString kFailsLater = "decoded in software from here on";

/// As hardware gives them: luma, and both chroma components by turns.
int ToSemiPlanar(AVFrame* picture)
{
    const FramePtr result(av_frame_alloc());
    result->format = AV_PIX_FMT_NV12;
    result->width = picture->width;
    result->height = picture->height;
    if (av_frame_get_buffer(result.get(), 0) < 0 || av_frame_copy_props(result.get(), picture) < 0)
        return AVERROR(ENOMEM);
    SwsContext* const scaler = sws_getContext(
        picture->width, picture->height, AVPixelFormat(picture->format), picture->width,
        picture->height, AV_PIX_FMT_NV12, SWS_POINT, nullptr, nullptr, nullptr);
    sws_scale(scaler, picture->data, picture->linesize, 0, picture->height, result->data,
              result->linesize);
    sws_freeContext(scaler);
    av_frame_unref(picture);
    av_frame_move_ref(picture, result.get());
    return 0;
}

/// Of the components, which the conversion of either format rounds in its own way.
double MeanDifference(const QImage& a, const QImage& b)
{
    double sum = a.size() == b.size() && !a.isNull() ? 0 : 1e9;
    for (int i = 0; i < int(a.sizeInBytes()) && sum < 1e9; ++i)
        sum += std::abs(int(a.constBits()[i]) - int(b.constBits()[i]));
    return sum / std::max<double>(1, double(a.sizeInBytes()));
}

} // namespace

Q_DECLARE_METATYPE(TestClip)
Q_DECLARE_METATYPE(HardwareDriver)
Q_DECLARE_METATYPE(NLEHardwareDecoding)

class tst_Stepping : public QObject, private MediaFixture
{
    Q_OBJECT

    static TestClip LongGroups()
    {
        TestClip clip = SmallClip(kFrames);
        clip.gop = kGroup;
        clip.bframes = 2;
        return clip;
    }
    Info Long() const { return Make("long.mp4", LongGroups()); }
    std::unique_ptr<FrameDecoder> OpenLong() const
    {
        return FrameDecoder::Open(Long(), 0, nullptr);
    }
    /// Some bytes amid the pictures are others, or the end is missing.
    static bool Damage(const QString& path, bool cut)
    {
        QByteArray content = Contents(path);
        if (cut)
            return SetContents(path, content.left(content.size() * 2 / 3));
        std::mt19937 generator(9);
        for (int i = 0; i < 30; ++i)
            content[int(content.size() / 4 + generator() % unsigned(content.size() / 2))] = 85;
        return SetContents(path, content);
    }
    static auto Bounded(std::int64_t bytes)
    {
        const std::int64_t before = KeptPictures().MaxBytes();
        KeptPictures().SetMaxBytes(bytes);
        return qScopeGuard([before] { KeptPictures().SetMaxBytes(before); });
    }
    /// Each decoded for itself.
    static std::vector<QImage> Backward(const Info& info)
    {
        const auto none = Bounded(0);
        const auto decoder = FrameDecoder::Open(info, info->videoStream, nullptr);
        std::vector<QImage> pictures;
        for (int frame = kFrames - 1; frame >= 0; --frame)
            pictures.insert(pictures.begin(), decoder->Picture(frame, kThumbnail, kAsStored));
        return pictures;
    }

private slots:
    void initTestCase() { QVERIFY(folder.isValid()); }
    void cleanup()
    {
        QCOMPARE(KeptPictures().Bytes(), std::int64_t(0));
        SetHardwareDriver(SystemHardware());
    }

    void sameAsWithoutKeeping_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<TestClip>("clip");
        QTest::addColumn<bool>("damaged");
        const auto row = [](const char* title, QString name, const TestClip& clip,
                            bool damaged = false) {
            QTest::newRow(title) << name << clip << damaged;
        };
        TestClip clip = LongGroups();
        row("transport stream that was cut off", "cut.ts", clip, true);
        clip.size = QSize(160, 96);
        clip.extra = QStringList{"-x264-params", "tff=1"};
        row("interlaced H.264", "fields.mp4", clip);
        clip.codec = "mpeg2video";
        clip.extra = QStringList{"-flags", "+ildct+ilme", "-top", "1"};
        row("interlaced MPEG-2", "fields.mpg", clip);
        clip.codec = "libx265";
        clip.extra = QStringList{"-x265-params", "log-level=error", "-pix_fmt", "yuv420p10le"};
        row("HEVC of ten bits with open groups", "open.mkv", clip);
        clip.codec = "libvpx-vp9";
        clip.extra = QStringList{"-auto-alt-ref", "1", "-lag-in-frames", "16", "-cpu-used", "8"};
        row("VP9 with hidden pictures", "hidden.webm", clip);
        clip.codec = "mjpeg";
        clip.extra = QStringList{"-huffman", "default"};
        row("damaged pictures", "damaged.avi", clip, true);
        clip.codec = "qtrle";
        clip.extra = QStringList{"-pix_fmt", "argb"};
        row("pictures with alpha", "alpha.mov", clip);
        clip.codec = "gif";
        clip.extra.clear();
        row("pictures with a palette", "palette.gif", clip);
    }

    void sameAsWithoutKeeping()
    {
        QFETCH(QString, name);
        QFETCH(TestClip, clip);
        QFETCH(bool, damaged);
        QVERIFY(Make(name, clip));
        if (damaged)
            QVERIFY(Damage(Path(name), name.endsWith("ts")));
        const Info info = Probe(name);
        QVERIFY(info);
        const std::vector<QImage> plain = Backward(info);
        const auto decoder = FrameDecoder::Open(info, info->videoStream, nullptr);
        QString different;
        for (int frame = clip.frames - 1; frame >= 0; --frame) {
            if (decoder->Picture(frame, kThumbnail, kAsStored) != plain[size_t(frame)])
                different += ' ' + QString::number(frame);
        }
        QCOMPARE(different, QString());
        QVERIFY(KeptPictures().Bytes() > 0);
    }

    void groupIsReadOnce()
    {
        const Info info = Make("once.mp4", LongGroups());
        const auto decoder = FrameDecoder::Open(info, 0, nullptr);
        for (const int frame : {140, 139})
            QCOMPARE(ReadFrameNumber(decoder->Picture(frame, kThumbnail)), frame);
        QVERIFY(QFile::resize(info->path, 0));
        for (int frame = 138; frame >= 2 * kGroup; --frame)
            QCOMPARE(ReadFrameNumber(decoder->Picture(frame, kThumbnail)), frame);
        QVERIFY(decoder->Holds(120));
        QVERIFY(!decoder->Holds(2 * kGroup - 1));
    }

    void boundIsKept_data()
    {
        QTest::addColumn<int>("bytes");
        QTest::newRow("nothing") << 0;
        QTest::newRow("less than a picture") << int(kPictureBytes) - 1;
        QTest::newRow("a part of a group") << int(kPictureBytes * 7);
        QTest::newRow("a group and a part") << int(kPictureBytes * 70);
    }

    void boundIsKept()
    {
        QFETCH(int, bytes);
        const auto bound = Bounded(bytes);
        const Info info = Long();
        std::atomic<int> wrong{0};
        std::atomic<bool> hasKept{false};
        std::vector<std::thread> threads;
        for (int i = 0; i < 3; ++i) {
            threads.emplace_back([&] {
                const auto decoder = FrameDecoder::Open(info, 0, nullptr, 1);
                for (int frame = kFrames - 1; frame >= 0; --frame) {
                    wrong += ReadFrameNumber(decoder->Picture(frame, kThumbnail)) != frame;
                    const std::int64_t kept = KeptPictures().Bytes();
                    wrong += kept > bytes;
                    hasKept = hasKept || kept > 0;
                }
            });
        }
        for (std::thread& thread : threads)
            thread.join();
        QCOMPARE(wrong.load(), 0);
        QCOMPARE(hasKept.load(), bytes > kPictureBytes);
    }

    void playingForwardKeepsNothing()
    {
        TestClip clip = LongGroups();
        clip.frames = 500;
        const auto decoder = FrameDecoder::Open(Make("play.mp4", clip), 0, nullptr);
        const auto play = [&](int from, int to) {
            for (int frame = from; frame < to; ++frame)
                decoder->Picture(frame, kThumbnail);
            return KeptPictures().Bytes();
        };
        QCOMPARE(play(0, 120), std::int64_t(0));
        QVERIFY(play(115, 116) > 0);
        QCOMPARE(play(116, 500), std::int64_t(0));
    }

    void keptPicturesGoWithTheirDecoder()
    {
        DecoderPool pool;
        const auto step = [&] {
            for (int frame = 140; frame > 130; --frame)
                pool.Acquire(Long(), 0, DecodePurpose::Render, frame)->Picture(frame, kThumbnail);
            return KeptPictures().Bytes() > 0;
        };
        QVERIFY(step());
        QCOMPARE(pool.OpenCount(), 1);
        pool.Drop(Long()->path);
        QCOMPARE(KeptPictures().Bytes(), std::int64_t(0));
        QVERIFY(step());
        pool.Clear();
        QCOMPARE(KeptPictures().Bytes(), std::int64_t(0));
        QVERIFY(step());
        KeptPictures().Clear();
    }

    void poolLendsTheOneThatKeepsPictures()
    {
        DecoderPool pool;
        auto early = pool.Acquire(Long(), 0, DecodePurpose::Render, 0);
        auto late = pool.Acquire(Long(), 0, DecodePurpose::Render, 0);
        early->Picture(5, kThumbnail);
        late->Picture(140, kThumbnail);
        FrameDecoder* const stepping = &*late;
        early.Release();
        late.Release();
        for (int frame = 139; frame > 90; --frame) {
            const auto lease = pool.Acquire(Long(), 0, DecodePurpose::Render, frame);
            QCOMPARE(&*lease, stepping);
            QCOMPARE(ReadFrameNumber(lease->Picture(frame, kThumbnail)), frame);
        }
    }

    void nearPictures_data()
    {
        QTest::addColumn<QVector<int>>("shown"); // before
        QTest::addColumn<int>("frame");
        QTest::addColumn<int>("nearest");
        const auto row = [](const char* title, QVector<int> shown, int frame, int nearest) {
            QTest::newRow(title) << shown << frame << nearest;
        };
        row("at first, the key frame before", {}, 77, 50);
        row("far ahead, the key frame before", {10}, 140, 100);
        row("far back, the key frame before", {140}, 33, 0);
        row("the one on show", {60}, 60, 60);
        row("the next one", {60}, 61, 61);
        row("ahead in the group, the one on show", {80}, 85, 80);
        row("one that was kept", {80, 79}, 70, 70);
        row("the nearest of those that were kept", {80, 79}, 90, 80);
    }

    void nearPictures()
    {
        QFETCH(QVector<int>, shown);
        QFETCH(int, frame);
        QFETCH(int, nearest);
        const auto decoder = OpenLong();
        for (const int before : shown)
            decoder->Picture(before, kThumbnail);
        bool isExact = frame != nearest;
        QCOMPARE(ReadFrameNumber(decoder->NearPicture(frame, kThumbnail, &isExact)), nearest);
        QCOMPARE(isExact, frame == nearest);
        QCOMPARE(ReadFrameNumber(decoder->Picture(frame, kThumbnail)), frame);
    }

    void exactAfterNear_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("farthest"); // at most
        for (const char* name : {"near.mp4", "near.mkv", "near.ts", "near.avi"})
            QTest::newRow(name) << QString::fromUtf8(name) << kGroup;
        QTest::newRow("no times at all") << QString("near.h264") << kFrames;
    }

    void exactAfterNear()
    {
        QFETCH(QString, name);
        QFETCH(int, farthest);
        const Info info = Make(name, LongGroups());
        QVERIFY(info);
        const auto decoder = FrameDecoder::Open(info, 0, nullptr);
        std::mt19937 generator(1);
        int frame = 0;
        for (int i = 0; i < 150; ++i) {
            frame = (frame + kFrames + int(generator() % 81) - 40) % kFrames;
            bool isExact = false;
            const int nearest = ReadFrameNumber(decoder->NearPicture(frame, kThumbnail, &isExact));
            const bool isRight = isExact ? nearest == frame : std::abs(nearest - frame) <= farthest;
            QVERIFY2(nearest >= 0 && isRight,
                     qPrintable(QString("%1 for %2").arg(nearest).arg(frame)));
            if (i % 3 != 0)
                QCOMPARE(ReadFrameNumber(decoder->Picture(frame, kThumbnail)), frame);
        }
        bool isExact = false;
        QVERIFY(decoder->NearPicture(kFrames + 100, kThumbnail, &isExact).isNull());
    }

    void exactAfterStop()
    {
        const auto decoder = OpenLong();
        std::atomic<bool> stop{false};
        std::atomic<bool> isOver{false};
        std::thread stopper([&] {
            for (; !isOver; stop = !stop)
                std::this_thread::sleep_for(std::chrono::microseconds(300));
        });
        std::mt19937 generator(4);
        int stopped = 0;
        for (int i = 0; i < 400; ++i) {
            const int frame = int(generator() % kFrames);
            const QImage picture =
                decoder->Picture(frame, kThumbnail, {}, PictureDepth::Usual, &stop);
            stopped += picture.isNull() ? 1 : 0;
            if (!picture.isNull())
                QCOMPARE(ReadFrameNumber(picture), frame);
        }
        isOver = true;
        stopper.join();
        QVERIFY(stopped > 0);
        QCOMPARE(ReadFrameNumber(decoder->Picture(77, kThumbnail)), 77);
    }

    void clipsForHardware_data()
    {
        QTest::addColumn<NLEHardwareDecoding>("clips");
        QTest::addColumn<bool>("unasked");
        QTest::addColumn<bool>("asked");
        QTest::newRow("never") << NLEHardware_Never << false << false;
        QTest::newRow("those that ask") << NLEHardware_Asked << false << true;
        QTest::newRow("all") << NLEHardware_All << true << true;
    }

    void clipsForHardware()
    {
        QFETCH(NLEHardwareDecoding, clips);
        SetHardwareDecoding(clips);
        QTEST(IsHardwareWanted(false), "unasked");
        QTEST(IsHardwareWanted(true), "asked");
        SetHardwareDecoding(NLEHardware_Never);
    }

    void softwareTakesOver_data()
    {
        QTest::addColumn<HardwareDriver>("driver");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("message");
        const auto row = [](const char* title, const HardwareDriver& driver, QString name,
                            QString message) { QTest::newRow(title) << driver << name << message; };
        const auto fetch = [](AVFrame*) { return 0; };
        const QString none = "no hardware for .*, decoded in software";
        row("no device opens", {Failing, fetch}, "hardware.mp4", none);
        row("nothing decodes the codec", {OpenIdle, fetch}, "hardware.mov", none);
        row("the device takes no stream", {OpenIdle, fetch}, "hardware.mp4", QString());
        for (const int last : {0, 1, 30, 99}) {
            auto count = std::make_shared<std::atomic<int>>(0);
            const auto failing = [count, last](AVFrame*) { return (*count)++ < last ? 0 : -1; };
            const QByteArray title = "fails after " + QByteArray::number(last) + " pictures";
            row(title.constData(), {OpenIdle, failing}, "hardware.mp4", kFailsLater);
        }
        row("times are not known", {OpenIdle, fetch}, "hardware.avi", kFailsLater);
        row("this machine's hardware", SystemHardware(), "hardware.mp4", QString());
    }

    void softwareTakesOver()
    {
        QFETCH(HardwareDriver, driver);
        QFETCH(QString, name);
        QFETCH(QString, message);
        TestClip clip = LongGroups();
        clip.frames = 100;
        if (name.endsWith("mov"))
            clip.codec = "prores_ks";
        const Info info = Make(name, clip);
        QVERIFY(info);
        SetHardwareDriver(driver);
        if (!message.isEmpty())
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(message));
        const auto decoder = FrameDecoder::Open(info, 0, nullptr, 0, true);
        const auto software = FrameDecoder::Open(info, 0, nullptr);
        for (int frame = 0; frame < clip.frames; ++frame) {
            QCOMPARE(decoder->Picture(frame, kThumbnail), software->Picture(frame, kThumbnail));
            if (frame % 20 == 19)
                QCOMPARE(decoder->Picture(frame - 7, kThumbnail),
                         software->Picture(frame - 7, kThumbnail));
        }
    }

    void coloursOfFetchedPictures()
    {
        const Info info = Long();
        SetHardwareDriver({OpenIdle, ToSemiPlanar});
        const auto decoder = FrameDecoder::Open(info, 0, nullptr, 0, true);
        const auto software = OpenLong();
        for (const int frame : {20, 60, 40, 39, 100}) {
            const QImage picture = decoder->Picture(frame, kThumbnail);
            const double difference = MeanDifference(picture, software->Picture(frame, kThumbnail));
            QVERIFY2(difference < 2, qPrintable(QString::number(difference)));
        }
    }
};

QTEST_GUILESS_MAIN(tst_Stepping)
#include "tst_stepping.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Com/AnyQt.h"
#include "NLECore/media/AudioDecoder.h"
#include "NLECore/media/FrameDecoder.h"
#include "NLECore/media/PictureCache.h"
#include "NLECore/media/WaveForm.h"
#include "tests/support/Deviation.h"
#include "tests/support/MediaFixture.h"

#include <QtTest>

#include <cmath>
#include <random>

using namespace nle;

Q_DECLARE_METATYPE(TestClip)

namespace {

constexpr int kStillNumber = 77;
constexpr QSize kStillSize(320, 180);
/// A half-transparent pixel of it.
constexpr QPoint kTransparent(0, 179);
constexpr QRgb kTransparentColour = qRgba(200, 100, 50, 64);

constexpr int kRate = 48000;
constexpr int kSoundFrames = 4 * kRate;
constexpr int kPartFrames = 1000;
constexpr double kToneHz = 1000;

// The frame whose picture a clip shows at \a frame: the last one that was not left out.
int ShownFrame(const TestClip& clip, int frame)
{
    while (frame > 0 && clip.isLeftOut && clip.isLeftOut(frame))
        --frame;
    return frame;
}

float PeakOf(const std::vector<float>& samples)
{
    const auto [low, high] = std::minmax_element(samples.begin(), samples.end());
    return std::max(-*low, *high);
}

// The greatest difference of \a count samples.
float Difference(const float* a, const float* b, size_t count)
{
    float difference = 0.0F;
    for (size_t i = 0; i < count; ++i)
        difference = std::max(difference, std::abs(a[i] - b[i]));
    return difference;
}

TestClip SoundClip(const QString& codec, double toneStart)
{
    TestClip clip;
    clip.codec.clear();
    clip.audioCodec = codec;
    clip.toneStart = toneStart;
    return clip;
}

} // namespace

class tst_Media : public QObject, private MediaFixture
{
    Q_OBJECT

    Info MakeStill(const QString& suffix, const QString& name)
    {
        QImage source = PaintFrameNumber(kStillNumber, kStillSize);
        source.setPixelColor(kTransparent, QColor::fromRgba(kTransparentColour));
        const QString made = Path("made." + suffix);
        if (!source.save(Path("source.png")))
            return Probe(name, "the picture cannot be saved");
        const QString error = RunFfmpeg({"-i", Path("source.png"), "-update", "1", made});
        QFile::remove(Path(name));
        return QFile::rename(made, Path(name)) ? Probe(name, error) : nullptr;
    }
    QString MakeTurnedClip(const QString& name, int number, const QSize& size, int rotation)
    {
        TestClip clip;
        clip.size = size;
        clip.frames = number + 1;
        clip.rotation = rotation;
        return MakeTestClip(Path(name), clip);
    }
    /// The row's sound: four seconds, with a tone from the first on.
    Info MakeSound()
    {
        QFETCH(QString, name);
        QFETCH(QString, codec);
        QFETCH(int, sampleRate);
        QFETCH(int, channels);
        TestClip clip = SoundClip(codec, 1.0);
        clip.sampleRate = sampleRate;
        clip.channels = channels;
        clip.frames = 100;
        clip.toneHz = kToneHz;
        return Make(name, clip);
    }
    /// The whole of it in two channels, read in tenths of seconds; empty when more than the few
    /// samples that a format may lack are missing.
    static std::vector<float> ReadSound(AudioDecoder& decoder)
    {
        const int block = kRate / 10;
        std::vector<float> whole(size_t(kSoundFrames) * 2);
        for (int first = 0; first < kSoundFrames; first += block) {
            const int read = decoder.Read(first, block, kRate, 2, &whole[size_t(first) * 2]);
            if (read < block - 24)
                return {};
        }
        return whole;
    }
    std::unique_ptr<FrameDecoder> OpenPictures(const QString& name) const
    {
        const auto info = Probe(name);
        return info ? FrameDecoder::Open(info, info->videoStream, nullptr) : nullptr;
    }
    static std::vector<QImage> AllForward(const Info& info, int frames)
    {
        const auto decoder = FrameDecoder::Open(info, info->videoStream, nullptr);
        std::vector<QImage> pictures;
        for (int frame = 0; frame < frames; ++frame)
            pictures.push_back(decoder->Picture(frame, kThumbnail));
        return pictures;
    }
    static void VideoRows()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<TestClip>("clip");
        const auto row = [](const char* title, const char* name, const TestClip& clip) {
            QTest::newRow(title) << QString::fromUtf8(name) << clip;
        };
        TestClip clip = SmallClip(300);
        clip.gop = 25;
        clip.bframes = 3;
        clip.audioCodec = "aac";
        row("MP4 with B frames and sound", "b.mp4", clip);
        row("MKV with B frames and sound", "b.mkv", clip);
        row("transport stream with B frames and sound", "b.ts", clip);
        clip.audioCodec.clear();
        clip.openGop = true;
        row("open groups in MP4", "open.mp4", clip);
        row("open groups in a transport stream", "open.ts", clip);
        clip.openGop = false;
        clip.gop = 250;
        row("long groups in MP4", "long.mp4", clip);
        row("long groups in a transport stream", "long.ts", clip);
        clip.extra = QStringList{"-f", "matroska", "-flush_packets", "1", "-live", "1"};
        row("MKV without cues", "live.mkv", clip);
        clip.extra = QStringList{"-movflags", "frag_keyframe+empty_moov"};
        clip.gop = 50;
        row("fragmented MP4", "frag.mp4", clip);
        clip.extra = QStringList{"-x264-params", "intra-refresh=1:keyint=40"};
        row("refresh without key pictures", "refresh.ts", clip);
        clip.extra.clear();
        clip.rateNum = 30000;
        clip.rateDen = 1001;
        row("29.97 in MKV, a name with spaces", "two words.mkv", clip);
        clip.rateNum = 60000;
        row("59.94 in MP4, a name not in Latin letters", "Видео 影片.mp4", clip);
        row("59.94 in a transport stream, a name like a protocol", "http:x%03d.ts", clip);

        TestClip variable = SmallClip(200);
        variable.bframes = 2;
        variable.isLeftOut = [](int frame) { return frame % 20 > 4 && frame % 20 < 13; };
        row("variable rate in MP4", "vfr.mp4", variable);
        row("variable rate in MKV", "vfr.mkv", variable);
        variable.isLeftOut = [](int frame) { return frame > 0 && frame < 170; };
        row("a still screen, then motion in MP4", "screen.mp4", variable);
        variable.isLeftOut = [](int frame) { return frame % 10 > 0 && frame % 10 < 8; };
        variable.rateNum = 60;
        row("a grid of 60 with 18 pictures a second in MP4", "grid.mp4", variable);
        row("a grid of 60 with 18 pictures a second in MKV", "grid.mkv", variable);
        variable.rateNum = 20;
        variable.bframes = 0;
        variable.codec = "gif";
        row("GIF of a few pictures", "few.gif", variable);

        TestClip other = SmallClip(120);
        other.codec = "mpeg4";
        other.extra = QStringList{"-seekable", "0"};
        row("AVI whose head was not written anew", "streamed.avi", other);
        other.extra.clear();
        other.bframes = 2;
        row("AVI without times of display", "b.avi", other);
        other.codec = "mpeg2video";
        row("MPEG-2 program stream", "b.mpg", other);
        other.codec = "prores_ks";
        row("ProRes", "b.mov", other);
        other.codec = "apng";
        row("moving PNG", "moving.apng", other);
        other.codec = "libx264";
        row("no times at all", "raw.h264", other);
        other.codec = "mpeg2video";
        other.extra = QStringList{"-packetsize", "16384"};
        row("several pictures in each packet of a program stream", "several.mpg", other);
    }
    static void SoundRows()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("codec");
        QTest::addColumn<int>("sampleRate");
        QTest::addColumn<int>("channels");
        // Of the beginning of the tone, in samples at 48 kHz: the encoders of some formats do not
        // note the delay that they add.
        QTest::addColumn<int>("delay");
        QTest::addColumn<int>("tolerance");
        const auto row = [](const char* title, QString name, QString codec, int rate, int channels,
                            int tolerance, int delay = 0) {
            QTest::newRow(title) << name << codec << rate << channels << delay << tolerance;
        };
        row("PCM", "pcm.wav", "pcm_s16le", 48000, 2, 2);
        row("PCM of 8 bits, mono, resampled", "8.wav", "pcm_u8", 44100, 1, 12);
        row("AAC in MP4", "a.m4a", "aac", 48000, 2, 48);
        row("AAC in MKV, mono, resampled", "a.mkv", "aac", 44100, 1, 96, 1115);
        row("AAC in a transport stream", "a.ts", "aac", 48000, 2, 48, 1024);
        row("MP3", "a.mp3", "libmp3lame", 44100, 2, 96);
        row("Opus in MKV", "opus.mkv", "libopus", 48000, 2, 48);
        row("FLAC", "a.flac", "flac", 96000, 2, 12);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(folder.isValid());
        // File names outside ASCII, whatever the locale of the run.
        AnyQt::UseUtf8();
        setlocale(LC_NUMERIC, "de_DE.UTF-8");
    }

    void videoIsDescribed_data() { VideoRows(); }

    void videoIsDescribed()
    {
        QFETCH(QString, name);
        QFETCH(TestClip, clip);
        const auto info = Make(name, clip);
        QVERIFY(info);
        QCOMPARE(info->kind, NLEMedia_Video);
        QCOMPARE(info->frameRate.num, std::int64_t(clip.rateNum));
        QCOMPARE(info->frameRate.den, std::int64_t(clip.rateDen));
        const int tolerance = name.endsWith(".mp4") ? 0 : 1;
        QCOMPARE(Deviation(info->frameCount, clip.frames, tolerance), QString());
        const MediaStream& stream = info->streams[size_t(info->videoStream)];
        QCOMPARE(QSize(stream.width, stream.height), clip.size);
    }

    void exactFramesAfterJumps_data() { VideoRows(); }

    void exactFramesAfterJumps()
    {
        QFETCH(QString, name);
        QFETCH(TestClip, clip);
        const auto info = Make(name, clip);
        QVERIFY(info);
        const auto decoder = FrameDecoder::Open(info, info->videoStream, nullptr);
        QVERIFY(decoder);
        std::mt19937 generator(7);
        QVector<int> frames{clip.frames - 1, 0, 1, clip.frames - 2, clip.frames / 2};
        for (int i = 0; i < 60; ++i)
            frames.append(int(generator() % unsigned(clip.frames)));
        for (int i = 0; i < 30; ++i)
            frames.append(std::min(clip.frames - 1, frames.last() + int(generator() % 12)));
        for (int frame : frames) {
            const QImage picture = decoder->Picture(frame, kThumbnail);
            QCOMPARE(picture.format(), QImage::Format_ARGB32);
            QCOMPARE(ReadFrameNumber(picture), ShownFrame(clip, frame));
        }
        QVERIFY(decoder->Picture(clip.frames + 4000, kThumbnail).isNull());
        QCOMPARE(ReadFrameNumber(decoder->Picture(clip.frames - 1, kThumbnail)),
                 ShownFrame(clip, clip.frames - 1));
    }

    void exactFramesInSequence_data() { VideoRows(); }

    void exactFramesInSequence()
    {
        QFETCH(QString, name);
        QFETCH(TestClip, clip);
        const auto info = Make(name, clip);
        QVERIFY(info);
        const auto sequential = FrameDecoder::Open(info, info->videoStream, nullptr);
        const auto jumping = FrameDecoder::Open(info, info->videoStream, nullptr);
        for (int frame = 0; frame < clip.frames; ++frame) {
            const QImage picture = sequential->Picture(frame, kThumbnail);
            QCOMPARE(ReadFrameNumber(picture), ShownFrame(clip, frame));
            if (frame % 29 == 11) // bit for bit the same after a jump
                QCOMPARE(jumping->Picture(frame, kThumbnail), picture);
        }
        QVERIFY(sequential->Picture(clip.frames + 40, kThumbnail).isNull());
    }

    void sameFramesBackward_data() { VideoRows(); }

    void sameFramesBackward()
    {
        QFETCH(QString, name);
        QFETCH(TestClip, clip);
        const std::vector<QImage> forward = AllForward(Make(name, clip), clip.frames);
        const auto decoder = OpenPictures(name);
        QVERIFY(decoder);
        for (int frame = clip.frames - 1; frame >= 0; --frame)
            QCOMPARE(decoder->Picture(frame, kThumbnail), forward[size_t(frame)]);
    }

    void sameFramesToAndFro_data() { VideoRows(); }

    void sameFramesToAndFro()
    {
        QFETCH(QString, name);
        QFETCH(TestClip, clip);
        const std::vector<QImage> forward = AllForward(Make(name, clip), clip.frames);
        const auto decoder = OpenPictures(name);
        QVERIFY(decoder);
        const std::int64_t bound = KeptPictures().MaxBytes();
        KeptPictures().SetMaxBytes(300000); // some ten pictures
        std::mt19937 generator(3);
        int frame = clip.frames - 1;
        for (int i = 0; i < 600; ++i) {
            const int step = int(generator() % 100);
            const int jump = i % 40 == 0 ? step * 3 : step % 7 - 4;
            frame = (frame + jump + clip.frames) % clip.frames;
            QCOMPARE(decoder->Picture(frame, kThumbnail), forward[size_t(frame)]);
        }
        KeptPictures().SetMaxBytes(bound);
    }

    void refused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        std::mt19937 generator(11);
        QByteArray noise(100000, Qt::Uninitialized);
        for (char& byte : noise)
            byte = char(generator());
        const QString whole = Path("whole.mp4");
        QCOMPARE(MakeTestClip(whole, SmallClip(25)), QString());
        const QByteArray inside = QFile::encodeName(whole) + '\n';
        const char* const notMedia = ": not a media file: Invalid data found when processing input";
        const auto row = [](const char* title, QString name, QByteArray content, QString reason) {
            QTest::newRow(title) << name << content << reason;
        };
        row("no file", "missing.mp4", {}, ": no such file");
        row("folder", "folder", {}, " is a folder");
        row("pipe", "pipe", {}, " is not a regular file");
        row("empty", "empty.mp4", "", " is empty");
        row("noise", "noise.mp4", noise, notMedia);
        row("text", "text.mp4", QByteArray("just a few words\n").repeated(50), notMedia);
        row("subtitles", "subtitles.mp4", "1\n00:00:01,000 --> 00:00:02,000\nHello\n\n",
            ": no picture or sound in it");
        const QByteArray playList = "#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n" + inside;
        row("play list", "list.mp4", playList + "#EXT-X-ENDLIST\n", notMedia);
        row("play list by suffix", "list.m3u8", playList, notMedia);
        row("list of files", "concat.mp4", "ffconcat version 1.0\nfile " + inside, notMedia);
        row("text painted as picture", "art.txt", QByteArray("\x1b[31mred\x1b[0m\n").repeated(200),
            notMedia);
        row("cut before its header", "cut.mp4",
            Contents(whole).left(int(QFileInfo(whole).size() * 2 / 3)), notMedia);
    }

    void refused()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        const QString path = Path(name);
        if (name == "folder")
            QVERIFY(QDir().mkpath(path));
        else if (name == "pipe" && QProcess::execute("mkfifo", {path}) != 0)
            QSKIP("no pipes in the file system here");
        else if (!content.isNull())
            QVERIFY(SetContents(path, content));
        QString error;
        QVERIFY(!ProbeMedia(path, &error));
        QCOMPARE(error, path + reason);
        QVERIFY(!ProbeMedia(path, nullptr));

        // A file that turned bad after it was described opens no decoder either.
        const auto stale = std::make_shared<MediaInfo>();
        stale->path = path;
        stale->streams.resize(1);
        stale->streams[0].type = NLEStream_Video;
        QVERIFY(!FrameDecoder::Open(stale, 0, &error));
    }

    void cutFileShowsWhatIsLeft()
    {
        TestClip clip = SmallClip(300);
        clip.gop = 30;
        clip.bframes = 2;
        clip.extra = QStringList{"-movflags", "+faststart"};
        const QString path = Path("faststart.mp4");
        QCOMPARE(MakeTestClip(path, clip), QString());
        QVERIFY(QFile::resize(path, QFileInfo(path).size() * 2 / 3));
        const auto info = Probe("faststart.mp4");
        QVERIFY(info);
        QCOMPARE(int(info->frameCount), clip.frames);

        const auto decoder = FrameDecoder::Open(info, info->videoStream, nullptr);
        QVERIFY(decoder->Picture(clip.frames - 1, kThumbnail).isNull());
        int lastShown = -1;
        for (int frame = 0; frame < clip.frames; ++frame) {
            const QImage picture = decoder->Picture(frame, kThumbnail);
            if (picture.isNull())
                continue;
            QVERIFY(frame - lastShown <= clip.bframes + 1);
            lastShown = ReadFrameNumber(picture);
            QVERIFY(lastShown >= 0);
            QVERIFY(frame - lastShown <= clip.bframes);
        }
        QVERIFY(lastShown > clip.frames * 2 / 5);
        QVERIFY(lastShown < clip.frames * 14 / 15);
        const auto other = FrameDecoder::Open(info, info->videoStream, nullptr);
        QCOMPARE(ReadFrameNumber(other->Picture(lastShown, kThumbnail)), lastShown);
    }

    void copiedPart_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<int>("rate"); // frames in 1001 seconds
        QTest::addColumn<QStringList>("part");
        const auto row = [](const char* title, QString suffix, int rate, const char* part) {
            QTest::newRow(title) << suffix << rate << QString(part).split(' ');
        };
        row("29.97, ends amid a frame", "mp4", 30000, "-ss 2.017 -t 3.35");
        row("25, ends amid a frame", "mov", 25025, "-ss 1.5 -t 2");
        row("25, ends between pictures", "mp4", 25025, "-ss 3.333 -t 3.35");
        row("29.97, from the first picture", "mp4", 30000, "-t 4.017");
        row("59.94 in fragments", "mp4", 60000, "-ss 2.017 -t 2 -movflags frag_keyframe");
        row("29.97 in MKV", "mkv", 30000, "-ss 1.5 -t 4.017");
    }

    void copiedPart()
    {
        QFETCH(QString, suffix);
        QFETCH(int, rate);
        QFETCH(QStringList, part);
        TestClip clip = SmallClip(240);
        clip.rateNum = rate;
        clip.rateDen = 1001;
        clip.gop = 30;
        clip.bframes = 2;
        clip.audioCodec = "aac";
        const QString whole = Path("to copy." + suffix);
        QCOMPARE(MakeTestClip(whole, clip), QString());
        const int output = part.contains("-movflags") ? part.indexOf("-movflags") : part.size();
        QCOMPARE(RunFfmpeg(part.mid(0, output) + QStringList{"-i", whole, "-c", "copy"} +
                           part.mid(output) + QStringList{Path("part." + suffix)}),
                 QString());
        const auto info = Probe("part." + suffix);
        QVERIFY(info);
        const auto decoder = FrameDecoder::Open(info, info->videoStream, nullptr);
        const int count = int(info->frameCount);
        for (int frame = 0; frame < count; ++frame)
            QVERIFY(!decoder->Picture(frame, kThumbnail).isNull());
        QCOMPARE(decoder->Position(), count - 1);
    }

    void meanRateIsToldBesideTheGrid()
    {
        TestClip clip = SmallClip(200);
        clip.rateNum = 60;
        clip.isLeftOut = [](int frame) { return frame % 10 > 0 && frame % 10 < 8; };
        const auto info = Make("grid.mp4", clip);
        QVERIFY(info);
        const double mean = NLECommon::ToDouble(info->Stream(info->videoStream)->meanRate);
        QCOMPARE(Deviation(mean, 18, 1), QString());
    }

    void stillPicture_data()
    {
        QTest::addColumn<QString>("suffix"); // names the format
        QTest::addColumn<QString>("name");
        const auto row = [](const char* title, QString suffix, QString name) {
            QTest::newRow(title) << suffix << name;
        };
        row("PNG with alpha", "png", "alpha.png");
        row("PNG of another name", "png", "alpha.mp4");
        row("JPEG", "jpg", "photo %d.jpg");
        row("GIF of one picture", "gif", "one.gif");
        row("AVIF", "avif", "one.avif");
    }

    void stillPicture()
    {
        QFETCH(QString, suffix);
        QFETCH(QString, name);
        const auto info = MakeStill(suffix, name);
        QVERIFY(info);
        QCOMPARE(info->kind, NLEMedia_Image);
        QCOMPARE(info->frameCount, 1U);
        QCOMPARE(NLECommon::ToDouble(info->frameRate), 25.0);
        const auto decoder = FrameDecoder::Open(info, 0, nullptr);
        // It is shown at any time.
        QCOMPARE(ReadFrameNumber(decoder->Picture(0, kThumbnail)), kStillNumber);
        QCOMPARE(ReadFrameNumber(decoder->Picture(1000000, kThumbnail)), kStillNumber);
        QCOMPARE(ReadFrameNumber(decoder->Picture(3, kThumbnail)), kStillNumber);
        QVERIFY(decoder->Picture(-1, kThumbnail).isNull());
        QVERIFY(decoder->Picture(0, QSize()).isNull());
    }

    void stillPictureOfAnySize_data()
    {
        // Sizes that need more than the scaler gives in one go, or lines of odd length.
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QSize>("size");
        for (const QString& suffix : QStringList{"png", "jpg", "gif"}) {
            for (const QSize& size : {QSize(1, 1), QSize(33, 47), QSize(700, 1), QSize(321, 181)})
                QTest::addRow("%s, %d x %d", qPrintable(suffix), size.width(), size.height())
                    << suffix << size;
        }
    }

    void stillPictureOfAnySize()
    {
        QFETCH(QString, suffix);
        QFETCH(QSize, size);
        const auto info = MakeStill(suffix, "sized." + suffix);
        QVERIFY(info);
        QCOMPARE(FrameDecoder::Open(info, 0, nullptr)->Picture(0, size).size(), size);
    }

    void stillPictureKeepsItsAlpha()
    {
        const auto info = MakeStill("png", "transparent.png");
        QVERIFY(info);
        QVERIFY(info->streams[0].hasAlpha);
        const QImage picture = FrameDecoder::Open(info, 0, nullptr)->Picture(0, kStillSize);
        QCOMPARE(picture.pixel(kTransparent), kTransparentColour);
    }

    void orientation_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("rotation");
        QTest::addColumn<bool>("mirrored");
        QTest::newRow("video turned by 90") << "90.mp4" << 90 << false;
        QTest::newRow("video turned by 180") << "180.mov" << 180 << false;
        QTest::newRow("video turned by 270") << "270.mp4" << 270 << false;
        for (int exif = 1; exif <= 8; ++exif) {
            QTest::addRow("photograph with orientation %d", exif)
                << QString("exif%1.jpg").arg(exif) << ExifRotation(exif) << ExifMirrors(exif);
        }
    }

    void orientation()
    {
        QFETCH(QString, name);
        QFETCH(int, rotation);
        QFETCH(bool, mirrored);
        const QSize size(120, 200);
        const int number = 9;
        const int exif = name.chopped(4).back().digitValue();
        QCOMPARE(name.endsWith("jpg")
                     ? MakePhotograph(Path(name), PaintFrameNumber(number, size), exif)
                     : MakeTurnedClip(name, number, size, rotation),
                 QString());
        const auto info = Probe(name);
        QVERIFY(info);
        const MediaStream& stream = info->streams[0];
        QCOMPARE(stream.rotation, rotation);
        QCOMPARE(stream.mirrored, mirrored);
        QCOMPARE(QSize(stream.width, stream.height), size);
        const auto decoder = FrameDecoder::Open(info, 0, nullptr);
        QCOMPARE(ReadFrameNumber(decoder->Picture(number, size)), number);
    }

    void coverPictureIsNoVideo()
    {
        const TestClip clip = SoundClip("libmp3lame", 0.0);
        QCOMPARE(MakeTestClip(Path("plain.mp3"), clip), QString());
        QVERIFY(PaintFrameNumber(1, kThumbnail).save(Path("cover.png")));
        QCOMPARE(
            RunFfmpeg({"-i", Path("plain.mp3"), "-i", Path("cover.png"), "-map", "0", "-map", "1",
                       "-c", "copy", "-disposition:v", "attached_pic", Path("cover.mp3")}),
            QString());
        const auto info = Probe("cover.mp3");
        QVERIFY(info);
        QCOMPARE(info->kind, NLEMedia_Audio);
        QCOMPARE(info->videoStream, -1);
        QCOMPARE(info->streams.size(), size_t(2));
        QCOMPARE(info->streams[1].type, NLEStream_Other);
        QCOMPARE(NLECommon::ToDouble(info->frameRate), 25.0);
        QVERIFY(std::abs(int(info->frameCount) - clip.frames) <= 2);
        QString error;
        QVERIFY(!FrameDecoder::Open(info, 1, &error));
        QCOMPARE(error, info->path + ": stream 1 has no picture");
    }

    void soundIsDescribed_data() { SoundRows(); }

    void soundIsDescribed()
    {
        QFETCH(int, sampleRate);
        QFETCH(int, channels);
        const auto info = MakeSound();
        QVERIFY(info);
        QCOMPARE(info->kind, NLEMedia_Audio);
        QCOMPARE(info->streams[0].sampleRate, sampleRate);
        QCOMPARE(info->streams[0].channels, channels);
    }

    void soundBeginsInTime_data() { SoundRows(); }

    void soundBeginsInTime()
    {
        QFETCH(int, delay);
        QFETCH(int, tolerance);
        const auto info = MakeSound();
        QVERIFY(info);
        const auto decoder = AudioDecoder::Open(info, info->audioStream, nullptr);
        QVERIFY(decoder);
        const std::vector<float> whole = ReadSound(*decoder);
        QVERIFY(!whole.empty());
        int onset = 0;
        while (onset < kSoundFrames && std::abs(whole[size_t(onset) * 2]) < 0.06F)
            ++onset;
        QCOMPARE(Deviation(onset, kRate + delay, tolerance), QString());
    }

    void soundIsTheTone_data() { SoundRows(); }

    void soundIsTheTone()
    {
        const auto info = MakeSound();
        QVERIFY(info);
        const auto decoder = AudioDecoder::Open(info, info->audioStream, nullptr);
        const std::vector<float> whole = ReadSound(*decoder);
        QVERIFY(!whole.empty());
        // The third second, both channels by turns.
        const auto thirdSecond = whole.begin() + std::ptrdiff_t(2) * 2 * kRate;
        const std::vector<float> tone(thirdSecond, thirdSecond + std::ptrdiff_t(2) * kRate);
        QCOMPARE(Deviation(PeakOf(tone), 0.5, 0.03), QString());
        const size_t period = size_t(2 * kRate / kToneHz);
        QVERIFY(Difference(tone.data(), &tone[period], 2) < 0.03F);
    }

    void sameSamplesWhereverReadingBegins_data() { SoundRows(); }

    void sameSamplesWhereverReadingBegins()
    {
        const auto info = MakeSound();
        QVERIFY(info);
        const auto decoder = AudioDecoder::Open(info, info->audioStream, nullptr);
        const std::vector<float> whole = ReadSound(*decoder);
        QVERIFY(!whole.empty());
        std::mt19937 generator(5);
        std::vector<float> part(std::size_t(2) * kPartFrames);
        for (int i = 0; i < 12; ++i) {
            const int first = int(generator() % unsigned(kSoundFrames - kPartFrames));
            QCOMPARE(decoder->Read(first, kPartFrames, kRate, 2, part.data()), kPartFrames);
            QVERIFY(Difference(part.data(), &whole[size_t(first) * 2], part.size()) < 0.001F);
        }
    }

    void silenceOutsideOfTheSound_data() { SoundRows(); }

    void silenceOutsideOfTheSound()
    {
        const auto info = MakeSound();
        QVERIFY(info);
        const auto decoder = AudioDecoder::Open(info, info->audioStream, nullptr);
        const std::vector<float> whole = ReadSound(*decoder);
        QVERIFY(!whole.empty());
        std::vector<float> part(std::size_t(2) * kPartFrames, 1.0F);
        QCOMPARE(decoder->Read(std::int64_t(-5) * kPartFrames, kPartFrames, kRate, 2, part.data()),
                 0);
        QCOMPARE(PeakOf(part), 0.0F);
        part.assign(part.size(), 1.0F);
        QCOMPARE(decoder->Read(kSoundFrames + kRate, kPartFrames, kRate, 2, part.data()), 0);
        QCOMPARE(PeakOf(part), 0.0F);
        QCOMPARE(decoder->Read(std::int64_t(kRate) * 1000000, kPartFrames, kRate, 2, part.data()),
                 0);
        // Only a part lies in the stream.
        QCOMPARE(decoder->Read(-kPartFrames / 2, kPartFrames, kRate, 2, part.data()), kPartFrames);
        QVERIFY(Difference(&part[kPartFrames], whole.data(), kPartFrames) < 0.001F);
        QCOMPARE(decoder->Read(0, 0, kRate, 2, part.data()), -1);
    }

    void joinedRecordings()
    {
        TestClip clip = SoundClip("libmp3lame", 0.0);
        for (const char* name : {"stereo.mp3", "mono.mp3"}) {
            QCOMPARE(MakeTestClip(Path(name), clip), QString());
            clip.channels = 1;
        }
        QVERIFY(SetContents(Path("joined.mp3"),
                            Contents(Path("stereo.mp3")) + Contents(Path("mono.mp3"))));
        const auto decoder = AudioDecoder::Open(Probe("joined.mp3"), 0, nullptr);
        const int rate = 44100;
        const int count = 4 * rate;
        std::vector<float> samples(size_t{count});
        QCOMPARE(decoder->Read(0, count, rate, 1, samples.data()), count);
        samples.erase(samples.begin(), samples.end() - rate); // leaves the last second
        QCOMPARE(Deviation(PeakOf(samples), 0.5, 0.05), QString());
    }

    void soundStaysWithPicture()
    {
        TestClip clip = SmallClip(75);
        clip.bframes = 2;
        clip.audioCodec = "pcm_s16le";
        clip.toneStart = 1.0;
        const auto info = Make("offset.mkv", clip);
        QVERIFY(info);
        // The sound begins half a second before the picture.
        QCOMPARE(RunFfmpeg({"-i", info->path, "-itsoffset", "0.5", "-i", info->path, "-map", "0:a",
                            "-map", "1:v", "-c", "copy", Path("late.mkv")}),
                 QString());
        const auto late = Probe("late.mkv");
        QVERIFY(late);
        const auto decoder = AudioDecoder::Open(late, late->audioStream, nullptr);
        std::vector<float> samples(kRate);
        QCOMPARE(decoder->Read(0, kRate, kRate, 1, samples.data()), kRate);
        const auto onset =
            std::find_if(samples.begin(), samples.end(), [](float s) { return s > 0.1F; });
        QCOMPARE(Deviation(int(onset - samples.begin()), kRate / 2.0, 99), QString());
        const auto pictures = FrameDecoder::Open(late, late->videoStream, nullptr);
        QCOMPARE(ReadFrameNumber(pictures->Picture(0, kThumbnail)), 0);
    }

    void wavePeaks()
    {
        TestClip clip = SoundClip("pcm_s16le", 1.0);
        clip.toneLevel = 0.25;
        const auto info = Make("wave.wav", clip);
        QVERIFY(info);
        const auto decoder = AudioDecoder::Open(info, 0, nullptr);
        const std::vector<WavePeak> peaks =
            ReadWaveForm(*decoder, 0, std::int64_t(2) * kRate, kRate, 2, 10);
        QCOMPARE(peaks.size(), size_t(20));
        for (size_t i = 0; i < peaks.size(); ++i) {
            const double level = i < 10 ? 0 : clip.toneLevel;
            QCOMPARE(Deviation(peaks[i].max, level, 0.01), QString());
            QCOMPARE(Deviation(peaks[i].min, -level, 0.01), QString());
        }
        QVERIFY(ReadWaveForm(*decoder, 0, 0, kRate, 2, 10).empty());
    }
};

QTEST_GUILESS_MAIN(tst_Media)
#include "tst_media.moc"

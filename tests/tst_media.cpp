// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/AudioDecoder.h"
#include "NLECore/media/DecoderPool.h"
#include "NLECore/media/FrameDecoder.h"
#include "NLECore/media/MediaInfo.h"
#include "NLECore/media/MediaLog.h"
#include "NLECore/media/MediaStore.h"
#include "NLECore/media/WaveForm.h"
#include "TestMedia.h"

#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <atomic>
#include <cmath>
#include <random>
#include <thread>

using namespace nle;

Q_DECLARE_METATYPE(TestClip)

namespace {

const QSize Thumbnail(160, 90);

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

bool Write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TestClip SmallClip(int frames)
{
    TestClip clip;
    clip.size = Thumbnail;
    clip.frames = frames;
    return clip;
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

class tst_Media : public QObject
{
    Q_OBJECT

private:
    QString Path(const QString& name) const { return m_dir.filePath(name); }
    /// What is in the file; without an object, and with a warning, when that fails.
    std::shared_ptr<const MediaInfo> Probe(const QString& name, QString error = {})
    {
        auto info = error.isEmpty() ? ProbeMedia(Path(name), &error) : nullptr;
        if (!info)
            qWarning("%s", qPrintable(error));
        return info;
    }
    std::shared_ptr<const MediaInfo> Make(const QString& name, const TestClip& clip)
    {
        return Probe(name, MakeTestClip(Path(name), clip));
    }

    QTemporaryDir m_dir;

private slots:
    void initTestCase()
    {
        QVERIFY(m_dir.isValid());
        // File names outside ASCII, whatever the locale of the run.
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
        setlocale(LC_NUMERIC, "de_DE.UTF-8");
    }

    void exactFrames_data()
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

        TestClip other = SmallClip(120);
        other.codec = "mpeg4";
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

    void exactFrames()
    {
        QFETCH(QString, name);
        QFETCH(TestClip, clip);
        const auto info = Make(name, clip);
        QVERIFY(info);
        QCOMPARE(info->kind, NLEMedia_Video);
        QCOMPARE(info->frameRate.num, std::int64_t(clip.rateNum));
        QCOMPARE(info->frameRate.den, std::int64_t(clip.rateDen));
        const int tolerance = name.endsWith(".mp4") ? 0 : 1;
        QVERIFY(std::abs(int(info->frameCount) - clip.frames) <= tolerance);
        const MediaStream& stream = info->streams[size_t(info->videoStream)];
        QCOMPARE(QSize(stream.width, stream.height), clip.size);

        const auto random = FrameDecoder::Open(info, info->videoStream, nullptr);
        QVERIFY(random);
        std::mt19937 generator(7);
        QVector<int> frames{clip.frames - 1, 0, 1, clip.frames - 2, clip.frames / 2};
        for (int i = 0; i < 60; ++i)
            frames.append(int(generator() % unsigned(clip.frames)));
        for (int i = 0; i < 30; ++i)
            frames.append(std::min(clip.frames - 1, frames.last() + int(generator() % 12)));
        for (int frame : frames) {
            const QImage picture = random->Picture(frame, Thumbnail);
            QCOMPARE(picture.format(), QImage::Format_ARGB32);
            QCOMPARE(ReadFrameNumber(picture), ShownFrame(clip, frame));
        }

        // In sequence, and bit for bit the same as after jumps.
        const auto sequential = FrameDecoder::Open(info, info->videoStream, nullptr);
        for (int frame = 0; frame < clip.frames; ++frame) {
            const QImage picture = sequential->Picture(frame, Thumbnail);
            QCOMPARE(ReadFrameNumber(picture), ShownFrame(clip, frame));
            if (frame % 29 == 11)
                QCOMPARE(random->Picture(frame, Thumbnail), picture);
        }
        QVERIFY(sequential->Picture(clip.frames + 40, Thumbnail).isNull());
        QVERIFY(random->Picture(clip.frames + 4000, Thumbnail).isNull());
        QCOMPARE(ReadFrameNumber(random->Picture(clip.frames - 1, Thumbnail)),
                 ShownFrame(clip, clip.frames - 1));
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
            ReadAll(whole).left(int(QFileInfo(whole).size() * 2 / 3)), notMedia);
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
            QVERIFY(Write(path, content));
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

    void cutFile()
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
        QVERIFY(decoder->Picture(299, Thumbnail).isNull());
        int lastShown = -1;
        for (int frame = 0; frame < clip.frames; ++frame) {
            const QImage picture = decoder->Picture(frame, Thumbnail);
            if (picture.isNull())
                continue;
            QVERIFY(frame - lastShown <= 3);
            lastShown = ReadFrameNumber(picture);
            QVERIFY(lastShown >= 0 && frame - lastShown <= 2);
        }
        QVERIFY(lastShown > 120 && lastShown < 280);
        const auto other = FrameDecoder::Open(info, info->videoStream, nullptr);
        QCOMPARE(ReadFrameNumber(other->Picture(lastShown, Thumbnail)), lastShown);
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
            QVERIFY(!decoder->Picture(frame, Thumbnail).isNull());
        QCOMPARE(decoder->Position(), count - 1);
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
    }

    void stillPicture()
    {
        QFETCH(QString, suffix);
        QFETCH(QString, name);
        QImage source = PaintFrameNumber(77, {320, 180});
        source.setPixelColor(0, 179, QColor(200, 100, 50, 64));
        const QString made = Path("made." + suffix);
        QVERIFY(source.save(Path("source.png")));
        QCOMPARE(RunFfmpeg({"-i", Path("source.png"), "-update", "1", made}), QString());
        QVERIFY(QFile::rename(made, Path(name)));
        const auto info = Probe(name);
        QVERIFY(info);
        QCOMPARE(info->kind, NLEMedia_Image);
        QCOMPARE(info->frameCount, 1U);
        QCOMPARE(NLECommon::ToDouble(info->frameRate), 25.0);
        const auto decoder = FrameDecoder::Open(info, 0, nullptr);
        for (int frame : {0, 1000000, 3})
            QCOMPARE(ReadFrameNumber(decoder->Picture(frame, Thumbnail)), 77);
        // Sizes that need more than the scaler gives in one go, or lines of odd length.
        for (const QSize& size : {QSize(1, 1), QSize(33, 47), QSize(700, 1), QSize(321, 181)})
            QCOMPARE(decoder->Picture(0, size).size(), size);
        QVERIFY(decoder->Picture(0, QSize()).isNull());
        QVERIFY(decoder->Picture(-1, Thumbnail).isNull());
        if (suffix == "png") {
            QVERIFY(info->streams[0].hasAlpha);
            QCOMPARE(decoder->Picture(0, source.size()).pixel(0, 179), qRgba(200, 100, 50, 64));
        }
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
            static constexpr int Rotations[] = {0, 0, 180, 180, 270, 90, 90, 270};
            static constexpr bool Mirrors[] = {false, true, false, true, true, false, true, false};
            QTest::addRow("photograph with orientation %d", exif)
                << QString("exif%1.jpg").arg(exif) << Rotations[exif - 1] << Mirrors[exif - 1];
        }
    }

    void orientation()
    {
        QFETCH(QString, name);
        QFETCH(int, rotation);
        QFETCH(bool, mirrored);
        const QSize size(120, 200);
        const QString path = Path(name);
        if (name.endsWith("jpg")) {
            const QImage coded = PaintFrameNumber(9, size)
                                     .transformed(QTransform().rotate(-rotation))
                                     .mirrored(mirrored, false);
            QVERIFY(coded.save(Path("coded.png")));
            QCOMPARE(RunFfmpeg({"-i", Path("coded.png"), "-update", "1", Path("coded.jpg")}),
                     QString());
            // A segment that holds nothing but the orientation, its 30th byte.
            QByteArray exif = QByteArray::fromHex("ffe10022457869660000"
                                                  "4d4d002a00000008"
                                                  "0001"
                                                  "011200030000000100000000"
                                                  "00000000");
            exif[29] = name.at(4).toLatin1() - '0';
            QByteArray photograph = ReadAll(Path("coded.jpg"));
            QVERIFY(Write(path, photograph.insert(2, exif)));
        } else {
            TestClip clip;
            clip.size = size;
            clip.frames = 10;
            clip.rotation = rotation;
            QCOMPARE(MakeTestClip(path, clip), QString());
        }
        const auto info = Probe(name);
        QVERIFY(info);
        const MediaStream& stream = info->streams[0];
        QCOMPARE(stream.rotation, rotation);
        QCOMPARE(stream.mirrored, mirrored);
        QCOMPARE(QSize(stream.width, stream.height), size);
        const auto decoder = FrameDecoder::Open(info, 0, nullptr);
        QCOMPARE(ReadFrameNumber(decoder->Picture(9, size)), 9);
    }

    void coverPictureIsNoVideo()
    {
        const TestClip clip = SoundClip("libmp3lame", 0.0);
        QCOMPARE(MakeTestClip(Path("plain.mp3"), clip), QString());
        QVERIFY(PaintFrameNumber(1, Thumbnail).save(Path("cover.png")));
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

    void sound_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("codec");
        QTest::addColumn<int>("sampleRate");
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("tolerance"); // of the beginning of the tone, in samples at 48 kHz
        const auto row = [](const char* title, QString name, QString codec, int rate, int channels,
                            int tolerance) {
            QTest::newRow(title) << name << codec << rate << channels << tolerance;
        };
        row("PCM", "pcm.wav", "pcm_s16le", 48000, 2, 2);
        row("PCM of 8 bits, mono, resampled", "8.wav", "pcm_u8", 44100, 1, 12);
        row("AAC in MP4", "a.m4a", "aac", 48000, 2, 48);
        row("AAC in MKV, mono, resampled", "a.mkv", "aac", 44100, 1, 96);
        row("AAC in a transport stream", "a.ts", "aac", 48000, 2, 48);
        row("MP3", "a.mp3", "libmp3lame", 44100, 2, 96);
        row("Opus in MKV", "opus.mkv", "libopus", 48000, 2, 48);
        row("FLAC", "a.flac", "flac", 96000, 2, 12);
    }

    void sound()
    {
        QFETCH(QString, name);
        QFETCH(QString, codec);
        QFETCH(int, sampleRate);
        QFETCH(int, channels);
        QFETCH(int, tolerance);
        TestClip clip = SoundClip(codec, 1.0);
        clip.sampleRate = sampleRate;
        clip.channels = channels;
        clip.frames = 100;
        clip.toneHz = 1000.0;
        const auto info = Make(name, clip);
        QVERIFY(info);
        QCOMPARE(info->kind, NLEMedia_Audio);
        QCOMPARE(info->streams[0].sampleRate, sampleRate);
        QCOMPARE(info->streams[0].channels, channels);

        const int rate = 48000;
        const auto decoder = AudioDecoder::Open(info, info->audioStream, nullptr);
        QVERIFY(decoder);
        std::vector<float> whole(size_t(rate) * 4 * 2);
        for (int i = 0; i < 40; ++i)
            QVERIFY(decoder->Read(std::int64_t(i) * 4800, 4800, rate, 2,
                                  &whole[size_t(i) * 9600]) >= 4776);
        int onset = 0;
        while (onset < rate * 4 && std::abs(whole[size_t(onset) * 2]) < 0.06F)
            ++onset;
        // The encoders of some formats do not note the delay that they add.
        const int delay = name.endsWith(".ts") ? 1024 : name.endsWith("a.mkv") ? 1115 : 0;
        QVERIFY2(std::abs(onset - rate - delay) <= tolerance, qPrintable(QString::number(onset)));
        const std::vector<float> tone(whole.begin() + std::int64_t(rate) * 4,
                                      whole.begin() + std::int64_t(rate) * 6);
        QVERIFY2(std::abs(PeakOf(tone) - 0.5F) < 0.03F, qPrintable(QString::number(PeakOf(tone))));
        QVERIFY(Difference(tone.data(), &tone[96], 2) < 0.03F);

        // The same samples wherever reading begins.
        std::mt19937 generator(5);
        std::vector<float> part(2000);
        for (int i = 0; i < 12; ++i) {
            const int first = int(generator() % unsigned(rate * 4 - 1000));
            QCOMPARE(decoder->Read(first, 1000, rate, 2, part.data()), 1000);
            QVERIFY(Difference(part.data(), &whole[size_t(first) * 2], part.size()) < 0.001F);
        }

        // Silence outside, also where only a part lies in the stream.
        QCOMPARE(decoder->Read(-5000, 1000, rate, 2, part.data()), 0);
        QCOMPARE(decoder->Read(std::int64_t(rate) * 5, 1000, rate, 2, part.data()), 0);
        QCOMPARE(PeakOf(part), 0.0F);
        QCOMPARE(decoder->Read(std::int64_t(rate) * 1000000, 1000, rate, 2, part.data()), 0);
        QCOMPARE(decoder->Read(-500, 1000, rate, 2, part.data()), 1000);
        QVERIFY(Difference(&part[1000], whole.data(), 1000) < 0.001F);
        QCOMPARE(decoder->Read(0, 0, rate, 2, part.data()), -1);
    }

    void joinedRecordings()
    {
        TestClip clip = SoundClip("libmp3lame", 0.0);
        for (const char* name : {"stereo.mp3", "mono.mp3"}) {
            QCOMPARE(MakeTestClip(Path(name), clip), QString());
            clip.channels = 1;
        }
        QVERIFY(Write(Path("joined.mp3"), ReadAll(Path("stereo.mp3")) + ReadAll(Path("mono.mp3"))));
        const auto decoder = AudioDecoder::Open(Probe("joined.mp3"), 0, nullptr);
        const int count = 4 * 44100;
        std::vector<float> samples(size_t{count});
        QCOMPARE(decoder->Read(0, count, 44100, 1, samples.data()), count);
        samples.erase(samples.begin(), samples.end() - 44100);
        QVERIFY(std::abs(PeakOf(samples) - 0.5F) < 0.05F);
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
        std::vector<float> samples(48000);
        QCOMPARE(decoder->Read(0, 48000, 48000, 1, samples.data()), 48000);
        const auto onset =
            std::find_if(samples.begin(), samples.end(), [](float s) { return s > 0.1F; });
        QVERIFY(std::abs(int(onset - samples.begin()) - 24000) < 100);
        const auto pictures = FrameDecoder::Open(late, late->videoStream, nullptr);
        QCOMPARE(ReadFrameNumber(pictures->Picture(0, Thumbnail)), 0);
    }

    void wavePeaks()
    {
        TestClip clip = SoundClip("pcm_s16le", 1.0);
        clip.toneLevel = 0.25;
        const auto info = Make("wave.wav", clip);
        QVERIFY(info);
        const auto decoder = AudioDecoder::Open(info, 0, nullptr);
        const std::vector<WavePeak> peaks = ReadWaveForm(*decoder, 0, 96000, 48000, 2, 10);
        QCOMPARE(peaks.size(), size_t(20));
        for (size_t i = 0; i < peaks.size(); ++i) {
            const float level = i < 10 ? 0.0F : 0.25F;
            QVERIFY(std::abs(peaks[i].max - level) < 0.01F &&
                    std::abs(peaks[i].min + level) < 0.01F);
        }
        QVERIFY(ReadWaveForm(*decoder, 0, 0, 48000, 2, 10).empty());
    }

    void describedAnew_data()
    {
        QTest::addColumn<QString>("change");
        for (const char* change : {"none", "time", "size", "another file", "gone and back"})
            QTest::newRow(change) << change;
    }

    void describedAnew()
    {
        QFETCH(QString, change);
        const QString path = Path("described " + change + ".mp4");
        const QString other = Path("other.mp4");
        const QByteArray content = ReadAll(Make("to describe.mp4", SmallClip(10))->path);
        const auto setTime = [](const QString& name, int seconds) {
            QFile file(name);
            const QDateTime time = QDateTime::fromSecsSinceEpoch(1000000000 + seconds);
            return file.open(QIODevice::ReadWrite) &&
                   file.setFileTime(time, QFileDevice::FileModificationTime);
        };
        QVERIFY(Write(path, content) && setTime(path, 0));
        // What was changed just now is not taken for known.
        QTest::qWait(300);
        MediaStore store;
        const auto known = store.Describe(path).info;
        QVERIFY(known);
        if (change == "time")
            QVERIFY(setTime(path, 1));
        if (change == "size")
            QVERIFY(Write(path, content + content) && setTime(path, 0));
        if (change == "another file")
            QVERIFY(Write(other, content) && setTime(other, 0) && QFile::remove(path) &&
                    QFile::rename(other, path));
        if (change == "gone and back") {
            QVERIFY(QFile::rename(path, other));
            QCOMPARE(store.Describe(path).error, path + ": no such file");
            QVERIFY(Write(path, "no longer media"));
            QVERIFY(!store.Describe(path).info);
            QVERIFY(QFile::remove(path) && QFile::rename(other, path));
        }
        const auto next = store.Describe(path).info;
        QVERIFY(next);
        QCOMPARE(next == known, change == "none");
    }

    void storeServesThreads()
    {
        const auto info = Make("shared.mp4", SmallClip(10));
        QStringList paths;
        for (int i = 0; i < 12; ++i) {
            paths << Path(QString("shared %1.mp4").arg(i));
            QVERIFY(i == 5 || QFile::copy(info->path, paths.last()));
        }
        QTest::qWait(300);
        MediaStore store(8);
        const auto all = store.DescribeAll(paths + paths.mid(0, 1));
        QCOMPARE(int(all.size()), 13);
        for (int i = 0; i < 12; ++i)
            QCOMPARE(all[size_t(i)].info ? all[size_t(i)].info->path : QString(),
                     i == 5 ? QString() : paths[i]);
        QCOMPARE(all[5].error, paths[5] + ": no such file");
        QVERIFY(store.DescribeAll({}).empty());

        // The eight asked for last are known.
        MediaStore bounded(8);
        std::vector<std::shared_ptr<const MediaInfo>> known;
        for (const QString& path : paths)
            known.push_back(bounded.Describe(path).info);
        QVERIFY(bounded.Describe(paths[11]).info == known[11]);
        QVERIFY(bounded.Describe(paths[4]).info == known[4]);
        QVERIFY(bounded.Describe(paths[0]).info != known[0]);

        // Who asks while the file is being opened waits for the same description.
        std::vector<std::thread> threads;
        std::vector<std::shared_ptr<const MediaInfo>> same(4);
        MediaStore fresh;
        for (auto& result : same)
            threads.emplace_back([&] { result = fresh.Describe(paths[1]).info; });
        for (std::thread& thread : threads)
            thread.join();
        for (const auto& result : same)
            QVERIFY(result && result == same[0]);
    }

    void poolLendsAndBounds()
    {
        std::vector<std::shared_ptr<const MediaInfo>> infos;
        for (int i = 0; i < 4; ++i)
            infos.push_back(Make(QString("pool%1.mp4").arg(i), SmallClip(60)));
        DecoderPool pool(3);
        const auto acquire = [&](int file, DecodePurpose purpose, int frame) {
            return pool.Acquire(infos[size_t(file)], 0, purpose, frame);
        };
        FrameDecoder* atTen = nullptr;
        FrameDecoder* atForty = nullptr;
        {
            auto first = acquire(0, DecodePurpose::Thumbnail, 0);
            auto second = acquire(0, DecodePurpose::Thumbnail, 0);
            atTen = &*first;
            atForty = &*second;
            QVERIFY(atTen != atForty);
            first->Picture(10, Thumbnail);
            second->Picture(40, Thumbnail);
            QCOMPARE(pool.OpenCount(), 2);
            QCOMPARE(pool.IdleCount(), 0);
        }
        QCOMPARE(pool.IdleCount(), 2);
        QCOMPARE(&*acquire(0, DecodePurpose::Thumbnail, 39), atTen);
        QCOMPARE(&*acquire(0, DecodePurpose::Thumbnail, 41), atForty);
        QCOMPARE(&*acquire(0, DecodePurpose::Thumbnail, 3), atTen);
        {
            const auto render = acquire(0, DecodePurpose::Render, 41);
            QVERIFY(&*render != atTen && &*render != atForty);
        }
        QCOMPARE(pool.OpenCount(), 3);
        // The bound closes the one unused for the longest time, here the one at 40.
        acquire(1, DecodePurpose::Thumbnail, 0);
        QCOMPARE(pool.OpenCount(), 3);
        QCOMPARE(&*acquire(0, DecodePurpose::Thumbnail, 41), atTen);
        // What is lent stays open beyond the bound, and goes when it comes back.
        {
            std::vector<DecoderPool::Lease> leases;
            for (int file = 0; file < 4; ++file)
                leases.push_back(acquire(file, DecodePurpose::Render, 0));
            QCOMPARE(pool.OpenCount(), 4);
            pool.Drop(infos[2]->path);
            QCOMPARE(ReadFrameNumber(leases[2]->Picture(5, Thumbnail)), 5);
        }
        QCOMPARE(pool.OpenCount(), 2);
        for (int file = 0; file < 4; ++file)
            pool.Drop(infos[size_t(file)]->path);
        QCOMPARE(pool.OpenCount(), 0);
        QString error;
        QVERIFY(!pool.Acquire(infos[0], 7, DecodePurpose::Render, 0, &error));
        QVERIFY(!error.isEmpty());
        QCOMPARE(pool.OpenCount(), 0);
    }

    void poolReopensReplacedFile()
    {
        const auto info = Make("replaced.mp4", SmallClip(30));
        QVERIFY(info);
        DecoderPool pool;
        QVERIFY(!pool.Acquire(info, 0, DecodePurpose::Render, 20)->Picture(20, Thumbnail).isNull());
        QVERIFY(pool.Acquire(info, 0, DecodePurpose::Render, 20)->IsFileUnchanged());
        QCOMPARE(MakeTestClip(Path("shorter.mp4"), SmallClip(10)), QString());
        QVERIFY(QFile::remove(info->path));
        QVERIFY(QFile::rename(Path("shorter.mp4"), info->path));
        QVERIFY(pool.Acquire(info, 0, DecodePurpose::Render, 20)->Picture(20, Thumbnail).isNull());
        QVERIFY(QFile::remove(info->path));
        QString error;
        QVERIFY(!pool.Acquire(info, 0, DecodePurpose::Render, 0, &error));
        QCOMPARE(error, info->path + ": no such file");
    }

    void poolServesThreads()
    {
        const auto info = Make("threads.mp4", SmallClip(100));
        QVERIFY(info);
        std::atomic<int> logged{0};
        SetMediaLogSink([&logged](const char*) { ++logged; });
        std::atomic<int> wrong{0};
        {
            DecoderPool pool(2);
            std::vector<std::thread> threads;
            for (unsigned seed = 0; seed < 4; ++seed) {
                threads.emplace_back([&, seed] {
                    std::mt19937 generator(seed);
                    for (int i = 0; i < 25; ++i) {
                        const int frame = int(generator() % 100);
                        auto lease = pool.Acquire(info, 0, DecodePurpose::Thumbnail, frame);
                        wrong += ReadFrameNumber(lease->Picture(frame, Thumbnail)) != frame;
                    }
                });
            }
            for (std::thread& thread : threads)
                thread.join();
            QVERIFY(pool.OpenCount() <= 2);
        }
        QCOMPARE(wrong.load(), 0);

        QVERIFY(Write(Path("bad.mp4"), ReadAll(info->path).left(3000)));
        QVERIFY(!ProbeMedia(Path("bad.mp4"), nullptr));
        QVERIFY(logged > 0);
        SetMediaLogSink(nullptr);
    }
};

QTEST_GUILESS_MAIN(tst_Media)
#include "tst_media.moc"

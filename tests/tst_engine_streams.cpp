// SPDX-License-Identifier: LGPL-2.1-or-later
// Which streams of a file a clip shows and sounds, the shape of its pixels, and how long it is.
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"

namespace {

using namespace NLEKey::Source;

const std::array<double, 3> kTones = {500, 1000, 2000};

/// Level of a tone in a sound, 1 the full scale.
double LevelOf(double hz, const std::vector<double>& samples)
{
    double sine = 0;
    double cosine = 0;
    for (size_t i = 0; i < samples.size(); ++i) {
        const double angle = 2 * M_PI * hz * double(i) / EngineFixture::kSampleRate;
        sine += samples[i] * std::sin(angle);
        cosine += samples[i] * std::cos(angle);
    }
    return samples.empty() ? -1 : 2 * std::hypot(sine, cosine) / double(samples.size());
}

double Difference(const QImage& a, const QImage& b)
{
    if (a.isNull() || a.size() != b.size())
        return 255;
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            sum += std::abs(qGreen(a.pixel(x, y)) - qGreen(b.pixel(x, y)));
    }
    return sum / (double(a.width()) * a.height());
}

using Set = std::function<HRESULT(INLEProperties&)>;

} // namespace

Q_DECLARE_METATYPE(NLERational)
Q_DECLARE_METATYPE(Set)

class tst_EngineStreams : public QObject, private EngineFixture
{
    Q_OBJECT

    static QSize SizeOf(const Node& clip)
    {
        NLERectF region = {};
        clip.query<INLERenderRegion>()->GetRenderRegion(&region);
        return QSizeF(region.width, region.height).toSize();
    }
    NLEComPtr<INLEMediaInfo> InfoOf(const Node& clip) const
    {
        NLEComPtr<INLEMediaInfo> info;
        clip.query<INLETimelineSource>()->GetMediaInfo(info.put());
        return info;
    }
    QImage Thumbnail(const Node& clip, int frame) const
    {
        const auto extractor = provider->CreateThumbnailExtractor();
        NLEComPtr<INLEPicture> picture;
        int width = 0;
        int height = 0;
        const std::uint8_t* pixels = nullptr;
        if (extractor->SetSource(InfoOf(clip).get(), 0) != S_OK ||
            extractor->Extract(frame, {0, 0}, picture.put()) != S_OK ||
            picture->GetWidth(&width) != S_OK || picture->GetHeight(&height) != S_OK ||
            picture->GetData(&pixels) != S_OK)
            return {};
        return QImage(pixels, width, height, QImage::Format_ARGB32).copy();
    }
    /// The values under all keys of a source, in a line.
    static QString SettingsOf(const Node& clip)
    {
        const auto bag = BagOf(clip);
        int video = -2;
        int deinterlacing = -2;
        int order = -2;
        NLERational aspect = {};
        wchar_t audio[64] = L"?";
        bag->GetInt(kVideoStream, &video);
        bag->GetString(kAudioStreams, audio, 64);
        bag->GetRational(kPixelAspect, &aspect);
        bag->GetInt(kDeinterlacing, &deinterlacing);
        bag->GetInt(kFieldOrder, &order);
        return QString("%1|%2|%3/%4|%5|%6")
            .arg(video)
            .arg(QString::fromWCharArray(audio))
            .arg(aspect.num)
            .arg(aspect.den)
            .arg(deinterlacing)
            .arg(order);
    }
    /// Red and blue pictures, then three tones, each a stream.
    QString StreamsFile() const
    {
        QString path = Path("streams.mkv");
        if (QFile::exists(path))
            return path;
        QStringList arguments;
        const auto input = [&arguments](const QString& source) {
            arguments << "-f"
                      << "lavfi"
                      << "-i" << source;
        };
        input("color=red:size=320x180:rate=25:duration=2");
        input("color=blue:size=160x160:rate=50:duration=2");
        for (const double tone : kTones)
            input(QString("aevalsrc=0.25*sin(2*PI*%1*t):s=48000:d=2").arg(tone));
        for (int i = 0; i < 5; ++i)
            arguments << "-map" << QString::number(i);
        arguments << "-disposition:3"
                  << "default"
                  << "-c:a"
                  << "pcm_s16le" << path;
        const QString error = RunFfmpeg(arguments);
        if (!error.isEmpty())
            qWarning("%s", qPrintable(error));
        return path;
    }

private slots:
    void pixelAspect_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("stored");
        QTest::addColumn<QString>("aspect"); // of the picture as it is coded
        QTest::addColumn<QString>("codec");
        QTest::addColumn<int>("rotation");
        QTest::addColumn<NLERational>("setting");
        QTest::addColumn<QSize>("shown");
        const auto row = [](const char* title, const char* name, const QSize& stored,
                            const char* aspect, const char* codec, const QSize& shown,
                            const NLERational& setting = {0, 1}, int rotation = 0) {
            QTest::newRow(title) << QString(name) << stored << QString(aspect) << QString(codec)
                                 << rotation << setting << shown;
        };
        row("wide DV", "wide.dv", {720, 576}, "16:9", "dvvideo", {1024, 576});
        row("narrow disc", "narrow.mpg", {720, 480}, "4:3", "mpeg2video", {640, 480});
        row("wide broadcast", "wide.ts", {1440, 1080}, "16:9", "libx264", {1920, 1080});
        row("in MKV", "wide.mkv", {320, 240}, "16:9", "libx264", {427, 240});
        row("turned by a quarter", "turned.mp4", {90, 160}, "32:9", "libx264", {45, 160}, {0, 1},
            90);
        row("turned by a half", "half.mp4", {160, 90}, "32:9", "libx264", {320, 90}, {0, 1}, 180);
        row("square where the file says wide", "square.mp4", {320, 240}, "16:9", "libx264",
            {320, 240}, {1, 1});
        row("wide where the file says square", "given.mp4", {320, 240}, "4:3", "libx264",
            {427, 240}, {4, 3});
    }

    void pixelAspect()
    {
        QFETCH(QString, name);
        QFETCH(QSize, stored);
        QFETCH(QString, aspect);
        QFETCH(QString, codec);
        QFETCH(int, rotation);
        QFETCH(NLERational, setting);
        QFETCH(QSize, shown);
        TestClip file;
        file.size = stored;
        file.frames = 6;
        file.codec = codec;
        file.rotation = rotation;
        file.extra = QStringList{"-aspect", aspect};
        if (codec == "dvvideo")
            file.extra << "-pix_fmt"
                       << "yuv420p";
        const QString path = folder.filePath(name);
        QCOMPARE(MakeTestClip(path, file), QString());
        const Node clip = Media(path);
        QVERIFY(clip);
        NLEStreamInfo stream = {};
        QCOMPARE(InfoOf(clip)->GetStream(0, &stream), S_OK);
        QCOMPARE(QSize(stream.width, stream.height), stored);
        QCOMPARE(BagOf(clip)->SetRational(kPixelAspect, setting), S_OK);
        QCOMPARE(SizeOf(clip), shown);
        if (setting.num == 0)
            QCOMPARE(Thumbnail(clip, 3).size(), shown);

        // In a project that is as wide as it shows: no bars, and what ffmpeg makes of it.
        const QString still = Path("shown.png");
        const QString scale = QString("scale=%1:%2").arg(shown.width()).arg(shown.height());
        QCOMPARE(RunFfmpeg({"-i", path, "-vf", "select=eq(n\\,3)," + scale, "-frames:v", "1",
                            "-update", "1", still}),
                 QString());
        tagNLEProjectProfile profile = kSmall;
        profile.frameSize = {shown.width(), shown.height()};
        const Node project = provider->CreateProjectTimeline(profile);
        QCOMPARE(Add(project, clip), S_OK);
        const QImage drawn = Frame(project, 3, NLEOpen_Render, shown);
        QCOMPARE(ReadFrameNumber(drawn), 3);
        QVERIFY(Difference(drawn, QImage(still)) < 4);
    }

    void chosenStreams_data()
    {
        QTest::addColumn<int>("video");
        QTest::addColumn<QString>("audio");
        QTest::addColumn<QColor>("colour");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QVector<int>>("heard"); // of the tones
        QTest::addColumn<QPoint>("indexes");     // of video and audio stream, as reported
        const auto row = [](const char* title, int video, const char* audio, const QColor& colour,
                            const QSize& size, const QVector<int>& heard, const QPoint& indexes) {
            QTest::newRow(title) << video << QString(audio) << colour << size << heard << indexes;
        };
        row("as the file prefers", -1, "", Qt::red, {320, 180}, {1}, {0, 3});
        row("the other picture", 1, "", Qt::blue, {160, 160}, {1}, {1, 3});
        row("another sound", 0, "4", Qt::red, {320, 180}, {2}, {0, 4});
        row("two sounds", -1, "2,4", Qt::red, {320, 180}, {0, 2}, {0, 2});
        row("all sounds, in another order", 1, "4,3,2", Qt::blue, {160, 160}, {0, 1, 2}, {1, 4});
    }

    void chosenStreams()
    {
        QFETCH(int, video);
        QFETCH(QString, audio);
        QFETCH(QColor, colour);
        QFETCH(QSize, size);
        QFETCH(QVector<int>, heard);
        QFETCH(QPoint, indexes);
        const Node clip = Media(StreamsFile());
        QVERIFY(clip);
        const auto bag = BagOf(clip);
        QCOMPARE(bag->SetInt(kVideoStream, video), S_OK);
        QCOMPARE(bag->SetString(kAudioStreams, audio.toStdWString().c_str()), S_OK);
        const auto source = clip.query<INLETimelineSource>();
        std::uint32_t index = 0;
        QCOMPARE(source->GetVideoStreamIndex(&index), S_OK);
        QCOMPARE(int(index), indexes.x());
        QCOMPARE(source->GetAudioStreamIndex(&index), S_OK);
        QCOMPARE(int(index), indexes.y());
        QCOMPARE(SizeOf(clip), size);
        QCOMPARE(TotalOf(clip).out, 49);
        const Node project = ProjectWith(clip);
        for (const int frame : {0, 49}) {
            const QColor middle = Frame(project, frame).pixelColor(160, 90);
            QVERIFY(std::abs(middle.red() - colour.red()) < 8);
            QVERIFY(std::abs(middle.blue() - colour.blue()) < 8);
        }
        const Stereo sound = Sound(project, 5, kSampleRate / 5);
        for (int tone = 0; tone < int(kTones.size()); ++tone) {
            const double level = heard.contains(tone) ? 0.25 : 0;
            QCOMPARE(Deviation(LevelOf(kTones[size_t(tone)], sound[0]), level, 0.01), QString());
        }
    }

    void refusedChoices_data()
    {
        QTest::addColumn<Set>("set");
        const auto row = [](const char* title, const Set& set) { QTest::newRow(title) << set; };
        row("no such video stream", [](auto& bag) { return bag.SetInt(kVideoStream, 5); });
        row("sound for a picture", [](auto& bag) { return bag.SetInt(kVideoStream, 2); });
        row("an index as text", [](auto& bag) { return bag.SetString(kVideoStream, L"1"); });
        row("a picture for a sound",
            [](auto& bag) { return bag.SetString(kAudioStreams, L"2,1"); });
        row("no such audio stream", [](auto& bag) { return bag.SetString(kAudioStreams, L"7"); });
        row("a sound twice", [](auto& bag) { return bag.SetString(kAudioStreams, L"2,2"); });
        row("no list", [](auto& bag) { return bag.SetString(kAudioStreams, L"2,,3"); });
        row("pixels too flat", [](auto& bag) { return bag.SetRational(kPixelAspect, {1, 17}); });
        row("pixels too wide", [](auto& bag) { return bag.SetRational(kPixelAspect, {17, 1}); });
        row("mirrored pixels", [](auto& bag) { return bag.SetRational(kPixelAspect, {-1, 1}); });
        row("no way of deinterlacing", [](auto& bag) { return bag.SetInt(kDeinterlacing, 3); });
        row("no order of fields", [](auto& bag) { return bag.SetInt(kFieldOrder, 3); });
    }

    void refusedChoices()
    {
        QFETCH(Set, set);
        const Node clip = Media(StreamsFile());
        BagOf(clip)->SetInt(kVideoStream, 1);
        BagOf(clip)->SetString(kAudioStreams, L"4,2");
        const QString before = SettingsOf(clip);
        QCOMPARE(before, QString("1|4,2|0/1|0|0"));
        QCOMPARE(set(*BagOf(clip)), E_INVALIDARG);
        QCOMPARE(SettingsOf(clip), before);
    }

    void choicesAreKept()
    {
        const QString path = Path("kept.mkv");
        QVERIFY(QFile::copy(StreamsFile(), path));
        const Node clip = Media(path);
        const auto bag = BagOf(clip);
        QCOMPARE(bag->SetInt(kVideoStream, 1), S_OK);
        QCOMPARE(bag->SetString(kAudioStreams, L"4,2"), S_OK);
        QCOMPARE(bag->SetRational(kPixelAspect, {64, 45}), S_OK);
        QCOMPARE(bag->SetInt(kDeinterlacing, NLEDeinterlacing_Always), S_OK);
        QCOMPARE(bag->SetInt(kFieldOrder, NLEField_BottomFirst), S_OK);
        const QString set = SettingsOf(clip);
        QCOMPARE(set, QString("1|4,2|64/45|2|2"));
        Node clone;
        QCOMPARE(clip->Clone(true, clone.put()), S_OK);
        QCOMPARE(SettingsOf(clone), set);
        QVERIFY(Save(ProjectWith(clip), Path("kept.mlt")));
        QCOMPARE(SettingsOf(ClipAt(Load(Path("kept.mlt")), 0)), set);
        // While the file is away nothing is chosen anew, and nothing is lost.
        QVERIFY(QFile::rename(path, Path("away.mkv")));
        const Node offline = Load(Path("kept.mlt"));
        QVERIFY(Save(offline, Path("again.mlt")));
        QVERIFY(QFile::rename(Path("away.mkv"), path));
        const Node again = ClipAt(Load(Path("again.mlt")), 0);
        QCOMPARE(SettingsOf(again), set);
        QCOMPARE(SizeOf(again), QSize(228, 160));
    }

    void lengthOfTheMaterial_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("picture"); // seconds
        QTest::addColumn<double>("sound");
        QTest::addColumn<int>("pictures"); // frames
        QTest::addColumn<int>("length");
        const auto row = [](const char* title, const char* name, double picture, double sound,
                            int pictures, int length) {
            QTest::newRow(title) << QString(name) << picture << sound << pictures << length;
        };
        row("sound goes on, MP4", "long.mp4", 1.6, 4, 40, 100);
        row("sound goes on, MKV", "long.mkv", 1.6, 4, 40, 100);
        row("sound goes on, transport stream", "long.ts", 1.6, 4, 40, 100);
        row("sound goes on, AVI", "long.avi", 1.6, 4, 40, 100);
        row("sound goes on a little", "rest.mp4", 1.6, 1.75, 40, 40);
        row("sound ends first", "short.mp4", 3.2, 1, 80, 80);
    }

    void lengthOfTheMaterial()
    {
        QFETCH(QString, name);
        QFETCH(double, picture);
        QFETCH(double, sound);
        QFETCH(int, pictures);
        QFETCH(int, length);
        const QString path = folder.filePath(name);
        QCOMPARE(RunFfmpeg({"-f", "lavfi", "-i",
                            QString("color=red:size=320x180:rate=25:duration=%1").arg(picture),
                            "-f", "lavfi", "-i",
                            QString("aevalsrc=0.5*sin(2*PI*1000*t):s=48000:d=%1").arg(sound),
                            "-c:v", "mpeg4", "-c:a", "mp2", path}),
                 QString());
        const Node clip = Media(path);
        QVERIFY(clip);
        std::uint32_t count = 0;
        NLERational rate = {};
        QCOMPARE(InfoOf(clip)->GetFrameCountAndRate(&count, &rate), S_OK);
        QCOMPARE(int(count), pictures);
        // A frame of sound may reach over its end.
        QCOMPARE(Deviation(TotalOf(clip).out + 1, length, length > pictures ? 1 : 0), QString());
        QVERIFY(!Thumbnail(clip, pictures - 1).isNull());
        QVERIFY(Thumbnail(clip, pictures).isNull());
        QVERIFY(!Frame(clip, pictures - 1).isNull());
        QVERIFY(Frame(clip, pictures).isNull());

        const Node project = ProjectWith(clip);
        const int last = length - 3;
        QCOMPARE(TotalOf(project).out, TotalOf(clip).out);
        const auto isRed = [&](int frame) {
            return qRed(Frame(project, frame).pixel(160, 90)) > 200;
        };
        QVERIFY(isRed(pictures - 1));
        if (length > pictures)
            QVERIFY(!isRed(pictures) && !isRed(last));
        const bool sounds = last / 25.0 < sound - 0.1;
        QCOMPARE(Deviation(Loudness(Sound(project, last)[0]), sounds ? kToneLoudness : 0, 0.02),
                 QString());
    }
};

QTEST_MAIN(tst_EngineStreams)
#include "tst_engine_streams.moc"

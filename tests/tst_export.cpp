// SPDX-License-Identifier: LGPL-2.1-or-later
// Films that the open engine writes: what can be chosen, and what is in the files.
#include "EngineApi/INLEEncode.h"
#include "EngineApi/INLEFrames.h"
#include "EngineApi/INLEMedia.h"
#include "EngineApi/INLETransform.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/MissingEncoder.h"

#include <thread>

#ifndef Q_OS_WIN
#include <sched.h>
#endif

namespace Key = NLEKey::Encode;

namespace {

constexpr int kFrames = 12;
constexpr double kToneStart = 0.2; // seconds
constexpr NLEEncodeSettings kSmallFilm = {{320, 180}, {25, 1}, {}, 0, 48000, 2, 0};

QStringList Names(const char* list)
{
    return QString::fromLatin1(list).split(',', Qt::SkipEmptyParts);
}

double Psnr(const QImage& a, const QImage& b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            for (const int difference :
                 {qRed(p) - qRed(q), qGreen(p) - qGreen(q), qBlue(p) - qBlue(q)})
                sum += double(difference) * difference;
        }
    }
    return 10 * std::log10(255.0 * 255.0 * 3 * a.width() * a.height() / std::max(sum, 1.0));
}

} // namespace

Q_DECLARE_METATYPE(NLEContainerInfo)
Q_DECLARE_METATYPE(NLECodecInfo)

class tst_Export : public QObject, private EngineFixture
{
    Q_OBJECT

    using Encoder = NLEComPtr<INLEMediaEncoder>;
    using Bag = NLEComPtr<INLEProperties>;

    /// What a row asks for: keys and their texts; numbers where they are numbers.
    Bag Options(const QStringList& settings) const
    {
        Bag bag = provider->CreateNLEProperties();
        for (const QString& setting : settings) {
            const std::wstring key = L"kEncode_" + setting.section('=', 0, 0).toStdWString();
            const QString value = setting.section('=', 1);
            bool isNumber = false;
            const int number = value.toInt(&isNumber);
            if (isNumber && !setting.startsWith("Speed"))
                bag->SetInt(key.c_str(), number);
            else
                bag->SetString(key.c_str(), value.toStdWString().c_str());
        }
        return bag;
    }
    Bag Preset(const QString& name) const
    {
        Bag bag = provider->CreateNLEProperties();
        const auto catalog = m_encoder.query<INLEEncodeCatalog>();
        const bool found = catalog->GetPreset(name.toStdWString().c_str(), bag.get()) == S_OK;
        return found ? bag : Bag();
    }
    static QString Text(const Bag& bag, const wchar_t* key)
    {
        wchar_t text[64] = L"";
        bag->GetString(key, text, 64);
        return QString::fromWCharArray(text);
    }
    static int Number(const Bag& bag, const wchar_t* key)
    {
        int number = 0;
        bag->GetInt(key, &number);
        return number;
    }
    /// Whether the catalogue has a codec of \a type; every one has "none".
    bool HasCodec(const QString& container, int type, const QString& name) const
    {
        const auto catalog = m_encoder.query<INLEEncodeCatalog>();
        NLECodecInfo codec = {};
        for (int i = 0; name != "none"; ++i) {
            if (catalog->GetCodec(qPrintable(container), type, i, &codec) != S_OK)
                return false;
            if (name == codec.name)
                break;
        }
        return true;
    }
    /// Why the catalogue refuses options; empty when it does not.
    QString Complaint(const Bag& options) const
    {
        wchar_t reason[256] = L"";
        const HRESULT result =
            m_encoder.query<INLEEncodeCatalog>()->Check(options.get(), &kSmallFilm, reason, 256);
        if (result == S_OK)
            return {};
        return QString("%1: %2").arg(uint(result), 0, 16).arg(QString::fromWCharArray(reason));
    }

    /// Writes a film; the result of what failed, else S_OK.
    HRESULT Write(const Node& node, const QString& path, const Bag& options = {},
                  const NLEEncodeSettings& settings = {}) const
    {
        const Encoder encoder = provider->CreateMediaEncoder();
        if (options && encoder.query<INLEEncodeOptions>()->SetOptions(options.get()) != S_OK)
            return E_POINTER;
        const HRESULT opened = encoder->Open(node.get(), path.toStdWString().c_str(), &settings);
        return opened == S_OK ? encoder->Encode(nullptr, nullptr) : opened;
    }
    Node OneClip() const { return ProjectWith(Media(m_media)); }
    /// The same to see, but painted: a second layer lies above it that nobody sees.
    Node PaintedClip(const QString& media) const
    {
        Node project = ProjectWith(Media(media));
        const Node cover = Colour(Qt::red);
        cover.query<INLEBlendSetting>()->SetAlpha(0);
        Add(project, cover, 0, 1);
        return project;
    }

    const QString m_media = Path("clip.mp4");
    Encoder m_encoder;

private slots:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = kFrames;
        clip.bframes = 2;
        clip.audioCodec = "aac";
        clip.toneStart = kToneStart;
        QCOMPARE(MakeTestClip(m_media, clip), QString());
        m_encoder = provider->CreateMediaEncoder();
        QVERIFY(m_encoder);
    }
    void cleanupTestCase() { m_encoder.reset(); }

    void everyPairIsReadBack_data()
    {
        QTest::addColumn<QStringList>("settings");
        QTest::addColumn<QString>("name");
        const auto catalog = m_encoder.query<INLEEncodeCatalog>();
        int containers = 0;
        QCOMPARE(catalog->GetContainerCount(&containers), S_OK);
        for (int number = 0; number < containers; ++number) {
            NLEContainerInfo container = {};
            catalog->GetContainer(number, &container);
            const QString name = QString(container.files == 1 ? "x." : "x%04d.") +
                                 Names(container.suffixes).value(0);
            for (const int type : {NLEStream_Video, NLEStream_Audio}) {
                NLECodecInfo codec = {};
                for (int i = 0; catalog->GetCodec(container.name, type, i, &codec) == S_OK; ++i) {
                    const char* key = type == NLEStream_Video ? "VideoCodec=%1" : "AudioCodec=%1";
                    QTest::addRow("%s, %s", container.name, codec.name)
                        << QStringList{QString("Container=%1").arg(container.name),
                                       QString(key).arg(codec.name)}
                        << name;
                }
            }
        }
    }

    void everyPairIsReadBack()
    {
        QFETCH(const QStringList, settings);
        QFETCH(const QString, name);
        QTemporaryDir place;
        const QString path = place.filePath(name);
        const Encoder encoder = provider->CreateMediaEncoder();
        const auto options = encoder.query<INLEEncodeOptions>();
        QCOMPARE(options->SetOptions(Options(settings).get()), S_OK);
        QCOMPARE(encoder->Open(OneClip().get(), path.toStdWString().c_str(), nullptr), S_OK);
        const Bag settled = provider->CreateNLEProperties();
        QCOMPARE(options->GetOptions(settled.get()), S_OK);
        QCOMPARE(encoder->Encode(nullptr, nullptr), S_OK);
        const bool isSequence = name.contains('%');
        QCOMPARE(QDir(place.path())
                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                     .size(),
                 isSequence ? kFrames : 1);
        const Node film =
            Media(isSequence ? place.filePath(QString::asprintf(qPrintable(name), 5)) : path);
        QVERIFY(film);
        if (Text(settled, Key::kVideoCodec) != "none") {
            QCOMPARE(ReadFrameNumber(Frame(film, isSequence ? 0 : 5)), 5);
            QCOMPARE(ReadFrameNumber(Frame(film, isSequence ? 0 : kFrames - 1)),
                     isSequence ? 5 : kFrames - 1);
        }
        if (Text(settled, Key::kAudioCodec) != "none") {
            QCOMPARE(Deviation(Loudness(Sound(film, 1)[0]), 0, 0.02), QString());
            QCOMPARE(Deviation(Loudness(Sound(film, 8)[0]), kToneLoudness, 0.05), QString());
        }
    }

    void everyChoiceOfACodecIsTaken_data()
    {
        QTest::addColumn<QString>("container");
        QTest::addColumn<NLECodecInfo>("codec");
        const auto catalog = m_encoder.query<INLEEncodeCatalog>();
        for (const char* container : {"mkv", "mov", "mxf", "webm", "png", "tif", "wav"}) {
            for (const int type : {NLEStream_Video, NLEStream_Audio}) {
                NLECodecInfo codec = {};
                for (int i = 0; catalog->GetCodec(container, type, i, &codec) == S_OK; ++i)
                    QTest::addRow("%s in %s", codec.name, container) << QString(container) << codec;
            }
        }
    }

    void everyChoiceOfACodecIsTaken()
    {
        QFETCH(const QString, container);
        QFETCH(const NLECodecInfo, codec);
        const auto complaint = [&](const QStringList& more) {
            const char* key = codec.type == NLEStream_Video ? "VideoCodec=%1" : "AudioCodec=%1";
            return Complaint(Options(
                QStringList{"Container=" + container, QString(key).arg(codec.name)} + more));
        };
        for (const QString& format : Names(codec.pixelFormats))
            QCOMPARE(complaint({"PixelFormat=" + format}), QString());
        for (const QString& profile : Names(codec.profiles))
            QCOMPARE(complaint({"Profile=" + profile}), QString());
        for (const QString& speed : Names(codec.speeds))
            QCOMPARE(complaint({"Speed=" + speed}), QString());
        for (const QString& format : Names(codec.sampleFormats))
            QCOMPARE(complaint({"SampleFormat=" + format}), QString());
        if (codec.hasAlpha)
            QCOMPARE(complaint({"Alpha=1"}), QString());
        if (codec.hasFields)
            QCOMPARE(complaint({"FieldOrder=1"}), QString());
        if (codec.rateControls & NLERate_Lossless)
            QCOMPARE(complaint({"RateControl=4"}), QString());
        if (codec.rateControls & NLERate_Bitrate)
            QCOMPARE(complaint({"RateControl=2", "VideoBitRate=1000000"}), QString());
    }

    void presetsAreWhole_data()
    {
        QTest::addColumn<QString>("preset");
        const auto catalog = m_encoder.query<INLEEncodeCatalog>();
        int count = 0;
        QCOMPARE(catalog->GetPresetCount(&count), S_OK);
        for (int i = 0; i < count; ++i) {
            wchar_t name[64] = L"";
            QCOMPARE(catalog->GetPresetName(i, name, 64), S_OK);
            const QString text = QString::fromWCharArray(name);
            QTest::newRow(qPrintable(text)) << text;
        }
    }

    void presetsAreWhole()
    {
        QFETCH(const QString, preset);
        QCOMPARE(Complaint(Preset(preset)), QString());
    }

    void refusals_data()
    {
        QTest::addColumn<QStringList>("settings");
        QTest::newRow("a codec that the container does not take")
            << QStringList{"Container=webm", "VideoCodec=h264"};
        QTest::newRow("a profile without alpha")
            << QStringList{"Container=mov", "VideoCodec=prores", "Profile=hq", "Alpha=1"};
        QTest::newRow("a codec without alpha")
            << QStringList{"Container=mp4", "VideoCodec=h264", "Alpha=1"};
        QTest::newRow("a depth that the codec has not")
            << QStringList{"Container=mp4", "VideoCodec=h264", "BitDepth=12"};
        QTest::newRow("fields in a codec without")
            << QStringList{"Container=webm", "VideoCodec=vp9", "FieldOrder=1"};
        QTest::newRow("a rate for what is lossless")
            << QStringList{"Container=mkv", "VideoCodec=ffv1", "RateControl=1"};
        QTest::newRow("a mean rate of no bits") << QStringList{"Container=mp4", "RateControl=2"};
        QTest::newRow("a profile that the encoder refuses")
            << QStringList{"Container=mp4", "Profile=main", "RateControl=4"};
        QTest::newRow("floating point in MXF") << QStringList{"Container=mxf", "SampleFormat=flt"};
        QTest::newRow("nothing at all")
            << QStringList{"Container=mp4", "VideoCodec=none", "AudioCodec=none"};
        QTest::newRow("an unknown container") << QStringList{"Container=xyz"};
        QTest::newRow("a quality that there is not") << QStringList{"Container=mp4", "Quality=52"};
    }

    void refusals()
    {
        QFETCH(const QStringList, settings);
        const Bag options = Options(settings);
        QVERIFY(!Complaint(options).isEmpty());
        const QString path = Path("refused.mp4");
        QVERIFY(FAILED(Write(OneClip(), path, options)));
        QVERIFY(!QFile::exists(path));
    }

    void suffixChoosesCodecs_data()
    {
        QTest::addColumn<QString>("video");
        QTest::addColumn<QString>("audio");
        const auto row = [](const char* suffix, const char* video, const char* audio) {
            QTest::newRow(suffix) << QString(video) << QString(audio);
        };
        row("mp4", "h264", "aac");
        row("mov", "h264", "aac");
        row("avi", "h264", "mp3");
        row("wmv", "wmv2", "wmav2");
        row("ogv", "theora", "vorbis");
        row("mpg", "mpeg2video", "mp2");
        row("mxf", "mpeg2video", "pcm");
        row("webm", "vp9", "opus");
        row("gif", "gif", "none");
        row("mp3", "none", "mp3");
        row("m4a", "none", "aac");
        row("ogg", "none", "vorbis");
    }

    void suffixChoosesCodecs()
    {
        QFETCH(const QString, video);
        QFETCH(const QString, audio);
        const QString suffix = QTest::currentDataTag();
        if (!HasCodec(suffix, NLEStream_Video, video))
            QSKIP(qPrintable(NoEncoderOf(video)));
        if (!HasCodec(suffix, NLEStream_Audio, audio))
            QSKIP(qPrintable(NoEncoderOf(audio)));
        const QString path = Path("suffix.") + suffix;
        const Encoder encoder = provider->CreateMediaEncoder();
        const auto options = encoder.query<INLEEncodeOptions>();
        const Bag settled = provider->CreateNLEProperties();
        QCOMPARE(options->GetOptions(settled.get()), E_FAIL);
        QCOMPARE(encoder->Open(OneClip().get(), path.toStdWString().c_str(), nullptr), S_OK);
        QCOMPARE(options->GetOptions(settled.get()), S_OK);
        QCOMPARE(Text(settled, Key::kVideoCodec), video);
        QCOMPARE(Text(settled, Key::kAudioCodec), audio);
    }

    void alphaSurvives_data()
    {
        QTest::addColumn<QString>("preset");
        for (const char* preset : {"ProRes 4444", "VP9 with alpha", "QuickTime Animation",
                                   "QuickTime PNG", "PNG sequence"})
            QTest::newRow(preset) << QString(preset);
    }

    void alphaSurvives()
    {
        QFETCH(const QString, preset);
        if (!Preset(preset))
            QSKIP(qPrintable(NoEncoderOf(preset)));
        const bool isSequence = preset.endsWith("sequence");
        const QString path = Path(isSequence ? "alpha_%04d.png" : "alpha.film");
        const Node clip = Colour(QColor(200, 100, 0), QSize(160, 90));
        clip.query<INLEBlendSetting>()->SetAlpha(128);
        clip->SetMarginMode(NLEMargin_None);
        const Node project = ProjectWith(Trimmed(clip, 0, 3));
        QCOMPARE(Write(project, path, Preset(preset)), S_OK);
        const QImage shown =
            Frame(Media(isSequence ? Path("alpha_0003.png") : path), isSequence ? 0 : 3);
        const QColor middle = shown.pixelColor(160, 90);
        QCOMPARE(Deviation(middle.alpha(), 128, 2), QString());
        QCOMPARE(Deviation(middle.red(), 200, 6), QString());
        QCOMPARE(Deviation(middle.green(), 100, 6), QString());
        QCOMPARE(Deviation(shown.pixelColor(10, 10).alpha(), 0, 2), QString());
    }

    void losslessKeepsEveryPixel_data()
    {
        QTest::addColumn<QString>("container");
        QTest::addColumn<QString>("codec");
        for (const char* codec : {"h264", "hevc", "vp9", "ffv1"})
            QTest::newRow(codec) << "mkv" << QString(codec);
        for (const char* codec : {"png", "qtrle"})
            QTest::newRow(codec) << "mov" << QString(codec);
    }

    void losslessKeepsEveryPixel()
    {
        QFETCH(const QString, container);
        QFETCH(const QString, codec);
        if (!HasCodec(container, NLEStream_Video, codec))
            QSKIP(qPrintable(NoEncoderOf(codec)));
        const Bag options =
            Options({"Container=" + container, "VideoCodec=" + codec, "RateControl=4"});
        if (container == "mkv")
            options->SetString(Key::kPixelFormat, L"yuv420p");
        // Of the colours that the codec is given.
        TestClip clip;
        clip.frames = 3;
        const bool isModern = codec != "ffv1";
        clip.extra = QStringList{"-colorspace", isModern ? "bt709" : "smpte170m"};
        const QString media = Path("before.mp4");
        QCOMPARE(MakeTestClip(media, clip), QString());
        const QString path = Path("lossless.film");
        QCOMPARE(Write(ProjectWith(Media(media)), path, options), S_OK);
        const Node film = Media(path);
        for (int frame = 0; frame < clip.frames; ++frame)
            QVERIFY(Frame(film, frame) == Frame(Media(media), frame));
    }

    /// What is not painted goes another way to the encoder, which must not show.
    void untouchedPicturesEqualPaintedOnes_data()
    {
        QTest::addColumn<QStringList>("source");
        QTest::addColumn<QSize>("size");
        const QSize same(320, 180);
        QTest::newRow("as they are")
            << QStringList{"-pix_fmt", "yuv420p", "-colorspace", "bt709"} << same;
        QTest::newRow("other colours") << QStringList{"-pix_fmt", "yuv420p"} << same;
        QTest::newRow("full range")
            << QStringList{"-pix_fmt", "yuvj420p", "-colorspace", "bt709"} << same;
        QTest::newRow("ten bits") << QStringList{"-pix_fmt", "yuv420p10le", "-colorspace", "bt709"}
                                  << same;
        QTest::newRow("smaller") << QStringList{"-pix_fmt", "yuv420p", "-colorspace", "bt709"}
                                 << QSize(160, 90);
        QTest::newRow("larger, without lines for bars")
            << QStringList{"-pix_fmt", "yuv422p", "-colorspace", "bt709"} << QSize(640, 360);
    }

    void untouchedPicturesEqualPaintedOnes()
    {
        QFETCH(const QStringList, source);
        QFETCH(const QSize, size);
        TestClip clip;
        clip.frames = 5;
        clip.extra = QStringList{"-crf", "5"} + source;
        const QString media = Path("source.mp4");
        QCOMPARE(MakeTestClip(media, clip), QString());
        const NLEEncodeSettings settings = {
            {size.width(), size.height()}, {25, 1}, {}, 8, 48000, 2, 0};
        const QString plain = Path("plain.mp4");
        const QString painted = Path("painted.mp4");
        QCOMPARE(Write(ProjectWith(Media(media)), plain, {}, settings), S_OK);
        const Node covered = PaintedClip(media);
        NLEEncodeSettings length = settings;
        length.range = {0, 4};
        QCOMPARE(Write(covered, painted, {}, length), S_OK);
        QCOMPARE(TotalOf(Media(plain)).out, 4);
        for (int frame = 0; frame < 5; ++frame) {
            const QImage wanted = Frame(Media(media), frame, NLEOpen_Render, size);
            const double own = Psnr(Frame(Media(plain), frame, NLEOpen_Render, size), wanted);
            const double other = Psnr(Frame(Media(painted), frame, NLEOpen_Render, size), wanted);
            QVERIFY2(own > other - 1.5, qPrintable(Deviation(own, other, 0)));
            QVERIFY2(own > 30, qPrintable(QString::number(own)));
        }
    }

    void soundStaysWithItsPicture()
    {
        const Node project = ProjectWith(Media(m_media), 25);
        const QString path = Path("sound.mov");
        QCOMPARE(Write(project, path, Options({"Container=mov", "AudioCodec=pcm"})), S_OK);
        const Node film = Media(path);
        QCOMPARE(TotalOf(film).out, 25 + kFrames - 1);
        QCOMPARE(ReadFrameNumber(Frame(film, 25)), 0);
        QCOMPARE(ReadFrameNumber(Frame(film, 25 + kFrames - 1)), kFrames - 1);
        const std::vector<double> heard = Sound(film, 25, kSampleRate * 2 / 5)[0];
        const std::vector<double> wanted = Sound(Media(m_media), 0, kSampleRate * 2 / 5)[0];
        QCOMPARE(heard.size(), wanted.size());
        for (std::size_t i = 0; i < wanted.size(); ++i)
            QVERIFY(std::abs(heard[i] - wanted[i]) < 1e-4);
    }

    void fieldsAreOfTwoInstants()
    {
        const Node project = provider->CreateProjectTimeline({{320, 180}, {50, 1}, 48000, 2, 3});
        const QColor colours[] = {Qt::red, Qt::blue};
        for (int frame = 0; frame < 8; ++frame) {
            const Node clip =
                provider->CreateColorTimeline(colours[frame % 2], QSize(320, 180), 50);
            Add(project, Trimmed(clip, 0, 0), frame);
        }
        for (const int order : {NLEField_TopFirst, NLEField_BottomFirst}) {
            const Bag options = Options({"Container=mkv", "VideoCodec=ffv1", "PixelFormat=yuv444p",
                                         QString("FieldOrder=%1").arg(order)});
            const QString path = Path("fields.mkv");
            const QString picture = Path("fields.png");
            QCOMPARE(Write(project, path, options, kSmallFilm), S_OK);
            QCOMPARE(RunFfmpeg({"-i", path, "-frames:v", "1", picture}), QString());
            const int earlier = order == NLEField_TopFirst ? 0 : 1;
            const QImage lines(picture);
            QVERIFY(lines.pixelColor(160, 80 + earlier).red() > 200);
            QVERIFY(lines.pixelColor(160, 81 - earlier).blue() > 200);
        }
    }

    void callbackComesOnTheCallingThread()
    {
        const Encoder encoder = provider->CreateMediaEncoder();
        const std::wstring path = Path("thread.mp4").toStdWString();
        QCOMPARE(encoder->Open(OneClip().get(), path.c_str(), nullptr), S_OK);
        bool isSame = true;
        struct Watch
        {
            std::thread::id thread;
            bool* isSame;
        } watch = {std::this_thread::get_id(), &isSame};
        const auto note = [](int, void* data) {
            const auto* caller = static_cast<Watch*>(data);
            *caller->isSame = *caller->isSame && std::this_thread::get_id() == caller->thread;
            return 0;
        };
        QCOMPARE(encoder->Encode(note, &watch), S_OK);
        QVERIFY(isSame);
    }

    /// An encoder that may, of AV1 above all, makes the threads it meets real-time ones.
    void threadsStayPlain()
    {
#ifdef Q_OS_WIN
        QSKIP("no encoder makes its threads real-time ones there");
#else
        const Encoder encoder = provider->CreateMediaEncoder();
        const auto options = encoder.query<INLEEncodeOptions>();
        QCOMPARE(options->SetOptions(Options({"VideoCodec=av1"}).get()), S_OK);
        const std::wstring path = Path("plain.mkv").toStdWString();
        QCOMPARE(encoder->Open(OneClip().get(), path.c_str(), nullptr), S_OK);
        QStringList raised;
        const auto note = [](int, void* data) {
            for (const QString& thread :
                 QDir("/proc/self/task").entryList(QDir::NoDotAndDotDot | QDir::Dirs))
                if (sched_getscheduler(thread.toInt()) == SCHED_FIFO)
                    *static_cast<QStringList*>(data) += thread;
            return 0;
        };
        QCOMPARE(encoder->Encode(note, &raised), S_OK);
        QCOMPARE(raised, QStringList());
#endif
    }

    void fullDiskEndsIt()
    {
        QTemporaryDir place;
        const QString path = place.filePath("full.mkv");
        QVERIFY(SetContents(path, "precious"));
        const Encoder encoder = provider->CreateMediaEncoder();
        const auto options = encoder.query<INLEEncodeOptions>();
        QCOMPARE(options->SetOptions(Options({"VideoCodec=ffv1"}).get()), S_OK);
        QCOMPARE(encoder->Open(OneClip().get(), path.toStdWString().c_str(), nullptr), S_OK);
        {
            const FileSizeLimit full(10000);
            QCOMPARE(encoder->Encode(nullptr, nullptr), E_FAIL);
        }
        QCOMPARE(Contents(path), QByteArray("precious"));
        QCOMPARE(QDir(place.path()).entryList(QDir::Files | QDir::Hidden), QStringList("full.mkv"));
    }
};

QTEST_MAIN(tst_Export)
#include "tst_export.moc"

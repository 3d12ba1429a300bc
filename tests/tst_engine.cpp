// SPDX-License-Identifier: LGPL-2.1-or-later
// The open engine, judged by what it shows: pixels, samples and files.
#include "CommonLib/NLEWraper/VideoKeyFrameSetting.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"

#include <QProcess>
#include <QStandardPaths>

#include <random>
#include <string>

Q_DECLARE_METATYPE(std::wstring)

namespace {

constexpr int kMediaFrames = 60;

int ClipCount(const Node& composite)
{
    int count = -1;
    composite.query<INLETimelineComposite>()->GetClipCount(&count);
    return count;
}

} // namespace

Q_DECLARE_METATYPE(NLEEncodeSettings)

class tst_Engine : public QObject, private EngineFixture
{
    Q_OBJECT

    Node Media() const { return EngineFixture::Media(m_media); }
    double LoudnessAt(const Node& node, int frame) const { return Loudness(Sound(node, frame)[0]); }

    /// What the engine reads from a document of this text.
    Node Parse(const QByteArray& text) const
    {
        QFile file(Path("parsed.mlt"));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            return {};
        file.close();
        return Load(file.fileName());
    }

    QString m_media = Path("clip.mp4");

private slots:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = kMediaFrames;
        clip.bframes = 2;
        clip.audioCodec = "aac";
        QCOMPARE(MakeTestClip(m_media, clip), QString());
        QVERIFY(provider->CreateNLEProperties());
    }

    void catalogue()
    {
        // What this engine does not offer is an honest null.
        QVERIFY(!provider->CreateVideoFrameOpencl(16, 16));
        QVERIFY(!provider->CreateVideoFrame(0, 16));
        QVERIFY(!provider->CreateVideoFrame(1 << 20, 16));
        QVERIFY(!provider->CreateAudioFrame(-1));
        QVERIFY(!provider->CreateColorTimeline(Qt::red, QSize(0, 9), 25.0f));
        QVERIFY(!provider->CreateColorTimeline(Qt::red, QSize(9, 9), qQNaN()));
        QVERIFY(!provider->CreateSceneSegment());
        QVERIFY(!provider->CreateAudioFilterTimeline("x"));
        QVERIFY(!provider->CreateMarkBook(m_media));

        wchar_t name[32] = L"";
        const auto codec = provider->CreateCodecFromFile(m_media);
        QCOMPARE(codec->GetCodecName(0, name, 32), S_OK);
        QCOMPARE(QString::fromWCharArray(name), "h264");
    }

    void treeRefusals()
    {
        const Node project = Project();
        const Node inner = provider->CreateVirtualTimeline(0);
        const auto composite = project.query<INLETimelineComposite>();
        const auto innerComposite = inner.query<INLETimelineComposite>();
        QCOMPARE(composite->AddClip(nullptr), E_INVALIDARG);
        QCOMPARE(composite->AddClip(project.get()), E_INVALIDARG);
        QCOMPARE(composite->AddClip(inner.get()), S_OK);
        QCOMPARE(composite->AddClip(inner.get()), E_INVALIDARG);
        QCOMPARE(innerComposite->AddClip(project.get()), E_INVALIDARG);
        QCOMPARE(innerComposite->RemoveClip(project.get()), E_INVALIDARG);

        Node parent;
        inner->GetParent(parent.put());
        QVERIFY(parent == project);
        QCOMPARE(composite->RemoveClip(inner.get()), S_OK);
        QCOMPARE(composite->RemoveClip(inner.get()), E_INVALIDARG);
        inner->GetParent(parent.put());
        QVERIFY(!parent);

        Node deepest = provider->CreateVirtualTimeline(0);
        HRESULT added = S_OK;
        for (int depth = 0; depth < 100 && added == S_OK; ++depth) {
            const Node around = provider->CreateVirtualTimeline(0);
            added = Add(around, deepest);
            deepest = added == S_OK ? around : deepest;
        }
        QCOMPARE(added, E_INVALIDARG);

        // A clip outlives the composite that held it.
        Node holder = provider->CreateVirtualTimeline(0);
        QCOMPARE(Add(holder, inner), S_OK);
        holder.reset();
        inner->GetParent(parent.put());
        QVERIFY(!parent);
    }

    void rateChangesKeepInstants()
    {
        tagNLEProjectProfile profile = kSmall;
        profile.frameRate = {50, 1};
        const Node project = provider->CreateProjectTimeline(profile);
        const Node clip = Media();
        QCOMPARE(TotalOf(clip).out, kMediaFrames - 1);
        Trimmed(clip, 10, 19);
        Add(project, clip, 100);
        QCOMPARE(RangeOf(clip).in, 20);
        QCOMPARE(RangeOf(clip).out, 39);
        QCOMPARE(TotalOf(clip).out, 2 * kMediaFrames - 1);
        QCOMPARE(TotalOf(project).out, 119);
        QCOMPARE(ReadFrameNumber(Frame(project, 107)), 13);

        profile.frameRate = {25, 1};
        QCOMPARE(project.query<INLEProjectSetting>()->SetProfile(&profile), S_OK);
        int position = 0;
        clip->GetPosition(&position);
        QCOMPARE(position, 50);
        QCOMPARE(RangeOf(clip).in, 10);
        QCOMPARE(RangeOf(clip).out, 19);
        QCOMPARE(clip->SetRenderFrameRate({0, 1}), E_INVALIDARG);
        QCOMPARE(clip->SetRenderFrameRate({50, 1}), E_INVALIDARG);
    }

    void hugeNumbers()
    {
        const int edges[] = {INT_MIN, -1, 0, 1, INT_MAX};
        for (const int position : edges) {
            for (const int in : edges) {
                for (const int out : edges) {
                    const Node project = Project();
                    const Node clip = Colour(Qt::red);
                    Trimmed(clip, in, out);
                    Add(project, clip, position);
                    const std::int64_t end =
                        out < in ? position : std::int64_t(position) + out - in + 1;
                    const bool shows = position <= 0 && end > 0 && out >= in;
                    QCOMPARE(!Frame(project, 0).isNull(), end > 0);
                    if (end > 0)
                        QCOMPARE(Frame(project, 0).pixelColor(9, 9) == QColor(Qt::red), shows);
                    Sound(project, 0);
                    project->SetRenderFrameRate({1000, 1});
                    project->SetRenderFrameRate({1, 1000});
                    QVERIFY(Save(project, Path("huge.mlt")) && Load(Path("huge.mlt")));
                }
            }
        }
    }

    void clonesAreIndependent()
    {
        const Node project = Project();
        Add(project, Colour(Qt::red), 5, 3);
        Node deep;
        Node shallow;
        QCOMPARE(project->Clone(true, deep.put()), S_OK);
        QCOMPARE(project->Clone(false, shallow.put()), S_OK);
        QCOMPARE(ClipCount(deep), 1);
        QCOMPARE(ClipCount(shallow), 0);
        const Node copy = ClipAt(deep, 0);
        QVERIFY(copy != ClipAt(project, 0));
        copy->SetPosition(40);
        QCOMPARE(TotalOf(project).out, 5 + 124);
        QCOMPARE(TotalOf(deep).out, 40 + 124);
        int level = 0;
        copy->GetLevel(&level);
        QCOMPARE(level, 3);
    }

    void propertiesAndLiveKeys()
    {
        const Node clip = Media();
        auto bag = BagOf(clip);
        int length = 0;
        QCOMPARE(bag->GetInt(NLEKey::Render::kRender_TotalFrameCount, &length), S_OK);
        QCOMPARE(length, kMediaFrames);
        QVERIFY(FAILED(bag->SetInt(NLEKey::Render::kRender_TotalFrameCount, 1)));
        QCOMPARE(bag->SetRational(NLEKey::Render::kRender_Framerate, {50, 1}), S_OK);
        QCOMPARE(TotalOf(clip).out, 2 * kMediaFrames - 1);

        wchar_t text[4] = L"abc";
        QVERIFY(FAILED(bag->GetString(L"none", text, 4)));
        QCOMPARE(text[0], L'a');
        bag->SetString(L"key", L"longer");
        QCOMPARE(bag->GetString(L"key", text, 4), S_OK);
        QCOMPARE(QString::fromWCharArray(text), "lon");
        QVERIFY(FAILED(bag->GetInt(L"key", &length)));
        bag->SetDouble(L"huge", 1e300);
        QVERIFY(FAILED(bag->GetInt(L"huge", &length)));

        // The bag outlives its node.
        Node other = Media();
        bag = BagOf(other);
        other.reset();
        QVERIFY(FAILED(bag->GetInt(NLEKey::Render::kRender_TotalFrameCount, &length)));
    }

    void layersAndLevels()
    {
        const Node project = Project();
        const Node low = Colour(Qt::red);
        const Node high = Colour(Qt::blue);
        Trimmed(low, 0, 9);
        Trimmed(high, 0, 4);
        Add(project, high, 5, 2);
        Add(project, low, 2, 1);
        const auto colourAt = [&](int frame) { return Frame(project, frame).pixelColor(160, 90); };
        QCOMPARE(colourAt(0), QColor(Qt::black));
        QCOMPARE(colourAt(2), QColor(Qt::red));
        QCOMPARE(colourAt(5), QColor(Qt::blue));
        QCOMPARE(colourAt(10), QColor(Qt::red));
        QVERIFY(Frame(project, 12).isNull());
        QVERIFY(Frame(project, -1).isNull());

        high->SetEnabled(false);
        QCOMPARE(colourAt(5), QColor(Qt::red));
        high->SetEnabled(true);
        high->SetLevel(0);
        QCOMPARE(colourAt(5), QColor(Qt::red));

        BagOf(low)->SetInt(NLEKey::Render::kRender_Mode, NLERender_AudioOnly);
        QCOMPARE(colourAt(10), QColor(Qt::black));
        BagOf(project)->SetInt(NLEKey::Render::kRender_BackgroundColor, int(0xFF00FF00u));
        QCOMPARE(colourAt(0), QColor(Qt::green));
    }

    void margins_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QRect>("shown");
        const auto row = [](const char* name, int mode, QSize size, QRect shown) {
            QTest::newRow(name) << mode << size << shown;
        };
        row("fit: bars left and right", NLEMargin_Fit, {100, 100}, {70, 0, 180, 180});
        row("fit: bars above and below", NLEMargin_Fit, {320, 90}, {0, 45, 320, 90});
        row("fill", NLEMargin_Fill, {10, 10}, {0, 0, 320, 180});
        row("stretch", NLEMargin_Stretch, {7, 99}, {0, 0, 320, 180});
        row("pixel for pixel", NLEMargin_None, {100, 40}, {110, 70, 100, 40});
        row("a very long picture", NLEMargin_Fill, {1, 100000}, {0, 0, 320, 180});
    }

    void margins()
    {
        QFETCH(int, mode);
        QFETCH(QSize, size);
        QFETCH(QRect, shown);
        const Node project = Project();
        const Node clip = Colour(Qt::red, size);
        clip->SetMarginMode(tagNLEMarginMode(mode));
        Add(project, clip);
        const QImage frame = Frame(project, 0);
        const QRect inside = shown.adjusted(1, 1, -1, -1);
        QCOMPARE(frame.pixelColor(inside.topLeft()), QColor(Qt::red));
        QCOMPARE(frame.pixelColor(inside.bottomRight()), QColor(Qt::red));
        const QRect outside = shown.adjusted(-2, -2, 2, 2);
        for (const QPoint& corner : {outside.topLeft(), outside.bottomRight()}) {
            if (frame.rect().contains(corner))
                QCOMPARE(frame.pixelColor(corner), QColor(Qt::black));
        }
    }

    void trimmedClipShowsItsFrames()
    {
        const Node project = Project();
        const Node clip = Media();
        Trimmed(clip, 7, 36);
        Add(project, clip, 10);
        QCOMPARE(ReadFrameNumber(Frame(project, 10)), 7);
        QCOMPARE(ReadFrameNumber(Frame(project, 39)), 36);
        QCOMPARE(ReadFrameNumber(Frame(project, 25)), 22);
        // A clip alone counts from the file's first frame.
        QCOMPARE(ReadFrameNumber(Frame(clip, 0)), 0);
        QCOMPARE(ReadFrameNumber(Frame(clip, kMediaFrames - 1)), kMediaFrames - 1);
        QVERIFY(Frame(clip, kMediaFrames).isNull());
    }

    void nestedComposite()
    {
        const Node project = Project();
        const Node inner = provider->CreateVirtualTimeline(0);
        Add(inner, Media(), 5);
        Trimmed(inner, 10, 29);
        Add(project, Colour(Qt::red), 0, 0);
        Add(project, inner, 50, 1);
        QCOMPARE(Frame(project, 49).pixelColor(5, 5), QColor(Qt::red));
        QCOMPARE(ReadFrameNumber(Frame(project, 50)), 5);
        QCOMPARE(Frame(project, 70).pixelColor(5, 5), QColor(Qt::red));
        const auto extended = project.query<INLETimelineCompositeEx>();
        NLEComPtr<INLETimelineEnumerator> all;
        extended->GetEnumerator(1, 1, all.put());
        int count = 1;
        while (all->Next() == S_OK)
            ++count;
        QCOMPARE(count, 3);
    }

    void textIsDrawn()
    {
        const Node text = provider->CreateTipTextTimeline("HHHHH", QString());
        const QImage frame = Frame(text, 0);
        QCOMPARE(frame.pixelColor(2, 2).alpha(), 0);
        int white = 0;
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x)
                white += frame.pixelColor(x, y).alpha() > 128;
        }
        QVERIFY2(white > 100 && white < 1500, qPrintable(QString::number(white)));
    }

    void soundFollowsPlacement()
    {
        // A sine of level 0.5 has a loudness of 0.354.
        const Node project = Project();
        const Node clip = Media();
        Trimmed(clip, 0, 24);
        Add(project, clip, 25);
        Add(project, Colour(Qt::red), 0, 5);
        QVERIFY(LoudnessAt(project, 10) == 0.0);
        QVERIFY(std::abs(LoudnessAt(project, 35) - 0.354) < 0.02);
        QVERIFY(LoudnessAt(project, 50) == 0.0);
        const Node twin = Media();
        Add(project, twin, 25);
        QVERIFY(std::abs(LoudnessAt(project, 35) - 0.707) < 0.04);
        BagOf(twin)->SetInt(NLEKey::Render::kRender_Mode, NLERender_VideoOnly);
        QVERIFY(std::abs(LoudnessAt(project, 35) - 0.354) < 0.02);
        twin->SetEnabled(false);
        QVERIFY(std::abs(LoudnessAt(project, 35) - 0.354) < 0.02);
    }

    void waveEnvelope()
    {
        const Node clip = Media();
        NLEComPtr<INLEMediaInfo> info;
        std::uint32_t stream = 0;
        clip.query<INLETimelineSource>()->GetMediaInfo(info.put());
        clip.query<INLETimelineSource>()->GetAudioStreamIndex(&stream);
        const auto wave = provider->CreateWaveExtractor();
        float minima[8] = {};
        float maxima[8] = {};
        QVERIFY(FAILED(wave->Extract(0, 1, 8, minima, maxima)));
        QCOMPARE(wave->SetSource(info.get(), stream), S_OK);
        QCOMPARE(wave->Extract(0.5, 1.0, 8, minima, maxima), S_OK);
        QVERIFY(std::abs(maxima[7] - 0.5f) < 0.05f && std::abs(minima[7] + 0.5f) < 0.05f);
        QCOMPARE(wave->Extract(qQNaN(), 1.0, 8, minima, maxima), E_INVALIDARG);
        QCOMPARE(wave->Extract(0, qInf(), 8, minima, maxima), E_INVALIDARG);
        QCOMPARE(wave->Extract(0, 1, 0, minima, maxima), E_INVALIDARG);
    }

    void encodes()
    {
        const Node project = Project();
        const Node clip = Media();
        Trimmed(clip, 20, 39);
        Add(project, clip, 5);
        const auto encoder = provider->CreateMediaEncoder();
        const QString path = Path("encoded film.mp4");
        QCOMPARE(encoder->Open(project.get(), path.toStdWString().c_str(), nullptr), S_OK);
        int last = -1;
        QCOMPARE(encoder->Encode(
                     [](int percent, void* data) {
                         *static_cast<int*>(data) = percent;
                         return 0;
                     },
                     &last),
                 S_OK);
        QCOMPARE(last, 100);
        const Node film = provider->CreateMediaTimeline(path, false);
        QVERIFY(film);
        QCOMPARE(TotalOf(film).out, 24);
        QCOMPARE(ReadFrameNumber(Frame(film, 5)), 20);
        QCOMPARE(ReadFrameNumber(Frame(film, 24)), 39);
        QVERIFY(LoudnessAt(film, 1) < 0.01);
        QVERIFY(std::abs(LoudnessAt(film, 15) - 0.354) < 0.03);
    }

    void encoderStopsAndFails()
    {
        const Node clip = Media();
        const auto encoder = provider->CreateMediaEncoder();
        const QString path = Path("stopped.mkv");
        QCOMPARE(encoder->Encode(nullptr, nullptr), E_FAIL);
        QCOMPARE(encoder->Open(clip.get(), path.toStdWString().c_str(), nullptr), S_OK);
        const auto stopAtHalf = [](int percent, void*) { return percent >= 50 ? 1 : 0; };
        QCOMPARE(encoder->Encode(stopAtHalf, nullptr), S_FALSE);
        QVERIFY(QDir(folder.path()).entryList({"stopped*"}).isEmpty());
        const std::wstring none = Path("empty.mp4").toStdWString();
        QCOMPARE(encoder->Open(Project().get(), none.c_str(), nullptr), E_INVALIDARG);
        NLEEncodeSettings absurd{};
        absurd.channels = 65;
        QCOMPARE(encoder->Open(clip.get(), none.c_str(), &absurd), E_INVALIDARG);
        QCOMPARE(encoder->Encode(nullptr, nullptr), E_FAIL);
    }

    void encoderWritesWhatItAccepts_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<NLEEncodeSettings>("settings");
        QTest::addColumn<HRESULT>("opened");
        const auto row = [](const char* name, HRESULT opened, NLESize size = {320, 180},
                            int sampleRate = 48000, int channels = 2, NLERational rate = {25, 1}) {
            QTest::addRow("%s %dx%d %d Hz %d channels", name, size.width, size.height, sampleRate,
                          channels)
                << QString(name) << NLEEncodeSettings{size, rate, {}, 0, sampleRate, channels, 0}
                << opened;
        };
        // Each muxer that names files by itself would leave another kind of litter.
        for (const char* several : {"x.png", "x.JPG", "x.bmp", "x%03d.tif", "x.m3u8", "x.mpd"})
            row(several, E_NOTIMPL);
        for (const char* unknown : {"x.xyz", "x", "x.mp4."})
            row(unknown, E_NOTIMPL);
        for (const char* nowhere : {"missing/x.mp4", "clip.mp4/x.mp4", "folder.mp4"})
            row(nowhere, E_ACCESSDENIED);
        // A size, sound or rate that the codec has not; a muxer that opens its file once more; and
        // what nobody can read.
        row("x.mpg", E_INVALIDARG, {320, 180}, 48000, 2, {13, 1});
        row("x.cpk", E_INVALIDARG);
        row("x.webp", E_INVALIDARG);
        row("x.yuv", E_INVALIDARG);
        row("x.ogv", E_INVALIDARG, {2, 2});
        row("x.mp4", E_INVALIDARG, {40000, 40000});
        for (const char* taken : {"x.mkv", "x.MP4", "x.mov", "x.avi", "x.ts", "x.flv", "x.wmv",
                                  "x.webm", "x.ogv", "x.gif", "x.wav", "x.flac", "x.aac"})
            row(taken, S_OK, {63, 36});
        row("x.mpg", S_OK);
        row("x.3gp", S_OK);
        row("x.m4a", S_OK, {63, 36}, 96000);
        row("x.mp3", S_OK, {63, 36}, 11000, 6);
        row("x.mkv", S_OK, {2, 2}, 96000);
        row("x.swf", S_OK, {320, 180}, 96000, 6, {30000, 1001});
        row("x.opus", S_OK, {320, 180}, 44100, 1);
    }

    void encoderWritesWhatItAccepts()
    {
        QFETCH(const QString, name);
        QFETCH(const NLEEncodeSettings, settings);
        QFETCH(const HRESULT, opened);
        QTemporaryDir place;
        const QDir target(place.path());
        QVERIFY(target.mkdir("folder.mp4") && QFile::copy(m_media, target.filePath("clip.mp4")));
        const QString path = target.filePath(name);
        QFile old(path);
        if (old.open(QIODevice::WriteOnly))
            old.write("precious");
        old.close();
        const QStringList before = target.entryList(QDir::AllEntries | QDir::Hidden);
        const QByteArray content = Contents(path);

        const Node clip = Trimmed(Media(), 0, 19);
        const auto encoder = provider->CreateMediaEncoder();
        QCOMPARE(encoder->Open(clip.get(), path.toStdWString().c_str(), &settings), opened);
        QCOMPARE(Contents(path), content);
        QCOMPARE(encoder->Encode(nullptr, nullptr), opened == S_OK ? S_OK : E_FAIL);
        QCOMPARE(target.entryList(QDir::AllEntries | QDir::Hidden), before);
        if (opened != S_OK) {
            QCOMPARE(Contents(path), content);
            return;
        }
        const Node film = EngineFixture::Media(path);
        QVERIFY(film);
        QVERIFY(qAbs(TotalOf(film).out - 19) <= 5);
        const Stereo sound = name.endsWith("gif") ? Stereo() : Sound(film, 10);
        QVERIFY(sound[0].empty() || std::abs(Loudness(sound[0]) - 0.354) < 0.05);
    }

    void documentRoundTrip()
    {
        const Node project = Project();
        const Node clip = Media();
        Trimmed(clip, 7, 36);
        clip->SetMarginMode(NLEMargin_Fill);
        auto bag = BagOf(clip);
        bag->SetString(L"Key_TimelineGuid", L"a <&> \u00fc 100% \r\x01");
        bag->SetDouble(L"d", 1.0 / 3);
        bag->SetRational(NLEKey::Speed::kScale, {50000000, 100000000});
        Add(project, clip, 10, 1);
        Add(project, Colour(QColor(1, 2, 3, 128)), -5, 2);
        const Node hidden = Colour(Qt::green);
        hidden->SetEnabled(false);
        Add(project, hidden, 3, 7);
        const Node inner = provider->CreateVirtualTimeline(11);
        const Node text = provider->CreateTipTextTimeline("two\nlines", "DejaVu Sans");
        Trimmed(text, 4, 3);
        Add(inner, text, 8);
        Add(project, inner, 60, 1);
        Add(project, provider->CreateMediaTimeline(Path("gone.mp4"), true), 200, 1);

        const QString first = Path("first.mlt");
        const QString second = Path("second.mlt");
        QVERIFY(Save(project, first));
        const Node loaded = Load(first);
        QVERIFY(loaded);
        QVERIFY(Save(loaded, second));
        QCOMPARE(QString::fromUtf8(Contents(second)), QString::fromUtf8(Contents(first)));

        QCOMPARE(ClipCount(loaded), 5);
        QCOMPARE(RangeOf(ClipAt(loaded, 0)).in, 7);
        wchar_t guid[32] = L"";
        bag = BagOf(ClipAt(loaded, 0));
        bag->GetString(L"Key_TimelineGuid", guid, 32);
        QCOMPARE(QString::fromWCharArray(guid), "a <&> \u00fc 100% \r\x01");
        double third = 0;
        bag->GetDouble(L"d", &third);
        QCOMPARE(third, 1.0 / 3);
        for (int frame : {0, 15, 39, 80})
            QCOMPARE(Frame(loaded, frame), Frame(project, frame));
    }

    void documentKeepsTexts_data()
    {
        QTest::addColumn<std::wstring>("text");
        QTest::newRow("beyond the basic plane") << std::wstring(L"a\U0001F600\U0010FFFFz");
        QTest::newRow("no characters") << std::wstring(L"\xFFFE\xFFFF\xFFFD\xFFFE");
        QTest::newRow("byte order mark") << std::wstring(L"\xFEFF\xFEFF");
        QTest::newRow("halves of characters") << std::wstring(L"\xDC00-\xD83D");
        QTest::newRow("like an encoded text") << std::wstring(L"%25 %41 %uFFFE %ud83d %u %");
        QTest::newRow("line ends and blanks") << std::wstring(L" \t\r\n\n\r ");
        std::wstring controls;
        for (wchar_t code = 1; code < 0xA1; ++code)
            controls += code;
        QTest::newRow("controls") << controls;
        std::mt19937 generator(3);
        const std::wstring odd =
            L"%u25<&>]'\"\r\n\t \x01\x7F\x85\x2028\xFFFE\xFFFF\xD800\xDBFF\xFEFF";
        for (int row = 0; row < 20; ++row) {
            std::wstring text;
            for (int i = 0; i < 60; ++i) {
                const auto code = wchar_t(1 + generator() % 0xDBFF);
                text += generator() % 3 ? odd[generator() % odd.size()] : code;
            }
            QTest::addRow("by chance, %d", row) << text;
        }
    }

    void documentKeepsTexts()
    {
        QFETCH(std::wstring, text);
        const Node project = Project();
        const QString shown = QString::fromStdWString(text);
        const Node clip = provider->CreateTipTextTimeline(shown, shown);
        BagOf(clip)->SetString(text.c_str(), text.c_str());
        clip.query<INLEAudioStreamProcess>()->SetEqualizerName(text.c_str());
        Add(project, clip);
        const QString first = Path("first.mlt");
        const QString second = Path("second.mlt");
        QVERIFY(Save(project, first));
        const Node loaded = Load(first);
        QVERIFY(loaded);
        QVERIFY(Save(loaded, second));
        QCOMPARE(Contents(second), Contents(first));
        wchar_t value[256] = L"";
        QCOMPARE(BagOf(ClipAt(loaded, 0))->GetString(text.c_str(), value, 256), S_OK);
        QVERIFY(value == text);
        ClipAt(loaded, 0).query<INLEAudioStreamProcess>()->GetEqualizerName(value, 256);
        QVERIFY(value == text);
    }

    void textOfAnotherEditorHolds()
    {
        const Node project = Project();
        Add(project, provider->CreateTipTextTimeline(QString(QChar(0xFFFE)), "DejaVu Sans"));
        const QString path = Path("edited.mlt");
        QVERIFY(Save(project, path));
        const QByteArray saved = Contents(path);
        QVERIFY(saved.contains("\xEF\xBF\xBD</property>"));
        QVERIFY(Save(Parse(QByteArray(saved).replace("\xEF\xBF\xBD<", "50%25<")), path));
        QVERIFY(Contents(path).contains(">50%25</property>"));
        QVERIFY(!Contents(path).contains("nle:exact"));
    }

    void documentInTheFrameworksOwnPlayer()
    {
        if (QStandardPaths::findExecutable("melt").isEmpty())
            QSKIP("the framework's player, melt, is not installed");
        const Node project = Project();
        const QString odd = Path("50% of 100%25.mp4");
        QVERIFY(QFile::copy(m_media, odd));
        const Node clip = EngineFixture::Media(odd);
        BagOf(clip)->SetString(L"odd \x01\xFFFE", L"\x02\xFFFF\xD800");
        Trimmed(clip, 20, 39);
        Add(project, clip, 10);
        // From the top left quarter to the bottom right one; in the middle at the frame looked at.
        VideoKeyFrameSetting(clip).AddKeyFrame({0, 0, 1, {-0.25, 0.25}, {0.5, 0.5}});
        VideoKeyFrameSetting(clip).AddKeyFrame({0.5, 0, 1, {0.25, -0.25}, {0.5, 0.5}});
        const QString document = Path("player.mlt");
        QVERIFY(Save(project, document));
        const QStringList arguments =
            QStringList{document, "in=15", "out=15", "-consumer", "avformat:" + Path("frame.png")} +
            QString("vcodec=png f=image2 update=1 an=1").split(' ');
        // The player's consumer now and then hangs at its start, whatever it plays.
        bool ended = false;
        for (int attempt = 0; attempt < 5 && !ended; ++attempt) {
            QProcess melt;
            melt.start("melt", arguments);
            ended = melt.waitForFinished(10000);
            if (!ended)
                melt.kill();
            melt.waitForFinished();
        }
        QVERIFY(ended);
        QCOMPARE(ReadFrameNumber(QImage(Path("frame.png")).copy(80, 45, 160, 90)), 25);
    }

    void foreignDocument()
    {
        // As other editors write: clock values, shared producers, a background track, unknown
        // elements.
        const Node project = Parse(R"(<?xml version="1.0"?><mlt LC_NUMERIC="C" producer="main">
        <profile width="320" height="180" frame_rate_num="25" frame_rate_den="1"/>
        <producer id="black"><property name="mlt_service">color</property></producer>
        <chain id="c"><property name="resource">clip.mp4</property>
            <property name="mlt_service">avformat-novalidate</property><link/></chain>
        <playlist id="v1"><entry producer="c" in="00:00:00.400" out="00:00:00.760"/>
            <blank length="00:00:00.400"/><entry producer="c" in="30" out="39"/></playlist>
        <tractor id="main"><multitrack><track producer="black"/><track producer="v1"/></multitrack>
            <filter><property name="x">y</property></filter></tractor></mlt>)");
        QVERIFY(project);
        QCOMPARE(ClipCount(project), 2);
        QCOMPARE(TotalOf(project).out, 29);
        QCOMPARE(ReadFrameNumber(Frame(project, 0)), 10);
        QCOMPARE(ReadFrameNumber(Frame(project, 9)), 19);
        QCOMPARE(ReadFrameNumber(Frame(project, 20)), 30);
    }

    void brokenDocuments_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("not XML") << QByteArray("hello");
        QTest::newRow("cut short") << QByteArray("<mlt><producer id='a'>");
        QTest::newRow("another kind of document") << QByteArray("<html/>");
        QTest::newRow("no timeline") << QByteArray("<mlt/>");
        QTest::newRow("a missing root") << QByteArray("<mlt producer='x'/>");
    }

    void brokenDocuments()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!Parse(text));
    }

    void endlessDocuments()
    {
        // Each names the next one twice: refused before memory runs out.
        QByteArray bomb = "<mlt producer='t0'>";
        for (int i = 0; i < 60; ++i)
            bomb +=
                QString(
                    "<tractor id='t%1'><track producer='t%2'/><track producer='t%2'/></tractor>")
                    .arg(i)
                    .arg(i + 1)
                    .toUtf8();
        Parse(bomb + "</mlt>");

        // A playlist that contains itself ends as an empty one.
        const char* const circle =
            "<playlist id='p'><entry producer='p' in='0' out='9'/></playlist>";
        QCOMPARE(ClipCount(Parse(QByteArray("<mlt>") + circle + "</mlt>")), 0);
    }

    void templates()
    {
        const QString made = Path("template");
        QVERIFY(QDir().mkpath(made));
        QVERIFY(QFile::copy(m_media, made + "/clip.mp4"));
        const Node project = Project();
        Add(project, provider->CreateMediaTimeline(made + "/clip.mp4", false));
        QVERIFY(Save(project, made + "/Template.mlt"));
        // Media inside of the template moves with it.
        QVERIFY(QDir().rename(made, Path("moved")));
        const Node loaded = provider->CreateTimelineFromTemplate(Path("moved"));
        QVERIFY(loaded);
        QCOMPARE(ReadFrameNumber(Frame(loaded, 12)), 12);
        QVERIFY(!provider->CreateTimelineFromTemplate(folder.path()));
    }

    void relink()
    {
        const Node clip = Media();
        const auto relink = clip.query<INLEMediaRelink>();
        const QString moved = Path("moved clip.mp4");
        QVERIFY(QFile::copy(m_media, moved));
        QVERIFY(FAILED(relink->Relink(Path("none.mp4").toStdWString().c_str(), 0)));
        QCOMPARE(ReadFrameNumber(Frame(clip, 3)), 3);
        QCOMPARE(relink->Relink(moved.toStdWString().c_str(), 0), S_OK);
        QCOMPARE(relink->Reload(), S_OK);
        wchar_t path[512] = L"";
        clip.query<INLETimelineSource>()->GetFilePath(path, 512);
        QCOMPARE(QString::fromWCharArray(path), moved);
        QVERIFY(QFile::remove(moved));
        QCOMPARE(relink->Reload(), S_OK);
        QVERIFY(Frame(clip, 3).isNull());
    }
};

QTEST_MAIN(tst_Engine)
#include "tst_engine.moc"

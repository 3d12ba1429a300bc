// SPDX-License-Identifier: LGPL-2.1-or-later
// The open engine, judged by what it shows: trees of clips, pixels, samples and encoded files.
#include "EngineApi/INLEEditing.h"
#include "EngineApi/INLEEncode.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/MissingEncoder.h"

namespace {

constexpr int kMediaFrames = 60;
constexpr tagNLEProjectProfile kFast = {{320, 180}, {50, 1}, 48000, 2, 3};

} // namespace

Q_DECLARE_METATYPE(NLEEncodeSettings)

class tst_Engine : public QObject, private EngineFixture
{
    Q_OBJECT

    Node Media() const { return EngineFixture::Media(m_media); }
    double LoudnessAt(const Node& node, int frame) const { return Loudness(Sound(node, frame)[0]); }

    QColor ColourAt(const Node& node, int frame) const
    {
        return Frame(node, frame).pixelColor(160, 90);
    }
    /// A red clip from frame 2 to 11, and a blue one above it from 5 to 9.
    struct Layers
    {
        Node project, low, high;
    };
    Layers MakeLayers() const
    {
        Layers layers{Project(), Trimmed(Colour(Qt::red), 0, 9), Trimmed(Colour(Qt::blue), 0, 4)};
        Add(layers.project, layers.high, 5, 2);
        Add(layers.project, layers.low, 2, 1);
        return layers;
    }
    /// A composite with a clip from its fifth frame on, from there on above a red clip at 50.
    Node ProjectWithComposite() const
    {
        const Node inner = provider->CreateVirtualTimeline(0);
        Add(inner, Media(), 5);
        Node project = ProjectWith(Colour(Qt::red));
        Add(project, Trimmed(inner, 10, 29), 50, 1);
        return project;
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

    void offersNoMoreThanItHas()
    {
        QVERIFY(!provider->CreateVideoFrameOpencl(0, 16));
        QVERIFY(!provider->CreateVideoFrame(0, 16));
        QVERIFY(!provider->CreateVideoFrame(1 << 20, 16));
        QVERIFY(!provider->CreateAudioFrame(-1));
        QVERIFY(!provider->CreateColorTimeline(Qt::red, QSize(0, 9), 25.0f));
        QVERIFY(!provider->CreateColorTimeline(Qt::red, QSize(9, 9), qQNaN()));
        QVERIFY(!provider->CreateAudioFilterTimeline("x"));
        QVERIFY(!provider->CreateMarkBook("missing.mp4"));
    }

    void namesTheCodec()
    {
        wchar_t name[32] = L"";
        const auto codec = provider->CreateCodecFromFile(m_media);
        QCOMPARE(codec->GetCodecName(0, name, 32), S_OK);
        QCOMPARE(QString::fromWCharArray(name), "h264");
    }

    void clipStandsInOneCompositeOnce()
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
        QCOMPARE(composite->RemoveClip(inner.get()), S_OK);
        QCOMPARE(composite->RemoveClip(inner.get()), E_INVALIDARG);
    }

    /// One history for a composite; groups and locks are there when it is opened again.
    void editsAreKeptInDocuments()
    {
        const auto factory = Factory();
        const auto editingOf = [&](const Node& node) {
            NLEComPtr<INLEEditing> editing;
            factory->CreateEditing(node.get(), editing.put());
            return editing;
        };
        const Node project = Project();
        const auto editing = editingOf(project);
        QCOMPARE(editingOf(project), editing);
        QVERIFY(!editingOf(Colour(Qt::red)));
        const Node clips[] = {Colour(Qt::red), Colour(Qt::blue)};
        INLETimeline* const both[] = {clips[0].get(), clips[1].get()};
        for (int i = 0; i < 2; ++i)
            QCOMPARE(editing->Place(both[i], 10, i, 0), S_OK);
        QCOMPARE(editing->Group(both, 2), S_OK);
        QCOMPARE(editing->SetLevelLocked(3, true), S_OK);
        QVERIFY(Save(project, Path("edited.mlt")));
        const Node loaded = Load(Path("edited.mlt"));
        const auto again = editingOf(loaded);
        QCOMPARE(again->Move(ClipAt(loaded, 0).get(), 20, 0, 0), S_OK);
        int position = -1;
        ClipAt(loaded, 1)->GetPosition(&position);
        QCOMPARE(position, 20);
        QCOMPARE(again->Move(ClipAt(loaded, 0).get(), 20, 3, 0), E_ACCESSDENIED);
    }

    void clipKnowsItsParent()
    {
        const Node project = Project();
        const Node clip = Colour(Qt::red);
        Node parent;
        Add(project, clip);
        clip->GetParent(parent.put());
        QVERIFY(parent == project);
        project.query<INLETimelineComposite>()->RemoveClip(clip.get());
        clip->GetParent(parent.put());
        QVERIFY(!parent);
    }

    void clipOutlivesItsComposite()
    {
        const Node clip = provider->CreateVirtualTimeline(0);
        Node holder = provider->CreateVirtualTimeline(0);
        QCOMPARE(Add(holder, clip), S_OK);
        holder.reset();
        Node parent;
        clip->GetParent(parent.put());
        QVERIFY(!parent);
    }

    void refusesTreesTooDeep()
    {
        Node deepest = provider->CreateVirtualTimeline(0);
        HRESULT added = S_OK;
        for (int depth = 0; depth < 100 && added == S_OK; ++depth) {
            const Node around = provider->CreateVirtualTimeline(0);
            added = Add(around, deepest);
            deepest = added == S_OK ? around : deepest;
        }
        QCOMPARE(added, E_INVALIDARG);
    }

    void clipTakesTheRateOfItsProject()
    {
        const Node project = provider->CreateProjectTimeline(kFast);
        const Node clip = Media();
        QCOMPARE(TotalOf(clip).out, kMediaFrames - 1);
        Trimmed(clip, 10, 19);
        Add(project, clip, 100);
        QCOMPARE(RangeOf(clip).in, 20);
        QCOMPARE(RangeOf(clip).out, 39);
        QCOMPARE(TotalOf(clip).out, 2 * kMediaFrames - 1);
        QCOMPARE(TotalOf(project).out, 119);
        QCOMPARE(ReadFrameNumber(Frame(project, 107)), 13);
    }

    void rateChangesKeepInstants()
    {
        const Node project = provider->CreateProjectTimeline(kFast);
        const Node clip = Trimmed(Media(), 10, 19);
        Add(project, clip, 100);
        QCOMPARE(project.query<INLEProjectSetting>()->SetProfile(&kSmall), S_OK);
        int position = 0;
        clip->GetPosition(&position);
        QCOMPARE(position, 50);
        QCOMPARE(RangeOf(clip).in, 10);
        QCOMPARE(RangeOf(clip).out, 19);
    }

    void refusesRatesOfItsOwn()
    {
        const Node project = ProjectWith(Media());
        const Node clip = ClipAt(project, 0);
        QCOMPARE(clip->SetRenderFrameRate({0, 1}), E_INVALIDARG);
        QCOMPARE(clip->SetRenderFrameRate({50, 1}), E_INVALIDARG); // its project's is another
    }

    void hugeNumbers_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("in");
        QTest::addColumn<int>("out");
        const int edges[] = {INT_MIN, -1, 0, 1, INT_MAX};
        for (const int position : edges) {
            for (const int in : edges) {
                for (const int out : edges)
                    QTest::addRow("at %d, from %d to %d", position, in, out)
                        << position << in << out;
            }
        }
    }

    void hugeNumbers()
    {
        QFETCH(int, position);
        QFETCH(int, in);
        QFETCH(int, out);
        const Node project = ProjectWith(Trimmed(Colour(Qt::red), in, out), position);
        const std::int64_t end = out < in ? position : std::int64_t(position) + out - in + 1;
        const QImage shown = Frame(project, 0);
        QCOMPARE(!shown.isNull(), end > 0);
        if (end > 0) {
            const bool isClip = position <= 0 && out >= in;
            QCOMPARE(shown.pixelColor(9, 9), QColor(isClip ? Qt::red : Qt::black));
        }
        Sound(project, 0);
        project->SetRenderFrameRate({1000, 1});
        project->SetRenderFrameRate({1, 1000});
        QVERIFY(Save(project, Path("huge.mlt")));
        QVERIFY(Load(Path("huge.mlt")));
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

    void totalLengthIsALiveProperty()
    {
        const Node clip = Media();
        const auto bag = BagOf(clip);
        int length = 0;
        QCOMPARE(bag->GetInt(NLEKey::Render::kRender_TotalFrameCount, &length), S_OK);
        QCOMPARE(length, kMediaFrames);
        QVERIFY(FAILED(bag->SetInt(NLEKey::Render::kRender_TotalFrameCount, 1)));
        QCOMPARE(bag->SetRational(NLEKey::Render::kRender_Framerate, {50, 1}), S_OK);
        QCOMPARE(TotalOf(clip).out, 2 * kMediaFrames - 1);
    }

    void propertiesKeepTheirTypes()
    {
        const auto bag = BagOf(Media());
        wchar_t text[4] = L"abc";
        QVERIFY(FAILED(bag->GetString(L"none", text, 4)));
        QCOMPARE(QString::fromWCharArray(text), "abc"); // left alone
        bag->SetString(L"key", L"longer");
        QCOMPARE(bag->GetString(L"key", text, 4), S_OK);
        QCOMPARE(QString::fromWCharArray(text), "lon");
        int number = 0;
        QVERIFY(FAILED(bag->GetInt(L"key", &number)));
        bag->SetDouble(L"huge", 1e300);
        QVERIFY(FAILED(bag->GetInt(L"huge", &number)));
    }

    void bagOutlivesItsClip()
    {
        Node clip = Media();
        const auto bag = BagOf(clip);
        clip.reset();
        int length = 0;
        QVERIFY(FAILED(bag->GetInt(NLEKey::Render::kRender_TotalFrameCount, &length)));
    }

    void higherLevelIsAbove()
    {
        const Layers l = MakeLayers();
        QCOMPARE(ColourAt(l.project, 0), QColor(Qt::black));
        QCOMPARE(ColourAt(l.project, 2), QColor(Qt::red));
        QCOMPARE(ColourAt(l.project, 5), QColor(Qt::blue));
        QCOMPARE(ColourAt(l.project, 10), QColor(Qt::red));
        QVERIFY(Frame(l.project, 12).isNull());
        QVERIFY(Frame(l.project, -1).isNull());
        l.high->SetLevel(0);
        QCOMPARE(ColourAt(l.project, 5), QColor(Qt::red));
    }

    void disabledClipIsNotShown()
    {
        const Layers l = MakeLayers();
        l.high->SetEnabled(false);
        QCOMPARE(ColourAt(l.project, 5), QColor(Qt::red));
        l.high->SetEnabled(true);
        QCOMPARE(ColourAt(l.project, 5), QColor(Qt::blue));
    }

    void clipOfSoundOnlyIsNotShown()
    {
        const Layers l = MakeLayers();
        BagOf(l.low)->SetInt(NLEKey::Render::kRender_Mode, NLERender_AudioOnly);
        QCOMPARE(ColourAt(l.project, 10), QColor(Qt::black));
    }

    void backgroundShowsWhereNoClipIs()
    {
        const Layers l = MakeLayers();
        BagOf(l.project)->SetInt(NLEKey::Render::kRender_BackgroundColor, int(0xFF00FF00u));
        QCOMPARE(ColourAt(l.project, 0), QColor(Qt::green));
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

    void nestedCompositeIsShown()
    {
        const Node project = ProjectWithComposite();
        QCOMPARE(Frame(project, 49).pixelColor(5, 5), QColor(Qt::red));
        QCOMPARE(ReadFrameNumber(Frame(project, 50)), 5);
        QCOMPARE(Frame(project, 70).pixelColor(5, 5), QColor(Qt::red));
    }

    void enumeratorGoesIntoComposites()
    {
        NLEComPtr<INLETimelineEnumerator> all;
        ProjectWithComposite().query<INLETimelineCompositeEx>()->GetEnumerator(1, 1, all.put());
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
        const Node project = ProjectWith(Trimmed(Media(), 0, 24), 25);
        Add(project, Colour(Qt::red), 0, 5);
        QCOMPARE(LoudnessAt(project, 10), 0.0);
        QCOMPARE(Deviation(LoudnessAt(project, 35), kToneLoudness, 0.02), QString());
        QCOMPARE(LoudnessAt(project, 50), 0.0);
    }

    void soundsAddUp()
    {
        const Node project = ProjectWith(Trimmed(Media(), 0, 24), 25);
        const Node twin = Media();
        Add(project, twin, 25);
        QCOMPARE(Deviation(LoudnessAt(project, 35), 2 * kToneLoudness, 0.04), QString());
        BagOf(twin)->SetInt(NLEKey::Render::kRender_Mode, NLERender_VideoOnly);
        QCOMPARE(Deviation(LoudnessAt(project, 35), kToneLoudness, 0.02), QString());
        BagOf(twin)->SetInt(NLEKey::Render::kRender_Mode, NLERender_All);
        twin->SetEnabled(false);
        QCOMPARE(Deviation(LoudnessAt(project, 35), kToneLoudness, 0.02), QString());
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
        QCOMPARE(Deviation(maxima[7], 0.5, 0.05), QString());
        QCOMPARE(Deviation(minima[7], -0.5, 0.05), QString());
        QCOMPARE(wave->Extract(qQNaN(), 1.0, 8, minima, maxima), E_INVALIDARG);
        QCOMPARE(wave->Extract(0, qInf(), 8, minima, maxima), E_INVALIDARG);
        QCOMPARE(wave->Extract(0, 1, 0, minima, maxima), E_INVALIDARG);
    }

    void encodes()
    {
        const Node project = ProjectWith(Trimmed(Media(), 20, 39), 5);
        const auto encoder = provider->CreateMediaEncoder();
        const QString path = Path("encoded film.mp4");
        QCOMPARE(encoder->Open(project.get(), path.toStdWString().c_str(), nullptr), S_OK);
        int last = -1;
        const auto note = [](int percent, void* data) {
            *static_cast<int*>(data) = percent;
            return 0;
        };
        QCOMPARE(encoder->Encode(note, &last), S_OK);
        QCOMPARE(last, 100);
        const Node film = provider->CreateMediaTimeline(path, false);
        QVERIFY(film);
        QCOMPARE(TotalOf(film).out, 24);
        QCOMPARE(ReadFrameNumber(Frame(film, 5)), 20);
        QCOMPARE(ReadFrameNumber(Frame(film, 24)), 39);
        QCOMPARE(Deviation(LoudnessAt(film, 1), 0, 0.01), QString());
        QCOMPARE(Deviation(LoudnessAt(film, 15), kToneLoudness, 0.03), QString());
    }

    void stoppedEncoderLeavesNoFile()
    {
        const auto encoder = provider->CreateMediaEncoder();
        const std::wstring path = Path("stopped.mkv").toStdWString();
        QCOMPARE(encoder->Open(Media().get(), path.c_str(), nullptr), S_OK);
        const auto stopAtHalf = [](int percent, void*) { return percent >= 50 ? 1 : 0; };
        QCOMPARE(encoder->Encode(stopAtHalf, nullptr), S_FALSE);
        QCOMPARE(QDir(folder.path()).entryList({"stopped*"}), QStringList());
    }

    void encoderWritesOnlyWhatIsOpened()
    {
        const Node clip = Media();
        const auto encoder = provider->CreateMediaEncoder();
        QCOMPARE(encoder->Encode(nullptr, nullptr), E_FAIL);
        const std::wstring path = Path("empty.mp4").toStdWString();
        QCOMPARE(encoder->Open(Project().get(), path.c_str(), nullptr), E_INVALIDARG);
        NLEEncodeSettings absurd{};
        absurd.channels = 65;
        QCOMPARE(encoder->Open(clip.get(), path.c_str(), &absurd), E_INVALIDARG);
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
        for (const char* several : {"x.png", "x.JPG", "x.bmp", "x%03d.bmp", "x.m3u8", "x.mpd"})
            row(several, E_NOTIMPL);
        for (const char* unknown : {"x.xyz", "x", "x.mp4."})
            row(unknown, E_NOTIMPL);
        for (const char* nowhere : {"missing/x.mp4", "clip.mp4/x.mp4", "folder.mp4"})
            row(nowhere, E_ACCESSDENIED);
        // A size, sound or rate that the codec has not; a muxer that opens its file once more; and
        // what nobody can read.
        row("x.mpg", E_INVALIDARG, {320, 180}, 48000, 2, {13, 1});
        row("x.cpk", E_INVALIDARG);
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
        QFETCH(HRESULT, opened);
        if (!MissingEncoder(*provider, QFileInfo(name).suffix()).isEmpty())
            opened = name.endsWith("swf") ? E_INVALIDARG : E_NOTIMPL;
        QTemporaryDir place;
        const QDir target(place.path());
        QVERIFY(target.mkdir("folder.mp4"));
        QVERIFY(QFile::copy(m_media, target.filePath("clip.mp4")));
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
        QCOMPARE(Deviation(TotalOf(film).out, RangeOf(clip).out, 5), QString());
        const Stereo sound = name.endsWith("gif") ? Stereo() : Sound(film, 10);
        if (!sound[0].empty())
            QCOMPARE(Deviation(Loudness(sound[0]), kToneLoudness, 0.05), QString());
    }

    /// Players go by the size of a picture where the codec does not tell its colour matrix.
    void encodedColoursComeBack_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QSize>("size");
        for (const char* suffix : {"mp4", "avi", "flv", "mpg", "ogv", "ts", "webm", "wmv"}) {
            QTest::addRow("small, %s", suffix) << QString(suffix) << QSize(320, 180);
            QTest::addRow("high definition, %s", suffix) << QString(suffix) << QSize(1280, 720);
        }
        QTest::newRow("a palette") << QString("gif") << QSize(320, 180);
    }

    void encodedColoursComeBack()
    {
        QFETCH(const QString, suffix);
        QFETCH(const QSize, size);
        const QString missing = MissingEncoder(*provider, suffix);
        if (!missing.isEmpty())
            QSKIP(qPrintable(NoEncoderOf(missing)));
        const QColor colour(200, 40, 60);
        const QString path = Path(qPrintable("colours." + suffix));
        const NLEEncodeSettings settings = {
            {size.width(), size.height()}, {25, 1}, {}, 2, 48000, 2, 192000};
        const auto encoder = provider->CreateMediaEncoder();
        const Node clip = Trimmed(Colour(colour, size), 0, 9);
        QCOMPARE(encoder->Open(clip.get(), path.toStdWString().c_str(), &settings), S_OK);
        QCOMPARE(encoder->Encode(nullptr, nullptr), S_OK);
        const QColor shown = ColourAt(EngineFixture::Media(path), 0);
        QCOMPARE(Deviation(shown.red(), colour.red(), 5), QString());
        QCOMPARE(Deviation(shown.green(), colour.green(), 5), QString());
        QCOMPARE(Deviation(shown.blue(), colour.blue(), 5), QString());
    }

    void relinkTakesAnotherFile()
    {
        const Node clip = Media();
        const auto relink = clip.query<INLEMediaRelink>();
        const QString moved = Path("moved clip.mp4");
        QVERIFY(QFile::copy(m_media, moved));
        QVERIFY(FAILED(relink->Relink(Path("none.mp4").toStdWString().c_str(), 0)));
        QCOMPARE(ReadFrameNumber(Frame(clip, 3)), 3);
        const int last = RangeOf(clip).out;
        const std::wstring missing = Path("none.mp4").toStdWString();
        QCOMPARE(relink->Relink(missing.c_str(), NLERelink_AllowMissing), S_OK);
        QVERIFY(Frame(clip, 3).isNull());
        QCOMPARE(RangeOf(clip).out, last);
        QCOMPARE(relink->Relink(moved.toStdWString().c_str(), 0), S_OK);
        QCOMPARE(relink->Reload(), S_OK);
        QCOMPARE(ReadFrameNumber(Frame(clip, 3)), 3);
        wchar_t path[512] = L"";
        clip.query<INLETimelineSource>()->GetFilePath(path, 512);
        QCOMPARE(QString::fromWCharArray(path), moved);
        QCOMPARE(relink->Reload(), S_OK); // lets go of the file
        QVERIFY(QFile::remove(moved));
        QCOMPARE(relink->Reload(), S_OK);
        QVERIFY(Frame(clip, 3).isNull());
    }
};

QTEST_MAIN(tst_Engine)
#include "tst_engine.moc"

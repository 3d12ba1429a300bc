// SPDX-License-Identifier: LGPL-2.1-or-later
// The documents of the open engine: what is saved comes back, also from other editors.
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/DocumentFixture.h"

#include <random>
#include <string>

Q_DECLARE_METATYPE(std::wstring)

class tst_EngineDocuments : public QObject, private DocumentFixture
{
    Q_OBJECT

    Node Media() const { return EngineFixture::Media(m_media); }

    /// Clips of each kind, one of a file that is gone, with properties that are hard to write.
    Node ProjectWithEveryKind() const
    {
        Node project = Project();
        const Node clip = Media();
        Trimmed(clip, 7, 36);
        clip->SetMarginMode(NLEMargin_Fill);
        const auto bag = BagOf(clip);
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
        return project;
    }

    QString m_media = Path("clip.mp4");

public:
    tst_EngineDocuments() : DocumentFixture("parsed.mlt") {}

private slots:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = 60;
        clip.bframes = 2;
        clip.audioCodec = "aac";
        QCOMPARE(MakeTestClip(m_media, clip), QString());
    }

    void documentIsSavedAsItWasLoaded()
    {
        const QString first = Path("first.mlt");
        const QString second = Path("second.mlt");
        QVERIFY(Save(ProjectWithEveryKind(), first));
        const Node loaded = Load(first);
        QVERIFY(loaded);
        QVERIFY(Save(loaded, second));
        QCOMPARE(QString::fromUtf8(Contents(second)), QString::fromUtf8(Contents(first)));
    }

    void loadedDocumentHasTheClips()
    {
        QVERIFY(Save(ProjectWithEveryKind(), Path("saved.mlt")));
        const Node loaded = Load(Path("saved.mlt"));
        QCOMPARE(ClipCount(loaded), 5);
        QCOMPARE(RangeOf(ClipAt(loaded, 0)).in, 7);
        const auto bag = BagOf(ClipAt(loaded, 0));
        wchar_t guid[32] = L"";
        bag->GetString(L"Key_TimelineGuid", guid, 32);
        QCOMPARE(QString::fromWCharArray(guid), "a <&> \u00fc 100% \r\x01");
        double third = 0;
        bag->GetDouble(L"d", &third);
        QVERIFY(third == 1.0 / 3); // to the last digit
    }

    void loadedDocumentShowsTheSame_data()
    {
        QTest::addColumn<int>("frame");
        QTest::newRow("a colour that began before") << 0;
        QTest::newRow("a clip and a colour") << 15;
        QTest::newRow("the end of a clip") << 39;
        QTest::newRow("a composite") << 80;
    }

    void loadedDocumentShowsTheSame()
    {
        QFETCH(int, frame);
        const Node project = ProjectWithEveryKind();
        QVERIFY(Save(project, Path("saved.mlt")));
        const QImage shown = Frame(Load(Path("saved.mlt")), frame);
        QVERIFY(!shown.isNull());
        QCOMPARE(shown, Frame(project, frame));
    }

    void documentKeepsImageSequence()
    {
        QDir().mkpath(Path("shots"));
        for (int number = 7; number < 19; ++number) {
            const QString name = QString("shots/shot_%1.png").arg(number, 4, 10, QLatin1Char('0'));
            QVERIFY(PaintFrameNumber(number, QSize(320, 180)).save(folder.filePath(name)));
        }
        const QString pattern = Path("shots/shot_%04d.png");
        const Node clip = provider->CreateMediaTimeline(pattern, true);
        QVERIFY(clip);
        QCOMPARE(TotalOf(clip).out, 11);
        QVERIFY(SUCCEEDED(BagOf(clip)->SetRational(NLEKey::Sequence::kFramerate, {12, 1})));
        // At half the rate each picture lasts for two frames of the project, which has 25.
        const Node project = ProjectWith(clip);
        QCOMPARE(TotalOf(clip).out, 24);
        QVERIFY(Save(project, Path("sequence.mlt")));
        const Node loaded = Load(Path("sequence.mlt"));
        QVERIFY(loaded);
        QCOMPARE(TotalOf(ClipAt(loaded, 0)).out, 24);
        for (const int frame : {0, 5, 10, 24})
            QCOMPARE(ReadFrameNumber(Frame(loaded, frame)), 7 + frame * 12 / 25);
        QVERIFY(Contents(Path("sequence.mlt")).contains("shots/shot_%04d.png"));
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

    void explodingDocumentIsCutShort()
    {
        // Each names the next one twice, which would fill any memory.
        QByteArray bomb = "<mlt producer='t0'>";
        const QString level =
            "<tractor id='t%1'><track producer='t%2'/><track producer='t%2'/></tractor>";
        for (int i = 0; i < 60; ++i)
            bomb += level.arg(i).arg(i + 1).toUtf8();
        QVERIFY(Parse(bomb + "</mlt>"));
    }

    void playlistThatContainsItselfIsEmpty()
    {
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
};

QTEST_MAIN(tst_EngineDocuments)
#include "tst_engine_documents.moc"

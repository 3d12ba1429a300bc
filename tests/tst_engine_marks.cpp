// SPDX-License-Identifier: LGPL-2.1-or-later
// Marks of files and markers of nodes in the open engine.
#include "Com/AnyQt.h"
#include "EngineApi/INLEMarkers.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"

namespace {

/// A mark as "frame name".
using Marks = QStringList;
/// A marker as "frame+length colour name".
QString Text(const NLEMarkerRecord& record, const wchar_t* name)
{
    return QString("%1+%2 %3 %4")
        .arg(record.frame)
        .arg(record.length)
        .arg(record.color, 8, 16, QChar('0'))
        .arg(QString::fromWCharArray(name));
}

const char kSheet[] = "PERFORMER \"Somebody\"\nTITLE \"The album\"\nFILE \"%1\" WAVE\n"
                      "  TRACK 01 AUDIO\n    TITLE \"Overture\"\n    INDEX 01 00:00:00\n"
                      "  TRACK 02 AUDIO\n    TITLE \"A \xC3\x84ria, slow\"\n"
                      "    INDEX 00 00:00:50\n    INDEX 01 00:01:15\n"
                      "  TRACK 03 AUDIO\n    TITLE Finale  furioso\n    INDEX 01 00:02:00\n";
const Marks kTracks = {"0 Overture", QString::fromUtf8("30 A \xC3\x84ria, slow"),
                       "50 Finale  furioso"};

/// Seconds of each chapter.
QByteArray Metadata(std::initializer_list<double> starts)
{
    QByteArray text = ";FFMETADATA1\n";
    int number = 0;
    for (const double start : starts) {
        const int begin = qRound(start * 1000);
        text += QString("[CHAPTER]\nTIMEBASE=1/1000\nSTART=%1\nEND=%2\ntitle=Part %3 %4\n")
                    .arg(begin)
                    .arg(begin + 400)
                    .arg(++number)
                    .arg(QChar(0xE9))
                    .toUtf8();
    }
    return text;
}

} // namespace

class tst_EngineMarks : public QObject, private EngineFixture
{
    Q_OBJECT

    void Write(const QString& name, const QByteArray& content) const
    {
        QVERIFY(SetContents(folder.filePath(name), content));
    }

    /// "none" where the engine has no book.
    Marks MarksOf(const QString& name) const
    {
        const auto book = provider->CreateMarkBook(folder.filePath(name));
        int count = 0;
        if (!book || book->GetMarkCount(&count) != S_OK)
            return {"none"};
        Marks marks;
        for (int i = 0; i < count; ++i) {
            int frame = -1;
            wchar_t text[64] = L"?";
            book->GetMark(i, &frame, text, 64);
            marks << QString("%1 %2").arg(frame).arg(QString::fromWCharArray(text));
        }
        return marks;
    }

    /// A film of three seconds with chapters.
    QString Film(const QString& name, int rateNum, int rateDen) const
    {
        const QString metadata = name + ".txt";
        Write(metadata, Metadata({0.0, 1.001, 2.5}));
        TestClip clip;
        clip.rateNum = rateNum;
        clip.rateDen = rateDen;
        clip.frames = 3 * rateNum / rateDen;
        const QString plain = folder.filePath("plain-" + name);
        const QString failure = MakeTestClip(plain, clip);
        return !failure.isEmpty()
                   ? failure
                   : RunFfmpeg({"-i", plain, "-i", folder.filePath(metadata), "-map", "0",
                                "-map_chapters", "1", "-c", "copy", folder.filePath(name)});
    }

    QString Sound(const QString& name, const QStringList& extra = {}) const
    {
        return RunFfmpeg(QStringList{"-f", "lavfi", "-i", "sine=duration=3"} + extra +
                         QStringList{folder.filePath(name)});
    }

    static NLEComPtr<INLEMarkers> Markers(const Node& node) { return Facet<INLEMarkers>(node); }
    static QStringList TextsOf(const Node& node)
    {
        int count = 0;
        Markers(node)->GetCount(&count);
        QStringList texts;
        for (int i = 0; i < count; ++i) {
            NLEMarkerRecord record = {};
            wchar_t name[64] = L"?";
            Markers(node)->GetMarker(i, &record, name, 64);
            texts << Text(record, name);
        }
        return texts;
    }
    static int AddMarker(const Node& node, const NLEMarkerRecord& record, const wchar_t* name)
    {
        int index = -1;
        Markers(node)->AddMarker(&record, name, &index);
        return index;
    }
    /// A colour with a marker of an instant and one of a span.
    Node Marked() const
    {
        Node clip = Colour(Qt::red);
        AddMarker(clip, {50, 25, 0xFFFF8000u}, L" chorus,  twice; 100% \u00e4\n");
        AddMarker(clip, {10, 0, 0x80000001u}, L"");
        return clip;
    }

private slots:
    void chapters_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("rateNum");
        QTest::addColumn<int>("rateDen");
        QTest::addColumn<QList<int>>("frames");
        QTest::newRow("MP4 at 25") << "film.mp4" << 25 << 1 << QList<int>{0, 25, 63};
        QTest::newRow("Matroska at 25") << "film.mkv" << 25 << 1 << QList<int>{0, 25, 63};
        QTest::newRow("MP4 at 29.97") << "ntsc.mp4" << 30000 << 1001 << QList<int>{0, 30, 75};
        QTest::newRow("Matroska at 60") << "fast.mkv" << 60 << 1 << QList<int>{0, 60, 150};
    }

    void chapters()
    {
        QFETCH(QString, name);
        QFETCH(int, rateNum);
        QFETCH(int, rateDen);
        QFETCH(QList<int>, frames);
        QCOMPARE(Film(name, rateNum, rateDen), QString());
        Marks wanted;
        for (int i = 0; i < frames.size(); ++i)
            wanted << QString("%1 Part %2 %3").arg(frames[i]).arg(i + 1).arg(QChar(0xE9));
        QCOMPARE(MarksOf(name), wanted);
    }

    void cueSheets_data()
    {
        QTest::addColumn<QString>("sound");
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QString>("named");
        QTest::addColumn<QString>("opened");
        QTest::addColumn<Marks>("marks");
        QTest::newRow("beside a sound") << "a.wav"
                                        << "a.cue"
                                        << "a.wav"
                                        << "a.wav" << kTracks;
        QTest::newRow("beside, with the whole name") << "b.flac"
                                                     << "b.flac.cue"
                                                     << "b.flac"
                                                     << "b.flac" << kTracks;
        QTest::newRow("beside a sound that was converted") << "c.flac"
                                                           << "c.cue"
                                                           << "c.wav"
                                                           << "c.flac" << kTracks;
        QTest::newRow("as the path") << "d.wav"
                                     << "d.cue"
                                     << "d.wav"
                                     << "d.cue" << kTracks;
        QTest::newRow("as the path, without its sound") << "e.wav"
                                                        << "lost.cue"
                                                        << "lost.wav"
                                                        << "lost.cue" << kTracks;
        QTest::newRow("of another file") << "f.wav"
                                         << "g.cue"
                                         << "g.wav"
                                         << "f.wav" << Marks();
    }

    void cueSheets()
    {
        QFETCH(QString, sound);
        QFETCH(QString, sheet);
        QFETCH(QString, named);
        QFETCH(QString, opened);
        QCOMPARE(Sound(sound), QString());
        Write(sheet, QByteArray(kSheet).replace("%1", named.toUtf8()));
        QTEST(MarksOf(opened), "marks");
    }

    void cueSheetTexts_data()
    {
        QTest::addColumn<QByteArray>("sheet");
        QTest::addColumn<Marks>("marks");
        const QByteArray track = "TRACK 01 AUDIO\r\nTITLE \"\xC4ria\"\r\nINDEX 01 00:00:75\r\n";
        const Marks aria = {QString("25 %1ria").arg(QChar(0xC4))};
        QTest::newRow("Windows-1252") << "FILE \"x.wav\" WAVE\r\n" + track << aria;
        const QByteArray utf16 =
            AnyQt::TextCodec::Named("UTF-16LE")
                ->Encode(QChar(QChar::ByteOrderMark) + QStringLiteral("FILE x.wav WAVE\n") +
                         QString::fromLatin1(track));
        QTest::newRow("UTF-16") << utf16 << aria;
        QTest::newRow("several files, the first counts")
            << "FILE x.wav WAVE\n" + track + "FILE y.wav WAVE\n" + track << aria;
        QTest::newRow("times that are none")
            << QByteArray("FILE x.wav WAVE\nTRACK 01 AUDIO\nINDEX 01 1:2\nINDEX 01 -1:00:00\n")
            << Marks();
        QTest::newRow("no sheet") << QByteArray("\x00\xFF nothing", 10) << Marks{"none"};
    }

    void cueSheetTexts()
    {
        QFETCH(QByteArray, sheet);
        Write("texts.cue", sheet);
        QTEST(MarksOf("texts.cue"), "marks");
    }

    void sheetInsideOfTheSound()
    {
        const QString sheet = QString::fromUtf8(kSheet).replace("%1", "other.wav");
        QCOMPARE(Sound("tagged.flac", {"-metadata", "CUESHEET=" + sheet}), QString());
        QCOMPARE(MarksOf("tagged.flac"), kTracks);
    }

    void filesWithoutMarks()
    {
        QCOMPARE(Sound("plain.ogg"), QString());
        Write("text.mp4", "no film");
        QCOMPARE(MarksOf("plain.ogg"), Marks());
        QCOMPARE(MarksOf("text.mp4"), Marks{"none"});
        const auto book = provider->CreateMarkBook(folder.filePath("plain.ogg"));
        int frame = 7;
        QCOMPARE(book->GetMark(0, &frame, nullptr, 0), E_INVALIDARG);
        QCOMPARE(frame, 7);
    }

    void markersStandInOrder()
    {
        const Node clip = Marked();
        QCOMPARE(AddMarker(clip, {10, 1, 0}, L"later of the same frame"), 1);
        const NLEMarkerRecord moved = {90, 2, 3};
        int index = -1;
        QCOMPARE(Markers(clip)->SetMarker(0, &moved, nullptr, &index), S_OK);
        QCOMPARE(index, 2);
        const NLEMarkerRecord same = {10, 4, 5};
        QCOMPARE(Markers(clip)->SetMarker(0, &same, L"x", nullptr), S_OK);
        QCOMPARE(Markers(clip)->DeleteMarker(1), S_OK);
        QCOMPARE(TextsOf(clip), QStringList({"10+4 00000005 x", "90+2 00000003 "}));
    }

    void markersThatMakeNoSense_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("frame");
        QTest::addColumn<int>("length");
        QTest::newRow("no such marker") << 2 << 0 << 0;
        QTest::newRow("before the first marker") << -1 << 0 << 0;
        QTest::newRow("a length below 0") << 0 << 10 << -1;
        QTest::newRow("moved, with a length below 0") << 0 << 11 << -1;
        QTest::newRow("beyond the last frame there can be") << 1 << INT32_MAX - 3 << 5;
    }

    void markersThatMakeNoSense()
    {
        QFETCH(int, index);
        QFETCH(int, frame);
        QFETCH(int, length);
        const Node clip = Marked();
        const QStringList before = TextsOf(clip);
        const NLEMarkerRecord record = {frame, length, 0};
        QCOMPARE(Markers(clip)->SetMarker(index, &record, L"x", nullptr), E_INVALIDARG);
        QCOMPARE(TextsOf(clip), before);
    }

    void markersComeBack_data()
    {
        QTest::addColumn<bool>("isSaved");
        QTest::newRow("from a clone") << false;
        QTest::newRow("from a document") << true;
    }

    void markersComeBack()
    {
        QFETCH(bool, isSaved);
        const Node project = ProjectWith(Marked());
        AddMarker(project, {-5, INT32_MAX, 0xFFFFFFFFu}, L"1 2 3");
        Node again;
        if (isSaved) {
            QVERIFY(Save(project, Path("markers.mlt")));
            again = Load(Path("markers.mlt"));
        } else {
            QCOMPARE(project->Clone(true, again.put()), S_OK);
        }
        QCOMPARE(TextsOf(again), TextsOf(project));
        QCOMPARE(TextsOf(ClipAt(again, 0)), TextsOf(ClipAt(project, 0)));
        QCOMPARE(TextsOf(ClipAt(again, 0)).size(), 2);
    }

    void markersKeepTheirInstants_data()
    {
        QTest::addColumn<bool>("isFaster");
        QTest::addColumn<QStringList>("markers");
        QTest::newRow("at twice the rate") << false << QStringList({"20+0", "100+50"});
        QTest::newRow("at twice the speed") << true << QStringList({"5+0", "25+13"});
    }

    void markersKeepTheirInstants()
    {
        QFETCH(bool, isFaster);
        const Node clip = Marked();
        const Node project = ProjectWith(clip);
        AddMarker(project, {7, 0, 0}, L"");
        if (isFaster) {
            BagOf(clip)->SetRational(NLEKey::Speed::kScale, {2, 1});
            BagOf(clip)->SetInt(NLEKey::Speed::kEnabled, 1);
        } else {
            project->SetRenderFrameRate({50, 1});
        }
        QStringList found;
        for (const QString& text : TextsOf(clip))
            found << text.section(' ', 0, 0);
        QTEST(found, "markers");
        QCOMPARE(TextsOf(project).front().section('+', 0, 0), isFaster ? "7" : "14");
    }
};

QTEST_MAIN(tst_EngineMarks)
#include "tst_engine_marks.moc"

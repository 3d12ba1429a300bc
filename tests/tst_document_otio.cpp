// SPDX-License-Identifier: LGPL-2.1-or-later
// OpenTimelineIO's documents: what the open engine writes and reads.
#include "CommonLib/NLEWraper/VideoKeyFrameSetting.h"
#include "EngineApi/INLEMarkers.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/DocumentFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

class tst_DocumentOtio : public QObject, private DocumentFixture
{
    Q_OBJECT

    QJsonObject Saved(const Node& node) const
    {
        return Save(node, Path("saved.otio"))
                   ? QJsonDocument::fromJson(Contents(Path("saved.otio"))).object()
                   : QJsonObject();
    }

    // Texts of a document; names in it stand in single quotes.
    static QByteArray Json(QByteArray text) { return text.replace('\'', '"'); }
    static QByteArray Range(double start, double duration, double rate = 24)
    {
        const auto time = [rate](double value) {
            return "{'OTIO_SCHEMA':'RationalTime.1','rate':" + QByteArray::number(rate, 'g', 17) +
                   ",'value':" + QByteArray::number(value, 'g', 17) + "}";
        };
        return "{'OTIO_SCHEMA':'TimeRange.1','start_time':" + time(start) +
               ",'duration':" + time(duration) + "}";
    }
    static QByteArray Item(const char* schema, const QByteArray& range,
                           const QByteArray& more = "'name':'x'")
    {
        return "{'OTIO_SCHEMA':'" + QByteArray(schema) + "','source_range':" + range + "," + more +
               "}";
    }
    static QByteArray File(const QByteArray& url, const QByteArray& available = "null")
    {
        return "'media_reference':{'OTIO_SCHEMA':'ExternalReference.1','target_url':'" + url +
               "','available_range':" + available + "}";
    }
    static QByteArray Track(const QByteArray& children, const char* kind = "Video")
    {
        return "{'OTIO_SCHEMA':'Track.1','kind':'" + QByteArray(kind) +
               "','source_range':null,'children':[" + children + "]}";
    }
    static QByteArray Timeline(const QByteArray& tracks)
    {
        return Json("{'OTIO_SCHEMA':'Timeline.1','name':'t','tracks':{'OTIO_SCHEMA':'Stack.1',"
                    "'source_range':null,'children':[" +
                    tracks + "]}}");
    }

    /// Every clip, also those of clips: position, in and out point, "-" behind a disabled one.
    static QStringList Clips(const Node& composite)
    {
        NLEComPtr<INLETimelineEnumerator> clips;
        composite.query<INLETimelineCompositeEx>()->GetEnumerator(1, 0, clips.put());
        QStringList result;
        Node clip;
        while (clips->GetCurrent(clip.put()) == S_OK) {
            int position = 0;
            bool isEnabled = false;
            clip->GetPosition(&position);
            clip->GetEnabled(&isEnabled);
            const NLERange range = RangeOf(clip);
            result << QString("%1: %2-%3%4")
                          .arg(position)
                          .arg(range.in)
                          .arg(range.out)
                          .arg(isEnabled ? "" : " -");
            clips->Next();
        }
        return result;
    }

public:
    tst_DocumentOtio() : DocumentFixture("parsed.OTIO") {}

private slots:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = 60;
        clip.audioCodec = "aac";
        QCOMPARE(MakeTestClip(Path("clip.mp4"), clip), QString());
        QVERIFY(QDir(folder.path()).mkpath("media"));
        QVERIFY(QFile::copy(Path("clip.mp4"), Path("media/a b%20#ü.mp4")));
    }

    void roundTripLosesNothing()
    {
        const Node project = Project();
        const Node clip = Media(Path("media/a b%20#ü.mp4"));
        Trimmed(clip, 7, 36);
        BagOf(clip)->SetString(L"odd \x01\xFFFE", L"\x02 100% \xD800\r");
        BagOf(clip)->SetRational(NLEKey::Speed::kScale, {30000001, 100000000});
        BagOf(clip)->SetInt(NLEKey::Speed::kEnabled, 1);
        clip.query<INLEAudioStreamProcess>()->SetVolume(1.0 / 3);
        Add(project, clip, 10, 1);
        VideoKeyFrameSetting(clip).AddKeyFrame({0.5, 0, 1, {0.25, -0.25}, {0.5, 0.5}});
        Add(project, Colour(QColor(1, 2, 3, 128)), -5, 2);
        const Node frozen = Media(Path("clip.mp4"));
        BagOf(frozen)->SetInt(NLEKey::Freeze::kFreeze_Frame, 33);
        BagOf(frozen)->SetInt(NLEKey::Freeze::kFreeze_Enabled, 1);
        Add(project, Trimmed(frozen, 3, 12), 20, 1);
        const Node hidden = Colour(Qt::green);
        hidden->SetEnabled(false);
        Add(project, hidden, 3, 7);
        const Node inner = provider->CreateVirtualTimeline(11);
        Add(inner, provider->CreateTipTextTimeline(QString("a\r\n%25") + QChar(0xD83D), "x\x01"),
            8);
        Add(project, Trimmed(inner, 4, 3), 60, 1);
        Add(project, provider->CreateMediaTimeline(Path("gone.mp4"), true), 200, 1);
        QVERIFY(Save(project, Path("first.otio")));
        const Node loaded = Load(Path("first.otio"));
        QVERIFY(loaded);
        // All that a document of ours can hold, byte for byte.
        QVERIFY(Save(project, Path("first.mlt")));
        QVERIFY(Save(loaded, Path("second.mlt")));
        QCOMPARE(QString::fromUtf8(Contents(Path("second.mlt"))),
                 QString::fromUtf8(Contents(Path("first.mlt"))));
        QVERIFY(Save(loaded, Path("second.otio")));
        QCOMPARE(Contents(Path("second.otio")), Contents(Path("first.otio")));
    }

    void writtenStructure()
    {
        const Node project = Project();
        project->SetRenderFrameRate({23976024, 1000000});
        Add(project, Trimmed(Media(Path("media/a b%20#ü.mp4")), 6, 15), 4, 0);
        const QJsonObject timeline = Saved(project);
        QCOMPARE(timeline["OTIO_SCHEMA"].toString(), QString("Timeline.1"));
        const QJsonArray tracks = timeline["tracks"].toObject()["children"].toArray();
        QCOMPARE(tracks.size(), 2); // the picture, and its sound
        QCOMPARE(tracks[0].toObject()["kind"].toString(), QString("Video"));
        QCOMPARE(tracks[1].toObject()["kind"].toString(), QString("Audio"));
        for (const QJsonValue track : tracks) {
            const QJsonArray items = track.toObject()["children"].toArray();
            QCOMPARE(items.size(), 2);
            QCOMPARE(items[0].toObject()["OTIO_SCHEMA"].toString(), QString("Gap.1"));
            const QJsonObject clip = items[1].toObject();
            QCOMPARE(clip["OTIO_SCHEMA"].toString(), QString("Clip.1"));
            QCOMPARE(clip["media_reference"].toObject()["target_url"].toString(),
                     QString("media/a%20b%2520%23%C3%BC.mp4"));
            const QJsonObject start = clip["source_range"].toObject()["start_time"].toObject();
            QCOMPARE(start["value"].toInt(), 6);
            QCOMPARE(start["rate"].toDouble(), 24000.0 / 1001);
        }
    }

    void structure_data()
    {
        QTest::addColumn<QByteArray>("tracks");
        QTest::addColumn<QStringList>("clips");
        QTest::addColumn<QList<int>>("remarks");
        const auto row = [](const char* name, const QByteArray& tracks, const QStringList& clips,
                            const QList<int>& remarks) {
            QTest::newRow(name) << tracks << clips << remarks;
        };
        const QByteArray gap = Item("Gap.1", Range(0, 8));
        const QByteArray red = "'media_reference':{'OTIO_SCHEMA':'GeneratorReference.1',"
                               "'generator_kind':'SolidColor','parameters':{'color':'#ff0000'}}";
        const QByteArray clip = Item("Clip.1", Range(3, 6), red);
        const QByteArray dissolve = "{'OTIO_SCHEMA':'Transition.1','name':'d'}";
        row("a gap and clips", Track(gap + "," + clip + "," + clip), {"8: 3-8", "14: 3-8"}, {});
        row("a transition has no length",
            Track(dissolve + "," + clip + "," + dissolve + "," + gap + "," + clip),
            {"0: 3-8", "14: 3-8"}, {NLERemark_Transition, NLERemark_Transition});
        row("the newest clips name several files",
            Track(Item("Clip.2", Range(1, 2),
                       "'active_media_reference_key':'b','media_references':{'a':{},'b':{"
                       "'OTIO_SCHEMA':'ExternalReference.1','target_url':'clip.mp4'}}")),
            {"0: 1-2"}, {});
        row("times of another rate",
            Track(Item("Clip.1", Range(30, 60, 60), red) + "," +
                  Item("Clip.1", Range(12, 12), red)),
            {"0: 30-89", "60: 30-59"}, {});
        row("without a range, all of the file",
            Track(Item("Clip.1", "null", File("clip.mp4", Range(100, 6)))), {"0: 0-5"}, {});
        row("media whose time does not begin at 0",
            Track(Item("Clip.1", Range(103, 2), File("clip.mp4", Range(100, 6)))), {"0: 3-4"}, {});
        row("no file", Track(Item("Clip.1", Range(3, 6))), {"0: 3-8"}, {NLERemark_Missing});
        row("turned off", Track(Item("Clip.1", Range(3, 6), red + ",'enabled':false")),
            {"0: 3-8 -"}, {});
        row("a stack in a stack, trimmed",
            Track(gap + "," + Item("Stack.1", Range(2, 4), "'children':[" + Track(clip) + "]")),
            {"8: 2-5", "0: 3-8"}, {});
        row("a track in a track, longer than what it holds",
            Track(Item("Track.1", Range(0, 10), "'children':[" + clip + "]") + "," + clip),
            {"0: 0-9", "0: 3-8", "10: 3-8"}, {});
        row("twice as fast",
            Track(Item("Clip.1", Range(10, 4),
                       File("clip.mp4") + ",'effects':[{'OTIO_SCHEMA':"
                                          "'LinearTimeWarp.1','time_scalar':2}]")),
            {"0: 5-8"}, {});
        row("backwards",
            Track(Item("Clip.1", Range(10, 4),
                       File("clip.mp4") + ",'effects':[{'OTIO_SCHEMA':"
                                          "'LinearTimeWarp.1','time_scalar':-1}]")),
            {"0: 10-13"}, {NLERemark_Reversed});
        row("an effect and a marker without a time",
            Track(Item("Clip.1", Range(3, 6),
                       red + ",'effects':[{'OTIO_SCHEMA':'Effect.1'}],"
                             "'markers':[{'OTIO_SCHEMA':'Marker.2'}]")),
            {"0: 3-8"}, {NLERemark_Effect, NLERemark_Marker});
        row("an unknown item keeps its place", Track(Item("Hologram.7", Range(0, 5)) + "," + clip),
            {"0: 0-4", "5: 3-8"}, {NLERemark_Service});
    }

    void structure()
    {
        QFETCH(QByteArray, tracks);
        QFETCH(QStringList, clips);
        QFETCH(QList<int>, remarks);
        const Node project = Parse(Timeline(tracks));
        QVERIFY(project);
        QCOMPARE(Clips(project), clips);
        QCOMPARE(Remarks(), remarks);
    }

    void frozenClip()
    {
        const Node project =
            Parse(Timeline(Track(Item("Clip.1", Range(20, 9, 25),
                                      File("clip.mp4") + ",'effects':[{'OTIO_SCHEMA':"
                                                         "'FreezeFrame.1','time_scalar':0}]"))));
        QCOMPARE(TotalOf(project).out, 8);
        QCOMPARE(ReadFrameNumber(Frame(project, 6)), 20);
    }

    void tracksOfSound()
    {
        const QByteArray clip = Item("Clip.1", Range(0, 20, 25), File("clip.mp4"));
        const Node both = Parse(Timeline(Track(clip)));
        QCOMPARE(Deviation(Loudness(Sound(both, 5)[0]), kToneLoudness, 0.02), QString());
        // Where there are tracks for sound, the others are for pictures alone.
        const QByteArray gap = Item("Gap.1", Range(0, 10, 25));
        const Node split = Parse(Timeline(Track(clip) + "," + Track(gap + "," + clip, "Audio")));
        QCOMPARE(Deviation(Loudness(Sound(split, 5)[0]), 0, 1e-6), QString());
        QCOMPARE(Deviation(Loudness(Sound(split, 15)[0]), kToneLoudness, 0.02), QString());
        QCOMPARE(ReadFrameNumber(Frame(split, 15)), 15);
    }

    void urls_data()
    {
        QTest::addColumn<QByteArray>("url");
        const QByteArray base = QUrl::fromLocalFile(Path("media/")).toEncoded();
        QTest::newRow("relative") << QByteArray("media/a%20b%2520%23%C3%BC.mp4");
        QTest::newRow("absolute") << base + "a%20b%2520%23%C3%BC.mp4";
        QTest::newRow("of this computer")
            << QByteArray(base).replace("file://", "file://localhost") + "a%20b%2520%23%C3%BC.mp4";
        QTest::newRow("not encoded") << QByteArray("media/a b%20#ü.mp4");
    }

    void urls()
    {
        QFETCH(QByteArray, url);
        const Node project = Parse(Timeline(Track(Item("Clip.1", Range(3, 6, 25), File(url)))));
        QCOMPARE(Remarks(), QList<int>());
        QCOMPARE(ReadFrameNumber(Frame(project, 2)), 5);
    }

    void textsOfOthersAreKept()
    {
        const QByteArray more = File("clip.mp4") +
                                ",'name':'Take 3','metadata':{'lab':{'roll':[1,2]}},'markers':[{"
                                "'OTIO_SCHEMA':'Marker.2','color':'RED'}]";
        const Node project = Parse(
            Timeline(Track(Item("Clip.1", Range(3, 6), more) +
                           ",{'OTIO_SCHEMA':'Transition.1','transition_type':'SMPTE_Dissolve'}")));
        // Through the other format, and back.
        QVERIFY(Save(project, Path("between.mlt")));
        const QJsonObject timeline = Saved(Load(Path("between.mlt")));
        const QJsonArray items =
            timeline["tracks"].toObject()["children"].toArray()[0].toObject()["children"].toArray();
        QCOMPARE(timeline["name"].toString(), QString("t"));
        QCOMPARE(items.size(), 2);
        const QJsonObject clip = items[0].toObject();
        QCOMPARE(clip["name"].toString(), QString("Take 3"));
        QCOMPARE(clip["metadata"].toObject()["lab"].toObject()["roll"].toArray().size(), 2);
        QCOMPARE(clip["markers"].toArray()[0].toObject()["color"].toString(), QString("RED"));
        QCOMPARE(items[1].toObject()["transition_type"].toString(), QString("SMPTE_Dissolve"));
    }

    static QStringList MarkersOf(const Node& node)
    {
        const auto markers = node.query<INLEMarkers>();
        QStringList result;
        NLEMarkerRecord record = {};
        wchar_t name[20] = L"";
        for (int i = 0; markers->GetMarker(i, &record, name, 20) == S_OK; ++i)
            result << QString("%1+%2 %3 %4")
                          .arg(record.frame)
                          .arg(record.length)
                          .arg(record.color, 8, 16)
                          .arg(QString::fromWCharArray(name));
        return result;
    }
    static QByteArray Marker(const QByteArray& range, const QByteArray& more)
    {
        return "{'OTIO_SCHEMA':'Marker.2','marked_range':" + range + "," + more + "}";
    }

    void markersOfAnotherProgram()
    {
        // At double speed, of a file whose time begins at a second.
        const QByteArray onClip =
            Marker(Range(32, 6), "'name':'cut','color':'GREEN','comment':'!'");
        const QByteArray warp = "'effects':[{'OTIO_SCHEMA':'LinearTimeWarp.1','time_scalar':2}],";
        QByteArray track =
            Track(Item("Clip.1", Range(28, 10),
                       warp + File("clip.mp4", Range(24, 60)) + ",'markers':[" + onClip + "]"));
        track.chop(1);
        track += ",'markers':[" + Marker(Range(12, 0), "'name':'act 2','color':'?'") + "]}";
        const Node project = Parse(Timeline(track));
        QCOMPARE(Remarks(), QList<int>());
        QCOMPARE(MarkersOf(project), QStringList("12+0 ffff0000 act 2"));
        const Node clip = ClipAt(project, 0);
        QCOMPARE(MarkersOf(clip), QStringList("4+3 ff00ff00 cut"));

        QVERIFY(Save(project, Path("markers.otio")));
        QVERIFY(Contents(Path("markers.otio")).contains("\"comment\": \"!\""));
        const NLEMarkerRecord moved = {5, 3, 0x8000E000};
        QCOMPARE(clip.query<INLEMarkers>()->SetMarker(0, &moved, nullptr, nullptr), S_OK);
        QVERIFY(Save(project, Path("markers.otio")));
        const QByteArray text = Contents(Path("markers.otio"));
        QVERIFY(!text.contains("\"comment\": \"!\""));
        QCOMPARE(MarkersOf(ClipAt(Load(Path("markers.otio")), 0)), QStringList("5+3 8000e000 cut"));
        // The other program gives it another colour.
        const Node edited = Parse(QByteArray(text).replace("GREEN", "BLUE"));
        QCOMPARE(MarkersOf(ClipAt(edited, 0)), QStringList("5+3 ff0000ff cut"));
    }

    void placeOfAnotherProgramHolds()
    {
        const Node project = Project();
        const Node clip = Media(Path("clip.mp4"));
        clip.query<INLEAudioStreamProcess>()->SetVolume(0.5);
        Add(project, Trimmed(clip, 5, 24), 8);
        QVERIFY(Save(project, Path("edited.otio")));
        // One frame later, and the gap before it as well.
        QByteArray text = Contents(Path("edited.otio"));
        const Node loaded = Parse(
            text.replace("\"value\": 5", "\"value\": 6").replace("\"value\": 8", "\"value\": 9"));
        QCOMPARE(Clips(loaded), QStringList{"9: 6-25"});
        double volume = -1;
        ClipAt(loaded, 0).query<INLEAudioStreamProcess>()->GetVolume(&volume);
        QCOMPARE(volume, 0.5);
    }

    void brokenDocuments_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut short") << Timeline(Track(Item("Gap.1", Range(0, 8)))).chopped(3);
        QTest::newRow("a list") << QByteArray("[1, 2]");
        QTest::newRow("another kind of object") << QByteArray("{\"OTIO_SCHEMA\": \"Marker.2\"}");
        QTest::newRow("a collection of nothing")
            << Json("{'OTIO_SCHEMA':'SerializableCollection.1','children':[]}");
        QTest::newRow("nested without end") << QByteArray(100000, '[');
    }

    void brokenDocuments()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!Parse(text));
    }

    void hostileNumbers_data()
    {
        QTest::addColumn<QByteArray>("range");
        for (const double rate : {0.0, -24.0, 1e-300, 1e300}) {
            for (const double value : {-1e300, 1e300, 5.0})
                QTest::addRow("%g at %g", value, rate) << Range(value, value, rate);
        }
    }

    void hostileNumbers()
    {
        QFETCH(QByteArray, range);
        QVERIFY(Parse(Timeline(Track(Item("Clip.1", range) + "," + Item("Clip.1", range)))));
    }

    void deepStacks()
    {
        QByteArray stack = Item("Clip.1", Range(0, 9));
        for (int i = 0; i < 150; ++i)
            stack = Item("Stack.1", Range(0, 9), "'children':[" + Track(stack) + "]");
        QVERIFY(Parse(Timeline(Track(stack))));
        QCOMPARE(Remarks(), QList<int>{NLERemark_Structure});
    }
};

QTEST_MAIN(tst_DocumentOtio)
#include "tst_document_otio.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
// Documents of other programs, as the open engine reads them.
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETransform.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/DocumentFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

class tst_DocumentExchange : public QObject, private DocumentFixture
{
    Q_OBJECT

    /// A document of another editor, at 25 frames a second in 320 x 180.
    static QByteArray Mlt(const QByteArray& services)
    {
        return "<mlt producer=\"main_bin\"><profile width=\"320\" height=\"180\""
               " frame_rate_num=\"25\" frame_rate_den=\"1\"/>" +
               services + "</mlt>";
    }
    /// One producer of a colour, and one entry of it on a playlist.
    static QByteArray Clip(const QByteArray& inProducer, const QByteArray& inEntry = {})
    {
        return Mlt("<producer id='p' in='0' out='99'><property name='length'>100</property>"
                   "<property name='mlt_service'>color</property>"
                   "<property name='resource'>red</property>" +
                   inProducer +
                   "</producer><playlist id='t'><entry producer='p' in='10' out='59'>" + inEntry +
                   "</entry></playlist>");
    }

    /// Every clip: its level, position, in and out point, "-" behind a disabled one.
    static QStringList Clips(const Node& composite)
    {
        QStringList result;
        for (int i = 0; i < ClipCount(composite); ++i) {
            const Node clip = ClipAt(composite, i);
            int level = 0;
            int position = 0;
            bool isEnabled = false;
            clip->GetLevel(&level);
            clip->GetPosition(&position);
            clip->GetEnabled(&isEnabled);
            const NLERange range = RangeOf(clip);
            result << QString("%1: %2 %3-%4%5")
                          .arg(level)
                          .arg(position)
                          .arg(range.in)
                          .arg(range.out)
                          .arg(isEnabled ? "" : " -");
        }
        return result;
    }

public:
    tst_DocumentExchange() : DocumentFixture("parsed.mlt") {}

private slots:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = 60;
        clip.audioCodec = "aac";
        QCOMPARE(MakeTestClip(Path("clip.mp4"), clip), QString());
        QVERIFY(QDir(folder.path()).mkpath("media"));
        QVERIFY(QFile::copy(Path("clip.mp4"), Path("media/a b%20c.mp4")));
    }

    void structure_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QStringList>("clips");
        const QByteArray red = "<producer id='r' mlt_service='color' colour='red' length='60'/>";
        const QByteArray bin = "<playlist id='main_bin'><entry producer='r'/></playlist>";
        const QByteArray black = "<producer id='b' mlt_service='color' resource='0' length='900'/>"
                                 "<playlist id='background'><entry producer='b'/></playlist>";
        const auto row = [](const char* name, const QByteArray& document,
                            const QStringList& clips) {
            QTest::newRow(name) << Mlt(document) << clips;
        };
        row("the last service plays, not the store of clips",
            red + bin +
                "<playlist id='t'><blank length='5'/><entry producer='r' in='1' "
                "out='9'/></playlist>",
            {"0: 5 1-9"});
        row("the black lowest track is none",
            red + black +
                "<playlist id='v'><entry producer='r'/></playlist>"
                "<tractor><track producer='background'/><track producer='v'/></tractor>",
            {"1: 0 0-59"});
        row("inline producers and playlists",
            "<tractor><multitrack><track><playlist><blank length='3'/><entry out='6'><producer "
            "mlt_service='color' resource='red' length='9'/></entry></playlist></track><playlist>"
            "<producer mlt_service='color' resource='blue' length='4'/></playlist></multitrack>"
            "</tractor>",
            {"0: 3 0-6", "1: 0 0-3"});
        row("repeated, limited by its length, and backwards",
            red + "<playlist><entry producer='r' in='50' out='99' repeat='2'/>"
                  "<entry producer='r' in='9' out='5'/></playlist>",
            {"0: 0 50-59", "0: 10 50-59", "0: 20 5-9"});
        row("references lead back only",
            "<playlist id='t'><entry producer='r' out='9'/><entry producer='t' out='9'/>"
            "<entry producer='s' out='3'/></playlist>" +
                red + "<playlist><entry producer='r' out='1'/><entry producer='t'/></playlist>",
            {"0: 0 0-1"});
        row("a track of two playlists",
            red + "<playlist id='1'><entry producer='r' out='19'/></playlist>"
                  "<playlist id='2'><blank length='15'/><entry producer='r' out='29'/></playlist>"
                  "<tractor id='t'><track producer='1'/><track producer='2' hide='both'/></tractor>"
                  "<tractor id='s'><track producer='1'/><track producer='t'/></tractor>"
                  "<tractor><track producer='s'/></tractor>",
            {"0: 0 0-19", "1: 0 0-19", "1: 15 0-29 -"});
        row("a clip of an unknown kind keeps its place",
            "<playlist><producer mlt_service='noise' length='12'/>"
            "<producer mlt_service='color' resource='red' length='4'/></playlist>",
            {"0: 0 0-11", "0: 12 0-3"});
    }

    void structure()
    {
        QFETCH(QByteArray, document);
        QFETCH(QStringList, clips);
        const Node project = Parse(document);
        QVERIFY(project);
        QCOMPARE(Clips(project), clips);
    }

    void times_data()
    {
        QTest::addColumn<QByteArray>("rate");
        QTest::addColumn<QByteArray>("time");
        QTest::addColumn<int>("frame");
        const QByteArray pal = "frame_rate_num='25' frame_rate_den='1'";
        const QByteArray ntsc = "frame_rate_num='60000' frame_rate_den='1001'";
        QTest::newRow("frames") << pal << QByteArray("120") << 120;
        QTest::newRow("frames with a fraction") << pal << QByteArray("120.0") << 120;
        QTest::newRow("seconds and frames") << pal << QByteArray("00:00:01:10") << 35;
        QTest::newRow("drop frame") << pal << QByteArray("00:01:00;02") << 1502;
        QTest::newRow("milliseconds") << pal << QByteArray("00:00:01.400") << 35;
        QTest::newRow("a decimal comma") << pal << QByteArray("01:00:01,400") << 90035;
        QTest::newRow("more than 60 seconds") << ntsc << QByteArray("00:29:60.010") << 107892;
        QTest::newRow("parts one by one") << ntsc << QByteArray("00:12:41.491") << 45643;
        QTest::newRow("frames at a broken rate") << ntsc << QByteArray("00:30:00:01") << 107893;
    }

    void times()
    {
        QFETCH(QByteArray, rate);
        QFETCH(QByteArray, time);
        QFETCH(int, frame);
        const Node project = Parse(
            "<mlt><profile width='320' height='180' " + rate + "/><playlist><blank length='" +
            time + "'/><entry><producer mlt_service='color' length='1'/></entry></playlist></mlt>");
        QCOMPARE(Clips(project), QStringList{QString("0: %1 0-0").arg(frame)});
    }

    void speeds_data()
    {
        QTest::addColumn<QByteArray>("properties");
        QTest::addColumn<QByteArray>("entry");
        QTest::addColumn<int>("shown");
        QTest::addColumn<int>("speed");
        QTest::addColumn<QList<int>>("remarks");
        const auto row = [](const char* name, const QByteArray& properties, const QByteArray& entry,
                            int shown, int speed, const QList<int>& remarks) {
            QTest::newRow(name) << properties << entry << shown << speed << remarks;
        };
        const QByteArray warp = "mlt_service='timewarp' ";
        row("twice as fast", warp + "resource='2.0:clip.mp4'", "in='5' out='20'", 10, 200, {});
        row("by another property", warp + "resource='clip.mp4' warp_speed='0,5'", "in='8' out='20'",
            4, 50, {});
        row("in the resource alone", "resource='timewarp:2:clip.mp4'", "in='5' out='20'", 10, 200,
            {});
        row("backwards", warp + "resource='-1.5:clip.mp4' length='40'", "in='10' out='19'", 30, 150,
            {NLERemark_Reversed});
        row("faster than there is", warp + "resource='1000:clip.mp4' length='40'", "in='0' out='0'",
            0, 10000, {NLERemark_Speed});
        row("held", "mlt_service='hold' resource='clip.mp4' frame='33'", "in='2' out='9'", 33, 100,
            {});
    }

    void speeds()
    {
        QFETCH(QByteArray, properties);
        QFETCH(QByteArray, entry);
        QFETCH(int, shown);
        QFETCH(int, speed);
        QFETCH(QList<int>, remarks);
        const Node project = Parse(Mlt("<playlist><entry " + entry + "><producer " + properties +
                                       "/></entry></playlist>"));
        QVERIFY(project);
        QCOMPARE(ReadFrameNumber(Frame(project, 0)), shown);
        NLERational scale = {1, 1};
        BagOf(ClipAt(project, 0))->GetRational(NLEKey::Speed::kScale, &scale);
        QCOMPARE(int(scale.num * 100 / scale.den), speed == 10000 ? 100000 : speed);
        QCOMPARE(Remarks(), remarks);
    }

    void streams_data()
    {
        QTest::addColumn<QByteArray>("indexes");
        QTest::addColumn<QByteArray>("track");
        QTest::addColumn<QString>("plays"); // video stream, audio streams, NLERenderMode
        const auto row = [](const char* name, const QByteArray& indexes, const QString& plays,
                            const QByteArray& track = {}) {
            QTest::newRow(name) << indexes << track << plays;
        };
        row("by their indexes", "video_index='1' audio_index='3'", "1 (3) 0");
        row("by their places among others", "vstream='1' astream='1'", "1 (3) 0");
        row("the preferred ones", "video_index='0' audio_index='2'", "-1 () 0");
        row("none that the file has", "video_index='2' audio_index='9' astream='1'", "-1 () 0");
        row("all sounds", "audio_index='all'", "-1 (2,3) 0");
        row("no picture", "video_index='-1' audio_index='3'", "-1 (3) 2");
        row("no sound", "video_index='1' astream='-1'", "1 () 1");
        row("neither", "audio_index='-1'", "off", "hide='video'");
    }

    void streams()
    {
        QFETCH(QByteArray, indexes);
        QFETCH(QByteArray, track);
        QFETCH(QString, plays);
        if (!QFile::exists(Path("streams.mkv")))
            QCOMPARE(RunFfmpeg({"-i", Path("clip.mp4"), "-map", "0:v", "-map", "0:v", "-map", "0:a",
                                "-map", "0:a", "-c", "copy", Path("streams.mkv")}),
                     QString());
        const auto played = [](const Node& project) {
            const Node clip = ClipAt(project, 0);
            bool isEnabled = false;
            int video = -2;
            int mode = NLERender_All;
            wchar_t audio[20] = L"?";
            clip->GetEnabled(&isEnabled);
            BagOf(clip)->GetInt(NLEKey::Source::kVideoStream, &video);
            BagOf(clip)->GetString(NLEKey::Source::kAudioStreams, audio, 20);
            BagOf(clip)->GetInt(NLEKey::Render::kRender_Mode, &mode);
            const QString streams = QString("%1 (%2) %3").arg(video);
            return isEnabled ? streams.arg(QString::fromWCharArray(audio)).arg(mode) : "off";
        };
        const Node project = Parse(
            Mlt("<playlist id='t'><entry out='9'><producer resource='streams.mkv' " + indexes +
                "/></entry></playlist><tractor><track producer='t' " + track + "/></tractor>"));
        QCOMPARE(played(project), plays);
        QVERIFY(Save(project, Path("streams.mlt")));
        const QByteArray saved = Contents(Path("streams.mlt"));
        QCOMPARE(played(Parse(saved)), plays);
        // As another program chooses another stream.
        const QByteArray edited = QByteArray(saved).replace("audio_index\">3", "audio_index\">2");
        QCOMPARE(played(Parse(edited)), QString(plays).replace("(3)", "()"));
    }

    void files_data()
    {
        QTest::addColumn<QByteArray>("root");
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("beside the document") << QByteArray() << QByteArray("media/a b%20c.mp4");
        QTest::newRow("below a folder of its own")
            << QByteArray("media") << QByteArray("a b%20c.mp4");
        QTest::newRow("a folder that is no more")
            << QByteArray("/nowhere") << QByteArray("media/a b%20c.mp4");
    }

    void files()
    {
        QFETCH(QByteArray, root);
        QFETCH(QByteArray, name);
        const Node project = Parse("<mlt root='" + root +
                                   "'><playlist><entry out='9'><producer "
                                   "resource='" +
                                   name + "'/></entry></playlist></mlt>");
        QCOMPARE(Remarks(), QList<int>());
        QCOMPARE(ReadFrameNumber(Frame(project, 4)), 4);
    }

    void missingFileKeepsItsPlace()
    {
        const Node project = Parse(Mlt("<playlist><entry in='3' out='9'><producer length='20' "
                                       "resource='gone.mp4'/></entry></playlist>"));
        QCOMPARE(Clips(project), QStringList{"0: 0 3-9"});
        QCOMPARE(Remarks(), QList<int>{NLERemark_Missing});
    }

    void gains_data()
    {
        QTest::addColumn<QByteArray>("filter");
        QTest::addColumn<int>("frame");
        QTest::addColumn<double>("left");
        QTest::addColumn<double>("right");
        const auto row = [](const char* name, const QByteArray& filter, int frame, double left,
                            double right) {
            QTest::newRow(name) << filter << frame << left << right;
        };
        row("decibels", "<filter mlt_service='volume' level='-6.0206'/>", 5, 0.5, 0.5);
        row("a factor", "<filter mlt_service='volume' gain='0,25'/>", 5, 0.25, 0.25);
        row("a factor in decibels", "<filter mlt_service='volume' gain='-20dB'/>", 5, 0.1, 0.1);
        row("two of them",
            "<filter mlt_service='volume' gain='0.5'/>"
            "<filter mlt_service='volume' level='0=-6.0206'/>",
            5, 0.25, 0.25);
        row("turned off", "<filter mlt_service='volume' gain='0' disable='1'/>", 5, 1, 1);
        row("a fade in", "<filter mlt_service='volume' gain='0' end='1' in='10' out='29'/>", 10,
            0.525, 0.525);
        row("a fade out", "<filter mlt_service='volume' gain='1' end='0' in='30' out='49'/>", 30,
            0.475, 0.475);
        row("key frames", "<filter mlt_service='volume' level='00:00:00.400=0;:35=-20'/>", 12,
            std::pow(10, -0.48 - 0.02), std::pow(10, -0.48 - 0.02));
        row("key frames from a begin on",
            "<filter mlt_service='volume' in='20' out='40' level='0=0;10=-40'/>", 25, 0.01, 0.01);
        row("before a filter begins", "<filter mlt_service='volume' in='20' out='40' gain='0.1'/>",
            5, 1, 1);
        row("balance", "<filter mlt_service='panner' channel='-1' split='0.25'/>", 5, 1, 0.5);
        row("an older balance", "<filter mlt_service='panner' start='1'/>", 5, 0, 1);
    }

    void gains()
    {
        QFETCH(QByteArray, filter);
        QFETCH(int, frame);
        QFETCH(double, left);
        QFETCH(double, right);
        // From frame 10 to 49 of the file.
        const Node project = Parse(Mlt("<playlist><entry in='10' out='49'><producer length='60' "
                                       "resource='clip.mp4'>" +
                                       filter + "</producer></entry></playlist>"));
        QVERIFY(project);
        const Stereo sound = Sound(project, frame);
        QCOMPARE(Deviation(Loudness(sound[0]), left * kToneLoudness, 0.012), QString());
        QCOMPARE(Deviation(Loudness(sound[1]), right * kToneLoudness, 0.012), QString());
        QCOMPARE(Remarks(), QList<int>());
    }

    void looks_data()
    {
        QTest::addColumn<QByteArray>("filter");
        QTest::addColumn<int>("frame");
        QTest::addColumn<QPoint>("place");
        QTest::addColumn<int>("red");
        const auto row = [](const char* name, const QByteArray& filter, int frame, QPoint place,
                            int red) { QTest::newRow(name) << filter << frame << place << red; };
        const QByteArray fade = "<filter mlt_service='brightness' level='1' alpha='10=0;30=1'/>";
        row("an opacity", "<filter mlt_service='brightness' alpha='0.5'/>", 5, {160, 90}, 128);
        row("an opacity that grows", fade, 10, {160, 90}, 128);
        row("in a rectangle", "<filter mlt_service='qtblend' rect='80 45 160 90 1'/>", 3, {82, 90},
            255);
        row("beside the rectangle", "<filter mlt_service='qtblend' rect='80 45 160 90 1'/>", 3,
            {78, 90}, 0);
        row("a rectangle in percent",
            "<filter mlt_service='affine' transition.geometry='50%/0%:50%x50%:50'/>", 3, {300, 45},
            128);
        row("a rectangle that moves",
            "<filter mlt_service='affine' transition.rect='10=0 0 160 180;20=160 0 160 180' "
            "transition.distort='1'/>",
            5, {85, 90}, 255);
        row("left by the rectangle that moves",
            "<filter mlt_service='affine' transition.rect='10=0 0 160 180;20=160 0 160 180' "
            "transition.distort='1'/>",
            5, {75, 90}, 0);
    }

    void looks()
    {
        QFETCH(QByteArray, filter);
        QFETCH(int, frame);
        QFETCH(QPoint, place);
        QFETCH(int, red);
        const Node project = Parse(Clip(filter));
        QVERIFY(project);
        QCOMPARE(Deviation(qRed(Frame(project, frame).pixel(place)), red, 2), QString());
        QCOMPARE(Remarks(), QList<int>());
    }

    void dissolves()
    {
        // Two playlists of one track that overlap from frame 20 to 29 and from 50 to 59.
        const Node project = Parse(Mlt(
            "<producer id='r' mlt_service='color' resource='#ff0000' length='100'/>"
            "<producer id='g' mlt_service='color' resource='#0000ff' length='100'/>"
            "<playlist id='1'><entry producer='r' out='29'/><blank length='20'/>"
            "<entry producer='r' out='29'/></playlist>"
            "<playlist id='2'><blank length='20'/><entry producer='g' out='39'/></playlist>"
            "<tractor id='t'><track producer='1'/><track producer='2'/>"
            "<transition mlt_service='luma' a_track='0' b_track='1' in='20' out='29'/>"
            "<transition mlt_service='luma' a_track='0' b_track='1' in='50' out='59' reverse='1'/>"
            "</tractor><tractor><track producer='t'/><track producer='t'/></tractor>"));
        QVERIFY(project);
        const auto red = [&](int frame) { return qRed(Frame(project, frame).pixel(9, 9)); };
        QCOMPARE(red(19), 255);
        QCOMPARE(Deviation(red(22), 255 * 0.8, 2), QString());
        QCOMPARE(red(40), 0);
        QCOMPARE(red(60), 255);
        QCOMPARE(Remarks(), QList<int>());
    }

    void wipesOfOneTrack()
    {
        const Node project = Parse(Mlt(
            "<producer id='r' mlt_service='color' resource='red'/>"
            "<producer id='g' mlt_service='color' resource='blue'/>"
            "<playlist id='1'><entry producer='r' out='29'/></playlist>"
            "<playlist id='2'><blank length='20'/><entry producer='g' out='39'/></playlist>"
            "<tractor id='t'><track producer='1'/><track producer='2'/>"
            "<transition mlt_service='luma' resource='/lumas/HD/luma01.pgm' invert='1' "
            "softness='0.25' a_track='0' b_track='1' in='20' out='29'/>"
            "<transition mlt_service='mix' start='-1' a_track='0' b_track='1' in='20' "
            "out='29'/></tractor><tractor><track producer='t'/><track producer='t'/></tractor>"));
        QVERIFY(project);
        Node wipe;
        for (int index = 0; index < ClipCount(project); ++index) {
            if (ClipAt(project, index).query<INLETimelineTransition>())
                wipe = ClipAt(project, index);
        }
        QVERIFY(wipe);
        const auto valueOf = [&wipe](const wchar_t* name) {
            double value = -1;
            wipe.query<INLEParameters>()->GetNumber(name, &value);
            return value;
        };
        QCOMPARE(valueOf(L"direction"), 1.0);
        QCOMPARE(valueOf(L"softness"), 0.25);
        QCOMPARE(valueOf(L"sound"), 0.0);
        QCOMPARE(RangeOf(wipe).out, 9);
        const QImage picture = Frame(project, 25);
        QCOMPARE(picture.pixelColor(10, 90), QColor(Qt::red));
        QCOMPARE(picture.pixelColor(310, 90), QColor(Qt::blue));
        QCOMPARE(Remarks(), QList<int>());
    }

    void leftOut_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QList<int>>("remarks");
        QTest::newRow("an effect")
            << Clip("<filter mlt_service='sepia'/>") << QList<int>{NLERemark_Effect};
        QTest::newRow("an effect of an entry, once for each clip")
            << Clip({}, "<filter mlt_service='sepia'/><filter mlt_service='sepia'/>")
            << QList<int>{NLERemark_Effect};
        QTest::newRow("effects that are off, and meters")
            << Clip("<filter mlt_service='sepia' disable='1'/><filter mlt_service='audiolevel'/>")
            << QList<int>{};
        QTest::newRow("a fade from black")
            << Clip("<filter mlt_service='brightness' level='0=0;9=1'/>")
            << QList<int>{NLERemark_Effect};
        QTest::newRow("a picture in one part of a clip alone")
            << Clip("<filter mlt_service='qtblend' in='20' out='30' rect='0 0 9 9'/>")
            << QList<int>{NLERemark_Effect};
        const QByteArray tracks =
            "<playlist id='1'><producer mlt_service='color' length='9'/></playlist>"
            "<tractor><track producer='1'/><track producer='1'/>";
        QTest::newRow("a wipe")
            << Mlt(tracks +
                   "<transition mlt_service='luma' resource='w.pgm' b_track='1'/></tractor>")
            << QList<int>{NLERemark_Transition};
        QTest::newRow("layers as they are")
            << Mlt(tracks + "<transition mlt_service='mix' sum='1' b_track='1'/>"
                            "<transition mlt_service='frei0r.cairoblend' b_track='1'/></tractor>")
            << QList<int>{};
        QTest::newRow("an unknown kind of clip")
            << Mlt("<playlist><producer mlt_service='noise'/></playlist>")
            << QList<int>{NLERemark_Service};
        QTest::newRow("a name of nothing")
            << Mlt("<playlist><entry producer='x'/></playlist>") << QList<int>{NLERemark_Structure};
        QTest::newRow("a speed ramp")
            << Mlt("<playlist><chain resource='clip.mp4'><link mlt_service='timeremap'/></chain>"
                   "</playlist>")
            << QList<int>{NLERemark_Speed};
    }

    void leftOut()
    {
        QFETCH(QByteArray, document);
        QFETCH(QList<int>, remarks);
        QVERIFY(Parse(document));
        QCOMPARE(Remarks(), remarks);
    }

    void reportOfNothing()
    {
        const auto report = provider->CreateDocumentSerialize().query<INLEDocumentReport>();
        int count = -1;
        int code = 0;
        wchar_t text[4] = L"";
        QCOMPARE(report->GetRemarkCount(&count), S_OK);
        QCOMPARE(count, 0);
        QCOMPARE(report->GetRemark(0, &code, text, 4), E_INVALIDARG);
    }

    /// What another editor changes in a document that was saved here holds, the rest stays.
    void editedElsewhere_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<double>("volume");
        QTest::addColumn<double>("scale");
        const QByteArray gain = "<property name=\"gain\">0.5</property>";
        QTest::newRow("nothing") << QByteArray("<mlt") << QByteArray("<mlt title='x'") << 0.5
                                 << 0.3;
        QTest::newRow("another gain")
            << gain << QByteArray(gain).replace("0.5", "0.25") << 0.25 << 0.3;
        QTest::newRow("a filter turned off")
            << gain << gain + "<property name=\"disable\">1</property>" << 1.0 << 0.3;
        QTest::newRow("one more filter")
            << QByteArray("<filter>")
            << QByteArray("<filter mlt_service='volume' gain='0.5'/><filter>") << 0.25 << 0.3;
        QTest::newRow("another rectangle") << QByteArray("0=112.000 63.000 96.000 54.000")
                                           << QByteArray("0=0 0 160 90") << 0.5 << 0.5;
    }

    void editedElsewhere()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QFETCH(double, volume);
        QFETCH(double, scale);
        const Node project = Project();
        const Node clip = Media(Path("clip.mp4"));
        Add(project, clip);
        clip.query<INLEAudioStreamProcess>()->SetVolume(0.5);
        const NLESizeF size = {0.3, 0.3};
        clip.query<INLETransform>()->SetScale(&size);
        QVERIFY(Save(project, Path("edited.mlt")));
        QByteArray text = Contents(Path("edited.mlt"));
        const int place = text.indexOf(before);
        QVERIFY(place >= 0);
        const Node loaded = Parse(text.replace(place, before.size(), after));
        QVERIFY(loaded);
        double foundVolume = -1;
        NLESizeF foundScale = {};
        ClipAt(loaded, 0).query<INLEAudioStreamProcess>()->GetVolume(&foundVolume);
        ClipAt(loaded, 0).query<INLETransform>()->GetScale(&foundScale);
        QCOMPARE(foundVolume, volume);
        QCOMPARE(Deviation(foundScale.width, scale, 1e-6), QString());
        QCOMPARE(Remarks(), QList<int>());
    }
};

QTEST_MAIN(tst_DocumentExchange)
#include "tst_document_exchange.moc"

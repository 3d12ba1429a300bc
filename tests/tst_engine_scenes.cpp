// SPDX-License-Identifier: LGPL-2.1-or-later
// Scenes that the open engine finds in films whose cuts are known.
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/SceneFilm.h"

Q_DECLARE_METATYPE(NLERange)
Q_DECLARE_METATYPE(Node)
Q_DECLARE_METATYPE(SceneFilm)

namespace {

const SceneFilm::Shot kTest = {"testsrc2=@", 2};
const SceneFilm::Shot kBars = {"smptebars=@", 2};
const SceneFilm::Shot kFractal = {"mandelbrot=@", 2};
const SceneFilm::Shot kNoise = {"color=gray:@,noise=alls=60:allf=t", 2};
const SceneFilm::Shot kBlack = {"color=black:@", 2};
/// A picture that moves by 200 pixels a second.
const SceneFilm::Shot kPan = {
    "mandelbrot=size=1280x360:rate=25:start_scale=1,select=eq(n\\,0),loop=-1:1,"
    "setpts=N/25/TB,crop=320:180:x=n*8:y=90",
    4};

SceneFilm::Shot Dissolved(SceneFilm::Shot shot, double seconds)
{
    shot.dissolve = seconds;
    return shot;
}
SceneFilm Film(const QList<SceneFilm::Shot>& shots, const QString& filter = {})
{
    SceneFilm film;
    film.shots = shots;
    film.filter = filter;
    return film;
}

} // namespace

class tst_EngineScenes : public QObject, private EngineFixture
{
    Q_OBJECT

    static QList<int> ScenesOf(const NLEComPtr<INLESceneSegment>& segment)
    {
        QList<int> frames;
        int frame = -1;
        while (segment->Next(&frame) == S_OK)
            frames << frame;
        return frames;
    }
    QList<int> ScenesOf(const Node& node) const
    {
        const auto segment = provider->CreateSceneSegment();
        return segment->Open(node.get()) == S_OK ? ScenesOf(segment) : QList<int>{-1};
    }
    /// Scenes from 50 and 100 on.
    QString ThreeScenes() const
    {
        const QString path = Path("three scenes.mp4");
        return QFile::exists(path) || Film({kTest, kBars, kFractal}).Make(path).isEmpty()
                   ? path
                   : QString();
    }

private slots:
    void films_data()
    {
        QTest::addColumn<SceneFilm>("film");
        QTest::newRow("one scene") << Film({kTest});
        QTest::newRow("cuts") << Film({kTest, kBars, kFractal, kNoise, kTest});
        QTest::newRow("cuts of half a second")
            << Film({kTest, {"smptebars=@", 0.52}, {"mandelbrot=@", 0.52}, kTest});
        QTest::newRow("a short dissolve") << Film({kBars, Dissolved(kTest, 0.4)});
        QTest::newRow("a long dissolve")
            << Film({{"mandelbrot=@", 4}, Dissolved({"smptebars=@", 4}, 2)});
        QTest::newRow("a cut after a dissolve") << Film({kBars, Dissolved(kFractal, 1), kTest});
        QTest::newRow("out of black and into it")
            << Film({kBlack, Dissolved({"testsrc2=@", 4}, 1), Dissolved({"color=black:@", 2}, 1)});
        QTest::newRow("a flash") << Film({{"testsrc2=@", 4}},
                                         "drawbox=color=white:t=fill:enable=between(t\\,2\\,2.09)");
        QTest::newRow("another light")
            << Film({{"testsrc2=@", 4}}, "eq=brightness=0.3*clip(t-1\\,0\\,1):eval=frame");
        QTest::newRow("a pan") << Film({kPan});
        QTest::newRow("noise") << Film({kNoise});
    }

    void films()
    {
        QFETCH(SceneFilm, film);
        const QString path = Path("film.mp4");
        QCOMPARE(film.Make(path), QString());
        QList<SceneFilm::Scene> wanted = film.Scenes();
        // What comes out of black, or goes into it, stays the scene that it is.
        if (qstrcmp(QTest::currentDataTag(), "out of black and into it") == 0)
            wanted.clear();
        const QList<int> found = ScenesOf(Media(path));
        QStringList differences;
        for (int i = 0; i < std::max(found.size(), wanted.size()); ++i) {
            const bool isBoth = i < found.size() && i < wanted.size();
            if (!isBoth || std::abs(found[i] - wanted[i].frame) > wanted[i].tolerance)
                differences << QString("%1 instead of %2")
                                   .arg(found.value(i, -1))
                                   .arg(i < wanted.size() ? wanted[i].frame : -1);
        }
        QCOMPARE(differences.join("; "), QString());
    }

    void clipsCountAsTheyPlay_data()
    {
        QTest::addColumn<QList<int>>("frames");
        QTest::addColumn<int>("rate");
        QTest::addColumn<bool>("isFast");
        QTest::addColumn<NLERange>("range");
        QTest::newRow("all of it") << QList<int>{50, 100} << 25 << false << NLERange{0, 149};
        QTest::newRow("behind the first cut")
            << QList<int>{100} << 25 << false << NLERange{50, 149};
        QTest::newRow("a range beyond the material")
            << QList<int>{50, 100} << 25 << false << NLERange{-10, 200};
        QTest::newRow("no frames") << QList<int>() << 25 << false << NLERange{3, 2};
        QTest::newRow("at twice the rate")
            << QList<int>{100, 200} << 50 << false << NLERange{0, 299};
        QTest::newRow("at twice the speed") << QList<int>{25, 50} << 25 << true << NLERange{0, 74};
    }

    void clipsCountAsTheyPlay()
    {
        QFETCH(int, rate);
        QFETCH(bool, isFast);
        QFETCH(NLERange, range);
        const Node clip = Media(ThreeScenes());
        clip->SetRenderFrameRate({rate, 1});
        BagOf(clip)->SetRational(NLEKey::Speed::kScale, {2, 1});
        BagOf(clip)->SetInt(NLEKey::Speed::kEnabled, isFast ? 1 : 0);
        clip->SetRange(&range);
        QTEST(ScenesOf(clip), "frames");
    }

    void compositesAreLookedThrough()
    {
        const Node project = ProjectWith(Trimmed(Media(ThreeScenes()), 40, 59), 0);
        Add(project, Colour(Qt::green), 20);
        QCOMPARE(ScenesOf(project), QList<int>({10, 20}));
    }

    void oneSearchIsWatched()
    {
        struct Watch
        {
            int last = -1;
            int stopAt = 1000;
        } watch;
        const NLEProgressCallback note = [](int percent, void* data) {
            auto* watched = static_cast<Watch*>(data);
            watched->last = percent;
            return percent >= watched->stopAt ? 1 : 0;
        };
        const Node clip = Media(ThreeScenes());
        const auto segment = provider->CreateSceneSegment();
        int frame = 7;
        QCOMPARE(segment->Next(&frame), E_FAIL);
        QCOMPARE(segment->Open(clip.get()), S_OK);
        QCOMPARE(segment.query<INLESceneProgress>()->SetProgress(note, &watch), S_OK);
        QCOMPARE(segment->Next(&frame), S_OK);
        QCOMPARE(frame, 50);
        QVERIFY2(watch.last > 33 && watch.last < 50, qPrintable(QString::number(watch.last)));
        watch.stopAt = 55;
        QCOMPARE(segment->Next(&frame), S_FALSE);
        QCOMPARE(frame, -1);
        watch.stopAt = 1000;
        QCOMPARE(ScenesOf(segment), QList<int>{100});
        QCOMPARE(segment->Next(&frame), S_FALSE);
        QCOMPARE(segment->Open(clip.get()), S_OK);
        QCOMPARE(ScenesOf(segment), QList<int>({50, 100}));
    }

    void onePictureHasNoScenes_data()
    {
        QTest::addColumn<Node>("node");
        const Node frozen = Media(ThreeScenes());
        BagOf(frozen)->SetInt(NLEKey::Freeze::kFreeze_Enabled, 1);
        QTest::newRow("a colour") << Colour(Qt::red);
        QTest::newRow("an empty project") << Project();
        QTest::newRow("a frozen clip") << frozen;
        QTest::newRow("a file that is not there")
            << provider->CreateMediaTimeline(Path("none.mp4"), true);
    }

    void onePictureHasNoScenes()
    {
        QFETCH(Node, node);
        QCOMPARE(ScenesOf(node), QList<int>());
    }
};

QTEST_MAIN(tst_EngineScenes)
#include "tst_engine_scenes.moc"

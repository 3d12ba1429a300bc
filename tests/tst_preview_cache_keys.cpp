// SPDX-License-Identifier: LGPL-2.1-or-later
// Which frames of a timeline the open engine's preview cache renders anew after an edit.
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLETransform.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/PreviewCacheFixture.h"

#include <functional>

namespace {

using Edit = std::function<void(Timeline&)>;

/// A clip of each kind, one after the other, ten frames each.
struct Kinds
{
    Node project, media, colour, text, nested;
};
using Setting = std::function<void(Kinds&)>;

} // namespace

Q_DECLARE_METATYPE(Edit)
Q_DECLARE_METATYPE(Setting)

class tst_PreviewCacheKeys : public QObject, private PreviewCacheFixture
{
    Q_OBJECT

    Kinds MakeKinds() const
    {
        Kinds k{Project(), Trimmed(Media(mMedia), 0, 9), Colour(Qt::red, QSize(64, 64)),
                provider->CreateTipTextTimeline("Hamburg", "DejaVu Sans"),
                provider->CreateVirtualTimeline(0)};
        Add(k.nested, Trimmed(Colour(Qt::green, QSize(64, 64)), 0, 9));
        Add(k.project, k.media);
        Add(k.project, Trimmed(k.colour, 0, 9), 10);
        Add(k.project, Trimmed(k.text, 0, 9), 20);
        Add(k.project, k.nested, 30);
        const NLESizeF large = {2, 2};
        k.text.query<INLETransform>()->SetScale(&large);
        k.text.query<INLETransform>()->SetRotation(10);
        return k;
    }
    /// Puts another clip into the place of \a clip.
    static void Replace(const Kinds& kinds, const Node& clip, const Node& other)
    {
        int position = 0;
        NLESizeF scale = {1, 1};
        double angle = 0;
        clip->GetPosition(&position);
        clip.query<INLETransform>()->GetScale(&scale);
        clip.query<INLETransform>()->GetRotation(&angle);
        other.query<INLETransform>()->SetScale(&scale);
        other.query<INLETransform>()->SetRotation(angle);
        kinds.project.query<INLETimelineComposite>()->RemoveClip(clip.get());
        Add(kinds.project, Trimmed(other, 0, 9), position);
    }

    const QString m_tall = Path("tall.mp4");
    QString m_folder;

private slots:
    void initTestCase()
    {
        QCOMPARE(MakeMedia(mMedia), QString());
        QCOMPARE(MakeMedia(m_tall, {96, 160}), QString());
    }
    void init() { m_folder = Path(QTest::currentTestFunction()) + QTest::currentDataTag(); }

    void editsTouchWhatTheyShowIn_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<Frames>("needed");
        const auto row = [](const char* name, const Edit& edit, const Frames& needed) {
            QTest::newRow(name) << edit << needed;
        };
        row("no edit", [](Timeline&) {}, {});
        row("a louder clip", [](Timeline& t) { t.b.query<INLEAudioStreamProcess>()->SetVolume(2); },
            {});
        row("a clip switched off", [](Timeline& t) { t.above->SetEnabled(false); }, {{60, 110}});
        row("a clip turned", [](Timeline& t) { t.b.query<INLETransform>()->SetRotation(30); },
            {{60, 120}});
        const auto silence = [](Timeline& t) {
            BagOf(t.above)->SetInt(NLEKey::Render::kRender_Mode, NLERender_AudioOnly);
        };
        row("a clip of sound only", silence, {{60, 110}});
        row("a level hidden",
            [](Timeline& t) { LevelsOf(t.project)->SetFlags(1, NLELevel_Hidden); }, {{60, 110}});
        row("a level muted", [](Timeline& t) { LevelsOf(t.project)->SetFlags(1, NLELevel_Muted); },
            {});
        row("a level solo", [](Timeline& t) { LevelsOf(t.project)->SetFlags(0, NLELevel_Solo); },
            {{60, 110}});
        row("a clip more transparent",
            [](Timeline& t) { t.above.query<INLEBlendSetting>()->SetAlpha(99); }, {{60, 110}});
        row("a clip below the others", [](Timeline& t) { t.above->SetLevel(-1); }, {{60, 110}});
        row("a clip moved", [](Timeline& t) { t.above->SetPosition(75); }, {{60, 110}});
        row("a clip moved beyond another", [](Timeline& t) { t.above->SetPosition(95); },
            {{60, 120}});
        row("a clip cut short", [](Timeline& t) { Trimmed(t.b, 0, 54); }, {{110, 115}});
        row("other material of a file", [](Timeline& t) { Trimmed(t.above, 5, 24); }, {{60, 110}});
        const auto trimHead = [](Timeline& t) {
            Trimmed(t.a, 10, 59);
            t.a->SetPosition(10);
        };
        row("a clip that begins later", trimHead, {{10, 50}});
        const auto insert = [this](Timeline& t) {
            for (const Node& clip : {t.a, t.b, t.above, t.nested}) {
                int position = 0;
                clip->GetPosition(&position);
                clip->SetPosition(position + 7);
            }
            const Node first = Colour(Qt::yellow);
            Trimmed(first, 0, 6);
            Add(t.project, first);
        };
        row("a clip inserted before all", insert, {{0, 7}});
        row("a clip in a composite",
            [](Timeline& t) { t.inner.query<INLEBlendSetting>()->SetMode(1); }, {{140, 200}});
        const auto color = [](Timeline& t) {
            BagOf(t.project)->SetInt(NLEKey::Render::kRender_BackgroundColor, int(0xFF123456u));
        };
        row("another background", color, {{0, 120}, {140, 200}});
    }
    void editsTouchWhatTheyShowIn()
    {
        QFETCH(const Edit, edit);
        QFETCH(const Frames, needed);
        Timeline t = Make();
        Cache cache(t.project, m_folder);
        QCOMPARE(cache.Render(), NLECache_Finished);
        edit(t);
        QCOMPARE(cache.Needed(), needed);
        if (needed.isEmpty()) {
            QCOMPARE(cache.Start(), E_FAIL);
            QVERIFY(cache.Reports().empty());
        } else {
            QCOMPARE(cache.Render(), NLECache_Finished);
            const std::vector<Report> reports = cache.Reports();
            QCOMPARE(reports.back().cached - reports.front().cached, CountOf(needed));
        }
        QVERIFY(Likeness(t.project, cache.Stat().first) >= kAlike);
    }

    void undoneEditIsFoundAgain_data() { editsTouchWhatTheyShowIn_data(); }

    void undoneEditIsFoundAgain()
    {
        QFETCH(const Edit, edit);
        Timeline t = Make();
        Cache cache(t.project, m_folder);
        QCOMPARE(cache.Render(), NLECache_Finished);
        edit(t);
        cache.Render();
        const Timeline undone = Make(); // other objects of the same content
        QCOMPARE(Cache(undone.project, m_folder).Start(), E_FAIL);
    }

    void touchedFileIsRenderedAnew()
    {
        const Timeline t = Make();
        Cache cache(t.project, m_folder);
        QCOMPARE(cache.Render(), NLECache_Finished);
        QFile file(mMedia);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QDateTime yesterday = QDateTime::currentDateTime().addDays(-1);
        QVERIFY(file.setFileTime(yesterday, QFile::FileModificationTime));
        QCOMPARE(cache.Needed(), (Frames{{0, 120}}));
        QCOMPARE(cache.Render(), NLECache_Finished);
        QCOMPARE(cache.Reports().back().cached - cache.Reports().front().cached, 120L);
        QVERIFY(Likeness(t.project, cache.Stat().first) >= kAlike);
    }

    void everySettingCounts_data()
    {
        QTest::addColumn<Setting>("set");
        const auto row = [](const char* name, const Setting& set) { QTest::newRow(name) << set; };
        const auto setInt = [](const Node& node, const wchar_t* key, int value) {
            BagOf(node)->SetInt(key, value);
        };
        const auto setContext = [this](const Kinds& k, double scale, int smooth) {
            const auto bag = provider->CreateNLEProperties();
            bag->SetDouble(NLEKey::Context::kContext_PreviewScale, scale);
            bag->SetInt(NLEKey::Context::kContext_SmoothScaling, smooth);
            k.project.query<INLEBasin>()->TakeProperties(bag.get());
        };
        const auto play = [setInt](const Node& clip, NLERational speed) {
            BagOf(clip)->SetRational(NLEKey::Speed::kScale, speed);
            setInt(clip, NLEKey::Speed::kEnabled, 1);
            Trimmed(clip, 0, 9);
        };
        const auto hold = [setInt](const Node& clip, int frame) {
            setInt(clip, NLEKey::Freeze::kFreeze_Frame, frame);
            setInt(clip, NLEKey::Freeze::kFreeze_Enabled, 1);
        };
        const auto turn = [](const Node& clip, const NLEKeyFrameRecord& record) {
            int index = 0;
            clip.query<INLEKeyFrameList>()->AddKeyFrame(&record, &index);
            clip.query<INLEKeyFrameStatus>()->SetStatus(true);
        };
        const auto text = [this](const char* words, const char* family) {
            return provider->CreateTipTextTimeline(words, family);
        };
        const auto proxy = [this](const Node& clip) {
            const auto video = clip.query<INLEVideoStreamProcess>();
            video->SetProxyFile(m_tall.toStdWString().c_str());
            video->SetProxyEnabled(true);
        };
        static const NLEPointF aside = {0.2, 0.7};
        static const NLESizeF slight = {0.3, 0.6};
        const auto background = NLEKey::Render::kRender_BackgroundColor;
        row("file", [this](Kinds& k) { Replace(k, k.media, Media(m_tall)); });
        row("margin", [](Kinds& k) { k.colour->SetMarginMode(NLEMargin_Stretch); });
        row("speed", [play](Kinds& k) { play(k.media, {3, 1}); });
        row("freeze", [hold](Kinds& k) { hold(k.media, 30); });
        row("proxy", [proxy](Kinds& k) { proxy(k.media); });
        row("shape of pixels", [](Kinds& k) {
            BagOf(k.media)->SetRational(NLEKey::Source::kPixelAspect, {3, 1});
        });
        row("key frame angle", [turn](Kinds& k) { turn(k.media, {0, 30, 0, 0, 1, 1, 1, 1}); });
        row("key frame place", [turn](Kinds& k) { turn(k.media, {0, 0, .3, .2, 1, 1, 1, 1}); });
        row("key frame scale", [turn](Kinds& k) { turn(k.media, {0, 0, 0, 0, .5, .5, 1, 1}); });
        row("key frame opacity", [turn](Kinds& k) { turn(k.media, {0, 0, 0, 0, 1, 1, .3, 1}); });
        row("blend mode", [](Kinds& k) { k.colour.query<INLEBlendSetting>()->SetMode(1); });
        row("alpha", [](Kinds& k) { k.media.query<INLEBlendSetting>()->SetAlpha(90); });
        row("centre", [](Kinds& k) { k.text.query<INLETransform>()->SetCenter(&aside); });
        row("scale", [](Kinds& k) { k.media.query<INLETransform>()->SetScale(&slight); });
        row("rotation", [](Kinds& k) { k.media.query<INLETransform>()->SetRotation(45); });
        row("colour", [this](Kinds& k) { Replace(k, k.colour, Colour(Qt::blue, QSize(64, 64))); });
        row("size", [this](Kinds& k) { Replace(k, k.colour, Colour(Qt::red, QSize(32, 64))); });
        row("text", [text](Kinds& k) { Replace(k, k.text, text("Berlin", "DejaVu Sans")); });
        row("family", [text](Kinds& k) { Replace(k, k.text, text("Hamburg", "DejaVu Serif")); });
        row("background", [=](Kinds& k) { setInt(k.nested, background, int(0xFF804020u)); });
        row("project background",
            [=](Kinds& k) { setInt(k.project, background, int(0xFF123456u)); });
        row("preview scale", [=](Kinds& k) { setContext(k, 0.1, 1); });
        row("smoothing", [=](Kinds& k) { setContext(k, 1, 0); });
    }
    void everySettingCounts()
    {
        QFETCH(const Setting, set);
        Kinds kinds = MakeKinds();
        Cache cache(kinds.project, m_folder);
        QCOMPARE(cache.Render(), NLECache_Finished);
        const int frames[] = {8, 15, 25, 35};
        std::vector<QImage> before;
        for (const int frame : frames)
            before.push_back(Shown(kinds.project, frame, NLEOpen_Cached));
        set(kinds);
        QCOMPARE(cache.Render(), NLECache_Finished);
        double change = kEqual;
        double likeness = kEqual;
        for (std::size_t i = 0; i < before.size(); ++i) {
            const QImage rendered = Shown(kinds.project, frames[i], NLEOpen_Render);
            const QImage cached = Shown(kinds.project, frames[i], NLEOpen_Cached);
            likeness = std::min(likeness, Psnr(cached, rendered));
            change = std::min(change, Psnr(before[i], rendered));
        }
        QVERIFY(likeness >= kAlike);
        QVERIFY(change < 34); // else the row shows nothing
    }
};

QTEST_MAIN(tst_PreviewCacheKeys)
#include "tst_preview_cache_keys.moc"

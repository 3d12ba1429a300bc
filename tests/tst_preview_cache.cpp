// SPDX-License-Identifier: LGPL-2.1-or-later
// The open engine's preview cache, judged by its reports, its pictures and the files in its folder.
#include "EngineApi/INLEBackgroundCache.h"
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETransform.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"

#include <QGuiApplication>
#include <QProcess>
#include <QSemaphore>

#include <csignal>
#include <cstdlib>
#include <functional>
#include <mutex>

#include <pthread.h>
#include <sys/resource.h>

namespace {

constexpr NLESize kCacheSize = {160, 90};
constexpr NLERational kBest = {1, 1};
/// From the first to the one after the last.
using Frames = QVector<QPair<int, int>>;

struct Report
{
    int percent;
    long state;
    long cached;
    long total;
};

/// The cache of one timeline.
class Cache
{
public:
    Cache(const Node& node, const QString& folder, qint64 quota = 1000, int reserve = 0)
    {
        void* found = nullptr;
        if (node->GetInterface(INLEBackgroundCache::Iid, &found, 0, 0) == S_OK)
            engine.attach(static_cast<INLEBackgroundCache*>(found));
        Limit(folder, quota, reserve);
        engine.query<INLEBackgroundCacheQualitySet>()->SetQuality(kBest);
    }
    HRESULT Limit(const QString& folder, qint64 quota, int reserve = 0)
    {
        return engine->SetCacheFolder(folder.toStdWString().c_str(), quota, reserve);
    }
    HRESULT Start(const NLESize& size = kCacheSize)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_reports.clear();
        }
        return engine->Start(&size, Note, this);
    }
    /// The state with which a run ends; -1 when it does not.
    long End(int wanted = -1)
    {
        const auto hasEnded = [&] {
            const long state = Reports().empty() ? 0 : Reports().back().state;
            return wanted < 0 ? state != 0 : state == wanted;
        };
        return QTest::qWaitFor(hasEnded, 60000) ? Reports().back().state : -1;
    }
    long Render()
    {
        const HRESULT started = Start();
        return started == S_OK ? End() : started;
    }
    std::vector<Report> Reports()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_reports;
    }
    /// What is cached and what is needed.
    QPair<Frames, Frames> Stat()
    {
        QPair<Frames, Frames> result;
        const auto add = [](Frames& frames, int from, int to) {
            if (from != to && !frames.isEmpty() && frames.back().second == from)
                frames.back().second = to;
            else if (from != to)
                frames.append({from, to});
        };
        const auto stat = engine.query<INLEBackgroundCacheStat>();
        const long count = stat->GetCount();
        for (int index = 0; index < count; ++index) {
            NLERange range = {0, 0};
            long valid = 0;
            int cachedTo = 0;
            if (stat->GetStat(index, &range, &valid, &cachedTo) != S_OK || valid < 1 ||
                cachedTo < range.in || cachedTo > range.out + 1)
                return {};
            add(result.first, range.in, cachedTo);
            add(result.second, cachedTo, range.out + 1);
        }
        return result;
    }
    Frames Needed()
    {
        engine->Update();
        return Stat().second;
    }

private:
    static int Note(int percent, long state, long cached, long total, void* self)
    {
        auto* cache = static_cast<Cache*>(self);
        const std::lock_guard<std::mutex> lock(cache->m_mutex);
        cache->m_reports.push_back({percent, state, cached, total});
        return 0;
    }

    std::mutex m_mutex;
    std::vector<Report> m_reports;

public:
    NLEComPtr<INLEBackgroundCache> engine; ///< ends before what it reports to
};

long CountOf(const Frames& frames)
{
    long count = 0;
    for (const auto& [from, to] : frames)
        count += to - from;
    return count;
}

/// Peak signal to noise ratio over all four channels, at most 99 dB.
double Psnr(const QImage& a, const QImage& b)
{
    if (a.isNull() || a.size() != b.size())
        return -1;
    double sum = 0;
    for (qsizetype i = 0; i < a.sizeInBytes(); ++i) {
        const double error = double(a.constBits()[i]) - b.constBits()[i];
        sum += error * error;
    }
    return sum == 0 ? 99 : 10 * std::log10(255.0 * 255.0 * double(a.sizeInBytes()) / sum);
}

/// Two clips of a file, a picture above the second, a gap, and a composite of two colours.
struct Timeline
{
    Node project, a, b, above, nested, inner;
};
using Edit = std::function<void(Timeline&)>;

/// A clip of each kind, one after the other, ten frames each.
struct Kinds
{
    Node project, media, colour, text, nested;
};
using Setting = std::function<void(Kinds&)>;

/// What the process takes of the address space, in bytes.
qint64 AddressSpace()
{
    QFile pages("/proc/self/statm");
    return pages.open(QIODevice::ReadOnly)
               ? pages.readAll().split(' ').front().toLongLong() * sysconf(_SC_PAGESIZE)
               : 0;
}

} // namespace

Q_DECLARE_METATYPE(Edit)
Q_DECLARE_METATYPE(Setting)

class tst_PreviewCache : public QObject, private EngineFixture
{
    Q_OBJECT

    Timeline Make() const
    {
        Timeline t{Project(),
                   Media(m_media),
                   Media(m_media),
                   Colour(Qt::red, QSize(64, 64)),
                   provider->CreateVirtualTimeline(0),
                   Colour(Qt::green)};
        Trimmed(t.above, 0, 19);
        Trimmed(t.inner, 0, 29);
        t.b.query<INLEBlendSetting>()->SetAlpha(200);
        const Node first = Colour(Qt::blue);
        Trimmed(first, 0, 29);
        Add(t.nested, first);
        Add(t.nested, t.inner, 30);
        Add(t.project, t.a);
        Add(t.project, t.b, 60);
        Add(t.project, t.above, 70, 1);
        Add(t.project, t.nested, 140);
        return t;
    }
    /// Clips that all look different, so that each has to be rendered.
    Node LongProject(int clips = 60) const
    {
        Node project = Project();
        for (int i = 0; i < clips; ++i) {
            const Node clip = Media(m_media);
            clip.query<INLEBlendSetting>()->SetAlpha(255 - i);
            Add(project, clip, 60 * i);
        }
        return project;
    }
    Kinds MakeKinds() const
    {
        Kinds k{Project(), Trimmed(Media(m_media), 0, 9), Colour(Qt::red, QSize(64, 64)),
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
    QImage Shown(const Node& node, int frame, int flags) const
    {
        return Frame(node, frame, flags, QSize(kCacheSize.width, kCacheSize.height));
    }
    /// The worst likeness of cached pictures to rendered ones in some of \a frames.
    double Likeness(const Node& node, const Frames& frames) const
    {
        double worst = 99;
        for (const auto& [from, to] : frames) {
            for (int frame = from; frame < to; frame += 17)
                worst = std::min(worst, Psnr(Shown(node, frame, NLEOpen_Cached),
                                             Shown(node, frame, NLEOpen_Render)));
        }
        return worst;
    }
    static qint64 SizeOf(const QString& folder)
    {
        qint64 size = 0;
        for (const QFileInfo& file : QDir(folder).entryInfoList({"*.nlechunk"}))
            size += file.size();
        return size;
    }
    static QStringList Files(const QString& folder, const char* filter)
    {
        return QDir(folder).entryList({QString::fromLatin1(filter)}, QDir::Files | QDir::Hidden);
    }

    const QString m_media = Path("clip.mp4");
    const QString m_tall = Path("tall.mp4");
    QString m_folder;

private slots:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = 60;
        clip.extra = QStringList{"-colorspace", "bt709"}; // not what this size has by default
        QCOMPARE(MakeTestClip(m_media, clip), QString());
        clip.size = {96, 160};
        QCOMPARE(MakeTestClip(m_tall, clip), QString());
    }
    void init() { m_folder = Path(QTest::currentTestFunction()) + QTest::currentDataTag(); }

    void refusals()
    {
        const Timeline t = Make();
        Cache cache(t.project, m_folder);
        NLESize empty = {0, 90};
        QVERIFY(cache.engine.query<INLEBackgroundCacheStat>());
        QCOMPARE(cache.engine->Stop(), S_FALSE);
        QCOMPARE(cache.engine->Start(&empty, nullptr, nullptr), E_INVALIDARG);
        QCOMPARE(cache.Limit(QString(), 1), E_INVALIDARG);
        QCOMPARE(cache.engine.query<INLEBackgroundCacheQualitySet>()->SetQuality({2, 1}),
                 E_INVALIDARG);
        QCOMPARE(cache.Limit(m_media + "/below", 1), S_OK);
        QCOMPARE(cache.Start(), E_ACCESSDENIED);
        const Node silent = Project();
        QCOMPARE(Cache(silent, m_folder).Start(), E_FAIL);
        NLEComPtr<INLEBackgroundCache> none;
        void* out = nullptr;
        QCOMPARE(t.a->GetInterface(INLEBackgroundCache::Iid, &out, 0, 0), E_NOINTERFACE);
    }

    void rendersWhatShows()
    {
        const Timeline t = Make();
        Cache cache(t.project, m_folder);
        const Frames shown = {{0, 120}, {140, 200}};
        QCOMPARE(cache.Needed(), shown);
        QCOMPARE(cache.Render(), 5L);
        QCOMPARE(cache.Stat(), qMakePair(shown, Frames()));
        const std::vector<Report> reports = cache.Reports();
        QCOMPARE(reports.front().state, 0L);
        QCOMPARE(reports.front().cached, 0L);
        QCOMPARE(reports.back().percent, 100);
        QCOMPARE(reports.back().cached, 180L);
        for (size_t i = 1; i < reports.size(); ++i) {
            QVERIFY(reports[i].cached >= reports[i - 1].cached);
            QCOMPARE(reports[i].total, 180L);
        }
        QVERIFY(Likeness(t.project, shown) >= 40);
        // Nobody is left waiting for a render that ended by itself.
        QCOMPARE(cache.engine->Stop(), S_OK);
        QCOMPARE(cache.End(3), 3L);
        QCOMPARE(cache.Start(), E_FAIL);

        // At the lowest quality a picture from the cache can be told from a rendered one.
        cache.engine.query<INLEBackgroundCacheQualitySet>()->SetQuality({0, 1});
        QCOMPARE(cache.Needed(), shown);
        QCOMPARE(cache.Render(), 5L);
        QVERIFY(Likeness(t.project, shown) < 40);

        // Without a background the alpha is kept, and nothing is lost.
        Cache inner(t.nested, m_folder);
        t.nested->GetInterface(INLEBackgroundCache::Iid, nullptr, 0, 0);
        QCOMPARE(inner.Render(), 5L);
        QCOMPARE(Likeness(t.nested, {{0, 60}}), 99.0);
    }

    void editsTouchWhatTheyShowIn_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<Frames>("needed");
        const auto row = [](const char* name, const Edit& edit, const Frames& needed) {
            QTest::newRow(name) << edit << needed;
        };
        row("nothing", [](Timeline&) {}, {});
        row("sound", [](Timeline& t) { t.b.query<INLEAudioStreamProcess>()->SetVolume(2); }, {});
        row("off", [](Timeline& t) { t.above->SetEnabled(false); }, {{60, 110}});
        row("turn", [](Timeline& t) { t.b.query<INLETransform>()->SetRotation(30); }, {{60, 120}});
        const auto silence = [](Timeline& t) {
            BagOf(t.above)->SetInt(NLEKey::Render::kRender_Mode, NLERender_AudioOnly);
        };
        row("sound only", silence, {{60, 110}});
        row("blend", [](Timeline& t) { t.above.query<INLEBlendSetting>()->SetAlpha(99); },
            {{60, 110}});
        row("order", [](Timeline& t) { t.above->SetLevel(-1); }, {{60, 110}});
        row("move", [](Timeline& t) { t.above->SetPosition(75); }, {{60, 110}});
        row("move on", [](Timeline& t) { t.above->SetPosition(95); }, {{60, 120}});
        row("shorter", [](Timeline& t) { Trimmed(t.b, 0, 54); }, {{110, 115}});
        row("other material", [](Timeline& t) { Trimmed(t.above, 5, 24); }, {{60, 110}});
        const auto trimHead = [](Timeline& t) {
            Trimmed(t.a, 10, 59);
            t.a->SetPosition(10);
        };
        row("head", trimHead, {{10, 50}});
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
        row("inserted before all", insert, {{0, 7}});
        row("nested", [](Timeline& t) { t.inner.query<INLEBlendSetting>()->SetMode(1); },
            {{140, 200}});
        const auto color = [](Timeline& t) {
            BagOf(t.project)->SetInt(NLEKey::Render::kRender_BackgroundColor, int(0xFF123456u));
        };
        row("background", color, {{0, 120}, {140, 200}});
        const auto touch = [this](Timeline&) {
            QFile file(m_media);
            file.open(QIODevice::ReadWrite);
            file.setFileTime(QDateTime::currentDateTime().addDays(-1), QFile::FileModificationTime);
        };
        row("media file", touch, {{0, 120}});
    }
    void editsTouchWhatTheyShowIn()
    {
        QFETCH(const Edit, edit);
        QFETCH(const Frames, needed);
        Timeline t = Make();
        Cache cache(t.project, m_folder);
        QCOMPARE(cache.Render(), 5L);
        edit(t);
        QCOMPARE(cache.Needed(), needed);
        QCOMPARE(cache.Render(), needed.isEmpty() ? long(E_FAIL) : 5L);
        QVERIFY(!needed.isEmpty() || cache.Reports().empty());
        QVERIFY(needed.isEmpty() ||
                cache.Reports().back().cached - cache.Reports().front().cached == CountOf(needed));
        QVERIFY(Likeness(t.project, cache.Stat().first) >= 40);
        // What was before the edit, even as another object, is found again.
        const Timeline undone = Make();
        if (qstrcmp(QTest::currentDataTag(), "media file") != 0)
            QCOMPARE(Cache(undone.project, m_folder).Start(), E_FAIL);
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
        static const NLESizeF small = {0.3, 0.6};
        const auto background = NLEKey::Render::kRender_BackgroundColor;
        row("file", [this](Kinds& k) { Replace(k, k.media, Media(m_tall)); });
        row("margin", [](Kinds& k) { k.colour->SetMarginMode(NLEMargin_Stretch); });
        row("speed", [play](Kinds& k) { play(k.media, {3, 1}); });
        row("freeze", [hold](Kinds& k) { hold(k.media, 30); });
        row("proxy", [proxy](Kinds& k) { proxy(k.media); });
        row("key frame angle", [turn](Kinds& k) { turn(k.media, {0, 30, 0, 0, 1, 1, 1, 1}); });
        row("key frame place", [turn](Kinds& k) { turn(k.media, {0, 0, .3, .2, 1, 1, 1, 1}); });
        row("key frame scale", [turn](Kinds& k) { turn(k.media, {0, 0, 0, 0, .5, .5, 1, 1}); });
        row("key frame opacity", [turn](Kinds& k) { turn(k.media, {0, 0, 0, 0, 1, 1, .3, 1}); });
        row("blend mode", [](Kinds& k) { k.colour.query<INLEBlendSetting>()->SetMode(1); });
        row("alpha", [](Kinds& k) { k.media.query<INLEBlendSetting>()->SetAlpha(90); });
        row("centre", [](Kinds& k) { k.text.query<INLETransform>()->SetCenter(&aside); });
        row("scale", [](Kinds& k) { k.media.query<INLETransform>()->SetScale(&small); });
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
        QCOMPARE(cache.Render(), 5L);
        const int frames[] = {8, 15, 25, 35};
        std::vector<QImage> before;
        for (const int frame : frames)
            before.push_back(Shown(kinds.project, frame, NLEOpen_Cached));
        set(kinds);
        QCOMPARE(cache.Render(), 5L);
        double change = 99;
        double likeness = 99;
        for (std::size_t i = 0; i < before.size(); ++i) {
            const QImage rendered = Shown(kinds.project, frames[i], NLEOpen_Render);
            const QImage cached = Shown(kinds.project, frames[i], NLEOpen_Cached);
            likeness = std::min(likeness, Psnr(cached, rendered));
            change = std::min(change, Psnr(before[i], rendered));
        }
        QVERIFY(likeness >= 40);
        QVERIFY(change < 34); // else the row shows nothing
    }

    void mediaChangesWhileRendering()
    {
        // What was begun with one content of a file must not be found as that content.
        const Node project = Project();
        Add(project, Trimmed(Media(m_media), 0, 49));
        Cache cache(project, m_folder);
        QCOMPARE(cache.Start({1920, 1080}), S_OK);
        QFile file(m_media);
        QVERIFY(file.open(QIODevice::ReadWrite));
        file.setFileTime(QDateTime::currentDateTime().addDays(-2), QFile::FileModificationTime);
        QCOMPARE(cache.End(), 5L);
        QCOMPARE(cache.Reports().back().cached, 0L);
        QCOMPARE(Files(m_folder, "*.nlechunk*"), QStringList());
    }

    void endings_data()
    {
        QTest::addColumn<int>("quota");
        QTest::addColumn<int>("reserve");
        QTest::addColumn<int>("largestFile");
        QTest::addColumn<bool>("isFolderRemoved");
        QTest::addColumn<long>("state");
        QTest::newRow("low disk") << 1000 << INT_MAX << 0 << false << 1L;
        QTest::newRow("no quota") << 0 << 0 << 0 << false << 2L;
        QTest::newRow("quota") << 1 << 0 << 0 << false << 2L;
        QTest::newRow("stopped") << 1000 << 0 << 0 << false << 3L;
        QTest::newRow("no large files") << 1000 << 0 << 20000 << false << 4L;
        QTest::newRow("folder removed") << 1000 << 0 << 0 << true << 4L;
    }
    void endings()
    {
        QFETCH(const int, quota);
        QFETCH(const int, reserve);
        QFETCH(const int, largestFile);
        QFETCH(const bool, isFolderRemoved);
        QFETCH(const long, state);
        const Node project = LongProject();
        Cache cache(project, m_folder, quota, reserve);
        rlimit old = {};
        getrlimit(RLIMIT_FSIZE, &old);
        const rlimit tight = {rlim_t(largestFile), old.rlim_max};
        if (largestFile > 0)
            setrlimit(RLIMIT_FSIZE, &tight);
        QCOMPARE(cache.Start(), S_OK);
        if (state == 3)
            QCOMPARE(cache.engine->Stop(), S_OK);
        if (isFolderRemoved) {
            QTRY_VERIFY(!Files(m_folder, "*.nlechunk").isEmpty());
            // A chunk that comes in between keeps the folder.
            QTRY_VERIFY(QDir(m_folder).removeRecursively() || !QFileInfo::exists(m_folder));
        }
        const long ended = cache.End();
        setrlimit(RLIMIT_FSIZE, &old);
        QCOMPARE(ended, state);
        QVERIFY(cache.Reports().back().percent < 100);

        // What is there is whole and counts; the rest can be rendered later.
        cache.Limit(m_folder, 1000);
        const Frames needed = cache.Needed();
        const QPair<Frames, Frames> stat = cache.Stat();
        QCOMPARE(CountOf(stat.first) + CountOf(needed), 3600L);
        QVERIFY(quota > 1 || SizeOf(m_folder) <= quota << 20);
        QVERIFY(Likeness(project, stat.first.mid(0, 2)) >= 40);
        QCOMPARE(cache.Render(), 5L);
        QCOMPARE(Files(m_folder, "*chunk*").size(), 60 * 2 + 1);
        QVERIFY(Likeness(project, {{0, 300}}) >= 40);
    }

    void leastRecentlyUsedGoFirst()
    {
        // Room for what the second needs, and for less than the first has.
        const Node first = LongProject(40);
        const Node second = Project();
        Add(second, Colour(Qt::red));
        Cache cache(first, m_folder);
        QCOMPARE(cache.Render(), 5L);
        const qint64 size = SizeOf(m_folder);
        QVERIFY(size > 2 << 20);
        QTest::qWait(5); // the next use is later than those before
        QVERIFY(!Shown(first, 0, NLEOpen_Cached).isNull());
        QVERIFY(!Shown(first, 1000, NLEOpen_Cached).isNull());
        Cache other(second, m_folder, size >> 20);
        QCOMPARE(other.Render(), 5L);
        const Frames cached = (cache.Needed(), cache.Stat().first);
        QVERIFY(CountOf(cached) > 0 && CountOf(cached) < 2400);
        const auto has = [&](int frame) {
            return std::any_of(cached.begin(), cached.end(), [frame](const auto& part) {
                return part.first <= frame && frame < part.second;
            });
        };
        QVERIFY(has(0) && has(1000));
    }

    void deletesItsOwnFilesOnly()
    {
        QDir().mkpath(m_folder);
        for (const char* name : {"notes.txt", "short.nlechunk", "x.nlechunk.abcdef"})
            QVERIFY(QFile::copy(m_media, m_folder + '/' + name));
        const Timeline t = Make();
        const Node other = LongProject(1);
        Cache cache(t.project, m_folder);
        Cache otherCache(other, m_folder);
        QCOMPARE(cache.Render(), 5L);
        otherCache.engine.query<INLEBackgroundCacheQualitySet>()->SetQuality({1, 2});
        QCOMPARE(otherCache.Render(), 5L);
        QCOMPARE(cache.engine->DeleteCache(false), S_OK);
        QCOMPARE(cache.Needed(), (Frames{{0, 120}, {140, 200}}));
        QCOMPARE(otherCache.Needed(), Frames());
        QCOMPARE(otherCache.engine->DeleteCache(true), S_OK);
        QCOMPARE(otherCache.Needed(), (Frames{{0, 60}}));
        QCOMPARE(Files(m_folder, "*").filter(QRegularExpression("[^k]$")).size(), 2);
        QCOMPARE(Files(m_folder, "*.nlechunk"), QStringList("short.nlechunk"));
        // A folder that was made for the cache goes with it.
        cache.Limit(m_folder + "/made", 1000);
        QCOMPARE(cache.Render(), 5L);
        cache.engine->DeleteCache(true);
        QVERIFY(!QFileInfo::exists(m_folder + "/made"));
    }

    void deletesEarlierVersions()
    {
        const Node project = LongProject(2);
        Cache cache(project, m_folder);
        QCOMPARE(cache.Render(), 5L);
        ClipAt(project, 0).query<INLEBlendSetting>()->SetAlpha(99);
        QCOMPARE(cache.Render(), 5L);
        QCOMPARE(Files(m_folder, "*.nlechunk").size(), 6);
        QCOMPARE(cache.engine->DeleteCache(false), S_OK);
        QCOMPARE(Files(m_folder, "*.nlechunk"), QStringList());
        // Nor need a timeline have been analysed, or be as it was when it was loaded.
        QCOMPARE(cache.Start({960, 540}), S_OK);
        QCOMPARE(cache.End(), 5L);
        const Node same = LongProject(2);
        ClipAt(same, 0).query<INLEBlendSetting>()->SetAlpha(99);
        Cache later(same, m_folder);
        QCOMPARE(later.Start({960, 540}), E_FAIL);
        const Node original = LongProject(2);
        Cache other(original, m_folder);
        QCOMPARE(other.Render(), 5L);
        const Node loaded = LongProject(2);
        Cache fresh(loaded, m_folder);
        QCOMPARE(fresh.engine->DeleteCache(false), S_OK);
        QCOMPARE(other.Needed(), (Frames{{0, 120}}));
        QCOMPARE(later.Needed(), Frames());
        ClipAt(same, 1)->SetEnabled(false);
        QCOMPARE(later.engine->DeleteCache(false), S_OK);
        QCOMPARE(Files(m_folder, "*.nlechunk"), QStringList());
    }

    void emptyFolderGoes()
    {
        // Whoever has made it, as it was empty.
        QVERIFY(QDir().mkpath(m_folder));
        Node project = LongProject(1);
        Cache(project, m_folder).Render();
        QCOMPARE(Cache(project, m_folder).engine->DeleteCache(true), S_OK);
        QVERIFY(!QFileInfo::exists(m_folder));
        project.reset();
        QVERIFY(QDir().mkpath(m_folder));
        const Node silent = Project();
        QCOMPARE(Cache(silent, m_folder).Render(), long(E_FAIL));
        Cache(silent, m_folder + "/other").Stat(); // lets go of the folder
        QVERIFY(!QFileInfo::exists(m_folder));
    }

    void filesRemovedByOthers()
    {
        const Node project = LongProject(2);
        Cache cache(project, m_folder);
        QCOMPARE(cache.Render(), 5L);
        QCOMPARE(cache.Needed(), Frames());
        const QStringList names = Files(m_folder, "*.nlechunk");
        QVERIFY(QFile::remove(m_folder + '/' + names[0]));
        const long needed = CountOf(cache.Needed());
        QVERIFY(needed > 0 && needed < 120);
        QCOMPARE(cache.Render(), 5L);
        QCOMPARE(cache.Needed(), Frames());
    }

    void damageIsNeverShown_data()
    {
        QTest::addColumn<int>("place"); // of the byte, in percent of the file; 100 cuts the file
        QTest::newRow("head") << 0;
        QTest::newRow("pictures") << 60;
        QTest::newRow("cut") << 100;
    }
    void damageIsNeverShown()
    {
        QFETCH(const int, place);
        const Node project = LongProject(1);
        Cache cache(project, m_folder);
        QCOMPARE(cache.Render(), 5L);
        for (const QFileInfo& info : QDir(m_folder).entryInfoList({"*.nlechunk"})) {
            QFile file(info.filePath());
            QVERIFY(file.open(QIODevice::ReadWrite));
            const qint64 offset = file.size() * place / 100;
            if (place == 100) {
                file.resize(file.size() - 1);
                continue;
            }
            file.seek(offset);
            const QByteArray byte = file.read(1);
            file.seek(offset);
            file.write(QByteArray(1, char(byte[0] ^ 0x55)));
        }
        double worst = 99;
        for (int frame = 0; frame < 60; ++frame)
            worst = std::min(worst, Psnr(Shown(project, frame, NLEOpen_Cached),
                                         Shown(project, frame, NLEOpen_Render)));
        QVERIFY(worst >= 40);
        QCOMPARE(cache.Needed(), (Frames{{0, 60}}));
    }

    void killedProcess()
    {
        const QString project = Path("killed.mlt");
        QVERIFY(Save(LongProject(), project));
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {"--render", project, m_folder});
        QVERIFY(process.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(Files(m_folder, "*.nlechunk").size() > 4, 60000);
        process.kill();
        QVERIFY(process.waitForFinished());
        const QStringList whole = Files(m_folder, "*.nlechunk");
        QVERIFY(QFile::copy(m_folder + '/' + whole[0], m_folder + '/' + whole[0] + ".Ab12cd"));

        const Node loaded = Load(project);
        Cache cache(loaded, m_folder);
        const long needed = CountOf(cache.Needed());
        QVERIFY(needed > 0 && needed < 3600);
        QCOMPARE(Files(m_folder, "*.nlechunk*"), whole);
        QVERIFY(Likeness(loaded, cache.Stat().first) >= 40);
        QCOMPARE(cache.Render(), 5L);
        QCOMPARE(cache.Reports().front().total - cache.Reports().front().cached, needed);
        QCOMPARE(Files(m_folder, "*.nlechunk*").size(), 120);
    }

    void twoProcesses()
    {
        const QString document = Path("shared.mlt");
        QVERIFY(Save(LongProject(), document));
        const Node project = Project();
        for (int i = 0; i < 60; ++i) {
            const Node clip = Media(m_media);
            clip.query<INLEBlendSetting>()->SetAlpha(190 - i);
            Add(project, clip, 60 * i);
        }
        const auto startOther = [&](QProcess& other, const char* quota) {
            other.start(QCoreApplication::applicationFilePath(),
                        {"--render", document, m_folder, quota});
            return other.waitForStarted() &&
                   QTest::qWaitFor([&] { return Files(m_folder, "*.nlechunk").size() > 2; }, 60000);
        };
        Cache cache(project, m_folder, 1);
        QProcess other;
        QVERIFY(startOther(other, "1"));
        // Neither makes room at the other's expense.
        QCOMPARE(cache.Render(), 2L);
        QTRY_COMPARE_WITH_TIMEOUT(other.state(), QProcess::NotRunning, 60000);
        QCOMPARE(other.exitCode(), 2);
        QVERIFY(SizeOf(m_folder) <= 1 << 20);

        // What another process is writing stays.
        QCOMPARE(cache.engine->DeleteCache(true), S_OK);
        QVERIFY(startOther(other, "1000"));
        const QString writing = m_folder + '/' + Files(m_folder, "*.nlechunk").front() + ".Ab12cd";
        QVERIFY(QFile::copy(m_media, writing));
        QCOMPARE(cache.engine->DeleteCache(true), S_OK);
        QVERIFY(QFile::exists(writing));
        other.kill();
        QVERIFY(other.waitForFinished());
        QCOMPARE(cache.engine->DeleteCache(true), S_OK);
    }

    void twoWhoStart()
    {
        const Node project = LongProject();
        Cache first(project, m_folder);
        Cache second(project, m_folder);
        QCOMPARE(first.Start(), S_OK);
        QCOMPARE(second.Start(), S_FALSE);
        QTRY_VERIFY(!second.Reports().empty());
        QCOMPARE(second.engine->Stop(), S_OK);
        QCOMPARE(first.End(), 3L);
        QCOMPARE(second.End(), 3L);
        // Who has not asked for the next run is not told of it.
        QCOMPARE(second.Start(), S_OK);
        QCOMPARE(second.engine->Stop(), S_OK);
        QCOMPARE(second.End(), 3L);
        const std::vector<Report> reports = first.Reports();
        QCOMPARE(int(std::count_if(reports.begin(), reports.end(),
                                   [](const Report& report) { return report.state == 3; })),
                 1);
    }

    void fewThreads_data()
    {
        QTest::addColumn<int>("threads");
        QTest::addColumn<long>("started");
        QTest::newRow("none") << 0 << long(E_OUTOFMEMORY);
        QTest::newRow("one for reports") << 1 << long(E_OUTOFMEMORY);
        QTest::newRow("one to render") << 2 << long(S_OK);
    }
    void fewThreads()
    {
        QFETCH(const int, threads);
        QFETCH(const long, started);
        const Node project = LongProject(2);
        Cache cache(project, m_folder);
        rlimit old = {};
        getrlimit(RLIMIT_AS, &old);
        // Stacks so large that the address space has room for that many.
        constexpr qint64 stack = qint64(8) << 30;
        pthread_attr_t usual;
        pthread_attr_t large;
        pthread_getattr_default_np(&usual);
        pthread_getattr_default_np(&large);
        pthread_attr_setstacksize(&large, stack);
        pthread_setattr_default_np(&large);
        const rlimit tight = {rlim_t(AddressSpace() + stack * threads + stack / 2), old.rlim_max};
        setrlimit(RLIMIT_AS, &tight);
        const long result = cache.Start();
        const long end = result == S_OK ? cache.End() : 0;
        const QImage shown = Shown(project, 3, NLEOpen_Render);
        setrlimit(RLIMIT_AS, &old);
        pthread_setattr_default_np(&usual);
        QCOMPARE(result, started);
        QCOMPARE(end, result == S_OK ? 5L : 0L);
        QCOMPARE(cache.Reports().empty(), result != S_OK);
        QVERIFY(Psnr(shown, Shown(project, 3, NLEOpen_Render)) >= 40);
    }

    void releasedByItsOwnCall()
    {
        // The last reference goes within a report, and within the end of an analysis.
        struct Last
        {
            NLEComPtr<INLEBackgroundCache> engine;
            QSemaphore isLast;
            QSemaphore isReleased;

            int Release()
            {
                isLast.acquire();
                engine.reset();
                isReleased.release();
                return 0;
            }
        };
        const auto onReport = [](int, long, long, long, void* last) {
            return static_cast<Last*>(last)->Release();
        };
        const auto onUpdate = [](void*, long, long, long, long, void* last) {
            return static_cast<Last*>(last)->Release();
        };
        for (const bool isReport : {true, false}) {
            Node project = LongProject(1);
            Last last;
            last.engine = Cache(project, m_folder).engine;
            const auto update = [&] { return last.engine.query<INLEBackgroundCacheAsyncUpdate>(); };
            QCOMPARE(isReport ? last.engine->Start(&kCacheSize, onReport, &last)
                              : update()->SetUpdateCallback(onUpdate, &last),
                     S_OK);
            QTest::qWait(20); // the call is under way, and not dropped with the timeline
            project.reset();
            last.isLast.release();
            QVERIFY(last.isReleased.tryAcquire(1, 60000));
        }
    }

    void releasedWhileRendering()
    {
        Node project = LongProject();
        {
            Cache cache(project, m_folder);
            QCOMPARE(cache.Start(), S_OK);
            QCOMPARE(cache.Start(), S_FALSE);
            QTRY_VERIFY(!Files(m_folder, "*.nlechunk").isEmpty());
            project.reset();
            QCOMPARE(cache.Start(), E_FAIL);
            QCOMPARE(cache.engine->Update(), E_FAIL);
        }
        QCOMPARE(Files(m_folder, "*.lock"), QStringList());
    }

    void analysesInTheBackground()
    {
        const Timeline t = Make();
        Cache cache(t.project, m_folder);
        const auto update = cache.engine.query<INLEBackgroundCacheAsyncUpdate>();
        std::atomic<int> calls{0};
        const auto note = [](void*, long, long, long, long count, void* counter) {
            *static_cast<std::atomic<int>*>(counter) += int(count);
            return 0;
        };
        QCOMPARE(update->SetUpdateCallback(note, &calls), S_OK);
        QTRY_COMPARE(calls.load(), 180);
        QCOMPARE(cache.Stat().second, (Frames{{0, 120}, {140, 200}}));
        QCOMPARE(update->SetUpdateCallback(nullptr, nullptr), S_OK);
        // Another thread does not read what is being edited: it sees the last analysis.
        t.b->SetEnabled(false);
        std::thread([&] { cache.engine->Update(); }).join();
        QCOMPARE(CountOf(cache.Stat().second), 180L);
        QCOMPARE(CountOf(cache.Needed()), 140L);
    }

    /// What the other process does of killedProcess and twoProcesses.
    static int RenderUntilKilled(const QString& document, const QString& folder, int quota)
    {
        const tst_PreviewCache engine;
        const Node project = engine.Load(document);
        Cache cache(project, folder, quota);
        cache.Start();
        return int(cache.End());
    }
    friend int main(int argc, char** argv);
};

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv); // text is drawn
    std::signal(SIGXFSZ, SIG_IGN);
    const QStringList arguments = QCoreApplication::arguments();
    // At once: the sanitizer's search for leaks, which the first process makes as well, now and
    // then fails over threads that have just been joined.
    if (arguments.value(1) == "--render")
        std::_Exit(tst_PreviewCache::RenderUntilKilled(arguments.value(2), arguments.value(3),
                                                       arguments.value(4, "1000").toInt()));
    tst_PreviewCache test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_preview_cache.moc"

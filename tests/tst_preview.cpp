// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CommonLib.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedComposite.h"
#include "tests/support/ScriptedSession.h"

#include <QtTest>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

using namespace Scripted;
using Helper = FPreViewRenderHelper;
using Ranges = QList<QPair<int, int>>;
using Operation = std::function<void(Helper*)>;

namespace {

/// A preview cache whose callbacks the test calls.
struct Cache : Object<INLEBackgroundCache, INLEBackgroundCacheStat, INLEBackgroundCacheAsyncUpdate,
                      INLEBackgroundCacheQualitySet>
{
    using Object::Object;

    QVector<std::tuple<NLERange, long, int>> segments; ///< with validity, and how far cached
    NLERenderCallback render = nullptr;
    NLEUpdateCallback update = nullptr;
    void* userData = nullptr;
    std::function<void()> onStop = [] {};
    int unreadable = -1; ///< the segment whose GetStat fails

    HRESULT SetCacheFolder(const wchar_t* folder, std::int64_t quota, int reserve) override
    {
        return Call("SetCacheFolder", folder, int(quota), reserve);
    }
    HRESULT Start(const NLESize* resolution, NLERenderCallback callback, void* data) override
    {
        render = callback;
        userData = data;
        return Call("Start", *resolution);
    }
    HRESULT Stop() override
    {
        onStop();
        return Call("Stop");
    }
    HRESULT DeleteCache(bool all) override { return Call("DeleteCache", all); }
    HRESULT Update() override { return Call("Update"); }
    long GetCount() override { return segments.size(); }
    HRESULT GetStat(int index, NLERange* range, long* valid, int* cachedTo) override
    {
        const HRESULT status = Call("GetStat", index, *range);
        if (index == unreadable)
            return E_FAIL;
        std::tie(*range, *valid, *cachedTo) = segments[index];
        return status;
    }
    HRESULT SetUpdateCallback(NLEUpdateCallback callback, void* data) override
    {
        update = callback;
        userData = data;
        return Call("SetUpdateCallback", bool(callback));
    }
    HRESULT SetQuality(NLERational quality) override { return Call("SetQuality", quality); }

    /// What the render thread does.
    void Report(int progress, long state, long cached = 1, long total = 8)
    {
        std::thread([=] { render(progress, state, cached, total, userData); }).join();
    }
};

/// Calls each update callback back from a thread of its own, after a while or at once.
struct BusyCache : Cache
{
    static constexpr int kCalls = 20;

    BusyCache() : Cache("busy") {}
    ~BusyCache() override
    {
        for (std::thread& thread : m_threads)
            thread.join();
    }

    HRESULT SetUpdateCallback(NLEUpdateCallback callback, void* data) override
    {
        m_threads.emplace_back([this, callback, data] {
            for (int call = 0; call < kCalls; ++call)
                answered += callback(nullptr, 0, 0, 0, 0, data);
        });
        return S_OK;
    }

    std::atomic<int> answered{0};

private:
    std::vector<std::thread> m_threads;
};

const QString kStopLog = "StopRender %1|FPreViewRenderHelper StopRender exec start|"
                         "StopRender %2|FPreViewRenderHelper StopRender exec end";

} // namespace

Q_DECLARE_METATYPE(Operation)
Q_DECLARE_METATYPE(QList<long>)

class tst_Preview : public QObject
{
    Q_OBJECT

private:
    Script& m_script = Script::Get();
    NLEComPtr<Node> m_node;
    NLEComPtr<Composite> m_composite;
    NLEComPtr<Cache> m_cache;
    std::unique_ptr<NLETimeline> m_timeline;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LogCapture> m_log;

    Helper* Make()
    {
        m_timeline = std::make_unique<NLETimeline>(m_node, ExactType_Project, nullptr);
        return m_timeline->GetPreViewRenderHelper();
    }
    /// How a slot ends the helper.
    enum Way
    {
        Later,
        WithItsWrapper,
        AtOnce
    };

    /// A helper that renders into the folder.
    Helper* MakeCaching()
    {
        Helper* helper = Make();
        helper->SetCacheDirectory(m_folder->path());
        helper->StartRender();
        return helper;
    }
    /// One that has finished since when segments are cached in part.
    Helper* MakeFinished()
    {
        Helper* helper = MakeCaching();
        helper->SetCachingState(Helper::Finished);
        m_cache->segments = {{NLERange{0, 9}, 1, 10},
                             {NLERange{10, 19}, 2, 14},
                             {NLERange{20, 29}, 0, 20},
                             {NLERange{30, 39}, 1, 30}};
        return helper;
    }
    static QTimer* Countdown(Helper* helper) { return helper->findChild<QTimer*>(); }
    QStringList Calls(const char* operation)
    {
        return m_script.TakeCalls().filter(QString("cache.%1(").arg(operation));
    }
    /// The messages since the last time.
    QStringList Log()
    {
        QStringList lines = m_log->Take();
        m_log.reset(); // which ends the log of the process
        m_log = std::make_unique<LogCapture>();
        static const QRegularExpression message(QStringLiteral("^.*\\]:  (.*) - \\[.*$"));
        return lines.replaceInStrings(message, QStringLiteral("\\1"));
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_log = std::make_unique<LogCapture>();
        m_node = MakeCom<Node>("node");
        m_composite = MakeCom<Composite>("composite");
        m_composite->clips = {m_node};
        m_cache = MakeCom<Cache>("cache");
        m_cache->onStop = [this] { m_cache->Report(9, Helper::StoppedByUser); };
        auto setting = MakeCom<ProjectSetting>("setting");
        setting->profile.frameSize = {1081, 1921};
        m_node->Offer<INLETimelineComposite>(m_composite);
        m_node->Offer<INLEProjectSetting>(setting);
        m_node->Offer<INLEBackgroundCache>(m_cache);
    }

    void cleanup()
    {
        m_timeline.reset();
        m_log.reset();
        m_composite->clips.clear();
        m_composite.reset();
        m_node.reset();
        m_cache.reset();
        QCOMPARE(EndSession(), QStringList());
    }

    void usualSizeIsHalfOfTheProjects()
    {
        MakeCaching();
        QCOMPARE(Calls("Start"), QStringList("cache.Start(540x960)"));
    }

    void sizes_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<float>("ratio");
        QTest::addColumn<QSize>("cached");
        QTest::newRow("half of it") << QSize(1920, 1080) << 1.0F << QSize(960, 540);
        QTest::newRow("upright") << QSize(1080, 1920) << 1.0F << QSize(303, 540);
        QTest::newRow("hardly too wide") << QSize(961, 540) << 0.0F << QSize(960, 539);
        QTest::newRow("ratio of the side") << QSize(517, 333) << 0.5F << QSize(258, 166);
        QTest::newRow("narrow") << QSize(20, 25920) << 1.0F << QSize(20, 25920);
        QTest::newRow("no number") << QSize(640, 480) << float(qQNaN()) << QSize(0, 0);
    }
    void sizes()
    {
        QFETCH(QSize, size);
        QFETCH(float, ratio);
        QFETCH(QSize, cached);
        Helper* helper = Make();
        helper->SetCacheDirectory(m_folder->path());
        Log();
        helper->SetCacheSize(size, ratio);
        QCOMPARE(Log(), QStringList(QString("cacth width:%1,cacth height:%2")
                                        .arg(cached.width())
                                        .arg(cached.height())));
        helper->StartRender();
        QCOMPARE(
            Calls("Start"),
            QStringList(QString("cache.Start(%1x%2)").arg(cached.width()).arg(cached.height())));
    }

    void starts_data()
    {
        QTest::addColumn<HRESULT>("status"); // of the engine's start
        QTest::addColumn<QList<long>>("states");
        QTest::addColumn<int>("startsOfTwo"); // calls, unless it runs or all is done
        QTest::addColumn<int>("updates");     // asked for since
        using L = QList<long>;
        QTest::newRow("starts") << S_FALSE << L{Helper::Caching} << 1 << 0;
        QTest::newRow("no access") << E_ACCESSDENIED << L{Helper::FolderUnwriteable} << 2 << 0;
        QTest::newRow("bad folder") << E_INVALIDARG << L{Helper::FolderUnwriteable} << 2 << 0;
        QTest::newRow("nothing to do") << E_FAIL << L{Helper::Finished} << 1 << 1;
        QTest::newRow("no memory") << E_OUTOFMEMORY << L{} << 2 << 0;
    }
    void starts()
    {
        QFETCH(HRESULT, status);
        QFETCH(QList<long>, states);
        Helper* helper = Make();
        helper->SetCacheDirectory(m_folder->filePath("a/b"));
        QTest::qWait(100);
        QCOMPARE(Calls("SetUpdateCallback").size(), 2); // the other for the size
        QList<long> seen;
        QObject context; // the internal signal comes after the other
        connect(helper, &Helper::sigRenderStateChange, &context, [&](long s) { seen += s; });
        connect(helper, &Helper::sigRenderStateChangeInternal, &context,
                [&](long s) { QCOMPARE(s, seen.last()); });
        m_script.statuses["cache.Start"] = status;
        helper->StartRender();
        QVERIFY(QDir(m_folder->filePath("a/b")).exists());
        QCOMPARE(seen, states);
        helper->StartRender();
        QTEST(int(Calls("Start").size()), "startsOfTwo");
        QCOMPARE(seen, states);
        QTest::qWait(100);
        QTEST(int(Calls("SetUpdateCallback").size()), "updates");
    }

    void projectWithoutClipsDoesNotStart()
    {
        m_composite->clips.clear();
        Helper* helper = MakeCaching();
        QCOMPARE(Calls("Start"), QStringList());
        QVERIFY(!helper->IsCaching());
    }

    void folderIsLoggedByItsFirstCharacter() // or its bytes up to a zero one
    {
        Helper* helper = Make();
        Log();
        QVERIFY(helper->SetCacheDirectory(QString())); // of which the free space is not known
        QCOMPARE(Calls("SetCacheFolder").join('|'), "cache.SetCacheFolder(, 102400, 2048)");
        QCOMPARE(Log().value(0), "folderSize:102400 forder:");
        const QString path = m_folder->filePath(QString::fromUtf8("Ü日"));
        helper->SetCacheDirectory(path);
        const QString line = Log().value(0);
        QVERIFY2(line.endsWith(" forder:" + path.left(1)), qPrintable(line));
    }

    void fileInPlaceOfTheFolder()
    {
        Helper* helper = Make();
        QFile(m_folder->filePath("file")).open(QIODevice::WriteOnly);
        helper->SetCacheDirectory(m_folder->filePath("file/in"));
        Log();
        helper->StartRender();
        QVERIFY(helper->IsFolderUnWriteable());
        QCOMPARE(Log().value(0), "Preview Render CacheDir is not exist, CacheDir mkpath failed!");
    }

    void refusedFolderKeepsTheOldOne()
    {
        Helper* helper = Make();
        helper->SetCacheDirectory(m_folder->path());
        helper->SetCachingState(Helper::FolderUnwriteable);
        Log();
        m_script.statuses["cache.SetCacheFolder"] = E_FAIL;
        QVERIFY(!helper->SetCacheDirectory("x"));
        QCOMPARE(helper->GetCacheDirectory(), m_folder->path());
        QCOMPARE(Log().value(1), "SetCacheDirectory:false,dir:" + m_folder->path());
        QVERIFY(!helper->IsFolderUnWriteable());
    }

    void reportsAreToldLater()
    {
        Helper* helper = MakeCaching();
        QList<QList<long>> seen;
        QObject context;
        connect(helper, &Helper::sigRenderStateChange, &context,
                [&](long s) { seen << QList<long>{s}; });
        connect(helper, &Helper::sigRenderProgressInfo, &context,
                [&](long progress, long cached, long total) {
                    seen << QList<long>{progress, cached, total};
                });
        m_cache->Report(50, Helper::Caching, 4);
        m_cache->Report(99, Helper::LowDisk, 7);
        m_cache->Report(100, Helper::Caching, 8);
        m_cache->render(100, 0, 0, 0, nullptr);
        QCOMPARE(seen, QList<QList<long>>()); // only queued
        QCoreApplication::processEvents();
        QCOMPARE(seen,
                 (QList<QList<long>>{
                     {50, 4, 8}, {Helper::LowDisk}, {99, 7, 8}, {Helper::Finished}, {100, 8, 8}}));
        QVERIFY(helper->IsFinished());
    }

    void segmentsAreCachedAndNeeded()
    {
        Helper* helper = MakeFinished();
        QSignalSpy states(helper, &Helper::sigRenderStateChange);
        Ranges cached;
        Ranges needed;
        helper->SetAutoRenderEnable(true, 7);
        QVERIFY(!Countdown(helper)->isActive());
        helper->GetRenderProgress(cached, needed);
        QCOMPARE(cached, (Ranges{{0, 10}, {10, 14}}));
        QCOMPARE(needed, (Ranges{{14, 20}, {30, 40}}));
        QCOMPARE(Calls("GetStat").last(), "cache.GetStat(3, 0..0)"); // cleared each time
        QCOMPARE(states.size(), 1);
        QCOMPARE(states[0][0].toInt(), int(Helper::Idle));
        QVERIFY(Countdown(helper)->isActive()); // as there is something to do again
    }

    void allCachedNeedsNoRender()
    {
        Helper* helper = MakeFinished();
        Ranges cached;
        Ranges needed;
        helper->GetRenderProgress(cached, needed);
        QVERIFY(helper->IsNeedRender());
        m_cache->segments = {{NLERange{0, 9}, 1, 10}};
        Ranges none;
        helper->GetRenderProgress(cached, none);
        QCOMPARE(none, Ranges());
        QVERIFY(!helper->IsNeedRender());
        QVERIFY(!helper->IsFramNeedRender(14));
    }

    void frameNeedsRender_data()
    {
        QTest::addColumn<int>("frame");
        QTest::addColumn<bool>("needs");
        for (const int frame : {14, 20, 30, 40}) // the ends too
            QTest::addRow("%d does", frame) << frame << true;
        for (const int frame : {13, 21, 29, 41})
            QTest::addRow("%d does not", frame) << frame << false;
    }
    void frameNeedsRender()
    {
        QFETCH(int, frame);
        Helper* helper = MakeFinished();
        Ranges cached;
        Ranges needed;
        helper->GetRenderProgress(cached, needed);
        QTEST(helper->IsFramNeedRender(frame), "needs");
    }

    void nodeWithoutCacheNeedsNoRender()
    {
        Helper bare(MakeCom<Node>("bare"), nullptr);
        Ranges cached;
        Ranges needed;
        bare.GetRenderProgress(cached, needed);
        QVERIFY(!bare.IsNeedRender());
    }

    // It keeps the answers of the one before, with an empty range.
    void unreadableSegment()
    {
        Helper* helper = MakeCaching();
        m_cache->segments = {2, {NLERange{0, 9}, 1, 10}};
        m_cache->unreadable = 1;
        Ranges cached;
        Ranges needed;
        helper->GetRenderProgress(cached, needed);
        QCOMPARE(cached, (Ranges{{0, 10}, {0, 10}}));
        QCOMPARE(needed, (Ranges{{10, 1}}));
    }

    void endsWhileItRenders()
    {
        Helper* helper = MakeCaching();
        helper->doDelayedUpdate(0);
        m_timeline.reset(); // with an update due
        QVERIFY(!Helper::CheckAnsyUpdateUserData(helper));
        m_cache->Report(50, Helper::Caching);
        QCoreApplication::processEvents();
    }

    void stops()
    {
        Helper* helper = MakeCaching();
        Log();
        helper->SetAutoRenderEnable(true, 5);
        Countdown(helper)->stop();
        helper->StopRenderSync();
        QCOMPARE(Log().join('|'), kStopLog.arg("succeed", "StopByUser"));
        QVERIFY(Countdown(helper)->isActive());
        helper->StopRenderSync();
        QCOMPARE(Calls("Stop").size(), 1);
        QCOMPARE(Log(), QStringList());
    }

    void failingStopIsGivenUp()
    {
        Helper* helper = MakeCaching();
        Log();
        m_script.statuses["cache.Stop"] = E_FAIL;
        m_cache->onStop = [] {};
        QElapsedTimer timer;
        timer.start();
        helper->StopRenderSync();
        QVERIFY(timer.elapsed() >= 30000); // as long as it waits
        QVERIFY(helper->IsCaching());
        QCOMPARE(Log().join('|'), kStopLog.arg("failed", "timeOut"));
        helper->SetCachingState(Helper::Idle);
    }

    void updateIsAskedForOnce()
    {
        Helper* helper = Make();
        for (int call = 0; call < 3; ++call)
            helper->Update(); // the size has asked already
        QTRY_VERIFY(m_cache->update);
        QTest::qWait(100);
        QCOMPARE(Calls("SetUpdateCallback").size(), 1);
    }

    void updateIsToldLater()
    {
        Helper* helper = Make();
        QSignalSpy progress(helper, &Helper::sigRenderProgressInfo);
        QTRY_VERIFY(m_cache->update);
        QVERIFY(Helper::CheckAnsyUpdateUserData(helper));
        int answer = 0;
        std::thread([&] { answer = m_cache->update(nullptr, 1, 2, 3, 4, helper); }).join();
        QCOMPARE(answer, 1);
        QCOMPARE(progress.size(), 0);
        QTRY_COMPARE(progress.size(), 1);
    }

    void updatesByCallTellToo()
    {
        Helper* helper = Make();
        QSignalSpy progress(helper, &Helper::sigRenderProgressInfo);
        helper->UpdateSysc();
        QMetaObject::invokeMethod(helper, "delayedUpdate");
        QThreadPool::globalInstance()->waitForDone();
        QTRY_COMPARE(progress.size(), 2);
        QCOMPARE(Calls("Update").size(), 2);
        QVERIFY(Log().contains("delayedUpdate Finished"));
    }

    void qualityAsksForAnUpdate()
    {
        Helper* helper = Make();
        QTRY_VERIFY(m_cache->update);
        m_script.TakeCalls();
        helper->SetTimelineQuality(0.75);
        QCOMPARE(m_script.TakeCalls().join(' '),
                 "cache.SetQuality(750000/1000000) cache.SetUpdateCallback(true)");
    }

    void clearedUpdatesAreNotTold()
    {
        Helper* helper = Make();
        QTRY_VERIFY(m_cache->update);
        Calls("");
        Log();
        helper->ClearUpdateCallBack(true);
        helper->doDelayedUpdate(0);
        QTRY_VERIFY(!m_cache->update);
        QCOMPARE(Calls("SetUpdateCallback"), QStringList("cache.SetUpdateCallback(false)"));
        QCOMPARE(Log(), QStringList("ClearUpdate......"));
        m_timeline.reset();
        QVERIFY(!Helper::CheckAnsyUpdateUserData(helper));
    }

    void startsByItself()
    {
        Helper* helper = Make();
        helper->SetCacheDirectory(m_folder->path());
        QTimer* countdown = Countdown(helper);
        QSignalSpy progress(helper, &Helper::sigRenderProgressInfo);
        helper->SetAutoRenderEnable(true, 3000000);
        QCOMPARE(countdown->interval(), std::numeric_limits<int>::max());
        helper->SetAutoRenderEnable(true, 0);
        QTRY_VERIFY(helper->IsCaching());
        helper->SetForceStopAutoStartRender(true);
        helper->UpdateSysc();
        m_cache->Report(50, Helper::Caching);
        QCoreApplication::processEvents();
        QVERIFY(!countdown->isActive());
        QCOMPARE(progress.size(), 0);
    }

    void deletesItsCache()
    {
        Helper* helper = MakeCaching();
        QSignalSpy deleted(helper, &Helper::sigRenderCatchDeleted);
        helper->DelRenderCache(false);
        QCOMPARE(deleted.size(), 1);
        QCOMPARE(Calls("DeleteCache"), QStringList("cache.DeleteCache(false)"));
        QCOMPARE(Log().last(), "DelRenderCache:ture");
    }

    void deletesItsCacheAtItsEnd()
    {
        Helper* helper = MakeCaching();
        Log();
        m_script.statuses["cache.DeleteCache"] = E_FAIL;
        helper->SetAutoDeleteCaching(true);
        helper->SetCachingState(Helper::Idle);
        m_timeline.reset();
        QCOMPARE(Calls("DeleteCache"), QStringList("cache.DeleteCache(true)"));
        const QStringList lines = Log();
        QVERIFY2(lines.contains("DelRenderCache:false"), qPrintable(lines.join('|')));
    }

    void lowDiskIsNoFullFolder()
    {
        Helper* helper = Make();
        helper->SetCachingState(Helper::LowDisk);
        QVERIFY(helper->IsLowDisk());
        QVERIFY(!helper->IsFolderFull());
    }

    void endsInItsOwnSlots_data()
    {
        QTest::addColumn<long>("state");
        QTest::addColumn<Operation>("operate");
        QTest::addColumn<int>("way");
        const auto row = [](const char* name, long state, const Operation& operate,
                            bool isBeingDeleted = false) {
            QTest::addRow("%s, later", name) << state << operate << int(Later);
            QTest::addRow("%s, with its wrapper", name) << state << operate << int(WithItsWrapper);
            if (!isBeingDeleted)
                QTest::addRow("%s, at once", name) << state << operate << int(AtOnce);
        };
        row("nothing to render", Helper::Idle, &Helper::StartRender);
        row("stop", Helper::Caching, &Helper::StopRender);
        row("stop and wait", Helper::Caching, &Helper::StopRenderSync);
        row("stop for good", Helper::Caching,
            [](auto* h) { h->SetForceStopAutoStartRender(true); });
        row("folder", Helper::Caching, [](auto* h) { h->SetCacheDirectory("other"); });
        row("quality", Helper::Caching, [](auto* h) { h->SetTimelineQuality(1); });
        row("deletion", Helper::Caching, [](auto* h) { h->DelRenderCache(true); });
        row("update", Helper::Caching, &Helper::UpdateSysc);
        row("update later", Helper::Caching, [](auto* h) { h->doDelayedUpdate(0); });
        row("new work", Helper::Finished, [](auto* h) {
            Ranges cached;
            h->GetRenderProgress(cached, cached);
        });
        row(
            "another node", Helper::Caching,
            [](auto* h) { qobject_cast<NLETimeline*>(h->parent())->SetTimelineBase(nullptr); },
            true);
        row(
            "the end", Helper::Caching, [](auto* h) { delete h; }, true);
    }
    void endsInItsOwnSlots()
    {
        QFETCH(const long, state);
        QFETCH(const Operation, operate);
        QFETCH(const int, way);
        m_cache->segments = {{NLERange{0, 9}, 1, 5}};
        QPointer<Helper> helper;
        int ended = 0;
        const auto end = [&] {
            ++ended;
            if (way == Later)
                helper->deleteLater();
            else if (way == WithItsWrapper)
                m_timeline.reset();
            else
                delete helper;
        };
        const auto in = [&](auto signal) {
            return [&, signal](QObject* c) { connect(helper.data(), signal, c, end); };
        };
        const std::function<void(QObject*)> signalsToEndIn[] = {
            in(&Helper::sigRenderStateChange), in(&Helper::sigRenderStateChangeInternal),
            in(&Helper::sigRenderProgressInfo), in(&Helper::sigRenderCatchDeleted)};
        for (const auto& connectEnd : signalsToEndIn) {
            m_script.statuses.remove("cache.Start");
            helper = MakeCaching();
            helper->SetCachingState(state);
            m_script.statuses["cache.Start"] = E_FAIL;
            QObject context;
            connectEnd(&context);
            const int before = ended;
            operate(helper);
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(ended == before || !helper);
            if (m_timeline && !helper) // hands out no helper that is gone
                QCOMPARE(m_timeline->GetPreViewRenderHelper()->GetCacheDirectory(), QString());
        }
        QVERIFY(ended > 0);
    }

    void endsWhileUpdatesAreInFlight()
    {
        auto busy = MakeCom<BusyCache>();
        auto other = MakeCom<Node>("other");
        other->Offer<INLEBackgroundCache>(busy);
        for (int count = 0; count < 1000; ++count) {
            auto helper = std::make_unique<Helper>(other, nullptr);
            helper->SetTimelineQuality(1);
            if (count == 0)
                QTRY_COMPARE(busy->answered.load(), BusyCache::kCalls); // as long as it is there
            if (count % 2)
                QCoreApplication::processEvents();
        }
    }
};

QTEST_GUILESS_MAIN(tst_Preview)

#include "tst_preview.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CommonLib.h"
#include "tests/support/LogCapture.h"
#include "tests/support/ScriptedComposite.h"
#include "tests/support/ScriptedSession.h"

#include <QtTest>

#include <atomic>
#include <functional>
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
    BusyCache() : Cache("busy") {}
    ~BusyCache() override
    {
        for (std::thread& thread : m_threads)
            thread.join();
    }

    HRESULT SetUpdateCallback(NLEUpdateCallback callback, void* data) override
    {
        m_threads.emplace_back([this, callback, data] {
            for (int call = 0; call < 20; ++call)
                answered += callback(nullptr, 0, 0, 0, 0, data);
        });
        return S_OK;
    }

    std::atomic<int> answered{0};

private:
    std::vector<std::thread> m_threads;
};

} // namespace

Q_DECLARE_METATYPE(Operation)

class tst_Preview : public QObject
{
    Q_OBJECT

private:
    Script& script = Script::Get();
    NLEComPtr<Node> node;
    NLEComPtr<Composite> composite;
    NLEComPtr<Cache> cache;
    std::unique_ptr<NLETimeline> timeline;
    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<LogCapture> log;

    Helper* Make()
    {
        timeline = std::make_unique<NLETimeline>(node, ExactType_Project, nullptr);
        return timeline->GetPreViewRenderHelper();
    }
    /// A helper that renders into the folder.
    Helper* MakeCaching()
    {
        Helper* helper = Make();
        helper->SetCacheDirectory(folder->path());
        helper->StartRender();
        return helper;
    }
    static QTimer* Countdown(Helper* helper) { return helper->findChild<QTimer*>(); }
    QStringList Calls(const char* operation)
    {
        return script.TakeCalls().filter(QString("cache.%1(").arg(operation));
    }
    /// The messages since the last time.
    QStringList Log()
    {
        QStringList lines = log->Take();
        log.reset(); // which ends the log of the process
        log = std::make_unique<LogCapture>();
        static const QRegularExpression message(QStringLiteral("^.*\\]:  (.*) - \\[.*$"));
        return lines.replaceInStrings(message, QStringLiteral("\\1"));
    }

private Q_SLOTS:
    void init()
    {
        folder = std::make_unique<QTemporaryDir>();
        log = std::make_unique<LogCapture>();
        node = MakeCom<Node>("node");
        composite = MakeCom<Composite>("composite");
        composite->clips = {node};
        cache = MakeCom<Cache>("cache");
        cache->onStop = [this] { cache->Report(9, Helper::StoppedByUser); };
        auto setting = MakeCom<ProjectSetting>("setting");
        setting->profile.frameSize = {1081, 1921};
        node->Offer<INLETimelineComposite>(composite);
        node->Offer<INLEProjectSetting>(setting);
        node->Offer<INLEBackgroundCache>(cache);
    }

    void cleanup()
    {
        timeline.reset();
        log.reset();
        composite->clips.clear();
        composite.reset();
        node.reset();
        cache.reset();
        QCOMPARE(EndSession(), QStringList());
    }

    void sizes()
    {
        const struct
        {
            QSize size;
            float ratio;
            QString cached;
        } rows[] = {{{1920, 1080}, 1, "960x540"}, {{1080, 1920}, 1, "303x540"},
                    {{961, 540}, 0, "960x539"},   {{517, 333}, 0.5F, "258x166"},
                    {{20, 25920}, 1, "20x25920"}, {{640, 480}, float(qQNaN()), "0x0"}};
        Helper* helper = MakeCaching();
        QCOMPARE(Calls("Start"), QStringList("cache.Start(540x960)")); // half of the project's
        for (const auto& row : rows) {
            helper->StopRenderSync();
            Log();
            helper->SetCacheSize(row.size, row.ratio);
            const QStringList sides = row.cached.split('x');
            QCOMPARE(Log().join('|'), "cacth width:" + sides[0] + ",cacth height:" + sides[1]);
            helper->StartRender();
            QCOMPARE(Calls("Start"), QStringList("cache.Start(" + row.cached + ')'));
        }
    }

    void starts()
    {
        const QPair<HRESULT, QList<long>> rows[] = {{S_FALSE, {Helper::Caching}},
                                                    {E_ACCESSDENIED, {Helper::FolderUnwriteable}},
                                                    {E_INVALIDARG, {Helper::FolderUnwriteable}},
                                                    {E_FAIL, {Helper::Finished}},
                                                    {E_OUTOFMEMORY, {}}};
        for (const auto& [status, states] : rows) {
            cleanup();
            init();
            Helper* helper = Make();
            helper->SetCacheDirectory(folder->filePath("a/b"));
            QTest::qWait(100);
            QCOMPARE(Calls("SetUpdateCallback").size(), 2); // the other for the size
            QList<long> seen;
            QObject context; // the internal signal comes after the other
            connect(helper, &Helper::sigRenderStateChange, &context, [&](long s) { seen += s; });
            connect(helper, &Helper::sigRenderStateChangeInternal, &context,
                    [&](long s) { QCOMPARE(s, seen.last()); });
            composite->clips.clear();
            helper->StartRender();
            QVERIFY(Calls("Start").isEmpty());
            composite->clips = {node};
            script.statuses["cache.Start"] = status;
            helper->StartRender();
            QVERIFY(QDir(folder->filePath("a/b")).exists());
            QCOMPARE(seen, states);
            helper->StartRender(); // once more, unless it runs or all is done
            const bool again = !helper->IsCaching() && !helper->IsFinished();
            QCOMPARE(Calls("Start").size(), again ? 2 : 1);
            QCOMPARE(seen, states);
            QTest::qWait(100);
            QCOMPARE(Calls("SetUpdateCallback").size(), status == E_FAIL ? 1 : 0);
        }
    }

    void folders()
    {
        Helper* helper = Make();
        Log();
        // Only the first character of the folder, or its bytes up to a zero one, are logged.
        const QString path = folder->filePath(QString::fromUtf8("Ü日"));
        QVERIFY(helper->SetCacheDirectory(QString())); // of which the free space is not known
        QCOMPARE(Calls("SetCacheFolder").join('|'), "cache.SetCacheFolder(, 102400, 2048)");
        QCOMPARE(Log().value(0), "folderSize:102400 forder:");
        helper->SetCacheDirectory(path);
        QVERIFY(Log().value(0).endsWith(" forder:" + path.left(1)));
        // A plain file stands where the folder should.
        QFile(folder->filePath("file")).open(QIODevice::WriteOnly);
        helper->SetCacheDirectory(folder->filePath("file/in"));
        Log();
        helper->StartRender();
        QVERIFY(helper->IsFolderUnWriteable());
        QCOMPARE(Log().value(0), "Preview Render CacheDir is not exist, CacheDir mkpath failed!");
        script.statuses["cache.SetCacheFolder"] = E_FAIL;
        QVERIFY(!helper->SetCacheDirectory("x"));
        QCOMPARE(helper->GetCacheDirectory(), folder->filePath("file/in"));
        QCOMPARE(Log().value(1), "SetCacheDirectory:false,dir:" + folder->filePath("file/in"));
        QVERIFY(!helper->IsFolderUnWriteable());
    }

    void reports()
    {
        Helper* helper = MakeCaching();
        QList<QList<long>> seen;
        QObject context;
        connect(helper, &Helper::sigRenderStateChange, &context, [&](long s) { seen += {s}; });
        connect(helper, &Helper::sigRenderProgressInfo, &context,
                [&](long progress, long cached, long total) {
                    seen += {progress, cached, total};
                });
        cache->Report(50, Helper::Caching, 4);
        cache->Report(99, Helper::LowDisk, 7);
        cache->Report(100, Helper::Caching, 8);
        cache->render(100, 0, 0, 0, nullptr);
        QVERIFY(seen.isEmpty()); // only queued
        QCoreApplication::processEvents();
        QCOMPARE(seen, (QList<QList<long>>{{50, 4, 8}, {1}, {99, 7, 8}, {5}, {100, 8, 8}}));
        QVERIFY(helper->IsFinished());

        cache->segments = {{NLERange{0, 9}, 1, 10},
                           {NLERange{10, 19}, 2, 14},
                           {NLERange{20, 29}, 0, 20},
                           {NLERange{30, 39}, 1, 30}};
        Ranges cached;
        Ranges needed;
        helper->SetAutoRenderEnable(true, 7);
        QVERIFY(!Countdown(helper)->isActive());
        helper->GetRenderProgress(cached, needed);
        QCOMPARE(cached, (Ranges{{0, 10}, {10, 14}}));
        QCOMPARE(needed, (Ranges{{14, 20}, {30, 40}}));
        QCOMPARE(Calls("GetStat").last(), "cache.GetStat(3, 0..0)"); // cleared each time
        for (const int frame :
             {14, 20, 30, 40, -13, -21, -29, -41}) // the ends too; not those below 0
            QCOMPARE(helper->IsFramNeedRender(std::abs(frame)), frame > 0);
        QCOMPARE(seen.last(), QList<long>{Helper::Idle});
        QVERIFY(Countdown(helper)->isActive());      // as there is something to do again
        Helper bare(MakeCom<Node>("bare"), nullptr); // has no cache to ask
        bare.GetRenderProgress(cached, needed);
        QVERIFY(!bare.IsNeedRender());
        cache->segments = {{NLERange{0, 9}, 1, 10}};
        Ranges none;
        helper->GetRenderProgress(cached, none);
        QVERIFY(!helper->IsNeedRender() && !helper->IsFramNeedRender(14));

        // A segment that cannot be read keeps the answers of the one before, with an empty range.
        cache->segments += cache->segments[0];
        cache->unreadable = 1;
        cached.clear();
        helper->GetRenderProgress(cached, none);
        QCOMPARE(cached, (Ranges{{0, 10}, {0, 10}}));
        QCOMPARE(none, (Ranges{{10, 1}}));

        helper->StartRender();
        helper->doDelayedUpdate(0);
        timeline.reset(); // while it renders, with an update due
        QVERIFY(!Helper::CheckAnsyUpdateUserData(helper));
        cache->Report(50, Helper::Caching);
        QCoreApplication::processEvents();
    }

    void stops()
    {
        Helper* helper = MakeCaching();
        Log();
        helper->SetAutoRenderEnable(true, 5);
        Countdown(helper)->stop();
        QElapsedTimer timer;
        timer.start();
        helper->StopRenderSync();
        QVERIFY(timer.elapsed() < 10000);
        const QString told = "StopRender %1|FPreViewRenderHelper StopRender exec start|"
                             "StopRender %2|FPreViewRenderHelper StopRender exec end";
        QCOMPARE(Log().join('|'), told.arg("succeed", "StopByUser"));
        QVERIFY(Countdown(helper)->isActive());
        helper->StopRenderSync();
        QCOMPARE(Calls("Stop").size(), 1);
        QCOMPARE(Log(), QStringList());

        // An engine that fails to stop is given up after 30 s.
        helper->StartRender();
        script.statuses["cache.Stop"] = E_FAIL;
        cache->onStop = [] {};
        timer.start();
        helper->StopRenderSync();
        QVERIFY(timer.elapsed() >= 30000 && helper->IsCaching());
        QCOMPARE(Log().join('|'), told.arg("failed", "timeOut"));
        helper->SetCachingState(Helper::Idle);
    }

    void updates()
    {
        Helper* helper = Make();
        QSignalSpy progress(helper, &Helper::sigRenderProgressInfo);
        for (int call = 0; call < 3; ++call)
            helper->Update(); // the size has asked already
        QTRY_VERIFY(cache->update);
        QTest::qWait(100);
        QCOMPARE(Calls("SetUpdateCallback").size(), 1);
        QVERIFY(Helper::CheckAnsyUpdateUserData(helper));
        int answer = 0;
        std::thread([&] { answer = cache->update(nullptr, 1, 2, 3, 4, helper); }).join();
        QVERIFY(answer && progress.isEmpty());
        QTRY_COMPARE(progress.size(), 1);

        helper->UpdateSysc();
        QMetaObject::invokeMethod(helper, "delayedUpdate");
        QThreadPool::globalInstance()->waitForDone();
        QTRY_COMPARE(progress.size(), 3);
        QCOMPARE(Calls("Update").size(), 2);
        QVERIFY(Log().contains("delayedUpdate Finished"));
        helper->SetTimelineQuality(0.75);
        QCOMPARE(script.TakeCalls().join(' '),
                 "cache.SetQuality(750000/1000000) cache.SetUpdateCallback(true)");
        helper->ClearUpdateCallBack(true);
        helper->doDelayedUpdate(0);
        QTRY_VERIFY(!cache->update);
        QCOMPARE(Calls("SetUpdateCallback"), QStringList("cache.SetUpdateCallback(false)"));
        QCOMPARE(Log(), QStringList("ClearUpdate......"));

        timeline.reset();
        QVERIFY(!Helper::CheckAnsyUpdateUserData(helper));
    }

    void startsByItself()
    {
        Helper* helper = Make();
        helper->SetCacheDirectory(folder->path());
        QTimer* countdown = Countdown(helper);
        QSignalSpy progress(helper, &Helper::sigRenderProgressInfo);
        helper->SetAutoRenderEnable(true, 3000000);
        QCOMPARE(countdown->interval(), std::numeric_limits<int>::max());
        helper->SetAutoRenderEnable(true, 0);
        QTRY_VERIFY(helper->IsCaching());
        helper->SetForceStopAutoStartRender(true);
        helper->UpdateSysc();
        cache->Report(50, Helper::Caching);
        QCoreApplication::processEvents();
        QVERIFY(!countdown->isActive() && progress.isEmpty());
    }

    void deletes()
    {
        Helper* helper = MakeCaching();
        QSignalSpy deleted(helper, &Helper::sigRenderCatchDeleted);
        helper->DelRenderCache(false);
        QCOMPARE(deleted.size(), 1);
        QCOMPARE(Calls("DeleteCache"), QStringList("cache.DeleteCache(false)"));
        QCOMPARE(Log().last(), "DelRenderCache:ture");
        helper->SetCachingState(Helper::LowDisk);
        QVERIFY(helper->IsLowDisk() && !helper->IsFolderFull());
        script.statuses["cache.DeleteCache"] = E_FAIL;
        helper->SetAutoDeleteCaching(true);
        timeline.reset();
        QCOMPARE(Calls("DeleteCache"), QStringList("cache.DeleteCache(true)"));
        QCOMPARE(Log().value(1), "DelRenderCache:false");
    }

    void endsInItsOwnSlots_data()
    {
        QTest::addColumn<long>("state");
        QTest::addColumn<Operation>("operate");
        const auto row = [](const char* name, long state, const Operation& operate) {
            QTest::newRow(name) << state << operate;
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
        row("another node", Helper::Caching,
            [](auto* h) { qobject_cast<NLETimeline*>(h->parent())->SetTimelineBase(nullptr); });
        row("the end", Helper::Caching, [](auto* h) { delete h; });
    }
    void endsInItsOwnSlots()
    {
        QFETCH(const long, state);
        QFETCH(const Operation, operate);
        enum Way
        {
            Later,
            WithItsWrapper,
            AtOnce
        };
        const QByteArray row = QTest::currentDataTag();
        const bool isBeingDeleted = row == "another node" || row == "the end";
        cache->segments = {{NLERange{0, 9}, 1, 5}};
        int ended = 0;
        for (const int way : {Later, WithItsWrapper, AtOnce}) {
            for (int signal = 0; signal < 4 && !(way == AtOnce && isBeingDeleted); ++signal) {
                script.statuses.remove("cache.Start");
                const QPointer<Helper> helper = MakeCaching();
                helper->SetCachingState(state);
                script.statuses["cache.Start"] = E_FAIL;
                QObject context;
                const auto end = [&] {
                    ++ended;
                    if (way == Later)
                        helper->deleteLater();
                    else if (way == WithItsWrapper)
                        timeline.reset();
                    else
                        delete helper;
                };
                if (signal == 0)
                    connect(helper, &Helper::sigRenderStateChange, &context, end);
                else if (signal == 1)
                    connect(helper, &Helper::sigRenderStateChangeInternal, &context, end);
                else if (signal == 2)
                    connect(helper, &Helper::sigRenderProgressInfo, &context, end);
                else
                    connect(helper, &Helper::sigRenderCatchDeleted, &context, end);
                const int before = ended;
                operate(helper);
                QCoreApplication::processEvents();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                QVERIFY(ended == before || !helper);
                if (timeline && !helper) // hands out no helper that is gone
                    QVERIFY(timeline->GetPreViewRenderHelper()->GetCacheDirectory().isEmpty());
            }
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
            if (count % 2)
                QCoreApplication::processEvents();
        }
        QVERIFY(busy->answered > 0); // some came in time
    }
};

QTEST_GUILESS_MAIN(tst_Preview)

#include "tst_preview.moc"

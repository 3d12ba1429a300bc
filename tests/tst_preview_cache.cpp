// SPDX-License-Identifier: LGPL-2.1-or-later
// The open engine's preview cache, judged by its reports, its pictures and the files in its folder.
#include "EngineApi/INLEKeyFrames.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETransform.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/PreviewCacheFixture.h"

#include <QGuiApplication>
#include <QProcess>
#include <QSemaphore>

#include <cstdlib>
#include <functional>
#include <mutex>
#include <optional>

#ifndef Q_OS_WIN
#include <pthread.h>
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace {

#ifdef Q_OS_WIN
constexpr bool kRemovesOpenFiles = false;
#else
constexpr bool kRemovesOpenFiles = true;

/// What the process takes of the address space, in bytes.
qint64 AddressSpace()
{
    QFile pages("/proc/self/statm");
    return pages.open(QIODevice::ReadOnly)
               ? pages.readAll().split(' ').front().toLongLong() * sysconf(_SC_PAGESIZE)
               : 0;
}
#endif

} // namespace

class tst_PreviewCache : public QObject, private PreviewCacheFixture
{
    Q_OBJECT

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

    /// Starts \a cache, lets happen to it what the row says, and gives the state that it ends with;
    /// -1 when that does not happen.
    long Run(Cache& cache) const
    {
        QFETCH(const int, largestFile);
        QFETCH(const bool, isFolderRemoved);
        QFETCH(const long, state);
        std::optional<FileSizeLimit> full;
        if (largestFile > 0)
            full.emplace(largestFile);
        bool isDone = cache.Start() == S_OK;
        if (state == NLECache_Stopped)
            isDone = isDone && cache.engine->Stop() == S_OK;
        if (isFolderRemoved) {
            const auto isBegun = [&] { return !Files(m_folder, "*.nlechunk").isEmpty(); };
            // A chunk that comes in between keeps the folder.
            const auto isRemoved = [&] {
                return QDir(m_folder).removeRecursively() || !QFileInfo::exists(m_folder);
            };
            isDone = isDone && QTest::qWaitFor(isBegun, 60000) && QTest::qWaitFor(isRemoved, 60000);
        }
        return isDone ? cache.End() : -1;
    }

    QString m_folder;

private slots:
    void initTestCase() { QCOMPARE(MakeMedia(mMedia), QString()); }
    void init() { m_folder = Path(QTest::currentTestFunction()) + QTest::currentDataTag(); }

    void refusesBadArguments()
    {
        const Timeline t = Make();
        Cache cache(t.project, m_folder);
        const NLESize empty = {0, 90};
        QCOMPARE(cache.engine->Start(&empty, nullptr, nullptr), E_INVALIDARG);
        QCOMPARE(cache.Limit(QString(), 1), E_INVALIDARG);
        QCOMPARE(cache.engine.query<INLEBackgroundCacheQualitySet>()->SetQuality({2, 1}),
                 E_INVALIDARG);
    }

    void rendersNothingWithoutAFolder()
    {
        const Timeline t = Make();
        Cache cache(t.project, m_folder);
        QCOMPARE(cache.Limit(mMedia + "/below", 1), S_OK);
        QCOMPARE(cache.Start(), E_ACCESSDENIED);
    }

    void rendersNothingOfAnEmptyProject()
    {
        const Node silent = Project();
        QCOMPARE(Cache(silent, m_folder).Start(), E_FAIL);
    }

    void stopsNothingBeforeTheStart()
    {
        const Timeline t = Make();
        QCOMPARE(Cache(t.project, m_folder).engine->Stop(), S_FALSE);
    }

    void mediaClipHasNoCache()
    {
        const Node clip = Media(mMedia);
        void* out = nullptr;
        QCOMPARE(clip->GetInterface(INLEBackgroundCache::Iid, &out, 0, 0), E_NOINTERFACE);
    }

    void rendersWhatShows()
    {
        const Timeline t = Make();
        Cache cache(t.project, m_folder);
        QCOMPARE(cache.Needed(), t.shown);
        QCOMPARE(cache.Render(), NLECache_Finished);
        QCOMPARE(cache.Stat(), qMakePair(t.shown, Frames()));
        QVERIFY(Likeness(t.project, t.shown) >= kAlike);
        QCOMPARE(cache.Start(), E_FAIL); // there is no more to do
    }

    void reportsItsProgress()
    {
        const Timeline t = Make();
        const long total = CountOf(t.shown);
        Cache cache(t.project, m_folder);
        QCOMPARE(cache.Render(), NLECache_Finished);
        const std::vector<Report> reports = cache.Reports();
        QCOMPARE(reports.front().state, NLECache_Caching);
        QCOMPARE(reports.front().cached, 0L);
        QCOMPARE(reports.back().percent, 100);
        QCOMPARE(reports.back().cached, total);
        for (size_t i = 1; i < reports.size(); ++i) {
            QVERIFY(reports[i].cached >= reports[i - 1].cached);
            QCOMPARE(reports[i].total, total);
        }
        // Nobody is left waiting for a render that ended by itself.
        QCOMPARE(cache.engine->Stop(), S_OK);
        QCOMPARE(cache.End(NLECache_Stopped), NLECache_Stopped);
    }

    void lowestQualityIsRenderedAnewAndShows()
    {
        const Timeline t = Make();
        Cache cache(t.project, m_folder);
        QCOMPARE(cache.Render(), NLECache_Finished);
        cache.engine.query<INLEBackgroundCacheQualitySet>()->SetQuality({0, 1});
        QCOMPARE(cache.Needed(), t.shown);
        QCOMPARE(cache.Render(), NLECache_Finished);
        QVERIFY(Likeness(t.project, t.shown) < kAlike); // it is the cached picture that is shown
    }

    void keepsTransparencyExactly()
    {
        const Timeline t = Make();
        Cache inner(t.nested, m_folder);
        t.nested->GetInterface(INLEBackgroundCache::Iid, nullptr, 0, 0);
        QCOMPARE(inner.Render(), NLECache_Finished);
        QCOMPARE(Likeness(t.nested, {{0, 60}}), kEqual);
    }

    void mediaChangesWhileRendering()
    {
        // What was begun with one content of a file must not be found as that content.
        const Node project = Project();
        Add(project, Trimmed(Media(mMedia), 0, 49));
        Cache cache(project, m_folder);
        QCOMPARE(cache.Start({1920, 1080}), S_OK);
        QFile file(mMedia);
        QVERIFY(file.open(QIODevice::ReadWrite));
        file.setFileTime(QDateTime::currentDateTime().addDays(-2), QFile::FileModificationTime);
        QCOMPARE(cache.End(), NLECache_Finished);
        QCOMPARE(cache.Reports().back().cached, 0L);
        QCOMPARE(Files(m_folder, "*.nlechunk*"), QStringList());
    }

    void runs_data()
    {
        QTest::addColumn<int>("quota");
        QTest::addColumn<int>("reserve");
        QTest::addColumn<int>("largestFile");
        QTest::addColumn<bool>("isFolderRemoved");
        QTest::addColumn<long>("state");
        const auto row = [](const char* name, int quota, int reserve, int largestFile,
                            bool isFolderRemoved, long state) {
            QTest::newRow(name) << quota << reserve << largestFile << isFolderRemoved << state;
        };
        row("low disk", 1000, INT_MAX, 0, false, NLECache_LowDisk);
        row("no quota", 0, 0, 0, false, NLECache_QuotaReached);
        row("quota", 1, 0, 0, false, NLECache_QuotaReached);
        row("stopped", 1000, 0, 0, false, NLECache_Stopped);
        row("no large files", 1000, 0, 20000, false,
            FileSizeLimit::kIsFullDisk ? NLECache_LowDisk : NLECache_FolderUnwriteable);
        row("folder removed", 1000, 0, 0, true, NLECache_FolderUnwriteable);
    }

    void endsWithItsReason_data() { runs_data(); }

    void endsWithItsReason()
    {
        QFETCH(const bool, isFolderRemoved);
        if (isFolderRemoved && !kRemovesOpenFiles)
            QSKIP("a folder with open files is not removed there");
        QFETCH(const int, quota);
        QFETCH(const int, reserve);
        QFETCH(const long, state);
        const Node project = LongProject();
        Cache cache(project, m_folder, quota, reserve);
        QCOMPARE(Run(cache), state);
        QVERIFY(cache.Reports().back().percent < 100);
    }

    void endedRunLeavesWholeChunks_data() { runs_data(); }

    void endedRunLeavesWholeChunks()
    {
        QFETCH(const bool, isFolderRemoved);
        if (isFolderRemoved && !kRemovesOpenFiles)
            QSKIP("a folder with open files is not removed there");
        QFETCH(const int, quota);
        QFETCH(const int, reserve);
        QFETCH(const long, state);
        const Node project = LongProject();
        Cache cache(project, m_folder, quota, reserve);
        QCOMPARE(Run(cache), state);
        cache.Limit(m_folder, 1000);
        const Frames needed = cache.Needed();
        const Frames cached = cache.Stat().first;
        QCOMPARE(CountOf(cached) + CountOf(needed), long(kLongClips * kMediaFrames));
        if (quota <= 1)
            QVERIFY(SizeOf(m_folder) <= quota << 20);
        QVERIFY(Likeness(project, cached.mid(0, 2)) >= kAlike);

        // The rest can be rendered later.
        QCOMPARE(cache.Render(), NLECache_Finished);
        QCOMPARE(Files(m_folder, "*chunk*").size(), kLongClips * kChunksOfAClip + 1); // and a lock
        QVERIFY(Likeness(project, {{0, 300}}) >= kAlike);
    }

    void leastRecentlyUsedGoFirst()
    {
        // Room for what the second needs, and for less than the first has.
        const Node first = LongProject(40);
        const Node second = Project();
        Add(second, Colour(Qt::red));
        Cache cache(first, m_folder);
        QCOMPARE(cache.Render(), NLECache_Finished);
        const qint64 size = SizeOf(m_folder);
        QVERIFY(size > 2 << 20);
        QTest::qWait(5); // the next use is later than those before
        QVERIFY(!Shown(first, 0, NLEOpen_Cached).isNull());
        QVERIFY(!Shown(first, 1000, NLEOpen_Cached).isNull());
        Cache other(second, m_folder, size >> 20);
        QCOMPARE(other.Render(), NLECache_Finished);
        const Frames cached = (cache.Needed(), cache.Stat().first);
        QVERIFY(CountOf(cached) > 0 && CountOf(cached) < 40L * kMediaFrames);
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
        for (const char* name : {"notes.txt", "short.nlechunk", ".x.nlechunk.half"})
            QVERIFY(QFile::copy(mMedia, m_folder + '/' + name));
        const Timeline t = Make();
        const Node other = LongProject(1);
        Cache cache(t.project, m_folder);
        Cache otherCache(other, m_folder);
        QCOMPARE(cache.Render(), NLECache_Finished);
        otherCache.engine.query<INLEBackgroundCacheQualitySet>()->SetQuality({1, 2});
        QCOMPARE(otherCache.Render(), NLECache_Finished);
        QCOMPARE(cache.engine->DeleteCache(false), S_OK);
        QCOMPARE(cache.Needed(), t.shown);
        QCOMPARE(otherCache.Needed(), Frames());
        QCOMPARE(otherCache.engine->DeleteCache(true), S_OK);
        QCOMPARE(otherCache.Needed(), (Frames{{0, kMediaFrames}}));
        QCOMPARE(Files(m_folder, "*.txt"), QStringList("notes.txt"));
        QCOMPARE(Files(m_folder, "*.nlechunk"), QStringList("short.nlechunk"));
        QCOMPARE(Files(m_folder, "*.half"), QStringList(".x.nlechunk.half"));
    }

    void folderMadeForTheCacheGoesWithIt()
    {
        const Node project = LongProject(1);
        Cache cache(project, m_folder + "/made");
        QCOMPARE(cache.Render(), NLECache_Finished);
        QCOMPARE(cache.engine->DeleteCache(true), S_OK);
        QVERIFY(!QFileInfo::exists(m_folder + "/made"));
    }

    void deletesWhatWasBeforeAnEdit()
    {
        const Node project = LongProject(2);
        Cache cache(project, m_folder);
        QCOMPARE(cache.Render(), NLECache_Finished);
        ClipAt(project, 0).query<INLEBlendSetting>()->SetAlpha(99);
        QCOMPARE(cache.Render(), NLECache_Finished);
        QCOMPARE(Files(m_folder, "*.nlechunk").size(), (2 + 1) * kChunksOfAClip);
        QCOMPARE(cache.engine->DeleteCache(false), S_OK);
        QCOMPARE(Files(m_folder, "*.nlechunk"), QStringList());
    }

    void loadedTimelineDeletesItsOwn()
    {
        const NLESize large = {960, 540};
        const Node edited = LongProject(2);
        ClipAt(edited, 0).query<INLEBlendSetting>()->SetAlpha(99);
        Cache editedCache(edited, m_folder);
        QCOMPARE(editedCache.Start(large), S_OK);
        QCOMPARE(editedCache.End(), NLECache_Finished);
        const Node project = LongProject(2);
        Cache cache(project, m_folder);
        QCOMPARE(cache.Render(), NLECache_Finished);

        // Nothing has been analysed of what was loaded.
        const Node loaded = LongProject(2);
        QCOMPARE(Cache(loaded, m_folder).engine->DeleteCache(false), S_OK);
        QCOMPARE(cache.Needed(), (Frames{{0, 2 * kMediaFrames}}));
        QCOMPARE(editedCache.Needed(), Frames());
    }

    void loadedTimelineDeletesItsOwnAfterAnEdit()
    {
        const NLESize large = {960, 540};
        const Node project = LongProject(2);
        Cache cache(project, m_folder);
        QCOMPARE(cache.Start(large), S_OK);
        QCOMPARE(cache.End(), NLECache_Finished);
        const Node loaded = LongProject(2);
        Cache later(loaded, m_folder);
        QCOMPARE(later.Start(large), E_FAIL); // all is there
        ClipAt(loaded, 1)->SetEnabled(false);
        QCOMPARE(later.engine->DeleteCache(false), S_OK);
        QCOMPARE(Files(m_folder, "*.nlechunk"), QStringList());
    }

    void namedTimelineDeletesItsEarlierVersions()
    {
        const auto named = [this](const wchar_t* guid) {
            Node project = LongProject(2);
            BagOf(project)->SetString(NLEKey::Timeline::kGuid, guid);
            return project;
        };
        const Node other = named(L"other");
        for (const int clip : {0, 1})
            ClipAt(other, clip).query<INLEBlendSetting>()->SetAlpha(99);
        Cache otherCache(other, m_folder);
        QCOMPARE(otherCache.Render(), NLECache_Finished);
        const QStringList others = Files(m_folder, "*.nlechunk");
        {
            const Node earlier = named(L"first");
            ClipAt(earlier, 1).query<INLEBlendSetting>()->SetAlpha(50);
            Cache cache(earlier, m_folder);
            QCOMPARE(cache.Start({480, 270}), S_OK);
            QCOMPARE(cache.End(), NLECache_Finished);
        }
        QVERIFY(Files(m_folder, "*.nlechunk").size() > others.size());
        const Node loaded = named(L"first");
        QCOMPARE(Cache(loaded, m_folder).engine->DeleteCache(false), S_OK);
        QCOMPARE(Files(m_folder, "*.nlechunk"), others);
    }

    void folderGoesWithItsLastChunk()
    {
        const Node project = LongProject(1);
        Cache(project, m_folder).Render();
        const Node loaded = LongProject(1);
        QCOMPARE(Cache(loaded, m_folder).engine->DeleteCache(false), S_OK);
        QVERIFY(!QFileInfo::exists(m_folder));
    }

    void emptyFolderGoesWithTheCache()
    {
        // Whoever has made it, as it was empty.
        QVERIFY(QDir().mkpath(m_folder));
        const Node project = LongProject(1);
        Cache(project, m_folder).Render();
        QCOMPARE(Cache(project, m_folder).engine->DeleteCache(true), S_OK);
        QVERIFY(!QFileInfo::exists(m_folder));
    }

    void folderGoesThatNothingWasWrittenTo()
    {
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
        QCOMPARE(cache.Render(), NLECache_Finished);
        QCOMPARE(cache.Needed(), Frames());
        const QStringList names = Files(m_folder, "*.nlechunk");
        QVERIFY(QFile::remove(m_folder + '/' + names[0]));
        QVERIFY(!cache.Stat().second.isEmpty()); // as a host sees it that asks for nothing else
        const long needed = CountOf(cache.Needed());
        QVERIFY(needed > 0 && needed < 2L * kMediaFrames);
        QCOMPARE(cache.Render(), NLECache_Finished);
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
        QCOMPARE(cache.Render(), NLECache_Finished);
        for (const QFileInfo& info : QDir(m_folder).entryInfoList({"*.nlechunk"})) {
            QFile file(info.filePath());
            QVERIFY(file.open(QIODevice::ReadWrite));
            const qint64 offset = file.size() * place / 100;
            if (place == 100) {
                file.resize(file.size() - 1);
                continue;
            }
            file.seek(offset);
            const QByteArray damaged = file.read(1);
            file.seek(offset);
            file.write(QByteArray(1, char(damaged[0] ^ 0x55)));
        }
        double worst = kEqual;
        for (int frame = 0; frame < kMediaFrames; ++frame)
            worst = std::min(worst, Psnr(Shown(project, frame, NLEOpen_Cached),
                                         Shown(project, frame, NLEOpen_Render)));
        QVERIFY(worst >= kAlike);
        QCOMPARE(cache.Needed(), (Frames{{0, kMediaFrames}}));
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
        QVERIFY(QFile::copy(m_folder + '/' + whole[0], m_folder + "/." + whole[0] + ".half"));

        const Node loaded = Load(project);
        Cache cache(loaded, m_folder);
        const long needed = CountOf(cache.Needed());
        QVERIFY(needed > 0 && needed < long(kLongClips) * kMediaFrames);
        QCOMPARE(Files(m_folder, "*.nlechunk*"), whole);
        QVERIFY(Likeness(loaded, cache.Stat().first) >= kAlike);
        QCOMPARE(cache.Render(), NLECache_Finished);
        QCOMPARE(cache.Reports().front().total - cache.Reports().front().cached, needed);
        QCOMPARE(Files(m_folder, "*.nlechunk*").size(), kLongClips * kChunksOfAClip);
    }

    void twoProcesses()
    {
        const QString document = Path("shared.mlt");
        QVERIFY(Save(LongProject(), document));
        const Node project = Project();
        for (int i = 0; i < 60; ++i) {
            const Node clip = Media(mMedia);
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
        QVERIFY(QFile::copy(mMedia, writing));
        QCOMPARE(cache.engine->DeleteCache(true), S_OK);
        QVERIFY(QFile::exists(writing));
        other.kill();
        QVERIFY(other.waitForFinished());
        QCOMPARE(cache.engine->DeleteCache(true), S_OK);
    }

    void secondToStartSharesTheRun()
    {
        const Node project = LongProject();
        Cache first(project, m_folder);
        Cache second(project, m_folder);
        QCOMPARE(first.Start(), S_OK);
        QCOMPARE(second.Start(), S_FALSE);
        QTRY_VERIFY_WITH_TIMEOUT(!second.Reports().empty(), 60000);
        QCOMPARE(second.engine->Stop(), S_OK);
        QCOMPARE(first.End(), NLECache_Stopped);
        QCOMPARE(second.End(), NLECache_Stopped);
    }

    void whoAskedForTheRunBeforeIsNotTold()
    {
        const Node project = LongProject();
        Cache first(project, m_folder);
        Cache second(project, m_folder);
        QCOMPARE(first.Start(), S_OK);
        QCOMPARE(first.engine->Stop(), S_OK);
        QCOMPARE(first.End(), NLECache_Stopped);
        const size_t reports = first.Reports().size();
        QCOMPARE(second.Start(), S_OK);
        QCOMPARE(second.engine->Stop(), S_OK);
        QCOMPARE(second.End(), NLECache_Stopped);
        QCOMPARE(first.Reports().size(), reports);
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
#ifdef Q_OS_WIN
        QSKIP("no limit of a process's own threads");
#else
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
        QCOMPARE(end, long(result == S_OK ? NLECache_Finished : NLECache_Caching));
        QCOMPARE(cache.Reports().empty(), result != S_OK);
        QVERIFY(Psnr(shown, Shown(project, 3, NLEOpen_Render)) >= kAlike);
#endif
    }

    void releasedByItsOwnCall_data()
    {
        QTest::addColumn<bool>("isReport");
        QTest::newRow("within a report") << true;
        QTest::newRow("within the end of an analysis") << false;
    }

    void releasedByItsOwnCall()
    {
        QFETCH(const bool, isReport);
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

    void releasedWhileRendering()
    {
        Node project = LongProject();
        {
            Cache cache(project, m_folder);
            QCOMPARE(cache.Start(), S_OK);
            QCOMPARE(cache.Start(), S_FALSE);
            QTRY_VERIFY_WITH_TIMEOUT(!Files(m_folder, "*.nlechunk").isEmpty(), 60000);
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
        QTRY_COMPARE_WITH_TIMEOUT(calls.load(), int(CountOf(t.shown)), 60000);
        QCOMPARE(cache.Stat().second, t.shown);
        QCOMPARE(update->SetUpdateCallback(nullptr, nullptr), S_OK);
    }

    void anotherThreadSeesTheLastAnalysis()
    {
        // It does not read what is being edited.
        const Timeline t = Make();
        Cache cache(t.project, m_folder);
        QCOMPARE(cache.Needed(), t.shown);
        t.b->SetEnabled(false);
        std::thread([&] { cache.engine->Update(); }).join();
        QCOMPARE(cache.Stat().second, t.shown);
        QCOMPARE(cache.Needed(), (Frames{{0, 60}, {70, 90}, {140, 200}}));
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

// SPDX-License-Identifier: LGPL-2.1-or-later
// What the engine keeps of media files for all who ask: descriptions and open decoders.
#include "NLECore/media/DecoderPool.h"
#include "NLECore/media/MediaLog.h"
#include "NLECore/media/MediaStore.h"
#include "tests/support/MediaFixture.h"

#include <QDateTime>
#include <QtTest>

#include <atomic>
#include <random>
#include <thread>

using namespace nle;

namespace {

/// What was changed less long ago is not taken for known.
constexpr int kSettledMs = 300;

bool SetTime(const QString& name, int seconds)
{
    QFile file(name);
    const QDateTime time = QDateTime::fromSecsSinceEpoch(1000000000 + seconds);
    return file.open(QIODevice::ReadWrite) &&
           file.setFileTime(time, QFileDevice::FileModificationTime);
}

} // namespace

class tst_MediaSharing : public QObject, private MediaFixture
{
    Q_OBJECT

    /// Twelve files of the same content.
    QStringList MakeTwelve() const
    {
        const Info info = Make("shared.mp4", SmallClip(10));
        QStringList paths;
        for (int i = 0; i < 12; ++i) {
            paths << Path(QString("shared %1.mp4").arg(i));
            QFile::copy(info->path, paths.last());
        }
        QTest::qWait(kSettledMs);
        return paths;
    }
    Info PoolFile(int number) const
    {
        return Make(QString("pool%1.mp4").arg(number), SmallClip(60));
    }
    /// Leaves two decoders of the first file idle, after its frames 10 and 40.
    struct TwoDecoders
    {
        FrameDecoder* atTen;
        FrameDecoder* atForty;
    };
    TwoDecoders LeaveTwo(DecoderPool& pool) const
    {
        auto first = pool.Acquire(PoolFile(0), 0, DecodePurpose::Thumbnail, 0);
        auto second = pool.Acquire(PoolFile(0), 0, DecodePurpose::Thumbnail, 0);
        first->Picture(10, kThumbnail);
        second->Picture(40, kThumbnail);
        return {&*first, &*second};
    }
    FrameDecoder* Lent(DecoderPool& pool, DecodePurpose purpose, int frame) const
    {
        return &*pool.Acquire(PoolFile(0), 0, purpose, frame);
    }

private slots:
    void initTestCase() { QVERIFY(folder.isValid()); }

    void describedAnew_data()
    {
        QTest::addColumn<QString>("change");
        QTest::newRow("not as long as nothing changes") << "none";
        QTest::newRow("at another time") << "time";
        QTest::newRow("at another size") << "size";
        QTest::newRow("as another file of the same time and size") << "another file";
    }

    void describedAnew()
    {
        QFETCH(QString, change);
        const QString path = Path("described " + change + ".mp4");
        const QString other = Path("other.mp4");
        const QByteArray content = Contents(Make("to describe.mp4", SmallClip(10))->path);
        QVERIFY(SetContents(path, content));
        QVERIFY(SetTime(path, 0));
        QTest::qWait(kSettledMs);
        MediaStore store;
        const Info known = store.Describe(path).info;
        QVERIFY(known);
        if (change == "time")
            QVERIFY(SetTime(path, 1));
        if (change == "size") {
            QVERIFY(SetContents(path, content + content));
            QVERIFY(SetTime(path, 0));
        }
        if (change == "another file") {
            QVERIFY(SetContents(other, content));
            QVERIFY(SetTime(other, 0));
            QVERIFY(QFile::remove(path));
            QVERIFY(QFile::rename(other, path));
        }
        const Info next = store.Describe(path).info;
        QVERIFY(next);
        QCOMPARE(next == known, change == "none");
    }

    void fileThatWasGoneIsDescribedAnew()
    {
        const QString path = Make("gone.mp4", SmallClip(10))->path;
        const QString aside = Path("aside.mp4");
        QVERIFY(SetTime(path, 0));
        QTest::qWait(kSettledMs);
        MediaStore store;
        const Info known = store.Describe(path).info;
        QVERIFY(known);
        QVERIFY(QFile::rename(path, aside));
        QCOMPARE(store.Describe(path).error, path + ": no such file");
        QVERIFY(SetContents(path, "no longer media"));
        QVERIFY(!store.Describe(path).info);
        QVERIFY(QFile::remove(path));
        QVERIFY(QFile::rename(aside, path));
        const Info next = store.Describe(path).info;
        QVERIFY(next);
        QVERIFY(next != known);
    }

    void manyAreDescribedInTheirOrder()
    {
        const QStringList paths = MakeTwelve();
        const QString missing = Path("missing.mp4");
        MediaStore store;
        const auto all = store.DescribeAll(paths + QStringList{missing, paths[0]});
        QCOMPARE(int(all.size()), 14);
        for (int i = 0; i < 12; ++i) {
            QVERIFY(all[size_t(i)].info);
            QCOMPARE(all[size_t(i)].info->path, paths[i]);
        }
        QVERIFY(!all[12].info);
        QCOMPARE(all[12].error, missing + ": no such file");
        QCOMPARE(all[13].info->path, paths[0]);
        QVERIFY(store.DescribeAll({}).empty());
    }

    void lastDescriptionsAreKnown()
    {
        const QStringList paths = MakeTwelve();
        MediaStore store(8);
        std::vector<Info> known;
        for (const QString& path : paths)
            known.push_back(store.Describe(path).info);
        QVERIFY(store.Describe(paths[11]).info == known[11]);
        QVERIFY(store.Describe(paths[4]).info == known[4]);
        QVERIFY(store.Describe(paths[0]).info != known[0]);
    }

    void threadsWaitForTheSameDescription()
    {
        const QString path = MakeTwelve().front();
        MediaStore store;
        std::vector<std::thread> threads;
        std::vector<Info> found(4);
        for (Info& info : found)
            threads.emplace_back([&] { info = store.Describe(path).info; });
        for (std::thread& thread : threads)
            thread.join();
        QVERIFY(found[0]);
        for (const Info& info : found)
            QCOMPARE(info, found[0]);
    }

    void poolLendsTheClosestBeforeTheFrame()
    {
        DecoderPool pool(3);
        const TwoDecoders left = LeaveTwo(pool);
        QVERIFY(left.atTen != left.atForty);
        QCOMPARE(pool.OpenCount(), 2);
        QCOMPARE(pool.IdleCount(), 2);
        QCOMPARE(Lent(pool, DecodePurpose::Thumbnail, 39), left.atTen);
        QCOMPARE(Lent(pool, DecodePurpose::Thumbnail, 41), left.atForty);
        QCOMPARE(Lent(pool, DecodePurpose::Thumbnail, 3), left.atTen);
    }

    void lentDecodersAreNotIdle()
    {
        DecoderPool pool(3);
        const auto lease = pool.Acquire(PoolFile(0), 0, DecodePurpose::Thumbnail, 0);
        QCOMPARE(pool.OpenCount(), 1);
        QCOMPARE(pool.IdleCount(), 0);
    }

    void poolLendsForOnePurpose()
    {
        DecoderPool pool(3);
        const TwoDecoders left = LeaveTwo(pool);
        const FrameDecoder* render = Lent(pool, DecodePurpose::Render, 41);
        QVERIFY(render != left.atTen);
        QVERIFY(render != left.atForty);
        QCOMPARE(pool.OpenCount(), 3);
    }

    void poolClosesTheOneUnusedLongest()
    {
        DecoderPool pool(2);
        const TwoDecoders left = LeaveTwo(pool);
        QCOMPARE(Lent(pool, DecodePurpose::Thumbnail, 41), left.atForty);
        QCOMPARE(Lent(pool, DecodePurpose::Thumbnail, 3), left.atTen);
        pool.Acquire(PoolFile(1), 0, DecodePurpose::Thumbnail, 0);
        QCOMPARE(pool.OpenCount(), 2);
        QCOMPARE(Lent(pool, DecodePurpose::Thumbnail, 41), left.atTen);
    }

    void lentDecodersStayBeyondTheBound()
    {
        DecoderPool pool(3);
        {
            std::vector<DecoderPool::Lease> leases;
            for (int file = 0; file < 4; ++file)
                leases.push_back(pool.Acquire(PoolFile(file), 0, DecodePurpose::Render, 0));
            QCOMPARE(pool.OpenCount(), 4);
            pool.Drop(PoolFile(2)->path);
            QCOMPARE(ReadFrameNumber(leases[2]->Picture(5, kThumbnail)), 5);
        }
        // Without the first to come back, and without the dropped one.
        QCOMPARE(pool.OpenCount(), 2);
        for (int file = 0; file < 4; ++file)
            pool.Drop(PoolFile(file)->path);
        QCOMPARE(pool.OpenCount(), 0);
    }

    void poolOpensNoStreamThatIsNotThere()
    {
        DecoderPool pool;
        QString error;
        QVERIFY(!pool.Acquire(PoolFile(0), 7, DecodePurpose::Render, 0, &error));
        QVERIFY(!error.isEmpty());
        QCOMPARE(pool.OpenCount(), 0);
    }

    void poolReopensReplacedFile()
    {
        const auto info = Make("replaced.mp4", SmallClip(30));
        QVERIFY(info);
        DecoderPool pool;
        QVERIFY(
            !pool.Acquire(info, 0, DecodePurpose::Render, 20)->Picture(20, kThumbnail).isNull());
        QVERIFY(pool.Acquire(info, 0, DecodePurpose::Render, 20)->IsFileUnchanged());
        QCOMPARE(MakeTestClip(Path("shorter.mp4"), SmallClip(10)), QString());
#ifdef Q_OS_WIN
        QSKIP("a file that is open is not removed there");
#endif
        QVERIFY(QFile::remove(info->path));
        QVERIFY(QFile::rename(Path("shorter.mp4"), info->path));
        QVERIFY(pool.Acquire(info, 0, DecodePurpose::Render, 20)->Picture(20, kThumbnail).isNull());
        QVERIFY(QFile::remove(info->path));
        QString error;
        QVERIFY(!pool.Acquire(info, 0, DecodePurpose::Render, 0, &error));
        QCOMPARE(error, info->path + ": no such file");
    }

    void poolServesThreads()
    {
        const Info info = Make("threads.mp4", SmallClip(100));
        QVERIFY(info);
        std::atomic<int> wrong{0};
        {
            DecoderPool pool(2);
            std::vector<std::thread> threads;
            for (unsigned seed = 0; seed < 4; ++seed) {
                threads.emplace_back([&, seed] {
                    std::mt19937 generator(seed);
                    for (int i = 0; i < 25; ++i) {
                        const int frame = int(generator() % 100);
                        auto lease = pool.Acquire(info, 0, DecodePurpose::Thumbnail, frame);
                        wrong += ReadFrameNumber(lease->Picture(frame, kThumbnail)) != frame;
                    }
                });
            }
            for (std::thread& thread : threads)
                thread.join();
            QVERIFY(pool.OpenCount() <= 2);
        }
        QCOMPARE(wrong.load(), 0);
    }

    void complaintsOfTheFrameworkGoToTheLog()
    {
        const Info info = Make("threads.mp4", SmallClip(100));
        QVERIFY(SetContents(Path("bad.mp4"), Contents(info->path).left(3000)));
        std::atomic<int> logged{0};
        SetMediaLogSink([&logged](const char*) { ++logged; });
        QVERIFY(!ProbeMedia(Path("bad.mp4"), nullptr));
        SetMediaLogSink(nullptr);
        QVERIFY(logged > 0);
    }
};

QTEST_GUILESS_MAIN(tst_MediaSharing)
#include "tst_media_sharing.moc"

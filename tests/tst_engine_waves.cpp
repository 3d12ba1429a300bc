// SPDX-License-Identifier: LGPL-2.1-or-later
// Envelopes of sounds that the open engine keeps on disk.
#include "tests/support/EngineFixture.h"

#include <QDirIterator>

namespace {

constexpr int kSteps = 100;

struct Envelope
{
    HRESULT result = E_FAIL;
    std::vector<float> minima;
    std::vector<float> maxima;
};

int GoOn(int /*percent*/, void* /*userData*/)
{
    return 0;
}
int StopAtThirty(int percent, void* userData)
{
    *static_cast<int*>(userData) = percent;
    return percent >= 30 ? 1 : 0;
}

} // namespace

class tst_EngineWaves : public QObject, private EngineFixture
{
    Q_OBJECT

    /// A sound that grows louder, of ten seconds; made once.
    QString Sound(const QString& name) const
    {
        const QString path = folder.filePath(name);
        const QString failure =
            QFile::exists(path)
                ? QString()
                : RunFfmpeg({"-f", "lavfi", "-i",
                             "aevalsrc=0.08*t*sin(2000*t)|0.08*t*sin(2000*t):d=10:s=44100", path});
        return failure.isEmpty() ? path : failure;
    }
    NLEComPtr<INLEWaveExtractor> Open(const QString& path) const
    {
        const Node clip = Media(path);
        NLEComPtr<INLEMediaInfo> info;
        std::uint32_t stream = NLENoStream;
        clip.query<INLETimelineSource>()->GetMediaInfo(info.put());
        clip.query<INLETimelineSource>()->GetAudioStreamIndex(&stream);
        auto wave = provider->CreateWaveExtractor();
        return wave->SetSource(info.get(), stream) == S_OK ? wave : nullptr;
    }
    static Envelope Read(const NLEComPtr<INLEWaveExtractor>& wave, double start, double length,
                         int steps = kSteps)
    {
        Envelope envelope;
        envelope.minima.resize(size_t(steps));
        envelope.maxima.resize(size_t(steps));
        envelope.result =
            wave->Extract(start, length, steps, envelope.minima.data(), envelope.maxima.data());
        return envelope;
    }
    static bool IsCached(const NLEComPtr<INLEWaveExtractor>& wave)
    {
        bool cached = false;
        wave.query<INLEWaveCache>()->IsCached(&cached);
        return cached;
    }
    QStringList Kept() const { return QDir(m_folder).entryList(QDir::Files | QDir::Hidden); }

    QString m_folder;

private slots:
    void init()
    {
        m_folder = folder.filePath(
            QString("waves of %1 %2").arg(QTest::currentTestFunction(), QTest::currentDataTag()));
        QCOMPARE(SetWaveFolder(m_folder, 100), S_OK);
    }

    void cleanupTestCase() { SetWaveFolder(QString(), 100); }

    void keptEnvelopeIsThatOfTheSound_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("start");
        QTest::addColumn<double>("length");
        QTest::newRow("all of it") << "a.wav" << 0.0 << 10.0;
        QTest::newRow("a part on the second level") << "a.wav" << 3.3 << 5.0;
        QTest::newRow("a part on the finest level") << "a.wav" << 7.1 << 1.2;
        QTest::newRow("a part that is finer") << "a.wav" << 7.1 << 0.5;
        QTest::newRow("over its end") << "a.flac" << 5.0 << 20.0;
        QTest::newRow("behind its end") << "a.flac" << 11.0 << 9.0;
        QTest::newRow("from before its start") << "a.wav" << -2.0 << 10.0;
    }

    void keptEnvelopeIsThatOfTheSound()
    {
        QFETCH(QString, name);
        QFETCH(double, start);
        QFETCH(double, length);
        const auto wave = Open(Sound(name));
        QVERIFY(wave);
        SetWaveFolder(m_folder, 0);
        const Envelope wanted = Read(wave, start, length); // of the sound itself
        SetWaveFolder(m_folder, 100);
        QCOMPARE(wave.query<INLEWaveCache>()->Compute(GoOn, nullptr), S_OK);
        const Envelope found = Read(wave, start, length);
        QCOMPARE(found.result, S_OK);
        // A loud place may be drawn a quarter of a step further on.
        const float drift = float(0.08 * length / kSteps) / 4 + 2e-4F;
        for (size_t i = 0; i < kSteps; ++i) {
            QCOMPARE(Deviation(found.maxima[i], wanted.maxima[i], drift), QString());
            QCOMPARE(Deviation(found.minima[i], wanted.minima[i], drift), QString());
        }
    }

    void whatIsComputedIsKept_data()
    {
        QTest::addColumn<double>("length");
        QTest::addColumn<bool>("isKept");
        QTest::newRow("by drawing all of it") << 10.0 << true;
        QTest::newRow("not by drawing a little") << 2.0 << false;
    }

    void whatIsComputedIsKept()
    {
        QFETCH(double, length);
        const QString path = Sound("kept.wav");
        QVERIFY(!IsCached(Open(path)));
        QCOMPARE(Read(Open(path), 0, length).result, S_OK);
        QTEST(IsCached(Open(path)), "isKept");
    }

    void computingIsStopped()
    {
        const auto wave = Open(Sound("stopped.wav"));
        const auto cache = wave.query<INLEWaveCache>();
        int last = -1;
        QCOMPARE(cache->Compute(StopAtThirty, &last), S_FALSE);
        QVERIFY(last >= 30 && last < 50);
        QCOMPARE(Kept(), QStringList());
        last = -1;
        QCOMPARE(cache->Compute(nullptr, nullptr), S_OK);
        QCOMPARE(cache->Compute(StopAtThirty, &last), S_OK);
        QCOMPARE(last, 100);
    }

    void damagedFileIsComputedAnew_data()
    {
        QTest::addColumn<int>("place");
        QTest::addColumn<bool>("isCut");
        QTest::newRow("in its head") << 6 << false;
        QTest::newRow("in its sums") << 33 << false;
        QTest::newRow("in its data") << 8300 << false;
        QTest::newRow("cut off") << 9000 << true;
        QTest::newRow("empty") << 0 << true;
    }

    void damagedFileIsComputedAnew()
    {
        QFETCH(int, place);
        QFETCH(bool, isCut);
        const QString sound = Sound("damaged.wav");
        const Envelope before = Read(Open(sound), 0, 10);
        QCOMPARE(Kept().size(), 1);
        const QString path = m_folder + '/' + Kept().front();
        const QByteArray whole = Contents(path);
        QByteArray damaged = isCut ? whole.left(place) : whole;
        // Every finer bin behind the place, so that one of them is asked for.
        for (int i = place; i < damaged.size() && i < place + 8000; ++i)
            damaged[i] = char(damaged[i] ^ 0x55);
        QVERIFY(SetContents(path, damaged));
        for (int round = 0; round < 2; ++round) {
            const Envelope after = Read(Open(sound), 0, 10);
            QCOMPARE(after.result, S_OK);
            QVERIFY(after.maxima[90] > 0.7F && after.maxima[10] < 0.12F);
        }
        QCOMPARE(Contents(path), whole);
    }

    void changedSoundIsComputedAnew()
    {
        const QString path = Sound("changed.wav");
        Read(Open(path), 0, 10);
        const auto old = Open(path);
        QFile::remove(path);
        QCOMPARE(RunFfmpeg({"-f", "lavfi", "-i", "anullsrc=d=10", path}), QString());
        QVERIFY(!IsCached(old));
        const Envelope envelope = Read(Open(path), 0, 10);
        QCOMPARE(envelope.maxima[kSteps - 1], 0.0F);
    }

    void quotaHolds()
    {
        // Eighteen minutes fill more than a megabyte.
        const QString longest = folder.filePath("long.wav");
        QCOMPARE(RunFfmpeg({"-f", "lavfi", "-i", "sine=duration=1200:sample_rate=8000", longest}),
                 QString());
        const QString shorter = folder.filePath("shorter.wav");
        QCOMPARE(RunFfmpeg({"-f", "lavfi", "-i", "sine=duration=600:sample_rate=8000", shorter}),
                 QString());
        const QString other = folder.filePath("other.wav");
        QVERIFY(QFile::copy(shorter, other));
        QCOMPARE(SetWaveFolder(m_folder, 1), S_OK);
        QVERIFY(QDir().mkpath(m_folder));
        QFile foreign(m_folder + "/of somebody else");
        QVERIFY(foreign.open(QIODevice::WriteOnly));
        QCOMPARE(Open(longest).query<INLEWaveCache>()->Compute(nullptr, nullptr), E_FAIL);
        QCOMPARE(Open(shorter).query<INLEWaveCache>()->Compute(nullptr, nullptr), S_OK);
        QTest::qWait(20); // times of use differ
        QCOMPARE(Open(other).query<INLEWaveCache>()->Compute(nullptr, nullptr), S_OK);
        QVERIFY(!IsCached(Open(shorter)));
        QVERIFY(IsCached(Open(other)));
        QCOMPARE(Kept().size(), 2);
    }

    void nothingIsKeptWithoutRoom_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<int>("quota");
        QTest::newRow("no quota") << Path("none") << 0;
        QTest::newRow("no folder can be made") << Sound("a.wav") + "/below" << 100;
    }

    void nothingIsKeptWithoutRoom()
    {
        QFETCH(QString, place);
        QFETCH(int, quota);
        QCOMPARE(SetWaveFolder(place, quota), S_OK);
        QCOMPARE(SetWaveFolder(place, -1), E_INVALIDARG);
        const auto wave = Open(Sound("a.wav"));
        QCOMPARE(wave.query<INLEWaveCache>()->Compute(nullptr, nullptr), E_FAIL);
        const Envelope envelope = Read(wave, 0, 10);
        QCOMPARE(envelope.result, S_OK);
        QCOMPARE(Deviation(envelope.maxima[kSteps - 1], 0.8, 0.01), QString());
    }
};

QTEST_MAIN(tst_EngineWaves)
#include "tst_engine_waves.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
// Proxies: films of fewer lines that the engine makes, finds again and leaves out of what is
// exported.
#include "EngineApi/INLEEncode.h"
#include "EngineApi/INLEProxies.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/NLEKey.h"
#include "NLECore/media/FileClaim.h"
#include "NLECore/media/WholeFile.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/Files.h"

#include <QProcess>
#include <QSemaphore>

#include <cstdlib>

class tst_Proxies : public QObject, private EngineFixture
{
    Q_OBJECT

    using Maker = NLEComPtr<INLEProxyMaker>;
    static constexpr int kHeight = 90;

    /// What a maker says of one file, until it says the last.
    struct Listener
    {
        std::function<void()> onProgress = [] {};
        QList<HRESULT> states;
        QSemaphore last;

        static void Take(const wchar_t* /*file*/, HRESULT state, int /*percent*/, void* user)
        {
            auto& self = *static_cast<Listener*>(user);
            self.states << state;
            if (state == S_FALSE)
                self.onProgress();
            else
                self.last.release();
        }
    };

    NLEComPtr<INLEFactory> m_engine;
    QString m_media = Path("clip.mp4");

    Maker NewMaker(const QString& kept) const
    {
        Maker maker;
        m_engine->CreateProxyMaker(maker.put());
        maker->SetFolder(kept.toStdWString().c_str(), 100);
        maker->SetHeight(kHeight);
        return maker;
    }
    static HRESULT Make(const Maker& maker, const QString& file, Listener& listener)
    {
        maker->Make(file.toStdWString().c_str(), &Listener::Take, &listener);
        return listener.last.tryAcquire(1, 60000) ? listener.states.last() : E_NOTIMPL;
    }
    static QString Find(const Maker& maker, const QString& file)
    {
        wchar_t path[1000] = L"?";
        const HRESULT result = maker->Find(file.toStdWString().c_str(), path, 1000);
        const QString found = QString::fromWCharArray(path);
        return result == (found.isEmpty() ? S_FALSE : S_OK) ? found : QStringLiteral("refused");
    }
    Node Export(const Node& project, bool withProxies) const
    {
        const auto options = provider->CreateNLEProperties();
        options->SetInt(NLEKey::Encode::kProxies, withProxies ? 1 : 0);
        const auto encoder = provider->CreateMediaEncoder();
        const QString film = Path("film.mp4");
        const bool isWritten =
            encoder.query<INLEEncodeOptions>()->SetOptions(options.get()) == S_OK &&
            encoder->Open(project.get(), film.toStdWString().c_str(), nullptr) == S_OK &&
            encoder->Encode(nullptr, nullptr) == S_OK;
        return isWritten ? Media(film) : Node();
    }

private slots:
    void initTestCase()
    {
        m_engine = Factory();
        QVERIFY(m_engine);
        TestClip clip;
        clip.rateNum = 30000;
        clip.rateDen = 1001;
        clip.audioCodec = "aac";
        QCOMPARE(MakeTestClip(m_media, clip), QString());
        clip.codec.clear();
        QCOMPARE(MakeTestClip(Path("sound.m4a"), clip), QString());
        QVERIFY(PaintFrameNumber(7, QSize(320, 180)).save(Path("still.png")));
        QVERIFY(SetContents(Path("text.mp4"), "no film"));
    }
    void cleanupTestCase() { m_engine.reset(); }

    void showsTheFramesOfItsMedia()
    {
        const Maker maker = NewMaker(Path("proxies"));
        QCOMPARE(Find(maker, m_media), QString());
        Listener listener;
        QCOMPARE(Make(maker, m_media, listener), S_OK);
        QVERIFY(listener.states.count(S_FALSE) > 1);
        const QString proxy = Find(maker, m_media);
        const Node made = Media(proxy);
        QVERIFY(made);
        NLERational rate = {};
        made->GetRenderFrameRate(&rate);
        QCOMPARE(double(rate.num) / double(rate.den), 30000.0 / 1001);
        QCOMPARE(TotalOf(made).out, 49);

        const Node clip = Media(m_media);
        const auto video = Facet<INLEVideoStreamProcess>(clip);
        QCOMPARE(video->SetProxyFile(proxy.toStdWString().c_str()), S_OK);
        video->SetProxyEnabled(true);
        for (const int frame : {0, 1, 23, 49})
            QCOMPARE(ReadFrameNumber(Frame(clip, frame)), frame);
    }

    void foundByContent()
    {
        const Maker maker = NewMaker(Path("content"));
        Listener listener;
        QCOMPARE(Make(maker, m_media, listener), S_OK);
        const QString proxy = Find(maker, m_media);
        const QString moved = Path("moved.MP4");
        QVERIFY(QFile::copy(m_media, moved));
        QCOMPARE(Find(NewMaker(Path("content")), moved), proxy);
        // Told at once, as it is there.
        Listener again;
        QCOMPARE(Make(maker, moved, again), S_OK);
        QCOMPARE(again.states, QList<HRESULT>{S_OK});

        maker->SetHeight(kHeight + 2);
        QCOMPARE(Find(maker, moved), QString());
        maker->SetHeight(kHeight);
        QFile file(moved);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(file.size() - 1) &&
                file.write("\x7F", 1) == 1);
        file.close();
        QCOMPARE(Find(maker, moved), QString());
    }

    void standsForAnImageSequence()
    {
        QDir(folder.path()).mkdir("shots");
        for (int i = 0; i < 12; ++i)
            QVERIFY(PaintFrameNumber(i, QSize(320, 180))
                        .save(Path("shots/shot_%1.png").arg(i + 5, 4, 10, QChar('0'))));
        const QString pattern = Path("shots/shot_%04d.png");
        const Maker maker = NewMaker(Path("of-shots"));
        Listener listener;
        QCOMPARE(Make(maker, pattern, listener), S_OK);
        const QString proxy = Find(maker, pattern);
        QCOMPARE(TotalOf(Media(proxy)).out, 11);

        // One frame for each picture, whatever rate they are played at.
        const Node clip = provider->CreateMediaTimeline(pattern, true);
        BagOf(clip)->SetRational(NLEKey::Sequence::kFramerate, {10, 1});
        const Node project = ProjectWith(clip);
        const auto video = Facet<INLEVideoStreamProcess>(clip);
        for (const bool isEnabled : {false, true}) {
            video->SetProxyFile(isEnabled ? proxy.toStdWString().c_str() : L"");
            video->SetProxyEnabled(isEnabled);
            for (const int frame : {0, 3, 14, 29})
                QCOMPARE(ReadFrameNumber(Frame(project, frame)), frame * 10 / 25);
        }

        QVERIFY(QDir().rename(Path("shots"), Path("moved shots")));
        const QString moved = Path("moved shots/shot_%04d.png");
        QCOMPARE(Find(maker, moved), proxy);
        QVERIFY(PaintFrameNumber(99, QSize(320, 180)).save(Path("moved shots/shot_0009.png")));
        QCOMPARE(Find(maker, moved), QString());
    }

    void whatAProcessLeftWhenItEndedGoes()
    {
        const char* const inChild = "TST_PROXIES_FOLDER";
        if (qEnvironmentVariableIsSet(inChild)) {
            Listener listener;
            listener.onProgress = [] { std::_Exit(0); };
            Make(NewMaker(qEnvironmentVariable(inChild)), m_media, listener);
            return;
        }
        const QDir kept(Path("left"));
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(inChild, kept.path());
        environment.insert("TMPDIR", folder.path()); // it cannot remove its own folder
        QProcess child;
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(), {"whatAProcessLeftWhenItEndedGoes"});
        QVERIFY(child.waitForFinished(60000));
        const QString ended = kept.entryList({"*.lock"}).value(0).left(32);
        QVERIFY(!ended.isEmpty());
        const QString living(32, 'a');
        nle::FileClaim claim(kept.filePath(living + ".lock"));
        nle::WholeFile half(kept.filePath(living + ".mp4"));
        QVERIFY(claim.Take() && half.open(QIODevice::WriteOnly));
        QCOMPARE(kept.entryList(QDir::Files | QDir::Hidden).size(), 4);
        QCOMPARE(Find(NewMaker(kept.path()), m_media), QString());
        QCOMPARE(kept.entryList(QDir::Files | QDir::Hidden),
                 (QStringList{"." + living + ".mp4.half", living + ".lock"}));
    }

    void refused_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("height");
        QTest::newRow("missing") << "missing.mp4" << kHeight;
        QTest::newRow("no film") << "text.mp4" << kHeight;
        QTest::newRow("a sound") << "sound.m4a" << kHeight;
        QTest::newRow("a still") << "still.png" << kHeight;
        QTest::newRow("no more lines than the proxy") << "clip.mp4" << 180;
    }
    void refused()
    {
        QFETCH(QString, file);
        QFETCH(int, height);
        const Maker maker = NewMaker(Path("refused"));
        QCOMPARE(maker->SetHeight(height), S_OK);
        Listener listener;
        QCOMPARE(Make(maker, Path(qPrintable(file)), listener), E_INVALIDARG);
        QCOMPARE(listener.states.size(), 1);
        QCOMPARE(Find(maker, Path(qPrintable(file))), QString());
    }

    void cancelled()
    {
        const Maker maker = NewMaker(Path("cancelled"));
        Listener running;
        running.onProgress = [&] { maker->Cancel(nullptr); };
        Listener waiting;
        maker->Make(m_media.toStdWString().c_str(), &Listener::Take, &running);
        maker->Make(Path("still.png").toStdWString().c_str(), &Listener::Take, &waiting);
        QVERIFY(running.last.tryAcquire(1, 60000));
        QVERIFY(waiting.last.tryAcquire(1, 60000));
        QCOMPARE(running.states, (QList<HRESULT>{S_FALSE, E_ABORT}));
        QCOMPARE(waiting.states, QList<HRESULT>{E_ABORT});
        QCOMPARE(QDir(Path("cancelled")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
                 QStringList());
        QCOMPARE(maker->Cancel(nullptr), S_FALSE);
    }

    void lastReferenceGoesInTheCallback()
    {
        Maker maker = NewMaker(Path("gone"));
        Listener listener;
        QSemaphore gone;
        listener.onProgress = [&] {
            maker.reset();
            gone.release();
        };
        maker->Make(m_media.toStdWString().c_str(), &Listener::Take, &listener);
        QVERIFY(gone.tryAcquire(1, 60000));
        QVERIFY(!listener.last.tryAcquire(1, 500)); // nobody is told any more
        QCOMPARE(listener.states, QList<HRESULT>{S_FALSE});
    }

    void leftOutOfExports_data()
    {
        QTest::addColumn<bool>("withProxies");
        QTest::newRow("as it is") << false;
        QTest::newRow("when asked for") << true;
    }
    void leftOutOfExports()
    {
        QFETCH(bool, withProxies);
        const QString other = Path("other.mp4");
        if (!QFile::exists(other))
            QCOMPARE(RunFfmpeg({"-f", "lavfi", "-i", "color=blue:size=160x90:rate=25", "-frames:v",
                                "50", other}),
                     QString());
        const Node clip = Media(m_media);
        const auto video = Facet<INLEVideoStreamProcess>(clip);
        QCOMPARE(video->SetProxyFile(other.toStdWString().c_str()), S_OK);
        video->SetProxyEnabled(true);
        const Node outer = Project();
        Add(outer, ProjectWith(Trimmed(clip, 0, 4)));
        const Node film = Export(outer, withProxies);
        QVERIFY(film);
        QCOMPARE(ReadFrameNumber(Frame(film, 3)), withProxies ? -1 : 3);
    }
};

QTEST_GUILESS_MAIN(tst_Proxies)
#include "tst_proxies.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
// The engine's player: pictures and sound in real time. Nothing here asks how fast it is.
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETitle.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/PlayerFixture.h"
#include "tests/support/PreviewCacheFixture.h"

#include <QRandomGenerator>

#include <thread>

namespace {

constexpr int kPatience = 60000;
const QRgb kRed = qRgb(255, 0, 0);
const QRgb kBlue = qRgb(0, 0, 255);

} // namespace

class tst_Player : public QObject, private PlayerFixture
{
    Q_OBJECT

    static constexpr qint64 kSecondBytes = kSampleRate * qint64(2 * sizeof(float)); // two channels

    /// Stretches of samples that follow each other, each with its first number and count. Silence
    /// between samples that follow each other does not end a stretch.
    static QVector<QPair<int, int>> Stretches(const std::vector<int>& numbers)
    {
        QVector<QPair<int, int>> stretches;
        for (const int number : numbers) {
            if (number < 0)
                continue;
            if (stretches.isEmpty() || stretches.back().first + stretches.back().second != number)
                stretches.append({number, 0});
            ++stretches.back().second;
        }
        return stretches;
    }

private slots:
    void initTestCase() { QVERIFY(folder.isValid()); }
    void init()
    {
        // No device: a steady clock.
        qputenv("SDL_AUDIODRIVER", "none");
    }

    void needsANode()
    {
        const Screening screening = Screen();
        INLEPlayer& player = *screening.player;
        int frame = 0;
        QCOMPARE(screening.State(), int(NLEPlayer_Closed));
        QCOMPARE(player.Play(1), E_FAIL);
        QCOMPARE(player.Seek(0), E_FAIL);
        QCOMPARE(player.Step(1), E_FAIL);
        QCOMPARE(player.Scrub(1), E_FAIL);
        QCOMPARE(player.Refresh(), E_FAIL);
        QCOMPARE(player.GetPosition(&frame), E_FAIL);
        QCOMPARE(player.Open(nullptr), E_INVALIDARG);
        QCOMPARE(player.Open(Project().get()), E_INVALIDARG);
        QCOMPARE(player.Close(), S_OK);
        QCOMPARE(player.Open(ProjectWith(Colour(Qt::red)).get()), S_OK);
        for (const double rate : {0.0, 8.5, -9.0, std::nan(""), HUGE_VAL})
            QCOMPARE(player.Play(rate), E_INVALIDARG);
        QCOMPARE(player.SetLoop(5, 4, true), E_INVALIDARG);
        QCOMPARE(player.SetLoop(1000, 2000, true), E_INVALIDARG);
        QCOMPARE(player.SetVolume(-1), E_INVALIDARG);
        QCOMPARE(player.SetSoundOffset(1001), E_INVALIDARG);
        QCOMPARE(player.SetPictureSize(0, 5), E_INVALIDARG);
    }

    void goes_data()
    {
        QTest::addColumn<QString>("call");
        QTest::addColumn<int>("argument");
        QTest::addColumn<int>("frame");
        QTest::newRow("ahead") << "seek" << 77 << 77;
        QTest::newRow("to the last frame") << "seek" << 99 << 99;
        QTest::newRow("beyond the end") << "seek" << 5000 << 99;
        QTest::newRow("before the start") << "seek" << -5 << 0;
        QTest::newRow("where it is") << "seek" << 50 << 50;
        QTest::newRow("a frame ahead") << "step" << 1 << 51;
        QTest::newRow("a frame back") << "step" << -1 << 49;
        QTest::newRow("dragged") << "scrub" << 23 << 23;
    }
    void goes()
    {
        QFETCH(QString, call);
        QFETCH(int, argument);
        QFETCH(int, frame);
        const Screening screening = Screen(ProjectWith(Film()));
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().number, 0, kPatience);
        screening.player->Seek(50);
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().number, 50, kPatience);
        screening.spy->Forget();
        if (call == "seek")
            screening.player->Seek(argument);
        else if (call == "step")
            screening.player->Step(argument);
        else
            screening.player->Scrub(argument);
        QCOMPARE(screening.Position(), frame);
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().number, frame, kPatience);
        QCOMPARE(screening.spy->Last().frame, frame);
        QCOMPARE(screening.State(), int(NLEPlayer_Paused));
        // Of many, one after the other, the last one holds.
        for (int i = 0; i < 30; ++i)
            call == "scrub" ? screening.player->Scrub(i * 37 % 100)
                            : screening.player->Seek(i * 37 % 100);
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().number, 29 * 37 % 100, kPatience);
    }

    void plays_data()
    {
        QTest::addColumn<double>("rate");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("last");
        QTest::newRow("as it is") << 1.0 << 75 << 99;
        QTest::newRow("at half the speed") << 0.5 << 93 << 99;
        QTest::newRow("faster than sound") << 8.0 << 0 << 99;
        QTest::newRow("backwards") << -1.0 << 12 << 0;
        QTest::newRow("backwards fast") << -8.0 << 99 << 0;
        QTest::newRow("from the end it begins anew") << 8.0 << 99 << 99;
    }
    // To the end, in order, each picture the one that it is said to be, none early and each shown
    // or counted as dropped.
    void plays()
    {
        QFETCH(double, rate);
        QFETCH(int, from);
        QFETCH(int, last);
        const Screening screening = Screen(ProjectWith(Film()));
        screening.player->Seek(from);
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().number, from, kPatience);
        screening.spy->Forget();
        QCOMPARE(screening.player->Play(rate), S_OK);
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->States(),
                                  (std::vector<int>{NLEPlayer_Playing, NLEPlayer_Paused}),
                                  kPatience);
        QCOMPARE(screening.Position(), last);
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().number, last, kPatience);
        int before = screening.spy->Pictures().front().frame;
        for (const PlayerSpy::Shown& shown : screening.spy->Pictures()) {
            QCOMPARE(shown.number, shown.frame);
            QVERIFY(rate > 0 ? shown.frame >= before : shown.frame <= before);
            QVERIFY(rate > 0 ? shown.position >= shown.frame : shown.position <= shown.frame);
            before = shown.frame;
        }
        NLEPlayerReport totals = {};
        screening.player->GetTotals(&totals);
        const int span = from == last ? kFrames - 1 : std::abs(last - from);
        const int due = int(span / std::max(std::abs(rate), 1.0));
        QVERIFY(std::abs(totals.shown + totals.dropped - due) <= 1);
    }

    void loops()
    {
        const Screening screening = Screen(ProjectWith(Film()));
        QCOMPARE(screening.player->SetLoop(30, 34, true), S_OK);
        screening.player->Play(2);
        const auto laps = [&] {
            int count = 0;
            int before = 0;
            for (const PlayerSpy::Shown& shown : screening.spy->Pictures())
                count += shown.frame < std::exchange(before, shown.frame) ? 1 : 0;
            return count;
        };
        QTRY_VERIFY_WITH_TIMEOUT(laps() >= 4, kPatience);
        QCOMPARE(screening.State(), int(NLEPlayer_Playing));
        bool isInside = false;
        for (const PlayerSpy::Shown& shown : screening.spy->Pictures()) {
            isInside = isInside || shown.frame >= 30;
            QVERIFY(!isInside || (shown.frame >= 30 && shown.frame <= 34));
            QCOMPARE(shown.number, shown.frame);
        }
        screening.player->SetLoop(0, 0, false);
        screening.player->Play(8);
        QTRY_COMPARE_WITH_TIMEOUT(screening.State(), int(NLEPlayer_Paused), kPatience);
        QCOMPARE(screening.Position(), kFrames - 1);
    }

    // After Refresh what is seen and heard is the new one, once and for all, and time goes on.
    void editsShow_data()
    {
        QTest::addColumn<bool>("isPlaying");
        QTest::newRow("while playing") << true;
        QTest::newRow("while paused") << false;
    }
    void editsShow()
    {
        QFETCH(bool, isPlaying);
        PlayInto(Path("edited.raw"));
        const Node colour = Colour(kRed);
        const Node sound = CountedSound();
        Node project = ProjectWith(colour);
        Add(project, sound, 0, 1);
        {
            const Screening screening = Screen(project);
            if (isPlaying)
                screening.player->Play(1);
            const size_t wanted = isPlaying ? 5 : 1;
            QTRY_VERIFY_WITH_TIMEOUT(screening.spy->Pictures().size() >= wanted, kPatience);
            Facet<INLEColorClip>(colour)->SetColor(kBlue);
            sound->SetEnabled(false);
            QCOMPARE(screening.player->Refresh(), S_OK);
            QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().corner, kBlue, kPatience);
            const size_t count = screening.spy->Pictures().size();
            if (isPlaying)
                QTRY_VERIFY_WITH_TIMEOUT(screening.spy->Pictures().size() >= count + 10, kPatience);
            QRgb before = kRed;
            int position = 0;
            for (const PlayerSpy::Shown& shown : screening.spy->Pictures()) {
                QVERIFY(shown.corner == before || (before == kRed && shown.corner == kBlue));
                QVERIFY(shown.position >= position);
                before = shown.corner;
                position = shown.position;
            }
        }
        const QVector<QPair<int, int>> heard = Stretches(Numbers(Path("edited.raw")));
        QCOMPARE(heard.size(), isPlaying ? 1 : 0);
        if (isPlaying)
            QCOMPARE(heard[0].first, 0);
    }

    void aShorterNodeEndsEarlier()
    {
        const Node film = Film();
        const Screening screening = Screen(ProjectWith(film));
        screening.player->Seek(90);
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().number, 90, kPatience);
        Trimmed(film, 0, 39);
        QCOMPARE(screening.player->Refresh(), S_OK);
        QCOMPARE(screening.Position(), 39);
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().number, 39, kPatience);
    }

    // Each sample is heard in its place: what follows a seek is what stands there, and nothing is
    // lost or said twice where the device had to wait.
    void soundIsExact()
    {
        const QString path = Path("exact.raw");
        PlayInto(path);
        QList<int> sought = {0};
        {
            const Screening screening = Screen(FilmWithSound());
            screening.player->Play(1);
            for (const int frame : {40, 7, 90}) {
                const size_t shown = screening.spy->Pictures().size();
                QTRY_VERIFY_WITH_TIMEOUT(screening.spy->Pictures().size() > shown + 4, kPatience);
                screening.player->Seek(frame);
                sought << frame;
            }
            const size_t shown = screening.spy->Pictures().size();
            QTRY_VERIFY_WITH_TIMEOUT(screening.spy->Pictures().size() > shown + 4, kPatience);
            screening.player->Pause();
            sought << screening.Position();
            screening.player->Play(1);
            QTRY_COMPARE_WITH_TIMEOUT(screening.spy->States().size(), size_t(4), kPatience);
            QTRY_COMPARE_WITH_TIMEOUT(screening.State(), int(NLEPlayer_Paused), kPatience);
        }
        const QVector<QPair<int, int>> heard = Stretches(Numbers(path));
        QCOMPARE(heard.size(), sought.size());
        for (int i = 0; i < heard.size(); ++i)
            QCOMPARE(heard[i].first, sought[i] * kPerFrame);
        QCOMPARE(heard.back().first + heard.back().second, kFrames * kPerFrame);
    }

    // Pictures against what the device was given when they were shown: two of its blocks are not
    // heard yet. One frame of difference would be 1920 samples.
    void picturesFollowTheSound()
    {
        const QString path = Path("together.raw");
        PlayInto(path);
        std::vector<PlayerSpy::Shown> pictures;
        {
            const Screening screening = Screen(FilmWithSound());
            screening.spy->onPicture = [=] {
                return QFileInfo(path).size() / qint64(2 * sizeof(float));
            };
            screening.player->Seek(65);
            screening.player->Play(1);
            QTRY_VERIFY_WITH_TIMEOUT(screening.spy->States().size() >= 3, kPatience);
            pictures = screening.spy->Pictures();
        }
        const std::vector<int> numbers = Numbers(path);
        std::vector<int> leads;
        for (const PlayerSpy::Shown& shown : pictures) {
            const auto last = size_t(shown.heard) - 1;
            if (shown.heard > 0 && last < numbers.size() && numbers[last] > 0 && shown.frame > 0)
                leads.push_back(numbers[last] + 1 - shown.frame * kPerFrame);
        }
        QVERIFY(leads.size() > 10);
        std::sort(leads.begin(), leads.end());
        const int lead = leads[leads.size() / 2];
        QVERIFY2(lead > 0 && lead <= 2048 + kPerFrame / 2, qPrintable(QString::number(lead)));
    }

    void sounds_data()
    {
        QTest::addColumn<double>("rate");
        QTest::addColumn<double>("volume");
        QTest::addColumn<bool>("isMute");
        QTest::addColumn<double>("level");
        QTest::newRow("as it is") << 1.0 << 1.0 << false << 0.5;
        QTest::newRow("fast, at its pitch") << 2.0 << 1.0 << false << 0.5;
        QTest::newRow("slow, at its pitch") << 0.5 << 1.0 << false << 0.5;
        QTest::newRow("quieter") << 1.0 << 0.25 << false << 0.125;
        QTest::newRow("mute") << 1.0 << 1.0 << true << 0.0;
        QTest::newRow("silent when too fast") << 2.5 << 1.0 << false << 0.0;
        QTest::newRow("silent backwards") << -1.0 << 1.0 << false << 0.0;
    }
    // What a tone of 440 Hz becomes; the levels are those of the programme.
    void sounds()
    {
        QFETCH(double, rate);
        QFETCH(double, volume);
        QFETCH(bool, isMute);
        QFETCH(double, level);
        const QString path = Path("tone.raw");
        PlayInto(path);
        if (!QFile::exists(Path("tone.wav"))) {
            TestClip clip;
            clip.codec.clear();
            clip.audioCodec = "pcm_s16le";
            MakeTestClip(Path("tone.wav"), clip);
        }
        NLEPlayerLevels levels = {};
        {
            const Screening screening = Screen(ProjectWith(Media(Path("tone.wav"))));
            screening.player->SetVolume(volume);
            screening.player->SetMute(isMute);
            screening.player->Seek(rate > 0 ? 10 : 40);
            screening.player->Play(rate);
            const int later = rate > 0 ? 22 : 28;
            QTRY_VERIFY_WITH_TIMEOUT((screening.Position() - later) * rate > 0, kPatience);
            screening.player->GetLevels(&levels);
            screening.player->Pause();
        }
        const bool isPlayed = rate > 0 && rate <= 2;
        QVERIFY(std::abs(levels.peak[0] - (isPlayed ? 0.5f : 0.0f)) < 0.05f);
        QVERIFY(isPlayed ? levels.rms[1] > 0.15f : levels.rms[1] == 0);
        const std::vector<float> samples = Samples(path);
        std::vector<double> tone;
        for (size_t i = 0; i < samples.size(); i += 2) {
            if (std::abs(samples[i]) > 1e-4f || !tone.empty())
                tone.push_back(double(samples[i]));
        }
        tone.resize(std::min<size_t>(tone.size(), 9600));
        if (level == 0) {
            QVERIFY(tone.empty());
            return;
        }
        tone.erase(tone.begin(), tone.begin() + 2400);
        int crossings = 0;
        for (size_t i = 1; i < tone.size(); ++i)
            crossings += (tone[i - 1] < 0) != (tone[i] < 0) ? 1 : 0;
        const double seconds = double(tone.size()) / kSampleRate;
        QVERIFY(std::abs(crossings / seconds / 2 - 440) < 25);
        QVERIFY(std::abs(*std::max_element(tone.begin(), tone.end()) - level) < 0.1 * level + 0.02);
    }

    void aDraggedPlayHeadSounds()
    {
        const QString path = Path("dragged.raw");
        PlayInto(path);
        {
            const Screening screening = Screen(FilmWithSound());
            screening.player->Seek(10);
            QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().number, 10, kPatience);
            screening.player->Scrub(31);
            QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().number, 31, kPatience);
            // What the device has its file alone for may not be read yet.
            const qint64 before = QFileInfo(path).size();
            QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(path).size() > before + kSecondBytes, kPatience);
            QCOMPARE(screening.Position(), 31);
        }
        // Faded at both ends; the middle is as it is.
        const std::vector<int> numbers = Numbers(path);
        const int middle = 31 * kPerFrame + kPerFrame / 2;
        const auto found = std::find(numbers.begin(), numbers.end(), middle);
        QVERIFY(found != numbers.end());
        for (int i = -700; i < 700; ++i)
            QCOMPARE(*(found + i), middle + i);
        QVERIFY(numbers.end() - found > kPerFrame / 2 && *(found + kPerFrame / 2) == -1);
    }

    void devicesComeAndGo()
    {
        const QString first = Path("first.raw");
        const QString chosen = Path("chosen.raw");
        PlayInto(first);
        {
            const Screening screening = Screen(FilmWithSound());
            const auto isSilent = [&] {
                wchar_t name[256] = {};
                return screening.player->GetSoundDevice(name, 256) == S_FALSE;
            };
            screening.player->SetLoop(0, kFrames - 1, true);
            screening.player->Play(1);
            QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(first).size() > 0, kPatience);
            {
                const FileSizeLimit full(0); // which the device takes for its end
                QTRY_VERIFY_WITH_TIMEOUT(isSilent(), kPatience);
            }
            QTRY_VERIFY_WITH_TIMEOUT(screening.spy->Last().frame >= 20, kPatience);
            // Another one is chosen: the driver takes the name for that of the file.
            screening.player->SetSoundDevice(chosen.toStdWString().c_str());
            QTRY_VERIFY_WITH_TIMEOUT(!isSilent(), kPatience);
            QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(chosen).size() > kSecondBytes, kPatience);
            const int frame = screening.spy->Last().frame;
            QTRY_VERIFY_WITH_TIMEOUT(screening.spy->Last().frame != frame, kPatience);
            QCOMPARE(screening.State(), int(NLEPlayer_Playing));
        }
        const QVector<QPair<int, int>> heard = Stretches(Numbers(chosen));
        QVERIFY(!heard.isEmpty() && heard[0].first > 0);
    }

    void cachedFramesAreUsed()
    {
        const Node project = ProjectWith(Film());
        Cache cache(project, Path("cache"));
        QCOMPARE(cache.Render(), long(NLECache_Finished));
        const Screening screening = Screen(project);
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().number, 0, kPatience);
        QCOMPARE(screening.spy->Last().source, int(NLEPlayerSource_Cached));
        screening.player->Play(4);
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().number, kFrames - 1, kPatience);
        NLEPlayerReport totals = {};
        screening.player->GetTotals(&totals);
        QVERIFY(totals.shown > 0);
        QCOMPARE(totals.cached, totals.shown);
    }

    void picturesHaveTheSizeThatIsWanted()
    {
        const Screening screening = Screen(ProjectWith(Film()));
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().size, QSize(320, 180), kPatience);
        screening.player->SetPictureSize(200, 200);
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().size, QSize(200, 113), kPatience);
        QCOMPARE(screening.spy->Last().number, 0);
    }

    // A listener may leave, and let the player go, from within a call.
    void theListenerLetsGo()
    {
        NLEComPtr<INLEPlayer> player = NewPlayer();
        const NLEComPtr<PlayerSpy> spy = MakeCom<PlayerSpy>();
        std::atomic<bool> isHandedOver{false};
        std::atomic<int> calls{0};
        spy->onState = [&](int) {
            while (!isHandedOver)
                std::this_thread::yield();
            player->SetListener(nullptr);
            player.reset();
            ++calls;
        };
        player->SetListener(spy.get());
        player->Open(ProjectWith(Film()).get());
        isHandedOver = true;
        const auto isOnlyOurs = [&] {
            spy->AddRef();
            return spy->Release() == 1;
        };
        QTRY_VERIFY_WITH_TIMEOUT(calls == 1 && isOnlyOurs(), kPatience);
    }

    // Whatever is called in whatever order: pictures are what they are said to be.
    void anyCalls()
    {
        qputenv("SDL_AUDIODRIVER", "dummy");
        QRandomGenerator random(1);
        const Node film = Film();
        const Node project = ProjectWith(film);
        Add(project, CountedSound(), 0, 1);
        const Screening screening = Screen(project);
        INLEPlayer& player = *screening.player;
        const std::function<void()> calls[] = {
            [&] { player.Play(1); },
            [&] { player.Play(random.bounded(16.0) - 8); },
            [&] { player.Pause(); },
            [&] { player.Seek(random.bounded(-10, 120)); },
            [&] { player.Step(random.bounded(2) * 2 - 1); },
            [&] { player.Scrub(random.bounded(100)); },
            [&] { player.SetLoop(random.bounded(40), 40 + random.bounded(40), random.bounded(2)); },
            [&] { player.Refresh(); },
            [&] { film->SetEnabled(random.bounded(2) != 0), player.Refresh(); },
            [&] { player.SetPictureSize(160 + random.bounded(3) * 80, 180); },
            [&] { player.SetSoundOffset(random.bounded(200) - 100); },
            [&] { random.bounded(8) == 0 ? player.Close() : player.Open(project.get()); },
        };
        for (int i = 0; i < 1000; ++i) {
            calls[random.bounded(int(std::size(calls)))]();
            if (random.bounded(10) == 0)
                QTest::qWait(random.bounded(20));
        }
        film->SetEnabled(true);
        player.Open(project.get());
        player.Seek(42);
        QTRY_COMPARE_WITH_TIMEOUT(screening.spy->Last().number, 42, kPatience);
        for (const PlayerSpy::Shown& shown : screening.spy->Pictures())
            QVERIFY(shown.number == shown.frame || shown.number == -1 ||
                    shown.source == NLEPlayerSource_Near);
    }
};

QTEST_MAIN(tst_Player)
#include "tst_player.moc"

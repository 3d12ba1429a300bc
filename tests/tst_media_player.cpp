// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "Host/Widgets/MediaPlayer.h"
#include "tests/support/ScriptedPlayer.h"

#include <QtTest>

#include <functional>
#include <memory>

using ScriptedPlayer::Frame;
using ScriptedPlayer::OnOtherThread;
using ScriptedPlayer::Player;
using Act = std::function<void(MediaPlayer&)>;
/// Connects a slot that deletes the player.
using Trap = std::function<void(MediaPlayer&, const std::function<void()>&)>;

Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(NLEPlayerState)
Q_DECLARE_METATYPE(Trap)

class tst_MediaPlayer : public QObject
{
    Q_OBJECT

    NLEComPtr<Player> m_engine;
    std::unique_ptr<MediaPlayer> m_player;

    static NLEComPtr<INLEVideoFrame> Picture()
    {
        return MakeCom<Frame>(QImage(4, 4, QImage::Format_ARGB32));
    }
    /// Tells as the engine's thread does.
    void Tell(const std::function<void(INLEPlayerListener&)>& news) const
    {
        OnOtherThread([&] { news(*m_engine->listener); });
    }

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<NLEPlayerState>("NLEPlayerState"); }
    void init()
    {
        m_engine = MakeCom<Player>();
        m_player = std::make_unique<MediaPlayer>(m_engine);
    }
    void cleanup()
    {
        m_player.reset();
        QVERIFY(!m_engine->listener);
        QCOMPARE(m_engine->state.load(), int(NLEPlayer_Closed));
        QCOMPARE(Frame::Alive(), 0);
        NLEWraper::Release();
    }
    void cleanupTestCase() { CVCreateInstance::Instance()->Release(); }

    void calls_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<QString>("call");
        const auto add = [](const char* call, Act act) {
            QTest::newRow(call) << act << QString(call);
        };
        add("Refresh", [](MediaPlayer& player) { player.Refresh(); });
        add("Play -2.5", [](MediaPlayer& player) { player.Play(-2.5); });
        add("Pause", [](MediaPlayer& player) { player.Pause(); });
        add("Seek 12", [](MediaPlayer& player) { player.Seek(12); });
        add("Step -1", [](MediaPlayer& player) { player.Step(-1); });
        add("Scrub 7", [](MediaPlayer& player) { player.Scrub(7); });
        add("Loop 3-9", [](MediaPlayer& player) { player.SetLoop(3, 9); });
        add("Loop off", [](MediaPlayer& player) { player.ClearLoop(); });
        add("Size 640x360", [](MediaPlayer& player) { player.SetPictureSize({640, 360}); });
        add("Size 0x0", [](MediaPlayer& player) { player.SetPictureSize({-1, 360}); });
        add("Volume 0.5", [](MediaPlayer& player) { player.SetVolume(0.5); });
        add("Mute", [](MediaPlayer& player) { player.SetMuted(true); });
        add("Device \u00e4", [](MediaPlayer& player) { player.SetSoundDevice("\u00e4"); });
        add("Offset -40", [](MediaPlayer& player) { player.SetSoundOffset(-40); });
        add("ResetClipping", [](MediaPlayer& player) { player.ResetClipping(); });
    }
    void calls()
    {
        QFETCH(Act, act);
        QFETCH(QString, call);
        m_player->Open(nullptr);
        m_engine->TakeCalls();
        act(*m_player);
        QCOMPARE(m_engine->TakeCalls(), QStringList{call});
    }

    // What the rest of a host does with the player it finds.
    void control()
    {
        NLEWraper* engine = NLEWraper::GetInstance(nullptr);
        IMediaPlayerControl* control = engine->GetMeidaPlayerControl();
        QVERIFY(control == m_player.get());
        QVERIFY(!control->IsOpen());
        QCOMPARE(control->Length(), 0);
        QVERIFY(control->Open(nullptr) && control->IsOpen() && !control->IsPlaying());
        QVERIFY(control->Play(1) && control->IsPlaying());
        QCOMPARE(control->Length(), m_engine->length);
        m_engine->answer = E_INVALIDARG;
        QVERIFY(!control->Play(0) && !control->Seek(5) && !control->Refresh());
        m_engine->answer = S_OK;
        MediaPlayer other(m_engine); // the newest counts, and an older one does not take it away
        m_player.reset();
        QVERIFY(engine->GetMeidaPlayerControl() == &other);
    }
    void controlEndsWithThePlayer()
    {
        m_player.reset();
        QVERIFY(!NLEWraper::GetInstance(nullptr)->GetMeidaPlayerControl());
        m_player = std::make_unique<MediaPlayer>(m_engine);
        NLEWraper::Release(); // first; the player's end must not bring it back
    }

    void withoutEngine()
    {
        MediaPlayer player;
        QVERIFY(!player.IsUsable());
        QVERIFY(!player.Open(nullptr) && !player.Play(1) && !player.IsOpen());
        QVERIFY(!player.SoundDevice() && player.SoundDevices().isEmpty());
        QCOMPARE(player.Volume(), 1.0);
    }

    void newsArriveHere()
    {
        m_player->Open(nullptr);
        QStringList log;
        const auto note = [&](const QString& text) {
            QVERIFY(QThread::currentThread() == thread());
            log << text;
        };
        connect(m_player.get(), &MediaPlayer::StateChanged,
                [&](NLEPlayerState state) { note(QString("state %1").arg(state)); });
        connect(m_player.get(), &MediaPlayer::PositionChanged,
                [&](int frame) { note(QString("position %1").arg(frame)); });
        connect(m_player.get(), &MediaPlayer::PictureReady,
                [&](const NLEComPtr<INLEVideoFrame>& picture, int frame, int source) {
                    note(QString("picture %1 %2 %3").arg(bool(picture)).arg(frame).arg(source));
                });
        connect(m_player.get(), &MediaPlayer::DeviceChanged, [&] { note("device"); });
        connect(m_player.get(), &MediaPlayer::SecondPlayed, [&](const NLEPlayerReport& report) {
            note(QString("shown %1").arg(report.shown));
        });
        m_engine->state = NLEPlayer_Playing;
        m_engine->position = 42;
        Tell([](INLEPlayerListener& listener) {
            NLEPlayerReport report{};
            listener.StateChanged(NLEPlayer_Playing);
            for (int frame = 0; frame <= 42; ++frame) {
                listener.PictureDue(frame, NLEPlayerSource_Cached, Picture().get());
                report.shown = frame;
                listener.SecondPlayed(&report);
                listener.DeviceChanged();
            }
        });
        QCOMPARE(Frame::Alive(), 1);
        QVERIFY(log.isEmpty()); // nobody waited for this thread
        QTRY_VERIFY(log.contains("shown 42"));
        QCOMPARE(log,
                 QStringList({"state 2", "position 42", "picture 1 42 1", "device", "shown 42"}));
        log.clear();
        Tell([](INLEPlayerListener& listener) { listener.PictureDue(43, 0, nullptr); });
        QTRY_VERIFY(log.contains("picture 0 43 0"));
    }

    // While playing, and for as long as something is heard.
    void levels()
    {
        QSignalSpy spy(m_player.get(), &MediaPlayer::PositionChanged);
        int told = 0;
        connect(m_player.get(), &MediaPlayer::LevelsChanged,
                [&](const NLEPlayerLevels& levels) { told += levels.peak[1] == 0.25F ? 1 : 0; });
        m_engine->levels.channels = 2;
        m_engine->levels.peak[1] = 0.25F;
        m_player->Open(nullptr);
        m_player->Play(1);
        m_engine->position = 9;
        QTRY_VERIFY(told >= 2);
        QCOMPARE(spy.last().at(0).toInt(), 9);
        m_player->Pause();
        told = 0;
        QTRY_VERIFY(told >= 2); // what was played is still heard
        m_engine->levels.peak[1] = 0;
        const auto ticks = std::make_shared<int>(0);
        connect(m_player.get(), &MediaPlayer::LevelsChanged, [ticks] { ++*ticks; });
        int before = -1;
        QTRY_VERIFY_WITH_TIMEOUT(std::exchange(before, *ticks) == *ticks && *ticks > 0, 20000);
    }

    void nothingComesAfterClose()
    {
        m_player->Open(nullptr);
        QSignalSpy state(m_player.get(), &MediaPlayer::StateChanged);
        int pictures = 0;
        connect(m_player.get(), &MediaPlayer::PictureReady, [&] { ++pictures; });
        QCoreApplication::processEvents();
        Tell([](INLEPlayerListener& listener) {
            listener.PictureDue(5, 0, Picture().get());
            listener.StateChanged(NLEPlayer_Paused);
        });
        m_player->Close();
        QCoreApplication::processEvents();
        QCOMPARE(pictures, 0);
        QCOMPARE(Frame::Alive(), 0);
        QCOMPARE(state.size(), 0); // never told to be open
    }

    void deletedInSlot_data()
    {
        QTest::addColumn<Trap>("trap");
        const auto add = [](const char* name, auto signal) {
            QTest::newRow(name) << Trap(
                [signal](MediaPlayer& player, const std::function<void()>& spring) {
                    connect(&player, signal, spring);
                });
        };
        add("StateChanged", &MediaPlayer::StateChanged);
        add("LengthChanged", &MediaPlayer::LengthChanged);
        add("PositionChanged", &MediaPlayer::PositionChanged);
        add("PictureReady", &MediaPlayer::PictureReady);
        add("LevelsChanged", &MediaPlayer::LevelsChanged);
        add("DeviceChanged", &MediaPlayer::DeviceChanged);
        add("SecondPlayed", &MediaPlayer::SecondPlayed);
        add("RateChanged", &MediaPlayer::RateChanged);
        add("VolumeChanged", &MediaPlayer::VolumeChanged);
        add("MutedChanged", &MediaPlayer::MutedChanged);
    }
    // In mid-play, while the engine's thread goes on telling.
    void deletedInSlot()
    {
        QFETCH(Trap, trap);
        trap(*m_player, [this] { m_player.reset(); });
        m_engine->position = 3;
        NLEComPtr<INLEPlayerListener> listener = m_engine->listener;
        std::atomic<bool> ends{false};
        std::thread teller([&] {
            const NLEPlayerReport report{};
            while (!ends) {
                listener->PictureDue(3, 0, Picture().get());
                listener->StateChanged(NLEPlayer_Playing);
                listener->DeviceChanged();
                listener->SecondPlayed(&report);
            }
        });
        const std::function<void()> steps[] = {
            [this] { m_player->Open(nullptr); }, [this] { m_player->Play(2); },
            [this] { m_player->SetVolume(0.5); }, [this] { m_player->SetMuted(true); }};
        for (const auto& step : steps) {
            if (m_player)
                step();
        }
        const bool isGone = QTest::qWaitFor([this] { return !m_player; });
        ends = true;
        teller.join();
        QVERIFY(isGone);
    }
};

QTEST_MAIN(tst_MediaPlayer)
#include "tst_media_player.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
// What a player has of the engine for a play head that is dragged, and the engine's own settings.
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"

#include <thread>

namespace {

constexpr int kGroup = 50;

} // namespace

class tst_Scrubbing : public QObject, private EngineFixture
{
    Q_OBJECT

    struct Player
    {
        NLEComPtr<INLEFrameExtractor> extractor;
        NLEComPtr<INLEFrameScrubber> scrubber;
        NLEComPtr<INLEVideoFrame> picture;

        /// The number that the picture shows; -1 for none.
        int Shown() const
        {
            std::uint8_t* pixels = nullptr;
            picture->GetData(&pixels);
            return ReadFrameNumber(QImage(pixels, 160, 90, QImage::Format_ARGB32));
        }
    };

    Node Clip() const
    {
        TestClip clip;
        clip.size = QSize(320, 180);
        clip.frames = 150;
        clip.gop = kGroup;
        clip.bframes = 2;
        const QString path = Path("scrubbed.mp4");
        if (!QFile::exists(path))
            MakeTestClip(path, clip);
        return Media(path);
    }
    Player Open(const Node& node) const
    {
        Player player{provider->CreateFrameExtractor(), {}, provider->CreateVideoFrame(160, 90)};
        player.scrubber = player.extractor.query<INLEFrameScrubber>();
        player.picture->Prepare();
        player.extractor->Open(node.get(), NLEOpen_Render);
        return player;
    }
    NLEComPtr<INLEProperties> SystemBag() const
    {
        NLEComPtr<INLEProperties> bag;
        provider->GetSystemConfig()->GetProperties(bag.put());
        return bag;
    }

private slots:
    void initTestCase() { QVERIFY(folder.isValid()); }

    void nearThenExact()
    {
        const Player player = Open(ProjectWith(Clip()));
        QVERIFY(player.scrubber);
        int precision = -1;
        QCOMPARE(player.scrubber->ExtractNear(77, player.picture.get(), &precision), S_OK);
        QCOMPARE(precision, int(NLEScrub_Near));
        QCOMPARE(player.Shown(), kGroup);
        QCOMPARE(player.extractor->Extract(77, player.picture.get()), S_OK);
        QCOMPARE(player.Shown(), 77);
        QCOMPARE(player.scrubber->ExtractNear(77, player.picture.get(), &precision), S_OK);
        QCOMPARE(precision, int(NLEScrub_Exact));
        QCOMPARE(player.scrubber->ExtractNear(150, player.picture.get(), &precision), E_FAIL);
        QCOMPARE(player.scrubber->ExtractNear(0, nullptr, nullptr), E_POINTER);
    }

    void withoutMediaAllIsExact()
    {
        const Player player = Open(ProjectWith(Colour(Qt::red)));
        int precision = -1;
        QCOMPARE(player.scrubber->ExtractNear(20, player.picture.get(), &precision), S_OK);
        QCOMPARE(precision, int(NLEScrub_Exact));
    }

    void interruptEndsOneExtract()
    {
        const Player player = Open(ProjectWith(Clip()));
        QCOMPARE(player.extractor->Extract(10, player.picture.get()), S_OK);
        player.scrubber->Interrupt();
        QCOMPARE(player.extractor->Extract(120, player.picture.get()), E_ABORT);
        QCOMPARE(player.Shown(), 10);
        QCOMPARE(player.extractor->Extract(120, player.picture.get()), S_OK);
        QCOMPARE(player.Shown(), 120);
        player.scrubber->Interrupt();
        QCOMPARE(player.scrubber->ExtractNear(120, player.picture.get(), nullptr), S_OK);
        QCOMPARE(player.extractor->Extract(30, player.picture.get()), S_OK);
        QCOMPARE(player.Shown(), 30);
    }

    void draggedPlayHead()
    {
        const Player player = Open(ProjectWith(Clip()));
        std::atomic<int> wanted{0};
        std::atomic<bool> isOver{false};
        std::thread hand([&] {
            for (int i = 0; i < 60; ++i) {
                wanted = (i * 37 + 11) % 150;
                player.scrubber->Interrupt();
                std::this_thread::sleep_for(std::chrono::milliseconds(2));
            }
            isOver = true;
        });
        int wrong = 0;
        int last = -1;
        while (!isOver || last != wanted) {
            const int frame = wanted;
            int precision = NLEScrub_Exact;
            wrong += player.scrubber->ExtractNear(frame, player.picture.get(), &precision) != S_OK;
            if (precision == NLEScrub_Near && frame == wanted) {
                const HRESULT result = player.extractor->Extract(frame, player.picture.get());
                wrong += result != S_OK && result != E_ABORT;
                precision = result == S_OK ? NLEScrub_Exact : NLEScrub_Near;
            }
            if (precision == NLEScrub_Exact) {
                wrong += player.Shown() != frame;
                last = frame;
            }
        }
        hand.join();
        QCOMPARE(wrong, 0);
    }

    void systemSettings_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("preset");
        QTest::addColumn<int>("other");
        QTest::addColumn<int>("refused");
        const auto row = [](const wchar_t* key, int preset, int other, int refused) {
            const QString name = QString::fromWCharArray(key);
            QTest::newRow(qPrintable(name)) << name << preset << other << refused;
        };
        row(NLEKey::System::kHardwareDecoding, NLEHardware_Never, NLEHardware_All, 3);
        row(NLEKey::System::kDecodedPictures, 512, 64, 65537);
    }

    void systemSettings()
    {
        QFETCH(QString, key);
        QFETCH(int, preset);
        QFETCH(int, other);
        QFETCH(int, refused);
        const std::wstring name = key.toStdWString();
        const auto current = [&] {
            int value = -1;
            SystemBag()->GetInt(name.c_str(), &value);
            return value;
        };
        QCOMPARE(current(), preset);
        QCOMPARE(SystemBag()->SetInt(name.c_str(), other), S_OK);
        for (const int value : {refused, -1})
            QCOMPARE(SystemBag()->SetInt(name.c_str(), value), E_INVALIDARG);
        QCOMPARE(current(), other);
        QCOMPARE(SystemBag()->SetInt(name.c_str(), preset), S_OK);
        QCOMPARE(SystemBag()->SetInt(L"kSystem_Other", 1), E_INVALIDARG);
    }

    void gpuFirstWithoutGpu()
    {
        const auto set = [&](int clips) {
            return SystemBag()->SetInt(NLEKey::System::kHardwareDecoding, clips);
        };
        const Node clip = Clip();
        const QImage software = Frame(clip, 60);
        QCOMPARE(clip.query<INLETimelineSourceDecoder>()->SetGPUFirst(1), S_OK);
        QCOMPARE(set(NLEHardware_Asked), S_OK);
        const QImage asked = Frame(clip, 60);
        QCOMPARE(set(NLEHardware_Never), S_OK);
        QVERIFY(!software.isNull());
        QCOMPARE(asked, software);
    }
};

QTEST_MAIN(tst_Scrubbing)
#include "tst_scrubbing.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/ToolBarSlider.h"
#include "Host/Gallery/PlayerPage.h"
#include "Host/Widgets/LevelMeter.h"
#include "Host/Widgets/MediaPlayer.h"
#include "Host/Widgets/PictureView.h"
#include "tests/support/Files.h"
#include "tests/support/TestMedia.h"

#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

constexpr int kPatience = 30000; // milliseconds

class tst_PlayerPage : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    std::unique_ptr<PlayerPage> m_page;

    /// The frame number that the view's picture shows; -1 for none.
    int Shown() const { return ReadFrameNumber(m_page->View()->Picture()); }
    ToolBarSlider* SeekBar() const
    {
        for (auto* bar : m_page->findChildren<ToolBarSlider*>()) {
            if (bar->accessibleName() == "Position")
                return bar;
        }
        return nullptr;
    }

private Q_SLOTS:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = 60;
        clip.audioCodec = "aac";
        QCOMPARE(MakeTestClip(m_folder.filePath("clip.mp4"), clip), QString());
    }
    void init()
    {
        m_page = std::make_unique<PlayerPage>();
        m_page->show();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    }
    void cleanup() { m_page.reset(); }
    void cleanupTestCase()
    {
        NLEWraper::Release();
        CVCreateInstance::Instance()->Release();
    }

    void refusesWhatIsNoMedia()
    {
        QVERIFY(SetContents(m_folder.filePath("text.mp4"), "no media"));
        QVERIFY(!m_page->Open(m_folder.filePath("text.mp4")));
        QVERIFY(!m_page->Open(m_folder.filePath("missing.mp4")));
        const auto labels = m_page->findChildren<QLabel*>();
        QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
            return label->text() == "missing.mp4 cannot be played.";
        }));
        QVERIFY(!m_page->View()->Picture().isNull()); // the test card stays
    }

    void playsAFile()
    {
        const bool isOpen = m_page->Open(m_folder.filePath("clip.mp4"));
        if (!m_page->Player()->IsUsable())
            QSKIP("this engine has no player");
        QVERIFY(isOpen);
        QTRY_COMPARE_WITH_TIMEOUT(Shown(), 0, kPatience);
        QCOMPARE(SeekBar()->getRange(), QPointF(0, 59));
        QTest::keyClick(m_page.get(), Qt::Key_Period);
        QTRY_COMPARE_WITH_TIMEOUT(Shown(), 1, kPatience);
        QTRY_COMPARE_WITH_TIMEOUT(SeekBar()->value(), 1.0F, kPatience);
        QTest::keyClick(m_page.get(), Qt::Key_K);
        QTRY_VERIFY_WITH_TIMEOUT(Shown() > 5, kPatience);
        QVERIFY(SeekBar()->value() > 1);
        auto* meter = m_page->findChild<LevelMeter*>();
        QTRY_VERIFY_WITH_TIMEOUT(meter->HeldPeak(0) > -20, kPatience);
        QTest::keyClick(SeekBar(), Qt::Key_Home); // goes on from there
        QTRY_VERIFY_WITH_TIMEOUT(Shown() < 5, kPatience);
        QTRY_VERIFY_WITH_TIMEOUT(!m_page->Player()->IsPlaying(), kPatience); // the end
        QCOMPARE(Shown(), 59);
    }
};

QTEST_MAIN(tst_PlayerPage)
#include "tst_player_page.moc"

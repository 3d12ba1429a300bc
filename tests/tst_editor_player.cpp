// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Player/PlayerPanel.h"
#include "Host/Editor/Player/ProjectMarkers.h"
#include "Host/Editor/Player/Transport.h"
#include "Host/Widgets/MediaPlayer.h"
#include "Host/Widgets/PictureView.h"
#include "Host/Widgets/TimecodeEdit.h"
#include "tests/support/EngineFixture.h"

#include <QUndoStack>

constexpr int kPatience = 30000; // milliseconds
constexpr int kLength = 60;

class tst_EditorPlayer : public QObject
{
    Q_OBJECT

    std::unique_ptr<EngineFixture> m_engine;
    std::unique_ptr<Project> m_project;
    std::unique_ptr<MediaPlayer> m_player;
    std::unique_ptr<PlayerPanel> m_panel;

    bool Place(const QColor& color, int level)
    {
        const Node clip = m_engine->Trimmed(m_engine->Colour(color), 0, kLength - 1);
        return m_project->Edit(
            "Place", [&](INLEEditing& editing) { return editing.Place(clip.get(), 0, level, 0); });
    }
    QColor Shown() const
    {
        const QImage picture = m_panel->View()->Picture();
        return picture.isNull() ? QColor() : picture.pixelColor(picture.rect().center());
    }

private Q_SLOTS:
    void initTestCase() { m_engine = std::make_unique<EngineFixture>(); }
    void init()
    {
        m_project = std::make_unique<Project>();
        m_player = std::make_unique<MediaPlayer>();
        QVERIFY(m_project->New(EngineFixture::kSmall) && Place(Qt::red, 0));
        m_panel = std::make_unique<PlayerPanel>(*m_project, *m_player);
        m_panel->show();
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
        QTRY_COMPARE_WITH_TIMEOUT(Shown(), QColor(Qt::red), kPatience);
    }
    void cleanup()
    {
        m_panel.reset();
        m_player.reset();
        m_project.reset();
    }
    void cleanupTestCase() { m_engine.reset(); }

    void keysMove_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("state");
        QTest::newRow("step by step") << "..,."
                                      << "2";
        QTest::newRow("to the end") << "E"
                                    << "59";
        QTest::newRow("and back to the beginning") << "EH"
                                                   << "0";
        QTest::newRow("not beyond it") << ","
                                       << "0";
        QTest::newRow("points") << "..i...o"
                                << "5 in 2 out 5";
        QTest::newRow("an in point behind the out point ends the range") << "oEi"
                                                                         << "59 in 59";
        QTest::newRow("a marker") << "..m"
                                  << "2 markers 2";
        QTest::newRow("a marker that is set twice goes") << "..mm"
                                                         << "2";
        QTest::newRow("undone") << "..m.mu"
                                << "3 markers 2";
    }

    void keysMove()
    {
        QFETCH(QString, keys);
        QFETCH(QString, state);
        for (const QChar key : keys) {
            const int before = m_player->Position();
            if (key == 'u')
                m_project->Steps().undo();
            else if (key == 'E' || key == 'H')
                QTest::keyClick(m_panel.get(), key == 'E' ? Qt::Key_End : Qt::Key_Home);
            else
                QTest::keyClick(m_panel.get(), key.toLatin1());
            if (key == '.')
                QTRY_COMPARE_WITH_TIMEOUT(m_player->Position(), before + 1, kPatience);
            if (key == 'E')
                QTRY_COMPARE_WITH_TIMEOUT(m_player->Position(), kLength - 1, kPatience);
        }
        const auto now = [this] {
            const Transport& playing = m_panel->Playing();
            QString text = QString::number(m_player->Position());
            if (playing.InPoint() != Transport::kNoPoint)
                text += QString(" in %1").arg(playing.InPoint());
            if (playing.OutPoint() != Transport::kNoPoint)
                text += QString(" out %1").arg(playing.OutPoint());
            for (const int frame : MarkerFrames(m_project->Node()))
                text += QString(" markers %1").arg(frame);
            return text;
        };
        QTRY_COMPARE_WITH_TIMEOUT(now(), state, kPatience);
    }

    void pointsAreSavedWithTheProject()
    {
        QTest::keyClick(m_panel.get(), Qt::Key_End);
        QTRY_COMPARE_WITH_TIMEOUT(m_player->Position(), kLength - 1, kPatience);
        QTest::keyClick(m_panel.get(), Qt::Key_O);
        QCOMPARE(m_panel->Playing().OutPoint(), kLength - 1);
        const QTemporaryDir folder;
        const QString path = folder.filePath("points.mlt");
        QVERIFY(m_project->SaveAs(path));
        m_project->Steps().undo();
        QCOMPARE(m_panel->Playing().OutPoint(), Transport::kNoPoint);
        QVERIFY(m_project->Open(path));
        QCOMPARE(m_panel->Playing().OutPoint(), kLength - 1);
        QCOMPARE(m_panel->Playing().InPoint(), Transport::kNoPoint);
    }

    void keysPlay_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<double>("rate");
        QTest::newRow("space") << " " << 1.0;
        QTest::newRow("space twice") << "  " << 0.0;
        QTest::newRow("L") << "l" << 1.0;
        QTest::newRow("L thrice") << "lll" << 4.0;
        QTest::newRow("J turns round") << "llj" << -1.0;
        QTest::newRow("K stops") << "lk" << 0.0;
    }

    void keysPlay()
    {
        QFETCH(QString, keys);
        QFETCH(double, rate);
        m_panel->Playing().SetLooping(true); // so that no end stops it
        for (const QChar key : keys)
            QTest::keyClick(m_panel.get(), key.toLatin1());
        QTRY_COMPARE_WITH_TIMEOUT(m_player->IsPlaying() ? m_player->Rate() : 0, rate, kPatience);
    }

    void showsWhatWasEdited()
    {
        QVERIFY(Place(Qt::blue, 1));
        QTRY_COMPARE_WITH_TIMEOUT(Shown(), QColor(Qt::blue), kPatience);
        m_project->Steps().undo();
        QTRY_COMPARE_WITH_TIMEOUT(Shown(), QColor(Qt::red), kPatience);
        QVERIFY(m_project->New(EngineFixture::kSmall));
        QTRY_COMPARE_WITH_TIMEOUT(m_player->Length(), 0, kPatience);
    }

    void anEmptyProjectShowsNothing()
    {
        m_project->Steps().undo();
        QTRY_VERIFY_WITH_TIMEOUT(!Shown().isValid(), kPatience);
        QVERIFY(Place(Qt::blue, 0));
        QTRY_COMPARE_WITH_TIMEOUT(Shown(), QColor(Qt::blue), kPatience);
        QCOMPARE(m_player->Length(), kLength);
    }

    void aTimecodeIsTyped_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("frame");
        QTest::addColumn<QString>("shown");
        QTest::newRow("within") << "00:00:01:05" << 30 << "00:00:01:05";
        QTest::newRow("beyond the end") << "00:10:00:00" << kLength - 1 << "00:00:02:09";
        QTest::newRow("none") << "soon" << 0 << "00:00:00:00";
        QTest::newRow("the last fields") << "1:5" << 30 << "00:00:01:05";
        QTest::newRow("digits alone") << "105" << 30 << "00:00:01:05";
        QTest::newRow("a distance") << "+12" << 12 << "00:00:00:12";
        QTest::newRow("before the beginning") << "-12" << 0 << "00:00:00:00";
    }

    void aTimecodeIsTyped()
    {
        QFETCH(QString, text);
        QFETCH(int, frame);
        QFETCH(QString, shown);
        auto* field = m_panel->findChild<TimecodeEdit*>();
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(m_player->Position(), frame, kPatience);
        QTRY_COMPARE_WITH_TIMEOUT(field->text(), shown, kPatience);
    }

    void fullScreen()
    {
        QPointer<QWidget> view;
        const auto isShown = [&view] {
            view = qobject_cast<PictureView*>(QApplication::activeWindow());
            return !view.isNull();
        };
        QTest::keyClick(m_panel.get(), Qt::Key_F11);
        QTRY_VERIFY(isShown());
        view->close(); // as the system does
        QTRY_VERIFY(!view);
        m_panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
        QTest::keyClick(m_panel.get(), Qt::Key_F11);
        QTRY_VERIFY(isShown());
        QVERIFY(!qobject_cast<PictureView*>(view)->Picture().isNull());
        QTest::keyClick(view, '.'); // keys go on to work
        QTRY_COMPARE_WITH_TIMEOUT(m_player->Position(), 1, kPatience);
        QTest::keyClick(view, Qt::Key_Escape);
        QTRY_VERIFY(!view);
    }
};

QTEST_MAIN(tst_EditorPlayer)
#include "tst_editor_player.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/NLETimelineContextPropertyService.h"
#include "EngineApi/NLEKey.h"
#include "Host/Editor/Export/ExportCheck.h"
#include "Host/Editor/Export/ExportDialog.h"
#include "Host/Editor/Export/ExportQueue.h"
#include "Host/Editor/Export/ExportQueueView.h"
#include "Host/Editor/Export/StillPicture.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Widgets/MediaPlayer.h"
#include "tests/support/EngineFixture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

namespace {

constexpr int kLength = 20;
constexpr int kPatience = 60000; // milliseconds
constexpr int kLong = 100000;    // frames that nobody waits for
constexpr NLEEncodeSettings kSmallFilm = {{320, 180}, {25, 1}, {}, 0, 48000, 2, 0};

using State = ExportQueue::State;

State StateOf(const ExportQueue& queue, int number)
{
    return queue.Find(number)->state;
}

} // namespace

class tst_EditorExport : public QObject
{
    Q_OBJECT

    EngineFixture m_engine;

    Node Colour(const QColor& color, int length = kLength) const
    {
        return m_engine.ProjectWith(m_engine.Trimmed(m_engine.Colour(color), 0, length - 1));
    }
    ExportOrder Order(const char* file) const { return {m_engine.Path(file), "H.264", {}, false}; }
    QStringList Files(const QString& filter) const
    {
        return QDir(m_engine.folder.path()).entryList({filter}, QDir::Files | QDir::Hidden);
    }
    /// How far the middle of a film's first picture is from \a color, in levels.
    int Distance(const char* file, const QColor& color) const
    {
        const QImage picture =
            m_engine.Frame(m_engine.ProjectWith(m_engine.Media(m_engine.Path(file))), 0);
        const QColor seen = picture.pixelColor(picture.rect().center());
        return qMax(qAbs(seen.red() - color.red()), qAbs(seen.blue() - color.blue()));
    }

private Q_SLOTS:
    void filmsAreOfTheProjectAsItWasAdded()
    {
        ExportQueue queue;
        QVector<int> done;
        connect(&queue, &ExportQueue::Changed, this, [&](int number) {
            if (StateOf(queue, number) == State::Done)
                done.append(number);
        });
        const Node project = Colour(Qt::red);
        ExportOrder part = Order("second.mp4");
        part.settings.range = {5, 9};
        part.isPart = true;
        ExportOrder sole = Order("sole.mp4");
        sole.isPart = true; // of frame 0
        const int first = queue.Add(project, Order("first.mp4"));
        const int second = queue.Add(project, part);
        queue.Add(project, sole);
        project.query<INLETimelineComposite>()->RemoveClip(m_engine.ClipAt(project, 0).get());
        m_engine.Add(project, m_engine.Colour(Qt::blue));
        const int third = queue.Add(project, Order("third.mp4"));
        QVERIFY(queue.IsBusy());
        QTRY_VERIFY_WITH_TIMEOUT(!queue.IsBusy(), kPatience);
        QCOMPARE(done, QVector<int>({first, second, second + 1, third}));
        QCOMPARE(queue.Find(first)->percent, 100);
        QVERIFY(Distance("first.mp4", Qt::red) < 8);
        QVERIFY(Distance("third.mp4", Qt::blue) < 8);
        QCOMPARE(EngineFixture::TotalOf(m_engine.Media(m_engine.Path("second.mp4"))).out, 4);
        QCOMPARE(EngineFixture::TotalOf(m_engine.Media(m_engine.Path("sole.mp4"))).out, 0);
    }

    void aCancelledFilmLeavesNothing()
    {
        ExportQueue queue;
        const int running = queue.Add(Colour(Qt::red, kLong), Order("endless.mp4"));
        const int waiting = queue.Add(Colour(Qt::red, kLong), Order("never.mp4"));
        const int last = queue.Add(Colour(Qt::red), Order("last.mp4"));
        QTRY_VERIFY_WITH_TIMEOUT(queue.Find(running)->percent > 0, kPatience);
        queue.Remove(running); // not while it runs
        queue.Cancel(waiting);
        QCOMPARE(StateOf(queue, waiting), State::Cancelled);
        queue.Cancel(running);
        QTRY_COMPARE_WITH_TIMEOUT(StateOf(queue, last), State::Done, kPatience);
        QCOMPARE(StateOf(queue, running), State::Cancelled);
        QCOMPARE(Files("*endless*") + Files("*never*"), QStringList());
        queue.Remove(waiting);
        QCOMPARE(queue.Jobs().size(), 2);
    }

    void aQueueThatGoesEndsItsFilms()
    {
        {
            ExportQueue queue;
            const int number = queue.Add(Colour(Qt::red, kLong), Order("left.mp4"));
            queue.Add(Colour(Qt::red), Order("left behind.mp4"));
            QTRY_COMPARE_WITH_TIMEOUT(StateOf(queue, number), State::Running, kPatience);
        }
        QCOMPARE(Files("*left*"), QStringList());
    }

    void aFailureTellsWhy_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("preset");
        QTest::addColumn<QString>("words");
        QTest::newRow("no such folder") << "missing/film.mp4"
                                        << "H.264"
                                        << "missing";
        QTest::newRow("no such container") << "film.xyz"
                                           << ""
                                           << "film.xyz";
        QTest::newRow("no such preset") << "film.mp4"
                                        << "H.000"
                                        << "film.mp4";
    }
    void aFailureTellsWhy()
    {
        QFETCH(QString, path);
        QFETCH(QString, preset);
        QFETCH(QString, words);
        ExportQueue queue;
        const int number = queue.Add(Colour(Qt::red), {m_engine.folder.filePath(path), preset, {}});
        QTRY_COMPARE_WITH_TIMEOUT(StateOf(queue, number), State::Failed, kPatience);
        QVERIFY2(queue.Find(number)->reason.contains(words),
                 qPrintable(queue.Find(number)->reason));
        QVERIFY(!QFile::exists(m_engine.folder.filePath(path)));
    }

    void theListShowsAndEndsFilms()
    {
        ExportQueue queue;
        ExportQueueView view(queue);
        const int number = queue.Add(Colour(Qt::red, kLong), Order("shown.mp4"));
        auto* bar = view.findChild<QProgressBar*>();
        QTRY_VERIFY_WITH_TIMEOUT(bar->value() > 0, kPatience);
        view.findChild<QToolButton*>()->click();
        QTRY_COMPARE_WITH_TIMEOUT(StateOf(queue, number), State::Cancelled, kPatience);
        view.findChild<QToolButton*>()->click();
        QVERIFY(queue.Jobs().isEmpty());
    }

    void whatCannotBeCombinedIsToldBeforehand()
    {
        ExportCheck check;
        QSignalSpy told(&check, &ExportCheck::Told);
        ExportOrder order = Order("film.mpg");
        order.preset = "MPEG-2 interlaced";
        order.settings = kSmallFilm;
        order.settings.frameRate = {17, 1}; // none of its rates
        check.Ask(order);
        QTRY_COMPARE_WITH_TIMEOUT(told.size(), 1, kPatience);
        QVERIFY(!told[0][0].toString().isEmpty());
        check.Ask(order);
        order.settings = kSmallFilm;
        order.preset = "H.264";
        check.Ask(order); // the last one alone is answered
        QTRY_COMPARE_WITH_TIMEOUT(told.size(), 2, kPatience);
        QCOMPARE(told[1][0].toString(), QString());
    }

    void aStillIsDrawnAtFullSize()
    {
        struct Context : NLETimelineContextPropertyService
        {
            explicit Context(const Node& project) { m_basin = project.query<INLEBasin>(); }
        };
        TestClip clip;
        QCOMPARE(MakeTestClip(m_engine.Path("clip.mp4"), clip), QString());
        const Node project = m_engine.ProjectWith(m_engine.Media(m_engine.Path("clip.mp4")));
        QVERIFY(Context(project).SetDoubleValue(NLEKey::Context::kContext_PreviewScale, 0.05));
        const QString path = m_engine.Path("still.png");
        QCOMPARE(StillPicture::Save(project, 7, path), QString());
        QCOMPARE(QImage(path).size(), QSize(320, 180));
        QCOMPARE(ReadFrameNumber(QImage(path)), 7);
        QVERIFY(!StillPicture::Save(project, 1000, path).isEmpty());
        QVERIFY(!StillPicture::Save(project, 7, m_engine.Path("missing/still.png")).isEmpty());
        QCOMPARE(ReadFrameNumber(QImage(path)), 7);
    }

    void theDialogOrdersWhatItShows()
    {
        Project project;
        MediaPlayer player;
        ExportQueue queue;
        project.New(EngineFixture::kSmall);
        const Node clip = m_engine.Trimmed(m_engine.Colour(Qt::red), 0, kLength - 1);
        QVERIFY(project.Edit(
            "Place", [&](INLEEditing& editing) { return editing.Place(clip.get(), 0, 0, 0); }));
        ExportDialog dialog(project, player, queue);
        dialog.SetPath(m_engine.Path("ordered"));
        auto* preset = dialog.findChild<QComboBox*>(); // the first one
        preset->setCurrentIndex(preset->findData("ProRes 422"));
        dialog.SetRange(7, 3);
        QCOMPARE(dialog.Order().settings.range.in, 3);
        dialog.SetRange(3, 700);
        QCOMPARE(dialog.Order().settings.range.out, kLength - 1);
        dialog.SetRange(3, 7);
        const ExportOrder order = dialog.Order();
        QCOMPARE(order.path, m_engine.Path("ordered.mov"));
        QCOMPARE(order.preset, QString("ProRes 422"));
        QCOMPARE(order.settings.frameSize.width, 320);
        QCOMPARE(order.settings.range.out, 7);
        QCOMPARE(order.settings.sampleRate, 48000);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCOMPARE(queue.Jobs().size(), 1);
        QTRY_VERIFY_WITH_TIMEOUT(!queue.IsBusy(), kPatience);
        QCOMPARE(EngineFixture::TotalOf(m_engine.Media(order.path)).out, 4);
        // The film is there now.
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            QTimer::singleShot(0, &dialog, [&] {
                auto* box = dialog.findChild<QMessageBox*>();
                box->button(answer)->click();
            });
            QTest::keyClick(&dialog, Qt::Key_Return);
            QCOMPARE(queue.Jobs().size(), answer == QMessageBox::Yes ? 2 : 1);
        }
        QTest::keyClick(&dialog, Qt::Key_Return); // it is being written
        QCOMPARE(queue.Jobs().size(), 2);
    }
};

QTEST_MAIN(tst_EditorExport)
#include "tst_editor_export.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/MultiLangMgr.h"
#include "CommonLib/NLEWraper/FPreViewRenderHelper.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "Host/Editor/Export/ExportDialog.h"
#include "Host/Editor/Window/EditorWindow.h"
#include "Host/Editor/Window/FileCommands.h"
#include "Host/Editor/Window/Tour.h"
#include "Host/HostLanguage.h"
#include "TestMedia.h"
#include "tests/support/EngineFixture.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QUndoStack>

constexpr int kPatience = 30000; // milliseconds
const char kCrashing[] = "--crashing";

namespace {

EditorWindow::Paths PathsIn(const QString& folder)
{
    return {folder + "/autosave", folder + "/log", folder + "/preview"};
}

bool Place(EditorWindow& window, int position)
{
    const Node clip =
        NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider()->CreateColorTimeline(
            Qt::red, QSize(320, 180), 25);
    const NLERange range = {0, 9};
    clip->SetRange(&range);
    return window.Shown().Edit(
        "Place", [&](INLEEditing& editing) { return editing.Place(clip.get(), position, 0, 0); });
}

/// What somebody does who is then cut off: \a folder is kept. Ends by being killed.
int EditAndWait(const QString& folder)
{
    EditorWindow window(PathsIn(folder));
    window.show();
    if (!window.Shown().SaveAs(folder + "/film.mlt") || !Place(window, 0) || !Place(window, 20))
        return 1;
    return QApplication::exec();
}

/// Presses a button of the next message box; \a asked is set to its text.
void Answer(QMessageBox::StandardButton button, QString* asked)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        *asked = box->text();
        timer->deleteLater();
        box->button(button)->click();
    });
    timer->start(20);
}

} // namespace

class tst_EditorWindow : public QObject
{
    Q_OBJECT

    std::unique_ptr<EngineFixture> m_engine;
    std::unique_ptr<QTemporaryDir> m_data;
    std::unique_ptr<EditorWindow> m_window;

    void Start()
    {
        m_window = std::make_unique<EditorWindow>(PathsIn(m_data->path()));
        m_window->show();
    }
    int ClipCount() const { return EngineFixture::ClipCount(m_window->Shown().Node()); }
    QString Path(const char* name) const { return m_data->filePath(name); }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        m_engine = std::make_unique<EngineFixture>();
    }
    void init()
    {
        m_data = std::make_unique<QTemporaryDir>();
        Start();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    void cleanup()
    {
        m_window.reset();
        m_data.reset();
    }
    void cleanupTestCase() { m_engine.reset(); }

    void editsUndoesSavesAndOpens()
    {
        QVERIFY(Place(*m_window, 0) && Place(*m_window, 20));
        QVERIFY(m_window->isWindowModified());
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(ClipCount(), 1);
        QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(ClipCount(), 2);
        QVERIFY(m_window->Shown().SaveAs(Path("film.mlt")));
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(m_window->windowTitle().startsWith("film.mlt"));
        QTest::keyClick(m_window.get(), Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(ClipCount(), 0);
        QVERIFY(m_window->Files().Open(Path("film.mlt")));
        QCOMPARE(ClipCount(), 2);
    }

    void asksForChangesThatAreNotSaved_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<int>("saved");
        QTest::newRow("save") << int(QMessageBox::Save) << true << 1;
        QTest::newRow("discard") << int(QMessageBox::Discard) << true << 0;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << 0;
    }

    void asksForChangesThatAreNotSaved()
    {
        QFETCH(int, answer);
        QFETCH(bool, closes);
        QFETCH(int, saved);
        QVERIFY(m_window->Shown().SaveAs(Path("film.mlt")));
        QVERIFY(Place(*m_window, 0));
        QString asked;
        Answer(QMessageBox::StandardButton(answer), &asked);
        QCOMPARE(m_window->close(), closes);
        QVERIFY(!asked.isEmpty());
        QCOMPARE(EngineFixture::ClipCount(m_engine->Load(Path("film.mlt"))), saved);
    }

    void isWholeWhileItsPreviewStops()
    {
        QVERIFY(Place(*m_window, 0));
        FPreViewRenderHelper* preview = m_window->Shown().Timeline()->GetPreViewRenderHelper();
        QVERIFY(preview->SetCacheDirectory(Path("preview")));
        preview->StartRender();
        QVERIFY(preview->IsCaching());
        bool isWhole = false;
        EditorWindow* const window = m_window.get();
        const auto look = [&] { isWhole = window->Shown().Steps().canUndo(); };
        QMetaObject::invokeMethod(window, look, Qt::QueuedConnection);
        m_window.reset();
        QVERIFY(isWhole);
    }

    /// Qt's own texts too, and to the other direction and back.
    void followsTheLanguage()
    {
        m_window->findChild<QAction*>("export")->trigger();
        const auto exportDialog = [this] { return m_window->findChild<ExportDialog*>(); };
        exportDialog()->SetPath("/x/y.mp4");
        const HostLanguage language;
        MultiLangMgr::GetInstance()->SetConfigPath(Path("language.ini"));
        const auto choose = [this](const QString& name) {
            for (QAction* action : m_window->findChildren<QAction*>()) {
                if (action->text().contains(name))
                    action->trigger();
            }
        };
        choose("(Arabic)");
        QTRY_COMPARE(m_window->layoutDirection(), Qt::RightToLeft);
        QTRY_COMPARE(m_window->locale().language(), QLocale::Arabic);
        QTRY_VERIFY(exportDialog()->windowTitle() != QLatin1String("Export"));
        choose("(German)");
        QTRY_COMPARE(m_window->layoutDirection(), Qt::LeftToRight);
        QTRY_COMPARE(m_window->locale().language(), QLocale::German);
        QVERIFY(exportDialog()->isVisible());
        QCOMPARE(exportDialog()->Order().path, QStringLiteral("/x/y.mp4"));
        choose("(English)");
    }

    // From import to export; each step must do what it says.
    void makesAFilmByItself()
    {
        TestClip clip;
        clip.frames = 130;
        clip.audioCodec = QStringLiteral("aac");
        for (const char* name : {"a.mp4", "b.mp4"})
            QCOMPARE(MakeTestClip(Path(name), clip), QString());
        QVERIFY(m_window->Shown().New(EngineFixture::kSmall));
        Tour tour(*m_window, Path("tour"), {Path("a.mp4"), Path("no.mp4"), Path("b.mp4")});
        QVERIFY(tour.Run());
        const NLETimeline film(m_engine->Media(Path("tour/film.mp4")), ExactType_Unknown, nullptr);
        QCOMPARE(film.GetTotalLength(), m_window->Shown().Length());
        QVERIFY(m_window->Files().Open(Path("tour/film.mlt")));
        QCOMPARE(ClipCount(), 6);
    }

    void recoversWhatAKillHasLeft()
    {
        QProcess editor;
        editor.start(QCoreApplication::applicationFilePath(), {kCrashing, m_data->path()});
        QVERIFY(editor.waitForStarted());
        const auto hasCopy = [this] {
            const QDir runs(Path("autosave"));
            const QStringList folders = runs.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
            return std::any_of(folders.begin(), folders.end(), [&](const QString& run) {
                return runs.exists(run + "/project.mlt");
            });
        };
        QTRY_VERIFY_WITH_TIMEOUT(hasCopy(), kPatience);
        m_window->OfferRecovery(); // asks nothing: the other one still runs
        QCOMPARE(ClipCount(), 0);
        editor.kill();
        QVERIFY(editor.waitForFinished());

        QString asked;
        Answer(QMessageBox::Open, &asked);
        m_window->OfferRecovery();
        QVERIFY2(asked.contains("film.mlt"), qPrintable(asked));
        QCOMPARE(ClipCount(), 2);
        QVERIFY(m_window->isWindowModified());
        QCOMPARE(m_window->Shown().Path(), Path("film.mlt"));
        QVERIFY(hasCopy()); // of this run now
        QVERIFY(m_window->Shown().Save());
        m_window.reset();
        QVERIFY(!hasCopy());
        QCOMPARE(QDir(Path("autosave")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 0);
    }
};

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String(kCrashing))
        return EditAndWait(arguments.value(2));
    tst_EditorWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_editor_window.moc"

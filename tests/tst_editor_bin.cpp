// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineApi/INLEStreamProcess.h"
#include "Host/Editor/Bin/BinCommands.h"
#include "Host/Editor/Bin/BinDelegate.h"
#include "Host/Editor/Bin/BinPanel.h"
#include "Host/Editor/Bin/BinView.h"
#include "Host/Editor/Bin/MediaBin.h"
#include "Host/Editor/Bin/MediaFinder.h"
#include "Host/Editor/Bin/ProxyJobs.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"
#include "Host/Import/ImportDialog.h"
#include "Host/Widgets/MediaPlayer.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/Files.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTreeWidget>
#include <QUndoStack>

namespace {

constexpr int kFrames = 50;
constexpr int kPatience = 30000; // ms
constexpr QSize kPicture = BinDelegate::kCellPicture;
constexpr int kPictureTop = 6;

/// The panel on a project of its own.
struct Desk
{
    Desk() : selection(project), panel(project, selection, player)
    {
        panel.resize(400, 500);
        panel.show();
    }

    BinView& View() const { return *panel.findChild<BinView*>(); }
    /// The names that show, with the number of clips and "?" for what is offline.
    QString Shown() const
    {
        QStringList names;
        const QAbstractItemModel& model = *View().model();
        for (int row = 0; row < model.rowCount(); ++row) {
            const auto item = model.index(row, 0).data(BinModel::ItemRole).value<BinItem>();
            if (item.media.state == MediaDescription::State::Unknown)
                return "reading";
            names << QString("%1%2%3")
                         .arg(item.Name())
                         .arg(item.uses)
                         .arg(item.IsOffline() ? "?" : "");
        }
        return names.join(' ');
    }
    BinItem Item(int row) const
    {
        return View().model()->index(row, 0).data(BinModel::ItemRole).value<BinItem>();
    }
    void Choose(int row) const { View().setCurrentIndex(View().model()->index(row, 0)); }
    QPoint OnPicture(int row, double share) const
    {
        const QRect cell = View().visualRect(View().model()->index(row, 0));
        const int side = (cell.width() - kPicture.width()) / 2;
        return {cell.left() + side + int(share * kPicture.width()), cell.top() + kPictureTop};
    }
    QVector<Node> Clips() const
    {
        QVector<Node> clips;
        for (const QVector<Node>& some : FindClips(project.Node()))
            clips += some;
        return clips;
    }

    Project project;
    Selection selection;
    MediaPlayer player;
    BinPanel panel;
};

} // namespace

class tst_EditorBin : public QObject, private EngineFixture
{
    Q_OBJECT

    QString Media(const QString& name) const { return folder.filePath("media/" + name); }
    static bool Touch(const QString& path) { return SetContents(path, "no media"); }
    static bool UsesProxy(const Node& clip)
    {
        bool isEnabled = false;
        Facet<INLEVideoStreamProcess>(clip)->GetProxyEnabled(&isEnabled);
        return isEnabled;
    }
    static bool PlaceMedia(Desk& desk, const QString& path, int position)
    {
        const Node clip =
            NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider()->CreateMediaTimeline(path,
                                                                                           true);
        return desk.project.Edit("place", [&](INLEEditing& editing) {
            return editing.Place(clip.get(), position, 0, 0);
        });
    }

private Q_SLOTS:
    void initTestCase()
    {
        QDir(folder.path()).mkpath("media/more");
        TestClip clip;
        clip.frames = kFrames;
        QCOMPARE(MakeTestClip(Media("a.mp4"), clip), QString());
        QVERIFY(QFile::copy(Media("a.mp4"), Media("more/b.mp4")));
        clip.codec.clear();
        clip.audioCodec = "aac";
        QCOMPARE(MakeTestClip(Media("c.m4a"), clip), QString());
        QVERIFY(Touch(Media("d.txt")));
    }

    void keepsWhatWasAddedWithTheProject()
    {
        Desk desk;
        desk.panel.Add({Media(""), Media("none.mp4")});
        QTRY_COMPARE_WITH_TIMEOUT(desk.Shown(), QString("a.mp40 b.mp40 c.m4a0"), kPatience);
        QCOMPARE(desk.project.Steps().count(), 1);
        desk.Choose(1);
        QTest::keyClick(&desk.View(), Qt::Key_I);
        const NLERange marks = desk.Item(1).entry.marks;
        QCOMPARE(marks.out, kFrames - 1);
        QVERIFY(desk.project.SaveAs(Path("bin.mlt")));
        desk.project.Steps().undo();
        desk.project.Steps().undo();
        QCOMPARE(desk.Shown(), QString());
        QVERIFY(desk.project.Open(Path("bin.mlt")));
        QTRY_COMPARE_WITH_TIMEOUT(desk.Shown(), QString("a.mp40 b.mp40 c.m4a0"), kPatience);
        QCOMPARE(desk.Item(1).entry.marks.in, marks.in);
    }

    void clipsKeepTheirMedia()
    {
        Desk desk;
        QVERIFY(PlaceMedia(desk, Media("a.mp4"), 0));
        desk.panel.Add({Media("c.m4a")});
        QTRY_COMPARE_WITH_TIMEOUT(desk.Shown(), QString("a.mp41 c.m4a0"), kPatience);
        desk.View().selectAll();
        QTest::keyClick(&desk.View(), Qt::Key_Delete);
        QCOMPARE(desk.Shown(), QString("a.mp41"));
        desk.project.Steps().undo();
        QTRY_COMPARE(desk.Shown(), QString("a.mp41 c.m4a0"));
        desk.project.Steps().undo();
        desk.project.Steps().undo();
        QTRY_COMPARE(desk.Shown(), QString());
    }

    void findsMovedMedia_data()
    {
        QTest::addColumn<QStringList>("there");
        QTest::addColumn<QString>("found");
        QTest::newRow("in the same place beside it")
            << QStringList{"/x/b/2.mp4", "/2.mp4"} << "/x/b/2.mp4";
        QTest::newRow("further below") << QStringList{"/x/a/y/z/2.mp4"} << "/x/a/y/z/2.mp4";
        QTest::newRow("of two the one in a folder of the old name")
            << QStringList{"/x/a/a/2.mp4", "/x/a/b/2.mp4", "/x/a/c/2.mp4"} << "/x/a/b/2.mp4";
        QTest::newRow("not above") << QStringList{"/x/2.mp4"} << QString();
    }
    void findsMovedMedia()
    {
        QFETCH(QStringList, there);
        QFETCH(QString, found);
        const QTemporaryDir root;
        for (const QString& path : there + QStringList{"/x/a/1.mp4"})
            QVERIFY(Touch(root.path() + path));
        const auto moved = FindMovedMedia("/old/a/1.mp4", root.path() + "/x/a/1.mp4",
                                          {"/old/a/1.mp4", "/old/b/2.mp4"});
        QCOMPARE(moved.value("/old/a/1.mp4"), root.path() + "/x/a/1.mp4");
        QCOMPARE(moved.value("/old/b/2.mp4"), found.isEmpty() ? QString() : root.path() + found);
    }

    void relinkIsOneStep_data()
    {
        QTest::addColumn<bool>("isMedia");
        QTest::newRow("of files that are there") << true;
        QTest::newRow("of which one is no media: none") << false;
    }
    void relinkIsOneStep()
    {
        QFETCH(bool, isMedia);
        const QString before = folder.filePath("gone/");
        const QString now = folder.filePath(isMedia ? "here/" : "there/");
        QDir().mkpath(before);
        Desk desk;
        for (const int number : {1, 2}) {
            const QString file = before + QString("%1.mp4").arg(number);
            QVERIFY(QFile::copy(Media("a.mp4"), file));
            QVERIFY(PlaceMedia(desk, file, number * kFrames));
        }
        QVERIFY(desk.project.SaveAs(Path("moved.mlt")));
        QVERIFY(QDir().rename(before, now));
        QVERIFY(isMedia || Touch(now + "2.mp4"));
        QVERIFY(desk.project.Open(Path("moved.mlt")));
        QTRY_COMPARE_WITH_TIMEOUT(desk.Shown(), QString("1.mp41? 2.mp41?"), kPatience);
        const int steps = desk.project.Steps().count();

        QSignalSpy changed(&desk.project, &Project::NodeChanged);
        QCOMPARE(desk.panel.Relink(before + "1.mp4", now + "1.mp4"), isMedia);
        QCOMPARE(changed.size(), isMedia ? 3 : 0); // both clips and the project
        QCOMPARE(desk.project.Steps().count(), steps + (isMedia ? 1 : 0));
        const QString shown = isMedia ? "1.mp41 2.mp41" : "1.mp41? 2.mp41?";
        QTRY_COMPARE_WITH_TIMEOUT(desk.Shown(), shown, kPatience);
        QCOMPARE(FileOf(*desk.Clips().first()).startsWith(now), isMedia);
        if (!isMedia)
            return;
        desk.project.Steps().undo();
        QTRY_COMPARE_WITH_TIMEOUT(desk.Shown(), QString("1.mp41? 2.mp41?"), kPatience);
        desk.project.Steps().redo();
        QTRY_COMPARE_WITH_TIMEOUT(desk.Shown(), QString("1.mp41 2.mp41"), kPatience);
        for (const Node& clip : desk.Clips())
            QCOMPARE(ReadFrameNumber(Frame(clip, 3)), 3);
    }

    void proxyStandsForAllClips()
    {
        const auto maker = MakeProxyMaker();
        QCOMPARE(maker->SetFolder(Path("proxies").toStdWString().c_str(), 100), S_OK);
        const QString film = Media("more/large.mp4");
        TestClip large;
        large.size = QSize(1280, 720);
        large.frames = 12;
        QCOMPARE(MakeTestClip(film, large), QString());
        Desk desk;
        QVERIFY(PlaceMedia(desk, film, 0));
        QTRY_COMPARE_WITH_TIMEOUT(desk.Shown(), QString("large.mp41"), kPatience);
        desk.Choose(0);
        BinCommands& commands = desk.panel.Commands();
        const auto run = [&](const QString& text) {
            commands.Update();
            for (QAction* action : commands.ItemMenu()->actions()) {
                if (action->text() == text && action->isEnabled())
                    return action->trigger(), true;
            }
            return false;
        };
        QVERIFY(!run("Use the proxy"));
        QVERIFY(run("Make a proxy"));
        QTRY_VERIFY_WITH_TIMEOUT(!desk.Item(0).entry.proxy.isEmpty(), kPatience);
        QVERIFY(PlaceMedia(desk, film, 100)); // as by others
        QCOMPARE(desk.Clips().size(), 2);
        for (const Node& clip : desk.Clips())
            QVERIFY(UsesProxy(clip));
        QTRY_COMPARE(desk.Item(0).uses, 2);
        QVERIFY(run("Use the proxy"));
        for (const Node& clip : desk.Clips())
            QVERIFY(!UsesProxy(clip));
        desk.project.Steps().undo();
        for (const Node& clip : desk.Clips())
            QVERIFY(UsesProxy(clip));
    }

    void proxiesOfSeveralFilesAreOneStep()
    {
        Desk desk;
        const QString film = Media("more/b.mp4");
        MediaBin bin(desk.project);
        QVERIFY(PlaceMedia(desk, Media("a.mp4"), 0));
        QTRY_COMPARE(bin.Uses(Media("a.mp4")), 1);
        const int steps = desk.project.Steps().count();
        const int merge = bin.NewMerge();
        QVERIFY(bin.UseProxies({{film, film}}, merge));
        QVERIFY(bin.UseProxies({{Media("a.mp4"), film}}, merge)); // as soon as it is made
        QVERIFY(!bin.UseProxies({{Media("a.mp4"), film}}, merge));
        QCOMPARE(desk.project.Steps().count(), steps + 1);
        for (const bool isUsed : {false, true}) {
            isUsed ? desk.project.Steps().redo() : desk.project.Steps().undo();
            QCOMPARE(UsesProxy(desk.Clips().first()), isUsed);
            QCOMPARE(!bin.Entry(film).proxy.isEmpty(), isUsed);
        }
    }

    void unusedMediaMovesWithTheProject()
    {
        QVERIFY(QDir(folder.path()).mkpath("former/m"));
        QVERIFY(QFile::copy(Media("a.mp4"), Path("former/m/a.mp4")));
        Desk desk;
        MediaBin bin(desk.project);
        QVERIFY(bin.Add({Path("former/m/a.mp4"), Media("c.m4a")}));
        QVERIFY(desk.project.SaveAs(Path("former/p.mlt")));
        QVERIFY(QDir(folder.path()).rename("former", "later"));
        QVERIFY(desk.project.Open(Path("later/p.mlt")));
        QCOMPARE(bin.Files(), (QStringList{Path("later/m/a.mp4"), Media("c.m4a")}));
    }

    void importsFromADevice()
    {
#ifdef Q_OS_WIN
        QSKIP("the device service is the system's own");
#elif !defined(HAS_DEVICES)
        QSKIP("the device service is not built");
#endif
        const QString card = folder.filePath("card");
        QDir().mkpath(card);
        QVERIFY(QFile::copy(Media("a.mp4"), card + "/shot.mp4"));
        qputenv("COMMONLIB_DEVICE_FOLDERS", QFile::encodeName(card));
        Desk desk;
        desk.panel.Commands().AddMenu()->actions().last()->trigger();
        auto* dialog = desk.panel.findChild<ImportDialog*>();
        QVERIFY(dialog && dialog->isVisible());
        auto* tree = dialog->findChild<QTreeWidget*>();
        QTRY_VERIFY_WITH_TIMEOUT(!tree->findItems("shot.mp4", Qt::MatchRecursive).isEmpty(),
                                 kPatience);
        dialog->findChild<QLineEdit*>()->setText(folder.filePath("imported"));
        tree->topLevelItem(0)->setCheckState(0, Qt::Checked);
        for (auto* button : dialog->findChildren<QPushButton*>()) {
            if (button->text() != "Import")
                continue;
            QTRY_VERIFY(button->isEnabled());
            button->click();
        }
        QTRY_COMPARE_WITH_TIMEOUT(desk.Shown(), QString("shot.mp40"), kPatience);
        QCOMPARE(desk.Item(0).entry.path, folder.filePath("imported/shot.mp4"));
    }

    void placesAtThePlayHead()
    {
        Desk desk;
        desk.panel.Add({Media("a.mp4")});
        QTRY_COMPARE_WITH_TIMEOUT(desk.Shown(), QString("a.mp40"), kPatience);
        QVERIFY(PlaceMedia(desk, Media("c.m4a"), 0));
        QVERIFY(desk.player.Open(desk.project.Node()));
        QVERIFY(desk.player.Seek(7));
        QTRY_COMPARE(desk.player.Position(), 7);
        desk.Choose(0);
        desk.View().ShowFrame(desk.View().model()->index(0, 0), 20);
        QTest::keyClick(&desk.View(), Qt::Key_O);
        QTest::mouseDClick(desk.View().viewport(), Qt::LeftButton, {}, desk.OnPicture(0, 0.5));
        const Node clip = desk.selection.Current();
        QVERIFY(clip);
        int position = -1;
        int level = -1;
        clip->GetPosition(&position);
        clip->GetLevel(&level);
        QCOMPARE(position, 7);
        QCOMPARE(level, 1); // the lower one is taken
        QCOMPARE(RangeOf(clip).in, 0);
        QCOMPARE(RangeOf(clip).out, 20);
    }

    void playsUnderThePointer_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("left to right") << Qt::LeftToRight;
        QTest::newRow("in a language from right to left too") << Qt::RightToLeft;
    }
    void playsUnderThePointer()
    {
        QFETCH(Qt::LayoutDirection, direction);
        Desk desk;
        desk.panel.setLayoutDirection(direction);
        desk.panel.Add({Media("a.mp4")});
        QTRY_COMPARE_WITH_TIMEOUT(desk.Shown(), QString("a.mp40"), kPatience);
        const QModelIndex index = desk.View().model()->index(0, 0);
        for (const double share : {0.1, 0.8}) {
            QMouseEvent move(QEvent::MouseMove, desk.OnPicture(0, share), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(desk.View().viewport(), &move);
            QVERIFY(qAbs(desk.View().ShownFrame(index) - int(share * kFrames)) <= 1);
            const QPoint corner = desk.OnPicture(0, 0);
            QTRY_COMPARE_WITH_TIMEOUT(
                ReadFrameNumber(desk.View().viewport()->grab({corner, kPicture}).toImage()),
                desk.View().ShownFrame(index), kPatience);
        }
    }

    void dragsFilesOut()
    {
        Desk desk;
        desk.panel.Add({Media("")});
        QTRY_VERIFY_WITH_TIMEOUT(desk.Shown().startsWith("a.mp40 b.mp40 c.m4a0"), kPatience);
        desk.Choose(0);
        desk.View().ShowFrame(desk.View().currentIndex(), 10);
        QTest::keyClick(&desk.View(), Qt::Key_I);
        const QAbstractItemModel& model = *desk.View().model();
        const std::unique_ptr<QMimeData> one(model.mimeData({model.index(0, 0)}));
        QCOMPARE(one->urls(), QList<QUrl>{QUrl::fromLocalFile(Media("a.mp4"))});
        QCOMPARE(one->data("application/x-commonlib-range"), QByteArray("10 49"));
        const std::unique_ptr<QMimeData> two(
            model.mimeData({model.index(0, 0), model.index(1, 0)}));
        QCOMPARE(two->urls().size(), 2);
        QVERIFY(!two->hasFormat("application/x-commonlib-range"));

        Desk other;
        QVERIFY(other.View().model()->dropMimeData(two.get(), Qt::CopyAction, -1, -1, {}));
        QTRY_COMPARE_WITH_TIMEOUT(other.Shown(), QString("a.mp40 b.mp40"), kPatience);
        auto* search = other.panel.findChild<QLineEdit*>();
        search->setText("B.MP");
        QCOMPARE(other.Shown(), QString("b.mp40"));
        // Qt leaks the animation of the button that clears, when it has not ended before.
        QTRY_COMPARE(search->findChild<QAbstractButton*>()->property("opacity").toReal(), 1.0);
    }
};

QTEST_MAIN(tst_EditorBin)
#include "tst_editor_bin.moc"

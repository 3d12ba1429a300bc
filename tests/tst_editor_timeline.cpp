// SPDX-License-Identifier: LGPL-2.1-or-later
// The editor's timeline by mouse and keys. Clips are written and read as text: "a0+40 ~35+10 /
// b5+10@90" are clips of level 0 and, behind the stroke, level 1: a letter, first frame, number of
// frames and, unless it is 100, first frame of the material. "~" is a transition.
#include "CommonLib/NLEWraper/FPreViewRenderHelper.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/TimelineRuler.h"
#include "EngineApi/INLEMarkers.h"
#include "EngineApi/INLETitle.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"
#include "Host/Editor/Timeline/LevelHeader.h"
#include "Host/Editor/Timeline/TimelineModel.h"
#include "Host/Editor/Timeline/TimelinePanel.h"
#include "Host/Editor/Timeline/TimelineView.h"
#include "Host/Widgets/MediaPlayer.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/Files.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QUndoStack>

#include <map>
#include <random>

namespace {

constexpr int kIn = 100;         ///< first frame of the material of clips
constexpr float kZoom = 120;     ///< at which a frame takes six pixels
constexpr int kPatience = 30000; // milliseconds

/// A project with a timeline in a window.
class Editor
{
public:
    explicit Editor(const EngineFixture& engine, const QString& clips = {})
        : m_engine(engine), selection(project), panel(project, selection, player)
    {
        project.New(EngineFixture::kSmall);
        project.Edit("Clips", [&](INLEEditing& editing) { return Place(editing, clips); });
        project.Steps().clear();
        panel.resize(1100, 320);
        panel.show();
        static_cast<void>(QTest::qWaitForWindowActive(&panel));
        panel.Ruler()->SetZoom(kZoom);
        View().ScrollTo(0);
        View().setFocus();
    }

    TimelineView& View() { return *panel.View(); }
    QString Text() const
    {
        std::map<std::tuple<int, int, QString>, QString> words;
        for (const Node& node : project.Timeline()->GetChilds()) {
            const NLETimeline clip(node, ExactType_Unknown, nullptr);
            words[{clip.GetLevel(), clip.GetPosition(), Letter(node)}] = Word(node);
        }
        QStringList text;
        int level = 0;
        for (const auto& [place, word] : words) {
            for (; level < std::get<0>(place); ++level)
                text << "/";
            text << word;
        }
        return text.join(' ');
    }
    QString Selected() const
    {
        QStringList letters;
        for (const Node& clip : selection.Clips())
            letters << Letter(clip);
        letters.sort();
        return letters.join(QString());
    }
    Node Clip(const QString& letter) const
    {
        for (const Node& clip : project.Timeline()->GetChilds()) {
            if (Letter(clip) == letter)
                return clip;
        }
        return {};
    }
    /// What the words say, separated by ";": "at 15" puts the play head, "click a", "key Del" and
    /// "drag a] -5^1" use mouse and keys: "a[" and "a]" are edges, "^1" is a level up. Ctrl, Shift
    /// and Alt stand before, "escape" before what ends with this key.
    void Do(const QString& script)
    {
        for (const QString& line : script.split(';', Qt::SkipEmptyParts)) {
            QStringList words = line.simplified().split(' ');
            Qt::KeyboardModifiers modifiers;
            bool isEscaped = false;
            for (; kModifiers.count(words[0]) > 0 || words[0] == "escape"; words.removeFirst()) {
                modifiers |= words[0] == "escape" ? Qt::NoModifier : kModifiers.at(words[0]);
                isEscaped = isEscaped || words[0] == "escape";
            }
            if (words[0] == "at")
                Seek(words[1].toInt());
            else if (words[0] == "click")
                QTest::mouseClick(&View(), Qt::LeftButton, modifiers, Point(words[1]));
            else if (words[0] == "key")
                Key(words[1]);
            else
                Drag(Point(words[1]), words[2], modifiers, isEscaped);
        }
    }
    /// The place in the view that words name: a clip's middle or edge, or a "frame,level".
    QPoint Point(const QString& word)
    {
        const TimelineGeometry geometry = View().Geometry();
        if (const QStringList place = word.split(','); place.size() == 2) {
            const int level = place[1].toInt();
            return {geometry.Left(place[0].toDouble()) + 1,
                    geometry.LevelTop(level) + geometry.levels.Height(level) / 2};
        }
        TimelineModel model(project);
        const QRect box = geometry.Box(*model.Find(Clip(word.left(1)).get()));
        if (word.endsWith('['))
            return {box.left() + 2, box.center().y()};
        return word.endsWith(']') ? QPoint(box.right() - 1, box.center().y()) : box.center();
    }
    void Seek(int frame)
    {
        panel.Ruler()->setFocus();
        QTest::keyClick(panel.Ruler()->focusProxy(), Qt::Key_Home);
        for (int at = 0; at < frame; ++at)
            QTest::keyClick(panel.Ruler()->focusProxy(), Qt::Key_Right);
        View().setFocus();
    }
    /// Whether the view takes such data.
    bool Drop(const QMimeData& data, const QString& place, Qt::KeyboardModifiers modifiers)
    {
        const QPoint at = Point(place);
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
        enter.ignore();
        QApplication::sendEvent(&View(), &enter);
        QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(&View(), &move);
        if (!enter.isAccepted() || !move.isAccepted())
            return false;
        QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, modifiers);
        QApplication::sendEvent(&View(), &drop);
        return true;
    }
    void Send(const QPoint& at, Qt::KeyboardModifiers modifiers)
    {
        QMouseEvent move(QEvent::MouseMove, at, View().mapToGlobal(at), Qt::NoButton,
                         Qt::LeftButton, modifiers);
        QApplication::sendEvent(&View(), &move);
    }

private:
    static const std::map<QString, Qt::KeyboardModifier> kModifiers;
    const EngineFixture& m_engine;

public:
    Project project;
    Selection selection;
    MediaPlayer player;
    TimelinePanel panel;

private:
    static QString Letter(const Node& node)
    {
        std::uint32_t argb = 0;
        if (const auto colour = node.query<INLEColorClip>(); colour)
            colour->GetColor(&argb);
        return argb ? QString(QChar(argb & 0xFF)) : QString("~");
    }
    static QString Word(const Node& node)
    {
        const NLETimeline clip(node, ExactType_Unknown, nullptr);
        const QString word =
            QString("%1%2+%3").arg(Letter(node)).arg(clip.GetPosition()).arg(clip.GetPlayLen());
        const bool isPlain = clip.IsTransition() || clip.GetTrimin() == kIn;
        return isPlain ? word : word + QString("@%1").arg(clip.GetTrimin());
    }
    HRESULT Place(INLEEditing& editing, const QString& clips) const
    {
        int level = 0;
        for (const QString& word : clips.split(' ', Qt::SkipEmptyParts)) {
            const QStringList place = word.mid(1).split('+');
            HRESULT result = S_OK;
            if (word == "/")
                ++level;
            else if (word[0] == '~')
                result = editing.AddTransition(EngineFixture::Transition("dissolve").get(),
                                               Clip(place[0]).get(), NLEEdge_End, place[1].toInt());
            else
                result = editing.Place(
                    EngineFixture::Trimmed(m_engine.Colour(QColor(0, 0x60, word[0].toLatin1())),
                                           kIn, kIn + place[1].toInt() - 1)
                        .get(),
                    place[0].toInt(), level, 0);
            if (FAILED(result))
                return result;
        }
        return S_OK;
    }
    void Key(const QString& name)
    {
        const int key = QKeySequence(name)[0];
        QTest::keyClick(&View(), Qt::Key(key & ~Qt::KeyboardModifierMask),
                        Qt::KeyboardModifiers(key & Qt::KeyboardModifierMask));
    }
    /// Pointers of a mouse come by way of others.
    void Drag(const QPoint& from, const QString& way, Qt::KeyboardModifiers modifiers,
              bool isEscaped)
    {
        const QStringList parts = way.split('^');
        const TimelineGeometry geometry = View().Geometry();
        const int x = qRound(parts[0].toInt() * geometry.scale.pixels);
        const int y = parts.size() > 1 ? -parts[1].toInt() * geometry.levels.Height(0) : 0;
        QTest::mousePress(&View(), Qt::LeftButton, modifiers, from);
        for (const QPoint by : {QPoint(x + 40, y / 2), QPoint(x / 2, y), QPoint(x, y)})
            Send(from + by, modifiers);
        if (isEscaped)
            QTest::keyClick(&View(), Qt::Key_Escape);
        QTest::mouseRelease(&View(), Qt::LeftButton, modifiers, from + QPoint(x, y));
    }
};

const std::map<QString, Qt::KeyboardModifier> Editor::kModifiers = {
    {"ctrl", Qt::ControlModifier}, {"shift", Qt::ShiftModifier}, {"alt", Qt::AltModifier}};

LevelHeader* HeaderOf(const Editor& editor, const char* name)
{
    const auto headers = editor.panel.findChildren<LevelHeader*>();
    const auto found = std::find_if(headers.begin(), headers.end(), [name](auto* header) {
        return header->accessibleName() == name;
    });
    return found == headers.end() ? nullptr : *found;
}

} // namespace

class tst_EditorTimeline : public QObject
{
    Q_OBJECT

    std::unique_ptr<EngineFixture> m_engine;

    QString MediaFile(const char* name, const TestClip& clip) const
    {
        const QString path = m_engine->Path(name);
        const QString problem = QFile::exists(path) ? QString() : MakeTestClip(path, clip);
        return problem.isEmpty() ? path : QString();
    }

private Q_SLOTS:
    void initTestCase() { m_engine = std::make_unique<EngineFixture>(); }
    void cleanupTestCase() { m_engine.reset(); }

    void offersItsClipsToAssistivePrograms()
    {
        Editor editor(*m_engine, "a0+40 b50+10 / c5+10");
        auto* view = QAccessible::queryAccessibleInterface(&editor.View());
        QCOMPARE(view->childCount(), 3);
        QAccessibleInterface* second = view->child(1);
        QVERIFY(second->text(QAccessible::Description).contains("50"));
        const QPoint middle = editor.View().mapToGlobal(editor.Point("b"));
        QVERIFY(second->rect().contains(middle));
        QCOMPARE(view->childAt(middle.x(), middle.y()), second);
        QCOMPARE(view->indexOfChild(second), 1);
        second->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(editor.Selected(), QStringLiteral("b"));
        QVERIFY(second->state().selected);
        view->child(2)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QCOMPARE(editor.Selected(), QStringLiteral("bc"));
        editor.Do("key Del");
        QVERIFY(!second->isValid());
        QCOMPARE(view->childCount(), 1);
        QCOMPARE(view->child(0)->parent(), view);
    }

    void edits_data()
    {
        QTest::addColumn<QString>("clips");
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("edited");
        const QString row = "a0+20 b20+20 c40+20";
        const auto add = [](const char* name, const QString& clips, const char* script,
                            const char* edited) {
            QTest::newRow(name) << clips << script << edited;
        };
        add("a drag moves", row, "drag c +30", "a0+20 b20+20 c70+20");
        add("a drag moves across levels", row, "drag b +0^1", "a0+20 c40+20 / b20+20");
        add("what a clip comes to stand on is cut away", row, "drag c -13", "a0+20 b20+7 c27+20");
        add("a clip snaps to an edge", row, "drag c +0^1; drag c -22", "a0+20 b20+20 / c20+20");
        add("the other edge snaps as well", "a0+20 b20+20 / c60+10", "drag c -28",
            "a0+20 b20+20 / c30+10");
        add("with snapping off it does not", "a0+20 b20+20 / c60+10", "key Shift+S; drag c -28",
            "a0+20 b20+20 / c32+10");
        add("nothing moves before frame 0", "a10+20 b40+20", "click a; ctrl click b; drag b -30",
            "a0+20 b30+20");
        add("nor below the lowest level", "a10+20", "drag a +5^-1", "a15+20");
        add("all that is selected moves", row, "click a; ctrl click c; drag c +50",
            "b20+20 a50+20 c90+20");
        add("a drag trims an end", row, "drag c] -7", "a0+20 b20+20 c40+13");
        add("a drag trims a begin", row, "drag b[ +7", "a0+20 b27+13@107 c40+20");
        add("trimming ends at a neighbour", row, "drag a] +9", "a0+20 b20+20 c40+20");
        add("with Ctrl what follows moves", row, "ctrl drag a] -7", "a0+13 b13+20 c33+20");
        add("with Shift the cut moves", row, "shift drag a] -7", "a0+13 b13+27@93 c40+20");
        add("with Alt the material slips", row, "alt drag b +7", "a0+20 b20+20@93 c40+20");
        add("with Alt and Shift the clip slides", row, "alt shift drag b +7",
            "a0+27 b27+20 c47+13@107");
        add("the ripple tool trims", row, "key B; drag b[ +7", "a0+20 b20+13@107 c33+20");
        add("the roll tool rolls", row, "key N; drag b[ +7", "a0+27 b27+13@107 c40+20");
        add("the slip tool slips", row, "key Y; drag b -7", "a0+20 b20+20@107 c40+20");
        add("the slide tool slides", row, "key U; drag b -7", "a0+13 b13+20 c33+27@93");
        add("the razor cuts", row, "key C; click 25,0", "a0+20 b20+5 b25+15@105 c40+20");
        add("Escape takes a drag back", row, "escape drag c +30", "a0+20 b20+20 c40+20");
        add("a transition follows its clips", "a0+40 b40+40 ~a+10", "drag b] -9",
            "a0+45 b35+36@95 ~35+10");
        add("S cuts what is selected", row + " / d0+60", "click b; at 25; key S",
            "a0+20 b20+5 b25+15@105 c40+20 / d0+60");
        add("S cuts all levels when nothing is", row + " / d0+60", "at 25; key S",
            "a0+20 b20+5 b25+15@105 c40+20 / d0+25 d25+35@125");
        add("Q trims the begin", row, "click b; at 25; key Q", "a0+20 b25+15@105 c40+20");
        add("W trims the end", row, "click b; at 25; key W", "a0+20 b20+5 c40+20");
        add("W with the ripple tool", row, "key B; click b; at 25; key W", "a0+20 b20+5 c25+20");
        add("Delete leaves a gap", row, "click b; key Del", "a0+20 c40+20");
        add("Shift and Delete close it", row, "click b; key Shift+Del", "a0+20 c20+20");
        add("a transition can be deleted", "a0+40 b40+40 ~a+10", "click 40,0; key Del",
            "a0+40 b40+40");
        add("cut and paste", row, "click b; at 50; key Ctrl+X; key Ctrl+V", "a0+20 c40+10 b50+20");
        add("copy and insert", row, "click b; at 30; key Ctrl+C; key Ctrl+Shift+V",
            "a0+20 b20+10 b30+20 b50+10@110 c60+20");
        add("a group moves as one", row, "key Ctrl+A; key Ctrl+G; click 90,1; drag b +10",
            "a10+20 b30+20 c50+20");
        add("no more when it is parted", row,
            "key Ctrl+A; key Ctrl+G; key Ctrl+Shift+G; click 90,1; drag c +10",
            "a0+20 b20+20 c50+20");
        add("a gap is closed", "a0+20 b30+20", "at 25; key Shift+G", "a0+20 b20+20");
        add("keys move by a frame", row, "click c; key Alt+Right; key Alt+Right",
            "a0+20 b20+20 c42+20");
        add("keys move by a second", row, "click c; key Alt+Shift+Right", "a0+20 b20+20 c65+20");
        add("keys move across levels", row, "click b; key Alt+Up", "a0+20 c40+20 / b20+20");
        add("keys slip with the slip tool", row, "click b; key Y; key Alt+Left",
            "a0+20 b20+20@101 c40+20");
        add("keys roll the cut at the play head", row, "click b; at 40; key N; key Alt+Left",
            "a0+20 b20+19 c39+21@99");
        add("a locked level stays as it is", row + " / d0+10", "click a; key Shift+L; drag a +80",
            "a0+20 b20+20 c40+20 / d0+10");
        add("a drag onto a locked level stays before it", row + " / d0+10",
            "click d; key Shift+L; drag b +0^1", "a0+20 b20+20 c40+20 / d0+10");
    }
    void edits()
    {
        QFETCH(QString, clips);
        QFETCH(QString, script);
        QFETCH(QString, edited);
        Editor editor(*m_engine, clips);
        const QString before = editor.Text();
        editor.Do(script);
        QCOMPARE(editor.Text(), edited);
        // A view that has missed a change would show another row.
        const TimelineModel fresh(editor.project);
        QCOMPARE(editor.panel.findChild<TimelineModel*>()->Length(), fresh.Length());
        while (editor.project.Steps().canUndo())
            editor.project.Steps().undo();
        QCOMPARE(editor.Text(), before);
    }

    void aDragIsOneStep()
    {
        Editor editor(*m_engine, "a0+20 b20+20");
        editor.Do("drag b +30");
        QCOMPARE(editor.project.Steps().count(), 1);
        editor.Do("escape drag b +30; drag b +0");
        QCOMPARE(editor.project.Steps().count(), 1);
    }

    void selects_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("selected");
        QTest::newRow("a click selects") << "click b; click a"
                                         << "a";
        QTest::newRow("with Ctrl it adds") << "click b; ctrl click a"
                                           << "ab";
        QTest::newRow("and takes away") << "click b; ctrl click a; ctrl click b"
                                        << "a";
        QTest::newRow("beside clips it takes all away") << "click a; click 90,1"
                                                        << "";
        QTest::newRow("a band selects what it touches") << "drag 65,1 -30^-1"
                                                        << "bcd";
        QTest::newRow("Escape brings back what was") << "click a; escape drag 65,1 -30^-1"
                                                     << "a";
        QTest::newRow("with Ctrl it adds to what is") << "click a; ctrl drag 65,0 -15"
                                                      << "ac";
        QTest::newRow("all") << "key Ctrl+A"
                             << "abcd";
        QTest::newRow("none") << "key Ctrl+A; key Ctrl+Shift+A"
                              << "";
        QTest::newRow("at the play head") << "at 45; key D"
                                          << "d";
        QTest::newRow("and what is below it") << "at 45; key D; key D"
                                              << "c";
        QTest::newRow("a group as a whole") << "click a; ctrl click d; key Ctrl+G; click b; click a"
                                            << "ad";
        QTest::newRow("deleted clips no more") << "key Ctrl+A; key Del"
                                               << "";
    }
    void selects()
    {
        QFETCH(QString, script);
        Editor editor(*m_engine, "a0+20 b20+20 c40+20 / d30+20");
        editor.Do(script);
        QTEST(editor.Selected(), "selected");
    }

    void aRefusedDragIsToldUntilItIsPossibleAgain()
    {
        Editor editor(*m_engine, "a0+20 b20+20 / d0+10");
        QSignalSpy told(&editor.project, &Project::DragRefused);
        editor.Do("click d; key Shift+L; drag b +0^1");
        QCOMPARE(told.size(), 1);
        QVERIFY(
            told.takeFirst().first().toString().endsWith("(2)")); // the level, as its head has it
        QCOMPARE(editor.project.Steps().count(), 1);              // the lock
        editor.Do("drag b +5");
        QCOMPARE(told.size(), 0);
    }

    void theModelFollowsRandomEdits()
    {
        Editor editor(*m_engine, "a0+20 b20+20 c40+20 / d0+60 / e5+9");
        const auto& model = *editor.panel.findChild<TimelineModel*>();
        std::mt19937 random(7);
        const char* const keys[] = {
            "S",         "Del",    "Shift+Del", "Ctrl+C", "Ctrl+V", "Ctrl+Shift+V",
            "Alt+Right", "Alt+Up", "Alt+Down",  "D",      "Ctrl+A", "Q",
            "W"};
        for (int step = 0; step < 150; ++step) {
            editor.Do(QString("at %1; key D; key %2").arg(random() % 60).arg(keys[random() % 13]));
            if (random() % 3 == 0)
                editor.project.Steps().undo();
            const TimelineModel fresh(editor.project);
            QCOMPARE(model.Count(), fresh.Count());
            for (int level = 0; level <= fresh.LevelCount(); ++level) {
                const auto& shown = model.Clips(level).All();
                const auto& there = fresh.Clips(level).All();
                QVERIFY(std::equal(shown.begin(), shown.end(), there.begin(), there.end(),
                                   [](const auto& a, const auto& b) {
                                       return a.row->node == b.row->node && a.begin == b.begin &&
                                              a.end == b.end && a.reach == b.reach;
                                   }));
            }
        }
    }

    void takesMediaFiles_data()
    {
        QTest::addColumn<QByteArray>("range");
        QTest::addColumn<bool>("isInserting");
        QTest::addColumn<QString>("text");
        QTest::newRow("over what stands there")
            << QByteArray() << false << "a0+10 ~10+50@0 b60+10@150";
        QTest::newRow("with Ctrl between it") << QByteArray() << true << "a0+10 ~10+50@0 b60+60";
        QTest::newRow("the part that was chosen")
            << QByteArray("5 14") << false << "a0+10 ~10+10@5 b20+50@110";
    }
    void takesMediaFiles()
    {
        QFETCH(QByteArray, range);
        QFETCH(bool, isInserting);
        const Qt::KeyboardModifiers modifier = isInserting ? Qt::ControlModifier : Qt::NoModifier;
        const QString path = MediaFile("clip.mp4", {});
        QVERIFY(!path.isEmpty());
        Editor editor(*m_engine, "a0+10 b10+60");
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        if (!range.isEmpty())
            data.setData("application/x-commonlib-range", range);
        QVERIFY(editor.Drop(data, "11,0", modifier)); // snaps to the cut
        QTEST(editor.Text(), "text");
        editor.Do("click a; key Shift+L");
        QVERIFY(!editor.Drop(data, "11,0", modifier));
    }

    void refusesWhatIsNoMedia()
    {
        Editor editor(*m_engine, "a0+10");
        const QString path = m_engine->Path("text.mp4");
        QVERIFY(SetContents(path, "no media"));
        QSignalSpy refused(&editor.project, &Project::Refused);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(MediaFile("clip.mp4", {})), QUrl::fromLocalFile(path)});
        editor.Drop(data, "20,0", {});
        QCOMPARE(refused.count(), 1);
        QCOMPARE(editor.Text(), QString("a0+10")); // all or none
        QMimeData text;
        text.setText("text");
        QVERIFY(!editor.Drop(text, "20,0", {}));
    }

    void showsEachClipAndEachGap_data()
    {
        QTest::addColumn<int>("zoom");
        for (const int zoom : {0, 120, 200, 260, 330, 400, 470})
            QTest::newRow(qPrintable(QString("zoom %1").arg(zoom))) << zoom;
    }
    /// Whatever is painted as one: a clip that begins at a pixel shows there, and where there is no
    /// clip the level does.
    void showsEachClipAndEachGap()
    {
        QFETCH(int, zoom);
        Editor editor(*m_engine);
        std::mt19937 random(3);
        editor.project.Edit("Clips", [&](INLEEditing& editing) {
            HRESULT result = S_OK;
            for (int at = 0; at < 20000 && result == S_OK; at += int(random() % 90) + 1) {
                const int length = int(random() % (random() % 9 == 0 ? 400 : 30)) + 1;
                const Node clip = m_engine->Colour(QColor(0, 0xA0, 0));
                result = editing.Place(m_engine->Trimmed(clip, 0, length - 1).get(), at, 0, 0);
                at += length;
            }
            return result;
        });
        editor.panel.Ruler()->SetZoom(float(zoom));
        editor.View().ScrollTo(3000);
        const QImage view = editor.View().grab().toImage();
        const TimelineGeometry geometry = editor.View().Geometry();
        const int y = geometry.LevelTop(0) + geometry.levels.Height(0) / 2;
        const QRgb empty = view.pixel(3, geometry.LevelTop(1) + 5);
        int covered = 0; // to the right of all that was painted
        for (const auto& entry : editor.panel.findChild<TimelineModel*>()->Clips(0).All()) {
            const int left = geometry.Left(entry.begin);
            if (left >= view.width())
                break;
            if (left > covered + 4)
                QCOMPARE(view.pixel((left + covered) / 2, y), empty);
            if (left > 0)
                QVERIFY2(view.pixel(left, y) != empty, qPrintable(QString::number(entry.begin)));
            covered = std::max(covered, geometry.Left(entry.end));
        }
    }

    /// A play head that moves paints a few columns: they have to fit to what is around them.
    void paintsPartsAsTheWhole()
    {
        Editor editor(*m_engine, "a0+40 b40+40 ~a+10 / c5+3 d9+1 e11+1 f13+1 c20+70");
        editor.Do("click c; at 50");
        editor.panel.Ruler()->SetZoom(200);
        editor.View().ScrollTo(37);
        const QImage whole = editor.View().grab().toImage();
        for (const int left : {0, 3, 11, 40, 77, 160, 201}) {
            QImage part = whole;
            const QRect area(left, 0, 3, whole.height());
            QPainter(&part).fillRect(area, Qt::magenta);
            editor.View().render(&part, area.topLeft(), area);
            QVERIFY2(part == whole, qPrintable(QString::number(left)));
        }
    }

    void keysZoomAboutThePlayHead()
    {
        Editor editor(*m_engine, "a0+1000");
        editor.Do("at 50");
        const double x = editor.View().Geometry().scale.X(50);
        editor.Do("key Ctrl+=; key Ctrl+=");
        const TimelineScale scale = editor.View().Geometry().scale;
        QVERIFY(scale.pixels > 10);
        QVERIFY(std::abs(scale.X(50) - x) < 2);
        editor.Do("key Shift+Z");
        const TimelineScale fitted = editor.View().Geometry().scale;
        QCOMPARE(fitted.left, 0.0);
        QVERIFY(fitted.X(1000) > editor.View().width() * 0.7);
        QVERIFY(fitted.X(1000) <= editor.View().width());
    }

    void turnsThePageForThePlayHead()
    {
        Editor editor(*m_engine, "a0+400 b400+20");
        editor.Do("key Down");
        QCOMPARE(editor.panel.Ruler()->CurrentFrames(), 400);
        const double x = editor.View().Geometry().scale.X(400);
        QVERIFY(x > 0 && x < editor.View().width());
    }

    void keepsTheLowestLevelInSight()
    {
        Editor editor(*m_engine, "a0+20 / b0+20 / c0+20 / d0+20 / e0+20");
        auto* down = editor.panel.findChild<QScrollBar*>("down");
        QVERIFY(down->maximum() > 0);
        down->setValue(down->maximum());
        const int top = editor.View().Geometry().LevelTop(0);
        editor.Do("click a");
        for (int level = 0; level < 6; ++level)
            editor.Do("key Alt+Up"); // levels come on top
        QCOMPARE(editor.View().Geometry().LevelTop(0), top);
    }

    void zoomsAboutThePointer()
    {
        Editor editor(*m_engine, "a0+1000");
        const QPoint at(400, 50);
        const double frame = editor.View().Geometry().scale.Frame(at.x());
        QWheelEvent wheel(at, editor.View().mapToGlobal(at), {}, {0, 120}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&editor.View(), &wheel);
        const TimelineScale scale = editor.View().Geometry().scale;
        QVERIFY(scale.pixels > 6.5);
        QVERIFY(std::abs(scale.X(frame) - at.x()) < 1);
    }

    void scrollsAtTheEdgeOfADrag()
    {
        Editor editor(*m_engine, "a0+20 b400+20");
        const QPoint from = editor.Point("a");
        QTest::mousePress(&editor.View(), Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, QPoint(editor.View().width() - 1, from.y()),
                         Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&editor.View(), &move);
        int position = 0;
        const Node clip = editor.Clip("a");
        QTRY_VERIFY_WITH_TIMEOUT(SUCCEEDED(clip->GetPosition(&position)) && position > 250,
                                 kPatience);
        QTest::mouseRelease(&editor.View(), Qt::LeftButton, {}, move.pos());
        QVERIFY(editor.panel.Ruler()->OffsetFrames() > 50);
        QCOMPARE(editor.project.Steps().count(), 1);
    }

    void headersSwitch_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<int>("flags");
        QTest::newRow("hides") << "Level 2: Hide" << int(NLELevel_Hidden);
        QTest::newRow("mutes") << "Level 2: Mute" << int(NLELevel_Muted);
        QTest::newRow("plays alone") << "Level 2: Solo" << int(NLELevel_Solo);
    }

    void headersSwitch()
    {
        QFETCH(QString, button);
        QFETCH(int, flags);
        Editor editor(*m_engine, "a0+20 / b0+20");
        const auto buttons = editor.panel.findChildren<QAbstractButton*>();
        const auto found = std::find_if(buttons.begin(), buttons.end(),
                                        [&](auto* one) { return one->accessibleName() == button; });
        QVERIFY(found != buttons.end());
        const auto now = [&] { return editor.panel.findChild<TimelineModel*>()->StateOf(1).flags; };
        QTest::keyClick(*found, Qt::Key_Space);
        QCOMPARE(now(), flags);
        QVERIFY((*found)->isChecked());
        editor.project.Steps().undo();
        QCOMPARE(now(), 0);
        QVERIFY(!(*found)->isChecked());
    }

    void headersRename()
    {
        Editor editor(*m_engine, "a0+20 / b0+20");
        auto* header = HeaderOf(editor, "Level 2");
        QVERIFY(header);
        auto* name = header->findChild<QLineEdit*>();
        QTest::keyClicks(name, "Titles x");
        QTest::keyClick(name, Qt::Key_Escape);
        QTest::keyClicks(name, "Titles");
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(editor.panel.findChild<TimelineModel*>()->StateOf(1).name, QString("Titles"));
        QCOMPARE(header->accessibleName(), QString("Titles"));
        QCOMPARE(editor.project.Steps().count(), 1);
        editor.project.Steps().undo();
        QCOMPARE(name->text(), QString());
        QCOMPARE(header->accessibleName(), QString("Level 2"));
    }

    void aHeaderTakesItsEmptyLevelAway()
    {
        Editor editor(*m_engine, "a0+20");
        const auto levels = [&] { return editor.View().Geometry().levels.Count(); };
        const int before = levels();
        editor.project.Edit("Name", [&](INLEEditing&) {
            return editor.project.Levels()->SetName(before, L"Empty");
        });
        QCOMPARE(levels(), before + 1);
        QTRY_VERIFY(HeaderOf(editor, "Empty"));
        auto* name = HeaderOf(editor, "Empty")->findChild<QLineEdit*>();
        name->clear();
        QTest::keyClick(name, Qt::Key_Return);
        QCOMPARE(levels(), before);
        editor.project.Steps().undo();
        QCOMPARE(levels(), before + 1);
    }

    void headersLockAndResize()
    {
        Editor editor(*m_engine, "a0+20 / b0+20");
        auto* header = HeaderOf(editor, "Level 2");
        QVERIFY(header);
        auto* lock = header->findChildren<QAbstractButton*>().last();
        lock->setFocus();
        QTest::keyClick(lock, Qt::Key_Space);
        QVERIFY(editor.panel.findChild<TimelineModel*>()->IsLocked(1));
        editor.project.Steps().undo();
        QVERIFY(!lock->isChecked());

        const int height = header->height();
        QTest::mousePress(header, Qt::LeftButton, {}, QPoint(20, height - 2));
        QMouseEvent move(QEvent::MouseMove, QPoint(20, height + 18), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(header, &move);
        QTest::mouseRelease(header, Qt::LeftButton);
        QCOMPARE(header->height(), height + 20);
        QCOMPARE(editor.View().Geometry().levels.Height(1), height + 20);
        QTest::keyClick(lock, Qt::Key_Up, Qt::ControlModifier);
        int kept = 0;
        editor.project.Levels()->GetHeight(1, &kept);
        QCOMPARE(kept, height + 10);
    }

    void tabKeysBringHeadersIntoSight()
    {
        Editor editor(*m_engine, "a0+20 / b0+20 / c0+20 / d0+20 / e0+20 / f0+20 / g0+20");
        const auto focused = [&]() -> LevelHeader* {
            for (auto* header : editor.panel.findChildren<LevelHeader*>()) {
                if (header->isAncestorOf(QApplication::focusWidget()))
                    return header;
            }
            return nullptr;
        };
        QTRY_VERIFY(HeaderOf(editor, "Level 7"));
        HeaderOf(editor, "Level 1")->findChild<QAbstractButton*>()->setFocus();
        QTRY_VERIFY(focused());
        while (focused() != HeaderOf(editor, "Level 7")) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QVERIFY(focused());
            const LevelHeader& header = *focused();
            QVERIFY2(header.parentWidget()->rect().contains(header.geometry()),
                     qPrintable(header.accessibleName()));
        }
    }

    void snapsToMarkers()
    {
        Editor editor(*m_engine, "a0+20 b20+20");
        const auto markers = EngineFixture::Facet<INLEMarkers>(editor.project.Node());
        const auto set = [markers] {
            const NLEMarkerRecord marker = {5, 0, 0xFFFFFFFF};
            int index = 0;
            return markers->AddMarker(&marker, nullptr, &index) == S_OK;
        };
        const auto& model = *editor.panel.findChild<TimelineModel*>();
        editor.project.Change("Marker", editor.project.Node(), set,
                              [markers] { return markers->DeleteMarker(0) == S_OK; });
        QCOMPARE(model.Markers().size(), 1);
        QCOMPARE(model.Markers()[0].frame, 5);
        editor.Do("drag b +0^1; drag b -14");
        QCOMPARE(editor.Text(), QString("a0+20 / b5+20"));
        for (int step = 0; step < 3; ++step)
            editor.project.Steps().undo();
        QVERIFY(model.Markers().isEmpty());
    }

    void snapLine_data()
    {
        QTest::addColumn<QString>("clips");
        QTest::addColumn<bool>("isShown");
        QTest::newRow("the edge stands on it") << "a0+20 / b30+8" << true;
        QTest::newRow("a neighbour holds the edge back") << "a0+20 c20+20 / b30+8" << false;
    }
    void snapLine()
    {
        QFETCH(QString, clips);
        QFETCH(bool, isShown);
        Editor editor(*m_engine, clips);
        const TimelineGeometry geometry = editor.View().Geometry();
        const QPoint from = editor.Point("a]");
        QTest::mousePress(&editor.View(), Qt::LeftButton, {}, from);
        editor.Send(from + QPoint(qRound(9 * geometry.scale.pixels), 0), {});
        const QImage view = editor.View().grab().toImage();
        const QColor line(0xff, 0xd0, 0x4a);
        QCOMPARE(view.pixelColor(geometry.Left(30), view.height() - 2) == line, isShown);
        QTest::mouseRelease(&editor.View(), Qt::LeftButton, {}, from);
    }

    void goesToCuts()
    {
        Editor editor(*m_engine, "a0+20 b20+20 / c10+25");
        QList<int> frames;
        for (const char* key : {"Down", "Down", "Down", "Up", "Up", "Up", "Up"}) {
            editor.Do(QString("key ") + key);
            frames << editor.panel.Ruler()->CurrentFrames();
        }
        QCOMPARE(frames, (QList<int>{10, 20, 35, 20, 10, 0, 0}));
    }

    /// Pictures and wave forms come while the window is open; none is waited for by a paint.
    void showsPicturesAndSound()
    {
        TestClip clip;
        clip.audioCodec = "aac";
        const QString path = MediaFile("sound.mp4", clip);
        Editor editor(*m_engine);
        editor.project.Edit("Media", [&](INLEEditing& editing) {
            return editing.Place(m_engine->Media(path).get(), 0, 0, 0);
        });
        const QRect box =
            editor.View().Geometry().Box(*editor.panel.findChild<TimelineModel*>()->Clips(0).At(0));
        const auto number = [&] {
            const QImage view = editor.View().grab().toImage();
            const QRect tile(box.left(), box.top(), 60, box.height());
            QSet<QRgb> colours;
            for (int y = tile.top(); y <= tile.bottom(); ++y) {
                for (int x = tile.left(); x <= tile.right(); ++x)
                    colours.insert(view.pixel(x, y));
            }
            return colours.size();
        };
        QTRY_VERIFY_WITH_TIMEOUT(number() > 100, kPatience);
        const auto wave = [&] {
            // The tone rises from the middle of the lower part.
            const QImage view = editor.View().grab().toImage();
            return qGray(view.pixel(box.center().x(), box.bottom() - 10));
        };
        QTRY_VERIFY_WITH_TIMEOUT(wave() > 120, kPatience);
    }

    void showsWhatIsCached()
    {
        Editor editor(*m_engine, "a0+20 b20+20");
        auto* cache = editor.project.Timeline()->GetPreViewRenderHelper();
        QVERIFY(cache->SetCacheDirectory(m_engine->Path("cache")));
        const auto isCached = [&](int frame) {
            const TimelineGeometry geometry = editor.View().Geometry();
            const QColor colour = editor.View().grab().toImage().pixelColor(
                geometry.Left(frame), TimelineGeometry::kStripHeight - 2);
            return colour.green() > 2 * colour.red();
        };
        QVERIFY(!isCached(30));
        cache->StartRender();
        QTRY_VERIFY_WITH_TIMEOUT(isCached(10) && isCached(30), kPatience);
        editor.Do("click b; key Del");
        QTRY_VERIFY_WITH_TIMEOUT(!isCached(30), kPatience);
        QVERIFY(isCached(10));
        cache->StopRenderSync();
    }

    void followsAPlayer()
    {
        Editor editor(*m_engine, "a0+400");
        QVERIFY(editor.player.Open(editor.project.Node()));
        editor.panel.Ruler()->SetZoom(0);
        editor.View().ScrollTo(0);
        editor.Do("at 3");
        QTRY_COMPARE_WITH_TIMEOUT(editor.player.Position(), 3, kPatience);
        QVERIFY(editor.player.Play(1));
        // Beyond the first page.
        QTRY_VERIFY_WITH_TIMEOUT(editor.panel.Ruler()->OffsetFrames() > 0, kPatience);
        QVERIFY(editor.panel.Ruler()->CurrentFrames() > 25);
    }

    void allIsReachable()
    {
        Editor editor(*m_engine, "a0+20");
        QSet<QString> keys;
        for (const QAction* action : editor.panel.Actions()) {
            if (action->isSeparator())
                continue;
            QVERIFY2(!action->shortcuts().isEmpty(), qPrintable(action->text()));
            for (const QKeySequence& key : action->shortcuts()) {
                QVERIFY2(!keys.contains(key.toString()), qPrintable(key.toString()));
                keys.insert(key.toString());
            }
        }
        QVERIFY(!editor.View().accessibleName().isEmpty());
        editor.Do("click a");
        QVERIFY(!editor.View().accessibleDescription().isEmpty());
    }
};

QTEST_MAIN(tst_EditorTimeline)
#include "tst_editor_timeline.moc"

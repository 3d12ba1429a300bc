// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/Files.h"

#include <QSignalSpy>
#include <QUndoStack>

#include <functional>
#include <map>

using Clips = QVector<Node>;

namespace {

constexpr int kLength = 10;
constexpr int kMerge = 7;

/// A project with what a row of letters does to it.
class Script
{
public:
    explicit Script(const EngineFixture& engine) : m_engine(engine)
    {
        QObject::connect(&project, &Project::Refused, [this](const QString& why) { told = why; });
    }

    void Run(const QString& letters)
    {
        for (const QChar letter : letters)
            Does(letter.toLatin1());
    }
    /// "0+10 20+10 value 2 undo 3 redo 1*": clips as they follow, steps, and whether it is
    /// modified.
    QString State()
    {
        std::map<int, QString> clips;
        for (const Node& node : project.Timeline()->GetChilds()) {
            const NLETimeline clip(node, ExactType_Unknown, nullptr);
            const int position = clip.GetPosition();
            clips[position] = QString("%1+%2 ").arg(position).arg(clip.GetPlayLen());
        }
        QString state;
        for (const auto& [position, text] : clips)
            state += text;
        const QUndoStack& steps = project.Steps();
        return state + QString("value %1 undo %2 redo %3%4")
                           .arg(Value())
                           .arg(steps.index())
                           .arg(steps.count() - steps.index())
                           .arg(project.IsModified() ? "*" : "");
    }
    Node First() const { return project.Timeline()->GetChilds().value(0); }
    void Place(int position, const QString& text = "Place")
    {
        const Node clip = m_engine.Trimmed(m_engine.Colour(Qt::red), 0, kLength - 1);
        project.Edit(
            text, [&](INLEEditing& editing) { return editing.Place(clip.get(), position, 0, 0); });
    }

    Project project;
    QString told;

private:
    int Value() const { return project.Timeline()->GetTimelineGuid().toInt(); }
    bool SetValue(int value)
    {
        project.Timeline()->SetTimelineGuid(QString::number(value));
        return true;
    }
    void ChangeValue(int merge)
    {
        const int value = Value();
        project.Change(
            "Value", project.Node(), [this, value] { return SetValue(value + 1); },
            [this, value] { return SetValue(value); }, merge);
    }
    void SetSpeed()
    {
        const auto clip = std::make_shared<NLETimeline>(First(), ExactType_Unknown, nullptr);
        const auto set = [clip](bool on) {
            clip->SetRenderScale(2);
            clip->SetRenderScaleEnable(on);
            return true;
        };
        project.Change(
            "Speed", First(), [set] { return set(true); }, [set] { return set(false); });
    }
    void Move(int position)
    {
        project.Drag([this, position](INLEEditing& editing) {
            return editing.Move(First().get(), position, 0, 0);
        });
    }
    /// Two edits, of which the second one is refused when \a position is before all.
    HRESULT MoveAndSplit(INLEEditing& editing, int position)
    {
        const HRESULT split = editing.Split(First().get(), 4, 0);
        return FAILED(split) ? split : editing.Move(First().get(), position, 1, 0);
    }
    void Does(char letter)
    {
        const auto edit = [this](const Project::EditCall& call) { project.Edit("Edit", call); };
        const std::map<char, std::function<void()>> acts = {
            {'p', [this] { Place(20 * project.Timeline()->GetClipCount()); }},
            {'s', [&] { edit([&](INLEEditing& e) { return e.Split(First().get(), 4, 0); }); }},
            {'2', [&] { edit([&](INLEEditing& e) { return MoveAndSplit(e, 50); }); }},
            {'f', [&] { edit([&](INLEEditing& e) { return MoveAndSplit(e, -5); }); }},
            {'n', [&] { edit([&](INLEEditing& e) { return e.Split(First().get(), 90, 0); }); }},
            {'v', [this] { ChangeValue(0); }},
            {'m', [this] { ChangeValue(kMerge); }},
            {'x', [this] { SetSpeed(); }},
            {'(', [this] { project.BeginDrag("Drag"); }},
            {'3', [this] { Move(3); }},
            {'5', [this] { Move(5); }},
            {'-', [this] { Move(-5); }},
            {')', [this] { project.EndDrag(); }},
            {'#', [this] { project.CancelDrag(); }},
            {'u', [this] { project.Steps().undo(); }},
            {'r', [this] { project.Steps().redo(); }},
            {'w', [this] { project.SaveAs(m_engine.Path("script.mlt")); }}};
        acts.at(letter)();
    }

    const EngineFixture& m_engine;
};

} // namespace

class tst_EditorProject : public QObject
{
    Q_OBJECT

    std::unique_ptr<EngineFixture> m_engine;

private Q_SLOTS:
    void initTestCase() { m_engine = std::make_unique<EngineFixture>(); }
    void cleanupTestCase() { m_engine.reset(); }

    void steps_data()
    {
        QTest::addColumn<QString>("acts");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("refusal");
        const auto add = [](const char* name, const char* acts, const char* state,
                            const char* refusal = "") {
            QTest::newRow(name) << acts << state << refusal;
        };
        add("edits", "pps", "0+4 4+6 20+10 value 0 undo 3 redo 0*");
        add("edits and changes are undone in one order", "pvpvuu", "0+10 value 1 undo 2 redo 2*");
        add("and done again", "pvpvuuuurrrr", "0+10 20+10 value 2 undo 4 redo 0*");
        add("an edit after undo ends what was undone", "pvpuuup", "0+10 value 0 undo 1 redo 0*");
        add("a change does as well", "ppuvu", "0+10 value 0 undo 1 redo 1*");
        add("and edits before it are still undone and done again", "ppuvuurr",
            "0+10 value 1 undo 2 redo 0*");
        add("two edits are one step", "p2", "4+6 50+4 value 0 undo 2 redo 0*");
        add("that is undone whole", "p2u", "0+10 value 0 undo 1 redo 1*");
        add("one refused edit of two refuses both", "pf", "0+10 value 0 undo 1 redo 0*",
            "Edit: Outside of the range");
        add("what changes nothing is no step", "pn", "0+10 value 0 undo 1 redo 0*");
        add("merged changes are one step", "pmmm", "0+10 value 3 undo 2 redo 0*");
        add("which is undone at once", "pmmmu", "0+10 value 0 undo 1 redo 1*");
        add("and is done to its last value", "pmmmur", "0+10 value 3 undo 2 redo 0*");
        add("an edit between changes keeps them apart", "mpmu", "0+10 value 1 undo 2 redo 1*");
        add("a drag is one step", "p(35)", "5+10 value 0 undo 2 redo 0*");
        add("that is undone to where it began", "p(35)u", "0+10 value 0 undo 1 redo 1*");
        add("a drag that comes back is none", "p(3-)", "0+10 value 0 undo 1 redo 0*",
            "Drag: Outside of the range");
        add("a cancelled drag is none", "p(35#", "0+10 value 0 undo 1 redo 0*");
        add("another step ends a drag", "p(5v", "5+10 value 1 undo 3 redo 0*");
        add("undo takes an open drag back", "pp(5u", "0+10 value 0 undo 1 redo 1*");
        add("undo of a change does", "pv(5u", "0+10 value 0 undo 1 redo 1*");
        add("a drag that is over moves nothing", "p(3)5", "3+10 value 0 undo 2 redo 0*");
        add("speed forgets the edits before it", "ppx", "0+5 20+10 value 0 undo 1 redo 0*");
        add("and is undone itself", "ppxu", "0+10 20+10 value 0 undo 0 redo 1*");
        add("undone, it forgets the edits after it", "pxpuu", "0+10 value 0 undo 0 redo 0*");
        add("it forgets changes among them", "pvx", "0+5 value 1 undo 1 redo 0*");
        add("but not where there are no edits", "pxvxvu", "0+5 value 1 undo 3 redo 1*");
        add("saved", "pvw", "0+10 value 1 undo 2 redo 0");
        add("saved and undone", "pvwu", "0+10 value 0 undo 1 redo 1*");
        add("undone to what was saved", "pwvu", "0+10 value 0 undo 1 redo 1");
        add("merged changes part where it was saved", "mmwmu", "value 2 undo 1 redo 1");
        add("speed of what was saved", "pwx", "0+5 value 0 undo 1 redo 0*");
        add("and back", "pwxu", "0+10 value 0 undo 0 redo 1");
        add("speed of what was not saved, and back", "pxu", "0+10 value 0 undo 0 redo 1*");
    }

    void steps()
    {
        QFETCH(QString, acts);
        QFETCH(QString, state);
        QFETCH(QString, refusal);
        Script script(*m_engine);
        QVERIFY(script.project.IsUsable());
        script.Run(acts);
        QCOMPARE(script.State(), state);
        QCOMPARE(script.told.section(" (", 0, 0), refusal);
    }

    void tellsWhatChanged_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("acts");
        QTest::addColumn<QString>("told");
        QTest::newRow("an edit") << "p"
                                 << "s"
                                 << "2 clips, modified";
        QTest::newRow("a step of two edits, once") << "p"
                                                   << "2"
                                                   << "2 clips, modified";
        QTest::newRow("a change") << "pw"
                                  << "v"
                                  << "node, modified";
        QTest::newRow("undo") << "pws"
                              << "u"
                              << "2 clips, saved";
        QTest::newRow("each movement of a drag") << "p("
                                                 << "35"
                                                 << "1 clips, 1 clips";
        QTest::newRow("a refused edit") << "p"
                                        << "f"
                                        << "";
        QTest::newRow("a second edit") << "pp"
                                       << "s"
                                       << "2 clips";
    }

    void tellsWhatChanged()
    {
        QFETCH(QString, before);
        QFETCH(QString, acts);
        QFETCH(QString, told);
        Script script(*m_engine);
        // Unmodified, so that what is told begins with the first step.
        script.Run(before);
        if (told.endsWith("modified"))
            script.Run("w");
        QStringList news;
        connect(&script.project, &Project::ClipsChanged, this, [&](const Clips& clips) {
            news << QString("%1 clips").arg(clips.size());
            QCOMPARE(script.project.Steps().canUndo(), true); // the stack is at rest
        });
        connect(&script.project, &Project::NodeChanged, this, [&] { news << "node"; });
        connect(&script.project, &Project::ModifiedChanged, this,
                [&](bool modified) { news << (modified ? "modified" : "saved"); });
        script.Run(acts);
        QCOMPARE(news.join(", "), told);
    }

    /// What a slot does comes after what it hears of.
    void aSlotMakesTheNextStep()
    {
        Script script(*m_engine);
        bool isFirst = true;
        connect(&script.project, &Project::ClipsChanged, this, [&] {
            if (std::exchange(isFirst, false))
                script.Run("v");
        });
        script.Run("p");
        QCOMPARE(script.State(), QString("0+10 value 1 undo 2 redo 0*"));
        script.Run("uu");
        QCOMPARE(script.State(), QString("value 0 undo 0 redo 2"));
    }

    void opensWhatItSaved_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("MLT") << "film.mlt";
        QTest::newRow("OpenTimelineIO") << "film.otio";
    }

    void opensWhatItSaved()
    {
        QFETCH(QString, name);
        const QString path = m_engine->folder.filePath(name);
        Script script(*m_engine);
        QSignalSpy replaced(&script.project, &Project::Replaced);
        QSignalSpy moved(&script.project, &Project::PathChanged);
        QVERIFY(!script.project.Save());
        script.Run("ps");
        QVERIFY(script.project.SaveAs(path));
        QCOMPARE(script.project.Path(), path);
        script.Run("u");
        const Node former = script.project.Node();
        QVERIFY(script.project.Open(path));
        QCOMPARE(script.State(), QString("0+4 4+6 value 0 undo 0 redo 0"));
        QVERIFY(script.project.Node() != former);
        QCOMPARE(replaced.count(), 1);
        QCOMPARE(moved.count(), 1);
        QVERIFY(script.project.New(EngineFixture::kSmall));
        QCOMPARE(script.State(), QString("value 0 undo 0 redo 0"));
        QCOMPARE(script.project.Path(), QString());
    }

    void recoversACopy()
    {
        const QString copy = m_engine->Path("copy.mlt");
        Script script(*m_engine);
        script.Run("p");
        QVERIFY(script.project.SaveCopy(copy));
        QVERIFY(script.project.IsModified());
        QVERIFY(script.project.New(EngineFixture::kSmall));
        QSignalSpy modified(&script.project, &Project::ModifiedChanged);
        QVERIFY(script.project.Recover(copy, "/films/a.mlt"));
        QCOMPARE(script.State(), QString("0+10 value 0 undo 0 redo 0*"));
        QCOMPARE(script.project.Path(), QString("/films/a.mlt"));
        QCOMPARE(modified.count(), 1);
    }

    void refusesFiles_data()
    {
        QTest::addColumn<bool>("saves");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reason");
        QTest::newRow("a missing one") << false << "none.mlt"
                                       << "There is no such file";
        QTest::newRow("one that is no document") << false << "text.mlt"
                                                 << "The file is damaged";
        QTest::newRow("a place that is none") << true << "none/a.mlt"
                                              << "cannot be written";
    }

    void refusesFiles()
    {
        QFETCH(bool, saves);
        QFETCH(QString, name);
        QFETCH(QString, reason);
        QVERIFY(SetContents(m_engine->Path("text.mlt"), "text"));
        Script script(*m_engine);
        script.Run("pw");
        const QString path = m_engine->folder.filePath(name);
        const Node node = script.project.Node();
        QVERIFY(!(saves ? script.project.SaveAs(path) : script.project.Open(path)));
        QVERIFY2(script.told.contains(reason), qPrintable(script.told));
        QCOMPARE(script.project.Node(), node);
        QCOMPARE(script.project.Path(), m_engine->Path("script.mlt"));
        QCOMPARE(script.State(), QString("0+10 value 0 undo 1 redo 0"));
    }

    void selection()
    {
        Script script(*m_engine);
        script.Run("pp");
        const Clips clips = script.project.Timeline()->GetChilds().toVector();
        Selection selection(script.project);
        QSignalSpy changed(&selection, &Selection::Changed);
        selection.Set({clips[0], clips[1], nullptr, clips[0]});
        selection.Set(clips);
        QCOMPARE(selection.Clips(), clips);
        QCOMPARE(selection.Current(), clips[1]);
        QCOMPARE(changed.count(), 1);
        selection.Toggle(clips[1]);
        QVERIFY(!selection.Contains(clips[1].get()));
        selection.Toggle(clips[1]);
        script.Run("u"); // and the second clip is gone
        QCOMPARE(selection.Clips(), Clips{clips[0]});
        QCOMPARE(changed.count(), 4);
        script.Run("r");
        QCOMPARE(selection.Clips(), Clips{clips[0]});
        QVERIFY(script.project.New(EngineFixture::kSmall));
        QCOMPARE(selection.Current(), Node());
    }
};

QTEST_MAIN(tst_EditorProject)
#include "tst_editor_project.moc"

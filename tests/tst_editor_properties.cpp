// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/FTimelineTransformHelper.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/ToolBarSlider.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/EngineCatalog.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"
#include "Host/Editor/Properties/ClipActions.h"
#include "Host/Editor/Properties/ClipFields.h"
#include "Host/Editor/Properties/MovementKeys.h"
#include "Host/Editor/Properties/ParameterFields.h"
#include "Host/Editor/Properties/ParameterKeys.h"
#include "Host/Editor/Properties/PictureHandles.h"
#include "Host/Editor/Properties/ProjectFields.h"
#include "Host/Editor/Properties/PropertiesPanel.h"
#include "Host/Widgets/MediaPlayer.h"
#include "Host/Widgets/PictureView.h"
#include "tests/support/EngineFixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>
#include <QUndoStack>

#include <algorithm>
#include <memory>

namespace {

constexpr int kLength = 50;
constexpr int kPatience = 30000; // milliseconds

using Fields = QVector<PropertyField>;

/// Another value than the one that \a field has, which it takes.
QVariant Other(const PropertyField& field)
{
    const QVariant now = field.value();
    switch (field.kind) {
    case NLEParameter_Text:
        return now.toString() + "other";
    case NLEParameter_Switch:
    case NLEParameter_Choice:
        return now.toDouble() == 0 ? 1.0 : 0.0;
    case NLEParameter_Color:
        return double(0x80FF6010u);
    default:
        return now.toDouble() == field.highest ? field.lowest : field.highest;
    }
}

QStringList Values(const Fields& fields)
{
    QStringList values;
    for (const PropertyField& field : fields)
        values += field.value().toString();
    return values;
}

/// A project with a panel beside it.
struct Editor
{
    Editor() : selection(project), panel(project, selection, player)
    {
        project.New(EngineFixture::kSmall);
        QObject::connect(&project, &Project::Refused, [this](const QString& why) { told = why; });
    }

    Node Place(const Node& clip, int position, int level = 0)
    {
        project.Edit("Place", [&](INLEEditing& editing) {
            return editing.Place(clip.get(), position, level, 0);
        });
        return clip;
    }
    Node Select(const Node& clip)
    {
        selection.Set({clip});
        return clip;
    }
    void Show()
    {
        panel.resize(340, 2000);
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
    }
    void Seek(int frame)
    {
        QVERIFY(player.IsOpen() || player.Open(project.Node()));
        player.Seek(frame);
        QTRY_COMPARE_WITH_TIMEOUT(player.Position(), frame, kPatience);
    }
    /// The widget that has a name for assistive programs; null when there is none that shows.
    template <typename Widget>
    Widget* Find(const QString& name) const
    {
        for (auto* widget : panel.findChildren<Widget*>()) {
            if (widget->accessibleName() == name && widget->isVisible())
                return widget;
        }
        return nullptr;
    }
    /// Clicks the first button of this name as soon as it can be clicked; false when it never can.
    bool Click(const QString& name) const
    {
        const auto button = [&] { return Find<QToolButton>(name); };
        if (!QTest::qWaitFor([&] { return button() && button()->isEnabled(); }, kPatience))
            return false;
        QTest::mouseClick(button(), Qt::LeftButton);
        return true;
    }
    int Steps() { return project.Steps().index(); }

    Project project;
    Selection selection;
    MediaPlayer player;
    PropertiesPanel panel;
    QString told;
};

double NumberOf(const Node& node, const wchar_t* name, double time = 0)
{
    double value = -1;
    node.query<INLEParameters>()->GetNumberAt(name, time, &value);
    return value;
}

QStringList EffectNames(const Node& clip)
{
    const auto effects = EngineFixture::Facet<INLEEffects>(clip);
    int count = 0;
    effects->GetCount(&count);
    QStringList names;
    for (int index = 0; index < count; ++index) {
        Node effect;
        effects->GetEffect(index, effect.put());
        names += EngineFixture::TextOf([&](wchar_t* text, int capacity) {
            return effect.query<INLETimelineEffect>()->GetEffectName(text, capacity);
        });
    }
    return names;
}

/// Name, first frame and length of each transition.
QStringList JointsOf(Project& project)
{
    QStringList joints;
    for (const auto& node : project.Timeline()->GetChilds()) {
        const NLETimeline joint(node, ExactType_Unknown, nullptr);
        if (node.query<INLETimelineTransition>())
            joints << QString("%1 %2+%3")
                          .arg(EngineCatalog::NameOf(node))
                          .arg(joint.GetPosition())
                          .arg(joint.GetPlayLen());
    }
    return joints;
}

} // namespace

class tst_EditorProperties : public QObject
{
    Q_OBJECT

    EngineFixture m_engine;
    std::unique_ptr<Editor> m_editor;

    Node Colour() const { return m_engine.Trimmed(m_engine.Colour(Qt::red), 0, kLength - 1); }
    Node Film() const { return m_engine.Media(m_engine.Path("clip.mp4")); }

    /// The fields of the section that a row names.
    Fields Section(const QString& name)
    {
        Project& project = m_editor->project;
        const Node clip = m_editor->Place(Film(), 0);
        const auto still = [] { return 0; };
        if (name == "placement")
            return ClipFields::Placement(clip);
        if (name == "blending")
            return ClipFields::Blending(clip);
        if (name == "sound")
            return ClipFields::Sound(clip);
        if (name == "colour")
            return ClipFields::Color(m_editor->Place(Colour(), 0, 1));
        if (name == "drawing")
            return ProjectFields::Drawing(project.Node());
        if (name == "mixer")
            return ProjectFields::Strip(project.Node(), 0);
        if (name == "format") {
            Fields fields = ProjectFields::Format(project.Node());
            fields.removeAt(2); // fixed by the clip
            return fields;
        }
        if (name == "movement")
            return MovementFields(std::make_shared<MovementKeys>(clip), still);
        if (name == "title")
            return ParameterFields(EngineCatalog::MakeTitle("Text"), clip, still);
        return ParameterFields(EngineCatalog::Make(NLECatalog_Effect, name), clip, still);
    }

private Q_SLOTS:
    void initTestCase()
    {
        TestClip clip;
        clip.frames = kLength;
        clip.audioCodec = "aac";
        QCOMPARE(MakeTestClip(m_engine.Path("clip.mp4"), clip), QString());
    }
    void init()
    {
        m_editor = std::make_unique<Editor>();
        QVERIFY(m_editor->project.IsUsable());
    }
    void cleanup() { m_editor.reset(); }

    void aFieldChangesItsOwnValueAlone_data()
    {
        QTest::addColumn<QString>("section");
        for (const char* section : {"placement", "blending", "sound", "colour", "drawing", "mixer",
                                    "format", "title", "movement"})
            QTest::addRow("%s", section) << section;
        for (const auto& entry : EngineCatalog::Entries(NLECatalog_Effect))
            QTest::addRow("effect %s", qPrintable(entry.name)) << entry.name;
    }
    void aFieldChangesItsOwnValueAlone()
    {
        QFETCH(QString, section);
        const Fields fields = Section(section);
        QVERIFY(!fields.isEmpty());
        for (const PropertyField& field : fields) {
            if (field.kind == NLEParameter_File || section == "curves")
                continue; // take only what they can read
            const QStringList before = Values(fields);
            QStringList expected = before;
            const QVariant other = Other(field);
            expected[int(&field - fields.constData())] = other.toString();
            const PropertyChange change = field.change(other);
            QVERIFY2(change.redo(), qPrintable(field.title));
            QCOMPARE(Values(fields), expected);
            QVERIFY(change.undo());
            QCOMPARE(Values(fields), before);
        }
    }

    void aDragOfTheSliderIsOneStep()
    {
        const Node clip = m_editor->Select(m_editor->Place(Film(), 0));
        m_editor->Show();
        auto* slider = m_editor->Find<ToolBarSlider>("Opacity");
        QVERIFY(slider);
        const int before = m_editor->Steps();
        QWindow* window = m_editor->panel.windowHandle();
        const auto at = [&](int x) {
            return slider->mapTo(&m_editor->panel, QPoint(x, slider->height() / 2));
        };
        const auto blend = ClipFields::Blending(clip);
        QSet<int> opacities;
        QTest::mousePress(window, Qt::LeftButton, {}, at(slider->width() - 4));
        for (int x = slider->width() - 10; x > slider->width() / 2; x -= 5) {
            QTest::mouseMove(window, at(x));
            opacities.insert(blend[0].value().toInt());
        }
        QTest::mouseRelease(window, Qt::LeftButton, {}, at(slider->width() / 2));
        QVERIFY(opacities.size() > 3);
        QVERIFY(blend[0].value().toInt() < 200);
        QCOMPARE(m_editor->Find<QDoubleSpinBox>("Opacity")->value(),
                 std::round(blend[0].value().toInt() / 255.0 * 1000) / 10);
        QCOMPARE(m_editor->Steps(), before + 1);
        m_editor->project.Steps().undo();
        QCOMPARE(blend[0].value().toInt(), 255);
        QCOMPARE(m_editor->Find<QDoubleSpinBox>("Opacity")->value(), 100.0);
    }

    void aTypedNumberCountsAndGoesBackToThePreset()
    {
        const Node clip = m_editor->Select(m_editor->Place(Film(), 0));
        m_editor->Show();
        auto* box = m_editor->Find<QDoubleSpinBox>("Rotation");
        QVERIFY(box);
        const int before = m_editor->Steps();
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, "-45");
        QTest::keyClick(box, Qt::Key_Return);
        const PropertyField rotation = ClipFields::Placement(clip)[4];
        QCOMPARE(rotation.value().toDouble(), -45.0);
        QCOMPARE(m_editor->Steps(), before + 1);
        QVERIFY(!box->findChild<QLineEdit*>()->isModified()); // what undoes is the window's now
        QVERIFY(m_editor->Click("Rotation: Back to the preset"));
        QCOMPARE(rotation.value().toDouble(), 0.0);
        QCOMPARE(box->value(), 0.0);
        QVERIFY(!m_editor->Find<QToolButton>("Rotation: Back to the preset")->isEnabled());
    }

    void aTextThatIsTypedIsOneStep()
    {
        QVERIFY(ClipActions::AddTitle(m_editor->project, m_editor->selection, "", 0));
        m_editor->Show();
        m_editor->panel.activateWindow();
        auto* text = m_editor->Find<QPlainTextEdit>("Text");
        QVERIFY(text);
        const int before = m_editor->Steps();
        text->setFocus();
        QTRY_VERIFY(text->hasFocus());
        QTest::keyClicks(text, "Two words");
        QCOMPARE(m_editor->Steps(), before + 1);
        m_editor->project.Steps().undo();
        QCOMPARE(text->toPlainText(), QString());
    }

    void keyFramesDecideOverANumber()
    {
        QVERIFY(ClipActions::AddTitle(m_editor->project, m_editor->selection, "Text", 10));
        const Node title = m_editor->selection.Current();
        const double length = EngineFixture::RangeOf(title).out + 1;
        m_editor->Show();
        auto* size = m_editor->Find<QDoubleSpinBox>("Size");
        QVERIFY(size);
        m_editor->Seek(10);
        QVERIFY(m_editor->Click("Size: Key frame"));
        m_editor->Seek(60);
        QTRY_VERIFY(!m_editor->Find<QToolButton>("Size: Key frame")->isChecked());
        size->setValue(30); // per cent
        QCOMPARE(NumberOf(title, L"size", 50 / length), 0.3);
        QCOMPARE(NumberOf(title, L"size", 25 / length), 0.2); // from a tenth
        m_editor->Seek(35);
        QTRY_COMPARE(size->value(), 20.0);
        QVERIFY(m_editor->Click("Size: Next key frame"));
        QTRY_COMPARE_WITH_TIMEOUT(m_editor->player.Position(), 60, kPatience);
        QTRY_COMPARE(size->value(), 30.0);
        QVERIFY(m_editor->Click("Size: Key frame")); // takes it away
        QCOMPARE(NumberOf(title, L"size", 50 / length), 0.1);
        for (int step = 0; step < 3; ++step)
            m_editor->project.Steps().undo();
        int keys = -1;
        title.query<INLEParameters>()->GetKeyFrameCount(L"size", &keys);
        QCOMPARE(keys, 0);
        QCOMPARE(size->value(), 10.0);
    }

    void anInterpolationIsThatOfTheKeyFrameBefore()
    {
        const Node title = EngineCatalog::MakeTitle("Text");
        m_editor->Place(title, 10);
        const ParameterKeys keys(title.query<INLEParameters>(), "size", title);
        QVERIFY(keys.Put(10, 0.1).redo());
        QVERIFY(keys.Put(60, 0.3).redo());
        const PropertyChange hold = keys.Interpolate(40, NLEInterpolation_Hold);
        QVERIFY(hold.redo());
        QCOMPARE(keys.ValueAt(59), 0.1);
        QCOMPARE(keys.All()[1].interpolation, int(NLEInterpolation_Linear));
        QVERIFY(hold.undo());
        QCOMPARE(keys.ValueAt(35), 0.2);
        QCOMPARE(keys.Before(60).value_or(-1), 10);
        QVERIFY(!keys.Before(10));
        QCOMPARE(keys.Behind(10).value_or(-1), 60);
        QVERIFY(!keys.Behind(60));
        QCOMPARE(keys.Nearest(5), 10);
    }

    void aMovementIsChangedAtThePlayHead()
    {
        const Node clip = m_editor->Place(Film(), 10);
        const auto keys = std::make_shared<MovementKeys>(clip);
        int playHead = 10;
        const Fields fields = MovementFields(keys, [&] { return playHead; });
        QVERIFY(keys->Toggle(playHead).redo());
        playHead = 35;
        for (const PropertyField& field : fields)
            QVERIFY(field.change(field.highest).redo());
        for (const int frame : {22, 35, 60})
            QCOMPARE(keys->IsAt(frame), frame == 35);
        playHead = 10;
        for (const PropertyField& field : fields)
            QCOMPARE(field.value().toDouble(), field.preset.toDouble());
        playHead = 35;
        for (const PropertyField& field : fields)
            QCOMPARE(field.value().toDouble(), field.highest);
        VideoKeyFrameParam param = keys->ValueAt(35);
        QCOMPARE(param.position, QPointF(2, 2));
        const PropertyChange removal = keys->Toggle(35);
        QVERIFY(removal.redo());
        QVERIFY(!keys->IsAt(35) && keys->IsAt(10));
        QVERIFY(removal.undo());
        QCOMPARE(keys->Behind(10).value_or(-1), 35);
        QCOMPARE(keys->ValueAt(35), param);
    }

    void effectsAreAddedMovedSwitchedAndRemoved()
    {
        Project& project = m_editor->project;
        const Node clip = m_editor->Select(m_editor->Place(Film(), 0));
        m_editor->Show();
        QVERIFY(ClipActions::AddEffect(project, clip, NLECatalog_Effect, "blur"));
        QVERIFY(ClipActions::AddEffect(project, clip, NLECatalog_AudioFilter, "echo"));
        QCOMPARE(EffectNames(clip), QStringList({"blur", "echo"}));
        QVERIFY(m_editor->Click("Blur: Apply later"));
        QCOMPARE(EffectNames(clip), QStringList({"echo", "blur"}));
        QVERIFY(m_editor->Click("Echo: Remove"));
        QCOMPARE(EffectNames(clip), QStringList("blur"));
        auto boxes = m_editor->panel.findChildren<QCheckBox*>();
        const auto isBlur = [](const QCheckBox* box) { return box->text() == "Blur"; };
        const auto box = std::find_if(boxes.rbegin(), boxes.rend(), isBlur);
        QVERIFY(box != boxes.rend() && (*box)->isChecked());
        (*box)->click();
        Node blur;
        bool isOn = true;
        EngineFixture::Facet<INLEEffects>(clip)->GetEffect(0, blur.put());
        QCOMPARE(blur->GetEnabled(&isOn), S_OK);
        QVERIFY(!isOn);
        for (int step = 0; step < 3; ++step)
            project.Steps().undo();
        QCOMPARE(EffectNames(clip), QStringList({"blur", "echo"}));
        blur->GetEnabled(&isOn);
        QVERIFY(isOn);
    }

    void aTransitionIsPutOnAnEdge()
    {
        const Node film = m_editor->Place(Film(), 0);
        const Node colour = m_editor->Place(Colour(), kLength);
        QVERIFY(!ClipActions::AddTransition(m_editor->project, m_editor->selection, film, "none",
                                            NLEEdge_End));
        // The film has nothing behind its last frame.
        QVERIFY(ClipActions::AddTransition(m_editor->project, m_editor->selection, colour, "wipe",
                                           NLEEdge_End));
        const Node wipe = m_editor->selection.Current();
        QCOMPARE(EngineFixture::RangeOf(wipe).out, 24);
        QVERIFY(wipe.query<INLETimelineTransition>());
        m_editor->Show();
        QVERIFY(m_editor->Find<QDoubleSpinBox>("Softness"));
        m_editor->project.Steps().undo();
        QVERIFY(!m_editor->selection.Current());
    }

    void aTransitionGetsAnotherKindAndLength()
    {
        Project& project = m_editor->project;
        m_editor->Place(m_engine.Trimmed(Film(), 0, 29), 0);
        const Node clip = m_editor->Place(m_engine.Trimmed(Film(), 10, 29), 30);
        const Node dissolve = m_engine.Transition("dissolve");
        QVERIFY(project.Edit("Join", [&](INLEEditing& editing) {
            return editing.AddTransition(dissolve.get(), clip.get(), NLEEdge_Begin, 8);
        }));
        m_editor->Select(dissolve);
        m_editor->Show();
        QComboBox* kind = nullptr;
        QTRY_VERIFY(kind = m_editor->Find<QComboBox>("Kind"));
        kind->setCurrentIndex(kind->findData("wipe"));
        Q_EMIT kind->activated(kind->currentIndex());
        QCOMPARE(JointsOf(project), QStringList("wipe 26+8"));
        const auto length = [&] { return m_editor->Find<QDoubleSpinBox>("Length"); };
        QTRY_VERIFY(m_editor->Find<QDoubleSpinBox>("Softness") && length());
        const QPointer<QDoubleSpinBox> former = length();
        former->setValue(4 / project.FrameRate());
        QCOMPARE(JointsOf(project), QStringList("wipe 28+4"));
        QVERIFY(m_editor->told.isEmpty());
        QTRY_VERIFY(!former && length());
        length()->setValue(10); // longer than both clips
        QVERIFY(!m_editor->told.isEmpty());
        QCOMPARE(length()->value(), 4 / project.FrameRate());
        project.Steps().undo();
        project.Steps().undo();
        QCOMPARE(JointsOf(project), QStringList("dissolve 26+8"));
    }

    void aTitleStandsAboveWhatPlays()
    {
        m_editor->Place(Film(), 0);
        m_editor->Place(Colour(), 20, 3);
        QVERIFY(ClipActions::AddTitle(m_editor->project, m_editor->selection, "Text", 30));
        const NLETimeline title(m_editor->selection.Current(), ExactType_Text, nullptr);
        QCOMPARE(title.GetLevel(), 4);
        QCOMPARE(title.GetPosition(), 30);
    }

    void aSpeedIsAStepThatGoesBack()
    {
        const Node clip = m_editor->Select(m_editor->Place(Film(), 0));
        QVERIFY(ClipActions::SetSpeed(m_editor->project, m_editor->selection, clip, 2));
        QCOMPARE(m_editor->project.Length(), kLength / 2);
        const Node fast = m_editor->selection.Current();
        QVERIFY(fast && fast != clip);
        m_editor->Place(Colour(), kLength);
        // Half as fast it would reach into the colour.
        QVERIFY(!ClipActions::SetSpeed(m_editor->project, m_editor->selection, fast, 0.5));
        QVERIFY(!m_editor->told.isEmpty());
        m_editor->project.Steps().undo();
        m_editor->project.Steps().undo();
        QCOMPARE(m_editor->project.Length(), kLength);
        QCOMPARE(m_editor->project.Timeline()->GetChilds().value(0), clip);
    }

    void aSpeedKeepsTransitionsAndGroup()
    {
        Project& project = m_editor->project;
        const Node before = m_editor->Place(m_engine.Trimmed(Film(), 0, 29), 0);
        const Node clip = m_editor->Place(m_engine.Trimmed(Film(), 10, 29), 30);
        const Node above = m_editor->Place(Colour(), 0, 1);
        INLETimeline* both[] = {clip.get(), above.get()};
        QVERIFY(project.Edit("Join", [&](INLEEditing& editing) {
            editing.AddTransition(m_engine.Transition("dissolve").get(), clip.get(), NLEEdge_Begin,
                                  8);
            return editing.Group(both, 2);
        }));
        QCOMPARE(JointsOf(project), QStringList("dissolve 26+8"));
        QVERIFY(ClipActions::SetSpeed(project, m_editor->selection, clip, 0.5));
        QCOMPARE(JointsOf(project), QStringList("dissolve 26+8"));
        NLEComPtr<INLETimelineEnumerator> walk;
        project.Editing().GetGroup(m_editor->selection.Current().get(), walk.put());
        QCOMPARE(NodesOf(*walk).size(), 2);
        project.Steps().undo();
        QCOMPARE(JointsOf(project), QStringList("dissolve 26+8"));
        walk = nullptr;
        project.Editing().GetGroup(clip.get(), walk.put());
        QCOMPARE(NodesOf(*walk).size(), 2);
    }

    void theRateIsFixedByTheFirstClip()
    {
        const Node project = m_editor->project.Node();
        QVERIFY(!ProjectFields::Format(project)[2].isFixed);
        QVERIFY(ProjectFields::Format(project)[2].change(5.0).redo()); // 50
        QCOMPARE(m_editor->project.FrameRate(), 50.0);
        m_editor->Place(Colour(), 0);
        QVERIFY(ProjectFields::Format(project)[2].isFixed);
    }

    void theMixerHasAStripForEachLevel()
    {
        m_editor->Show();
        m_editor->Place(Film(), 0, 0);
        m_editor->Place(Film(), 0, 2);
        QCOMPARE(ProjectFields::MixedLevels(m_editor->project.Node()), QVector<int>({0, 2}));
        QTRY_VERIFY(m_editor->panel.findChildren<QCheckBox*>().size() >= 4);
        QTRY_VERIFY(m_editor->Find<QPushButton>("Mixer, level 3"));
        QVERIFY(m_editor->project.Edit("Rename", [&](INLEEditing& /*editing*/) {
            return m_editor->project.Levels()->SetName(2, L"Voices");
        }));
        QTRY_VERIFY(m_editor->Find<QPushButton>("Mixer, level Voices"));
    }

    /// What is being built, and what was given up for something else, does not show.
    void whatIsNotWholeDoesNotShow()
    {
        m_editor->Show();
        const Node clip = m_editor->Place(Colour(), 0);
        for (const bool isClip : {true, false, true}) {
            isClip ? void(m_editor->Select(clip)) : m_editor->selection.Clear();
            QCoreApplication::processEvents();
        }
        const auto* page = m_editor->panel.findChild<QScrollArea*>()->widget();
        const auto contents = page->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(std::count_if(contents.begin(), contents.end(),
                               [](const QWidget* content) { return content->isVisible(); }),
                 1);
    }

    void handlesOnThePicture_data()
    {
        QTest::addColumn<QPoint>("from"); // of a picture of 320 x 180 pixels, which the clip fills
        QTest::addColumn<QPoint>("way");
        QTest::addColumn<bool>("shift");
        QTest::addColumn<QString>("pose"); // centre, scale, angle
        const auto row = [](const char* name, QPoint from, QPoint way, bool shift,
                            const char* pose) {
            QTest::newRow(name) << from << way << shift << QString(pose);
        };
        row("moves", {160, 90}, {32, 18}, false, "0.6 0.6 1 1 0");
        row("moves along an axis", {160, 90}, {32, 18}, true, "0.6 0.5 1 1 0");
        row("scales by a corner", {320, 180}, {-160, -45}, false, "0.25 0.375 0.5 0.75 0");
        row("keeps the proportions", {320, 180}, {-160, -45}, true, "0.25 0.25 0.5 0.5 0");
        row("scales by an edge", {0, 90}, {80, 10}, false, "0.625 0.5 0.75 1 0");
        row("turns", {160, 26}, {64, 64}, false, "0.5 0.5 1 1 90");
        row("turns by steps", {160, 26}, {60, 60}, true, "0.5 0.5 1 1 90");
    }

    void handlesOnThePicture()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, way);
        QFETCH(bool, shift);
        QFETCH(QString, pose);
        Editor editor;
        QWidget screen;
        screen.resize(420, 280);
        PictureView view(&screen);
        view.setGeometry(50, 50, 320, 180);
        view.ShowPicture(QImage(320, 180, QImage::Format_RGB32));
        PictureHandles handles(editor.project, editor.selection, editor.player, view);
        screen.show();
        const Node clip = editor.Place(m_engine.Colour(Qt::red), 0);
        for (const bool isAnimated : {false, true}) {
            if (isAnimated)
                VideoKeyFrameSetting(clip).AddKeyFrame({0});
            editor.selection.Clear();
            editor.Select(clip);
            QTRY_VERIFY(handles.isVisible());
            const int steps = editor.Steps();
            const auto move = [&](const QPoint& to, QEvent::Type type) {
                QMouseEvent event(type, to, Qt::LeftButton, Qt::LeftButton,
                                  shift ? Qt::ShiftModifier : Qt::NoModifier);
                QApplication::sendEvent(&handles, &event);
            };
            const QPoint start = from + handles.mapFrom(&screen, view.pos());
            move(start, QEvent::MouseButtonPress);
            move(start + way / 2, QEvent::MouseMove);
            move(start + way, QEvent::MouseMove);
            move(start + way, QEvent::MouseButtonRelease);
            const ClipPose now =
                ClipPoses({editor.project, editor.selection, editor.player, clip}).Pose();
            const auto text = [](double value) { return QString::number(value, 'g', 3); };
            QCOMPARE(
                (QStringList{text(now.center.x()), text(now.center.y()), text(now.scale.width()),
                             text(now.scale.height()), text(now.angle)})
                    .join(' '),
                pose);
            QCOMPARE(editor.Steps(), steps + 1);
            QCOMPARE(FTimelineTransformHelper(clip, nullptr).GetTransformEnable(), true);
            editor.project.Steps().undo();
            QCOMPARE(
                ClipPoses({editor.project, editor.selection, editor.player, clip}).Pose().scale,
                QSizeF(1, 1));
        }
    }
};

QTEST_MAIN(tst_EditorProperties)
#include "tst_editor_properties.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
// Random input to every widget of the library, the gallery and the editor: nothing crashes, what
// has started ends, and no cursor and no grab is left over. COMMONLIB_EVENTS is the number of
// events of each row.
#include "CommonLib/BaseStateButton.h"
#include "CommonLib/BaseWidget.h"
#include "CommonLib/IDragValueChangedHelper.h"
#include "CommonLib/ImageTextButton.h"
#include "CommonLib/ImageTextButton2.h"
#include "CommonLib/MagicLabel.h"
#include "CommonLib/MultiLangMgr.h"
#include "CommonLib/PureSlider.h"
#include "CommonLib/ScaleUnitSlider.h"
#include "CommonLib/TimelineRuler.h"
#include "CommonLib/ToolBarSlider.h"
#include "Host/Editor/Window/EditorWindow.h"
#include "Host/Editor/Window/WhenShown.h"
#include "Host/Gallery/GalleryWindow.h"
#include "Host/Gallery/Pages.h"
#include "Host/Widgets/ColorButton.h"
#include "Host/Widgets/NumberEdit.h"
#include "Host/Widgets/TimecodeEdit.h"
#include "tests/support/DeletedInSlot.h"
#include "tests/support/RandomEdits.h"
#include "tests/support/RandomInput.h"
#include "tests/support/Seed.h"

#include <QStandardPaths>

namespace {

/// Windows, and what a host does with them between events.
class Stage
{
public:
    virtual ~Stage() = default;
    virtual void Act(RandomInput& somebody) = 0;
};

// ---- Small widgets

struct DragBox : QDoubleSpinBox
{
    explicit DragBox(QWidget* parent) : QDoubleSpinBox(parent)
    {
        auto* drag = new IDragValueChangedHelper(this);
        connect(drag, &IDragValueChangedHelper::sigValueChanged, this, &DragBox::setValue);
    }
};

template <typename Widget, typename... Arguments>
QWidget* Make(QWidget* parent, Arguments... arguments)
{
    return new Widget(arguments..., parent);
}

QWidget* MakeStates(QWidget* parent)
{
    auto* button = new BaseStateButton(1, "states", parent);
    for (int id = 1; id < 4; ++id)
        button->AddButton(id, QString("state %1").arg(id));
    return button;
}

/// One of each, in a window; each may go at any time, and comes again.
class SmallWidgets : public Stage
{
public:
    SmallWidgets() : m_widgets(int(std::size(kMakers)))
    {
        m_window.resize(600, 500);
        m_window.show();
        new QVBoxLayout(&m_window);
        Refill();
    }
    void Act(RandomInput& somebody) override
    {
        m_window.show();
        Refill();
        const int which = somebody.Any(0, m_widgets.size() - 1);
        QWidget* widget = m_widgets[which];
        switch (somebody.Any(0, 6)) {
        case 0:
            return delete widget;
        case 1:
            return widget->deleteLater();
        case 2:
            return SetTrap(*widget, which < kOfLibrary, somebody);
        case 3:
            return widget->setEnabled(somebody.Chance(50));
        case 4:
            return widget->setVisible(somebody.Chance(50));
        case 5:
            return widget->setStyleSheet(somebody.Chance(50) ? "* { padding: 3px; color: red }"
                                                             : "");
        default:
            return Set(*widget, somebody);
        }
    }

private:
    static constexpr QWidget* (*kMakers[])(QWidget*) = {
        [](QWidget* parent) -> QWidget* { return new ToolBarSlider(parent, Qt::Horizontal); },
        [](QWidget* parent) -> QWidget* { return new ToolBarSlider(parent, Qt::Vertical); },
        [](QWidget* parent) { return Make<ScaleUnitSlider>(parent); },
        [](QWidget* parent) { return Make<PureSlider>(parent); },
        [](QWidget* parent) { return Make<BaseButton>(parent, 1, "button"); },
        &MakeStates,
        [](QWidget* parent) { return Make<ImageTextButton>(parent, 1, "image"); },
        [](QWidget* parent) { return Make<ImageTextButton2>(parent, 1, "tab"); },
        [](QWidget* parent) { return Make<MagicLabel>(parent, "label"); },
        [](QWidget* parent) { return Make<BaseWidget>(parent); },
        [](QWidget* parent) { return Make<TimelineRuler>(parent); },
        [](QWidget* parent) { return Make<DragBox>(parent); },
        [](QWidget* parent) { return Make<NumberEdit>(parent, NumberEdit::Scale()); },
        [](QWidget* parent) { return Make<ColorButton>(parent, true); },
        [](QWidget* parent) { return Make<TimecodeEdit>(parent); },
    };

    static constexpr int kOfLibrary = 11; // of the makers, the first ones

    void Refill()
    {
        for (int i = 0; i < m_widgets.size(); ++i) {
            if (m_widgets[i])
                continue;
            m_widgets[i] = kMakers[i](&m_window);
            m_window.layout()->addWidget(m_widgets[i]);
        }
    }
    /// Deletes it in a slot of one of its signals, some time; later where it does not promise to
    /// bear that at once.
    void SetTrap(QWidget& widget, bool isOfLibrary, RandomInput& somebody)
    {
        const QMetaObject* meta = widget.metaObject();
        const QMetaMethod method = meta->method(
            somebody.Any(QWidget::staticMetaObject.methodCount(), meta->methodCount()));
        if (method.methodType() != QMetaMethod::Signal)
            return;
        const bool isLate = !isOfLibrary || method.name() == "sigEnter" ||
                            method.name() == "sigLeave" || TellsOfColor(*meta, method);
        m_traps.push_back(std::make_unique<DeletedInSlot::Trap>(
            &widget, method, 1, [guarded = QPointer<QWidget>(&widget), isLate] {
                // Qt still asks it for a context menu.
                const bool isAsked = QGuiApplication::mouseButtons() & Qt::RightButton;
                isLate || isAsked ? guarded->deleteLater() : delete guarded.data();
            }));
    }
    /// Whether it comes from a style sheet, which sets more of the widget after that.
    static bool TellsOfColor(const QMetaObject& meta, const QMetaMethod& signal)
    {
        for (int i = QWidget::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
            const QMetaProperty property = meta.property(i);
            if (property.userType() == QMetaType::QColor && property.notifySignal() == signal)
                return true;
        }
        return false;
    }
    /// What a host sets, in the middle of what a user does: one thing, since a slot may delete it.
    static void Set(QWidget& widget, RandomInput& somebody)
    {
        const int value = somebody.Any(-50, 150);
        const int other = somebody.Any(-50, 150);
        if (auto* slider = qobject_cast<ToolBarSlider*>(&widget)) {
            if (somebody.Chance(50))
                slider->setRange(float(value), float(other) + 300); // an empty one ends in silence
            else
                slider->setValue(float(other), false);
        } else if (auto* zoom = qobject_cast<ScaleUnitSlider*>(&widget)) {
            zoom->setRange(float(value), float(other) + 300);
        } else if (auto* filled = qobject_cast<PureSlider*>(&widget)) {
            filled->SetValue(value);
        } else if (auto* states = qobject_cast<BaseStateButton*>(&widget)) {
            states->SetCurrentButtonId(somebody.Any(0, 4));
        } else if (auto* ruler = qobject_cast<TimelineRuler*>(&widget)) {
            SetOne(*ruler, value, somebody);
        } else if (auto* drag = widget.findChild<IDragValueChangedHelper*>()) {
            if (somebody.Chance(50))
                drag->SetRange(value, other);
            else
                drag->SetDragEnabled(somebody.Chance(80));
        }
    }
    static void SetOne(TimelineRuler& ruler, int value, RandomInput& somebody)
    {
        switch (somebody.Any(0, 3)) {
        case 0:
            return ruler.SetTotalFrames(value);
        case 1:
            return ruler.SetZoom(float(value));
        case 2:
            return ruler.SetFPS(float(somebody.Any(0, 60)));
        default:
            return ruler.SetDragable(somebody.Chance(80));
        }
    }

    QWidget m_window;
    QVector<QPointer<QWidget>> m_widgets;
    std::vector<std::unique_ptr<DeletedInSlot::Trap>> m_traps;
};

// ---- The gallery

/// Its pages in turn, with windows that come and go.
class Gallery : public Stage
{
public:
    void Act(RandomInput& somebody) override
    {
        if (!m_window || (!somebody.IsNested() && somebody.Chance(5)))
            m_window = std::make_unique<GalleryWindow>();
        m_window->show();
        m_window->ShowPage(somebody.AnyOf(GalleryPages()).name);
    }

private:
    std::unique_ptr<GalleryWindow> m_window;
};

// ---- The editor

/// With media and clips, at times a new one.
class Editor : public Stage
{
public:
    Editor() { Start(); }
    void Act(RandomInput& somebody) override
    {
        if (!m_window)
            return; // one that goes handles events while its preview cache stops
        if (!somebody.IsNested() && somebody.Chance(2))
            Start();
        m_window->show();
        if (!somebody.IsNested())
            RandomEdits(m_window->Shown(), m_random).Act();
    }

private:
    void Start()
    {
        m_window.reset();
        m_window = std::make_unique<EditorWindow>(EditorWindow::Paths{
            m_folder.filePath("autosave"), m_folder.filePath("log"), m_folder.filePath("preview")});
        m_window->show();
        m_window->Shown().New(EngineFixture::kSmall);
        const QString clip = m_folder.filePath("clip.mp4");
        if (QFileInfo::exists(clip) || MakeTestClip(clip, {}).isEmpty())
            m_window->AddMedia({clip});
        RandomEdits edits(m_window->Shown(), m_random);
        for (int i = 0; i < 20; ++i)
            edits.Act();
    }

    const QTemporaryDir m_folder;
    std::mt19937 m_random{1};
    std::unique_ptr<EditorWindow> m_window;
};

template <typename Kind>
std::unique_ptr<Stage> MakeStage()
{
    return std::make_unique<Kind>();
}

using StageMaker = std::unique_ptr<Stage> (*)();

} // namespace

Q_DECLARE_METATYPE(StageMaker)

class tst_RandomInput : public QObject
{
    Q_OBJECT

    QTemporaryDir m_home;
    std::unique_ptr<EngineFixture> m_engine;

private Q_SLOTS:
    void initTestCase()
    {
        static QtMessageHandler s_shown = nullptr;
        s_shown = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext& context, const QString& text) {
                if (!text.startsWith("This plugin does not support"))
                    s_shown(type, context, text);
            });
        QStandardPaths::setTestModeEnabled(true);
        // What is written without a folder of its own lands here.
        qputenv("HOME", m_home.path().toLocal8Bit());
        QVERIFY(QDir::setCurrent(m_home.path()));
        MultiLangMgr::GetInstance()->SetConfigPath(m_home.filePath("language.ini"));
        QApplication::setQuitOnLastWindowClosed(false);
        m_engine = std::make_unique<EngineFixture>();
    }
    void cleanup() { HostLanguage::Select(Language_English); }
    void cleanupTestCase() { m_engine.reset(); }

    void leavesNothingBehind_data()
    {
        QTest::addColumn<StageMaker>("make");
        QTest::newRow("small widgets") << &MakeStage<SmallWidgets>;
        QTest::newRow("the gallery") << &MakeStage<Gallery>;
        QTest::newRow("the editor") << &MakeStage<Editor>;
    }

    void leavesNothingBehind()
    {
        QFETCH(StageMaker, make);
        const int events = std::max(500, qEnvironmentVariableIntValue("COMMONLIB_EVENTS"));
        RandomInput somebody(Seed());
        const std::unique_ptr<Stage> stage = make();
        stage->Act(somebody);
        QCOMPARE(somebody.Run(events, [&](RandomInput& who) { stage->Act(who); }), QString());
    }

    // The call lasts longer than the time after which it is made in any case, and takes the window.
    void whatIsCalledOnceAWindowShowsMayRunAnEventLoop()
    {
        auto window = std::make_unique<QWidget>();
        auto token = std::make_shared<int>();
        const std::weak_ptr<int> closure = token;
        int calls = 0;
        bool isWhole = false;
        window->show();
        WhenShown(*window, [&, token] {
            ++calls;
            QTest::qWait(1200);
            window.reset();
            isWhole = !closure.expired();
        });
        token.reset();
        QTRY_VERIFY(!window);
        QVERIFY(isWhole);
        QCOMPARE(calls, 1);
    }
};

QTEST_MAIN(tst_RandomInput)
#include "tst_random_input.moc"

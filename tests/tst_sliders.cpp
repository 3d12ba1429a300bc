// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/BaseButton.h"
#include "CommonLib/PureSlider.h"
#include "CommonLib/ScaleUnitSlider.h"
#include "CommonLib/ToolBarSlider.h"
#include "tests/support/DeletedInSlot.h"

#include <QtTest>
#include <QtWidgets>

#include <cfloat>
#include <climits>
#include <functional>
#include <limits>

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr int kTravel = 200; // of a chunk of 14 pixels
constexpr int kLength = kTravel + 14;

void Wheel(QWidget* widget, QPoint turn, Qt::KeyboardModifiers modifiers = {})
{
    QWheelEvent event(QPointF(3, 3), widget->mapToGlobal(QPoint(3, 3)), {}, turn, Qt::NoButton,
                      modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

void Key(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = {})
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(widget, &event);
}

// In a window of its own, where events take the way that they take for a user.
struct Bar : ToolBarSlider
{
    using ToolBarSlider::CalculatePositionFromValue;
    using ToolBarSlider::CalculatePostion;
    using ToolBarSlider::CanChanged;
    using ToolBarSlider::GetWidth;

    QWidget* chunk = findChild<QWidget*>("CommonLib_ToolBarSlider_chunk");
    QStringList log;

    explicit Bar(Qt::Orientation orientation = Qt::Horizontal) : ToolBarSlider(nullptr, orientation)
    {
        setWindowFlag(Qt::FramelessWindowHint); // a frame may want a greater width
        resize(orientation == Qt::Horizontal ? QSize(kLength, 20) : QSize(20, kLength));
        show();
        const auto note = [this](const char* name) { return [this, name] { log << name; }; };
        connect(this, &ToolBarSlider::startValueChanged, note("start"));
        connect(this, &ToolBarSlider::endValueChanged, note("end"));
        connect(this, &ToolBarSlider::startDrag, note("startDrag"));
        connect(this, &ToolBarSlider::endDrag, note("endDrag"));
        connect(this, &ToolBarSlider::valueChanged,
                [this](double v) { log << QString::number(v, 'g', 4); });
    }
    QString TakeLog() { return std::exchange(log, {}).join(' '); }
    int ChunkAt()
    {
        QCoreApplication::processEvents();
        return height() == 20 ? chunk->x() : chunk->y();
    }
    QPoint At(int along) const { return height() == 20 ? QPoint(along, 10) : QPoint(10, along); }
    void Press(int x) { QTest::mousePress(windowHandle(), Qt::LeftButton, {}, At(x)); }
    void Move(int x) { QTest::mouseMove(windowHandle(), At(x)); }
    void Release(int x) { QTest::mouseRelease(windowHandle(), Qt::LeftButton, {}, At(x)); }
};

struct Pure : PureSlider
{
    QString log;
    Pure() : PureSlider(nullptr)
    {
        resize(200, 12);
        connect(this, &PureSlider::sigValueChanged,
                [this](int v) { log += ' ' + QString::number(v); });
    }
    QString TakeLog() { return std::exchange(log, {}).trimmed(); }
};

// What a row of a table says, for a comparison that tells the row.
template <typename... Values>
QString Row(const char* name, Values... values)
{
    QStringList texts{name};
    (texts << ... << QString::number(values));
    return texts.join(' ');
}

} // namespace

Q_DECLARE_METATYPE(DeletedInSlot::Make)
Q_DECLARE_METATYPE(DeletedInSlot::Steps)

class TestSliders : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> stage;

private slots:
    void pressAndValue()
    {
        const struct
        {
            const char* name;
            float min, max;
            bool vertical, mirrored;
            int press;
            float value;
            int chunkAt;
        } rows[] = {
            {"half a chunk is the minimum", 0, 100, false, false, 7, 0, 0},
            {"right of all", 0, 100, false, false, 213, 100, kTravel},
            {"counts from the minimum", 50, 150, false, false, 57, 75, 50},
            {"turned round", 100, 0, false, false, 57, 75, 50},
            {"all floats", -FLT_MAX, FLT_MAX, false, false, 157, FLT_MAX / 2, 150},
            {"mirrored", 0, 100, false, true, 213 - 57, 25, kTravel - 50},
            {"bounds that are no numbers", kNaN, 5, false, false, 107, 50, 100},
            {"infinite bounds", 0, kInfinity, false, false, 107, 50, 100},
        };
        for (const auto& row : rows) {
            Bar bar(row.vertical ? Qt::Vertical : Qt::Horizontal);
            bar.setRange(row.min, row.max);
            bar.SetLeftToRight(!row.mirrored);
            bar.ChunkAt();
            const QString expected = Row(row.name, row.value, row.chunkAt);
            bar.Press(row.press);
            QCOMPARE(Row(row.name, bar.value(), bar.ChunkAt()), expected);
            bar.Release(row.press);
            // The other way round.
            bar.setValue(float(bar.getRange().x()), false);
            bar.setValue(row.value, false);
            QCOMPARE(Row(row.name, bar.value(), bar.ChunkAt()), expected);
        }
    }

    void chunkFromValue()
    {
        Bar bar;
        const QPair<double, int> rows[] = {{25, 53 - 7}, // over the full length, not the travel
                                           {double(kInfinity), kTravel},
                                           {double(kNaN), 0}};
        for (const auto& [value, chunkAt] : rows) {
            bar.CalculatePositionFromValue(value);
            QCOMPARE(bar.ChunkAt(), chunkAt);
            QCOMPARE(bar.value(), 0.0F); // stays
        }
    }

    void withoutRoom()
    {
        Bar bar;
        for (const QSize size : {QSize(0, 0), QSize(10, 10), QSize(14, 1)}) {
            bar.resize(size);
            bar.setValue(70, false);
            bar.CalculatePostion(QPoint(8, 8));
            QCOMPARE(bar.value(), 0.0F);
        }
        bar.setRange(10, 20);
        const std::pair<float, float> kept[] = {{15, 15}, {kNaN, 15}, {-5, 10}, {kInfinity, 20}};
        for (const auto& [set, value] : kept) {
            bar.setValue(set, true);
            QCOMPARE(bar.value(), value);
        }
        QVERIFY(bar.log.isEmpty());
    }

    // Each step is one of the actions below, such as p107, a press at 107 pixels.
    void signalOrder()
    {
        const struct
        {
            const char *name, *steps, *log;
        } rows[] = {
            {"press beside the chunk", "p107 r107", "start 50 end"},
            {"the same, quiet", "q p107 r107", "50"},
            {"drag from beside, quiet", "q p107 m57 m57 r7", "50 startDrag 25 0 endDrag"},
            {"chunk grabbed off its centre", "q p3 m103 r53", "start startDrag 50 25 end endDrag"},
            {"nothing new is not told", "v50 p107 r107", "start end"},
            {"moves without a press", "m57 =0", ""},
            {"empty range", "[5 p107 m57 r7 > w =5", ""},
            {"held against the host", "p107 v10 > w =50 r107 v10 =10", "start 50 end"},
            {"emptied while held", "p107 m57 [5 r57 [100 v70 =70", "start 50 startDrag 25"},
            {"disabled while held", "p107 m57 d e v70 r7 =70", "start 50 startDrag 25 end endDrag"},
            {"hidden while held", "p107 h v70 =70", "start 50 end"},
            {"keys, the second at the end already", "> > =100", "start 100 end"}};
        for (const auto& row : rows) {
            Bar bar;
            const QHash<QChar, std::function<void(int)>> actions{
                {'p', [&](int x) { bar.Press(x); }},
                {'m', [&](int x) { bar.Move(x); }},
                {'r', [&](int x) { bar.Release(x); }},
                {'v', [&](int value) { bar.setValue(value, false); }},
                {'[', [&](int max) { bar.setRange(max == 5 ? 5 : 0, max); }},
                {'>', [&](int) { Key(&bar, Qt::Key_End); }},
                {'w', [&](int) { Wheel(&bar, QPoint(0, 120)); }},
                {'d', [&](int) { bar.setEnabled(false); }},
                {'e', [&](int) { bar.setEnabled(true); }},
                {'h', [&](int) { bar.hide(); }},
                {'q', [&](int) { bar.SetAwaysEmitValueChangeStartEnd(false); }},
                {'=', [&](int value) { QCOMPARE(bar.value(), float(value)); }}};
            bool down = false;
            for (const QString& step : QString(row.steps).split(' ')) {
                const QChar action = step[0];
                actions[action](step.midRef(1).toInt());
                QCoreApplication::processEvents();
                down = action == 'p' ? bar.CanChanged() : down && !QString("rdh").contains(action);
                QCOMPARE(bar.ButtonPressDown(), down);
                QCOMPARE(bar.canSeek(), bar.isEnabled());
            }
            QCOMPARE(row.name + bar.TakeLog(), row.name + QString(row.log));
            QTest::mouseRelease(bar.windowHandle(), Qt::LeftButton); // for the next row
        }
    }

    void setByItsHandler()
    {
        Bar bar;
        connect(&bar, &ToolBarSlider::valueChanged, &bar, [&bar] { bar.setValue(10, false); });
        bar.Press(107); // held: ignored
        QCOMPARE(bar.value(), 50.0F);
        bar.Release(107);
        Key(&bar, Qt::Key_End);
        QCOMPARE(bar.TakeLog(), QString("start 50 end start 100 end"));
    }

    void keysAndWheel()
    {
        const struct
        {
            Qt::Orientation orientation;
            bool mirrored;
            float min, max;
            const char* values; // after each of the steps below, from 50
        } rows[] = {{Qt::Horizontal, false, 0, 100, "51 49 51 49 60 40 0 100 52 60 49.5 52"},
                    {Qt::Vertical, false, 0, 100, "51 49 49 51 40 60 0 100 48 40 49.5 52"},
                    {Qt::Horizontal, true, 0, 100, "49 51 51 49 60 40 0 100 52 60 50.5 48"},
                    {Qt::Horizontal, false, 100, 0, "49 51 49 51 40 60 100 0 48 40 50.5 48"}};
        const Qt::Key keys[] = {Qt::Key_Right,  Qt::Key_Left,     Qt::Key_Up,   Qt::Key_Down,
                                Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
        const QPoint turns[] = {{0, 240}, {0, 120}, {60, -9}, {-240, 9}}; // the second with Ctrl
        for (const auto& row : rows) {
            Bar bar(row.orientation);
            bar.SetLeftToRight(!row.mirrored);
            bar.setRange(row.min, row.max);
            QStringList seen;
            for (int step = 0; step < 12; ++step) {
                bar.setValue(50, false);
                if (step < 8)
                    Key(&bar, keys[step]);
                else
                    Wheel(&bar, turns[step - 8], step == 9 ? Qt::ControlModifier : Qt::NoModifier);
                seen << QString::number(bar.value());
                QCOMPARE(bar.TakeLog(), "start " + seen.last() + " end");
            }
            QCOMPARE(seen.join(' '), QString(row.values));
            Key(&bar, Qt::Key_Right, Qt::AltModifier);
            Key(&bar, Qt::Key_A);
            QVERIFY(bar.log.isEmpty());
        }
    }

    void keyboardFocus()
    {
        Bar bar;
        for (const auto& [type, reason, shows] :
             {std::tuple(QEvent::FocusIn, Qt::TabFocusReason, true),
              {QEvent::FocusOut, Qt::ActiveWindowFocusReason, true}, // and back to the window
              {QEvent::FocusIn, Qt::ActiveWindowFocusReason, true},
              {QEvent::FocusOut, Qt::TabFocusReason, false}}) {
            QFocusEvent event(type, reason);
            QCoreApplication::sendEvent(&bar, &event);
            QCOMPARE(bar.chunk->property("keyboardFocus").toBool(), shows);
        }
    }

    void deletedInSlot_data()
    {
        using namespace DeletedInSlot;
        QTest::addColumn<Make>("make");
        QTest::addColumn<Steps>("steps");
        QTest::addColumn<QString>("deletedIn"); // apart from after each step
        const Make seek = [] { return new ToolBarSlider(nullptr, Qt::Horizontal); };
        const Make zoom = [] { return new ScaleUnitSlider(nullptr); };
        const Make pure = [this] {
            stage.reset(new QWidget); // mouse events go on to it
            stage->resize(kLength, 20);
            stage->show();
            return new PureSlider(stage.get());
        };
        const Step wheel = [](QWidget* w) { Wheel(w, {0, 120}); };
        const Step key = [](QWidget* w) { Key(w, Qt::Key_End); };
        const Step speak = [](QWidget* w) {
            QAccessible::queryAccessibleInterface(w)->valueInterface()->setCurrentValue(70);
        };
        const Step disable = [](QWidget* w) { w->setEnabled(false); };
        const Step hide = [](QWidget* w) { w->hide(); };
        const Step close = [](QWidget* w) { w->close(); };
        const Step drop = [](QWidget* w) { // where no move has been
            QMouseEvent event(QEvent::MouseButtonRelease, QPointF(57, 10), Qt::LeftButton,
                              Qt::NoButton, {});
            QCoreApplication::sendEvent(w, &event);
        };
        const Step plus = [](QWidget* w) { Key(w, Qt::Key_Plus); };
        const Steps hold{Press(5), Move(107)};
        const QString held = "valueChanged startValueChanged endValueChanged startDrag endDrag";
        const QString once = "valueChanged startValueChanged endValueChanged";
        const QString pureSignal = "sigValueChanged";
        QTest::newRow("seek, press") << seek << Steps{Press(107), Release(107)} << once;
        QTest::newRow("seek, drag")
            << seek << hold + Steps{Move(57), Release(7)} << "valueChanged valueChanged " + held;
        QTest::newRow("seek, dropped") << seek << hold + Steps{drop} << "valueChanged " + held;
        QTest::newRow("seek, disabled while held") << seek << hold + Steps{disable} << held;
        QTest::newRow("seek, hidden while held") << seek << hold + Steps{hide} << held;
        QTest::newRow("seek, closed while held") << seek << hold + Steps{close} << held;
        QTest::newRow("seek, wheel") << seek << Steps{wheel} << once;
        QTest::newRow("seek, key") << seek << Steps{key} << once;
        QTest::newRow("seek, assistive tool") << seek << Steps{speak} << once;
        QTest::newRow("zoom, drag") << zoom << Steps{Press(60), Move(107), Release(80)}
                                    << "valueChanged valueChanged " + once;
        QTest::newRow("zoom, plus button") << zoom << Steps{Press(204), Release(204)} << once;
        QTest::newRow("zoom, minus button") << zoom << Steps{Press(10), Release(10)} << once;
        QTest::newRow("zoom, key") << zoom << Steps{plus} << once;
        QTest::newRow("zoom, hidden while held") << zoom << Steps{Press(60), hide} << once;
        QTest::newRow("zoom, assistive tool") << zoom << Steps{speak} << once;
        QTest::newRow("pure, drag") << pure << Steps{Press(50), Move(107), Release(80)}
                                    << "sigValueChanged sigValueChanged sigValueChanged";
        QTest::newRow("pure, wheel") << pure << Steps{wheel} << pureSignal;
        QTest::newRow("pure, key") << pure << Steps{key} << pureSignal;
        QTest::newRow("pure, assistive tool") << pure << Steps{speak} << pureSignal;
    }

    void deletedInSlot()
    {
        QFETCH(DeletedInSlot::Make, make);
        QFETCH(DeletedInSlot::Steps, steps);
        QFETCH(QString, deletedIn);
        for (const bool later : {false, true})
            QCOMPARE(DeletedInSlot::InEachSlot(make, steps, later), deletedIn);
    }

    void zoomBarSteps()
    {
        const float rows[][2] = {{1000, 100}, {50, 10}, {5000, 100}, {259.9F, 25}}; // up to, step
        for (const auto& [max, step] : rows) {
            ScaleUnitSlider slider(nullptr);
            slider.setRange(0, max);
            slider.SetAddSubStep(0);
            slider.setValue(0);
            slider.Add();
            QCOMPARE(slider.value(), step);
            slider.Sub();
            QCOMPARE(slider.value(), 0.0F);
        }
    }

    void zoomBarSignals()
    {
        ScaleUnitSlider slider(nullptr);
        slider.resize(kLength + 48, 20);
        slider.show();
        QStringList log;
        const auto note = [&](const QString& s) {
            log << s + (slider.ButtonPressDown() ? "*" : "");
        };
        connect(&slider, &ScaleUnitSlider::startValueChanged, [&] { note("start"); });
        connect(&slider, &ScaleUnitSlider::valueChanged,
                [&](float v) { note(QString::number(double(v))); });
        connect(&slider, &ScaleUnitSlider::endValueChanged, [&] { note("end"); });
        QTest::mouseClick(slider.GetZoomInButton(), Qt::LeftButton);
        Key(slider.focusProxy(), Qt::Key_Plus);
        QTest::mouseClick(slider.GetZoomOutButton(), Qt::LeftButton);
        Key(slider.focusProxy(), Qt::Key_Minus);
        slider.Sub(); // told although nothing is left
        QCOMPARE(log.join(' '),
                 QString("start 10* end start 20* end start 10* end start 0* end start 0* end"));
        log.clear();
        QTest::mouseClick(slider.windowHandle(), Qt::LeftButton, {}, {24 + 107, 10});
        QCOMPARE(log.join(' '), QString("start* 50* end"));
        slider.setLayoutDirection(Qt::RightToLeft);
        log.clear();
        QTest::mouseClick(slider.windowHandle(), Qt::LeftButton, {}, {24 + 57, 10});
        QCOMPARE(log.join(' '), QString("start* 74.5* end"));
    }

    void pureMouse()
    {
        const struct
        {
            const char* name;
            int min, max, width, x, value;
        } rows[] = {{"almost the end", 0, 100, 200, 199, 99},
                    {"whole quotient", 0, 100, 100, 29, 29},
                    {"toward zero", -50, 50, 200, 1, -49},
                    {"right of it", 0, 100, 200, 300, 100},
                    {"empty range is 0 to 100", 5, 5, 200, 100, 50},
                    {"so is a reversed one", 9, 3, 200, 100, 50},
                    {"all of int", INT_MIN, INT_MAX, 200, 150, (1 << 30) - 1},
                    {"without width", 1, 7, 0, 0, 1}};
        for (const auto& row : rows) {
            for (const bool moves : {false, true}) {
                Pure slider;
                slider.resize(row.width, 12);
                slider.SetRange(row.min, row.max);
                slider.SetValue(row.max);
                slider.TakeLog();
                for (const Qt::MouseButton button : {Qt::RightButton, Qt::LeftButton}) {
                    QMouseEvent event(moves ? QEvent::MouseMove : QEvent::MouseButtonPress,
                                      QPointF(row.x, 5), moves ? Qt::NoButton : button, button, {});
                    QCoreApplication::sendEvent(&slider, &event);
                    QVERIFY(!event.isAccepted()); // so that the parent receives it
                }
                const bool same = row.value == 100 && row.x == 300;
                QCOMPARE(Row(row.name, slider.GetValue()), Row(row.name, row.value));
                QCOMPARE(slider.TakeLog(), same ? "" : QString::number(row.value));
            }
        }
    }

    void pureSignals()
    {
        Pure slider;
        slider.SetValue(250);
        slider.SetValue(100);
        Key(&slider, Qt::Key_Left);
        Key(&slider, Qt::Key_PageDown);
        for (int i = 0; i < 4; ++i)
            Wheel(&slider, {0, 40}); // a third of a notch
        Wheel(&slider, {0, -120}, Qt::ShiftModifier);
        slider.SetRange(0, 60); // emits nothing
        slider.SetRange(0, 9000);
        Key(&slider, Qt::Key_Right);
        Key(&slider, Qt::Key_Home);
        Key(&slider, Qt::Key_Home);
        QCOMPARE(slider.TakeLog(), QString("100 99 89 90 80 170 0"));
        connect(&slider, &PureSlider::sigValueChanged, &slider, [&] { slider.SetValue(3); });
        slider.SetValue(8);
        QCOMPARE(slider.GetValue(), 3);
    }

    void accessibleValue()
    {
        Bar bar;
        bar.setRange(300, 100);
        bar.setValue(120, false);
        ScaleUnitSlider zoom(nullptr);
        zoom.setRange(100, 300);
        zoom.setValue(120);
        PureSlider pure(nullptr);
        pure.SetRange(100, 300);
        pure.SetValue(120);
        const std::pair<QWidget*, const char*> sliders[] = {{&bar, SIGNAL(valueChanged(double))},
                                                            {&zoom, SIGNAL(valueChanged(float))},
                                                            {&pure, SIGNAL(sigValueChanged(int))}};
        for (const auto& [widget, signal] : sliders) {
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
            QCOMPARE(accessible->role(), QAccessible::Slider);
            QCOMPARE(accessible->text(QAccessible::Value), QString("120"));
            QAccessibleValueInterface* value = accessible->valueInterface();
            QCOMPARE(value->minimumValue().toInt(), 100);
            QCOMPARE(value->minimumStepSize().toInt(), widget == &pure ? 1 : 2);
            QSignalSpy spy(widget, signal);
            value->setCurrentValue(1000);
            QCOMPARE(value->currentValue().toInt(), 300);
            QCOMPARE(spy.size(), 1);
        }
    }
};

QTEST_MAIN(TestSliders)
#include "tst_sliders.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/BaseButton.h"
#include "CommonLib/PureSlider.h"
#include "CommonLib/ScaleUnitSlider.h"
#include "CommonLib/ToolBarSlider.h"
#include "tests/support/DeletedInSlot.h"
#include "tests/support/LostRelease.h"

#include <QtTest>
#include <QtWidgets>

#include <cfloat>
#include <climits>
#include <functional>
#include <limits>
#include <memory>

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

struct ZoomBar : ScaleUnitSlider
{
    static constexpr int kButton = 24; // with the gap beside it
    QStringList log;                   // "*" while the button is down
    ZoomBar() : ScaleUnitSlider(nullptr)
    {
        resize(kLength + 2 * kButton, 20);
        show();
        const auto note = [this](const QString& s) { log << s + (ButtonPressDown() ? "*" : ""); };
        connect(this, &ScaleUnitSlider::startValueChanged, [note] { note("start"); });
        connect(this, &ScaleUnitSlider::valueChanged,
                [note](float v) { note(QString::number(double(v))); });
        connect(this, &ScaleUnitSlider::endValueChanged, [note] { note("end"); });
    }
    void Click(int x) { QTest::mouseClick(windowHandle(), Qt::LeftButton, {}, {kButton + x, 10}); }
};

} // namespace

using Change = std::function<void(QWidget*)>;
Q_DECLARE_METATYPE(Change)

class TestSliders : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> m_stage;

    static void AddChunks()
    {
        QTest::addColumn<float>("min");
        QTest::addColumn<float>("max");
        QTest::addColumn<bool>("isMirrored");
        QTest::addColumn<int>("x"); // of the press
        QTest::addColumn<float>("value");
        QTest::addColumn<int>("chunkAt");
        const auto row = [](const char* name, float min, float max, bool isMirrored, int x,
                            float value, int chunkAt) {
            QTest::newRow(name) << min << max << isMirrored << x << value << chunkAt;
        };
        constexpr int end = kLength - 1;
        row("half a chunk is the minimum", 0, 100, false, 7, 0, 0);
        row("right of all", 0, 100, false, end, 100, kTravel);
        row("counts from the minimum", 50, 150, false, 57, 75, 50);
        row("turned round", 100, 0, false, 57, 75, 50);
        row("all floats", -FLT_MAX, FLT_MAX, false, 157, FLT_MAX / 2, 150);
        row("mirrored", 0, 100, true, end - 57, 25, kTravel - 50);
        row("bounds that are no numbers", kNaN, 5, false, 107, 50, 100);
        row("infinite bounds", 0, kInfinity, false, 107, 50, 100);
    }

private slots:
    void pressSetsTheValue_data() { AddChunks(); }
    void pressSetsTheValue()
    {
        QFETCH(float, min);
        QFETCH(float, max);
        QFETCH(bool, isMirrored);
        QFETCH(int, x);
        Bar bar;
        bar.setRange(min, max);
        bar.SetLeftToRight(!isMirrored);
        bar.ChunkAt();
        bar.Press(x);
        QTEST(bar.value(), "value");
        QTEST(bar.ChunkAt(), "chunkAt");
        bar.Release(x);
    }

    void valuePlacesTheChunk_data() { AddChunks(); }
    void valuePlacesTheChunk()
    {
        QFETCH(float, min);
        QFETCH(float, max);
        QFETCH(bool, isMirrored);
        QFETCH(float, value);
        Bar bar;
        bar.setRange(min, max);
        bar.SetLeftToRight(!isMirrored);
        bar.setValue(value, false);
        QCOMPARE(bar.value(), value);
        QTEST(bar.ChunkAt(), "chunkAt");
    }

    void chunkFromValue_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("chunkAt");
        QTest::newRow("over the full length, not the travel") << 25.0 << 53 - 7;
        QTest::newRow("infinite") << double(kInfinity) << kTravel;
        QTest::newRow("no number") << double(kNaN) << 0;
    }
    void chunkFromValue()
    {
        QFETCH(double, value);
        Bar bar;
        bar.CalculatePositionFromValue(value);
        QTEST(bar.ChunkAt(), "chunkAt");
        QCOMPARE(bar.value(), 0.0F); // stays
    }

    void withoutRoomTheValueIsTheMinimum_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize size : {QSize(0, 0), QSize(10, 10), QSize(14, 1)})
            QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }
    void withoutRoomTheValueIsTheMinimum()
    {
        QFETCH(QSize, size);
        Bar bar;
        bar.resize(size);
        bar.setValue(70, false);
        bar.CalculatePostion(QPoint(8, 8));
        QCOMPARE(bar.value(), 0.0F);
        QCOMPARE(bar.TakeLog(), QString());
    }

    void valueStaysInTheRange_data()
    {
        QTest::addColumn<float>("set");
        QTest::addColumn<float>("value");
        QTest::newRow("inside") << 16.0F << 16.0F;
        QTest::newRow("no number") << kNaN << 15.0F;
        QTest::newRow("below") << -5.0F << 10.0F;
        QTest::newRow("infinite") << kInfinity << 20.0F;
    }
    void valueStaysInTheRange()
    {
        QFETCH(float, set);
        Bar bar;
        bar.setRange(10, 20);
        bar.setValue(15, true);
        bar.setValue(set, true);
        QTEST(bar.value(), "value");
        QCOMPARE(bar.TakeLog(), QString());
    }

    void signalOrder_data()
    {
        QTest::addColumn<QString>("steps"); // of the actions below, as p107, a press at 107 pixels
        QTest::addColumn<QString>("log");
        const auto row = [](const char* name, const char* steps, const char* log) {
            QTest::newRow(name) << steps << log;
        };
        row("press beside the chunk", "p107 r107", "start 50 end");
        row("press beside the chunk, quiet", "q p107 r107", "50");
        row("drag from beside, quiet", "q p107 m57 m57 r7", "50 startDrag 25 0 endDrag");
        row("chunk grabbed off its centre", "q p3 m103 r53", "start startDrag 50 25 end endDrag");
        row("nothing new is not told", "v50 p107 r107", "start end");
        row("moves without a press", "m57 =0", "");
        row("empty range", "[5 p107 m57 r7 > w =5", "");
        row("held against the host", "p107 v10 > w =50 r107 v10 =10", "start 50 end");
        row("emptied while held", "p107 m57 [5 r57 [100 v70 =70", "start 50 startDrag 25");
        row("disabled while held", "p107 m57 d e v70 r7 =70", "start 50 startDrag 25 end endDrag");
        row("hidden while held", "p107 h v70 =70", "start 50 end");
        row("keys, the second at the end already", "> > =100", "start 100 end");
        row("another button in mid-hold", "p107 P20 R20 r107", "start 50 end");
        row("a dialog opens in mid-hold", "p107 b r107", "start 50 end");
        row("the release goes to a menu", "p107 u v7 =7", "start 50 end");
    }
    void signalOrder()
    {
        QFETCH(QString, steps);
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
            {'P', [&](int) { QTest::mousePress(bar.windowHandle(), Qt::RightButton); }},
            {'R', [&](int) { QTest::mouseRelease(bar.windowHandle(), Qt::RightButton); }},
            {'b', [](int) { LostRelease::BehindDialog(); }},
            {'u', [](int) { LostRelease::ToMenu(); }},
            {'q', [&](int) { bar.SetAwaysEmitValueChangeStartEnd(false); }},
            {'=', [&](int value) { QCOMPARE(bar.value(), float(value)); }}};
        bool down = false;
        for (const QString& step : steps.split(' ')) {
            const QChar action = step[0];
            actions[action](step.mid(1).toInt());
            QCoreApplication::processEvents();
            down = action == 'p' ? bar.CanChanged() : down && !QString("rdhbu").contains(action);
            QCOMPARE(bar.ButtonPressDown(), down);
            QCOMPARE(bar.canSeek(), bar.isEnabled());
        }
        QTEST(bar.TakeLog(), "log");
        QTest::mouseRelease(bar.windowHandle(), Qt::LeftButton); // for the next row
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

    void keysAndWheel_data()
    {
        QTest::addColumn<bool>("isVertical");
        QTest::addColumn<bool>("isMirrored");
        QTest::addColumn<bool>("isTurnedRound"); // the range
        QTest::addColumn<Change>("change");
        QTest::addColumn<double>("value"); // from 50
        const auto key = [](int which) { return [which](QWidget* w) { Key(w, which); }; };
        const auto wheel = [](int x, int y, Qt::KeyboardModifiers modifiers = {}) {
            return [=](QWidget* w) { Wheel(w, {x, y}, modifiers); };
        };
        const struct
        {
            const char* name;
            Change change;
            double plain, vertical, mirrored, turnedRound;
        } rows[] = {{"right", key(Qt::Key_Right), 51, 51, 49, 49},
                    {"left", key(Qt::Key_Left), 49, 49, 51, 51},
                    {"up", key(Qt::Key_Up), 51, 49, 51, 49},
                    {"down", key(Qt::Key_Down), 49, 51, 49, 51},
                    {"page up", key(Qt::Key_PageUp), 60, 40, 60, 40},
                    {"page down", key(Qt::Key_PageDown), 40, 60, 40, 60},
                    {"home", key(Qt::Key_Home), 0, 0, 0, 100},
                    {"end", key(Qt::Key_End), 100, 100, 100, 0},
                    {"two notches", wheel(0, 240), 52, 48, 52, 48},
                    {"a notch with Ctrl", wheel(0, 120, Qt::ControlModifier), 60, 40, 60, 40},
                    {"half a notch across", wheel(60, -9), 49.5, 49.5, 50.5, 50.5},
                    {"two notches across, back", wheel(-240, 9), 52, 52, 48, 48}};
        for (const auto& row : rows) {
            QTest::addRow("%s", row.name) << false << false << false << row.change << row.plain;
            QTest::addRow("%s, vertical", row.name)
                << true << false << false << row.change << row.vertical;
            QTest::addRow("%s, mirrored", row.name)
                << false << true << false << row.change << row.mirrored;
            QTest::addRow("%s, range turned round", row.name)
                << false << false << true << row.change << row.turnedRound;
        }
    }
    void keysAndWheel()
    {
        QFETCH(bool, isVertical);
        QFETCH(bool, isMirrored);
        QFETCH(bool, isTurnedRound);
        QFETCH(Change, change);
        Bar bar(isVertical ? Qt::Vertical : Qt::Horizontal);
        bar.SetLeftToRight(!isMirrored);
        bar.setRange(isTurnedRound ? 100 : 0, isTurnedRound ? 0 : 100);
        bar.setValue(50, false);
        change(&bar);
        QTEST(double(bar.value()), "value");
        QCOMPARE(bar.TakeLog(), QString("start %1 end").arg(double(bar.value())));
    }

    void otherKeysDoNothing()
    {
        Bar bar;
        bar.setValue(50, false);
        Key(&bar, Qt::Key_Right, Qt::AltModifier);
        Key(&bar, Qt::Key_A);
        QCOMPARE(bar.value(), 50.0F);
        QCOMPARE(bar.TakeLog(), QString());
    }

    void keyboardFocusShowsUntilTheFocusIsTaken()
    {
        Bar bar;
        const auto showsAfter = [&bar](QEvent::Type type, Qt::FocusReason reason) {
            QFocusEvent event(type, reason);
            QCoreApplication::sendEvent(&bar, &event);
            return bar.chunk->property("keyboardFocus").toBool();
        };
        QCOMPARE(showsAfter(QEvent::FocusIn, Qt::TabFocusReason), true);
        QCOMPARE(showsAfter(QEvent::FocusOut, Qt::ActiveWindowFocusReason), true);
        QCOMPARE(showsAfter(QEvent::FocusIn, Qt::ActiveWindowFocusReason), true);
        QCOMPARE(showsAfter(QEvent::FocusOut, Qt::TabFocusReason), false);
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
            m_stage.reset(new QWidget); // mouse events go on to it
            m_stage->resize(kLength, 20);
            m_stage->show();
            return new PureSlider(m_stage.get());
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
        const QString shown = " ValueShown", pressed = " PressedChanged PressedChanged";
        const QString pureSignal = "sigValueChanged";
        QTest::newRow("seek, press")
            << seek << Steps{Press(107), Release(107)} << once + shown + pressed;
        QTest::newRow("seek, drag")
            << seek << hold + Steps{Move(57), Release(7)}
            << "valueChanged valueChanged " + held + shown + shown + shown + pressed;
        QTest::newRow("seek, dropped")
            << seek << hold + Steps{drop} << "valueChanged " + held + shown + shown + pressed;
        QTest::newRow("seek, disabled while held")
            << seek << hold + Steps{disable} << held + shown + pressed;
        QTest::newRow("seek, hidden while held")
            << seek << hold + Steps{hide} << held + shown + pressed;
        QTest::newRow("seek, closed while held")
            << seek << hold + Steps{close} << held + shown + pressed;
        QTest::newRow("seek, wheel") << seek << Steps{wheel} << once + shown;
        QTest::newRow("seek, key") << seek << Steps{key} << once + shown;
        QTest::newRow("seek, assistive tool") << seek << Steps{speak} << once + shown;
        QTest::newRow("zoom, drag")
            << zoom << Steps{Press(60), Move(107), Release(80)}
            << "valueChanged valueChanged " + once + shown + shown + shown + pressed;
        QTest::newRow("zoom, plus button")
            << zoom << Steps{Press(204), Release(204)} << once + shown + pressed;
        QTest::newRow("zoom, minus button")
            << zoom << Steps{Press(10), Release(10)} << once + pressed;
        QTest::newRow("zoom, key") << zoom << Steps{plus} << once + shown + pressed;
        QTest::newRow("zoom, hidden while held")
            << zoom << Steps{Press(60), hide} << once + shown + pressed;
        QTest::newRow("zoom, assistive tool") << zoom << Steps{speak} << once + shown;
        QTest::newRow("pure, drag") << pure << Steps{Press(50), Move(107), Release(80)}
                                    << "sigValueChanged sigValueChanged sigValueChanged";
        QTest::newRow("pure, wheel") << pure << Steps{wheel} << pureSignal;
        QTest::newRow("pure, key") << pure << Steps{key} << pureSignal;
        QTest::newRow("pure, assistive tool") << pure << Steps{speak} << pureSignal;
    }

    void deletedInSlot() { DeletedInSlot::CheckRow(); }

    void zoomBarSteps_data()
    {
        QTest::addColumn<float>("max");
        QTest::addColumn<float>("step");
        QTest::newRow("a tenth") << 1000.0F << 100.0F;
        QTest::newRow("at least 10") << 50.0F << 10.0F;
        QTest::newRow("at most 100") << 5000.0F << 100.0F;
        QTest::newRow("whole") << 259.9F << 25.0F;
    }
    void zoomBarSteps()
    {
        QFETCH(float, max);
        ScaleUnitSlider slider(nullptr);
        slider.setRange(0, max);
        slider.SetAddSubStep(0);
        slider.Add();
        QTEST(slider.value(), "step");
        slider.Sub();
        QCOMPARE(slider.value(), 0.0F);
    }

    void zoomBarTellsSteps_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<QString>("log");
        const auto on = [](auto act) -> Change {
            return [act](QWidget* w) { act(static_cast<ScaleUnitSlider*>(w)); };
        };
        const auto click = [](QWidget* w) { QTest::mouseClick(w, Qt::LeftButton); };
        const QString more = "start 60* end", less = "start 40* end";
        QTest::newRow("plus button") << on([=](auto* z) { click(z->GetZoomInButton()); }) << more;
        QTest::newRow("minus button") << on([=](auto* z) { click(z->GetZoomOutButton()); }) << less;
        QTest::newRow("plus key") << on([](auto* z) { Key(z->focusProxy(), Qt::Key_Plus); })
                                  << more;
        QTest::newRow("minus key")
            << on([](auto* z) { Key(z->focusProxy(), Qt::Key_Minus); }) << less;
        QTest::newRow("plus key while the mouse holds it") << on([](auto* z) {
            QTest::mousePress(z->windowHandle(), Qt::LeftButton, {}, {131, 10});
            Key(z, Qt::Key_Plus);
            QTest::mouseRelease(z->windowHandle(), Qt::LeftButton, {}, {131, 10});
        }) << "start* end";
        QTest::newRow("none left, told all the same") << on([](auto* z) {
            z->setValue(0);
            z->Sub();
        }) << "start 0* end";
    }
    void zoomBarTellsSteps()
    {
        QFETCH(Change, change);
        ZoomBar slider;
        slider.setValue(50);
        change(&slider);
        QTEST(slider.log.join(' '), "log");
    }

    void zoomBarTellsClicks()
    {
        ZoomBar slider;
        slider.Click(107);
        QCOMPARE(slider.log.join(' '), QString("start* 50* end"));
    }

    void mirroredZoomBarTellsClicks()
    {
        ZoomBar slider;
        slider.setLayoutDirection(Qt::RightToLeft);
        slider.Click(57);
        QCOMPARE(slider.log.join(' '), QString("start* 74.5* end"));
    }

    void pureMouse_data()
    {
        QTest::addColumn<int>("min");
        QTest::addColumn<int>("max");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("value");
        QTest::addColumn<bool>("isMove");
        const auto row = [](const char* name, int min, int max, int width, int x, int value) {
            QTest::addRow("press, %s", name) << min << max << width << x << value << false;
            QTest::addRow("move, %s", name) << min << max << width << x << value << true;
        };
        row("almost the end", 0, 100, 200, 199, 99);
        row("whole quotient", 0, 100, 100, 29, 29);
        row("toward zero", -50, 50, 200, 1, -49);
        row("right of it", 0, 100, 200, 300, 100);
        row("empty range is 0 to 100", 5, 5, 200, 100, 50);
        row("so is a reversed one", 9, 3, 200, 100, 50);
        row("all of int", INT_MIN, INT_MAX, 200, 150, (1 << 30) - 1);
        row("without width", 1, 7, 0, 0, 1);
    }
    void pureMouse()
    {
        QFETCH(int, min);
        QFETCH(int, max);
        QFETCH(int, width);
        QFETCH(int, x);
        QFETCH(int, value);
        QFETCH(bool, isMove);
        Pure slider;
        slider.resize(width, 12);
        slider.SetRange(min, max);
        slider.SetValue(max);
        const int before = slider.GetValue();
        slider.TakeLog();
        for (const Qt::MouseButton button : {Qt::RightButton, Qt::LeftButton}) {
            QCOMPARE(slider.GetValue(), before); // the right button does nothing
            QMouseEvent event(isMove ? QEvent::MouseMove : QEvent::MouseButtonPress, QPointF(x, 5),
                              isMove ? Qt::NoButton : button, button, {});
            QCoreApplication::sendEvent(&slider, &event);
            QVERIFY(!event.isAccepted()); // so that the parent receives it
        }
        QCOMPARE(slider.GetValue(), value);
        QCOMPARE(slider.TakeLog(), value == before ? "" : QString::number(value));
    }

    void pureSliderTells_data()
    {
        QTest::addColumn<Change>("change"); // from 80
        QTest::addColumn<QString>("log");
        const auto row = [](const char* name, const Change& change, const char* log) {
            QTest::newRow(name) << change << log;
        };
        const auto on = [](void (*act)(Pure&)) -> Change {
            return [act](QWidget* w) { act(static_cast<Pure&>(*w)); };
        };
        const auto key = [](int which) { return [which](QWidget* w) { Key(w, which); }; };
        row("left", key(Qt::Key_Left), "79");
        row("page down", key(Qt::Key_PageDown), "70");
        row("home, the second at the end already", on([](Pure& s) {
                Key(&s, Qt::Key_Home);
                Key(&s, Qt::Key_Home);
            }),
            "0");
        row("four thirds of a notch", on([](Pure& s) {
                for (int i = 0; i < 4; ++i)
                    Wheel(&s, {0, 40});
            }),
            "81");
        row("a notch with Shift", on([](Pure& s) {
                Wheel(&s, {0, -120}, Qt::ShiftModifier);
            }),
            "70");
        row("values, the second limited to the first", on([](Pure& s) {
                s.SetValue(100);
                s.SetValue(250);
            }),
            "100");
        row("ranges are not told", on([](Pure& s) {
                s.SetRange(0, 60);
                s.SetRange(0, 9000);
                QCOMPARE(s.GetValue(), 80);
            }),
            "");
        row("a hundredth of the range", on([](Pure& s) {
                s.SetRange(0, 9000);
                Key(&s, Qt::Key_Right);
            }),
            "170");
    }
    void pureSliderTells()
    {
        QFETCH(Change, change);
        Pure slider;
        slider.SetValue(80);
        slider.TakeLog();
        change(&slider);
        QTEST(slider.TakeLog(), "log");
    }

    void pureSliderSetByItsHandler()
    {
        Pure slider;
        connect(&slider, &PureSlider::sigValueChanged, &slider, [&] { slider.SetValue(3); });
        slider.SetValue(8);
        QCOMPARE(slider.GetValue(), 3);
    }

    void accessibleValue_data()
    {
        QTest::addColumn<DeletedInSlot::Make>("make"); // at 120 of 100 to 300
        QTest::addColumn<QByteArray>("signal");
        QTest::addColumn<int>("step");
        const DeletedInSlot::Make seek = [] {
            auto* bar = new Bar;
            bar->setRange(300, 100);
            bar->setValue(120, false);
            return bar;
        };
        const auto made = [](auto* slider, auto setRange, auto setValue) {
            std::invoke(setRange, slider, 100, 300);
            std::invoke(setValue, slider, 120);
            return slider;
        };
        const DeletedInSlot::Make zoom = [made] {
            return made(new ZoomBar, &ZoomBar::setRange, &ZoomBar::setValue);
        };
        const DeletedInSlot::Make pure = [made] {
            return made(new Pure, &Pure::SetRange, &Pure::SetValue);
        };
        QTest::newRow("seek") << seek << QByteArray(SIGNAL(valueChanged(double))) << 2;
        QTest::newRow("zoom") << zoom << QByteArray(SIGNAL(valueChanged(float))) << 2;
        QTest::newRow("pure") << pure << QByteArray(SIGNAL(sigValueChanged(int))) << 1;
    }
    void accessibleValue()
    {
        QFETCH(DeletedInSlot::Make, make);
        QFETCH(QByteArray, signal);
        const std::unique_ptr<QWidget> slider(make());
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(slider.get());
        QCOMPARE(accessible->role(), QAccessible::Slider);
        QCOMPARE(accessible->text(QAccessible::Value), QString("120"));
        QAccessibleValueInterface* value = accessible->valueInterface();
        QCOMPARE(value->minimumValue().toInt(), 100);
        QTEST(value->minimumStepSize().toInt(), "step");
        QSignalSpy spy(slider.get(), signal.constData());
        value->setCurrentValue(1000);
        QCOMPARE(value->currentValue().toInt(), 300);
        QCOMPARE(spy.size(), 1);
    }
};

QTEST_MAIN(TestSliders)
#include "tst_sliders.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/BaseButton.h"
#include "CommonLib/PureSlider.h"
#include "CommonLib/ScaleUnitSlider.h"
#include "CommonLib/ToolBarSlider.h"

#include <QAccessible>
#include <QPointer>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QtTest>

#include <cfloat>
#include <climits>
#include <cmath>
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
        return chunk->width() > chunk->parentWidget()->width() || height() == 20 ? chunk->x()
                                                                                 : chunk->y();
    }
    QPoint At(int along) const { return height() == 20 ? QPoint(along, 10) : QPoint(10, along); }
    void Press(int x) { QTest::mousePress(windowHandle(), Qt::LeftButton, {}, At(x)); }
    void Move(int x) { QTest::mouseMove(windowHandle(), At(x)); }
    void Release(int x) { QTest::mouseRelease(windowHandle(), Qt::LeftButton, {}, At(x)); }
};

struct Pure : PureSlider
{
    QStringList log;
    Pure() : PureSlider(nullptr)
    {
        resize(200, 12);
        connect(this, &PureSlider::sigValueChanged, [this](int v) { log << QString::number(v); });
    }
    QString TakeLog() { return std::exchange(log, {}).join(' '); }
};

using Work = std::function<void(Bar&)>;
using Make = std::function<QWidget*(std::function<void()>)>;
using Trigger = std::function<void(QWidget*)>;

} // namespace

Q_DECLARE_METATYPE(Work)
Q_DECLARE_METATYPE(Make)
Q_DECLARE_METATYPE(Trigger)

class TestSliders : public QObject
{
    Q_OBJECT

private slots:
    void pressAndValue_data()
    {
        QTest::addColumn<Work>("prepare");
        QTest::addColumn<bool>("vertical");
        QTest::addColumn<int>("press");
        QTest::addColumn<float>("value");
        QTest::addColumn<int>("chunkAt");
        const Work nothing = [](Bar&) {};
        const auto range = [](float min, float max) {
            return Work([=](Bar& bar) { bar.setRange(min, max); });
        };
        QTest::newRow("half a chunk is the minimum") << nothing << false << 7 << 0.0F << 0;
        QTest::newRow("middle") << nothing << false << 107 << 50.0F << 100;
        QTest::newRow("left of all") << nothing << false << 0 << 0.0F << 0;
        QTest::newRow("right of all") << nothing << false << 213 << 100.0F << 200;
        QTest::newRow("counts from the minimum") << range(50, 150) << false << 57 << 75.0F << 50;
        QTest::newRow("negative") << range(-1, 1) << false << 157 << 0.5F << 150;
        QTest::newRow("turned round") << range(100, 0) << false << 57 << 75.0F << 50;
        QTest::newRow("vertical") << range(0, 1) << true << 57 << 0.25F << 50;
        QTest::newRow("all floats")
            << range(-FLT_MAX, FLT_MAX) << false << 157 << FLT_MAX / 2 << 150;
        QTest::newRow("mirrored") << Work([](Bar& bar) { bar.SetLeftToRight(false); }) << false
                                  << 213 - 57 << 25.0F << kLength - 50 - 14;
        QTest::newRow("the other switch mirrors nothing")
            << Work([](Bar& bar) { bar.SetBottomToTop(false); }) << false << 57 << 25.0F << 50;
        QTest::newRow("bounds that are no numbers") << Work([](Bar& bar) {
            bar.setRange(kNaN, 5);
            bar.setRange(0, kInfinity);
            bar.setRange(-kInfinity, kNaN);
        }) << false << 107 << 50.0F << 100;
        QTest::newRow("larger chunk")
            << Work([](Bar& bar) { bar.SetChunkSize(114, 5); }) << false << 120 << 63.0F << 63;
    }
    void pressAndValue()
    {
        QFETCH(Work, prepare);
        QFETCH(bool, vertical);
        QFETCH(int, press);
        QFETCH(float, value);
        QFETCH(int, chunkAt);
        Bar bar(vertical ? Qt::Vertical : Qt::Horizontal);
        prepare(bar);
        bar.ChunkAt();
        bar.Press(press);
        QCOMPARE(bar.value(), value);
        QCOMPARE(vertical ? bar.chunk->y() : bar.chunk->x(), chunkAt);
        bar.Release(press);
        // The other way round, and a resize that changes nothing.
        bar.setValue(float(bar.getRange().x()), false);
        bar.setValue(value, false);
        QCOMPARE(bar.value(), value);
        QVERIFY(std::abs(bar.ChunkAt() - chunkAt) <= 1);
    }

    void chunkFromValue_data()
    {
        QTest::addColumn<float>("min");
        QTest::addColumn<float>("max");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("chunkAt");
        QTest::newRow("over the full length, not the travel") << 0.0F << 100.0F << 25.0 << 53 - 7;
        QTest::newRow("centre") << 0.0F << 100.0F << 50.0 << 100;
        QTest::newRow("relative to the minimum") << 50.0F << 150.0F << 50.0 << 100;
        QTest::newRow("end") << 0.0F << 100.0F << 100.0 << kTravel;
        QTest::newRow("start") << 0.0F << 100.0F << 0.0 << 0;
        QTest::newRow("below") << 0.0F << 100.0F << -1e300 << 0;
        QTest::newRow("infinite") << 0.0F << 100.0F << double(kInfinity) << kTravel;
        QTest::newRow("no number") << 0.0F << 100.0F << double(kNaN) << 0;
        QTest::newRow("empty range") << 5.0F << 5.0F << 50.0 << 0;
        QTest::newRow("as good as empty") << 1000000.0F << 1000001.0F << 1.0 << 0;
    }
    void chunkFromValue()
    {
        QFETCH(float, min);
        QFETCH(float, max);
        QFETCH(double, value);
        QFETCH(int, chunkAt);
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            Bar bar(orientation);
            bar.setRange(min, max);
            const float before = bar.value();
            bar.CalculatePositionFromValue(value);
            QCOMPARE(bar.ChunkAt(), chunkAt);
            QCOMPARE(bar.value(), before);
        }
    }

    void withoutRoom()
    {
        Bar bar;
        for (const QSize size : {QSize(0, 0), QSize(10, 10), QSize(14, 1)}) {
            bar.resize(size);
            QCOMPARE(bar.GetWidth(), 0);
            bar.setValue(70, false);
            QCoreApplication::processEvents();
            QCOMPARE(bar.chunk->x(), 0);
            bar.CalculatePostion(QPoint(8, 8));
            QCOMPARE(bar.value(), 0.0F);
        }
        bar.setRange(3, 3);
        QCOMPARE(bar.value(), 3.0F);
        bar.CalculatePostion(100);
        QCOMPARE(bar.value(), 0.0F);
        QVERIFY(!bar.CanChanged());
        bar.SetChunkSize(-4, -4);
        bar.SetGrooveHeight(-1);
        QCOMPARE(bar.Height(), 0);
    }

    void valuesFromTheHost()
    {
        Bar bar;
        bar.setRange(10, 20);
        QCOMPARE(bar.value(), 10.0F);
        const QPair<float, float> rows[] = {{15, 15},        {-5, 10},         {99, 20},
                                            {kInfinity, 20}, {-kInfinity, 10}, {kNaN, 10}};
        for (const auto& row : rows) {
            bar.setValue(row.first, true);
            QCOMPARE(bar.value(), row.second);
        }
        QVERIFY(bar.log.isEmpty());
    }

    // Steps: p, m, r press, move and release the mouse at a pixel; v sets the value; > is the key
    // End, w the wheel; d disables, e enables, h hides; = checks the value and q silences plain
    // presses.
    void signalOrder_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("log");
        QTest::newRow("press beside the chunk") << "p107 r107"
                                                << "start 50 end";
        QTest::newRow("the same, quiet") << "q p107 r107"
                                         << "50";
        QTest::newRow("drag from beside, quiet") << "q p107 m57 m57 r7"
                                                 << "50 startDrag 25 0 endDrag";
        QTest::newRow("chunk grabbed off its centre") << "q p3 m103 r53"
                                                      << "start startDrag 50 25 end endDrag";
        QTest::newRow("nothing new is not told") << "v50 p107 r107"
                                                 << "start end";
        QTest::newRow("moves without a press") << "m57 =0"
                                               << "";
        QTest::newRow("empty range") << "[5 p107 m57 r7 > w =5"
                                     << "";
        QTest::newRow("a held chunk ignores the host") << "p107 v10 > w =50 r107 v10 =10"
                                                       << "start 50 end";
        QTest::newRow("emptied and refilled while held")
            << "p107 m57 [5 r57 [100 v70 =70 p107 m57 r57"
            << "start 50 startDrag 25 start 50 startDrag 25 end endDrag";
        QTest::newRow("disabled while held") << "p107 m57 d e v70 =70"
                                             << "start 50 startDrag 25 end endDrag";
        QTest::newRow("hidden while held") << "p107 h v70 =70"
                                           << "start 50 end";
        QTest::newRow("keys, the second at the end already") << "> > =100"
                                                             << "start 100 end";
    }
    void signalOrder()
    {
        QFETCH(QString, steps);
        QFETCH(QString, log);
        Bar bar;
        for (const QString& step : steps.split(' ')) {
            const int number = step.midRef(1).toInt();
            switch (step[0].toLatin1()) {
            case 'p':
                bar.Press(number);
                QCOMPARE(bar.ButtonPressDown(), bar.CanChanged());
                break;
            case 'm':
                bar.Move(number);
                break;
            case 'r':
                bar.Release(number);
                QVERIFY(!bar.ButtonPressDown());
                break;
            case 'v':
                bar.setValue(number, false);
                break;
            case '>':
                Key(&bar, Qt::Key_End);
                break;
            case 'w':
                Wheel(&bar, {0, 120});
                break;
            case 'd':
            case 'e':
                bar.setEnabled(step == "e");
                QCOMPARE(bar.canSeek(), step == "e");
                break;
            case 'h':
                bar.hide();
                break;
            case 'q':
                bar.SetAwaysEmitValueChangeStartEnd(false);
                break;
            case '[': // the range from 5, or 0, to this
                bar.setRange(number == 5 ? 5 : 0, number);
                break;
            default:
                QCOMPARE(bar.value(), float(number));
            }
            QCoreApplication::processEvents();
        }
        QCOMPARE(bar.TakeLog(), log);
        QTest::mouseRelease(bar.windowHandle(), Qt::LeftButton); // for the next row
    }

    void setByItsHandler()
    {
        Bar bar;
        connect(&bar, &ToolBarSlider::valueChanged, &bar, [&bar] { bar.setValue(10, false); });
        bar.Press(107); // held: ignored
        QCOMPARE(bar.value(), 50.0F);
        // Without the move that the toolkit sends ahead of a release.
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(57, 10), Qt::LeftButton, {}, {});
        QCoreApplication::sendEvent(&bar, &release);
        QCOMPARE(bar.value(), 10.0F);
        QCOMPARE(bar.TakeLog(), QString("start 50 25 end"));
        QTest::mouseRelease(bar.windowHandle(), Qt::LeftButton);
    }

    void keysAndWheel_data()
    {
        QTest::addColumn<Work>("prepare");
        QTest::addColumn<bool>("vertical");
        QTest::addColumn<QString>("values"); // after each of the steps below, from 50
        QTest::newRow("horizontal")
            << Work([](Bar&) {}) << false << "51 49 51 49 60 40 0 100 52 60 49.5 52";
        QTest::newRow("vertical") << Work([](Bar&) {}) << true
                                  << "51 49 49 51 40 60 0 100 48 40 49.5 52";
        QTest::newRow("mirrored") << Work([](Bar& bar) { bar.SetLeftToRight(false); }) << false
                                  << "49 51 51 49 60 40 0 100 52 60 50.5 48";
        QTest::newRow("turned round") << Work([](Bar& bar) { bar.setRange(100, 0); }) << false
                                      << "49 51 49 51 40 60 100 0 48 40 50.5 48";
    }
    void keysAndWheel()
    {
        QFETCH(Work, prepare);
        QFETCH(bool, vertical);
        QFETCH(QString, values);
        Bar bar(vertical ? Qt::Vertical : Qt::Horizontal);
        prepare(bar);
        QVector<Work> steps;
        for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_Up, Qt::Key_Down,
                                  Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End})
            steps << [key](Bar& b) { Key(&b, key); };
        steps << [](Bar& b) { Wheel(&b, {0, 240}); };
        steps << [](Bar& b) { Wheel(&b, {0, 120}, Qt::ControlModifier); };
        steps << [](Bar& b) { Wheel(&b, {60, 0}); };
        steps << [](Bar& b) { Wheel(&b, {-240, 0}); };
        QStringList seen;
        for (const Work& step : qAsConst(steps)) {
            bar.setValue(50, false);
            step(bar);
            seen << QString::number(bar.value());
            QCOMPARE(bar.TakeLog(), "start " + seen.last() + " end");
        }
        QCOMPARE(seen.join(' '), values);
        Key(&bar, Qt::Key_Right, Qt::AltModifier);
        Key(&bar, Qt::Key_A);
        QVERIFY(bar.log.isEmpty());
    }

    void verticalGrabCentres()
    {
        Bar bar(Qt::Vertical);
        bar.ChunkAt();
        bar.Press(3);
        bar.Move(103);
        QCOMPARE(bar.value(), 48.0F);
        bar.Release(103);
    }

    void touchIsMouse()
    {
        Bar bar;
        QTouchDevice* finger = QTest::createTouchDevice();
        QTest::touchEvent(bar.windowHandle(), finger).press(0, QPoint(107, 10), bar.windowHandle());
        QTest::touchEvent(bar.windowHandle(), finger).move(0, QPoint(57, 10), bar.windowHandle());
        QTest::touchEvent(bar.windowHandle(), finger)
            .release(0, QPoint(57, 10), bar.windowHandle());
        QCOMPARE(bar.TakeLog(), QString("start 50 startDrag 25 end endDrag"));
    }

    void oneMovePerTurn()
    {
        struct Counter : QObject
        {
            int moves = 0;
            bool eventFilter(QObject*, QEvent* event) override
            {
                moves += event->type() == QEvent::Move || event->type() == QEvent::Resize;
                return false;
            }
        } counter;
        Bar bar;
        bar.ChunkAt();
        bar.chunk->installEventFilter(&counter);
        for (int i = 1; i <= 10000; ++i)
            bar.setValue(i / 200.0F, false);
        QCOMPARE(counter.moves, 0);
        QCOMPARE(bar.ChunkAt(), 100);
        QCOMPARE(counter.moves, 1);
    }

    void highlight()
    {
        Bar bar;
        Bar vertical(Qt::Vertical);
        const auto part = [](Bar& b) {
            b.setValue(25, false);
            QCoreApplication::processEvents();
            return b.findChild<QWidget*>("CommonLib_ToolBarSlider_groove_highlight")->geometry();
        };
        QCOMPARE(part(bar), QRect(0, 0, 57, 3)); // to the chunk's centre, the column 56
        QCOMPARE(part(vertical), QRect(0, 56, 3, kLength - 56));
        bar.SetLeftToRight(false);
        vertical.SetBottomToTop(false);
        QCOMPARE(part(bar), QRect(156, 0, kLength - 156, 3));
        QCOMPARE(part(vertical), QRect(0, 0, 3, 57));
        QCOMPARE(bar.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size(), 3);
    }

    void destroyedByItsHandler_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<Trigger>("trigger");
        using Slider = ToolBarSlider;
        const auto bar = [](auto signal) {
            return Make([signal](const std::function<void()>& destroy) {
                auto* slider = new Slider(nullptr, Qt::Horizontal);
                slider->resize(kLength, 20);
                QObject::connect(slider, signal, slider, destroy);
                return slider;
            });
        };
        const Trigger drag = [](QWidget* w) {
            const QPointer<QWidget> widget(w);
            QTest::mousePress(w->windowHandle(), Qt::LeftButton, {}, {5, 10});
            if (widget)
                QTest::mouseMove(w->windowHandle(), {107, 10});
            if (widget)
                QTest::mouseRelease(w->windowHandle(), Qt::LeftButton, {}, {57, 10});
        };
        const Trigger key = [](QWidget* w) { Key(w, Qt::Key_End); };
        const Trigger wheel = [](QWidget* w) { Wheel(w, {0, 120}); };
        QTest::newRow("start by mouse") << bar(&Slider::startValueChanged) << drag;
        QTest::newRow("startDrag") << bar(&Slider::startDrag) << drag;
        QTest::newRow("value by mouse") << bar(&Slider::valueChanged) << drag;
        QTest::newRow("end by mouse") << bar(&Slider::endValueChanged) << drag;
        QTest::newRow("endDrag") << bar(&Slider::endDrag) << drag;
        QTest::newRow("start by key") << bar(&Slider::startValueChanged) << key;
        QTest::newRow("value by wheel") << bar(&Slider::valueChanged) << wheel;
        QTest::newRow("end by key") << bar(&Slider::endValueChanged) << key;
        QTest::newRow("end by disabling") << bar(&Slider::endValueChanged) << Trigger([](auto* w) {
            QTest::mousePress(w->windowHandle(), Qt::LeftButton, {}, {5, 10});
            w->setEnabled(false);
            QCoreApplication::processEvents();
        });
        const auto scale = [](auto signal) {
            return Make([signal](const std::function<void()>& destroy) {
                auto* slider = new ScaleUnitSlider(nullptr);
                slider->resize(kLength, 20);
                QObject::connect(slider, signal, slider, destroy);
                return slider;
            });
        };
        const Trigger plus = [](QWidget* w) {
            QTest::mouseClick(w->windowHandle(), Qt::LeftButton, {}, {kLength - 10, 10});
        };
        QTest::newRow("zoom bar, start") << scale(&ScaleUnitSlider::startValueChanged) << plus;
        QTest::newRow("zoom bar, value") << scale(&ScaleUnitSlider::valueChanged) << plus;
        QTest::newRow("zoom bar, end") << scale(&ScaleUnitSlider::endValueChanged) << plus;
        const Make pure = [](const std::function<void()>& destroy) {
            auto* slider = new PureSlider(new QWidget);
            slider->parentWidget()->resize(200, 20);
            slider->resize(200, 20);
            QObject::connect(slider, &PureSlider::sigValueChanged, slider, destroy);
            return slider->parentWidget();
        };
        QTest::newRow("bar by mouse") << pure << Trigger([](QWidget* w) {
            QTest::mousePress(w->windowHandle(), Qt::LeftButton, {}, {50, 5});
        });
        QTest::newRow("bar by key")
            << pure
            << Trigger([](auto* w) { Key(w->template findChild<PureSlider*>(), Qt::Key_End); });
    }
    void destroyedByItsHandler()
    {
        QFETCH(Make, make);
        QFETCH(Trigger, trigger);
        QPointer<QWidget> widget;
        widget = make([&widget] { delete widget.data(); });
        widget->show();
        QCoreApplication::processEvents();
        trigger(widget);
        QVERIFY(!widget);
        QCoreApplication::processEvents();
        QWidget other;
        other.show();
        QTest::mouseRelease(other.windowHandle(), Qt::LeftButton);
    }

    void zoomBarSteps_data()
    {
        QTest::addColumn<float>("min");
        QTest::addColumn<float>("max");
        QTest::addColumn<int>("count");
        QTest::addColumn<float>("step");
        QTest::newRow("a tenth") << 0.0F << 1000.0F << 0 << 100.0F;
        QTest::newRow("at least 10") << 0.0F << 50.0F << 0 << 10.0F;
        QTest::newRow("at most 100") << 0.0F << 5000.0F << 2 << 100.0F;
        QTest::newRow("of the whole length") << 0.0F << 259.9F << 7 << 37.0F;
        QTest::newRow("count below 1") << -200.0F << 200.0F << -3 << 40.0F;
        QTest::newRow("huge") << -FLT_MAX << FLT_MAX << 1 << 100.0F;
    }
    void zoomBarSteps()
    {
        QFETCH(float, min);
        QFETCH(float, max);
        QFETCH(int, count);
        QFETCH(float, step);
        ScaleUnitSlider slider(nullptr);
        slider.setRange(min, max);
        slider.SetAddSubStep(count);
        slider.setValue(0);
        slider.Add();
        QCOMPARE(slider.value(), step);
        slider.Sub();
        QCOMPARE(slider.value(), 0.0F);
    }

    void zoomBarSignals()
    {
        ScaleUnitSlider slider(nullptr);
        slider.resize(kLength + 48, 20);
        slider.show();
        QStringList log;
        const auto note = [&](const QString& what) {
            log << what + (slider.ButtonPressDown() ? "*" : "");
        };
        connect(&slider, &ScaleUnitSlider::startValueChanged, [&] { note("start"); });
        connect(&slider, &ScaleUnitSlider::valueChanged,
                [&](float v) { note(QString::number(double(v))); });
        connect(&slider, &ScaleUnitSlider::endValueChanged, [&] { note("end"); });
        const QString steps = "start 10* end start 20* end start 10* end start 0* end start 0* end";
        QTest::mouseClick(slider.GetZoomInButton(), Qt::LeftButton);
        Key(slider.focusProxy(), Qt::Key_Plus);
        QTest::mouseClick(slider.GetZoomOutButton(), Qt::LeftButton);
        Key(slider.focusProxy(), Qt::Key_Minus);
        slider.Sub(); // told although nothing is left
        QCOMPARE(log.join(' '), steps);
        log.clear();
        QTest::mouseClick(slider.windowHandle(), Qt::LeftButton, {}, {24 + 107, 10});
        QCOMPARE(log.join(' '), QString("start* 50* end"));
        // Mirrored as a whole.
        slider.setLayoutDirection(Qt::RightToLeft);
        QCOMPARE(slider.GetZoomInButton()->x(), 0);
        QCOMPARE(slider.GetZoomOutButton()->geometry().right(), slider.width() - 1);
        log.clear();
        QTest::mouseClick(slider.windowHandle(), Qt::LeftButton, {}, {24 + 57, 10});
        QCOMPARE(log.join(' '), QString("start* 74.5* end"));
        slider.resize(0, 0);
    }

    void pureMouse_data()
    {
        QTest::addColumn<int>("min");
        QTest::addColumn<int>("max");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("value");
        QTest::newRow("almost the end") << 0 << 100 << 200 << 199 << 99;
        QTest::newRow("middle") << 0 << 100 << 200 << 100 << 50;
        QTest::newRow("whole quotient") << 0 << 100 << 100 << 29 << 29;
        QTest::newRow("toward zero") << -50 << 50 << 200 << 1 << -49;
        QTest::newRow("right of it") << 0 << 100 << 200 << 300 << 100;
        QTest::newRow("left of it") << 10 << 100 << 200 << -30 << 10;
        QTest::newRow("empty range is 0 to 100") << 5 << 5 << 200 << 100 << 50;
        QTest::newRow("so is a reversed one") << 9 << 3 << 200 << 100 << 50;
        QTest::newRow("all of int") << INT_MIN << INT_MAX << 200 << 150 << (1 << 30) - 1;
        QTest::newRow("without width") << 1 << 7 << 0 << 0 << 1;
    }
    void pureMouse()
    {
        QFETCH(int, min);
        QFETCH(int, max);
        QFETCH(int, width);
        QFETCH(int, x);
        QFETCH(int, value);
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseMove}) {
            for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
                Pure slider;
                slider.resize(width, 12);
                slider.SetRange(min, max);
                slider.SetValue(max);
                const int before = slider.GetValue();
                slider.TakeLog();
                QMouseEvent event(type, QPointF(x, 5),
                                  type == QEvent::MouseMove ? Qt::NoButton : button, button, {});
                QCoreApplication::sendEvent(&slider, &event);
                const int expected = button == Qt::LeftButton ? value : before;
                QCOMPARE(slider.GetValue(), expected);
                QCOMPARE(slider.TakeLog(), expected == before ? "" : QString::number(expected));
                QVERIFY(!event.isAccepted()); // so that the parent receives it
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
        slider.SetRange(0, 60); // the value follows
        slider.SetRange(0, 9000);
        Key(&slider, Qt::Key_Right);
        Key(&slider, Qt::Key_Home);
        Key(&slider, Qt::Key_Home);
        QCOMPARE(slider.TakeLog(), QString("100 99 89 90 80 60 150 0"));
        connect(&slider, &PureSlider::sigValueChanged, &slider, [&] { slider.SetValue(3); });
        slider.SetValue(8);
        QCOMPARE(slider.GetValue(), 3);
    }

    void purePicture()
    {
        Pure slider;
        slider.SetRange(50, 150);
        slider.SetValue(75);
        const auto line = [&] {
            QImage image(slider.size(), QImage::Format_RGB32);
            slider.render(&image);
            QStringList colours; // left and right of each change
            for (const int x : {0, 1, 49, 50, 198, 199})
                colours << image.pixelColor(x, 5).name();
            return colours.join(' ');
        };
        QCOMPARE(line(), QString("#a0a0a4 #ff0000 #ff0000 #ffffff #ffffff #a0a0a4"));
        slider.SetBorderColor(Qt::blue);
        slider.SetSubpageColor(Qt::black);
        slider.SetAddpageColor(Qt::green);
        QCOMPARE(line(), QString("#0000ff #000000 #000000 #00ff00 #00ff00 #0000ff"));
        slider.setEnabled(false); // (240, 240, 240) at 150 of 255 over each
        QCOMPARE(line(), QString("#8d8df6 #8d8d8d #8d8d8d #8df68d #8df68d #8d8df6"));
    }

    void accessibleValue_data()
    {
        QTest::addColumn<QWidget*>("widget");
        QTest::addColumn<double>("step");
        auto* bar = new Bar;
        bar->setRange(300, 100);
        bar->setValue(120, false);
        auto* zoom = new ScaleUnitSlider(nullptr);
        zoom->setRange(100, 300);
        zoom->setValue(120);
        auto* pure = new PureSlider(nullptr);
        pure->SetRange(100, 300);
        pure->SetValue(120);
        QTest::newRow("seek bar") << static_cast<QWidget*>(bar) << 2.0;
        QTest::newRow("zoom bar") << static_cast<QWidget*>(zoom) << 2.0;
        QTest::newRow("bar") << static_cast<QWidget*>(pure) << 1.0;
    }
    void accessibleValue()
    {
        QFETCH(QWidget*, widget);
        QFETCH(double, step);
        const QScopedPointer<QWidget> owner(widget);
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(widget);
        QVERIFY(interface && interface->role() == QAccessible::Slider);
        QAccessibleValueInterface* value = interface->valueInterface();
        QVERIFY(value);
        QCOMPARE(value->minimumValue().toDouble(), 100.0);
        QCOMPARE(value->maximumValue().toDouble(), 300.0);
        QCOMPARE(value->minimumStepSize().toDouble(), step);
        QCOMPARE(interface->text(QAccessible::Value), QString("120"));
        const char* signal = qobject_cast<ToolBarSlider*>(widget) ? SIGNAL(valueChanged(double))
                             : qobject_cast<PureSlider*>(widget)  ? SIGNAL(sigValueChanged(int))
                                                                  : SIGNAL(valueChanged(float));
        QSignalSpy spy(widget, signal);
        value->setCurrentValue(1000);
        QCOMPARE(value->currentValue().toDouble(), 300.0);
        QCOMPARE(spy.size(), 1);
    }
};

QTEST_MAIN(TestSliders)
#include "tst_sliders.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/IDragValueChangedHelper.h"

#include <QtTest>
#include <QtWidgets>

#include <cfloat>
#include <functional>
#include <random>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

using Helper = IDragValueChangedHelper;
using Values = QVector<double>;
using Setup = std::function<void(Helper&)>;
using Action = std::function<void()>;
Q_DECLARE_METATYPE(Setup)
Q_DECLARE_METATYPE(Action)

namespace {

/// Counts the presses and clicks that reach it.
struct Field : QPushButton
{
    Field()
    {
        connect(this, &QPushButton::pressed, [this] { ++presses; });
        connect(this, &QPushButton::clicked, [this] { ++clicks; });
    }

    int presses = 0;
    int clicks = 0;
};

} // namespace

class tst_Drag : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<Field> m_field;
    QPointer<Helper> m_helper;
    Values m_changed;
    Values m_started;
    Values m_ended;
    QString m_told; ///< the first letter of each signal

    static void Send(QObject* receiver, QEvent::Type type, const QPoint& at, Qt::MouseButton button,
                     Qt::KeyboardModifiers keys = Qt::NoModifier,
                     Qt::MouseEventSource source = Qt::MouseEventNotSynthesized)
    {
        const Qt::MouseButtons down =
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        const QPoint local = static_cast<QWidget*>(receiver)->mapFromGlobal(at);
        QMouseEvent event(type, local, local, at, button, down, keys, source);
        QCoreApplication::sendEvent(receiver, &event);
    }
    void Press() { Send(m_field.get(), QEvent::MouseButtonPress, QCursor::pos(), Qt::LeftButton); }
    void Release()
    {
        Send(m_field.get(), QEvent::MouseButtonRelease, QCursor::pos(), Qt::LeftButton);
    }
    /// Moves from where the pointer was parked or moved to last. Two moves are one step.
    void MoveTo(int x, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        Send(m_field.get(), QEvent::MouseMove, QPoint(x, 200), Qt::NoButton, keys);
    }
    /// Pointer and window system agree that it is over the field.
    void Hover(const QPoint& within = QPoint(20, 10))
    {
        QCursor::setPos(m_field->mapToGlobal(within));
        QTRY_VERIFY(m_field->underMouse());
    }
    /// Who presses where no drag is possible gets through.
    static void PressElsewhere()
    {
        QCursor::setPos(5, 5);
        Field other;
        Send(&other, QEvent::MouseButtonPress, QCursor::pos(), Qt::LeftButton);
        QCOMPARE(other.presses, 1);
        QCOMPARE(QCursor::pos(), QPoint(5, 5));
    }
    /// What the helper shows; the last shape of all when it shows none.
    static Qt::CursorShape Cursor()
    {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        return cursor ? cursor->shape() : Qt::CustomCursor;
    }
    static int Cursors()
    {
        int count = 0;
        for (; QGuiApplication::overrideCursor(); ++count)
            QGuiApplication::restoreOverrideCursor();
        return count;
    }

private Q_SLOTS:
    void init()
    {
        m_field = std::make_unique<Field>();
        m_field->setWindowFlag(Qt::FramelessWindowHint);
        m_field->setGeometry(100, 80, 60, 40);
        QCursor::setPos(5, 5);
        m_field->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_field.get()));
        m_helper = new Helper(m_field.get());
        m_changed.clear();
        m_started.clear();
        m_ended.clear();
        m_told.clear();
        connect(m_helper, &Helper::sigValueChanged, this, [this](double v) {
            m_changed += v;
            m_told += 'v';
        });
        connect(m_helper, &Helper::sigStartValueChanged, this, [this](double v) {
            m_started += v;
            m_told += 's';
        });
        connect(m_helper, &Helper::sigEndValueChanged, this, [this](double v) {
            m_ended += v;
            m_told += 'e';
        });
    }

    void cleanup()
    {
        m_field.reset();
        QVERIFY(!m_helper);
        QCOMPARE(Cursors(), 0);
    }

    void steps_data()
    {
        QTest::addColumn<Setup>("setup");
        QTest::addColumn<QVector<int>>("moves"); // pixels from the anchor
        QTest::addColumn<int>("keys");
        QTest::addColumn<Values>("values");
        const auto row = [](const char* name, const Setup& setup, const QVector<int>& moves,
                            const Values& values, int keys = Qt::NoModifier) {
            QTest::newRow(name) << setup << moves << keys << values;
        };
        const auto with = [](double min, double max, double value, bool loop) {
            return [=](Helper& h) {
                h.SetRange(min, max);
                h.SetValue(value);
                h.SetLoop(loop);
            };
        };
        const Setup none = [](Helper&) {};
        // The first move only measures; a step follows when that was more than a pixel.
        row("growing", none, {2, 3, 5, 6, 8, 9, 11, 12}, {1, 3, 6, 10});
        row("one pixel is none", none, {1, 2, 4, 3}, {1});
        row("turning", none, {2, 3, 5, 6, 4, 3, 1, 0}, {1, 3, 0, -1});
        row("fast", none, {2, 3, 5, 6}, {10, 30}, Qt::ShiftModifier | Qt::ControlModifier);
        row(
            "slow", [](Helper& h) { h.SetSlowStep(.5); }, {2, 3}, {.5}, Qt::ControlModifier);
        row("parked again", none, {6, 4, 6}, {1}); // 4 is counted from the anchor
        row(
            "fast parks later", [](Helper& h) { h.SetFastDistance(8); }, {8, 9, 11, 12}, {10},
            Qt::ShiftModifier);
        row("wraps up", with(0, 100, 99.5, true), {2, 3}, {0});
        row("wraps down", with(0, 100, 0, true), {-2, -3}, {100});
        row("clamps", with(0, 100, 99.5, false), {2, 3, 5, 6}, {100, 100});
        row("lower bound alone", [](Helper& h) { h.SetMinValue(5); }, {2, 3}, {DBL_MAX});
        row("empty range", with(7, 7, 7, true), {2, 3, 5, 6}, {7, 7});
        row("bounds that are no numbers", with(qQNaN(), qQNaN(), 1, true), {2, 3}, {2});
        row("beyond all numbers", [](Helper& h) { h.SetStep(DBL_MAX); }, {2, 3, 5, 6},
            {DBL_MAX, -DBL_MAX});
    }

    void steps()
    {
        QFETCH(Setup, setup);
        QFETCH(QVector<int>, moves);
        QFETCH(int, keys);
        QFETCH(Values, values);
        setup(*m_helper);
        Hover();
        const QPoint start = QCursor::pos();
        Press();
        QCOMPARE(Cursor(), Qt::BlankCursor);
        const QPoint anchor = QCursor::pos();
        QCOMPARE(anchor, QGuiApplication::primaryScreen()->geometry().bottomRight() / 2);
        for (const int move : moves)
            MoveTo(anchor.x() + move, Qt::KeyboardModifiers(keys));
        QCOMPARE(m_changed, values);
        QCOMPARE(m_started, values.mid(0, 1));
        QCOMPARE(m_ended, Values());
        Release();
        QCOMPARE(m_ended, Values{values.last()});
        QCOMPARE(QCursor::pos(), start);
        QCOMPARE(m_field->presses, 0);
        m_helper->SetValue(-3);
        QCOMPARE(m_changed, values);
    }

    void pausesEndTheGrowth()
    {
        Hover();
        Press();
        const int x = QCursor::pos().x();
        for (const int move : {2, 3, 5})
            MoveTo(x + move);
        QTest::qWait(250);
        MoveTo(x + 6);
        QCOMPARE(m_changed, Values({1, 2}));
        Release();
        Press();
        MoveTo(x + 1); // what was measured before is forgotten
        MoveTo(x + 2);
        QCOMPARE(m_changed.size(), 2);
        Release();
    }

    void pressBesideTheAreaReachesTheWidget()
    {
        m_helper->SetInteractiveRectangle(QRect(10, 0, 20, 40));
        Hover(QPoint(40, 10));
        Press();
        QCOMPARE(m_field->presses, 1);
        Hover();
        Press();
        QCOMPARE(m_field->presses, 1);
        Release();
    }

    void clickReachesTheWidget()
    {
        Hover();
        Press();
        QCOMPARE(m_field->presses, 0);
        QVERIFY(!m_field->geometry().contains(QCursor::pos())); // parked
        Release();
        QCOMPARE(m_field->presses, 1);
        QCOMPARE(m_field->clicks, 1); // although it was released elsewhere
    }

    void moveHidesThePointerAgain()
    {
        Hover();
        Press();
        const QPoint parked = QCursor::pos();
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(m_field.get(), &leave);
        QCOMPARE(Cursors(), 0);
        MoveTo(parked.x());
        QCOMPARE(Cursor(), Qt::BlankCursor);
        Release();
        QCOMPARE(m_field->clicks, 1);
    }

    void clickTurnsDragsOffUntilTheFocusIsLost()
    {
        Hover();
        Press();
        Release();
        QVERIFY(!m_helper->GetDragEnabled());
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(m_field.get(), &enter);
        Press();
        QCOMPARE(m_field->presses, 2);
        QFocusEvent out(QEvent::FocusOut);
        QCoreApplication::sendEvent(m_field.get(), &out);
        QVERIFY(m_helper->GetDragEnabled());
        QCOMPARE(Cursor(), Qt::SizeHorCursor);
    }

    void disabledWidgetBeginsNoDrag()
    {
        Hover();
        m_field->setEnabled(false);
        Press();
        QVERIFY(!QGuiApplication::overrideCursor());
        m_field->setEnabled(true);
        QCOMPARE(Cursor(), Qt::SizeHorCursor);
    }

    void touch()
    {
        const auto send = [this](QEvent::Type type, int x) {
            Send(m_field.get(), type, m_field->mapToGlobal(QPoint(x, 10)), Qt::LeftButton, {},
                 Qt::MouseEventSynthesizedByQt);
        };
        const QPoint pointer = QCursor::pos();
        send(QEvent::MouseButtonPress, 40);
        for (const int x : {32, 24, 16, 20})
            send(QEvent::MouseMove, x);
        send(QEvent::MouseButtonRelease, 20);
        QCOMPARE(m_changed, Values({-1, 0}));
        QCOMPARE(QCursor::pos(), pointer);
    }

    void editorTakesTheFocus()
    {
        QLineEdit editor(m_field.get());
        editor.setGeometry(50, 0, 10, 10);
        editor.show();
        connect(m_field.get(), &QPushButton::pressed, &editor, [&] { editor.setFocus(); });
        m_field->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_field.get()));
        m_field->setFocus();
        Hover();
        Press();
        Release();
        QVERIFY(editor.hasFocus());
        QVERIFY(!m_helper->GetDragEnabled()); // although the field has lost the focus
    }

    void interrupted_data()
    {
        QTest::addColumn<QByteArray>("moment");
        QTest::addColumn<Action>("interrupt");
        const std::pair<const char*, Action> ways[] = {
            {"turned off", [this] { m_helper->SetDragEnabled(false); }},
            {"off and on",
             [this] {
                 m_helper->SetDragEnabled(false);
                 m_helper->SetDragEnabled(true);
             }},
            {"widget deleted", [this] { m_field.reset(); }},
            {"widget deleted later", [this] { m_field.release()->deleteLater(); }},
            {"helper deleted", [this] { delete m_helper; }},
            {"helper deleted later", [this] { m_helper->deleteLater(); }},
            {"dialog",
             [] {
                 QMessageBox dialog;
                 QTimer::singleShot(0, &dialog, &QDialog::accept);
                 dialog.exec();
             }},
            {"hidden", [this] { m_field->hide(); }},
            {"closed", [this] { m_field->close(); }},
            {"disabled", [this] { m_field->setEnabled(false); }},
            {"another program",
             [] {
                 QApplicationStateChangeEvent event(Qt::ApplicationInactive);
                 QCoreApplication::sendEvent(qApp, &event);
             }},
            {"release elsewhere",
             [this] {
                 PressElsewhere();
                 QCursor::setPos(m_field->mapToGlobal(QPoint(20, 10)));
             }},
            {"another drag",
             [this] {
                 Release();
                 Press();
                 QTimer::singleShot(0, m_field.get(), [this] { Release(); });
             }},
        };
        for (const char* moment : {"pressed", "start", "value", "moved", "end"}) {
            for (const auto& [way, interrupt] : ways)
                QTest::addRow("%s, %s", way, moment) << QByteArray(moment) << interrupt;
        }
    }

    void interrupted()
    {
        QFETCH(QByteArray, moment);
        QFETCH(Action, interrupt);
        const auto at = [&](const QByteArray& now) {
            if (moment == now)
                std::exchange(interrupt, [] {})();
        };
        connect(m_helper, &Helper::sigEndValueChanged, m_field.get(),
                [this] { QVERIFY(m_field); }); // not told while it is being destroyed
        connect(m_helper, &Helper::sigStartValueChanged, this, [&] { at("start"); });
        connect(m_helper, &Helper::sigValueChanged, this, [&] { at("value"); });
        connect(m_helper, &Helper::sigEndValueChanged, this, [&] { at("end"); });
        Hover();
        const QPoint start = QCursor::pos();
        Press();
        const int x = QCursor::pos().x();
        at("pressed");
        for (int move = 2; move < 9 && m_field; ++move)
            MoveTo(x + move);
        at("moved");
        if (moment == "end")
            Release(); // comes in no other case
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY2(QRegularExpression("^(sv*e)*$").match(m_told).hasMatch(), qPrintable(m_told));
        QCOMPARE(QCursor::pos(), start);
        QVERIFY(Cursor() != Qt::BlankCursor);
        PressElsewhere();
    }

    void anySequence_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 10; ++seed)
            QTest::addRow("seed %d", seed) << seed;
    }

    // The end of a row ends what it has begun, whatever that is.
    void anySequence()
    {
        QFETCH(int, seed);
        std::mt19937 random{unsigned(seed)};
        const auto below = [&random](int count) { return int(random() % unsigned(count)); };
        const QEvent::Type crossings[] = {QEvent::Enter, QEvent::Leave, QEvent::FocusOut};
        const std::function<void()> actions[] = {
            [&] { Press(); },
            [&] { Release(); },
            [&] { m_field->setVisible(below(8)); },
            [&] { m_field->setEnabled(below(8)); },
            [&] {
                QFocusEvent crossing(crossings[below(3)]);
                QCoreApplication::sendEvent(m_field.get(), &crossing);
            },
            [&] {
                QCursor::setPos(m_field->mapToGlobal(QPoint(below(90), below(50))));
                QCoreApplication::processEvents();
            },
            [&] { MoveTo(QCursor::pos().x() + below(21) - 10); }};
        for (int event = 0; event < 2000; ++event)
            actions[std::min(below(14), 6)]();
        QVERIFY(m_changed.size() > 10);
    }

    void realPointer()
    {
#ifdef Q_OS_WIN
        const auto point = [](const QStringList& arguments) {
            const QMap<QString, DWORD> flags = {
                {"mousemove_relative", MOUSEEVENTF_MOVE},
                {"mousedown", MOUSEEVENTF_LEFTDOWN},
                {"mouseup", MOUSEEVENTF_LEFTUP},
                {"mousedown 3", MOUSEEVENTF_RIGHTDOWN},
                {"mouseup 3", MOUSEEVENTF_RIGHTUP},
                { "click", MOUSEEVENTF_LEFTDOWN | MOUSEEVENTF_LEFTUP }};
            const int x = arguments[1].toInt(), y = arguments.value(2).toInt();
            if (const DWORD flag = flags.value(arguments.join(' '), flags.value(arguments[0])))
                mouse_event(flag, x, y, 0, 0);
            else
                SetCursorPos(x, y);
            QTest::qWait(15);
        };
#else
        if (QGuiApplication::platformName() != "xcb")
            QSKIP("needs an X11 display, which the test drag_x11 has");
        const auto point = [](const QStringList& arguments) {
            QCOMPARE(QProcess::execute("xdotool", arguments), 0);
            QTest::qWait(15);
        };
#endif
        // On the last of the screens, as part of a window.
        const QRect screen = QGuiApplication::screens().last()->geometry();
        QWidget panel(nullptr, Qt::FramelessWindowHint);
        const auto leave = qScopeGuard([this] { m_field->setParent(nullptr); });
        panel.setGeometry(QRect(screen.topLeft() + QPoint(40, 40), QSize(120, 80)));
        m_field->setParent(&panel);
        m_field->move(10, 10);
        m_field->show();
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        const QPoint middle = screen.topLeft() + QPoint(80, 70);
        point({"mousemove", QString::number(middle.x()), QString::number(middle.y())});
        QTRY_VERIFY(m_field->underMouse());
        QCOMPARE(Cursor(), Qt::SizeHorCursor);
        point({"mousedown", "1"});
        QCOMPARE(Cursor(), Qt::BlankCursor);
        const QPoint anchor = QGuiApplication::primaryScreen()->geometry().bottomRight() / 2;
        QCOMPARE(QCursor::pos(), anchor);
        // Further than the screen is wide, in large and in small moves.
        for (int move = 0; move < 100; ++move)
            point({"mousemove_relative", "8", "0"});
        const int before = m_changed.size();
        QVERIFY(before > 30);
        QVERIFY(std::abs(QCursor::pos().x() - anchor.x()) < 30);
        for (int move = 0; move < 150; ++move)
            point({"mousemove_relative", "3", "0"});
        QVERIFY(m_changed.size() > before + 40);
        point({"mouseup", "1"});
        QCOMPARE(m_ended.size(), 1);
        QCOMPARE(QCursor::pos(), middle);
        // Another button, of which the window gets to know while the pointer is parked beside it.
        point({"mousedown", "1"});
        for (int move = 0; move < 5; ++move)
            point({"mousemove_relative", "3", "0"});
        for (const char* action : {"mousedown", "mouseup"})
            point({action, "3"});
        point({"mouseup", "1"});
        QCOMPARE(m_ended.size(), 2);
        const QPoint beside = middle + QPoint(0, 40);
        point({"mousemove", QString::number(beside.x()), QString::number(beside.y())});
        QTRY_VERIFY(!m_field->underMouse());
        QVERIFY(!QGuiApplication::overrideCursor());
        point({"mousemove", QString::number(middle.x()), QString::number(middle.y())});
        point({"click", "1"});
        QCOMPARE(m_field->presses, 1);
        QCOMPARE(m_field->clicks, 1);
#ifndef Q_OS_WIN // where a pointer over no window may not tell of itself
        point({"mousemove", "1", "1"});
        QTRY_VERIFY(!m_field->underMouse());
#endif
    }
};

QTEST_MAIN(tst_Drag)

#include "tst_drag.moc"

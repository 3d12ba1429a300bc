// SPDX-License-Identifier: LGPL-2.1-or-later
// What sliders and buttons cost: from a press of the mouse to the painted picture in a window of
// 1920 x 1080, beside Qt's own slider or button with a rule of the same kind; many values in one
// turn of the event loop; and the making of buttons. Figures are medians.
#include "CommonLib/BaseStateButton.h"
#include "CommonLib/ImageTextButton.h"
#include "CommonLib/ImageTextButton2.h"
#include "CommonLib/PureSlider.h"
#include "CommonLib/ScaleUnitSlider.h"
#include "CommonLib/ToolBarSlider.h"
#include "CommonLib/externalapi/PixelRatio.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSlider>

#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr QSize kWindow(1920, 1080);
constexpr QRect kPlace(100, 100, 400, 32);
constexpr int kRounds = 101;
constexpr int kButtons = 1000;
constexpr int kValues = 10000;

// To the child that is at that place, as Qt would.
void Send(QWidget* parent, QEvent::Type type, QPoint place)
{
    QWidget* child = parent->childAt(place);
    QWidget* widget = child ? child : parent;
    const QPoint at = widget->mapFrom(parent, place);
    const Qt::MouseButtons down =
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget->mapToGlobal(at), Qt::LeftButton, down, {});
    QCoreApplication::sendEvent(widget, &event);
}

// Counts the paintings that reach a widget or one of its children.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* widget)
    {
        widget->installEventFilter(this);
        for (QWidget* child : widget->findChildren<QWidget*>())
            child->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
    int paints = 0;
};

// A press, on a slider at changing places, until all that it makes dirty is painted.
class RoundTrip
{
public:
    explicit RoundTrip(QWidget* widget) : m_widget(widget), m_counter(widget) {}

    void Measure(int round)
    {
        const int x = m_isSlider ? round * 37 % (kPlace.width() - 60) : 0;
        const QPoint at(20 + x, kPlace.height() / 2);
        m_times.push_back(Seconds([&] {
            Send(m_widget, QEvent::MouseButtonPress, at);
            QCoreApplication::processEvents();
        }));
        Send(m_widget, QEvent::MouseButtonRelease, at);
        QCoreApplication::processEvents();
    }
    double Result() const { return Median(m_times); }
    double Slowest() const { return Largest(m_times); }
    int Paints() const { return m_counter.paints; }

private:
    QWidget* m_widget;
    bool m_isSlider = QString(m_widget->metaObject()->className()).endsWith("Slider");
    PaintCounter m_counter;
    std::vector<double> m_times;
};

void PressToPaint(const char* name, const std::function<QWidget*(QWidget*)>& makeOurs,
                  const std::function<QWidget*(QWidget*)>& makePeer)
{
    QWidget window;
    window.resize(kWindow);
    QWidget* ours = makeOurs(&window);
    QWidget* peer = makePeer(&window);
    ours->setGeometry(kPlace);
    peer->setGeometry(kPlace.translated(0, 200));
    window.show();
    QCoreApplication::processEvents();
    RoundTrip ourTrip(ours);
    RoundTrip peerTrip(peer);
    for (int i = 0; i < kRounds; ++i) {
        ourTrip.Measure(i);
        peerTrip.Measure(i);
    }
    Report(QString("%1, from a press to its picture").arg(name), ourTrip.Result(),
           Other(peer->metaObject()->className(), peerTrip.Result()));
    std::printf("  slowest %.3f ms, %d paint events\n", ourTrip.Slowest() * 1e3, ourTrip.Paints());
}

void ManyValues()
{
    QWidget window;
    window.resize(kWindow);
    auto* slider = new ToolBarSlider(&window, Qt::Horizontal);
    auto* peer = new QSlider(Qt::Horizontal, &window);
    peer->setRange(0, kValues);
    slider->setRange(0, kValues);
    slider->setGeometry(kPlace);
    peer->setGeometry(kPlace.translated(0, 200));
    window.show();
    QCoreApplication::processEvents();
    PaintCounter counter(slider);
    const auto set = [](auto setValue) {
        return [setValue, round = 0]() mutable {
            for (int i = 0; i < kValues; ++i)
                setValue((i + round * 97) % kValues);
            ++round;
            QCoreApplication::processEvents();
        };
    };
    const Rounds rounds =
        TakeTurns(kRounds, set([=](int value) { slider->setValue(value, false); }),
                  set([=](int value) { peer->setValue(value); }));
    Report(QString("ToolBarSlider, %1 values in a turn").arg(kValues), Median(rounds.ours),
           Other("QSlider", Median(rounds.theirs)));
    std::printf("  %.1f paint events a turn\n", double(counter.paints) / kRounds);
}

void ManyButtons()
{
    std::vector<double> ours, theirs;
    for (int round = 0; round < 11; ++round) {
        auto window = std::make_unique<QWidget>();
        ours.push_back(Seconds([&] {
            for (int i = 0; i < kButtons; ++i)
                new BaseButton(i, QStringLiteral("button"), window.get());
        }));
        window = std::make_unique<QWidget>();
        theirs.push_back(Seconds([&] {
            for (int i = 0; i < kButtons; ++i) {
                auto* button = new QPushButton(window.get());
                button->setObjectName(QStringLiteral("button"));
                button->setStyleSheet(QStringLiteral("QPushButton{border:0px;}"));
            }
        }));
    }
    Report(QString("%1 of BaseButton made").arg(kButtons), Median(ours),
           Other("QPushButton with the same sheet", Median(theirs)));
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    app.setStyleSheet(gGetCommonLibStyles() +
                      "QSlider::groove { background: gray; height: 3px; }"
                      "QSlider::handle { background: white; width: 14px; margin: -6px 0; }");
    const auto slider = [](QWidget* parent) { return new QSlider(Qt::Horizontal, parent); };
    const auto button = [](QWidget* parent) { return new QPushButton("Text", parent); };
    PressToPaint(
        "ToolBarSlider", [](QWidget* p) { return new ToolBarSlider(p, Qt::Horizontal); }, slider);
    PressToPaint(
        "ScaleUnitSlider", [](QWidget* p) { return new ScaleUnitSlider(p); }, slider);
    PressToPaint(
        "PureSlider", [](QWidget* p) { return new PureSlider(p); }, slider);
    PressToPaint(
        "BaseButton", [](QWidget* p) { return new BaseButton(1, "b", p); }, button);
    PressToPaint(
        "BaseStateButton",
        [](QWidget* p) {
            auto* states = new BaseStateButton(1, "states", p);
            states->AddButton(2, "a");
            states->AddButton(3, "b");
            return states;
        },
        button);
    PressToPaint(
        "ImageTextButton", [](QWidget* p) { return new ImageTextButton(1, "i", p); }, button);
    PressToPaint(
        "ImageTextButton2", [](QWidget* p) { return new ImageTextButton2(1, "t", p); }, button);
    ManyValues();
    ManyButtons();
    return 0;
}

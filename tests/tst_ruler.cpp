// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"
#include "CommonLib/TimelineRuler.h"
#include "tests/support/TestFonts.h"

#include <QAccessible>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>
#include <random>

namespace {

constexpr int kWidth = 400;
constexpr int kHeight = 28;
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
const QColor kTick = Qt::red;
const QColor kText = Qt::blue;

// Set by the option --update-pictures: writes the reference pictures instead of comparing.
bool updatePictures = false;

// The default scale: zoom range, frames per large tick, its pixels at the range's start.
struct Segment
{
    float from, to;
    int bigFrames, pixels;
};
const Segment kSegments[] = {{0, 120, 5, 150},     {121, 240, 25, 149},   {241, 360, 125, 149},
                             {361, 510, 750, 179}, {511, 630, 3750, 149}, {631, 780, 22500, 179}};

struct Ruler : TimelineRuler
{
    QWidget* view = SetEventFilter(nullptr);
    QStringList log;
    std::function<void()> onSignal;
    explicit Ruler(QWidget* parent = nullptr) : TimelineRuler(parent)
    {
        resize(kWidth, kHeight);
        SetScaleColor(kTick);
        SetFrameTextColor(kText);
        setStyleSheet("QWidget { background: white }");
        show();
        const auto note = [this](const char* name) { return [this, name] { Note(name); }; };
        connect(this, &TimelineRuler::sigSingleClickStartFramesChanged, note("clickStart"));
        connect(this, &TimelineRuler::sigSingleClickEndFrameChanged, note("clickEnd"));
        connect(this, &TimelineRuler::StartFramesChanged, note("start"));
        connect(this, &TimelineRuler::EndFramesChanged, note("end"));
        connect(this, &TimelineRuler::StartZoomChanged, note("startZoom"));
        connect(this, &TimelineRuler::EndZoomChanged, note("endZoom"));
        connect(this, &TimelineRuler::ZoomChanged, note("zoom"));
        connect(this, &TimelineRuler::FramesChanged, [this](int f) { Note(QString::number(f)); });
        connect(this, &TimelineRuler::OffsetFramesChanged,
                [this](int f) { Note("offset" + QString::number(f)); });
        connect(this, &TimelineRuler::sigRightClicked, [this](QPoint pt) {
            Note(QString("right%1,%2")
                     .arg(pt.x() - mapToGlobal({}).x())
                     .arg(pt.y() - mapToGlobal({}).y()));
        });
    }
    void Note(const QString& entry)
    {
        log << entry;
        if (const auto handler = onSignal) // a copy, which outlives the ruler
            handler();
    }
    QString TakeLog() { return std::exchange(log, {}).join(' '); }
    QImage Picture(double scale = 1)
    {
        QImage image(size() * scale, QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::white);
        view->render(&image);
        return image;
    }
    void Mouse(QEvent::Type type, int x, int y, Qt::MouseButton button = Qt::LeftButton)
    {
        const Qt::MouseButton cause = type == QEvent::MouseMove ? Qt::NoButton : button;
        const Qt::MouseButtons down = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
        QMouseEvent event(type, QPointF(x, y), view->mapToGlobal(QPoint(x, y)), cause, down, {});
        QCoreApplication::sendEvent(view, &event);
    }
    void Press(int x, int y = 5) { Mouse(QEvent::MouseButtonPress, x, y); }
    void Move(int x, int y = 5) { Mouse(QEvent::MouseMove, x, y); }
    void Release(int x, int y = 5) { Mouse(QEvent::MouseButtonRelease, x, y); }
    void Wheel(int x, int turn, Qt::KeyboardModifiers modifiers)
    {
        QWheelEvent event(QPointF(x, 5), view->mapToGlobal(QPoint(x, 5)), {}, {0, turn},
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view, &event);
    }
};

// Columns of a row that are of a colour.
QVector<int> Columns(const QImage& image, int row, const QColor& color)
{
    QVector<int> columns;
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, row) == color)
            columns << x;
    }
    return columns;
}

// A window system's own fonts are other ones, and a machine may lack the pictures' font: there
// labels, in any blend with paper, are paper.
QRgb WithoutForeignText(QRgb color)
{
    static const bool isForeign =
        QGuiApplication::platformName() != "offscreen" || !QFontInfo(qApp->font()).exactMatch();
    return isForeign && qBlue(color) > 96 ? qRgb(255, 255, 255) : color;
}

// Share of the pixels that differ clearly, which glyphs of another rasteriser hardly do.
double Difference(const QImage& a, const QImage& b)
{
    int differing = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = WithoutForeignText(a.pixel(x, y));
            const QRgb q = WithoutForeignText(b.pixel(x, y));
            const int most = std::max({std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                                       std::abs(qBlue(p) - qBlue(q))});
            differing += most > 96;
        }
    }
    return differing / double(a.width() * a.height());
}

// The adjustment step by step.
int SlowZoomFromWidth(int width, int frames)
{
    for (int i = 0; i < 6; ++i) {
        const Segment& segment = kSegments[i];
        const double sum = segment.pixels + segment.from;
        const int zoom = int(sum - double(segment.bigFrames) * width / frames);
        if (zoom < segment.from || zoom > segment.to)
            continue;
        for (int step = segment.bigFrames / 5; step < 10000000; ++step) {
            const double v = sum - double(step) * 5 * width / frames;
            if (v < 0 || (v - std::floor(v) > 0.7 && i > 0 && kSegments[i - 1].to >= v))
                return zoom;
            if (v - std::floor(v) > 0.7)
                return int(v + 1);
        }
        return zoom;
    }
    return 0;
}

} // namespace

using Setter = std::function<void(Ruler&)>;
using Steps = QVector<Setter>;
Q_DECLARE_METATYPE(Setter)
Q_DECLARE_METATYPE(Steps)

class TestRuler : public QObject
{
    Q_OBJECT

private slots:
    void scale()
    {
        Ruler ruler;
        QCOMPARE(ruler.Zoom(), 780.0F);
        QCOMPARE(ruler.MaxZoom(), 780.0F);
        ruler.SetOffsetFrames(10);
        ruler.SetOffsetPosition(3);
        for (const Segment& segment : kSegments) {
            for (const float zoom : {segment.from, (segment.from + segment.to) / 2, segment.to}) {
                ruler.SetZoom(zoom);
                const float spacing = segment.pixels - (zoom - segment.from);
                QCOMPARE(ruler.Zoom(), zoom);
                QCOMPARE(ruler.Frames2DurationF(segment.bigFrames), spacing);
                QCOMPARE(ruler.Duration2FramesF(100), 100 * segment.bigFrames / spacing);
                QCOMPARE(ruler.Frames2PositionF(10 + 2 * segment.bigFrames), 2 * spacing - 3);
                QCOMPARE(ruler.Position2FramesF(-3), 10.0F);
            }
        }
        ruler.SetZoom(800);
        QCOMPARE(ruler.Frames2DurationF(22500), 10.0F);
        ruler.SetZoom(120.4F);
        QVERIFY(std::abs(ruler.Frames2DurationF(5) - 29.6F) < 1e-3F);
        ruler.SetZoom(120.5F);
        QCOMPARE(ruler.Frames2DurationF(25), 149.0F);
    }

    void zoomThatFits()
    {
        Ruler ruler;
        QCOMPARE(ruler.FindZoom(5, 151), 0.0F);
        QCOMPARE(ruler.FindZoom(5, 150), 0.0F);
        QCOMPARE(ruler.FindZoom(22500, 0), 780.0F);
        ruler.SetZoom(300);
        QCOMPARE(ruler.FindZoom(100, -1), 300.0F);
        std::mt19937 random(1);
        std::uniform_real_distribution<double> exponent(0, 31);
        for (int i = 0; i < 3000; ++i) {
            const int frames = int(std::exp2(exponent(random)) - 1) + 1,
                      width = int(random() % 16385);
            const float zoom = ruler.FindZoom(frames, width);
            QVERIFY(zoom >= 0 && zoom <= 780);
            // Zooms between two segments round to either.
            const bool isInside =
                std::any_of(std::begin(kSegments), std::end(kSegments),
                            [zoom](const Segment& s) { return s.from <= zoom && zoom <= s.to; });
            if (zoom > 0 && zoom < 780 && isInside) {
                ruler.SetZoom(zoom);
                const double filled = double(ruler.Frames2DurationF(frames));
                QVERIFY2(std::abs(filled - width) <= 0.01 + 1e-4 * width,
                         qPrintable(QString("%1 of %2 at %3").arg(filled).arg(width).arg(frames)));
            }
            QCOMPARE(TimelineRuler().ZoomFromWidthAndTotaleFramesF(width, frames),
                     SlowZoomFromWidth(width, frames));
        }
        // A whole quotient is one, and wastes nothing: the step stays.
        ruler.SetZoom(0);
        const float before = ruler.Frames2DurationF(5);
        QCOMPARE(ruler.ZoomFromWidthAndTotaleFramesF(400, 48), 108);
        QCOMPARE(ruler.Frames2DurationF(5), before);
        // Whole multiples of 30 pixels lie on the border of two segments.
        for (int frames = 1; frames < 2000; ++frames)
            QCOMPARE(ruler.FindZoom(frames, 6 * frames), 120.0F);
        for (const int bad : {0, -1, INT_MIN, INT_MAX})
            ruler.ZoomFromWidthAndTotaleFramesF(bad, bad);
        ruler.RebuildRulerConvertor({});
        QCOMPARE(ruler.ZoomFromWidthAndTotaleFramesF(100, 100), 0);
        QVERIFY(Columns(ruler.Picture(), 20, kTick).isEmpty());
    }

    void rebuild()
    {
        Ruler ruler;
        ruler.SetPointerBGColor(Qt::green);
        ruler.SetFPS(60);
        ruler.SetCurrentFrames(7);
        ruler.RebuildRulerConvertor({{50.0F, 100, 2}, {20.0F, 90, 0}});
        QCOMPARE(ruler.Zoom(), 71.0F);
        QCOMPARE(ruler.MaxZoom(), 0.0F);
        QCOMPARE(ruler.Frames2DurationF(5), 70.0F);
        QCOMPARE(ruler.GetPointerBGColor(), QColor(Qt::green));
        QCOMPARE(ruler.FPS(), 60.0F);
        QCOMPARE(ruler.CurrentFrames(), 7);
        ruler.SetZoom(50);
        QCOMPARE(ruler.Frames2DurationF(10), 50.0F);
        QCOMPARE(ruler.GetPointerBGColor(), QColor(Qt::green));
        QCOMPARE(ruler.CurrentFrames(), 7);
    }

    void oddZooms_data()
    {
        QTest::addColumn<float>("zoom");
        for (const float zoom :
             {808.9F, 809.5F, 810.0F, 811.0F, 1e30F, -1e30F, kNaN, kInfinity, -kInfinity})
            QTest::addRow("%g", double(zoom)) << zoom;
    }
    void oddZooms()
    {
        QFETCH(float, zoom);
        Ruler ruler;
        ruler.SetZoom(zoom);
        for (const float fps : {0.0F, 25.0F, kNaN, kInfinity}) {
            ruler.SetFPS(fps);
            for (const int offset : {0, INT_MAX, INT_MIN}) {
                ruler.SetOffsetFrames(offset);
                ruler.SetOffsetPosition(offset / 2);
                for (const int value : {0, 1, INT_MAX, INT_MIN}) {
                    QVERIFY(std::isfinite(ruler.Frames2PositionF(value)) &&
                            std::isfinite(ruler.Position2FramesF(value)));
                    QVERIFY(std::isfinite(ruler.Frames2DurationF(value)) &&
                            std::isfinite(ruler.Duration2FramesF(value)));
                    ruler.SetCurrentFrames(value);
                }
                ruler.Picture();
                ruler.GetZoomAndScrollRulerOffsetPosition();
            }
        }
        ruler.SetOffsetFrames(0);
        ruler.SetOffsetPosition(0);
        QVERIFY(!Columns(ruler.Picture(), 20, kTick).isEmpty());
        ruler.Wheel(100, 120, Qt::ControlModifier);
        QVERIFY(ruler.Zoom() >= 0 && ruler.Zoom() <= 780);
        ruler.resize(16000, kHeight);
        ruler.Picture();
        ruler.resize(0, kHeight);
        ruler.view->resize(0, kHeight);
        QImage image(1, kHeight, QImage::Format_RGB32);
        ruler.view->render(&image);
    }

    void paintedPositions_data()
    {
        QTest::addColumn<float>("zoom");
        QTest::addColumn<int>("offset");
        for (const Segment& segment : kSegments) {
            for (const float zoom : {segment.from, segment.from + 40.25F, segment.to})
                for (const int offset : {0, 7 * segment.bigFrames, 10000003})
                    QTest::addRow("%g at %d", double(zoom), offset) << zoom << offset;
        }
    }
    void paintedPositions()
    {
        QFETCH(float, zoom);
        QFETCH(int, offset);
        Ruler ruler;
        ruler.SetCurrentFrames(-1000000);
        ruler.SetOffsetFrames(offset);
        ruler.SetZoom(zoom);
        const auto* segment = std::find_if(std::begin(kSegments), std::end(kSegments),
                                           [zoom](const Segment& s) { return zoom <= s.to; });
        const double spacing = double(ruler.Frames2DurationF(segment->bigFrames));
        const int textWidth = QFontMetrics(qApp->font()).horizontalAdvance(gFrame2String(0, 25));
        int every = 1;
        while (1.5 * textWidth > every * int(spacing))
            every *= 2;
        const QImage image = ruler.Picture();
        const auto at = [&](double frame) {
            return (frame - offset) * spacing / segment->bigFrames;
        };
        // Ticks stand on whole pixels, counted from a shift which has a fraction itself.
        for (const int row : {kHeight - 10, kHeight - 6}) { // of large ticks only, of both
            const int perTick = row == kHeight - 10 ? segment->bigFrames : segment->bigFrames / 5;
            const QVector<int> columns = Columns(image, row, kTick);
            const int first = (offset + perTick - 1) / perTick;
            int expected = 0;
            for (int tick = first;; ++tick, ++expected) {
                const double x = at(double(tick) * perTick);
                if (x > kWidth - 1.5)
                    break;
                const bool found = std::any_of(columns.begin(), columns.end(),
                                               [x](int c) { return c <= x + 0.01 && c > x - 2; });
                QVERIFY2(found || x < 2, qPrintable(QString("no tick at %1").arg(x)));
            }
            QVERIFY2(std::abs(columns.size() - expected) <= 1,
                     qPrintable(QString("%1 for %2").arg(columns.size()).arg(expected)));
        }
        // Labels begin two pixels beside every n-th large tick, and nowhere else.
        const int big = (offset + segment->bigFrames - 1) / segment->bigFrames;
        for (int tick = big; at(double(tick) * segment->bigFrames) < kWidth - textWidth; ++tick) {
            const int x = int(at(double(tick) * segment->bigFrames));
            int inked = 0;
            for (int column = x + 3; column < x + std::min(textWidth, int(spacing)) - 3; ++column)
                for (int row = kHeight - 22; row < kHeight - 10; ++row)
                    inked += image.pixelColor(column, row).red() < 128 &&
                             image.pixelColor(column, row).blue() > 200;
            if (tick % every == 0)
                QVERIFY2(inked > 3, qPrintable(QString::number(tick)));
            else if (every > 1 && tick % every == every - 1)
                QVERIFY2(inked == 0 || spacing * (every - 1) < textWidth,
                         qPrintable(QString::number(tick)));
        }
    }

    void pictures_data()
    {
        QTest::addColumn<double>("scale");
        QTest::addColumn<float>("fps");
        for (const double scale : {1.0, 1.5, 2.0}) {
            for (const double fps : {25.0, 29.97, 59.94})
                QTest::addRow("%g times, %g per second", scale, fps) << scale << float(fps);
        }
    }
    // All segments at both ends of their ranges, one below the other.
    void pictures()
    {
        QFETCH(double, scale);
        QFETCH(float, fps);
        const QString path = QString(RULER_PICTURES "/%1x_%2fps.png").arg(scale).arg(double(fps));
        const QSize strip(int(kWidth * scale), int(kHeight * scale));
        QImage all(strip.width(), strip.height() * 12, QImage::Format_RGB32);
        Ruler ruler;
        ruler.SetFPS(fps);
        ruler.SetPointerBGColor(Qt::darkGreen);
        QPainter painter(&all);
        for (int i = 0; i < 12; ++i) {
            const Segment& segment = kSegments[i / 2];
            ruler.SetZoom(i % 2 ? segment.to : segment.from);
            ruler.SetOffsetFrames(i * segment.bigFrames + i);
            ruler.SetCurrentFrames(ruler.OffsetFrames() + int(ruler.Duration2FramesF(170)));
            ruler.SetCursorEnable(i % 4 == 0);
            QImage picture = ruler.Picture(scale);
            picture.setDevicePixelRatio(1);
            painter.drawImage(0, i * strip.height(), picture);
        }
        painter.end();
        if (updatePictures)
            QVERIFY(all.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither).save(path));
        const QImage expected = QImage(path).convertToFormat(QImage::Format_RGB32);
        QCOMPARE(expected.size(), all.size());
        for (int i = 0; i < 12; ++i) {
            const QRect part(QPoint(0, i * strip.height()), strip);
            const double difference = Difference(all.copy(part), expected.copy(part));
            QVERIFY2(difference < 0.004,
                     qPrintable(QString("strip %1: %2").arg(i).arg(difference)));
        }
    }

    void linesAreOfOneWidth_data()
    {
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("margin"); // to the left of the ruler
        for (const auto& [scale, width] : {std::pair(1.0, 1),
                                           {1.25, 1},
                                           {1.3, 1},
                                           {1.5, 2},
                                           {1.75, 2},
                                           {2.0, 2},
                                           {2.25, 2},
                                           {3.0, 3}})
            for (const int margin : {0, 9})
                QTest::addRow("%g times, at %d", scale, margin) << scale << width << margin;
    }
    void linesAreOfOneWidth()
    {
        QFETCH(double, scale);
        QFETCH(int, width);
        QFETCH(int, margin);
        Ruler ruler;
        ruler.layout()->setContentsMargins(margin, 0, 0, 0);
        ruler.layout()->activate();
        ruler.SetZoom(117); // 6.6 pixels a frame
        ruler.SetCurrentFrames(12);
        ruler.SetCursorEnable(true);
        ruler.SetPointerBGColor(Qt::green);
        QImage image(ruler.size() * scale, QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        ruler.render(&image);
        image = image.copy(image.rect().adjusted(qRound(margin * scale), 0, 0, 0));
        const auto row = [&](double y, QColor color) {
            return Columns(image, int(y * scale), color);
        };
        const QVector<int> ticks = row(23.5, kTick), line = row(22.5, Qt::green);
        QCOMPARE(ticks.mid(0, width).last(), width - 1); // the first one is whole
        int run = 0, lines = 0;
        for (int i = 0; i < ticks.size(); ++i) {
            ++run;
            if (i + 1 < ticks.size() && ticks[i + 1] == ticks[i] + 1)
                continue;
            QVERIFY2(run == width || ticks[i] == image.width() - 1,
                     qPrintable(QString::number(ticks[i])));
            run = 0;
            ++lines;
        }
        QCOMPARE(lines, int((kWidth - margin) / 6.6)); // all but the one below the line
        QCOMPARE(line.size(), qRound(2 * scale));
        const auto centre = (line.first() + line.last() + 1) / 2.0;
        QVERIFY(std::abs(centre - double(ruler.Frames2PositionF(12)) * scale) < 1.01);
        int bottom = 0;
        for (int y = 0; y < image.height(); ++y)
            bottom += image.pixelColor(width, y) == kTick; // beside the first tick
        QCOMPARE(bottom, width);
    }

    void repaintsOnlyThePlayHead()
    {
        struct Watch : QWidget
        {
            QRegion painted;
            bool eventFilter(QObject*, QEvent* event) override
            {
                if (event->type() == QEvent::Paint)
                    painted += static_cast<QPaintEvent*>(event)->region();
                return false;
            }
        } watch;
        Ruler ruler;
        ruler.SetZoom(0);
        QVERIFY(QTest::qWaitForWindowExposed(&ruler));
        ruler.SetEventFilter(&watch);
        ruler.SetCurrentFrames(2); // at 60
        QCoreApplication::processEvents();
        watch.painted = {};
        const QImage before = ruler.grab().toImage();
        watch.painted = {};
        ruler.SetCurrentFrames(10); // at 300
        QCoreApplication::processEvents();
        for (const int x : {52, 60, 68, 292, 300, 308})
            QVERIFY2(watch.painted.contains(QPoint(x, 12)), qPrintable(QString::number(x)));
        for (const int x : {40, 80, 180, 280, 320})
            QVERIFY2(!watch.painted.contains(QPoint(x, 12)), qPrintable(QString::number(x)));
        watch.painted = {};
        ruler.SetCurrentFrames(10);
        QCoreApplication::processEvents();
        QVERIFY(watch.painted.isEmpty());
        // Partial painting gives what painting all does.
        QImage parts = before.convertToFormat(QImage::Format_RGB32);
        ruler.view->render(&parts, QPoint(50, 0), QRect(50, 0, 21, kHeight));
        ruler.view->render(&parts, QPoint(280, 0), QRect(280, 0, 50, kHeight));
        const QRegion twoPartsOfALabel = QRegion(155, 0, 15, kHeight) + QRect(180, 0, 15, kHeight);
        ruler.view->render(&parts, QPoint(155, 0), twoPartsOfALabel);
        QCOMPARE(parts, ruler.Picture());
    }

    void flags_data()
    {
        QTest::addColumn<Setter>("set");
        QTest::addColumn<QString>("drag"); // what press, move and release tell
        QTest::addColumn<QString>("click");
        QTest::addColumn<QString>("zoomDrag");
        QTest::addColumn<QString>("key");
        const QString all = "start 10 20 20 end", click = "start 30 30 end";
        const QString zoom = "startZoom zoom offset2 endZoom", key = "start 31 end";
        const auto row = [](const char* name, const Setter& set, const QString& drag,
                            const QString& clicked, const QString& zoomed, const QString& stepped) {
            QTest::newRow(name) << set << drag << clicked << zoomed << stepped;
        };
        row(
            "as made", [](Ruler&) {}, all, click, zoom, key);
        row(
            "no drags", [](Ruler& r) { r.SetDragable(false); }, "start 10 10 end", click, "", key);
        row(
            "no moves", [](Ruler& r) { r.SetMoveFrameEnabled(false); }, "", "", zoom, "");
        row(
            "silent press", [](Ruler& r) { r.SetMousePressEmitFramesChangedEnabled(false); },
            "start 20 20 end", "start 30 end", zoom, key);
        row(
            "silent release", [](Ruler& r) { r.SetMouseReleaseEmitFramesChangedEnabled(false); },
            "start 10 20 end", "start 30 end", zoom, key);
        row(
            "single clicks", [](Ruler& r) { r.SetSingalClickStartEndFrameChangeEnabled(true); },
            "clickStart start 10 clickEnd 20 20 end", "clickStart start 30 30 end clickEnd", zoom,
            key);
        row(
            "disabled", [](Ruler& r) { r.setEnabled(false); }, "", "", "", "");
    }
    void flags()
    {
        QFETCH(Setter, set);
        QFETCH(QString, drag);
        QFETCH(QString, click);
        QFETCH(QString, zoomDrag);
        QFETCH(QString, key);
        Ruler ruler;
        ruler.SetZoom(120); // 6 pixels a frame
        set(ruler);
        ruler.Press(60);
        ruler.Move(121);
        ruler.Release(121);
        QCOMPARE(ruler.TakeLog(), drag);
        ruler.Press(180);
        ruler.Release(180);
        QCOMPARE(ruler.TakeLog(), click);
        QTest::keyClick(ruler.view, Qt::Key_Right);
        QCOMPARE(ruler.TakeLog(), key);
        ruler.Mouse(QEvent::MouseButtonPress, 60, 5, Qt::MiddleButton);
        ruler.Mouse(QEvent::MouseMove, 60, 10, Qt::MiddleButton);
        ruler.Mouse(QEvent::MouseButtonRelease, 60, 10, Qt::MiddleButton);
        QCOMPARE(ruler.TakeLog(), zoomDrag);
    }

    void frameUnderMouseStays_data()
    {
        QTest::addColumn<float>("zoom");
        for (const float zoom : {60.0F, 118.0F, 300.0F, 512.0F, 700.0F})
            QTest::addRow("%g", double(zoom)) << zoom;
    }
    void frameUnderMouseStays()
    {
        QFETCH(float, zoom);
        Ruler ruler;
        ruler.SetZoom(zoom);
        ruler.SetOffsetFrames(20000000);
        ruler.SetCurrentFrames(20000000);
        // Position2FramesF() has too few digits so far out.
        const auto under = [&ruler](int x) {
            const float shown = float(x) - ruler.Frames2PositionF(ruler.OffsetFrames());
            return ruler.OffsetFrames() + double(shown * ruler.Duration2FramesF(1));
        };
        const double wheeled = under(250);
        for (const int turn : {120, 120, 40, -120, -240, -360}) {
            ruler.Wheel(250, turn, Qt::ControlModifier);
            QVERIFY(std::abs(under(250) - wheeled) <= double(ruler.Duration2FramesF(1)));
        }
        QVERIFY(ruler.Zoom() > zoom);
        const double grabbed = under(100);
        ruler.StartZoomAndScrollRuler();
        ruler.Move(100, 5);
        for (const QPoint at : {QPoint(130, 25), QPoint(300, -30), QPoint(20, 5)}) {
            ruler.Move(at.x(), at.y());
            QVERIFY(std::abs(under(at.x()) - grabbed) <= double(ruler.Duration2FramesF(1)));
        }
        ruler.doMouseButtonRelease();
        ruler.TakeLog();
        ruler.Move(200, 20);
        ruler.doMouseButtonRelease();
        QCOMPARE(ruler.TakeLog(), QString());
        const float last = ruler.Zoom();
        ruler.Wheel(250, -120, {});
        QCOMPARE(ruler.Zoom(), last);
        QCOMPARE(ruler.TakeLog(), "offset" + QString::number(ruler.OffsetFrames()));
        QVERIFY(std::abs(under(0) - (grabbed - double(ruler.Duration2FramesF(20 - 40)))) <=
                2 * double(ruler.Duration2FramesF(1)));
        // As far by the smallest steps of a wheel, each a third of a pixel.
        const double scrolled = under(0);
        for (int i = 0; i < 120; ++i)
            ruler.Wheel(250, -1, {});
        QVERIFY(std::abs(under(0) - scrolled - double(ruler.Duration2FramesF(40))) <=
                2 * double(ruler.Duration2FramesF(1)));
    }

    void dragBeyondTheEdgeScrolls()
    {
        Ruler ruler;
        ruler.SetZoom(120);
        ruler.SetTotalFrames(200);
        ruler.Press(300);
        ruler.Move(kWidth + 100);
        QTRY_COMPARE(ruler.CurrentFrames(), 199);
        QTest::qWait(120); // no further
        const float x = ruler.Frames2PositionF(199);
        QVERIFY2(x > kWidth - 10 && x < kWidth, qPrintable(QString::number(double(x))));
        ruler.Move(-100);
        QTRY_COMPARE(ruler.CurrentFrames(), 0);
        QCOMPARE(ruler.OffsetFrames(), 0);
        QTest::keyClick(ruler.view, Qt::Key_Right); // the mouse has it
        QTest::keyClick(ruler.view, Qt::Key_Minus);
        QCOMPARE(ruler.CurrentFrames(), 0);
        QCOMPARE(ruler.Zoom(), 120.0F);
        ruler.SetTotalFrames(100000);
        for (const char end : {'h', 'd', 'r'}) {
            ruler.SetOffsetFrames(0);
            ruler.setEnabled(true);
            ruler.show();
            ruler.Press(300);
            ruler.Move(kWidth + 100);
            QTRY_VERIFY(ruler.OffsetFrames() > 10);
            ruler.TakeLog();
            end == 'h'   ? ruler.hide()
            : end == 'd' ? ruler.setEnabled(false)
                         : ruler.Release(kWidth + 100);
            QCoreApplication::processEvents(); // told once the widget has been hidden
            QVERIFY(ruler.TakeLog().endsWith(" end"));
            const int still = ruler.OffsetFrames();
            QTest::qWait(100);
            ruler.Move(200);
            QCOMPARE(ruler.TakeLog(), QString());
            QCOMPARE(ruler.OffsetFrames(), still);
        }
        // What shows as a whole does not scroll.
        ruler.SetOffsetFrames(0);
        ruler.SetOffsetPosition(0);
        ruler.SetTotalFrames(30);
        ruler.Press(0);
        ruler.Move(kWidth + 100);
        QTest::qWait(100);
        QCOMPARE(ruler.CurrentFrames(), 29);
        QCOMPARE(ruler.OffsetFrames(), 0);
    }

    void deletedInASlot_data()
    {
        QTest::addColumn<Steps>("input");
        using Action = QTest::MouseAction;
        const auto mouse = [](Action action, Qt::MouseButton button, int x, int y = 5) {
            return [=](Ruler& r) {
                QTest::mouseEvent(action, r.window()->windowHandle(), button, {}, {x, y}, -1);
            };
        };
        const auto press = [=](int x) { return mouse(QTest::MousePress, Qt::LeftButton, x); };
        const auto release = [=](int x) { return mouse(QTest::MouseRelease, Qt::LeftButton, x); };
        const auto move = [=](int x, int y = 5) {
            return mouse(QTest::MouseMove, Qt::NoButton, x, y);
        };
        const auto key = [](Qt::Key which) {
            return [=](Ruler& r) { QTest::keyPress(r.window()->windowHandle(), which); };
        };
        const auto wheel = [](Qt::KeyboardModifiers modifiers) {
            return [=](Ruler& r) { r.Wheel(100, -120, modifiers); };
        };
        const Setter scroll = [](Ruler& r) { // on and on
            const QPointer<Ruler> ruler(&r);
            Q_UNUSED(QTest::qWaitFor([&] { return !ruler || ruler->log.size() > 7; }));
        };
        QTest::newRow("drag") << Steps{press(60), move(200), release(201)};
        QTest::newRow("drag beyond the edge") << Steps{press(60), move(kWidth + 50), scroll};
        QTest::newRow("double click") << Steps{
            press(60), release(60), [](Ruler& r) { r.Mouse(QEvent::MouseButtonDblClick, 60, 5); }};
        QTest::newRow("middle drag")
            << Steps{mouse(QTest::MousePress, Qt::MiddleButton, 60), move(70, 25),
                     mouse(QTest::MouseRelease, Qt::MiddleButton, 70)};
        QTest::newRow("right click") << Steps{[=](Ruler& r) {
            QEventLoop loop;
            QTimer::singleShot(0, &loop, [&] {
                mouse(QTest::MousePress, Qt::RightButton, 60)(r);
                loop.quit();
            });
            loop.exec();
        }};
        QTest::newRow("wheel") << Steps{wheel({})};
        QTest::newRow("wheel that zooms") << Steps{wheel(Qt::ControlModifier)};
        QTest::newRow("key to a frame out of sight") << Steps{key(Qt::Key_End)};
        QTest::newRow("key that zooms") << Steps{key(Qt::Key_Minus)};
        QTest::newRow("disabled in a drag")
            << Steps{press(60), [](Ruler& r) { r.window()->setEnabled(false); }};
        QTest::newRow("hidden in a drag") << Steps{press(60), [](Ruler& r) { r.hide(); }};
        QTest::newRow("hover of a drag that a call begins and ends")
            << Steps{press(60), [](Ruler& r) { r.StartZoomAndScrollRuler(); }, move(80, 5),
                     move(90, 30), [](Ruler& r) { r.doMouseButtonRelease(); }};
    }
    // In each of the signals that the input causes, at once and later, as a window and within one.
    void deletedInASlot()
    {
        QFETCH(Steps, input);
        const auto told = [&input](bool isWindow, bool atOnce, int deletedAt) {
            QWidget window;
            window.resize(kWidth, kHeight);
            window.show();
            QPointer<Ruler> ruler(new Ruler(isWindow ? nullptr : &window));
            ruler->SetSingalClickStartEndFrameChangeEnabled(true);
            ruler->SetTotalFrames(1000);
            ruler->SetZoom(120);
            ruler->SetOffsetFrames(10);
            ruler->view->setFocus();
            ruler->activateWindow();
            int count = 0;
            ruler->onSignal = [&, doomed = ruler.data()] {
                if (count++ != deletedAt)
                    return;
                atOnce ? delete doomed : doomed->deleteLater();
            };
            for (const Setter& step : input) {
                if (ruler)
                    step(*ruler);
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            const bool isGone = !ruler;
            delete ruler;
            QWidget other; // which the mouse goes on to
            other.show();
            for (const auto button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton})
                QTest::mouseRelease(other.windowHandle(), button);
            return isGone ? count : -count;
        };
        for (const bool isWindow : {false, true}) {
            const int signalsToldOf = -told(isWindow, true, -1);
            QVERIFY(signalsToldOf > 0);
            for (int i = 0; i < signalsToldOf; ++i) {
                QCOMPARE(told(isWindow, true, i), i + 1);
                QVERIFY(told(isWindow, false, i) > i);
            }
        }
    }

    void limitsRoundingAndKeys()
    {
        Ruler ruler;
        ruler.SetZoom(120);
        ruler.SetTotalFrames(60);
        ruler.SetFrameRange(20, 40);
        QCOMPARE(ruler.AvailableTotaleFrames(), 60);
        const auto click = [&](int x) {
            ruler.Press(x);
            ruler.Release(x);
            return ruler.CurrentFrames();
        };
        QCOMPARE(click(64), 10);
        QCOMPARE(click(65), 10);
        QCOMPARE(click(399), 59);
        ruler.SetFramesRound(true);
        QCOMPARE(click(64), 11);
        QCOMPARE(click(62), 10);
        ruler.SetIsLimitFrameRange(true);
        QCOMPARE(ruler.CurrentFrames(), 20);
        QCOMPARE(ruler.AvailableTotaleFrames(), 21);
        QCOMPARE(click(10), 20);
        QCOMPARE(click(390), 40);
        ruler.SetCurrentFrames(5);
        QCOMPARE(ruler.CurrentFrames(), 20);
        ruler.SetFrameRange(30, 10);
        QCOMPARE(ruler.CurrentFrames(), 30);
        ruler.SetIsLimitFrameRange(false);
        ruler.TakeLog();
        for (const auto& [key, modifiers, frame] : {std::tuple(Qt::Key_Right, Qt::NoModifier, 31),
                                                    {Qt::Key_Left, Qt::ShiftModifier, 6},
                                                    {Qt::Key_Left, Qt::ShiftModifier, 0},
                                                    {Qt::Key_PageDown, Qt::NoModifier, 5},
                                                    {Qt::Key_End, Qt::NoModifier, 59},
                                                    {Qt::Key_Home, Qt::NoModifier, 0}}) {
            QTest::keyClick(ruler.view, key, modifiers);
            QCOMPARE(ruler.CurrentFrames(), frame);
        }
        ruler.TakeLog();
        QTest::keyClick(ruler.view, Qt::Key_Left);
        QCOMPARE(ruler.TakeLog(), QString());
        ruler.SetTotalFrames(100000);
        ruler.SetCurrentFrames(0);
        QTest::keyClick(ruler.view, Qt::Key_End);
        QVERIFY(ruler.Frames2PositionF(99999) > 0 && ruler.Frames2PositionF(99999) < kWidth);
    }

    void keyboardFocusShows()
    {
        QWidget window;
        Ruler ruler(&window);
        ruler.setStyleSheet("QWidget { background: white; selection-background-color: magenta }");
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        for (const auto reason : {Qt::MouseFocusReason, Qt::TabFocusReason}) {
            ruler.setFocus(reason);
            QVERIFY(ruler.hasFocus());
            const QImage image = ruler.Picture(1.5);
            const bool shows = reason == Qt::TabFocusReason;
            QCOMPARE(Columns(image, 20, Qt::magenta),
                     shows ? QVector<int>({0, 1, 598, 599}) : QVector<int>());
            QCOMPARE(Columns(image, 41, Qt::magenta).size(), shows ? 600 : 0);
            ruler.view->clearFocus();
            QVERIFY(Columns(ruler.Picture(), 0, Qt::magenta).isEmpty());
        }
    }

    void assistiveTools()
    {
        Ruler ruler;
        ruler.SetZoom(120);
        ruler.SetTotalFrames(100);
        ruler.SetCurrentFrames(30);
        for (QWidget* widget : {static_cast<QWidget*>(&ruler), ruler.view}) {
            ruler.setAccessibleName({});
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
            QCOMPARE(accessible->role(), QAccessible::Slider);
            QCOMPARE(accessible->text(QAccessible::Name), QString("Ruler"));
            ruler.setAccessibleName("Time");
            QCOMPARE(accessible->text(QAccessible::Name), QString("Time"));
            QCOMPARE(accessible->text(QAccessible::Value), QString("00:00:01:05"));
            QAccessibleValueInterface* value = accessible->valueInterface();
            QCOMPARE(value->currentValue().toInt(), 30);
            QCOMPARE(value->minimumValue().toInt(), 0);
            QCOMPARE(value->maximumValue().toInt(), 99);
            value->setCurrentValue(40.0);
            QAccessibleActionInterface* actions = accessible->actionInterface();
            const QStringList names{actions->increaseAction(), actions->nextPageAction(),
                                    actions->decreaseAction(), actions->previousPageAction()};
            for (const QString& name : names) {
                QVERIFY(actions->actionNames().contains(name));
                actions->doAction(name);
            }
            value->setCurrentValue(1000);
            ruler.setEnabled(false);
            value->setCurrentValue(30);
            actions->doAction(names.first());
            QVERIFY(!actions->actionNames().contains(names.first()));
            ruler.setEnabled(true);
            QCOMPARE(ruler.TakeLog(), QString("start 40 end start 41 end start 46 end start 45 end "
                                              "start 40 end start 99 offset65 end"));
            ruler.SetCurrentFrames(30);
            ruler.SetOffsetFrames(0);
            ruler.SetOffsetPosition(0);
        }
    }

    void otherButtons()
    {
        Ruler ruler;
        ruler.SetTotalFrames(1000);
        QTest::mouseClick(ruler.view, Qt::RightButton, {}, QPoint(33, 7));
        QCOMPARE(ruler.TakeLog(), QString("right33,7"));
        ruler.Press(50);
        ruler.Release(50);
        ruler.TakeLog();
        ruler.Mouse(QEvent::MouseButtonDblClick, 50, 5);
        QCOMPARE(ruler.Zoom(), ruler.FindZoom(1000, kWidth));
        QCOMPARE(ruler.TakeLog(), QString("startZoom zoom endZoom"));
        // With another table, and once more where nothing changes.
        ruler.RebuildRulerConvertor({{100, 130, 40}});
        for (const char* expected : {"startZoom zoom endZoom", ""}) {
            ruler.Press(50);
            ruler.Release(50);
            ruler.TakeLog();
            ruler.Mouse(QEvent::MouseButtonDblClick, 50, 5);
            QCOMPARE(ruler.TakeLog(), QString(expected));
            QVERIFY(qAbs(ruler.Frames2DurationF(1000) - kWidth) < 1);
        }
        ruler.Press(50);
        ruler.Release(50);
        ruler.TakeLog();
        QTest::qWait(450);
        ruler.Mouse(QEvent::MouseButtonDblClick, 50, 5);
        QVERIFY(ruler.TakeLog().startsWith("start "));
    }
};

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    // The same glyphs on every machine that has the font, and some on one that has none.
    QFontDatabase::addApplicationFontFromData(TestFonts::Boxes("CommonLib boxes"));
    QFont font("DejaVu Sans");
    font.setPixelSize(11);
    font.setHintingPreference(QFont::PreferNoHinting);
    QApplication::setFont(font);
    QStringList arguments = QCoreApplication::arguments();
    updatePictures = arguments.removeAll("--update-pictures") > 0;
    TestRuler test;
    return QTest::qExec(&test, arguments);
}

#include "tst_ruler.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"
#include "CommonLib/TimelineRuler.h"
#include "tests/support/DeletedInSlot.h"
#include "tests/support/LostRelease.h"
#include "tests/support/TestFonts.h"

#include <QAccessible>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QSignalSpy>
#include <QWheelEvent>
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
constexpr float kOddZooms[] = {808.9F, 809.5F, 810.0F,    811.0F,    1e30F,
                               -1e30F, kNaN,   kInfinity, -kInfinity};
constexpr int kThreeScrollSteps = 120; // ms, of a drag beyond an edge
const QColor kTick = Qt::red;
const QColor kText = Qt::blue;

// Set by the option --update-pictures: writes the reference pictures instead of comparing.
bool s_updatePictures = false;

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
    explicit Ruler(QWidget* parent = nullptr) : TimelineRuler(parent)
    {
        resize(kWidth, kHeight);
        SetScaleColor(kTick);
        SetFrameTextColor(kText);
        setStyleSheet("QWidget { background: white }");
        show();
        const auto note = [this](const char* name) { return [this, name] { log << name; }; };
        connect(this, &TimelineRuler::sigSingleClickStartFramesChanged, note("clickStart"));
        connect(this, &TimelineRuler::sigSingleClickEndFrameChanged, note("clickEnd"));
        connect(this, &TimelineRuler::StartFramesChanged, note("start"));
        connect(this, &TimelineRuler::EndFramesChanged, note("end"));
        connect(this, &TimelineRuler::StartZoomChanged, note("startZoom"));
        connect(this, &TimelineRuler::EndZoomChanged, note("endZoom"));
        connect(this, &TimelineRuler::ZoomChanged, note("zoom"));
        connect(this, &TimelineRuler::FramesChanged, [this](int f) { log << QString::number(f); });
        connect(this, &TimelineRuler::OffsetFramesChanged,
                [this](int f) { log << "offset" + QString::number(f); });
        connect(this, &TimelineRuler::sigRightClicked, [this](QPoint pt) {
            const QPoint at = mapFromGlobal(pt);
            log << QString("right%1,%2").arg(at.x()).arg(at.y());
        });
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
    // Of which the log keeps what the second press causes, so many milliseconds after the first.
    void DoubleClick(int pause = 0)
    {
        Press(50);
        Release(50);
        log.clear();
        if (pause > 0)
            QTest::qWait(pause);
        Mouse(QEvent::MouseButtonDblClick, 50, 5);
    }
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

struct Fit
{
    int frames, width;
};

// Clips of any length, as many short as long ones, on rulers of any width.
QVector<Fit> AnyFits()
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> exponent(0, 31);
    QVector<Fit> fits(3000);
    for (Fit& fit : fits) {
        fit.frames = int(std::exp2(exponent(random)) - 1) + 1;
        fit.width = int(random() % 16385);
    }
    return fits;
}

// Zooms between two segments round to either.
bool IsInASegment(float zoom)
{
    return std::any_of(std::begin(kSegments), std::end(kSegments),
                       [zoom](const Segment& s) { return s.from <= zoom && zoom <= s.to; });
}

// A ruler without its play head in sight, what it paints, and where its frames are.
struct PaintedScale
{
    Ruler ruler;
    const Segment* segment;
    int offset;
    double spacing; // of large ticks
    QImage image;
    PaintedScale(float zoom, int offsetFrames)
        : segment(std::find_if(std::begin(kSegments), std::end(kSegments),
                               [zoom](const Segment& s) { return zoom <= s.to; }))
        , offset(offsetFrames)
    {
        ruler.SetCurrentFrames(-1000000);
        ruler.SetOffsetFrames(offset);
        ruler.SetZoom(zoom);
        spacing = double(ruler.Frames2DurationF(segment->bigFrames));
        image = ruler.Picture();
    }
    double At(int tick, int framesPerTick) const
    {
        return (double(tick) * framesPerTick - offset) * spacing / segment->bigFrames;
    }
    // The first tick at or behind the left edge.
    int First(int framesPerTick) const { return (offset + framesPerTick - 1) / framesPerTick; }
    // Pixels of text from \a column to before \a end.
    int Ink(int column, int end) const
    {
        int inked = 0;
        for (; column < end; ++column) {
            for (int row = kHeight - 22; row < kHeight - 10; ++row)
                inked += image.pixelColor(column, row).red() < 128 &&
                         image.pixelColor(column, row).blue() > 200;
        }
        return inked;
    }
};

// A ruler with its play head at a frame, as a screen of a scale shows it behind a left margin.
struct ScaledRuler
{
    static constexpr int kPlayHead = 12;
    static constexpr double kPixelsPerFrame = 6.6;
    Ruler ruler;
    double scale;
    QImage image;
    ScaledRuler(double screenScale, int margin) : scale(screenScale)
    {
        ruler.layout()->setContentsMargins(margin, 0, 0, 0);
        ruler.layout()->activate();
        ruler.SetZoom(117);
        ruler.SetCurrentFrames(kPlayHead);
        ruler.SetCursorEnable(true);
        ruler.SetPointerBGColor(Qt::green);
        image = QImage(ruler.size() * scale, QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        ruler.render(&image);
        image = image.copy(image.rect().adjusted(qRound(margin * scale), 0, 0, 0));
    }
    QVector<int> Row(double y, const QColor& color) const
    {
        return Columns(image, int(y * scale), color);
    }
};

// Position2FramesF() has too few digits so far out.
double FrameUnder(const Ruler& ruler, int x)
{
    const float shown = float(x) - ruler.Frames2PositionF(ruler.OffsetFrames());
    return ruler.OffsetFrames() + double(shown * ruler.Duration2FramesF(1));
}

// Whether a value is as expected, give or take; says by how much it is not.
bool IsWithin(float most, double actual, double expected)
{
    const bool isWithin = std::abs(actual - expected) <= double(most);
    if (!isWithin)
        qWarning("%.9g instead of %.9g, give or take %g", actual, expected, double(most));
    return isWithin;
}

struct FarRuler : Ruler
{
    explicit FarRuler(float zoom)
    {
        SetZoom(zoom);
        SetOffsetFrames(20000000);
        SetCurrentFrames(20000000);
    }
};

constexpr int kPixelsPerFrame = 6;
struct SixPixelRuler : Ruler
{
    explicit SixPixelRuler(int frames)
    {
        SetZoom(120);
        SetTotalFrames(frames);
    }
};

struct AccessibleRuler : Ruler
{
    QAccessibleInterface* accessible;
    explicit AccessibleRuler(bool isView)
        : accessible(QAccessible::queryAccessibleInterface(isView ? view : this))
    {
        SetZoom(120);
        SetTotalFrames(100);
        SetCurrentFrames(30);
    }
};

// Of which some frames are out of sight at both ends, with all that it tells.
constexpr int kDoomedFrames = 54;
Ruler* DoomedRuler(QWidget* parent)
{
    auto* ruler = new Ruler(parent);
    ruler->SetSingalClickStartEndFrameChangeEnabled(true);
    ruler->SetTotalFrames(kDoomedFrames);
    ruler->SetZoom(120);
    ruler->SetOffsetFrames(10);
    return ruler;
}

// Keeps what of a widget is painted.
struct PaintWatch : QWidget
{
    QRegion painted;
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};

} // namespace

using Setter = std::function<void(Ruler&)>;
Q_DECLARE_METATYPE(Setter)

class TestRuler : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> m_stage;

    static void AddScalesAndMargins()
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
    static void AddZoomsAndOffsets()
    {
        QTest::addColumn<float>("zoom");
        QTest::addColumn<int>("offset");
        for (const Segment& segment : kSegments) {
            for (const float zoom : {segment.from, segment.from + 40.25F, segment.to})
                for (const int offset : {0, 7 * segment.bigFrames, 10000003})
                    QTest::addRow("%g at %d", double(zoom), offset) << zoom << offset;
        }
    }
    static void AddFarZooms()
    {
        QTest::addColumn<float>("zoom");
        for (const float zoom : {60.0F, 118.0F, 300.0F, 512.0F, 700.0F})
            QTest::addRow("%g", double(zoom)) << zoom;
    }
    static void AddWidgets()
    {
        QTest::addColumn<bool>("isView");
        QTest::newRow("the ruler") << false;
        QTest::newRow("its view") << true;
    }

private slots:
    void zoomOfANewRuler()
    {
        const Ruler ruler;
        QCOMPARE(ruler.Zoom(), 780.0F);
        QCOMPARE(ruler.MaxZoom(), 780.0F);
    }

    void scale_data()
    {
        QTest::addColumn<float>("zoom");
        QTest::addColumn<int>("bigFrames");
        QTest::addColumn<float>("spacing"); // of large ticks
        for (const Segment& segment : kSegments) {
            for (const float zoom : {segment.from, (segment.from + segment.to) / 2, segment.to})
                QTest::addRow("large ticks of %d frames, at %g", segment.bigFrames, double(zoom))
                    << zoom << segment.bigFrames << segment.pixels - (zoom - segment.from);
        }
        QTest::newRow("beyond the last") << 800.0F << 22500 << 10.0F;
        QTest::newRow("nearer to the first") << 120.4F << 5 << 29.6F;
    }
    void scale()
    {
        constexpr int offset = 10, shift = 3;
        QFETCH(float, zoom);
        QFETCH(int, bigFrames);
        QFETCH(float, spacing);
        Ruler ruler;
        ruler.SetOffsetFrames(offset);
        ruler.SetOffsetPosition(shift);
        ruler.SetZoom(zoom);
        QCOMPARE(ruler.Zoom(), zoom);
        QCOMPARE(ruler.Frames2DurationF(bigFrames), spacing);
        QCOMPARE(ruler.Duration2FramesF(100), 100 * bigFrames / spacing);
        QCOMPARE(ruler.Frames2PositionF(offset + 2 * bigFrames), 2 * spacing - shift);
        QCOMPARE(ruler.Position2FramesF(-shift), float(offset));
    }

    void zoomHalfWayToASegmentBecomesItsFirst()
    {
        Ruler ruler;
        ruler.SetZoom(120.5F);
        QCOMPARE(ruler.Zoom(), 121.0F);
        QCOMPARE(ruler.Frames2DurationF(25), 149.0F);
    }

    void fittingZoom_data()
    {
        QTest::addColumn<int>("frames");
        QTest::addColumn<int>("width");
        QTest::addColumn<float>("zoom");
        QTest::newRow("wider than the widest scale") << 5 << 151 << 0.0F;
        QTest::newRow("as wide as the widest scale") << 5 << 150 << 0.0F;
        QTest::newRow("no width") << 22500 << 0 << 780.0F;
        QTest::newRow("a negative width keeps the zoom") << 100 << -1 << 300.0F;
    }
    void fittingZoom()
    {
        QFETCH(int, frames);
        QFETCH(int, width);
        Ruler ruler;
        ruler.SetZoom(300);
        QTEST(ruler.FindZoom(frames, width), "zoom");
    }

    void fittingZoomFillsTheWidth()
    {
        Ruler ruler;
        for (const auto& [frames, width] : AnyFits()) {
            const float zoom = ruler.FindZoom(frames, width);
            const QString fit = QString("%1 frames on %2 pixels").arg(frames).arg(width);
            QVERIFY2(zoom >= 0 && zoom <= 780, qPrintable(fit));
            if (zoom == 0.0F || zoom == 780.0F || !IsInASegment(zoom))
                continue;
            ruler.SetZoom(zoom);
            const double filled = double(ruler.Frames2DurationF(frames));
            QVERIFY2(IsWithin(0.01F + 1e-4F * width, filled, width), qPrintable(fit));
        }
    }

    void adjustedZoomIsThatOfTheSlowSearch()
    {
        for (const auto& [frames, width] : AnyFits())
            QCOMPARE(TimelineRuler().ZoomFromWidthAndTotaleFramesF(width, frames),
                     SlowZoomFromWidth(width, frames));
    }

    // It wastes nothing of the width.
    void wholeQuotientKeepsTheStep()
    {
        Ruler ruler;
        ruler.SetZoom(0);
        const float before = ruler.Frames2DurationF(5);
        QCOMPARE(ruler.ZoomFromWidthAndTotaleFramesF(400, 48), 108);
        QCOMPARE(ruler.Frames2DurationF(5), before);
    }

    void borderOfTwoSegmentsFits()
    {
        const Ruler ruler;
        for (int frames = 1; frames < 2000; ++frames)
            QCOMPARE(ruler.FindZoom(frames, kPixelsPerFrame * frames), 120.0F);
    }

    void adjustedZoomOfOddSizes_data()
    {
        QTest::addColumn<int>("size");
        QTest::newRow("none") << 0;
        QTest::newRow("negative") << -1;
        QTest::newRow("smallest") << INT_MIN;
        QTest::newRow("greatest") << INT_MAX;
    }
    void adjustedZoomOfOddSizes()
    {
        QFETCH(int, size);
        const int zoom = TimelineRuler().ZoomFromWidthAndTotaleFramesF(size, size);
        QCOMPARE(qBound(0, zoom, 780), zoom);
    }

    void emptyTableHasNoScale()
    {
        Ruler ruler;
        ruler.RebuildRulerConvertor({});
        QCOMPARE(ruler.ZoomFromWidthAndTotaleFramesF(100, 100), 0);
        QCOMPARE(Columns(ruler.Picture(), 20, kTick), QVector<int>());
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

    void oddValuesStayFinite_data()
    {
        QTest::addColumn<float>("zoom");
        QTest::addColumn<float>("fps");
        QTest::addColumn<int>("offset");
        for (const float zoom : kOddZooms) {
            for (const float fps : {0.0F, 25.0F, kNaN, kInfinity}) {
                for (const int offset : {0, INT_MAX, INT_MIN})
                    QTest::addRow("%g, %g per second, from %d", double(zoom), double(fps), offset)
                        << zoom << fps << offset;
            }
        }
    }
    void oddValuesStayFinite()
    {
        QFETCH(float, zoom);
        QFETCH(float, fps);
        QFETCH(int, offset);
        Ruler ruler;
        ruler.SetZoom(zoom);
        ruler.SetFPS(fps);
        ruler.SetOffsetFrames(offset);
        ruler.SetOffsetPosition(offset / 2);
        for (const int value : {0, 1, INT_MAX, INT_MIN}) {
            const char* text = value == 0   ? "0"
                               : value == 1 ? "1"
                               : value > 0  ? "greatest"
                                            : "smallest";
            QVERIFY2(std::isfinite(ruler.Frames2PositionF(value)), text);
            QVERIFY2(std::isfinite(ruler.Position2FramesF(value)), text);
            QVERIFY2(std::isfinite(ruler.Frames2DurationF(value)), text);
            QVERIFY2(std::isfinite(ruler.Duration2FramesF(value)), text);
            ruler.SetCurrentFrames(value);
        }
        ruler.Picture();
        ruler.GetZoomAndScrollRulerOffsetPosition();
    }

    void oddZoomsPaintAtAnyWidth_data()
    {
        QTest::addColumn<float>("zoom");
        QTest::addColumn<int>("width");
        for (const float zoom : kOddZooms) {
            for (const int width : {0, kWidth, 16000})
                QTest::addRow("%g on %d pixels", double(zoom), width) << zoom << width;
        }
    }
    void oddZoomsPaintAtAnyWidth()
    {
        QFETCH(float, zoom);
        QFETCH(int, width);
        Ruler ruler;
        ruler.SetZoom(zoom);
        ruler.SetFPS(kInfinity);
        ruler.resize(width, kHeight);
        ruler.view->resize(width, kHeight);
        QImage image(std::max(width, 1), kHeight, QImage::Format_RGB32);
        image.fill(Qt::white);
        ruler.view->render(&image);
        QCOMPARE(Columns(image, 20, kTick).isEmpty(), width == 0);
    }

    void wheelEndsOddZooms_data()
    {
        QTest::addColumn<float>("zoom");
        for (const float zoom : kOddZooms)
            QTest::addRow("%g", double(zoom)) << zoom;
    }
    void wheelEndsOddZooms()
    {
        QFETCH(float, zoom);
        Ruler ruler;
        ruler.SetZoom(zoom);
        ruler.Wheel(100, 120, Qt::ControlModifier);
        const float zoomed = ruler.Zoom();
        QCOMPARE(qBound(0.0F, zoomed, 780.0F), zoomed);
    }

    void ticksStandAtTheirFrames_data() { AddZoomsAndOffsets(); }
    // On whole pixels, counted from a shift which has a fraction itself.
    void ticksStandAtTheirFrames()
    {
        QFETCH(float, zoom);
        QFETCH(int, offset);
        const PaintedScale scale(zoom, offset);
        const int bigFrames = scale.segment->bigFrames;
        const QPair<int, int> kinds[] = {{bigFrames, kHeight - 10}, {bigFrames / 5, kHeight - 6}};
        for (const auto& [perTick, row] : kinds) { // large ones, and all
            const QVector<int> columns = Columns(scale.image, row, kTick);
            int expected = 0;
            for (int tick = scale.First(perTick);; ++tick, ++expected) {
                const double x = scale.At(tick, perTick);
                if (x > kWidth - 1.5)
                    break;
                const bool found = std::any_of(columns.begin(), columns.end(),
                                               [x](int c) { return c <= x + 0.01 && c > x - 2; });
                QVERIFY2(found || x < 2, qPrintable(QString("no tick at %1").arg(x)));
            }
            QVERIFY(IsWithin(1, columns.size(), expected));
        }
    }

    void labelsStandAtEveryNthLargeTick_data() { AddZoomsAndOffsets(); }
    // Two pixels beside it, and nowhere else.
    void labelsStandAtEveryNthLargeTick()
    {
        QFETCH(float, zoom);
        QFETCH(int, offset);
        const PaintedScale scale(zoom, offset);
        const int perTick = scale.segment->bigFrames, spacing = int(scale.spacing);
        const int textWidth = QFontMetrics(qApp->font()).horizontalAdvance(gFrame2String(0, 25));
        int every = 1;
        while (1.5 * textWidth > every * spacing)
            every *= 2;
        for (int tick = scale.First(perTick); scale.At(tick, perTick) < kWidth - textWidth;
             ++tick) {
            const int x = int(scale.At(tick, perTick));
            const int inked = scale.Ink(x + 3, x + std::min(textWidth, spacing) - 3);
            if (tick % every == 0)
                QVERIFY2(inked > 3, qPrintable(QString("no label at tick %1").arg(tick)));
            else if (tick % every == every - 1 && scale.spacing * (every - 1) >= textWidth)
                QVERIFY2(inked == 0, qPrintable(QString("a label at tick %1").arg(tick)));
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
        if (s_updatePictures)
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

    void ticksAreOfOneWidth_data() { AddScalesAndMargins(); }
    void ticksAreOfOneWidth()
    {
        QFETCH(double, scale);
        QFETCH(int, width);
        QFETCH(int, margin);
        const ScaledRuler scaled(scale, margin);
        const QVector<int> ticks = scaled.Row(23.5, kTick);
        QCOMPARE(ticks.mid(0, width).last(), width - 1); // the first one is whole
        int run = 0, lines = 0;
        for (int i = 0; i < ticks.size(); ++i) {
            ++run;
            if (i + 1 < ticks.size() && ticks[i + 1] == ticks[i] + 1)
                continue;
            QVERIFY2(run == width || ticks[i] == scaled.image.width() - 1,
                     qPrintable(QString("%1 wide up to %2").arg(run).arg(ticks[i])));
            run = 0;
            ++lines;
        }
        // All but the one below the play head.
        QCOMPARE(lines, int((kWidth - margin) / ScaledRuler::kPixelsPerFrame));
    }

    void ticksAreOfOneHeight_data() { AddScalesAndMargins(); }
    void ticksAreOfOneHeight()
    {
        QFETCH(double, scale);
        QFETCH(int, width);
        QFETCH(int, margin);
        const ScaledRuler scaled(scale, margin);
        int bottom = 0;
        for (int y = 0; y < scaled.image.height(); ++y)
            bottom += scaled.image.pixelColor(width, y) == kTick; // beside the first tick
        QCOMPARE(bottom, width);
    }

    void playHeadIsOfTwoPixelsOverItsFrame_data() { AddScalesAndMargins(); }
    void playHeadIsOfTwoPixelsOverItsFrame()
    {
        QFETCH(double, scale);
        QFETCH(int, margin);
        const ScaledRuler scaled(scale, margin);
        const QVector<int> line = scaled.Row(22.5, Qt::green);
        QCOMPARE(line.size(), qRound(2 * scale));
        const double centre = (line.first() + line.last() + 1) / 2.0;
        const double frame = double(scaled.ruler.Frames2PositionF(ScaledRuler::kPlayHead)) * scale;
        QVERIFY(IsWithin(1.01F, centre, frame));
    }

    void repaintsOnlyThePlayHead()
    {
        PaintWatch watch;
        Ruler ruler;
        ruler.SetZoom(0);
        QVERIFY(QTest::qWaitForWindowExposed(&ruler));
        ruler.SetCurrentFrames(2); // at 60
        QCoreApplication::processEvents();
        ruler.SetEventFilter(&watch);
        ruler.SetCurrentFrames(10); // at 300
        QCoreApplication::processEvents();
        for (const int x : {52, 60, 68, 292, 300, 308})
            QVERIFY2(watch.painted.contains(QPoint(x, 12)), qPrintable(QString::number(x)));
        for (const int x : {40, 80, 180, 280, 320})
            QVERIFY2(!watch.painted.contains(QPoint(x, 12)), qPrintable(QString::number(x)));
    }

    void sameFrameRepaintsNothing()
    {
        PaintWatch watch;
        Ruler ruler;
        ruler.SetCurrentFrames(10);
        QVERIFY(QTest::qWaitForWindowExposed(&ruler));
        QCoreApplication::processEvents();
        ruler.SetEventFilter(&watch);
        ruler.SetCurrentFrames(10);
        QCoreApplication::processEvents();
        QCOMPARE(watch.painted, QRegion());
    }

    void partsPaintAsTheWhole()
    {
        Ruler ruler;
        ruler.SetZoom(0);
        ruler.SetCurrentFrames(2); // at 60
        QImage parts = ruler.Picture();
        ruler.SetCurrentFrames(10); // at 300
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

    void wheelZoomKeepsTheFrameUnderThePointer_data() { AddFarZooms(); }
    void wheelZoomKeepsTheFrameUnderThePointer()
    {
        QFETCH(float, zoom);
        FarRuler ruler(zoom);
        const double before = FrameUnder(ruler, 250);
        for (const int turn : {120, 120, 40, -120, -240, -360}) {
            ruler.Wheel(250, turn, Qt::ControlModifier);
            QVERIFY(IsWithin(ruler.Duration2FramesF(1), FrameUnder(ruler, 250), before));
        }
        QVERIFY(ruler.Zoom() > zoom);
    }

    void zoomDragKeepsTheGrabbedFrame_data() { AddFarZooms(); }
    void zoomDragKeepsTheGrabbedFrame()
    {
        QFETCH(float, zoom);
        FarRuler ruler(zoom);
        const double grabbed = FrameUnder(ruler, 100);
        ruler.StartZoomAndScrollRuler();
        ruler.Move(100, 5);
        for (const QPoint at : {QPoint(130, 25), QPoint(300, -30), QPoint(20, 5)}) {
            ruler.Move(at.x(), at.y());
            QVERIFY(IsWithin(ruler.Duration2FramesF(1), FrameUnder(ruler, at.x()), grabbed));
        }
        ruler.doMouseButtonRelease();
    }

    void moveAfterAZoomDragDoesNothing()
    {
        Ruler ruler;
        ruler.StartZoomAndScrollRuler();
        ruler.Move(100, 5);
        ruler.Move(130, 25);
        ruler.doMouseButtonRelease();
        ruler.TakeLog();
        ruler.Move(200, 20);
        ruler.doMouseButtonRelease();
        QCOMPARE(ruler.TakeLog(), QString());
    }

    void wheelScrollsATenthOfTheWidth_data() { AddFarZooms(); }
    void wheelScrollsATenthOfTheWidth()
    {
        QFETCH(float, zoom);
        FarRuler ruler(zoom);
        const double before = FrameUnder(ruler, 0);
        ruler.Wheel(250, -120, {});
        QCOMPARE(ruler.Zoom(), zoom);
        QCOMPARE(ruler.TakeLog(), "offset" + QString::number(ruler.OffsetFrames()));
        QVERIFY(IsWithin(2 * ruler.Duration2FramesF(1), FrameUnder(ruler, 0),
                         before + double(ruler.Duration2FramesF(kWidth / 10))));
    }

    void smallestWheelStepsAddUp_data() { AddFarZooms(); }
    void smallestWheelStepsAddUp()
    {
        QFETCH(float, zoom);
        FarRuler ruler(zoom);
        const double before = FrameUnder(ruler, 0);
        for (int i = 0; i < 120; ++i)
            ruler.Wheel(250, -1, {}); // a third of a pixel
        QVERIFY(IsWithin(2 * ruler.Duration2FramesF(1), FrameUnder(ruler, 0),
                         before + double(ruler.Duration2FramesF(kWidth / 10))));
    }

    void dragBeyondTheEdgeScrollsToTheLastFrame()
    {
        SixPixelRuler ruler(200);
        ruler.Press(300);
        ruler.Move(kWidth + 100);
        QTRY_COMPARE(ruler.CurrentFrames(), 199);
        QTest::qWait(kThreeScrollSteps); // no further
        const float x = ruler.Frames2PositionF(199);
        QCOMPARE(qBound(kWidth - 9.0F, x, kWidth - 1.0F), x);
    }

    void dragBeyondTheEdgeScrollsBackToTheStart()
    {
        SixPixelRuler ruler(200);
        ruler.Press(300);
        ruler.SetOffsetFrames(100);
        ruler.Move(-100);
        QTRY_COMPARE(ruler.CurrentFrames(), 0);
        QCOMPARE(ruler.OffsetFrames(), 0);
    }

    void keysDoNothingInADrag()
    {
        SixPixelRuler ruler(200);
        ruler.Press(300);
        ruler.Move(0);
        QTest::keyClick(ruler.view, Qt::Key_Right);
        QTest::keyClick(ruler.view, Qt::Key_Minus);
        QCOMPARE(ruler.CurrentFrames(), 0);
        QCOMPARE(ruler.Zoom(), 120.0F);
    }

    void scrollingEndsWithTheDrag_data()
    {
        QTest::addColumn<Setter>("end");
        QTest::newRow("hidden") << Setter([](Ruler& r) { r.hide(); });
        QTest::newRow("disabled") << Setter([](Ruler& r) { r.setEnabled(false); });
        QTest::newRow("released") << Setter([](Ruler& r) { r.Release(kWidth + 100); });
        QTest::newRow("a dialog opens") << Setter([](Ruler&) { LostRelease::BehindDialog(); });
        QTest::newRow("released on a menu") << Setter([](Ruler&) { LostRelease::ToMenu(); });
    }
    void scrollingEndsWithTheDrag()
    {
        QFETCH(Setter, end);
        SixPixelRuler ruler(100000);
        ruler.Press(300);
        ruler.Move(kWidth + 100);
        QTRY_VERIFY(ruler.OffsetFrames() > 10);
        ruler.TakeLog();
        end(ruler);
        QCoreApplication::processEvents(); // told once the widget has been hidden
        const QString told = ruler.TakeLog();
        QVERIFY2(told.endsWith(" end"), qPrintable(told));
        const int still = ruler.OffsetFrames();
        QTest::qWait(kThreeScrollSteps);
        ruler.Move(200);
        QCOMPARE(ruler.TakeLog(), QString());
        QCOMPARE(ruler.OffsetFrames(), still);
    }

    void zoomingEndsWithTheDrag_data()
    {
        QTest::addColumn<Setter>("end");
        QTest::newRow("a dialog opens") << Setter([](Ruler&) { LostRelease::BehindDialog(); });
        QTest::newRow("released on a menu") << Setter([](Ruler&) { LostRelease::ToMenu(); });
    }
    void zoomingEndsWithTheDrag()
    {
        QFETCH(Setter, end);
        SixPixelRuler ruler(100000);
        ruler.Mouse(QEvent::MouseButtonPress, 60, 5, Qt::MiddleButton);
        end(ruler);
        QCoreApplication::processEvents();
        QVERIFY2(ruler.TakeLog().endsWith("endZoom"), qPrintable(ruler.log.join(' ')));
    }

    void whatShowsAsAWholeDoesNotScroll()
    {
        SixPixelRuler ruler(30);
        ruler.Press(300);
        ruler.Move(kWidth + 100);
        QTest::qWait(kThreeScrollSteps);
        QCOMPARE(ruler.CurrentFrames(), 29);
        QCOMPARE(ruler.OffsetFrames(), 0);
    }

    void deletedInSlot_data()
    {
        using namespace DeletedInSlot;
        QTest::addColumn<Make>("make");
        QTest::addColumn<Steps>("steps");
        QTest::addColumn<QString>("deletedIn"); // apart from after each step
        const Make makers[] = {
            [] { return DoomedRuler(nullptr); },
            [this] {
                m_stage = std::make_unique<QWidget>(); // mouse events go on to it
                m_stage->resize(kWidth, kHeight);
                m_stage->show();
                return DoomedRuler(m_stage.get());
            },
        };
        const auto on = [](const Setter& act) -> Step {
            return [act](QWidget* w) { act(static_cast<Ruler&>(*w)); };
        };
        const auto wheel = [on](Qt::KeyboardModifiers modifiers) {
            return on([modifiers](Ruler& r) { r.Wheel(100, -120, modifiers); });
        };
        const auto key = [on](int which) {
            return on([which](Ruler& r) {
                QKeyEvent event(QEvent::KeyPress, which, Qt::NoModifier);
                QCoreApplication::sendEvent(r.view, &event);
            });
        };
        const Step scrollToTheEnd = on([](Ruler& r) {
            const QPointer<Ruler> ruler(&r);
            Q_UNUSED(QTest::qWaitFor(
                [&] { return !ruler || ruler->CurrentFrames() == kDoomedFrames - 1; }));
        });
        const Step doubleClick = on([](Ruler& r) { r.Mouse(QEvent::MouseButtonDblClick, 60, 5); });
        // In an event loop, as a host has one: told in its next turn.
        const Step rightClick = [](QWidget* w) {
            QEventLoop loop;
            QTimer::singleShot(0, &loop, [&] {
                Press(60, Qt::RightButton)(w);
                loop.quit();
            });
            loop.exec();
        };
        const Step disable = [](QWidget* w) { w->window()->setEnabled(false); };
        const Step hide = [](QWidget* w) { w->hide(); };
        const Step beginZoom = on([](Ruler& r) { r.StartZoomAndScrollRuler(); });
        const Step endZoom = on([](Ruler& r) { r.doMouseButtonRelease(); });
        const auto row = [&makers](const char* name, const Steps& steps, const QString& deletedIn) {
            QTest::addRow("%s, window", name) << makers[0] << steps << deletedIn;
            QTest::addRow("%s, within one", name) << makers[1] << steps << deletedIn;
        };
        const QString begun = "sigSingleClickStartFramesChanged sigSingleClickEndFrameChanged "
                              "StartFramesChanged ";
        const QString frame = "FramesChanged", offset = "OffsetFramesChanged";
        const QString click = begun + "EndFramesChanged FramesChanged FramesChanged";
        const QString shown = " CurrentFramesShown", moved = " OffsetShown";
        const QString zoomed = " ZoomShown" + moved;
        const QString zoom = "StartZoomChanged EndZoomChanged ZoomChanged ";
        row("drag", {Press(60), Move(200), Release(201)}, click + ' ' + frame + shown + shown);
        row("drag beyond the edge", {Press(60), Move(264), scrollToTheEnd},
            begun + (frame + ' ').repeated(3) + offset + ' ' + offset + shown.repeated(3) + moved +
                moved);
        row("double click", {Press(60), Release(60), doubleClick},
            click + ' ' + zoom + offset + shown + zoomed);
        row("middle drag",
            {Press(60, Qt::MiddleButton), Move(70, 25), Release(70, Qt::MiddleButton)},
            zoom + "ZoomChanged " + offset + ' ' + offset + " ZoomShown" + zoomed + moved);
        row("right click", {rightClick}, "sigRightClicked");
        row("wheel", {wheel({})}, offset + moved);
        row("wheel that zooms", {wheel(Qt::ControlModifier)}, zoom + offset + zoomed);
        row("key to a frame out of sight", {key(Qt::Key_End)},
            "StartFramesChanged EndFramesChanged FramesChanged OffsetFramesChanged" + shown +
                moved);
        row("key that zooms", {key(Qt::Key_Minus)}, zoom + offset + zoomed);
        row("disabled in a drag", {Press(60), disable}, click + shown);
        row("hidden in a drag", {Press(60), hide}, click + shown);
        row("hover of a drag that a call begins and ends",
            {Press(60), beginZoom, Move(80, 5), Move(90, 18), endZoom},
            click + ' ' + zoom + offset + shown + zoomed);
    }
    void deletedInSlot() { DeletedInSlot::CheckRow(); }

    void clickedFrame_data()
    {
        QTest::addColumn<bool>("rounds");
        QTest::addColumn<bool>("isLimited"); // to 20 to 40
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("frame");
        QTest::newRow("the first pixel of the second half") << false << false << 64 << 10;
        QTest::newRow("the last pixel") << false << false << 65 << 10;
        QTest::newRow("the end") << false << false << 399 << 59;
        QTest::newRow("rounded up") << true << false << 64 << 11;
        QTest::newRow("rounded down") << true << false << 62 << 10;
        QTest::newRow("below the limits") << true << true << 10 << 20;
        QTest::newRow("above the limits") << true << true << 390 << 40;
    }
    void clickedFrame()
    {
        QFETCH(bool, rounds);
        QFETCH(bool, isLimited);
        QFETCH(int, x);
        SixPixelRuler ruler(60);
        ruler.SetFrameRange(20, 40);
        ruler.SetIsLimitFrameRange(isLimited);
        ruler.SetFramesRound(rounds);
        ruler.Press(x);
        ruler.Release(x);
        QTEST(ruler.CurrentFrames(), "frame");
    }

    void limitsLeaveTheirFrames()
    {
        SixPixelRuler ruler(60);
        ruler.SetFrameRange(20, 40);
        ruler.SetCurrentFrames(10);
        QCOMPARE(ruler.AvailableTotaleFrames(), 60);
        ruler.SetIsLimitFrameRange(true);
        QCOMPARE(ruler.AvailableTotaleFrames(), 21);
        QCOMPARE(ruler.CurrentFrames(), 20);
        ruler.SetCurrentFrames(30);
        ruler.SetCurrentFrames(5);
        QCOMPARE(ruler.CurrentFrames(), 20);
        ruler.SetFrameRange(30, 10);
        QCOMPARE(ruler.CurrentFrames(), 30);
    }

    void keysMove_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("shift");
        QTest::addColumn<QString>("told");
        const auto row = [](const char* name, int from, int key, bool shift, const char* told) {
            QTest::newRow(name) << from << key << shift << told;
        };
        row("right", 30, Qt::Key_Right, false, "start 31 end");
        row("left with Shift", 31, Qt::Key_Left, true, "start 6 end");
        row("left with Shift, to the start", 6, Qt::Key_Left, true, "start 0 end");
        row("page down", 0, Qt::Key_PageDown, false, "start 5 end");
        row("end", 5, Qt::Key_End, false, "start 59 end");
        row("home", 59, Qt::Key_Home, false, "start 0 end");
        row("left of the start", 0, Qt::Key_Left, false, "");
    }
    void keysMove()
    {
        QFETCH(int, from);
        QFETCH(int, key);
        QFETCH(bool, shift);
        SixPixelRuler ruler(60);
        ruler.SetCurrentFrames(from);
        QTest::keyClick(ruler.view, Qt::Key(key), shift ? Qt::ShiftModifier : Qt::NoModifier);
        QTEST(ruler.TakeLog(), "told");
    }

    void keyBringsItsFrameIntoSight()
    {
        SixPixelRuler ruler(60);
        ruler.SetTotalFrames(100000);
        QTest::keyClick(ruler.view, Qt::Key_End);
        const float x = ruler.Frames2PositionF(99999);
        QCOMPARE(qBound(1.0F, x, kWidth - 1.0F), x);
    }

    void keyboardFocusShows_data()
    {
        QTest::addColumn<Qt::FocusReason>("reason");
        QTest::addColumn<QVector<int>>("columns"); // of a row within
        QTest::addColumn<int>("bottom");           // columns of the lowest row
        QTest::newRow("by the mouse") << Qt::MouseFocusReason << QVector<int>() << 0;
        QTest::newRow("by a key") << Qt::TabFocusReason << QVector<int>{0, 1, 598, 599} << 600;
    }
    void keyboardFocusShows()
    {
        QFETCH(Qt::FocusReason, reason);
        QWidget window;
        Ruler ruler(&window);
        ruler.setStyleSheet("QWidget { background: white; selection-background-color: magenta }");
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        ruler.view->clearFocus(); // which the window has given
        ruler.setFocus(reason);
        QVERIFY(ruler.hasFocus());
        const QImage image = ruler.Picture(1.5);
        QTEST(Columns(image, 20, Qt::magenta), "columns");
        QTEST(int(Columns(image, 41, Qt::magenta).size()), "bottom");
        ruler.view->clearFocus();
        QCOMPARE(Columns(ruler.Picture(), 0, Qt::magenta), QVector<int>());
    }

    void assistiveToolsRead_data() { AddWidgets(); }
    void assistiveToolsRead()
    {
        QFETCH(bool, isView);
        AccessibleRuler ruler(isView);
        QCOMPARE(ruler.accessible->role(), QAccessible::Slider);
        QCOMPARE(ruler.accessible->text(QAccessible::Name), QString("Ruler"));
        ruler.setAccessibleName("Time");
        QCOMPARE(ruler.accessible->text(QAccessible::Name), QString("Time"));
        QCOMPARE(ruler.accessible->text(QAccessible::Value), QString("00:00:01:05"));
        const QAccessibleValueInterface* value = ruler.accessible->valueInterface();
        QCOMPARE(value->currentValue().toInt(), 30);
        QCOMPARE(value->minimumValue().toInt(), 0);
        QCOMPARE(value->maximumValue().toInt(), 99);
    }

    void assistiveToolsMove_data() { AddWidgets(); }
    void assistiveToolsMove()
    {
        QFETCH(bool, isView);
        AccessibleRuler ruler(isView);
        QAccessibleValueInterface* value = ruler.accessible->valueInterface();
        value->setCurrentValue(40.0);
        QCOMPARE(ruler.TakeLog(), QString("start 40 end"));
        value->setCurrentValue(1000);
        QCOMPARE(ruler.TakeLog(), QString("start 99 offset65 end"));
        ruler.setEnabled(false);
        value->setCurrentValue(30);
        QCOMPARE(ruler.TakeLog(), QString());
    }

    void assistiveToolsStep_data() { AddWidgets(); }
    void assistiveToolsStep()
    {
        QFETCH(bool, isView);
        AccessibleRuler ruler(isView);
        QAccessibleActionInterface* actions = ruler.accessible->actionInterface();
        const QStringList names{actions->increaseAction(), actions->nextPageAction(),
                                actions->decreaseAction(), actions->previousPageAction()};
        for (const QString& name : names)
            actions->doAction(name);
        QCOMPARE(ruler.TakeLog(), QString("start 31 end start 36 end start 35 end start 30 end"));
        for (const QString& name : names)
            QVERIFY2(actions->actionNames().contains(name), qPrintable(name));
        ruler.setEnabled(false);
        QVERIFY(!actions->actionNames().contains(names.first()));
        actions->doAction(names.first());
        QCOMPARE(ruler.TakeLog(), QString());
    }

    void rightClick()
    {
        Ruler ruler;
        QTest::mouseClick(ruler.view, Qt::RightButton, {}, QPoint(33, 7));
        QCOMPARE(ruler.TakeLog(), QString("right33,7"));
    }

    void doubleClickFitsAll()
    {
        Ruler ruler;
        ruler.SetTotalFrames(1000);
        ruler.DoubleClick();
        QCOMPARE(ruler.Zoom(), ruler.FindZoom(1000, kWidth));
        QCOMPARE(ruler.TakeLog(), QString("startZoom zoom endZoom"));
    }

    void doubleClickFitsAllByAnotherTable()
    {
        Ruler ruler;
        ruler.SetTotalFrames(1000);
        ruler.RebuildRulerConvertor({{100, 130, 40}});
        ruler.DoubleClick();
        QCOMPARE(ruler.TakeLog(), QString("startZoom zoom endZoom"));
        const float filled = ruler.Frames2DurationF(1000);
        QVERIFY(IsWithin(1, double(filled), kWidth));
        ruler.DoubleClick(); // fits already
        QCOMPARE(ruler.TakeLog(), QString());
        QCOMPARE(ruler.Frames2DurationF(1000), filled);
    }

    void slowDoubleClickIsAPress()
    {
        Ruler ruler;
        ruler.SetTotalFrames(1000);
        ruler.DoubleClick(450);
        const QString told = ruler.TakeLog();
        QVERIFY2(told.startsWith("start "), qPrintable(told));
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
    s_updatePictures = arguments.removeAll("--update-pictures") > 0;
    TestRuler test;
    return QTest::qExec(&test, arguments);
}

#include "tst_ruler.moc"

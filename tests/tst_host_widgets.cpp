// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Widgets/GraphicsCard.h"
#include "Host/Widgets/LevelMeter.h"
#include "Host/Widgets/PictureView.h"
#include "tests/support/ScriptedPlayer.h"

#include <QtTest>
#include <QtWidgets>

#include <cmath>
#include <limits>
#include <memory>

using ScriptedPlayer::Frame;
using ScriptedPlayer::OnOtherThread;
using Drawing = PictureView::Drawing;
using Scale = PicturePlacement::Scale;

Q_DECLARE_METATYPE(PicturePlacement::Scale)

namespace {

const QColor kBackground(10, 20, 200);
constexpr double kSilence = -std::numeric_limits<double>::infinity();
#ifdef QT_NO_OPENGL
constexpr auto kNoOpenGL = "this Qt is built without OpenGL";
#else
constexpr auto kNoOpenGL = "no OpenGL here";
#endif

QImage Filled(const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

/// A picture in which every pixel has a colour of its own.
QImage Pattern(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x & 0xff, y & 0xff, (x >> 8) * 16 + (y >> 8)));
    }
    return image;
}

/// A view in a window of its own.
struct View : PictureView
{
    View(const QSize& viewSize, Drawing who)
    {
        setWindowFlag(Qt::FramelessWindowHint);
        SetDrawing(who);
        SetBackgroundColor(kBackground);
        resize(viewSize);
        show();
    }
    /// What is seen, in device pixels.
    QImage Seen()
    {
        if (!QTest::qWaitForWindowExposed(this))
            return {};
        QImage seen = grab().toImage().convertToFormat(QImage::Format_RGB32);
        seen.setDevicePixelRatio(1);
        return seen;
    }
};

bool IsNear(QRgb seen, const QColor& wanted, int tolerance = 3)
{
    return std::abs(qRed(seen) - wanted.red()) <= tolerance &&
           std::abs(qGreen(seen) - wanted.green()) <= tolerance &&
           std::abs(qBlue(seen) - wanted.blue()) <= tolerance;
}

QColor Mixed(const QColor& over, double alpha, const QColor& under)
{
    const auto mix = [alpha](int a, int b) { return qRound(a * alpha + b * (1 - alpha)); };
    return {mix(over.red(), under.red()), mix(over.green(), under.green()),
            mix(over.blue(), under.blue())};
}

NLEPlayerLevels Levels(float peak, float rms, int clipped = 0)
{
    NLEPlayerLevels levels{};
    levels.channels = 2;
    for (int channel = 0; channel < levels.channels; ++channel) {
        levels.peak[channel] = peak;
        levels.rms[channel] = rms;
    }
    levels.clipped[1] = clipped;
    return levels;
}

/// A meter whose clock stands until the test moves it.
struct Meter : LevelMeter
{
    std::shared_ptr<std::int64_t> now = std::make_shared<std::int64_t>(5000);

    explicit Meter(Qt::Orientation direction = Qt::Vertical)
        : Meter(std::make_shared<std::int64_t>(5000), direction)
    {
    }
    Meter(const std::shared_ptr<std::int64_t>& time, Qt::Orientation direction)
        : LevelMeter([time] { return *time; }, direction), now(time)
    {
    }
};

} // namespace

#define VERIFY_COLOR(seen, wanted)                                                                 \
    do {                                                                                           \
        const QRgb color = (seen);                                                                 \
        QVERIFY2(IsNear(color, wanted),                                                            \
                 qPrintable(QColor(color).name() + " is not " + QColor(wanted).name()));           \
    } while (false)

class tst_HostWidgets : public QObject
{
    Q_OBJECT

    /// A row for each way of drawing, of the same name.
    template <typename Fill>
    static void AddDrawings(const char* name, Fill fill)
    {
        for (const Drawing drawing : {Drawing::Painter, Drawing::OpenGL}) {
            const char* who = drawing == Drawing::Painter ? "painter" : "OpenGL";
            fill(QTest::newRow(qPrintable(QString("%1, %2").arg(name, who))) << drawing);
        }
    }
    static void AddDrawings()
    {
        QTest::addColumn<Drawing>("drawing");
        AddDrawings("each", [](QTestData&) {});
    }

private Q_SLOTS:
    void cleanup() { QCOMPARE(Frame::Alive(), 0); }
    void placement_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("view");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<Scale>("scale");
        QTest::addColumn<QRect>("target");
        QTest::addColumn<QRect>("visible");
        const QSize hd(1920, 1080);
        const auto add = [](const char* name, QSize picture, QSize view, double ratio, Scale scale,
                            QRect target, QRect visible) {
            QTest::newRow(name) << picture << view << ratio << scale << target << visible;
        };
        const QRect half(0, 0, 960, 540);
        add("fits exactly", hd, {960, 540}, 1, Scale::Fit, half, half);
        add("bars above and below", hd, {960, 640}, 1, Scale::Fit, {0, 50, 960, 540},
            {0, 50, 960, 540});
        add("bars at the sides, ratio 1.5", hd, {960, 360}, 1.5, Scale::Fit, {240, 0, 960, 540},
            {240, 0, 960, 540});
        add("enlarged, ratio 2", {10, 10}, {30, 20}, 2, Scale::Fit, {10, 0, 40, 40},
            {10, 0, 40, 40});
        add("fills, cut at the sides", hd, {320, 360}, 1.5, Scale::Fill, {-240, 0, 960, 540},
            {0, 0, 480, 540});
        add("fills, cut above and below", {100, 300}, {100, 100}, 2, Scale::Fill,
            {0, -200, 200, 600}, {0, 0, 200, 200});
        add("pixels, smaller than the view", {100, 50}, {100, 100}, 2, Scale::Pixels,
            {50, 75, 100, 50}, {50, 75, 100, 50});
        add("pixels, larger than the view", hd, {960, 540}, 1.5, Scale::Pixels,
            {-240, -135, 1920, 1080}, {0, 0, 1440, 810});
        add("a line stays a pixel high", {10000, 1}, {100, 100}, 1, Scale::Fit, {0, 49, 100, 1},
            {0, 49, 100, 1});
        add("an odd view, ratio 1.5", {64, 64}, {33, 33}, 1.5, Scale::Pixels, {-7, -7, 64, 64},
            {0, 0, 50, 50});
        add("no picture", {}, {100, 100}, 1, Scale::Fit, {}, {});
        add("no view", hd, {0, 100}, 1, Scale::Fill, {}, {});
    }
    void placement()
    {
        QFETCH(QSize, picture);
        QFETCH(QSize, view);
        QFETCH(double, ratio);
        QFETCH(Scale, scale);
        QFETCH(QRect, visible);
        const PicturePlacement placement(picture, view, ratio, scale);
        QTEST(placement.Target(), "target");
        QCOMPARE(placement.Visible(), visible);
        if (placement.IsEmpty()) {
            QCOMPARE(placement.ToPicture({5, 5}), QPointF());
            return;
        }
        const QRectF target(placement.Target());
        QCOMPARE(placement.ToPicture(target.topLeft() / ratio), QPointF(0, 0));
        QCOMPARE(placement.ToPicture(target.bottomRight() / ratio),
                 QPointF(picture.width(), picture.height()));
        const QPointF beyond(picture.width() * 1.25, picture.height() * -0.5);
        QCOMPARE(placement.ToPicture(placement.ToView(beyond)), beyond);
        QCOMPARE(placement.ViewRect().center() * ratio, target.center());
        QVERIFY(QRectF(QPointF(), picture).contains(placement.VisibleSource()));
    }

    // Each pixel of a frame's valid part is a device pixel, and none of its margin.
    void pixelForPixel_data()
    {
        QTest::addColumn<Drawing>("drawing");
        QTest::addColumn<QRect>("valid");
        const auto add = [](const char* name, QRect valid) {
            AddDrawings(name, [valid](QTestData& row) { row << valid; });
        };
        add("all of the frame", {0, 0, 90, 70});
        add("margins all round", {7, 5, 40, 30});
        add("larger than the view", {1, 0, 89, 70});
    }
    void pixelForPixel()
    {
        QFETCH(Drawing, drawing);
        QFETCH(QRect, valid);
        if (drawing == Drawing::OpenGL && FindGraphicsCard() == GraphicsCard::None)
            QSKIP(kNoOpenGL);
        const QImage pattern = Pattern({90, 70});
        View view({60, 50}, drawing);
        QCOMPARE(view.UsesOpenGL(), drawing == Drawing::OpenGL);
        view.SetScale(Scale::Pixels);
        QVERIFY(view.ShowFrame(MakeCom<Frame>(pattern, valid)));
        const QImage seen = view.Seen();
        const PicturePlacement placement = view.Placement();
        QCOMPARE(seen.size(), placement.ViewSize());
        QCOMPARE(placement.Target().size(), valid.size());
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x) {
                const QPoint at = QPoint(x, y) - placement.Target().topLeft();
                const bool isInside = QRect(QPoint(), valid.size()).contains(at);
                QCOMPARE(QColor(seen.pixel(x, y)),
                         isInside ? QColor(pattern.pixel(at + valid.topLeft())) : kBackground);
            }
        }
    }

    void scaled_data()
    {
        QTest::addColumn<Drawing>("drawing");
        QTest::addColumn<Scale>("scale");
        QTest::addColumn<QSize>("picture");
        const auto add = [](const char* name, Scale scale, QSize picture) {
            AddDrawings(name, [=](QTestData& row) { row << scale << picture; });
        };
        add("enlarged to fit", Scale::Fit, {40, 20});
        add("shrunk to fit", Scale::Fit, {800, 1200});
        add("enlarged to fill", Scale::Fill, {40, 20});
        add("shrunk to fill", Scale::Fill, {600, 1200});
    }
    // A quarter of the picture's each has its colour, wherever it comes to stand.
    void scaled()
    {
        QFETCH(Drawing, drawing);
        QFETCH(Scale, scale);
        QFETCH(QSize, picture);
        if (drawing == Drawing::OpenGL && FindGraphicsCard() == GraphicsCard::None)
            QSKIP(kNoOpenGL);
        const QColor colors[] = {Qt::red, Qt::green, Qt::yellow, Qt::white};
        QImage image = Filled(picture, Qt::black);
        QVector<QPointF> centers;
        {
            QPainter painter(&image);
            for (int i = 0; i < 4; ++i) {
                const QRect quarter(
                    QPoint(i % 2 * picture.width() / 2, i / 2 * picture.height() / 2), picture / 2);
                painter.fillRect(quarter, colors[i]);
                // Towards the middle, which no scale cuts off.
                centers << QRectF(image.rect()).center() * 0.7 + QRectF(quarter).center() * 0.3;
            }
        }
        View view({100, 100}, drawing);
        view.SetScale(scale);
        view.ShowPicture(image);
        const QImage seen = view.Seen();
        for (int i = 0; i < 4; ++i) {
            const QPointF at = view.ToView(centers[i]) * view.devicePixelRatioF();
            VERIFY_COLOR(seen.pixel(at.toPoint()), colors[i]);
        }
        const bool hasBars = scale == Scale::Fit;
        VERIFY_COLOR(seen.pixel(0, 0), hasBars ? kBackground : colors[0]);
        VERIFY_COLOR(seen.pixel(seen.width() - 1, seen.height() - 1),
                     hasBars ? kBackground : colors[3]);
    }

    void transparency_data() { AddDrawings(); }
    void transparency()
    {
        QFETCH(Drawing, drawing);
        if (drawing == Drawing::OpenGL && FindGraphicsCard() == GraphicsCard::None)
            QSKIP(kNoOpenGL);
        View view({64, 76}, drawing); // bars: the squares count from the picture's corner
        const QColor red(255, 0, 0);
        QColor veil(red);
        veil.setAlpha(64);
        view.ShowPicture(Filled({16, 16}, veil));
        const QImage checkered = view.Seen();
        const int side = qRound(kCheckerSide * view.devicePixelRatioF());
        const QPoint first = view.Placement().Target().topLeft() + QPoint(side / 2, side / 2);
        VERIFY_COLOR(checkered.pixel(first), Mixed(red, 64 / 255.0, QColor(kCheckerLight)));
        VERIFY_COLOR(checkered.pixel(first + QPoint(side, 0)),
                     Mixed(red, 64 / 255.0, QColor(kCheckerDark)));
        VERIFY_COLOR(checkered.pixel(first + QPoint(side, side)),
                     Mixed(red, 64 / 255.0, QColor(kCheckerLight)));
        view.SetCheckerboard(false);
        VERIFY_COLOR(view.Seen().pixel(first), Mixed(red, 64 / 255.0, kBackground));
    }

    // The black that stands behind transparent pixels does not darken the edge beside them.
    void edges_data() { AddDrawings(); }
    void edges()
    {
        QFETCH(Drawing, drawing);
        if (drawing == Drawing::OpenGL && FindGraphicsCard() == GraphicsCard::None)
            QSKIP(kNoOpenGL);
        View view({64, 64}, drawing);
        view.SetCheckerboard(false);
        view.SetBackgroundColor(Qt::white);
        QImage image = Filled({8, 8}, Qt::transparent);
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 4; ++x)
                image.setPixel(x, y, qRgb(255, 255, 255));
        }
        view.ShowPicture(image);
        const QImage seen = view.Seen();
        for (int x = 0; x < seen.width(); ++x)
            VERIFY_COLOR(seen.pixel(x, seen.height() / 2), QColor(Qt::white));
    }

    // Far from 1:1 each pixel still counts.
    void shrunkFar_data() { AddDrawings(); }
    void shrunkFar()
    {
        QFETCH(Drawing, drawing);
        if (drawing == Drawing::OpenGL && FindGraphicsCard() == GraphicsCard::None)
            QSKIP(kNoOpenGL);
        QImage stripes = Filled({512, 512}, Qt::black);
        for (int x = 0; x < stripes.width(); x += 4) { // a quarter of them is white
            for (int y = 0; y < stripes.height(); ++y)
                stripes.setPixel(x, y, qRgb(255, 255, 255));
        }
        View view({32, 32}, drawing);
        view.ShowPicture(stripes);
        const QImage seen = view.Seen();
        const int middle = seen.height() / 2;
        for (int x = 2; x < seen.width() - 2; ++x)
            QVERIFY2(IsNear(seen.pixel(x, middle), QColor(64, 64, 64), 24),
                     qPrintable(QColor(seen.pixel(x, middle)).name()));
    }

    void safeAreas_data() { AddDrawings(); }
    void safeAreas()
    {
        QFETCH(Drawing, drawing);
        if (drawing == Drawing::OpenGL && FindGraphicsCard() == GraphicsCard::None)
            QSKIP(kNoOpenGL);
        View view({400, 200}, drawing);
        view.ShowPicture(Filled({40, 20}, Qt::black));
        const auto columns = [&view] {
            const QImage seen = view.Seen();
            QVector<int> bright;
            for (int x = 0; x < seen.width() / 2; ++x) {
                if (qGray(seen.pixel(x, seen.height() / 2)) > 100)
                    bright << x;
            }
            return bright;
        };
        QCOMPARE(columns(), QVector<int>());
        view.SetSafeAreas(true);
        const int width = view.Placement().ViewSize().width();
        const int line = qMax(1, qRound(view.devicePixelRatioF()));
        QVector<int> wanted; // 3.5 % and 5 % from the edge
        for (const double margin : {0.035, 0.05}) {
            for (int i = 0; i < line; ++i)
                wanted << qRound(width * margin) + i;
        }
        QCOMPARE(columns(), wanted);
    }

    void framesAreNotCopied()
    {
        const auto frame = MakeCom<Frame>(Pattern({64, 32}), QRect(3, 2, 50, 20));
        std::uint8_t* pixels = nullptr;
        frame->GetData(&pixels);
        const std::uint8_t* first = pixels + std::ptrdiff_t(2 * 64 + 3) * 4;
        View view({64, 32}, Drawing::Painter);
        QVERIFY(view.ShowFrame(frame));
        QVERIFY(view.Picture().constBits() == first);
        view.Seen();
        QVERIFY(view.Picture().constBits() == first);
    }

    void refusedFrames_data()
    {
        QTest::addColumn<QImage>("image");
        QTest::addColumn<QRect>("valid");
        QTest::addColumn<int>("memory");
        const QImage image = Pattern({8, 8});
        QTest::newRow("not prepared") << QImage() << QRect(0, 0, 8, 8) << int(NLEMemory_System);
        QTest::newRow("nothing valid") << image << QRect(4, 4, 0, 4) << int(NLEMemory_System);
        QTest::newRow("valid outside") << image << QRect(8, 0, 8, 8) << int(NLEMemory_System);
        QTest::newRow("other memory") << image << image.rect() << int(NLEMemory_OpenCL);
    }
    void refusedFrames()
    {
        QFETCH(QImage, image);
        QFETCH(QRect, valid);
        QFETCH(int, memory);
        View view({8, 8}, Drawing::Painter);
        view.ShowPicture(Filled({8, 8}, Qt::red));
        const auto frame = MakeCom<Frame>(image, valid);
        frame->memory = memory;
        QVERIFY(!view.ShowFrame(frame));
        QVERIFY(!view.ShowFrame(nullptr));
        VERIFY_COLOR(view.Seen().pixel(4, 4), QColor(Qt::red));
    }

    void newestWins()
    {
        constexpr int count = 100;
        View view({8, 8}, Drawing::Painter);
        QSignalSpy changed(&view, &PictureView::PictureChanged);
        OnOtherThread([&view] {
            for (int i = 1; i <= count; ++i)
                view.ShowFrame(MakeCom<Frame>(Filled({8, 8}, QColor(i, 0, 0))));
        });
        QCOMPARE(Frame::Alive(), 1); // the one that waits
        QVERIFY(view.Picture().isNull());
        QTRY_COMPARE(changed.size(), 1);
        QCOMPARE(qRed(view.Picture().pixel(0, 0)), count);
        QCOMPARE(view.ReplacedPictures(), count - 1);
        view.Seen();
        // From many threads at once; nothing may be lost but what is replaced.
        std::vector<std::thread> threads;
        for (int thread = 0; thread < 4; ++thread) {
            threads.emplace_back([&view] {
                for (int i = 0; i < count; ++i)
                    view.ShowFrame(MakeCom<Frame>(Filled({8, 8}, Qt::blue)));
            });
        }
        for (std::thread& thread : threads)
            thread.join();
        QTRY_COMPARE(changed.size(), 2);
        QCOMPARE(Frame::Alive(), 1);
        view.ShowPicture({});
        QCOMPARE(Frame::Alive(), 0);
    }

    void viewSignals()
    {
        View view({100, 100}, Drawing::Painter);
        view.ShowPicture(Pattern({200, 100}));
        QSignalSpy scale(&view, &PictureView::ScaleChanged);
        QSignalSpy placement(&view, &PictureView::PlacementChanged);
        QSignalSpy checkerboard(&view, &PictureView::CheckerboardChanged);
        view.SetScale(Scale::Fit);
        view.SetCheckerboard(true);
        QVERIFY(scale.isEmpty() && placement.isEmpty() && checkerboard.isEmpty());
        QVERIFY(view.setProperty("scale", QVariant::fromValue(Scale::Fill)));
        QVERIFY(view.setProperty("checkerboard", false));
        QCOMPARE(scale.size(), 1);
        QCOMPARE(placement.size(), 1);
        QCOMPARE(checkerboard.size(), 1);
        view.resize(50, 100);
        QTRY_COMPARE(placement.size(), 2);
        view.ShowPicture(Filled({200, 100}, Qt::red)); // of the same size
        QCOMPARE(placement.size(), 2);
        QCOMPARE(view.accessibleName(), QString("Picture"));
    }

    void ballistics_data()
    {
        QTest::addColumn<int>("after"); // milliseconds since -6 dB with an RMS of -26 dB
        QTest::addColumn<double>("peak");
        QTest::addColumn<double>("held");
        QTest::addColumn<double>("rms");
        QTest::newRow("at once") << 0 << -6.0 << -6.0 << -26.0;
        QTest::newRow("half a second") << 500 << -16.0 << -6.0 << -36.0;
        QTest::newRow("the hold ends") << 1500 << -36.0 << -6.0 << -56.0;
        QTest::newRow("the held peak falls") << 2500 << -56.0 << -26.0 << -76.0;
    }
    void ballistics()
    {
        QFETCH(int, after);
        QFETCH(double, peak);
        QFETCH(double, held);
        QFETCH(double, rms);
        const auto level = [](double decibels) { return float(std::pow(10, decibels / 20)); };
        Meter meter;
        QCOMPARE(meter.Peak(0), kSilence);
        meter.SetLevels(Levels(level(-6), level(-26)));
        *meter.now += after;
        meter.SetLevels(Levels(0, 0)); // silence pulls nothing down
        const auto isClose = [](double seen, double wanted) {
            return std::abs(seen - wanted) < 0.01;
        };
        QVERIFY2(isClose(meter.Peak(1), peak), qPrintable(QString::number(meter.Peak(1))));
        QVERIFY2(isClose(meter.HeldPeak(1), held), qPrintable(QString::number(meter.HeldPeak(1))));
        QVERIFY2(isClose(meter.Rms(1), rms), qPrintable(QString::number(meter.Rms(1))));
        meter.SetLevels(Levels(level(-3), level(-9))); // louder shows at once
        QVERIFY(isClose(meter.Peak(0), -3) && isClose(meter.HeldPeak(0), -3));
        QCOMPARE(meter.Peak(2), kSilence);
    }

    void clipMark()
    {
        Meter meter;
        meter.SetScaleVisible(false);
        meter.resize(40, 100);
        meter.show();
        QSignalSpy clipped(&meter, &LevelMeter::ClippedChanged);
        QSignalSpy cleared(&meter, &LevelMeter::ClippingCleared);
        const auto markColor = [&meter] {
            // Of the second channel; a system may have made the window wider.
            const QPoint place(meter.width() * 5 / 8, 4);
            return QColor(meter.grab().toImage().pixel(place * meter.devicePixelRatioF()));
        };
        const QColor without = markColor();
        QTest::mouseClick(&meter, Qt::LeftButton); // nothing to clear
        meter.SetLevels(Levels(1.0F, 0.5F));       // full scale is not beyond it
        QVERIFY(!meter.IsClipped());
        meter.SetLevels(Levels(1.5F, 0.5F, 3));
        *meter.now += 100000;
        meter.SetLevels(Levels(0, 0, 3));
        QVERIFY(meter.IsClipped());
        QVERIFY(markColor() != without);
        QTest::mouseClick(&meter, Qt::LeftButton);
        meter.SetLevels(Levels(0, 0, 3)); // those were seen
        QVERIFY(!meter.IsClipped());
        QCOMPARE(markColor(), without);
        meter.SetLevels(Levels(0, 0, 4));
        QVERIFY(meter.IsClipped());
        QTest::keyClick(&meter, Qt::Key_Space);
        QVERIFY(!meter.IsClipped());
        QCOMPARE(clipped.size(), 4);
        QCOMPARE(cleared.size(), 2);
    }

    void meterRestsWhenNothingMoves()
    {
        Meter meter;
        meter.SetLevels(Levels(0, 0));
        QVERIFY(!meter.IsMoving());
        meter.SetLevels(Levels(0.5F, 0.1F));
        QVERIFY(meter.IsMoving());
        *meter.now += 1600 + 3 * 1000; // hold, and the fall to -60 dB
        QTRY_VERIFY(!meter.IsMoving());
    }

    void meterLengths_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<int>("channels");
        QTest::addColumn<bool>("isDark");
        QTest::newRow("upright, dark") << Qt::Vertical << 2 << true;
        QTest::newRow("upright, light") << Qt::Vertical << 1 << false;
        QTest::newRow("lying, dark") << Qt::Horizontal << 8 << true;
        QTest::newRow("lying, light") << Qt::Horizontal << 6 << false;
    }
    // The bar of -30 dB ends in the middle of the scale from -60 to 0 dB.
    void meterLengths()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(int, channels);
        QFETCH(bool, isDark);
        Meter meter(orientation);
        meter.setPalette(isDark ? QPalette(Qt::white, Qt::black, Qt::gray, Qt::darkGray, Qt::gray,
                                           Qt::white, Qt::black)
                                : QPalette(Qt::black, Qt::white, Qt::gray, Qt::darkGray, Qt::gray,
                                           Qt::black, Qt::white));
        meter.SetScaleVisible(false);
        meter.resize(orientation == Qt::Vertical ? QSize(80, 211) : QSize(211, 80));
        meter.show();
        NLEPlayerLevels levels{};
        levels.channels = channels;
        levels.peak[channels - 1] = float(std::pow(10, -30 / 20.0));
        meter.SetLevels(levels);
        const QImage seen = meter.grab().toImage();
        // Along the last channel's bar, from the loud end.
        const auto at = [&](double along) {
            const double across = 80 - 80.0 / channels / 2;
            const QPointF point =
                orientation == Qt::Vertical ? QPointF(across, along) : QPointF(211 - along, across);
            return seen.pixelColor((point * seen.devicePixelRatioF()).toPoint());
        };
        const double middle = 7 + 2 + (211 - 4 - 7) / 2.0;
        QVERIFY(at(middle - 4) == at(12));
        QVERIFY(at(middle + 4).green() != at(middle - 4).green());
        QVERIFY(at(middle + 4).green() > at(middle + 4).red() + 20);
        QCOMPARE(at(12).lightness() < 128, isDark);
    }
};

QTEST_MAIN(tst_HostWidgets)
#include "tst_host_widgets.moc"

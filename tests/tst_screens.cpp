// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalUtils.h"
#include "CommonLib/StringOperation.h"
#include "CommonLib/TimelineRuler.h"
#include "CommonLib/externalapi/DesktopMgr.h"
#include "CommonLib/externalapi/FramelessShadow.h"
#include "CommonLib/externalapi/PixelRatio.h"
#include "CommonLib/externalapi/PixelRatio_p.h"
#include "CommonLib/externalapi/ScreenResolution.h"
#include "CommonLib/externalapi/TimelinePosition.h"
#include "tests/support/LogCapture.h"

#include <QScreen>
#include <QtTest>

#include <cmath>
#include <limits>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

class TestScreens : public QObject
{
    Q_OBJECT

    QStringList m_firstLines; // of the log, from where the ratio is found

private slots:
    void initTestCase()
    {
        LogCapture log;
        gGetDevicePixelRatio(nullptr);
        m_firstLines = log.Take();
    }

    void areaClasses_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("expected");
        // Both ends of every class, as areas one pixel high.
        const QVector<QPair<int, int>> ends = {
            {1, 2},        {250000, 2},   {250001, 1},   {479999, 1},   {480000, 2},
            {767999, 2},   {768000, 3},   {786431, 3},   {786432, 4},   {983039, 4},
            {983040, 5},   {995327, 5},   {995328, 6},   {1295999, 6},  {1296000, 7},
            {1310719, 7},  {1310720, 8},  {1439999, 8},  {1440000, 9},  {1763999, 9},
            {1764000, 10}, {2073599, 10}, {2073600, 11}, {2764799, 11}, {2764800, 13},
            {4095999, 13}, {4096000, 14}, {5242879, 14}, {5242880, 15}, {6998399, 15},
            {6998400, 16}, {6998401, 0},  {7387200, 0},  {7387201, 17}, {INT_MAX, 17}};
        for (const auto& [area, type] : ends)
            QTest::addRow("%d pixels", area) << area << 1 << type;
        QTest::newRow("area beyond 32 bits") << INT_MAX << INT_MAX << 17;
        QTest::newRow("QHD") << 2560 << 1440 << 13;
        QTest::newRow("no width") << 0 << 1080 << 0;
        QTest::newRow("negative sides") << -1920 << -1080 << 0;
    }
    void areaClasses()
    {
        QFETCH(int, width);
        QFETCH(int, height);
        QTEST(ScreenResolution::GetScreenRangeTypeFrom(width, height), "expected");
    }

    void pixelRatios_data()
    {
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<double>("expected");
        const auto row = [](const char* name, double scale, int width, int height,
                            double expected) {
            QTest::newRow(name) << scale << width << height << expected;
        };
        row("Full HD at 150 %", 1.5, 1920, 1080, 1.5);
        row("laptop 1366 x 768", 1.0, 1366, 768, 1.0);
        row("low 1280 x 600", 1.0, 1280, 600, 1.0);
        row("Full HD", 1.0, 1920, 1080, 1.0);
        row("Full HD laptop at 125 %", 1.25, 1920, 1080, 1.25);
        row("just above 125 %", 1.26, 3840, 2160, 1.0);
        row("just above 100 %", 1.01, 1920, 1080, 1.25);
        row("just below rounding up", 1.374, 3840, 2160, 1.0);
        row("just rounding up", 1.375, 3840, 2160, 2.0);
        row("laptop 1600 x 900 at 125 %", 1.25, 1600, 900, 1.25);
        row("laptop 1366 x 768 at 125 %", 1.25, 1366, 768, 1.0);
        row("laptop 1440 x 900", 1.0, 1440, 900, 1.0);
        row("display 1280 x 1024", 1.0, 1280, 1024, 1.0);
        row("display 1680 x 1050", 1.0, 1680, 1050, 1.0);
        row("display 1920 x 1200 at 125 %", 1.25, 1920, 1200, 1.25);
        row("QHD", 1.0, 2560, 1440, 1.0);
        row("QHD at 150 %", 1.5, 2560, 1440, 2.0);
        row("laptop 2560 x 1600 at 200 %", 2.0, 2560, 1600, 2.0);
        row("laptop 2880 x 1800 at 200 %", 2.0, 2880, 1800, 2.0);
        row("laptop 3024 x 1964 at 200 %", 2.0, 3024, 1964, 2.0);
        row("laptop 2256 x 1504 at 150 %", 1.5, 2256, 1504, 1.75);
        row("laptop 3000 x 2000 at 200 %", 2.0, 3000, 2000, 2.0);
        row("laptop 3200 x 1800 at 250 %", 2.5, 3200, 1800, 2.5);
        row("4K laptop at 300 %", 3.0, 3840, 2160, 3.0);
        row("4K display at 150 %", 1.5, 3840, 2160, 2.0);
        row("5K display at 200 %", 2.0, 5120, 2880, 2.0);
        row("8K display at 400 %", 4.0, 7680, 4320, 4.0);
        row("ultra-wide 3440 x 1440 at 125 %", 1.25, 3440, 1440, 1.25);
        row("portrait 1080 x 1920 at 200 %", 2.0, 1080, 1920, 1.0);
        row("no monitor", 0.0, 0, 0, 1.0);
        row("not a number", std::numeric_limits<double>::quiet_NaN(), 0, INT_MIN, 1.0);
        row("infinite", std::numeric_limits<double>::infinity(), 1920, 1080, 1.5);
    }
    void pixelRatios()
    {
        QFETCH(double, scale);
        QFETCH(int, width);
        QFETCH(int, height);
        int steps = 0;
        const double fixed = FixedPixelRatio(scale);
        const double ratio = FittingPixelRatio(fixed, width, height, [&](double) { ++steps; });
        QTEST(ratio, "expected");
        // From the first ratio to the last in quarters; the one of the low monitor ends below 1.
        if (ratio != 1.0)
            QCOMPARE(steps, int((fixed - ratio) * 4));
    }

    void otherMonitors()
    {
        QCOMPARE(PixelRatioOn(1.5, 1.5, 1.0), 1.0);
        QCOMPARE(PixelRatioOn(1.0, 1.0, 2.0), 2.0);
        QCOMPARE(PixelRatioOn(1.5, 0.0, 1.0), 1.5);
    }

    void physicalSides_data()
    {
        QTest::addColumn<int>("side");
        for (const int side :
             {600,  720,  768,  800,  864,  900,  1024, 1080, 1200, 1280, 1360, 1440,
              1504, 1600, 1664, 1800, 1920, 1964, 2000, 2160, 2256, 2304, 2400, 2560,
              2880, 3000, 3024, 3072, 3200, 3440, 3840, 4096, 4320, 5120})
            QTest::addRow("%d pixels", side) << side;
    }
    // Qt's logical size is rounded; the mode that it comes from is found all the same.
    void physicalSides()
    {
        QFETCH(int, side);
        for (int percent = 100; percent <= 400; ++percent) {
            const double scale = percent / 100.0;
            const int found = PhysicalSide(qRound(side / scale), scale);
            const QString values = QString("%1 at %2 %").arg(found).arg(percent);
            QVERIFY2(found == side, qPrintable(values));
        }
    }

    void physicalSidesOfOddModes()
    {
        QCOMPARE(PhysicalSide(qRound(1366 / 1.25), 1.25), 1366);
        QCOMPARE(PhysicalSide(701, 1.0), 701);
        QCOMPARE(PhysicalSide(1, 4.0), 4);
    }

    void screensAreThoseOfQt()
    {
        QVector<ScreenResolution::ScreenInfo> infos(7);
        QVERIFY(ScreenResolution::GetScreenInfos(infos));
        const QList<QScreen*> screens = QGuiApplication::screens();
        QCOMPARE(infos.size(), screens.size());
        QCOMPARE(ScreenResolution::GetScreenCount(), screens.size());
        for (int i = 0; i < infos.size(); ++i) {
            const QRect logical = screens[i]->geometry();
            QCOMPARE(infos[i].logical, logical);
            const QSizeF physical = QSizeF(logical.size()) * screens[i]->devicePixelRatio();
            QVERIFY(std::abs(infos[i].physical.width() - physical.width()) < 2);
            QVERIFY(std::abs(infos[i].physical.height() - physical.height()) < 2);
            QCOMPARE(infos[i].scale, float(screens[i]->devicePixelRatio()));
            QCOMPARE(infos[i].primary, screens[i] == QGuiApplication::primaryScreen());
            QCOMPARE(ScreenResolution::GetScreenRangeType(infos[i].id),
                     ScreenResolution::GetScreenRangeTypeFrom(logical.width(), logical.height()));
        }
        QCOMPARE(ScreenResolution::GetScreenRangeType(99), 0);
    }

    void whatFollowsTheClass()
    {
        const int type = ScreenResolution::GetScreenRangeType(0);
        QVERIFY(ScreenResolution::AdapterMinimumSize(nullptr, type + 1));
        QVERIFY(!ScreenResolution::AdapterMinimumSize(nullptr, type));
        QCOMPARE(ScreenResolution::CheckEnableHightDPIScale(),
                 ScreenResolution::GetScreenCount() != 1 || type > 12);
        QVERIFY(ScreenResolution::EnableHightDPIResource());
    }

    void desktopKnowsTheScreenOfAPoint()
    {
        DesktopMgr* desktop = DesktopMgr::GetInstance();
        QCOMPARE(DesktopMgr::GetInstance(), desktop);
        QVERIFY(desktop->MainScreen());
        const QPoint center = QGuiApplication::primaryScreen()->geometry().center();
        QCOMPARE(desktop->ScreenWithPoint(center), desktop->MainScreen());
        QVERIFY(desktop->ScreenWithPoint({-100000, -100000}));
    }

    // CTest runs this program once more where the ratio is 2.
    void whatFollowsTheRatio()
    {
        const double scale = QGuiApplication::primaryScreen()->devicePixelRatio();
        const QSize size = QGuiApplication::primaryScreen()->geometry().size() * scale;
        const double expected =
            FittingPixelRatio(FixedPixelRatio(scale), size.width(), size.height(), [](double) {});
        QCOMPARE(gGetDevicePixelRatio(nullptr), float(expected));
        QCOMPARE(gGetDevicePixelRatioFor(nullptr), float(expected));
        QWidget widget;
        QCOMPARE(gGetDevicePixelRatioFor(&widget), float(scale));
        widget.show();
        QCOMPARE(gGetDevicePixelRatio(&widget), float(expected));
        const QString doubled = expected > 1 ? "_2x" : "";
        QCOMPARE(gGetResourcePathWithPixelRatio("/a.b/icon.dark.png"),
                 "/a.b/icon.dark" + doubled + ".png");
    }

    void styleSheetReachesTheRuler()
    {
        TimelineRuler ruler;
        ruler.setStyleSheet(gGetCommonLibStyles());
        ruler.ensurePolished();
        QVERIFY(gGetCommonLibStyles().contains("#CommonLib_TimelineRuler"));
        QCOMPARE(ruler.GetPointerBGColor(), QColor("#4da3ff"));
    }

    void textLengths()
    {
        const QFont font;
        const int width = StringOperation::GetTextTrueLenght(font, "Render");
        QCOMPARE(gGetRetranslateUiTextLenght(font, "Render", width - 1, 7), width + 7);
        QCOMPARE(gGetRetranslateUiTextLenght(font, "Render", width, 7), width);
    }

    void timelinePosition()
    {
        auto* timeline = reinterpret_cast<INLETimeline*>(this); // never looked into
        QCOMPARE(gGetTimelineCenterGlobalPos(nullptr), QPoint());
        QCOMPARE(gGetTimelineCenterGlobalPos(timeline),
                 QGuiApplication::primaryScreen()->geometry().center());
        QWidget window;
        window.setGeometry(100, 50, 400, 200);
        gSetMainWindow(nullptr, &window);
        QCOMPARE(gGetTimelineCenterGlobalPos(timeline), window.mapToGlobal(QPoint(199, 99)));
        QWidget view(&window);
        view.setGeometry(0, 100, 400, 100);
        TimelineRuler ruler(&view);
        window.show();
        QCOMPARE(gGetTimelineCenterGlobalPos(timeline), window.mapToGlobal(QPoint(199, 149)));
        gSetMainWindow(nullptr, nullptr);
    }

    void shadowIsHarmless()
    {
        gOpenFramelessWidgetShadow(nullptr, 0);
        gOpenFramelessWidgetShadow(reinterpret_cast<HWND>(quintptr(12345)), 0);
    }

#ifdef Q_OS_WIN
    void shadowMovesNothing()
    {
        QWidget window(nullptr, Qt::FramelessWindowHint);
        window.setGeometry(50, 60, 200, 100);
        window.show();
        const auto handle = reinterpret_cast<HWND>(window.winId());
        const auto area = [handle] {
            RECT edges = {};
            GetWindowRect(handle, &edges);
            return QRect(QPoint(edges.left, edges.top), QPoint(edges.right - 1, edges.bottom - 1));
        };
        gOpenFramelessWidgetShadow(handle, 0);
        QCOMPARE(GetWindowLongPtrW(handle, GWL_STYLE) & 0x82C00000, LONG_PTR(0x82C00000));
        QCOMPARE(area(), QRect(50, 60, 200, 100));
    }
#else
    // Eight pictures and four reaches, for a window manager that knows them and for no other.
    void shadowOnX11()
    {
        if (QGuiApplication::platformName() != "xcb")
            QSKIP("needs an X11 display, which the test screens_x11 has");
        const auto run = [](const QString& arguments) {
            QProcess process;
            process.start("xprop", arguments.split(' '));
            process.waitForFinished();
            return QString::fromUtf8(process.readAllStandardOutput());
        };
        const QString name = "_KDE_NET_WM_SHADOW";
        QWidget window;
        const auto shadow = [&] {
            gOpenFramelessWidgetShadow(reinterpret_cast<HWND>(window.winId()), 0);
            const QString text = run(QString("-id %1 -notype %2").arg(window.winId()).arg(name));
            return text.section(" = ", 1).trimmed().split(", ", Qt::SkipEmptyParts);
        };
        run("-root -f _NET_SUPPORTED 32a -set _NET_SUPPORTED _NET_WM_NAME");
        run("-root -f " + name + " 32c -set " + name + " 0"); // the name alone is no support
        QCOMPARE(shadow(), QStringList());
        run("-root -f _NET_SUPPORTED 32a -set _NET_SUPPORTED " + name);
        const QStringList words = shadow();
        QCOMPARE(words.mid(8), QStringList({"24", "24", "24", "24"}));
        QCOMPARE(QStringList(words.mid(0, 8)).removeDuplicates(), 0);
        QVERIFY(!words.contains("0"));
        QCOMPARE(shadow(), words); // shared
    }
#endif

    void ratioIsLogged()
    {
        const double scale = QGuiApplication::primaryScreen()->devicePixelRatio();
        QVector<ScreenResolution::ScreenInfo> infos;
        ScreenResolution::GetScreenInfos(infos);
        const QSize size = infos.first().physical.size();
        QStringList expected;
        const auto line = [&](int number, const char* format, auto... values) {
            expected << QString("-INFO- [gGetDevicePixelRatio]:  %1 - [CommonLib/externalapi(%2)]")
                            .arg(QString::asprintf(format, values...))
                            .arg(number);
        };
        line(97, "[monitor physical size]:(%d, %d) [app max size]:(%f, %f) fFixedRatio %f",
             size.width(), size.height(), 1280.0, 690.0, scale);
        const double fixed = FixedPixelRatio(scale);
        line(128, "getIntRatio fFixedRatio: %f", fixed);
        const double last = FittingPixelRatio(fixed, size.width(), size.height(),
                                              [&](double r) { line(136, "ratio down to: %f", r); });
        line(149, "final fFixedRatio: %f", last);
        QCOMPARE(m_firstLines, expected);
    }
};

QTEST_MAIN(TestScreens)
#include "tst_screens.moc"

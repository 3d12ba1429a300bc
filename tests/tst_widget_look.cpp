// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CommonLib.h"

#include <QtTest>
#include <QtWidgets>

#include <cmath>
#include <functional>
#include <memory>

namespace {

using Make = std::function<QWidget*()>;

constexpr double kLeastContrast = 3; // of what is needed to see a control, by WCAG 2.1
const QColor kLightWindow(0xf0, 0xf0, 0xf0);
const QColor kDarkWindow(0x2a, 0x2a, 0x2a);

double Luminance(const QColor& color)
{
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double Contrast(const QColor& a, const QColor& b)
{
    const double first = Luminance(a);
    const double second = Luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QPalette Palette(const QColor& window)
{
    const QColor text = window == kLightWindow ? Qt::black : Qt::white;
    QPalette palette(text, window, Qt::white, Qt::black, Qt::gray, text, window);
    palette.setColor(QPalette::Highlight, QColor(0x30, 0x78, 0xd0));
    palette.setColor(QPalette::HighlightedText, Qt::yellow);
    return palette;
}

// The widget on a window, as it shows.
QImage Shown(QWidget* widget)
{
    widget->show();
    QCoreApplication::processEvents();
    return widget->window()->grab().toImage();
}

QWidget* MakeSlider()
{
    auto* slider = new ToolBarSlider(nullptr, Qt::Horizontal);
    slider->resize(214, 20);
    slider->setValue(50, false);
    return slider;
}

QWidget* MakeZoomBar()
{
    auto* slider = new ScaleUnitSlider(nullptr);
    slider->resize(248, 20);
    slider->setValue(50);
    return slider;
}

QWidget* MakeRuler()
{
    auto* ruler = new TimelineRuler;
    ruler->resize(300, ruler->Height());
    ruler->SetCurrentFrames(45000);
    return ruler;
}

} // namespace

Q_DECLARE_METATYPE(Make)

class TestWidgetLook : public QObject
{
    Q_OBJECT

    const QPalette m_before = QGuiApplication::palette();

private slots:
    void cleanup()
    {
        qApp->setStyleSheet({});
        QApplication::setPalette(m_before);
    }

    void palettePaints_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QRect>("part");
        const auto row = [](const char* name, const Make& make, const QRect& part) {
            QTest::newRow(name) << make << part;
        };
        row("the chunk of a slider", MakeSlider, {106, 9, 2, 2});
        row("its groove before the chunk", MakeSlider, {20, 9, 50, 2});
        row("its groove behind it", MakeSlider, {150, 9, 50, 2});
        row("the minus of a zoom bar", MakeZoomBar, {6, 9, 8, 2});
        row("the groove of a zoom bar", MakeZoomBar, {180, 9, 30, 2});
        row("the play head of a ruler", MakeRuler, {58, 12, 4, 4});
        row("the bottom line of a ruler", MakeRuler, {150, 26, 100, 1});
    }
    void palettePaints()
    {
        QFETCH(Make, make);
        QFETCH(QRect, part);
        for (const QColor& window : {kLightWindow, kDarkWindow}) {
            QApplication::setPalette(Palette(window));
            const std::unique_ptr<QWidget> widget(make());
            const QImage image = Shown(widget.get());
            for (int x = part.left(); x <= part.right(); ++x) {
                for (int y = part.top(); y <= part.bottom(); ++y) {
                    const QColor pixel = image.pixelColor(x, y);
                    QVERIFY2(Contrast(pixel, window) >= kLeastContrast,
                             qPrintable(QStringLiteral("%1 on %2 at (%3, %4)")
                                            .arg(pixel.name(), window.name())
                                            .arg(x)
                                            .arg(y)));
                }
            }
        }
    }

    void sheetLeavesPartsOut_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<bool>("showsChunk");
        QTest::newRow("none") << QString() << true;
        QTest::newRow("for something else") << "QDialog { background: red; }" << true;
        QTest::newRow("for the groove")
            << "#CommonLib_ToolBarSlider_groove { background: red; }" << false;
        QTest::newRow("for all widgets") << "QWidget { background: #f0f0f0; }" << false;
    }
    void sheetLeavesPartsOut()
    {
        QFETCH(QString, sheet);
        QApplication::setPalette(Palette(kLightWindow));
        const std::unique_ptr<QWidget> slider(MakeSlider());
        slider->setStyleSheet(sheet);
        QTEST(Shown(slider.get()).pixelColor(107, 6) != kLightWindow, "showsChunk");
        slider->setStyleSheet({});
        QVERIFY(Shown(slider.get()).pixelColor(107, 6) != kLightWindow);
    }

    void highlightOfItsOwnLeavesTheRestToThePalette()
    {
        QApplication::setPalette(Palette(kLightWindow));
        const std::unique_ptr<QWidget> slider(MakeSlider());
        static_cast<ToolBarSlider*>(slider.get())->SetGroomHighlight("background: #ff8000");
        const QImage image = Shown(slider.get());
        QCOMPARE(image.pixelColor(40, 9), QColor("#ff8000"));
        QVERIFY(Contrast(image.pixelColor(170, 9), kLightWindow) >= kLeastContrast);
    }

    void buttonsTellTheirState()
    {
        QApplication::setPalette(Palette(kLightWindow));
        BaseButton button(1, "button", nullptr);
        button.resize(40, 20);
        button.setCheckable(true);
        const QColor normal = Shown(&button).pixelColor(20, 10);
        button.setChecked(true);
        const QColor checked = Shown(&button).pixelColor(20, 10);
        QVERIFY(checked != normal && Contrast(checked, Qt::black) > kLeastContrast);
        button.setDown(true);
        const QColor pressed = Shown(&button).pixelColor(20, 10);
        QVERIFY(pressed != normal && pressed != checked);
        // What it shows under a sheet is the sheet's.
        qApp->setStyleSheet("QLabel { color: red; }");
        QCOMPARE(Shown(&button).pixelColor(20, 10), kLightWindow);
    }

    void tabKeepsATextThatIsHigherThanItsPlace()
    {
        QApplication::setPalette(Palette(kLightWindow));
        ImageTextButton2 tab(1, "tab", nullptr);
        tab.setFocusPolicy(Qt::NoFocus); // no frame about it
        QFont large = tab.font();
        large.setPixelSize(60);
        tab.setFont(large);
        tab.SetText("g");
        tab.resize(tab.sizeHint());
        const QImage image = Shown(&tab);
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (Contrast(image.pixelColor(x, y), kLightWindow) > kLeastContrast)
                    ink |= QRect(x, y, 1, 1);
            }
        }
        QVERIFY(ink.height() > 40); // all of the letter, down to its tail
        QVERIFY(ink.bottom() < image.height() - 1);
    }

    void rulerFollowsThePaletteUntilItIsTold()
    {
        QApplication::setPalette(Palette(kDarkWindow));
        TimelineRuler ruler;
        ruler.SetScaleColor(Qt::green);
        Shown(&ruler);
        QCOMPARE(ruler.GetPointerBGColor(), QColor(Qt::white));
        QApplication::setPalette(Palette(kLightWindow));
        QCoreApplication::processEvents(); // Qt 6 tells widgets later
        QCOMPARE(ruler.GetPointerBGColor(), QColor(Qt::black));
        QVERIFY(Contrast(ruler.GetFrameTextColor(), kLightWindow) > kLeastContrast);
        QCOMPARE(ruler.GetScaleColor(), QColor(Qt::green));
        // A sheet was written for the presets.
        QApplication::setPalette(Palette(kDarkWindow));
        ruler.setStyleSheet("QLabel { color: red; }");
        QCOMPARE(ruler.GetPointerBGColor(), QColor(Qt::black));
        QCOMPARE(ruler.GetFrameTextColor(), QColor(0x80, 0x80, 0x80));
    }

    void sheetsSuitWidgetsOfOtherNames_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QColor>("pointer");
        QTest::newRow("dark") << gGetCommonLibStyles() << QColor("#4da3ff");
        QTest::newRow("light") << GetCommonLibLightStyles() << QColor("#1f78d1");
    }
    void sheetsSuitWidgetsOfOtherNames()
    {
        QFETCH(QString, sheet);
        TimelineRuler ruler;
        ruler.setObjectName("ruler");
        ruler.setStyleSheet(sheet);
        ruler.ensurePolished();
        QTEST(ruler.GetPointerBGColor(), "pointer");
    }

    // Nothing is drawn in a colour of the dark look where the light one has another.
    void lightSheetIsLight()
    {
        const QString sheet = GetCommonLibLightStyles();
        const QRegularExpression color("#[0-9a-f]{6}\\b");
        for (auto all = color.globalMatch(gGetCommonLibStyles()); all.hasNext();) {
            const QString dark = all.next().captured();
            QVERIFY2(ToLightColor(dark) == dark || !sheet.contains(dark), qPrintable(dark));
        }
        QCOMPARE(ToLightStyles("a { color: #D5D8DC; b: #123456; c: #fff }"),
                 "a { color: #1e2124; b: #123456; c: #fff }");
        QCOMPARE(ToLightColor(QColor(0x4d, 0xa3, 0xff, 40)), QColor(0x1f, 0x78, 0xd1, 40));
    }
};

QTEST_MAIN(TestWidgetLook)
#include "tst_widget_look.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/BaseStateButton.h"
#include "CommonLib/BaseWidget.h"
#include "CommonLib/GlobalUtils.h"
#include "CommonLib/ImageTextButton.h"
#include "CommonLib/ImageTextButton2.h"
#include "CommonLib/MagicLabel.h"
#include "tests/support/DeletedInSlot.h"
#include "tests/support/TestFonts.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

namespace {

void Send(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

// The ids and, when it is not the upper left corner of \a widget, the points that a signal told.
QString Told(QSignalSpy& spy, const QWidget& widget)
{
    QString told;
    while (!spy.isEmpty()) {
        const QVariantList arguments = spy.takeFirst();
        const QPoint at = arguments.value(1, widget.mapToGlobal(QPoint())).toPoint();
        told += arguments[0].toString() + (at == widget.mapToGlobal(QPoint()) ? "" : " elsewhere");
    }
    return told;
}

class Translated : public BaseWidget
{
public:
    QStringList log;
    Translated() : BaseWidget(nullptr) {}
    void RetranslateUi() override { log << "layout"; }
    void TranslateText() override { log << "text"; }

protected:
    void changeEvent(QEvent*) override { log << "base"; }
};

struct States : BaseStateButton
{
    States() : BaseStateButton(9, "states", nullptr)
    {
        resize(40, 30);
        for (const int id : {11, 12, 13})
            AddButton(id, QString::number(id));
        show();
    }
    QString Shown() const
    {
        QString shown;
        for (const BaseButton* button : findChildren<BaseButton*>())
            shown +=
                button->isVisible() && button->geometry() == rect() ? button->objectName() : "";
        return shown;
    }
};

struct Tab : ImageTextButton2
{
    Tab() : ImageTextButton2(6, "tab", nullptr)
    {
        setStyleSheet("ImageTextButton2 { background: white }");
        resize(60, 60);
        QFont boxes("CommonLib boxes");
        boxes.setPixelSize(10);
        setFont(boxes);
        SetText("HHHH");
        SetNormalTextColor(Qt::green);
        SetSelectedTextColor(Qt::black);
    }
    void SetImages()
    {
        QPixmap pixmap(20, 10);
        pixmap.fill(Qt::red);
        SetNormalImage(pixmap);
        pixmap = QPixmap(20, 20); // 10 by 10 on a screen of twice the density
        pixmap.setDevicePixelRatio(2);
        pixmap.fill(Qt::blue);
        SetSelectedImage(pixmap);
    }
    // Of the pixels of a colour.
    QRect Bounds(const QColor& color)
    {
        const QImage mask = grab().toImage().createMaskFromColor(color.rgb(), Qt::MaskOutColor);
        return QRegion(QBitmap::fromImage(mask)).boundingRect();
    }
    // Where the text is instead of in its place; rasterisers may differ in the outermost pixels.
    QString TextOutsideOf(int top)
    {
        const QRect text = Bounds(Qt::green);
        const bool isThere = qAbs(text.top() - top) < 2 && qAbs(text.height() - 7) < 2 &&
                             qAbs(text.width() - 26) < 3 && qAbs(text.center().x() - 30) < 2;
        QString where;
        if (!isThere)
            QDebug(&where) << text;
        return where;
    }
};

} // namespace

class TestButtons : public QObject
{
    Q_OBJECT

    std::unique_ptr<QWidget> m_stage;

private slots:
    void initTestCase()
    {
        QVERIFY(QFontDatabase::addApplicationFontFromData(TestFonts::Boxes("CommonLib boxes")) >=
                0);
    }

    void buttonTellsPressAndClick()
    {
        QWidget window;
        BaseButton button(7, "name", &window);
        button.move(5, 6);
        window.show();
        QSignalSpy pressed(&button, &BaseButton::Pressed), clicked(&button, &BaseButton::Clicked);
        QTest::mousePress(&button, Qt::LeftButton);
        QCOMPARE(Told(pressed, button), QString("7"));
        QCOMPARE(clicked.size(), 0);
        QTest::mouseRelease(&button, Qt::LeftButton);
        QCOMPARE(Told(clicked, button), QString("7"));
        button.SetEnabled(false);
        QTest::mouseClick(&button, Qt::LeftButton);
        QCOMPARE(pressed.size(), 0);
        QCOMPARE(clicked.size(), 0);
    }

    void buttonTellsEnterAndLeave()
    {
        QWidget window;
        window.move(60, 70);
        BaseButton button(7, "name", &window);
        button.move(5, 6);
        window.show();
        QSignalSpy entered(&button, &BaseButton::sigEnter), left(&button, &BaseButton::sigLeave);
        entered.clear(); // of a pointer that happens to be there
        Send(&button, QEvent::Enter);
        QCOMPARE(Told(entered, button), QString("7"));
        Send(&button, QEvent::Leave);
        QCOMPARE(Told(left, button).right(1), QString("7"));
    }

    void clicksAdvanceTheState()
    {
        States states;
        QSignalSpy spy(&states, &BaseStateButton::Clicked);
        for (const int id : {11, 12, 13, 11}) {
            QCOMPARE(states.CurrentButtonId(), id);
            QCOMPARE(states.Shown(), QString::number(id));
            QTest::mouseClick(states.windowHandle(), Qt::LeftButton, {}, {5, 5});
            QCOMPARE(Told(spy, states), QString::number(id));
        }
    }

    void callsChangeTheState()
    {
        States states;
        states.ClickCurrentButton();
        states.resize(80, 60);
        QCOMPARE(states.Shown(), QString("12"));
        states.SetCurrentButtonId(13);
        QCOMPARE(states.Shown(), QString("13"));
        states.Restore();
        QCOMPARE(states.Shown(), QString("11"));
    }

    void unknownStateShowsNothing()
    {
        States states;
        QSignalSpy spy(&states, &BaseStateButton::Clicked);
        states.SetCurrentButtonId(13);
        states.SetCurrentButtonId(99);
        QCOMPARE(states.Shown(), QString());
        QCOMPARE(states.CurrentButtonId(), 13);
        states.ClickCurrentButton();
        QCOMPARE(spy.size(), 0);
        states.Restore();
        QCOMPARE(states.Shown(), QString("11"));
    }

    void statesThatComeAndGo()
    {
        States states;
        QSignalSpy spy(&states, &BaseStateButton::Clicked);
        states.AddButton(nullptr);
        states.AddButton(states.GetButton(12)); // is one already
        auto* added = new BaseButton(14, "14", nullptr);
        states.AddButton(added);
        states.SetCurrentButtonId(12);
        delete states.GetButton(11);
        QCOMPARE(states.Shown(), QString("12"));
        added->setParent(nullptr);
        Q_EMIT added->Clicked(14, {});
        states.ClickCurrentButton();
        QCOMPARE(Told(spy, states), QString("12"));
        QCOMPARE(states.Shown(), QString("13"));
        states.ClickCurrentButton();
        QCOMPARE(states.Shown(), QString("12"));
        states.AddButton(added);
        states.SetCurrentButtonId(14);
        states.ClickCurrentButton();
        QCOMPARE(states.Shown(), QString("12")); // advanced once, not twice
    }

    void language()
    {
        Translated widget;
        Send(&widget, QEvent::LanguageChange);
        QCOMPARE(widget.log.join(' '), QString("text layout base"));
    }

    void magicLabelIsRightAlignedInArabic_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<Qt::Alignment>("alignment");
        const Qt::Alignment right = Qt::AlignRight | Qt::AlignVCenter;
        QTest::newRow("without text") << "" << Qt::LeftToRight << right;
        QTest::newRow("with text") << "text" << Qt::LeftToRight << right;
        QTest::newRow("in a mirrored program")
            << "text" << Qt::RightToLeft << (right | Qt::AlignAbsolute);
    }
    void magicLabelIsRightAlignedInArabic()
    {
        QFETCH(QString, text);
        QFETCH(Qt::LayoutDirection, direction);
        gSetArgLang(true);
        QApplication::setLayoutDirection(direction);
        const std::unique_ptr<MagicLabel> label(text.isEmpty() ? new MagicLabel(nullptr)
                                                               : new MagicLabel(text, nullptr));
        QApplication::setLayoutDirection(Qt::LeftToRight);
        gSetArgLang(false);
        QTEST(label->alignment(), "alignment");
        QVERIFY(QStyle::visualAlignment(direction, label->alignment()) & Qt::AlignRight);
    }

    void imageAndText_data()
    {
        QTest::addColumn<int>("align");
        QTest::addColumn<int>("height");
        QTest::addColumn<QRect>("image");
        QTest::addColumn<QRect>("text");
        const auto row = [](const char* name, int align, int height, QRect image, QRect text) {
            QTest::newRow(name) << align << height << image << text;
        };
        row("image at the left", 0, 40, {0, 0, 40, 40}, {39, 0, 61, 40});
        row("above, no room for the text", 1, 40, {0, 0, 100, 100}, {0, 99, 100, 0});
        row("at the right", 2, 40, {59, 0, 40, 40}, {0, 0, 60, 40});
        row("above", 1, 180, {0, 0, 100, 100}, {0, 99, 100, 81});
        row("below", 3, 180, {0, 79, 100, 100}, {0, 0, 100, 80});
    }
    void imageAndText()
    {
        QFETCH(int, align);
        QFETCH(int, height);
        ImageTextButton button(5, "image", nullptr);
        QCOMPARE(button.size(), QSize(300, 300));
        button.setWindowFlag(Qt::FramelessWindowHint); // a frame may want a greater width
        button.resize(100, height);
        button.SetImageAlign(align); // laid out when it shows
        button.show();
        const auto* label = button.findChild<QLabel*>("ImageTextButton_Text");
        QTEST(button.findChild<BaseButton*>("image")->geometry(), "image");
        QTEST(label->geometry(), "text");
        const auto across = align % 2 == 1 ? Qt::AlignHCenter : Qt::AlignLeft;
        QCOMPARE(label->alignment(), across | Qt::AlignVCenter);
    }

    void imageAndTextByMouse_data()
    {
        QTest::addColumn<QPoint>("pressed");
        QTest::addColumn<QPoint>("released");
        QTest::addColumn<QString>("clicked");
        const QPoint image(20, 20), text(80, 20);
        QTest::newRow("on the image") << image << image << "5";
        QTest::newRow("on the text") << text << text << "5";
        QTest::newRow("released beside it") << text << QPoint(80, 60) << "";
    }
    void imageAndTextByMouse()
    {
        QFETCH(QPoint, pressed);
        QFETCH(QPoint, released);
        ImageTextButton button(5, "image", nullptr);
        button.setWindowFlag(Qt::FramelessWindowHint);
        button.resize(100, 40);
        button.show();
        button.SetText("Import");
        QSignalSpy clicked(&button, &ImageTextButton::Clicked);
        QTest::mousePress(button.windowHandle(), Qt::LeftButton, {}, pressed);
        QTest::mouseRelease(button.windowHandle(), Qt::LeftButton, {}, released);
        QTEST(Told(clicked, button), "clicked");
    }

    void tabShowsItsTextInTheMiddle()
    {
        Tab tab;
        QCOMPARE(tab.sizeHint().height(), 46);
        QCOMPARE(tab.TextOutsideOf(30), QString());
    }

    void tabShowsItsImageAboveTheText()
    {
        Tab tab;
        tab.SetImages();
        QCOMPARE(tab.Bounds(Qt::red), QRect(20, 15, 20, 10));
        QCOMPARE(tab.TextOutsideOf(35), QString());
        QCOMPARE(tab.Bounds(Qt::blue), QRect());
        QCOMPARE(tab.Bounds(Qt::black), QRect());
    }

    void selectedTabShowsTheOtherImageAndColour()
    {
        Tab tab;
        tab.SetImages();
        QSignalSpy selected(&tab, &ImageTextButton2::sigSelected);
        tab.SetButtonState(ImageTextButton2::Selected);
        QCOMPARE(selected.size(), 0);
        QCOMPARE(tab.Bounds(Qt::blue), QRect(25, 15, 10, 10));
        QCOMPARE(tab.Bounds(Qt::red), QRect());
        QVERIFY(!tab.Bounds(Qt::black).isNull());
    }

    void userSelectsATab_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("by a key") << true;
        QTest::newRow("by the mouse") << false;
    }
    void userSelectsATab()
    {
        QFETCH(bool, byKey);
        Tab tab;
        tab.SetImages();
        QSignalSpy selected(&tab, &ImageTextButton2::sigSelected);
        byKey ? QTest::keyPress(&tab, Qt::Key_Space) : QTest::mousePress(&tab, Qt::LeftButton);
        QVERIFY(!tab.Bounds(Qt::blue).isNull());
        QCOMPARE(Told(selected, tab), QString("6"));
    }

    void accessibleNames()
    {
        BaseButton button("name", nullptr);
        Tab tab;
        const auto name = [](QWidget& widget) {
            return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
        };
        QCOMPARE(name(tab), QString("HHHH"));
        for (const char* property : {"objectName", "toolTip", "text", "accessibleName"}) {
            button.setProperty(property, property); // goes before the ones before
            QCOMPARE(name(button), QString(property));
        }
    }

    void accessiblePress()
    {
        BaseButton button("name", nullptr);
        Tab tab;
        QSignalSpy clicked(&button, &BaseButton::Clicked),
            selected(&tab, &ImageTextButton2::sigSelected);
        for (QWidget* widget : {static_cast<QWidget*>(&button), static_cast<QWidget*>(&tab)}) {
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
            accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            widget->setEnabled(false);
            accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        }
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(selected.size(), 1);
        QVERIFY(QAccessible::queryAccessibleInterface(&tab)->state().selected);
    }

    void deletedInSlot_data()
    {
        using namespace DeletedInSlot;
        QTest::addColumn<Make>("make");
        QTest::addColumn<Steps>("steps");
        QTest::addColumn<QString>("deletedIn"); // apart from after each step
        const Make button = [] { return new BaseButton("button", nullptr); };
        const Make within = [this] {
            m_stage.reset(new QWidget);
            m_stage->resize(400, 40);
            m_stage->show();
            return new BaseButton("button", m_stage.get());
        };
        const Make states = [] {
            auto* widget = new BaseStateButton(1, "states", nullptr);
            widget->AddButton(2, "state");
            widget->AddButton(3, "next");
            return widget;
        };
        const Make imageText = [] { return new ImageTextButton(1, "image", nullptr); };
        const Make tab = [] { return new ImageTextButton2(1, "tab", nullptr); };
        const Step space = [](QWidget* w) {
            QTest::keyClick(w->focusProxy() ? w->focusProxy() : w, Qt::Key_Space);
        };
        const Step speak = [](QWidget* w) {
            QAccessible::queryAccessibleInterface(w)->actionInterface()->doAction(
                QAccessibleActionInterface::pressAction());
        };
        const Step click = [](QWidget* w) {
            static_cast<BaseStateButton*>(w)->ClickCurrentButton();
        };
        const Steps press{Press(107), Release(107)};
        const QString all = "pressed released clicked Clicked Pressed";
        const QString both = "Clicked CurrentButtonIdChanged",
                      selected = "sigSelected StateChanged";
        QTest::newRow("button, mouse") << button << press << all;
        QTest::newRow("button, key") << button << Steps{space} << all;
        QTest::newRow("button, assistive tool") << button << Steps{speak} << all;
        QTest::newRow("button, entered and left")
            << within << Steps{Move(300), Move(107), Move(300)} << "sigEnter sigLeave";
        QTest::newRow("states, mouse") << states << press << both;
        QTest::newRow("states, key") << states << Steps{space} << both;
        QTest::newRow("states, assistive tool") << states << Steps{speak} << both;
        QTest::newRow("states, call") << states << Steps{click} << both;
        QTest::newRow("image, mouse") << imageText << Steps{Press(5), Release(5)} << "Clicked";
        QTest::newRow("its text, mouse") << imageText << press << "Clicked";
        QTest::newRow("tab, mouse") << tab << press << selected;
        QTest::newRow("tab, key") << tab << Steps{space} << selected;
        QTest::newRow("tab, assistive tool") << tab << Steps{speak} << selected;
    }

    void deletedInSlot()
    {
        QFETCH(DeletedInSlot::Make, make);
        QFETCH(DeletedInSlot::Steps, steps);
        QFETCH(QString, deletedIn);
        // Qt still uses a widget that it sends the mouse to.
        const bool laterOnly = deletedIn.contains("sigEnter");
        for (const bool later : {laterOnly, true})
            QCOMPARE(DeletedInSlot::InEachSlot(make, steps, later), deletedIn);
    }
};

QTEST_MAIN(TestButtons)
#include "tst_buttons.moc"

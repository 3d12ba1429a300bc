// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CommonLib.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <memory>

namespace {

using Make = std::function<QWidget*()>;

// Another value than \a value, which a property of any widget can have.
QVariant Other(const QVariant& value)
{
    switch (static_cast<QMetaType::Type>(value.userType())) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Int:
        return value.toInt() == 0 ? 1 : value.toInt() - 1;
    case QMetaType::Float:
        return value.toFloat() + 7.5F;
    case QMetaType::QString:
        return "another";
    case QMetaType::QStringList:
        return QStringList{"one", "two"};
    case QMetaType::QSize:
        return QSize(20, 21);
    case QMetaType::QColor:
        return QColor(Qt::magenta);
    case QMetaType::QPixmap: {
        QPixmap pixmap(3, 3);
        pixmap.fill(Qt::red);
        return pixmap;
    }
    case QMetaType::QIcon:
        return QIcon(QPixmap(3, 3));
    default: // enumerations
        return value.toInt() == 1 ? 2 : 1;
    }
}

// Of icons and pixmaps there is no comparison but whether they are copies.
bool IsSame(const QVariant& a, const QVariant& b)
{
    if (a.userType() == QMetaType::QPixmap)
        return a.value<QPixmap>().cacheKey() == b.value<QPixmap>().cacheKey();
    if (a.userType() == QMetaType::QIcon)
        return a.value<QIcon>().cacheKey() == b.value<QIcon>().cacheKey();
    return a == b ||
           (a.canConvert<int>() && a.toInt() == b.toInt() && b.userType() == QMetaType::Int);
}

template <typename Widget>
QWidget* MakeOne()
{
    return new Widget(nullptr);
}

QWidget* MakeStates()
{
    auto* states = new BaseStateButton(nullptr);
    states->SetStateNames({"first", "second"});
    return states;
}

QWidget* MakeUpright()
{
    return new ToolBarSlider(nullptr, Qt::Vertical);
}

} // namespace

Q_DECLARE_METATYPE(Make)

class TestWidgetProperties : public QObject
{
    Q_OBJECT

    static void AddProperties(const QString& prefix, const Make& make)
    {
        const QMetaObject* meta = std::unique_ptr<QWidget>(make())->metaObject();
        const auto isOurs = [](const QMetaObject* type) {
            return QByteArray(type->className()).at(0) != 'Q';
        };
        for (; isOurs(meta); meta = meta->superClass()) {
            for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
                const char* name = meta->property(i).name();
                QTest::newRow(qPrintable(prefix + ' ' + name)) << make << QByteArray(name);
            }
        }
    }

private slots:
    void everyPropertyTells_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<QByteArray>("name");
        AddProperties("button", MakeOne<BaseButton>);
        AddProperties("states", MakeStates);
        AddProperties("image and text", MakeOne<ImageTextButton>);
        AddProperties("tab", MakeOne<ImageTextButton2>);
        AddProperties("bar", MakeOne<PureSlider>);
        AddProperties("zoom bar", MakeOne<ScaleUnitSlider>);
        AddProperties("ruler", MakeOne<TimelineRuler>);
        AddProperties("slider", MakeOne<ToolBarSlider>);
        AddProperties("upright slider", MakeUpright);
    }
    void everyPropertyTells()
    {
        QFETCH(Make, make);
        QFETCH(QByteArray, name);
        const std::unique_ptr<QWidget> widget(make());
        const QMetaObject* meta = widget->metaObject();
        const QMetaProperty property = meta->property(meta->indexOfProperty(name.constData()));
        QVERIFY(property.hasNotifySignal());
        if (!property.isWritable())
            return;
        const bool isOfTheOtherWay =
            meta == &ToolBarSlider::staticMetaObject &&
            name == (widget->property("orientation").toInt() == Qt::Vertical ? "leftToRight"
                                                                             : "bottomToTop");
        if (isOfTheOtherWay)
            return;
        QSignalSpy told(widget.get(), property.notifySignal());
        const QVariant before = property.read(widget.get());
        const QVariant other = Other(before);
        QVERIFY(property.write(widget.get(), other));
        QVERIFY2(IsSame(property.read(widget.get()), other), qPrintable(other.toString()));
        QCOMPARE(told.count(), 1);
        QVERIFY(property.write(widget.get(), other));
        QCOMPARE(told.count(), 1);
        QVERIFY(property.write(widget.get(), before));
        QVERIFY(IsSame(property.read(widget.get()), before));
        QCOMPARE(told.count(), 2);
    }

    void boundsComeOneByOne()
    {
        PureSlider bar(nullptr);
        QVERIFY(bar.setProperty("minimum", 200));
        QVERIFY(bar.setProperty("maximum", 300));
        QCOMPARE(bar.property("minimum").toInt(), 200);
        QVERIFY(bar.setProperty("maximum", INT_MIN));
        QVERIFY(bar.setProperty("minimum", INT_MAX));
        QCOMPARE(bar.property("maximum").toInt(), INT_MAX);
    }

    void usersChangesAreTold()
    {
        ToolBarSlider slider(nullptr, Qt::Horizontal);
        slider.resize(214, 20);
        QStringList told;
        connect(&slider, &ToolBarSlider::PressedChanged,
                [&](bool on) { told << (on ? "+" : "-"); });
        connect(&slider, &ToolBarSlider::ValueShown, [&](float v) { told << QString::number(v); });
        connect(&slider, &ToolBarSlider::valueChanged,
                [&](double v) { told << QString::number(v); });
        QTest::mousePress(&slider, Qt::LeftButton, {}, {107, 10});
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, {57, 10});
        QCOMPARE(told.join(' '), "+ 50 50 - 25 25");
        told.clear();
        slider.setValue(25, false);
        slider.setRange(30, 40);
        QCOMPARE(told.join(' '), "30");
    }

    void rulersChangesAreTold_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("told");
        QTest::newRow("play head") << int(Qt::Key_Right) << "frame 1";
        QTest::newRow("zoom about it") << int(Qt::Key_Plus) << "zoom 770";
        QTest::newRow("play head out of sight") << int(Qt::Key_End) << "frame 99999 offset 96874";
    }
    void rulersChangesAreTold()
    {
        QFETCH(int, key);
        TimelineRuler ruler;
        ruler.resize(100, ruler.Height());
        ruler.SetTotalFrames(100000);
        if (key == Qt::Key_End)
            ruler.SetZoom(600);
        QStringList told;
        connect(&ruler, &TimelineRuler::CurrentFramesShown,
                [&](int frame) { told << QString("frame %1").arg(frame); });
        connect(&ruler, &TimelineRuler::ZoomShown,
                [&](float zoom) { told << QString("zoom %1").arg(zoom); });
        connect(&ruler, &TimelineRuler::OffsetShown,
                [&] { told << QString("offset %1").arg(ruler.OffsetFrames()); });
        QTest::keyClick(ruler.focusProxy(), static_cast<Qt::Key>(key));
        QTEST(told.join(' '), "told");
    }

    void statesAreReplaced()
    {
        BaseStateButton states(1, "states", nullptr);
        states.AddButton(7, "seven");
        states.AddButton(8, "eight");
        states.SetCurrentButtonId(8);
        QSignalSpy current(&states, &BaseStateButton::CurrentButtonIdChanged);
        delete states.GetButton(8);
        QCOMPARE(current.takeFirst(), {7});
        states.SetStateNames({"a", "b"});
        QCOMPARE(current.takeFirst(), {0});
        states.ClickCurrentButton();
        QCOMPARE(states.CurrentButtonId(), 1);
        QCOMPARE(states.StateNames(), QStringList({"a", "b"}));
    }

    void palettesColoursAreTold()
    {
        TimelineRuler ruler;
        ruler.ensurePolished();
        QCoreApplication::processEvents();
        QSignalSpy told(&ruler, &TimelineRuler::SettingsChanged);
        ruler.setPalette(
            QPalette(Qt::white, Qt::black, Qt::white, Qt::black, Qt::gray, Qt::white, Qt::black));
        QVERIFY(told.wait());
    }
};

QTEST_MAIN(TestWidgetProperties)
#include "tst_widget_properties.moc"

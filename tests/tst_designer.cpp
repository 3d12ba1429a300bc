// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/Files.h"
#include "ui_widgets.h"

#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <QtUiTools>
#include <QtWidgets>

#include <memory>

namespace {

QString PluginFolder()
{
    return QCoreApplication::applicationDirPath() + "/designer";
}

QList<QDesignerCustomWidgetInterface*> Plugins()
{
    const QFileInfoList files = QDir(PluginFolder()).entryInfoList(QDir::Files);
    QPluginLoader loader(files.isEmpty() ? QString() : files.first().filePath());
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface*>();
}

// A loader that knows the widgets of the plugin; loaders of Qt leave out what they cannot make.
std::unique_ptr<QWidget> Loaded(const QByteArray& form)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(PluginFolder());
    QBuffer buffer;
    buffer.setData(form);
    buffer.open(QIODevice::ReadOnly);
    return std::unique_ptr<QWidget>(loader.load(&buffer));
}

QByteArray Form()
{
    return Contents(DESIGNER_FORM);
}

// All that a form may set, of every widget in it, by name.
QMap<QString, QVariant> Properties(const QWidget& form)
{
    QMap<QString, QVariant> properties;
    for (const QWidget* widget :
         form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const QMetaObject* meta = widget->metaObject();
        for (int i = QWidget::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i)
            properties[widget->objectName() + ' ' + meta->property(i).name()] =
                meta->property(i).read(widget);
    }
    return properties;
}

// Pictures are compared by their pixels: where they come from differs.
bool IsSame(const QVariant& a, const QVariant& b)
{
    if (a.userType() == QMetaType::QPixmap && b.userType() == QMetaType::QPixmap)
        return a.value<QPixmap>().toImage() == b.value<QPixmap>().toImage();
    return a == b;
}

} // namespace

class TestDesigner : public QObject
{
    Q_OBJECT

private slots:
    void formIsLoaded_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char* name, const QVariant& value) {
            QTest::newRow(name) << QString(name) << value;
        };
        row("play id", 7);
        row("play checked", true);
        row("states stateNames", QStringList{"Player_Play", "Player_Pause"});
        row("states currentButtonId", 1);
        row("imported text", "Import");
        row("imported imageAlign", 2);
        row("imported imageWidth", 18);
        row("tab state", 1);
        row("tab normalTextColor", QColor(10, 20, 30));
        row("label text", "Label");
        row("bar minimum", 200);
        row("bar value", 250);
        row("bar subpageColor", QColor(1, 2, 3));
        row("zoom maximum", 400.0F);
        row("zoom value", 150.0F);
        row("zoom addSubStep", 4);
        row("zoom grooveHeight", 5);
        row("ruler fps", 30.0F);
        row("ruler zoom", 300.0F);
        row("ruler currentFrames", 250);
        row("ruler ScaleColor", QColor(4, 5, 6));
        row("seek value", 150.0F);
        row("seek chunkSize", QSize(8, 18));
        row("fader maximum", 0.0F);
        row("fader value", 60.0F);
        row("fader bottomToTop", false);
    }
    void formIsLoaded()
    {
        QFETCH(QString, name);
        QFETCH(QVariant, value);
        const std::unique_ptr<QWidget> form = Loaded(Form());
        QVERIFY(form);
        const QVariant held = Properties(*form).value(name);
        QVERIFY2(held == value || (name == "tab state" && held.toInt() == value.toInt()),
                 qPrintable(held.toString()));
    }

    // What uic writes of the form makes the same widgets.
    void formIsCompiled()
    {
        BaseWidget compiled(nullptr);
        Ui::Widgets().setupUi(&compiled);
        const std::unique_ptr<QWidget> loaded = Loaded(Form());
        QVERIFY(loaded);
        const QMap<QString, QVariant> expected = Properties(*loaded);
        const QMap<QString, QVariant> properties = Properties(compiled);
        QCOMPARE(properties.keys(), expected.keys());
        QVERIFY(properties.size() > 100);
        for (auto one = expected.begin(); one != expected.end(); ++one) {
            if (one->userType() != QMetaType::QIcon)
                QVERIFY2(IsSame(properties[one.key()], *one), qPrintable(one.key()));
        }
    }

    void newWidgets_data()
    {
        QTest::addColumn<QString>("name");
        for (const QDesignerCustomWidgetInterface* plugin : Plugins())
            QTest::newRow(qPrintable(plugin->name())) << plugin->name();
    }
    void newWidgets()
    {
        QFETCH(QString, name);
        const auto plugins = Plugins();
        const auto plugin = std::find_if(plugins.begin(), plugins.end(),
                                         [&](auto* one) { return one->name() == name; });
        const std::unique_ptr<QWidget> widget = Loaded((*plugin)->domXml().toUtf8());
        QVERIFY(widget);
        QCOMPARE(QString(widget->metaObject()->className()), name);
        QVERIFY(widget->width() >= widget->minimumSizeHint().width());
        QVERIFY(QFile::exists(QStringLiteral(SOURCE_FOLDER "/") + (*plugin)->includeFile()));
        QCOMPARE((*plugin)->group(), "CommonLib");
        QVERIFY(!(*plugin)->toolTip().isEmpty() && !(*plugin)->whatsThis().isEmpty());
        const QImage icon = (*plugin)->icon().pixmap(22).toImage();
        QVERIFY(!icon.isNull());
        for (auto* other : plugins) {
            if (other != *plugin)
                QVERIFY(other->icon().pixmap(22).toImage() != icon);
        }
    }

    // Each class of the library that is a widget and can be made for any parent.
    void allWidgetsAreThere()
    {
        QStringList names;
        for (const QDesignerCustomWidgetInterface* plugin : Plugins())
            names += plugin->name();
        QStringList inForm{"BaseWidget"};
        const std::unique_ptr<QWidget> form = Loaded(Form());
        QVERIFY(form);
        for (const QWidget* widget :
             form->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            inForm += widget->metaObject()->className();
        inForm.removeDuplicates();
        inForm.sort();
        QCOMPARE(names, inForm);
    }
};

QTEST_MAIN(TestDesigner)
#include "tst_designer.moc"

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Designer/WidgetPlugins.h"

#include "Designer/WidgetIcons.h"

WidgetPlugin::WidgetPlugin(const WidgetEntry& entry, QObject* parent)
    : QObject(parent), m_entry(entry)
{
}

QString WidgetPlugin::name() const
{
    return m_entry.type->className();
}

QString WidgetPlugin::group() const
{
    return QStringLiteral("CommonLib");
}

QString WidgetPlugin::toolTip() const
{
    return m_entry.toolTip;
}

QString WidgetPlugin::whatsThis() const
{
    return m_entry.whatsThis;
}

QString WidgetPlugin::includeFile() const
{
    return QStringLiteral("CommonLib/%1.h").arg(name());
}

QIcon WidgetPlugin::icon() const
{
    return WidgetIcon(name());
}

bool WidgetPlugin::isContainer() const
{
    return m_entry.isContainer;
}

QWidget* WidgetPlugin::createWidget(QWidget* parent)
{
    return m_entry.make(parent);
}

QString WidgetPlugin::domXml() const
{
    const QString type = name();
    return QStringLiteral(
               "<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
               "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
               "<width>%3</width><height>%4</height></rect></property>"
               "%5</widget>"
               "<customwidgets><customwidget><class>%1</class><extends>%6</extends>"
               // Object names are no texts to translate.
               "<propertyspecifications><stringpropertyspecification "
               "name=\"stateNames\" type=\"multiline\" notr=\"true\"/></propertyspecifications>"
               "</customwidget></customwidgets></ui>")
        .arg(type, type.at(0).toLower() + type.mid(1))
        .arg(m_entry.size.width())
        .arg(m_entry.size.height())
        .arg(m_entry.properties, m_entry.type->superClass()->className());
}

WidgetPlugins::WidgetPlugins(QObject* parent) : QObject(parent)
{
    for (const WidgetEntry& entry : WidgetTable())
        m_plugins.append(new WidgetPlugin(entry, this));
}

QList<QDesignerCustomWidgetInterface*> WidgetPlugins::customWidgets() const
{
    return m_plugins;
}

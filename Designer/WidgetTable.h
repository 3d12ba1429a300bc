// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QSize>
#include <QString>
#include <QVector>

struct QMetaObject;
class QWidget;

/// What Qt Designer shows of a widget, and how a form begins with it.
struct WidgetEntry
{
    const QMetaObject* type; ///< of a class whose header has its name
    QString toolTip;
    QString whatsThis;
    QSize size;         ///< in pixels, when it is dropped
    QString properties; ///< that a new one has, as in a form
    bool isContainer;
    QWidget* (*make)(QWidget* parent);
};

/// All widgets of the library, by name.
const QVector<WidgetEntry>& WidgetTable();

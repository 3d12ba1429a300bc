// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/externalapi/ScreenWidget_p.h"

#include <QApplication>
#include <QHash>
#include <QPointer>
#include <QScreen>
#include <QWidget>

namespace {

/// Qt has none of its own. They die with their screens or, before these, with the application.
class ScreenWidgets : public QObject
{
public:
    using QObject::QObject;
    ~ScreenWidgets() override { qDeleteAll(m_widgets); }

    QWidget* Of(QScreen* screen)
    {
        QWidget*& widget = m_widgets[screen];
        if (!widget) {
            widget = Made(screen);
            connect(screen, &QObject::destroyed, this, [this, screen] {
                delete m_widgets.take(screen); // a widget's own screen would change first
            });
        }
        return widget;
    }

private:
    static QWidget* Made(QScreen* screen)
    {
        auto* widget = new QWidget(nullptr, Qt::Desktop);
        widget->setObjectName(screen->name());
        widget->setScreen(screen);
        widget->setGeometry(screen->geometry());
        connect(screen, &QScreen::geometryChanged, widget,
                [widget](const QRect& geometry) { widget->setGeometry(geometry); });
        return widget;
    }

    QHash<QScreen*, QWidget*> m_widgets;
};

} // namespace

QWidget* ScreenWidget(QScreen* screen)
{
    auto* application = qobject_cast<QApplication*>(QCoreApplication::instance());
    if (!screen || !application)
        return nullptr;
    static QPointer<ScreenWidgets> s_widgets;
    if (!s_widgets) {
        s_widgets = new ScreenWidgets(application);
        // Widgets go before what draws them.
        QObject::connect(application, &QObject::destroyed, [] { delete s_widgets; });
    }
    return s_widgets->Of(screen);
}

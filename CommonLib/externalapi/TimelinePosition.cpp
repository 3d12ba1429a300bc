// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/externalapi/TimelinePosition.h"

#include "CommonLib/GlobalUtils.h"
#include "CommonLib/TimelineRuler.h"

#include <QGuiApplication>
#include <QScreen>

namespace {

const QWidget* TimelineView()
{
    const QWidget* window = gGetMainWindow();
    if (!window)
        return nullptr;
    const auto rulers = window->findChildren<TimelineRuler*>();
    for (const TimelineRuler* ruler : rulers) {
        if (ruler->isVisible())
            return ruler->parentWidget();
    }
    return window;
}

} // namespace

QPoint gGetTimelineCenterGlobalPos(INLETimeline* timeline)
{
    if (!timeline)
        return {};
    if (const QWidget* view = TimelineView())
        return view->mapToGlobal(view->rect().center());
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->geometry().center() : QPoint();
}

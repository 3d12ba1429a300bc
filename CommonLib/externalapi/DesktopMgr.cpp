// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/externalapi/DesktopMgr.h"

#include "CommonLib/externalapi/ScreenWidget_p.h"

#include <QGuiApplication>
#include <QPointer>
#include <QScreen>

#include <algorithm>

namespace {

int DistanceTo(const QRect& area, const QPoint& point)
{
    const QPoint nearest(qBound(area.left(), point.x(), area.right()),
                         qBound(area.top(), point.y(), area.bottom()));
    return (point - nearest).manhattanLength();
}

} // namespace

DesktopMgr* DesktopMgr::GetInstance()
{
    static QPointer<DesktopMgr> s_instance;
    if (!s_instance)
        s_instance = new DesktopMgr(QCoreApplication::instance());
    return s_instance;
}

QWidget* DesktopMgr::MainScreen() const
{
    return ScreenWidget(QGuiApplication::primaryScreen());
}

QWidget* DesktopMgr::ScreenWithPoint(QPoint point) const
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto nearest = std::min_element(
        screens.begin(), screens.end(), [&point](const QScreen* a, const QScreen* b) {
            return DistanceTo(a->geometry(), point) < DistanceTo(b->geometry(), point);
        });
    return nearest == screens.end() ? nullptr : ScreenWidget(*nearest);
}

// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/externalapi/ScreenResolution.h"

#include "CommonLib/externalapi/Screens_p.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <iterator>

namespace {

// Areas up to and with `last` are of the class. No class 12, small areas in class 2 and a band of
// class 0 below 17 are kept: see docs/compatibility.md.
struct AreaClass
{
    qint64 last;
    ScreenResolution::RangeType type;
};
constexpr AreaClass kAreaClasses[] = {
    {250000, 2},   {479999, 1},   {767999, 2},   {786431, 3},   {983039, 4},   {995327, 5},
    {1295999, 6},  {1310719, 7},  {1439999, 8},  {1763999, 9},  {2073599, 10}, {2764799, 11},
    {4095999, 13}, {5242879, 14}, {6998399, 15}, {6998400, 16}, {7387200, 0},
};
constexpr ScreenResolution::RangeType kLargestClass = 17;
constexpr ScreenResolution::RangeType kLargestUnscaledClass = 12;

ScreenResolution::RangeType ClassOf(const QSize& size)
{
    return ScreenResolution::GetScreenRangeTypeFrom(size.width(), size.height());
}

QScreen* ScreenOf(const QWidget* widget)
{
    return widget ? widget->screen() : QGuiApplication::primaryScreen();
}

} // namespace

ScreenResolution::RangeType ScreenResolution::GetScreenRangeTypeFrom(int width, int height)
{
    if (width < 1 || height < 1)
        return 0;
    const qint64 area = static_cast<qint64>(width) * height;
    const auto* found = std::find_if(std::begin(kAreaClasses), std::end(kAreaClasses),
                                     [area](const AreaClass& entry) { return area <= entry.last; });
    return found == std::end(kAreaClasses) ? kLargestClass : found->type;
}

ScreenResolution::RangeType ScreenResolution::GetScreenRangeType(int id)
{
    const QVector<ScreenInfo> infos = ListScreens();
    for (const ScreenInfo& info : infos) {
        if (info.id == id)
            return ClassOf(info.logical.size());
    }
    return 0;
}

int ScreenResolution::GetScreenCount()
{
    return ListScreens().size();
}

bool ScreenResolution::GetScreenInfos(QVector<ScreenInfo>& infos)
{
    infos = ListScreens();
    return !infos.isEmpty();
}

bool ScreenResolution::AdapterMinimumSize(QWidget* widget, RangeType type)
{
    const QScreen* screen = ScreenOf(widget);
    return screen && ClassOf(screen->availableGeometry().size()) < type;
}

bool ScreenResolution::CheckEnableHightDPIScale()
{
    const QVector<ScreenInfo> infos = ListScreens();
    if (infos.size() != 1)
        return true;
    return ClassOf(infos.first().logical.size()) > kLargestUnscaledClass;
}

bool ScreenResolution::EnableHightDPIResource()
{
    QVector<ScreenInfo> infos;
    GetScreenInfos(infos);
    return true;
}
